// SPDX-License-Identifier: MIT
#include "DialogSupport.h"

#include "QtWindowHost.h"
#include "WindowAvailable.h"
#include "ZobWindow.h"

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
