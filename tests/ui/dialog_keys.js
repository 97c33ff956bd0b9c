// The keys of a dialog box in every window the runtime hosts: Enter presses the window's default
// button when no control takes it, Escape its cancel or close button, Ctrl+Tab / Ctrl+Shift+Tab and
// Ctrl+PgDn / Ctrl+PgUp turn the pages of a tab strip, and F1 shows the help of the control that has
// the focus.

const CTRL = 2, SHIFT = 1;

test('Ctrl+Tab and Ctrl+PgDn turn the setup pages forward, with Shift or PgUp back, round the ends', () => {
    const setup = ui.window('frmSetup');
    const tabs = setup.control('ssTabSetup');
    tabs.selectTab(0);
    setup.control('Path(0)').keyDown(9, CTRL);
    expect(tabs.currentTab).toBe(1);
    setup.control('ssGrdMain').keyDown(34, CTRL);
    expect(tabs.currentTab).toBe(2);
    setup.control('ssGrdUser').keyDown(9, CTRL | SHIFT);
    expect(tabs.currentTab).toBe(1);
    tabs.selectTab(0);
    setup.control('Path(0)').keyDown(33, CTRL);
    expect(tabs.currentTab).toBe(4);
    setup.control('LstTables').keyDown(34, CTRL);
    expect(tabs.currentTab).toBe(0);
    // Without Ctrl, Tab stays a move between controls.
    setup.control('Path(0)').keyDown(9);
    expect(tabs.currentTab).toBe(0);
});

test('F1 shows the help of the focused control, or of the window', () => {
    ui.window('frmSetup').close();
    ui.menu('mnuProject').trigger();
    ui.window('frmProjectList').toolbar().click('New');
    const p = ui.window('frmProject');
    p.control('txtScenarioDescription').keyDown(112);
    expect(ui.helpTopic()).toBe(3509);
    p.control('txtProject(0)').keyDown(112);
    expect(ui.helpTopic()).toBe(3512);
});

test('in the file chooser Enter in the name box presses OK, and Escape closes it with no file', () => {
    const p = ui.window('frmProject');
    p.control('txtProject(0)').setText('Keys Project');
    p.toolbar().click('Save');
    let chooser = ui.window('frmSearch_File');
    chooser.control('txtSelectedFile').setText('keys');
    chooser.control('txtSelectedFile').keyDown(13);
    expect(ui.windows()).not.toContain('frmSearch_File');
    expect(db.query("Select FileName from tblProject where Name = 'Keys Project'")[0].FileName).toBe('keys.NAV');

    ui.menu('mnuProjectOptions(1)').trigger();
    chooser = ui.window('frmSearch_File');
    chooser.control('FileMain').keyDown(27);
    expect(ui.windows()).not.toContain('frmSearch_File');
});

test('in the folder chooser Escape presses Cancel, and Enter that no control takes presses OK', () => {
    ui.menu('mnuIniSetup').trigger();
    const setup = ui.window('frmSetup');
    setup.control('ssTabSetup').selectTab(0);
    const before = setup.control('Path(2)').text;
    setup.control('cmdPath(2)').click();
    ui.window('frmGetDir').control('dirMain').keyDown(27);
    expect(ui.window('frmGetDir')).toBeNull();
    expect(setup.control('Path(2)').text).toBe(before);

    setup.control('cmdPath(2)').click();
    ui.window('frmGetDir').control('txtDir').setText(session.home + '/tester');
    ui.window('frmGetDir').control('txtDir').keyDown(13);
    // Enter in the folder list opens the folder; on the window it is the default button's.
    ui.window('frmGetDir').control('dirMain').focus();
    ui.window('frmGetDir').keyDown(13);
    expect(ui.window('frmGetDir')).toBeNull();
    expect(setup.control('Path(2)').text).toBe(session.home + '/tester');
});

test('Escape closes the setup window through its Close command, and the zoom box without keeping the text', () => {
    ui.window('frmSetup').control('Path(0)').keyDown(27);
    expect(ui.window('frmSetup')).toBeNull();

    const p = ui.window('frmProject');
    p.control('txtProject(1)').setText('Pond');
    p.control('txtProject(1)').dblClick();
    ui.window('frmZoom').control('txtZoom').setText('Pond and marsh');
    ui.window('frmZoom').control('txtZoom').keyDown(27);
    expect(ui.window('frmZoom')).toBeNull();
    expect(p.control('txtProject(1)').text).toBe('Pond');
});
