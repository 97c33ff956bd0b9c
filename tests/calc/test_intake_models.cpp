// SPDX-License-Identifier: MIT
// Allometric intake models: the equation text and the two rates.
#include "CalcFixture.h"
#include "Intake.h"

namespace {

class IntakeModelTest : public CalcTest {
protected:
    IntakeModelTest()
    {
        sql(QStringLiteral("INSERT INTO tblUnits (UnitsID, Description, Factor) VALUES (11, 'g', 1), (13, 'kg', 0.001), "
                           "(14, 'odd', 1.0001), (15, 'no factor', NULL), (20, 'kcal/day', NULL), (21, 'kJ/day', NULL)"));
    }
    //! A model; numbers as SQL literals, "NULL" allowed.
    void model(int id, const QString &a, const QString &b, const QString &ucf, const QString &mmf, int wtUnits = 13,
               const QString &finalUnits = QStringLiteral("20"))
    {
        sql(QStringLiteral("INSERT INTO tblIntakeModel (IntakeModelID, IntakeTypeID, a, b, UCF, MMF, WtUnitsID, "
                           "FinalUnitsID, EqnUnitsID) VALUES (%1, 3, %2, %3, %4, %5, %6, %7, 21)")
                .arg(id).arg(a, b, ucf, mmf).arg(wtUnits).arg(finalUnits));
    }
};

TEST_F(IntakeModelTest, EquationTextShowsOnlyTheFactorsThatMatter)
{
    struct Case {
        const char *a, *b, *ucf, *mmf;
        int wtUnits;
        const char *expected;
    };
    const Case cases[] = {
        {"5", "0.75", "1", "2.5", 13, "kcal/day = 5 * (Wt(g)*0.001)^ 0.75*2.5"},
        {"5", "0.75", "1", "2.5", 11, "kcal/day = 5 * Wt(g)^ 0.75*2.5"},
        {"5", "0.75", "1", "1", 14, "kcal/day = 5 * (Wt(g)*1.0001)^ 0.75"},
        {"5", "0.75", "NULL", "NULL", 11, "kcal/day = 5 * Wt(g)^ 0.75"},
        {"1.602", "0.8", "4.184", "1", 13, "kcal/day = 1.602 * (Wt(g)*0.001)^ 0.8*4.184"},
        {"0.1", "-0.25", "0.239", "3", 11, "kcal/day = 0.1 * Wt(g)^ -0.25*0.239*3"},
        {"NULL", "0.75", "1", "1", 11, "kcal/day =  * Wt(g)^ 0.75"},
    };
    int id = 0;
    for (const Case &c : cases) {
        model(++id, QLatin1String(c.a), QLatin1String(c.b), QLatin1String(c.ucf), QLatin1String(c.mmf), c.wtUnits);
        EXPECT_EQ(GetIntakeEquationText(s, id, QStringLiteral("Equation")), QLatin1String(c.expected));
        EXPECT_EQ(GetIntakeEquationText(s, id, QStringLiteral("Units")), QStringLiteral("kcal/day"));
        EXPECT_EQ(GetIntakeEquationText(s, id, QStringLiteral("anything")), QStringLiteral("kcal/day"));
    }
    EXPECT_TRUE(shown().isEmpty());
}

TEST_F(IntakeModelTest, MissingUnitsGiveNoDataButTheRateMayStillExist)
{
    model(1, QStringLiteral("1"), QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3"), 13, QStringLiteral("NULL"));
    EXPECT_EQ(GetIntakeEquationText(s, 1, QStringLiteral("Equation")), QStringLiteral("No data available."));
    EXPECT_EQ(GetIntakeEquationText(s, 1, QStringLiteral("Units")), QString());
    EXPECT_EQ(GetIntakeRate(s, 1, 1000.0f, QStringLiteral("Adjusted")), 6.0);

    model(2, QStringLiteral("1"), QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3"), 99);  // no weight unit
    EXPECT_EQ(GetIntakeEquationText(s, 2, QStringLiteral("Equation")), QStringLiteral("No data available."));
    EXPECT_EQ(GetIntakeEquationText(s, 2, QStringLiteral("Units")), QString());
    EXPECT_EQ(GetIntakeRate(s, 2, 1000.0f, QStringLiteral("Base")), 0.0);
    model(3, QStringLiteral("1"), QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3"), 15);  // no factor
    EXPECT_EQ(GetIntakeEquationText(s, 3, QStringLiteral("Equation")), QStringLiteral("No data available."));

    EXPECT_EQ(GetIntakeEquationText(s, 42, QStringLiteral("Equation")), QString());
    EXPECT_EQ(GetIntakeEquationText(s, 42, QStringLiteral("Units")), QString());
    EXPECT_EQ(GetIntakeRate(s, 42, 1000.0f, QStringLiteral("Base")), 0.0);
    EXPECT_TRUE(shown().isEmpty());
}

TEST_F(IntakeModelTest, RatesAreBaseTimesTheMeasureFactorInSinglePrecision)
{
    struct Case {
        const char *a, *b, *ucf, *mmf;
        int wtUnits;
        float weight;
        double base, adjusted;
    };
    const Case cases[] = {
        {"1", "1", "2", "3", 13, 1000.0f, 2.0, 6.0},
        {"10", "0.5", "1", "2.5", 11, 400.0f, 200.0, 500.0},
        {"10", "0.5", "NULL", "NULL", 11, 400.0f, 200.0, 200.0},  // null factors count as 1
        // The weight is converted in single precision: .001 * 3000 = 3.0000002.
        {"10", "2", "1", "1", 13, 3000.0f, static_cast<double>(90.000015f), static_cast<double>(90.000015f)},
        {"0.1", "1", "1", "1", 11, 3.0f, static_cast<double>(0.3f), static_cast<double>(0.3f)},
        {"4", "0.5", "1", "1", 11, 0.0f, 0.0, 0.0},               // weight 0, b positive: 0
        {"4", "0", "1", "2", 11, 0.0f, 4.0, 8.0},                 // 0 ^ 0 is 1
    };
    int id = 0;
    for (const Case &c : cases) {
        model(++id, QLatin1String(c.a), QLatin1String(c.b), QLatin1String(c.ucf), QLatin1String(c.mmf), c.wtUnits);
        EXPECT_EQ(GetIntakeRate(s, id, c.weight, QStringLiteral("Base")), c.base) << "model " << id;
        EXPECT_EQ(GetIntakeRate(s, id, c.weight, QStringLiteral("Adjusted")), c.adjusted) << "model " << id;
        EXPECT_EQ(GetIntakeRate(s, id, c.weight, QStringLiteral("anything")), c.adjusted) << "model " << id;
    }
    EXPECT_TRUE(shown().isEmpty());
}

TEST_F(IntakeModelTest, RateFailuresReportUnderTheEquationTextsName)
{
    struct Case {
        const char *a, *b;
        int wtUnits;
        float weight;
        int number;
        const char *description;
    };
    const Case cases[] = {
        {"NULL", "1", 11, 10.0f, 94, "Invalid use of Null"},
        {"1", "NULL", 11, 10.0f, 94, "Invalid use of Null"},
        {"1", "1", 15, 10.0f, 94, "Invalid use of Null"},  // the weight unit has no factor
        {"1", "-1", 11, 0.0f, 11, "Division by zero"},
    };
    int id = 0;
    for (const Case &c : cases) {
        t.messages.shown.clear();
        model(++id, QLatin1String(c.a), QLatin1String(c.b), QStringLiteral("1"), QStringLiteral("1"), c.wtUnits);
        EXPECT_EQ(GetIntakeRate(s, id, c.weight, QStringLiteral("Base")), 0.0);
        ASSERT_EQ(shown().size(), 1) << "model " << id;
        EXPECT_EQ(shown()[0].text,
                  sharedError(QStringLiteral("GetIntakeEquationText"), c.number, QLatin1String(c.description)));
    }
}

}  // namespace
