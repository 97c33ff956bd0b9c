// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class QtWindowHost;
class Session;
class ZobToolbar;

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
    //! Opens the window for one record: the record id, key field, table and mode ("Write", "Read", "ReadOnly").
    virtual void PuS_SetRecord(qint32 recordId, const QString &keyField, const QString &table, const QString &mode);

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

    Session &session() const { return m_session; }
    QtWindowHost &host() const { return m_host; }

    //! Lets the window see the keys of all its controls first (the legacy KeyPreview); the host calls
    //! it after the load, and again at each showing for controls made later.
    void installKeyPreview();

    //! Set by the host while it unloads the window.
    bool unloading() const { return m_unloading; }
    void setUnloading(bool on) { m_unloading = on; }

signals:
    //! The window was hidden (end of a modal showing).
    void hidden();

protected:
    void closeEvent(QCloseEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    Session &m_session;
    QtWindowHost &m_host;
    bool m_unloading = false;
    const QEvent *m_previewed = nullptr;
};
