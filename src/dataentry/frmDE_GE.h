// SPDX-License-Identifier: MIT
#pragma once

#include "EntryWindow.h"

//! The entry window of a gross energy (tblGrossEnergy): the item, its wet and dry energy statistics and its moisture.
class frmDE_GE : public EntryWindow {
    Q_OBJECT
public:
    frmDE_GE(Session &session, QtWindowHost &host);
};
