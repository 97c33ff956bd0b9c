// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class Session;

//! True when the program has the window name. Otherwise tells the user in a box that the window is
//! not available in this version and gives false, so that a command that would open it does nothing
//! silently and writes nothing.
bool windowAvailable(Session &session, const QString &name);

//! The text of that box.
QString missingWindowText(const QString &name);
