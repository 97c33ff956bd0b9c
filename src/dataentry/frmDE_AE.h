// SPDX-License-Identifier: MIT
#pragma once

#include "EntryWindow.h"

//! The entry window of an assimilation efficiency (tblAE): consumer and food item, their classification and the efficiency statistics.
class frmDE_AE : public EntryWindow {
    Q_OBJECT
public:
    frmDE_AE(Session &session, QtWindowHost &host);
};
