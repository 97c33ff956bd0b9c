// Species from the reference data (taken from the life-history search, which hands its species to the
// builder): the first choice names the file and clears nothing; a change of species after a weight and
// a diet asks "Do you want to overwrite the existing file? " — No keeps everything but the species,
// Yes resets the diet, the intake rows and the file. Then the refusals of the diet and intake pages,
// the diet grid's Delete key, and More Information where the record's window is not there yet.

const texts = () => ui.messages().map(m => m.text);
const builder = () => ui.window('frmZOB');
const sid = () => session.scenario.SID;
const wildlife = () => db.query('Select * from tblWildlife where ScenarioID = ' + sid())[0];
const items = () => db.query('Select * from tblWildlifeDietItems where ScenarioID = ' + sid());
const intake = () => db.query('Select * from tblIntakeZOB where ScenarioID = ' + sid() + ' Order By IntakeTypeID');

function chooseSpecies(common) {
    ui.menu('mnuLifeStage').trigger();
    const search = ui.window('frmSearch_LifeHistory');
    search.toolbar().click(2);
    search.control('txtSearch(0)').setText(common);
    search.toolbar().click(4);
    search.toolbar().click('Select');
}

function nameFile(name) {
    const chooser = ui.window('frmSearch_File');
    expect(chooser).not.toBeNull();
    chooser.control('txtSelectedFile').setText(name);
    chooser.control('cmdControl(0)').click();
}

test('the first species of a new scenario asks for the file name and clears nothing', () => {
    if (ui.window('frmSetup')) ui.window('frmSetup').close();
    ui.menu('mnuProject').trigger();
    ui.window('frmProjectList').toolbar().click(2);
    const p = ui.window('frmProject');
    p.control('txtProject(0)').setText('Backyard birds');
    p.toolbar().click('Save');
    nameFile('birds');
    p.control('cmdScenario(3)').click();
    ui.clearMessages();
    chooseSpecies('American robin');
    expect(texts()).toEqual(['Please enter a file name for the scenario file.']);
    nameFile('robin');
    const w = builder();
    expect([w.control('txtCommonName').text, w.control('txtLatinName').text, w.control('cboTaxon').text])
        .toEqual(['American robin', 'Turdus migratorius', 'Birds']);
    expect(w.control('LbLDataSource(0)').text).toBe('Data Source: Provisional  ');
    expect(session.scenario.Mode).toBe('Edit');
    expect(session.scenario.Identifier1).toBe('American robin');
    const row = wildlife();
    expect([row.SpeciesID, row.SpeciesDataSourceID, row.Common]).toEqual([1, 5, 'American robin']);
    expect(fs.list('tester/Scenario')).toEqual(['robin.ZOB']);
});

test('a change of species answered No keeps the weight, diet, intake and file beside the new species', () => {
    const w = builder();
    w.control('ssTabSB').selectTab(1);
    w.control('cmdSelect(3)').click();
    w.control('txtWeightWeight').setText('77');
    w.control('ssTabSB').selectTab(2);
    diet.AddWildlifeDiet(1);
    diet.AddWildlifeDietItems(1);
    db.exec('Update tblIntakeZOB Set AdjustedRate = 2.5, DataSourceID = 4 Where IntakeTypeID = 1 And ScenarioID = ' + sid());
    const itemCount = items().length;
    expect(itemCount).toBeGreaterThan(0);
    ui.clearMessages();
    ui.answer('No');
    chooseSpecies('Tree swallow');
    expect(texts()).toEqual(['Do you want to overwrite the existing file? ']);
    expect(ui.messages()[0].buttons).toEqual(['Yes', 'No']);
    expect(w.control('txtCommonName').text).toBe('Tree swallow');
    const row = wildlife();
    expect([row.SpeciesID, row.Common, row.Weight]).toEqual([2, 'Tree swallow', 77]);
    expect(items().length).toBe(itemCount);
    expect(intake()[0].AdjustedRate).toBe(2.5);
    expect(session.scenario.FileName).toBe('robin.ZOB');
    expect(fs.exists('tester/Scenario/robin.ZOB')).toBeTruthy();
    expect(session.scenario.SpeciesHasChanged).toBe(false);
});

test('a change of species answered Yes resets diet items, intake rows and the file, and names a new one', () => {
    const w = builder();
    ui.clearMessages();
    ui.answer('Yes');
    chooseSpecies('Mallard');
    expect(texts()).toEqual(['Do you want to overwrite the existing file? ', 'Please enter a file name for the scenario file.']);
    nameFile('mallard');
    expect(items().length).toBe(0);
    for (const r of intake())
        expect([r.AdjustedRate, r.Units, r.DataSourceID, r.Derivation, r.CategoryID]).toEqual([0, 'm3/day', 6, 'Estimated', 0]);
    expect(fs.exists('tester/Scenario/robin.ZOB')).toBeFalsy();
    expect(fs.exists('tester/Scenario/mallard.ZOB')).toBeTruthy();
    expect(session.scenario.FileName).toBe('mallard.ZOB');
    expect([session.scenario.WeightID, session.scenario.Weight, session.scenario.WtSex, session.scenario.Wt_DataSource, session.scenario.Diet_DataSource])
        .toEqual([0, 0, 'unknown', 6, 6]);
    expect(w.control('txtWeightWeight').text).toBe('');
    expect(w.control('txtNotes(1)').text).toBe('');
    expect(wildlife().Common).toBe('Mallard');
});

test('the diet and intake pages refuse in their own words', () => {
    const w = builder();
    w.control('ssTabSB').selectTab(3);
    ui.clearMessages();
    w.control('cmdSelect(6)').click();
    expect(texts()).toEqual(['Weight not selected. Please select weight and then continue.']);
    // Equations are looked for by the taxon on the species page: none for amphibians' air, and an
    // empty taxon is reported as the failure it is, with the program going on.
    w.control('cboTaxon').setText('Amphibians');
    ui.clearMessages();
    w.control('cmdSelect(6)').click();
    expect(texts()).toEqual(['No data available']);
    expect(ui.messages()[0].icon).toBe('information');
    w.control('cboTaxon').setText('');
    ui.clearMessages();
    w.control('cmdSelect(6)').click();
    expect(texts().length).toBe(1);
    expect(texts()[0].indexOf('Error in routine cmdSelect_Click')).toBe(0);
    w.control('cboTaxon').setText('Birds');
    w.control('ssTabIntake').selectTab(3);
    ui.clearMessages();
    w.control('cmdMoreInfo(3)').click();
    expect(texts()).toEqual(['More Information not available. Please select a record from the database. ']);
    w.control('ssTabIntake').selectTab(4);
    expect(w.control('cmdSelect(6)').visible).toBeFalsy();
    expect(w.control('cmdMoreInfo(3)').visible).toBeFalsy();
    expect(w.control('txtIntakeRate(4)').foreColor).toBe(16711680);
    // A species given by no record: diets cannot be chosen.
    session.scenario.SpeciesID = 0;
    ui.clearMessages();
    w.control('cmdSelect(4)').click();
    expect(texts()).toEqual(['Species not selected/saved. Cannot Proceed...!!!']);
    session.scenario.SpeciesID = 3;
    ui.clearMessages();
    w.control('ssTabSB').selectTab(1);
    w.control('txtCommonName').setText('  ');
    w.control('ssTabSB').selectTab(2);
    expect(texts()).toEqual(['Species Common and Scientific Name cannot be blank! Cannot save ...']);
    expect(w.control('ssTabSB').currentTab).toBe(0);
    w.control('txtCommonName').setText('Mallard');
});

test('Delete in the diet grid asks with No as default; Yes deletes the row', () => {
    const w = builder();
    diet.AddWildlifeDiet(3);
    diet.AddWildlifeDietItems(3);
    w.toolbar().click('Close');
    ui.window('frmProject').control('cmdScenario(6)').click();
    const grid = builder().control('ssGrdDietItems');
    const before = items().length;
    expect(grid.rowCount).toBe(before);
    expect(grid.columns.slice(0, 3)).toEqual(['Diet Item', 'Prop of Diet  (0-1) wet', 'Gross Energy (Kcal / g wet wt)']);
    grid.selectRow(0);
    ui.clearMessages();
    grid.keyDown(46);
    expect(texts()).toEqual(['Are you sure you want to delete this record ?']);
    expect(ui.messages()[0].defaultButton).toBe(2);
    expect(items().length).toBe(before);
    ui.answer('Yes');
    grid.keyDown(46);
    expect(items().length).toBe(before - 1);
    expect(grid.rowCount).toBe(before - 1);
    // The diet item window is part of the program: adding an item is offered.
    expect(builder().control('cmdEdit(0)').enabled).toBeTruthy();
    expect(builder().control('cmdEdit(0)').caption).toBe('&Add Diet Item');
});
