// SPDX-License-Identifier: MIT
#pragma once

#include "ZobWindow.h"

class DataControl;
class DataGrid;
class QComboBox;
class QLabel;
class QLineEdit;

//! The species search: finds species by name, taxon, habitat, diet item and average trophic level,
//! leads on to the life-history browser, and, opened for a scenario's row, writes the species found
//! into that row and has the builder show it.
class frmSearch_LifeHistory : public ZobWindow {
    Q_OBJECT
public:
    frmSearch_LifeHistory(Session &session, QtWindowHost &host);

    void Form_Load() override;
    //! The record to write the species into: table, key field and id; a table of "NA" writes nothing.
    void setRecord(const RecordRequest &request) override;

    // Set by setRecord (legacy Filter).
    qint32 ID = 0;
    QString TableName = QStringLiteral("NA");
    QString IDField = QStringLiteral("NA");

private:
    void clearCriteria();
    void search();
    //! Writes the current species into the caller's row, has the builder load it, and closes.
    void selectSpecies();
    //! Opens the browser on page tab over the species found.
    void openBrowser(int tab);
    //! A criterion box shows the focus by its background colour.
    void markFocus(QWidget *box);

    QLineEdit *m_txtSearch[4];
    QComboBox *m_cboTaxon;
    QComboBox *m_cboHabitat;
    DataControl *m_dcSearch;
    DataGrid *m_grid;
    QLabel *m_gridCaption;
};
