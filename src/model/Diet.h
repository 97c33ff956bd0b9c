// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class Session;

//! What the diet module needs from the diet-item entry window (frmDE_DietItem): its public changed
//! flag. The window implements it and registers itself on gDietItem while it is loaded; a null
//! pointer means that the window is not open.
class DietItemWindow {
public:
    virtual ~DietItemWindow() = default;
    //! Sets the window's IsChanged flag.
    virtual void setIsChanged(bool changed) = 0;
    //! The window's IsChanged flag.
    virtual bool isChanged() const = 0;
};

//! The statement behind a diet-item grid. Type "User" lists the scenario's copies (ID is a
//! ScenarioID), "Perm" the reference items of a diet (ID is a DietID); any other type gives "".
//! Reports in the found form as "GetDietItemsSQL"; resets the pointer.
QString GetDietItemsSQL(Session &s, const QString &type, qint32 id);

//! Asks before a diet choice replaces the scenario's diet. With no items it asks nothing and answers
//! true; otherwise "Do you want to overwrite existing Diet ?" (Yes/No, No the default): Yes clears the
//! diet columns of tblWildlife and deletes the copied diet head and items, and answers true; No
//! changes nothing and answers false.
bool ReplaceWildlifeDietItems(Session &s);

//! Copies the tblDiet row DietID into tblWildlifeDiet for the current scenario.
void AddWildlifeDiet(Session &s, qint32 dietId);

//! Copies the items of a reference diet into tblWildlifeDietItems for the current scenario. Only
//! items with a tblWaterConversion row are copied (inner join); water percent and trophic level are
//! copied by value. Rows written before a failure stay.
void AddWildlifeDietItems(Session &s, qint32 dietId);

//! "Item: <Item> Trophic Level:  <level "#.##"> - Data Source: <description>" for the trophic level
//! of a diet item of tblDietItem (table "tblDietItem") or of tblWildlifeDietItems (any other table);
//! "No record selected" for id 0, "" when the item has no trophic level or on failure.
QString GetTrophicLevelText(Session &s, qint32 id, const QString &table);

//! "Item:  <Item> Percent Water:  <WaterPercent "##.##"> - Data Source: <description>" for a row of
//! tblDietItem, tblWildlifeDietItems or tblGrossEnergy; "Water content not found. " when the row is
//! missing; "" for id 0, another table, or on failure.
QString GetWaterConversionText(Session &s, qint32 id, const QString &table);

//! Marks the scenario's diet as changed by the user: unless its copied diet head already has data
//! source 6, and when changed is true, sets DietDataSourceID of tblWildlife and DataSourceID of
//! tblWildlifeDiet to 6, clears the diet-item window's changed flag and sets
//! gScenario.Diet_DataSource to 6. Traces as "modDiet.UpdateDS".
void UpdateDS(Session &s, bool changed);
