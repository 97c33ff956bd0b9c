// SPDX-License-Identifier: MIT
// The full calculation of one scenario on the seeded database: FMR, MEavg, TDI, DD, the itemised
// statement with its rows, and the base and adjusted rates of three intake models.
#include "BenchSupport.h"
#include "Calculations.h"
#include "Diet.h"
#include "Intake.h"
#include "Session.h"
#include "VbFormat.h"
#include "Wildlife.h"
#include "clsDietItem.h"
#include "clsProject.h"
#include "clsScenario.h"

#include <QCoreApplication>
#include <array>
#include <cstdio>

namespace {

//! The scenario the bench computes: a species with a copyable diet and models for air, water and food.
struct Choice {
    qint32 speciesId = 0;
    QString common;
    qint32 dietId = 0;
    float weight = 0.0f;
    std::array<qint32, 3> models{};  // intake types 1, 2, 3
};

QVariant first(Session &s, const QString &jetSql)
{
    auto rs = s.gDB->OpenRecordset(jetSql, RecordsetType::Snapshot);
    return rs->EOF_() ? QVariant() : rs->field(0);
}

//! The first species (by id) with a diet of at least three items that all have moisture, AE and gross
//! energy rows, a body weight, and an intake model with a weight unit for each of air, water and food.
bool chooseScenario(Session &s, Choice &c)
{
    auto rs = s.gDB->OpenRecordset(
        QStringLiteral(
            "SELECT tblSpecies.SpeciesID, tblSpecies.Common, tblSpecies.TaxonID, tblDiet.DietID FROM tblSpecies INNER "
            "JOIN tblDiet ON tblSpecies.SpeciesID = tblDiet.SpeciesID WHERE (SELECT Count(*) FROM tblDietItem WHERE "
            "tblDietItem.DietID = tblDiet.DietID) >= 3 AND tblDiet.DietID Not In (SELECT DietID FROM tblDietItem WHERE "
            "WaterConversionID Is Null OR AEID Is Null OR GrossEnergyID Is Null OR WaterConversionID Not In (SELECT "
            "WaterConversionID FROM tblWaterConversion) OR AEID Not In (SELECT AEID FROM tblAE) OR GrossEnergyID Not "
            "In (SELECT GrossEnergyID FROM tblGrossEnergy)) AND tblSpecies.SpeciesID In (SELECT SpeciesID FROM "
            "tblWeight WHERE Mean > 0) ORDER BY tblSpecies.SpeciesID, tblDiet.DietID"),
        RecordsetType::Snapshot);
    for (; !rs->EOF_(); rs->MoveNext()) {
        const qint32 taxon = rs->field(QStringLiteral("TaxonID")).toInt();
        bool complete = true;
        for (int type = 1; type <= 3 && complete; ++type) {
            const QVariant id = first(s, QStringLiteral("SELECT tblIntakeModel.IntakeModelID FROM tblIntakeModel INNER "
                                                        "JOIN tblUnits ON tblIntakeModel.WtUnitsID = tblUnits.UnitsID "
                                                        "WHERE tblIntakeModel.TaxonID = %1 AND tblIntakeModel.IntakeTypeID "
                                                        "= %2 ORDER BY tblIntakeModel.IntakeModelID")
                                             .arg(taxon)
                                             .arg(type));
            complete = id.isValid();
            if (complete)
                c.models[type - 1] = id.toInt();
        }
        if (!complete)
            continue;
        c.speciesId = rs->field(QStringLiteral("SpeciesID")).toInt();
        c.common = rs->field(QStringLiteral("Common")).toString();
        c.dietId = rs->field(QStringLiteral("DietID")).toInt();
        c.weight = vb::CSng(first(s, QStringLiteral("SELECT Mean FROM tblWeight WHERE SpeciesID = %1 AND Mean > 0 "
                                                    "ORDER BY WeightID").arg(c.speciesId)));
        return true;
    }
    return false;
}

//! Builds the scenario as the builder would: new rows, species and weight, the diet copied and summed
//! on its own basis, and the food energy row filled from its model.
void buildScenario(Session &s, const Choice &c)
{
    clsScenario &sc = *s.gScenario;
    sc.AddNew(QStringLiteral("Wildlife"));
    sc.SpeciesID = c.speciesId;
    sc.Weight = c.weight;
    s.gDB->Execute(QStringLiteral("Update tblWildlife Set SpeciesID = %1, Weight = %2 Where ScenarioID = %3")
                       .arg(c.speciesId)
                       .arg(vb::singleToText(c.weight))
                       .arg(sc.SID));
    if (ReplaceWildlifeDietItems(s)) {
        AddWildlifeDiet(s, c.dietId);
        AddWildlifeDietItems(s, c.dietId);
    }
    sc.DietID = c.dietId;
    const QVariant term = s.Lookup(QStringLiteral("tblDiet"), QStringLiteral("MeasureTermID"),
                                   QStringLiteral("DietID = %1").arg(c.dietId));
    const QVariant wet = s.Lookup(QStringLiteral("tblMeasureTerm"), QStringLiteral("WeightIsWet"),
                                  QStringLiteral("MeasureTermID = ") + vb::CStr(term));
    sc.DietType = wet.toBool() ? 1 : 0;
    SumProportions(s, sc.DietType != 0);
    for (int type = 1; type <= 3; ++type) {
        const qint32 model = c.models[type - 1];
        s.gDB->Execute(QStringLiteral("Update tblIntakeZOB Set IntakeModelID = %1, Derivation = 'Model', BaseRate = %2, "
                                      "AdjustedRate = %3 Where ScenarioID = %4 AND IntakeTypeID = %5")
                           .arg(model)
                           .arg(vb::vbFormat(GetIntakeRate(s, model, c.weight, QStringLiteral("Base")), QStringLiteral("0.0000")))
                           .arg(vb::doubleToText(GetIntakeRate(s, model, c.weight, QStringLiteral("Adjusted"))))
                           .arg(sc.SID)
                           .arg(type));
    }
}

struct Result {
    float fmr = 0, me = 0, tdi = 0, dd = 0;
    int items = 0;
    double itemised = 0;
    std::array<double, 6> rates{};
};

//! One full calculation of the scenario.
Result calculate(Session &s, const Choice &c)
{
    Result r;
    r.fmr = GetFMR_TDI(s, QStringLiteral("FMR"));
    r.me = GetMEAvg(s);
    r.tdi = GetFMR_TDI(s, QStringLiteral("TDI"));
    r.dd = GetDailyDryDiet(s);
    auto rows = s.gDB->OpenRecordset(CalculationSQL(s), RecordsetType::Snapshot);
    for (; !rows->EOF_(); rows->MoveNext()) {
        ++r.items;
        r.itemised += rows->field(QStringLiteral("Daily_Intake")).toDouble();
    }
    for (int i = 0; i < 3; ++i) {
        r.rates[2 * i] = GetIntakeRate(s, c.models[i], c.weight, QStringLiteral("Base"));
        r.rates[2 * i + 1] = GetIntakeRate(s, c.models[i], c.weight, QStringLiteral("Adjusted"));
    }
    return r;
}

}  // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    BenchSession bench;
    if (!bench.ok())
        return 1;
    Session &s = bench.session;
    s.userOverride = QStringLiteral("bench");
    s.gProject = std::make_shared<clsProject>(s);
    s.gScenario = std::make_shared<clsScenario>(s);
    s.gDietItem = std::make_shared<clsDietItem>(s);

    Choice choice;
    if (!chooseScenario(s, choice)) {
        std::fprintf(stderr, "bench_calc: the seeded database has no species with a copyable diet, a weight and "
                             "models for air, water and food\n");
        return 1;
    }
    buildScenario(s, choice);

    const Result r = calculate(s, choice);
    std::printf("bench_calc: %s (species %d, diet %d, %s basis, %s g), %d diet items\n", qPrintable(choice.common),
                choice.speciesId, choice.dietId, s.gScenario->DietType ? "wet" : "dry",
                qPrintable(vb::singleToText(choice.weight)), r.items);
    std::printf("  FMR %s kcal/d, MEavg %s kcal/g, TDI %s g/d, DD %s g/d, itemised sum %s g/d\n",
                qPrintable(vb::singleToText(r.fmr)), qPrintable(vb::singleToText(r.me)),
                qPrintable(vb::singleToText(r.tdi)), qPrintable(vb::singleToText(r.dd)),
                qPrintable(vb::vbFormat(r.itemised, QStringLiteral("#,##0.00"))));
    std::printf("  models %d/%d/%d: air %s -> %s, water %s -> %s, food %s -> %s\n", choice.models[0], choice.models[1],
                choice.models[2], qPrintable(vb::doubleToText(r.rates[0])), qPrintable(vb::doubleToText(r.rates[1])),
                qPrintable(vb::doubleToText(r.rates[2])), qPrintable(vb::doubleToText(r.rates[3])),
                qPrintable(vb::doubleToText(r.rates[4])), qPrintable(vb::doubleToText(r.rates[5])));

    constexpr int n = 1000;
    volatile double sink = 0;
    const double micros = perCallMicros(n, [&](int) { sink = sink + calculate(s, choice).itemised; });
    std::printf("  full calculation of one scenario, %d iterations: %10.1f us/scenario\n", n, micros);
    return 0;
}
