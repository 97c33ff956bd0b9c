// SPDX-License-Identifier: MIT
#pragma once

#include "EntryWindow.h"

//! The entry window of a literature reference (tblReferences).
class frmDE_Reference : public EntryWindow {
    Q_OBJECT
public:
    frmDE_Reference(Session &session, QtWindowHost &host);

protected:
    QString recordSource(qint32 id) const override;
};
