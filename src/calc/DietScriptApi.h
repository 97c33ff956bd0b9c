// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>
#include <QVariant>

class Session;

//! The diet copy routines for scripts (diet.*), under their own names and argument orders. An error
//! that escapes a routine (a bad argument) gives the routine's default and is kept in lastError.
class DietScriptApi : public QObject {
    Q_OBJECT
    //! "<number> <description>" of the last error passed to the script, "" when none.
    Q_PROPERTY(QString lastError READ lastError)

public:
    explicit DietScriptApi(Session &session, QObject *parent = nullptr);

    //! The error text of the last call, "" when it went through.
    Q_INVOKABLE QString lastError() const { return m_lastError; }

    //! The diet-item statement: type "User" with a ScenarioID, "Perm" with a DietID.
    Q_INVOKABLE QString GetDietItemsSQL(const QVariant &type, const QVariant &id);
    //! Asks before replacing the scenario's diet; true when the copy may go on.
    Q_INVOKABLE bool Replace();
    //! Copies a reference diet head into the scenario.
    Q_INVOKABLE void AddWildlifeDiet(const QVariant &dietId);
    //! Copies a reference diet's items (those with a moisture row) into the scenario.
    Q_INVOKABLE void AddWildlifeDietItems(const QVariant &dietId);
    //! The trophic level text of a diet item of tblDietItem or tblWildlifeDietItems.
    Q_INVOKABLE QString GetTrophicLevelText(const QVariant &id, const QString &table);
    //! The water content text of a diet item or gross energy row.
    Q_INVOKABLE QString GetWaterConversionText(const QVariant &id, const QString &table);
    //! Marks the scenario's diet as changed by the user.
    Q_INVOKABLE void UpdateDS(bool changed);

private:
    Session &m_session;
    QString m_lastError;
};
