// The intake dialogs reached from the builder's intake page: the weight and category refusals before
// the dialog opens, an equation chosen for air and a soil study, each shown on the page at once.

const texts = () => ui.messages().map(m => m.text);
const builder = () => ui.window('frmZOB');
const sid = () => session.scenario.SID;
const intakeRow = type => db.query('Select * From tblIntakeZOB Where ScenarioID = ' + sid() + ' And IntakeTypeID = ' + type)[0];
const rowOf = (grid, column, value) => grid.rows.findIndex(r => String(r[grid.columns.indexOf(column)]) === String(value));

db.exec("Insert Into tblTaxon (TaxonID, Description) Values (90, 'Probe taxon')");
db.exec("Insert Into tblCategory (CategoryID, Description) Values (90, 'Probe group')");
db.exec('Insert Into tblIntakeModel (IntakeModelID, IntakeTypeID, TaxonID, CategoryID, a, b, MMF, UCF, WtUnitsID, FinalUnitsID, '
        + 'EqnUnitsID, ReferenceID, DataSourceID) Values (990101, 1, 90, 90, 1, 1, 3, 2, 13, 1, 1, 1, 4)');
db.exec("Insert Into tblSpecies (SpeciesID, Common, Latin, TaxonID) Values (990001, 'Probe vole', 'Microtus probus', 90)");
db.exec('Insert Into tblWeight (SpeciesID, Mean, StatusID, GenderID, ReferenceID, DataSourceID) Values (990001, 1000, 2, 5, 1, 4)');
db.exec("Insert Into tblSoilIngestion (SoilIngestionID, TaxonID, Species, IntakeMean, UnitsID, ReferenceID, DataSourceID) "
        + "Values (990501, 2, 'Aaa probe shrew', 9.4, 8, 1, 5)");

function fromDatabase(subPage) {
    const w = builder();
    w.control('ssTabSB').selectTab(3);
    w.control('ssTabIntake').selectTab(subPage);
    ui.clearMessages();
    w.control('cmdSelect(6)').click();
}

test('a new scenario of the probe species from the project window', () => {
    if (ui.window('frmSetup')) ui.window('frmSetup').close();
    ui.menu('mnuProject').trigger();
    ui.window('frmProjectList').toolbar().click(2);
    const p = ui.window('frmProject');
    p.control('txtProject(0)').setText('Voles');
    p.toolbar().click('Save');
    ui.window('frmSearch_File').control('txtSelectedFile').setText('voles');
    ui.window('frmSearch_File').control('cmdControl(0)').click();
    p.control('cmdScenario(3)').click();
    builder().control('cmdSelect(0)').click();
    const list = ui.window('frmSelect_Species');
    list.control('ssGrdMain').selectRow(rowOf(list.control('ssGrdMain'), 'Common', 'Probe vole'));
    list.toolbar().click('Select');
    ui.window('frmSearch_File').control('txtSelectedFile').setText('vole');
    ui.window('frmSearch_File').control('cmdControl(0)').click();
    expect(session.scenario.SpeciesID).toBe(990001);
});

test('without a weight, and for an intake without equations of the taxon, the dialog does not open', () => {
    fromDatabase(0);
    expect(texts()).toEqual(['Weight not selected. Please select weight and then continue.']);
    expect(ui.windows()).not.toContain('frmSelect_Intake');
    const w = builder();
    w.control('ssTabSB').selectTab(1);
    w.control('cmdSelect(2)').click();
    const weights = ui.window('frmSelect_Weight');
    weights.control('ssGrdWeight').selectRow(0);
    weights.control('optMeanMaxMin(1)').click();
    weights.toolbar().click('Select');
    expect(session.scenario.Weight).toBe(1000);
    fromDatabase(1);
    expect(texts()).toEqual(['No data available']);
    expect(ui.windows()).not.toContain('frmSelect_Intake');
});

test('an equation for air: the rates at 1000 g written and shown on the page', () => {
    fromDatabase(0);
    const dialog = ui.window('frmSelect_Intake');
    expect(dialog.control('txtEquation').text).toBe('m3/day = 1 * (Wt(g)*0.001)^ 1*2*3');
    dialog.toolbar().click(6);
    expect(ui.windows()).not.toContain('frmSelect_Intake');
    const r = intakeRow(1);
    expect([r.IntakeModelID, r.Derivation, r.BaseRate, r.AdjustedRate, r.Units, r.DataSourceID]).toEqual([990101, 'Model', 2, 6, 'm3/day', 4]);
    expect(builder().control('txtIntakeRate(0)').text).toBe('6.0000');
    expect(builder().control('LblEstimator(0)').text).toBe('Model');
});

test('a soil study: its percentage written and shown on the page', () => {
    fromDatabase(3);
    const list = ui.window('frmSelect_SoilIngestion');
    list.control('ssGrdMain').selectRow(rowOf(list.control('ssGrdMain'), 'Species', 'Aaa probe shrew'));
    list.toolbar().click(4);
    const r = intakeRow(4);
    expect([r.SoilIngestionID, r.BaseRate, r.AdjustedRate, r.Units]).toEqual([990501, 9.4, 9.4, '% dry wt']);
    expect(builder().control('txtIntakeRate(3)').text).toBe('9.4');
    expect(builder().control('LblAssignedSpecies').text).toBe('Aaa probe shrew');
    expect(session.scenario.Soil_DataSource).toBe(5);
});
