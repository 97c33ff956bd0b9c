// SPDX-License-Identifier: MIT
#pragma once

#include "ZobWindow.h"

class DataControl;
class DataGrid;
class QLabel;
class QLineEdit;

//! A window for checking the window runtime on a running program: a grid of the data sources over
//! a data control (head click sorts, double click tells the row), a bound text box, a data-source
//! label, a question box, and a button that opens the modal frmRuntimeDialog. No menu reaches it;
//! scripts show it by name.
class frmRuntimeCheck : public ZobWindow {
    Q_OBJECT
public:
    frmRuntimeCheck(Session &session, QtWindowHost &host);
    void Form_Load() override;
    //! Asks "Close the runtime check?"; No keeps the window.
    void Form_Unload(bool &cancel) override;

private:
    void sortBy(const QString &field);
    DataControl *m_dcMain;
    DataGrid *m_ssGrdMain;
    QLineEdit *m_txtDescription;
    QLabel *m_lblDataSource;
    QLabel *m_lblResult;
};
