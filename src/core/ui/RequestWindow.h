// SPDX-License-Identifier: MIT
#pragma once

#include "ZobWindow.h"

//! A window opened for a record: the request (setRecord) is only stored, and served once when the
//! window is next shown or activated, whether or not the window manager activates it. The first
//! showing is served even without a request (as from the menu).
class RequestWindow : public ZobWindow {
    Q_OBJECT
public:
    using ZobWindow::ZobWindow;

    void setRecord(const RecordRequest &request) override;
    void Form_Activate() override;

protected:
    //! Reads what the request asks for; runs once per request.
    virtual void serveRequest() = 0;
    void showEvent(QShowEvent *event) override;

private:
    bool m_pending = true;
};
