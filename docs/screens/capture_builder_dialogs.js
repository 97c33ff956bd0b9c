// Pictures of the builder's dialogs (species, weight, diet, diet finder, wet/dry question), written into
// the program folder (--home) under the dialog's name. Run as capture.js is run, at normal size and at
// 1.5 with `const SCREEN_SUFFIX = '-150';` put first.
const suffix = (typeof SCREEN_SUFFIX === 'string') ? SCREEN_SUFFIX : '';
const shot = (w, name) => w.grab(session.home + '/' + name + suffix + '.png');
if (ui.window('frmSetup')) ui.window('frmSetup').close();

db.exec("Insert Into tblScenario (Scenario_Type, Scenario_Identifier_1) Values ('Wildlife', 'screens')");
const sid = db.query('Select Max(ScenarioID) As M From tblScenario')[0].M;
db.exec('Insert Into tblWildlife (ScenarioID, WtStatus) Values (' + sid + ', 2)');
session.scenario.SID = sid;
const species = db.query('Select tblDiet.SpeciesID From tblDiet Inner Join tblWeight On tblDiet.SpeciesID = tblWeight.SpeciesID '
                         + 'Group By tblDiet.SpeciesID Order By Count(*) Desc')[0].SpeciesID;
session.scenario.SpeciesID = species;

pickers.open('frmSelect_Species', { recordId: sid, table: 'tblWildlife', keyField: 'ScenarioID', mode: 'ReadOnly', entry: 'ZOB' });
const sp = ui.window('frmSelect_Species');
sp.control('optSpec(0)').click();
sp.control('ssGrdMain').selectRow(2);
shot(sp, 'frmSelect_Species');
sp.close();

// A weight with every statistic, so that the picture shows every estimator offered.
const ref = db.query('Select ReferenceID From tblWeight Where SpeciesID = ' + species)[0].ReferenceID;
db.exec('Insert Into tblWeight (SpeciesID, Mean, Min, Max, Sample, VarValue, VarianceTypeID, StatusID, GenderID, ReferenceID, '
        + 'DataSourceID) Values (' + species + ', 512.4, 430, 598.5, 12, 41.2, 1, 2, 5, ' + ref + ', 4)');
pickers.open('frmSelect_Weight', { mode: 'Read' });
const wt = ui.window('frmSelect_Weight');
wt.control('ssGrdWeight').selectRow(wt.control('ssGrdWeight').rowCount - 1);
shot(wt, 'frmSelect_Weight');
wt.close();

pickers.open('frmSelect_Diet', { recordId: 0, mode: 'Read', filter: false });
const diet = ui.window('frmSelect_Diet');
shot(diet, 'frmSelect_Diet-0');
diet.control('SSTab1').selectTab(1);
shot(diet, 'frmSelect_Diet-1');
diet.close();

ui.show('frmFind_Diet');
shot(ui.window('frmFind_Diet'), 'frmFind_Diet');
ui.window('frmFind_Diet').close();

ui.show('frmSelect_DryWetWeight', true);
shot(ui.window('frmSelect_DryWetWeight'), 'frmSelect_DryWetWeight');
ui.window('frmSelect_DryWetWeight').close();
