// A new user's first start: the welcome message, the splash loaded, and the splash closed by Escape.

test('a new user is welcomed with an information box', () => {
    const boxes = ui.messages();
    const welcome = boxes.filter(m => m.text.indexOf('Welcome to ZOB.') === 0);
    expect(welcome.length).toBe(1);
    expect(welcome[0].icon).toBe('information');
    expect(welcome[0].text).toContain('You are a new user.');
    expect(welcome[0].text).toContain('Thank you!');
    expect(welcome[0].buttons).toEqual(['OK']);
});

test('the new user has his row and his folders', () => {
    expect(session.user).toBe('tester');
    expect(session.userId).toBeGreaterThan(0);
    const rows = db.query("Select * From tblUser Where User = 'tester'");
    expect(rows.length).toBe(1);
    expect(fs.exists('tester/Project')).toBeTruthy();
    expect(fs.exists('tester/Report')).toBeTruthy();
});

test('the main window carries the version in its caption', () => {
    expect(ui.window('frmMDI').caption).toBe('Zobrel (Version: 1.0.0)');
});

test('the start of a new user leaves the splash loaded but hidden', () => {
    expect(ui.windows()).toContain('frmSplash');
    expect(ui.window('frmSplash').visible).toBeFalsy();
});

test('the splash shows the product captions and closes on Escape', () => {
    ui.show('frmSplash');
    const splash = ui.window('frmSplash');
    expect(splash).not.toBeNull();
    expect(splash.visible).toBeTruthy();
    expect(splash.control('lblProductName').caption).toBe('Zobrel 1.0');
    expect(splash.control('lblProduct').caption).toBe('ZOB');
    splash.keyDown(27);
    expect(ui.windows()).not.toContain('frmSplash');
    expect(ui.window('frmSplash')).toBeNull();
});

test('a click on the picture closes the splash, and the next reference makes it anew', () => {
    ui.show('frmSplash');
    ui.window('frmSplash').control('imgSplash').click();
    expect(ui.windows()).not.toContain('frmSplash');
    ui.show('frmSplash');
    expect(ui.windows()).toContain('frmSplash');
    ui.window('frmSplash').control('lblProduct').keyDown(27);
    expect(ui.windows()).not.toContain('frmSplash');
});

test('About shows the splash modally and Escape ends the modal showing', () => {
    ui.menu('mnuAboutTORM').trigger();
    const splash = ui.window('frmSplash');
    expect(splash.visible).toBeTruthy();
    splash.keyDown(27);
    expect(ui.window('frmSplash')).toBeNull();
    // The GUI answers again: the modal loop has returned.
    expect(ui.window('frmMDI').caption).toContain('Zobrel');
});

test('the pointer is the default after start-up', () => {
    expect(ui.cursor()).toBe('default');
});
