// SPDX-License-Identifier: MIT
// The scenario object: its rows, its saves by group, its marker file, and the marker-file reader.
#include "Functions.h"
#include "TestSupport.h"
#include "VbFormat.h"
#include "clsProject.h"
#include "clsScenario.h"

#include <QDate>
#include <QFile>
#include <gtest/gtest.h>

namespace {

struct Notes : ScenarioNotes {
    QString note(int i) const override { return QStringLiteral("note %1").arg(i); }
    QString dietSeason() const override { return QStringLiteral("Summer"); }
    QString dietHabitat() const override { return QStringLiteral("Marsh"); }
    QString dietSex() const override { return QStringLiteral("Both"); }
};

struct Fixture {
    Fixture()
    {
        s.userOverride = QStringLiteral("tester");
        s.startUser();
        s.gProject = std::make_shared<clsProject>(s);
        s.gScenario = std::make_shared<clsScenario>(s);
        s.gScenario->notes = &notes;
    }
    TestSession t{false};
    Session &s = t.session();
    Notes notes;
    clsScenario &sc() { return *s.gScenario; }
    int count(const QString &sql) { auto rs = s.gDB->OpenRecordset(sql); if (rs->EOF_()) return 0; rs->MoveLast(); return rs->RecordCount(); }
};

TEST(Scenario, FailedNameLookupRecordsTheEmptyValueNotTheLoginName)
{
    Fixture f;
    // An apostrophe in the login name breaks the Lookup's criteria: its error box, then the empty value.
    f.s.gUserName = QStringLiteral("o'brien");
    f.sc().AddNew(QStringLiteral("Wildlife"));
    f.sc().FileName = QStringLiteral("mink.ZOB");
    f.sc().Save(QStringLiteral("All"));
    auto head = f.s.gDB->OpenRecordset(QStringLiteral("Select * from tblScenario where ScenarioID = %1").arg(f.sc().SID));
    for (const char *column : {"Scenario_CreatedBy", "Scenario_ModifiedBy"})
        EXPECT_EQ(head->field(QString::fromLatin1(column)).toString(), QString()) << column;
    ASSERT_FALSE(f.t.messages.shown.isEmpty());
    EXPECT_TRUE(f.t.messages.shown.first().text.startsWith(QStringLiteral("Error in routine Lookup")));
}

TEST(Scenario, AddNewMakesHeaderWildlifeAndFiveIntakeRows)
{
    Fixture f;
    f.sc().Identifier1 = QStringLiteral("Mink");
    f.sc().AddNew(QStringLiteral("Wildlife"));
    const qint32 sid = f.sc().SID;
    ASSERT_GT(sid, 0);
    EXPECT_EQ(f.sc().Mode, QStringLiteral("Add"));
    EXPECT_EQ(f.sc().WtSex, QStringLiteral("5"));
    EXPECT_EQ(f.sc().WtStatus, 2);
    // Clear empties the identifier before the rows are written.
    auto head = f.s.gDB->OpenRecordset(QStringLiteral("Select * from tblScenario where ScenarioID = %1").arg(sid));
    EXPECT_EQ(head->field(QStringLiteral("Scenario_Type")).toString(), QStringLiteral("Wildlife"));
    EXPECT_EQ(head->field(QStringLiteral("Scenario_Identifier_1")).toString(), QString());
    // A user without a Name is recorded as the lookup's "not found".
    EXPECT_EQ(head->field(QStringLiteral("Scenario_CreatedBy")).toString(), QStringLiteral("not found"));

    auto wild = f.s.gDB->OpenRecordset(QStringLiteral("Select * from tblWildlife where ScenarioID = %1").arg(sid));
    EXPECT_EQ(wild->field(QStringLiteral("SpeciesComments")).toString(),
              QStringLiteral("Rationale: \r\n\r\nQuality: \r\n\r\nAssumptions: \r\n\r\nUncertainty: \r\n\r\n"));

    auto intake = f.s.gDB->OpenRecordset(
        QStringLiteral("Select * from tblIntakeZOB where ScenarioID = %1 Order By IntakeTypeID").arg(sid));
    const QStringList units = {"m3/day", "L/day", "kcal/day", "% dry wt", "g/day"};
    for (int i = 0; i < 5; ++i, intake->MoveNext()) {
        ASSERT_FALSE(intake->EOF_());
        EXPECT_EQ(intake->field(QStringLiteral("IntakeTypeID")).toInt(), i + 1);
        EXPECT_EQ(intake->field(QStringLiteral("Units")).toString(), units[i]);  // other columns: schema defaults
    }
    EXPECT_TRUE(intake->EOF_());
    // Without an open project nothing is linked; with one, the new scenario joins it.
    EXPECT_EQ(f.count(QStringLiteral("Select * from jtblProjectScenario")), 0);
    f.s.gProject->PID = 42;
    f.sc().AddNew(QStringLiteral("Wildlife"));
    EXPECT_EQ(f.count(QStringLiteral("Select * from jtblProjectScenario where ProjectID = 42")), 1);
}

TEST(Scenario, FirstSaveAsksForAFileAndWritesTheMarkerOnce)
{
    Fixture f;
    f.sc().AddNew(QStringLiteral("Wildlife"));
    // AddNew clears the type; the builder sets it when it loads, and the chooser's file type follows it.
    EXPECT_EQ(f.sc().ScenarioType, QString());
    f.sc().ScenarioType = QStringLiteral("Wildlife");
    f.t.chooser.next = {true, f.t.home(), QStringLiteral("mink.ZOB")};
    f.s.gSpeciesCommon = QStringLiteral("Mink");
    f.sc().SpeciesID = 7;
    f.sc().Weight = 1.25f;
    f.sc().Save(QStringLiteral("Species"));
    ASSERT_EQ(f.t.messages.shown.size(), 1);
    EXPECT_EQ(f.t.messages.shown[0].title, QStringLiteral("Name scenario file"));
    EXPECT_EQ(f.t.messages.shown[0].text, QStringLiteral("Please enter a file name for the scenario file."));
    EXPECT_EQ(f.t.chooser.asked, QStringList{QStringLiteral("ZOB|Save")});
    EXPECT_EQ(f.sc().Mode, QStringLiteral("Edit"));

    const QString marker = Session::join(f.t.home(), QStringLiteral("mink.ZOB"));
    const QString expected = QStringLiteral("Scenario ID: %1, File Name: mink.ZOB, Date Last Modified: %2,")
                                 .arg(f.sc().SID)
                                 .arg(vb::shortDate(QDate::currentDate()));
    EXPECT_EQ(f.s.GF_GetFileContent(marker), expected);

    auto wild = f.s.gDB->OpenRecordset(QStringLiteral("Select * from tblWildlife where ScenarioID = %1").arg(f.sc().SID));
    EXPECT_EQ(wild->field(QStringLiteral("Common")).toString(), QStringLiteral("Mink"));
    EXPECT_EQ(wild->field(QStringLiteral("SpeciesComments")).toString(), QStringLiteral("note 0"));
    EXPECT_TRUE(wild->field(QStringLiteral("Weight")).isNull());  // the weight group was not saved

    // A later save writes rows only: the file stays as it was.
    QFile::remove(marker);
    f.sc().Save(QStringLiteral("All"));
    EXPECT_FALSE(QFile::exists(marker));
    wild->Requery();
    EXPECT_FLOAT_EQ(wild->field(QStringLiteral("Weight")).toFloat(), 1.25f);
    EXPECT_EQ(wild->field(QStringLiteral("DietSeason")).toString(), QStringLiteral("Summer"));
    auto head = f.s.gDB->OpenRecordset(QStringLiteral("Select * from tblScenario where ScenarioID = %1").arg(f.sc().SID));
    EXPECT_EQ(head->field(QStringLiteral("Comments")).toString(), QStringLiteral("note 8"));
    EXPECT_EQ(head->field(QStringLiteral("Scenario_FileName")).toString(), QStringLiteral("mink.ZOB"));
}

TEST(Scenario, CancelledChooserSavesTheHeaderOnlyUnderTheFallbackName)
{
    Fixture f;
    f.sc().AddNew(QStringLiteral("Wildlife"));
    f.t.chooser.next = {false, f.t.home(), QString()};
    f.sc().SpeciesID = 9;
    f.sc().Save(QStringLiteral("All"));
    EXPECT_EQ(f.sc().FileName, QStringLiteral("File path not saved"));
    EXPECT_TRUE(QFile::exists(Session::join(f.t.home(), QStringLiteral("File path not saved"))));
    auto wild = f.s.gDB->OpenRecordset(QStringLiteral("Select * from tblWildlife where ScenarioID = %1").arg(f.sc().SID));
    EXPECT_EQ(wild->field(QStringLiteral("SpeciesID")).toInt(), 0);
}

TEST(Scenario, ReadFileHeaderReadsTheScenarioMarker)
{
    Fixture f;
    const QString zob = Session::join(f.t.home(), QStringLiteral("x.ZOB"));
    f.s.GF_SetFileContent(zob, QStringLiteral("Scenario ID: 17, File Name: x.ZOB, Date Last Modified: 11/22/2026,"), QStringLiteral("Overwrite"));
    EXPECT_TRUE(ReadFileHeader(f.s, zob));
    EXPECT_EQ(f.sc().SID, 17);
    EXPECT_EQ(f.t.chooser.description(), QStringLiteral(" File Name: x.ZOB\r\n Date Last Modified: 11/22/2026\r\n"));

    // The project marker (.NAV) is read through the chooser by system_projects.js.

    // A file of the wrong format and a missing file answer no; only the missing file shows a box.
    const QString bad = Session::join(f.t.home(), QStringLiteral("bad.ZOB"));
    f.s.GF_SetFileContent(bad, QStringLiteral("hello world"), QStringLiteral("Overwrite"));
    const int before = f.t.messages.shown.size();
    EXPECT_FALSE(ReadFileHeader(f.s, bad));
    EXPECT_EQ(f.t.messages.shown.size(), before);
    EXPECT_FALSE(ReadFileHeader(f.s, Session::join(f.t.home(), QStringLiteral("gone.ZOB"))));
    EXPECT_EQ(f.t.messages.shown.size(), before + 1);
}

TEST(Scenario, OpenFileWithAnUnconfirmedFileKeepsThePassedNames)
{
    Fixture f;
    f.t.chooser.next = {true, QStringLiteral("/elsewhere"), QStringLiteral("other.ZOB")};
    f.sc().OpenFile(f.t.home(), QStringLiteral("lost.ZOB"), false);
    EXPECT_EQ(f.t.messages.shown.last().text, QStringLiteral("File cannot be confirmed.  Please verify file: lost.ZOB"));
    EXPECT_EQ(f.t.chooser.asked.last(), QStringLiteral("ZOB|Open"));
    EXPECT_EQ(f.sc().FileName, QStringLiteral("lost.ZOB"));
    EXPECT_EQ(f.sc().FilePath, f.t.home());
    EXPECT_EQ(f.sc().Mode, QStringLiteral("Edit"));
}

}  // namespace
