// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QVarLengthArray>
#include <QVariant>

//! The numbers of a statement: few, so kept without a separate allocation.
using SqlValues = QVarLengthArray<QVariant, 4>;

//! A statement whose compared numbers are taken out as parameters, so that statements differing only
//! in such numbers ("... WHERE SpeciesID = 12", "... = 13") share one translation and one prepared
//! statement. A number counts when it directly follows a comparison (=, <>, <, >, <=, >=); numbers
//! anywhere else (TOP 5, ORDER BY 2, arithmetic) stay in the text.
struct SqlParameters {
    //! The statement with each such number replaced by a marker number the translator copies as it is.
    QString templateText;
    //! The numbers, in order: integers as qlonglong, others as double.
    SqlValues values;
};

//! Takes the compared numbers out of a Jet statement into out, whose text keeps its capacity from an
//! earlier call.
void takeComparedNumbers(const QString &jetSql, SqlParameters &out);
//! Replaces the markers of count numbers in a translated statement by ?1..?count. False when the
//! markers did not come through translation exactly once each, in order.
bool markersToParameters(QString &sql, int count);
