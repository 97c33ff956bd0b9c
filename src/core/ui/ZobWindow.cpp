// SPDX-License-Identifier: MIT
#include "ZobWindow.h"

#include "ControlEvents.h"
#include "Diagnostics.h"
#include "FormBuilder.h"
#include "QtWindowHost.h"
#include "Session.h"
#include "Utilities.h"
#include "ZobToolbar.h"
#include "clsScenario.h"

#include <QAction>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QPushButton>
#include <QTabWidget>

ZobWindow::ZobWindow(Session &session, QtWindowHost &host, const QString &name, QWidget *parent)
    : QWidget(parent), m_session(session), m_host(host)
{
    setObjectName(name);
    setAttribute(Qt::WA_DeleteOnClose, false);
}

ZobWindow::~ZobWindow() = default;

ZobToolbar *ZobWindow::buildToolbar(FormBuilder &builder, const QList<ToolButton> &places, const QString &routine)
{
    ZobToolbar *tb = builder.toolbar();
    tb->define(places, [this, routine](const std::function<void()> &handler) { runCommand(routine, handler); });
    return tb;
}

QList<QPushButton *> ZobWindow::commandButtons(FormBuilder &builder, const QString &name,
                                               const QList<CommandButton> &buttons)
{
    QList<QPushButton *> made;
    const QString routine = name + QStringLiteral("_Click");
    for (const CommandButton &b : buttons) {
        QPushButton *button = builder.button(name, b.index, b.caption);
        if (b.handler)
            connect(button, &QPushButton::clicked, this, [this, routine, handler = b.handler] { runCommand(routine, handler); });
        made << button;
    }
    return made;
}

void ZobWindow::runCommand(const QString &routine, const std::function<void()> &body)
{
    guarded(m_session, {ErrForm::Shared, routine}, body);
    m_session.resetCursor();
}

void ZobWindow::setHelpContext(QWidget *control, int topic)
{
    m_helpTopics.append({control, topic});
}

int ZobWindow::helpContext(const QWidget *control) const
{
    for (const QWidget *w = control; w && w != this; w = w->parentWidget())
        for (const auto &[widget, topic] : m_helpTopics)
            if (widget == w)
                return topic;
    return HelpContextID;
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
        if (turnPage(ke))
            return true;
        const int code = vbKeyFromQt(ke->key());
        if (code != 0) {
            m_previewed = e;
            if (keyDown(code, vbShiftState(ke->modifiers()), static_cast<QWidget *>(watched)))
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
    if (turnPage(event)) {
        event->accept();
        return;
    }
    const int code = vbKeyFromQt(event->key());
    if (!seen && code != 0 && keyDown(code, vbShiftState(event->modifiers()), focusWidget())) {
        event->accept();
        return;
    }
    // Enter and Escape that no control took press the window's default and cancel buttons, as in
    // a dialog box.
    if (event->modifiers() == Qt::NoModifier || event->modifiers() == Qt::KeypadModifier) {
        const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
        if ((enter || event->key() == Qt::Key_Escape) && pressDialogButton(enter)) {
            event->accept();
            return;
        }
    }
    QWidget::keyPressEvent(event);
}

bool ZobWindow::pressDialogButton(bool accept)
{
    const auto buttons = findChildren<QPushButton *>();
    for (QPushButton *b : buttons) {
        if (!b->isVisibleTo(this) || !b->isEnabled())
            continue;
        const QString caption = b->text().remove(QLatin1Char('&')).trimmed();
        const bool cancel = caption.compare(QLatin1String("Cancel"), Qt::CaseInsensitive) == 0
                            || caption.compare(QLatin1String("Close"), Qt::CaseInsensitive) == 0;
        if (accept ? b->isDefault() : cancel) {
            b->click();
            return true;
        }
    }
    if (accept)
        return false;
    ZobToolbar *tb = toolbar();
    for (const char *key : {"Close", "Cancel"}) {
        QAction *a = tb ? tb->button(QString::fromLatin1(key)) : nullptr;
        if (a && a->isVisible() && a->isEnabled()) {
            a->trigger();
            return true;
        }
    }
    return false;
}

QTabWidget *ZobWindow::pageStrip(const QKeyEvent *key, int *step) const
{
    // Ctrl+Tab and Ctrl+PgDn go to the next page of the tab strip around the focus (or the
    // window's first), Ctrl+Shift+Tab and Ctrl+PgUp to the one before.
    if (!(key->modifiers() & Qt::ControlModifier))
        return nullptr;
    const bool shift = key->modifiers() & Qt::ShiftModifier;
    *step = 0;
    if (key->key() == Qt::Key_Tab)
        *step = shift ? -1 : 1;
    else if (key->key() == Qt::Key_Backtab || key->key() == Qt::Key_PageUp)
        *step = -1;
    else if (key->key() == Qt::Key_PageDown)
        *step = 1;
    if (*step == 0)
        return nullptr;
    QTabWidget *tabs = nullptr;
    for (QWidget *w = focusWidget(); w && w != this && !tabs; w = w->parentWidget())
        tabs = qobject_cast<QTabWidget *>(w);
    if (!tabs)
        tabs = findChild<QTabWidget *>();
    return tabs && tabs->count() > 0 ? tabs : nullptr;
}

bool ZobWindow::turnPage(const QKeyEvent *key)
{
    int step = 0;
    QTabWidget *tabs = pageStrip(key, &step);
    if (!tabs)
        return false;
    tabs->setCurrentIndex((tabs->currentIndex() + step + tabs->count()) % tabs->count());
    return true;
}

bool ZobWindow::keyDown(int code, int shift, const QWidget *from)
{
    if (Form_KeyDown(code, shift))
        return true;
    // F1 shows the help of the control that has the focus, as every window of the program does.
    if (code == 112 && m_session.help) {
        m_session.help->showTopic(helpContext(from));
        return true;
    }
    return false;
}

bool ZobWindow::event(QEvent *e)
{
    // A box of its own is activated by the title bar; MDI children by the host.
    if (e->type() == QEvent::WindowActivate && isWindow() && !m_unloading)
        Form_Activate();
    return QWidget::event(e);
}

QString ZobWindow::callerRowSql(bool qualified) const
{
    const RecordRequest &r = m_request;
    QString sql = qualified ? QStringLiteral("Select * From %1 WHERE %1.%2 = %3").arg(r.table, r.keyField).arg(r.recordId)
                            : QStringLiteral("Select * From %1 WHERE %2 = %3").arg(r.table, r.keyField).arg(r.recordId);
    if (r.table.compare(QLatin1String("tblWildlifeDietItems"), Qt::CaseInsensitive) == 0 && m_session.gScenario
        && m_session.gScenario->SID > 0)
        sql += QStringLiteral(" AND ScenarioID = %1").arg(m_session.gScenario->SID);
    return sql;
}
