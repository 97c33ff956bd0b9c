// The entry windows of the reference tables: a vetted record opens locked without Save, a user's record
// opens editable and its save changes only what was typed (an apostrophe kept, an emptied text stored
// as null), bad input leaves the row as it was, a record deleted meanwhile is left alone; a new record
// through a picker's New; the measurement window by kind, the wet and dry statistics kept apart.

const members = [
    { window: 'frmDE_AE', caption: 'Assimilation Efficiency Data Entry', table: 'tblAE', key: 'AEID',
      text: 'txtConsumerName', column: 'ConsumerName', memo: 'txtAE(0)', memoColumn: 'Comments', buttons: ['cmdClassification', 'cmdReference', 'cmdAE_Values'] },
    { window: 'frmDE_GE', caption: 'Gross Energy Data Entry', table: 'tblGrossEnergy', key: 'GrossEnergyID',
      text: 'txtItem', column: 'Item', memo: 'txtGE(0)', memoColumn: 'Comments', buttons: ['cmdMeasurement(0)', 'cmdMeasurement(1)', 'cmdMoistureContent'] },
    { window: 'frmDE_WaterConversion', caption: 'Moisture Content Data Entry', table: 'tblWaterConversion', key: 'WaterConversionID',
      text: 'txtItem', column: 'Item', memo: 'txtComments', memoColumn: 'Comments', buttons: ['cmdMeasurement', 'cmdClassification'] },
    { window: 'frmDE_TrophicLevel', caption: 'Trophic Level Data Entry', table: 'tblTrophicLevel', key: 'TrophicLevelID',
      text: 'txtItem', column: 'Item', memo: 'txtNotes', memoColumn: 'Notes', number: 'txtTrophicLevel', numberColumn: 'TrophicLevel', buttons: ['cmdClassification', 'cmdReference'] },
    { window: 'frmDE_SoilIngestion', caption: 'Soil Ingestion Data Entry', table: 'tblSoilIngestion', key: 'SoilIngestionID',
      text: 'txtSpecies', column: 'Species', memo: 'txtComments', memoColumn: 'Comments', number: 'txtIntakeMean', numberColumn: 'IntakeMean', buttons: ['cmdReference'] },
    { window: 'frmDE_Weight', caption: 'Weight information', table: 'tblWeight', key: 'WeightID',
      text: 'txtRegion', column: 'Region', memo: 'txtNotes', memoColumn: 'Notes', number: 'txtMean', numberColumn: 'Mean', buttons: ['cmdReference'] },
    { window: 'frmDE_IntakeMeasured', caption: 'Measured Intake Data Entry', table: 'tblIntakeMeasured', key: 'IntakeMeasuredID',
      text: 'txtNote', column: 'Note', memo: 'txtNote', memoColumn: 'Note', number: 'txtMean', numberColumn: 'Mean', buttons: ['cmdReference'] },
    { window: 'frmDE_Reference', caption: 'Reference', table: 'tblReferences', key: 'ReferenceID',
      text: 'txtAuthor', column: 'fldRef_Author', memo: 'txtTitle', memoColumn: 'fldRef_Title', buttons: [] },
];
const rowOf = (m, id) => db.query('Select * From ' + m.table + ' Where ' + m.key + ' = ' + id)[0];
const allRows = m => JSON.stringify(db.query('Select * From ' + m.table + ' Order By ' + m.key));
function open(m, id, mode) {
    pickers.open(m.window, { recordId: id, table: m.table, keyField: m.key, mode: mode || 'Write', filter: false });
    return ui.window(m.window);
}
// A record of the member's table with data source ds: the first in the seeded data, or a copy of a
// vetted one when the table has none.
function recordWith(m, ds) {
    const found = db.query('Select ' + m.key + ' As K From ' + m.table + ' Where DataSourceID = ' + ds + ' Order By ' + m.key);
    if (found.length)
        return found[0].K;
    const id = db.query('Select Max(' + m.key + ') As M From ' + m.table)[0].M + 1;
    db.exec('Insert Into ' + m.table + ' (' + m.key + ', DataSourceID) Values (' + id + ', ' + ds + ')');
    return id;
}

// Close goes back to the member's list: the lists left open are closed.
function closePickers() {
    for (const name of ui.windows())
        if (name.startsWith('frmSelect_'))
            ui.window(name).close();
}

ui.window('frmSetup').close();

for (const m of members) {
    test(m.window + ': a vetted record opens locked with no Save or Select and writes nothing', () => {
        const id = recordWith(m, db.query('Select DataSourceID From ' + m.table + ' Where DataSourceID In (4, 7)')[0].DataSourceID);
        const before = allRows(m);
        const w = open(m, id);
        expect(w.caption).toBe(m.caption);
        expect(w.toolbar().visible('Save')).toBeFalsy();
        expect(w.toolbar().visible('Select')).toBeFalsy();
        expect(w.control(m.text).locked).toBeTruthy();
        expect(w.control('cboDataSource').locked).toBeTruthy();
        for (const b of m.buttons)
            expect(w.control(b).enabled).toBeFalsy();
        w.control(m.text).setText('changed');
        w.toolbar().click('Close');
        expect(ui.windows()).not.toContain(m.window);
        expect(allRows(m)).toBe(before);
        closePickers();
    });

    test(m.window + ': a user record opens editable; Save writes what was typed and nothing else', () => {
        const id = recordWith(m, 6);
        const before = rowOf(m, id);
        // A weight in mode "Read" is a species' weights: it is opened on its own in mode "Write".
        const w = open(m, id, m.window === 'frmDE_Weight' ? 'Write' : 'Read');
        expect(w.toolbar().visible('Save')).toBeTruthy();
        // Outside mode "Write", Select returns to the caller where the member offers it.
        expect(w.toolbar().visible('Select')).toBe(['frmDE_AE', 'frmDE_Reference'].includes(m.window));
        expect(w.control('cboDataSource').locked).toBeTruthy();
        for (const b of m.buttons)
            expect(w.control(b).enabled).toBeTruthy();
        w.control(m.text).setText("O'Hara's note");
        if (m.memo !== m.text)
            w.control(m.memo).setText('');
        w.toolbar().click('Save');
        w.toolbar().click('Save');
        const after = rowOf(m, id);
        const expected = Object.assign({}, before, { [m.column]: "O'Hara's note" });
        if (m.memo !== m.text)
            expected[m.memoColumn] = null;
        expect(after).toEqual(expected);
        if (m.number) {
            ui.clearMessages();
            w.control(m.number).setText('twelve');
            w.toolbar().click('Save');
            expect(ui.messages().length).toBe(1);
            expect(ui.messages()[0].text).toContain('Data type conversion error.');
            expect(rowOf(m, id)).toEqual(after);
            w.control(m.number).setText('12.5');
            w.toolbar().click('Save');
            expect(rowOf(m, id)[m.numberColumn]).toBe(12.5);
        }
        w.toolbar().click('Close');
        closePickers();
    });
}

test('a record deleted by another window while open: Save leaves the table alone and says nothing', () => {
    const m = members[0];
    const id = recordWith(m, 5);
    const w = open(m, id);
    db.exec('Delete From tblAE Where AEID = ' + id);
    const before = allRows(m);
    ui.clearMessages();
    w.control('txtConsumerName').setText('Ghost');
    w.toolbar().click('Save');
    w.toolbar().click('Close');
    expect(ui.messages()).toEqual([]);
    expect(allRows(m)).toBe(before);
    closePickers();
});

test('New in the gross energy picker: a blank unlocked row, typed and saved', () => {
    ui.menu('mnuGE').trigger();
    const top = db.query('Select Max(GrossEnergyID) As M From tblGrossEnergy')[0].M;
    ui.window('frmSelect_GE').toolbar().click('New');
    const w = ui.window('frmDE_GE');
    const id = top + 1;
    expect(rowOf(members[1], id).DataSourceID).toBe(null);
    expect(w.control('txtItem').locked).toBeFalsy();
    expect(w.control('dcGE').caption).toBe('Gross Energy: 1 of 1');
    w.control('txtItem').setText('Acorns');
    w.toolbar().click('Save');
    expect(rowOf(members[1], id).Item).toBe('Acorns');
    w.toolbar().click('Close');
    closePickers();
});

test('measurements by kind: wet and dry energy apart, an emptied minimum null, a sample for efficiency', () => {
    const ge = recordWith(members[1], 5);
    const w = open(members[1], ge);
    w.control('cmdMeasurement(0)').click();
    let m = ui.window('frmDE_Measurement');
    expect(m.caption).toBe('Measurement Information');
    expect(m.control('txtFields(33)').enabled).toBeFalsy();
    expect(m.control('cboGender').visible).toBeFalsy();
    m.control('txtFields(30)').setText('1.25');
    m.control('txtFields(31)').setText('');
    m.control('txtFields(32)').setText('2');
    m.toolbar().click(6);
    w.control('cmdMeasurement(1)').click();
    m = ui.window('frmDE_Measurement');
    m.control('txtFields(30)').setText('4.5');
    m.control('txtFields(31)').setText('3');
    m.toolbar().click(4);
    m.toolbar().click(8);
    const row = rowOf(members[1], ge);
    expect([row.WET_WT_KCALG, row.Min_W, row.Max_W, row.DRY_WT_KCALG, row.Min_D]).toEqual([1.25, null, 2, 4.5, 3]);
    expect(w.control('txtGE(1)').text).toContain('Mean:  1.25');
    w.toolbar().click('Close');
    closePickers();

    const ae = recordWith(members[0], 5);
    const a = open(members[0], ae);
    a.control('cmdAE_Values').click();
    m = ui.window('frmDE_Measurement');
    expect(m.control('txtFields(33)').enabled).toBeTruthy();
    m.control('txtFields(33)').setText('14');
    m.control('txtFields(30)').setText('88');
    m.toolbar().click(6);
    expect([rowOf(members[0], ae).Sample, rowOf(members[0], ae).Mean]).toEqual([14, 88]);
    a.toolbar().click('Close');
    closePickers();
});

test('descriptors: New, a blank description refused, Save, Cancel of a new one, Delete after asking', () => {
    const d = () => db.query('Select fldDescriptor, fldUnits From tblDescriptor Order By DescriptorID');
    pickers.open('frmDE_Descriptor', { filter: false });
    const w = ui.window('frmDE_Descriptor');
    expect(w.caption).toBe('Maintain Descriptors');
    expect(w.control('cmdControl(1)').enabled).toBeFalsy();
    ui.clearMessages();
    w.control('cmdControl(6)').click();
    expect(ui.messages()[0].text).toBe('There are no records to edit.');
    w.control('cmdControl(0)').click();
    expect([w.control('cmdControl(1)').enabled, w.control('cmdControl(0)').enabled]).toEqual([true, false]);
    ui.clearMessages();
    w.control('cmdControl(1)').click();
    expect(ui.messages()[0].text).toBe('Description cannot be blank...!!!');
    w.control('txtFields(0)').setText("Body length (snout's tip)");
    w.control('txtFields(1)').setText('mm');
    w.control('cmdControl(1)').click();
    expect(d()).toEqual([{ fldDescriptor: "Body length (snout's tip)", fldUnits: 'mm' }]);
    w.control('cmdControl(0)').click();
    w.control('txtFields(0)').setText('Wing span');
    w.control('cmdControl(2)').click();
    expect(d().length).toBe(1);
    ui.answer('Yes');
    w.control('cmdControl(3)').click();
    expect(d()).toEqual([]);
    w.control('cmdControl(4)').click();
});
