// SPDX-License-Identifier: MIT
#pragma once

#include "FilteredPicker.h"

class QLineEdit;

//! The moisture picker: lists tblWaterConversion. Select writes the chosen row's id, water percent and
//! data source, or a typed water content (data source 6), into the caller's row; while the content is
//! typed the dry/wet ratio beside it follows.
class frmSelect_WaterConversion : public FilteredPicker {
    Q_OBJECT
public:
    frmSelect_WaterConversion(Session &session, QtWindowHost &host);
    static PickerProfile profile();

protected:
    float typedValue() const override;

private:
    //! Shows the dry/wet ratio of the typed water content, refusing more than 100 %.
    void txtWaterRatio_Change();

    QLineEdit *m_txtWaterRatio[2];
};
