// The dialogs reached from the builder window: a new scenario from the project window gets its species
// from the list (the first save names the file), a weight with its statistic, a diet copied with its
// head shown on the diet page, the proportions summed on the wet basis through the wet/dry question,
// and a second species answered No to the overwrite question.

const texts = () => ui.messages().map(m => m.text);
const rowOf = (grid, column, value) => grid.rows.findIndex(r => String(r[grid.columns.indexOf(column)]) === String(value));
if (ui.window('frmSetup')) ui.window('frmSetup').close();

// A species with weights and diets of more than one item.
const species = db.query('Select tblDiet.SpeciesID From tblDiet Inner Join tblWeight On tblDiet.SpeciesID = tblWeight.SpeciesID '
                         + 'Group By tblDiet.SpeciesID Order By tblDiet.SpeciesID')[0].SpeciesID;
const common = db.query('Select Common From tblSpecies Where SpeciesID = ' + species)[0].Common;

ui.menu('mnuProject').trigger();
ui.window('frmProjectList').toolbar().click(2);
const project = ui.window('frmProject');
project.control('txtProject(0)').setText('Dialog journey');
project.toolbar().click('Save');
ui.window('frmSearch_File').control('txtSelectedFile').setText('journey');
ui.window('frmSearch_File').control('cmdControl(0)').click();
project.control('cmdScenario(3)').click();
const zob = ui.window('frmZOB');
const sid = session.scenario.SID;
const wildlife = () => db.query('Select * From tblWildlife Where ScenarioID = ' + sid)[0];

function chooseSpecies(id) {
    zob.control('cmdSelect(0)').click();
    const w = ui.window('frmSelect_Species');
    w.control('ssGrdMain').selectRow(rowOf(w.control('ssGrdMain'), 'SpeciesID', id));
    w.toolbar().click('Select');
}

test('species from the list: the first save names the file; the page and the row show the species', () => {
    chooseSpecies(species);
    const chooser = ui.window('frmSearch_File');
    expect(chooser).toBeTruthy();
    chooser.control('txtSelectedFile').setText('journey-scenario');
    chooser.control('cmdControl(0)').click();
    expect(zob.control('txtCommonName').text).toBe(common);
    expect(wildlife().SpeciesID).toBe(species);
    expect(session.scenario.Mode).toBe('Edit');
});

test('weight from the list: the mean of the first row, on the page with two decimals', () => {
    zob.control('cmdSelect(2)').click();
    const w = ui.window('frmSelect_Weight');
    w.control('ssGrdWeight').selectRow(0);
    const weightId = Number(w.control('ssGrdWeight').cell(0, 0));
    w.toolbar().click('Select');
    const mean = db.query('Select Mean From tblWeight Where WeightID = ' + weightId)[0].Mean;
    expect(wildlife().WeightID).toBe(weightId);
    expect(wildlife().WtEstimator).toBe(1);
    expect(zob.control('txtWeightWeight').text).toBe(fmt.vbFormat(mean, '#0.00'));
});

test('diet from the read-out: the head on the page, the items in the grid; the wet sums', () => {
    zob.control('cmdSelect(4)').click();
    const w = ui.window('frmSelect_Diet');
    const tl = w.control('txtTL').text;
    const region = w.control('txtRegion(1)').text;
    const sex = w.control('cboCollection(1)').text;
    w.toolbar().click('Select');
    expect(ui.windows()).not.toContain('frmSelect_Diet');
    expect(zob.control('txtDietTL').text).toBe(calc.GetAvgTrophicLevel(sid, 'tblWildlifeDietItems'));
    expect(tl).toBe(calc.GetAvgTrophicLevel(session.scenario.DietID, 'tblDietItem'));
    expect(zob.control('txtDietSex').text).toBe(sex);
    expect(zob.control('txtNotes(9)').text).toBe(region);
    const items = db.query('Select DietItemID From tblWildlifeDietItems Where ScenarioID = ' + sid).length;
    expect(zob.control('ssGrdDietItems').rowCount).toBe(items);

    zob.control('cmdSumProportions').click();
    const basis = ui.window('frmSelect_DryWetWeight');
    expect(basis.caption).toBe('Select Wet/Dry Weight');
    basis.control('optDryWeight(1)').click();
    basis.control('cmdOK(0)').click();
    const sum = db.query('Select Sum(WET_Proportion) As S From tblWildlifeDietItems Where ScenarioID = ' + sid)[0].S;
    expect(sum).toBeCloseTo(1, 3);
});

test('another species answered No: the new species stands beside the old weight and diet', () => {
    const other = db.query('Select SpeciesID From tblSpecies Where SpeciesID <> ' + species + ' Order By SpeciesID')[0].SpeciesID;
    const items = db.query('Select DietItemID From tblWildlifeDietItems Where ScenarioID = ' + sid);
    ui.clearMessages();
    ui.answer('No');
    chooseSpecies(other);
    expect(texts()).toContain('Do you want to overwrite the existing file? ');
    expect(wildlife().SpeciesID).toBe(other);
    expect(db.query('Select DietItemID From tblWildlifeDietItems Where ScenarioID = ' + sid)).toEqual(items);
    expect(wildlife().WeightID).toBeGreaterThan(0);
});
