// SPDX-License-Identifier: MIT
#pragma once

#include "ZobWindow.h"

class DataControl;
class DataGrid;
class GridCellEditor;
class QComboBox;
class QLineEdit;
class QTabWidget;
class TableListEditor;

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
    void buildGeneral(FormBuilder &page);
    void buildComments(FormBuilder &page);
    void buildUserGrids(FormBuilder &user, FormBuilder &report);
    void tabChanged(int tab);
    //! OK: keeps the cells and paths in the user row and closes.
    void keepAndClose();
    void cmdPath_Click(int index);
    void cmdAdd_Click();
    void commitCells();

    QTabWidget *m_ssTabSetup;
    QWidget *m_Path[5] = {};
    QComboBox *m_cboDiagLevel;
    DataControl *m_dcUser;
    DataControl *m_dcComments;
    DataGrid *m_ssGrdMain;
    DataGrid *m_ssGrdUser;
    DataGrid *m_ssGrdReport;
    QLineEdit *m_txtComment;
    TableListEditor *m_tables;
    QList<GridCellEditor *> m_cellEditors;
};
