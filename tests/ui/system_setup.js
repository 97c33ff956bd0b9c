// A new user's first start lands in the setup window: his paths, comments, user and report fields,
// the diagnostics level, and the editor of the small lookup tables.

const setup = () => ui.window('frmSetup');
const texts = () => ui.messages().map(m => m.text);

test('a new user is welcomed and then sees the setup window', () => {
    expect(texts()[0]).toContain('Please complete ZOB Setup Information before proceeding.');
    expect(ui.windows()).toContain('frmSetup');
    expect(ui.windows()).not.toContain('frmProjectList');
    expect(setup().caption).toBe('System Setup');
    expect(setup().control('ssTabSetup').items).toEqual(
        ['General Setup', 'Comments Setup', '     User Setup    ', '       Reports Setup    ', 'Table Setup']);
});

test('the general tab shows the folders of the user row and its help follows the tab', () => {
    const row = db.query("Select * from tblUser where User = 'tester'")[0];
    expect(setup().control('Path(2)').text).toBe(row.PathProject);
    expect(setup().control('Path(3)').text).toBe(row.PathScenario);
    expect(setup().control('Path(4)').text).toBe(row.PathReport);
    setup().toolbar().click(10);
    expect(ui.helpTopic()).toBe(4001);
    setup().control('ssTabSetup').selectTab(3);
    setup().toolbar().click(10);
    expect(ui.helpTopic()).toBe(4004);
    setup().control('ssTabSetup').selectTab(0);
});

test('the folder chooser answers in capitals with a closing separator, and Cancel keeps the box', () => {
    setup().control('cmdPath(2)').click();
    const dir = ui.window('frmGetDir');
    expect(dir.caption).toBe('Select Directory');
    expect(dir.control('txtDir').text).toBe(session.home + '/tester/Project');
    dir.control('txtDir').setText(session.home + '/tester');
    dir.control('txtDir').keyDown(13);
    expect(dir.control('dirMain').items).toContain('Scenario');
    dir.control('cmdControl(0)').click();
    expect(ui.window('frmGetDir')).toBeNull();
    expect(setup().control('Path(2)').text).toBe((session.home + '/tester/').toUpperCase());

    setup().control('cmdPath(3)').click();
    ui.window('frmGetDir').control('cmdControl(1)').click();
    expect(setup().control('Path(3)').text).toBe((session.home + '/tester/Scenario').toUpperCase());
});

test('comments: Add inserts a row; an apostrophe makes the insert fail through the error box', () => {
    setup().control('ssTabSetup').selectTab(1);
    expect(setup().control('ssGrdMain').rows).toEqual([['Rationale'], ['Quality'], ['Assumptions'], ['Uncertainty']]);
    setup().control('txtComment').setText('Exposure point');
    setup().control('cmdAdd').click();
    expect(setup().control('ssGrdMain').rowCount).toBe(5);
    expect(db.query('Select Comment from tblComments where UserID = ' + session.userId).map(r => r.Comment))
        .toContain('Exposure point');

    ui.clearMessages();
    setup().control('txtComment').setText("Assessor's note");
    setup().control('cmdAdd').click();
    const box = ui.messages();
    expect(box.length).toBe(1);
    expect(box[0].icon).toBe('stop');
    expect(box[0].text.indexOf('Error in routine ')).toBe(0);
    expect(setup().control('ssGrdMain').rowCount).toBe(5);
    expect(setup().control('txtComment').text).toBe("Assessor's note");
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

test('the table list holds the visible tables; a table fills the labels, boxes and grid', () => {
    setup().control('ssTabSetup').selectTab(4);
    const lst = setup().control('LstTables');
    const visible = db.query('Select Name from tblTableList Where L1IsVisible = True Order By Name').map(r => r.Name);
    expect(lst.items).toEqual(visible);
    expect(lst.items.length).toBe(21);
    lst.select('Genus');
    expect(setup().control('LblSetup(0)').caption).toBe('Id:*');
    expect(setup().control('LblSetup(1)').caption).toBe('Genus:');
    expect(setup().control('LblSetup(2)').caption).toBe('Family Id:');
    const genera = db.query('Select GenusID from tblGenus');
    expect(setup().control('ssGrdTable').rowCount).toBe(genera.length);
    expect(setup().control('dcTable').caption).toBe('Record: 1 of ' + genera.length);
    expect(setup().control('txtFields(1)').locked).toBeTruthy();
});

test('Gender, Genus and Species rows cannot be deleted; the question is not asked', () => {
    for (const name of ['Gender', 'Genus', 'Species']) {
        setup().control('LstTables').select(name);
        const before = setup().control('ssGrdTable').rowCount;
        ui.clearMessages();
        setup().control('cmdTables(4)').click();
        expect(texts()).toEqual(['Cannot delete Gender, Genus and Species records.']);
        expect(setup().control('ssGrdTable').rowCount).toBe(before);
    }
});

test('a new genus goes in with its family; a required box left empty keeps the edit open', () => {
    setup().control('LstTables').select('Genus');
    const before = db.query('Select GenusID from tblGenus').length;
    setup().control('cmdTables(0)').click();
    expect(setup().control('LstTables').enabled).toBeFalsy();
    setup().control('txtFields(1)').setText('Zobrelia');
    ui.clearMessages();
    setup().control('cmdTables(2)').click();
    expect(texts()).toEqual(['Please add a value for all required fields(ID, Property Name, Property Units)']);
    expect(setup().control('cmdTables(2)').enabled).toBeTruthy();
    setup().control('txtFields(2)').setText(' 7 ');
    setup().control('cmdTables(2)').click();
    const rows = db.query("Select * from tblGenus where Name = 'Zobrelia'");
    expect(rows.length).toBe(1);
    expect(rows[0].FamilyID).toBe(7);
    expect(db.query('Select GenusID from tblGenus').length).toBe(before + 1);
    expect(setup().control('LstTables').enabled).toBeTruthy();
    expect(setup().control('txtFields(1)').text).toBe('Zobrelia');
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

test('the comments table shows only the user\'s own rows; a new row carries his id', () => {
    db.exec("Insert into tblComments (UserID, Comment) values (9999, 'Someone else')");
    setup().control('LstTables').select('Comments');
    const rows = setup().control('ssGrdTable').rows;
    expect(rows.every(r => r[0] === String(session.userId))).toBeTruthy();
    setup().control('cmdTables(0)').click();
    expect(setup().control('txtFields(0)').text).toBe(String(session.userId));
    setup().control('txtFields(1)').setText('Sediment');
    setup().control('cmdTables(2)').click();
    expect(db.query("Select UserID from tblComments where Comment = 'Sediment'")[0].UserID).toBe(session.userId);
});

test('Edit on an empty table only says so', () => {
    db.exec('Delete * from tblVarianceType');
    setup().control('LstTables').select('Variance Type');
    ui.clearMessages();
    setup().control('cmdTables(1)').click();
    expect(texts()).toEqual(['There are no records to edit.']);
    expect(setup().control('LstTables').enabled).toBeTruthy();
});

test('closing during an edit asks; No keeps the window, Yes drops the edit', () => {
    setup().control('LstTables').select('Status');
    setup().control('cmdTables(0)').click();
    ui.clearMessages();
    ui.answer('No');
    setup().close();
    expect(texts()).toEqual(['Cancel changes ?']);
    expect(ui.windows()).toContain('frmSetup');
    ui.answer('Yes');
    setup().toolbar().click(8);
    expect(ui.windows()).not.toContain('frmSetup');
});

test('OK keeps the typed paths in the user row', () => {
    ui.menu('mnuIniSetup').trigger();
    setup().control('Path(1)').setText(session.home + '/EXPORTED');
    setup().toolbar().click(4);
    expect(ui.windows()).not.toContain('frmSetup');
    expect(db.query("Select PathExport from tblUser where User = 'tester'")[0].PathExport).toBe(session.home + '/EXPORTED');
});
