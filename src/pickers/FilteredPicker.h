// SPDX-License-Identifier: MIT
#pragma once

#include "DataControl.h"
#include "RequestWindow.h"

#include <QList>
#include <QString>

class QGroupBox;
class QLineEdit;
class QRadioButton;

//! A value the user may type instead of choosing a row, and the columns of the caller's row it goes
//! to: the row's key column (set to 0 for a typed value), the value column and its data-source column.
struct TypedAssignment {
    QString keyColumn;
    QString valueColumn;
    QString dataSourceColumn;
    //! The list's column that gives the value when a row is chosen.
    QString rowValueField;
};

//! What one filtered picker is: its own table, its list and columns, its sorts, its entry window and
//! how Select and a double click behave. The four pickers differ only in this.
struct PickerProfile {
    QString caption;
    QString table;
    QString key;
    //! The name of the list's data control.
    QString dataControl;
    //! The data-entry window of the table.
    QString entryWindow;
    int helpContext = 2575;
    //! The statement of the list, without filter and order.
    QString listSql;
    QList<GridColumn> columns;
    QString firstSort;
    //! The sort after a filter change; in mode "Write" writeFilterSort when that is given.
    QString filterSort;
    QString writeFilterSort = {};
    //! Set when a typed value can stand in for a row (the member builds the boxes).
    TypedAssignment typed = {};
    //! Select opens the entry window (as a double click) when browsing; otherwise the button is hidden.
    bool selectOpensEntry = false;
    //! A double click hands the entry window mode "Write" and the picker's record id as selected id.
    bool entryAlwaysWrites = false;
    //! A caller's row that is gone ends Select without a word; otherwise it is reported.
    bool quietWhenCallerGone = false;
};

//! The shared picker: a list of one reference table, narrowed by the classification of the caller's
//! record at a chosen level (kingdom to family, or none), from which Select writes the chosen row, or
//! a typed value, into the caller's row and tells the diet item window. The request (setRecord) gives
//! the caller's table, key, record id, mode and the row it holds now; its filter flag says that the
//! picker assigns (a modal dialog with the filter frame and Select) rather than browses.
class FilteredPicker : public RequestWindow {
    Q_OBJECT
public:
    FilteredPicker(Session &session, QtWindowHost &host, const QString &name, PickerProfile profile);

    //! Stores the request; the list is read when the window is next shown.

    //! The classification column of filter level 1 (kingdom) to 6 (family); empty for 0 (no filter).
    static QString levelColumn(int level);
    //! The order clause of a sort text: the life stage and component columns by their tables.
    static QString orderField(const QString &sort);
    //! The list statement for a filter on column = value (no filter for an empty column) and a sort.
    static QString listStatement(const PickerProfile &profile, const QString &column, qint32 value, const QString &sort);

    //! Reads the list again at the filter level chosen, in the sort given.
    void LoadData(const QString &sort);
    //! The filter level whose option is on (0: no filter).
    int filterLevel() const;
    const PickerProfile &profile() const { return m_profile; }

protected:
    //! The frame "Assign Value" in which a member builds its typed-value boxes; visible when assigning.
    FormBuilder assignFrame();
    //! The value the user typed, 0 when none; members with a typed value override it.
    virtual float typedValue() const { return 0; }

protected:
    void serveRequest() override;

private:
    void buildList(FormBuilder &b);
    void buildFilter(FormBuilder &b);
    //! The position line and classification text of the current row.
    void reposition();
    //! The filter value of the caller's row at a level; 0 for none.
    qint32 callerClassification(const QString &column);
    void select();
    void writeAssignment(Recordset &caller);
    void openEntry(qint32 recordId, const QString &mode, const RecordRequest &request, bool modal);
    void newRecord();
    void doubleClick();
    QString routine(const QString &name) const;

    PickerProfile m_profile;
    DataControl *m_dc = nullptr;
    DataGrid *m_grid = nullptr;
    QGroupBox *m_fraFilter = nullptr;
    QGroupBox *m_fraAssigned = nullptr;
    QList<QRadioButton *> m_optFilter;
    QLineEdit *m_txtClassification = nullptr;
    QLineEdit *m_txtReferences = nullptr;
};
