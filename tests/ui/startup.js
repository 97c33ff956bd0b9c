// A new user's first start: the welcome box word for word, the user's rows and folders, the setup
// window, the caption, the splash loaded but hidden and how it closes, the main menu with its captions
// and enabled states, the About box, help, and no trace file at level 0.

const CRLF = '\r\n';
const sep = session.home.indexOf('\\') >= 0 ? '\\' : '/';
const base = session.home + sep + 'tester';

test('the welcome box is shown once, word for word, as information with the default title', () => {
    const welcome = ui.messages().filter(m => m.text.indexOf('Welcome') === 0);
    expect(welcome.length).toBe(1);
    expect(welcome[0].text).toBe(
        'Welcome to ZOB.  You are a new user.  ' + CRLF
        + 'Please complete ZOB Setup Information before proceeding.' + CRLF
        + CRLF
        + 'Add User Information on the User Setup tab. ' + CRLF
        + 'Add default comments on the Comments Setup tab. ' + CRLF
        + 'Add Report header default values on the Report Setup tab.  ' + CRLF
        + CRLF
        + 'Thank you!');
    expect(welcome[0].icon).toBe('information');
    expect(welcome[0].title).toBe('');
    expect(welcome[0].buttons).toEqual(['OK']);
    // Nothing else was said at start-up.
    expect(ui.messages().length).toBe(1);
});

test('the new user has one tblUser row with the paths of his folders', () => {
    expect(session.user).toBe('tester');
    expect(session.userId).toBeGreaterThan(0);
    const rows = db.query("Select * From tblUser Where User = 'tester'");
    expect(rows.length).toBe(1);
    const u = rows[0];
    expect(u.UserID).toBe(session.userId);
    expect(u.User).toBe('tester');
    // The row names the database file as it is spelled on disk (this file system keeps case).
    expect(u.PathDatabase).toBe(session.home + sep + 'ZOB.sqlite');
    expect(u.PathExport).toBe(session.home + sep + 'Export');
    expect(u.PathProject).toBe(base + sep + 'Project');
    expect(u.PathScenario).toBe(base + sep + 'Scenario');
    expect(u.PathReport).toBe(base + sep + 'Report');
});

test('the new user has the four default comments in their order', () => {
    const rows = db.query('Select * From tblComments Where UserID = ' + session.userId);
    expect(rows.map(r => r.Comment)).toEqual(['Rationale', 'Quality', 'Assumptions', 'Uncertainty']);
});

test('the user folder and its three sub-folders are made, the export folder is not', () => {
    for (const f of ['tester', 'tester/Project', 'tester/Scenario', 'tester/Report'])
        expect(fs.exists(f)).toBeTruthy();
    expect(fs.exists('Export')).toBeFalsy();
    expect(fs.exists('tester/Export')).toBeFalsy();
    expect(fs.list('tester/Project').length).toBe(0);
});

test('a new user lands in the setup window, not in the project list', () => {
    const setup = ui.window('frmSetup');
    expect(setup).not.toBeNull();
    expect(setup.visible).toBeTruthy();
    expect(setup.caption).toBe('System Setup');
    expect(ui.windows()).not.toContain('frmProjectList');
    expect(ui.windows()).not.toContain('frmProject');
    expect(ui.cursor()).toBe('default');
});

test('the main window carries the version in its caption', () => {
    expect(ui.window('frmMDI').caption).toBe('Zobrel (Version: 1.0.0)');
});

test('the start of a new user leaves the splash loaded but hidden', () => {
    expect(ui.windows()).toContain('frmSplash');
    expect(ui.window('frmSplash').visible).toBeFalsy();
});

test('the main menu carries its captions; the project commands wait for a project window', () => {
    const captions = {
        mnuIniSetup: '&Setup...', mnuExit: 'E&xit', mnuProject: 'Project',
        'mnuProjectOptions(0)': 'New...', 'mnuProjectOptions(1)': 'Open...', 'mnuProjectOptions(2)': 'Close',
        'mnuProjectOptions(4)': '&Save', 'mnuProjectOptions(5)': 'Save &As...',
        mnuReferences: 'References', mnuWldDE: 'Wildlife Data Entry', mnuWLDGenericData: 'Generic Data Entry',
        mnuIntakeModel: 'Allometric Equations', mnuAE: 'Assimilation Efficiency', mnuGE: 'Gross Energy',
        mnuWaterConversion: 'Moisture', mnuSoilIngestion: 'Soil Ingestion', mnuTrophicLevel: 'Trophic Level',
        mnuLifeStage: 'Life History', mnuContents: '&Contents', mnuAboutTORM: '&About ...'};
    for (const name of Object.keys(captions)) {
        const item = ui.menu(name);
        expect(item).not.toBeNull();
        expect(item.caption).toBe(captions[name]);
    }
    for (const i of [2, 4, 5])
        expect(ui.menu('mnuProjectOptions(' + i + ')').enabled).toBeFalsy();
    for (const name of ['mnuIniSetup', 'mnuExit', 'mnuProject', 'mnuProjectOptions(0)', 'mnuProjectOptions(1)',
                        'mnuContents', 'mnuAboutTORM'])
        expect(ui.menu(name).enabled).toBeTruthy();
});

test('the splash closes on Escape, on a click on its picture and on Escape in a control; each show makes it anew', () => {
    ui.show('frmSplash');
    expect(ui.window('frmSplash').visible).toBeTruthy();
    ui.window('frmSplash').keyDown(27);
    expect(ui.windows()).not.toContain('frmSplash');
    ui.show('frmSplash');
    ui.window('frmSplash').control('imgSplash').click();
    expect(ui.windows()).not.toContain('frmSplash');
    ui.show('frmSplash');
    expect(ui.windows()).toContain('frmSplash');
    ui.window('frmSplash').control('lblProduct').keyDown(27);
    expect(ui.windows()).not.toContain('frmSplash');
});

test('About is modal over the main window, closes on Escape and is unloaded', () => {
    ui.clearMessages();
    ui.menu('mnuAboutTORM').trigger();
    // The script goes on inside the modal showing.
    const splash = ui.window('frmSplash');
    expect(splash).not.toBeNull();
    expect(splash.visible).toBeTruthy();
    expect(splash.control('lblProductName').caption).toBe('Zobrel 1.0');
    expect(splash.control('lblProduct').caption).toBe('ZOB');
    splash.keyDown(27);
    expect(ui.window('frmSplash')).toBeNull();
    expect(ui.windows()).not.toContain('frmSplash');
    expect(ui.messages().length).toBe(0);
    // A second About works the same way: the window is made anew.
    ui.menu('mnuAboutTORM').trigger();
    expect(ui.window('frmSplash').visible).toBeTruthy();
    ui.window('frmSplash').click();
    expect(ui.window('frmSplash')).toBeNull();
    // The About box has an OK button that closes it.
    ui.menu('mnuAboutTORM').trigger();
    expect(ui.window('frmSplash').control('cmdOK').caption).toBe('OK');
    ui.window('frmSplash').control('cmdOK').click();
    expect(ui.window('frmSplash')).toBeNull();
    // The GUI answers again: the modal loop has returned.
    expect(ui.window('frmMDI').caption).toContain('Zobrel');
});

test('Setup... shows the one setup window again', () => {
    ui.window('frmSetup').close();
    expect(ui.windows()).not.toContain('frmSetup');
    ui.menu('mnuIniSetup').trigger();
    expect(ui.window('frmSetup').visible).toBeTruthy();
    expect(ui.windows().filter(n => n === 'frmSetup').length).toBe(1);
});

test('at trace level 0 no diag.txt appears, even after traced work', () => {
    ui.menu('mnuProjectOptions(1)').trigger();         // the chooser's load writes a trace line at level 1
    const chooser = ui.window('frmSearch_File');
    expect(chooser).not.toBeNull();
    chooser.control('cmdControl(1)').click();
    expect(fs.exists('diag.txt')).toBeFalsy();
    expect(fs.exists('Diag.txt')).toBeFalsy();
});
