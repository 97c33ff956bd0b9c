// SPDX-License-Identifier: MIT
#include "FolderList.h"
#include "SystemLinks.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {
//! A folder tree with mixed-case names: <tmp>/Users/Ann/Project with a few files.
struct Tree {
    QTemporaryDir tmp;
    QString project;
    Tree()
    {
        project = tmp.path() + QStringLiteral("/Users/Ann/Project");
        QDir().mkpath(project);
        QDir().mkpath(tmp.path() + QStringLiteral("/Users/Ann/Scenario"));
        for (const char *name : {"pond.NAV", "Alder.nav", "notes.txt", "b.ZOB"}) {
            QFile f(project + QLatin1Char('/') + QLatin1String(name));
            f.open(QIODevice::WriteOnly);
        }
        QDir().mkpath(project + QStringLiteral("/old.NAV"));  // a folder, not a file
    }
};
}  // namespace

TEST(FilesOf, MatchesThePatternWithoutRegardToCaseAndListsFilesOnly)
{
    Tree t;
    EXPECT_EQ(filesOf(t.project, QStringLiteral("*.NAV")), (QStringList{QStringLiteral("Alder.nav"), QStringLiteral("pond.NAV")}));
    EXPECT_EQ(filesOf(t.project, QStringLiteral("*.ZOB")), QStringList{QStringLiteral("b.ZOB")});
    EXPECT_TRUE(filesOf(t.project, QStringLiteral("*.KEL")).isEmpty());
    EXPECT_EQ(filesOf(t.project, QStringLiteral("*.*")).size(), 4);
}

TEST(FolderList, ShowsTheFoldersAboveThenTheSubfolders)
{
    Tree t;
    FolderList list;
    int changes = 0;
    QObject::connect(&list, &FolderList::Change, [&] { ++changes; });
    ASSERT_TRUE(list.setPath(t.tmp.path() + QStringLiteral("/Users/Ann")));
    EXPECT_EQ(changes, 1);
    const int n = list.count();
    ASSERT_GE(n, 4);
    EXPECT_EQ(list.item(0)->text(), QStringLiteral("/"));
    EXPECT_EQ(list.item(n - 3)->text(), QStringLiteral("Ann"));
    EXPECT_EQ(list.item(n - 2)->text(), QStringLiteral("Project"));
    EXPECT_EQ(list.item(n - 1)->text(), QStringLiteral("Scenario"));
    EXPECT_EQ(list.currentItem()->text(), QStringLiteral("Ann"));

    // Opening an entry goes into it; the same folder again is no change.
    list.setCurrentRow(n - 2);
    list.openCurrent();
    EXPECT_EQ(list.path(), t.project);
    EXPECT_EQ(changes, 2);
    list.setPath(t.project + QLatin1Char('/'));
    EXPECT_EQ(changes, 2);

    // A folder that does not exist changes nothing.
    EXPECT_FALSE(list.setPath(t.tmp.path() + QStringLiteral("/Nowhere")));
    EXPECT_EQ(list.path(), t.project);
}
