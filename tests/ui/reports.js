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

// The intake report of a scenario with air, water, metabolic rate and soil rows, against figures
// worked by hand from the model's coefficients and the weight as printed (one decimal).
function intakeScenario(opts) {
    db.exec("Insert Into tblScenario (Scenario_Type, Scenario_FileName, Scenario_CreatedBy, Scenario_ModifiedBy, Scenario_Identifier_1) "
            + "Values ('Wildlife', 'mink.ZOB', 'ann', 'bob', 'Mink')");
    const sid = db.query('Select Max(ScenarioID) As M From tblScenario')[0].M;
    db.exec("Insert Into tblWildlife (ScenarioID, Common, Weight, WtSex, DietID, DietType) Values (" + sid + ", '"
            + opts.common.replace(/'/g, "''") + "', " + opts.weight + ", 'F', 0, 0)");
    const row = (type, base, adjusted, extra) => db.exec(
        'Insert Into tblIntakeZOB (ScenarioID, IntakeTypeID, BaseRate, AdjustedRate, Units, DataSourceID, EstimatorID, Comments'
        + (extra ? ', ' + Object.keys(extra).join(', ') : '') + ') Values (' + sid + ', ' + type + ', ' + base + ', ' + adjusted
        + ", 'unit " + type + "', 3, 1, 'row " + type + "'" + (extra ? ', ' + Object.values(extra).join(', ') : '') + ')');
    row(1, 0.5, 0.5, {IntakeEquation: "'a*Wt^b'"});
    row(2, 12.345, 12.345, null);
    row(3, 0, 123.456, {IntakeModelID: opts.model, Units_CF: 0.239});
    if (opts.soil)
        row(4, opts.soil, 0, {SoilIngestionID: 1});
    session.scenario.SID = sid;
    session.scenario.DietType = 0;
    return sid;
}

test('the intake report: rows, limits of the metabolic rate and soil in g/day', () => {
    intakeScenario({common: "Mink's kin", weight: 1234.56, model: 8, soil: 9.4});
    ui.clearMessages();
    ui.show('ws_intake');
    const report = ui.window('ws_intake');
    const text = report.text();
    const lines = text.split('\n');
    expect(lines).toContain('Report Type:  INTAKE Printed on: ' + fmt.vbFormat(new Date(), 'Short Date'));
    expect(text.indexOf("Wildlife Species: Mink's kin")).toBeGreaterThan(0);
    expect(text.indexOf('Body Weight(g): 1,234.6')).toBeGreaterThan(0);
    expect(lines).toContain('Water 12.35 unit 2 Estimated Mean 1 row 2 Estimated 12.35');
    // Hand calculation with the weight as printed.
    const w = 1234.6, m = db.query('Select * From tblIntakeModel Where IntakeModelID = 8')[0];
    const base = calc.GetIntakeRate(8, w, 'Base');
    const h = m.c * Math.sqrt(m.d + m.e * Math.pow(Math.log10(w) - m.Mean_log_X, 2));
    const l = Math.log10(base / 0.239);
    expect(lines).toContain('Lower 95% Cl (kcal/day): ' + fmt.vbFormat(Math.pow(10, l - h) * 0.239, '0.00'));
    expect(lines).toContain('Upper 95% Cl (kcal/day): ' + fmt.vbFormat(Math.pow(10, l + h) * 0.239, '0.00'));
    expect(lines).toContain('Inhalation: a*Wt^b'.replace(/^/, 'Air Allometric Equation: '));
    const dd = calc.GetFMR_TDI('TDI');
    const grams = fmt.vbFormat(Math.fround(dd * Math.fround(0.094)), '0.00');
    expect(lines).toContain('Soil: ' + grams + ' g/day Calculated Mean 1 Calculated from % Calculated ' + grams);
    expect(text.indexOf('of dry diet that is\nsoil and total daily\ndiet on a dry-weight\nbasis.')).toBeGreaterThan(0);
    expect(lines).toContain('Soil: Proportion Dry Diet (f_soil): = % Dry Diet/100 0.094');
    expect(text.indexOf('95% CI for log_FMR_species_x = log_FMR_speices_x +/- c')).toBeGreaterThan(0);
    expect(/^Page \d+ of \d+$/.test(lines[lines.length - 1])).toBeTruthy();
    expect(report.exportPdf('intake.pdf')).toBeTruthy();
    report.close();
});

test('the intake report of a scenario without a wildlife row prints its design', () => {
    db.exec("Insert Into tblScenario (Scenario_Type) Values ('Wildlife')");
    session.scenario.SID = db.query('Select Max(ScenarioID) As M From tblScenario')[0].M;
    ui.show('ws_intake');
    const text = ui.window('ws_intake').text();
    expect(text.indexOf('Intake Rates')).toBeGreaterThan(0);
    expect(text.indexOf('Lower 95% Cl (kcal/day):\n')).toBeGreaterThan(0);
    ui.window('ws_intake').close();
});

// The catalogue of the open scenario's reports.
test('the catalogue lists the titles of the scenario type and sets the print options', () => {
    const sid = intakeScenario({common: 'Otter', weight: 5000, model: 8});
    ui.show('frmReports');
    const w = ui.window('frmReports');
    expect(w.caption).toBe('Print');
    const list = w.control('lstReports');
    expect(list.items).toEqual(['Wildlife Scenario', 'Wildlife Species', 'Wildlife Weight', 'Wildlife Diet',
                                'Wildlife Intake', 'Wildlife Calculations']);
    ui.clearMessages();
    w.toolbar().click(4);
    expect(ui.messages().map(m => m.text)).toEqual(['Please select a report.']);
    expect(ui.messages()[0].title).toBe('Print');
    const enabled = () => [0, 1, 2, 3].map(i => w.control('chkPrintOpt(' + i + ')').enabled);
    list.select('Wildlife Scenario');
    expect(enabled()).toEqual([false, false, false, false]);
    list.select('Wildlife Diet');
    expect(enabled()).toEqual([true, true, true, true]);
    list.select('Wildlife Intake');
    expect(enabled()).toEqual([true, true, true, false]);
    list.dblClick();
    expect(ui.windows()).toContain('ws_intake');
    expect(ui.window('ws_intake').text().indexOf('Wildlife Species: Otter')).toBeGreaterThan(0);
    ui.window('ws_intake').close();
    w.close();
    db.exec("Update tblScenario Set Scenario_Type = 'Contaminant' Where ScenarioID = " + sid);
    ui.show('frmReports');
    const c = ui.window('frmReports');
    expect(c.control('lstReports').items.length).toBe(6);
    c.control('lstReports').select('Contaminant');
    ui.clearMessages();
    c.control('lstReports').dblClick();
    expect(ui.messages().length).toBe(0);
    expect(ui.windows().filter(n => n.indexOf('ws_') === 0 || n.indexOf('Contaminant') === 0)).toEqual([]);
    c.close();
});

test('without an open scenario the list is empty and any command asks for a scenario', () => {
    session.scenario.SID = 0;
    ui.show('frmReports');
    const w = ui.window('frmReports');
    expect(w.control('lstReports').items).toEqual([]);
    ui.clearMessages();
    w.toolbar().click(4);
    expect(ui.messages().map(m => m.text)).toEqual(['Please select a scenario.']);
    expect(ui.messages()[0].icon).toBe('warning');
    w.toolbar().click('Help');
    expect(ui.helpTopic()).toBe(3601);
    w.close();
});
