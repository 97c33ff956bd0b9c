// SPDX-License-Identifier: MIT
#include "frmDE_TrophicLevel.h"

#include "Lookups.h"
#include "QtWindowHost.h"

namespace {
const WindowRegistration<frmDE_TrophicLevel> reg(QStringLiteral("frmDE_TrophicLevel"));

EntryProfile entryProfile()
{
    return {.caption = QStringLiteral("Trophic Level Data Entry"), .table = QStringLiteral("tblTrophicLevel"),
            .key = QStringLiteral("TrophicLevelID"), .dataControl = QStringLiteral("dcTrophicLevel"),
            .saveRoutine = QStringLiteral("SaveTrophicLevel"), .picker = QStringLiteral("frmSelect_TrophicLevel"),
            .newAddsRow = true, .hasSelect = false};
}
}  // namespace

frmDE_TrophicLevel::frmDE_TrophicLevel(Session &session, QtWindowHost &host)
    : EntryWindow(session, host, QStringLiteral("frmDE_TrophicLevel"), entryProfile())
{
    FormBuilder item = body().frame(QStringLiteral("fraTrophicLevel"), QStringLiteral("Trophic Level")).fields(2);
    textField(item, QStringLiteral("txtItem"), QStringLiteral("Item:"), QStringLiteral("Item"));
    listField(item, QStringLiteral("cboHabitat"), QStringLiteral("Habitat:"), QStringLiteral("HabitatTypeID"),
              QStringLiteral("Select tblHabitatType.* from tblHabitatType"));
    textField(item, QStringLiteral("txtGenus"), QStringLiteral("Genus:"), QStringLiteral("Genus"));
    textField(item, QStringLiteral("txtSpecies"), QStringLiteral("Species:"), QStringLiteral("Species"));
    dataSourceField(item);

    FormBuilder stats = body().frame(QStringLiteral("fraMeasurement"), QStringLiteral("Measurement")).fields(2);
    textField(stats, QStringLiteral("txtTrophicLevel"), QStringLiteral("Trophic Level:"), QStringLiteral("TrophicLevel"));
    spreadFields(stats);

    FormBuilder texts = body().frame(QStringLiteral("fraClassification"), QStringLiteral("Classification")).fields();
    classificationField(texts, QStringLiteral("Write"));
    textField(texts, QStringLiteral("txtNotes"), QStringLiteral("Notes:"), QStringLiteral("Notes"), 3);
    referenceFrame(body());
    resize(760, 600);
}

QString frmDE_TrophicLevel::recordSource(qint32 id) const
{
    return QStringLiteral("SELECT tblTrophicLevel.*, qryReference.Reference FROM qryReference RIGHT JOIN tblTrophicLevel ON "
                          "qryReference.ReferenceID = tblTrophicLevel.ReferenceID Where TrophicLevelID = %1")
        .arg(id);
}
