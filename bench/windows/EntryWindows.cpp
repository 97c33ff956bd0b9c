// SPDX-License-Identifier: MIT
// The entry windows of the reference tables, each opened on the first record of its table as a
// picker's double click opens it, the measurements of a gross energy record over its entry window,
// and the species workbook, the diet item, the equation and the descriptor windows.
#include "DialogSupport.h"
#include "WindowBench.h"
#include "frmDE_Measurement.h"

namespace windowbench {

namespace {
struct Entry {
    const char *window;
    const char *table;
    const char *key;
};
const Entry kEntries[] = {
    {"frmDE_AE", "tblAE", "AEID"},
    {"frmDE_GE", "tblGrossEnergy", "GrossEnergyID"},
    {"frmDE_WaterConversion", "tblWaterConversion", "WaterConversionID"},
    {"frmDE_TrophicLevel", "tblTrophicLevel", "TrophicLevelID"},
    {"frmDE_SoilIngestion", "tblSoilIngestion", "SoilIngestionID"},
    {"frmDE_Weight", "tblWeight", "WeightID"},
    {"frmDE_IntakeMeasured", "tblIntakeMeasured", "IntakeMeasuredID"},
    {"frmDE_Reference", "tblReferences", "ReferenceID"},
    {"frmDE_Species", "tblSpecies", "SpeciesID"},
    {"frmDE_DietItem", "tblDietItem", "DietItemID"},
    {"frmDE_IntakeModel", "tblIntakeModel", "IntakeModelID"},
};

//! The first record of a table, to read, as a picker's double click asks for it.
RecordRequest firstRecord(WindowBench &b, const QString &table, const QString &key)
{
    RecordRequest r = recordOf(table, key, b.firstId(table, key), QStringLiteral("Read"));
    r.isSelection = false;
    return r;
}
}  // namespace

void benchEntryWindows(WindowBench &b)
{
    Program &p = b.p;
    for (const Entry &e : kEntries) {
        const RecordRequest r = firstRecord(b, QString::fromLatin1(e.table), QString::fromLatin1(e.key));
        const QString window = QString::fromLatin1(e.window);
        b.open(window, &r);
        b.close(window);
    }

    // The measurements of the first gross energy record, from its entry window's wet weight button.
    const RecordRequest ge = firstRecord(b, QStringLiteral("tblGrossEnergy"), QStringLiteral("GrossEnergyID"));
    b.show(QStringLiteral("frmDE_GE"), &ge);
    const QString measurement = QStringLiteral("frmDE_Measurement");
    b.action(QStringLiteral("frmDE_Measurement open"), [&] { b.close(measurement); },
             [&] {
                 if (auto *w = p.host.form<frmDE_Measurement>(measurement)) {
                     w->PuS_SetRecord(ge.recordId, ge.keyField, ge.table, QStringLiteral("WW"));
                     p.host.show(measurement);
                 }
             });
    b.close(measurement);
    b.close(QStringLiteral("frmDE_GE"));

    RecordRequest blank;
    blank.isSelection = false;
    b.open(QStringLiteral("frmDE_Descriptor"), &blank);
    b.close(QStringLiteral("frmDE_Descriptor"));
}

}  // namespace windowbench
