// SPDX-License-Identifier: MIT
#pragma once

#include "WindowLinks.h"
#include "ZobWindow.h"

#include <QPointer>

class QGroupBox;
class QRadioButton;

//! Asks whether proportions or calculations are on a dry or a wet basis. OK answers through the caller's
//! check box (1 wet, 0 dry); Cancel leaves the box as it was.
class frmSelect_DryWetWeight : public ZobWindow, public BasisChooser {
    Q_OBJECT
public:
    frmSelect_DryWetWeight(Session &session, QtWindowHost &host);

    bool isMdiChild() const override { return false; }
    //! Purpose 1: the basis of "Sum Proportions to 1.0"; any other: of the calculations.
    void setPurpose(qint16 iOpt, QWidget *answer) override;

    qint16 iOpt = 0;

private:
    void ok();

    QPointer<QWidget> m_ctl;
    QGroupBox *m_fraDietType;
    QRadioButton *m_optDryWeight[2];
};
