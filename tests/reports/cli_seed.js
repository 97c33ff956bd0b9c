// Rows for the command-line reports: a toad scenario with the reference diet 2006 copied, an energy
// requirement, and a project holding it. Prints "SID=<id> PID=<id>".
if (ui.windows().indexOf('frmSetup') >= 0)
    ui.window('frmSetup').close();
db.exec("Insert Into tblScenario (Scenario_Type, Scenario_FileName, Scenario_LastSaved, Scenario_Identifier_1) Values ('Wildlife', 'toad.ZOB', #3/14/2024#, 'American toad')");
const sid = db.query('Select Max(ScenarioID) As M From tblScenario')[0].M;
db.exec('Insert Into tblWildlife (ScenarioID, SpeciesID, Common, WeightID, Weight, DietID, DietType) Values (' + sid + ", 49, 'American toad', 88, 118.7, 2006, 1)");
session.scenario.SID = sid;
session.scenario.DietID = 2006;
session.scenario.DietType = 1;
diet.AddWildlifeDiet(2006);
diet.AddWildlifeDietItems(2006);
db.exec('Insert Into tblIntakeZOB (ScenarioID, IntakeTypeID, BaseRate, AdjustedRate) Values (' + sid + ', 3, 20, 20)');
db.exec("Insert Into tblProject (Name, FileName) Values ('Toad Pond', 'pond.NAV')");
const pid = db.query('Select Max(ProjectID) As M From tblProject')[0].M;
db.exec('Insert Into jtblProjectScenario (ProjectID, ScenarioID) Values (' + pid + ', ' + sid + ')');
console.log('SID=' + sid + ' PID=' + pid);
