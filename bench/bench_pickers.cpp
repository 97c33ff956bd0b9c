// SPDX-License-Identifier: MIT
// Each filtered picker opened for a diet item and narrowed to the item's family, on a reference
// database 100 times the seeded size (made by tools/zobscale): the median time of the picker
// beside the median of the same statements run directly on SQLite. At this size each list statement
// takes seconds on SQLite itself (its join with the reference view), so the default is 3 runs;
// ZOB_BENCH_RUNS=100 gives the full count.
#include "BenchSupport.h"
#include "Database.h"
#include "JetSql.h"
#include "QtWindowHost.h"
#include "Recordset.h"
#include "Session.h"
#include "clsDietItem.h"
#include "clsScenario.h"
#include "frmSelect_AE.h"
#include "frmSelect_GE.h"
#include "frmSelect_TrophicLevel.h"
#include "frmSelect_WaterConversion.h"

#include <QApplication>
#include <QRadioButton>
#include <algorithm>
#include <sqlite3.h>
#include <vector>

namespace {
const int kRuns = qEnvironmentVariableIntValue("ZOB_BENCH_RUNS") > 0 ? qEnvironmentVariableIntValue("ZOB_BENCH_RUNS") : 3;

double median(std::vector<double> v)
{
    std::sort(v.begin(), v.end());
    return (v[v.size() / 2] + v[(v.size() - 1) / 2]) / 2;
}

template <typename F>
double timed(F &&f)
{
    const auto start = std::chrono::steady_clock::now();
    f();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

//! Runs a Jet statement on a connection of its own, reading every row.
int runDirect(sqlite3 *db, const QString &jetSql)
{
    sqlite3_stmt *st = nullptr;
    sqlite3_prepare_v2(db, translateJetSql(jetSql).toUtf8().constData(), -1, &st, nullptr);
    int rows = 0;
    while (sqlite3_step(st) == SQLITE_ROW)
        ++rows;
    sqlite3_finalize(st);
    return rows;
}
}  // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QTemporaryDir dir;
    const QString file = dir.filePath(QStringLiteral("ZOB.sqlite"));
    if (!QFile::copy(QStringLiteral(ZOB_BENCH_DB_LARGE), file)) {
        std::fprintf(stderr, "cannot copy %s\n", ZOB_BENCH_DB_LARGE);
        return 1;
    }
    QFile::setPermissions(file, QFile::ReadOwner | QFile::WriteOwner);
    Session s;
    s.home = dir.path();
    s.openDatabase();
    s.gScenario = std::make_shared<clsScenario>(s);
    s.gDietItem = std::make_shared<clsDietItem>(s);
    QtWindowHost host(s);
    s.windows = &host;
    sqlite3 *direct = nullptr;
    sqlite3_open_v2(file.toUtf8().constData(), &direct, SQLITE_OPEN_READONLY, nullptr);
    registerJetFunctions(direct);

    std::printf("Pickers opened for a diet item at the family level, 100x database, %d runs (median ms; ratio picker / sqlite)\n", kRuns);
    const std::pair<QString, PickerProfile> members[] = {
        {QStringLiteral("frmSelect_GE"), frmSelect_GE::profile()},
        {QStringLiteral("frmSelect_AE"), frmSelect_AE::profile()},
        {QStringLiteral("frmSelect_WaterConversion"), frmSelect_WaterConversion::profile()},
        {QStringLiteral("frmSelect_TrophicLevel"), frmSelect_TrophicLevel::profile()}};
    qint32 itemId = 990000000;
    for (const auto &[name, p] : members) {
        // A diet item classified like the first row of the table that has a family.
        auto row = s.gDB->OpenRecordset(QStringLiteral("Select * From %1 Where FamilyID > 0 Order By %2").arg(p.table, p.key),
                                        RecordsetType::Snapshot);
        const qint32 family = row->field(QStringLiteral("FamilyID")).toInt();
        s.gDB->Execute(QStringLiteral("Insert Into tblDietItem (DietItemID, DietID, Name, KingdomID, FamilyID) Values (%1, 1, "
                                      "'Bench', %2, %3)")
                           .arg(++itemId).arg(row->field(QStringLiteral("KingdomID")).toInt()).arg(family));
        RecordRequest r;
        r.recordId = itemId;
        r.table = QStringLiteral("tblDietItem");
        r.keyField = QStringLiteral("DietItemID");
        r.mode = QStringLiteral("ReadOnly");
        r.filter = true;
        std::vector<double> picker, sqlite;
        int listed = 0, listedDirect = 0;
        for (int i = 0; i < kRuns; ++i) {
            picker.push_back(timed([&] {
                ZobWindow *w = host.form(name);
                w->setRecord(r);
                w->Form_Activate();
                w->findChild<QRadioButton *>(QStringLiteral("optFilter(6)"))->click();
                listed = w->findChild<DataControl *>(p.dataControl)->rowCount();
                host.unload(name);
            }));
            sqlite.push_back(timed([&] {
                runDirect(direct, FilteredPicker::listStatement(p, QString(), 0, p.firstSort));
                runDirect(direct, QStringLiteral("Select * From tblDietItem WHERE tblDietItem.DietItemID = %1").arg(itemId));
                listedDirect = runDirect(direct, FilteredPicker::listStatement(p, QStringLiteral("FamilyID"), family, p.filterSort));
            }));
        }
        const double a = median(picker), b = median(sqlite);
        std::printf("  %-26s %5d rows  picker %8.2f  sqlite %8.2f  ratio %5.1f%s\n", qPrintable(name), listed, a, b, a / b,
                    listed == listedDirect ? "" : "  (row counts differ!)");
        std::fflush(stdout);
    }
    sqlite3_close(direct);
    return 0;
}
