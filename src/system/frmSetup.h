// SPDX-License-Identifier: MIT
#pragma once

#include "ZobWindow.h"

#include <QStringList>

class DataControl;
class DataGrid;
class GridCellEditor;
class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QTabWidget;

//! "System Setup": the user's folders, default comments, personal and report header fields, the
//! diagnostics level, and the editor of the small lookup tables listed in tblTableList.
class frmSetup : public ZobWindow {
    Q_OBJECT
public:
    frmSetup(Session &session, QtWindowHost &host);

    void Form_Load() override;
    QSize sizeHint() const override { return QWidget::sizeHint().expandedTo({820, 600}); }
    //! While a table row is being edited, asks "Cancel changes ?"; No keeps the window.
    void Form_Unload(bool &cancel) override;

    //! The help number of each tab, in tab order.
    static const int kTabHelp[5];

private:
    void TB_MDI_ButtonClick(int index);
    void cmdPath_Click(int index);
    void cmdAdd_Click();
    void chooseTable(int tableListId);
    void cmdTables_Click(int index);
    void showTableRow();
    void setEditing(bool editing);
    void saveTableRow();
    void deleteTableRow();

    QTabWidget *m_ssTabSetup;
    QLineEdit *m_Path[5] = {};
    QComboBox *m_cboDiagLevel;
    DataControl *m_dcUser;
    DataControl *m_dcComments;
    DataControl *m_dcTableList;
    DataControl *m_dcTable;
    DataGrid *m_ssGrdMain;
    DataGrid *m_ssGrdUser;
    DataGrid *m_ssGrdReport;
    DataGrid *m_ssGrdTable;
    QLineEdit *m_txtComment;
    QListWidget *m_LstTables;
    QGroupBox *m_fraTableSetup;
    QLabel *m_LblSetup[3] = {};
    QLineEdit *m_txtFields[3] = {};
    QLabel *m_lblIdNote;
    QPushButton *m_cmdTables[5] = {};
    QList<GridCellEditor *> m_cellEditors;

    // The table being edited, as tblTableList describes it.
    int m_tableListId = 0;
    QString m_tableName;
    QString m_actualTable;
    QStringList m_tableFields;     // the fields of the statement, in order
    bool m_fieldVisible[3] = {};
    bool m_editing = false;
    bool m_adding = false;
};
