// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QString>
#include <QVector>

class QAbstractButton;
class QComboBox;
class QLabel;
class QWidget;
class DataControl;
class Session;

//! A legacy colour number (0x00BBGGRR, blue in the high byte) as a QColor. The one place where the
//! stored colour numbers of tblDataSource and the blue of typed text are converted.
QColor legacyColor(qint32 bgr);
//! The legacy colour number of a QColor (the inverse of legacyColor).
qint32 toLegacyColor(const QColor &color);
//! The colour number of text the user types: blue.
inline constexpr qint32 kUserTypedColor = 16711680;

//! Sets the text colour of a label, box, combo or button.
void setForeColor(QWidget *widget, const QColor &color);
//! The text colour of a widget as it is painted.
QColor foreColor(const QWidget *widget);

//! A legacy key code (27 Escape, 46 Delete, 13 Enter, 65 'A', 112 F1 ...) from a Qt key, 0 if none.
int vbKeyFromQt(int qtKey);
//! The Qt key of a legacy key code.
int qtKeyFromVb(int vbKey);

//! Makes a text box or combo read-only ("locked") or writable again. A locked combo keeps its value
//! and can be read, but neither mouse nor keys change it. Locking also shows the control flat.
void setLocked(QWidget *control, bool locked);
//! Whether a text box or combo is locked.
bool isLocked(const QWidget *control);

//! The record position caption of a data control: "Record: 0 of 0" when empty, otherwise
//! "Record: <position + 1> of <count>".
void SetRecordPosition(DataControl &dc);
//! The index of the first checked button, -1 when none is.
qint16 GetOptionIndex(const QVector<QAbstractButton *> &options);
//! The button row cmdControl(0..6) and the frame fraMain of a data-entry window: mode 1 enables
//! buttons 0, 3, 4, 6 and disables 1, 2 and the frame; any other mode the reverse. Button 5 stays.
void SetCmdControls(QWidget *window, qint16 mode);
//! Clears, locks or enables the controls of a window by the first three letters of their names
//! ("txt", "cbo"; "fra" accepts "frames"). Errors report in the shared form as " SetControlInfo".
void SetControlInfo(Session &s, QWidget *window, const QString &verb, bool flag);
//! Colours a label with the colour of a data source and captions it "Data Source: <Description>  ".
//! An unknown id leaves the label as it was.
void SetDataQuality(Session &s, QLabel *label, qint32 id);

//! The name of element i of a control array: "cmdSelect(0)".
QString arrayName(const QString &name, int index);
//! Element i of a control array of a window, or null.
template <typename T>
T *arrayItem(QWidget *window, const QString &name, int index);

#include <QWidget>
template <typename T>
T *arrayItem(QWidget *window, const QString &name, int index)
{
    return window ? window->findChild<T *>(arrayName(name, index)) : nullptr;
}
