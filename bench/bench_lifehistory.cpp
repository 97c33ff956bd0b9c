// SPDX-License-Identifier: MIT
// The species search by each criterion and the life-history browser's page change, on a reference
// database a hundred times the seeded size: the median of 100 runs through the program's database
// layer (translation, recordset with every row read) beside the same statements run directly on SQLite.
#include "BenchSupport.h"
#include "Database.h"
#include "Diet.h"
#include "JetSql.h"
#include "LifeHistorySql.h"
#include "Recordset.h"
#include "Session.h"

#include <QCoreApplication>
#include <algorithm>
#include <sqlite3.h>
#include <vector>

namespace {
const int kRuns = qEnvironmentVariableIntValue("ZOB_BENCH_RUNS") > 0 ? qEnvironmentVariableIntValue("ZOB_BENCH_RUNS") : 100;
constexpr int kCopies = 99;

//! Adds kCopies copies of every species with all its life-history rows, under new keys.
void scaleUp(Database &db)
{
    const QList<QPair<QString, QString>> tables{{"tblSpecies", {}},       {"tblDiet", {}},    {"tblDietItem", "DietID"},
                                                {"tblLIFEHISTORYTEXT", {}}, {"tblWeight", {}},  {"tblPOPDENS", {}},
                                                {"tblSEASON", {}}};
    Database::Transaction tx(db);
    for (int k = 1; k <= kCopies; ++k) {
        for (const auto &[table, dietColumn] : tables) {
            const QString key = db.primaryKeyOf(table);
            QStringList values;
            const QStringList columns = db.columnsOf(table);
            for (const QString &c : columns) {
                if (c == QLatin1String("SpeciesID") || c == key || c == dietColumn)
                    values << QStringLiteral("%1 + %2").arg(c).arg(qint64(k) * 1000000);
                else if (c == QLatin1String("Common"))
                    values << QStringLiteral("%1 || ' %2'").arg(c).arg(k);
                else
                    values << c;
            }
            // Only the seeded rows are copied: items by their diet, the rest by their species.
            const QString original = dietColumn.isEmpty() ? QStringLiteral("SpeciesID") : dietColumn;
            db.executeNative(QStringLiteral("INSERT INTO %1 (%2) SELECT %3 FROM %1 WHERE %4 < 1000000")
                                 .arg(table, columns.join(QLatin1String(", ")), values.join(QLatin1String(", ")), original));
        }
    }
    tx.commit();
}

//! Median microseconds of runs runs of f.
template <typename F>
double medianMicros(int runs, F &&f)
{
    std::vector<double> times;
    for (int i = 0; i < runs; ++i)
        times.push_back(perCallMicros(1, [&](int) { f(); }));
    return benchMedian(times);
}

volatile qint64 sink = 0;

void throughProgram(Database &db, const QStringList &statements)
{
    for (const QString &sql : statements) {
        auto rs = db.OpenRecordset(sql, RecordsetType::Snapshot);
        for (; !rs->EOF_(); rs->MoveNext())
            sink = sink + rs->field(0).toString().size();
    }
}

void directly(sqlite3 *raw, const std::vector<QByteArray> &statements)
{
    for (const QByteArray &sql : statements) {
        sqlite3_stmt *st = nullptr;
        sqlite3_prepare_v2(raw, sql.constData(), -1, &st, nullptr);
        while (sqlite3_step(st) == SQLITE_ROW)
            for (int c = 0; c < sqlite3_column_count(st); ++c)
                sink = sink + sqlite3_column_bytes(st, c);
        sqlite3_finalize(st);
    }
}

void report(Database &db, sqlite3 *raw, const char *what, const QStringList &statements, int runs = kRuns)
{
    std::vector<QByteArray> native;
    for (const QString &s : statements)
        native.push_back(translateJetSql(s).toUtf8());
    const double program = medianMicros(runs, [&] { throughProgram(db, statements); });
    const double sqlite = medianMicros(runs, [&] { directly(raw, native); });
    std::printf("  %-44s %10.0f us %10.0f us %7.2fx\n", what, program, sqlite, program / sqlite);
    std::fflush(stdout);
}
}  // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    BenchSession bench;
    if (!bench.ok())
        return 1;
    Session &s = bench.session;
    Database &db = *s.gDB;
    scaleUp(db);
    sqlite3 *raw = nullptr;
    sqlite3_open_v2(db.path().toUtf8().constData(), &raw, SQLITE_OPEN_READONLY, nullptr);
    const int species = db.OpenRecordset(QStringLiteral("Select Count(*) From tblSpecies"), RecordsetType::Snapshot)->field(0).toInt();

    using namespace LifeHistorySql;
    std::printf("bench_lifehistory: %d species, median of %d runs; program, SQLite directly, ratio\n", species, kRuns);
    const auto search = [&](const char *what, const SearchCriteria &c) {
        report(db, raw, what, {searchStatement(searchWhere(c))});
    };
    search("search: no criteria (all species)", {});
    search("search: species name 'duck'", {QStringLiteral("duck")});
    search("search: taxon (Birds)", {{}, QStringLiteral("2")});
    search("search: habitat 'marsh'", {{}, {}, QStringLiteral("marsh")});
    search("search: diet item 'fish'", {{}, {}, {}, QStringLiteral("fish")});
    search("search: trophic level 3 to 4", {{}, {}, {}, {}, QStringLiteral("3"), QStringLiteral("4")});
    search("search: name 'a' and taxon (Birds)", {QStringLiteral("a"), QStringLiteral("2")});

    // A page change: the statements the browser runs to show a page of the American robin (id 1).
    auto rs = db.OpenRecordset(textStatement(1, topicClause(QStringLiteral("optGeneral"), 1)), RecordsetType::Snapshot);
    const QString refs = QStringLiteral("Select * from tblReferences where ReferenceID ")
                         + referenceClause(referenceValues(*rs, QStringLiteral("Ref"), 15)) + QStringLiteral("order by fldRef_Author");
    const QString general = QStringLiteral("Select * from tblReferences where ReferenceID ")
                            + referenceClause(referenceValues(*rs, QStringLiteral("GenRef"), 7)) + QStringLiteral("order by fldRef_Author");
    const qint32 diet = db.OpenRecordset(dietStatement(1, 2, 3), RecordsetType::Snapshot)->field(QStringLiteral("DietID")).toInt();
    report(db, raw, "page: general text with its two reference lists",
           {textStatement(1, topicClause(QStringLiteral("optGeneral"), 1)), refs, general});
    report(db, raw, "page: specific diets (the diets)", {dietStatement(1, 2, 3)});
    // The shared diet-item statement takes seconds at this size (its outer joins are written from the
    // lookups); it runs 5 times, not 100.
    report(db, raw, "page: specific diets (items, 5 runs)", {GetDietItemsSQL(s, QStringLiteral("Perm"), diet)}, 5);
    report(db, raw, "page: specific weights (all)", {weightStatement(1, 3, 2, 2)});
    report(db, raw, "page: body length (growth rate page)", {factorStatement(1, 8, true)});
    report(db, raw, "page: metabolic rate (intake page)", {factorStatement(1, 3, false)});
    report(db, raw, "page: population dynamics", {populationStatement(1, QStringLiteral("POPDYN"))});
    report(db, raw, "page: seasonal breeding records", {seasonStatement(1, QStringLiteral("reproduction"))});
    sqlite3_close(raw);
    return sink == -1;
}
