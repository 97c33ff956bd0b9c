// Pictures of the intake dialogs and the calculation review, written into the program folder (--home)
// under the window's name. Run as capture.js is run, at normal size and at 1.5 with SCREEN_SUFFIX '-150'.
const suffix = (typeof SCREEN_SUFFIX === 'string') ? SCREEN_SUFFIX : '';
const shot = (w, name) => w.grab(session.home + '/' + name + suffix + '.png');
ui.window('frmSetup').close();

// A bald eagle scenario: its reference diet copied, proportions summed, FMR and rates chosen below.
db.exec("Insert Into tblProject (Name, Path, FileName) Values ('Eagle review', '" + session.home + "', 'eagle.NAV')");
const pid = db.query("Select ProjectID From tblProject Where Name = 'Eagle review'")[0].ProjectID;
db.exec("Insert Into tblScenario (Scenario_Type, Scenario_FileName, Scenario_Identifier_1) Values ('Wildlife', 'eagle.ZOB', 'Bald eagle, lake shore')");
const sid = db.query('Select Max(ScenarioID) As M From tblScenario')[0].M;
db.exec('Insert Into jtblProjectScenario (ProjectID, ScenarioID) Values (' + pid + ', ' + sid + ')');
db.exec('Insert Into tblWildlife (ScenarioID, SpeciesID, Common, Weight, WtSex, DietType) Values (' + sid
        + ", 7, 'Bald eagle', 4740, 'Female', 1)");
for (let t = 1; t <= 5; ++t)
    db.exec('Insert Into tblIntakeZOB (ScenarioID, IntakeTypeID, ZOB_SpeciesID, Units) Values (' + sid + ', ' + t + ", 7, "
            + (t === 5 ? "'g/day'" : 'Null') + ')');
db.exec('Insert Into tblWildlifeDietItems (ScenarioID, DietID, DietItemID, Name, Wet_Proportion, WaterConversionID, WaterPercent, '
        + 'AEID, GrossEnergyID) Select ' + sid + ', DietID, DietItemID, Name, Wet_Proportion, WaterConversionID, WaterPercent, AEID, '
        + 'GrossEnergyID From tblDietItem Where DietID = 7');
session.scenario.SID = sid;
session.scenario.SpeciesID = 7;
session.scenario.Weight = 4740;
session.scenario.DietType = 1;
calc.SumProportions(true);

const intake = page => pickers.open('frmSelect_Intake', { recordId: page, selectedId: 1, mode: 'Read' });
intake(0);
let w = ui.window('frmSelect_Intake');
shot(w, 'frmSelect_Intake-model');
w.toolbar().click(6);
intake(1);
ui.window('frmSelect_Intake').toolbar().click(6);
intake(2);
w = ui.window('frmSelect_Intake');
w.control('DataOption(1)').click();
w.control('ssGrdMeasuredAir').selectRow(1);
shot(w, 'frmSelect_Intake-measured');
w.control('DataOption(0)').click();
w.toolbar().click(6);

pickers.open('frmSelect_SoilIngestion', { recordId: 4, mode: 'Write', table: 'tblSoilIngestion', keyField: 'SoilIngestionID' });
w = ui.window('frmSelect_SoilIngestion');
w.control('ssGrdMain').selectRow(0);
shot(w, 'frmSelect_SoilIngestion');
w.toolbar().click(4);

ui.menu('mnuIntakeModel').trigger();
shot(ui.window('frmSelect_IntakeModel'), 'frmSelect_IntakeModel');
ui.window('frmSelect_IntakeModel').close();

ui.menu('mnuProject').trigger();
const list = ui.window('frmProjectList');
list.control('ssGrdMain').selectRow(0);
list.toolbar().click('Open');
const p = ui.window('frmProject');
p.control('ssGrdProjectScenarios').selectRow(0);
p.toolbar().click('Calculations');
const basis = ui.window('frmSelect_DryWetWeight');
basis.control('optDryWeight(1)').click();
basis.control('cmdOK(0)').click();
const review = ui.window('frmZOBCalculations');
shot(review, 'frmZOBCalculations-diet');
review.control('ssTabCalc').selectTab(1);
shot(review, 'frmZOBCalculations-intake');
review.toolbar().click('Close');
