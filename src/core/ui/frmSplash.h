// SPDX-License-Identifier: MIT
#pragma once

#include "ZobWindow.h"

class QLabel;

//! The splash and about box: the program's name, "ZOB" and a picture. A click on it or on the
//! picture, or the Escape key, unloads it.
class frmSplash : public ZobWindow {
    Q_OBJECT
public:
    frmSplash(Session &session, QtWindowHost &host);

    void Form_Load() override;
    bool Form_KeyDown(int keyCode, int shift) override;
    bool isMdiChild() const override { return false; }

    //! The picture: a landscape with a hawk over water, drawn in code.
    static QPixmap picture(const QSize &size);

protected:
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    QLabel *m_imgSplash;
    QLabel *m_lblProductName;
    QLabel *m_lblProduct;
};
