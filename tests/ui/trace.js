// options: --diag 1
// At trace level 1 the chooser's load writes its success line, tabbed, into diag.txt, and each later
// load appends one more; the trace does not disturb the window.

const lines = () => fs.read('diag.txt').split(/\r?\n/).filter(l => l.length);

test('start-up at level 1 writes no line of its own', () => {
    expect(fs.exists('diag.txt')).toBeFalsy();
});

test('each load of the file chooser appends its success line', () => {
    ui.window('frmSetup').close();
    ui.menu('mnuProjectOptions(1)').trigger();
    ui.window('frmSearch_File').control('cmdControl(1)').click();
    expect(fs.exists('diag.txt')).toBeTruthy();
    expect(lines().length).toBe(1);
    const parts = lines()[0].split('\t');
    expect(parts.length).toBe(2);
    expect(parts[0]).toContain(String(new Date().getFullYear()));
    expect(parts[1]).toBe('frmSearch_File.Load successful :) ');

    ui.menu('mnuProjectOptions(1)').trigger();
    ui.window('frmSearch_File').control('cmdControl(1)').click();
    expect(lines().length).toBe(2);
    expect(lines()[1].split('\t')[1]).toBe('frmSearch_File.Load successful :) ');
    expect(ui.messages().filter(m => m.icon === 'stop').length).toBe(0);
    expect(ui.cursor()).toBe('default');
});
