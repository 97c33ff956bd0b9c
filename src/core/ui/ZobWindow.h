// SPDX-License-Identifier: MIT
#pragma once

#include "ZobToolbar.h"

#include <QList>
#include <QPair>
#include <QPointer>
#include <QWidget>
#include <functional>
#include <utility>

class FormBuilder;
class QPushButton;
class QTabWidget;
class QtWindowHost;
class Session;

//! What one window passes another that it opens for a record (pickers and entry windows): the record
//! and where it lives, the mode, the record to show first, and how the window was reached.
//! One button of a control array of command buttons, as a table row: its index in the array, its
//! caption and what it does.
struct CommandButton {
    int index;
    QString caption;
    std::function<void()> handler;
};

struct RecordRequest {
    qint32 recordId = 0;
    QString keyField;
    QString table;
    //! "Write", "Read" or "ReadOnly".
    QString mode;
    //! The record shown first (0: none).
    qint32 selectedId = 0;
    //! Narrow the list by the classification of the record being assigned.
    bool filter = false;
    //! A pick for the caller (true), or browse-and-edit from the menu (false).
    bool isSelection = true;
    //! How the window was reached: "Menu", or empty for a caller's command.
    QString entry;
    //! The record also takes a life stage and a component (the classification picker).
    bool collection = false;
};

//! The common base of the program's windows. The window host creates one instance per class, runs
//! Form_Load once, shows it in the main window's MDI area (or as a box over it) and runs Form_Unload
//! before it goes. Subclasses build their controls in code and name each one as the system does.
class ZobWindow : public QWidget {
    Q_OBJECT
public:
    ZobWindow(Session &session, QtWindowHost &host, const QString &name, QWidget *parent = nullptr);
    ~ZobWindow() override;

    //! Runs once, when the window is first referenced.
    virtual void Form_Load() {}
    //! Runs each time the window is shown or brought to the front.
    virtual void Form_Activate() {}
    //! Runs before the window goes; setting cancel keeps it.
    virtual void Form_Unload(bool &cancel) { Q_UNUSED(cancel); }
    //! Key down on the window or any control on it (the window sees keys first), as a legacy code.
    //! Return true when the key was handled.
    virtual bool Form_KeyDown(int keyCode, int shift) { Q_UNUSED(keyCode); Q_UNUSED(shift); return false; }
    //! Child of the main window's MDI area (true) or a box of its own (false).
    virtual bool isMdiChild() const { return true; }
    //! Opens the window for one record (legacy PuS_SetRecord). The base keeps the request.
    virtual void setRecord(const RecordRequest &request) { m_request = request; }
    //! The last request given to setRecord.
    const RecordRequest &recordRequest() const { return m_request; }
    //! The statement of the caller's row of the last request: "Select * From <table> WHERE
    //! [<table>.]<key> = <id>". A scenario's copied diet item keeps the id of the reference item it was
    //! copied from, so there the open scenario's id is a further criterion: a write must never reach
    //! another scenario's copy.
    QString callerRowSql(bool qualified = true) const;

    //! The window's help number.
    int HelpContextID = 0;

    //! The caption in the title bar.
    QString caption() const { return windowTitle(); }
    void setCaption(const QString &text) { setWindowTitle(text); }

    //! The window's toolbar TB_MDI, null if it has none.
    ZobToolbar *toolbar() const;

    //! A control by its name ("txtNotes(8)").
    template <typename T = QWidget>
    T *control(const QString &name) const { return findChild<T *>(name); }

    //! Asks the host to unload this window (legacy "Unload Me").
    void unloadMe();
    //! Shows the help topic of this window.
    void showHelp();
    //! Gives a control (and everything in it) a help topic of its own for F1.
    void setHelpContext(QWidget *control, int topic);
    //! The help topic for a control: its own, its nearest container's, or the window's.
    int helpContext(const QWidget *control) const;

    Session &session() const { return m_session; }
    QtWindowHost &host() const { return m_host; }

    //! Lets the window see the keys of all its controls first (the legacy KeyPreview); the host calls
    //! it after the load, and again at each showing for controls made later.
    void installKeyPreview();

    //! Turns the pages of the window's tab strip for Ctrl+Tab, Ctrl+Shift+Tab, Ctrl+PgDn and
    //! Ctrl+PgUp; false (nothing done) for another key or a window without pages.
    bool turnPage(const QKeyEvent *key);

    //! Set by the host while it unloads the window.
    bool unloading() const { return m_unloading; }
    void setUnloading(bool on) { m_unloading = on; }

signals:
    //! The window was hidden (end of a modal showing).
    void hidden();

public:
    // The window's commands, also for the components that make up a large window's pages.
    //! The buttons name(index) of a control array, made in the order of the table; each handler runs
    //! under the window's error handler as routine (the legacy "<name>_Click").
    QList<QPushButton *> commandButtons(FormBuilder &builder, const QString &name, const QList<CommandButton> &buttons);
    //! Runs body under the window's error handler as routine, then resets the busy cursor.
    void runCommand(const QString &routine, const std::function<void()> &body);

protected:
    //! True only at the first activation of the window, which follows its load at once: what the load
    //! has just read need not be read again.
    bool firstActivation() { return !std::exchange(m_activated, true); }
    //! The window's toolbar, from a table: each handler runs under the window's error handler as
    //! routine (the legacy "TB_MDI_ButtonClick"), and the busy cursor is reset after it.
    ZobToolbar *buildToolbar(FormBuilder &builder, const QList<ToolButton> &places,
                             const QString &routine = QStringLiteral("TB_MDI_ButtonClick"));

    void closeEvent(QCloseEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    Session &m_session;
    QtWindowHost &m_host;
    //! A key down on the window or, first, on one of its controls (from).
    bool keyDown(int code, int shift, const QWidget *from);
    bool pressDialogButton(bool accept);
    //! The tab strip a page key turns, and the step; null when the key turns none.
    QTabWidget *pageStrip(const QKeyEvent *key, int *step) const;

    bool m_unloading = false;
    bool m_activated = false;
    const QEvent *m_previewed = nullptr;
    RecordRequest m_request;
    QList<QPair<QPointer<QWidget>, int>> m_helpTopics;
};
