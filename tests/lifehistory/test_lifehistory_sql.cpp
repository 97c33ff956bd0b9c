// SPDX-License-Identifier: MIT
// The statements of the species search and the browser, run on the seeded database and checked against
// what the rows themselves say.
#include "Database.h"
#include "LifeHistorySql.h"
#include "Recordset.h"
#include "TestSupport.h"

#include <QMap>
#include <algorithm>
#include <QSet>
#include <gtest/gtest.h>

using namespace LifeHistorySql;

namespace {
QList<QVariantMap> rowsOf(Database &db, const QString &sql)
{
    QList<QVariantMap> rows;
    auto rs = db.OpenRecordset(sql, RecordsetType::Snapshot);
    const QStringList names = rs->fieldNames();
    for (; !rs->EOF_(); rs->MoveNext()) {
        QVariantMap row;
        for (int i = 0; i < names.size(); ++i)
            row.insert(names[i], rs->field(i));
        rows << row;
    }
    return rows;
}

QSet<int> speciesFound(Database &db, const SearchCriteria &c)
{
    QSet<int> ids;
    for (const QVariantMap &row : rowsOf(db, searchStatement(searchWhere(c))))
        ids.insert(row.value(QStringLiteral("SpeciesID")).toInt());
    return ids;
}

class LifeHistorySqlTest : public ::testing::Test {
protected:
    TestSession ts;
    Database &db = *ts->gDB;
    QList<QVariantMap> species = rowsOf(db, QStringLiteral("Select * From tblSpecies"));
};
}  // namespace

TEST(SearchWhere, JoinsTheCriteriaAndCutsOnlyATrailingAnd)
{
    EXPECT_EQ(searchWhere({}), QString());
    EXPECT_FALSE(searchStatement(QString()).contains(QLatin1String(" Where ")));
    EXPECT_EQ(searchWhere({QStringLiteral("owl")}),
              QStringLiteral("(tblSpecies.Common like '*owl*'  OR tblSpecies.Latin like '*owl*') "));
    SearchCriteria both;
    both.species = QStringLiteral("owl");
    both.trophicFrom = QStringLiteral("2");
    both.trophicTo = QStringLiteral("3");
    const QString w = searchWhere(both);
    EXPECT_TRUE(w.endsWith(QLatin1String("Between '2' And '3')")));
    EXPECT_TRUE(w.contains(QLatin1String("like '*owl*') AND tblSpecies.SpeciesID In (SELECT")));
    // A criterion text that holds a placeholder is not substituted again.
    SearchCriteria odd;
    odd.species = QStringLiteral("%2");
    odd.habitat = QStringLiteral("x");
    EXPECT_TRUE(searchWhere(odd).contains(QLatin1String("like '*%2*'")));
    EXPECT_EQ(searchStatement(QStringLiteral("X")),
              QStringLiteral("SELECT tblSpecies.SpeciesID, tblTaxon.Description AS Taxon, tblSpecies.Common, tblSpecies.Latin, "
                             "tblSpecies.DataSourceID FROM tblSpecies INNER JOIN tblTaxon ON tblSpecies.TaxonID = "
                             "tblTaxon.TaxonID Where X ORDER BY tblTaxon.Description, tblSpecies.Common"));
}

TEST_F(LifeHistorySqlTest, EachCriterionFindsWhatTheRowsSay)
{
    QSet<int> byName, byTaxon, byHabitat, all;
    for (const QVariantMap &s : species) {
        const int id = s.value(QStringLiteral("SpeciesID")).toInt();
        all.insert(id);
        if (s.value(QStringLiteral("Common")).toString().contains(QLatin1String("sparrow"), Qt::CaseInsensitive)
            || s.value(QStringLiteral("Latin")).toString().contains(QLatin1String("sparrow"), Qt::CaseInsensitive))
            byName.insert(id);
        if (s.value(QStringLiteral("TaxonID")).toInt() == 2)
            byTaxon.insert(id);
        if (s.value(QStringLiteral("Habitat")).toString().contains(QLatin1String("marsh"), Qt::CaseInsensitive))
            byHabitat.insert(id);
    }
    ASSERT_FALSE(byName.isEmpty());
    ASSERT_FALSE(byHabitat.isEmpty());
    EXPECT_EQ(speciesFound(db, {}), all);
    EXPECT_EQ(speciesFound(db, {QStringLiteral("SPARROW")}), byName);
    EXPECT_EQ(speciesFound(db, {{}, QStringLiteral("2")}), byTaxon);
    EXPECT_EQ(speciesFound(db, {{}, {}, QStringLiteral("marsh")}), byHabitat);
    EXPECT_EQ(speciesFound(db, {QStringLiteral("sparrow"), QStringLiteral("2")}), byName & byTaxon);
    // Wildcards of the other dialect are plain characters; the engine's own matches everything.
    EXPECT_TRUE(speciesFound(db, {QStringLiteral("%")}).isEmpty());
    EXPECT_TRUE(speciesFound(db, {QStringLiteral("_")}).isEmpty());
    EXPECT_EQ(speciesFound(db, {QStringLiteral("*")}), all);
}

TEST_F(LifeHistorySqlTest, DietItemAndTrophicLevelGoOverAllItemsOfAllDietsOfASpecies)
{
    QMap<int, int> speciesOfDiet;
    for (const QVariantMap &d : rowsOf(db, QStringLiteral("Select DietID, SpeciesID From tblDiet")))
        speciesOfDiet.insert(d.value(QStringLiteral("DietID")).toInt(), d.value(QStringLiteral("SpeciesID")).toInt());
    QMap<int, double> level;
    for (const QVariantMap &t : rowsOf(db, QStringLiteral("Select TrophicLevelID, TrophicLevel From tblTrophicLevel")))
        level.insert(t.value(QStringLiteral("TrophicLevelID")).toInt(), t.value(QStringLiteral("TrophicLevel")).toDouble());
    QSet<int> withInsect;
    QMap<int, QPair<double, int>> sums;
    for (const QVariantMap &i : rowsOf(db, QStringLiteral("Select DietID, Name, TrophicLevelID From tblDietItem"))) {
        const int sp = speciesOfDiet.value(i.value(QStringLiteral("DietID")).toInt(), -1);
        if (i.value(QStringLiteral("Name")).toString().contains(QLatin1String("insect"), Qt::CaseInsensitive))
            withInsect.insert(sp);
        const int tl = i.value(QStringLiteral("TrophicLevelID")).toInt();
        if (level.contains(tl)) {
            sums[sp].first += level.value(tl);
            sums[sp].second += 1;
        }
    }
    QSet<int> between;
    for (auto it = sums.cbegin(); it != sums.cend(); ++it) {
        const double avg = it.value().first / it.value().second;
        if (avg >= 2.0 && avg <= 3.0)
            between.insert(it.key());
    }
    ASSERT_FALSE(withInsect.isEmpty());
    ASSERT_FALSE(between.isEmpty());
    EXPECT_EQ(speciesFound(db, {{}, {}, {}, QStringLiteral("insect")}), withInsect);
    EXPECT_EQ(speciesFound(db, {{}, {}, {}, {}, QStringLiteral("2"), QStringLiteral("3")}), between);
    // An apostrophe breaks the statement: the engine refuses it.
    EXPECT_ANY_THROW(speciesFound(db, {QStringLiteral("o'brien")}));
}

TEST_F(LifeHistorySqlTest, ReferencesAreNumberedByAuthorWithNoDoubledStops)
{
    EXPECT_EQ(referenceClause({QStringLiteral(" "), QString(), QStringLiteral("7")}), QStringLiteral(" IN ( 7 ) "));
    EXPECT_EQ(referenceClause({QStringLiteral("3"), QStringLiteral(""), QStringLiteral("1")}), QStringLiteral(" IN ( 3, 1 ) "));
    EXPECT_EQ(referenceClause({QString(), QStringLiteral("  ")}), QString());
    EXPECT_EQ(referenceText(db, QString()), QString());

    db.Execute(QStringLiteral("Insert Into tblReferences (ReferenceID, fldRef_Author, fldRef_Year, fldRef_Title, fldRef_Source) "
                              "Values (990001, 'Zeta, A', '1999. ', 'Late title', 'Journal Z')"));
    db.Execute(QStringLiteral("Insert Into tblReferences (ReferenceID, fldRef_Author, fldRef_Year, fldRef_Title, fldRef_Source) "
                              "Values (990002, 'Alpha, B', '2001', 'First title. ', 'Journal A')"));
    EXPECT_EQ(referenceText(db, referenceClause({QStringLiteral("990001"), QStringLiteral("990002")})),
              QStringLiteral("1.  Alpha, B. 2001. First title. Journal A\r\n"
                             "2.  Zeta, A. 1999. Late title. Journal Z\r\n"));
}

TEST_F(LifeHistorySqlTest, TopicClausesAndCaptionsGoByOptionIndex)
{
    EXPECT_EQ(topicCaptions(QStringLiteral("optGeneral")),
              (QStringList{"Order/Family Info", "Selected Species/General Info", "Similar Species Info"}));
    EXPECT_EQ(topicClause(QStringLiteral("optGeneral"), 1), QStringLiteral(" AND LifeText_Type = 'general'"));
    EXPECT_EQ(topicClause(QStringLiteral("optSeasonActivityGeneral"), 3),
              QStringLiteral(" AND LifeText_Type  IN ('tempreg/daily activities', 'tempreg/molt')"));
    EXPECT_EQ(topicClause(QStringLiteral("optBodySize"), 0), QStringLiteral(" AND LifeText_Type = 'body size'"));
    EXPECT_EQ(topicClause(QStringLiteral("optGeneral"), 3), QString());
    EXPECT_TRUE(topicCaptions(QStringLiteral("optBodySize")).isEmpty());
    // Every text row of the shipped data has a topic some option asks for.
    QSet<QString> asked;
    for (const char *array : {"optGeneral", "optDietIntakeRate", "optPopulationHabitat", "optSeasonActivityGeneral", "optBodySize"})
        for (int i = 0; i < 4; ++i)
            asked.insert(topicClause(QString::fromLatin1(array), i));
    for (const QVariantMap &t : rowsOf(db, QStringLiteral("Select Distinct LifeText_Type From tblLIFEHISTORYTEXT"))) {
        const QString type = t.value(QStringLiteral("LifeText_Type")).toString();
        const bool found = std::any_of(asked.cbegin(), asked.cend(), [&](const QString &c) { return c.contains(QLatin1Char('\'') + type + QLatin1Char('\'')); });
        EXPECT_TRUE(found) << type.toStdString();
    }
}
