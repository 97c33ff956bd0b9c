// Rows for the pictures of the scenario reports (reports.sh): a toad scenario with the reference
// species, weight record and diet (with eight further items, so that the diet runs over pages),
// the five intake rows, and a soil study. Prints "SID=<id>".
if (ui.windows().indexOf('frmSetup') >= 0)
    ui.window('frmSetup').close();
db.exec("Insert Into tblScenario (Scenario_Type, Scenario_FilePath, Scenario_FileName, Scenario_CreatedBy, Scenario_ModifiedBy, Scenario_LastSaved, "
        + "Scenario_Identifier_1, Comments) Values ('Wildlife', '/home/ann/.local/share/Zobrel/ann/Scenario', 'toad.ZOB', 'ann', 'bob', #3/14/2024#, 'American toad', "
        + "'Young toads at the farm pond, screening level.')");
const sid = db.query('Select Max(ScenarioID) As M From tblScenario')[0].M;
db.exec('Insert Into tblWildlife (ScenarioID, SpeciesID, Common, Latin, SpeciesComments, SpeciesDataSourceID, WeightID, Weight, WtSex, WtStatus, '
        + 'WtEstimator, WtComments, WtDataSourceID, DietID, DietType, DietComments, DietSeason, DietSex, DietDataSourceID) Values (' + sid
        + ", 49, 'American toad', 'Anaxyrus americanus', 'Newly metamorphosed toads.', 5, 88, 118.7, 'F', 2, 1, 'Adult mean weight.', 4, 2006, 1, "
        + "'Diet of young toads.', 'Summer', 'Both', 4)");
session.scenario.SID = sid;
session.scenario.DietID = 2006;
session.scenario.DietType = 1;
diet.AddWildlifeDiet(2006);
diet.AddWildlifeDietItems(2006);
for (let i = 1; i <= 8; ++i)
    db.exec("Insert Into tblWildlifeDietItems (ScenarioID, DietID, Name, Wet_Proportion, AEID, GrossEnergyID, TrophicLevelID, ComponentID, Comments) "
            + "Select ScenarioID, DietID, 'Spider, sample " + i + "', 0.01, AEID, GrossEnergyID, TrophicLevelID, ComponentID, 'A further item.' "
            + "From tblWildlifeDietItems Where ScenarioID = " + sid + " And Name Like 'Mites*'");
const units = ['m3/day', 'L/day', 'kcal/day', '% dry wt', '% dry wt'];
for (let t = 1; t <= 5; ++t)
    db.exec('Insert Into tblIntakeZOB (ScenarioID, IntakeTypeID, BaseRate, AdjustedRate, Units, DataSourceID, EstimatorID, Comments, IntakeModelID, '
            + 'Units_CF, SoilIngestionID) Values (' + sid + ', ' + t + ', ' + [0.05, 0.02, 11.2, 9.4, 0][t - 1] + ', ' + [0.05, 0.02, 24.6, 9.4, 0][t - 1]
            + ", '" + units[t - 1] + "', 3, 1, 'Screening value', " + (t === 3 ? 8 : 0) + ', ' + (t === 3 ? 0.239 : 1) + ', ' + (t === 4 ? 1 : 0) + ')');
console.log('SID=' + sid);
