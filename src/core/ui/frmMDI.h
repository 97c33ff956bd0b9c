// SPDX-License-Identifier: MIT
#pragma once

#include <QMainWindow>
#include <QVector>

#include <functional>

class QAction;
class QMdiArea;
class QtWindowHost;
class Session;

//! The main window: menu and the area in which the child windows live.
class frmMDI : public QMainWindow {
    Q_OBJECT
public:
    frmMDI(Session &session, QtWindowHost &host, QWidget *parent = nullptr);

    //! The load of the main window: the project and scenario objects, the caption, the user check,
    //! and the first window (project list for a known user; the welcome message and setup for a new one).
    void Form_Load();

    QMdiArea *mdiArea() const { return m_mdi; }
    //! "Zobrel (Version: <major>.<minor>.<revision>)".
    static QString captionText();
    //! A menu item by its control name ("mnuExit", "mnuProjectOptions(4)"), null if none.
    QAction *menuItem(const QString &name) const;

    //! Something the window layers need done once the project and scenario objects exist and before
    //! the first window shows (linking the objects to their windows, the file chooser service).
    using LoadHook = std::function<void(Session &, QtWindowHost &)>;
    static void addLoadHook(LoadHook hook);

protected:
    //! Closing the main window unloads every loaded window in turn; one that refuses keeps it open.
    void closeEvent(QCloseEvent *event) override;
    void showEvent(QShowEvent *event) override;
    //! Gives Ctrl+Tab to the window with pages that has the key, before the window area takes it
    //! to move between windows.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void buildMenu();
    void updateProjectItems();
    void openPicker(const QString &window, const QString &keyField, const QString &table);
    void openWildlifeEntry();
    void openLifeHistory();
    static QVector<LoadHook> &loadHooks();

    Session &m_session;
    QtWindowHost &m_host;
    QMdiArea *m_mdi;
    bool m_pageKeys = false;
};
