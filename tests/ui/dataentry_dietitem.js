// The diet item window: a reference item edited (proportions stored as typed to three decimals, the
// data source kept), a new reference item added while a scenario is open, a scenario's copy edited
// (the copy and the scenario's diet become the user's) or saved unchanged (nothing marked), a gross
// energy assigned through the picker, letters in a proportion refused, and Delete.

const item = (table, id) => db.query('Select * From ' + table + ' Where DietItemID = ' + id)[0];
function open(table, id, key) {
    pickers.open('frmDE_DietItem', { recordId: id, table: table, keyField: key === undefined ? 'DietItemID' : key, filter: false });
    return ui.window('frmDE_DietItem');
}

ui.window('frmSetup').close();

// A scenario with a copied diet of two items, from a vetted reference diet.
const sid = 990100;
db.exec('Insert Into tblWildlife (ScenarioID, DietID, DietDataSourceID) Values (' + sid + ', 1, 4)');
db.exec('Insert Into tblWildlifeDiet (ScenarioID, DietID, DataSourceID) Values (' + sid + ', 1, 4)');
for (const id of [1, 2])
    db.exec('Insert Into tblWildlifeDietItems (ScenarioID, DietID, DietItemID, Name, Wet_Proportion, DataSourceID) Values ('
            + sid + ', 1, ' + id + ", 'Copy " + id + "', 0.5, 4)");
// Another scenario holding a copy with the same item id, which must not be touched.
db.exec('Insert Into tblWildlifeDietItems (ScenarioID, DietID, DietItemID, Name, Wet_Proportion, DataSourceID) Values ('
        + (sid + 1) + ", 1, 1, 'Other scenario', 0.5, 4)");

test('a reference item: texts of its assignments, proportions to three decimals, its data source kept', () => {
    const ref = db.query('Select DietItemID, DataSourceID From tblDietItem Where GrossEnergyID > 0 And AEID > 0 Order By DietItemID')[0];
    const w = open('tblDietItem', ref.DietItemID);
    expect(w.caption).toBe('Add/Modify Diet Item');
    const ge = db.query('Select Item From tblGrossEnergy Where GrossEnergyID = ' + item('tblDietItem', ref.DietItemID).GrossEnergyID)[0].Item;
    expect(w.control('txtDI(10)').text).toContain('Item: ' + ge + ' Wet: ');
    expect(w.control('txtDI(1)').text).toContain('Kingdom:');
    w.control('txtDI(3)').setText('.25');
    w.control('txtDI(4)').setText('');
    w.control('txtDI(6)').setText("Shrew's prey");
    w.control('txtDI(5)').dblClick();
    const zoom = ui.window('frmZoom');
    expect(zoom.caption).toBe('Modify Text');
    zoom.control('txtZoom').setText('Seen in June');
    zoom.toolbar().click('OK');
    expect(w.control('txtDI(5)').text).toBe('Seen in June');
    w.toolbar().click('Save');
    expect(ui.windows()).not.toContain('frmDE_DietItem');
    const after = item('tblDietItem', ref.DietItemID);
    expect([after.Name, after.Comments, after.Wet_Proportion, after.Dry_Proportion, after.DataSourceID])
        .toEqual(["Shrew's prey", 'Seen in June', 0.25, null, ref.DataSourceID]);
});

test('a new reference item while a scenario is open: a row of the diet, no scenario column needed', () => {
    session.scenario.SID = sid;
    const top = db.query('Select Max(DietItemID) As M From tblDietItem')[0].M;
    const w = open('tblDietItem', 3, '');
    expect(item('tblDietItem', top + 1).DietID).toBe(3);
    w.control('txtDI(6)').setText('Beetles');
    w.toolbar().click('Close');
    expect(item('tblDietItem', top + 1).Name).toBe('Beetles');
});

test("a scenario's copy saved unchanged marks nothing; changed, it and the diet become the user's", () => {
    session.scenario.SID = sid;
    open('tblWildlifeDietItems', 2).toolbar().click('Select');
    expect(db.query('Select DataSourceID From tblWildlifeDiet Where ScenarioID = ' + sid)[0].DataSourceID).toBe(4);
    const w = open('tblWildlifeDietItems', 1);
    expect(w.control('txtDI(6)').text).toBe('Copy 1');
    ui.clearMessages();
    w.control('txtDI(3)').setText('abc');
    w.toolbar().click('Close');
    expect(ui.messages().length).toBe(1);
    expect(ui.windows()).toContain('frmDE_DietItem');
    w.control('txtDI(3)').setText('.3');
    w.toolbar().click('Close');
    const copy = db.query('Select * From tblWildlifeDietItems Where ScenarioID = ' + sid + ' And DietItemID = 1')[0];
    expect([copy.Wet_Proportion, copy.DataSourceID]).toEqual([0.3, 6]);
    expect(db.query('Select DataSourceID From tblWildlifeDiet Where ScenarioID = ' + sid)[0].DataSourceID).toBe(6);
    expect(db.query('Select DietDataSourceID From tblWildlife Where ScenarioID = ' + sid)[0].DietDataSourceID).toBe(6);
    const other = db.query('Select * From tblWildlifeDietItems Where ScenarioID = ' + (sid + 1))[0];
    expect([other.Name, other.Wet_Proportion, other.DataSourceID]).toEqual(['Other scenario', 0.5, 4]);
});

test('a gross energy assigned through the picker shows in the window; Delete asks and removes the copy', () => {
    session.scenario.SID = sid;
    const w = open('tblWildlifeDietItems', 2);
    w.control('cmdSelectDD(3)').click();
    const picker = ui.window('frmSelect_GE');
    const grid = picker.control('ssCmbSearch');
    grid.selectRow(2);
    const chosen = Number(grid.cell(2, grid.columns.indexOf('GrossEnergyID')));
    picker.toolbar().click('Select');
    expect(db.query('Select GrossEnergyID From tblWildlifeDietItems Where ScenarioID = ' + sid + ' And DietItemID = 2')[0].GrossEnergyID).toBe(chosen);
    const ge = db.query('Select Item From tblGrossEnergy Where GrossEnergyID = ' + chosen)[0].Item;
    expect(w.control('txtDI(10)').text).toContain('Item: ' + ge);
    ui.clearMessages();
    ui.answer('No');
    w.toolbar().click('Delete');
    expect(ui.messages()[0].text).toBe('Are you sure you want to delete this record ?');
    ui.answer('Yes');
    w.toolbar().click('Delete');
    expect(db.query('Select Count(*) As N From tblWildlifeDietItems Where ScenarioID = ' + sid + ' And DietItemID = 2')[0].N).toBe(0);
    expect(db.query('Select Count(*) As N From tblWildlifeDietItems Where DietItemID = 1')[0].N).toBe(2);
    expect(ui.windows()).not.toContain('frmDE_DietItem');
});

test("a scenario's item edited from the builder: the builder's grid shows the change", () => {
    ui.menu('mnuProject').trigger();
    ui.window('frmProjectList').toolbar().click(2);
    const p = ui.window('frmProject');
    p.control('txtProject(0)').setText('Robins');
    p.toolbar().click('Save');
    const chooser = () => ui.window('frmSearch_File');
    chooser().control('txtSelectedFile').setText('robins');
    chooser().control('cmdControl(0)').click();
    p.control('cmdScenario(3)').click();
    ui.menu('mnuLifeStage').trigger();
    const search = ui.window('frmSearch_LifeHistory');
    search.toolbar().click(2);
    search.control('txtSearch(0)').setText('American robin');
    search.toolbar().click(4);
    search.toolbar().click('Select');
    chooser().control('txtSelectedFile').setText('robin');
    chooser().control('cmdControl(0)').click();
    const scenario = session.scenario.SID;
    diet.AddWildlifeDiet(3);
    diet.AddWildlifeDietItems(3);
    ui.window('frmZOB').toolbar().click('Close');
    ui.window('frmProject').control('cmdScenario(6)').click();
    const w = ui.window('frmZOB');
    w.control('ssTabSB').selectTab(2);
    const grid = w.control('ssGrdDietItems');
    grid.selectRow(0);
    const name = grid.cell(0, 0);
    w.control('cmdEdit(1)').click();
    const item = ui.window('frmDE_DietItem');
    expect(item.control('txtDI(6)').text).toBe(name);
    item.control('txtDI(6)').setText(name + ' (edited)');
    item.toolbar().click('Close');
    expect(grid.rows.map(r => r[0])).toContain(name + ' (edited)');
    const row = db.query("Select DataSourceID From tblWildlifeDietItems Where ScenarioID = " + scenario + " And Name = '" + name + " (edited)'")[0];
    expect(row.DataSourceID).toBe(6);
    expect(db.query('Select DietDataSourceID From tblWildlife Where ScenarioID = ' + scenario)[0].DietDataSourceID).toBe(6);
});
