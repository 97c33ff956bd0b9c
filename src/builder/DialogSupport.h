// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QGroupBox;
class ZobToolbar;
class ZobWindow;
struct RecordRequest;

//! Opens the window name for a record on behalf of from: the request is handed over and, unless
//! unloadFirst is false, from is unloaded before the window shows. When the program lacks the window a
//! box says so, nothing is opened and from stays; false then.
//! Shows or hides a toolbar button together with the separator in front of it, so that a hidden
//! button leaves no doubled separator behind.
void showToolButton(ZobToolbar &toolbar, const QString &key, bool visible);

//! Keeps a frame at the height of its contents, so that the grid above it takes the height left.
void keepFrameHeight(QGroupBox *frame);

bool openForRecord(ZobWindow &from, const QString &name, const RecordRequest &request, bool modal, bool unloadFirst = true);
