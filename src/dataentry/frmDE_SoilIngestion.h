// SPDX-License-Identifier: MIT
#pragma once

#include "EntryWindow.h"

//! The entry window of a soil ingestion record (tblSoilIngestion).
class frmDE_SoilIngestion : public EntryWindow {
    Q_OBJECT
public:
    frmDE_SoilIngestion(Session &session, QtWindowHost &host);
};
