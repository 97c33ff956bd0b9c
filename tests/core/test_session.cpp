// SPDX-License-Identifier: MIT
// Start-up, users, the file helpers, Lookup, GetNewRecordID, the error forms and the trace.
#include "Diagnostics.h"
#include "TestSupport.h"
#include "VbError.h"

#include <QDir>
#include <QFile>
#include <QTextStream>
#include <gtest/gtest.h>
#include <sqlite3.h>

namespace {

QString readAll(const QString &path)
{
    QFile f(path);
    if (!f.open(QIODevice::ReadOnly | QIODevice::Text))
        return {};
    return QString::fromUtf8(f.readAll());
}

// The user's rows, comments, folders and the case-blind second start are checked through the program
// by the startup and known_user scripts; here only a folder that is already there.
TEST(Session, NewUserStartsEvenWhenHisFolderExists)
{
    TestSession t(false);
    Session &s = t.session();
    s.userOverride = QStringLiteral("Ann");
    QDir(t.home()).mkpath(QStringLiteral("Ann/Project"));
    EXPECT_FALSE(s.startUser());
    EXPECT_GT(s.gUserID, 0);
    EXPECT_TRUE(t.messages.shown.isEmpty());
    for (const char *sub : {"Ann/Scenario", "Ann/Report"})
        EXPECT_TRUE(QDir(t.home()).exists(QString::fromLatin1(sub))) << sub;
}

TEST(Session, ApostropheInLoginShowsTheErrorAndCountsAsNew)
{
    TestSession t(false);
    EXPECT_FALSE(t->IsValidUser(QStringLiteral("o'brien")));
    ASSERT_EQ(t.messages.shown.size(), 1);
    EXPECT_TRUE(t.messages.shown[0].text.startsWith(QStringLiteral("Error in routine IsValidUser\r\n\r\n")));
    EXPECT_TRUE(t.messages.shown[0].text.endsWith(QStringLiteral("\r\n3075")));
    EXPECT_EQ(t.messages.shown[0].icon, MsgIcon::Stop);
}

TEST(Session, MainWithoutDatabaseReportsAppInit)
{
    QTemporaryDir empty;
    Session s;
    RecordingMessages messages;
    s.messages = &messages;
    s.home = empty.path();
    EXPECT_FALSE(s.Main());
    ASSERT_EQ(messages.shown.size(), 1);
    EXPECT_TRUE(messages.shown[0].text.startsWith(QStringLiteral("Error in routine AppInit")));
    EXPECT_TRUE(messages.shown[0].text.endsWith(QStringLiteral("3024")));
}

// An empty file, or another program's database, is refused as a damaged database before anything
// is written: the file stays as it was and nothing is made beside it.
TEST(Session, MainRefusesAFileWithoutTheProgramsTables)
{
    for (const bool foreign : {false, true}) {
        QTemporaryDir dir;
        const QString path = Session::join(dir.path(), Session::databaseFileName());
        if (foreign) {
            sqlite3 *other = nullptr;
            ASSERT_EQ(sqlite3_open(path.toUtf8().constData(), &other), SQLITE_OK);
            ASSERT_EQ(sqlite3_exec(other, "CREATE TABLE tblProject (a)", nullptr, nullptr, nullptr), SQLITE_OK);
            sqlite3_close(other);
        } else {
            QFile empty(path);
            ASSERT_TRUE(empty.open(QIODevice::WriteOnly));
        }
        const QString before = readAll(path);
        Session s;
        RecordingMessages messages;
        s.messages = &messages;
        s.home = dir.path();
        EXPECT_FALSE(s.Main());
        EXPECT_FALSE(s.gDB);
        ASSERT_EQ(messages.shown.size(), 1);
        EXPECT_TRUE(messages.shown[0].text.startsWith(QStringLiteral("Error in routine AppInit")));
        EXPECT_TRUE(messages.shown[0].text.contains(QStringLiteral("Unrecognized database format")));
        EXPECT_TRUE(messages.shown[0].text.endsWith(QStringLiteral("3343")));
        EXPECT_EQ(readAll(path), before);
        EXPECT_EQ(QDir(dir.path()).entryList(QDir::NoDotAndDotDot | QDir::AllEntries),
                  QStringList{Session::databaseFileName()});
    }
}

TEST(Session, FileContentOverwritesAppendsAndReadsTheFirstLine)
{
    TestSession t(false);
    const QString path = Session::join(t.home(), QStringLiteral("x.txt"));
    EXPECT_TRUE(t->GF_SetFileContent(path, QString(), QString()));  // nothing to write: "failed"
    EXPECT_FALSE(QFile::exists(path));
    EXPECT_FALSE(t->GF_SetFileContent(path, QStringLiteral("one"), QString()));
    EXPECT_FALSE(t->GF_SetFileContent(path, QStringLiteral("two"), QString()));
    EXPECT_EQ(readAll(path), QStringLiteral("one\ntwo\n"));
    EXPECT_EQ(t->GF_GetFileContent(path), QStringLiteral("one"));
    EXPECT_FALSE(t->GF_SetFileContent(path, QStringLiteral("three"), QStringLiteral("Overwrite")));
    EXPECT_EQ(readAll(path), QStringLiteral("three\n"));

    EXPECT_TRUE(t->GF_SetFileContent(Session::join(t.home(), QStringLiteral("no/such/x.txt")), QStringLiteral("a"), QString()));
    ASSERT_EQ(t.messages.shown.size(), 1);
    EXPECT_EQ(t.messages.shown[0].title, QStringLiteral("Error Number 76 Occurred"));

    EXPECT_EQ(t->GF_GetFileContent(QString()), QString());
    EXPECT_EQ(t->GF_GetFileContent(Session::join(t.home(), QStringLiteral("missing.txt"))), QString());
    EXPECT_TRUE(t.messages.shown.last().text.startsWith(QStringLiteral("Error in routine GF_GetFileContent")));
}

TEST(Session, LookupAndGetNewRecordID)
{
    TestSession t(false);
    Session &s = t.session();
    s.gDB->Execute(QStringLiteral("INSERT INTO tblDataSource (DataSourceID, Description) VALUES (6, 'User entered')"));
    s.gDB->Execute(QStringLiteral("INSERT INTO tblDataSource (DataSourceID, Description) VALUES (8, Null)"));
    EXPECT_EQ(s.Lookup(QStringLiteral("tblDataSource"), QStringLiteral("Description"), QStringLiteral("DataSourceID = 6")).toString(),
              QStringLiteral("User entered"));
    EXPECT_EQ(s.Lookup(QStringLiteral("tblDataSource"), QStringLiteral("Description"), QStringLiteral("DataSourceID = 7")).toString(),
              kNotFound);
    EXPECT_EQ(s.Lookup(QStringLiteral("tblDataSource"), QStringLiteral("Description"), QStringLiteral("DataSourceID = 8")).toString(),
              kNotFound);
    EXPECT_TRUE(t.messages.shown.isEmpty());
    // A failing lookup shows the shared box and gives an empty value.
    EXPECT_FALSE(s.Lookup(QStringLiteral("tblNope"), QStringLiteral("x"), QStringLiteral("x = 1")).isValid());
    EXPECT_TRUE(t.messages.shown.value(0).text.startsWith(QStringLiteral("Error in routine Lookup")));

    const qint32 first = s.GetNewRecordID(QStringLiteral("tblIntakeModel"), QStringLiteral("IntakeModelID"), QString(), 0, 3);
    const qint32 second = s.GetNewRecordID(QStringLiteral("tblWeight"), QStringLiteral("WeightID"), QStringLiteral("SpeciesID"), 12, 0);
    EXPECT_GT(first, 0);
    auto m = s.gDB->OpenRecordset(QStringLiteral("Select * from tblIntakeModel where IntakeModelID = %1").arg(first));
    EXPECT_EQ(m->field(QStringLiteral("IntakeTypeID")).toInt(), 3);
    auto w = s.gDB->OpenRecordset(QStringLiteral("Select * from tblWeight where WeightID = %1").arg(second));
    EXPECT_EQ(w->field(QStringLiteral("SpeciesID")).toInt(), 12);
    EXPECT_THROW(s.GetNewRecordID(QStringLiteral("tblNope"), QStringLiteral("x"), QString(), 0, 0), VbError);
}

TEST(Diagnostics, FiveMessageFormsAsTabled)
{
    Session s;
    s.gMsgTitle = QString();
    struct Case { ErrForm form; const char *routine; const char *text; const char *title; };
    const Case cases[] = {
        {ErrForm::Shared, "Lookup", "Error in routine Lookup\r\n\r\nBoom\r\n13", ""},
        {ErrForm::Qualified, "frmSplash.Form_Load", "13\r\nBoom\r\nError in frmSplash.Form_Load", "System Developer Message"},
        {ErrForm::Found, "SaveAE", "13\tBoomError found in routine SaveAE", "System Developer Message"},
        {ErrForm::CodeTab, "SetDataQuality", "13\tBoomError in code routine SetDataQuality", "System Developer Message"},
        {ErrForm::CodeCrLf, "AddWildlifeDietItems", "13\r\nBoomError in code routine AddWildlifeDietItems", "System Developer Message"},
        {ErrForm::Bare, "SaveGrossEnergy", "13\r\nBoomSaveGrossEnergy", "System Developer Message"},
    };
    for (const Case &c : cases) {
        const ErrorText e = errorText(s, c.form, QString::fromLatin1(c.routine), 13, QStringLiteral("Boom"));
        EXPECT_EQ(e.text, QString::fromLatin1(c.text)) << c.routine;
        EXPECT_EQ(e.title, QString::fromLatin1(c.title)) << c.routine;
    }
}

TEST(Diagnostics, HandlerTracesBeforeTheBoxResetsThePointerAndReturnsTheDefault)
{
    TestSession t(false);
    Session &s = t.session();
    const RoutineInfo info{ErrForm::Found, QStringLiteral("LoadData"), QStringLiteral("frmDE_AE.LoadData"), TraceLayout::Tabbed};
    const QString trace = traceFilePath(s, TraceLayout::Tabbed);

    // Level 0 writes nothing at all.
    EXPECT_FALSE(guarded(s, info, [] { throw VbError(VbErr::DivisionByZero, QStringLiteral("Division by zero")); }));
    EXPECT_FALSE(QFile::exists(trace));

    s.gDiagLevel = 1;
    t.cursor.setBusy(true);
    bool traceExistedWhenShown = false;
    struct Probe : RecordingMessages {
        std::function<void()> onShow;
        MsgAnswer show(const QString &a, const QString &b, MsgIcon c, MsgButtons d, int e) override
        {
            onShow();
            return RecordingMessages::show(a, b, c, d, e);
        }
    } probe;
    probe.onShow = [&] { traceExistedWhenShown = readAll(trace).contains(QStringLiteral("frmDE_AE.LoadData Error :( 11Division by zero")); };
    s.messages = &probe;
    int result = -1;
    guarded(s, info, [&] {
        result = 5;
        throw VbError(VbErr::DivisionByZero, QStringLiteral("Division by zero"));
        result = 6;
    });
    EXPECT_EQ(result, 5);
    EXPECT_TRUE(traceExistedWhenShown);
    EXPECT_FALSE(t.cursor.busy());
    ASSERT_EQ(probe.shown.size(), 1);
    EXPECT_EQ(probe.shown[0].text, QStringLiteral("11\tDivision by zeroError found in routine LoadData"));

    traceSuccess(s, info);
    traceParameters(s, {ErrForm::Shared, QString(), QStringLiteral("frmDE_AE.SetForm")}, {{QStringLiteral("bTo"), QStringLiteral("True")}});
    const QStringList lines = readAll(trace).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    ASSERT_EQ(lines.size(), 2);  // the parameter line needs level 2
    EXPECT_TRUE(lines[1].endsWith(QStringLiteral("\tfrmDE_AE.LoadData successful :) ")));
    s.gDiagLevel = 2;
    traceParameters(s, {ErrForm::Shared, QString(), QStringLiteral("frmDE_AE.SetForm")}, {{QStringLiteral("bTo"), QStringLiteral("True")}});
    EXPECT_TRUE(readAll(trace).endsWith(QStringLiteral("\tfrmDE_AE.SetForm parameters: \nbTo = True\n")));

    // The lined layout puts the message under the time, in its own file.
    traceLine(s, TraceLayout::Lined, QStringLiteral("frmReports.lstReports_DblClick successful :) "));
    const QStringList lined = readAll(traceFilePath(s, TraceLayout::Lined)).split(QLatin1Char('\n'));
    ASSERT_GE(lined.size(), 2);
    EXPECT_EQ(lined[1], QStringLiteral("frmReports.lstReports_DblClick successful :) "));
}

}  // namespace
