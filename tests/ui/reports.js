// The project summary from the project window's Print button: the preview window named after the
// report, its text with the project's heads and one line per scenario, a project without scenarios
// (one empty line from the outer join), a long scenario list running over pages with its heads
// repeated and "Page N of M" on each page, and the PDF written to a path in the program folder.

function newProject(name, state) {
    db.exec("Insert into tblProject (Name, Purpose, Author, Location, StateProvinceID, Latitude, Longitude, Comments, Path, FileName, LastSaved) "
            + "values ('" + name + "', 'Heron exposure at the outfall', 'Ann O''Brien', 'Lower marsh', " + state
            + ", '44.5', '-68.2', 'Draft for review', '" + session.home + "', '" + name + ".NAV', #3/14/2024#)");
    return db.query("Select Max(ProjectID) As M From tblProject")[0].M;
}

function addScenarios(pid, count) {
    for (let i = 1; i <= count; ++i) {
        db.exec("Insert into tblScenario (Scenario_Type, Scenario_FileName, Scenario_LastSaved, Scenario_Identifier_1, Comments) "
                + "values ('Wildlife', 'heron" + i + ".ZOB', #5/" + (i % 28 + 1) + "/2024#, 'Great Blue Heron " + i + "', 'Note " + i + "')");
        const sid = db.query("Select Max(ScenarioID) As M From tblScenario")[0].M;
        db.exec("Insert into jtblProjectScenario (ProjectID, ScenarioID) values (" + pid + ", " + sid + ")");
    }
}

function openProject(name) {
    if (ui.windows().indexOf('frmProjectList') >= 0)
        ui.window('frmProjectList').close();
    ui.menu('mnuProject').trigger();
    const grid = ui.window('frmProjectList').control('ssGrdMain');
    const row = grid.rows.findIndex(r => r[0] === name);
    expect(row >= 0).toBeTruthy();
    grid.selectRow(row);
    ui.window('frmProjectList').toolbar().click('Open');
    expect(ui.window('frmProject').visible).toBeTruthy();
}

function printSummary() {
    const p = ui.window('frmProject');
    expect(p.toolbar().enabled('Print')).toBeTruthy();
    p.toolbar().click('Print');
    const report = ui.window('ProjectSummary');
    expect(report.visible).toBeTruthy();
    return report;
}

test('the project summary of a project with scenarios', () => {
    if (ui.windows().indexOf('frmSetup') >= 0)
        ui.window('frmSetup').close();
    const pid = newProject('Otter Creek', 20);
    addScenarios(pid, 2);
    openProject('Otter Creek');
    const report = printSummary();
    expect(report.pageCount).toBe(1);
    const lines = report.text().split('\n');
    expect(lines[0]).toBe('Wildlife Scenario');
    expect(lines).toContain('Disk File: Otter Creek.NAV Last Saved: March 14, 2024');
    expect(lines).toContain('Project Name: Otter Creek');
    expect(lines).toContain("Project Author: Ann O'Brien");
    expect(lines).toContain('State/Province: ' + db.query('Select Description From tblStateProvince Where StateProvinceID = 20')[0].Description);
    expect(lines).toContain('Scenario Type Scenaro File Name Species Date Last Modified');
    expect(lines).toContain('Wildlife heron1.ZOB Great Blue Heron 1 2-May-2024');
    expect(lines).toContain('Note 2');
    expect(lines[lines.length - 1]).toBe('Page 1 of 1');
    expect(report.exportPdf('summary.pdf')).toBeTruthy();
    expect(fs.exists('summary.pdf')).toBeTruthy();
    expect(report.exportPdf('no-such-folder/summary.pdf')).toBeFalsy();
    report.close();
    ui.window('frmProject').toolbar().click('Close');
});

test('a project without scenarios prints its heads and no scenario line', () => {
    newProject('Empty Marsh', 'Null');
    openProject('Empty Marsh');
    const text = printSummary().text();
    expect(text.indexOf('Project Name: Empty Marsh') > 0).toBeTruthy();
    expect(text.indexOf('State/Province:\n') > 0 || text.indexOf('State/Province: ') < 0).toBeTruthy();
    expect(text.indexOf('heron')).toBe(-1);
    ui.window('ProjectSummary').close();
    ui.window('frmProject').toolbar().click('Close');
});

test('a long scenario list runs over pages with the heads repeated', () => {
    const pid = newProject('Long River', 1);
    addScenarios(pid, 60);
    openProject('Long River');
    const report = printSummary();
    expect(report.pageCount > 1).toBeTruthy();
    const pages = report.text().split(/Page \d+ of \d+/).slice(0, -1);
    const count = report.pageCount;
    expect(pages.length).toBe(count);
    for (let i = 0; i < count; ++i) {
        expect(pages[i].indexOf('Scenario Type Scenaro File Name Species Date Last Modified') >= 0).toBeTruthy();
        expect(pages[i].indexOf('Wildlife Scenario') >= 0).toBeTruthy();
    }
    expect(report.text().indexOf('Page 1 of ' + count)).toBeGreaterThan(0);
    expect(report.text().endsWith('Page ' + count + ' of ' + count)).toBeTruthy();
    expect(report.text().indexOf('Great Blue Heron 60')).toBeGreaterThan(0);
    expect(report.exportPdf('long.pdf')).toBeTruthy();
});
