// SPDX-License-Identifier: MIT
#include "PickerSupport.h"

#include "Diet.h"
#include "QtWindowHost.h"
#include "Session.h"
#include "WindowLinks.h"
#include "ZobWindow.h"
#include "clsDietItem.h"

void refreshDietItems(QtWindowHost &host)
{
    if (auto *items = host.link<ListView>(QStringLiteral("frmDE_DietItem")))
        items->refreshList();
}

void reportToDietItem(Session &session, QtWindowHost &host)
{
    if (session.gDietItem && session.gDietItem->window)
        session.gDietItem->window->setIsChanged(true);
    UpdateDS(session, true);
    refreshDietItems(host);
}

void openReferenceEntry(Session &session, QtWindowHost &host, qint32 referenceId)
{
    const QString entry = QStringLiteral("frmDE_Reference");
    if (!windowAvailable(session, entry))
        return;
    RecordRequest request;
    request.recordId = referenceId > 0 ? referenceId
                                       : session.GetNewRecordID(QStringLiteral("tblReferences"), QStringLiteral("ReferenceID"), QString(), 0, 0);
    request.table = QStringLiteral("tblReferences");
    request.keyField = QStringLiteral("ReferenceID");
    request.mode = QStringLiteral("DE");
    if (ZobWindow *w = host.form(entry)) {
        w->setRecord(request);
        host.show(entry, true);
    }
}
