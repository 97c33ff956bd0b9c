// Projects: the list, a new project saved through the file chooser with its marker file, reopened
// through the chooser, edited and saved again, its scenarios linked and unlinked, and deleted with and
// without its marker file.

const texts = () => ui.messages().map(m => m.text);
const projectFolder = () => session.home + '/tester/Project';
const markerLine = (id, name, author, purpose) =>
    'Project ID: ' + id + ', Project Name: ' + name + ', Project Author: ' + author + ', Project Purpose: ' + purpose
    + ', Date last modified: ';

test('the main window has the whole menu; project commands wait for a project window', () => {
    ui.window('frmSetup').close();
    const captions = {
        mnuIniSetup: '&Setup...', mnuExit: 'E&xit', 'mnuProjectOptions(0)': 'New...', 'mnuProjectOptions(1)': 'Open...',
        'mnuProjectOptions(2)': 'Close', 'mnuProjectOptions(4)': '&Save', 'mnuProjectOptions(5)': 'Save &As...',
        mnuReferences: 'References', mnuWldDE: 'Wildlife Data Entry', mnuWLDGenericData: 'Generic Data Entry',
        mnuIntakeModel: 'Allometric Equations', mnuAE: 'Assimilation Efficiency', mnuGE: 'Gross Energy',
        mnuWaterConversion: 'Moisture', mnuSoilIngestion: 'Soil Ingestion', mnuTrophicLevel: 'Trophic Level',
        mnuLifeStage: 'Life History', mnuContents: '&Contents', mnuAboutTORM: '&About ...'};
    for (const name of Object.keys(captions))
        expect(ui.menu(name).caption).toBe(captions[name]);
    for (const i of [2, 4, 5])
        expect(ui.menu('mnuProjectOptions(' + i + ')').enabled).toBeFalsy();
    expect(ui.menu('mnuIniSetup').enabled).toBeTruthy();
    ui.menu('mnuContents').trigger();
    expect(ui.helpTopic()).toBe(1501);
});

test('the project list of a user without projects shows the label; Open fails into the error box', () => {
    ui.menu('mnuProject').trigger();
    const list = ui.window('frmProjectList');
    expect(list.control('lblNoRecords').visible).toBeTruthy();
    expect(list.control('lblNoRecords').caption).toBe('No projects: Click the new [blank page] icon to add a project.');
    ui.clearMessages();
    list.toolbar().click(4);
    expect(ui.messages().length).toBe(1);
    expect(ui.messages()[0].text.indexOf('Error in routine TB_MDI_ButtonClick')).toBe(0);
    expect(ui.windows()).not.toContain('frmProject');
});

test('a project without a name is not stored', () => {
    ui.window('frmProjectList').toolbar().click(2);
    const p = ui.window('frmProject');
    expect(ui.menu('mnuProjectOptions(4)').enabled).toBeTruthy();
    expect(p.control('cmdScenario(0)').enabled).toBeTruthy();
    ui.clearMessages();
    p.toolbar().click('Save');
    expect(texts()).toEqual(['Please add a value for all required field(s)-(Project Name)']);
    expect(db.query('Select * from tblProject').length).toBe(0);
});

test('cancelling the chooser at the first save leaves no row and no file', () => {
    const p = ui.window('frmProject');
    p.control('txtProject(0)').setText('Pond Site');
    p.toolbar().click('Save');
    const chooser = ui.window('frmSearch_File');
    expect(chooser.caption).toBe('Open/Save Project');
    chooser.control('cmdControl(1)').click();
    expect(db.query('Select * from tblProject').length).toBe(0);
    expect(fs.list(projectFolder()).length).toBe(0);
});

test('a new project is saved through the chooser with its one-line marker file', () => {
    const p = ui.window('frmProject');
    p.control('txtProject(1)').setText('Mallards at the farm pond');
    p.control('txtProject(5)').setText('Farm pond');
    p.control('cboStateProvince').select('Alaska');
    ui.clearMessages();
    p.toolbar().click('Save');
    const chooser = ui.window('frmSearch_File');
    expect(chooser.control('lstFileType').items).toEqual(
        ['All(*.*)', 'Species Scenario File(*.ZOB)', 'Project Wildlife File(*.NAV)']);
    expect(chooser.control('lstFileType').text).toBe('Project Wildlife File(*.NAV)');
    chooser.control('txtSelectedFile').setText('pond');
    chooser.control('cmdControl(0)').click();
    expect(texts()).toEqual(['Project has been saved successfully']);

    const rows = db.query('Select * from tblProject');
    expect(rows.length).toBe(1);
    expect(rows[0].Name).toBe('Pond Site');
    expect(rows[0].FileName).toBe('pond.NAV');
    expect(rows[0].Path).toBe(projectFolder());
    expect(rows[0].Location).toBe('Farm pond');
    expect(rows[0].StateProvinceID).toBe(db.query("Select StateProvinceID from tblStateProvince where Description = 'Alaska'")[0].StateProvinceID);
    const text = fs.read('tester/Project/pond.NAV');
    const lines = text.split(/\r?\n/).filter(l => l.length);
    expect(lines.length).toBe(1);
    expect(lines[0].indexOf(markerLine(rows[0].ProjectID, 'Pond Site', 'not found', 'Mallards at the farm pond'))).toBe(0);
    expect(lines[0].charAt(lines[0].length - 1)).toBe(',');
    expect(session.project.Mode).toBe('Edit');
    expect(ui.window('frmProject').caption).toBe('Project: POND SITE');
});

test('a second save is quiet and rewrites the marker file', () => {
    const p = ui.window('frmProject');
    p.control('txtProject(0)').setText('Pond Site North');
    ui.clearMessages();
    p.toolbar().click('Save');
    expect(ui.messages().length).toBe(0);
    expect(ui.windows()).not.toContain('frmSearch_File');
    expect(db.query('Select Name from tblProject')[0].Name).toBe('Pond Site North');
    expect(fs.read('tester/Project/pond.NAV')).toContain('Project Name: Pond Site North,');
});

test('the description zooms for editing and comes back into its box', () => {
    const p = ui.window('frmProject');
    p.control('txtProject(1)').dblClick();
    const zoom = ui.window('frmZoom');
    expect(zoom.caption).toBe('Modify Text');
    expect(zoom.control('txtZoom').text).toBe('Mallards at the farm pond');
    zoom.toolbar().click(6);
    zoom.control('txtZoom').setText('Mallards and teal at the farm pond');
    zoom.toolbar().click(4);
    expect(ui.window('frmZoom')).toBeNull();
    expect(p.control('txtProject(1)').text).toBe('Mallards and teal at the farm pond');
});

test('closing the project window saves without a question and the list shows the project', () => {
    ui.clearMessages();
    ui.window('frmProject').toolbar().click('Close');
    expect(ui.messages().length).toBe(0);
    expect(ui.windows()).not.toContain('frmProject');
    expect(ui.menu('mnuProjectOptions(4)').enabled).toBeFalsy();
    expect(db.query('Select Purpose from tblProject')[0].Purpose).toBe('Mallards and teal at the farm pond');
    const list = ui.window('frmProjectList');
    expect(list.control('lblNoRecords').visible).toBeFalsy();
    expect(list.control('ssGrdMain').rowCount).toBe(1);
});

test('Open... shows the marker file\'s four lines before the project opens', () => {
    ui.menu('mnuProjectOptions(1)').trigger();
    const chooser = ui.window('frmSearch_File');
    expect(chooser.control('FileMain').items).toEqual(['pond.NAV']);
    chooser.control('FileMain').select('pond.NAV');
    const info = chooser.control('txtInfo').text;
    expect(info.indexOf(' Project Name: Pond Site North\r\n Project Author: not found\r\n'
                        + ' Project Purpose: Mallards and teal at the farm pond\r\n Date last modified: ')).toBe(0);
    expect(info.split('\r\n').length).toBe(5);
    expect(chooser.control('txtSelectedFile').text).toBe(projectFolder() + '/pond.NAV');
    chooser.control('cmdControl(0)').click();
    const p = ui.window('frmProject');
    expect(p.control('txtProject(0)').text).toBe('Pond Site North');
    expect(session.project.PID).toBe(db.query('Select ProjectID from tblProject')[0].ProjectID);
    expect(session.project.Mode).toBe('Edit');
});

test('new wildlife scenarios join the project; the selected one shows its description', () => {
    const p = ui.window('frmProject');
    const pid = session.project.PID;
    const links = () => db.query('Select * from jtblProjectScenario where ProjectID = ' + pid);
    p.control('cmdScenario(3)').click();
    p.control('cmdScenario(3)').click();
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
    expect(grid.rows.map(r => r[0])).toEqual(['Alder Creek', 'Pond Site North']);
    grid.headClick('Author');
    expect(grid.rows.map(r => r[0])).toEqual(['Pond Site North', 'Alder Creek']);
    grid.headClick('Project Name');
});

test('deleting a project whose marker file is missing fails at the file and keeps the row', () => {
    const list = ui.window('frmProjectList');
    const grid = list.control('ssGrdMain');
    grid.selectRow(0);                                    // Alder Creek, no file on disk
    ui.clearMessages();
    ui.answer('Yes');
    grid.keyDown(46);
    const boxes = ui.messages();
    expect(boxes[0].text).toBe('Are you sure you want to delete this record ?');
    expect(boxes[0].icon).toBe('question');
    expect(boxes[0].buttons).toEqual(['Yes', 'No']);
    expect(boxes[0].defaultButton).toBe(2);
    expect(boxes[1].title).toBe('System Developer Message');
    expect(boxes[1].text).toContain('Error in frmZOB.ssGrdMain_KeyDown');
    expect(db.query("Select * from tblProject where Name = 'Alder Creek'").length).toBe(1);
});

test('No keeps the project; Yes deletes its row and its marker file', () => {
    const grid = ui.window('frmProjectList').control('ssGrdMain');
    grid.selectRow(1);                                    // Pond Site North
    ui.answer('No');
    grid.keyDown(46);
    expect(fs.exists('tester/Project/pond.NAV')).toBeTruthy();
    ui.answer('Yes');
    grid.keyDown(46);
    expect(fs.exists('tester/Project/pond.NAV')).toBeFalsy();
    expect(db.query("Select * from tblProject where Name = 'Pond Site North'").length).toBe(0);
    expect(grid.rows.map(r => r[0])).toEqual(['Alder Creek']);
    // The scenarios of a deleted project stay.
    expect(db.query('Select * from tblScenario').length).toBe(2);
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
