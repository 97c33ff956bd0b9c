// SPDX-License-Identifier: MIT
// Paths on a case-sensitive file system, and the per-user data folder made from the template.
#include "DataFolder.h"
#include "PathSpelling.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

void writeFile(const QString &path, const QByteArray &content = {})
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile f(path);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly)) << path.toStdString();
    f.write(content);
}

QByteArray readFile(const QString &path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray("<missing>");
}

//! A folder tree with mixed-case names: <tmp>/Users/Ann/Project/pond.NAV.
struct Tree {
    QTemporaryDir tmp;
    QString project = tmp.path() + QStringLiteral("/Users/Ann/Project");
    Tree() { writeFile(project + QStringLiteral("/pond.NAV")); }
};

}  // namespace

TEST(PathSpelling, FindsTheSpellingOnDiskOfAnUpperCasePath)
{
    Tree t;
    // Rows of earlier versions keep their folders in capitals with a closing separator.
    EXPECT_EQ(resolvePathCase(t.tmp.path() + QStringLiteral("/USERS/ANN/PROJECT/")), t.project);
    EXPECT_EQ(resolvePathCase(t.tmp.path() + QStringLiteral("/users/ann/project/POND.nav")), t.project + QStringLiteral("/pond.NAV"));
    EXPECT_EQ(resolvePathCase(t.project), t.project);
    const QString missing = t.tmp.path() + QStringLiteral("/USERS/BOB/PROJECT");
    EXPECT_EQ(resolvePathCase(missing), missing);
    EXPECT_EQ(resolvePathCase(QString()), QString());
}

TEST(PathSpelling, WhereCaseCountsAChosenPathKeepsItsRealSpelling)
{
    Tree t;
    const QString upper = t.tmp.path() + QStringLiteral("/USERS/ANN/PROJECT/");
    // The chooser answers with the folder as it is on disk, without a closing separator.
    EXPECT_EQ(chosenFolder(t.project + QLatin1Char('/')), t.project);
    EXPECT_EQ(chosenFolder(upper, false), t.project);
    // A path box shows a chosen path unchanged; a cancelled chooser hands back the box's own text.
    EXPECT_EQ(shownPath(t.project), t.project);
    EXPECT_EQ(shownPath(QStringLiteral("/tmp/Not/There")), QStringLiteral("/tmp/Not/There"));
    // A path kept in a row names the file that exists.
    EXPECT_EQ(keptPath(t.project + QStringLiteral("/POND.NAV")), t.project + QStringLiteral("/pond.NAV"));
}

TEST(PathSpelling, WhereCaseIsIgnoredTheLegacyFormsStay)
{
    Tree t;
    EXPECT_EQ(chosenFolder(t.project, true), t.project + QLatin1Char('/'));
    EXPECT_EQ(chosenFolder(QStringLiteral("C:/Zob/"), true), QStringLiteral("C:/Zob/"));
    EXPECT_EQ(shownPath(QStringLiteral("C:/Zob/Ann/"), true), QStringLiteral("C:/ZOB/ANN/"));
    EXPECT_EQ(keptPath(t.project + QStringLiteral("/POND.NAV"), true), t.project + QStringLiteral("/POND.NAV"));
}

TEST(DataFolder, AFirstStartCopiesTheTemplateOnceAndLaterStartsKeepTheCopy)
{
    QTemporaryDir tmp;
    const QString tmpl = tmp.filePath(QStringLiteral("share/zobrel/ZOB.sqlite"));
    writeFile(tmpl, "template 1");
    // An installed template is read-only; the user's copy must still be writable.
    QFile::setPermissions(tmpl, QFileDevice::ReadOwner | QFileDevice::ReadGroup | QFileDevice::ReadOther);
    const QString home = tmp.filePath(QStringLiteral("data/Zobrel"));
    const QString db = home + QStringLiteral("/ZOB.sqlite");

    EXPECT_EQ(DataFolder::prepare(home, QStringLiteral("ZOB.sqlite"), tmpl), DataFolder::Outcome::Created);
    EXPECT_EQ(readFile(db), "template 1");
    EXPECT_TRUE(QFile::permissions(db) & QFileDevice::WriteOwner);
    EXPECT_FALSE(QFile::exists(db + QStringLiteral(".part")));

    // The user works; a rebuild writes a new template. The next start leaves the user's file alone.
    writeFile(db, "the user's rows");
    QFile::setPermissions(tmpl, QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    writeFile(tmpl, "template 2");
    EXPECT_EQ(DataFolder::prepare(home, QStringLiteral("ZOB.sqlite"), tmpl), DataFolder::Outcome::Existing);
    EXPECT_EQ(readFile(db), "the user's rows");
}

TEST(DataFolder, WithoutATemplateNothingIsMade)
{
    QTemporaryDir tmp;
    const QString home = tmp.filePath(QStringLiteral("data/Zobrel"));
    EXPECT_EQ(DataFolder::prepare(home, QStringLiteral("ZOB.sqlite"), QString()), DataFolder::Outcome::Failed);
    EXPECT_EQ(DataFolder::prepare(home, QStringLiteral("ZOB.sqlite"), tmp.filePath(QStringLiteral("none.sqlite"))),
              DataFolder::Outcome::Failed);
    EXPECT_FALSE(QFile::exists(home + QStringLiteral("/ZOB.sqlite")));
}

TEST(DataFolder, TheTemplateIsFoundBesideTheProgramAndAnEarlierDatabaseThereComesFirst)
{
    QTemporaryDir tmp;
    const QString bin = tmp.filePath(QStringLiteral("bin"));
    QDir().mkpath(bin);
    EXPECT_EQ(DataFolder::templatePath(bin), QString());
    EXPECT_EQ(DataFolder::startingDatabase(bin, QStringLiteral("ZOB.sqlite")), QString());
    const QString tmpl = tmp.filePath(QStringLiteral("share/zobrel/ZOB.sqlite"));
    writeFile(tmpl);
    EXPECT_EQ(DataFolder::templatePath(bin), QDir::cleanPath(tmpl));
    EXPECT_EQ(DataFolder::startingDatabase(bin, QStringLiteral("ZOB.sqlite")), QDir::cleanPath(tmpl));
    // A database that an earlier version kept beside the program carries its rows over.
    writeFile(bin + QStringLiteral("/ZOB.sqlite"));
    EXPECT_EQ(DataFolder::startingDatabase(bin, QStringLiteral("ZOB.sqlite")), bin + QStringLiteral("/ZOB.sqlite"));
}

TEST(DataFolder, TheFirstStartMessageNamesTheFolderOnALineOfItsOwn)
{
    const QString text = DataFolder::firstStartMessage(QStringLiteral("/home/ann/.local/share/Zobrel"));
    EXPECT_TRUE(text.contains(QStringLiteral("\r\n/home/ann/.local/share/Zobrel\r\n"))) << text.toStdString();
    EXPECT_TRUE(text.contains(QStringLiteral("back up")));
}
