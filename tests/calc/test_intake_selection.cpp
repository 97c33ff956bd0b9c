// SPDX-License-Identifier: MIT
// What the intake dialogs write into a scenario's intake row: a model's rates with their two
// roundings, a measurement by estimator, a soil study, and the failures that leave the row alone.
#include "CalcFixture.h"
#include "IntakeSelection.h"
#include "Recordset.h"

namespace {

class IntakeSelectionTest : public CalcTest {
protected:
    IntakeSelectionTest()
    {
        s.gScenario->Weight = 1000.0f;
        sql(QStringLiteral("INSERT INTO tblUnits (UnitsID, Description, Factor) VALUES (11, 'g', 1), (13, 'kg', 0.001), "
                           "(20, 'kcal/day', NULL);"
                           "INSERT INTO tblIntakeZOB (ScenarioID, IntakeTypeID, BaseRate, AdjustedRate, EstimatorID, "
                           "IntakeMeasuredID, IntakeModelID) VALUES (7, 3, 1.5, 3.5, 2, 44, 55), (7, 4, 1.5, 3.5, 2, 0, 0)"));
    }
    //! One row of a statement, open on its first row.
    std::unique_ptr<Recordset> first(const QString &select) { return s.gDB->OpenRecordset(select, RecordsetType::Snapshot); }
    QVariantList food(const char *columns)
    {
        auto rs = first(QStringLiteral("SELECT %1 FROM tblIntakeZOB WHERE ScenarioID = 7 AND IntakeTypeID = 3").arg(QLatin1String(columns)));
        QVariantList out;
        for (int i = 0; i < rs->fieldCount(); ++i)
            out << rs->field(i);
        return out;
    }
    void measurement(const QString &mean, const QString &min, const QString &variance)
    {
        sql(QStringLiteral("DELETE FROM tblIntakeMeasured; INSERT INTO tblIntakeMeasured (IntakeMeasuredID, SpeciesID, "
                           "IntakeTypeID, Mean, Min, Max, VarValue, DataSourceID) VALUES (81, 1, 3, %1, %2, 9, %3, 5)")
                .arg(mean, min, variance));
    }
    //! Saves the measurement with an estimator and a typed factor.
    void saveMeasured(int estimator, const QString &factor = QStringLiteral("2.5"))
    {
        auto row = first(QStringLiteral("SELECT * FROM tblIntakeMeasured"));
        SaveMeasuredIntake(s, 3, *row, factor, estimator);
    }
};

TEST_F(IntakeSelectionTest, CorrectionFactorIsAWholeNumberFromOneToTen)
{
    const std::pair<const char *, const char *> cases[] = {{"2.7", "2"}, {"10.9", "10"}, {"10", "10"}, {"1.9", "1"},
                                                           {"0.5", "1"}, {"-3", "1"}, {"abc", "1"}, {"", "1"},
                                                           {"7 apples", "7"}, {"1e309", "10"}, {"-1e309", "1"}};
    for (const auto &[typed, kept] : cases)
        EXPECT_EQ(CorrectionFactorText(QLatin1String(typed)), QLatin1String(kept)) << typed;
}

TEST_F(IntakeSelectionTest, ModelRatesRoundTheBaseRateOnlyAndKeepTheMeasurementColumns)
{
    sql(QStringLiteral("INSERT INTO tblIntakeModel (IntakeModelID, IntakeTypeID, a, b, UCF, MMF, WtUnitsID, FinalUnitsID, "
                       "DataSourceID) VALUES (61, 3, 1, 1, 2, 3, 13, 20, 4), (62, 3, 2, 0.5, 1.5, 2.5, 11, 20, 5)"));
    auto model = first(QStringLiteral("SELECT * FROM tblIntakeModel WHERE IntakeModelID = 61"));
    SaveModelIntake(s, 3, *model, 9, QStringLiteral("the text shown"));
    EXPECT_EQ(food("IntakeModelID, Derivation, CategoryID, IntakeEquation, BaseRate, AdjustedRate, Units, Units_CF, "
                   "Measured_CF, DataSourceID, EstimatorID, IntakeMeasuredID"),
              (QVariantList{61, QStringLiteral("Model"), 9, QStringLiteral("the text shown"), 2.0, 6.0,
                            QStringLiteral("kcal/day"), 2.0, 3.0, 4, 2, 44}));
    EXPECT_EQ(s.gScenario->FMR_DataSource, 4);
    // 2 * 1000 ^ .5 * 1.5 = 94.86833: four decimals for the base rate, the single as it is for the
    // adjusted rate (94.86833 * 2.5).
    model = first(QStringLiteral("SELECT * FROM tblIntakeModel WHERE IntakeModelID = 62"));
    SaveModelIntake(s, 3, *model, 9, QString());
    const QVariantList rates = food("BaseRate, AdjustedRate");
    EXPECT_EQ(rates[0].toDouble(), 94.8683);
    EXPECT_EQ(static_cast<float>(rates[1].toDouble()), static_cast<float>(94.86833f * 2.5f));
    EXPECT_TRUE(shown().isEmpty());
}

TEST_F(IntakeSelectionTest, MeasuredRatesByEstimator)
{
    struct Case {
        const char *mean, *min, *variance;
        int estimator;
        double base, adjusted;
    };
    const Case cases[] = {
        {"4.25", "1", "1.5", 4, 5.75, 5.75},     // Mean + Variance, "#0.00"
        {"4.256", "1", "1.5", 4, 5.76, 5.76},
        {"4.256", "1", "1.5", 5, 2.76, 2.76},    // Mean - Variance
        {"4.25678", "1", "1.5", 1, 4.2568, 4.2568},  // Mean, "0.0000"
        {"4", "1.23456", "1", 3, 1.2346, 1.2346},    // Min
        {"4", "1", "1", 2, 9.0, 9.0},                // Max
        {"4", "NULL", "1", 3, 0.0, 9.0},             // a null Min: base 0, adjusted as it was
        {"5", "1", "1", 0, 0.0, 9.0},                // Detection Limit: both as they were
    };
    for (const Case &c : cases) {
        measurement(QLatin1String(c.mean), QLatin1String(c.min), QLatin1String(c.variance));
        saveMeasured(c.estimator);
        EXPECT_EQ(food("BaseRate, AdjustedRate, EstimatorID, Derivation, IntakeMeasuredID, Measured_CF, DataSourceID"),
                  (QVariantList{c.base, c.adjusted, c.estimator, QStringLiteral("Measured"), 81, 2.5, 5}))
            << c.mean << " " << c.estimator;
    }
    // The variance options have no null test: a null variance fails and writes nothing.
    measurement(QStringLiteral("4"), QStringLiteral("1"), QStringLiteral("NULL"));
    const QVariantList before = food("*");
    EXPECT_THROW(saveMeasured(5), VbError);
    EXPECT_EQ(food("*"), before);
    EXPECT_EQ(s.gScenario->FMR_DataSource, 5);
}

TEST_F(IntakeSelectionTest, SoilStudyGivesItsPercentageAndANullOneKeepsTheAdjustedRate)
{
    sql(QStringLiteral("INSERT INTO tblSoilIngestion (SoilIngestionID, Species, IntakeMean, DataSourceID) VALUES "
                       "(71, 'Mole', 9.43219, 4), (72, 'Shrew', NULL, 1)"));
    const auto soil = [&] {
        auto rs = first(QStringLiteral("SELECT Derivation, SoilIngestionID, AssignedSpecies, BaseRate, AdjustedRate, Units, "
                                       "EstimatorID, DataSourceID FROM tblIntakeZOB WHERE ScenarioID = 7 AND IntakeTypeID = 4"));
        QVariantList out;
        for (int i = 0; i < rs->fieldCount(); ++i)
            out << rs->field(i);
        return out;
    };
    SaveSoilIngestion(s, 4, *first(QStringLiteral("SELECT * FROM tblSoilIngestion WHERE SoilIngestionID = 71")));
    EXPECT_EQ(soil(), (QVariantList{QStringLiteral("Measured"), 71, QStringLiteral("Mole"), 9.4322, 9.4322,
                                    QStringLiteral("% dry wt"), 1, 4}));
    EXPECT_EQ(s.gScenario->Soil_DataSource, 4);
    SaveSoilIngestion(s, 4, *first(QStringLiteral("SELECT * FROM tblSoilIngestion WHERE SoilIngestionID = 72")));
    EXPECT_EQ(soil(), (QVariantList{QStringLiteral("Measured"), 72, QStringLiteral("Shrew"), 0.0, 9.4322,
                                    QStringLiteral("% dry wt"), 1, 1}));
}

}  // namespace
