// SPDX-License-Identifier: MIT
#pragma once

#include "ZobWindow.h"

#include <QString>

class QGroupBox;
class ZobToolbar;

//! Shows or hides a toolbar button together with the separator in front of it, so that a hidden
//! button leaves no doubled separator behind.
void showToolButton(ZobToolbar &toolbar, const QString &key, bool visible);

//! Keeps a frame at the height of its contents, so that the grid above it takes the height left.
void keepFrameHeight(QGroupBox *frame);

//! The request for one record of a table in a mode.
RecordRequest recordOf(const QString &table, const QString &keyField, qint32 id, const QString &mode);

//! Opens the window name for a record on behalf of from: the request is handed over and, unless
//! unloadFirst is false, from is unloaded before the window shows. When the program lacks the window a
//! box says so, nothing is opened and from stays; false then.
bool openForRecord(ZobWindow &from, const QString &name, const RecordRequest &request, bool modal, bool unloadFirst = true);
