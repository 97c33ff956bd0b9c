// SPDX-License-Identifier: MIT
#pragma once

#include "RequestWindow.h"

class QLabel;
class WorkbookPages;

//! The species workbook: the species record with its general texts and references, its weights, its
//! diets with their items, and its measured intakes, page by page, for one species (the request's
//! record id). A page is editable only when its record's data source is "Estimated" (2) or "User
//! entered" (6); otherwise it is locked and offers neither New nor Save.
class frmDE_Species : public RequestWindow {
    Q_OBJECT
public:
    frmDE_Species(Session &session, QtWindowHost &host);

    //! The references of the species, narrowed to those backing one general text (0 to 3), or all (4).
    void LoadReference(int filter);
    //! The diets of the species, and the items of the first.
    void LoadDiet();
    //! The items of the current diet.
    void LoadDietItems();
    //! Writes the species record (and the weight and diet shown).
    void SaveSpecies();
    //! Opens or locks the page: editable only in data source 2 or 6.
    void SetPageLock(int page);
    //! Whether a data source leaves a page editable.
    static bool editable(const QVariant &dataSource);

protected:
    void serveRequest() override;
    void Form_Load() override;
    void Form_Unload(bool &cancel) override;

private:
    qint32 speciesId() const { return recordRequest().recordId; }
    void loadWeights();
    void loadMeasured();
    void newRecord();
    void select();
    void editCommand(int index);
    void referenceCommand(int index);
    void deleteDietItem();
    //! Adds a row to a record page's table for the species and shows it.
    void addRow(int page);
    void writeRecords();
    void connectCommands();

    WorkbookPages *m_pages;
    QLabel *m_lblHeader;
};
