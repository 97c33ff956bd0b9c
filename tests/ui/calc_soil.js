// Soil ingestion studies: the list from the menu without the Select command, sorted by a head, New
// waiting for the entry window, and the refusal when there is no study to choose for the scenario.
// (The assignment itself is tested through the builder's soil page and in the unit tests.)

const texts = () => ui.messages().map(m => m.text);
const soilRow = sid => db.query('Select * From tblIntakeZOB Where ScenarioID = ' + sid + ' And IntakeTypeID = 4')[0];

db.exec("Insert Into tblSoilIngestion (SoilIngestionID, TaxonID, Species, IntakeMean, UnitsID, ReferenceID, DataSourceID) "
        + "Values (990501, 2, 'Aaa probe shrew', 9.4, 8, 1, 5)");
db.exec("Insert Into tblSoilIngestion (SoilIngestionID, TaxonID, Species, IntakeMean, UnitsID, ReferenceID, DataSourceID) "
        + "Values (990502, 2, 'Aab probe mole', Null, 8, 1, 1)");
db.exec("Insert Into tblScenario (Scenario_Type, Scenario_FileName) Values ('Wildlife', 'soil.ZOB')");
const sid = db.query('Select Max(ScenarioID) As M From tblScenario')[0].M;
for (let t = 1; t <= 5; ++t)
    db.exec('Insert Into tblIntakeZOB (ScenarioID, IntakeTypeID) Values (' + sid + ', ' + t + ')');
session.scenario.SID = sid;
ui.window('frmSetup').close();

// The list opened as the builder's soil page opens it: to assign a study to intake row 4.
const openForScenario = () => pickers.open('frmSelect_SoilIngestion', { recordId: 4, mode: 'Write', table: 'tblSoilIngestion',
                                                                       keyField: 'SoilIngestionID' });

test('from the menu: every study sorted by taxon and species, no Select, entry window asked for', () => {
    ui.menu('mnuSoilIngestion').trigger();
    let w = ui.window('frmSelect_SoilIngestion');
    expect(w.toolbar().visible('Select')).toBeFalsy();
    const grid = w.control('ssGrdMain');
    expect(grid.rowCount).toBe(db.query('Select Count(*) As N From tblSoilIngestion')[0].N);
    const species = grid.columns.indexOf('Species');
    const mammals = grid.rows.filter(r => r[grid.columns.indexOf('Taxon')] === 'Mammals').map(r => r[species]);
    expect(mammals.slice(0, 2)).toEqual(['Aaa probe shrew', 'Aab probe mole']);
    grid.headClick(grid.columns.indexOf('% Soil in Diet'));
    const means = grid.rows.map(r => r[grid.columns.indexOf('% Soil in Diet')]).filter(t => t !== '').map(Number);
    expect(means).toEqual(means.slice().sort((a, b) => a - b));
    const before = db.query('Select Count(*) As N From tblSoilIngestion')[0].N;
    ui.clearMessages();
    w.toolbar().click('New');
    if (ui.windows().indexOf('frmDE_SoilIngestion') < 0) {
        expect(texts()).toEqual(['The window frmDE_SoilIngestion is not available in this version.']);
        expect(db.query('Select Count(*) As N From tblSoilIngestion')[0].N).toBe(before);
    } else {
        // The list gives way to the new study in its entry window.
        expect(db.query('Select Count(*) As N From tblSoilIngestion')[0].N).toBe(before + 1);
        ui.window('frmDE_SoilIngestion').close();
        ui.menu('mnuSoilIngestion').trigger();
        w = ui.window('frmSelect_SoilIngestion');
    }
    w.toolbar().click('Help');
    expect(ui.helpTopic()).toBe(4103);
    w.toolbar().click('Close');
});

test('with no study to choose the window says so and writes nothing', () => {
    db.exec('Delete From tblSoilIngestion');
    const before = JSON.stringify(soilRow(sid));
    openForScenario();
    ui.clearMessages();
    const w = ui.window('frmSelect_SoilIngestion');
    w.toolbar().click(4);
    expect(texts()).toEqual(['Please select a record and then continue...!!!']);
    expect(ui.windows()).toContain('frmSelect_SoilIngestion');
    expect(JSON.stringify(soilRow(sid))).toBe(before);
    w.toolbar().click('Close');
});
