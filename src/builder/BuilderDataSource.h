// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

class frmZOB;

//! Gives a group of the builder's fields the look of a data source: its text colour, a white
//! background and its lock (vetted sources lock), the source's text in the group's LbLDataSource,
//! and, for the species, weight and diet groups, "More Information..." where a record stands behind
//! them. Targets: 0 species, 1 weight, 2 diet, 3 to 5 air, water and food, 6 soil; others do
//! nothing. Id 0 is black and locked. Errors go to the caller.
void applyDataSource(frmZOB &window, qint32 id, int target);
