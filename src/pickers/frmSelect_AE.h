// SPDX-License-Identifier: MIT
#pragma once

#include "FilteredPicker.h"

//! The assimilation efficiency picker: lists tblAE; Select writes AEID into the caller's row.
class frmSelect_AE : public FilteredPicker {
    Q_OBJECT
public:
    frmSelect_AE(Session &session, QtWindowHost &host);
    static PickerProfile profile();
};
