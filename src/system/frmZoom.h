// SPDX-License-Identifier: MIT
#pragma once

#include "WindowLinks.h"
#include "ZobWindow.h"

#include <QPointer>

class QPlainTextEdit;

//! Shows a long text in a large box for reading or editing. ZoomText shows it modally for a box of
//! another window; the OK button writes the text back into that box.
class frmZoom : public ZobWindow, public TextZoom {
    Q_OBJECT
public:
    frmZoom(Session &session, QtWindowHost &host);

    bool isMdiChild() const override { return false; }
    //! Escape closes without writing back.
    bool Form_KeyDown(int keyCode, int shift) override;

    //! Shows the text of target (a line or text box) under a caption; read-only locks the box and
    //! hides the clear button. Returns true when the text was written back.
    bool ZoomText(QWidget *target, const QString &caption, bool readOnly) override;

private:
    //! OK: writes the text back into the target box (unless read-only) and closes.
    void keepAndClose();
    //! Makes the text points larger (or smaller, for a negative step).
    void resizeText(int points);

    QPlainTextEdit *m_txtZoom;
    QPointer<QWidget> m_target;
    bool m_written = false;
};
