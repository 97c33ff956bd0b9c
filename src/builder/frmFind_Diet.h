// SPDX-License-Identifier: MIT
#pragma once

#include "RequestWindow.h"

class DataControl;
class DataGrid;

//! Lists the reference diets of a species (the request's record id, or the scenario's species) with
//! their data type, habitat, place, analysis and sex; Select shows the chosen diet alone in the diet
//! read-out.
class frmFind_Diet : public RequestWindow {
    Q_OBJECT
public:
    frmFind_Diet(Session &session, QtWindowHost &host);

    bool isMdiChild() const override { return false; }

    //! The diets of a species.
    static QString listStatement(qint32 speciesId);

protected:
    void serveRequest() override;

private:
    qint32 speciesId() const;
    void select();

    DataControl *m_dc;
    DataGrid *m_grid;
};
