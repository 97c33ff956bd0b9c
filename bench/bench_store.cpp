// SPDX-License-Identifier: MIT
// Lookup-sized recordset opens and translator passes: the two costs every window routine pays.
#include "BenchSupport.h"
#include "Database.h"
#include "JetSql.h"
#include "Session.h"

#include <QCoreApplication>
#include <cstdio>

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    BenchSession bench;
    if (!bench.ok())
        return 1;
    Session &s = bench.session;
    constexpr int n = 10000;

    volatile int sink = 0;
    const double lookup = perCallMicros(n, [&](int i) {
        sink = sink + s.Lookup(QStringLiteral("tblDataSource"), QStringLiteral("Description"),
                               QStringLiteral("DataSourceID = %1").arg(i % 8))
                          .toString()
                          .size();
    });
    const double open = perCallMicros(n, [&](int i) {
        auto rs = s.gDB->OpenRecordset(QStringLiteral("Select * from tblDataSource Where DataSourceID = %1").arg(i % 8),
                                       RecordsetType::Snapshot);
        sink = sink + rs->RecordCount();
    });
    const QString statement = QStringLiteral(
        "SELECT tblWeight.*, qryReference.Reference FROM (tblWeight LEFT JOIN tblGender ON tblWeight.GenderID = "
        "tblGender.GenderID) RIGHT JOIN qryReference ON tblWeight.ReferenceID = qryReference.ReferenceID WHERE "
        "tblWeight.SpeciesID = 12 And tblGender.Description Like 'M*' And Not (tblWeight.Mean) Is Null "
        "Order By qryReference.Reference");
    const double translate = perCallMicros(n, [&](int) { sink = sink + translateJetSql(statement).size(); });

    std::printf("bench_store: %d iterations each\n", n);
    std::printf("  Lookup (open table, FindFirst, read field): %8.2f us/call\n", lookup);
    std::printf("  OpenRecordset snapshot, one-row SELECT:      %8.2f us/call\n", open);
    std::printf("  translateJetSql, 330-character join:         %8.2f us/call\n", translate);
    return 0;
}
