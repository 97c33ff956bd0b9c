// SPDX-License-Identifier: MIT
#include "WeightChoice.h"

#include "VbError.h"
#include "VbFormat.h"

#include <QStringList>
#include <cmath>
#include <limits>

namespace WeightChoice {
namespace {

//! A stored statistic as a single; null stays null.
QVariant single(const QVariant &v)
{
    return v.isNull() ? QVariant() : QVariant(vb::CSng(v));
}

//! mean + sign * variance in single precision; null when either is null.
QVariant sum(const QVariant &mean, const QVariant &variance, float sign)
{
    if (mean.isNull() || variance.isNull())
        return {};
    const float total = vb::CSng(mean) + sign * vb::CSng(variance);
    if (std::isinf(total))
        throw VbError::overflow();
    return total;
}

bool present(const QVariant &v)
{
    return !v.isNull() && vb::CDbl(v) != 0.0;
}

}  // namespace

bool weightFor(const WeightRow &row, qint16 estimator, float &weight)
{
    QVariant value;
    switch (estimator) {
    case Mean: value = row.mean.isNull() ? QVariant(0.0f) : single(row.mean); break;
    case Max: value = single(row.max); break;
    case Min: value = single(row.min); break;
    case MeanPlusVariance: value = sum(row.mean, row.varValue, 1.0f); break;
    case MeanMinusVariance: value = sum(row.mean, row.varValue, -1.0f); break;
    default: return false;
    }
    // The weight is what the two-decimal text says: a null formats as "" and fails to convert.
    const QString text = value.isNull() ? QString() : vb::vbFormatSingle(value.toFloat(), QStringLiteral("#0.00"));
    weight = vb::CSng(text);
    return true;
}

bool offered(const WeightRow &row, qint16 estimator)
{
    switch (estimator) {
    case Mean: return present(row.mean);
    case Max: return present(row.max);
    case Min: return present(row.min);
    case MeanPlusVariance:
    case MeanMinusVariance: return present(row.varValue);
    default: return false;
    }
}

QString listStatement(qint32 speciesId, qint32 statusId, qint32 genderId, const QString &order)
{
    QString sql = QStringLiteral(
        "SELECT tblWeight.WeightID, tblStatus.Description AS Status, tblGender.Description AS Gender, tblWeight.Mean, "
        "tblWeight.Min, tblWeight.Max, tblWeight.Sample, tblVarianceType.Description AS VT, tblWeight.VarValue, "
        "tblHabitatType.Description AS Habitat, qryReference.Reference FROM ((((qryReference INNER JOIN tblWeight ON "
        "qryReference.ReferenceID = tblWeight.ReferenceID) LEFT JOIN tblGender ON tblWeight.GenderID = "
        "tblGender.GenderID) LEFT JOIN tblVarianceType ON tblWeight.VarianceTypeID = "
        "tblVarianceType.VarianceTypeID) LEFT JOIN tblStatus ON tblWeight.StatusID = tblStatus.StatusID) LEFT JOIN "
        "tblHabitatType ON tblWeight.HabitatTypeID = tblHabitatType.HabitatTypeID");
    if (speciesId == 0)
        return sql;
    sql += QStringLiteral(" Where tblWeight.SpeciesID = %1").arg(speciesId);
    if (statusId > 0)
        sql += QStringLiteral(" AND tblWeight.StatusID = %1").arg(statusId);
    if (genderId > 0)
        sql += QStringLiteral(" AND tblWeight.GenderID = %1").arg(genderId);
    return sql + QStringLiteral(" Order By ") + order;
}

QString headOrder(int column)
{
    static const QStringList orders = {
        QStringLiteral("tblStatus.description"),       QStringLiteral("tblGender.description"),
        QStringLiteral("tblWeight.Mean"),              QStringLiteral("tblWeight.Min"),
        QStringLiteral("tblWeight.Max"),               QStringLiteral("tblWeight.Sample"),
        QStringLiteral("tblVarianceType.description"), QStringLiteral("tblWeight.VarValue"),
        QStringLiteral("tblHabitatType.description")};
    return orders.value(column - 1);
}

}  // namespace WeightChoice
