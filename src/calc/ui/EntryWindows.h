// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

struct RecordRequest;
class QtWindowHost;
class Session;

//! Opens a window for a record (modally or not). When the program lacks the window a box says so and
//! false comes back.
bool openEntryWindow(Session &session, QtWindowHost &host, const QString &window, const RecordRequest &request, bool modal);

//! Adds a blank row to table and opens it in the entry window with the mode "Write", modally. When
//! the program lacks the window a box says so, no row is added and false comes back.
bool openNewEntry(Session &session, QtWindowHost &host, const QString &window, const QString &table, const QString &keyField);
