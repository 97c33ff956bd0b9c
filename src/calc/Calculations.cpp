// SPDX-License-Identifier: MIT
#include "Calculations.h"

#include "CalcSupport.h"
#include "Diagnostics.h"

#include <cmath>

using calc::roundedSingle;
using calc::scenario;
using calc::sidText;

namespace {

const QString kTwoDecimals = QStringLiteral("#,###.0#");
const QString kNoDietItems =
    QStringLiteral("No Diet Items exist in this scenario. Dietary calculations will not be done.");

bool wetBasis(Session &s) { return scenario(s).DietType != 0; }

}  // namespace

float ConvertWeightIs(bool valueIsDry, float value, float waterPercent)
{
    const float dryShare = 1.0f - waterPercent / 100.0f;
    float result = 0.0f;
    if (valueIsDry) {
        if (dryShare == 0.0f)
            throw value == 0.0f ? VbError::overflow() : VbError::divisionByZero();
        result = value / dryShare;
    } else {
        result = dryShare * value;
    }
    if (!std::isfinite(result))
        throw VbError::overflow();
    return roundedSingle(result, QStringLiteral("0.000"));
}

bool CalculateDietPorportion(Session &s, bool isWet)
{
    bool rescaled = false;
    guarded(s, {ErrForm::Shared, QStringLiteral("CalculateDietPorportion")}, [&] {
        const QString sid = sidText(s);
        s.gSQL = QStringLiteral("Select sum(WET_Proportion) As Wet_Total, sum(Dry_Proportion) As Dry_Total from "
                                "tblWildlifeDietItems Where ScenarioID = ")
                 + sid;
        auto totals = s.gDB->OpenRecordset(s.gSQL, RecordsetType::Snapshot);
        if (totals->RecordCount() <= 0)
            return;
        const QString field = isWet ? QStringLiteral("Wet_Proportion") : QStringLiteral("Dry_Proportion");
        const double total = vb::CDbl(totals->field(isWet ? QStringLiteral("Wet_Total") : QStringLiteral("Dry_Total")));
        totals->Close();

        // A diet that already sums to one keeps the totals statement, whose row cannot be edited:
        // the first edit below fails and the user sees the report.
        if (total != 1.0)
            s.gSQL = QStringLiteral("Select * from tblWildlifeDietItems Where ScenarioID = ") + sid;
        auto rows = s.gDB->OpenRecordset(s.gSQL, RecordsetType::Dynaset);
        if (total == 0.0)
            throw VbError::divisionByZero();
        const double factor = 1.0 / total;
        // A proportion is read as a single and scaled by the double factor; the product's decimal text
        // decides the rounding, so 0.247 of a total of 2 gives .123 (0.1234999...), not .124.
        while (!rows->EOF_()) {
            rows->Edit();
            const QVariant value = rows->field(field);
            if (value.isNull())
                rows->setField(field, 0);
            else
                rows->setField(field, vb::vbFormat(static_cast<double>(vb::CSng(value)) * factor,
                                                   QStringLiteral("#.000")));
            rows->Update();
            rows->MoveNext();
        }
        rows->Close();
        rescaled = true;
    });
    return rescaled;
}

void ConvertDietProportion(Session &s, bool fromWet, const QString &mode)
{
    guarded(s, {ErrForm::Shared, QStringLiteral("ConvertDietProportion")}, [&] {
        if (mode == QLatin1String("Perm"))
            s.gSQL = QStringLiteral("Select * from tblWildlifeDietItems Where DietID = ")
                     + QString::number(scenario(s).DietID);
        else
            s.gSQL = QStringLiteral("Select * from tblWildlifeDietItems Where ScenarioID = ") + sidText(s);
        auto rows = s.gDB->OpenRecordset(s.gSQL, RecordsetType::Dynaset);
        const QString source = fromWet ? QStringLiteral("Wet_Proportion") : QStringLiteral("Dry_Proportion");
        const QString target = fromWet ? QStringLiteral("Dry_Proportion") : QStringLiteral("Wet_Proportion");
        while (!rows->EOF_()) {
            rows->Edit();
            const QVariant value = rows->field(source);
            if (value.isNull()) {
                rows->setField(target, 0);
            } else {
                const float proportion = vb::CSng(value);
                // The water content comes from the moisture row the item points at, not from the
                // item's own WaterPercent.
                const QVariant water = s.Lookup(
                    QStringLiteral("tblWaterConversion"), QStringLiteral("Mean"),
                    QStringLiteral("WaterConversionID = ") + calc::joinText(rows->field(QStringLiteral("WaterConversionID"))));
                rows->setField(target, ConvertWeightIs(!fromWet, proportion, calc::lookupSingle(water)));
            }
            rows->Update();
            rows->MoveNext();
        }
        rows->Close();
        s.resetCursor();
    });
}

void SumProportions(Session &s, bool isWet)
{
    CalculateDietPorportion(s, isWet);
    ConvertDietProportion(s, isWet, QStringLiteral("User"));
    CalculateDietPorportion(s, !isWet);
}

float GetH2OAvg(Session &s)
{
    float water = 0.0f;
    guarded(s, {ErrForm::Shared, QStringLiteral(" GetH2OAvg")}, [&] {
        const QString proportion = wetBasis(s) ? QStringLiteral("[tblWildlifeDietItems].[Wet_Proportion]")
                                               : QStringLiteral("[tblWildlifeDietItems].[Dry_Proportion]");
        s.gSQL = QStringLiteral("SELECT SUM(tblWildlifeDietItems.WaterPercent * ") + proportion
                 + QStringLiteral("/100) AS Water FROM tblWildlifeDietItems WHERE tblWildlifeDietItems.ScenarioID = ")
                 + sidText(s);
        auto rs = s.gDB->OpenRecordset(s.gSQL, RecordsetType::Snapshot);
        // The sum always gives a row: a diet without items fails on its null total instead.
        if (rs->RecordCount() > 0) {
            water = roundedSingle(rs->field(QStringLiteral("Water")), kTwoDecimals);
        } else {
            s.msgBox(kNoDietItems, QString(), MsgIcon::Warning);
            water = 1.0f;
        }
        rs->Close();
    });
    return water;
}

QString GetAvgTrophicLevel(Session &s, qint32 id, const QString &tableName)
{
    QString average;
    guarded(s, {ErrForm::CodeCrLf, QStringLiteral("GetAvgTrophicLevel")}, [&] {
        if (tableName == QLatin1String("tblDietItem"))
            s.gSQL = QStringLiteral("SELECT Avg(tblTrophicLevel.TROPHICLEVEL) AS ReturnValue FROM %1  INNER JOIN "
                                    "tblTrophicLevel ON %1.TrophicLevelID = tblTrophicLevel.TrophicLevelID Where "
                                    "%1.DietID = %2")
                         .arg(tableName)
                         .arg(id);
        else
            s.gSQL = QStringLiteral("SELECT Avg([tblWildlifeDietItems].[TROPHICLEVEL]) AS ReturnValue FROM "
                                    "tblWildlifeDietItems WHERE (((tblWildlifeDietItems.ScenarioID)=%1))")
                         .arg(id);
        auto rs = s.gDB->OpenRecordset(s.gSQL, RecordsetType::Snapshot);
        if (!(rs->BOF() && rs->EOF_())) {
            const QVariant value = rs->field(QStringLiteral("ReturnValue"));
            average = value.isNull() ? QStringLiteral("0") : vb::vbFormat(value, QStringLiteral("0.00"));
        }
        rs->Close();
    });
    return average;
}

float GetMEAvg(Session &s)
{
    float me = 0.0f;
    guarded(s, {ErrForm::Shared, QStringLiteral(" GetMEAvg")}, [&] {
        const bool wet = wetBasis(s);
        const QString energy = wet ? QStringLiteral("[Wet_Wt_KCALG]") : QStringLiteral("[Dry_Wt_KCALG]");
        const QString proportion = wet ? QStringLiteral("[tblWildlifeDietItems]![Wet_Proportion]")
                                       : QStringLiteral("[tblWildlifeDietItems]![Dry_Proportion]");
        // Items without a matching AE or gross energy row drop out of the inner joins.
        s.gSQL = QStringLiteral("SELECT Sum([tblAE]![Mean]*0.01*[tblGrossEnergy]!") + energy + QStringLiteral(" * ")
                 + proportion
                 + QStringLiteral(") AS ME FROM tblGrossEnergy INNER JOIN (tblWildlifeDietItems INNER JOIN tblAE ON "
                                  "tblWildlifeDietItems.AEID = tblAE.AEID) ON tblGrossEnergy.GrossEnergyID = "
                                  "tblWildlifeDietItems.GrossEnergyID GROUP BY tblWildlifeDietItems.ScenarioID HAVING "
                                  "tblWildlifeDietItems.ScenarioID = ")
                 + sidText(s);
        auto rs = s.gDB->OpenRecordset(s.gSQL, RecordsetType::Snapshot);
        if (rs->RecordCount() > 0) {
            me = roundedSingle(rs->field(QStringLiteral("ME")), kTwoDecimals);
        } else {
            s.msgBox(kNoDietItems, QString(), MsgIcon::Warning);
            me = 1.0f;
        }
        rs->Close();
    });
    return me;
}

float GetFMR_TDI(Session &s, const QString &what)
{
    float result = 0.0f;
    guarded(s, {ErrForm::Shared, QStringLiteral(" GetFMR_TDI")}, [&] {
        const QVariant rate = s.Lookup(QStringLiteral("tblIntakeZOB"), QStringLiteral("AdjustedRate"),
                                       QStringLiteral("ScenarioID = ") + sidText(s) + QStringLiteral(" AND IntakeTypeID = 3"));
        // TDI is computed from FMR as it is reported, to two decimals.
        const float fmr = roundedSingle(calc::lookupSingle(rate), kTwoDecimals);
        if (what == QLatin1String("FMR")) {
            result = fmr;
            return;
        }
        const float me = GetMEAvg(s);
        // A scenario whose FMR or MEavg is not positive yet reports exactly 1.0 g/day.
        const float tdi = fmr > 0.0f && me > 0.0f ? fmr / me : 1.0f;
        result = roundedSingle(tdi, kTwoDecimals);
    });
    return result;
}

float GetDailyDryDiet(Session &s)
{
    const float tdi = GetFMR_TDI(s, QStringLiteral("TDI"));
    const float water = GetH2OAvg(s);
    if (wetBasis(s))
        return (1.0f - water) * tdi;
    return tdi;
}
