// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QVariant>

//! The body-weight statistic taken from one tblWeight row, and the list of a species' weights. No
//! widgets: the weight dialog and the tests share it.
namespace WeightChoice {

//! The statistics by option index, which is also the EstimatorID stored with the weight.
enum Estimator : qint16 { DetectionLimit = 0, Mean = 1, Max = 2, Min = 3, MeanPlusVariance = 4, MeanMinusVariance = 5 };

//! The statistics of one weight row as read (null where the row has none).
struct WeightRow {
    QVariant mean;
    QVariant max;
    QVariant min;
    QVariant varValue;
};

//! The weight in grams for a statistic: the value (a null mean counts as 0 for Mean alone), sums in
//! single precision, rounded through the text "#0.00". A null statistic cannot be rounded and throws
//! the type mismatch (13); an overflowing sum throws overflow (6). Detection Limit gives no value:
//! false, weight untouched.
bool weightFor(const WeightRow &row, qint16 estimator, float &weight);

//! Whether a statistic is offered for a row: present and not 0 (Detection Limit never is).
bool offered(const WeightRow &row, qint16 estimator);

//! The list of weights: the weights of speciesId (0: of every species, with no filter and no order),
//! narrowed to a status id and a gender id (0: all), in the order given.
QString listStatement(qint32 speciesId, qint32 statusId, qint32 genderId, const QString &order);

//! The order of the list for a click on column head 1 to 9; empty for any other column.
QString headOrder(int column);

}  // namespace WeightChoice
