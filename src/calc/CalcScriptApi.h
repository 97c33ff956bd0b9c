// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>
#include <QVariant>

class Session;

//! The calculation routines for scripts (calc.*), under their own names and argument orders.
//! Numbers come back as the routines give them: a single-precision result as the double of that
//! single. Routines report their own failures in message boxes; an error that a routine passes to
//! its caller (ConvertWeightIs, GetDailyDryDiet) gives NaN and is kept in lastError.
class CalcScriptApi : public QObject {
    Q_OBJECT
    //! "<number> <description>" of the last error passed to the script, "" when none.
    Q_PROPERTY(QString lastError READ lastError)

public:
    explicit CalcScriptApi(Session &session, QObject *parent = nullptr);

    //! The error text of the last call, "" when it went through.
    Q_INVOKABLE QString lastError() const { return m_lastError; }

    //! ConvertWeightIs(valueIsDry, value, waterPercent): the converted amount, "0.000".
    Q_INVOKABLE double ConvertWeightIs(bool valueIsDry, double value, double waterPercent);
    //! CalculateDietPorportion(isWet): true when the basis was rescaled.
    Q_INVOKABLE bool CalculateDietPorportion(bool isWet);
    //! ConvertDietProportion(fromWet, mode); mode defaults to "User".
    Q_INVOKABLE void ConvertDietProportion(bool fromWet, const QString &mode);
    Q_INVOKABLE void ConvertDietProportion(bool fromWet);
    //! The "Sum Proportions to 1.0" command on the wet (true) or dry basis.
    Q_INVOKABLE void SumProportions(bool isWet);
    //! The diet's water fraction.
    Q_INVOKABLE double GetH2OAvg();
    //! The average trophic level text of a reference diet ("tblDietItem") or a scenario.
    Q_INVOKABLE QString GetAvgTrophicLevel(const QVariant &id, const QString &tableName);
    //! MEavg, kcal/g.
    Q_INVOKABLE double GetMEAvg();
    //! FMR (what "FMR", kcal/day) or TDI (anything else, g/day).
    Q_INVOKABLE double GetFMR_TDI(const QString &what);
    //! DD, the daily dry-weight diet, g/day.
    Q_INVOKABLE double GetDailyDryDiet();
    //! The equation text (what "Equation") or the final unit of a model.
    Q_INVOKABLE QString GetIntakeEquationText(const QVariant &id, const QString &what);
    //! The base (kind "Base") or adjusted rate of a model for a weight in grams.
    Q_INVOKABLE double GetIntakeRate(const QVariant &id, double weight, const QString &kind);
    //! The classification text of a record.
    Q_INVOKABLE QString GetClassificationText(const QVariant &id, const QString &table, const QString &field);
    //! The measurement text of a record ("AE", "H2O", "DE", "WW", "DW").
    Q_INVOKABLE QString GetMeasurementText(const QVariant &id, const QString &table, const QString &field,
                                           const QString &kind);
    //! The statement of the diet calculation grid.
    Q_INVOKABLE QString CalculationSQL();

private:
    Session &m_session;
    QString m_lastError;
};
