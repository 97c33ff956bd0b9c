// SPDX-License-Identifier: MIT
#include "MenuTable.h"

#include "QtWindowHost.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

QString missingWindowTip(const QString &window)
{
    return QStringLiteral("This window (%1) is not available yet in this version of the program.").arg(window);
}

void addMenuRows(QMenu *menu, const QList<MenuEntry> &rows)
{
    menu->setToolTipsVisible(true);
    for (const MenuEntry &row : rows) {
        if (row.separator) {
            menu->addSeparator()->setObjectName(row.name);
            continue;
        }
        QAction *action;
        if (!row.submenu.isEmpty()) {
            QMenu *sub = menu->addMenu(row.caption);
            addMenuRows(sub, row.submenu);
            action = sub->menuAction();
        } else {
            action = menu->addAction(row.caption);
        }
        action->setObjectName(row.name);
        if (row.command)
            QObject::connect(action, &QAction::triggered, menu, [command = row.command] { command(); });
        if (!row.window.isEmpty() && !QtWindowHost::isRegistered(row.window)) {
            action->setEnabled(false);
            action->setToolTip(missingWindowTip(row.window));
            action->setStatusTip(missingWindowTip(row.window));
        }
    }
}

QMenu *addMenu(QMenuBar *bar, const QString &name, const QString &caption, const QList<MenuEntry> &rows,
               const QString &titleName)
{
    QMenu *menu = bar->addMenu(caption);
    menu->setObjectName(name);
    if (!titleName.isEmpty())
        menu->menuAction()->setObjectName(titleName);
    addMenuRows(menu, rows);
    return menu;
}
