// SPDX-License-Identifier: MIT
#pragma once

#include "Services.h"

class QWidget;

//! Message boxes as QMessageBox, over the active window.
class QtMessageService : public MessageService {
public:
    MsgAnswer show(const QString &text, const QString &title, MsgIcon icon, MsgButtons buttons, int defaultButton) override;
    bool input(const QString &prompt, const QString &title, QString &value) override;
};

//! The hourglass as an application override cursor.
class QtCursorService : public CursorService {
public:
    void setBusy(bool busy) override;
    bool busy() const override { return m_busy; }
private:
    bool m_busy = false;
};

class QtWindowHost;

//! Help by topic number: hands the number to frmShowHelp and loads it, which opens the viewer.
class QtHelpService : public HelpService {
public:
    explicit QtHelpService(QtWindowHost &host) : m_host(host) {}
    void showTopic(int contextId) override;
private:
    QtWindowHost &m_host;
};
