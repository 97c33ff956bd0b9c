// SPDX-License-Identifier: MIT
#include "DialogSupport.h"

#include "QtWindowHost.h"
#include "WindowAvailable.h"
#include "ZobToolbar.h"
#include "ZobWindow.h"

#include <QAction>
#include <QGroupBox>

void showToolButton(ZobToolbar &toolbar, const QString &key, bool visible)
{
    const int index = toolbar.indexOf(key);
    if (QAction *button = toolbar.button(index))
        button->setVisible(visible);
    if (QAction *separator = toolbar.button(index - 1); separator && separator->isSeparator())
        separator->setVisible(visible);
}

void keepFrameHeight(QGroupBox *frame)
{
    frame->setSizePolicy(frame->sizePolicy().horizontalPolicy(), QSizePolicy::Maximum);
}

RecordRequest recordOf(const QString &table, const QString &keyField, qint32 id, const QString &mode)
{
    RecordRequest request;
    request.recordId = id;
    request.keyField = keyField;
    request.table = table;
    request.mode = mode;
    return request;
}

bool openForRecord(ZobWindow &from, const QString &name, const RecordRequest &request, bool modal, bool unloadFirst)
{
    if (!windowAvailable(from.session(), name))
        return false;
    QtWindowHost &host = from.host();
    ZobWindow *target = host.form(name);
    if (!target)
        return false;
    target->setRecord(request);
    if (unloadFirst)
        from.unloadMe();
    host.show(name, modal);
    return true;
}
