// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

//! Input as a user gives it, sent to a widget on the GUI thread: keys by their legacy key codes,
//! mouse clicks in the middle of the widget, focus moves.
namespace InputSim {
//! A key press and release; shift is the legacy mask (1 Shift, 2 Ctrl, 4 Alt). Throws a BridgeError
//! for a code no key has.
void key(QWidget *w, int vbCode, int shift);
//! A left-button press and release.
void click(QWidget *w);
//! A click followed by a double click.
void dblClick(QWidget *w);
//! Gives the widget the focus; without an active window (headless) a focus-in event is delivered.
void focus(QWidget *w);
//! Takes the focus away; without it, a focus-out event is delivered.
void blur(QWidget *w);
}  // namespace InputSim
