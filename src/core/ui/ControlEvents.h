// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class QWidget;

//! The legacy events of a control as Qt signals: got and lost focus, key down, click and double
//! click. ControlEvents::of(widget) attaches one (once) to a control; windows connect to it so that
//! they can act "on leaving a field". Scripts drive the same signals through real Qt events.
class ControlEvents : public QObject {
    Q_OBJECT
public:
    //! The event source of a control, created on first use and owned by it.
    static ControlEvents *of(QWidget *control);

signals:
    void GotFocus();
    void LostFocus();
    //! Key down with the legacy key code (27 Escape, 46 Delete...) and shift state (1 Shift, 2 Ctrl,
    //! 4 Alt). A handler may set keyCode to 0 to swallow the key.
    void KeyDown(int &keyCode, int shift);
    void Click();
    void DblClick();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    explicit ControlEvents(QWidget *control);
};

//! The legacy shift state (1 Shift, 2 Ctrl, 4 Alt) of Qt keyboard modifiers.
int vbShiftState(Qt::KeyboardModifiers modifiers);
