// SPDX-License-Identifier: MIT
#pragma once

#include "FilteredPicker.h"

//! The gross energy picker: lists tblGrossEnergy; Select writes GrossEnergyID into the caller's row.
class frmSelect_GE : public FilteredPicker {
    Q_OBJECT
public:
    frmSelect_GE(Session &session, QtWindowHost &host);
    static PickerProfile profile();
};
