// SPDX-License-Identifier: MIT
#pragma once

#include "WindowLinks.h"

#include <QObject>

class DataControl;
class DataGrid;
class FormBuilder;
class QCheckBox;
class QLineEdit;
class QWidget;
class frmZOB;

//! The diet page of the builder: the head of the scenario's diet and the grid of its items, copied
//! from a reference diet or built item by item as a hypothetical diet.
class BuilderDietPage : public QObject {
    Q_OBJECT
public:
    BuilderDietPage(frmZOB &window, FormBuilder &page);

    //! Reloads the whole page (LoadDietControls).
    void load();
    //! Reloads the item grid and the diet's trophic level (UpdateDietItems).
    void updateItems();
    //! Shows the head of a reference diet as the diet dialog copies it.
    void setHead(const DietHeadText &head);
    //! Reads the scenario's items into the grid again.
    void refreshItems();
    //! Empties the diet boxes and deletes the scenario's items (ClearDietControls).
    void clear();
    QString season() const;
    QString habitat() const;
    QString sex() const;
    //! The diet's trophic level text as computed for the scenario's items.
    void showTrophicLevel();

private:
    void buildDiet(FormBuilder &page);
    void buildItems(FormBuilder &page);
    void selectFromDatabase();
    void PrS_LoadSelectDietScreen();
    void enterHypothetical();
    void editItem(bool current);
    void deleteItem();
    void columnHelp(int logicalColumn);
    void sumProportions();
    void showRecordNotes(bool on);

    frmZOB &m_w;
    QLineEdit *m_txtDietSeason;
    QLineEdit *m_txtDietHabitat;
    QLineEdit *m_txtDietSex;
    QLineEdit *m_txtDietTL;
    QCheckBox *m_chkIsWet;
    DataControl *m_dcDietItems;
    DataGrid *m_grid;
};
