// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class Session;

// Allometric intake models: y = a * (Factor * weight(g)) ^ b * UCF for the base rate, times MMF for
// the adjusted (free-living) rate.

//! The equation of a tblIntakeModel row as text ("kcal/day = 5 * (Wt(g)*0.001)^ 0.75*2.5") for what
//! "Equation", otherwise the name of its final unit. "No data available." (unit "") when the weight
//! unit's factor or the final unit is missing; "" for an unknown model. Reports as
//! "GetIntakeEquationText".
QString GetIntakeEquationText(Session &s, qint32 intakeModelId, const QString &what);

//! The base rate (kind "Base") or the adjusted rate (any other kind) of a model for a body weight in
//! grams, single precision returned as a double. 0 for a model without a valid weight unit. Reports
//! under the name "GetIntakeEquationText", with result 0.
double GetIntakeRate(Session &s, qint32 intakeModelId, float weight, const QString &kind);
