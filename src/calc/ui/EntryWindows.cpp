// SPDX-License-Identifier: MIT
#include "EntryWindows.h"

#include "QtWindowHost.h"
#include "Session.h"
#include "WindowAvailable.h"

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
