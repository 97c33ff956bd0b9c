// SPDX-License-Identifier: MIT
// The schema: its catalogue, the citation view, defaults, and the
// column behaviour (text compares without case, numeric text becomes a number, other text is refused).
#include "SchemaDb.h"
#include "VbError.h"

#include <gtest/gtest.h>

TEST(Schema, CatalogueMatchesTheTablesAndNamesDifferingInCaseAreOneColumn)
{
    const Db db = memoryDbWithSchema();
    // Names that differ only in case are one column, not two.
    EXPECT_EQ(scalar(db.get(), "SELECT count(*) FROM pragma_table_info('tblWildlifeDietItems') "
                               "WHERE name = 'Wet_Proportion' COLLATE NOCASE"), "1");
    // The schema's own catalogue lists what was created.
    for (const QString &table : schemaTables())
        EXPECT_EQ(scalar(db.get(), QStringLiteral("SELECT count(*) FROM pragma_table_info('%1')").arg(table)),
                  QString::number(schemaColumns().value(table).size())) << table.toStdString();
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
    exec(db.get(), "DROP INDEX tblAE_Reference");
    exec(db.get(), "INSERT INTO tblAE (AEID, ConsumerName, Mean) VALUES (7, 'Mink', 80)");
    exec(db.get(), "INSERT INTO tblSpecies (SpeciesID, Common) VALUES (3, 'Otter')");
    upgradeSchema(db.get());
    EXPECT_EQ(scalar(db.get(), "SELECT ConsumerName || ' ' || Mean FROM tblAE WHERE AEID = 7"), "Mink 80.0");
    EXPECT_EQ(scalar(db.get(), "SELECT Sample FROM tblAE WHERE AEID = 7"), "<null>");
    EXPECT_EQ(scalar(db.get(), "SELECT DataSourceID FROM tblSpecies WHERE SpeciesID = 3"), "6");
    EXPECT_EQ(scalar(db.get(), "SELECT count(*) FROM sqlite_master WHERE name = 'tblAE_Reference'"), "1");
    // The added column checks its values like one made with the table, and a second run changes nothing.
    EXPECT_NE(sqlite3_exec(db.get(), "UPDATE tblAE SET Sample = 'ten' WHERE AEID = 7", nullptr, nullptr, nullptr), SQLITE_OK);
    upgradeSchema(db.get());
    exec(db.get(), "UPDATE tblAE SET Sample = 10 WHERE AEID = 7");
    EXPECT_EQ(scalar(db.get(), "SELECT Sample FROM tblAE WHERE AEID = 7"), "10.0");
}
