// SPDX-License-Identifier: MIT
// Diet proportions: the wet/dry conversion, the rescaling to one, the "Sum Proportions" sequence, the
// water fraction and the average trophic level.
#include "CalcFixture.h"
#include "Calculations.h"

namespace {

using D = std::vector<double>;

struct WeightCase {
    bool valueIsDry;
    float value;
    float water;
    float expected;
};

TEST(ConvertWeightIs, RoundsToThreeDecimalsThroughText)
{
    const WeightCase cases[] = {
        {false, 0.4f, 50.0f, 0.2f},      // wet to dry
        {true, 0.2f, 50.0f, 0.4f},       // dry to wet
        {true, 0.1f, 70.0f, 0.333f},     // 0.3333...
        {true, 0.2f, 70.0f, 0.667f},     // 0.6666...
        {false, 0.125f, 50.0f, 0.063f},  // 0.0625: ties round away from zero
        {false, 0.3333f, 0.0f, 0.333f},
        {false, 2.0f, 110.0f, -0.2f},
        {false, 0.333f, 70.0f, 0.1f},     // 0.0999
        {false, 0.0025f, 50.0f, 0.001f},  // 0.00125
        {false, 0.005f, 50.0f, 0.003f},   // a hair below 0.0025 in binary, but its text is a tie
        {false, 0.0007f, 50.0f, 0.0f},
        {false, 0.0f, 80.0f, 0.0f},
    };
    for (const WeightCase &c : cases)
        EXPECT_EQ(ConvertWeightIs(c.valueIsDry, c.value, c.water), c.expected)
            << c.valueIsDry << " " << c.value << " at " << c.water << " %";
}

TEST(ConvertWeightIs, PassesDivisionFailuresToTheCaller)
{
    auto number = [](float value) {
        try {
            ConvertWeightIs(true, value, 100.0f);
        } catch (const VbError &e) {
            return e.number();
        }
        return 0;
    };
    EXPECT_EQ(number(0.5f), VbErr::DivisionByZero);
    EXPECT_EQ(number(0.0f), VbErr::Overflow);  // 0 / 0
    EXPECT_EQ(ConvertWeightIs(false, 0.5f, 100.0f), 0.0f);  // wet to dry at 100 % is simply 0
}

using CalculateDietPorportionTest = CalcTest;

TEST_F(CalculateDietPorportionTest, RescalesTheChosenBasisOnly)
{
    item(1, QStringLiteral("a"), QStringLiteral("0.3"), QStringLiteral("0.7"));
    item(2, QStringLiteral("b"), QStringLiteral("0.3"), QStringLiteral("0.9"));
    item(3, QStringLiteral("other scenario"), QStringLiteral("0.3"), QStringLiteral("0.3"), 0, QStringLiteral("NULL"), 0,
         0, QStringLiteral("NULL"), kSid + 1);
    EXPECT_TRUE(CalculateDietPorportion(s, true));
    EXPECT_EQ(doubles(proportions("Wet_Proportion")), (D{0.5, 0.5}));
    EXPECT_EQ(doubles(proportions("Dry_Proportion")), (D{0.7, 0.9}));
    EXPECT_EQ(value(QStringLiteral("SELECT Wet_Proportion FROM tblWildlifeDietItems WHERE ScenarioID = 8")).toDouble(), 0.3);
    EXPECT_TRUE(shown().isEmpty());

    EXPECT_TRUE(CalculateDietPorportion(s, false));
    // 0.7 and 0.9 are read as singles (0.69999999 and 0.89999998): 0.4374999 and 0.5624999, below the tie
    EXPECT_EQ(doubles(proportions("Dry_Proportion")), (D{0.437, 0.562}));
    EXPECT_EQ(doubles(proportions("Wet_Proportion")), (D{0.5, 0.5}));
}

TEST_F(CalculateDietPorportionTest, ReadsEachProportionAsASingle)
{
    // Total 2, factor 0.5. In double precision 0.247 * 0.5 is 0.1235, a tie that would give .124; the single
    // 0.247 halves to 0.12349999..., which gives .123. 1.753 as a single lies above the tie either way.
    item(1, QStringLiteral("a"), QStringLiteral("NULL"), QStringLiteral("0.247"));
    item(2, QStringLiteral("b"), QStringLiteral("NULL"), QStringLiteral("1.753"));
    EXPECT_TRUE(CalculateDietPorportion(s, false));
    EXPECT_EQ(doubles(proportions("Dry_Proportion")), (D{0.123, 0.877}));

    // Exact binary fractions are the same in both precisions, and their ties go away from zero.
    sql(QStringLiteral("UPDATE tblWildlifeDietItems SET Dry_Proportion = CASE DietItemID WHEN 1 THEN 0.125 "
                       "ELSE 1.875 END"));
    EXPECT_TRUE(CalculateDietPorportion(s, false));
    EXPECT_EQ(doubles(proportions("Dry_Proportion")), (D{0.063, 0.938}));

    sql(QStringLiteral("DELETE FROM tblWildlifeDietItems"));
    item(1, QStringLiteral("a"), QStringLiteral("NULL"), QStringLiteral("0.1"));
    item(2, QStringLiteral("b"), QStringLiteral("NULL"), QStringLiteral("0.2"));
    item(3, QStringLiteral("c"), QStringLiteral("NULL"), QStringLiteral("0.4"));
    EXPECT_TRUE(CalculateDietPorportion(s, false));
    EXPECT_EQ(doubles(proportions("Dry_Proportion")), (D{0.143, 0.286, 0.571}));
    EXPECT_TRUE(shown().isEmpty());
}

TEST_F(CalculateDietPorportionTest, ThreeThirdsStayBelowOneAndRescaleAgain)
{
    for (int i = 1; i <= 3; ++i)
        item(i, QStringLiteral("i%1").arg(i), QStringLiteral("0.333"), QStringLiteral("NULL"));
    EXPECT_TRUE(CalculateDietPorportion(s, true));
    EXPECT_EQ(doubles(proportions("Wet_Proportion")), (D{0.333, 0.333, 0.333}));
    // The sum is 0.999, not 1: a second run rescales again and gives the same rows.
    EXPECT_TRUE(CalculateDietPorportion(s, true));
    EXPECT_EQ(doubles(proportions("Wet_Proportion")), (D{0.333, 0.333, 0.333}));
    EXPECT_TRUE(shown().isEmpty());
}

TEST_F(CalculateDietPorportionTest, NullProportionBecomesZero)
{
    item(1, QStringLiteral("a"), QStringLiteral("0.25"), QStringLiteral("NULL"));
    item(2, QStringLiteral("b"), QStringLiteral("NULL"), QStringLiteral("NULL"));
    item(3, QStringLiteral("c"), QStringLiteral("0.25"), QStringLiteral("NULL"));
    EXPECT_TRUE(CalculateDietPorportion(s, true));
    EXPECT_EQ(doubles(proportions("Wet_Proportion")), (D{0.5, 0.0, 0.5}));
    EXPECT_EQ(doubles(proportions("Dry_Proportion")), (D{-1.0, -1.0, -1.0}));  // still null
}

TEST_F(CalculateDietPorportionTest, FailuresReportAndLeaveRowsAlone)
{
    struct Case {
        const char *wet[2];
        int number;
    };
    // Exactly 1.0 keeps the read-only totals statement; 0 divides by zero; no items leave a null total.
    const Case cases[] = {{{"0.5", "0.5"}, VbErr::ReadOnly}, {{"0", "0"}, VbErr::DivisionByZero},
                          {{nullptr, nullptr}, VbErr::InvalidUseOfNull}};
    for (const Case &c : cases) {
        sql(QStringLiteral("DELETE FROM tblWildlifeDietItems"));
        t.messages.shown.clear();
        if (c.wet[0]) {
            item(1, QStringLiteral("a"), QLatin1String(c.wet[0]), QStringLiteral("0.2"));
            item(2, QStringLiteral("b"), QLatin1String(c.wet[1]), QStringLiteral("0.2"));
        }
        EXPECT_FALSE(CalculateDietPorportion(s, true)) << c.number;
        ASSERT_EQ(shown().size(), 1) << c.number;
        const ShownMessage &m = shown()[0];
        EXPECT_TRUE(m.text.startsWith(QStringLiteral("Error in routine CalculateDietPorportion\r\n\r\n"))) << qPrintable(m.text);
        EXPECT_TRUE(m.text.endsWith(QStringLiteral("\r\n") + QString::number(c.number))) << qPrintable(m.text);
        EXPECT_EQ(m.title, QString());
        EXPECT_EQ(m.icon, MsgIcon::Stop);
        EXPECT_FALSE(t.cursor.busy());
        if (c.wet[0]) {
            const double v = QString::fromLatin1(c.wet[0]).toDouble();
            EXPECT_EQ(doubles(proportions("Wet_Proportion")), (D{v, v}));
        }
    }
    EXPECT_EQ(shown()[0].text, sharedError(QStringLiteral("CalculateDietPorportion"), 94, QStringLiteral("Invalid use of Null")));
}

using ConvertDietProportionTest = CalcTest;

TEST_F(ConvertDietProportionTest, UsesTheMoistureRowNotTheItemsOwnPercent)
{
    water(1, QStringLiteral("50"));
    water(2, QStringLiteral("75"));
    // Item a's own water percent (90) disagrees with its moisture row (50).
    item(1, QStringLiteral("a"), QStringLiteral("0.4"), QStringLiteral("NULL"), 1, QStringLiteral("90"));
    item(2, QStringLiteral("b"), QStringLiteral("0.6"), QStringLiteral("NULL"), 2, QStringLiteral("75"));
    item(3, QStringLiteral("c"), QStringLiteral("NULL"), QStringLiteral("0.8"), 2, QStringLiteral("75"));
    ConvertDietProportion(s, true, QStringLiteral("User"));
    EXPECT_EQ(doubles(proportions("Dry_Proportion")), (D{0.2, 0.15, 0.0}));
    EXPECT_EQ(doubles(proportions("Wet_Proportion")), (D{0.4, 0.6, -1.0}));
    EXPECT_TRUE(shown().isEmpty());

    // The water fraction takes the item's own percent: 90 * 0.4 / 100 + 75 * 0.6 / 100 = 0.81.
    EXPECT_EQ(GetH2OAvg(s), 0.81f);

    ConvertDietProportion(s, false, QStringLiteral("User"));
    EXPECT_EQ(doubles(proportions("Wet_Proportion")), (D{0.4, 0.6, 0.0}));
}

TEST_F(ConvertDietProportionTest, RoundsTheSingleResultOfTheConversion)
{
    // 0.5 * 0.247 is the single whose shortest text is 0.1235, a tie: .124
    water(1, QStringLiteral("50"));
    item(1, QStringLiteral("a"), QStringLiteral("0.247"), QStringLiteral("NULL"), 1);
    ConvertDietProportion(s, true, QStringLiteral("User"));
    EXPECT_EQ(doubles(proportions("Dry_Proportion")), (D{0.124}));
}

TEST_F(ConvertDietProportionTest, PermModeSelectsByTheScenariosDiet)
{
    water(1, QStringLiteral("50"));
    item(1, QStringLiteral("a"), QStringLiteral("0.4"), QStringLiteral("NULL"), 1);
    item(2, QStringLiteral("b"), QStringLiteral("0.4"), QStringLiteral("NULL"), 1, QStringLiteral("NULL"), 0, 0,
         QStringLiteral("NULL"), kSid + 1);
    item(3, QStringLiteral("other diet"), QStringLiteral("0.4"), QStringLiteral("0.9"), 1);
    sql(QStringLiteral("UPDATE tblWildlifeDietItems SET DietID = 4 WHERE DietItemID = 3"));
    s.gScenario->DietID = 3;  // rows 1 and 2 belong to diet 3
    ConvertDietProportion(s, true, QStringLiteral("Perm"));
    EXPECT_EQ(doubles(column(QStringLiteral("SELECT Dry_Proportion FROM tblWildlifeDietItems ORDER BY DietItemID"))),
              (D{0.2, 0.2, 0.9}));
}

TEST_F(ConvertDietProportionTest, MissingMoistureStopsHalfWay)
{
    water(1, QStringLiteral("50"));
    item(1, QStringLiteral("a"), QStringLiteral("0.4"), QStringLiteral("0.9"), 1);
    item(2, QStringLiteral("b"), QStringLiteral("0.4"), QStringLiteral("0.9"), 99);  // no such moisture row
    item(3, QStringLiteral("c"), QStringLiteral("0.4"), QStringLiteral("0.9"), 1);
    t.cursor.setBusy(true);
    ConvertDietProportion(s, true, QStringLiteral("User"));
    EXPECT_EQ(doubles(proportions("Dry_Proportion")), (D{0.2, 0.9, 0.9}));
    ASSERT_EQ(shown().size(), 1);
    EXPECT_EQ(shown()[0].text, sharedError(QStringLiteral("ConvertDietProportion"), 13, QStringLiteral("Type mismatch")));
    EXPECT_FALSE(t.cursor.busy());
}

TEST_F(ConvertDietProportionTest, AllWaterDryToWetDividesByZero)
{
    water(1, QStringLiteral("100"));
    item(1, QStringLiteral("a"), QStringLiteral("0.1"), QStringLiteral("0.4"), 1);
    ConvertDietProportion(s, false, QStringLiteral("User"));
    ASSERT_EQ(shown().size(), 1);
    EXPECT_EQ(shown()[0].text, sharedError(QStringLiteral("ConvertDietProportion"), 11, QStringLiteral("Division by zero")));
    EXPECT_EQ(doubles(proportions("Wet_Proportion")), (D{0.1}));
}

using SumProportionsTest = CalcTest;

TEST_F(SumProportionsTest, BothBasesEndNormalisedTheChosenOneFirst)
{
    water(1, QStringLiteral("50"));
    water(2, QStringLiteral("75"));
    struct Case {
        bool wet;
        const char *start[2][2];  // item, {wet, dry}
        D wetAfter, dryAfter;
    };
    const Case cases[] = {
        // wet .5/.5 -> dry .25/.125 -> dry rescaled by 1/.375
        {true, {{"0.3", "NULL"}, {"0.3", "NULL"}}, {0.5, 0.5}, {0.667, 0.333}},
        // dry .25/.75 -> wet .5/3 -> wet rescaled by 1/3.5
        {false, {{"NULL", "0.2"}, {"NULL", "0.6"}}, {0.143, 0.857}, {0.25, 0.75}},
    };
    for (const Case &c : cases) {
        sql(QStringLiteral("DELETE FROM tblWildlifeDietItems"));
        item(1, QStringLiteral("a"), QLatin1String(c.start[0][0]), QLatin1String(c.start[0][1]), 1);
        item(2, QStringLiteral("b"), QLatin1String(c.start[1][0]), QLatin1String(c.start[1][1]), 2);
        SumProportions(s, c.wet);
        EXPECT_EQ(doubles(proportions("Wet_Proportion")), c.wetAfter) << "wet basis " << c.wet;
        EXPECT_EQ(doubles(proportions("Dry_Proportion")), c.dryAfter) << "wet basis " << c.wet;
    }
    EXPECT_TRUE(shown().isEmpty());
}

TEST_F(SumProportionsTest, AFailedStepDoesNotStopTheNext)
{
    water(1, QStringLiteral("50"));
    item(1, QStringLiteral("a"), QStringLiteral("0.5"), QStringLiteral("NULL"), 1);
    item(2, QStringLiteral("b"), QStringLiteral("0.5"), QStringLiteral("NULL"), 1);
    SumProportions(s, true);  // the wet total is already 1.0: reported, then converted and rescaled
    ASSERT_EQ(shown().size(), 1);
    EXPECT_TRUE(shown()[0].text.endsWith(QStringLiteral("\r\n3027")));
    EXPECT_EQ(doubles(proportions("Dry_Proportion")), (D{0.5, 0.5}));  // .25/.25 rescaled
}

using GetH2OAvgTest = CalcTest;

TEST_F(GetH2OAvgTest, WeightsEachItemsWaterByItsProportionOnTheBasis)
{
    item(1, QStringLiteral("a"), QStringLiteral("0.5"), QStringLiteral("0.2"), 0, QStringLiteral("70"));
    item(2, QStringLiteral("b"), QStringLiteral("0.5"), QStringLiteral("0.8"), 0, QStringLiteral("80"));
    EXPECT_EQ(GetH2OAvg(s), 0.75f);
    s.gScenario->DietType = 0;
    EXPECT_EQ(GetH2OAvg(s), 0.78f);  // 70 * .2 + 80 * .8, per cent
    s.gScenario->DietType = 1;
    sql(QStringLiteral("UPDATE tblWildlifeDietItems SET WaterPercent = 75.4, Wet_Proportion = 0.5"));
    EXPECT_EQ(GetH2OAvg(s), 0.75f);  // known to two decimals only
    sql(QStringLiteral("UPDATE tblWildlifeDietItems SET WaterPercent = 75.5"));
    EXPECT_EQ(GetH2OAvg(s), 0.76f);  // .755 rounds away from zero
    sql(QStringLiteral("UPDATE tblWildlifeDietItems SET WaterPercent = 50.5"));
    EXPECT_EQ(GetH2OAvg(s), 0.51f);
    EXPECT_TRUE(shown().isEmpty());
}

TEST_F(GetH2OAvgTest, NoItemsReportsAndGivesZero)
{
    EXPECT_EQ(GetH2OAvg(s), 0.0f);
    ASSERT_EQ(shown().size(), 1);
    EXPECT_EQ(shown()[0].text, sharedError(QStringLiteral(" GetH2OAvg"), 94, QStringLiteral("Invalid use of Null")));
    EXPECT_EQ(shown()[0].text.left(25), QStringLiteral("Error in routine  GetH2OA"));
}

using GetAvgTrophicLevelTest = CalcTest;

TEST_F(GetAvgTrophicLevelTest, PlainAverageOfTheScenarioOrTheReferenceDiet)
{
    EXPECT_EQ(GetAvgTrophicLevel(s, kSid, QStringLiteral("tblWildlifeDietItems")), QStringLiteral("0"));
    item(1, QStringLiteral("a"), QStringLiteral("0.9"), QStringLiteral("0.9"), 0, QStringLiteral("NULL"), 0, 0,
         QStringLiteral("2"));
    item(2, QStringLiteral("b"), QStringLiteral("0.1"), QStringLiteral("0.1"), 0, QStringLiteral("NULL"), 0, 0,
         QStringLiteral("3.5"));
    EXPECT_EQ(GetAvgTrophicLevel(s, kSid, QStringLiteral("tblWildlifeDietItems")), QStringLiteral("2.75"));
    // With any table name but tblDietItem the scenario's copies are averaged.
    EXPECT_EQ(GetAvgTrophicLevel(s, kSid, QStringLiteral("whatever")), QStringLiteral("2.75"));
    EXPECT_EQ(GetAvgTrophicLevel(s, kSid + 1, QStringLiteral("tblWildlifeDietItems")), QStringLiteral("0"));
    item(3, QStringLiteral("c"), QStringLiteral("0.1"), QStringLiteral("0.1"), 0, QStringLiteral("NULL"), 0, 0,
         QStringLiteral("3"));
    EXPECT_EQ(GetAvgTrophicLevel(s, kSid, QStringLiteral("tblWildlifeDietItems")), QStringLiteral("2.83"));
    item(4, QStringLiteral("d"), QStringLiteral("1"), QStringLiteral("1"), 0, QStringLiteral("NULL"), 0, 0,
         QStringLiteral("3"), kSid + 1);
    EXPECT_EQ(GetAvgTrophicLevel(s, kSid + 1, QStringLiteral("tblWildlifeDietItems")), QStringLiteral("3.00"));

    sql(QStringLiteral("INSERT INTO tblTrophicLevel (TrophicLevelID, TrophicLevel) VALUES (1, 2), (2, 3), (3, 4.01), (4, 3.25);"
                       "INSERT INTO tblDietItem (DietID, Name, TrophicLevelID, TrophicLevel) VALUES (5, 'x', 1, 9), "
                       "(5, 'y', 2, 9), (5, 'no level', NULL, 9), (5, 'dangling', 9, 9), (6, 'z', 3, NULL), "
                       "(7, 'tie', 1, NULL), (7, 'tie', 4, NULL)"));
    // The items' own TrophicLevel plays no part; (2 + 3.25) / 2 = 2.625 is a tie that goes away from zero.
    EXPECT_EQ(GetAvgTrophicLevel(s, 5, QStringLiteral("tblDietItem")), QStringLiteral("2.50"));
    EXPECT_EQ(GetAvgTrophicLevel(s, 6, QStringLiteral("tblDietItem")), QStringLiteral("4.01"));
    EXPECT_EQ(GetAvgTrophicLevel(s, 7, QStringLiteral("tblDietItem")), QStringLiteral("2.63"));
    EXPECT_EQ(GetAvgTrophicLevel(s, 4, QStringLiteral("tblDietItem")), QStringLiteral("0"));
    EXPECT_TRUE(shown().isEmpty());
}

TEST_F(GetAvgTrophicLevelTest, FailureHasItsOwnCodeReport)
{
    sql(QStringLiteral("DROP TABLE tblTrophicLevel"));
    t.cursor.setBusy(true);
    EXPECT_EQ(GetAvgTrophicLevel(s, 5, QStringLiteral("tblDietItem")), QString());
    ASSERT_EQ(shown().size(), 1);
    const ShownMessage &m = shown()[0];
    EXPECT_TRUE(m.text.startsWith(QStringLiteral("3078\r\n"))) << qPrintable(m.text);
    EXPECT_TRUE(m.text.endsWith(QStringLiteral("Error in code routine GetAvgTrophicLevel"))) << qPrintable(m.text);
    EXPECT_EQ(m.title, QStringLiteral("System Developer Message"));
    EXPECT_EQ(m.icon, MsgIcon::Stop);
    EXPECT_FALSE(t.cursor.busy());
}

}  // namespace
