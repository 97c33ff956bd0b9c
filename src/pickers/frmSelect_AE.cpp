// SPDX-License-Identifier: MIT
#include "frmSelect_AE.h"

#include "QtWindowHost.h"

namespace {
const WindowRegistration<frmSelect_AE> reg(QStringLiteral("frmSelect_AE"));
}  // namespace

PickerProfile frmSelect_AE::profile()
{
    PickerProfile p;
    p.caption = QStringLiteral("Select Assimilation Efficiency");
    p.table = QStringLiteral("tblAE");
    p.key = QStringLiteral("AEID");
    p.dataControl = QStringLiteral("dcAE");
    p.entryWindow = QStringLiteral("frmDE_AE");
    p.listSql = QStringLiteral(
        "SELECT tblAE.AEID, tblAE.ConsumerName, tblAE.FoodName, tblLifeStage.Description AS Lifestage, "
        "tblComponent.Description AS Component, tblAE.Mean, tblAE.Min, tblAE.Max, qryReference.Reference "
        "FROM qryReference RIGHT JOIN ((tblAE LEFT JOIN tblComponent ON tblAE.ComponentID = tblComponent.ComponentID) "
        "LEFT JOIN tblLifeStage ON tblAE.LifestageID = tblLifeStage.LifeStageID) ON qryReference.ReferenceID = tblAE.ReferenceID");
    p.columns = inGroup(QStringLiteral("Assimilation Efficiency Details"),
                        {{"ConsumerName", "Consumer Name"}, {"FoodName", "Food Item"}, {"Lifestage"}, {"Component"}, {"AEID"}})
                + inGroup(QStringLiteral("Assimilation Efficiency Value (kcal/g)"), {{"Mean"}, {"Min"}, {"Max"}});
    p.firstSort = p.filterSort = QStringLiteral("tblAE!ConsumerName");
    return p;
}

frmSelect_AE::frmSelect_AE(Session &session, QtWindowHost &host)
    : FilteredPicker(session, host, QStringLiteral("frmSelect_AE"), profile())
{
}
