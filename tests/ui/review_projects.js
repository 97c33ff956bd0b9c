// Projects from outside: the required name, the first save through the chooser with its marker file,
// the quiet second save, "Save As..." doing nothing, reopening through the chooser, clearing the
// project window, linking a scenario twice, and deleting from the list by the Delete key.

const CRLF = '\r\n';
const texts = () => ui.messages().map(m => m.text);
const markerLines = file => fs.read('tester/Project/' + file).split(/\r?\n/).filter(l => l.length);
const projects = name => db.query("Select * from tblProject where Name = '" + name + "'");

function saveThroughChooser(fileName) {
    ui.window('frmProject').toolbar().click('Save');
    const chooser = ui.window('frmSearch_File');
    expect(chooser).not.toBeNull();
    chooser.control('txtSelectedFile').setText(fileName);
    chooser.control('cmdControl(0)').click();
    expect(ui.windows()).not.toContain('frmSearch_File');
}

test('a project without a name gets the warning word for word and is not stored', () => {
    ui.window('frmSetup').close();
    db.exec("Update tblUser Set Name = 'Ann Reviewer' Where UserID = " + session.userId);
    ui.menu('mnuProjectOptions(0)').trigger();
    const p = ui.window('frmProject');
    expect(p.visible).toBeTruthy();
    expect(session.project.Mode).toBe('Add');
    expect(p.control('txtProject(2)').text).toBe('Ann Reviewer');
    expect(p.control('txtProject(0)').text).toBe('');
    ui.clearMessages();
    p.toolbar().click('Save');
    expect(ui.messages().length).toBe(1);
    expect(ui.messages()[0].text).toBe('Please add a value for all required field(s)-(Project Name)');
    expect(ui.messages()[0].icon).toBe('warning');
    expect(ui.windows()).not.toContain('frmSearch_File');
    expect(db.query('Select * from tblProject').length).toBe(0);
    expect(fs.list('tester/Project').length).toBe(0);
    expect(ui.cursor()).toBe('default');
});

test('the menu save is the same command, and the project commands are on with the window', () => {
    for (const i of [2, 4, 5])
        expect(ui.menu('mnuProjectOptions(' + i + ')').enabled).toBeTruthy();
    ui.clearMessages();
    ui.menu('mnuProjectOptions(4)').trigger();
    expect(texts()).toEqual(['Please add a value for all required field(s)-(Project Name)']);
});

test('the first save goes through the chooser, stores the row and writes the one-line marker file', () => {
    const p = ui.window('frmProject');
    p.control('txtProject(0)').setText('Otter Creek');
    p.control('txtProject(1)').setText('River otters below the mill');
    p.control('txtProject(3)').setText('44.5');
    p.control('txtProject(4)').setText('-72.1');
    p.control('txtProject(5)').setText('Mill reach');
    p.control('txtProject(6)').setText('first pass');
    ui.clearMessages();
    p.toolbar().click('Save');
    const chooser = ui.window('frmSearch_File');
    expect(chooser.caption).toBe('Open/Save Project');
    chooser.control('txtSelectedFile').setText('otter');
    chooser.control('cmdControl(0)').click();
    expect(ui.messages().length).toBe(1);
    expect(ui.messages()[0].text).toBe('Project has been saved successfully');
    expect(ui.messages()[0].icon).toBe('information');

    const rows = projects('Otter Creek');
    expect(rows.length).toBe(1);
    const r = rows[0];
    expect(r.Purpose).toBe('River otters below the mill');
    expect(r.Author).toBe('Ann Reviewer');
    expect(r.Latitude).toBe('44.5');
    expect(r.Longitude).toBe('-72.1');
    expect(r.Location).toBe('Mill reach');
    expect(r.Comments).toBe('first pass');
    expect(r.FileName).toBe('otter.NAV');
    expect(session.project.PID).toBe(r.ProjectID);
    expect(session.project.Mode).toBe('Edit');

    const lines = markerLines('otter.NAV');
    expect(lines.length).toBe(1);
    const m = /^Project ID: (\d+), Project Name: (.*), Project Author: (.*), Project Purpose: (.*), Date last modified: (.+),$/
        .exec(lines[0]);
    expect(m).not.toBeNull();
    expect(Number(m[1])).toBe(r.ProjectID);
    expect(m[2]).toBe('Otter Creek');
    expect(m[3]).toBe('Ann Reviewer');
    expect(m[4]).toBe('River otters below the mill');
    expect(m[5]).toContain(String(new Date().getFullYear()));
    expect(fs.list('tester/Project')).toEqual(['otter.NAV']);
});

test('the second save shows no message, asks for no file and rewrites the marker file', () => {
    const p = ui.window('frmProject');
    p.control('txtProject(1)').setText('Otters and mink below the mill');
    ui.clearMessages();
    p.toolbar().click('Save');
    expect(ui.messages().length).toBe(0);
    expect(ui.windows()).not.toContain('frmSearch_File');
    expect(projects('Otter Creek').length).toBe(1);
    expect(projects('Otter Creek')[0].Purpose).toBe('Otters and mink below the mill');
    expect(markerLines('otter.NAV')[0]).toContain(', Project Purpose: Otters and mink below the mill, ');
});

test('"Save As..." does nothing', () => {
    const before = {
        windows: ui.windows().slice().sort(), file: fs.read('tester/Project/otter.NAV'),
        rows: JSON.stringify(db.query('Select * from tblProject')), files: fs.list('tester/Project')};
    ui.clearMessages();
    ui.menu('mnuProjectOptions(5)').trigger();
    expect(ui.messages().length).toBe(0);
    expect(ui.windows().slice().sort()).toEqual(before.windows);
    expect(fs.read('tester/Project/otter.NAV')).toBe(before.file);
    expect(JSON.stringify(db.query('Select * from tblProject'))).toBe(before.rows);
    expect(fs.list('tester/Project')).toEqual(before.files);
});

test('Open... clears the text boxes and combo of the project window and leaves labels and buttons alone', () => {
    const p = ui.window('frmProject');
    const buttonsBefore = [0, 1, 2, 3, 4, 5, 6].map(i => p.control('cmdScenario(' + i + ')').enabled);
    ui.menu('mnuProjectOptions(1)').trigger();
    const chooser = ui.window('frmSearch_File');
    expect(chooser).not.toBeNull();
    for (let i = 0; i <= 6; ++i)
        expect(p.control('txtProject(' + i + ')').text).toBe('');
    expect(p.control('cboStateProvince').text).toBe('');
    expect(p.control('txtScenarioDescription').text).toBe('');
    expect([0, 1, 2, 3, 4, 5, 6].map(i => p.control('cmdScenario(' + i + ')').enabled)).toEqual(buttonsBefore);
    expect(p.control('cmdScenario(2)').caption).toBe('Close');
    expect(session.project.PID).toBe(0);
    expect(session.project.Mode).toBe('Edit');
    chooser.control('cmdControl(1)').click();
});

test('the chooser shows the marker file\'s four items in the description box before the project opens', () => {
    ui.menu('mnuProjectOptions(1)').trigger();
    const chooser = ui.window('frmSearch_File');
    expect(chooser.caption).toBe('Open/Save Project');
    expect(chooser.control('FileMain').items).toEqual(['otter.NAV']);
    chooser.control('FileMain').select('otter.NAV');
    const info = chooser.control('txtInfo').text.split(CRLF);
    expect(info.length).toBe(5);
    expect(info[0]).toBe(' Project Name: Otter Creek');
    expect(info[1]).toBe(' Project Author: Ann Reviewer');
    expect(info[2]).toBe(' Project Purpose: Otters and mink below the mill');
    expect(info[3].indexOf(' Date last modified: ')).toBe(0);
    expect(info[4]).toBe('');
    const pid = projects('Otter Creek')[0].ProjectID;
    expect(session.project.PID).toBe(pid);
    chooser.control('cmdControl(0)').click();
    const p = ui.window('frmProject');
    expect(p.control('txtProject(0)').text).toBe('Otter Creek');
    expect(p.control('txtProject(1)').text).toBe('Otters and mink below the mill');
    expect(p.control('txtProject(2)').text).toBe('Ann Reviewer');
    expect(p.control('cmdScenario(0)').enabled).toBeTruthy();
    expect(session.project.PID).toBe(pid);
});

test('a comma in the purpose shifts the items of the description box, and only four are shown', () => {
    const p = ui.window('frmProject');
    p.control('txtProject(1)').setText('Otters, mink');
    p.toolbar().click('Save');
    ui.menu('mnuProjectOptions(1)').trigger();
    const chooser = ui.window('frmSearch_File');
    chooser.control('FileMain').select('otter.NAV');
    const info = chooser.control('txtInfo').text.split(CRLF);
    expect(info.slice(0, 4)).toEqual(
        [' Project Name: Otter Creek', ' Project Author: Ann Reviewer', ' Project Purpose: Otters', ' mink']);
    expect(info.length).toBe(5);
    chooser.control('cmdControl(0)').click();
});

test('linking the same scenario twice says so word for word and leaves one row', () => {
    const p = ui.window('frmProject');
    const pid = session.project.PID;
    p.control('cmdScenario(3)').click();
    expect(ui.cursor()).toBe('default');
    const links = db.query('Select * from jtblProjectScenario where ProjectID = ' + pid);
    expect(links.length).toBe(1);
    const sid = links[0].ScenarioID;
    const grid = p.control('ssGrdProjectScenarios');
    expect(grid.rowCount).toBe(1);
    grid.selectRow(0);
    expect(session.scenario.SID).toBe(sid);

    // A second project takes the scenario by Link; the second Link is refused.
    p.toolbar().click('Close');
    ui.menu('mnuProjectOptions(0)').trigger();
    ui.window('frmProject').control('txtProject(0)').setText('Beaver Pond');
    saveThroughChooser('beaver');
    const pid2 = projects('Beaver Pond')[0].ProjectID;
    const q = ui.window('frmProject');
    const linked = () => db.query('Select * from jtblProjectScenario where ProjectID = ' + pid2 + ' and ScenarioID = ' + sid);
    ui.clearMessages();
    q.control('cmdScenario(0)').click();
    ui.window('frmSearch_File').control('cmdControl(1)').click();
    expect(ui.messages().length).toBe(0);
    expect(linked().length).toBe(1);
    expect(q.control('ssGrdProjectScenarios').rowCount).toBe(1);
    q.control('cmdScenario(0)').click();
    ui.window('frmSearch_File').control('cmdControl(1)').click();
    expect(texts()).toEqual(['This scenario is already linked to the project. ']);
    expect(linked().length).toBe(1);
    expect(ui.cursor()).toBe('default');
    q.toolbar().click('Close');
});

test('Delete in the list asks with No as default; No keeps the project and its file', () => {
    ui.menu('mnuProject').trigger();
    const list = ui.window('frmProjectList');
    const grid = list.control('ssGrdMain');
    expect(grid.rowCount).toBe(2);
    const row = grid.rows.findIndex(r => r.indexOf('Beaver Pond') >= 0);
    grid.selectRow(row);
    ui.clearMessages();
    grid.keyDown(46);
    const boxes = ui.messages();
    expect(boxes.length).toBe(1);
    expect(boxes[0].text).toBe('Are you sure you want to delete this record ?');
    expect(boxes[0].icon).toBe('question');
    expect(boxes[0].buttons).toEqual(['Yes', 'No']);
    expect(boxes[0].answer).toBe('No');
    expect(projects('Beaver Pond').length).toBe(1);
    expect(fs.exists('tester/Project/beaver.NAV')).toBeTruthy();
});

test('Yes deletes the marker file and the row, and leaves the scenario links', () => {
    const grid = ui.window('frmProjectList').control('ssGrdMain');
    const pid2 = projects('Beaver Pond')[0].ProjectID;
    ui.clearMessages();
    ui.answer('Yes');
    grid.keyDown(46);
    expect(ui.messages().length).toBe(1);
    expect(fs.exists('tester/Project/beaver.NAV')).toBeFalsy();
    expect(projects('Beaver Pond').length).toBe(0);
    expect(grid.rowCount).toBe(1);
    expect(grid.rows[0]).toContain('Otter Creek');
    expect(db.query('Select * from jtblProjectScenario where ProjectID = ' + pid2).length).toBe(1);
});

test('with its marker file missing the row stays and the error shows in the developer form', () => {
    db.exec("Update tblProject Set FileName = 'gone.NAV' Where Name = 'Otter Creek'");
    const list = ui.window('frmProjectList');
    list.close();
    ui.menu('mnuProject').trigger();
    const grid = ui.window('frmProjectList').control('ssGrdMain');
    grid.selectRow(0);
    ui.clearMessages();
    ui.answer('Yes');
    grid.keyDown(46);
    const boxes = ui.messages();
    expect(boxes.length).toBe(2);
    expect(boxes[1].title).toBe('System Developer Message');
    expect(boxes[1].buttons).toEqual(['OK']);
    const parts = boxes[1].text.split(CRLF);
    expect(parts.length).toBe(3);
    expect(/^\d+$/.test(parts[0])).toBeTruthy();
    expect(parts[2]).toBe('Error in frmZOB.ssGrdMain_KeyDown');
    expect(projects('Otter Creek').length).toBe(1);
    expect(fs.exists('tester/Project/otter.NAV')).toBeTruthy();
    expect(grid.rowCount).toBe(1);
    expect(ui.cursor()).toBe('default');
});

test('the chooser names a saved file by the typed text plus the type, and OK takes an empty box too', () => {
    ui.menu('mnuProjectOptions(0)').trigger();
    ui.window('frmProject').control('txtProject(0)').setText('Kingfisher Bend');
    saveThroughChooser('kingfisher.NAV');
    expect(projects('Kingfisher Bend')[0].FileName).toBe('kingfisher.NAV.NAV');
    expect(fs.exists('tester/Project/kingfisher.NAV.NAV')).toBeTruthy();
    ui.window('frmProject').toolbar().click('Close');

    ui.menu('mnuProjectOptions(0)').trigger();
    ui.window('frmProject').control('txtProject(0)').setText('Nameless File');
    ui.clearMessages();
    saveThroughChooser('');
    expect(texts()).toEqual(['Project has been saved successfully']);
    expect(projects('Nameless File')[0].FileName).toBe('.NAV');
    expect(fs.exists('tester/Project/.NAV')).toBeTruthy();
    ui.window('frmProject').toolbar().click('Close');
});
