// SPDX-License-Identifier: MIT
#include "GridCellEditor.h"

#include "DataControl.h"
#include "Diagnostics.h"
#include "FormBuilder.h"
#include "Recordset.h"
#include "Session.h"
#include "VbFormat.h"

#include <QKeyEvent>
#include <QLineEdit>

GridCellEditor::GridCellEditor(Session &session, DataGrid *grid, QStringList editableFields, QString routine)
    : QObject(grid), m_session(session), m_grid(grid), m_routine(std::move(routine))
{
    for (const QString &f : editableFields)
        m_fields.insert(f.toLower());
    grid->installEventFilter(this);
    connect(grid, &DataGrid::DblClick, this, [this] { edit(m_grid->currentIndex()); });
    m_grid->setToolTip(QStringLiteral("Double-click a cell, or press F2, to change it; Enter keeps the change."));
}

bool GridCellEditor::editable(const QModelIndex &index) const
{
    DataControl *dc = m_grid->dataControl();
    if (!index.isValid() || !dc || !m_grid->isEnabled())
        return false;
    return m_fields.contains(dc->fields().value(index.column()).toLower());
}

bool GridCellEditor::edit(const QModelIndex &index, const QString &initialText)
{
    commit();
    if (!editable(index))
        return false;
    DataControl *dc = m_grid->dataControl();
    dc->moveTo(index.row());
    m_index = index;
    auto *editor = new QLineEdit(m_grid->viewport());
    editor->setObjectName(m_grid->objectName() + QStringLiteral("_Edit"));
    FormBuilder::userTyped(editor);
    const QVariant value = dc->value(index.row(), index.column());
    editor->setText(initialText.isEmpty() ? (value.isNull() ? QString() : value.toString()) : initialText);
    editor->setGeometry(m_grid->visualRect(index));
    editor->installEventFilter(this);
    editor->show();
    editor->setFocus();
    m_editor = editor;
    return true;
}

void GridCellEditor::commit()
{
    if (!m_editor)
        return;
    const QString text = m_editor->text();
    const QModelIndex index = m_index;
    close();
    DataControl *dc = m_grid->dataControl();
    if (!dc || !index.isValid())
        return;
    const QString field = dc->fields().value(index.column());
    const QVariant before = dc->value(index.row(), index.column());
    if ((before.isNull() ? QString() : before.toString()) == text)
        return;
    guarded(m_session, {ErrForm::Shared, m_routine}, [&] {
        Recordset *rs = dc->recordset();
        if (!rs)
            return;
        rs->setAbsolutePosition(index.row());
        rs->Edit();
        rs->setField(field, text.isEmpty() ? QVariant() : QVariant(text));
        rs->Update();
        dc->refreshRow(index.row());
    });
}

void GridCellEditor::cancel()
{
    close();
}

void GridCellEditor::close()
{
    if (!m_editor)
        return;
    QLineEdit *editor = m_editor;
    m_editor.clear();
    editor->removeEventFilter(this);
    editor->hide();
    editor->deleteLater();
    m_grid->setFocus();
}

bool GridCellEditor::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_editor) {
        if (event->type() == QEvent::KeyPress) {
            auto *ke = static_cast<QKeyEvent *>(event);
            if (ke->key() == Qt::Key_Return || ke->key() == Qt::Key_Enter) {
                commit();
                return true;
            }
            if (ke->key() == Qt::Key_Escape) {
                cancel();
                return true;
            }
            if (ke->key() == Qt::Key_Tab || ke->key() == Qt::Key_Backtab) {
                const QModelIndex from = m_index;
                commit();
                // Tab goes on to the next cell of the row that can be edited.
                const int step = ke->key() == Qt::Key_Tab ? 1 : -1;
                for (int c = from.column() + step; c >= 0 && c < m_grid->model()->columnCount(); c += step) {
                    const QModelIndex next = m_grid->model()->index(from.row(), c);
                    if (!m_grid->isColumnHidden(c) && editable(next)) {
                        m_grid->setCurrentIndex(next);
                        edit(next);
                        break;
                    }
                }
                return true;
            }
        } else if (event->type() == QEvent::FocusOut) {
            commit();
        }
        return false;
    }
    if (watched == m_grid && event->type() == QEvent::KeyPress && !m_editor) {
        auto *ke = static_cast<QKeyEvent *>(event);
        const QModelIndex current = m_grid->currentIndex();
        if (ke->key() == Qt::Key_F2 || ke->key() == Qt::Key_Return || ke->key() == Qt::Key_Enter)
            return edit(current);
        const QString text = ke->text();
        if (!text.isEmpty() && text.at(0).isPrint() && !(ke->modifiers() & (Qt::ControlModifier | Qt::AltModifier)))
            return edit(current, text);
    }
    return false;
}
