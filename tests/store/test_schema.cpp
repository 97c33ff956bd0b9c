// SPDX-License-Identifier: MIT
// The schema: every column the program reads or writes by name, keys, the citation view, and the
// column behaviour (text compares without case, numeric text becomes a number, other text is refused).
#include "SchemaDb.h"
#include "VbError.h"

#include <gtest/gtest.h>

#include <QMap>
#include <QStringList>

namespace {

struct ColumnInfo {
    QString type;
    int pk = 0;
    QString defaultValue;
};

QMap<QString, ColumnInfo> columnsOf(sqlite3 *db, const QString &table)
{
    QMap<QString, ColumnInfo> out;
    sqlite3_stmt *stmt = nullptr;
    sqlite3_prepare_v2(db, QStringLiteral("PRAGMA table_info([%1])").arg(table).toUtf8().constData(), -1, &stmt, nullptr);
    while (sqlite3_step(stmt) == SQLITE_ROW) {
        ColumnInfo c;
        c.type = QString::fromUtf8(reinterpret_cast<const char *>(sqlite3_column_text(stmt, 2)));
        c.pk = sqlite3_column_int(stmt, 5);
        if (sqlite3_column_type(stmt, 4) != SQLITE_NULL)
            c.defaultValue = QString::fromUtf8(reinterpret_cast<const char *>(sqlite3_column_text(stmt, 4)));
        out.insert(QString::fromUtf8(reinterpret_cast<const char *>(sqlite3_column_text(stmt, 1))).toLower(), c);
    }
    sqlite3_finalize(stmt);
    return out;
}

// The columns that the program's statements and recordsets name, table by table, written out here
// independently of Schema.cpp so that a column dropped there is caught.
const QMap<QString, QString> &namedColumns()
{
    static const QMap<QString, QString> m = {
        {"tblScenario", "ScenarioID Scenario_Type Scenario_FilePath Scenario_FileName Scenario_Added Scenario_LastSaved "
                        "Scenario_CreatedBy Scenario_ModifiedBy Scenario_PrintedBy Scenario_Identifier_1 Comments"},
        {"tblWildlife", "ScenarioID ScenarioComments SpeciesID Common Latin Taxon SpeciesComments SpeciesDataSourceID "
                        "WeightID Weight WtStatus WtSex WtEstimator WtComments WtDataSourceID DietID DietType "
                        "DietComments DietSeason DietHabitat DietSex DietDataSourceID"},
        {"tblWildlifeDiet", "DietID fldDiet_ID SpeciesID DataTypeID ReferenceID MeasureTermID MaterialAnalyzedID "
                            "AnalysisNotes CollectionNotes GenderID LifestageID HabitatTypeID BegMonthID EndMonthID "
                            "Latitude Longitude Location DataSourceID DietTypeID StateProvinceID Region ScenarioID"},
        {"tblWildlifeDietItems", "ScenarioID DietID DietItemID Name Comments WetValue DryValue WET_Proportion "
                                 "Dry_Proportion Sample WaterConversionID WaterPercent WaterPercentDS TrophicLevelID "
                                 "TROPHICLEVEL TrophiclevelDS AEID GrossEnergyID KingdomID SubkingdomID PhylumID "
                                 "ClassID OrderID FamilyID Genus Species ComponentID LifeStageID DataSourceID N_Unit "
                                 "Bio_Availability"},
        {"tblIntakeZOB", "ScenarioID IntakeTypeID BaseRate ADJUSTEDRate Units Units_CF Measured_CF Derivation "
                         "IntakeModelID IntakeMeasuredID SoilIngestionID CategoryID EstimatorID IntakeEquation "
                         "AssignedSpecies ZOB_SpeciesID DataSourceID Comments"},
        {"tblContaminantScenario", "ScenarioID ContaminantComments ScenarioComments"},
        {"tblScenarioHeader", "Scenario_Comments Scenario_Created_By Scenario_Modified_By"},
        {"tblProject", "ProjectID Name Purpose Author Location StateProvinceID Latitude Longitude Comments Path "
                       "FileName LastSaved"},
        {"jtblProjectScenario", "ProjectID ScenarioID"},
        {"tblUser", "UserID User Name Department Address City PostalCode Province Country EMail Phone Fax "
                    "ReportHeader1 ReportHeader2 PathDatabase PathExport PathProject PathScenario PathReport"},
        {"tblComments", "UserID Comment"},
        {"tblLogChanges", "Table_Name Table_Unique_Field"},
        {"tblSpecies", "SpeciesID Common Latin TaxonID DataSourceID Distribution Habitat GenDiet Related KingdomID "
                       "SubkingdomID PhylumID ClassID OrderID FamilyID"},
        {"jtblSpeciesReference", "SpeciesID ReferenceID IsDistribution IsHabitat IsDiet IsRelated"},
        {"tblWeight", "WeightID SpeciesID Mean Min Max Sample VarValue VarianceTypeID StatusID GenderID LifeStageID "
                      "HabitatTypeID BegMonthID EndMonthID Location Region Latitude Longitude Notes ReferenceID "
                      "DataSourceID"},
        {"tblDiet", "DietID fldDiet_ID SpeciesID DataTypeID DietTypeID MeasureTermID MaterialAnalyzedID AnalysisNotes "
                    "CollectionNotes GenderID LifestageID HabitatTypeID BegMonthID EndMonthID Location Region Latitude "
                    "Longitude StateProvinceID ReferenceID DataSourceID Notes fldDIET_LOCATION fldDIET_COMMENTS "
                    "fldDIET_Context AnalysisID"},
        {"tblDietItem", "DietItemID DietID Name Comments WetValue DryValue Wet_Proportion Dry_Proportion Sample "
                        "GrossEnergyID AEID WaterConversionID WaterPercent WaterPercentDS TrophicLevelID TrophicLevel "
                        "TrophiclevelDS KingdomID SubkingdomID PhylumID ClassID OrderID FamilyID Genus Species "
                        "ComponentID LifestageID N_Unit Bio_Availability DataSourceID"},
        {"tblGrossEnergy", "GrossEnergyID Item WET_WT_KCALG Min_W Max_W Variance_ww DRY_WT_KCALG Min_D Max_D "
                           "Variance_dw VarianceTypeID FoodGroupID ComponentID LifestageID WaterConversionID "
                           "WaterPercent WaterPercentDS Comments KingdomID ReferenceID DataSourceID"},
        {"tblAE", "AEID ConsumerName ConsumerGenus ConsumerSpecies FoodName FoodGenus FoodSpecies TaxonID FoodGroupID "
                  "Mean Min Max Sample VarValue VarianceTypeID ComponentID LifestageID Comments FamilyID ReferenceID "
                  "DataSourceID"},
        {"tblWaterConversion", "WaterConversionID Item Genus Species Mean Min Max Sample VarValue VarianceTypeID FoodGroupID "
                               "HabitatTypeID ComponentID LifestageID Comments OrderID ReferenceID DataSourceID"},
        {"tblTrophicLevel", "TrophicLevelID Item Genus Species TrophicLevel Min Max Sample VarValue VarianceTypeID "
                            "HabitatTypeID Notes ClassID ReferenceID DataSourceID"},
        {"tblIntakeModel", "IntakeModelID IntakeTypeID TaxonID CategoryID ModelDescriptionID a b MMF UCF WtUnitsID "
                           "EqnUnitsID FinalUnitsID Sample r2 Mean_log_X c d e ReferenceID DataSourceID"},
        {"tblIntakeMeasured", "IntakeMeasuredID SpeciesID IntakeTypeID StatusID GenderID VarianceTypeID UnitsID Mean "
                              "Min Max Sample VarValue Note ReferenceID DataSourceID"},
        {"tblSoilIngestion", "SoilIngestionID TaxonID Species Sample IntakeMean UnitsID Ash_Scat_Mean Ash_Scat_Min "
                             "Ash_Scat_Max Ash_Scat_VarValue VarianceTypeID a_Digest b_Ash_Food c_Ash_Soil "
                             "StateProvinceID Comments ReferenceID DataSourceID"},
        {"tblReferences", "ReferenceID fldRef_Author fldRef_Year fldRef_Title fldRef_Source DataSourceID"},
        {"qryReference", "ReferenceID Reference"},
        {"tblLIFEHISTORYTEXT", "SpeciesID LifeText_Type LIFEHIST_TEXT Ref1 Ref2 Ref3 Ref4 Ref5 Ref6 Ref7 Ref8 Ref9 "
                               "Ref10 Ref11 Ref12 Ref13 Ref14 Ref15 GenRef1 GenRef2 GenRef3 GenRef4 GenRef5 GenRef6 "
                               "GenRef7"},
        {"tblPOPDENS", "SpeciesID FactorID Popsize_id GenderID LifestageID VarianceTypeID ReferenceID fldMonthSeason "
                       "fldHabitat location units mean min max sd_se minmaxtype notes condition_id"},
        {"tblSEASON", "SpeciesID Activity_ID ReferenceID begmonth_code peakmonth_code endmonth_code location notes"},
        {"tblKingdom", "KingdomID Name Description"},
        {"tblSubkingdom", "SubKingdomID KingdomID Name Description"},
        {"tblPhylum", "PhylumID SubkingdomID Name Description"},
        {"tblClass", "ClassID PhylumID Name Description"},
        {"tblOrder", "OrderID ClassID Name Description"},
        {"tblFamily", "FamilyID OrderID Name Description"},
        {"jKingdomLifestage", "KingdomID LifeStageID"},
        {"jtblKingdomComponent", "KingdomID ComponentID"},
        {"tblDataSource", "DataSourceID Description ForeColor IsLocked"},
        {"tblStatus", "StatusID Description"},
        {"tblGender", "GenderID Description"},
        {"tblMonth", "MonthID Description"},
        {"tblEstimator", "EstimatorID Description"},
        {"tblIntakeType", "IntakeTypeID Description IsModel"},
        {"tblCategory", "CategoryID Description"},
        {"tblModelDescription", "ModelDescriptionID Description IntakeTypeID"},
        {"tblTaxon", "TaxonID Description"},
        {"tblHabitatType", "HabitatTypeID Type Description List Habitat_type"},
        {"tblLifeStage", "LifeStageID Description"},
        {"tblComponent", "ComponentID Description"},
        {"tblFoodGroup", "FoodGroupID Description"},
        {"tblMeasureTerm", "MeasureTermID Term Description MEASURE_Description WeightIsWet"},
        {"tblMaterialAnalyzed", "MaterialAnalyzedID Means Description"},
        {"tblAnalysis", "AnalysisID Analysis_Means Analysis_Description"},
        {"tblDietType", "DietTypeID Description"},
        {"tblDataType", "DataTypeID Description"},
        {"tblStateProvince", "StateProvinceID Type Description"},
        {"tblVarianceType", "VarianceTypeID Description"},
        {"tblUnits", "UnitsID Description Factor"},
        {"tblFactor", "FactorID description"},
        {"tblPOPSIZEselect", "POPSIZE_ID POPSIZE_Type POPSIZE_class"},
        {"tblActivity", "ACTIVITY_ID Activity_type Acitivity_class"},
        {"tblDescriptor", "fldDescriptor fldUnits"},
        {"tblTableList", "TableListID Name ActualTableName Field1 Field2 Field3 Label1 Label2 Label3 L1IsVisible "
                         "L2IsVisible L3IsVisible F1IsVisible F2IsVisible F3IsVisible"},
    };
    return m;
}

}  // namespace

TEST(Schema, EveryNamedColumnExistsOnceWhateverItsCase)
{
    const Db db = memoryDbWithSchema();
    for (auto it = namedColumns().begin(); it != namedColumns().end(); ++it) {
        const auto columns = columnsOf(db.get(), it.key());
        ASSERT_FALSE(columns.isEmpty()) << "missing table " << it.key().toStdString();
        for (const QString &column : it.value().split(QLatin1Char(' '), Qt::SkipEmptyParts))
            EXPECT_TRUE(columns.contains(column.toLower())) << it.key().toStdString() << "." << column.toStdString();
    }
    // Names that differ only in case are one column, not two.
    EXPECT_EQ(scalar(db.get(), "SELECT count(*) FROM pragma_table_info('tblWildlifeDietItems') "
                               "WHERE name = 'Wet_Proportion' COLLATE NOCASE"), "1");
    // The schema's own catalogue lists what was created.
    for (const QString &table : schemaTables())
        EXPECT_EQ(columnsOf(db.get(), table).size(), schemaColumns().value(table).size()) << table.toStdString();
}

TEST(Schema, ReferenceViewBuildsTheCitationAndCopesWithMissingParts)
{
    const Db db = memoryDbWithSchema();
    exec(db.get(), "INSERT INTO tblReferences (ReferenceID, fldRef_Author, fldRef_Year, fldRef_Title, fldRef_Source) "
                   "VALUES (5, 'Smith, J', '1990', 'Owls', 'J. Birds 3:1-9')");
    exec(db.get(), "INSERT INTO tblReferences (ReferenceID, fldRef_Author, fldRef_Year) VALUES (6, 'Doe', '2001')");
    exec(db.get(), "INSERT INTO tblReferences (ReferenceID) VALUES (7)");
    EXPECT_EQ(scalar(db.get(), "SELECT Reference FROM qryReference WHERE ReferenceID = 5"),
              "Smith, J. 1990. Owls. J. Birds 3:1-9. ");
    EXPECT_EQ(scalar(db.get(), "SELECT Reference FROM qryReference WHERE ReferenceID = 6"), "Doe. 2001. . . ");
    EXPECT_EQ(scalar(db.get(), "SELECT Reference FROM qryReference WHERE ReferenceID = 7"), ". . . . ");
    // A record without a reference still shows through the outer join, with no text.
    exec(db.get(), "INSERT INTO tblAE (AEID, ReferenceID) VALUES (1, NULL)");
    EXPECT_EQ(scalar(db.get(), "SELECT count(*) FROM qryReference RIGHT JOIN tblAE "
                               "ON qryReference.ReferenceID = tblAE.ReferenceID WHERE Reference IS NULL"), "1");
}

TEST(Schema, TextIgnoresCaseAndNumbersConvertFromText)
{
    const Db db = memoryDbWithSchema();
    exec(db.get(), "INSERT INTO tblLifeStage (LifeStageID, Description) VALUES (7, 'adult')");
    EXPECT_EQ(scalar(db.get(), "SELECT LifeStageID FROM tblLifeStage WHERE Description = 'ADULT'"), "7");
    EXPECT_EQ(scalar(db.get(), "SELECT count(*) FROM tblLifeStage WHERE Description <> 'Adult'"), "0");

    exec(db.get(), "INSERT INTO tblDietItem (DietID, Wet_Proportion, Sample, AEID) VALUES ('12', '0.250', '3', '4')");
    EXPECT_EQ(scalar(db.get(), "SELECT typeof(Wet_Proportion) || ' ' || Wet_Proportion FROM tblDietItem"), "real 0.25");
    EXPECT_EQ(scalar(db.get(), "SELECT typeof(DietID) || ' ' || typeof(AEID) FROM tblDietItem"), "integer integer");
    EXPECT_EQ(scalar(db.get(), "SELECT count(*) FROM tblDietItem WHERE Wet_Proportion = 0.25 AND DietID = 12"), "1");
}

// Every id and number column takes a number or numeric text and refuses anything else, whichever
// way the value comes: typed into a statement, bound, or computed.
TEST(Schema, NumberColumnsRefuseWhatIsNotANumber)
{
    const Db db = memoryDbWithSchema();
    const char *refused[] = {"'1,5'", "'say \"hi\"'", "'\xF0\x9F\x98\x80'", "'1e309'", "1e309", "-1e309", "''",
                             "x'3132'", "'12 kg'", "'0x1A'"};
    for (const char *value : refused) {
        for (const char *column : {"FamilyID", "Description"}) {
            const std::string sql = std::string("INSERT INTO tblGenus (Name, ") + column + ") VALUES ('g', " + value + ")";
            const int rc = sqlite3_exec(db.get(), sql.c_str(), nullptr, nullptr, nullptr);
            // Description is text and takes anything; FamilyID refuses by its check.
            if (column[0] == 'F')
                EXPECT_EQ(sqlite3_extended_errcode(db.get()), SQLITE_CONSTRAINT_CHECK) << sql;
            else
                EXPECT_EQ(rc, SQLITE_OK) << sql;
        }
    }
    exec(db.get(), "DELETE FROM tblGenus");
    // Ten thousand digits read as a number beyond any double: an infinity, refused like 1e309.
    const std::string long10k = "INSERT INTO tblWeight (Mean) VALUES ('" + std::string(10000, '9') + "')";
    EXPECT_NE(sqlite3_exec(db.get(), long10k.c_str(), nullptr, nullptr, nullptr), SQLITE_OK);
    exec(db.get(), "INSERT INTO tblWeight (Mean) VALUES (1)");
    EXPECT_NE(sqlite3_exec(db.get(), "INSERT INTO tblDataSource (IsLocked) VALUES ('yes')", nullptr, nullptr, nullptr),
              SQLITE_OK);
    EXPECT_NE(sqlite3_exec(db.get(), "UPDATE tblWeight SET Mean = Mean || 'x'", nullptr, nullptr, nullptr), SQLITE_OK);

    exec(db.get(), "INSERT INTO tblGenus (FamilyID) VALUES (' 12 '), ('-3.5'), (7), (NULL), ('1e3'), (2.5)");
    EXPECT_EQ(scalar(db.get(), "SELECT group_concat(typeof(FamilyID) || ':' || coalesce(FamilyID, ''), ' ') FROM tblGenus"),
              "integer:12 real:-3.5 integer:7 null: integer:1000 real:2.5");
}

TEST(Schema, DefaultsOfNewRows)
{
    const Db db = memoryDbWithSchema();
    // An intake row starts as the reset state: user-entered, mean, factors 1, nothing chosen.
    exec(db.get(), "INSERT INTO tblIntakeZOB (ScenarioID, IntakeTypeID) VALUES (1, 3)");
    EXPECT_EQ(scalar(db.get(), "SELECT DataSourceID || ' ' || EstimatorID || ' ' || Units_CF || ' ' || Measured_CF || ' ' "
                               "|| IntakeModelID || ' ' || CategoryID || ' ' || Derivation FROM tblIntakeZOB"),
              "6 1 1.0 1.0 0 0 Estimated");
    // No reference row is ever created vetted.
    for (const char *table : {"tblSpecies", "tblWeight", "tblDiet", "tblDietItem", "tblAE", "tblGrossEnergy",
                              "tblWaterConversion", "tblTrophicLevel", "tblIntakeModel", "tblIntakeMeasured",
                              "tblSoilIngestion", "tblReferences"}) {
        exec(db.get(), QStringLiteral("INSERT INTO [%1] DEFAULT VALUES").arg(table).toUtf8().constData());
        const QString ds = scalar(db.get(), QStringLiteral("SELECT DataSourceID FROM [%1]").arg(table));
        EXPECT_TRUE(ds == "<null>" || ds == "6") << table << " " << ds.toStdString();
    }
    // The species workbook leaves only classes 2 and 6 editable, so its new rows are "User entered".
    EXPECT_EQ(scalar(db.get(), "SELECT DataSourceID FROM tblSpecies"), "6");
    EXPECT_EQ(scalar(db.get(), "SELECT DataSourceID FROM tblWeight"), "6");
    // A wildlife row without a diet has empty texts, not null.
    exec(db.get(), "INSERT INTO tblWildlife (ScenarioID) VALUES (1)");
    EXPECT_EQ(scalar(db.get(), "SELECT DietID || '|' || DietSeason || '|' || DietSex || '|' || DietHabitat FROM tblWildlife"),
              "0|||");
}

TEST(Schema, CreatingTwiceFailsAndLeavesTheDatabaseAsItWas)
{
    const Db db = memoryDbWithSchema();
    exec(db.get(), "INSERT INTO tblGender (GenderID, Description) VALUES (4, 'Male')");
    EXPECT_THROW(createSchema(db.get()), VbError);
    EXPECT_EQ(scalar(db.get(), "SELECT Description FROM tblGender WHERE GenderID = 4"), "Male");
    EXPECT_EQ(scalar(db.get(), "SELECT count(*) FROM sqlite_master WHERE type = 'table' AND name NOT LIKE 'sqlite%'"),
              QString::number(schemaTables().size()));
}

TEST(Schema, UpgradeAddsTheColumnsAnEarlierDatabaseLacksAndKeepsItsRows)
{
    const Db db = memoryDbWithSchema();
    // A database of an earlier version: tblAE without Sample, tblSpecies without its default data source.
    exec(db.get(), "ALTER TABLE tblAE DROP COLUMN Sample");
    exec(db.get(), "ALTER TABLE tblSpecies DROP COLUMN DataSourceID");
    exec(db.get(), "INSERT INTO tblAE (AEID, ConsumerName, Mean) VALUES (7, 'Mink', 80)");
    exec(db.get(), "INSERT INTO tblSpecies (SpeciesID, Common) VALUES (3, 'Otter')");
    upgradeSchema(db.get());
    EXPECT_EQ(scalar(db.get(), "SELECT ConsumerName || ' ' || Mean FROM tblAE WHERE AEID = 7"), "Mink 80.0");
    EXPECT_EQ(scalar(db.get(), "SELECT Sample FROM tblAE WHERE AEID = 7"), "<null>");
    EXPECT_EQ(scalar(db.get(), "SELECT DataSourceID FROM tblSpecies WHERE SpeciesID = 3"), "6");
    // The added column checks its values like one made with the table, and a second run changes nothing.
    EXPECT_NE(sqlite3_exec(db.get(), "UPDATE tblAE SET Sample = 'ten' WHERE AEID = 7", nullptr, nullptr, nullptr), SQLITE_OK);
    upgradeSchema(db.get());
    exec(db.get(), "UPDATE tblAE SET Sample = 10 WHERE AEID = 7");
    EXPECT_EQ(scalar(db.get(), "SELECT Sample FROM tblAE WHERE AEID = 7"), "10.0");
}
