// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QStringList>

class DataControl;
class DataGrid;
class FormBuilder;
class QGroupBox;
class QLabel;
class QListWidget;
class QPushButton;
class QWidget;
class Session;

//! The editor of the small lookup tables that tblTableList describes: the list of tables, the boxes
//! of one row (their captions, fields and visibility come from the table's row in tblTableList), the
//! rows in a grid over dcTable, and the commands New, Edit, Save, Cancel and Delete (cmdTables(0..4)).
class TableListEditor : public QObject {
    Q_OBJECT
public:
    //! Builds the controls into page; they belong to the page.
    TableListEditor(Session &session, FormBuilder &page);

    //! Reads the list of tables. Throws as the database does.
    void load();
    //! Whether a row is being edited.
    bool editing() const { return m_editing; }
    //! Before the editor goes: while a row is edited asks "Cancel changes ?"; No answers false and
    //! the edit stays, Yes drops the edit.
    bool leave();

private:
    void buildBoxes(FormBuilder &record);
    void chooseTable(int tableListId);
    void showTableRow();
    void setEditing(bool editing);
    void dropPendingRow();
    // The commands New, Edit, Save, Cancel and Delete.
    void newRow();
    void editRow();
    void saveRow();
    void cancelEdit();
    void deleteRow();
    bool isTable(const char *name) const;

    Session &m_session;
    QListWidget *m_LstTables;
    QGroupBox *m_fraTableSetup;
    QLabel *m_LblSetup[3] = {};
    QWidget *m_txtFields[3] = {};
    QLabel *m_lblIdNote;
    DataGrid *m_ssGrdTable;
    DataControl *m_dcTable;
    DataControl *m_dcTableList;
    QPushButton *m_cmdTables[5] = {};

    // The table being edited, as tblTableList describes it.
    int m_tableListId = 0;
    QString m_tableName;
    QString m_actualTable;
    QStringList m_tableFields;  // the fields of the statement, in order
    bool m_fieldVisible[3] = {};
    bool m_editing = false;
    bool m_adding = false;
};
