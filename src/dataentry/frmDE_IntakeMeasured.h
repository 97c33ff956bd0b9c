// SPDX-License-Identifier: MIT
#pragma once

#include "EntryWindow.h"

//! The entry window of a measured intake rate of a species (tblIntakeMeasured).
class frmDE_IntakeMeasured : public EntryWindow {
    Q_OBJECT
public:
    frmDE_IntakeMeasured(Session &session, QtWindowHost &host);

    //! Adds a blank measured intake for a species and opens the window on it in mode "Write".
    void AddRecord(qint32 speciesId);

protected:
    //! Adds a measured intake for the species shown.
    void newRecord() override;
};
