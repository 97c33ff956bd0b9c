// "Close" of the Project menu ends the program at once: the open project window with unsaved text is
// not saved, no chooser and no question appear. The script sees its call end with the program.

test('Close ends the program without asking anything', () => {
    ui.window('frmSetup').close();
    ui.menu('mnuProjectOptions(0)').trigger();
    ui.window('frmProject').control('txtProject(0)').setText('Never stored');
    ui.clearMessages();
    let ended = false;
    try {
        ui.menu('mnuProjectOptions(2)').trigger();
    } catch (e) {
        ended = String(e).indexOf('the program is ending') >= 0;
    }
    expect(ended).toBeTruthy();
});
