// SPDX-License-Identifier: MIT
#include "IntakeSelection.h"

#include "CalcSupport.h"
#include "Intake.h"
#include "Recordset.h"

#include <cmath>

namespace {

//! The scenario's row of an intake type, open for editing.
std::unique_ptr<Recordset> editIntakeRow(Session &s, qint32 intakeTypeId)
{
    auto rs = s.gDB->OpenRecordset(QStringLiteral("Select * From tblIntakeZOB Where IntakeTypeID = %1 AND ScenarioID = ")
                                       .arg(intakeTypeId)
                                   + calc::sidText(s));
    rs->Edit();
    return rs;
}

//! A number written as its Format text, as the legacy code stored it into a number column.
QVariant formatted(const QVariant &value, const QString &pattern)
{
    return vb::CDbl(vb::vbFormat(value, pattern));
}

//! The scenario's data source of the air, water or food row.
void keepDataSource(clsScenario &sc, qint32 intakeTypeId, const QVariant &dataSource)
{
    const qint32 id = dataSource.isNull() ? 0 : vb::CLng(dataSource);
    switch (intakeTypeId) {
    case 1: sc.Air_DataSource = id; break;
    case 2: sc.WAT_DataSource = id; break;
    case 3: sc.FMR_DataSource = id; break;
    default: break;
    }
}

}  // namespace

QString IntakeCategorySQL(qint32 intakeTypeId, qint32 taxonId)
{
    return QStringLiteral("SELECT tblCategory.CategoryID, tblCategory.Description FROM tblCategory INNER JOIN tblIntakeModel ON "
                          "tblCategory.CategoryID = tblIntakeModel.CategoryID Where (tblIntakeModel.IntakeTypeID = %1) And "
                          "((tblIntakeModel.TaxonID) = %2) ORDER BY tblCategory.Description")
        .arg(intakeTypeId)
        .arg(taxonId);
}

bool HasIntakeCategory(Session &s, qint32 intakeTypeId, qint32 taxonId)
{
    auto rs = s.gDB->OpenRecordset(IntakeCategorySQL(intakeTypeId, taxonId), RecordsetType::Snapshot);
    return !(rs->BOF() && rs->EOF_());
}

QString IntakeModelsSQL(qint32 intakeTypeId, qint32 taxonId, qint32 categoryId)
{
    return QStringLiteral("SELECT tblIntakeModel.*, qryReference.Reference FROM qryReference INNER JOIN tblIntakeModel ON "
                          "qryReference.ReferenceID = tblIntakeModel.ReferenceID WHERE (tblIntakeModel.IntakeTypeID = %1) AND "
                          "(tblIntakeModel.TaxonID = %2 ) AND (tblIntakeModel.CategoryID = %3)")
        .arg(intakeTypeId)
        .arg(taxonId)
        .arg(categoryId);
}

QString IntakeMeasuredSQL(qint32 intakeTypeId, qint32 speciesId)
{
    return QStringLiteral(
               "SELECT tblIntakeMeasured.IntakeMeasuredID, tblIntakeMeasured.Mean, tblIntakeMeasured.Min, tblIntakeMeasured.Max, "
               "tblIntakeMeasured.VarValue, tblUnits.Description AS Units, tblStatus.Description AS Status, tblGender.Description "
               "AS Gender, tblIntakeMeasured.Sample, tblIntakeMeasured.Note, tblIntakeMeasured.DataSourceID FROM ((tblIntakeMeasured "
               "LEFT JOIN tblGender ON tblIntakeMeasured.GenderID = tblGender.GenderID) LEFT JOIN tblStatus ON "
               "tblIntakeMeasured.StatusID = tblStatus.StatusID) LEFT JOIN tblUnits ON tblIntakeMeasured.UnitsID = "
               "tblUnits.UnitsID WHERE (IntakeTypeID = %1) AND (tblIntakeMeasured.SpeciesID = %2)")
        .arg(intakeTypeId)
        .arg(speciesId);
}

QString CorrectionFactorText(const QString &typed)
{
    double v = 0.0;
    try {
        v = vb::Val(typed);
    } catch (const VbError &) {
        // A number beyond the range of a double is far outside 1 to 10 on its sign's side.
        v = typed.trimmed().startsWith(QLatin1Char('-')) ? 0.0 : 11.0;
    }
    if (v < 1.0)
        return QStringLiteral("1");
    if (v > 10.0)
        return QStringLiteral("10");
    return QString::number(static_cast<int>(std::trunc(v)));
}

void SaveModelIntake(Session &s, qint32 intakeTypeId, const Recordset &model, qint32 categoryId, const QString &equationText)
{
    // A coefficient or exponent that is missing makes no rate; nothing is written over the last one.
    if (model.field(QStringLiteral("a")).isNull() || model.field(QStringLiteral("b")).isNull())
        throw VbError::invalidUseOfNull();
    clsScenario &sc = calc::scenario(s);
    auto rs = editIntakeRow(s, intakeTypeId);
    const qint32 id = vb::CLng(model.field(QStringLiteral("IntakeModelID")));
    rs->setField(QStringLiteral("IntakeModelID"), id);
    rs->setField(QStringLiteral("Derivation"), QStringLiteral("Model"));
    rs->setField(QStringLiteral("CategoryID"), categoryId);
    rs->setField(QStringLiteral("IntakeEquation"), equationText);
    rs->setField(QStringLiteral("BaseRate"), formatted(GetIntakeRate(s, id, sc.Weight, QStringLiteral("Base")), QStringLiteral("0.0000")));
    rs->setField(QStringLiteral("AdjustedRate"), GetIntakeRate(s, id, sc.Weight, QStringLiteral("Adjusted")));
    rs->setField(QStringLiteral("Units"), GetIntakeEquationText(s, id, QStringLiteral("Units")));
    rs->setField(QStringLiteral("DataSourceID"), model.field(QStringLiteral("DataSourceID")));
    rs->setField(QStringLiteral("Measured_CF"), model.field(QStringLiteral("MMF")));
    rs->setField(QStringLiteral("Units_CF"), model.field(QStringLiteral("UCF")));
    rs->Update();
    keepDataSource(sc, intakeTypeId, model.field(QStringLiteral("DataSourceID")));
    rs->Close();
}

void SaveMeasuredIntake(Session &s, qint32 intakeTypeId, const Recordset &measured, const QString &correctionFactor,
                        int estimator)
{
    clsScenario &sc = calc::scenario(s);
    // The factor is read before the row is touched: text that is no number fails here.
    const float factor = vb::CSng(correctionFactor);
    if (factor < 0.0f)
        throw VbError(VbErr::InvalidProcedureCall, QStringLiteral("The Measure Conversion Factor cannot be negative."));
    auto rs = editIntakeRow(s, intakeTypeId);
    rs->setField(QStringLiteral("Derivation"), QStringLiteral("Measured"));
    rs->setField(QStringLiteral("IntakeMeasuredID"), measured.field(QStringLiteral("IntakeMeasuredID")));
    rs->setField(QStringLiteral("Measured_CF"), static_cast<double>(factor));
    static const char *const kSingle[] = {nullptr, "Mean", "Max", "Min"};
    if (estimator >= 1 && estimator <= 3) {
        const QVariant v = measured.field(QLatin1String(kSingle[estimator]));
        if (v.isNull()) {
            rs->setField(QStringLiteral("BaseRate"), formatted(0, QStringLiteral("0.0000")));
        } else {
            rs->setField(QStringLiteral("BaseRate"), formatted(v, QStringLiteral("0.0000")));
            rs->setField(QStringLiteral("AdjustedRate"), formatted(v, QStringLiteral("0.0000")));
        }
    } else if (estimator == 4 || estimator == 5) {
        const float mean = vb::CSng(measured.field(QStringLiteral("Mean")));
        const float variance = vb::CSng(measured.field(QStringLiteral("VarValue")));
        const float v = estimator == 4 ? mean + variance : mean - variance;
        const QVariant rate = vb::CDbl(vb::vbFormatSingle(v, QStringLiteral("#0.00")));
        rs->setField(QStringLiteral("BaseRate"), rate);
        rs->setField(QStringLiteral("AdjustedRate"), rate);
    }
    rs->setField(QStringLiteral("EstimatorID"), estimator);
    rs->setField(QStringLiteral("DataSourceID"), measured.field(QStringLiteral("DataSourceID")));
    rs->Update();
    keepDataSource(sc, intakeTypeId, measured.field(QStringLiteral("DataSourceID")));
    rs->Close();
}

void SaveSoilIngestion(Session &s, qint32 intakeTypeId, const Recordset &study)
{
    clsScenario &sc = calc::scenario(s);
    auto rs = editIntakeRow(s, intakeTypeId);
    rs->setField(QStringLiteral("Derivation"), QStringLiteral("Measured"));
    rs->setField(QStringLiteral("SoilIngestionID"), study.field(QStringLiteral("SoilIngestionID")));
    rs->setField(QStringLiteral("AssignedSpecies"), study.field(QStringLiteral("Species")));
    const QVariant mean = study.field(QStringLiteral("IntakeMean"));
    rs->setField(QStringLiteral("BaseRate"), formatted(mean.isNull() ? QVariant(0) : mean, QStringLiteral("0.0000")));
    if (!mean.isNull())
        rs->setField(QStringLiteral("AdjustedRate"), formatted(mean, QStringLiteral("0.0000")));
    rs->setField(QStringLiteral("Units"), QStringLiteral("% dry wt"));
    rs->setField(QStringLiteral("EstimatorID"), 1);
    rs->setField(QStringLiteral("DataSourceID"), study.field(QStringLiteral("DataSourceID")));
    rs->Update();
    const QVariant source = study.field(QStringLiteral("DataSourceID"));
    sc.Soil_DataSource = source.isNull() ? 0 : vb::CLng(source);
    rs->Close();
}
