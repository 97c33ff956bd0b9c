// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class Session;

// Diet proportions and the energy requirement of the current scenario (gScenario). Every routine
// reads the rows afresh. A number that is returned or stored passes through a Format pattern and
// back, and that rounding is part of the result.

//! Converts an amount between wet and dry mass with the water percent: a dry value gives
//! value / (1 - water/100), a wet value (1 - water/100) * value; rounded to "0.000". No handler:
//! division by zero (11) or overflow (6) reach the caller as VbError.
float ConvertWeightIs(bool valueIsDry, float value, float waterPercent);

//! Rescales Wet_Proportion (isWet) or Dry_Proportion of the scenario's items so that they sum to
//! one, each written as "#.000"; a null proportion becomes 0. Returns true when the rows were
//! rescaled. A total of exactly 1.0 makes the first edit fail on the read-only totals set: the
//! error report is shown and nothing changes. Reports as "CalculateDietPorportion".
bool CalculateDietPorportion(Session &s, bool isWet);

//! Derives the other basis of each item from fromWet's basis through the item's
//! tblWaterConversion.Mean (by WaterConversionID, not the item's own WaterPercent). Mode "Perm"
//! selects the items by the scenario's DietID, anything else by ScenarioID. Reports as
//! "ConvertDietProportion"; rows converted before a failure stay converted.
void ConvertDietProportion(Session &s, bool fromWet, const QString &mode);

//! The command "Sum Proportions to 1.0": normalise the chosen basis, derive the other from it,
//! normalise the other. The results of the steps are not tested.
void SumProportions(Session &s, bool isWet);

//! The water fraction of the diet: sum of WaterPercent * proportion / 100 on the scenario's basis,
//! rounded to "#,###.0#". Reports as " GetH2OAvg" with result 0 (also for a diet without items).
float GetH2OAvg(Session &s);

//! The plain average trophic level, "0.00": of a reference diet's items (tableName "tblDietItem",
//! id a DietID) or of the scenario's copies (any other table name, id a ScenarioID). "0" when there
//! are no items; "" on failure, which is reported in the code form.
QString GetAvgTrophicLevel(Session &s, qint32 id, const QString &tableName);

//! MEavg in kcal/g: sum of AE% * 0.01 * gross energy * proportion over the items that join a tblAE
//! and a tblGrossEnergy row, on the scenario's basis, rounded to "#,###.0#". With no such item it
//! shows "No Diet Items exist in this scenario. Dietary calculations will not be done." and gives
//! 1.0. Reports as " GetMEAvg" with result 0.
float GetMEAvg(Session &s);

//! "FMR": the AdjustedRate of intake row 3 rounded to "#,###.0#". Any other text: TDI = FMR / MEavg
//! from the rounded FMR and MEavg, 1.0 when either is not positive, rounded to "#,###.0#". Reports
//! as " GetFMR_TDI" with result 0 (also when the scenario has no FMR).
float GetFMR_TDI(Session &s, const QString &what);

//! DD, the daily dry-weight diet in g/day: (1 - GetH2OAvg) * TDI on a wet basis, TDI on a dry basis.
//! Both are asked in either case, TDI first.
float GetDailyDryDiet(Session &s);
