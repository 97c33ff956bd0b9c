// SPDX-License-Identifier: MIT
#pragma once

#include "ZobWindow.h"

class DriveList;
class FolderList;
class QLineEdit;

//! Picks a folder. Shown modally; it starts at the folder in gSelectedDir and, on OK, answers there
//! with the chosen folder as chosenFolder gives it. Cancel leaves gSelectedDir as it was.
class frmGetDir : public ZobWindow {
    Q_OBJECT
public:
    frmGetDir(Session &session, QtWindowHost &host);

    bool isMdiChild() const override { return false; }
    void Form_Load() override;
    //! Escape cancels; Enter in the path box goes to the typed folder.
    bool Form_KeyDown(int keyCode, int shift) override;

private:
    void cmdControl_Click(int index);
    void goToTyped();

    DriveList *m_drvMain;
    FolderList *m_dirMain;
    QLineEdit *m_txtDir;
};
