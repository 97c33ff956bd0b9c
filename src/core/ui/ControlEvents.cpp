// SPDX-License-Identifier: MIT
#include "ControlEvents.h"

#include "Utilities.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWidget>

ControlEvents::ControlEvents(QWidget *control) : QObject(control)
{
    setObjectName(QStringLiteral("ControlEvents"));
    control->installEventFilter(this);
    // Views take their mouse events on the viewport.
    if (auto *area = qobject_cast<QAbstractScrollArea *>(control))
        area->viewport()->installEventFilter(this);
}

ControlEvents *ControlEvents::of(QWidget *control)
{
    if (auto *existing = control->findChild<ControlEvents *>(QStringLiteral("ControlEvents"), Qt::FindDirectChildrenOnly))
        return existing;
    return new ControlEvents(control);
}

int vbShiftState(Qt::KeyboardModifiers modifiers)
{
    return (modifiers & Qt::ShiftModifier ? 1 : 0) | (modifiers & Qt::ControlModifier ? 2 : 0)
        | (modifiers & Qt::AltModifier ? 4 : 0);
}

bool ControlEvents::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::FocusIn:
        if (watched == parent())
            emit GotFocus();
        break;
    case QEvent::FocusOut:
        if (watched == parent())
            emit LostFocus();
        break;
    case QEvent::KeyPress: {
        if (watched != parent())
            break;
        auto *ke = static_cast<QKeyEvent *>(event);
        int code = vbKeyFromQt(ke->key());
        if (code != 0) {
            emit KeyDown(code, vbShiftState(ke->modifiers()));
            if (code == 0)
                return true;  // the handler swallowed the key
        }
        break;
    }
    case QEvent::MouseButtonRelease: {
        // Buttons report their clicks through clicked(); other controls through this signal.
        if (qobject_cast<QAbstractButton *>(parent()))
            break;
        auto *me = static_cast<QMouseEvent *>(event);
        if (me->button() == Qt::LeftButton)
            emit Click();
        break;
    }
    case QEvent::MouseButtonDblClick:
        emit DblClick();
        break;
    default:
        break;
    }
    return false;
}
