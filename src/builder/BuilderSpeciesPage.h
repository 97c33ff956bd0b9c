// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class FormBuilder;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class frmZOB;

//! The species page of the builder: the names of the scenario's animal, chosen from the species
//! list or typed as a hypothetical species, repeated in the labels above the pages.
class BuilderSpeciesPage : public QObject {
    Q_OBJECT
public:
    BuilderSpeciesPage(frmZOB &window, FormBuilder &page, FormBuilder &header);

    //! Fills the taxon list from tblTaxon.
    void loadTaxa();
    //! Shows the names of a tblWildlife row (Common, Latin, Taxon) and sets the species globals.
    void showNames(const QString &common, const QString &latin, const QString &taxon);
    //! Loads the page for a species (a scenario for data source 2); see frmZOB::loadSpecies.
    void load(qint32 id, qint32 dataSourceId, qint32 previousId);
    //! Leaving the page: a pending change of species clears the scenario, and a species that is
    //! hypothetical or from the reference data is saved.
    void leave();
    //! True when either name is blank (trimmed).
    bool namesBlank() const;
    void focusCommonName();

private:
    void selectFromDatabase();
    void enterHypothetical();
    void clearSpeciesControls();
    //! A change of text in a name box: the matching global and header label follow.
    void namesChanged();

    frmZOB &m_w;
    QLineEdit *m_txtLatinName;
    QLineEdit *m_txtCommonName;
    QComboBox *m_cboTaxon;
    QLabel *m_info[3];
};
