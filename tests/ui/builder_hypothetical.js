// A hypothetical scenario from the project window: a typed species (with an apostrophe), the first
// save naming the scenario's file and writing its marker line, a typed weight with bad input refused,
// a hypothetical diet, the refusals that a hypothetical species meets, and close and reopen from the
// project window with everything as it was saved.

const texts = () => ui.messages().map(m => m.text);
const builder = () => ui.window('frmZOB');
const wildlife = () => db.query('Select * from tblWildlife where ScenarioID = ' + session.scenario.SID)[0];
const leaveTo = page => builder().control('ssTabSB').selectTab(page);

test('a new scenario from the project window opens the builder on its comment block', () => {
    if (ui.window('frmSetup')) ui.window('frmSetup').close();
    ui.menu('mnuProject').trigger();
    ui.window('frmProjectList').toolbar().click(2);
    const p = ui.window('frmProject');
    p.control('txtProject(0)').setText('Marsh study');
    p.toolbar().click('Save');
    ui.window('frmSearch_File').control('txtSelectedFile').setText('marsh');
    ui.window('frmSearch_File').control('cmdControl(0)').click();
    p.control('cmdScenario(3)').click();
    const w = builder();
    expect(w).not.toBeNull();
    expect(w.caption).toBe('Zobrel - Documentation');
    expect(session.scenario.Mode).toBe('Add');
    expect(session.scenario.ScenarioType).toBe('Wildlife');
    expect(w.control('ssTabSB').items).toEqual(['Species', 'Weight', 'Diet', 'Intake']);
    expect(w.control('ssTabIntake').items).toEqual(['Air', 'Drinking Water', 'Assimilated Food Requirement', 'Soil', 'Sediment']);
    expect([0, 1, 2, 3, 4].map(i => w.control('txtIntakeUnits(' + i + ')').text)).toEqual(['m3/day', 'L/day', 'kcal/day', '% dry wt', 'g/day']);
    expect(w.control('txtNotes(0)').text).toBe('Rationale: \n\nQuality: \n\nAssumptions: \n\nUncertainty: \n\n');
    expect(w.control('txtNotes(0)').foreColor).toBe(16711680);
    expect(db.query('Select * from jtblProjectScenario where ScenarioID = ' + session.scenario.SID).length).toBe(1);
});

test('a typed species is saved on leaving its page, after the file is named; the marker file has its line', () => {
    const w = builder();
    w.control('cmdSelect(1)').click();
    expect(w.control('cmdMoreInfo(0)').visible).toBeFalsy();
    expect(session.scenario.Species_DataSource).toBe(2);
    expect(w.control('txtCommonName').locked).toBeFalsy();
    w.control('txtCommonName').setText("Marsh o'rat");
    w.control('txtLatinName').setText('Rattus paludis');
    w.control('cboTaxon').setText('Mammals');
    expect(w.control('LblSpeciesInfo(6)').text).toBe('Scientific Name: Rattus paludis');
    expect(w.control('LblSpeciesInfo(7)').text).toBe("Common Name: Marsh o'rat");
    expect(w.control('LblSpeciesInfo(8)').text).toBe('Taxon: Mammals');
    w.control('txtNotes(8)').setText("Rats of the lower marsh, o'er the dike");
    ui.clearMessages();
    leaveTo(1);
    expect(texts()).toEqual(['Please enter a file name for the scenario file.']);
    const chooser = ui.window('frmSearch_File');
    chooser.control('txtSelectedFile').setText('rat');
    chooser.control('cmdControl(0)').click();
    expect(session.scenario.Mode).toBe('Edit');
    expect(session.scenario.FileName).toBe('rat.ZOB');
    const row = wildlife();
    expect([row.Common, row.Latin, row.Taxon, row.SpeciesID, row.SpeciesDataSourceID]).toEqual(["Marsh o'rat", 'Rattus paludis', 'Mammals', 0, 2]);
    const head = db.query('Select * from tblScenario where ScenarioID = ' + session.scenario.SID)[0];
    expect(head.Scenario_FileName).toBe('rat.ZOB');
    expect(head.Comments).toBe("Rats of the lower marsh, o'er the dike");
    const lines = fs.read('tester/Scenario/rat.ZOB').split(/\r?\n/).filter(l => l.length);
    expect(lines.length).toBe(1);
    expect(new RegExp('^Scenario ID: ' + session.scenario.SID + ', File Name: rat\\.ZOB, Date Last Modified: .+,$').test(lines[0])).toBeTruthy();
    // The notes keep the line ends they were stored with.
    expect(row.WtComments).toBe('Rationale: \r\n\r\nQuality: \r\n\r\nAssumptions: \r\n\r\nUncertainty: \r\n\r\n');
});

test('a typed weight: letters, 0 and a negative number are refused and nothing is stored; a number is', () => {
    const w = builder();
    ui.clearMessages();
    w.control('cmdSelect(2)').click();
    expect(texts()).toEqual(['Weight is not available for Hypothetical Species...!!!']);
    expect(ui.messages()[0].icon).toBe('warning');
    w.control('cmdSelect(3)').click();
    expect(session.scenario.Wt_DataSource).toBe(2);
    expect(w.control('cmdMoreInfo(1)').visible).toBeFalsy();
    expect(w.control('txtWeightEstimator').visible).toBeFalsy();
    for (const bad of ['heavy', '0', '-5']) {
        ui.clearMessages();
        w.control('txtWeightWeight').setText(bad);
        leaveTo(2);
        expect(texts()).toEqual(['Invalid weight. Please enter it again...']);
        expect(wildlife().Weight).toBeNull();
        leaveTo(1);
    }
    ui.clearMessages();
    w.control('txtWeightWeight').setText('250.5');
    w.control('txtWeightSex').setText('Both');
    leaveTo(2);
    expect(texts()).toEqual([]);
    const row = wildlife();
    expect([row.Weight, row.WeightID, row.WtDataSourceID, row.WtSex]).toEqual([250.5, 0, 2, 'Both']);
    expect(session.scenario.Weight).toBe(250.5);
});

test('diet and intake refuse database data for a hypothetical species; a hypothetical diet is typed', () => {
    const w = builder();
    ui.clearMessages();
    w.control('cmdSelect(4)').click();
    expect(texts()).toEqual(['Diet is not available for Hypothetical Species...!!!']);
    ui.clearMessages();
    ui.answer('Yes');
    w.control('cmdSelect(5)').click();
    expect(texts()).toEqual(['Is this diet wet weight basis?  ']);
    expect(session.scenario.DietType).toBe(1);
    expect(session.scenario.Diet_DataSource).toBe(2);
    expect(w.control('txtNotes(9)').visible).toBeFalsy();
    expect(w.control('txtDietSeason').locked).toBeFalsy();
    w.control('txtDietSeason').setText('Summer');
    w.control('txtDietHabitat').setText("Farmer's marsh");
    leaveTo(3);
    const row = wildlife();
    expect([row.DietSeason, row.DietHabitat, row.DietType, row.DietDataSourceID, row.DietID]).toEqual(['Summer', "Farmer's marsh", 1, 2, 0]);
    // The weight typed on its page is taken for the intake models when the intake page is left.
    w.control('ssTabIntake').selectTab(0);
    ui.clearMessages();
    w.toolbar().click('Calculations');
    expect(texts()).toEqual(['No Diet Items exist in this scenario. Dietary calculations will not be done.']);
});

test('a typed air rate is stored as base and adjusted rate; a 0 typed over it is not stored', () => {
    const w = builder();
    const air = () => db.query('Select * from tblIntakeZOB where IntakeTypeID = 1 And ScenarioID = ' + session.scenario.SID)[0];
    w.control('ssTabSB').selectTab(3);
    w.control('ssTabIntake').selectTab(0);
    w.control('cmdSelect(7)').click();
    expect(session.scenario.Air_DataSource).toBe(2);
    expect(w.control('LblEstimator(0)').text).toBe('Estimated');
    expect(w.control('txtUCF(0)').visible).toBeFalsy();
    const rate = w.control('txtIntakeRate(0)');
    rate.focus();
    rate.setText('0.25');
    rate.blur();
    // The row counts as typed from the save after the one that marked it so.
    expect([air().AdjustedRate, air().DataSourceID]).toEqual([0.25, 2]);
    w.control('ssTabIntake').selectTab(1);
    w.control('ssTabIntake').selectTab(0);
    expect([air().AdjustedRate, air().BaseRate, air().DataSourceID, air().IntakeEquation, air().Units_CF]).toEqual([0.25, 0.25, 2, '', 1]);
    ui.clearMessages();
    w.control('cmdMoreInfo(3)').click();
    expect(texts()).toEqual(['More Information not available for user entered data.']);
    rate.focus();
    rate.setText('0');
    w.control('ssTabIntake').selectTab(4);
    expect(air().AdjustedRate).toBe(0.25);
    expect(w.control('cmdSelect(7)').visible).toBeFalsy();
});

test('the File menu by index; Save saves, Save As and Print do nothing; Help follows the page left', () => {
    const w = builder();
    expect([0, 1, 2, 4, 5, 7, 9].map(i => ui.menu('mnuFileOptions(' + i + ')').caption))
        .toEqual(['&New', '&Open...', 'Close', '&Save...', 'Save &As...', '&Print', 'E&xit']);
    w.control('txtNotes(2)').setText('Diet typed by hand');
    ui.menu('mnuFileOptions(4)').trigger();
    expect(wildlife().DietComments).toBe('Diet typed by hand');
    ui.clearMessages();
    ui.menu('mnuFileOptions(5)').trigger();
    ui.menu('mnuFileOptions(7)').trigger();
    expect(ui.messages().length).toBe(0);
    expect(ui.windows()).not.toContain('frmReports');
    // The help topic is the one of the page that was left last, not of the page shown.
    w.control('ssTabSB').selectTab(2);
    w.control('ssTabSB').selectTab(0);
    w.toolbar().click('Help');
    expect(ui.helpTopic()).toBe(1006);
});

test('closing saves, returns to the project, and the scenario reopens from it as it was', () => {
    const sid = session.scenario.SID;
    builder().control('txtNotes(0)').setText('Marsh rats are a guess');
    builder().toolbar().click('Close');
    expect(ui.windows()).not.toContain('frmZOB');
    expect(db.query('Select SpeciesComments from tblWildlife where ScenarioID = ' + sid)[0].SpeciesComments).toBe('Marsh rats are a guess');
    const p = ui.window('frmProject');
    const grid = p.control('ssGrdProjectScenarios');
    grid.selectRow(0);
    p.control('cmdScenario(6)').click();
    const w = builder();
    expect(session.scenario.SID).toBe(sid);
    expect(session.scenario.Mode).toBe('Edit');
    expect(w.control('txtCommonName').text).toBe("Marsh o'rat");
    expect(w.control('txtWeightWeight').text).toBe('250.50');
    expect(w.control('txtDietHabitat').text).toBe("Farmer's marsh");
    expect(w.control('txtNotes(0)').text).toBe('Marsh rats are a guess');
    expect(w.control('txtNotes(8)').text).toBe("Rats of the lower marsh, o'er the dike");
    expect(w.control('LbLDataSource(0)').text).toBe('Data Source: User entered  ');
    expect(session.scenario.Species_DataSource).toBe(2);
    expect(ui.cursor()).toBe('default');
});
