// SPDX-License-Identifier: MIT
#include "ZobWindow.h"

#include "ControlEvents.h"
#include "QtWindowHost.h"
#include "Session.h"
#include "Utilities.h"
#include "ZobToolbar.h"

#include <QCloseEvent>
#include <QKeyEvent>

ZobWindow::ZobWindow(Session &session, QtWindowHost &host, const QString &name, QWidget *parent)
    : QWidget(parent), m_session(session), m_host(host)
{
    setObjectName(name);
    setAttribute(Qt::WA_DeleteOnClose, false);
}

ZobWindow::~ZobWindow() = default;

void ZobWindow::PuS_SetRecord(qint32 recordId, const QString &keyField, const QString &table, const QString &mode)
{
    Q_UNUSED(recordId);
    Q_UNUSED(keyField);
    Q_UNUSED(table);
    Q_UNUSED(mode);
}

ZobToolbar *ZobWindow::toolbar() const
{
    return findChild<ZobToolbar *>(QStringLiteral("TB_MDI"));
}

void ZobWindow::unloadMe()
{
    m_host.unload(objectName());
}

void ZobWindow::showHelp()
{
    if (m_session.help)
        m_session.help->showTopic(HelpContextID);
}

void ZobWindow::closeEvent(QCloseEvent *event)
{
    if (m_unloading) {
        event->accept();
        return;
    }
    // Closing by the title bar is an unload, with the window's own unload logic.
    event->ignore();
    m_host.unload(objectName());
}

void ZobWindow::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    emit hidden();
}

void ZobWindow::installKeyPreview()
{
    const auto controls = findChildren<QWidget *>();
    for (QWidget *c : controls) {
        c->removeEventFilter(this);
        c->installEventFilter(this);
    }
}

bool ZobWindow::eventFilter(QObject *watched, QEvent *e)
{
    if (e->type() == QEvent::KeyPress && watched != this) {
        auto *ke = static_cast<QKeyEvent *>(e);
        const int code = vbKeyFromQt(ke->key());
        if (code != 0) {
            m_previewed = e;
            if (Form_KeyDown(code, vbShiftState(ke->modifiers())))
                return true;
        }
    }
    return QWidget::eventFilter(watched, e);
}

void ZobWindow::keyPressEvent(QKeyEvent *event)
{
    // A key that a control passed on has been seen already.
    const bool seen = event == m_previewed;
    m_previewed = nullptr;
    const int code = vbKeyFromQt(event->key());
    if (!seen && code != 0 && Form_KeyDown(code, vbShiftState(event->modifiers()))) {
        event->accept();
        return;
    }
    QWidget::keyPressEvent(event);
}

bool ZobWindow::event(QEvent *e)
{
    // A box of its own is activated by the title bar; MDI children by the host.
    if (e->type() == QEvent::WindowActivate && isWindow() && !m_unloading)
        Form_Activate();
    return QWidget::event(e);
}
