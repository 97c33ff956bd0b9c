// SPDX-License-Identifier: MIT
#include "frmDE_AE.h"

#include "Lookups.h"
#include "QtWindowHost.h"

namespace {
const WindowRegistration<frmDE_AE> reg(QStringLiteral("frmDE_AE"));

EntryProfile entryProfile()
{
    return {.caption = QStringLiteral("Assimilation Efficiency Data Entry"), .table = QStringLiteral("tblAE"),
            .key = QStringLiteral("AEID"), .dataControl = QStringLiteral("dcAE"),
            .saveRoutine = QStringLiteral("SaveAE"), .picker = QStringLiteral("frmSelect_AE")};
}
}  // namespace

frmDE_AE::frmDE_AE(Session &session, QtWindowHost &host)
    : EntryWindow(session, host, QStringLiteral("frmDE_AE"), entryProfile())
{
    FormBuilder consumer = body().frame(QStringLiteral("fraAE_Predator"), QStringLiteral("Consumer Classification")).fields(2);
    textField(consumer, QStringLiteral("txtConsumerName"), QStringLiteral("Consumer:"), QStringLiteral("ConsumerName"));
    listField(consumer, QStringLiteral("cboAE"), QStringLiteral("Taxon:"), QStringLiteral("TaxonID"), Lookups::taxon());
    textField(consumer, QStringLiteral("txtConsumerGenus"), QStringLiteral("Genus:"), QStringLiteral("ConsumerGenus"));
    textField(consumer, QStringLiteral("txtConsumerSpecies"), QStringLiteral("Species:"), QStringLiteral("ConsumerSpecies"));
    dataSourceField(consumer);

    FormBuilder food = body().frame(QStringLiteral("fraAE_FoodItem"), QStringLiteral("Food Item Classification"));
    FormBuilder names = food.fields(2);
    textField(names, QStringLiteral("txtFoodName"), QStringLiteral("Food Item:"), QStringLiteral("FoodName"));
    listField(names, QStringLiteral("ssFoodGroup"), QStringLiteral("Food Group:"), QStringLiteral("FoodGroupID"), Lookups::foodGroup());
    textField(names, QStringLiteral("txtFoodGenus"), QStringLiteral("Genus:"), QStringLiteral("FoodGenus"));
    textField(names, QStringLiteral("txtFoodSpecies"), QStringLiteral("Species:"), QStringLiteral("FoodSpecies"));
    FormBuilder texts = food.fields();
    classificationField(texts, QStringLiteral("Write"));
    textField(texts, QStringLiteral("txtAE(0)"), QStringLiteral("Comments:"), QStringLiteral("Comments"), 3);
    QWidget *values = texts.textBox(QStringLiteral("txtAE"), 1, QStringLiteral("AE Values:"));
    FormBuilder buttons = food.row();
    measurementButton(buttons, QStringLiteral("cmdAE_Values"), -1, QStringLiteral("&AE Values"), QStringLiteral("AE"), values);
    buttons.stretch();
    referenceFrame(body());
    resize(760, 560);
}
