// The life history of a species, as a new user finds it: the search by each criterion and by two
// together (the species found compared with statements of this script's own), bad input in the boxes,
// the browser's pages for a well-documented species, and the walk across three species found.

const search = () => ui.window('frmSearch_LifeHistory');
const grid = () => search().control('ssGrdSearch');
const texts = () => ui.messages().map(m => m.text);
const found = () => { const g = grid(); const out = []; for (let r = 0; r < g.rowCount; ++r) out.push(g.cell(r, 1)); return out; };
const commons = sql => db.query(sql).map(r => r.Common);
const order = ' ORDER BY tblTaxon.Description, tblSpecies.Common';
const base = 'SELECT tblSpecies.Common FROM tblSpecies INNER JOIN tblTaxon ON tblSpecies.TaxonID = tblTaxon.TaxonID';

function searchWith(boxes) {
    search().toolbar().click(2);
    for (const name in boxes) {
        const c = search().control(name);
        if (name.startsWith('cbo')) c.select(boxes[name]); else c.setText(boxes[name]);
    }
    search().toolbar().click(4);
    return found();
}

test('the menu item opens the search with every species listed', () => {
    if (ui.window('frmSetup')) ui.window('frmSetup').close();
    expect(ui.menu('mnuLifeStage').enabled).toBeTruthy();
    ui.menu('mnuLifeStage').trigger();
    expect(search().caption).toBe('Life History Search');
    expect(search().control('fraCriteria').text).toBe('Search Criteria');
    expect(grid().columns).toEqual(['Taxon', 'Common Name', 'Latin Name']);
    expect(found()).toEqual(commons(base + order));
    expect([0, 1, 2, 3, 4].map(i => search().control('LblGenInfo(' + i + ')').text)).toEqual(
        ['General Information', 'Diet and Intake Rate Information', 'Population  and Habitat Dynamics',
         'Seasonal Activities', 'Body Size and Growth Rate']);
});

test('bad input gives a message or an empty result, and the search goes on working', () => {
    ui.clearMessages();
    searchWith({'txtSearch(0)': "o'brien"});
    expect(texts()[0]).toContain('frmSeardch_LifeHistory.TB_MDI_ButtonClick');
    ui.clearMessages();
    for (const odd of ['%', '_']) {
        expect(searchWith({'txtSearch(0)': odd})).toEqual([]);
        expect(search().control('lblSearchCaption').text).toBe('No records found');
    }
    expect(texts()).toEqual(['No records found.', 'No records found.']);
    expect(searchWith({'txtSearch(0)': '*'}).length).toBe(db.query('Select * From tblSpecies').length);
    grid().keyDown(13);
    expect(ui.window('frmLifeHistory').control('ssTabLifeHistory').currentTab).toBe(0);
    ui.window('frmLifeHistory').keyDown(27);
    expect(ui.window('frmLifeHistory')).toBeNull();
});

test('the pages of a well-documented species, with references numbered as the list beneath', () => {
    const robin = db.query("Select SpeciesID From tblSpecies Where Common = 'American robin'")[0].SpeciesID;
    searchWith({'txtSearch(0)': 'American robin'});
    search().control('LblGenInfo(0)').click();
    const w = ui.window('frmLifeHistory');
    expect(w.caption).toBe('Life History Details');
    expect(w.control('txtDisplay').text).toContain('American robin Kingdom:  Animalia');
    expect(w.control('ssTabLifeHistory').items).toEqual(
        ['General', 'Diet and Intake Rate', 'Population and Habitat', 'Seasonal Activities', 'Body Size and Growth Rate']);
    const generalRow = db.query('Select * From tblLIFEHISTORYTEXT Where SpeciesID = ' + robin + " And LifeText_Type = 'general'")[0];
    w.control('optGeneral(1)').setValue(true);
    expect(w.control('txtGeneralOrder(0)').text).toBe(generalRow.LIFEHIST_TEXT);
    const cited = [...Array(15).keys()].map(i => generalRow['Ref' + (i + 1)]).filter(v => v !== null && v !== '');
    const refs = db.query('Select * From tblReferences Where ReferenceID In (' + cited.join(',') + ') Order By fldRef_Author');
    const lines = w.control('txtGeneralOrder(1)').text.split('\n').filter(l => l.trim() !== '');
    expect(lines.length).toBe(refs.length);
    refs.forEach((r, i) => expect(lines[i].startsWith((i + 1) + '.  ' + r.fldRef_Author + '. ')).toBeTruthy());
    expect(w.control('dcMainGeneral').text).toBe('1 of 1');
    expect(w.control('txtGeneralOrder(0)').locked).toBeTruthy();

    w.control('ssTabLifeHistory').selectTab(1);
    w.control('ssTabDietIntake').selectTab(1);
    const diets = db.query('Select DietID From tblDiet Where SpeciesID = ' + robin);
    expect(w.control('dcFoodHabitsSpecific').text).toBe('Diet Item: 1 of ' + diets.length);
    expect(w.control('ssGrdDietItems').rowCount).toBeGreaterThan(0);
    w.control('ssTabDietIntake').selectTab(2);
    w.control('optIntakeAndMetabolicRates(4)').setValue(true);
    expect(w.control('lblNoRecordsIntakeAndMetabolicRates').visible).toBeTruthy();

    w.control('ssTabLifeHistory').selectTab(2);
    w.control('ssTabPopulationHabitat').selectTab(1);
    const popdyn = db.query('Select * From tblPOPDENS p, tblPOPSIZEselect s Where p.Popsize_id = s.POPSIZE_ID And p.SpeciesID = '
                            + robin + " And s.POPSIZE_class = 'POPDYN'");
    expect(w.control('ssGrdPopulationDensitySpecific').rowCount).toBe(popdyn.length);

    w.control('ssTabLifeHistory').selectTab(4);
    w.control('ssTabBodySizeAndGrowth').selectTab(1);
    const weights = db.query('Select * From tblWeight Where SpeciesID = ' + robin);
    expect(w.control('SSDBGrid2').rowCount).toBe(weights.length);
    w.control('optBodySizeSex(1)').setValue(true);
    expect(w.control('SSDBGrid2').rowCount).toBe(weights.filter(r => r.GenderID === 5).length);
    expect(w.control('Text2').text).toContain('. ');
    w.close();
});

test('the walk across three species moves the search with it, and no table changes', () => {
    const before = JSON.stringify(['tblSpecies', 'tblLIFEHISTORYTEXT', 'tblWeight', 'tblDiet', 'tblPOPDENS', 'tblSEASON']
        .map(t => db.query('Select * From ' + t)));
    searchWith({cboTaxon: 'Birds'});
    search().control('LblGenInfo(4)').click();
    const w = ui.window('frmLifeHistory');
    expect(w.control('ssTabLifeHistory').currentTab).toBe(4);
    const names = found();
    const heads = [];
    for (let i = 0; i < 3; ++i) {
        w.control('dcSpecies').setValue(i);
        expect(grid().currentRow).toBe(i);
        expect(w.control('txtDisplay').text.startsWith(names[i] + ' ')).toBeTruthy();
        expect(w.control('dcSpecies').text.trim()).toBe('Species: ' + (i + 1) + ' of ' + names.length);
        heads.push(w.control('txtDisplay').text);
    }
    expect(new Set(heads).size).toBe(3);
    w.close();
    search().close();
    expect(JSON.stringify(['tblSpecies', 'tblLIFEHISTORYTEXT', 'tblWeight', 'tblDiet', 'tblPOPDENS', 'tblSEASON']
        .map(t => db.query('Select * From ' + t)))).toBe(before);
});
