// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QHash>
#include <QSet>
#include <QStyledItemDelegate>

class QTableView;

//! How the calculation grids draw their cells: a background colour per column and numbers against
//! the right edge of their cells, so that the digits of a column stand under one another.
class GridLook : public QStyledItemDelegate {
    Q_OBJECT
public:
    explicit GridLook(QTableView *grid);

    //! A column's background, from the legacy colour number (blue-green-red).
    void setColumnColor(int column, quint32 bgr);
    //! Columns whose cells stay left-aligned even when they read as numbers (names, units).
    void setTextColumns(const QSet<int> &columns) { m_textColumns = columns; }

    static QColor fromBgr(quint32 bgr);

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;

private:
    QHash<int, QColor> m_colors;
    QSet<int> m_textColumns;
};
