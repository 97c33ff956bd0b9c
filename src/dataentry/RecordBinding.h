// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QObject>
#include <QString>
#include <QVariant>
#include <functional>

class DataControl;
class QComboBox;
class QPushButton;
class QWidget;
class Session;

//! The boxes of one record on a data control: each bound to a column of the table, shown from the
//! current row and written back to the table row by its key, and only where the user changed it (a
//! data control over a join cannot write, so the row is written through its table). Read-only texts
//! computed from the record's id, combos filled from statements, and the buttons that act on the
//! record complete it. A locked record shows its values and writes nothing.
class RecordBinding : public QObject {
    Q_OBJECT
public:
    RecordBinding(Session &session, DataControl *dc, const QString &table, const QString &key, QObject *parent = nullptr);

    DataControl *dataControl() const { return m_dc; }
    const QString &table() const { return m_table; }
    const QString &key() const { return m_key; }

    //! Binds a control to a column; text boxes are marked as typed by the user.
    void addField(QWidget *control, const QString &column);
    //! Fills a combo from a statement at fillLookups.
    void lookup(QComboBox *combo, const QString &sql, const QString &listField, const QString &boundColumn);
    //! A read-only text filled from the record's id whenever the row is shown.
    void computed(QWidget *control, std::function<QString(qint32 id)> text);
    //! A button that acts on the record: disabled while it is locked.
    void addButton(QPushButton *button) { m_buttons.append(button); }

    void fillLookups();
    //! Shows the current row in the fields and refills the computed texts.
    void showRow();
    void refreshComputed();
    //! Writes the fields that differ from what the row showed into the table row, in one update; a
    //! row gone meanwhile is left alone. Empty text and an empty combo write null. Nothing is written
    //! while locked. Errors go to the caller, and the row then stays as it was.
    void writeRow();
    //! Locks the fields and disables the buttons (true), or the reverse; computed texts stay locked.
    void setLocked(bool locked);
    bool locked() const { return m_locked; }

    //! Makes the row whose key is id current; false (nothing moved) when there is none.
    bool moveToId(qint32 id);
    //! The key of the current row, 0 when there is none.
    qint32 currentId() const;
    //! A column of the current row as the data control read it; null when there is no row or column.
    QVariant currentValue(const QString &column) const;

private:
    struct Field {
        QWidget *control;
        QString column;
        QVariant shown;
    };
    struct Lookup {
        QComboBox *combo;
        QString sql, listField, boundColumn;
    };
    Session &m_session;
    DataControl *m_dc;
    QString m_table, m_key;
    QList<Field> m_fields;
    QList<Lookup> m_lookups;
    QList<std::pair<QWidget *, std::function<QString(qint32)>>> m_computed;
    QList<QPushButton *> m_buttons;
    bool m_locked = false;
    bool m_showing = false;
};
