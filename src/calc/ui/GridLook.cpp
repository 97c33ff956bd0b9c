// SPDX-License-Identifier: MIT
#include "GridLook.h"

#include <QTableView>

GridLook::GridLook(QTableView *grid) : QStyledItemDelegate(grid)
{
    grid->setItemDelegate(this);
}

QColor GridLook::fromBgr(quint32 bgr)
{
    return QColor(static_cast<int>(bgr & 0xFF), static_cast<int>((bgr >> 8) & 0xFF), static_cast<int>((bgr >> 16) & 0xFF));
}

void GridLook::setColumnColor(int column, quint32 bgr)
{
    m_colors.insert(column, fromBgr(bgr));
}

void GridLook::initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    const auto color = m_colors.constFind(index.column());
    if (color != m_colors.constEnd() && !(option->state & QStyle::State_Selected))
        option->backgroundBrush = *color;
    if (m_textColumns.contains(index.column()))
        return;
    // A cell reads as a number when its shown text does, separators of thousands included.
    QString text = option->text;
    text.remove(QLatin1Char(','));
    bool number = false;
    text.toDouble(&number);
    if (number)
        option->displayAlignment = Qt::AlignRight | Qt::AlignVCenter;
}
