// SPDX-License-Identifier: MIT
#pragma once

#include "RequestWindow.h"

class DataControl;
class DataGrid;

//! Every allometric equation of the reference data, with its taxon, category, intake type, units and
//! reference: browsed, sorted by a column head, opened in the equation entry window, or added.
class frmSelect_IntakeModel : public RequestWindow {
    Q_OBJECT
public:
    frmSelect_IntakeModel(Session &session, QtWindowHost &host);

    //! Wide enough for every column: the main window's workspace places a child that does not fit at
    //! its size hint, and then fits it inside.
    QSize sizeHint() const override { return {1180, 520}; }

protected:
    void serveRequest() override;

private:
    void LoadData(const QString &sort);
    void openModel();
    void newModel();

    DataControl *m_dcMain = nullptr;
    DataGrid *m_ssGrdMain = nullptr;
};
