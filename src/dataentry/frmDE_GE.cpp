// SPDX-License-Identifier: MIT
#include "frmDE_GE.h"

#include "Diet.h"
#include "Lookups.h"
#include "QtWindowHost.h"

namespace {
const WindowRegistration<frmDE_GE> reg(QStringLiteral("frmDE_GE"));

EntryProfile entryProfile()
{
    return {.caption = QStringLiteral("Gross Energy Data Entry"), .table = QStringLiteral("tblGrossEnergy"),
            .key = QStringLiteral("GrossEnergyID"), .dataControl = QStringLiteral("dcGE"),
            .saveRoutine = QStringLiteral("SaveGrossEnergy"), .picker = QStringLiteral("frmSelect_GE"),
            .position = QStringLiteral("Gross Energy: %1 of %2"), .newAddsRow = true, .hasSelect = false};
}
}  // namespace

frmDE_GE::frmDE_GE(Session &session, QtWindowHost &host)
    : EntryWindow(session, host, QStringLiteral("frmDE_GE"), entryProfile())
{
    FormBuilder item = body().frame(QStringLiteral("fraGE"), QStringLiteral("Food Item")).fields(2);
    textField(item, QStringLiteral("txtItem"), QStringLiteral("Item:"), QStringLiteral("Item"));
    listField(item, QStringLiteral("ssFoodGroup"), QStringLiteral("Food Group:"), QStringLiteral("FoodGroupID"), Lookups::foodGroup());
    dataSourceField(item);

    FormBuilder values = body().frame(QStringLiteral("fraGE_Values"), QStringLiteral("Classification and Values"));
    FormBuilder texts = values.fields();
    classificationField(texts, QStringLiteral("ReadOnly"));
    textField(texts, QStringLiteral("txtGE(0)"), QStringLiteral("Comments:"), QStringLiteral("Comments"), 3);
    QWidget *wet = texts.textBox(QStringLiteral("txtGE"), 1, QStringLiteral("Wet weight:"));
    QWidget *dry = texts.textBox(QStringLiteral("txtGE"), 2, QStringLiteral("Dry weight:"));
    QWidget *moisture = texts.textBox(QStringLiteral("txtGE"), 3, QStringLiteral("Moisture:"));
    // The moisture text is read as a diet item's, by this record's id.
    computed(moisture, [this](qint32 id) { return GetWaterConversionText(this->session(), id, QStringLiteral("tblDietItem")); });
    FormBuilder buttons = values.row();
    measurementButton(buttons, QStringLiteral("cmdMeasurement"), 0, QStringLiteral("GE Values (kcal/g &wet wt)"), QStringLiteral("WW"), wet);
    measurementButton(buttons, QStringLiteral("cmdMeasurement"), 1, QStringLiteral("GE Values (kcal/g &dry wt)"), QStringLiteral("DW"), dry);
    recordButton(buttons, QStringLiteral("cmdMoistureContent"), -1, QStringLiteral("&Moisture Content"), [this] {
        openForRecord(QStringLiteral("frmSelect_WaterConversion"), QStringLiteral("ReadOnly"), 0, false, true);
        refreshComputed();
    });
    buttons.stretch();
    referenceFrame(body());
    resize(760, 560);
}
