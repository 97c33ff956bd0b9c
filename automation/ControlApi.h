// SPDX-License-Identifier: MIT
#pragma once

#include "ScriptContext.h"

#include <QObject>

class DataGrid;

//! A control of a window, looked up afresh at every use. Values go through the control-value
//! adapter (ControlValue), so every kind of control it knows is known here too; what a kind cannot
//! do comes back to the script as an error naming the control.
class ControlApi : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString name READ name CONSTANT)
    Q_PROPERTY(QString text READ text)
    Q_PROPERTY(bool visible READ visible)
    Q_PROPERTY(bool enabled READ enabled)
    Q_PROPERTY(bool locked READ locked)
    Q_PROPERTY(QJSValue value READ value)
    Q_PROPERTY(QString caption READ caption)
    Q_PROPERTY(int foreColor READ foreColor)
    Q_PROPERTY(QJSValue items READ items)
    Q_PROPERTY(QString type READ type)
    Q_PROPERTY(QJSValue rows READ rows)
    Q_PROPERTY(QJSValue columns READ columns)
    Q_PROPERTY(int rowCount READ rowCount)
    Q_PROPERTY(int currentRow READ currentRow)
    Q_PROPERTY(int currentTab READ currentTab)
public:
    ControlApi(const ScriptContext &ctx, QString window, QString name);
    QString name() const { return m_name; }
    QString text() const;
    bool visible() const;
    bool enabled() const;
    bool locked() const;
    QJSValue value() const;
    QString caption() const;
    int foreColor() const;
    QJSValue items() const;
    //! The kind of control ("text", "combo", "grid", ...), the class name for a widget of no kind.
    QString type() const;
    QJSValue rows() const;
    QJSValue columns() const;
    int rowCount() const;
    int currentRow() const;
    int currentTab() const;

    //! Types text as a user does (nothing happens to a disabled or locked control).
    Q_INVOKABLE void setText(const QString &text);
    Q_INVOKABLE void click();
    Q_INVOKABLE void dblClick();
    Q_INVOKABLE void focus();
    Q_INVOKABLE void blur();
    Q_INVOKABLE void keyDown(int code, int shift = 0);
    //! Sets the value as a user does: clicks a check box, chooses a combo's item by its data.
    Q_INVOKABLE void setValue(const QJSValue &value);
    //! Picks an item by its text or index as a user does.
    Q_INVOKABLE void select(const QJSValue &textOrIndex);
    Q_INVOKABLE void selectRow(int row);
    Q_INVOKABLE void headClick(const QJSValue &column);
    Q_INVOKABLE void dblClickRow(int row);
    Q_INVOKABLE QString cell(int row, int column) const;
    //! Clicks a cell of a grid as a user does: its row becomes current and a check box cell toggles.
    Q_INVOKABLE void clickCell(int row, int column);
    Q_INVOKABLE void selectTab(int index);

private:
    //! Runs fn on the GUI thread with the control; its failures become script errors.
    QVariant with(const std::function<QVariant(QWidget *)> &fn) const;
    QVariant withGrid(const std::function<QVariant(DataGrid *)> &fn) const;
    QVariant withTabs(const std::function<QVariant(QWidget *)> &fn) const;
    ScriptContext m_ctx;
    QString m_window;
    QString m_name;
};
