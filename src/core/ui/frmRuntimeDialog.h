// SPDX-License-Identifier: MIT
#pragma once

#include "ZobWindow.h"

class QLineEdit;

//! A small modal box of the runtime check: a text box and the toolbar buttons "OK" and "Cancel".
//! It shows that a modal window runs its own loop and hands its result back when it closes.
class frmRuntimeDialog : public ZobWindow {
    Q_OBJECT
public:
    frmRuntimeDialog(Session &session, QtWindowHost &host);
    bool isMdiChild() const override { return false; }
    //! "OK:<text>" or "Cancel", as the last showing ended.
    static inline QString lastResult;

private:
    QLineEdit *m_txtValue;
};
