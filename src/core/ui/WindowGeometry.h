// SPDX-License-Identifier: MIT
#pragma once

#include <QRect>

class QMainWindow;
class QWidget;

//! Window sizes that fit the screen at any scale factor. The main window's geometry and state are
//! the only things the program keeps in QSettings; everything else stays in the database.
namespace WindowGeometry {

//! The size the main window opens at the first time: its usual size, within 90 % of the available
//! screen area.
QSize firstSize(const QSize &usual, const QRect &available);

//! wanted, made no larger than bounds and moved so that it lies inside them.
QRect fitted(const QRect &wanted, const QRect &bounds);

//! Gives the main window the geometry and state of the last run (moved onto the screen if the
//! screens changed), or on a first run firstSize() centred on its screen; they are saved again when
//! the program ends.
void manageMainWindow(QMainWindow *window, const QSize &usual);

//! Makes a child window (its frame) fit inside the area that shows it, such as the main window's
//! workspace.
void fitInside(QWidget *frame, const QWidget *area);

//! Makes a top-level window no larger than the available area of its screen.
void fitScreen(QWidget *window);

}  // namespace WindowGeometry
