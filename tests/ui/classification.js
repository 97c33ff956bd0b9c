// The classification picker: a species placed by choosing its family (the whole ancestry fills in),
// a diet item with life stage and component narrowed by its kingdom, a blank kingdom refused, a cleared
// level leaving the column as it was, and a level without a complete chain down to a family.

const texts = () => ui.messages().map(m => m.text);
const levels = ['KingdomID', 'SubkingdomID', 'PhylumID', 'ClassID', 'OrderID', 'FamilyID'];
const combos = ['ssCmbKingdom', 'ssCmbSubKingdom', 'ssCmbPhylum', 'ssCmbClass', 'ssCmbOrder', 'ssCmbFamily'];
const tables = ['tblKingdom', 'tblSubkingdom', 'tblPhylum', 'tblClass', 'tblOrder', 'tblFamily'];
const nameOf = (level, id) => db.query('Select Name From ' + tables[level] + ' Where ' + levels[level] + ' = ' + id)[0].Name;
// A family with its whole chain, found independently of the picker.
const chain = db.query('Select tblFamily.FamilyID, tblOrder.OrderID, tblClass.ClassID, tblPhylum.PhylumID, '
    + 'tblSubkingdom.SubkingdomID, tblSubkingdom.KingdomID From tblFamily, tblOrder, tblClass, tblPhylum, tblSubkingdom '
    + 'Where tblFamily.OrderID = tblOrder.OrderID And tblOrder.ClassID = tblClass.ClassID And tblClass.PhylumID = '
    + 'tblPhylum.PhylumID And tblPhylum.SubkingdomID = tblSubkingdom.SubkingdomID Order By tblFamily.FamilyID')[0];

ui.window('frmSetup').close();

test('a species: choosing a family fills in its ancestry and narrows nothing wrongly; Select writes all six', () => {
    db.exec("Insert Into tblSpecies (SpeciesID, Common, Latin) Values (980001, 'Test vole', 'Microtus testus')");
    pickers.open('frmSelect_Classification', { recordId: 980001, table: 'tblSpecies', keyField: 'SpeciesID', mode: 'Write' });
    const w = ui.window('frmSelect_Classification');
    expect(w.caption).toBe('Select Classification Assignment');
    expect(w.control('fraCollection').visible).toBeFalsy();
    for (const c of combos) expect(w.control(c).text).toBe('');
    w.control('ssCmbFamily').select(nameOf(5, chain.FamilyID));
    for (let i = 0; i < 6; ++i)
        expect(w.control(combos[i]).text).toBe(nameOf(i, chain[levels[i]]));
    // The order's list is narrowed to the class shown.
    const orders = db.query('Select Name From tblOrder Where ClassID = ' + chain.ClassID + ' Order By Name').map(r => r.Name);
    expect(w.control('ssCmbOrder').items).toEqual(orders);
    w.toolbar().click('Select');
    expect(ui.windows()).not.toContain('frmSelect_Classification');
    const row = db.query('Select * From tblSpecies Where SpeciesID = 980001')[0];
    for (const l of levels) expect(row[l]).toBe(chain[l]);
});

test('a diet item with life stage and component: both wait for the kingdom and list what it allows', () => {
    db.exec("Insert Into tblDietItem (DietItemID, DietID, Name) Values (980002, 1, 'Probe')");
    pickers.open('frmSelect_Classification', { recordId: 980002, table: 'tblDietItem', keyField: 'DietItemID',
                                               collection: true });
    const w = ui.window('frmSelect_Classification');
    expect(w.control('fraCollection').visible).toBeTruthy();
    expect(w.control('ssCmbLifeStage').enabled).toBeFalsy();
    ui.clearMessages();
    w.toolbar().click('Select');
    expect(texts()).toEqual(['Kingdom cannot be blank. Please select Kingdom and then continue.']);
    w.control('ssCmbKingdom').select(nameOf(0, chain.KingdomID));
    expect(w.control('ssCmbLifeStage').enabled).toBeTruthy();
    const stages = db.query('Select tblLifeStage.Description From jKingdomLifestage, tblLifeStage Where '
        + 'jKingdomLifestage.LifeStageID = tblLifeStage.LifeStageID And jKingdomLifestage.KingdomID = '
        + chain.KingdomID + ' Order By tblLifeStage.Description').map(r => r.Description);
    expect(w.control('ssCmbLifeStage').items).toEqual(stages);
    w.control('ssCmbFamily').select(nameOf(5, chain.FamilyID));
    w.control('ssCmbLifeStage').select(0);
    w.control('ssCmbComponent').select(0);
    const stage = w.control('ssCmbLifeStage').value, component = w.control('ssCmbComponent').value;
    w.toolbar().click('Select');
    const row = db.query('Select * From tblDietItem Where DietItemID = 980002')[0];
    expect(row.FamilyID).toBe(chain.FamilyID);
    expect(row.KingdomID).toBe(chain.KingdomID);
    expect(row.LifestageID).toBe(stage);
    expect(row.ComponentID).toBe(component);
});

test('reopened, the record shows its levels; a cleared family stays in the record', () => {
    pickers.open('frmSelect_Classification', { recordId: 980002, table: 'tblDietItem', keyField: 'DietItemID',
                                               collection: true });
    const w = ui.window('frmSelect_Classification');
    expect(w.control('ssCmbFamily').text).toBe(nameOf(5, chain.FamilyID));
    expect(w.control('ssCmbLifeStage').text).not.toBe('');
    w.toolbar().click('New');
    expect(w.control('ssCmbPhylum').text).toBe('');
    expect(w.control('ssCmbSubKingdom').text).toBe(nameOf(1, chain.SubkingdomID));
    w.toolbar().click('Select');
    expect(db.query('Select FamilyID From tblDietItem Where DietItemID = 980002')[0].FamilyID).toBe(chain.FamilyID);
});

test('a phylum with no family beneath it gives the hierarchy message word for word', () => {
    db.exec("Insert Into tblPhylum (PhylumID, SubkingdomID, Name) Values (980003, " + chain.SubkingdomID + ", 'Aaemptyphyta')");
    pickers.open('frmSelect_Classification', { recordId: 980002, table: 'tblDietItem', keyField: 'DietItemID' });
    const w = ui.window('frmSelect_Classification');
    ui.clearMessages();
    w.control('ssCmbPhylum').select('Aaemptyphyta');
    expect(texts()).toEqual(['Error in Classification Heirarchy.']);
    expect(ui.messages()[0].icon).toBe('warning');
    expect(w.control('ssCmbClass').text).toBe('');
    w.toolbar().click('Close');
    expect(ui.windows()).not.toContain('frmSelect_Classification');
});

test('the text search: exact and partial finds, find next, no match, an apostrophe; Select takes the whole path', () => {
    db.exec("Insert Into tblDietItem (DietItemID, DietID, Name) Values (980004, 1, 'Searched')");
    pickers.open('frmSelect_Classification', { recordId: 980004, table: 'tblDietItem', keyField: 'DietItemID' });
    ui.window('frmSelect_Classification').control('cmdSrchClassification').click();
    const f = ui.window('frmFind_Classification');
    expect(f.caption).toBe('Classification Search');
    const grid = f.control('ssCmbSearch');
    expect(grid.columns).toEqual(['Kingdom', 'Subkingdom', 'Phylum', 'Phylum Desc', 'Class', 'Class Desc', 'Order',
                                  'Order Desc', 'Family', 'Family Desc']);
    const all = db.query('Select Count(*) As N From tblFamily, tblOrder, tblClass, tblPhylum, tblSubkingdom, tblKingdom '
        + 'Where tblFamily.OrderID = tblOrder.OrderID And tblOrder.ClassID = tblClass.ClassID And tblClass.PhylumID = '
        + 'tblPhylum.PhylumID And tblPhylum.SubkingdomID = tblSubkingdom.SubkingdomID And tblSubkingdom.KingdomID = '
        + 'tblKingdom.KingdomID')[0].N;
    expect(grid.rowCount).toBe(all);
    const family = nameOf(5, chain.FamilyID);
    f.control('txtSearch').setText(family);
    f.control('LstFindCrit').select('Find Exact match');
    f.control('cmdFind(0)').click();
    expect(grid.cell(grid.currentRow, 8)).toBe(family);
    ui.clearMessages();
    f.control('cmdFind(1)').click();   // a family name is found once
    expect(texts()).toEqual(['No matching records found.']);
    expect(grid.cell(grid.currentRow, 8)).toBe(family);
    f.control('LstFindCrit').select('Find Starting with!');
    f.control('txtSearch').setText(family.substring(0, 3));
    f.control('cmdFind(0)').click();
    expect(grid.rows[grid.currentRow].some(c => c.toLowerCase().indexOf(family.substring(0, 3).toLowerCase()) === 0)).toBeTruthy();
    ui.clearMessages();
    f.control('txtSearch').setText("O'Brien");
    f.control('cmdFind(0)').click();
    expect(texts().length).toBe(1);
    expect(texts()[0].indexOf('Error in routine')).toBe(0);
    expect(f.visible).toBeTruthy();
    f.control('txtSearch').setText(family);
    f.control('LstFindCrit').select('Find Exact match');
    f.control('cmdFind(0)').click();
    f.toolbar().click('Select');
    expect(ui.windows()).not.toContain('frmFind_Classification');
    expect(ui.windows()).not.toContain('frmSelect_Classification');
    const row = db.query('Select * From tblDietItem Where DietItemID = 980004')[0];
    for (const l of levels) expect(row[l]).toBe(chain[l]);
});

test('a record that is gone, a table without classification, a * search: reported or harmless; nothing written', () => {
    const before = JSON.stringify(db.query('Select * From tblDataSource'));
    for (const caller of [{ recordId: 989999, table: 'tblDietItem', keyField: 'DietItemID' },
                          { recordId: 1, table: 'tblDataSource', keyField: 'DataSourceID' }]) {
        pickers.open('frmSelect_Classification', caller);
        const w = ui.window('frmSelect_Classification');
        w.control('ssCmbFamily').select(nameOf(5, chain.FamilyID));
        ui.clearMessages();
        w.toolbar().click('Select');
        expect(texts().length).toBe(1);
        expect(texts()[0]).toContain(caller.recordId === 1 ? 'Item not found in this collection. (KingdomID)' : 'No current record.');
        expect(w.visible).toBeTruthy();
        w.toolbar().click('Close');
    }
    expect(db.query('Select Count(*) As N From tblDietItem Where DietItemID = 989999')[0].N).toBe(0);
    expect(JSON.stringify(db.query('Select * From tblDataSource'))).toBe(before);
    pickers.open('frmFind_Classification', { recordId: 989999, table: 'tblDietItem', keyField: 'DietItemID' });
    const f = ui.window('frmFind_Classification');
    ui.clearMessages();
    f.control('txtSearch').setText('*');
    f.control('cmdFind(0)').click();   // a wildcard: the first row matches
    expect([texts(), f.control('ssCmbSearch').currentRow]).toEqual([[], 0]);
    f.toolbar().click('Close');
});
