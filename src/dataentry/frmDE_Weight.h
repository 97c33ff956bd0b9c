// SPDX-License-Identifier: MIT
#pragma once

#include "EntryWindow.h"

//! The entry window of body weights (tblWeight): one weight, or in mode "Read" every weight of the species of the record id.
class frmDE_Weight : public EntryWindow {
    Q_OBJECT
public:
    frmDE_Weight(Session &session, QtWindowHost &host);

protected:
    QString recordSource(qint32 id) const override;
    //! Adds a weight for the species shown and moves to it.
    void newRecord() override;
};
