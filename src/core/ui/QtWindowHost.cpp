// SPDX-License-Identifier: MIT
#include "QtWindowHost.h"

#include "Session.h"
#include "WindowGeometry.h"
#include "ZobWindow.h"

#include <QEventLoop>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <cstdio>
#include <exception>

QHash<QString, QtWindowHost::Factory> &QtWindowHost::registry()
{
    static QHash<QString, Factory> factories;
    return factories;
}

void QtWindowHost::registerFactory(const QString &name, Factory factory)
{
    registry().insert(name, std::move(factory));
}

QStringList QtWindowHost::registeredWindows()
{
    QStringList names = registry().keys();
    names.sort();
    return names;
}

bool QtWindowHost::isRegistered(const QString &name)
{
    return registry().contains(name);
}

QtWindowHost::QtWindowHost(Session &session, QObject *parent) : QObject(parent), m_session(session)
{
    static const bool coreRegistered = (registerCoreWindows(), true);
    Q_UNUSED(coreRegistered);
}

QtWindowHost::~QtWindowHost()
{
    for (const QPointer<ZobWindow> &w : std::as_const(m_windows))
        delete w.data();
}

bool QtWindowHost::isLoaded(const QString &name) const
{
    return loaded(name) != nullptr;
}

ZobWindow *QtWindowHost::loaded(const QString &name) const
{
    return m_windows.value(name).data();
}

QStringList QtWindowHost::loadedWindows() const
{
    return m_order;
}

ZobWindow *QtWindowHost::form(const QString &name)
{
    if (ZobWindow *w = loaded(name))
        return w;
    const auto it = registry().constFind(name);
    if (it == registry().constEnd())
        return nullptr;
    ZobWindow *w = (*it)(m_session, *this);
    if (!w)
        return nullptr;
    m_windows.insert(name, w);
    m_order.append(name);
    m_loading.append(name);
    try {
        w->Form_Load();
    } catch (const std::exception &e) {
        // Loads report their own errors; anything that escapes is noted and the window stays.
        std::fprintf(stderr, "%s.Form_Load: %s\n", qPrintable(name), e.what());
    }
    m_loading.removeOne(name);
    if (loaded(name) != w)
        return nullptr;  // the load unloaded the window again
    w->installKeyPreview();
    emit windowLoaded(name);
    return w;
}

QWidget *QtWindowHost::frameOf(ZobWindow *w) const
{
    QMdiSubWindow *sub = m_subWindows.value(w->objectName()).data();
    return sub ? static_cast<QWidget *>(sub) : w;
}

void QtWindowHost::show(const QString &name, bool modal)
{
    ZobWindow *w = form(name);
    if (!w) {
        if (!isRegistered(name))
            std::fprintf(stderr, "The window %s is not part of this program.\n", qPrintable(name));
        return;
    }
    w->installKeyPreview();
    if (modal) {
        if (w->isVisible() && w->isModal())
            return;  // already shown modally: the loop that shows it is running
        if (QMdiSubWindow *sub = m_subWindows.take(name)) {
            sub->setWidget(nullptr);
            sub->deleteLater();
        }
        w->setParent(m_main, Qt::Dialog);
        w->setWindowModality(Qt::ApplicationModal);
        WindowGeometry::fitScreen(w);
        w->show();
        w->raise();
        w->activateWindow();
        QPointer<ZobWindow> guard(w);
        QEventLoop loop;
        connect(w, &ZobWindow::hidden, &loop, &QEventLoop::quit);
        connect(w, &QObject::destroyed, &loop, &QEventLoop::quit);
        connect(this, &QtWindowHost::windowUnloaded, &loop, [&loop, name](const QString &gone) {
            if (gone == name)
                loop.quit();
        });
        ++m_modalDepth;
        loop.exec(QEventLoop::DialogExec);
        --m_modalDepth;
        if (guard && !guard->isVisible())
            guard->setWindowModality(Qt::NonModal);
        return;
    }
    if (w->isMdiChild() && m_mdi) {
        QMdiSubWindow *sub = m_subWindows.value(name).data();
        if (!sub) {
            w->setWindowModality(Qt::NonModal);
            sub = m_mdi->addSubWindow(w);
            sub->setAttribute(Qt::WA_DeleteOnClose, false);
            m_subWindows.insert(name, sub);
        }
        sub->show();
        w->show();
        WindowGeometry::fitInside(sub, m_mdi->viewport());
        m_mdi->setActiveSubWindow(sub);
        w->Form_Activate();
        return;
    }
    if (!w->isWindow())
        w->setParent(m_main, Qt::Tool);
    w->show();
    w->raise();
    w->activateWindow();
}

void QtWindowHost::hide(const QString &name)
{
    if (ZobWindow *w = loaded(name))
        frameOf(w)->hide(), w->hide();
}

void QtWindowHost::unload(const QString &name)
{
    ZobWindow *w = loaded(name);
    if (!w || w->unloading())
        return;
    bool cancel = false;
    w->setUnloading(true);
    try {
        w->Form_Unload(cancel);
    } catch (const std::exception &e) {
        std::fprintf(stderr, "%s.Form_Unload: %s\n", qPrintable(name), e.what());
    }
    if (cancel) {
        w->setUnloading(false);
        return;
    }
    m_windows.remove(name);
    m_order.removeOne(name);
    QMdiSubWindow *sub = m_subWindows.take(name);
    w->hide();
    if (sub) {
        sub->setWidget(nullptr);
        sub->hide();
        sub->deleteLater();
    }
    w->setParent(nullptr);
    emit windowUnloaded(name);
    w->deleteLater();
}

bool QtWindowHost::unloadAll()
{
    const QStringList names = m_order;
    for (const QString &name : names) {
        unload(name);
        if (isLoaded(name))
            return false;
    }
    return true;
}
