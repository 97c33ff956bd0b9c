// SPDX-License-Identifier: MIT
#pragma once

#include "FilteredPicker.h"

class QLineEdit;

//! The trophic level picker: lists tblTrophicLevel. Select writes the chosen row's id, trophic level
//! and data source, or a typed trophic level (data source 6), into the caller's row.
class frmSelect_TrophicLevel : public FilteredPicker {
    Q_OBJECT
public:
    frmSelect_TrophicLevel(Session &session, QtWindowHost &host);
    static PickerProfile profile();

protected:
    float typedValue() const override;

private:
    QLineEdit *m_txtTL;
};
