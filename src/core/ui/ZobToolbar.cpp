// SPDX-License-Identifier: MIT
#include "ZobToolbar.h"

#include <QAction>
#include <QApplication>
#include <QHash>
#include <QStyle>

namespace {
//! The style's icon, read from its image file once per style: every window builds its toolbar anew,
//! and decoding the same pictures each time is most of the cost of a toolbar.
QIcon styleIcon(QStyle::StandardPixmap which)
{
    static QHash<int, QIcon> cache;
    static QStyle *cachedFor = nullptr;
    QStyle *st = QApplication::style();
    if (st != cachedFor) {
        cache.clear();
        cachedFor = st;
    }
    auto it = cache.constFind(which);
    if (it == cache.constEnd())
        it = cache.insert(which, st->standardIcon(which));
    return *it;
}

QIcon iconForKey(const QString &key)
{
    const QString k = key.toLower();
    if (k == QLatin1String("new") || k == QLatin1String("add"))
        return styleIcon(QStyle::SP_FileIcon);
    if (k == QLatin1String("open") || k == QLatin1String("select"))
        return styleIcon(QStyle::SP_DialogOpenButton);
    if (k == QLatin1String("save"))
        return styleIcon(QStyle::SP_DialogSaveButton);
    if (k == QLatin1String("close") || k == QLatin1String("exit"))
        return styleIcon(QStyle::SP_DialogCloseButton);
    if (k == QLatin1String("delete"))
        return styleIcon(QStyle::SP_TrashIcon);
    if (k == QLatin1String("help"))
        return styleIcon(QStyle::SP_DialogHelpButton);
    if (k == QLatin1String("print"))
        return styleIcon(QStyle::SP_FileDialogDetailedView);
    if (k == QLatin1String("find") || k == QLatin1String("search"))
        return styleIcon(QStyle::SP_FileDialogContentsView);
    return styleIcon(QStyle::SP_ArrowRight);
}
}  // namespace

ZobToolbar::ZobToolbar(QWidget *parent) : QToolBar(parent)
{
    setObjectName(QStringLiteral("TB_MDI"));
    setMovable(false);
    setIconSize(QSize(20, 20));
    setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
}

int ZobToolbar::addButton(const QString &key, const QString &toolTip, const QString &caption)
{
    auto *action = addAction(iconForKey(key), caption.isEmpty() ? key : caption);
    action->setObjectName(key);
    action->setToolTip(toolTip.isEmpty() ? key : toolTip);
    m_buttons.push_back(action);
    const int index = static_cast<int>(m_buttons.size());
    connect(action, &QAction::triggered, this, [this, index, key] { emit ButtonClick(index, key); });
    return index;
}

int ZobToolbar::addSeparatorButton()
{
    m_buttons.push_back(addSeparator());
    return static_cast<int>(m_buttons.size());
}

void ZobToolbar::define(const QList<ToolButton> &places,
                        const std::function<void(const std::function<void()> &)> &wrap)
{
    for (const ToolButton &place : places) {
        if (place.kind != ToolButton::Kind::Button) {
            button(addSeparatorButton())->setVisible(place.kind == ToolButton::Kind::Separator);
            continue;
        }
        QAction *action = button(addButton(place.key, place.tip, place.caption));
        if (!place.handler)
            continue;
        auto handler = place.handler;
        if (wrap)
            connect(action, &QAction::triggered, this, [wrap, handler] { wrap(handler); });
        else
            connect(action, &QAction::triggered, this, [handler] { handler(); });
    }
}

QAction *ZobToolbar::button(int index) const
{
    return index >= 1 && index <= m_buttons.size() ? m_buttons[index - 1] : nullptr;
}

QAction *ZobToolbar::button(const QString &key) const
{
    return button(indexOf(key));
}

int ZobToolbar::indexOf(const QString &key) const
{
    for (int i = 0; i < m_buttons.size(); ++i)
        if (!m_buttons[i]->isSeparator() && m_buttons[i]->objectName().compare(key, Qt::CaseInsensitive) == 0)
            return i + 1;
    return 0;
}

QString ZobToolbar::keyOf(int index) const
{
    QAction *a = button(index);
    return a && !a->isSeparator() ? a->objectName() : QString();
}

bool ZobToolbar::click(int index)
{
    QAction *a = button(index);
    if (!a || a->isSeparator())
        return false;
    if (a->isVisible() && a->isEnabled())
        a->trigger();
    return true;
}

bool ZobToolbar::click(const QString &key)
{
    return click(indexOf(key));
}
