// SPDX-License-Identifier: MIT
#include "ProgramStyle.h"

#include <QApplication>
#include <QFont>
#include <QStyleOption>
#include <QWidget>

void ProgramStyle::install()
{
    if (qobject_cast<ProgramStyle *>(QApplication::style()))
        return;
    QApplication::setStyle(new ProgramStyle);
    // Text is laid out without the optional features of a script that does not need them (kerning
    // and ligatures of Latin text): laying out captions, fields and grid cells is where opening a
    // window spends most of its time, and these features take a quarter of it. Scripts that cannot
    // be read without shaping are still shaped.
    QFont font = QApplication::font();
    font.setStyleStrategy(QFont::PreferNoShaping);
    QApplication::setFont(font);
}

QIcon ProgramStyle::standardIcon(StandardPixmap icon, const QStyleOption *option, const QWidget *widget) const
{
    // The standard icons differ by the direction of writing only (an arrow pointing the other way).
    const Qt::LayoutDirection direction = option ? option->direction
                                          : widget ? widget->layoutDirection()
                                                   : QGuiApplication::layoutDirection();
    const quint64 key = (quint64(icon) << 1) | (direction == Qt::RightToLeft ? 1 : 0);
    if (const auto it = m_icons.constFind(key); it != m_icons.constEnd())
        return *it;
    const QIcon made = QProxyStyle::standardIcon(icon, option, widget);
    m_icons.insert(key, made);
    return made;
}
