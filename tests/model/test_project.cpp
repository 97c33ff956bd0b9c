// SPDX-License-Identifier: MIT
// The project save: the row and the marker file together, the success message once both exist, and
// two programs saving projects on one database file.
#include "FakeProjectWindow.h"
#include "TestSupport.h"
#include "VbError.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QSet>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <functional>

namespace {

//! Answers every box, first letting the test look at the world as the box appears.
class WatchingMessages : public RecordingMessages {
public:
    MsgAnswer show(const QString &text, const QString &title, MsgIcon icon, MsgButtons buttons, int defaultButton) override
    {
        if (watch)
            watch(text);
        return RecordingMessages::show(text, title, icon, buttons, defaultButton);
    }
    std::function<void(const QString &)> watch;
};

struct ProjectFixture {
    ProjectFixture()
    {
        s.messages = &messages;
        project.window = &window;
    }
    TestSession t{false};
    Session &s = t.session();
    WatchingMessages messages;
    FakeProjectWindow window;
    clsProject project{s};

    QString marker(const QString &file) const { return Session::join(t.home(), file); }
    void addNamed(const QString &name, const QString &file)
    {
        project.AddNew();
        window.texts[0] = name;
        t.chooser.next = {true, t.home(), file};
    }
    QStringList names()
    {
        QStringList out;
        auto rs = s.gDB->OpenRecordset(QStringLiteral("SELECT Name FROM tblProject ORDER BY ProjectID"), RecordsetType::Snapshot);
        for (; !rs->EOF_(); rs->MoveNext())
            out << rs->field(0).toString();
        return out;
    }
};

const QString kSaved = QStringLiteral("Project has been saved successfully");

TEST(ProjectSave, SuccessIsReportedOnceTheRowAndTheMarkerFileExist)
{
    ProjectFixture f;
    bool markerAtSuccess = false;
    f.messages.watch = [&](const QString &text) {
        if (text == kSaved)
            markerAtSuccess = QFile::exists(f.marker(QStringLiteral("bay.NAV")));
    };
    f.addNamed(QStringLiteral("Bay"), QStringLiteral("bay.NAV"));
    f.project.Save();
    // The marker's text and the quiet second save are checked through the window by system_projects.js.
    EXPECT_TRUE(markerAtSuccess);
    EXPECT_EQ(f.names(), QStringList{QStringLiteral("Bay")});
}

TEST(ProjectSave, AMarkerFileThatCannotBeWrittenLeavesNoRowAndAsksAgain)
{
    ProjectFixture f;
    const QString tooLong = QString(300, QLatin1Char('n')) + QStringLiteral(".NAV");
    f.addNamed(QStringLiteral("Bay"), tooLong);
    f.project.Save();
    ASSERT_EQ(f.messages.shown.size(), 1);
    EXPECT_EQ(f.messages.shown[0].text, QStringLiteral("Path/File access error"));
    EXPECT_TRUE(f.names().isEmpty());
    EXPECT_EQ(f.project.PID, 0);
    EXPECT_EQ(f.project.FileName, QStringLiteral("*.NAV"));
    EXPECT_EQ(f.project.Mode, QStringLiteral("Add"));
    // The next save asks for a name again, and with one that can be written it is stored.
    f.t.chooser.next.file = QStringLiteral("bay.NAV");
    f.project.Save();
    EXPECT_EQ(f.t.chooser.asked.size(), 2);
    EXPECT_EQ(f.names(), QStringList{QStringLiteral("Bay")});
    EXPECT_EQ(f.messages.shown.last().text, kSaved);
}

TEST(ProjectSave, AFailedRewriteOfTheMarkerLeavesTheRowAsItWas)
{
    ProjectFixture f;
    f.addNamed(QStringLiteral("Bay"), QStringLiteral("bay.NAV"));
    f.project.Save();
    const qint32 pid = f.project.PID;
    // The marker's name is now taken by a folder: the file cannot be rewritten.
    ASSERT_TRUE(QFile::remove(f.marker(QStringLiteral("bay.NAV"))));
    ASSERT_TRUE(QDir(f.t.home()).mkdir(QStringLiteral("bay.NAV")));
    f.window.texts[0] = QStringLiteral("Renamed");
    f.project.Save();
    EXPECT_EQ(f.messages.shown.last().text, QStringLiteral("Path/File access error"));
    EXPECT_EQ(f.names(), QStringList{QStringLiteral("Bay")});
    EXPECT_EQ(f.project.PID, pid);
    EXPECT_EQ(f.project.FileName, QStringLiteral("bay.NAV"));
}

// Two programs save 20 projects each (every one twice) on one file: every project is stored once
// under its own id, with its marker file, and the file is sound.
TEST(ProjectSave, TwoProgramsSavingOnOneFileLoseNothing)
{
    QTemporaryDir home;
    const QString db = Session::join(home.path(), Session::databaseFileName());
    ASSERT_TRUE(QFile::copy(seedDatabasePath(), db));
    QFile::setPermissions(db, QFile::ReadOwner | QFile::WriteOwner);
    int before = 0;
    {
        auto seeded = Database::open(db);
        before = seeded->OpenRecordset(QStringLiteral("SELECT count(*) FROM tblProject"))->field(0).toInt();
    }
    constexpr int kEach = 20;
    QProcess a, b;
    for (auto [process, tag] : {std::pair{&a, "A"}, std::pair{&b, "B"}}) {
        process->setProgram(QStringLiteral(SAVE_WORKER_EXE));
        process->setArguments({home.path(), QLatin1String(tag), QString::number(kEach)});
        process->start();
    }
    for (QProcess *process : {&a, &b}) {
        ASSERT_TRUE(process->waitForFinished(90000)) << "a program did not finish in time";
        EXPECT_EQ(process->exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(process->exitCode(), 0) << process->readAllStandardError().toStdString();
    }

    auto check = Database::open(db);
    EXPECT_EQ(check->OpenRecordset(QStringLiteral("PRAGMA integrity_check"))->field(0).toString(), QStringLiteral("ok"));
    auto rs = check->OpenRecordset(QStringLiteral("SELECT ProjectID, Name, Purpose, FileName FROM tblProject"),
                                   RecordsetType::Snapshot);
    QSet<int> ids;
    QSet<QString> names;
    int rows = 0;
    for (; !rs->EOF_(); rs->MoveNext(), ++rows) {
        ids.insert(rs->field(0).toInt());
        const QString name = rs->field(1).toString();
        if (!name.startsWith(QLatin1String("A ")) && !name.startsWith(QLatin1String("B ")))
            continue;
        names.insert(name);
        EXPECT_EQ(rs->field(2).toString(), QStringLiteral("second")) << name.toStdString();
        Session reader;
        const QString line = reader.GF_GetFileContent(Session::join(home.path(), rs->field(3).toString()));
        EXPECT_TRUE(line.startsWith(QStringLiteral("Project ID: %1, Project Name: %2,").arg(rs->field(0).toInt()).arg(name)))
            << line.toStdString();
    }
    EXPECT_EQ(rows, before + 2 * kEach);
    EXPECT_EQ(ids.size(), rows);
    EXPECT_EQ(names.size(), 2 * kEach);
}

}  // namespace
