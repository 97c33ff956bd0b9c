// SPDX-License-Identifier: MIT
#pragma once

#include "DataControl.h"

#include <QList>

//! The columns of a diet-item grid (the aliases of the diet-item statement), in the order shown, with
//! their captions and patterns. The builder's diet page and the diet dialog show the same columns.
const QList<GridColumn> &dietItemColumns();

//! The help topic of a column head of the diet dialog's item grid, by its place among the shown
//! columns (0 is "Diet Item"); 0 for a column without a topic.
int dietDialogColumnHelp(int shownColumn);
