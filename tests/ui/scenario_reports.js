// The scenario reports opened on rows the script makes: the species, weight, diet and calculations
// reports against the reference rows and the calculation routines, a long diet running over pages
// with its heads repeated, the reports no command opens, the catalogue opening them by title, and
// the bad inputs (no weight, diet or intake rows, an apostrophe, a 5,000-character comment, a
// scenario that does not exist), after which the program still answers.

function newScenario(fields) {
    db.exec("Insert Into tblScenario (Scenario_Type, Scenario_FilePath, Scenario_FileName, Scenario_CreatedBy, Scenario_ModifiedBy, "
            + "Scenario_LastSaved, Scenario_Identifier_1) Values ('Wildlife', '/data/ann/Scenario', 'toad.ZOB', 'ann', 'bob', #3/14/2024#, 'Toad')");
    const sid = db.query('Select Max(ScenarioID) As M From tblScenario')[0].M;
    if (fields) {
        const names = Object.keys(fields), values = names.map(n => fields[n]);
        db.exec('Insert Into tblWildlife (ScenarioID, ' + names.join(', ') + ') Values (' + sid + ', ' + values.join(', ') + ')');
    }
    session.scenario.SID = sid;
    session.scenario.DietType = fields && fields.DietType ? fields.DietType : 0;
    return sid;
}

// A toad scenario: the reference species 49 with its references, weight record 88, reference diet
// 2006 copied with its items, and a food energy requirement of 20 kcal/day.
function toadScenario() {
    const sid = newScenario({SpeciesID: 49, Common: "'American toad'", Latin: "'Anaxyrus americanus'", SpeciesComments: "'Young toads'",
                             SpeciesDataSourceID: 5, WeightID: 88, Weight: 1234.56, WtSex: "'F'", WtStatus: 2, WtEstimator: 1,
                             WtDataSourceID: 4, DietID: 2006, DietType: 1, DietComments: "'Diet of young'", DietSeason: "'Summer'",
                             DietSex: "'Both'", DietDataSourceID: 4});
    session.scenario.DietID = 2006;
    diet.AddWildlifeDiet(2006);
    diet.AddWildlifeDietItems(2006);
    db.exec('Update tblWildlifeDiet Set StateProvinceID = 20 Where ScenarioID = ' + sid);
    db.exec('Insert Into tblIntakeZOB (ScenarioID, IntakeTypeID, BaseRate, AdjustedRate) Values (' + sid + ', 3, 20, 20)');
    return sid;
}

function open(name) {
    ui.show(name);
    const w = ui.window(name);
    expect(w.visible).toBeTruthy();
    return w;
}

function lines(w) { return w.text().split('\n'); }

test('species, weight and diet reports of a seeded scenario', () => {
    if (ui.windows().indexOf('frmSetup') >= 0)
        ui.window('frmSetup').close();
    const sid = toadScenario();
    const species = lines(open('ws_Species'));
    expect(species[1]).toBe('Report Type:  SPECIES Printed on: ' + fmt.vbFormat(new Date(), 'Short Date'));
    expect(species).toContain('Disk File: /data/ann/Scenario/toad.ZOB Last Saved: March 14, 2024');
    expect(species).toContain('Common Name: American toad');
    expect(species).toContain('Source: Provisional');
    // One line (or more, wrapped) for each of the species' two references, in order.
    const refs = db.query('Select Reference From qryReference Where ReferenceID In (Select ReferenceID From jtblSpeciesReference Where SpeciesID = 49) Order By Reference');
    const text = species.join(' ');
    expect(refs.length).toBe(2);
    expect(text.indexOf(refs[0].Reference.substring(0, 40))).toBeGreaterThan(text.indexOf('Reference(s)'));
    expect(text.indexOf(refs[1].Reference.substring(0, 40))).toBeGreaterThan(text.indexOf(refs[0].Reference.substring(0, 40)));
    expect(text.indexOf('Supporting Information Distribution:')).toBeGreaterThan(0);
    ui.window('ws_Species').close();

    const weight = lines(open('ws_Weight'));
    expect(weight).toContain('Body Weight(g): 1,234.6');
    expect(weight).toContain('Status: 2');
    expect(weight).toContain('Estimator: Mean');
    expect(weight).toContain('Source: Vetted - primary literature');
    expect(weight).toContain('Lifestage: ' + db.query('Select l.Description From tblWeight w, tblLifeStage l Where w.LifeStageID = l.LifestageID And w.WeightID = 88')[0].Description);
    ui.window('ws_Weight').close();

    const d = open('ws_Diet');
    const dl = lines(d);
    expect(dl).toContain('Estimated Average Trophic Level of Diet: ' + calc.GetAvgTrophicLevel(sid, 'tblWildlifeDietItems'));
    expect(dl).toContain('State/Province: Maine');
    expect(dl).toContain('Season: Summer');
    const items = db.query('Select Name, Wet_Proportion From tblWildlifeDietItems Where ScenarioID = ' + sid + ' Order By Name');
    expect(items.length).toBe(6);
    const all = d.text();
    let last = -1;
    for (const item of items) {
        const at = all.indexOf('Diet Item: ' + item.Name.split(' ')[0]);
        expect(at).toBeGreaterThan(last);
        expect(all.indexOf('Diet Proportion: ' + fmt.vbFormat(item.Wet_Proportion, '0.000'), at)).toBeGreaterThan(at);
        last = at;
    }
    expect(d.exportPdf('diet.pdf')).toBeTruthy();
    d.close();
});

test('the calculations report: figures worked by hand from the diet rows', () => {
    const sid = session.scenario.SID;
    ui.clearMessages();
    const w = open('ws_calc');
    const l = lines(w);
    const rows = db.query('Select i.Name, i.Wet_Proportion As P, a.Mean As AE, g.WET_WT_KCALG As GE From tblWildlifeDietItems i, tblAE a, tblGrossEnergy g '
                          + 'Where i.AEID = a.AEID And i.GrossEnergyID = g.GrossEnergyID And i.ScenarioID = ' + sid + ' Order By i.Name');
    let meAvg = 0, total = 0;
    for (const r of rows)
        meAvg += r.AE * 0.01 * r.GE * r.P;
    const meText = fmt.vbFormat(meAvg, '#,##0.##');
    const tdi = fmt.CSng(fmt.vbFormat(20 / fmt.CSng(fmt.vbFormat(meAvg, '#,###.0#')), '#,###.0#'));
    expect(l).toContain('Wet Weight Average Trophic Level of Diet: ' + calc.GetAvgTrophicLevel(sid, 'tblWildlifeDietItems'));
    expect(l).toContain('Σ pk * MEk = ' + meText + '  kcal / g wet weight.');
    expect(l).toContain('5 Total Dietary Intake Rate  {TDI (g / d)} = FMR (kcal / d) / MEAvg (kcal / g) = ' + fmt.vbFormat(tdi, '0.##') + ' g / d.');
    expect(w.text().indexOf('101.49 kcal / d')).toBeGreaterThan(0);
    expect(w.text().indexOf('Free Metabolic Rate  {FMR (kcal / d)} = 20. kcal / d')).toBeGreaterThan(0);
    const first = rows[0];
    const firstLine = l.find(x => x.indexOf(first.Name.split(' ')[0]) === 0);
    expect(firstLine.endsWith([fmt.vbFormat(first.AE, '##0.0'), fmt.vbFormat(first.AE * 0.01 * first.GE, '#,##0.00'),
                               fmt.vbFormat(first.P, '#,##0.00'), fmt.vbFormat(Math.fround(tdi) * first.P, '#,##0.00')].join(' '))).toBeTruthy();
    for (const r of rows)
        total += r.P;
    expect(l.find(x => x.indexOf('Total ') === 0)).toBe('Total ' + fmt.vbFormat(total, '#,##0.00') + ' ' + fmt.vbFormat(rows.reduce((s, r) => s + tdi * r.P, 0), '#,##0.00'));
    expect(ui.messages().length).toBe(0);
    w.close();
});

test('a long diet runs over pages with its heads repeated', () => {
    const sid = session.scenario.SID;
    for (let i = 10; i < 50; ++i)
        db.exec('Insert Into tblWildlifeDietItems (ScenarioID, DietID, Name, Wet_Proportion, AEID, GrossEnergyID, Comments) '
                + 'Select ScenarioID, DietID, \'Prey ' + i + '\', 0.01, AEID, GrossEnergyID, \'extra item\' From tblWildlifeDietItems Where ScenarioID = ' + sid + ' And Name Like \'Ants*\'');
    for (const name of ['ws_Diet', 'ws_calc']) {
        const w = open(name);
        expect(w.pageCount).toBeGreaterThan(name === 'ws_Diet' ? 5 : 1);
        const pages = w.text().split(/\nPage \d+ of \d+\n?/).filter(p => p.length);
        expect(pages.length).toBe(w.pageCount);
        const head = name === 'ws_Diet' ? 'Diet Items' : 'Diet Item Component Life Stage Gross Assimilation Metabolizable Proportion Itemized Daily';
        pages.forEach((p, i) => {
            const pl = p.split('\n');
            expect(pl[0]).toBe('Wildlife Scenario');
            if (i > 0)
                expect(pl[3]).toBe(head);
        });
        for (let i = 10; i < 50; ++i)
            expect(w.text().split(name === 'ws_Diet' ? 'Diet Item: Prey ' + i + ' ' : '\nPrey ' + i + ' ').length).toBe(2);
        w.close();
    }
});

test('the reports no command opens: the reference diet and the intake details', () => {
    const sid = session.scenario.SID;
    const items = lines(open('ws_DietItems'));
    expect(items[1].indexOf('Report Type:  DIET ITEMS')).toBe(0);
    expect(items).toContain('Wildlife Species: American toad');
    const ref = db.query('Select Name, Wet_Proportion From tblDietItem Where DietID = 2006 Order By Name')[0];
    expect(items.find(x => x.indexOf(ref.Name) === 0).indexOf(fmt.vbFormat(ref.Wet_Proportion, '0.000'))).toBeGreaterThan(0);
    ui.window('ws_DietItems').close();
    db.exec("Update tblIntakeZOB Set Comments = 'from a captive study', Units = 'kcal/day' Where IntakeTypeID = 3 And ScenarioID = " + sid);
    const detail = lines(open('wsc_detail'));
    expect(detail).toContain('Food 20.00 kcal/day User entered Mean 1 from a captive Estimated 20.00');
    expect(detail).toContain('Food: from a captive study');
    expect(detail).toContain('Sediments:');
    ui.window('wsc_detail').close();
});

test('the catalogue opens each report of the scenario by its title', () => {
    ui.show('frmReports');
    const w = ui.window('frmReports');
    const list = w.control('lstReports');
    const names = {'Wildlife Species': 'ws_Species', 'Wildlife Weight': 'ws_Weight', 'Wildlife Diet': 'ws_Diet', 'Wildlife Calculations': 'ws_calc'};
    for (const title of Object.keys(names)) {
        list.select(title);
        list.dblClick();
        expect(ui.windows()).toContain(names[title]);
        expect(ui.window(names[title]).pageCount).toBeGreaterThan(0);
        ui.window(names[title]).close();
    }
    w.close();
});

test('bad input: no weight, diet or intake rows, an apostrophe, a long comment, a missing scenario', () => {
    const words = [];
    for (let i = 0; words.join(' ').length < 5000; ++i)
        words.push('word' + i);
    const comment = words.join(' ').substring(0, 5000);
    const sid = newScenario({Common: "'Fowler''s toad'", SpeciesComments: "'" + comment + "'", WeightID: 0, DietID: 0, DietType: 0});
    db.exec('Insert Into tblIntakeZOB (ScenarioID, IntakeTypeID, BaseRate, AdjustedRate) Values (' + sid + ', 3, 20, 20)');
    ui.clearMessages();
    for (const name of ['ws_Species', 'ws_Weight', 'ws_Diet', 'ws_calc', 'ws_DietItems', 'wsc_detail']) {
        const w = open(name);
        expect(w.pageCount).toBeGreaterThan(0);
        expect(w.text().indexOf('Wildlife Scenario')).toBe(0);
        if (name === 'ws_Species') {
            expect(w.pageCount).toBeGreaterThan(1);
            const seen = w.text().split(/\s+/).filter(x => /^word\d+$/.test(x));
            expect(seen.length).toBe(comment.split(' ').filter(x => /^word\d+$/.test(x)).length);
        }
        if (name === 'ws_Weight')
            expect(w.text().indexOf("Wildlife Species: Fowler's toad")).toBeGreaterThan(0);
        if (name === 'ws_calc') {
            expect(ui.messages()[0].text).toBe('No Diet Items exist in this scenario. Dietary calculations will not be done.');
            expect(lines(w).filter(x => /^Total/.test(x))).toEqual(['Total 0.00 0.00']);
            expect(w.text().indexOf('Diet Item Component')).toBe(-1);
            expect(w.text().indexOf('Disk File: toad.ZOB')).toBeGreaterThan(0);
        }
        w.close();
    }
    session.scenario.SID = 987654;
    for (const name of ['ws_Species', 'ws_Weight', 'ws_Diet', 'ws_calc', 'ws_DietItems', 'wsc_detail']) {
        const w = open(name);
        expect(w.pageCount).toBe(1);
        expect(lines(w).pop()).toBe('Page 1 of 1');
        w.close();
    }
    expect(db.query('Select Count(*) As N From tblScenario')[0].N).toBeGreaterThan(0);
});
