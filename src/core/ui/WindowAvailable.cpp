// SPDX-License-Identifier: MIT
#include "WindowAvailable.h"

#include "QtWindowHost.h"
#include "Session.h"

QString missingWindowText(const QString &name)
{
    return QStringLiteral("The window %1 is not available in this version.").arg(name);
}

bool windowAvailable(Session &session, const QString &name)
{
    if (QtWindowHost::isRegistered(name))
        return true;
    session.msgBox(missingWindowText(name), QString(), MsgIcon::Information);
    return false;
}
