// SPDX-License-Identifier: MIT
#pragma once

#include "RequestWindow.h"

class DataControl;
class DataGrid;

//! Lists the species of the reference data, sorted by a column head or narrowed to one taxon. Opened
//! by the builder (entry "ZOB") its Select gives the chosen species to the scenario; otherwise Select
//! and a double click open the species in its data-entry window.
class frmSelect_Species : public RequestWindow {
    Q_OBJECT
public:
    frmSelect_Species(Session &session, QtWindowHost &host);

    bool isMdiChild() const override { return false; }

    //! The list of every species in an order ("Taxon" sorts by the taxon's description).
    static QString listStatement(const QString &order);
    //! The species of one taxon (TaxonID) by common name.
    static QString taxonStatement(qint32 taxonId);

    //! Reads the list again, unfiltered, in the order given.
    void LoadData(const QString &order);

protected:
    void serveRequest() override;

private:
    void bind(const QString &sql);
    void select();
    void openSpecies(qint32 speciesId, const QString &mode);
    void newSpecies();
    void browseSpecies();

    DataControl *m_dcMain;
    DataGrid *m_grid;
};
