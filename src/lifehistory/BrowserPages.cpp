// SPDX-License-Identifier: MIT
#include "BrowserPages.h"

#include "LifeHistorySql.h"
#include "LifeTablePage.h"

namespace BrowserPages {
namespace {
// The columns of the factor records (tblPOPDENS) as both factor pages show them.
const QList<GridColumn> kFactorColumns{
    {"Factor"}, {"Lifestage"}, {"mean", "Mean"}, {"min", "Min"}, {"max", "Max"}, {"sd_se", "SD/SE"},
    {"units", "Units"}, {"location", "Location"}, {"fldHabitat", "Habitat"}, {"fldMonthSeason", "Season"},
    {"notes", "Notes"}};

LifePage *factorPage(Session &s, FormBuilder &b, const QString &dc, const QString &grid, const QString &options,
                     const QStringList &captions, bool growth)
{
    return new LifeTablePage(
        s, b, dc, grid, {{options, QStringLiteral("Measure"), captions}},
        [growth](qint32 id, const QList<int> &chosen) {
            const QList<int> &factors = growth ? LifeHistorySql::growthFactors() : LifeHistorySql::intakeFactors();
            return LifeHistorySql::factorStatement(id, factors.value(chosen.value(0), factors.first()), growth);
        },
        kFactorColumns, QStringLiteral("txtReference") + dc.mid(2),
        QStringLiteral("The database holds no records of this measure for this species."));
}
}  // namespace

LifePage *intakeRates(Session &s, FormBuilder &b)
{
    return factorPage(s, b, QStringLiteral("dcIntakeAndMetabolicRates"), QStringLiteral("ssGrdIntakeAndMetabolicRates"),
                      QStringLiteral("optIntakeAndMetabolicRates"),
                      {"Metabolic Rate", "Inhalation Rate", "Water Ingestion Rate", "Food Ingestion Rate",
                       "Sediment Ingestion Rate"},
                      false);
}

LifePage *growthRate(Session &s, FormBuilder &b)
{
    return factorPage(s, b, QStringLiteral("dcBodySizeGrowthRate"), QStringLiteral("ssGrdBodySizeGrowthRate"),
                      QStringLiteral("optBodySizeGrowthRate"), {"Body Length", "Growth Rate", "Surface Area", "Body Fat"},
                      true);
}

LifePage *populationSpecifics(Session &s, FormBuilder &b)
{
    return new LifeTablePage(
        s, b, QStringLiteral("dcPopulationDensitySpecific"), QStringLiteral("ssGrdPopulationDensitySpecific"),
        {{QStringLiteral("optPopulationHabitatSpecific"), QStringLiteral("Records"), {"Pop Dynamics", "Range and Territory"}}},
        [](qint32 id, const QList<int> &chosen) {
            return LifeHistorySql::populationStatement(id, chosen.value(0) == 0 ? QStringLiteral("POPDYN") : QStringLiteral("RANGE"));
        },
        {{"Measure"}, {"Gender", "Sex"}, {"Lifestage"}, {"mean", "Mean"}, {"min", "Min"}, {"max", "Max"},
         {"sd_se", "SD/SE"}, {"units", "Units"}, {"location", "Location"}, {"fldHabitat", "Habitat"},
         {"fldMonthSeason", "Season"}, {"notes", "Notes"}},
        QStringLiteral("txtReferencePopulationDensitySpecific"),
        QStringLiteral("The database holds no population records of this kind for this species."));
}

LifePage *seasonalSpecifics(Session &s, FormBuilder &b)
{
    return new LifeTablePage(
        s, b, QStringLiteral("dcSeasonalActivitySpecific"), QStringLiteral("ssGrdSeasonalActivitySpecific"),
        {{QStringLiteral("optSeasonActivitySpecific"), QStringLiteral("Activity"),
          {"Breed/Social", "Dispersal", "Temp Reg/Development"}}},
        [](qint32 id, const QList<int> &chosen) {
            static const char *classes[] = {"reproduction", "dispersal", "tempreg/develop"};
            return LifeHistorySql::seasonStatement(id, QString::fromLatin1(classes[qBound(0, chosen.value(0), 2)]));
        },
        {{"Activity_type", "Activity"}, {"begmonth_code", "Begins (month)"}, {"peakmonth_code", "Peak (month)"},
         {"endmonth_code", "Ends (month)"}, {"location", "Location"}, {"notes", "Notes"}},
        QStringLiteral("txtReferenceSeasonalActivitySpecific"),
        QStringLiteral("The database holds no seasonal records of this kind for this species."));
}

LifePage *specificWeights(Session &s, FormBuilder &b)
{
    return new LifeTablePage(
        s, b, QStringLiteral("dcBodySizeSpecificWeights"), QStringLiteral("SSDBGrid2"),
        {{QStringLiteral("optBodySizeSex"), QStringLiteral("Sex"), {"Male", "Female", "Both", "All"}, 3},
         {QStringLiteral("optBodySizeLS"), QStringLiteral("Lifestage"), {"Adult", "Non-adult", "All"}, 2},
         {QStringLiteral("optBodySizeStatus"), QStringLiteral("Status"), {"Captive", "Wild", "All"}, 2}},
        [](qint32 id, const QList<int> &chosen) {
            return LifeHistorySql::weightStatement(id, chosen.value(0), chosen.value(1), chosen.value(2));
        },
        {{"Gender", "Sex"}, {"Status"}, {"Lifestage"}, {"Mean", "Mean (g)"}, {"Min", "Min (g)"}, {"Max", "Max (g)"},
         {"Sample", "N"}, {"VarValue", "Variance"}, {"VarianceType", "Variance Type"}, {"BegMonth", "Begins"},
         {"EndMonth", "Ends"}, {"Habitat"}, {"Location"}, {"Region"}, {"Notes"}},
        QStringLiteral("Text2"), QStringLiteral("The database holds no body weights of this species with these choices."));
}

}  // namespace BrowserPages
