// SPDX-License-Identifier: MIT
#include "frmDE_Weight.h"

#include "Lookups.h"
#include "QtWindowHost.h"
#include "Session.h"
#include "VbFormat.h"

namespace {
const WindowRegistration<frmDE_Weight> reg(QStringLiteral("frmDE_Weight"));

EntryProfile entryProfile()
{
    return {.caption = QStringLiteral("Weight information"), .table = QStringLiteral("tblWeight"),
            .key = QStringLiteral("WeightID"), .dataControl = QStringLiteral("dcWeight"),
            .saveRoutine = QStringLiteral("SaveWeight"), .position = QStringLiteral("Species Weight: %1 of %2"),
            .speciesPanel = true};
}
}  // namespace

frmDE_Weight::frmDE_Weight(Session &session, QtWindowHost &host)
    : EntryWindow(session, host, QStringLiteral("frmDE_Weight"), entryProfile())
{
    FormBuilder stats = body().frame(QStringLiteral("fraMeasurement"), QStringLiteral("Measurement")).fields(2);
    textField(stats, QStringLiteral("txtMean"), QStringLiteral("Mean (g):"), QStringLiteral("Mean"));
    spreadFields(stats, QStringLiteral("g"));
    listField(stats, QStringLiteral("cboStatus"), QStringLiteral("Status:"), QStringLiteral("StatusID"), Lookups::status());
    dataSourceField(stats);
    FormBuilder where = body().frame(QStringLiteral("fraCollection"), QStringLiteral("Collection Information")).fields();
    textField(where, QStringLiteral("txtRegion"), QStringLiteral("Region:"), QStringLiteral("Region"));
    textField(where, QStringLiteral("txtNotes"), QStringLiteral("Notes:"), QStringLiteral("Notes"), 3);
    referenceFrame(body());
    resize(720, 560);
}

QString frmDE_Weight::recordSource(qint32 id) const
{
    const QString head = QStringLiteral("SELECT tblWeight.*, qryReference.Reference FROM qryReference RIGHT JOIN tblWeight ON "
                                        "qryReference.ReferenceID = tblWeight.ReferenceID");
    if (recordRequest().mode == QLatin1String("Read")) {
        // Every weight of the species: the id is the species', or that of one of its weights.
        qint32 species = id;
        if (recordRequest().keyField.compare(profile().key, Qt::CaseInsensitive) == 0) {
            const QVariant v = session().Lookup(profile().table, QStringLiteral("SpeciesID"), QStringLiteral("WeightID = %1").arg(id));
            species = v.toString() == QLatin1String("not found") ? 0 : vb::CLng(v);
        }
        return head + QStringLiteral(" WHERE tblWeight.SpeciesID = %1").arg(species);
    }
    return head + QStringLiteral(" WHERE tblWeight.WeightID = %1").arg(id);
}

void frmDE_Weight::newRecord()
{
    const QVariant species = currentValue(QStringLiteral("SpeciesID"));
    const qint32 speciesId = species.isNull() ? 0 : vb::CLng(species);
    const qint32 id = session().GetNewRecordID(profile().table, profile().key, QStringLiteral("SpeciesID"), speciesId, 0);
    if (recordRequest().mode != QLatin1String("Read")) {
        openOn(id, QStringLiteral("Write"));
        return;
    }
    LoadData();
    record()->moveToId(id);
}
