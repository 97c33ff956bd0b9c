// SPDX-License-Identifier: MIT
#include "frmDE_IntakeMeasured.h"

#include "Lookups.h"
#include "QtWindowHost.h"
#include "Session.h"
#include "VbFormat.h"

namespace {
const WindowRegistration<frmDE_IntakeMeasured> reg(QStringLiteral("frmDE_IntakeMeasured"));

EntryProfile entryProfile()
{
    return {.caption = QStringLiteral("Measured Intake Data Entry"), .table = QStringLiteral("tblIntakeMeasured"),
            .key = QStringLiteral("IntakeMeasuredID"), .dataControl = QStringLiteral("dcIntake"),
            .saveRoutine = QStringLiteral("SaveIntake"), .position = QStringLiteral("Intake: %1 of %2"),
            .hasSelect = false, .speciesPanel = true};
}
}  // namespace

frmDE_IntakeMeasured::frmDE_IntakeMeasured(Session &session, QtWindowHost &host)
    : EntryWindow(session, host, QStringLiteral("frmDE_IntakeMeasured"), entryProfile())
{
    FormBuilder what = body().frame(QStringLiteral("fraIntake"), QStringLiteral("Intake")).fields(2);
    listField(what, QStringLiteral("cboIntakeType"), QStringLiteral("Intake Type:"), QStringLiteral("IntakeTypeID"), Lookups::intakeType());
    listField(what, QStringLiteral("cboUnits"), QStringLiteral("Units:"), QStringLiteral("UnitsID"), Lookups::units());
    listField(what, QStringLiteral("cboGender"), QStringLiteral("Gender:"), QStringLiteral("GenderID"), Lookups::gender());
    listField(what, QStringLiteral("cboStatus"), QStringLiteral("Status:"), QStringLiteral("StatusID"), Lookups::status());
    FormBuilder stats = body().frame(QStringLiteral("fraMeasurement"), QStringLiteral("Measurement")).fields(2);
    textField(stats, QStringLiteral("txtMean"), QStringLiteral("Mean:"), QStringLiteral("Mean"));
    spreadFields(stats);
    dataSourceField(stats);
    FormBuilder notes = body().fields();
    textField(notes, QStringLiteral("txtNote"), QStringLiteral("Note:"), QStringLiteral("Note"), 3);
    referenceFrame(body());
    resize(720, 560);
}

void frmDE_IntakeMeasured::AddRecord(qint32 speciesId)
{
    openOn(session().GetNewRecordID(profile().table, profile().key, QStringLiteral("SpeciesID"), speciesId, 0),
           QStringLiteral("Write"));
}

void frmDE_IntakeMeasured::newRecord()
{
    const QVariant species = currentValue(QStringLiteral("SpeciesID"));
    AddRecord(species.isNull() ? 0 : vb::CLng(species));
}
