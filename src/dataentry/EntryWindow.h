// SPDX-License-Identifier: MIT
#pragma once

#include "FormBuilder.h"
#include "RecordBinding.h"
#include "RequestWindow.h"

#include <QComboBox>
#include <QLineEdit>
#include <QList>
#include <QPlainTextEdit>
#include <QVariant>
#include <functional>

class DataControl;
class QLabel;
class QPushButton;
class Recordset;

//! What one entry window is: its table and key, its data control, the list window that Close goes
//! back to, the position line, and how New and the save routine are named. The members differ in
//! this and in their fields.
struct EntryProfile {
    QString caption;
    QString table;
    QString key;
    //! The name of the data control that holds the record.
    QString dataControl;
    //! The routine name of Save ("SaveAE"), for messages and trace lines.
    QString saveRoutine;
    //! The list window that Close opens on the record; empty: Close only unloads.
    QString picker = {};
    //! The position line, "%1" the row (from 1) and "%2" the count; empty: "Record: n of m".
    QString position = {};
    //! New adds a blank row (and the window shows it); otherwise New does nothing here.
    bool newAddsRow = false;
    //! The Select command is offered (outside mode "Write").
    bool hasSelect = true;
    //! A panel above the fields names the species of the row (its SpeciesID).
    bool speciesPanel = false;
    //! The toolbar has no Select (New 2, Save 4, Close 6, Help 8).
    bool noSelectButton = false;
    //! Outside mode "Write" the record is locked as a vetted one is, and New is hidden with Save.
    bool writeModeOnly = false;
};

//! The shared entry window of a reference table: one record (or, for record id below 1, the whole
//! table) on a data control, its fields shown from the row and written back to the table when the
//! row is left and on Save, the classification, reference and measurement buttons, and the lock of
//! vetted records (data source 4 or 7): such a record opens with every field locked, its buttons
//! disabled and no Save, and nothing of it is ever written from here. The data source itself is
//! never editable. A member declares its fields and buttons in its constructor with the helpers
//! below and may give a record source of its own.
class EntryWindow : public RequestWindow {
    Q_OBJECT
public:
    EntryWindow(Session &session, QtWindowHost &host, const QString &name, EntryProfile profile);

    const EntryProfile &profile() const { return m_profile; }
    //! Binds the record of the request and fills the window (the legacy LoadData).
    void LoadData();
    //! Locks (true) or unlocks the fields and disables (true) or enables the record buttons.
    void SetForm(bool bTo);
    //! The record shown has a vetted data source.
    bool isVetted() const;
    //! The record shown is locked: vetted, or outside mode "Write" where the member asks for it.
    bool isLocked() const;
    //! The key of the row shown; 0 when there is none.
    qint32 currentId() const;
    //! A column of the row shown, as the data control read it.
    QVariant currentValue(const QString &column) const;
    //! Writes the fields that differ from what the row showed into the row, in one update; a row
    //! gone meanwhile is left alone. Empty text and an empty combo write null. Nothing is written
    //! for a vetted record. Errors go to the caller, and the row then stays as it was.
    void writeRow();
    //! The Save command: writes the row under the save routine's name.
    virtual void save();
    //! Puts the window on another record of its table in mode mode.
    void openOn(qint32 id, const QString &mode);

protected:
    //! The statement that binds the record id; by default the table with the reference text.
    virtual QString recordSource(qint32 id) const;
    //! The New command; by default, with newAddsRow, a blank row opened in mode "Write".
    virtual void newRecord();
    //! The Close command: back to the list window on this record, or only unload.
    virtual void closeWindow();
    //! Runs after the row shown changed (after the fields and texts are filled).
    virtual void rowShown() {}

    void serveRequest() override;
    void Form_Load() override;
    void Form_Unload(bool &cancel) override;

    //! The builder of the window's body, below the toolbar.
    FormBuilder &body() { return m_body; }
    //! Binds a field to a column: shown from the row, written back when changed. Text boxes are
    //! marked as typed by the user.
    template <typename W>
    W *field(W *control, const QString &column)
    {
        m_record->addField(control, column);
        return control;
    }
    //! A text box (or, with lines > 0, a memo of that height) bound to a column.
    QWidget *textField(FormBuilder &b, const QString &name, const QString &caption, const QString &column, int lines = 0);
    //! A combo bound to a column, listing the rows of a statement (shown field listField, data the
    //! column listKey, by default of the same name as the column).
    QComboBox *listField(FormBuilder &b, const QString &name, const QString &caption, const QString &column,
                         const QString &sql, const QString &listField = QStringLiteral("Description"),
                         const QString &listKey = {});
    //! Fills a combo from a statement when the window loads.
    void lookup(QComboBox *combo, const QString &sql, const QString &listField, const QString &boundColumn);
    //! A read-only text filled from the record id whenever the row changes.
    void computed(QWidget *control, std::function<QString(qint32 id)> text);
    //! Refills the read-only texts of the row shown.
    void refreshComputed();
    //! A button that acts on the record: disabled while the record is locked; the handler runs
    //! under the window's error handler as "<name>_Click".
    QPushButton *recordButton(FormBuilder &b, const QString &name, int index, const QString &caption,
                              std::function<void()> handler);
    //! The spread of a measurement: sample size, minimum and maximum (their captions ending in unit,
    //! when given), variance and its type.
    void spreadFields(FormBuilder &b, const QString &unit = {});
    //! The data source combo (locked always) with its quality label.
    void dataSourceField(FormBuilder &b);
    //! The classification button and its read-only text; the picker is opened in mode mode.
    void classificationField(FormBuilder &b, const QString &mode);
    //! The frame fraReference: the reference button and the reference text of the row.
    void referenceFrame(FormBuilder &b);
    //! A button that opens the measurement window for kind; text is refilled afterwards (null: none).
    QPushButton *measurementButton(FormBuilder &b, const QString &name, int index, const QString &caption,
                                   const QString &kind, QWidget *text);
    //! Opens a window modally for this record (the pickers that write into it); filter asks a
    //! filtered picker to assign.
    void openForRecord(const QString &window, const QString &mode, qint32 selectedId, bool collection, bool filter = false);
    DataControl *dataControl() const { return m_dc; }
    RecordBinding *record() const { return m_record; }
    QString routine(const QString &name) const { return objectName() + QLatin1Char('.') + name; }

private:
    void showRow();
    void applyLock();

    EntryProfile m_profile;
    FormBuilder m_body;
    DataControl *m_dc;
    RecordBinding *m_record;
    QLabel *m_lblDataQuality = nullptr;
    QLabel *m_lblSpecies = nullptr;
};
