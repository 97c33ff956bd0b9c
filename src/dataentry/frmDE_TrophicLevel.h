// SPDX-License-Identifier: MIT
#pragma once

#include "EntryWindow.h"

//! The entry window of a trophic level (tblTrophicLevel), whose statistics stand on the window itself.
class frmDE_TrophicLevel : public EntryWindow {
    Q_OBJECT
public:
    frmDE_TrophicLevel(Session &session, QtWindowHost &host);

protected:
    QString recordSource(qint32 id) const override;
};
