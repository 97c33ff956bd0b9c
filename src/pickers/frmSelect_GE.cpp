// SPDX-License-Identifier: MIT
#include "frmSelect_GE.h"

#include "QtWindowHost.h"

namespace {
const WindowRegistration<frmSelect_GE> reg(QStringLiteral("frmSelect_GE"));
}  // namespace

PickerProfile frmSelect_GE::profile()
{
    PickerProfile p;
    p.caption = QStringLiteral("Select Gross Energy");
    p.table = QStringLiteral("tblGrossEnergy");
    p.key = QStringLiteral("GrossEnergyID");
    p.dataControl = QStringLiteral("dcGrossEnergy");
    p.entryWindow = QStringLiteral("frmDE_GE");
    p.listSql = QStringLiteral(
        "SELECT tblGrossEnergy.GrossEnergyID, tblGrossEnergy.Item, tblLifeStage.Description AS Lifestage, "
        "tblComponent.Description AS Component, tblGrossEnergy.Min_W, tblGrossEnergy.Max_W,tblGrossEnergy.Min_D, "
        "tblGrossEnergy.Max_D, tblGrossEnergy.DRY_WT_KCALG, tblGrossEnergy.WET_WT_KCALG, qryReference.Reference "
        "FROM ((qryReference RIGHT JOIN tblGrossEnergy ON qryReference.ReferenceID = tblGrossEnergy.ReferenceID) "
        "LEFT JOIN tblComponent ON tblGrossEnergy.ComponentID = tblComponent.ComponentID) "
        "LEFT JOIN tblLifeStage ON tblGrossEnergy.LifestageID = tblLifeStage.LifeStageID");
    p.columns = inGroup(QStringLiteral("Gross Energy Details"), {{"Item"}, {"Lifestage"}, {"Component"}, {"GrossEnergyID"}})
                + inGroup(QStringLiteral("Gross Energy(kcal/g) - Wet"), {{"WET_WT_KCALG", "Mean"}, {"Min_W", "Min"}, {"Max_W", "Max"}})
                + inGroup(QStringLiteral("Gross Energy(kcal/g) -  Dry"), {{"DRY_WT_KCALG", "Mean"}, {"Min_D", "Min"}, {"Max_D", "Max"}});
    p.firstSort = p.filterSort = QStringLiteral("tblGrossEnergy!Item");
    return p;
}

frmSelect_GE::frmSelect_GE(Session &session, QtWindowHost &host)
    : FilteredPicker(session, host, QStringLiteral("frmSelect_GE"), profile())
{
}
