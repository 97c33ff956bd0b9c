// SPDX-License-Identifier: MIT
#include "RecordBinding.h"

#include "ControlValue.h"
#include "DataControl.h"
#include "FormBuilder.h"
#include "Recordset.h"
#include "Session.h"
#include "VbFormat.h"

#include <QComboBox>
#include <QPushButton>
#include <QWidget>

namespace {
//! Two values of a field are the same when both are null or both read alike.
bool sameValue(const QVariant &a, const QVariant &b)
{
    if (a.isNull() || b.isNull())
        return a.isNull() == b.isNull();
    return a.toString() == b.toString();
}
}  // namespace

RecordBinding::RecordBinding(Session &session, DataControl *dc, const QString &table, const QString &key, QObject *parent)
    : QObject(parent), m_session(session), m_dc(dc), m_table(table), m_key(key)
{
}

void RecordBinding::addField(QWidget *control, const QString &column)
{
    m_fields.append({control, column, {}});
    if (ControlValue::kind(control) == QLatin1String("text"))
        FormBuilder::userTyped(control);
}

void RecordBinding::lookup(QComboBox *combo, const QString &sql, const QString &listField, const QString &boundColumn)
{
    m_lookups.append({combo, sql, listField, boundColumn});
}

void RecordBinding::computed(QWidget *control, std::function<QString(qint32)> text)
{
    ControlValue::setLocked(control, true);
    // The texts describe a whole record: room for a line of them.
    control->setMinimumWidth(control->fontMetrics().averageCharWidth() * 48);
    m_computed.append({control, std::move(text)});
}

void RecordBinding::fillLookups()
{
    for (const Lookup &l : std::as_const(m_lookups))
        fillCombo(l.combo, *m_session.gDB, l.sql, l.listField, l.boundColumn);
}

bool RecordBinding::moveToId(qint32 id)
{
    for (int row = 0; row < m_dc->rowCount(); ++row)
        if (vb::CLng(m_dc->value(row, m_key)) == id) {
            m_dc->moveTo(row);
            return true;
        }
    return false;
}

qint32 RecordBinding::currentId() const
{
    const QVariant v = currentValue(m_key);
    return v.isNull() ? 0 : vb::CLng(v);
}

QVariant RecordBinding::currentValue(const QString &column) const
{
    const int row = m_dc ? m_dc->currentRow() : -1;
    return row < 0 || m_dc->fieldIndex(column) < 0 ? QVariant() : m_dc->value(row, column);
}

void RecordBinding::showRow()
{
    m_showing = true;
    const bool any = m_dc->currentRow() >= 0;
    for (Field &f : m_fields) {
        ControlValue::setValue(f.control, any ? currentValue(f.column) : QVariant());
        f.shown = ControlValue::boundValue(f.control);
    }
    m_showing = false;
    refreshComputed();
}

void RecordBinding::refreshComputed()
{
    const qint32 id = currentId();
    for (const auto &[control, text] : std::as_const(m_computed))
        ControlValue::setText(control, id > 0 ? text(id) : QString());
}

void RecordBinding::setLocked(bool locked)
{
    m_locked = locked;
    for (const Field &f : std::as_const(m_fields))
        ControlValue::setLocked(f.control, locked);
    for (const auto &computed : std::as_const(m_computed))
        ControlValue::setLocked(computed.first, true);
    for (QPushButton *b : std::as_const(m_buttons))
        b->setEnabled(!locked);
}

void RecordBinding::writeRow()
{
    if (m_locked || m_showing || !m_dc || m_dc->currentRow() < 0)
        return;
    QList<Field *> changed;
    for (Field &f : m_fields)
        if (!sameValue(ControlValue::boundValue(f.control), f.shown))
            changed.append(&f);
    const qint32 id = currentId();
    if (changed.isEmpty() || id <= 0)
        return;
    m_session.gSQL = QStringLiteral("Select * From %1 Where %2 = %3").arg(m_table, m_key).arg(id);
    auto rs = m_session.gDB->OpenRecordset(m_session.gSQL, RecordsetType::Dynaset);
    if (rs->EOF_())
        return;  // the row went meanwhile: there is nothing to write into
    rs->Edit();
    try {
        for (Field *f : changed)
            rs->setField(f->column, ControlValue::boundValue(f->control));
        rs->Update();
    } catch (...) {
        rs->CancelUpdate();
        throw;
    }
    rs->Close();
    for (Field *f : changed)
        f->shown = ControlValue::boundValue(f->control);
}
