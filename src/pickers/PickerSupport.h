// SPDX-License-Identifier: MIT
#pragma once

#include "WindowAvailable.h"

#include <QString>

class QtWindowHost;
class Session;

//! Tells the diet item window that a picker wrote into a row: its changed flag is set, the diet of the
//! open scenario becomes the user's, and the window (made if need be, when the program has it) reads
//! its items again. Every picker reports so after a write, whoever opened it.
void reportToDietItem(Session &session, QtWindowHost &host);
//! Asks the diet item window, if the program has it, to read its items again.
void refreshDietItems(QtWindowHost &host);

//! Opens a reference in the references' entry window, modally, for maintenance (mode "DE"); a new one
//! (id 0) is added first as a blank row. Says so, and adds nothing, when the program lacks the window.
void openReferenceEntry(Session &session, QtWindowHost &host, qint32 referenceId);
