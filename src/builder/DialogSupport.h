// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class ZobWindow;
struct RecordRequest;

//! Opens the window name for a record on behalf of from: the request is handed over and, unless
//! unloadFirst is false, from is unloaded before the window shows. When the program lacks the window a
//! box says so, nothing is opened and from stays; false then.
bool openForRecord(ZobWindow &from, const QString &name, const RecordRequest &request, bool modal, bool unloadFirst = true);
