// SPDX-License-Identifier: MIT
#include "InputSim.h"

#include "GuiBridge.h"
#include "Utilities.h"

#include <QAbstractScrollArea>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWidget>

namespace {
QWidget *mouseTarget(QWidget *w)
{
    if (auto *area = qobject_cast<QAbstractScrollArea *>(w))
        return area->viewport();
    return w;
}

void sendMouse(QWidget *w, QEvent::Type type)
{
    QWidget *t = mouseTarget(w);
    const QPointF pos(std::max(1, t->width() / 2), std::max(1, t->height() / 2));
    QMouseEvent ev(type, pos, t->mapToGlobal(pos), Qt::LeftButton,
                   type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(t, &ev);
}

//! The text a key types: letters (lower case without Shift), digits, space, Enter and Escape.
QString keyText(int vbCode, int shift)
{
    if ((vbCode >= 48 && vbCode <= 57) || (vbCode >= 65 && vbCode <= 90))
        return QChar(vbCode >= 65 && !(shift & 1) ? vbCode + 32 : vbCode);
    if (vbCode == 32)
        return QStringLiteral(" ");
    if (vbCode == 13)
        return QStringLiteral("\r");
    if (vbCode == 27)
        return QString(QChar(27));
    return {};
}
}  // namespace

namespace InputSim {

void key(QWidget *w, int vbCode, int shift)
{
    const int key = qtKeyFromVb(vbCode);
    if (key == 0)
        throw BridgeError(QStringLiteral("no key has the code %1").arg(vbCode));
    Qt::KeyboardModifiers mods;
    if (shift & 1) mods |= Qt::ShiftModifier;
    if (shift & 2) mods |= Qt::ControlModifier;
    if (shift & 4) mods |= Qt::AltModifier;
    const QString text = keyText(vbCode, shift);
    QKeyEvent press(QEvent::KeyPress, key, mods, text);
    QCoreApplication::sendEvent(w, &press);
    QKeyEvent release(QEvent::KeyRelease, key, mods, text);
    QCoreApplication::sendEvent(w, &release);
}

void click(QWidget *w)
{
    sendMouse(w, QEvent::MouseButtonPress);
    sendMouse(w, QEvent::MouseButtonRelease);
}

void dblClick(QWidget *w)
{
    click(w);
    sendMouse(w, QEvent::MouseButtonDblClick);
    sendMouse(w, QEvent::MouseButtonRelease);
}

void focus(QWidget *w)
{
    w->window()->activateWindow();
    w->setFocus(Qt::OtherFocusReason);
    if (!w->hasFocus()) {
        QFocusEvent in(QEvent::FocusIn, Qt::OtherFocusReason);
        QCoreApplication::sendEvent(w, &in);
    }
}

void blur(QWidget *w)
{
    if (w->hasFocus()) {
        w->clearFocus();
    } else {
        QFocusEvent out(QEvent::FocusOut, Qt::OtherFocusReason);
        QCoreApplication::sendEvent(w, &out);
    }
}
}  // namespace InputSim
