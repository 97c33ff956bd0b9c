// The species workbook: a species of a class other than 2 and 6 opens locked on every page (though
// not vetted for the small entry windows); a user's species is edited: a general text, a new weight,
// a new diet with two items, a measured intake added; a vetted diet's items are not opened by a
// double click.

function open(id, mode) {
    pickers.open('frmDE_Species', { recordId: id, table: 'tblSpecies', keyField: 'SpeciesID', mode: mode, filter: false });
    return ui.window('frmDE_Species');
}
const count = (table, where) => db.query('Select Count(*) As N From ' + table + ' Where ' + where)[0].N;

ui.window('frmSetup').close();

test('a species of class 5 opens locked: no New or Save, its texts locked, its data shown', () => {
    const sp = db.query('Select SpeciesID, Common, DataSourceID From tblSpecies Order By SpeciesID')[0];
    expect(sp.DataSourceID).toBe(5);
    const w = open(sp.SpeciesID, 'Read');
    expect(w.caption).toBe('Wildlife Data Entry');
    expect(w.control('lblHeader').caption).toContain('Common Name: ' + sp.Common);
    expect(w.control('txtCommon').text).toBe(sp.Common);
    expect(w.control('txtCommon').locked).toBeTruthy();
    expect(w.control('cmdClassification').enabled).toBeFalsy();
    expect(w.toolbar().visible('Save')).toBeFalsy();
    expect(w.toolbar().visible('New')).toBeFalsy();
    expect(w.toolbar().visible('Select')).toBeTruthy();
    expect(w.control('grdReferences').rowCount).toBe(count('jtblSpeciesReference', 'SpeciesID = ' + sp.SpeciesID));
    w.control('cmdRef(0)').click();
    expect(w.control('grdReferences').rowCount).toBe(count('jtblSpeciesReference', 'IsDistribution = True And SpeciesID = ' + sp.SpeciesID));
    w.control('ssTabSB').selectTab(1);
    expect(w.control('dcWeight').caption).toBe('Weight: 1 of ' + count('tblWeight', 'SpeciesID = ' + sp.SpeciesID));
    expect(w.control('txtFields(0)').locked).toBeTruthy();
    w.control('ssTabSB').selectTab(3);
    expect(w.control('ssGridMeasurement').rowCount).toBe(count('tblIntakeMeasured', 'SpeciesID = ' + sp.SpeciesID));
    w.toolbar().click('Close');
    expect(ui.windows()).not.toContain('frmDE_Species');
});

test("a user's species: a text saved, a new weight, a new diet with two items, a measured intake", () => {
    const id = db.query('Select Max(SpeciesID) As M From tblSpecies')[0].M + 1;
    db.exec('Insert Into tblSpecies (SpeciesID, Common, Latin, TaxonID, DataSourceID) Values (' + id + ", 'Marsh wren', 'Cistothorus palustris', 1, 6)");
    const w = open(id, 'Write');
    expect(w.toolbar().visible('Select')).toBeFalsy();
    expect(w.toolbar().visible('Save')).toBeTruthy();
    w.control('txtRef(0)').setText("Cattail marshes; the coast's salt marshes");
    w.control('txtRef(1)').setText('');
    w.toolbar().click('Save');
    expect(db.query('Select Distribution, Habitat From tblSpecies Where SpeciesID = ' + id)[0])
        .toEqual({ Distribution: "Cattail marshes; the coast's salt marshes", Habitat: null });

    w.control('ssTabSB').selectTab(1);
    expect(w.control('lblNoWeights').visible).toBeTruthy();
    expect(w.control('fraMeasurement').visible).toBeFalsy();
    w.toolbar().click('New');
    expect(w.control('fraMeasurement').visible).toBeTruthy();
    w.control('txtFields(0)').setText('11.5');
    w.control('txtFields(1)').setText('9');
    w.control('ssTabSB').selectTab(2);
    expect(db.query('Select Mean, Min, DataSourceID From tblWeight Where SpeciesID = ' + id))
        .toEqual([{ Mean: 11.5, Min: 9, DataSourceID: 6 }]);

    w.toolbar().click('New');
    expect(w.control('dcDiet').caption).toBe('Species Diet: 1 of 1');
    w.control('txtAnalysisNotes').setText('Stomach contents');
    w.control('ssTabDiet').selectTab(1);
    for (const [name, wet] of [['Spiders', '.6'], ['Beetles', '.4']]) {
        w.toolbar().click('New');
        const item = ui.window('frmDE_DietItem');
        item.control('txtDI(6)').setText(name);
        item.control('txtDI(3)').setText(wet);
        item.toolbar().click('Save');
    }
    const diet = db.query('Select DietID, AnalysisNotes, DataSourceID From tblDiet Where SpeciesID = ' + id)[0];
    expect([diet.AnalysisNotes, diet.DataSourceID]).toEqual(['Stomach contents', 6]);
    expect(db.query('Select Name, Wet_Proportion From tblDietItem Where DietID = ' + diet.DietID + ' Order By Name'))
        .toEqual([{ Name: 'Beetles', Wet_Proportion: 0.4 }, { Name: 'Spiders', Wet_Proportion: 0.6 }]);
    expect(w.control('ssGrdDietItems').rowCount).toBe(2);

    w.control('ssTabSB').selectTab(3);
    w.toolbar().click('New');
    const intake = ui.window('frmDE_IntakeMeasured');
    intake.control('txtMean').setText('0.2');
    intake.toolbar().click('Save');
    intake.toolbar().click('Close');
    expect(db.query('Select Mean From tblIntakeMeasured Where SpeciesID = ' + id)).toEqual([{ Mean: 0.2 }]);
    expect(w.control('ssGridMeasurement').rowCount).toBe(1);
    w.toolbar().click('Close');
});

test("a vetted diet's items are not opened by a double click", () => {
    const diet = db.query('Select DietID, SpeciesID From tblDiet Where DataSourceID = 4 Order By DietID')[0];
    db.exec('Update tblSpecies Set DataSourceID = 6 Where SpeciesID = ' + diet.SpeciesID);
    const w = open(diet.SpeciesID, 'Write');
    w.control('ssTabSB').selectTab(2);
    w.control('ssTabDiet').selectTab(1);
    expect(w.control('ssGrdDietItems').rowCount).toBeGreaterThan(0);
    w.control('ssGrdDietItems').dblClickRow(0);
    expect(ui.windows()).not.toContain('frmDE_DietItem');
    w.toolbar().click('Close');
});
