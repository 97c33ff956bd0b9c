// The calculation review of a scenario, opened from the project window: the figures and both grids on
// the wet and on the dry basis for a diet whose items all carry energy values, a diet with an item that
// lacks one, a diet with none (the repeated warning, no window), the column explanations, and that the
// review writes no table.

const texts = () => ui.messages().map(m => m.text);
const noItems = 'No Diet Items exist in this scenario. Dietary calculations will not be done.';
const basisDialog = 'frmSelect_DryWetWeight';
let nextId = 990000;

// Reference energy rows for the test diets: assimilation efficiency and gross energy (wet, dry).
function energy(ae, geWet, geDry) {
    const id = ++nextId;
    db.exec('Insert Into tblAE (AEID, ConsumerName, Mean) Values (' + id + ", 'Probe', " + ae + ')');
    db.exec('Insert Into tblGrossEnergy (GrossEnergyID, Item, WET_WT_KCALG, DRY_WT_KCALG) Values (' + id + ", 'Probe', "
            + geWet + ', ' + geDry + ')');
    return id;
}

// A scenario with its wildlife row, five intake rows (FMR in the food row) and the given diet items
// [name, wet, dry, energy id (0: none)], linked to the project.
function scenario(pid, file, items) {
    db.exec("Insert Into tblScenario (Scenario_Type, Scenario_FileName) Values ('Wildlife', '" + file + "')");
    const sid = db.query('Select Max(ScenarioID) As M From tblScenario')[0].M;
    db.exec('Insert Into jtblProjectScenario (ProjectID, ScenarioID) Values (' + pid + ', ' + sid + ')');
    db.exec('Insert Into tblWildlife (ScenarioID, SpeciesID, Common, Weight, WtSex, DietType) Values (' + sid
            + ", 1, 'Meadow Vole', 1234.5, 'Female', 1)");
    const rates = [[1, 0.123456, 'm3/day', 'Model', 2, 0.246912], [2, 0.5, 'L/day', 'Measured', 1, 0.5],
                   [3, 126, 'kcal/day', 'Model', 1, 126], [4, 9.4, '% dry wt', 'Measured', 1, 9.4],
                   [5, 0, 'g/day', 'Estimated', 1, 0]];
    for (const r of rates)
        db.exec('Insert Into tblIntakeZOB (ScenarioID, IntakeTypeID, BaseRate, Units, Derivation, Measured_CF, AdjustedRate) Values ('
                + sid + ', ' + r[0] + ', ' + r[1] + ", '" + r[2] + "', '" + r[3] + "', " + r[4] + ', ' + r[5] + ')');
    items.forEach((it, i) => db.exec('Insert Into tblWildlifeDietItems (ScenarioID, DietID, DietItemID, Name, Wet_Proportion, '
            + 'Dry_Proportion, AEID, GrossEnergyID) Values (' + sid + ', 0, ' + (++nextId) + ", '" + it[0] + "', " + it[1]
            + ', ' + it[2] + ', ' + it[3] + ', ' + it[3] + ')'));
    return sid;
}

// Everything the review could write, as text.
function scenarioRows(sid) {
    return JSON.stringify(['tblIntakeZOB', 'tblWildlifeDietItems', 'tblWildlife', 'tblScenario'].map(
        t => db.query('Select * From ' + t + ' Where ScenarioID = ' + sid)));
}

// Opens the review for the scenario file from the project window; the basis dialog answers wet, dry
// or (null) Cancel, over a scenario object whose basis was the other one (wet for Cancel).
function review(file, wet) {
    const p = ui.window('frmProject');
    const grid = p.control('ssGrdProjectScenarios');
    const row = grid.rows.findIndex(r => r.indexOf(file) >= 0);
    expect(row >= 0).toBeTruthy();
    grid.selectRow(row);
    session.scenario.DietType = wet ? 0 : 1;
    ui.clearMessages();
    p.toolbar().click('Calculations');
    const dialog = ui.window(basisDialog);
    expect(dialog.caption).toBe('Perform calculations');
    expect(dialog.control('fraDietType').caption).toBe('Select Wet/Dry Weight');
    if (wet === null) {
        dialog.control('cmdOK(1)').click();
    } else {
        expect(dialog.control('optDryWeight(' + (wet ? 1 : 0) + ')').caption).toBe(wet ? 'Wet weight' : 'Dry weight');
        dialog.control('optDryWeight(' + (wet ? 1 : 0) + ')').click();
        dialog.control('cmdOK(0)').click();
    }
    return ui.window('frmZOBCalculations');
}

ui.window('frmSetup').close();
db.exec("Insert Into tblProject (Name, Path, FileName) Values ('Vole review', '" + session.home + "', 'vole.NAV')");
const pid = db.query("Select ProjectID From tblProject Where Name = 'Vole review'")[0].ProjectID;
const beetles = energy(80, 2.0, 5.0), berries = energy(50, 1.5, 4.0);
const full = scenario(pid, 'full.ZOB', [['Berries', 0.4, 0.7, berries], ['Beetles', 0.6, 0.3, beetles]]);
const partial = scenario(pid, 'partial.ZOB', [['Beetles', 0.5, 0.5, beetles], ['Seeds', 0.5, 0.5, 0]]);
const none = scenario(pid, 'none.ZOB', [['Seeds', 1, 1, 0]]);
db.exec('Update tblWildlife Set Common = Null, WtSex = Null Where ScenarioID = ' + partial);
ui.menu('mnuProject').trigger();
const list = ui.window('frmProjectList');
list.control('ssGrdMain').selectRow(list.control('ssGrdMain').rows.findIndex(r => r[0] === 'Vole review'));
list.toolbar().click('Open');

test('wet basis: the heads, FMR, MEavg, TDI and one row per item, each through its pattern', () => {
    const before = scenarioRows(full);
    const w = review('full.ZOB', true);
    expect(w.visible).toBeTruthy();
    expect(w.caption).toBe('Wildlife Scenario - Calculations');
    const box = i => w.control('txtWildLifeScenario(' + i + ')').text;
    expect([0, 1, 2, 3, 4, 5, 6].map(box)).toEqual(['full.ZOB', 'Meadow Vole', '1,234.5', 'Female', '100', '1.26', '126']);
    expect(w.control('LblDryWet').caption).toBe('WEIGHT:  Wet');
    expect(w.control('ssTabCalc').currentTab).toBe(0);
    const g = w.control('ssGrdDietItems');
    expect(g.columns).toEqual(['Diet Item', 'Gross Energy    (Kcal/g wet wt)', ' Assimilation Efficiency  (1-100)',
                               'Metabolizable Energy (kcal/g)', 'Prop of Diet (0-1)', 'Itemized Daily Intake (g/d)']);
    // MEavg = .8 * 2 * .6 + .5 * 1.5 * .4 = 1.26; TDI = 126 / 1.26 = 100; 100 * .6 and 100 * .4.
    expect(g.rows).toEqual([['Beetles', '2.', '80.0', '1.6', '0.6', '60.0'], ['Berries', '1.5', '50.0', '0.75', '0.4', '40.0']]);
    const r = w.control('ssGrdIntake');
    expect(r.columns).toEqual(['Type of Intake', 'Base Intake Rate', 'Units', 'Basis', 'Correction Factor (1-10)',
                               'Adjusted Intake Rate']);
    expect(r.rows.map(x => x.slice(1))).toEqual([['0.12346', 'm3/day', 'Model', '2', '0.24691'], ['0.5', 'L/day', 'Measured', '1', '0.5'],
                                                 ['126.0', 'kcal/day', 'Model', '1', '126.0'], ['9.4', '% dry wt', 'Measured', '1', '9.4'],
                                                 ['0.0', 'g/day', 'Estimated', '1', '0.0']]);
    w.toolbar().click('Close');
    expect(ui.windows()).not.toContain('frmZOBCalculations');
    expect(scenarioRows(full)).toBe(before);
    expect(session.scenario.DietType).toBe(1);
});

test('dry basis: the caption of gross energy, ME and the itemized intake follow; the basis stays', () => {
    const before = scenarioRows(full);
    const w = review('full.ZOB', false);
    expect(w.control('LblDryWet').caption).toBe('WEIGHT:  Dry');
    // MEavg = .8 * 5 * .3 + .5 * 4 * .7 = 2.6; TDI = 126 / 2.6 = 48.46, then 48.46 * .3 and 48.46 * .7.
    expect(['4', '5', '6'].map(i => w.control('txtWildLifeScenario(' + i + ')').text)).toEqual(['48.46', '2.6', '126']);
    const g = w.control('ssGrdDietItems');
    expect(g.columns[1]).toBe('Gross Energy    (Kcal/g dry wt)');
    expect(g.rows).toEqual([['Beetles', '5.', '80.0', '4.0', '0.3', '14.54'], ['Berries', '4.', '50.0', '2.0', '0.7', '33.92']]);
    w.toolbar().click('Close');
    expect(session.scenario.DietType).toBe(0);
    expect(fmt.vbFormat(calc.GetMEAvg(), '0.00')).toBe('2.60');
    expect(scenarioRows(full)).toBe(before);
});

test('an item without energy values drops out of the grid and of MEavg; Cancel keeps the basis', () => {
    const w = review('partial.ZOB', null);  // Cancel over a scenario object on the wet basis
    expect(w.control('LblDryWet').caption).toBe('WEIGHT:  Wet');
    // A species name and a gender not chosen yet are empty boxes.
    expect(['1', '3'].map(i => w.control('txtWildLifeScenario(' + i + ')').text)).toEqual(['', '']);
    // Only the beetles count: MEavg = .8 * 2 * .5 = .8; TDI = 126 / .8 = 157.5.
    expect(['4', '5', '6'].map(i => w.control('txtWildLifeScenario(' + i + ')').text)).toEqual(['157.5', '0.8', '126']);
    expect(w.control('ssGrdDietItems').rows).toEqual([['Beetles', '2.', '80.0', '1.6', '0.5', '78.75']]);
    expect(texts()).toEqual([]);
    w.toolbar().click('Close');
});

test('the column heads explain the calculation in the zoom window', () => {
    const w = review('full.ZOB', true);
    const g = w.control('ssGrdDietItems');
    g.headClick(g.columns.indexOf('Itemized Daily Intake (g/d)'));
    const zoom = ui.window('frmZoom');
    expect(zoom.caption).toBe('Itemized Daily Intake');
    const lines = zoom.control('txtZoom').text.split(/\r?\n/);
    expect(lines[6]).toBe('= 1.26 kcal / g');
    expect(lines[13]).toBe('= 126.0 kcal / d ');
    expect(lines[19]).toBe('= 100.0 (g / d)');
    expect(lines[23]).toBe('= pk * TDI (g/d) ');
    zoom.close();
    const r = w.control('ssGrdIntake');
    r.headClick(r.columns.indexOf('Correction Factor (1-10)'));
    expect(ui.window('frmZoom').control('txtZoom').text)
        .toBe('Correction Factor: This is used to convert the Base Intake Rate to a Free Living Intake Rate');
    ui.window('frmZoom').close();
    g.headClick(g.columns.indexOf('Prop of Diet (0-1)'));
    expect(ui.helpTopic()).toBe(1035);
    r.headClick(r.columns.indexOf('Units'));
    expect(ui.window('frmZoom')).toBeNull();
    w.toolbar().click('Help');
    expect(ui.helpTopic()).toBe(1073);
    w.toolbar().click('Close');
});

test('a diet without energy values: the warning comes again and again, and the window does not open', () => {
    const before = scenarioRows(none);
    const w = review('none.ZOB', true);
    expect(texts().filter(t => t === noItems).length >= 3).toBeTruthy();
    expect(ui.windows()).not.toContain('frmZOBCalculations');
    expect(w === null || !w.visible).toBeTruthy();
    expect(scenarioRows(none)).toBe(before);
});

test('a new gross energy chosen for a scenario item in its picker shows in MEavg, TDI and the item row', () => {
    const richer = energy(80, 3.0, 6.0);
    const beetles = db.query("Select DietItemID From tblWildlifeDietItems Where Name = 'Beetles' And ScenarioID = " + full)[0].DietItemID;
    session.scenario.SID = full;
    pickers.open('frmSelect_GE', { recordId: beetles, table: 'tblWildlifeDietItems', keyField: 'DietItemID', selectedId: 0 });
    const grid = ui.window('frmSelect_GE').control('ssCmbSearch');
    const key = grid.columns.indexOf('GrossEnergyID');
    grid.selectRow(grid.rows.findIndex(r => Number(r[key]) === richer));
    ui.window('frmSelect_GE').toolbar().click('Select');
    expect(ui.windows()).not.toContain('frmSelect_GE');
    // MEavg = .8 * 3 * .6 + .5 * 1.5 * .4 = 1.74; TDI = 126 / 1.74 = 72.41; beetles' ME .8 * 3 = 2.4.
    const w = review('full.ZOB', true);
    expect(['4', '5'].map(i => w.control('txtWildLifeScenario(' + i + ')').text)).toEqual(['72.41', '1.74']);
    expect(w.control('ssGrdDietItems').rows[0].slice(0, 4)).toEqual(['Beetles', '3.', '80.0', '2.4']);
    w.toolbar().click('Close');
});

test('a value picked for a scenario\'s copied item is written to that scenario\'s copy only', () => {
    // Copies of one reference item share its id; the first row with that id belongs to the other scenario.
    const beetles = db.query("Select DietItemID From tblWildlifeDietItems Where Name = 'Beetles' And ScenarioID = " + full)[0].DietItemID;
    const other = full + 500;
    db.exec('Insert Into tblWildlifeDietItems (ScenarioID, DietID, DietItemID, Name) Values (' + other + ', 0, ' + beetles + ", 'Beetles')");
    const geOf = sid => db.query('Select GrossEnergyID From tblWildlifeDietItems Where DietItemID = ' + beetles + ' And ScenarioID = ' + sid)[0].GrossEnergyID;
    const before = geOf(full);
    const leaner = energy(60, 1.0, 2.0);
    session.scenario.SID = other;
    pickers.open('frmSelect_GE', { recordId: beetles, table: 'tblWildlifeDietItems', keyField: 'DietItemID', selectedId: 0 });
    const grid = ui.window('frmSelect_GE').control('ssCmbSearch');
    grid.selectRow(grid.rows.findIndex(r => Number(r[grid.columns.indexOf('GrossEnergyID')]) === leaner));
    ui.window('frmSelect_GE').toolbar().click('Select');
    expect([geOf(other), geOf(full)]).toEqual([leaner, before]);
});

