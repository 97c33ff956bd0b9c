// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class Session;

// One-line descriptions of reference records, and the statement behind the diet calculation grid.

//! "Kingdom:  A, Subkingdom:  B, Phylum:  C,  Class:  D,  Order:  E,  Family:  F" for the record
//! idField = id of tableName; a null id keeps its label with nothing behind it, an unknown one shows
//! "not found". Reports as " GetClassificationText" with result "".
QString GetClassificationText(Session &s, qint32 id, const QString &tableName, const QString &idField);

//! "Mean:  m, Min:  n, Max:  x, Variance:  v,  Variance Type:  t, Data Source:  d" for a measurement
//! record; kind "AE", "H2O", "DE" (Mean, Min, Max, VarValue), "WW" and "DW" (the wet and dry gross
//! energy columns) pick the four values, any other kind leaves them out. Reports as
//! " GetMeasurementText" with result "".
QString GetMeasurementText(Session &s, qint32 id, const QString &tableName, const QString &idField,
                           const QString &kind);

//! The statement of the diet calculation grid on the scenario's basis: per item the proportion,
//! gross and metabolizable energy, and Daily_Intake = TDI (as its default text) * proportion. Left
//! in gSQL as well. Reports as "CalculationSQL" with result ""; resets the pointer in either case.
QString CalculationSQL(Session &s);
