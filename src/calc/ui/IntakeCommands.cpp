// SPDX-License-Identifier: MIT
#include "IntakeCommands.h"

#include "IntakeSelection.h"
#include "WindowAvailable.h"
#include "QtWindowHost.h"
#include "ScriptBindings.h"
#include "Session.h"
#include "WindowLinks.h"
#include "clsScenario.h"

#include <stdexcept>

namespace {
const ScriptBindingRegistration reg(QStringLiteral("intake"),
                                    [](Session &s, QObject *parent) { return new IntakeScriptApi(s, parent); });
}  // namespace

void selectIntakeFromDatabase(Session &session, QtWindowHost &host, qint16 pageIndex, qint32 taxonId, float weight)
{
    const QString dialog = QStringLiteral("frmSelect_Intake");
    if (!HasIntakeCategory(session, pageIndex + 1, taxonId)) {
        session.resetCursor();
        session.msgBox(QStringLiteral("No data available"), QString(), MsgIcon::Information);
        return;
    }
    if (!(weight > 0.0f)) {
        session.msgBox(QStringLiteral("Weight not selected. Please select weight and then continue."), QString(),
                       MsgIcon::Warning);
        return;
    }
    RecordRequest request;
    request.recordId = pageIndex;
    request.selectedId = taxonId;
    request.mode = QStringLiteral("Read");
    openEntryWindow(session, host, dialog, request, true);
}

void selectSoilIngestion(Session &session, QtWindowHost &host)
{
    RecordRequest request;
    request.recordId = 4;  // the soil row's intake type
    request.mode = QStringLiteral("Write");
    request.table = QStringLiteral("tblSoilIngestion");
    request.keyField = QStringLiteral("SoilIngestionID");
    request.filter = true;
    request.isSelection = true;
    openEntryWindow(session, host, QStringLiteral("frmSelect_SoilIngestion"), request, true);
}

bool openEntryWindow(Session &session, QtWindowHost &host, const QString &window, const RecordRequest &request, bool modal)
{
    if (!windowAvailable(session, window))
        return false;
    if (ZobWindow *w = host.form(window)) {
        w->setRecord(request);
        host.show(window, modal);
    }
    return true;
}

bool openNewEntry(Session &session, QtWindowHost &host, const QString &window, const QString &table, const QString &keyField)
{
    if (!windowAvailable(session, window))
        return false;
    RecordRequest entry;
    entry.recordId = session.GetNewRecordID(table, keyField, QString(), 0, 0);
    entry.table = table;
    entry.keyField = keyField;
    entry.mode = QStringLiteral("Write");
    return openEntryWindow(session, host, window, entry, true);
}

IntakeScriptApi::IntakeScriptApi(Session &session, QObject *parent) : QObject(parent), m_session(session) {}

QtWindowHost &IntakeScriptApi::host() const
{
    auto *host = dynamic_cast<QtWindowHost *>(m_session.windows);
    if (!host || !m_session.gScenario)
        throw std::runtime_error("the program has no window host or no open scenario");
    return *host;
}

void IntakeScriptApi::select(int pageIndex, int taxonId)
{
    QtWindowHost &h = host();
    selectIntakeFromDatabase(m_session, h, static_cast<qint16>(pageIndex), taxonId, m_session.gScenario->Weight);
}

void IntakeScriptApi::soil()
{
    QtWindowHost &h = host();
    selectSoilIngestion(m_session, h);
}
