// SPDX-License-Identifier: MIT
#include "Utilities.h"

#include "ControlValue.h"

#include "DataControl.h"
#include "Diagnostics.h"
#include "Recordset.h"
#include "Session.h"
#include "VbError.h"

#include <QAbstractButton>
#include <QGroupBox>
#include <QHash>
#include <QKeyEvent>
#include <QLabel>

QColor legacyColor(qint32 bgr)
{
    const quint32 v = static_cast<quint32>(bgr);
    return QColor(static_cast<int>(v & 0xFF), static_cast<int>((v >> 8) & 0xFF), static_cast<int>((v >> 16) & 0xFF));
}

qint32 toLegacyColor(const QColor &color)
{
    return static_cast<qint32>(static_cast<quint32>(color.red()) | (static_cast<quint32>(color.green()) << 8)
                               | (static_cast<quint32>(color.blue()) << 16));
}

void setForeColor(QWidget *widget, const QColor &color)
{
    if (!widget)
        return;
    QPalette p = widget->palette();
    for (auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        p.setColor(role, color);
    widget->setPalette(p);
}

QColor foreColor(const QWidget *widget)
{
    const QString kind = ControlValue::kind(widget);
    if (kind == QLatin1String("text") || kind == QLatin1String("combo"))
        return widget->palette().color(QPalette::Text);
    if (kind == QLatin1String("button") || kind == QLatin1String("check") || kind == QLatin1String("option"))
        return widget->palette().color(QPalette::ButtonText);
    return widget->palette().color(QPalette::WindowText);
}

namespace {
const QHash<int, int> &vbToQt()
{
    static const QHash<int, int> map = [] {
        QHash<int, int> m{{8, Qt::Key_Backspace}, {9, Qt::Key_Tab},       {13, Qt::Key_Return}, {16, Qt::Key_Shift},
                          {17, Qt::Key_Control},  {18, Qt::Key_Alt},      {27, Qt::Key_Escape}, {32, Qt::Key_Space},
                          {33, Qt::Key_PageUp},   {34, Qt::Key_PageDown}, {35, Qt::Key_End},    {36, Qt::Key_Home},
                          {37, Qt::Key_Left},     {38, Qt::Key_Up},       {39, Qt::Key_Right},  {40, Qt::Key_Down},
                          {45, Qt::Key_Insert},   {46, Qt::Key_Delete}};
        for (int c = 48; c <= 57; ++c)
            m.insert(c, Qt::Key_0 + (c - 48));
        for (int c = 65; c <= 90; ++c)
            m.insert(c, Qt::Key_A + (c - 65));
        for (int c = 112; c <= 123; ++c)
            m.insert(c, Qt::Key_F1 + (c - 112));
        return m;
    }();
    return map;
}

}  // namespace

int vbKeyFromQt(int qtKey)
{
    if (qtKey == Qt::Key_Enter)
        return 13;
    return vbToQt().key(qtKey, 0);
}

int qtKeyFromVb(int vbKey)
{
    return vbToQt().value(vbKey, 0);
}

void setLocked(QWidget *control, bool locked)
{
    ControlValue::setLocked(control, locked);
}

bool isLocked(const QWidget *control)
{
    return ControlValue::locked(control);
}

void SetRecordPosition(DataControl &dc)
{
    // The full count comes from the data control, which counts with the database rather than reading
    // every row into the recordset.
    Recordset *rs = dc.recordset();
    const int count = rs ? dc.rowCount() : 0;
    if (count < 1)
        dc.setCaption(QStringLiteral("Record: 0 of 0"));
    else
        dc.setCaption(QStringLiteral("Record: %1 of %2").arg(rs->AbsolutePosition() + 1).arg(count));
}

qint16 GetOptionIndex(const QVector<QAbstractButton *> &options)
{
    for (int i = 0; i < options.size(); ++i) {
        if (options[i] && options[i]->isChecked()) {
            // The index of a control array element is the number in its name; a plain list counts.
            const QString name = options[i]->objectName();
            const int open = name.lastIndexOf(QLatin1Char('('));
            bool ok = false;
            const int index = open >= 0 ? name.mid(open + 1, name.size() - open - 2).toInt(&ok) : -1;
            return static_cast<qint16>(ok ? index : i);
        }
    }
    return -1;
}

void SetCmdControls(QWidget *window, qint16 mode)
{
    const bool first = mode == 1;
    for (int i : {0, 3, 4, 6})
        if (auto *b = arrayItem<QWidget>(window, QStringLiteral("cmdControl"), i))
            b->setEnabled(first);
    for (int i : {1, 2})
        if (auto *b = arrayItem<QWidget>(window, QStringLiteral("cmdControl"), i))
            b->setEnabled(!first);
    if (auto *frame = window->findChild<QWidget *>(QStringLiteral("fraMain")))
        frame->setEnabled(!first);
}

void SetControlInfo(Session &s, QWidget *window, const QString &verb, bool flag)
{
    try {
        const auto controls = window->findChildren<QWidget *>();
        for (QWidget *c : controls) {
            const QString prefix = c->objectName().left(3);
            if (prefix == QLatin1String("fra")) {
                continue;  // frames accept "frames" and everything else alike: nothing happens
            } else if (prefix == QLatin1String("txt")) {
                if (verb == QLatin1String("clear")) {
                    if (ControlValue::kind(c) == QLatin1String("text"))
                        ControlValue::clear(c);
                } else if (verb == QLatin1String("lock")) {
                    setLocked(c, flag);
                } else if (verb == QLatin1String("enable")) {
                    c->setEnabled(flag);
                }
            } else if (prefix == QLatin1String("cbo")) {
                if (verb == QLatin1String("clear")) {
                    if (ControlValue::kind(c) == QLatin1String("combo"))
                        ControlValue::clear(c);
                } else if (verb == QLatin1String("lock")) {
                    setLocked(c, flag);
                } else if (verb == QLatin1String("enabled")) {
                    // The combo has no property of that name: the pass over the controls ends here.
                    throw VbError(438, QStringLiteral("Object doesn't support this property or method"));
                }
            }
        }
    } catch (const VbError &e) {
        s.PuS_ErrorMessage(e.description(), static_cast<qint16>(e.number()), QStringLiteral(" SetControlInfo"));
    }
}

void SetDataQuality(Session &s, QLabel *label, qint32 id)
{
    guarded(s, {ErrForm::CodeTab, QStringLiteral("SetDataQuality")}, [&] {
        auto rs = s.gDB->OpenRecordset(QStringLiteral("Select * from tblDataSource Where DataSourceID = %1").arg(id),
                                       RecordsetType::Snapshot);
        if (!(rs->BOF() && rs->EOF_())) {
            if (label) {
                setForeColor(label, legacyColor(rs->field(QStringLiteral("ForeColor")).toInt()));
                label->setText(QStringLiteral("Data Source: ") + rs->field(QStringLiteral("Description")).toString()
                               + QStringLiteral("  "));
            }
        }
        rs->Close();
    });
}

QString arrayName(const QString &name, int index)
{
    return QStringLiteral("%1(%2)").arg(name).arg(index);
}
