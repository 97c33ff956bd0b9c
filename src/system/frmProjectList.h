// SPDX-License-Identifier: MIT
#pragma once

#include "WindowLinks.h"
#include "ZobWindow.h"

class DataControl;
class DataGrid;
class QLabel;

//! The first window of a known user: every project, sortable by any column, with commands to make a
//! new project, open the selected one and delete one with its marker file (the Delete key).
class frmProjectList : public ZobWindow, public ListView {
    Q_OBJECT
public:
    frmProjectList(Session &session, QtWindowHost &host);

    void Form_Load() override;
    //! Reads the list again, so that projects saved or deleted elsewhere show.
    void Form_Activate() override;
    QSize sizeHint() const override { return {760, 420}; }

    //! Reads the projects again in the current order.
    void refreshList() override;

private:
    void sortBy(const QString &field);
    void openSelected();
    void deleteSelected();
    void dcMain_Reposition();

    DataControl *m_dcMain;
    DataGrid *m_ssGrdMain;
    QLabel *m_lblNoRecords;
    QString m_sortField = QStringLiteral("Name");
};
