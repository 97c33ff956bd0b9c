// SPDX-License-Identifier: MIT
#include "frmSelect_TrophicLevel.h"

#include "ControlValue.h"
#include "FormBuilder.h"
#include "QtWindowHost.h"
#include "VbFormat.h"

#include <QLineEdit>

namespace {
const WindowRegistration<frmSelect_TrophicLevel> reg(QStringLiteral("frmSelect_TrophicLevel"));
}  // namespace

PickerProfile frmSelect_TrophicLevel::profile()
{
    PickerProfile p;
    p.caption = QStringLiteral("Select Trophic Level");
    p.table = QStringLiteral("tblTrophicLevel");
    p.key = QStringLiteral("TrophicLevelID");
    p.dataControl = QStringLiteral("dcTL");
    p.entryWindow = QStringLiteral("frmDE_TrophicLevel");
    p.helpContext = 2524;
    p.listSql = QStringLiteral(
        "SELECT tblTrophicLevel.*, qryReference.Reference, tblHabitatType.Description AS Habitat FROM "
        "(qryReference RIGHT JOIN tblTrophicLevel ON qryReference.ReferenceID = tblTrophicLevel.ReferenceID) "
        "LEFT JOIN tblHabitatType ON tblTrophicLevel.HabitatTypeID = tblHabitatType.HabitatTypeID");
    p.columns = {{"Item"}, {"TrophicLevel"}, {"Species"}, {"Genus"}, {"Habitat"}, {"TrophicLevelID"}};
    p.firstSort = QStringLiteral("Item");
    p.filterSort = QStringLiteral("tblTrophicLevel!Item");
    p.typed = {QStringLiteral("TrophicLevelID"), QStringLiteral("TrophicLevel"), QStringLiteral("TrophiclevelDS"),
               QStringLiteral("TrophicLevel")};
    return p;
}

frmSelect_TrophicLevel::frmSelect_TrophicLevel(Session &session, QtWindowHost &host)
    : FilteredPicker(session, host, QStringLiteral("frmSelect_TrophicLevel"), profile())
{
    FormBuilder f = assignFrame().fields();
    m_txtTL = f.textBox(QStringLiteral("txtTL"), QStringLiteral("Trophic Level:"));
    FormBuilder::userTyped(m_txtTL);
}

float frmSelect_TrophicLevel::typedValue() const
{
    return static_cast<float>(vb::Val(ControlValue::text(m_txtTL)));
}
