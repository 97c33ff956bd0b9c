// SPDX-License-Identifier: MIT
#include "DietItemColumns.h"

const QList<GridColumn> &dietItemColumns()
{
    static const QList<GridColumn> columns = {
        {"Name", "Diet Item"},
        {"WET_Proportion", "Prop of Diet  (0-1) wet", "#.###"},
        {"WET_WT_KCALG", "Gross Energy (Kcal / g wet wt)"},
        {"DRY_Proportion", "Prop of Diet  (0-1) dry", "#.###"},
        {"DRY_WT_KCALG", "Gross Energy (Kcal / g dry wt)"},
        {"WaterPercent", "H2O %", "00.#"},
        {"GEFoodGroup", "Gross Energy Food Type"},
        {"AEFoodGroup", "Assignment Category for GE"},
        {"Mean", "Assim. Eff. %"},
        {"PredatorType", "Predator-Prey Relationship for AE"},
        {"Lifestage", "LifeStage"},
        {"CompDesc", "Component"},
        {"Comments", "Notes"},
        {"AEReference", "AE Reference"},
        {"GEReference", "GE Reference"},
    };
    return columns;
}

int dietDialogColumnHelp(int shownColumn)
{
    switch (shownColumn) {
    case 1: case 3: return 1035;   // the proportions
    case 2: case 4: return 2508;   // gross energy
    case 5: return 1037;           // water content
    case 6: return 2518;           // gross energy food type
    case 7: return 2509;           // assignment category
    case 8: return 2519;           // assimilation efficiency
    default: return 0;
    }
}
