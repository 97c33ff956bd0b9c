// SPDX-License-Identifier: MIT
#pragma once

#include "RequestWindow.h"

class DataControl;
class DataGrid;

//! The studies of soil ingestion: browsed and maintained from the menu, or opened by the builder to
//! assign one study's percentage of soil in the dry diet to the open scenario's soil row.
class frmSelect_SoilIngestion : public RequestWindow {
    Q_OBJECT
public:
    frmSelect_SoilIngestion(Session &session, QtWindowHost &host);

    //! Wide enough for every column: the main window's workspace places a child that does not fit at
    //! its size hint, and then fits it inside.
    QSize sizeHint() const override { return {1180, 520}; }

protected:
    void serveRequest() override;

private:
    void LoadData(const QString &sortKey);
    void newStudy();
    void openStudy();
    void accept();

    qint32 m_intakeTypeId = 4;
    QString m_sortKey;
    DataControl *m_dcMain = nullptr;
    DataGrid *m_ssGrdMain = nullptr;
};
