// SPDX-License-Identifier: MIT
// What the intake report fills when it starts: the heads of the scenario, the equation blocks with
// the 95 % limits of the metabolic rate, and the soil intake in grams a day.
#include "ws_intake.h"

#include "Calculations.h"
#include "Database.h"
#include "Diagnostics.h"
#include "Intake.h"
#include "Recordset.h"
#include "Session.h"
#include "VbError.h"
#include "VbFormat.h"
#include "clsScenario.h"

#include <cmath>

namespace {
QString textOf(const QVariant &v) { return !v.isValid() || v.isNull() ? QString() : vb::CStr(v); }
double log10Of(double x)
{
    if (x <= 0)
        throw VbError(5, QStringLiteral("Invalid procedure call or argument"));
    return std::log(x) / std::log(10.0);
}
}  // namespace

QString intakeRatesSql(qint32 sid)
{
    return QStringLiteral("SELECT tblIntakeZOB.ScenarioID, tblIntakeType.Description AS IntakeType, tblIntakeZOB.Units, tblIntakeZOB.BaseRate, tblIntakeZOB.AdjustedRate, tblIntakeZOB.Derivation, tblIntakeZOB.Measured_CF, tblDataSource.Description AS DataSource, tblIntakeZOB.Comments, tblEstimator.Description AS Estimator FROM ((tblIntakeZOB INNER JOIN tblIntakeType ON tblIntakeZOB.IntakeTypeID = tblIntakeType.IntakeTypeID) INNER JOIN tblDataSource ON tblIntakeZOB.DataSourceID = tblDataSource.DataSourceID) INNER JOIN tblEstimator ON tblIntakeZOB.EstimatorID = tblEstimator.EstimatorID WHERE tblIntakeZOB.ScenarioID = %1").arg(sid);
}

void ws_intake::ActiveReport_ReportStart()
{
    setText(QStringLiteral("lbl1"), QStringLiteral("Base Intake Rate: For air, water, and food, this value may be basal intake rate, a laboratory setting intake rate or a free-living intake rate."));
    setText(QStringLiteral("lbl2"), QStringLiteral("Basis: This indicates whether the value of the Base Intake Rate was estimated using an allometric equation, measured directly in a study, or was entered as a hypothethical value."));
    setText(QStringLiteral("lbl3"), QStringLiteral("Correction Factor:  This is used to convert the Base Intake Rate to a Free Living Intake Rate."));
    setText(QStringLiteral("lbl4"), QStringLiteral("The units of kcal/day for food represent assimilated kcal/day."));
    recordSource.clear();
    const qint32 sid = this->sid();
    guarded(m_session, {ErrForm::Qualified, QStringLiteral("ws_Intake.ActiveReport_ReportStart")}, [&] {
        float weight = 0;
        fillHeads(sid, weight);
        if (recordSource.isEmpty())
            return;
        fillEquations(sid, weight);
        fillSoil(sid);
    });
}

void ws_intake::fillHeads(qint32 sid, float &weight)
{
    auto rs = m_session.gDB->OpenRecordset(QStringLiteral("SELECT tblScenario.*, tblWildlife.* FROM tblScenario INNER JOIN tblWildlife ON tblScenario.ScenarioID = tblWildlife.ScenarioID Where tblWildlife.ScenarioID = %1").arg(sid));
    if (rs->EOF_())
        return;
    setText(QStringLiteral("fldFile"), textOf(rs->field(QStringLiteral("Scenario_FileName"))));
    setText(QStringLiteral("fldSpecies"), textOf(rs->field(QStringLiteral("Common"))));
    const QString w = vb::vbFormat(rs->field(QStringLiteral("Weight")), QStringLiteral("#,##0.0"));
    setText(QStringLiteral("fldWeight"), w);
    setText(QStringLiteral("fldSex"), textOf(rs->field(QStringLiteral("WtSex"))));
    setText(QStringLiteral("fldLastModifiedBy"), textOf(rs->field(QStringLiteral("Scenario_ModifiedBy"))));
    setText(QStringLiteral("fldCreatedBy"), textOf(rs->field(QStringLiteral("Scenario_CreatedBy"))));
    setText(QStringLiteral("fldLastSaved"), textOf(rs->field(QStringLiteral("Scenario_LastSaved"))));
    rs->Close();
    // What follows uses the weight as printed, to one decimal.
    weight = w.isEmpty() ? 0.0f : vb::CSng(w);
    recordSource = intakeRatesSql(sid);
}

void ws_intake::fillEquations(qint32 sid, float weight)
{
    static const char *const prefixes[] = {"Inhalation: ", "Water Intake: ", "Free-living Metabolic Rate: "};
    auto rs = m_session.gDB->OpenRecordset(QStringLiteral("SELECT tblIntakeZOB.IntakeModelID, tblIntakeZOB.IntakeTypeID, tblIntakeZOB.IntakeEquation, tblCategory.Description, tblIntakeZOB.Units_CF, tblIntakeZOB.Measured_CF, tblUnits.Factor, tblIntakeModel.r2, tblIntakeModel.c, tblIntakeModel.d, tblIntakeModel.e, tblIntakeModel.Mean_log_X, tblIntakeModel.Sample, qryReference.Reference FROM (qryReference RIGHT JOIN ((tblIntakeZOB LEFT JOIN tblCategory ON tblIntakeZOB.CategoryID = tblCategory.CategoryID) LEFT JOIN tblIntakeModel ON tblIntakeZOB.IntakeModelID = tblIntakeModel.IntakeModelID) ON qryReference.ReferenceID = tblIntakeModel.ReferenceID) LEFT JOIN tblUnits ON tblIntakeModel.WtUnitsID = tblUnits.UnitsID WHERE tblIntakeZOB.ScenarioID = %1 ORDER BY tblIntakeZOB.IntakeTypeID").arg(sid));
    for (; !rs->EOF_(); rs->MoveNext()) {
        const int type = vb::CLng(rs->field(QStringLiteral("IntakeTypeID")));
        if (type < 1 || type > 3)
            continue;
        const QString n = QString::number(type);
        const auto put = [&](const QString &name, const QString &column) { setText(name, textOf(rs->field(column))); };
        setText(QStringLiteral("fldEqnText") + n, QString::fromLatin1(prefixes[type - 1]) + textOf(rs->field(QStringLiteral("IntakeEquation"))));
        put(QStringLiteral("fldSpeciesGroup") + n, QStringLiteral("Description"));
        put(QStringLiteral("fldUCF") + n, QStringLiteral("Units_CF"));
        put(QStringLiteral("fldWtUCF") + n, QStringLiteral("Factor"));
        put(QStringLiteral("fldMCF") + n, QStringLiteral("Measured_CF"));
        put(QStringLiteral("fldRef") + n, QStringLiteral("Reference"));
        if (type != 3)
            continue;
        for (const char *c : {"r2", "c", "d", "e", "Mean_log_X"})
            put(QStringLiteral("fld") + QString::fromLatin1(c), QString::fromLatin1(c));
        put(QStringLiteral("fldSample3"), QStringLiteral("Sample"));
        setText(QStringLiteral("fldLower95"), {});
        setText(QStringLiteral("fldUpper95"), {});
        const qint32 model = vb::CLng(rs->field(QStringLiteral("IntakeModelID")));
        if (model == 0)
            continue;
        const double base = GetIntakeRate(m_session, model, weight, QStringLiteral("Base"));
        const double ucf = vb::CDbl(rs->field(QStringLiteral("Units_CF")));
        if (ucf == 0)
            throw VbError(11, QStringLiteral("Division by zero"));
        const double l = log10Of(base / ucf);
        const double h = GetFMRCILimit(model, weight);
        if (h <= 0)
            continue;
        setText(QStringLiteral("fldLower95"), vb::vbFormat(std::pow(10.0, l - h) * ucf, QStringLiteral("0.00")));
        setText(QStringLiteral("fldUpper95"), vb::vbFormat(std::pow(10.0, l + h) * ucf, QStringLiteral("0.00")));
    }
    rs->Close();
}

void ws_intake::fillSoil(qint32 sid)
{
    auto rs = m_session.gDB->OpenRecordset(QStringLiteral("SELECT tblIntakeZOB.BaseRate, tblSoilIngestion.Species, tblEstimator.Description, tblSoilIngestion.Sample, qryReference.Reference FROM ((tblEstimator RIGHT JOIN tblIntakeZOB ON tblEstimator.EstimatorID = tblIntakeZOB.EstimatorID) INNER JOIN tblSoilIngestion ON tblIntakeZOB.SoilIngestionID = tblSoilIngestion.SoilIngestionID) LEFT JOIN qryReference ON tblSoilIngestion.ReferenceID = qryReference.ReferenceID WHERE (((tblIntakeZOB.ScenarioID)=%1) AND ((tblIntakeZOB.IntakeTypeID)=4));").arg(sid));
    if (rs->EOF_())
        return;
    const float dd = GetDailyDryDiet();
    const float f = vb::CSng(vb::CDbl(rs->field(QStringLiteral("BaseRate"))) / 100);
    setText(QStringLiteral("fldDD"), vb::singleToText(dd));
    setText(QStringLiteral("fldF_Soil"), vb::singleToText(f));
    setText(QStringLiteral("fldSoilGramEstimator"), textOf(rs->field(QStringLiteral("Description"))));
    const QString grams = vb::vbFormatSingle(dd * f, QStringLiteral("0.00"));
    for (const char *name : {"fldBRSoilGrams", "fldBaseIntakeRate", "ADRate"})
        setText(QString::fromLatin1(name), grams);
    setText(QStringLiteral("fldSoilGramsNotes"), QStringLiteral("Calculated from % of dry diet that is soil and total daily diet on a dry-weight basis."));
    setText(QStringLiteral("fldEqnText4"), QStringLiteral("= % Dry Diet/100"));
    setText(QStringLiteral("fldEqnText5"), QStringLiteral("= (DD/(1 - f_soil)) - DD"));
    setText(QStringLiteral("fldSpeciesGroup4"), textOf(rs->field(QStringLiteral("Species"))));
    setText(QStringLiteral("fldSample4"), textOf(rs->field(QStringLiteral("Sample"))));
    setText(QStringLiteral("fldRef4"), textOf(rs->field(QStringLiteral("Reference"))));
    setText(QStringLiteral("fldAvgWaterPercent"), vb::vbFormatSingle(GetH2OAvg(m_session), QStringLiteral("0.00")));
    rs->Close();
}

float ws_intake::GetDailyDryDiet()
{
    return ::GetDailyDryDiet(m_session);
}

double ws_intake::GetFMRCILimit(qint32 intakeModelId, float wt)
{
    double result = 0;
    try {
        auto rs = m_session.gDB->OpenRecordset(QStringLiteral("SELECT tblIntakeModel.Mean_log_X, tblIntakeModel.c, tblIntakeModel.d, tblIntakeModel.e From tblIntakeModel WHERE (((tblIntakeModel.IntakeModelID)=%1));").arg(intakeModelId));
        QList<double> v;
        for (const char *c : {"Mean_log_X", "c", "d", "e"}) {
            const QVariant x = rs->EOF_() ? QVariant() : rs->field(QString::fromLatin1(c));
            if (!x.isValid() || x.isNull())
                return 0;
            v << vb::CDbl(x);
        }
        const double x = log10Of(wt);
        result = v[1] * std::pow(v[2] + v[3] * std::pow(x - v[0], 2), 0.5);
    } catch (const VbError &e) {
        m_session.PuS_ErrorMessage(e.description(), qint16(e.number()), QStringLiteral("GetFMRCILimit"));
    }
    return result;
}
