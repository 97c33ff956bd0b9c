// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>
#include <functional>

class QMenu;
class QMenuBar;

//! One row of a menu table: an item with its control name, caption and command, a separator, or a
//! submenu with rows of its own. An item whose command needs a window that is not part of this
//! version of the program is disabled and says so in its tool tip and status tip.
struct MenuEntry {
    QString name = {};
    QString caption = {};
    std::function<void()> command = {};
    //! The window the command shows; empty when it needs none.
    QString window = {};
    //! Rows of a submenu; the entry is then the submenu's title.
    QList<MenuEntry> submenu = {};
    bool separator = false;

    static MenuEntry separatorNamed(const QString &name) { return {name, {}, {}, {}, {}, true}; }
};

//! Adds a menu of the rows to a menu bar; the menu object is named name and its title action
//! titleName (empty: no name).
QMenu *addMenu(QMenuBar *bar, const QString &name, const QString &caption, const QList<MenuEntry> &rows,
               const QString &titleName = {});
//! Adds the rows to a menu in order.
void addMenuRows(QMenu *menu, const QList<MenuEntry> &rows);
//! The text that says a command's window is not part of this version.
QString missingWindowTip(const QString &window);
