// runs: twice
// The same user starts twice in the same folder. The first start makes him and leaves a project
// behind; before the second start the runner puts the file "second-start" into the program folder.

const secondStart = fs.exists('second-start');

if (!secondStart) {
    test('first start: a new user is welcomed and gets the setup window', () => {
        expect(ui.messages().filter(m => m.text.indexOf('Welcome to ZOB.') === 0).length).toBe(1);
        expect(ui.window('frmSetup').visible).toBeTruthy();
        expect(ui.windows()).not.toContain('frmProjectList');
    });

    test('first start: the user stores a project through the chooser', () => {
        ui.window('frmSetup').close();
        ui.menu('mnuProjectOptions(0)').trigger();
        const p = ui.window('frmProject');
        p.control('txtProject(0)').setText('Heron Marsh');
        p.toolbar().click('Save');
        const chooser = ui.window('frmSearch_File');
        chooser.control('txtSelectedFile').setText('heron');
        chooser.control('cmdControl(0)').click();
        expect(db.query("Select * from tblProject where Name = 'Heron Marsh'").length).toBe(1);
        expect(fs.exists('tester/Project/heron.NAV')).toBeTruthy();
    });

    test('first start: the stored spelling of the name is changed for the next start', () => {
        expect(db.exec("Update tblUser Set User = 'TesTer' Where UserID = " + session.userId)).toBe(1);
    });
} else {
    test('second start: a known user is not welcomed and gets the project list', () => {
        expect(ui.messages().length).toBe(0);
        const list = ui.window('frmProjectList');
        expect(list).not.toBeNull();
        expect(list.visible).toBeTruthy();
        expect(ui.windows()).not.toContain('frmSetup');
        expect(ui.windows()).not.toContain('frmSplash');
    });

    test('second start: no second user row, comments or folders are made', () => {
        expect(db.query('Select * from tblUser').length).toBe(1);
        expect(db.query('Select * from tblComments where UserID = ' + session.userId).length).toBe(4);
        expect(session.userId).toBe(db.query("Select UserID from tblUser where User = 'tester'")[0].UserID);
    });

    test('second start: a login that differs only in case is the same user, with the stored spelling', () => {
        expect(session.user).toBe('TesTer');
    });

    test('second start: the list shows the project of the first start without the empty-list label', () => {
        const list = ui.window('frmProjectList');
        expect(list.control('lblNoRecords').visible).toBeFalsy();
        const grid = list.control('ssGrdMain');
        expect(grid.rowCount).toBe(1);
        expect(grid.rows[0]).toContain('Heron Marsh');
    });

    test('second start: Open on the list shows the project window with its name', () => {
        const list = ui.window('frmProjectList');
        list.control('ssGrdMain').selectRow(0);
        list.toolbar().click(4);
        const p = ui.window('frmProject');
        expect(p.visible).toBeTruthy();
        expect(p.control('txtProject(0)').text).toBe('Heron Marsh');
        expect(session.project.Mode).toBe('Edit');
        expect(ui.menu('mnuProjectOptions(4)').enabled).toBeTruthy();
    });
}
