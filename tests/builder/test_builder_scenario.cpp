// SPDX-License-Identifier: MIT
// What the builder does to a scenario apart from its controls: the reset after a change of species,
// the test for diet items before the calculations, the reading of a saved scenario's row, and which
// typed weights may be stored.
#include "BuilderScenarioRows.h"
#include "BuilderWeightPage.h"
#include "Recordset.h"
#include "TestSupport.h"
#include "clsProject.h"
#include "clsScenario.h"

#include <QFile>
#include <gtest/gtest.h>

namespace {
struct Fixture {
    Fixture()
    {
        s.userOverride = QStringLiteral("tester");
        s.startUser();
        s.gProject = std::make_shared<clsProject>(s);
        s.gScenario = std::make_shared<clsScenario>(s);
    }
    //! A new scenario with one diet item and a chosen air rate.
    qint32 scenarioWithDiet()
    {
        sc().AddNew(QStringLiteral("Wildlife"));
        const qint32 sid = sc().SID;
        s.gDB->Execute(QStringLiteral("Insert Into tblWildlifeDietItems (DietItemID, ScenarioID, Name) Values (%1, %2, 'worms')").arg(sid + 9000).arg(sid));
        s.gDB->Execute(QStringLiteral("Update tblIntakeZOB Set AdjustedRate = 2.5, DataSourceID = 4, Units = 'L/day' Where ScenarioID = %1").arg(sid));
        return sid;
    }
    int count(const QString &sql)
    {
        auto rs = s.gDB->OpenRecordset(sql);
        int n = 0;
        for (; !rs->EOF_(); rs->MoveNext())
            ++n;
        return n;
    }
    clsScenario &sc() { return *s.gScenario; }
    TestSession t;
    Session &s = t.session();
};
}  // namespace

TEST(BuilderScenario, ResetTouchesOnlyTheCurrentScenarioAndForgetsItsFile)
{
    Fixture f;
    const qint32 other = f.scenarioWithDiet();
    const qint32 sid = f.scenarioWithDiet();
    f.sc().FilePath = f.t.home();
    f.sc().FileName = QStringLiteral("mink.ZOB");
    ASSERT_FALSE(f.s.GF_SetFileContent(Session::join(f.t.home(), QStringLiteral("mink.ZOB")), QStringLiteral("line"), QStringLiteral("Overwrite")));
    f.sc().WeightID = 7;
    f.sc().Air_DataSource = 4;

    resetScenarioRows(f.s);
    forgetScenarioChoices(f.s);

    EXPECT_EQ(f.count(QStringLiteral("Select * from tblWildlifeDietItems where ScenarioID = %1").arg(sid)), 0);
    EXPECT_EQ(f.count(QStringLiteral("Select * from tblWildlifeDietItems where ScenarioID = %1").arg(other)), 1);
    // Every row of the scenario, whatever its type, is back to nothing chosen in "m3/day".
    EXPECT_EQ(f.count(QStringLiteral("Select * from tblIntakeZOB where ScenarioID = %1 And AdjustedRate = 0 And DataSourceID = 6 "
                                     "And Units = 'm3/day' And Derivation = 'Estimated'").arg(sid)), 5);
    EXPECT_EQ(f.count(QStringLiteral("Select * from tblIntakeZOB where ScenarioID = %1 And AdjustedRate = 2.5").arg(other)), 5);
    EXPECT_FALSE(QFile::exists(Session::join(f.t.home(), QStringLiteral("mink.ZOB"))));
    EXPECT_TRUE(f.sc().FileName.isEmpty());
    EXPECT_EQ(f.sc().WeightID, 0);
    EXPECT_EQ(f.sc().WtSex, QStringLiteral("unknown"));
    EXPECT_EQ(f.sc().Air_DataSource, 6);
    EXPECT_EQ(f.sc().Wt_DataSource, 6);
}

TEST(BuilderScenario, DietItemsOfAnyScenarioLetTheCalculationsGoOn)
{
    Fixture f;
    f.sc().AddNew(QStringLiteral("Wildlife"));
    EXPECT_FALSE(anyDietItems(f.s));
    ASSERT_EQ(f.t.messages.shown.size(), 1);
    EXPECT_EQ(f.t.messages.shown[0].text, QStringLiteral("No Diet Items exist in this scenario. Dietary calculations will not be done."));
    EXPECT_EQ(f.t.messages.shown[0].icon, MsgIcon::Warning);
    // The table is asked as a whole: another scenario's item will do.
    f.scenarioWithDiet();
    f.sc().AddNew(QStringLiteral("Wildlife"));
    EXPECT_TRUE(anyDietItems(f.s));
    EXPECT_EQ(f.t.messages.shown.size(), 1);
}

TEST(BuilderScenario, ASavedScenarioRowFillsTheScenarioObject)
{
    Fixture f;
    const qint32 sid = f.scenarioWithDiet();
    f.s.gDB->Execute(QStringLiteral("Update tblWildlife Set Common = 'Mink', SpeciesID = 12, SpeciesDataSourceID = 5, WeightID = 3, "
                                    "Weight = 812.5, WtSex = 'Male', WtDataSourceID = 4, DietID = 9, DietType = 1, DietSeason = 'Winter', "
                                    "DietDataSourceID = 7 Where ScenarioID = %1").arg(sid));
    f.s.gDB->Execute(QStringLiteral("Update tblIntakeZOB Set CategoryID = 11 Where IntakeTypeID = 2 And ScenarioID = %1").arg(sid));
    f.sc().Clear();
    auto rs = f.s.gDB->OpenRecordset(QStringLiteral("SELECT tblWildlife.*, tblIntakeZOB.* FROM tblWildlife INNER JOIN tblIntakeZOB ON "
                                                    "tblWildlife.ScenarioID = tblIntakeZOB.ScenarioID WHERE tblIntakeZOB.ScenarioID = %1").arg(sid),
                                     RecordsetType::Dynaset);
    readScenarioRow(f.sc(), *rs);
    readIntakeSources(f.sc(), *rs);
    EXPECT_EQ(f.sc().Identifier1, QStringLiteral("Mink"));
    EXPECT_EQ(f.sc().SpeciesID, 12);
    EXPECT_EQ(f.sc().Species_DataSource, 5);
    EXPECT_FLOAT_EQ(f.sc().Weight, 812.5f);
    EXPECT_EQ(f.sc().WtSex, QStringLiteral("Male"));
    EXPECT_EQ(f.sc().DietType, 1);
    EXPECT_EQ(f.sc().Diet_Season, QStringLiteral("Winter"));
    EXPECT_EQ(f.sc().Diet_DataSource, 7);
    EXPECT_EQ(f.sc().WAT_DataSource, 4);
    EXPECT_EQ(f.sc().WatCategoryID, 11);
    EXPECT_EQ(f.sc().AirCategoryID, 0);
}

TEST(BuilderScenario, ATypedWeightMustBeANumberAboveZero)
{
    for (const char *bad : {"", "   ", "0", "0.00", "-5", "heavy", ".", "-0.1"})
        EXPECT_FALSE(isValidWeightText(QString::fromLatin1(bad))) << bad;
    for (const char *good : {"250", " 12.5 ", "0.01", "1e3"})
        EXPECT_TRUE(isValidWeightText(QString::fromLatin1(good))) << good;
}
