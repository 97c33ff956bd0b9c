// SPDX-License-Identifier: MIT
// Energy requirement: MEavg, FMR, TDI with its fall-backs, the daily dry diet and the itemised
// statement, each with its two-decimal rounding.
#include "CalcFixture.h"
#include "Calculations.h"
#include "Wildlife.h"

namespace {

const QString kNoItems = QStringLiteral("No Diet Items exist in this scenario. Dietary calculations will not be done.");

class EnergyTest : public CalcTest {
protected:
    //! Two items whose wet and dry columns give different sums: wet 1.26, dry 2.6 kcal/g.
    void twoItems()
    {
        ae(1, QStringLiteral("80"));
        ae(2, QStringLiteral("50"));
        ge(1, QStringLiteral("2.0"), QStringLiteral("5.0"));
        ge(2, QStringLiteral("1.5"), QStringLiteral("4.0"));
        item(1, QStringLiteral("beetles"), QStringLiteral("0.6"), QStringLiteral("0.3"), 0, QStringLiteral("70"), 1, 1);
        item(2, QStringLiteral("berries"), QStringLiteral("0.4"), QStringLiteral("0.7"), 0, QStringLiteral("80"), 2, 2);
    }
    //! One item that makes MEavg exactly meValue on the wet basis (AE 100 %, proportion 1).
    void mealOf(const QString &meValue)
    {
        ae(9, QStringLiteral("100"));
        ge(9, meValue, meValue);
        item(9, QStringLiteral("meal"), QStringLiteral("1"), QStringLiteral("1"), 0, QStringLiteral("75"), 9, 9);
    }
    bool noMessages() const { return shown().isEmpty(); }
};

TEST_F(EnergyTest, MEavgUsesTheEnergyAndProportionOfOneBasis)
{
    twoItems();
    EXPECT_EQ(GetMEAvg(s), 1.26f);  // .8 * 2 * .6 + .5 * 1.5 * .4
    s.gScenario->DietType = 0;
    EXPECT_EQ(GetMEAvg(s), 2.6f);  // .8 * 5 * .3 + .5 * 4 * .7
    // Items without a matching AE or gross energy row add nothing.
    item(3, QStringLiteral("no AE"), QStringLiteral("1"), QStringLiteral("1"), 0, QStringLiteral("NULL"), 99, 1);
    item(4, QStringLiteral("no GE"), QStringLiteral("1"), QStringLiteral("1"), 0, QStringLiteral("NULL"), 1, 99);
    EXPECT_EQ(GetMEAvg(s), 2.6f);
    // The sum is not normalised by the proportions of the items that count: .8 * 5 * .3.
    sql(QStringLiteral("UPDATE tblWildlifeDietItems SET AEID = 99 WHERE DietItemID = 2"));
    EXPECT_EQ(GetMEAvg(s), 1.2f);
    s.gScenario->DietType = 2;  // any type but 0 is the wet basis: .8 * 2 * .6
    EXPECT_EQ(GetMEAvg(s), 0.96f);
    EXPECT_TRUE(noMessages());
}

TEST_F(EnergyTest, MEavgRoundsToTwoDecimalsThroughThousandsSeparators)
{
    struct Case {
        const char *energy;
        float expected;
    };
    const Case cases[] = {{"1234.567", 1234.57f}, {"2.125", 2.13f}, {"0.004", 0.0f}, {"0.005", 0.01f},
                          {"1000000", 1000000.0f}};
    for (const Case &c : cases) {
        sql(QStringLiteral("DELETE FROM tblWildlifeDietItems; DELETE FROM tblAE; DELETE FROM tblGrossEnergy"));
        mealOf(QLatin1String(c.energy));
        EXPECT_EQ(GetMEAvg(s), c.expected) << c.energy;
    }
    EXPECT_TRUE(noMessages());
}

TEST_F(EnergyTest, MEavgWithoutItemsWarnsAndGivesOne)
{
    twoItems();
    sql(QStringLiteral("UPDATE tblWildlifeDietItems SET AEID = 99"));  // every item drops out
    EXPECT_EQ(GetMEAvg(s), 1.0f);
    ASSERT_EQ(shown().size(), 1);
    EXPECT_EQ(shown()[0].text, kNoItems);
    EXPECT_EQ(shown()[0].title, QString());
    EXPECT_EQ(shown()[0].icon, MsgIcon::Warning);
    EXPECT_EQ(shown()[0].buttons, MsgButtons::OK);
}

TEST_F(EnergyTest, FmrAndTdiRoundToTwoDecimals)
{
    struct Case {
        const char *fmr;
        const char *me;
        float expectedFmr;
        float expectedTdi;
    };
    const Case cases[] = {
        {"101.49", "3.2", 101.49f, 31.72f},    // 31.715625
        {"101.4937", "3.2", 101.49f, 31.72f},  // FMR as reported
        {"10.005", "0.5", 10.01f, 20.02f},     // TDI from the rounded FMR: 10.01 / .5
        {"1234.567", "1", 1234.57f, 1234.57f},
        {"100", "3", 100.0f, 33.33f},
        {"100.006", "3", 100.01f, 33.34f},
        {"100.004", "3", 100.0f, 33.33f},
        {"2.01", "2", 2.01f, 1.01f},           // 1.005: a tie of the text goes away from zero
        {"0", "3", 0.0f, 1.0f},                // FMR not set yet: 1.0 g/day
        {"-5", "3", -5.0f, 1.0f},
        {"100", "0.004", 100.0f, 1.0f},        // MEavg rounds to 0
        {"100", "-2", 100.0f, 1.0f},
    };
    for (const Case &c : cases) {
        sql(QStringLiteral("DELETE FROM tblWildlifeDietItems; DELETE FROM tblAE; DELETE FROM tblGrossEnergy; "
                           "DELETE FROM tblIntakeZOB"));
        fmr(QLatin1String(c.fmr));
        mealOf(QLatin1String(c.me));
        EXPECT_EQ(GetFMR_TDI(s, QStringLiteral("FMR")), c.expectedFmr) << c.fmr;
        EXPECT_EQ(GetFMR_TDI(s, QStringLiteral("TDI")), c.expectedTdi) << c.fmr << " / " << c.me;
        EXPECT_EQ(GetFMR_TDI(s, QStringLiteral("anything")), c.expectedTdi);
    }
    EXPECT_TRUE(noMessages());
}

TEST_F(EnergyTest, MissingFmrReportsAndGivesZero)
{
    mealOf(QStringLiteral("3"));
    for (const char *rate : {static_cast<const char *>(nullptr), "NULL"}) {
        sql(QStringLiteral("DELETE FROM tblIntakeZOB"));
        if (rate)
            fmr(QLatin1String(rate));
        t.messages.shown.clear();
        EXPECT_EQ(GetFMR_TDI(s, QStringLiteral("TDI")), 0.0f);
        EXPECT_EQ(GetFMR_TDI(s, QStringLiteral("FMR")), 0.0f);
        ASSERT_EQ(shown().size(), 2);
        EXPECT_EQ(shown()[0].text, sharedError(QStringLiteral(" GetFMR_TDI"), 13, QStringLiteral("Type mismatch")));
        EXPECT_EQ(shown()[0].icon, MsgIcon::Stop);
    }
}

TEST_F(EnergyTest, TdiWithoutDietItemsIsFmrAfterTheMessage)
{
    fmr(QStringLiteral("101.49"));
    EXPECT_EQ(GetFMR_TDI(s, QStringLiteral("FMR")), 101.49f);
    EXPECT_TRUE(noMessages());  // FMR does not read the diet
    EXPECT_EQ(GetFMR_TDI(s, QStringLiteral("TDI")), 101.49f);
    ASSERT_EQ(shown().size(), 1);
    EXPECT_EQ(shown()[0].text, kNoItems);
    sql(QStringLiteral("UPDATE tblIntakeZOB SET AdjustedRate = 0"));
    EXPECT_EQ(GetFMR_TDI(s, QStringLiteral("TDI")), 1.0f);  // no FMR yet: 1.0 after the message
    EXPECT_EQ(shown().size(), 2);
}

TEST_F(EnergyTest, DailyDryDietTakesWaterOutOnTheWetBasisOnly)
{
    // Two items at .5 wet, 70 % and 80 % water (H .75); MEavg 2.5; FMR 100: TDI 40.
    ae(1, QStringLiteral("100"));
    ge(1, QStringLiteral("2.5"), QStringLiteral("5"));
    item(1, QStringLiteral("a"), QStringLiteral("0.5"), QStringLiteral("0.5"), 0, QStringLiteral("70"), 1, 1);
    item(2, QStringLiteral("b"), QStringLiteral("0.5"), QStringLiteral("0.5"), 0, QStringLiteral("80"), 1, 1);
    fmr(QStringLiteral("100"));
    EXPECT_EQ(GetDailyDryDiet(s), 10.0f);
    s.gScenario->DietType = 0;
    EXPECT_EQ(GetDailyDryDiet(s), 20.0f);  // TDI 100 / 5, whatever the water
    EXPECT_TRUE(noMessages());
}

TEST_F(EnergyTest, CalculationStatementCarriesTheRoundedTdi)
{
    // MEavg .8 * 2 * .6 + .5 * 1.5 * .4 = 1.26; FMR 100: TDI 79.365... -> 79.37.
    twoItems();
    item(3, QStringLiteral("aardvark bait, no AE"), QStringLiteral("0.5"), QStringLiteral("0.5"), 0,
         QStringLiteral("NULL"), 99, 1);
    fmr(QStringLiteral("100"));
    sql(QStringLiteral("INSERT INTO tblScenario (ScenarioID, Scenario_FileName) VALUES (7, 'mink.zob')"));
    const QString wet = CalculationSQL(s);
    EXPECT_EQ(s.gSQL, wet);
    EXPECT_TRUE(wet.startsWith(QStringLiteral("SELECT  tblScenario.*, tblWildlifeDietItems.Name,")));
    EXPECT_TRUE(wet.contains(QStringLiteral("AS ME_Wt,79.37*[tblWildlifeDietItems]![Wet_Proportion] AS Daily_Intake, "
                                            "tblDataSource.Description AS DataSource FROM")))
        << qPrintable(wet);
    EXPECT_TRUE(wet.endsWith(QStringLiteral("Where tblWildlifeDietItems.ScenarioID = 7 ORDER BY tblWildlifeDietItems.Name")));

    auto rs = s.gDB->OpenRecordset(wet, RecordsetType::Snapshot);
    QStringList names;
    std::vector<double> intake, me, proportion;
    for (; !rs->EOF_(); rs->MoveNext()) {
        names << rs->field(QStringLiteral("Name")).toString();
        intake.push_back(rs->field(QStringLiteral("Daily_Intake")).toDouble());
        me.push_back(rs->field(QStringLiteral("ME")).toDouble());
        proportion.push_back(rs->field(QStringLiteral("DietProportion")).toDouble());
        EXPECT_EQ(rs->field(QStringLiteral("Scenario_FileName")).toString(), QStringLiteral("mink.zob"));
    }
    EXPECT_EQ(names, (QStringList{QStringLiteral("beetles"), QStringLiteral("berries")}));  // no AE: left out
    ASSERT_EQ(intake.size(), 2u);
    EXPECT_DOUBLE_EQ(intake[0], 79.37 * 0.6);
    EXPECT_DOUBLE_EQ(intake[1], 79.37 * 0.4);
    EXPECT_DOUBLE_EQ(me[0], 1.6);
    EXPECT_DOUBLE_EQ(proportion[1], 0.4);

    s.gScenario->DietType = 0;  // dry: MEavg 2.6, TDI 38.46
    const QString dry = CalculationSQL(s);
    EXPECT_TRUE(dry.contains(QStringLiteral("38.46*[tblWildlifeDietItems]![Dry_Proportion] AS Daily_Intake,")));
    EXPECT_FALSE(dry.contains(QStringLiteral("Wet_")));
    auto dryRows = s.gDB->OpenRecordset(dry, RecordsetType::Snapshot);
    EXPECT_DOUBLE_EQ(dryRows->field(QStringLiteral("Daily_Intake")).toDouble(), 38.46 * 0.3);  // beetles
    EXPECT_TRUE(noMessages());
}

TEST_F(EnergyTest, CalculationStatementWritesLargeTdiWithoutSeparators)
{
    mealOf(QStringLiteral("1"));
    fmr(QStringLiteral("1234.567"));
    EXPECT_TRUE(CalculationSQL(s).contains(QStringLiteral("1234.57*[tblWildlifeDietItems]![Wet_Proportion]")));
}

TEST_F(EnergyTest, CalculationStatementWithoutItemsBringsTheMessage)
{
    fmr(QStringLiteral("50"));
    t.cursor.setBusy(true);
    const QString statement = CalculationSQL(s);
    EXPECT_TRUE(statement.contains(QStringLiteral("50*[tblWildlifeDietItems]![Wet_Proportion]")));
    EXPECT_TRUE(column(statement).isEmpty());
    ASSERT_EQ(shown().size(), 1);
    EXPECT_EQ(shown()[0].text, kNoItems);
    EXPECT_FALSE(t.cursor.busy());
}

}  // namespace
