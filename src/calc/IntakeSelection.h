// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class Recordset;
class Session;

// What the intake dialogs write into the open scenario's row of tblIntakeZOB when a model, a
// measurement or a soil study is chosen. Each routine opens the row, edits, updates and closes;
// a failure passes to the caller (the dialog's handler) with the row left unwritten.

//! The categories of the models of an intake type for a taxon, a category once for each of its models.
QString IntakeCategorySQL(qint32 intakeTypeId, qint32 taxonId);
//! True when the taxon has a model category for the intake type.
bool HasIntakeCategory(Session &s, qint32 intakeTypeId, qint32 taxonId);
//! The models of a category that have a reference, with the reference's text.
QString IntakeModelsSQL(qint32 intakeTypeId, qint32 taxonId, qint32 categoryId);
//! The measured rates of an intake type for a species, with their units, status and gender.
QString IntakeMeasuredSQL(qint32 intakeTypeId, qint32 speciesId);

//! The correction factor a model's box keeps: the whole part of the text's numeric prefix, within
//! 1 to 10 ("2.7" gives "2", letters "1", "10.9" "10").
QString CorrectionFactorText(const QString &typed);

//! The model branch: the model's id, "Model", the category, the equation text, the base rate through
//! "0.0000" and the adjusted rate as computed, the final unit, the model's data source and factors,
//! for the scenario's body weight. A model with a null coefficient or exponent is refused (94).
void SaveModelIntake(Session &s, qint32 intakeTypeId, const Recordset &model, qint32 categoryId,
                     const QString &equationText);

//! The measured branch: "Measured", the measurement's id and data source, the typed correction
//! factor (stored, not applied), and by estimator 1 Mean, 2 Max, 3 Min ("0.0000"; a null writes 0 to
//! the base rate alone), 4 Mean + VarValue, 5 Mean - VarValue ("#0.00"); 0 leaves both rates.
void SaveMeasuredIntake(Session &s, qint32 intakeTypeId, const Recordset &measured, const QString &correctionFactor,
                        int estimator);

//! A soil study for the soil row: "Measured", the study, its species, IntakeMean as both rates
//! through "0.0000" (a null: base 0, adjusted unchanged), "% dry wt", estimator 1, its data source,
//! which also becomes the scenario's soil data source.
void SaveSoilIngestion(Session &s, qint32 intakeTypeId, const Recordset &study);
