// SPDX-License-Identifier: MIT
#pragma once

#include "Services.h"
#include "ZobWindow.h"

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QWidget>
#include <QStringList>
#include <functional>

class QMdiArea;
class QMdiSubWindow;
class Session;

//! Creates, shows and unloads the program's windows by class name: one instance per class, made by
//! the factory registered under the name at its first reference (its Form_Load runs then). Child
//! windows live in the main window's MDI area; modal windows run a nested event loop over it.
class QtWindowHost : public QObject, public WindowHost {
    Q_OBJECT
public:
    //! Makes a window; the host owns it afterwards.
    using Factory = std::function<ZobWindow *(Session &, QtWindowHost &)>;

    explicit QtWindowHost(Session &session, QObject *parent = nullptr);
    ~QtWindowHost() override;

    //! Registers the factory of a window class. A later registration under the same name replaces it.
    static void registerFactory(const QString &name, Factory factory);
    //! Names of every window class that can be made.
    static QStringList registeredWindows();
    static bool isRegistered(const QString &name);

    //! The area in which child windows live, and the window over which boxes appear.
    void setMdiArea(QMdiArea *area) { m_mdi = area; }
    void setMainWindow(QWidget *main) { m_main = main; }
    QWidget *mainWindow() const { return m_main; }

    // WindowHost
    bool isLoaded(const QString &name) const override;
    //! Loads the window if needed and shows it. Modal: returns when the window is hidden or unloaded.
    void show(const QString &name, bool modal = false) override;
    //! Runs the window's Form_Unload; unless it cancels, the window goes, and the next reference
    //! makes a new one.
    void unload(const QString &name) override;
    //! Names of the loaded windows, in the order of loading.
    QStringList loadedWindows() const override;

    //! The window of a class, made and loaded at the first reference; null for an unknown name.
    ZobWindow *form(const QString &name);
    template <typename W>
    W *form(const QString &name) { return qobject_cast<W *>(form(name)); }
    //! The window if it is loaded, without making it.
    ZobWindow *loaded(const QString &name) const;
    //! A window's typed link (an interface of WindowLinks.h), made and loaded at the first reference;
    //! null when there is no such window or it does not offer that link.
    template <typename Link>
    Link *link(const QString &name) { return dynamic_cast<Link *>(form(name)); }
    //! The same for a window that is loaded already; null otherwise.
    template <typename Link>
    Link *loadedLink(const QString &name) const { return dynamic_cast<Link *>(loaded(name)); }
    //! Loads without showing (legacy Load).
    bool load(const QString &name) { return form(name) != nullptr; }
    //! Hides a window; a modal showing of it ends.
    void hide(const QString &name);
    //! Unloads every loaded window in turn, each with its own unload logic. False when one refused.
    bool unloadAll();
    //! Depth of nested modal showings.
    int modalDepth() const { return m_modalDepth; }

signals:
    void windowLoaded(const QString &name);
    void windowUnloaded(const QString &name);

private:
    static QHash<QString, Factory> &registry();
    QWidget *frameOf(ZobWindow *w) const;

    Session &m_session;
    QMdiArea *m_mdi = nullptr;
    QPointer<QWidget> m_main;
    QHash<QString, QPointer<ZobWindow>> m_windows;
    QHash<QString, QPointer<QMdiSubWindow>> m_subWindows;
    QStringList m_order;
    QStringList m_loading;
    int m_modalDepth = 0;
};

//! Registers a window class under its name at program start:
//!   static const WindowRegistration<frmX> reg(QStringLiteral("frmX"));
template <typename W>
struct WindowRegistration {
    explicit WindowRegistration(const QString &name)
    {
        QtWindowHost::registerFactory(name, [name](Session &s, QtWindowHost &h) { return new W(s, h); });
    }
};

//! Registers the windows of the core (frmSplash, frmShowHelp); the host calls it before its first use.
void registerCoreWindows();
