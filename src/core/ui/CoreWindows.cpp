// SPDX-License-Identifier: MIT
#include "QtWindowHost.h"
#include "frmRuntimeCheck.h"
#include "frmRuntimeDialog.h"
#include "frmShowHelp.h"
#include "frmSplash.h"

void registerCoreWindows()
{
    WindowRegistration<frmSplash> splash(QStringLiteral("frmSplash"));
    WindowRegistration<frmShowHelp> help(QStringLiteral("frmShowHelp"));
    WindowRegistration<frmRuntimeCheck> check(QStringLiteral("frmRuntimeCheck"));
    WindowRegistration<frmRuntimeDialog> dialog(QStringLiteral("frmRuntimeDialog"));
}
