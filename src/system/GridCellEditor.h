// SPDX-License-Identifier: MIT
#pragma once

#include <QModelIndex>
#include <QObject>
#include <QPointer>
#include <QSet>
#include <QString>

class DataGrid;
class QLineEdit;
class Session;

//! Lets the user type into the cells of a grid over a data control, as the legacy grids allowed: a
//! double click, F2, Enter or typing opens a box over the cell; Enter, Tab or leaving the box writes the
//! value to the row at once; Escape drops it. Only the named columns can be edited.
class GridCellEditor : public QObject {
    Q_OBJECT
public:
    //! routine: the name under which a failed write is reported.
    GridCellEditor(Session &session, DataGrid *grid, QStringList editableFields, QString routine);

    //! Opens the box over a cell; false when the cell cannot be edited.
    bool edit(const QModelIndex &index, const QString &initialText = {});
    //! Writes the open box, if any, to its row.
    void commit();
    //! Closes the open box without writing.
    void cancel();
    bool isEditing() const { return !m_editor.isNull(); }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool editable(const QModelIndex &index) const;
    void close();

    Session &m_session;
    DataGrid *m_grid;
    QSet<QString> m_fields;
    QString m_routine;
    QPointer<QLineEdit> m_editor;
    QPersistentModelIndex m_index;
};
