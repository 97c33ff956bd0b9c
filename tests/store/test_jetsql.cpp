// SPDX-License-Identifier: MIT
// The Jet-to-SQLite translator, checked by running its output against a real in-memory database.
#include "JetSql.h"
#include "TestSupport.h"
#include "VbError.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <random>
#include <string>
#include <vector>

namespace {

using Rows = std::vector<std::string>;

// The tables the program's statements below run on, typed as the store types them.
constexpr const char *kSchema = R"sql(
CREATE TABLE tblReferences(ReferenceID INTEGER PRIMARY KEY, fldRef_Author TEXT COLLATE NOCASE,
  fldRef_Year TEXT COLLATE NOCASE, fldRef_Title TEXT COLLATE NOCASE, fldRef_Source TEXT COLLATE NOCASE,
  DataSourceID INTEGER);
CREATE TABLE tblUser(UserID INTEGER PRIMARY KEY, User TEXT COLLATE NOCASE, Name TEXT COLLATE NOCASE);
CREATE TABLE tblDataSource(DataSourceID INTEGER PRIMARY KEY, Description TEXT COLLATE NOCASE, IsLocked INTEGER);
CREATE TABLE tblScenario(ScenarioID INTEGER PRIMARY KEY, Scenario_FilePath TEXT COLLATE NOCASE,
  Scenario_FileName TEXT COLLATE NOCASE, Scenario_LastSaved DATETIME);
CREATE TABLE tblWildlifeDietItems(DietItemID INTEGER PRIMARY KEY, ScenarioID INTEGER, DietID INTEGER,
  Name TEXT COLLATE NOCASE, Comments TEXT COLLATE NOCASE, Wet_Proportion REAL, Dry_Proportion REAL,
  TROPHICLEVEL REAL, GrossEnergyID INTEGER, AEID INTEGER, WaterConversionID INTEGER,
  ComponentID INTEGER, LifeStageID INTEGER);
CREATE TABLE tblGrossEnergy(GrossEnergyID INTEGER PRIMARY KEY, Item TEXT COLLATE NOCASE,
  WET_WT_KCALG REAL, DRY_WT_KCALG REAL, FoodGroupID INTEGER, ReferenceID INTEGER);
CREATE TABLE tblAE(AEID INTEGER PRIMARY KEY, ConsumerName TEXT COLLATE NOCASE, FoodName TEXT COLLATE NOCASE,
  Mean REAL, Min REAL, Max REAL, FoodGroupID INTEGER, ReferenceID INTEGER, ComponentID INTEGER,
  LifestageID INTEGER);
CREATE TABLE tblFoodGroup(FoodGroupID INTEGER PRIMARY KEY, Description TEXT COLLATE NOCASE);
CREATE TABLE tblWaterConversion(WaterConversionID INTEGER PRIMARY KEY, Mean REAL);
CREATE TABLE tblComponent(ComponentID INTEGER PRIMARY KEY, Description TEXT COLLATE NOCASE);
CREATE TABLE tblLifeStage(LifeStageID INTEGER PRIMARY KEY, Description TEXT COLLATE NOCASE);
CREATE TABLE tblHabitatType(HabitatTypeID INTEGER PRIMARY KEY, List TEXT COLLATE NOCASE);
CREATE TABLE tblTaxon(TaxonID INTEGER PRIMARY KEY, Description TEXT COLLATE NOCASE);
CREATE TABLE tblSpecies(SpeciesID INTEGER PRIMARY KEY, TaxonID INTEGER, Common TEXT COLLATE NOCASE,
  Latin TEXT COLLATE NOCASE, Habitat TEXT COLLATE NOCASE, DataSourceID INTEGER);
CREATE TABLE tblDiet(DietID INTEGER PRIMARY KEY, SpeciesID INTEGER);
CREATE TABLE tblDietItem(DietItemID INTEGER PRIMARY KEY, DietID INTEGER, Name TEXT COLLATE NOCASE,
  TrophicLevelID INTEGER);
CREATE TABLE tblTrophicLevel(TrophicLevelID INTEGER PRIMARY KEY, TrophicLevel REAL);
CREATE TABLE tblTableList(TableListID INTEGER PRIMARY KEY, Name TEXT COLLATE NOCASE, L1IsVisible INTEGER);
CREATE TABLE jtblSpeciesReference(SpeciesID INTEGER, ReferenceID INTEGER, IsDistribution INTEGER,
  IsHabitat INTEGER);
CREATE TABLE tblProbe(Name TEXT COLLATE NOCASE);

INSERT INTO tblReferences VALUES (1, 'Nagy, K.A.', '1987', 'Field metabolic rate', 'Ecol. Monogr.', 4),
  (2, 'Adams, B.', '1998', NULL, 'J. Wildl.', 7), (3, NULL, NULL, NULL, NULL, 6);
INSERT INTO tblUser VALUES (1, 'ann', 'Ann Smith'), (2, 'bob', NULL), (3, 'o''brien', 'Pat O''Brien');
INSERT INTO tblDataSource VALUES (2, 'Typed', 0), (4, 'Vetted', 1), (6, 'User entered', 0), (7, 'Vetted B', 1);
INSERT INTO tblScenario VALUES (7, 'C:\zob\ann\Scenario', 'robin.ZOB', '2020-01-15 09:30:00'),
  (8, 'C:\zob\bob\Scenario', NULL, '2021-06-01 00:00:00');
INSERT INTO tblFoodGroup VALUES (1, 'Insects'), (2, 'Plants');
INSERT INTO tblComponent VALUES (1, 'Whole body');
INSERT INTO tblLifeStage VALUES (7, 'Adult');
INSERT INTO tblWaterConversion VALUES (1, 70.5);
INSERT INTO tblGrossEnergy VALUES (1, 'Beetles', 1.5, 5.25, 1, 1), (2, 'Seeds', 4.0, 4.5, 2, NULL);
INSERT INTO tblAE VALUES (1, 'robin', 'beetles', 85.0, 80.0, 90.0, 2, 2, 1, 7), (2, 'finch', 'seeds', 70.25, NULL, NULL, 2, NULL, NULL, NULL);
INSERT INTO tblWildlifeDietItems VALUES
  (1, 7, 12, 'Beetles', NULL, 0.6, 0.5, 2.0, 1, 1, 1, 1, 7),
  (2, 7, 12, 'Gravel', 'no data', 0.4, 0.5, 3.5, 0, 0, 0, 0, 0),
  (3, 8, 13, 'Seeds', NULL, 1.0, 1.0, 1.0, 2, 2, 0, 0, 0);
INSERT INTO tblHabitatType VALUES (1, 'Forest'), (2, NULL), (3, 'Coast');
INSERT INTO tblTaxon VALUES (1, 'Birds'), (2, 'Mammals');
INSERT INTO tblSpecies VALUES (1, 1, 'American robin', 'Turdus migratorius', 'woodland edges', 4),
  (2, 1, 'Amazon parrot', 'Amazona sp.', 'rain forest', 7), (3, 1, 'Mallard', 'Anas platyrhynchos', 'ponds', 4),
  (4, 2, 'bat', 'Myotis', 'caves', 6), (5, 2, 'cat', 'Felis catus', 'houses', 6),
  (6, 2, 'c4t', 'Felis 4', NULL, 6), (7, 1, '50% grebe', 'Podiceps_x', NULL, 6),
  (8, 1, '50x grebe', 'Podicepsyx', NULL, 6), (9, 2, 'star*fish', 'Asterias', NULL, 6),
  (10, 2, 'Ann''s vole', 'Microtus', 'meadows', 6);
INSERT INTO tblTrophicLevel VALUES (1, 2.0), (2, 3.0), (3, 4.0);
INSERT INTO tblDiet VALUES (1, 1), (2, 3), (3, 4);
INSERT INTO tblDietItem VALUES (1, 1, 'beetles', 1), (2, 1, 'worms', 2), (3, 2, 'pondweed', 1),
  (4, 3, 'moths', 3);
INSERT INTO tblTableList VALUES (1, 'Species', 1), (2, 'Gender', 0), (3, 'Genus', 1);
INSERT INTO jtblSpeciesReference VALUES (1, 1, 1, 0), (1, 2, 0, 1), (1, 3, 1, 1);
)sql";

// The citation of every reference, in the program's own words.
const QString kReferenceQuery = QStringLiteral(
    "SELECT tblReferences.ReferenceID, [tblReferences]![fldRef_Author] & '. ' & [tblReferences]![fldRef_Year] & "
    "'. ' & [tblReferences]![fldRef_Title] & '. ' & [tblReferences]![fldRef_Source] & '. ' AS Reference "
    "FROM tblReferences");

class JetSqlDb : public ::testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_EQ(sqlite3_open(":memory:", &m_db), SQLITE_OK);
        registerJetFunctions(m_db);
        native(kSchema);
        native(("CREATE VIEW qryReference AS " + translateJetSql(kReferenceQuery)).toUtf8().constData());
    }
    void TearDown() override { sqlite3_close(m_db); }

    void native(const char *sql)
    {
        char *err = nullptr;
        const int rc = sqlite3_exec(m_db, sql, nullptr, nullptr, &err);
        EXPECT_EQ(rc, SQLITE_OK) << (err ? err : "") << "\n in: " << sql;
        sqlite3_free(err);
    }

    // Runs SQLite text; each row as its columns joined by '|', NULL for null.
    Rows nativeRows(const QString &sql)
    {
        const QByteArray utf8 = sql.toUtf8();
        sqlite3_stmt *st = nullptr;
        if (sqlite3_prepare_v2(m_db, utf8.constData(), -1, &st, nullptr) != SQLITE_OK) {
            ADD_FAILURE() << sqlite3_errmsg(m_db) << "\n in: " << utf8.constData();
            sqlite3_finalize(st);
            return {};
        }
        Rows rows;
        int rc;
        while ((rc = sqlite3_step(st)) == SQLITE_ROW) {
            std::string row;
            for (int c = 0; c < sqlite3_column_count(st); ++c) {
                if (c)
                    row += '|';
                const auto *text = sqlite3_column_text(st, c);
                row += text ? reinterpret_cast<const char *>(text) : "NULL";
            }
            rows.push_back(row);
        }
        EXPECT_EQ(rc, SQLITE_DONE) << sqlite3_errmsg(m_db) << "\n in: " << utf8.constData();
        sqlite3_finalize(st);
        return rows;
    }

    Rows rows(const QString &jet) { return nativeRows(translateJetSql(jet)); }

    // The rows of a table that a FindFirst criteria selects, by their first column.
    Rows matching(const char *table, const char *column, const QString &criteria)
    {
        return nativeRows(QStringLiteral("SELECT %1 FROM %2 WHERE %3 ORDER BY 1")
                              .arg(QLatin1String(column), QLatin1String(table), translateJetCriteria(criteria)));
    }

    sqlite3 *m_db = nullptr;
};

int errorNumberOf(const QString &jet) { return errorNumber([&] { translateJetSql(jet); }); }

// ---------------------------------------------------------------------------------------------
// Text of the translation, where the exact form matters to the rest of the store.
// ---------------------------------------------------------------------------------------------

TEST(JetSqlText, RewritesTheDialectForms)
{
    const struct {
        const char *jet;
        const char *sqlite;
    } cases[] = {
        {"SELECT [tblReferences]![fldRef_Author] FROM tblReferences", R"(SELECT "tblReferences"."fldRef_Author" FROM tblReferences)"},
        {"SELECT tblA!col, [my col], `x\"y` FROM tblA", R"(SELECT tblA.col, "my col", "x""y" FROM tblA)"},
        {"DELETE tblWildlifeDiet.* FROM tblWildlifeDiet WHERE tblWildlifeDiet.ScenarioID=7",
         "DELETE FROM tblWildlifeDiet WHERE tblWildlifeDiet.ScenarioID=7"},
        {"Delete * from jtblProjectScenario where projectID = 3", "Delete from jtblProjectScenario where projectID = 3"},
        {"DELETE [t].* FROM t", "DELETE FROM t"},
        {"UPDATE tblIntakeZOB SET tblIntakeZOB.IntakeModelID = 0, tblIntakeZOB.Units = 'm3/day' WHERE tblIntakeZOB.ScenarioID = 7",
         "UPDATE tblIntakeZOB SET IntakeModelID = 0, Units = 'm3/day' WHERE tblIntakeZOB.ScenarioID = 7"},
        {"UPDATE t SET [t].[a] = Left(b, 2), t!c = 1", "UPDATE t SET \"a\" = SUBSTR(b,1,2), c = 1"},
        {"Select * from t Where a = True Or b = Yes And c = False Or d = No And e = -1",
         "Select * from t Where a = 1 Or b = 1 And c = 0 Or d = 0 And e = -1"},
        {"SELECT 1 AS Yes, t.True, [False], 'True' FROM t", "SELECT 1 AS Yes, t.True, \"False\", 'True' FROM t"},
        {"SELECT DISTINCTROW TOP 5 Name FROM t ORDER BY Name;", "SELECT Name FROM t ORDER BY Name LIMIT 5;"},
        {"SELECT a FROM t WHERE a IN (SELECT TOP 1 b FROM u ORDER BY b) AND c = 1",
         "SELECT a FROM t WHERE a IN (SELECT b FROM u ORDER BY b LIMIT 1) AND c = 1"},
        {"x = \"it's \"\"so\"\"\"", "x = 'it''s \"so\"'"},
        {"d > #1/15/2020# AND d < #2020-02-01 1:30 PM# AND d <> #15-Mar-99 12:05:09 AM#",
         "d > '2020-01-15 00:00:00' AND d < '2020-02-01 13:30:00' AND d <> '1999-03-15 00:05:09'"},
        {"a Mod 3 = 1 AND b--2 > 0", "a % 3 = 1 AND b- -2 > 0"},
        {"Name Like 'Am*'", "Name Like 'Am%'"},
        {"Name NOT LIKE '?a#[*][?]'", "Name NOT LIKE '_a_*?'"},
        {"Name Like '50%_*'", "Name Like '50\\%\\_%' ESCAPE '\\'"},
        {"Name = '50%_*?' AND Path = 'C:\\x'", "Name = '50%_*?' AND Path = 'C:\\x'"},
        {"Nz(a) + Nz(b, 0) + Len(c) + Val(d)", "IFNULL(a,'') + IFNULL(b,0) + LENGTH(c) + CAST(d AS REAL)"},
        {"UCase(a) = LCase(Mid(b, 2, 3))", "UPPER(a) = LOWER(SUBSTR(b, 2, 3))"},
        {"Right(Name, 3) = 'bin'", "jet_right(Name,3) = 'bin'"},
        {"a = 'x' & b", "a = ('x' || jet_text(b)) COLLATE NOCASE"},
    };
    for (const auto &c : cases) {
        EXPECT_EQ(translateJetSql(QString::fromUtf8(c.jet)).toStdString(), c.sqlite) << c.jet;
    }
}

TEST(JetSqlText, UnreadableTextRaisesSyntaxError)
{
    const char *bad[] = {
        "Select * From tblUser Where User ='o'brien'",   // unescaped apostrophe, odd count
        "Select * From tblUser Where User ='o'brien's'", // even count: literal, name, literal
        "Select * From t Where a = \"open",
        "Select * From t Where a = 'x' 'y'",
        "Select [tblUser.Name From tblUser",
        "Select * From t Where d = #1/15/2020",
        "Select * From t Where d = #13/45/2020#",
        "Select * From t Where d = #noon#",
        "Select * From t Where (a = 1",
        "Select * From t Where a = 1)",
        "Select a & & b From t",
        "Select a & From t",
        // One statement per text: what typed text can append after a closed quote.
        "Insert Into tblComments (UserID, Comment) Values (1, 'x'); DELETE FROM tblProject WHERE ('1'='1')",
        "Select * From t; Select * From u",
        "Select * From t;;x",
    };
    for (const char *jet : bad)
        EXPECT_EQ(errorNumberOf(QString::fromUtf8(jet)), VbErr::SyntaxError) << jet;
    EXPECT_EQ(errorNumberOf(QStringLiteral("Select * From tblUser Where User ='o''brien'")), 0);
    // A closing `;`, or several, is no second statement; a `;` inside a literal is text.
    EXPECT_EQ(errorNumberOf(QStringLiteral("Select * From t Where a = 'x;y';; ")), 0);
    // SQLite stops reading at a NUL, so text after one would go unseen.
    EXPECT_EQ(errorNumberOf(QStringLiteral("Select * From t Where a = '") + QChar(0) + QStringLiteral("'")),
              VbErr::SyntaxError);
    // Criteria are one expression: no `;` at all.
    EXPECT_THROW(translateJetCriteria(QStringLiteral("a = 1;")), VbError);
    // Nesting is bounded, so the translation's recursion is too.
    EXPECT_EQ(errorNumberOf(QStringLiteral("Select ") + QString(300, QLatin1Char('(')) + QLatin1Char('1')
                            + QString(300, QLatin1Char(')'))),
              VbErr::SyntaxError);
}

// Every operand of `&` and every argument of Right is written once, so that nesting them does not
// multiply the text: the translation of n nested levels grows linearly with n.
TEST(JetSqlText, OutputGrowsLinearlyWithNesting)
{
    auto nested = [](int depth) {
        QString concat = QStringLiteral("a"), right = QStringLiteral("b");
        for (int i = 0; i < depth; ++i) {
            concat = QStringLiteral("(") + concat + QStringLiteral(" & a)");
            right = QStringLiteral("Right(") + right + QStringLiteral(" & 'x', 2)");
        }
        return QStringLiteral("SELECT ") + concat + QStringLiteral(", ") + right + QStringLiteral(" FROM t");
    };
    for (int depth : {10, 40, 150}) {
        const QString jet = nested(depth);
        EXPECT_LT(translateJetSql(jet).size(), 8 * jet.size()) << depth;
    }
}

// ---------------------------------------------------------------------------------------------
// Results of translated statements on a real database.
// ---------------------------------------------------------------------------------------------

TEST_F(JetSqlDb, ConcatenationReadsNullAsEmptyText)
{
    EXPECT_EQ(rows("SELECT Reference FROM qryReference ORDER BY ReferenceID"),
              (Rows{"Nagy, K.A.. 1987. Field metabolic rate. Ecol. Monogr.. ", "Adams, B.. 1998. . J. Wildl.. ",
                    ". . . . "}));
    EXPECT_EQ(rows("SELECT [Scenario_FilePath] & '\\' & [Scenario_FileName] AS File FROM tblScenario ORDER BY ScenarioID"),
              (Rows{"C:\\zob\\ann\\Scenario\\robin.ZOB", "C:\\zob\\bob\\Scenario\\"}));
}

TEST_F(JetSqlDb, ConcatenationBindsBelowArithmeticAndAboveComparison)
{
    // Numbers print as the legacy engine prints them: 4 and not 4.0, 1.5 as it is.
    EXPECT_EQ(rows("SELECT 'Item: ' & tblGrossEnergy.Item & ' Wet: ' & tblGrossEnergy.WET_WT_KCALG & ' Dry:  ' & "
                   "tblGrossEnergy.DRY_WT_KCALG AS Display FROM tblGrossEnergy ORDER BY GrossEnergyID"),
              (Rows{"Item: Beetles Wet: 1.5 Dry:  5.25", "Item: Seeds Wet: 4 Dry:  4.5"}));
    EXPECT_EQ(rows("SELECT tblAE.ConsumerName & ' eating ' & tblAE.FoodName & ' - ' & tblAE.Mean AS Display "
                   "From tblAE WHERE tblAE.AEID = 1"),
              Rows{"robin eating beetles - 85"});
    EXPECT_EQ(rows("SELECT 'n' & 1 + 2 * 3, 2 * 3 & 1 - 1, 'a' & Null & 'b'"), Rows{"n7|60|ab"});
    EXPECT_EQ(rows("SELECT User FROM tblUser WHERE User & '/' & Name = 'ann/ann smith' OR Name & 'x' = 'x' ORDER BY User"),
              (Rows{"ann", "bob"}));
}

TEST_F(JetSqlDb, LikePatternsUseJetWildcards)
{
    const struct {
        const char *criteria;
        Rows species;
    } cases[] = {
        {"Common Like 'Am*'", {"1", "2"}},
        {"Common like 'am*'", {"1", "2"}},                // ignores case, as the legacy engine did
        {"Common Like '?at'", {"4", "5"}},
        {"Common Like 'c#t'", {"5", "6"}},                // '#' is taken as any one character
        {"Common Like '50%*'", {"7"}},                    // '%' is an ordinary character
        {"Latin Like '*_x'", {"7"}},                      // and so is '_'
        {"Common Like '*[*]*'", {"9"}},
        {"Common Like '*''s*'", {"10"}},
        {"Common Not Like '*a*' And Common Not Like '*4*'", {"7", "8"}},
        {"(Common Like '*rob*' OR Latin Like '*rob*') AND Habitat like '*wood*'", {"1"}},
        {"Common Like '*'", {"1", "10", "2", "3", "4", "5", "6", "7", "8", "9"}},
    };
    for (const auto &c : cases) {
        const QString crit = QString::fromUtf8(c.criteria);
        EXPECT_EQ(matching("tblSpecies", "CAST(SpeciesID AS TEXT)", crit), c.species) << c.criteria;
    }
}

TEST_F(JetSqlDb, FindCriteriaOfThePrograms)
{
    EXPECT_EQ(matching("tblDataSource", "Description", "DataSourceID = 4"), Rows{"Vetted"});
    EXPECT_EQ(matching("tblUser", "Name", "User = 'ANN'"), Rows{"Ann Smith"});
    EXPECT_EQ(matching("tblUser", "Name", "User = \"o'brien\""), Rows{"Pat O'Brien"});
    EXPECT_EQ(matching("tblDataSource", "DataSourceID", "IsLocked = True"), (Rows{"4", "7"}));
    EXPECT_EQ(matching("tblScenario", "ScenarioID", "Scenario_LastSaved < #6/1/2021#"), Rows{"7"});
    EXPECT_EQ(matching("tblScenario", "ScenarioID", "Scenario_LastSaved >= #2021-06-01#"), Rows{"8"});
}

TEST_F(JetSqlDb, AggregateOverBracketedNames)
{
    EXPECT_EQ(rows("SELECT Avg([tblWildlifeDietItems].[TROPHICLEVEL]) AS ReturnValue FROM tblWildlifeDietItems "
                   "WHERE (((tblWildlifeDietItems.ScenarioID)=7))"),
              Rows{"2.75"});
    EXPECT_EQ(rows("SELECT Sum([tblAE]![Mean]*0.01*[tblGrossEnergy]!WET_WT_KCALG * Wet_Proportion) AS ME "
                   "FROM tblGrossEnergy INNER JOIN (tblWildlifeDietItems INNER JOIN tblAE ON "
                   "tblWildlifeDietItems.AEID = tblAE.AEID) ON tblGrossEnergy.GrossEnergyID = "
                   "tblWildlifeDietItems.GrossEnergyID GROUP BY tblWildlifeDietItems.ScenarioID HAVING "
                   "tblWildlifeDietItems.ScenarioID = 7"),
              Rows{"0.765"});
}

TEST_F(JetSqlDb, NotParenthesisedIsNull)
{
    EXPECT_EQ(rows("SELECT tblHabitatType.HabitatTypeID, tblHabitatType.List From tblHabitatType Where "
                   "((Not (tblHabitatType.List) Is Null)) ORDER BY tblHabitatType.List"),
              (Rows{"3|Coast", "1|Forest"}));
}

TEST_F(JetSqlDb, BetweenWithQuotedNumericBounds)
{
    // The species search compares an average with the typed bounds, which arrive quoted.
    const QString search = QStringLiteral(
        "SELECT tblSpecies.SpeciesID FROM tblSpecies INNER JOIN tblTaxon ON tblSpecies.TaxonID = tblTaxon.TaxonID "
        "WHERE tblSpecies.SpeciesID In (SELECT tblDiet.SpeciesID FROM (tblDiet INNER JOIN tblDietItem ON "
        "tblDiet.DietID = tblDietItem.DietID) INNER JOIN tblTrophicLevel ON tblDietItem.TrophicLevelID = "
        "tblTrophicLevel.TrophicLevelID GROUP BY tblDiet.SpeciesID HAVING Avg(tblTrophicLevel.TrophicLevel) "
        "Between '%1' And '%2') ORDER BY tblTaxon.Description, tblSpecies.Common");
    EXPECT_EQ(rows(search.arg(QStringLiteral("2"), QStringLiteral("2.5"))), (Rows{"1", "3"}));
    EXPECT_EQ(rows(search.arg(QStringLiteral(" 3.5"), QStringLiteral("4 "))), Rows{"4"});
    EXPECT_EQ(rows(search.arg(QStringLiteral(".5"), QStringLiteral("1e1"))), (Rows{"1", "3", "4"}));
    EXPECT_EQ(rows("SELECT DietItemID FROM tblWildlifeDietItems WHERE TROPHICLEVEL Between '1.5' And '10' ORDER BY 1"),
              (Rows{"1", "2"}));
    // Bounds that are not numbers stay text.
    EXPECT_EQ(rows("SELECT SpeciesID FROM tblSpecies WHERE Common Between 'b' And 'c' ORDER BY 1"), Rows{"4"});
}

TEST_F(JetSqlDb, YesNoConstants)
{
    EXPECT_EQ(rows("Select TableListID, Name from tblTableList Where L1IsVisible = True Order By Name"),
              (Rows{"3|Genus", "1|Species"}));
    EXPECT_EQ(rows("Select Name from tblTableList Where L1IsVisible = No"), Rows{"Gender"});
    const QString byFlag = QStringLiteral(
        "SELECT jtblSpeciesReference.SpeciesID, qryReference.Reference FROM qryReference INNER JOIN "
        "jtblSpeciesReference ON qryReference.ReferenceID = jtblSpeciesReference.ReferenceID WHERE "
        "jtblSpeciesReference.SpeciesID = 1 AND jtblSpeciesReference.%1 = True Order By Reference");
    EXPECT_EQ(rows(byFlag.arg(QStringLiteral("IsDistribution"))),
              (Rows{"1|. . . . ", "1|Nagy, K.A.. 1987. Field metabolic rate. Ecol. Monogr.. "}));
    EXPECT_EQ(rows(byFlag.arg(QStringLiteral("IsHabitat"))),
              (Rows{"1|. . . . ", "1|Adams, B.. 1998. . J. Wildl.. "}));
}

TEST_F(JetSqlDb, RightJoinsKeepRecordsWithoutReference)
{
    // A picker's list: the record without a reference stays, ordered by the qualified alias.
    EXPECT_EQ(rows("SELECT tblAE.AEID, tblAE.ConsumerName, tblLifeStage.Description AS Lifestage, "
                   "tblComponent.Description AS Component, tblAE.Mean, qryReference.Reference FROM qryReference "
                   "RIGHT JOIN ((tblAE LEFT JOIN tblComponent ON tblAE.ComponentID = tblComponent.ComponentID) "
                   "LEFT JOIN tblLifeStage ON tblAE.LifestageID = tblLifeStage.LifeStageID) ON "
                   "qryReference.ReferenceID = tblAE.ReferenceID ORDER BY qryReference.Reference"),
              (Rows{"2|finch|NULL|NULL|70.25|NULL", "1|robin|Adult|Whole body|85.0|Adams, B.. 1998. . J. Wildl.. "}));
}

TEST(JetSqlText, RightJoinsBecomeLeftJoinsWhereTheOtherJoinsStayPut)
{
    // SQLite scans a join on the right of a RIGHT JOIN once per row of the other side.
    auto sql = [](const char *jet) { return translateJetSql(QString::fromUtf8(jet)).simplified().toStdString(); };
    EXPECT_EQ(sql("SELECT a.x, r.y FROM r RIGHT JOIN (a RIGHT JOIN [b] ON a.k = [b].[k]) ON r.id = a.rid WHERE a.x = 1"),
              "SELECT a.x, r.y FROM (\"b\" LEFT JOIN a ON a.k = \"b\".\"k\") LEFT JOIN r ON r.id = a.rid WHERE a.x = 1");
    EXPECT_EQ(sql("SELECT t.*, v.n * 2 FROM t AS u RIGHT JOIN v ON u.k = Left(v.k, 2) LEFT JOIN w ON w.k = v.k ORDER BY v.n"),
              "SELECT t.*, v.n * 2 FROM v LEFT JOIN t AS u ON u.k = SUBSTR(v.k,1,2) LEFT JOIN w ON w.k = v.k ORDER BY v.n");
    // A bare "*" lists the columns in the order of the tables; a RIGHT JOIN whose left side is itself a
    // join would have to move that join.
    for (const char *kept : {"SELECT * FROM r RIGHT JOIN a ON r.id = a.rid", "SELECT a.x, * FROM r RIGHT JOIN a ON r.id = a.rid",
                             "SELECT a.x FROM (a LEFT JOIN b ON a.k = b.k) RIGHT JOIN r ON r.id = a.rid",
                             "SELECT a.x FROM a LEFT JOIN b ON a.k = b.k RIGHT JOIN r ON r.id = a.rid"})
        EXPECT_NE(sql(kept).find("RIGHT JOIN"), std::string::npos) << kept;
}

TEST_F(JetSqlDb, DeeplyNestedJoinsOfTheDietItemList)
{
    const QString sql = QStringLiteral(
        "SELECT tblWildlifeDietItems.DietID, tblWildlifeDietItems.DietItemID, tblWildlifeDietItems.Name, "
        "tblWildlifeDietItems.Comments, tblWildlifeDietItems.Wet_Proportion, tblWildlifeDietItems.Dry_Proportion, "
        "tblGrossEnergy.WET_WT_KCALG, tblGrossEnergy.DRY_WT_KCALG, tblFoodGroup_1.Description AS GEFoodGroup, "
        "tblAE.Mean, tblAE.FoodName AS PredatorType, tblFoodGroup.Description AS AEFoodGroup, "
        "tblLifeStage.Description AS Lifestage, tblComponent.Description AS CompDesc, qryReference_1.Reference AS "
        "AEReference, qryReference.Reference AS GEReference, tblWaterConversion.Mean AS WaterPercent"
        " FROM tblLifeStage RIGHT JOIN (tblComponent RIGHT JOIN (qryReference RIGHT JOIN (qryReference AS "
        "qryReference_1 RIGHT JOIN (tblWaterConversion RIGHT JOIN (tblFoodGroup AS tblFoodGroup_1 RIGHT JOIN "
        "(((tblGrossEnergy RIGHT JOIN tblWildlifeDietItems ON tblGrossEnergy.GrossEnergyID = "
        "tblWildlifeDietItems.GrossEnergyID) LEFT JOIN tblAE ON tblWildlifeDietItems.AEID = tblAE.AEID) LEFT JOIN "
        "tblFoodGroup ON tblAE.FoodGroupID = tblFoodGroup.FoodGroupID) ON tblFoodGroup_1.FoodGroupID = "
        "tblGrossEnergy.FoodGroupID) ON tblWaterConversion.WaterConversionID = "
        "tblWildlifeDietItems.WaterConversionID) ON qryReference_1.ReferenceID = tblAE.ReferenceID) ON "
        "qryReference.ReferenceID = tblGrossEnergy.ReferenceID) ON tblComponent.ComponentID = "
        "tblWildlifeDietItems.ComponentID) ON tblLifeStage.LifeStageID = tblWildlifeDietItems.LifeStageID"
        " WHERE tblWildlifeDietItems.ScenarioID = 7 ORDER BY tblWildlifeDietItems.Name");
    EXPECT_EQ(rows(sql),
              (Rows{"12|1|Beetles|NULL|0.6|0.5|1.5|5.25|Insects|85.0|beetles|Plants|Adult|Whole body|"
                    "Adams, B.. 1998. . J. Wildl.. |Nagy, K.A.. 1987. Field metabolic rate. Ecol. Monogr.. |70.5",
                    "12|2|Gravel|no data|0.4|0.5|NULL|NULL|NULL|NULL|NULL|NULL|NULL|NULL|NULL|NULL|NULL"}));
}

TEST_F(JetSqlDb, JetFunctions)
{
    EXPECT_EQ(rows("SELECT IIf(Len(Common) > 5, UCase(Left(Common, 3)), LCase(Right(Common, 2))), "
                   "Mid(Latin, 2, 3), Nz(Habitat, 'none'), Nz(Habitat) & '|' FROM tblSpecies WHERE SpeciesID IN (1, 4, 6)"),
              (Rows{"AME|urd|woodland edges|woodland edges|", "at|yot|caves|caves|", "4t|eli|none||"}));
    EXPECT_EQ(rows("SELECT Val('12.5 kg') * 2, Val('x'), Right('ab', 5), Right('abc', 0) & '|', Right('héllo', 4), "
                   "Right(12345, 2), Right(Null, 2) Is Null, Right('abc', -1) & '|', 2.5 & '|' & 3.0 & 7"),
              Rows{"25.0|0.0|ab|||éllo|45|1|||2.5|37"});
    EXPECT_EQ(rows("SELECT Date() = Left(Now(), 10) & ' 00:00:00', Now() >= Date(), "
                   "Count(*) FROM tblScenario WHERE Scenario_LastSaved < Now()"),
              Rows{"1|1|2"});
}

TEST_F(JetSqlDb, TopAndDistinctrow)
{
    EXPECT_EQ(rows("SELECT DISTINCTROW TOP 2 Common FROM tblSpecies WHERE TaxonID = 1 ORDER BY Common;"),
              (Rows{"50% grebe", "50x grebe"}));
    EXPECT_EQ(rows("SELECT Common FROM tblSpecies WHERE SpeciesID IN (SELECT TOP 1 SpeciesID FROM tblDiet "
                   "ORDER BY DietID DESC)"),
              Rows{"bat"});
}

// ---------------------------------------------------------------------------------------------
// Random input
// ---------------------------------------------------------------------------------------------

// A literal that is not a LIKE pattern reaches SQLite with the same content, whatever it holds.
TEST_F(JetSqlDb, LiteralsSurviveUnchanged)
{
    const QString alphabet = QStringLiteral("ab Z09'\"*?!&[]#%_\\.,()-;é");
    std::mt19937 rng(7);
    std::uniform_int_distribution<qsizetype> ch(0, alphabet.size() - 1);
    std::uniform_int_distribution<int> length(0, 12), coin(0, 1);
    auto literal = [&](const QString &content) {
        const QChar quote = coin(rng) ? QLatin1Char('\'') : QLatin1Char('"');
        QString lit(quote);
        for (const QChar c : content) {
            if (c == quote)
                lit += c;
            lit += c;
        }
        return lit + quote;
    };
    auto randomText = [&] {
        QString s;
        for (int k = length(rng); k > 0; --k)
            s += alphabet[ch(rng)];
        return s;
    };
    sqlite3_stmt *insert = nullptr;
    ASSERT_EQ(sqlite3_prepare_v2(m_db, "INSERT INTO tblProbe VALUES (?1)", -1, &insert, nullptr), SQLITE_OK);
    for (int iter = 0; iter < 300; ++iter) {
        const QString a = randomText(), b = randomText();
        SCOPED_TRACE(a.toStdString() + " / " + b.toStdString());
        EXPECT_EQ(rows(QStringLiteral("SELECT ") + literal(a) + QStringLiteral(" AS v, 1")),
                  Rows{a.toStdString() + "|1"});
        EXPECT_EQ(rows(QStringLiteral("SELECT ") + literal(a) + QStringLiteral(" & ") + literal(b)),
                  Rows{(a + b).toStdString()});
        native("DELETE FROM tblProbe");
        const QByteArray utf8 = a.toUtf8();
        sqlite3_bind_text(insert, 1, utf8.constData(), -1, SQLITE_TRANSIENT);
        ASSERT_EQ(sqlite3_step(insert), SQLITE_DONE);
        sqlite3_reset(insert);
        EXPECT_EQ(matching("tblProbe", "count(*)", QStringLiteral("Name = ") + literal(a)), Rows{"1"});
    }
    sqlite3_finalize(insert);
}

}  // namespace
