// SPDX-License-Identifier: MIT
#include "frmDE_WaterConversion.h"

#include "Lookups.h"
#include "QtWindowHost.h"

namespace {
const WindowRegistration<frmDE_WaterConversion> reg(QStringLiteral("frmDE_WaterConversion"));

EntryProfile entryProfile()
{
    return {.caption = QStringLiteral("Moisture Content Data Entry"), .table = QStringLiteral("tblWaterConversion"),
            .key = QStringLiteral("WaterConversionID"), .dataControl = QStringLiteral("dcWaterConversion"),
            .saveRoutine = QStringLiteral("SaveWaterConversion"),
            .picker = QStringLiteral("frmSelect_WaterConversion"), .newAddsRow = true, .hasSelect = false};
}
}  // namespace

frmDE_WaterConversion::frmDE_WaterConversion(Session &session, QtWindowHost &host)
    : EntryWindow(session, host, QStringLiteral("frmDE_WaterConversion"), entryProfile())
{
    FormBuilder frame = body().frame(QStringLiteral("fraWaterConversion"), QStringLiteral("All Data must be Classified"));
    FormBuilder item = frame.fields(2);
    textField(item, QStringLiteral("txtItem"), QStringLiteral("Item:"), QStringLiteral("Item"));
    listField(item, QStringLiteral("ssFoodGroup"), QStringLiteral("Food Group:"), QStringLiteral("FoodGroupID"), Lookups::foodGroup());
    textField(item, QStringLiteral("txtGenus"), QStringLiteral("Genus:"), QStringLiteral("Genus"));
    textField(item, QStringLiteral("txtSpecies"), QStringLiteral("Species:"), QStringLiteral("Species"));
    listField(item, QStringLiteral("cboHabitat"), QStringLiteral("Habitat:"), QStringLiteral("HabitatTypeID"), Lookups::habitat());
    dataSourceField(item);
    FormBuilder texts = frame.fields();
    classificationField(texts, QStringLiteral("ReadOnly"));
    textField(texts, QStringLiteral("txtComments"), QStringLiteral("Comments:"), QStringLiteral("Comments"), 3);
    QWidget *values = texts.textBox(QStringLiteral("txtMoisture"), QStringLiteral("Moisture Values:"));
    FormBuilder buttons = frame.row();
    measurementButton(buttons, QStringLiteral("cmdMeasurement"), -1, QStringLiteral("&Moisture Values"), QStringLiteral("H2O"), values);
    buttons.stretch();
    referenceFrame(body());
    resize(760, 560);
}
