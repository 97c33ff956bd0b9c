// The setup window: its tabs and help numbers, the path boxes and the folder chooser, the comments with
// an apostrophe, the user and report grids, the diagnostics level, and the table editor: its list, record
// position, required fields, protected tables, the user filter of the comments table, closing during an
// edit, and OK keeping the typed paths.

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
    expect([0, 1, 2, 3, 4].map(i => setup().control('Path(' + i + ')').text)).toEqual(
        [u.PathDatabase, u.PathExport, u.PathProject, u.PathScenario, u.PathReport]);
});

test('the folder chooser opens at the box\'s folder and answers with the folder as spelled on disk; Cancel changes nothing', () => {
    setup().control('ssTabSetup').selectTab(0);
    const before = setup().control('Path(2)').text;
    setup().control('cmdPath(2)').click();
    const dir = ui.window('frmGetDir');
    expect(dir.caption).toBe('Select Directory');
    expect(dir.control('txtDir').text).toBe(before);
    dir.control('txtDir').setText(session.home + '/tester');
    dir.control('txtDir').keyDown(13);
    expect(dir.control('dirMain').items).toContain('Scenario');
    dir.control('cmdControl(0)').click();
    expect(ui.window('frmGetDir')).toBeNull();
    // This file system keeps case: the folder keeps its spelling and gets no closing separator.
    expect(setup().control('Path(2)').text).toBe(session.home + '/tester');
    expect(fs.exists(setup().control('Path(2)').text)).toBeTruthy();

    // A folder typed in other capitals is answered as it is spelled on disk.
    setup().control('cmdPath(4)').click();
    ui.window('frmGetDir').control('txtDir').setText(session.home + '/TESTER/report/');
    ui.window('frmGetDir').control('cmdControl(0)').click();
    expect(setup().control('Path(4)').text).toBe(session.home + '/tester/Report');

    const scenario = setup().control('Path(3)').text;
    setup().control('cmdPath(3)').click();
    ui.window('frmGetDir').control('cmdControl(1)').click();
    expect(setup().control('Path(3)').text).toBe(scenario);
    expect(scenario).toBe(session.home + '/tester/Scenario');
});

test('a comment with an apostrophe fails into an error box; a plain one is added to the grid', () => {
    setup().control('ssTabSetup').selectTab(1);
    const grid = setup().control('ssGrdMain');
    expect(grid.rows).toEqual([['Rationale'], ['Quality'], ['Assumptions'], ['Uncertainty']]);
    const comments = () => db.query('Select Comment from tblComments where UserID = ' + session.userId).map(r => r.Comment);
    ui.clearMessages();
    setup().control('txtComment').setText("Otter's range");
    setup().control('cmdAdd').click();
    expect(ui.messages().map(m => [m.icon, m.buttons.join('/'), m.text.indexOf('Error in routine ')])).toEqual([['stop', 'OK', 0]]);
    expect(comments().length).toBe(4);
    expect(grid.rowCount).toBe(4);
    expect(setup().control('txtComment').text).toBe("Otter's range");
    expect(ui.cursor()).toBe('default');

    ui.clearMessages();
    setup().control('txtComment').setText('Home range');
    setup().control('cmdAdd').click();
    expect(ui.messages().length).toBe(0);
    expect(comments()).toContain('Home range');
    expect(grid.rowCount).toBe(5);
    expect(grid.rows.map(r => r[0])).toContain('Home range');
});

test('typing into the user grid writes the user row at once', () => {
    setup().control('ssTabSetup').selectTab(2);
    const grid = setup().control('ssGrdUser');
    expect(grid.columns).toEqual(['Name', 'Department', 'Address', 'City', 'Postal Code', 'Province', 'Country',
                                  'E-Mail', 'Phone', 'Fax']);
    grid.selectRow(0);
    grid.keyDown(113);                                   // F2 opens the cell
    setup().control('ssGrdUser_Edit').setText('Ann Smith');
    setup().control('ssGrdUser_Edit').keyDown(13);
    expect(grid.cell(0, 0)).toBe('Ann Smith');
    expect(db.query("Select Name from tblUser where User = 'tester'")[0].Name).toBe('Ann Smith');

    setup().control('ssTabSetup').selectTab(3);
    expect(setup().control('ssGrdReport').columns).toEqual(['Report Header 1', 'Report Header 2']);
});

test('the diagnostics level is chosen by name under its prompt', () => {
    setup().control('ssTabSetup').selectTab(0);
    expect(setup().control('lbl_cboDiagLevel').caption).toBe('Enter the diagnostics level to include:');
    expect(setup().control('cboDiagLevel').items).toEqual(
        ['0 - none', '1 - procedures', '2 - parameters', '3 - recordset', '4 - All']);
    setup().control('cboDiagLevel').select('1 - procedures');
    // At level 1 the file chooser writes its trace line.
    ui.menu('mnuProjectOptions(1)').trigger();
    ui.window('frmSearch_File').control('cmdControl(1)').click();
    expect(fs.read('diag.txt')).toContain('frmSearch_File.Load successful :) ');
    setup().control('cboDiagLevel').select('0 - none');
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
    setup().close();
    ui.menu('mnuIniSetup').trigger();
    chooseTable('Genus');
    expect(setup().control('LstTables').items.length).toBe(21);
    expect([0, 1, 2].map(i => setup().control('LblSetup(' + i + ')').caption)).toEqual(['Id:*', 'Genus:', 'Family Id:']);
    const genera = db.query('Select GenusID from tblGenus');
    expect(setup().control('ssGrdTable').rowCount).toBe(genera.length);
    expect(setup().control('dcTable').caption).toBe('Record: 1 of ' + genera.length);
    expect(setup().control('txtFields(1)').locked).toBeTruthy();
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
    expect([setup().control('LstTables').enabled, cmd(0).enabled, cmd(2).enabled]).toEqual([true, true, false]);
});

test('the comments table shows a user only his own rows; a new row carries his id', () => {
    db.exec("Insert into tblComments (UserID, Comment) values (99999, 'Someone else')");
    chooseTable('Comments');
    const grid = setup().control('ssGrdTable');
    expect(grid.rowCount).toBe(db.query('Select * from tblComments where UserID = ' + session.userId).length);
    expect(grid.rows.every(r => r[0] === String(session.userId) && r[1] !== 'Someone else')).toBeTruthy();
    cmd(0).click();
    expect(setup().control('txtFields(0)').text).toBe(String(session.userId));
    setup().control('txtFields(1)').setText('Sediment');
    cmd(2).click();
    expect(db.query("Select UserID from tblComments where Comment = 'Sediment'")[0].UserID).toBe(session.userId);
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

test('a status row is added, changed and deleted after the question', () => {
    setup().control('LstTables').select('Status');
    setup().control('cmdTables(0)').click();
    setup().control('txtFields(1)').setText('Juvenile (test)');
    setup().control('cmdTables(2)').click();
    const row = db.query("Select * from tblStatus where Description = 'Juvenile (test)'");
    expect(row.length).toBe(1);
    expect(setup().control('txtFields(0)').text).toBe(String(row[0].StatusID));

    setup().control('cmdTables(1)').click();
    setup().control('txtFields(1)').setText('Juvenile');
    setup().control('cmdTables(2)').click();
    expect(db.query('Select Description from tblStatus where StatusID = ' + row[0].StatusID)[0].Description).toBe('Juvenile');

    ui.clearMessages();
    ui.answer('No');
    setup().control('cmdTables(4)').click();
    expect(texts()).toEqual(['Delete current record ?']);
    expect(db.query('Select * from tblStatus where StatusID = ' + row[0].StatusID).length).toBe(1);
    ui.answer('Yes');
    setup().control('cmdTables(4)').click();
    expect(db.query('Select * from tblStatus where StatusID = ' + row[0].StatusID).length).toBe(0);
});

test('a new row left empty is refused with the warning and the edit stays open', () => {
    chooseTable('Status');
    cmd(0).click();
    expect(setup().control('LstTables').enabled).toBeFalsy();
    ui.clearMessages();
    cmd(2).click();
    expect(ui.messages().map(m => [m.text, m.icon])).toEqual(
        [['Please add a value for all required fields(ID, Property Name, Property Units)', 'warning']]);
    expect(setup().control('LstTables').enabled).toBeFalsy();
    expect(cmd(2).enabled).toBeTruthy();
});

test('closing during an edit asks "Cancel changes ?"; No keeps the window, Yes lets it go', () => {
    ui.clearMessages();
    setup().close();
    expect(ui.messages().map(m => [m.text, m.buttons.join('/'), m.answer])).toEqual([['Cancel changes ?', 'Yes/No', 'No']]);
    expect(setup().visible).toBeTruthy();
    ui.answer('Yes');
    setup().toolbar().click(8);
    expect(ui.window('frmSetup')).toBeNull();
    expect(db.query('Select * from tblStatus').length).toBe(2);
});

test('a new genus needs its family; the name and the number are trimmed', () => {
    ui.menu('mnuIniSetup').trigger();
    chooseTable('Genus');
    const n = setup().control('ssGrdTable').rowCount;
    cmd(0).click();
    setup().control('txtFields(1)').setText('  Lutra ');
    ui.clearMessages();
    cmd(2).click();
    expect(ui.messages().length).toBe(1);
    setup().control('txtFields(2)').setText(' 7 ');
    ui.clearMessages();
    cmd(2).click();
    expect(ui.messages().length).toBe(0);
    expect(db.query("Select FamilyID from tblGenus where Name = 'Lutra'").map(r => r.FamilyID)).toEqual([7]);
    expect(setup().control('ssGrdTable').rowCount).toBe(n + 1);
    expect(setup().control('LstTables').enabled).toBeTruthy();
    expect(setup().control('txtFields(1)').text).toBe('Lutra');
    expect(ui.cursor()).toBe('default');
});

test('OK keeps the typed paths in the user row', () => {
    ui.menu('mnuIniSetup').trigger();
    setup().control('Path(1)').setText(session.home + '/EXPORTED');
    setup().toolbar().click(4);
    expect(ui.windows()).not.toContain('frmSetup');
    expect(db.query("Select PathExport from tblUser where User = 'tester'")[0].PathExport).toBe(session.home + '/EXPORTED');
});
