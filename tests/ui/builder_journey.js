// The central journey through the builder's own commands: a new scenario from the project window, a
// species from the species list (the first save naming the file), a weight from the weight list with
// each statistic, a diet from the diet dialog with its items, the sums on the wet and on the dry basis,
// More Information on the diet, and close and reopen from the project window.

const texts = () => ui.messages().map(m => m.text);
const builder = () => ui.window('frmZOB');
const sid = () => session.scenario.SID;
const wildlife = () => db.query('Select * from tblWildlife where ScenarioID = ' + sid())[0];
const items = () => db.query('Select * from tblWildlifeDietItems where ScenarioID = ' + sid());
const total = column => items().reduce((sum, r) => sum + (r[column] || 0), 0);
const rowOf = (grid, column, value) => grid.rows.findIndex(r => String(r[grid.columns.indexOf(column)]) === String(value));
const robin = db.query("Select SpeciesID From tblSpecies Where Common = 'American robin'")[0].SpeciesID;
db.exec('Insert Into tblWeight (SpeciesID, Mean, Max, Min, VarValue, StatusID, GenderID, ReferenceID, DataSourceID) Values ('
        + robin + ', 84.925, 91, 77.333, 3.5, 2, 5, 1, 4)');
const weightId = db.query('Select Max(WeightID) As M From tblWeight')[0].M;

function sumProportions(option) {
    builder().control('cmdSumProportions').click();
    const basis = ui.window('frmSelect_DryWetWeight');
    expect(basis.caption).toBe('Select Wet/Dry Weight');
    basis.control('optDryWeight(' + option + ')').click();
    basis.control('cmdOK(0)').click();
}

test('a species from the species list names the scenario file at the first save', () => {
    if (ui.window('frmSetup')) ui.window('frmSetup').close();
    ui.menu('mnuProject').trigger();
    ui.window('frmProjectList').toolbar().click(2);
    const p = ui.window('frmProject');
    p.control('txtProject(0)').setText('Robins');
    p.toolbar().click('Save');
    ui.window('frmSearch_File').control('txtSelectedFile').setText('robins');
    ui.window('frmSearch_File').control('cmdControl(0)').click();
    p.control('cmdScenario(3)').click();
    builder().control('cmdSelect(0)').click();
    const list = ui.window('frmSelect_Species');
    list.control('ssGrdMain').selectRow(rowOf(list.control('ssGrdMain'), 'Common', 'American robin'));
    ui.clearMessages();
    list.toolbar().click('Select');
    expect(texts()).toEqual(['Please enter a file name for the scenario file.']);
    ui.window('frmSearch_File').control('txtSelectedFile').setText('robin');
    ui.window('frmSearch_File').control('cmdControl(0)').click();
    expect(ui.windows()).not.toContain('frmSelect_Species');
    expect(builder().control('txtCommonName').text).toBe('American robin');
    expect(builder().control('LblSpeciesInfo(8)').text).toBe('Taxon: Birds');
    expect([wildlife().SpeciesID, wildlife().Latin]).toEqual([robin, 'Turdus migratorius']);
    expect(session.scenario.Mode).toBe('Edit');
    expect(fs.read('tester/Scenario/robin.ZOB')).toContain('Scenario ID: ' + sid() + ', File Name: robin.ZOB, Date Last Modified: ');
});

test('each statistic of the weight record reaches the page with two decimals and its estimator', () => {
    const w = builder();
    w.control('ssTabSB').selectTab(1);
    const estimators = db.query('Select * From tblEstimator Order By EstimatorID').map(r => r.Description);
    for (const i of [1, 2, 3, 4, 5]) {
        w.control('cmdSelect(2)').click();
        const list = ui.window('frmSelect_Weight');
        list.control('ssGrdWeight').selectRow(rowOf(list.control('ssGrdWeight'), 'WeightID', weightId));
        list.control('optMeanMaxMin(' + i + ')').click();
        list.toolbar().click('Select');
        const row = wildlife();
        expect([row.WeightID, row.WtEstimator, row.WtDataSourceID]).toEqual([weightId, i, 4]);
        expect(w.control('txtWeightWeight').text).toBe(fmt.vbFormat(row.Weight, '#0.00'));
        expect(w.control('txtWeightEstimator').text).toBe(estimators[i]);
    }
    expect(w.control('txtWeightWeight').text).toBe('81.43');
    expect(w.control('txtWeightSex').text).toBe('Female');
    // A vetted record is locked and shows its estimator and "More Information...".
    expect(w.control('txtWeightWeight').locked).toBeTruthy();
    expect(w.control('txtWeightEstimator').visible).toBeTruthy();
    expect(w.control('cmdMoreInfo(1)').visible).toBeTruthy();
});

test('a diet from the diet dialog fills the head and the item grid', () => {
    const w = builder();
    w.control('ssTabSB').selectTab(2);
    w.control('cmdSelect(4)').click();
    const dialog = ui.window('frmSelect_Diet');
    expect(dialog).not.toBeNull();
    dialog.toolbar().click('Select');
    expect(ui.windows()).not.toContain('frmSelect_Diet');
    const n = items().length;
    expect(n).toBeGreaterThan(0);
    expect(w.control('ssGrdDietItems').rowCount).toBe(n);
    expect(w.control('txtDietTL').text).toBe(calc.GetAvgTrophicLevel(sid(), 'tblWildlifeDietItems'));
    expect(w.control('txtNotes(9)').visible).toBeTruthy();
    const diet = db.query('Select * From tblDiet Where DietID = ' + session.scenario.DietID)[0];
    expect(w.control('LbLDataSource(2)').text).toBe('Data Source: ' + fmt.Lookup('tblDataSource', 'Description', 'DataSourceID = ' + diet.DataSourceID) + '  ');
    const season = w.control('txtDietSeason').text;
    w.control('ssTabSB').selectTab(3);
    expect(wildlife().DietSeason).toBe(season);
    expect(wildlife().DietID).toBe(diet.DietID);
});

test('Sum Proportions to 1.0 on the wet basis and on the dry basis; a column of zeros is refused', () => {
    const w = builder();
    w.control('ssTabSB').selectTab(2);
    w.control('SSTab1').selectTab(1);
    db.exec('Update tblWildlifeDietItems Set Wet_Proportion = 0.3, Dry_Proportion = 0.7 Where ScenarioID = ' + sid());
    sumProportions(1);
    expect(total('Wet_Proportion')).toBeCloseTo(1, 2);
    expect(w.control('chkIsWet').value).toBe(0);
    db.exec('Update tblWildlifeDietItems Set Dry_Proportion = 0.7 Where ScenarioID = ' + sid());
    sumProportions(0);
    expect(total('Dry_Proportion')).toBeCloseTo(1, 2);
    expect(w.control('ssGrdDietItems').rowCount).toBe(items().length);
    db.exec('Update tblWildlifeDietItems Set Wet_Proportion = 0 Where ScenarioID = ' + sid());
    ui.clearMessages();
    sumProportions(1);
    expect(ui.messages().length).toBeGreaterThan(0);
    expect(total('Wet_Proportion')).toBe(0);
    expect(ui.windows()).toContain('frmZOB');
});

test('More Information on the diet shows the diet alone, read-only', () => {
    const w = builder();
    w.control('SSTab1').selectTab(0);
    expect(w.control('cmdMoreInfo(2)').visible).toBeTruthy();
    w.control('cmdMoreInfo(2)').click();
    const dialog = ui.window('frmSelect_Diet');
    expect(dialog.toolbar().visible('Select')).toBeFalsy();
    dialog.close();
});

test('Print opens the catalogue of the scenario\'s reports over the builder', () => {
    builder().toolbar().click('Print');
    const reports = ui.window('frmReports');
    expect(reports.caption).toBe('Print');
    expect(reports.control('lstReports').items).toContain('Wildlife Diet');
    reports.close();
    expect(ui.windows()).toContain('frmZOB');
});

test('closing saves and the scenario reopens from the project window as it was left', () => {
    const id = sid();
    const weight = wildlife().Weight;
    builder().toolbar().click('Close');
    expect(ui.windows()).not.toContain('frmZOB');
    const p = ui.window('frmProject');
    p.control('ssGrdProjectScenarios').selectRow(0);
    p.control('cmdScenario(6)').click();
    const w = builder();
    expect(sid()).toBe(id);
    expect(w.control('txtCommonName').text).toBe('American robin');
    expect(w.control('txtWeightWeight').text).toBe(fmt.vbFormat(weight, '#0.00'));
    expect(w.control('ssGrdDietItems').rowCount).toBe(items().length);
    expect(session.scenario.WeightID).toBe(weightId);
});
