// SPDX-License-Identifier: MIT
// The built default database: the fixed ids the code relies on, the integrity of every reference
// between tables, and the diets and equations the calculations rest on.
// Reads the database with the SQLite C API, independently of the recordset layer.
#include "SchemaDb.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QSet>
#include <QStringList>
#include <QTemporaryDir>

#include <sqlite3.h>

#include <cmath>

namespace {

Db openReadOnly(const QString &path)
{
    sqlite3 *raw = nullptr;
    const int rc = sqlite3_open_v2(path.toUtf8().constData(), &raw, SQLITE_OPEN_READONLY, nullptr);
    Db db(raw);
    EXPECT_EQ(rc, SQLITE_OK) << path.toStdString();
    return db;
}

using Row = QStringList;

//! Every row of a query as texts ("<null>" for null).
QList<Row> rows(sqlite3 *db, const QString &sql)
{
    QList<Row> out;
    sqlite3_stmt *stmt = nullptr;
    if (sqlite3_prepare_v2(db, sql.toUtf8().constData(), -1, &stmt, nullptr) != SQLITE_OK) {
        ADD_FAILURE() << sql.toStdString() << ": " << sqlite3_errmsg(db);
        return out;
    }
    while (sqlite3_step(stmt) == SQLITE_ROW) {
        Row r;
        for (int c = 0; c < sqlite3_column_count(stmt); ++c)
            r.append(sqlite3_column_type(stmt, c) == SQLITE_NULL
                         ? QStringLiteral("<null>")
                         : QString::fromUtf8(reinterpret_cast<const char *>(sqlite3_column_text(stmt, c))));
        out.append(r);
    }
    sqlite3_finalize(stmt);
    return out;
}

double number(sqlite3 *db, const QString &sql)
{
    bool ok = false;
    const double v = scalar(db, sql).toDouble(&ok);
    EXPECT_TRUE(ok) << sql.toStdString();
    return v;
}

class SeedDb : public ::testing::Test {
protected:
    void SetUp() override { db = openReadOnly(QStringLiteral(ZOB_SEED_DB)); }
    sqlite3 *h() const { return db.get(); }
    Db db;
};

}  // namespace

TEST_F(SeedDb, FixedIdsExistWithTheirMeaning)
{
    // Ids the code tests by number: the user-entered and locked data sources, the intake types that
    // are models, the adult life stage, the weight units and the comments table.
    const QList<QPair<QString, QString>> expected = {
        {"SELECT Description || '|' || IsLocked FROM tblDataSource WHERE DataSourceID = 6", "User entered|0"},
        {"SELECT group_concat(DataSourceID) FROM tblDataSource WHERE IsLocked = 1", "4,7"},
        {"SELECT group_concat(IntakeTypeID || ':' || IsModel) FROM (SELECT * FROM tblIntakeType ORDER BY IntakeTypeID)",
         "1:1,2:1,3:1,4:0,5:0"},
        {"SELECT group_concat(LifeStageID) FROM tblLifeStage WHERE Description = 'adult'", "7"},
        {"SELECT group_concat(UnitsID || ':' || Factor) FROM tblUnits WHERE UnitsID IN (11, 13)", "11:1.0,13:0.001"},
        {"SELECT ActualTableName FROM tblTableList WHERE TableListID = 12", "tblComments"},
    };
    for (const auto &e : expected)
        EXPECT_EQ(scalar(h(), e.first), e.second) << e.first.toStdString();
}

TEST_F(SeedDb, TableListRowsPointAtRealTablesAndColumns)
{
    const auto list = rows(h(), "SELECT Name, ActualTableName, Field1, Field2, Field3, L3IsVisible FROM tblTableList "
                                "WHERE L1IsVisible = 1");
    QStringList names;
    for (const Row &r : list) {
        names.append(r[0]);
        QStringList fields = {r[2], r[3]};
        if (r[5] == "1")
            fields.append(r[4]);
        // The setup window builds "Select f1, f2[, f3] from table" from these slots.
        const QString sql = QStringLiteral("SELECT %1 FROM [%2] LIMIT 0").arg(fields.join(", "), r[1]);
        sqlite3_stmt *stmt = nullptr;
        EXPECT_EQ(sqlite3_prepare_v2(h(), sql.toUtf8().constData(), -1, &stmt, nullptr), SQLITE_OK)
            << r[0].toStdString() << ": " << sqlite3_errmsg(h());
        sqlite3_finalize(stmt);
    }
    for (const char *wanted : {"Gender", "Genus", "Species", "Location"})
        EXPECT_TRUE(names.contains(wanted)) << wanted;
}

//! Every id column of every table names a row of the table it points to (0 and null mean none);
//! gives the number of columns checked.
static int expectEveryIdResolves(sqlite3 *db)
{
    // column of a table -> the lookup it points to; 0 and null mean none.
    struct Link {
        const char *table;
        const char *columns;
        const char *target;
        const char *key;
    };
    const QList<Link> links = {
        {"*", "ReferenceID", "tblReferences", "ReferenceID"},
        {"*", "DataSourceID WaterPercentDS TrophiclevelDS", "tblDataSource", "DataSourceID"},
        {"*", "SpeciesID", "tblSpecies", "SpeciesID"},
        {"*", "VarianceTypeID", "tblVarianceType", "VarianceTypeID"},
        {"*", "StatusID", "tblStatus", "StatusID"},
        {"*", "GenderID", "tblGender", "GenderID"},
        {"*", "LifestageID", "tblLifeStage", "LifeStageID"},
        {"*", "HabitatTypeID", "tblHabitatType", "HabitatTypeID"},
        {"*", "BegMonthID EndMonthID", "tblMonth", "MonthID"},
        {"*", "FoodGroupID", "tblFoodGroup", "FoodGroupID"},
        {"*", "ComponentID", "tblComponent", "ComponentID"},
        {"*", "TaxonID", "tblTaxon", "TaxonID"},
        {"*", "IntakeTypeID", "tblIntakeType", "IntakeTypeID"},
        {"*", "UnitsID WtUnitsID EqnUnitsID FinalUnitsID", "tblUnits", "UnitsID"},
        {"*", "CategoryID", "tblCategory", "CategoryID"},
        {"*", "ModelDescriptionID", "tblModelDescription", "ModelDescriptionID"},
        {"*", "StateProvinceID", "tblStateProvince", "StateProvinceID"},
        {"*", "KingdomID", "tblKingdom", "KingdomID"},
        {"*", "SubkingdomID", "tblSubkingdom", "SubkingdomID"},
        {"*", "PhylumID", "tblPhylum", "PhylumID"},
        {"*", "ClassID", "tblClass", "ClassID"},
        {"*", "OrderID", "tblOrder", "OrderID"},
        {"*", "FamilyID", "tblFamily", "FamilyID"},
        {"*", "GrossEnergyID", "tblGrossEnergy", "GrossEnergyID"},
        {"*", "AEID", "tblAE", "AEID"},
        {"*", "WaterConversionID", "tblWaterConversion", "WaterConversionID"},
        {"*", "TrophicLevelID", "tblTrophicLevel", "TrophicLevelID"},
        {"*", "DietID", "tblDiet", "DietID"},
        {"tblDiet", "DataTypeID", "tblDataType", "DataTypeID"},
        {"tblDiet", "DietTypeID", "tblDietType", "DietTypeID"},
        {"tblDiet", "MeasureTermID", "tblMeasureTerm", "MeasureTermID"},
        {"tblDiet", "MaterialAnalyzedID", "tblMaterialAnalyzed", "MaterialAnalyzedID"},
        {"tblDiet", "AnalysisID", "tblAnalysis", "AnalysisID"},
        {"tblPOPDENS", "FactorID", "tblFactor", "FactorID"},
        {"tblPOPDENS", "Popsize_id", "tblPOPSIZEselect", "POPSIZE_ID"},
        {"tblSEASON", "Activity_ID", "tblActivity", "ACTIVITY_ID"},
        {"tblSEASON", "begmonth_code peakmonth_code endmonth_code", "tblMonth", "MonthID"},
        {"tblLIFEHISTORYTEXT",
         "Ref1 Ref2 Ref3 Ref4 Ref5 Ref6 Ref7 Ref8 Ref9 Ref10 Ref11 Ref12 Ref13 Ref14 Ref15 "
         "GenRef1 GenRef2 GenRef3 GenRef4 GenRef5 GenRef6 GenRef7",
         "tblReferences", "ReferenceID"},
    };
    QStringList tables;
    for (const Row &r : rows(db, "SELECT name FROM sqlite_master WHERE type = 'table' AND name NOT LIKE 'sqlite%'"))
        tables.append(r[0]);
    int checked = 0;
    for (const Link &link : links) {
        for (const QString &column : QString::fromLatin1(link.columns).split(' ')) {
            for (const QString &table : tables) {
                if (QLatin1String(link.table) != QLatin1String("*") && table != QLatin1String(link.table))
                    continue;
                if (table == QLatin1String(link.target))
                    continue;  // the key itself
                // Scenario tables are empty in the seed; the columns exist there too.
                if (scalar(db, QStringLiteral("SELECT count(*) FROM pragma_table_info('%1') WHERE name = '%2' "
                                               "COLLATE NOCASE").arg(table, column)) != "1")
                    continue;
                ++checked;
                const auto dangling = rows(db, QStringLiteral("SELECT DISTINCT [%2] FROM [%1] WHERE [%2] IS NOT NULL "
                                                               "AND [%2] <> 0 AND [%2] NOT IN (SELECT [%4] FROM [%3])")
                                                    .arg(table, column, QLatin1String(link.target), QLatin1String(link.key)));
                for (const Row &d : dangling)
                    ADD_FAILURE() << table.toStdString() << "." << column.toStdString() << " = " << d[0].toStdString()
                                  << " is not in " << link.target;
            }
        }
    }
    return checked;
}

TEST_F(SeedDb, EveryIdResolves)
{
    EXPECT_GT(expectEveryIdResolves(h()), 100);
    // Id 0 means "none": only the estimator lookup has a row with key 0.
    for (const char *lookup : {"tblDataSource", "tblGender", "tblStatus", "tblLifeStage", "tblUnits", "tblIntakeType",
                               "tblTaxon", "tblMonth", "tblReferences", "tblSpecies", "tblFamily"}) {
        const QString key = scalar(h(), QStringLiteral("SELECT name FROM pragma_table_info('%1') WHERE pk = 1").arg(lookup));
        EXPECT_EQ(scalar(h(), QStringLiteral("SELECT count(*) FROM %1 WHERE %2 = 0").arg(lookup, key)), "0") << lookup;
    }
}

TEST_F(SeedDb, ValueRowsCiteAReferenceAndKeepAClass)
{
    for (const char *table : {"tblWeight", "tblDiet", "tblGrossEnergy", "tblAE", "tblWaterConversion",
                              "tblTrophicLevel", "tblIntakeModel", "tblIntakeMeasured", "tblSoilIngestion",
                              "tblPOPDENS", "tblSEASON", "jtblSpeciesReference"}) {
        EXPECT_NE(scalar(h(), QStringLiteral("SELECT count(*) FROM %1").arg(table)), "0") << table;
        EXPECT_EQ(scalar(h(), QStringLiteral("SELECT count(*) FROM %1 WHERE ReferenceID IS NULL OR ReferenceID = 0")
                                  .arg(table)), "0") << table;
    }
    for (const char *table : {"tblSpecies", "tblWeight", "tblDiet", "tblDietItem", "tblGrossEnergy", "tblAE",
                              "tblWaterConversion", "tblTrophicLevel", "tblIntakeModel", "tblIntakeMeasured",
                              "tblSoilIngestion", "tblReferences"})
        EXPECT_EQ(scalar(h(), QStringLiteral("SELECT count(*) FROM %1 WHERE DataSourceID IS NULL").arg(table)), "0")
            << table;
}

TEST_F(SeedDb, ClassificationJoinsFromKingdomDown)
{
    // Every family reaches a kingdom through the six-level inner join of the classification search.
    const QString path = "FROM tblKingdom k JOIN tblSubkingdom s ON s.KingdomID = k.KingdomID "
                         "JOIN tblPhylum p ON p.SubkingdomID = s.SubkingdomID JOIN tblClass c ON c.PhylumID = p.PhylumID "
                         "JOIN tblOrder o ON o.ClassID = c.ClassID JOIN tblFamily f ON f.OrderID = o.OrderID";
    EXPECT_EQ(scalar(h(), "SELECT count(*) " + path), scalar(h(), "SELECT count(*) FROM tblFamily"));

    // Species are classified to family, and the six ids of each are one path.
    EXPECT_EQ(scalar(h(), "SELECT count(*) FROM tblSpecies x WHERE NOT EXISTS (SELECT 1 " + path +
                              " WHERE k.KingdomID = x.KingdomID AND s.SubkingdomID = x.SubkingdomID AND "
                              "p.PhylumID = x.PhylumID AND c.ClassID = x.ClassID AND o.OrderID = x.OrderID AND "
                              "f.FamilyID = x.FamilyID)"),
              "0");

    // Food items may be classified only as far as they are known ("Fish" has no family), but the
    // levels they give start at the kingdom, have no gaps, and each one lies under the one above.
    for (const char *table : {"tblDietItem", "tblGrossEnergy", "tblAE", "tblWaterConversion", "tblTrophicLevel"}) {
        const auto bad = rows(h(), QStringLiteral(
            "SELECT rowid FROM %1 x WHERE KingdomID > 0 AND ("
            " (SubkingdomID IS NULL AND COALESCE(PhylumID, ClassID, OrderID, FamilyID) IS NOT NULL)"
            " OR (PhylumID IS NULL AND COALESCE(ClassID, OrderID, FamilyID) IS NOT NULL)"
            " OR (ClassID IS NULL AND COALESCE(OrderID, FamilyID) IS NOT NULL)"
            " OR (OrderID IS NULL AND FamilyID IS NOT NULL)"
            " OR (SubkingdomID IS NOT NULL AND (SELECT KingdomID FROM tblSubkingdom WHERE SubkingdomID = x.SubkingdomID) <> x.KingdomID)"
            " OR (PhylumID IS NOT NULL AND (SELECT SubkingdomID FROM tblPhylum WHERE PhylumID = x.PhylumID) <> x.SubkingdomID)"
            " OR (ClassID IS NOT NULL AND (SELECT PhylumID FROM tblClass WHERE ClassID = x.ClassID) <> x.PhylumID)"
            " OR (OrderID IS NOT NULL AND (SELECT ClassID FROM tblOrder WHERE OrderID = x.OrderID) <> x.ClassID)"
            " OR (FamilyID IS NOT NULL AND (SELECT OrderID FROM tblFamily WHERE FamilyID = x.FamilyID) <> x.OrderID))")
                                       .arg(table));
        for (const Row &r : bad)
            ADD_FAILURE() << table << " row " << r[0].toStdString() << " has an inconsistent classification";
    }
}

TEST_F(SeedDb, DietsCanBeCopiedAndTheirProportionsSumToOne)
{
    // The copy into a scenario keeps only items with a moisture row (inner join on tblWaterConversion).
    const auto kept = rows(h(), "SELECT d.DietID, count(i.DietItemID), count(w.WaterConversionID) FROM tblDiet d "
                                "LEFT JOIN tblDietItem i ON i.DietID = d.DietID LEFT JOIN tblWaterConversion w "
                                "ON i.WaterConversionID = w.WaterConversionID GROUP BY d.DietID");
    ASSERT_FALSE(kept.isEmpty());
    for (const Row &r : kept) {
        EXPECT_GT(r[1].toInt(), 0) << "diet " << r[0].toStdString() << " has no items";
        EXPECT_GE(2 * r[2].toInt(), r[1].toInt()) << "diet " << r[0].toStdString() << " loses most items on copy";
    }

    // On the basis its measure term names, each diet's proportions add up to one.
    const auto sums = rows(h(), "SELECT d.DietID, m.WeightIsWet, "
                                "SUM(CASE WHEN m.WeightIsWet = 1 THEN i.Wet_Proportion ELSE i.Dry_Proportion END) "
                                "FROM tblDiet d JOIN tblMeasureTerm m ON m.MeasureTermID = d.MeasureTermID "
                                "JOIN tblDietItem i ON i.DietID = d.DietID GROUP BY d.DietID");
    EXPECT_EQ(QString::number(sums.size()), scalar(h(), "SELECT count(*) FROM tblDiet"))
        << "every diet needs a measure term";
    for (const Row &r : sums)
        EXPECT_NEAR(r[2].toDouble(), 1.0, 0.001) << "diet " << r[0].toStdString() << " basis wet=" << r[1].toStdString();
}

TEST_F(SeedDb, DietItemsRepeatTheValuesOfTheRowsTheyLink)
{
    // An item keeps the water content and trophic level of its linked rows, with their classes, so that
    // the reference grid and a scenario's frozen copy show the same numbers; without a link it keeps none.
    struct Copied {
        const char *table, *key, *value, *valueClass, *itemValue, *itemClass;
    };
    const Copied copied[] = {
        {"tblWaterConversion", "WaterConversionID", "Mean", "DataSourceID", "WaterPercent", "WaterPercentDS"},
        {"tblTrophicLevel", "TrophicLevelID", "TrophicLevel", "DataSourceID", "TrophicLevel", "TrophiclevelDS"},
    };
    for (const Copied &c : copied) {
        const auto differing = rows(h(), QStringLiteral(
            "SELECT i.DietItemID, i.%5, i.%6 FROM tblDietItem i LEFT JOIN %1 v ON v.%2 = i.%2 "
            "WHERE i.%5 IS NOT v.%3 OR i.%6 IS NOT v.%4")
                                             .arg(c.table, c.key, c.value, c.valueClass, c.itemValue, c.itemClass));
        for (const Row &r : differing)
            ADD_FAILURE() << "item " << r[0].toStdString() << ": " << c.itemValue << " " << r[1].toStdString()
                          << " (class " << r[2].toStdString() << ") differs from its " << c.table << " row";
    }
}

TEST_F(SeedDb, CompleteEnergyChainsPerSpecies)
{
    // A food requirement needs, for every item of a diet, a gross energy on the diet's basis, an
    // assimilation efficiency and a water content; count the species with at least one such diet.
    const QString items = QStringLiteral(
        "SELECT d.SpeciesID, s.Common, d.DietID, i.DietItemID, i.Name, "
        "(SELECT CASE WHEN m.WeightIsWet = 1 THEN g.WET_WT_KCALG ELSE g.DRY_WT_KCALG END FROM tblGrossEnergy g "
        " WHERE g.GrossEnergyID = i.GrossEnergyID) AS GE, "
        "(SELECT a.Mean FROM tblAE a WHERE a.AEID = i.AEID) AS AE, "
        "(SELECT w.Mean FROM tblWaterConversion w WHERE w.WaterConversionID = i.WaterConversionID) AS Water, "
        "CASE WHEN m.WeightIsWet = 1 THEN i.Wet_Proportion ELSE i.Dry_Proportion END AS Share "
        "FROM tblDiet d JOIN tblSpecies s ON s.SpeciesID = d.SpeciesID "
        "JOIN tblMeasureTerm m ON m.MeasureTermID = d.MeasureTermID JOIN tblDietItem i ON i.DietID = d.DietID");
    const auto complete = rows(h(), "SELECT DietID, SpeciesID, SUM(AE * 0.01 * GE * Share) FROM (" + items +
                                        ") GROUP BY DietID HAVING count(*) = count(GE) AND count(*) = count(AE) "
                                        "AND count(*) = count(Water)");
    QSet<QString> species;
    for (const Row &r : complete) {
        species.insert(r[1]);
        // An efficiency stored as a fraction instead of a percent, or an energy in kJ, would put the
        // diet's metabolizable energy far outside what food holds per gram.
        EXPECT_GT(r[2].toDouble(), 0.1) << "diet " << r[0].toStdString();
        EXPECT_LT(r[2].toDouble(), 5.0) << "diet " << r[0].toStdString();
    }
    // The figure only rises as values are added; a lost link would lower it.
    EXPECT_GE(species.size(), 39);
}

TEST_F(SeedDb, AllometricEquationsGiveSensibleRates)
{
    // Evaluated as the program does: a * (Factor * W)^b * UCF * MMF, W in grams, over the range of
    // body weights seeded for species of the equation's taxon.
    const auto models = rows(h(), "SELECT m.IntakeModelID, m.a, m.b, COALESCE(m.UCF, 1), COALESCE(m.MMF, 1), u.Factor, "
                                  "MIN(w.Mean), MAX(w.Mean) FROM tblIntakeModel m "
                                  "JOIN tblUnits u ON u.UnitsID = m.WtUnitsID "
                                  "JOIN tblSpecies s ON s.TaxonID = m.TaxonID JOIN tblWeight w ON w.SpeciesID = s.SpeciesID "
                                  "GROUP BY m.IntakeModelID");
    EXPECT_EQ(QString::number(models.size()), scalar(h(), "SELECT count(*) FROM tblIntakeModel WHERE TaxonID IN "
                                                          "(SELECT TaxonID FROM tblSpecies)"));
    for (const Row &r : models) {
        for (const double w : {r[6].toDouble(), r[7].toDouble()}) {
            const double rate = r[1].toDouble() * std::pow(r[5].toDouble() * w, r[2].toDouble()) * r[3].toDouble() *
                                r[4].toDouble();
            EXPECT_TRUE(std::isfinite(rate) && rate > 0) << "model " << r[0].toStdString() << " at " << w << " g";
        }
    }
    // Free-living metabolic rate equations of one taxon agree with each other for a 1 kg animal
    // within a factor of two: a wrong weight unit (g for kg) would put one off by a factor near 100.
    const auto fmr = rows(h(), "SELECT m.TaxonID, MIN(m.a * pow(u.Factor * 1000, m.b) * m.UCF * m.MMF), "
                               "MAX(m.a * pow(u.Factor * 1000, m.b) * m.UCF * m.MMF), count(*) FROM tblIntakeModel m "
                               "JOIN tblUnits u ON u.UnitsID = m.WtUnitsID WHERE m.IntakeTypeID = 3 AND "
                               "m.ModelDescriptionID = 4 GROUP BY m.TaxonID HAVING count(*) > 1");
    ASSERT_FALSE(fmr.isEmpty());
    for (const Row &r : fmr)
        EXPECT_LT(r[2].toDouble() / r[1].toDouble(), 2.0) << "taxon " << r[0].toStdString();
}

#ifdef ZOBSEED_EXE
namespace {

//! Every row of every table, in key order, as one text.
QString dumpAll(const QString &path)
{
    const Db db = openReadOnly(path);
    QString out;
    for (const Row &t : rows(db.get(), "SELECT name FROM sqlite_master WHERE type IN ('table', 'view') "
                                       "AND name NOT LIKE 'sqlite%' ORDER BY name")) {
        out += "== " + t[0] + "\n";
        const QString order = t[0].startsWith("qry") ? QStringLiteral("1") : QStringLiteral("rowid");
        for (const Row &r : rows(db.get(), QStringLiteral("SELECT * FROM [%1] ORDER BY %2").arg(t[0], order)))
            out += r.join(QChar(0x1f)) + "\n";
    }
    return out;
}

int runTool(const QString &exe, const QStringList &args, QString *errors = nullptr)
{
    QProcess p;
    p.start(exe, args);
    p.waitForFinished(-1);
    if (errors)
        *errors = QString::fromLocal8Bit(p.readAllStandardError());
    return p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -1;
}

int runSeedTool(const QStringList &args, QString *errors = nullptr)
{
    return runTool(QStringLiteral(ZOBSEED_EXE), args, errors);
}

}  // namespace

TEST(SeedTool, BuildsTheSameDatabaseEveryTime)
{
    QTemporaryDir dir;
    const QString seed = QStringLiteral(ZOB_SOURCE_DIR "/data/seed");
    const QString a = dir.filePath("a.sqlite");
    const QString b = dir.filePath("b.sqlite");
    ASSERT_EQ(runSeedTool({seed, a}), 0);
    ASSERT_EQ(runSeedTool({seed, b}), 0);
    // Running again over an existing file replaces it rather than adding to it.
    ASSERT_EQ(runSeedTool({seed, b}), 0);
    const QString dumpA = dumpAll(a);
    EXPECT_GT(dumpA.size(), 10000);
    EXPECT_EQ(dumpA, dumpAll(b));
    EXPECT_EQ(dumpA, dumpAll(QStringLiteral(ZOB_SEED_DB)));
}

TEST(SeedTool, FailsWithAMessageAndLeavesNoFile)
{
    QTemporaryDir dir;
    QDir().mkpath(dir.filePath("seed"));
    QFile f(dir.filePath("seed/tblGender.csv"));
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write("GenderID,Colour\n1,blue\n");
    f.close();
    QString errors;
    EXPECT_NE(runSeedTool({dir.filePath("seed"), dir.filePath("out.sqlite")}, &errors), 0);
    EXPECT_TRUE(errors.contains("tblGender.csv") && errors.contains("Colour")) << errors.toStdString();
    EXPECT_FALSE(QFile::exists(dir.filePath("out.sqlite")));
    EXPECT_NE(runSeedTool({dir.filePath("seed")}), 0);
}

TEST(ScaleTool, MakesEveryTableLargerWithValidLinksFromASeedNumber)
{
    QTemporaryDir dir;
    const QString a = dir.filePath("a.sqlite"), b = dir.filePath("b.sqlite"), c = dir.filePath("c.sqlite");
    ASSERT_EQ(runTool(QStringLiteral(ZOBSCALE_EXE), {QStringLiteral(ZOB_SEED_DB), a, "3", "7"}), 0);
    ASSERT_EQ(runTool(QStringLiteral(ZOBSCALE_EXE), {QStringLiteral(ZOB_SEED_DB), b, "3", "7"}), 0);
    ASSERT_EQ(runTool(QStringLiteral(ZOBSCALE_EXE), {QStringLiteral(ZOB_SEED_DB), c, "3", "8"}), 0);
    const QString dumpA = dumpAll(a);
    EXPECT_EQ(dumpA, dumpAll(b));
    EXPECT_NE(dumpA, dumpAll(c));

    const Db seed = openReadOnly(QStringLiteral(ZOB_SEED_DB));
    const Db big = openReadOnly(a);
    for (const char *table : {"tblSpecies", "tblWeight", "tblDiet", "tblDietItem", "tblGrossEnergy", "tblAE",
                              "tblWaterConversion", "tblTrophicLevel", "tblIntakeModel", "tblIntakeMeasured",
                              "tblSoilIngestion", "tblReferences", "tblLIFEHISTORYTEXT", "tblFamily", "tblStateProvince"}) {
        const QString count = QStringLiteral("SELECT count(*) FROM %1").arg(table);
        EXPECT_EQ(number(big.get(), count), 3 * number(seed.get(), count)) << table;
    }
    // Small code tables keep their rows; the user's tables get three units of work.
    EXPECT_EQ(number(big.get(), "SELECT count(*) FROM tblGender"), number(seed.get(), "SELECT count(*) FROM tblGender"));
    EXPECT_EQ(number(big.get(), "SELECT count(*) FROM tblProject"), 30);
    EXPECT_EQ(number(big.get(), "SELECT count(*) FROM tblScenario"), 60);
    EXPECT_EQ(number(big.get(), "SELECT count(*) FROM tblUser"), 3);
    EXPECT_EQ(number(big.get(), "SELECT count(*) FROM tblComments"), 9);
    EXPECT_EQ(number(big.get(), "SELECT count(*) FROM tblIntakeZOB"), 180);
    EXPECT_EQ(number(big.get(), "SELECT count(*) FROM jtblProjectScenario WHERE ProjectID NOT IN (SELECT ProjectID "
                                "FROM tblProject) OR ScenarioID NOT IN (SELECT ScenarioID FROM tblScenario)"), 0);
    EXPECT_GT(number(big.get(), "SELECT count(*) FROM tblWildlifeDietItems"), 0);
    // A copy of a diet item belongs to the copy of its diet, of the copy of its species.
    EXPECT_EQ(number(big.get(), "SELECT count(*) FROM tblDietItem i JOIN tblDiet d ON i.DietID = d.DietID JOIN tblSpecies s "
                                "ON d.SpeciesID = s.SpeciesID WHERE s.Common LIKE '% #2' AND i.Name NOT LIKE '% #2'"), 0);
    EXPECT_GT(expectEveryIdResolves(big.get()), 100);
    EXPECT_NE(runTool(QStringLiteral(ZOBSCALE_EXE), {QStringLiteral(ZOB_SEED_DB), dir.filePath("d.sqlite"), "0"}), 0);
    EXPECT_FALSE(QFile::exists(dir.filePath("d.sqlite")));
}
#endif
