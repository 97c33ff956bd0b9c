// SPDX-License-Identifier: MIT
#pragma once

#include "ZobWindow.h"

class QTimer;

//! The invisible help launcher: its load opens the help viewer at the topic pl_helpKey, and its
//! timer Timer1 unloads it at the first tick, so that the next request loads it anew.
class frmShowHelp : public ZobWindow {
    Q_OBJECT
public:
    frmShowHelp(Session &session, QtWindowHost &host);

    //! The topic that the next load shows.
    static inline int pl_helpKey = 0;

    void Form_Load() override;
    bool isMdiChild() const override { return false; }

private:
    QTimer *m_timer1;
};
