// The setup window from outside: its tabs and help numbers, the path boxes, the comments with an
// apostrophe, and the table editor: its list, record position, required fields, protected tables,
// the user filter of the comments table, and closing during an edit.

const texts = () => ui.messages().map(m => m.text);
const setup = () => ui.window('frmSetup');
const cmd = i => setup().control('cmdTables(' + i + ')');

function chooseTable(name) {
    setup().control('ssTabSetup').selectTab(4);
    setup().control('LstTables').select(name);
}

test('the five tabs carry their captions and the first four their help numbers', () => {
    const tabs = setup().control('ssTabSetup');
    expect(tabs.items).toEqual(
        ['General Setup', 'Comments Setup', '     User Setup    ', '       Reports Setup    ', 'Table Setup']);
    [4001, 4002, 4003, 4004].forEach((topic, i) => {
        tabs.selectTab(i);
        expect(tabs.currentTab).toBe(i);
        setup().toolbar().click(10);
        expect(ui.helpTopic()).toBe(topic);
    });
});

test('the path boxes show the user\'s row', () => {
    const u = db.query('Select * from tblUser where UserID = ' + session.userId)[0];
    setup().control('ssTabSetup').selectTab(0);
    expect(setup().control('Path(0)').text).toBe(u.PathDatabase);
    expect(setup().control('Path(1)').text).toBe(u.PathExport);
    expect(setup().control('Path(2)').text).toBe(u.PathProject);
    expect(setup().control('Path(3)').text).toBe(u.PathScenario);
    expect(setup().control('Path(4)').text).toBe(u.PathReport);
});

test('a folder button opens the folder chooser at the box\'s folder and puts the answer back in upper case', () => {
    const before = setup().control('Path(3)').text;
    setup().control('cmdPath(3)').click();
    const dir = ui.window('frmGetDir');
    expect(dir).not.toBeNull();
    expect(dir.caption).toBe('Select Directory');
    expect(dir.control('txtDir').text).toBe(before);
    dir.control('cmdControl(0)').click();
    expect(ui.windows()).not.toContain('frmGetDir');
    const sep = session.home.indexOf('\\') >= 0 ? '\\' : '/';
    expect(setup().control('Path(3)').text).toBe((before + sep).toUpperCase());
});

test('a comment with an apostrophe fails into an error box; a plain one is added to the grid', () => {
    const tabs = setup().control('ssTabSetup');
    tabs.selectTab(1);
    const grid = setup().control('ssGrdMain');
    expect(grid.rowCount).toBe(4);
    const count = () => db.query('Select * from tblComments where UserID = ' + session.userId).length;
    ui.clearMessages();
    setup().control('txtComment').setText("Otter's range");
    setup().control('cmdAdd').click();
    expect(ui.messages().length).toBe(1);
    expect(ui.messages()[0].icon).toBe('stop');
    expect(ui.messages()[0].buttons).toEqual(['OK']);
    expect(count()).toBe(4);
    expect(ui.cursor()).toBe('default');
    expect(ui.window('frmSetup')).not.toBeNull();

    ui.clearMessages();
    setup().control('txtComment').setText('Home range');
    setup().control('cmdAdd').click();
    expect(ui.messages().length).toBe(0);
    expect(count()).toBe(5);
    expect(grid.rowCount).toBe(5);
    expect(grid.rows.map(r => r[0])).toContain('Home range');
});

test('the table list shows only tables whose first label is visible, sorted by name', () => {
    const all = db.query('Select Name from tblTableList Where L1IsVisible = True Order By Name').map(r => r.Name);
    setup().control('ssTabSetup').selectTab(4);
    expect(setup().control('LstTables').items).toEqual(all);
    db.exec("Update tblTableList Set L1IsVisible = False Where Name = 'Taxon'");
    setup().close();
    ui.menu('mnuIniSetup').trigger();
    setup().control('ssTabSetup').selectTab(4);
    expect(setup().control('LstTables').items).toEqual(all.filter(n => n !== 'Taxon'));
    db.exec("Update tblTableList Set L1IsVisible = True Where Name = 'Taxon'");
});

test('the table data control shows the record position as it moves', () => {
    db.exec("Insert into tblStatus (Description) values ('Unknown status')");
    expect(db.query('Select * from tblStatus').length).toBe(3);
    chooseTable('Status');
    const dc = setup().control('dcTable');
    const grid = setup().control('ssGrdTable');
    expect(grid.rowCount).toBe(3);
    expect(dc.caption).toBe('Record: 1 of 3');
    expect(setup().control('LblSetup(1)').caption).toBe('Status:');
    grid.selectRow(2);
    expect(dc.caption).toBe('Record: 3 of 3');
    expect(setup().control('txtFields(1)').text).toBe(grid.cell(2, 1));
    grid.selectRow(1);
    expect(dc.caption).toBe('Record: 2 of 3');
    expect(setup().control('txtFields(1)').text).toBe(grid.cell(1, 1));
});

test('an empty table reads "Record: 0 of 0" and Edit on it says so without changing state', () => {
    chooseTable('Descriptor');
    expect(setup().control('dcTable').caption).toBe('Record: 0 of 0');
    expect(setup().control('ssGrdTable').rowCount).toBe(0);
    ui.clearMessages();
    cmd(1).click();
    expect(texts()).toEqual(['There are no records to edit.']);
    expect(setup().control('LstTables').enabled).toBeTruthy();
    expect(cmd(0).enabled).toBeTruthy();
    expect(cmd(2).enabled).toBeFalsy();
});

test('the comments table shows a user only his own rows', () => {
    db.exec("Insert into tblComments (UserID, Comment) values (99999, 'Someone else')");
    chooseTable('Comments');
    const grid = setup().control('ssGrdTable');
    expect(grid.rowCount).toBe(db.query('Select * from tblComments where UserID = ' + session.userId).length);
    for (let r = 0; r < grid.rowCount; ++r)
        expect(grid.cell(r, 1)).not.toBe('Someone else');
});

test('Delete on the three protected tables warns and asks nothing', () => {
    ui.answer('Yes');
    for (const name of ['Gender', 'Genus', 'Species']) {
        chooseTable(name);
        const n = setup().control('ssGrdTable').rowCount;
        ui.clearMessages();
        cmd(4).click();
        expect(texts()).toEqual(['Cannot delete Gender, Genus and Species records.']);
        expect(ui.messages()[0].icon).toBe('warning');
        expect(ui.pendingAnswers().length).toBe(1);
        ui.clearMessages();
        expect(setup().control('ssGrdTable').rowCount).toBe(n);
    }
    // The queued answer still waits for a box with Yes.
    chooseTable('Status');
    setup().control('ssGrdTable').selectRow(2);
    cmd(4).click();
    expect(texts()).toEqual(['Delete current record ?']);
    expect(ui.pendingAnswers().length).toBe(0);
    expect(db.query("Select * from tblStatus where Description = 'Unknown status'").length).toBe(0);
    expect(setup().control('ssGrdTable').rowCount).toBe(2);
});

test('a new row left empty is refused with the warning and the edit stays open', () => {
    chooseTable('Status');
    cmd(0).click();
    expect(setup().control('LstTables').enabled).toBeFalsy();
    ui.clearMessages();
    cmd(2).click();
    expect(texts()).toEqual(['Please add a value for all required fields(ID, Property Name, Property Units)']);
    expect(ui.messages()[0].icon).toBe('warning');
    expect(setup().control('LstTables').enabled).toBeFalsy();
    expect(cmd(2).enabled).toBeTruthy();
});

test('closing during an edit asks "Cancel changes ?"; No keeps the window, Yes lets it go', () => {
    ui.clearMessages();
    setup().close();
    expect(ui.messages().length).toBe(1);
    expect(ui.messages()[0].text).toBe('Cancel changes ?');
    expect(ui.messages()[0].buttons).toEqual(['Yes', 'No']);
    expect(ui.messages()[0].answer).toBe('No');
    expect(ui.window('frmSetup')).not.toBeNull();
    expect(setup().visible).toBeTruthy();
    ui.answer('Yes');
    setup().close();
    expect(ui.window('frmSetup')).toBeNull();
    expect(db.query('Select * from tblStatus').length).toBe(2);
});

test('a new genus goes in and its list shows it', () => {
    ui.menu('mnuIniSetup').trigger();
    chooseTable('Genus');
    const n = setup().control('ssGrdTable').rowCount;
    cmd(0).click();
    setup().control('txtFields(1)').setText('  Lutra ');
    setup().control('txtFields(2)').setText('1');
    ui.clearMessages();
    cmd(2).click();
    expect(ui.messages().length).toBe(0);
    const rows = db.query("Select * from tblGenus where Name = 'Lutra'");
    expect(rows.length).toBe(1);
    expect(setup().control('ssGrdTable').rowCount).toBe(n + 1);
    expect(setup().control('LstTables').enabled).toBeTruthy();
    expect(ui.cursor()).toBe('default');
});
