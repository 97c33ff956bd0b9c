// The window runtime itself: a modal dialog, message answers, a grid over a data control, help.

test('a window is one instance and lists once', () => {
    ui.show('frmRuntimeCheck');
    ui.show('frmRuntimeCheck');
    expect(ui.windows().filter(n => n === 'frmRuntimeCheck').length).toBe(1);
});

test('the grid shows the data sources with their captions and the first row current', () => {
    const w = ui.window('frmRuntimeCheck');
    const grid = w.control('ssGrdMain');
    const all = db.query('Select DataSourceID, Description From tblDataSource Order By DataSourceID');
    expect(grid.rowCount).toBe(all.length);
    expect(grid.columns).toEqual(['Id', 'Description']);
    expect(grid.currentRow).toBe(0);
    expect(grid.cell(0, 1)).toBe(all[0].Description);
    expect(w.control('dcMain').caption).toBe('Record: 1 of ' + all.length);
    expect(w.control('txtDescription').text).toBe(all[0].Description);
});

test('the data-source label takes the colour and text of the row', () => {
    const w = ui.window('frmRuntimeCheck');
    w.control('ssGrdMain').selectRow(1);
    const id = db.query('Select DataSourceID From tblDataSource Order By DataSourceID')[1].DataSourceID;
    const row = db.query('Select * From tblDataSource Where DataSourceID = ' + id)[0];
    const label = w.control('lblDataSource');
    expect(label.caption).toBe('Data Source: ' + row.Description + '  ');
    expect(label.foreColor).toBe(row.ForeColor);
    expect(w.control('dcMain').caption).toContain('Record: 2 of');
});

test('a head click sorts by that column and the grid follows', () => {
    const w = ui.window('frmRuntimeCheck');
    const grid = w.control('ssGrdMain');
    grid.headClick(1);
    const sorted = db.query('Select Description From tblDataSource Order By Description').map(r => r.Description);
    expect(grid.rows.map(r => r[1])).toEqual(sorted);
    expect(grid.currentRow).toBe(0);
    grid.headClick('Id');
    expect(grid.cell(0, 0)).toBe(String(db.query('Select Min(DataSourceID) As M From tblDataSource')[0].M));
});

test('a double click on a row tells its description in a box', () => {
    ui.clearMessages();
    const grid = ui.window('frmRuntimeCheck').control('ssGrdMain');
    grid.dblClickRow(2);
    const boxes = ui.messages();
    expect(boxes.length).toBe(1);
    expect(boxes[0].text).toBe('Data source: ' + grid.cell(2, 1));
    expect(boxes[0].icon).toBe('information');
});

test('a typed value is written back when the row is left', () => {
    const w = ui.window('frmRuntimeCheck');
    const grid = w.control('ssGrdMain');
    grid.selectRow(0);
    const id = Number(grid.cell(0, 0));
    w.control('txtDescription').setText('Checked by script');
    grid.selectRow(1);
    expect(db.query('Select Description From tblDataSource Where DataSourceID = ' + id)[0].Description)
        .toBe('Checked by script');
    expect(grid.cell(0, 1)).toBe('Checked by script');
});

test('a question answered Yes, and one left to its default (No)', () => {
    const w = ui.window('frmRuntimeCheck');
    ui.clearMessages();
    ui.answer('Yes');
    w.control('cmdCheck(1)').click();
    expect(w.control('lblResult').caption).toBe('Answer: Yes');
    w.control('cmdCheck(1)').click();
    expect(w.control('lblResult').caption).toBe('Answer: No');
    const boxes = ui.messages();
    expect(boxes.map(b => b.answer)).toEqual(['Yes', 'No']);
    expect(boxes[0].buttons).toEqual(['Yes', 'No']);
    expect(boxes[0].icon).toBe('question');
    expect(ui.pendingAnswers()).toEqual([]);
});

test('an answer that does not fit a box waits for the box it fits', () => {
    ui.clearMessages();
    ui.answer('Yes');
    ui.window('frmRuntimeCheck').control('ssGrdMain').dblClickRow(0);   // an OK box
    expect(ui.messages()[0].answer).toBe('OK');
    expect(ui.pendingAnswers()).toEqual(['Yes']);
    ui.window('frmRuntimeCheck').control('cmdCheck(1)').click();
    expect(ui.window('frmRuntimeCheck').control('lblResult').caption).toBe('Answer: Yes');
});

test('a button opens a modal window, the script works inside it, its toolbar closes it', () => {
    const w = ui.window('frmRuntimeCheck');
    w.control('cmdCheck(0)').click();
    const dlg = ui.window('frmRuntimeDialog');
    expect(dlg).not.toBeNull();
    expect(dlg.visible).toBeTruthy();
    expect(dlg.control('txtValue').foreColor).toBe(16711680);
    dlg.control('txtValue').setText('42');
    dlg.toolbar().click('OK');
    expect(ui.windows()).not.toContain('frmRuntimeDialog');
    expect(w.control('lblResult').caption).toBe('Dialog: OK:42');
    w.toolbar().click(1);
    ui.window('frmRuntimeDialog').toolbar().click(2);
    expect(w.control('lblResult').caption).toBe('Dialog: Cancel');
});

test('two help requests in a row each show the topic asked for', () => {
    ui.menu('mnuContents').trigger();
    expect(ui.helpTopic()).toBe(1501);
    expect(ui.window('HelpViewer').control('txtTopic').text).toContain('Contents');
    ui.window('frmRuntimeCheck').toolbar().click('Help');
    expect(ui.helpTopic()).toBe(1000);
    expect(ui.window('HelpViewer').control('txtTopic').text).toContain('Getting started');
    // The launcher unloads itself at the first tick of its timer.
    expect(ui.windows()).not.toContain('frmShowHelp');
});

test('a help number without a page says so', () => {
    ui.showHelp(9999);
    expect(ui.helpTopic()).toBe(9999);
    expect(ui.window('HelpViewer').control('txtTopic').text).toContain('There is no help topic number 9999.');
    ui.showHelp(4002);
    expect(ui.window('HelpViewer').control('txtTopic').text).toContain('Comments Setup');
});

test('the unload logic runs and can refuse', () => {
    ui.answer('No');
    ui.window('frmRuntimeCheck').close();
    expect(ui.windows()).toContain('frmRuntimeCheck');
    ui.answer('Yes');
    ui.window('frmRuntimeCheck').toolbar().click('Close');
    expect(ui.windows()).not.toContain('frmRuntimeCheck');
});

test('a failing statement throws into the script', () => {
    expect(() => db.exec('Delete * From tblNoSuchTable')).toThrow();
    expect(db.exec("Update tblUser Set PathExport = 'x' Where User = 'tester'")).toBe(1);
});

test('a picture of a window can be written', () => {
    ui.show('frmSplash');
    const path = session.home + '/splash.png';
    expect(ui.window('frmSplash').grab(path)).toBeTruthy();
    expect(fs.exists(path)).toBeTruthy();
    ui.window('frmSplash').keyDown(27);
});
