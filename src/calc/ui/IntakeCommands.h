// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>

struct RecordRequest;
class QtWindowHost;
class Session;

//! The command that opens the intake dialog for an air, water or food page of the builder: it refuses
//! with "No data available" when the taxon has no model category for the intake, and with "Weight not
//! selected..." when the body weight is not above 0; otherwise the dialog opens modally.
void selectIntakeFromDatabase(Session &session, QtWindowHost &host, qint16 pageIndex, qint32 taxonId, float weight);

//! The command that opens the soil studies to assign one to the open scenario's soil row, modally.
void selectSoilIngestion(Session &session, QtWindowHost &host);

//! Opens an entry window for a record (modally or not). When the program lacks the window a box says
//! so and false comes back.
bool openEntryWindow(Session &session, QtWindowHost &host, const QString &window, const RecordRequest &request, bool modal);

//! Adds a blank row to table and opens it in the entry window with the mode "Write", modally. When
//! the program lacks the window a box says so, no row is added and false comes back.
bool openNewEntry(Session &session, QtWindowHost &host, const QString &window, const QString &table, const QString &keyField);

//! What scripts reach as "intake": the two commands above for the open scenario, as the builder's
//! intake page runs them (the weight is the scenario's).
class IntakeScriptApi : public QObject {
    Q_OBJECT
public:
    IntakeScriptApi(Session &session, QObject *parent);
    //! The "from database" command of intake page pageIndex (0 air, 1 water, 2 food) for a taxon.
    Q_INVOKABLE void select(int pageIndex, int taxonId);
    //! The "from database" command of the soil page.
    Q_INVOKABLE void soil();

private:
    QtWindowHost &host() const;
    Session &m_session;
};
