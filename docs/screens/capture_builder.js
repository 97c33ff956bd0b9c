// Pictures of the scenario builder's pages (species, weight, diet with its items, each intake
// sub-page), written into the program folder (--home) as frmZOB-<page>. Run as capture.js is run, at
// normal size and at 1.5 with `const SCREEN_SUFFIX = '-150';` put first.
const suffix = (typeof SCREEN_SUFFIX === 'string') ? SCREEN_SUFFIX : '';
const shot = (w, name) => w.grab(session.home + '/' + name + suffix + '.png');
const pick = (grid, column, value) => grid.selectRow(grid.rows.findIndex(r => String(r[grid.columns.indexOf(column)]) === String(value)));
if (ui.window('frmSetup')) ui.window('frmSetup').close();

ui.menu('mnuProject').trigger();
ui.window('frmProjectList').toolbar().click(2);
const p = ui.window('frmProject');
p.control('txtProject(0)').setText('Backyard robins');
p.toolbar().click('Save');
ui.window('frmSearch_File').control('txtSelectedFile').setText('robins');
ui.window('frmSearch_File').control('cmdControl(0)').click();
p.control('cmdScenario(3)').click();
const w = ui.window('frmZOB');
w.control('cmdSelect(0)').click();
const species = ui.window('frmSelect_Species');
pick(species.control('ssGrdMain'), 'Common', 'American robin');
species.toolbar().click('Select');
ui.window('frmSearch_File').control('txtSelectedFile').setText('robin');
ui.window('frmSearch_File').control('cmdControl(0)').click();
w.control('txtNotes(8)').setText('Robins feeding on lawns next to the treated orchard.');
shot(w, 'frmZOB-species');

w.control('ssTabSB').selectTab(1);
w.control('cmdSelect(2)').click();
ui.window('frmSelect_Weight').toolbar().click('Select');
shot(w, 'frmZOB-weight');

w.control('ssTabSB').selectTab(2);
w.control('cmdSelect(4)').click();
ui.window('frmSelect_Diet').toolbar().click('Select');
shot(w, 'frmZOB-diet');
w.control('SSTab1').selectTab(1);
shot(w, 'frmZOB-dietitems');

// Rates as the intake dialogs would leave them, shown when the scenario is opened again.
db.exec("Update tblIntakeZOB Set AdjustedRate = 0.0412, Units_CF = 1, Measured_CF = 1, DataSourceID = 2 Where IntakeTypeID = 1");
db.exec("Update tblIntakeZOB Set AdjustedRate = 0.0118, Units = 'L/day', Units_CF = 0.001, Measured_CF = 1, DataSourceID = 3 Where IntakeTypeID = 2");
db.exec("Update tblIntakeZOB Set AdjustedRate = 2.5, AssignedSpecies = 'American woodcock', Derivation = 'Measured' Where IntakeTypeID = 4");
w.toolbar().click('Close');
p.control('ssGrdProjectScenarios').selectRow(0);
p.control('cmdScenario(6)').click();
const v = ui.window('frmZOB');
v.control('ssTabSB').selectTab(3);
['air', 'water', 'food', 'soil', 'sediment'].forEach((name, i) => {
    v.control('ssTabIntake').selectTab(i);
    shot(v, 'frmZOB-intake-' + name);
});
