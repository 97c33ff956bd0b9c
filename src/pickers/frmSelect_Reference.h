// SPDX-License-Identifier: MIT
#pragma once

#include "RequestWindow.h"

class DataControl;
class DataGrid;
class QCheckBox;
class QComboBox;
class QLineEdit;

//! Finds a literature reference by the first author's name or by the species it is linked to, and
//! writes the chosen ReferenceID into the caller's row (table, key and record id of the request; the
//! request's selected id is the reference the row holds now).
class frmSelect_Reference : public RequestWindow {
    Q_OBJECT
public:
    frmSelect_Reference(Session &session, QtWindowHost &host);


    //! The list of every reference with its text, without an order.
    static QString listStatement();
    //! The references whose first author's name holds text, by author.
    static QString authorStatement(const QString &text);
    //! The references linked to a species, by author.
    static QString speciesStatement(qint32 speciesId);

protected:
    void serveRequest() override;

private:
    void bind(const QString &sql);
    void speciesFilter(bool on);
    void openReference();
    void select();

    QLineEdit *m_txtInput;
    QCheckBox *m_chkSpeciesFilter;
    QComboBox *m_cboSpecies;
    DataControl *m_dc;
    DataGrid *m_grid;
};
