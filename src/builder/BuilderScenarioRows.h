// SPDX-License-Identifier: MIT
#pragma once

class Recordset;
class Session;
class clsScenario;

//! Copies the builder's view of a scenario from a row of tblWildlife (joined with tblIntakeZOB) into
//! the scenario object: species, weight and diet members. The names and notes are the window's.
void readScenarioRow(clsScenario &scenario, const Recordset &row);
//! Copies the data source of each of the five intake rows of the recordset (and the category of the
//! first four) into the scenario object; a missing row leaves its members alone.
void readIntakeSources(clsScenario &scenario, Recordset &rows);
//! Deletes the scenario's diet items and resets its five intake rows to nothing chosen. All five
//! rows get the units "m3/day", whatever their type. Errors go to the caller.
void resetScenarioRows(Session &session);
//! Forgets what was chosen for the scenario after its rows were reset: its marker file is deleted
//! and its name emptied (the next save asks for a new one), weight and diet members go back to
//! their defaults and every data source to 6, "nothing chosen yet".
void forgetScenarioChoices(Session &session);
//! Whether tblWildlifeDietItems has any row at all, of any scenario; where it has none, says that
//! dietary calculations will not be done. Errors are reported as "frmZOB.WildlifeDietItemsExist"
//! and answer false.
bool anyDietItems(Session &session);
