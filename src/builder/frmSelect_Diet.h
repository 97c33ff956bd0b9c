// SPDX-License-Identifier: MIT
#pragma once

#include "RequestWindow.h"

class DataControl;
class DataGrid;
class QComboBox;
class QLineEdit;
class QTabWidget;

//! A read-out of the reference diets of the scenario's species, one at a time with their items; Select
//! copies the diet shown into the scenario and hands its head to the builder. With a diet id it shows
//! that diet alone, without Select and navigator. Not modal.
class frmSelect_Diet : public RequestWindow {
    Q_OBJECT
public:
    frmSelect_Diet(Session &session, QtWindowHost &host);

    void Form_Load() override;

    //! The statement of the diets read: the species' diets for id below 1 (every diet when speciesId
    //! is 0), the one diet id otherwise.
    static QString dietStatement(qint32 id, qint32 speciesId);

protected:
    void serveRequest() override;

private:
    void buildDiet(FormBuilder &page);
    void buildItems(FormBuilder &page);
    //! The items and average trophic level of the diet shown.
    void reloadItems();
    void select();
    void zoomCell();
    void columnHelp(int logical);
    void newDiet();

    DataControl *m_dcDiet;
    DataControl *m_dcDietItem;
    DataGrid *m_grid;
    QTabWidget *m_tabs;
    QLineEdit *m_txtTL;
    QLineEdit *m_zoomCell;
    QComboBox *m_cboFrom;
    QComboBox *m_cboTo;
    QComboBox *m_cboCollection[3];
    QLineEdit *m_txtRegion[2];
};
