// SPDX-License-Identifier: MIT
// The calculation review opened on a scenario with a five-item diet, 200 times (ZOB_BENCH_RUNS to
// change): the median time of loading the window, asking whether it has rows and showing it, beside
// the median of the same SQL statements, captured from the window's own connection, run directly on
// SQLite. The basis dialog is not linked here, so no dialog waits for an answer.
#include "BenchSupport.h"
#include "Database.h"
#include "JetSql.h"
#include "QtWindowHost.h"
#include "Recordset.h"
#include "WindowLinks.h"
#include "clsScenario.h"

#include <QApplication>
#include <QStringList>
#include <sqlite3.h>

namespace {
const int kRuns = qEnvironmentVariableIntValue("ZOB_BENCH_RUNS") > 0 ? qEnvironmentVariableIntValue("ZOB_BENCH_RUNS") : 200;
const QString kWindow = QStringLiteral("frmZOBCalculations");

//! Collects the statements a connection runs, as SQLite expands them.
int collect(unsigned, void *list, void *stmt, void *)
{
    if (char *sql = sqlite3_expanded_sql(static_cast<sqlite3_stmt *>(stmt))) {
        static_cast<QStringList *>(list)->append(QString::fromUtf8(sql));
        sqlite3_free(sql);
    }
    return 0;
}

//! Runs an SQLite statement, reading every row.
void runDirect(sqlite3 *db, const QString &sql)
{
    sqlite3_stmt *st = nullptr;
    sqlite3_prepare_v2(db, sql.toUtf8().constData(), -1, &st, nullptr);
    while (sqlite3_step(st) == SQLITE_ROW) {
    }
    sqlite3_finalize(st);
}

//! A scenario with FMR 150 kcal/day and five diet items, each with a seeded AE and gross energy row.
qint32 seedScenario(Session &s)
{
    Database &db = *s.gDB;
    db.Execute(QStringLiteral("Insert Into tblScenario (Scenario_Type, Scenario_FileName) Values ('Wildlife', 'bench.ZOB')"));
    auto max = db.OpenRecordset(QStringLiteral("Select Max(ScenarioID) As M From tblScenario"), RecordsetType::Snapshot);
    const qint32 sid = max->field(0).toInt();
    db.Execute(QStringLiteral("Insert Into tblWildlife (ScenarioID, SpeciesID, Common, Weight, DietType) Values (%1, 1, 'Bench', 80, 1)").arg(sid));
    for (int type = 1; type <= 5; ++type)
        db.Execute(QStringLiteral("Insert Into tblIntakeZOB (ScenarioID, IntakeTypeID, BaseRate, AdjustedRate) Values (%1, %2, %3, %3)")
                       .arg(sid).arg(type).arg(type == 3 ? 150 : type));
    auto ae = db.OpenRecordset(QStringLiteral("Select AEID From tblAE Where Mean > 0 Order By AEID"), RecordsetType::Snapshot);
    auto ge = db.OpenRecordset(QStringLiteral("Select GrossEnergyID From tblGrossEnergy Where WET_WT_KCALG > 0 Order By GrossEnergyID"),
                               RecordsetType::Snapshot);
    for (int i = 0; i < 5; ++i, ae->MoveNext(), ge->MoveNext())
        db.Execute(QStringLiteral("Insert Into tblWildlifeDietItems (ScenarioID, DietID, DietItemID, Name, Wet_Proportion, Dry_Proportion, "
                                  "AEID, GrossEnergyID) Values (%1, 0, %2, 'Item %2', 0.2, 0.2, %3, %4)")
                           .arg(sid).arg(990000 + i).arg(ae->field(0).toInt()).arg(ge->field(0).toInt()));
    return sid;
}
}  // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    BenchSession b;
    if (!b.ok())
        return 1;
    Session &s = b.session;
    s.gScenario = std::make_shared<clsScenario>(s);
    s.gScenario->SID = seedScenario(s);
    s.gScenario->DietType = 1;
    QtWindowHost host(s);
    s.windows = &host;
    const auto open = [&] {
        auto *review = host.link<CalculationReview>(kWindow);
        const bool valid = review && review->ZOBCalculationsValid();
        if (valid)
            host.show(kWindow);
        QApplication::processEvents();
        host.unload(kWindow);
        QApplication::processEvents();
        return valid;
    };
    // One opening with the connection traced gives the statements; the first opening also warms up.
    QStringList statements;
    sqlite3_trace_v2(s.gDB->handle(), SQLITE_TRACE_STMT, collect, &statements);
    if (!open()) {
        std::fprintf(stderr, "the review found no diet rows\n");
        return 1;
    }
    sqlite3_trace_v2(s.gDB->handle(), 0, nullptr, nullptr);
    if (qEnvironmentVariableIsSet("ZOB_BENCH_SHOW_SQL"))
        for (const QString &sql : statements)
            std::printf("%s\n", qPrintable(sql));
    sqlite3 *direct = nullptr;
    sqlite3_open_v2(s.gDB->handle() ? sqlite3_db_filename(s.gDB->handle(), "main") : "", &direct, SQLITE_OPEN_READONLY, nullptr);
    registerJetFunctions(direct);

    std::vector<double> window, sqlite;
    for (int i = 0; i < kRuns; ++i) {
        window.push_back(benchMillis(open));
        sqlite.push_back(benchMillis([&] {
            for (const QString &sql : statements)
                runDirect(direct, sql);
        }));
    }
    sqlite3_close(direct);
    const double a = benchMedian(window), d = benchMedian(sqlite);
    std::printf("Calculation review on a 5-item diet, seeded database, %d runs (median ms)\n", kRuns);
    std::printf("  window %8.3f  sqlite %8.3f (%lld statements)  ratio %6.1f\n", a, d, static_cast<long long>(statements.size()), a / d);
    return 0;
}
