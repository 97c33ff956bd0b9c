// SPDX-License-Identifier: MIT
// The scenario builder opened on a saved scenario (its load and first activation, with the species,
// weight, diet and intake pages filled), 200 times on the seeded database: the median time beside the
// median time of the same read statements, as SQLite traced them, run directly on SQLite.
#include "BenchSupport.h"
#include "Database.h"
#include "Diet.h"
#include "QtWindowHost.h"
#include "Services.h"
#include "clsDietItem.h"
#include "clsScenario.h"

#include <QApplication>
#include <QList>
#include <algorithm>
#include <sqlite3.h>
#include <vector>

namespace {
constexpr int kRuns = 200;

double median(std::vector<double> v)
{
    std::sort(v.begin(), v.end());
    return (v[v.size() / 2] + v[(v.size() - 1) / 2]) / 2;
}

template <typename F>
double timedMs(F &&f)
{
    const auto start = std::chrono::steady_clock::now();
    f();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

//! Answers every box with its default button.
class QuietMessages : public MessageService {
public:
    MsgAnswer show(const QString &, const QString &, MsgIcon, MsgButtons buttons, int defaultButton) override
    {
        return buttonsOf(buttons).value(std::max(0, defaultButton - 1), MsgAnswer::OK);
    }
};

//! The read statements SQLite runs while the trace is on.
QList<QByteArray> g_reads;
int onStatement(unsigned, void *, void *stmt, void *)
{
    char *text = sqlite3_expanded_sql(static_cast<sqlite3_stmt *>(stmt));
    if (!text)
        return 0;
    const QByteArray sql(text);
    sqlite3_free(text);
    if (sql.trimmed().left(6).toUpper() == "SELECT")
        g_reads << sql;
    return 0;
}

void replay(sqlite3 *db) { replayStatements(db, g_reads); }

//! A saved scenario of the American robin with a weight, a diet of the reference data and two rates.
void makeScenario(Session &s)
{
    clsScenario &sc = *s.gScenario;
    sc.AddNew(QStringLiteral("Wildlife"));
    sc.FilePath = s.home;
    sc.FileName = QStringLiteral("bench.ZOB");
    sc.SpeciesID = 1;
    sc.Species_DataSource = 5;
    s.gSpeciesCommon = QStringLiteral("American robin");
    s.gSpeciesLatin = QStringLiteral("Turdus migratorius");
    s.gSpeciesTaxon = QStringLiteral("Birds");
    sc.WeightID = 1;
    sc.Weight = 84.9f;
    sc.Wt_DataSource = 4;
    sc.DietID = 1;
    sc.Diet_DataSource = 4;
    sc.Save(QStringLiteral("All"));
    AddWildlifeDiet(s, 1);
    AddWildlifeDietItems(s, 1);
    s.gDB->Execute(QStringLiteral("Update tblIntakeZOB Set AdjustedRate = 2.5, DataSourceID = 2 Where IntakeTypeID < 3 And ScenarioID = %1").arg(sc.SID));
}
}  // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    BenchSession bench;
    if (!bench.ok())
        return 1;
    Session &s = bench.session;
    QuietMessages messages;
    s.messages = &messages;
    s.userOverride = QStringLiteral("bench");
    s.startUser();
    s.gScenario = std::make_shared<clsScenario>(s);
    s.gDietItem = std::make_shared<clsDietItem>(s);
    QtWindowHost host(s);
    s.windows = &host;
    makeScenario(s);
    const clsScenario saved = *s.gScenario;
    auto reopen = [&] {
        clsScenario &sc = *s.gScenario;
        sc.SID = saved.SID;
        sc.Mode = QStringLiteral("Edit");
        sc.FilePath = saved.FilePath;
        sc.FileName = saved.FileName;
    };

    std::vector<double> window;
    std::vector<double> direct;
    sqlite3 *db = s.gDB->handle();
    for (int i = 0; i < kRuns; ++i) {
        reopen();
        const bool trace = i == 0;
        if (trace)
            sqlite3_trace_v2(db, SQLITE_TRACE_STMT, &onStatement, nullptr);
        window.push_back(timedMs([&] { host.show(QStringLiteral("frmZOB")); }));
        if (trace)
            sqlite3_trace_v2(db, 0, nullptr, nullptr);
        host.unload(QStringLiteral("frmZOB"));
        // The event loop's work between two commands: without it the posted events of every run pile
        // up and each later window pays for searching them.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
        direct.push_back(timedMs([&] { replay(db); }));
    }
    const double app_ms = median(window);
    const double sql_ms = median(direct);
    std::printf("Scenario builder opened on a saved scenario, all four pages filled, seeded database, %d runs (median ms)\n", kRuns);
    std::printf("%-44s %10s %10s %8s %6s\n", "what", "builder", "sqlite", "ratio", "reads");
    std::printf("%-44s %10.2f %10.3f %8.1f %6lld\n", "frmZOB load + activate", app_ms, sql_ms, sql_ms > 0 ? app_ms / sql_ms : 0.0,
                static_cast<long long>(g_reads.size()));
    return 0;
}
