// SPDX-License-Identifier: MIT
#include "frmShowHelp.h"

#include "HelpViewer.h"
#include "QtWindowHost.h"

#include <QTimer>

frmShowHelp::frmShowHelp(Session &session, QtWindowHost &host)
    : ZobWindow(session, host, QStringLiteral("frmShowHelp")), m_timer1(new QTimer(this))
{
    m_timer1->setObjectName(QStringLiteral("Timer1"));
    m_timer1->setSingleShot(true);
    m_timer1->setInterval(0);
    connect(m_timer1, &QTimer::timeout, this, &ZobWindow::unloadMe);
}

void frmShowHelp::Form_Load()
{
    HelpViewer::instance(host().mainWindow())->showTopic(pl_helpKey);
    m_timer1->start();
}
