// SPDX-License-Identifier: MIT
#pragma once

#include "EntryWindow.h"

//! The entry window of a moisture content (tblWaterConversion).
class frmDE_WaterConversion : public EntryWindow {
    Q_OBJECT
public:
    frmDE_WaterConversion(Session &session, QtWindowHost &host);
};
