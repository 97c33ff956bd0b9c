// Projects: the empty list, the required name, the first save through the chooser with its marker
// file, the quiet second save, the zoomed description, "Save As..." doing nothing, reopening through the
// chooser, clearing the project window, scenarios linked, linked twice and unlinked, the sorted list, and
// deleting from the list by the Delete key with and without the marker file.

const CRLF = '\r\n';
const texts = () => ui.messages().map(m => m.text);
const projectFolder = () => session.home + '/tester/Project';
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

test('the project list of a user without projects shows the label; Open fails into the error box', () => {
    ui.window('frmSetup').close();
    db.exec("Update tblUser Set Name = 'Ann Reviewer' Where UserID = " + session.userId);
    ui.menu('mnuProject').trigger();
    const list = ui.window('frmProjectList');
    expect(list.control('lblNoRecords').visible).toBeTruthy();
    expect(list.control('lblNoRecords').caption).toBe('No projects: Click the new [blank page] icon to add a project.');
    ui.clearMessages();
    list.toolbar().click(4);
    expect(ui.messages().map(m => m.text.indexOf('Error in routine TB_MDI_ButtonClick'))).toEqual([0]);
    expect(ui.windows()).not.toContain('frmProject');
});

test('the chooser lists files by the row of its type list, not by the row\'s words', () => {
    ui.menu('mnuProjectOptions(1)').trigger();
    const chooser = ui.window('frmSearch_File');
    chooser.control('lstFileType').select('All(*.*)');
    expect(chooser.control('FileMain').items).toEqual([]);
    chooser.control('lstFileType').select('Project Wildlife File(*.NAV)');
    expect(chooser.control('FileMain').items).toEqual([]);
    expect(chooser.control('drvMain').items).toContain('/');
    chooser.control('cmdHelp').click();
    expect(ui.helpTopic()).toBe(3504);
    chooser.control('cmdControl(1)').click();
    expect(ui.windows()).not.toContain('frmProject');
});

test('a project without a name gets the warning word for word and is not stored', () => {
    ui.window('frmProjectList').toolbar().click(2);
    const p = ui.window('frmProject');
    expect(p.visible).toBeTruthy();
    expect(session.project.Mode).toBe('Add');
    expect(p.control('txtProject(2)').text).toBe('Ann Reviewer');
    expect(p.control('txtProject(0)').text).toBe('');
    expect(p.control('cmdScenario(0)').enabled).toBeTruthy();
    for (const i of [2, 4, 5])
        expect(ui.menu('mnuProjectOptions(' + i + ')').enabled).toBeTruthy();
    ui.clearMessages();
    p.toolbar().click('Save');
    expect(ui.messages().map(m => [m.text, m.icon])).toEqual(
        [['Please add a value for all required field(s)-(Project Name)', 'warning']]);
    expect(ui.windows()).not.toContain('frmSearch_File');
    expect(db.query('Select * from tblProject').length).toBe(0);
    expect(fs.list('tester/Project').length).toBe(0);
    expect(ui.cursor()).toBe('default');
    // The menu's Save is the same command.
    ui.clearMessages();
    ui.menu('mnuProjectOptions(4)').trigger();
    expect(texts()).toEqual(['Please add a value for all required field(s)-(Project Name)']);
});

test('cancelling the chooser at the first save leaves no row and no file', () => {
    const p = ui.window('frmProject');
    p.control('txtProject(0)').setText('Otter Creek');
    p.toolbar().click('Save');
    const chooser = ui.window('frmSearch_File');
    expect(chooser.caption).toBe('Open/Save Project');
    chooser.control('cmdControl(1)').click();
    expect(db.query('Select * from tblProject').length).toBe(0);
    expect(fs.list(projectFolder()).length).toBe(0);
});

test('the first save goes through the chooser, stores the row and writes the one-line marker file', () => {
    const p = ui.window('frmProject');
    p.control('txtProject(1)').setText('River otters below the mill');
    p.control('txtProject(3)').setText('44.5');
    p.control('txtProject(4)').setText('-72.1');
    p.control('txtProject(5)').setText('Mill reach');
    p.control('txtProject(6)').setText('first pass');
    p.control('cboStateProvince').select('Alaska');
    ui.clearMessages();
    p.toolbar().click('Save');
    const chooser = ui.window('frmSearch_File');
    expect(chooser.caption).toBe('Open/Save Project');
    expect(chooser.control('lstFileType').items).toEqual(
        ['All(*.*)', 'Species Scenario File(*.ZOB)', 'Project Wildlife File(*.NAV)']);
    expect(chooser.control('lstFileType').text).toBe('Project Wildlife File(*.NAV)');
    chooser.control('txtSelectedFile').setText('otter');
    chooser.control('cmdControl(0)').click();
    expect(ui.messages().map(m => [m.text, m.icon])).toEqual([['Project has been saved successfully', 'information']]);

    const rows = projects('Otter Creek');
    expect(rows.length).toBe(1);
    const r = rows[0];
    expect([r.Purpose, r.Author, r.Latitude, r.Longitude, r.Location, r.Comments, r.FileName, r.Path]).toEqual(
        ['River otters below the mill', 'Ann Reviewer', '44.5', '-72.1', 'Mill reach', 'first pass', 'otter.NAV', projectFolder()]);
    expect(r.StateProvinceID).toBe(db.query("Select StateProvinceID from tblStateProvince where Description = 'Alaska'")[0].StateProvinceID);
    expect([session.project.PID, session.project.Mode]).toEqual([r.ProjectID, 'Edit']);
    expect(p.caption).toBe('Project: OTTER CREEK');

    const lines = markerLines('otter.NAV');
    expect(lines.length).toBe(1);
    const m = /^Project ID: (\d+), Project Name: (.*), Project Author: (.*), Project Purpose: (.*), Date last modified: (.+),$/
        .exec(lines[0]);
    expect(m && [Number(m[1]), m[2], m[3], m[4]]).toEqual([r.ProjectID, 'Otter Creek', 'Ann Reviewer', 'River otters below the mill']);
    expect(m[5]).toContain(String(new Date().getFullYear()));
    expect(fs.list('tester/Project')).toEqual(['otter.NAV']);
});

test('the second save shows no message, asks for no file and rewrites the marker file', () => {
    const p = ui.window('frmProject');
    p.control('txtProject(1)').setText('Otters below the mill');
    ui.clearMessages();
    p.toolbar().click('Save');
    expect(ui.messages().length).toBe(0);
    expect(ui.windows()).not.toContain('frmSearch_File');
    expect(projects('Otter Creek').map(r => r.Purpose)).toEqual(['Otters below the mill']);
    expect(markerLines('otter.NAV')[0]).toContain(', Project Purpose: Otters below the mill, ');
});

test('the description zooms for editing and comes back into its box', () => {
    const p = ui.window('frmProject');
    p.control('txtProject(1)').dblClick();
    const zoom = ui.window('frmZoom');
    expect(zoom.caption).toBe('Modify Text');
    expect(zoom.control('txtZoom').text).toBe('Otters below the mill');
    zoom.toolbar().click(6);
    zoom.control('txtZoom').setText('Otters and mink below the mill');
    zoom.toolbar().click(4);
    expect(ui.window('frmZoom')).toBeNull();
    expect(p.control('txtProject(1)').text).toBe('Otters and mink below the mill');
});

test('closing the project window saves without a question and the list shows the project', () => {
    ui.clearMessages();
    ui.window('frmProject').toolbar().click('Close');
    expect(ui.messages().length).toBe(0);
    expect(ui.windows()).not.toContain('frmProject');
    expect(ui.menu('mnuProjectOptions(4)').enabled).toBeFalsy();
    expect(db.query('Select Purpose from tblProject')[0].Purpose).toBe('Otters and mink below the mill');
    const list = ui.window('frmProjectList');
    expect(list.control('lblNoRecords').visible).toBeFalsy();
    expect(list.control('ssGrdMain').rowCount).toBe(1);
});

test('Open... shows the marker file\'s four items in the description box before the project opens', () => {
    ui.menu('mnuProjectOptions(1)').trigger();
    const chooser = ui.window('frmSearch_File');
    expect(chooser.caption).toBe('Open/Save Project');
    expect(chooser.control('FileMain').items).toEqual(['otter.NAV']);
    chooser.control('FileMain').select('otter.NAV');
    const info = chooser.control('txtInfo').text.split(CRLF);
    expect([info.length, info[0], info[1], info[2], info[3].indexOf(' Date last modified: '), info[4]]).toEqual(
        [5, ' Project Name: Otter Creek', ' Project Author: Ann Reviewer', ' Project Purpose: Otters and mink below the mill', 0, '']);
    expect(chooser.control('txtSelectedFile').text).toBe(projectFolder() + '/otter.NAV');
    const pid = projects('Otter Creek')[0].ProjectID;
    expect(session.project.PID).toBe(pid);
    chooser.control('cmdControl(0)').click();
    const p = ui.window('frmProject');
    expect([0, 1, 2].map(i => p.control('txtProject(' + i + ')').text)).toEqual(
        ['Otter Creek', 'Otters and mink below the mill', 'Ann Reviewer']);
    expect(p.control('cmdScenario(0)').enabled).toBeTruthy();
    expect([session.project.PID, session.project.Mode]).toEqual([pid, 'Edit']);
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
    expect([session.project.PID, session.project.Mode]).toEqual([0, 'Edit']);
    chooser.control('cmdControl(1)').click();
});

test('a comma in the purpose shifts the items of the description box, and only four are shown', () => {
    ui.menu('mnuProjectOptions(1)').trigger();
    ui.window('frmSearch_File').control('FileMain').select('otter.NAV');
    ui.window('frmSearch_File').control('cmdControl(0)').click();
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

test('new wildlife scenarios join the project; the selected one shows its description', () => {
    const p = ui.window('frmProject');
    const pid = session.project.PID;
    const links = () => db.query('Select * from jtblProjectScenario where ProjectID = ' + pid);
    // Each new scenario opens the builder; closing it unsaved returns to the project, which lists it.
    for (let i = 0; i < 2; ++i) {
        p.control('cmdScenario(3)').click();
        ui.window('frmZOB').toolbar().click('Close');
    }
    expect(links().length).toBe(2);
    for (const link of links())
        expect(db.query('Select * from tblIntakeZOB where ScenarioID = ' + link.ScenarioID).length).toBe(5);
    expect(ui.cursor()).toBe('default');
    const [first, second] = links().map(l => l.ScenarioID);
    db.exec("Update tblWildlife Set ScenarioComments = 'Ducks feeding on the shore' Where ScenarioID = " + second);
    const grid = p.control('ssGrdProjectScenarios');
    expect(grid.rowCount).toBe(2);
    grid.selectRow(1);
    expect(session.scenario.SID).toBe(second);
    expect(p.control('txtScenarioDescription').text).toBe('Ducks feeding on the shore ');
    grid.selectRow(0);
    expect(session.scenario.SID).toBe(first);
    expect(p.control('txtScenarioDescription').text).toBe('not found ');
});

test('linking a scenario that is already in the project says so and leaves one row', () => {
    const p = ui.window('frmProject');
    const sid = session.scenario.SID;
    const links = () => db.query('Select * from jtblProjectScenario where ScenarioID = ' + sid);
    ui.clearMessages();
    p.control('cmdScenario(0)').click();
    const chooser = ui.window('frmSearch_File');
    expect(chooser.caption).toBe('Open/Save/Link Scenario');
    chooser.control('cmdControl(1)').click();
    expect(texts()).toEqual(['This scenario is already linked to the project. ']);
    expect(links().length).toBe(1);
});

test('unlink removes the join row only; the scenario stays', () => {
    const p = ui.window('frmProject');
    const sid = session.scenario.SID;
    p.control('cmdScenario(1)').click();
    expect(db.query('Select * from jtblProjectScenario where ScenarioID = ' + sid).length).toBe(0);
    expect(db.query('Select * from tblScenario where ScenarioID = ' + sid).length).toBe(1);
    expect(p.control('ssGrdProjectScenarios').rowCount).toBe(1);
    p.control('ssGrdProjectScenarios').selectRow(0);
    p.control('cmdScenario(1)').click();
    expect(p.control('ssGrdProjectScenarios').rowCount).toBe(0);
    ui.clearMessages();
    p.control('ssGrdProjectScenarios').dblClick();
    expect(texts()).toEqual(['Please select a scenario...']);
    p.toolbar().click('Close');
});

test('the list sorts by a clicked column', () => {
    db.exec("Insert into tblProject (Name, Author, Path, FileName) values ('Alder Creek', 'Zed', '" + projectFolder() + "', 'missing.NAV')");
    const list = ui.window('frmProjectList');
    list.close();
    ui.menu('mnuProject').trigger();
    const grid = ui.window('frmProjectList').control('ssGrdMain');
    expect(grid.rows.map(r => r[0])).toEqual(['Alder Creek', 'Otter Creek']);
    grid.headClick('Author');
    expect(grid.rows.map(r => r[0])).toEqual(['Otter Creek', 'Alder Creek']);
    grid.headClick('Project Name');
});

test('deleting a project whose marker file is missing fails at the file and keeps the row', () => {
    const grid = ui.window('frmProjectList').control('ssGrdMain');
    grid.selectRow(0);                                    // Alder Creek, no file on disk
    ui.clearMessages();
    ui.answer('Yes');
    grid.keyDown(46);
    const boxes = ui.messages();
    expect(boxes.map(b => b.buttons.join('/'))).toEqual(['Yes/No', 'OK']);
    expect([boxes[0].text, boxes[0].icon, boxes[0].defaultButton]).toEqual(
        ['Are you sure you want to delete this record ?', 'question', 2]);
    expect(boxes[1].title).toBe('System Developer Message');
    const parts = boxes[1].text.split(CRLF);
    expect(parts.length).toBe(3);
    expect(/^\d+$/.test(parts[0])).toBeTruthy();
    expect(parts[2]).toBe('Error in frmZOB.ssGrdMain_KeyDown');
    expect(projects('Alder Creek').length).toBe(1);
    expect(grid.rowCount).toBe(2);
    expect(ui.cursor()).toBe('default');
});

test('a second project links the current scenario too, without a message', () => {
    const sid = session.scenario.SID;
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
    q.toolbar().click('Close');
});

test('Delete in the list asks with No as default; No keeps the project and its file', () => {
    ui.menu('mnuProject').trigger();
    const list = ui.window('frmProjectList');
    const grid = list.control('ssGrdMain');
    expect(grid.rowCount).toBe(3);
    const row = grid.rows.findIndex(r => r.indexOf('Beaver Pond') >= 0);
    grid.selectRow(row);
    ui.clearMessages();
    grid.keyDown(46);
    expect(ui.messages().map(m => [m.text, m.answer])).toEqual([['Are you sure you want to delete this record ?', 'No']]);
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
    expect(grid.rows.map(r => r[0])).toEqual(['Alder Creek', 'Otter Creek']);
    expect(db.query('Select * from jtblProjectScenario where ProjectID = ' + pid2).length).toBe(1);
    // The scenarios of a deleted project stay.
    expect(db.query('Select * from tblScenario').length).toBe(2);
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
