// SPDX-License-Identifier: MIT
#include "frmSelect_WaterConversion.h"

#include "ControlValue.h"
#include "FormBuilder.h"
#include "QtWindowHost.h"
#include "Session.h"
#include "VbFormat.h"

#include <QLineEdit>

namespace {
const WindowRegistration<frmSelect_WaterConversion> reg(QStringLiteral("frmSelect_WaterConversion"));
}  // namespace

PickerProfile frmSelect_WaterConversion::profile()
{
    PickerProfile p;
    p.caption = QStringLiteral("Select Moisture Content");
    p.table = QStringLiteral("tblWaterConversion");
    p.key = QStringLiteral("WaterConversionID");
    p.dataControl = QStringLiteral("dcMoisture");
    p.entryWindow = QStringLiteral("frmDE_WaterConversion");
    p.helpContext = 2524;
    p.listSql = QStringLiteral(
        "SELECT tblWaterConversion.*, tblComponent.Description AS Component, tblLifeStage.Description AS Lifestage, "
        "qryReference.Reference FROM ((qryReference RIGHT JOIN tblWaterConversion ON qryReference.ReferenceID = "
        "tblWaterConversion.ReferenceID) LEFT JOIN tblComponent ON tblWaterConversion.ComponentID = "
        "tblComponent.ComponentID) LEFT JOIN tblLifeStage ON tblWaterConversion.LifestageID = tblLifeStage.LifeStageID");
    p.columns = {{"Item"}, {"Lifestage"}, {"Component"}, {"Mean", "% Water"}, {"Max"}, {"Min"},
                 {"Genus"}, {"Species"}, {"WaterConversionID"}};
    p.firstSort = QStringLiteral("tblWaterConversion!Item");
    p.filterSort = QStringLiteral("Item");
    p.writeFilterSort = QStringLiteral("Name");
    p.typed = {QStringLiteral("WaterConversionID"), QStringLiteral("WaterPercent"), QStringLiteral("WaterPercentDS"),
               QStringLiteral("Mean")};
    p.selectOpensEntry = true;
    p.entryAlwaysWrites = true;
    p.quietWhenCallerGone = true;
    return p;
}

frmSelect_WaterConversion::frmSelect_WaterConversion(Session &session, QtWindowHost &host)
    : FilteredPicker(session, host, QStringLiteral("frmSelect_WaterConversion"), profile())
{
    FormBuilder f = assignFrame().fields(2);
    m_txtWaterRatio[0] = f.textBox(QStringLiteral("txtWaterRatio"), 0, QStringLiteral("Water Content %:"));
    m_txtWaterRatio[1] = f.textBox(QStringLiteral("txtWaterRatio"), 1, QStringLiteral("Water ratio (dw/ww):"));
    FormBuilder::userTyped(m_txtWaterRatio[0]);
    connect(m_txtWaterRatio[0], &QLineEdit::textChanged, this,
            [this] { runCommand(QStringLiteral("txtWaterRatio_Change"), [this] { txtWaterRatio_Change(); }); });
}

float frmSelect_WaterConversion::typedValue() const
{
    return static_cast<float>(vb::Val(ControlValue::text(m_txtWaterRatio[0])));
}

void frmSelect_WaterConversion::txtWaterRatio_Change()
{
    const float water = typedValue();
    if (water > 100) {
        session().msgBox(QStringLiteral("Water content cannot be greater than 100 %."), QString(), MsgIcon::Warning);
        ControlValue::setText(m_txtWaterRatio[1], QStringLiteral("0"));
        return;
    }
    const float ratio = (100.0f - water) / 100.0f;
    ControlValue::setText(m_txtWaterRatio[1], vb::vbFormatSingle(ratio, QStringLiteral("###.000")));
}
