// SPDX-License-Identifier: MIT
#pragma once

#include "Services.h"
#include "ZobWindow.h"

class DriveList;
class FolderList;
class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPlainTextEdit;
class QPushButton;

//! The chooser of marker files: picks a scenario (.ZOB) or project (.NAV) file to open, or names one to
//! save, and shows the first line of a picked file in its description box before the user commits.
//! Shown modally by OpenForm; OK and Close both unload it, and the caller reads the answer.
class frmSearch_File : public ZobWindow {
    Q_OBJECT
public:
    frmSearch_File(Session &session, QtWindowHost &host);

    bool isMdiChild() const override { return false; }
    void Form_Unload(bool &cancel) override;
    //! Escape closes the chooser as Close does.
    bool Form_KeyDown(int keyCode, int shift) override;

    // Public properties, in the legacy order.
    QString Action;     //!< "Open", "Save" or "Save "
    QString FileType;   //!< "ZOB", "KEL", "NAV" or other
    QString File;       //!< the file name, with extension, no folder
    QString Path;       //!< the folder, no closing separator
    bool SaveFile = false;  //!< the user pressed OK

    //! Fills the window for a file type and an action and shows it modally; returns the answer
    //! (SaveFile, Path, File) when the window has gone.
    FileChoice OpenForm(const QString &fileType, const QString &action);

    //! The description box (txtInfo).
    void setInfo(const QString &text);
    QString info() const;

    //! The file pattern of a row of the type list: rows go by index, not by their words.
    static QString patternOfRow(int row);
    //! The three rows of the type list.
    static QStringList fileTypeRows();

signals:
    //! OK or Close was pressed (or the window was closed): the answer.
    void finished(const FileChoice &choice);

private:
    //! Takes the chosen name (Open) or the typed name with the type as extension (Save).
    void connectEvents(QPushButton *ok, QPushButton *close, QPushButton *help);
    void GetSelection();
    void cmdControl_Click(int index);
    void showFolder(const QString &folder);
    void fillFiles();
    QString selectedFileName() const;

    DriveList *m_drvMain;
    FolderList *m_dirMain;
    QLabel *m_lblFolder;
    QListWidget *m_FileMain;
    QLineEdit *m_txtSelectedFile;
    QLabel *m_txtInfo;
    QComboBox *m_lstFileType;
    QString m_pattern = QStringLiteral("*.*");
    bool m_answered = false;
};
