// The reference picker: from the menu (every reference by author, no Select, New and a double click
// opening the entry window), for a caller's row (the held reference shown first, narrowed by
// author at each keystroke and by species, sorted by a head click, Select writing ReferenceID), and an
// apostrophe typed in the search box.

const texts = () => ui.messages().map(m => m.text);
const ids = grid => grid.rows.map(r => Number(r[0]));
const byAuthor = where => db.query('Select tblReferences.ReferenceID As K From tblReferences, qryReference Where '
    + 'tblReferences.ReferenceID = qryReference.ReferenceID' + (where ? ' And ' + where : '')
    + ' Order By fldRef_Author, tblReferences.ReferenceID').map(r => Number(r.K));
const sameSet = (a, b) => expect(a.slice().sort((x, y) => x - y)).toEqual(b.slice().sort((x, y) => x - y));

ui.window('frmSetup').close();

test('from the menu: every reference by author; New and a double click say the entry window is missing', () => {
    expect(ui.menu('mnuReferences').enabled).toBeTruthy();
    ui.menu('mnuReferences').trigger();
    const w = ui.window('frmSelect_Reference');
    expect(w.caption).toBe('Reference');
    const grid = w.control('ssCmbSearch');
    expect(grid.columns).toEqual(['ReferenceID', 'Author', 'Title']);
    sameSet(ids(grid), byAuthor());
    const authors = grid.rows.map(r => r[1].toLowerCase());
    expect(authors).toEqual(authors.slice().sort());
    expect(w.toolbar().visible('Select')).toBeFalsy();
    // New adds a blank reference and opens it; a double click opens the row's reference.
    const top = () => db.query('Select Max(ReferenceID) As M From tblReferences')[0].M;
    const before = top();
    w.toolbar().click('New');
    const entry = ui.window('frmDE_Reference');
    expect(top()).toBe(before + 1);
    expect(entry.control('txtAuthor').text).toBe('');
    entry.control('txtAuthor').setText("O'Neil");
    entry.toolbar().click('Save');
    expect(db.query('Select fldRef_Author From tblReferences Where ReferenceID = ' + (before + 1))[0].fldRef_Author).toBe("O'Neil");
    entry.toolbar().click('Close');
    grid.dblClickRow(0);
    expect(ui.window('frmDE_Reference').control('txtAuthor').text).toBe(grid.cell(0, 1));
    ui.window('frmDE_Reference').toolbar().click('Close');
    w.toolbar().click('Close');
});

test('for a caller: held reference first, narrowed by author and by species, Select writes ReferenceID', () => {
    db.exec('Insert Into tblDiet (DietID, SpeciesID, ReferenceID) Values (985001, 1, 0)');
    const held = byAuthor()[5];
    pickers.open('frmSelect_Reference', { recordId: 985001, table: 'tblDiet', keyField: 'DietID', mode: 'Read',
                                          selectedId: held });
    const w = ui.window('frmSelect_Reference');
    const grid = w.control('ssCmbSearch');
    expect(Number(grid.cell(grid.currentRow, 0))).toBe(held);
    expect(w.control('txtReference').text).toBe(db.query('Select Reference From qryReference Where ReferenceID = ' + held)[0].Reference);
    const author = db.query('Select fldRef_Author From tblReferences Where ReferenceID = ' + held)[0].fldRef_Author;
    const part = author.substring(0, 4);
    w.control('txtInput').setText(part);
    sameSet(ids(grid), byAuthor("fldRef_Author Like '*" + part + "*'"));
    w.control('txtInput').setText('');
    sameSet(ids(grid), byAuthor());
    grid.headClick(2);
    const titles = grid.rows.map(r => r[2].toLowerCase());
    expect(titles).toEqual(titles.slice().sort());
    const species = db.query('Select SpeciesID, Count(*) As N From jtblSpeciesReference Group By SpeciesID Order By SpeciesID')[0];
    w.control('chkSpeciesFilter').click();
    expect(w.control('cboSpecies').visible).toBeTruthy();
    const common = db.query('Select Common From tblSpecies Where SpeciesID = ' + species.SpeciesID)[0].Common;
    w.control('cboSpecies').select(common);
    sameSet(ids(grid), byAuthor('tblReferences.ReferenceID In (Select ReferenceID From jtblSpeciesReference Where SpeciesID = '
                                + species.SpeciesID + ')'));
    grid.selectRow(0);
    const chosen = Number(grid.cell(0, 0));
    ui.clearMessages();
    w.control('txtInput').setText("O'Brien");
    expect(texts().length).toBe(1);
    expect(texts()[0].indexOf('Error in routine  frmSelect_Reference.txtInput')).toBe(0);
    w.control('cboSpecies').select(common);
    grid.selectRow(0);
    w.toolbar().click('Select');
    expect(ui.windows()).not.toContain('frmSelect_Reference');
    expect(db.query('Select ReferenceID From tblDiet Where DietID = 985001')[0].ReferenceID).toBe(chosen);
});

test('a species\' references move both ways; an assigned one is never offered again', () => {
    const species = db.query('Select SpeciesID, Common, Latin From tblSpecies Order By SpeciesID')[0];
    const assignedIds = () => db.query('Select ReferenceID From jtblSpeciesReference Where SpeciesID = '
                                       + species.SpeciesID).map(r => Number(r.ReferenceID));
    pickers.open('frmReferenceSpecies', { recordId: species.SpeciesID, mode: 'Write' });
    const w = ui.window('frmReferenceSpecies');
    expect(w.caption).toBe('Reference');
    expect(w.control('lblSpecies').caption).toContain('Common Name: ' + species.Common);
    expect(w.control('lblSpecies').caption).toContain('Scientific Name: ' + species.Latin);
    const available = w.control('grdReferences(0)'), assigned = w.control('grdReferences(1)');
    expect(assigned.columns).toEqual(['ReferenceID', 'Reference', 'Distribution', 'Habitat', 'Diet', 'Related']);
    sameSet(ids(assigned), assignedIds());
    sameSet(ids(available), byAuthor('tblReferences.ReferenceID Not In (Select ReferenceID From jtblSpeciesReference '
                                     + 'Where SpeciesID = ' + species.SpeciesID + ')'));
    const before = assignedIds().length;
    available.selectRow(0);
    const moved = Number(available.cell(0, 0));
    w.control('cmdAssign').click();
    expect(assignedIds()).toContain(moved);
    expect(ids(available)).not.toContain(moved);
    expect(ids(assigned)).toContain(moved);
    // A tick is written to this species' link alone at once; a second click clears it.
    db.exec('Insert Into jtblSpeciesReference (SpeciesID, ReferenceID) Values (985999, ' + moved + ')');
    const diet = sid => db.query('Select IsDiet From jtblSpeciesReference Where SpeciesID = ' + sid + ' And ReferenceID = ' + moved)[0].IsDiet;
    const row = ids(assigned).indexOf(moved), col = assigned.columns.indexOf('Diet');
    assigned.clickCell(row, col);
    expect([diet(species.SpeciesID), diet(985999), assigned.cell(row, col), assigned.currentRow]).toEqual([true, false, 'True', row]);
    assigned.clickCell(row, col);
    expect([diet(species.SpeciesID), assigned.cell(row, col)]).toEqual([false, 'False']);
    available.dblClickRow(0);
    expect(assignedIds().length).toBe(before + 2);
    const back = ids(assigned).indexOf(moved);
    assigned.selectRow(back);
    w.control('cmdRemove').click();
    expect(assignedIds()).not.toContain(moved);
    expect(ids(available)).toContain(moved);
    assigned.dblClickRow(0);
    expect(assignedIds().length).toBe(before);
    w.control('txtInput').setText('*');   // a wildcard lists every reference
    sameSet(ids(available), byAuthor());
    w.control('cmdClose').click();
    expect(ui.windows()).not.toContain('frmReferenceSpecies');
    // A species that is gone is reported; nothing can be linked to it.
    ui.clearMessages();
    pickers.open('frmReferenceSpecies', { recordId: 989999, mode: 'Write' });
    ui.window('frmReferenceSpecies').control('cmdAssign').click();
    expect(texts().length).toBe(2);
    expect(texts().every(t => t.indexOf('No current record.') > 0)).toBeTruthy();
    expect(db.query('Select Count(*) As N From jtblSpeciesReference Where SpeciesID = 989999')[0].N).toBe(0);
    ui.window('frmReferenceSpecies').control('cmdClose').click();
});
