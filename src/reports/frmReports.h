// SPDX-License-Identifier: MIT
#pragma once

#include "ZobWindow.h"

class DataControl;
class DataGrid;
class QListWidget;

//! The report catalogue of the open scenario: the scenario in a one-row grid, the titles of the
//! reports of its type, the print options, and the command that shows the chosen report.
class frmReports : public ZobWindow {
    Q_OBJECT
public:
    frmReports(Session &session, QtWindowHost &host);
    void Form_Load() override;

    //! The report object a title shows; empty for a title no report answers to.
    static QString reportOf(const QString &title);

private:
    //! Takes the current row's scenario; refills the list when the type changed.
    void rowChange();
    void fillList();
    //! Enables the print options that fit the clicked title.
    void setOptions();
    //! The two warnings when no scenario or no report is selected; true when both are.
    bool validate();
    //! Shows the selected report (nothing for a title without a report).
    void showReport(bool modal);

    DataControl *m_dcScenario;
    DataGrid *m_grid;
    QListWidget *m_lstReports;
    QList<QWidget *> m_chkPrintOpt;
    QString m_scenarioId;
    QString m_type;
};
