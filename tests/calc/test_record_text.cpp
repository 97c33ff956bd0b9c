// SPDX-License-Identifier: MIT
// One-line descriptions of reference records.
#include "CalcFixture.h"
#include "Wildlife.h"

namespace {

class RecordTextTest : public CalcTest {
protected:
    RecordTextTest()
    {
        sql(QStringLiteral(
            "INSERT INTO tblKingdom (KingdomID, Name) VALUES (1, 'A');"
            "INSERT INTO tblSubkingdom (SubkingdomID, Name) VALUES (2, 'B');"
            "INSERT INTO tblPhylum (PhylumID, Name) VALUES (3, 'C');"
            "INSERT INTO tblClass (ClassID, Name) VALUES (4, 'D');"
            "INSERT INTO tblOrder (OrderID, Name) VALUES (5, 'E');"
            "INSERT INTO tblFamily (FamilyID, Name) VALUES (6, 'F');"
            "INSERT INTO tblVarianceType (VarianceTypeID, Description) VALUES (1, 'SD');"
            "INSERT INTO tblDataSource (DataSourceID, Description) VALUES (4, 'Primary');"
            "INSERT INTO tblSpecies (SpeciesID, Common, KingdomID, SubkingdomID, PhylumID, ClassID, OrderID, FamilyID) "
            "VALUES (10, 'all six', 1, 2, 3, 4, 5, 6), (11, 'class only', NULL, NULL, NULL, 4, NULL, NULL), "
            "(12, 'dangling family', 1, 2, 3, 4, 5, 99);"
            "INSERT INTO tblAE (AEID, Mean, Min, Max, VarValue, VarianceTypeID, DataSourceID) "
            "VALUES (1, 72.5, 60, 85, NULL, 1, 4), (2, 0.1, NULL, NULL, 1234567, NULL, NULL);"
            "INSERT INTO tblGrossEnergy (GrossEnergyID, WET_WT_KCALG, Min_W, Max_W, Variance_ww, DRY_WT_KCALG, Min_D, "
            "Max_D, Variance_dw, VarianceTypeID, DataSourceID) VALUES (1, 1.25, 1, 1.5, 0.04, 5.1, 4.8, 5.6, 0.09, 1, 4)"));
    }
};

TEST_F(RecordTextTest, ClassificationNamesEveryLevelWithItsLabel)
{
    struct Case {
        int id;
        const char *expected;
    };
    const Case cases[] = {
        {10, "Kingdom:  A, Subkingdom:  B, Phylum:  C,  Class:  D,  Order:  E,  Family:  F"},
        {11, "Kingdom:  , Subkingdom:  , Phylum:  ,  Class:  D,  Order:  ,  Family:  "},
        {12, "Kingdom:  A, Subkingdom:  B, Phylum:  C,  Class:  D,  Order:  E,  Family:  not found"},
    };
    for (const Case &c : cases)
        EXPECT_EQ(GetClassificationText(s, c.id, QStringLiteral("tblSpecies"), QStringLiteral("SpeciesID")),
                  QLatin1String(c.expected));
    EXPECT_TRUE(shown().isEmpty());
}

TEST_F(RecordTextTest, ClassificationOfAMissingRecordReports)
{
    EXPECT_EQ(GetClassificationText(s, 99, QStringLiteral("tblSpecies"), QStringLiteral("SpeciesID")), QString());
    ASSERT_EQ(shown().size(), 1);
    EXPECT_EQ(shown()[0].text, sharedError(QStringLiteral(" GetClassificationText"), 3021, QStringLiteral("No current record.")));
}

TEST_F(RecordTextTest, MeasurementTextByKind)
{
    struct Case {
        const char *table, *field;
        int id;
        const char *kind, *expected;
    };
    const Case cases[] = {
        {"tblAE", "AEID", 1, "AE", "Mean:  72.5, Min:  60, Max:  85, Variance:  ,  Variance Type:  SD, Data Source:  Primary"},
        {"tblAE", "AEID", 2, "H2O", "Mean:  0.1, Min:  , Max:  , Variance:  1234567,  Variance Type:  , Data Source:  "},
        {"tblAE", "AEID", 2, "DE", "Mean:  0.1, Min:  , Max:  , Variance:  1234567,  Variance Type:  , Data Source:  "},
        {"tblGrossEnergy", "GrossEnergyID", 1, "WW",
         "Mean:  1.25, Min:  1, Max:  1.5, Variance:  0.04,  Variance Type:  SD, Data Source:  Primary"},
        {"tblGrossEnergy", "GrossEnergyID", 1, "DW",
         "Mean:  5.1, Min:  4.8, Max:  5.6, Variance:  0.09,  Variance Type:  SD, Data Source:  Primary"},
        {"tblAE", "AEID", 1, "X", ",  Variance Type:  SD, Data Source:  Primary"},
    };
    for (const Case &c : cases)
        EXPECT_EQ(GetMeasurementText(s, c.id, QLatin1String(c.table), QLatin1String(c.field), QLatin1String(c.kind)),
                  QLatin1String(c.expected))
            << c.table << " " << c.kind;
    EXPECT_TRUE(shown().isEmpty());

    EXPECT_EQ(GetMeasurementText(s, 1, QStringLiteral("tblNothing"), QStringLiteral("AEID"), QStringLiteral("AE")), QString());
    ASSERT_EQ(shown().size(), 1);
    EXPECT_TRUE(shown()[0].text.startsWith(QStringLiteral("Error in routine  GetMeasurementText\r\n\r\n")));
}

}  // namespace
