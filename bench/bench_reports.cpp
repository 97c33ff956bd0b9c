// SPDX-License-Identifier: MIT
// Each report rendered to a PDF file for seeded rows, 50 times: the median time per report, next to
// the median time of reading the report's own statement through the store in the same run. The
// scenario reported has the reference species, weight record and diet (copied with its items) and
// air, water, energy and soil rows; the project holds 40 scenarios.
#include "BenchSupport.h"
#include "Database.h"
#include "ActiveReport.h"
#include "Diet.h"
#include "Recordset.h"
#include "ReportLayout.h"
#include "clsProject.h"
#include "clsScenario.h"

#include <QGuiApplication>
#include <algorithm>
#include <vector>

namespace {
qint32 lastId(Session &s, const QString &table, const QString &key)
{
    auto rs = s.gDB->OpenRecordset(QStringLiteral("SELECT Max(%1) AS M FROM %2").arg(key, table), RecordsetType::Snapshot);
    return rs->field(0).toInt();
}

//! A project of 40 scenarios; the last has a wildlife row with species, weight and diet, and air,
//! water, metabolic and soil rows.
void seed(Session &s)
{
    Database &db = *s.gDB;
    db.Execute(QStringLiteral("INSERT INTO tblProject (Name, Purpose, Author, FileName) VALUES ('Bench', 'Timing', 'bench', 'bench.NAV')"));
    s.gProject->PID = lastId(s, QStringLiteral("tblProject"), QStringLiteral("ProjectID"));
    for (int i = 0; i < 40; ++i) {
        db.Execute(QStringLiteral("INSERT INTO tblScenario (Scenario_Type, Scenario_FileName, Scenario_Identifier_1, Comments) VALUES ('Wildlife', 's%1.ZOB', 'Species %1', 'Note %1')").arg(i));
        s.gScenario->SID = lastId(s, QStringLiteral("tblScenario"), QStringLiteral("ScenarioID"));
        db.Execute(QStringLiteral("INSERT INTO jtblProjectScenario (ProjectID, ScenarioID) VALUES (%1, %2)").arg(s.gProject->PID).arg(s.gScenario->SID));
    }
    const qint32 sid = s.gScenario->SID;
    db.Execute(QStringLiteral("INSERT INTO tblWildlife (ScenarioID, SpeciesID, Common, WeightID, Weight, WtSex, DietID, DietType) "
                              "VALUES (%1, 49, 'American toad', 88, 118.7, 'F', 2006, 1)").arg(sid));
    s.gScenario->DietID = 2006;
    s.gScenario->DietType = 1;
    AddWildlifeDiet(s, 2006);
    AddWildlifeDietItems(s, 2006);
    for (int type = 1; type <= 4; ++type)
        db.Execute(QStringLiteral("INSERT INTO tblIntakeZOB (ScenarioID, IntakeTypeID, BaseRate, AdjustedRate, DataSourceID, EstimatorID, IntakeModelID, Units_CF, SoilIngestionID) VALUES (%1, %2, 9.4, 12.5, 3, 1, %3, %4, %5)")
                       .arg(sid).arg(type).arg(type == 3 ? 8 : 0).arg(type == 3 ? 0.239 : 1.0).arg(type == 4 ? 1 : 0));
}

template <typename F>
double medianMillis(int n, F &&f)
{
    std::vector<double> times;
    for (int i = 0; i < n; ++i)
        times.push_back(benchMillis(f));
    return benchMedian(times);
}

void run(Session &s, ActiveReport &report, const QString &pdf)
{
    constexpr int n = 50;
    int pages = 0;
    const double render = medianMillis(n, [&] {
        const QList<ReportPage> laid = ReportLayout(report.letter).layout(report);
        pages = int(laid.size());
        ReportLayout::writePdf(laid, pdf, report.letter, report.name());
    });
    const QString sql = report.recordSource;
    const double read = medianMillis(n, [&] { s.gDB->OpenRecordset(sql, RecordsetType::Snapshot)->MoveLast(); });
    std::printf("  %-16s %d page(s), %d rows: %8.2f ms per PDF (median of %d), statement alone %6.3f ms, ratio %.0f\n",
                qPrintable(report.name()), pages, int(report.data().rows.size()), render, n, read, render / read);
}
}  // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    BenchSession bench;
    if (!bench.ok())
        return 1;
    Session &s = bench.session;
    s.gProject = std::make_shared<clsProject>(s);
    s.gScenario = std::make_shared<clsScenario>(s);
    seed(s);
    std::printf("bench_reports: layout and PDF of each report\n");
    const QString dir = s.home + QStringLiteral("/");
    QStringList names = reportDesigns().keys();
    names.sort(Qt::CaseInsensitive);
    for (const QString &name : names) {
        const std::unique_ptr<ActiveReport> report = reportDesigns().value(name)(s);
        run(s, *report, dir + name + QStringLiteral(".pdf"));
    }
    return 0;
}
