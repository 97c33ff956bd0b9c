// SPDX-License-Identifier: MIT
#pragma once

#include <QComboBox>
#include <QListWidget>

//! The folder list of the choosers (dirMain): the folders above the current one, each indented one
//! step further, then the current folder's subfolders. A double click or Enter on an entry opens it.
//! Items read as plain folder names; the full path of each is kept as its data.
class FolderList : public QListWidget {
    Q_OBJECT
public:
    explicit FolderList(QWidget *parent = nullptr);

    //! The folder shown, without a closing separator ("/" for the root).
    QString path() const { return m_path; }
    //! Shows a folder. Returns false, and changes nothing, for a folder that does not exist.
    bool setPath(const QString &path);
    //! Opens the entry that is current.
    void openCurrent();

signals:
    //! The folder shown changed (the legacy Change event).
    void Change();

private:
    QString m_path;
};

//! The drive list of the choosers (drvMain). Linux has no drive letters: the entries are the roots
//! of the file system, "/" and the user's home folder.
class DriveList : public QComboBox {
    Q_OBJECT
public:
    explicit DriveList(QWidget *parent = nullptr);
    //! The root that holds a folder (the home folder for anything below it).
    void showRootOf(const QString &folder);
    QString root() const { return currentData().toString(); }

signals:
    //! The user chose another root.
    void Change();
};

//! The file names of a folder that match a pattern such as "*.NAV", compared without regard to case,
//! sorted by name.
QStringList filesOf(const QString &folder, const QString &pattern);
