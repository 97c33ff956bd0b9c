// SPDX-License-Identifier: MIT
#pragma once

#include <QMainWindow>

class QMdiArea;
class Session;

//! The main window: menu, toolbar and the area in which the child windows live.
class frmMDI : public QMainWindow {
    Q_OBJECT
public:
    explicit frmMDI(Session &session, QWidget *parent = nullptr);

    //! The load of the main window: the project and scenario objects, the caption, the user check,
    //! and the first window (project list for a known user; the welcome message and setup for a new one).
    void Form_Load();

    QMdiArea *mdiArea() const { return m_mdi; }
    //! "Zobrel (Version: <major>.<minor>.<revision>)".
    static QString captionText();

private:
    Session &m_session;
    QMdiArea *m_mdi;
};
