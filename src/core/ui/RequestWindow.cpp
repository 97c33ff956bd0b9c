// SPDX-License-Identifier: MIT
#include "RequestWindow.h"

void RequestWindow::setRecord(const RecordRequest &request)
{
    ZobWindow::setRecord(request);
    m_pending = true;
}

void RequestWindow::showEvent(QShowEvent *event)
{
    ZobWindow::showEvent(event);
    Form_Activate();
}

void RequestWindow::Form_Activate()
{
    if (!m_pending)
        return;
    m_pending = false;
    serveRequest();
}
