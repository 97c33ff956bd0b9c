// The four filtered pickers, one journey each: from the menu (rows, captions, sorting by a head click,
// Select hidden, New and a double click opening the entry window and Close coming back), then for a
// diet item of the reference data narrowed at family and widened level by level to the kingdom, the
// value written by Select, and for a scenario's copy, whose diet becomes the user's; bad input last.

const members = [
    { window: 'frmSelect_GE', menu: 'mnuGE', caption: 'Select Gross Energy', table: 'tblGrossEnergy',
      key: 'GrossEnergyID', sortField: 'Item', entry: 'frmDE_GE', help: 2575 },
    { window: 'frmSelect_AE', menu: 'mnuAE', caption: 'Select Assimilation Efficiency', table: 'tblAE',
      key: 'AEID', sortField: 'ConsumerName', entry: 'frmDE_AE', help: 2575 },
    { window: 'frmSelect_WaterConversion', menu: 'mnuWaterConversion', caption: 'Select Moisture Content',
      table: 'tblWaterConversion', key: 'WaterConversionID', sortField: 'Item', entry: 'frmDE_WaterConversion',
      help: 2524, typed: { box: 'txtWaterRatio(0)', value: 'WaterPercent', ds: 'WaterPercentDS', rowValue: 'Mean' } },
    { window: 'frmSelect_TrophicLevel', menu: 'mnuTrophicLevel', caption: 'Select Trophic Level',
      table: 'tblTrophicLevel', key: 'TrophicLevelID', sortField: 'Item', entry: 'frmDE_TrophicLevel', help: 2524,
      typed: { box: 'txtTL', value: 'TrophicLevel', ds: 'TrophiclevelDS', rowValue: 'TrophicLevel' } },
];
const levels = ['KingdomID', 'SubkingdomID', 'PhylumID', 'ClassID', 'OrderID', 'FamilyID'];
const texts = () => ui.messages().map(m => m.text);

// The ids a grid lists, by its key column.
function listedIds(grid, key) {
    const col = grid.columns.indexOf(key);
    return grid.rows.map(r => Number(r[col])).sort((a, b) => a - b);
}
function expectedIds(m, column, value) {
    const where = column && value > 0 ? ' Where ' + column + ' = ' + value : '';
    return db.query('Select ' + m.key + ' As K From ' + m.table + where).map(r => Number(r.K)).sort((a, b) => a - b);
}

let nextId = 960000;
// A reference diet item classified like the picker row with the longest classification.
function referenceItem(m) {
    const row = db.query('Select * From ' + m.table + ' Where FamilyID > 0 Order By ' + m.key)[0];
    const id = ++nextId;
    db.exec('Insert Into tblDietItem (DietItemID, DietID, Name, ' + levels.join(', ') + ', ' + m.key
            + ') Values (' + id + ", 1, 'Probe', " + levels.map(l => row[l]).join(', ') + ', 0)');
    return { id: id, row: row };
}

ui.window('frmSetup').close();

for (const m of members) {
    test(m.window + ' from the menu: every row, sorted by a head click; Select hidden but for moisture', () => {
        expect(ui.menu(m.menu).enabled).toBeTruthy();
        ui.menu(m.menu).trigger();
        const w = ui.window(m.window);
        expect(w.caption).toBe(m.caption);
        const grid = w.control('ssCmbSearch');
        expect(listedIds(grid, m.key)).toEqual(expectedIds(m));
        expect(w.control('fraFilter').visible).toBeFalsy();
        expect(w.toolbar().visible('Select')).toBe(m.window === 'frmSelect_WaterConversion');
        if (m.typed)
            expect(w.control('fraAssigned').visible).toBeFalsy();
        const col = grid.columns.indexOf(m.key);
        grid.headClick(grid.columns.indexOf(m.key));
        const ids = grid.rows.map(r => Number(r[col]));
        expect(ids).toEqual(expectedIds(m));
        w.toolbar().click('Help');
        expect(ui.helpTopic()).toBe(m.help);
    });

    test(m.window + ' from the menu: a double click opens the row, New a blank row, Close goes back to the list', () => {
        const top = () => db.query('Select Max(' + m.key + ') As M From ' + m.table)[0].M;
        let grid = ui.window(m.window).control('ssCmbSearch');
        const col = grid.columns.indexOf(m.key);
        const id = Number(grid.cell(1, col));
        grid.dblClickRow(1);
        expect(ui.windows()).not.toContain(m.window);
        ui.window(m.entry).toolbar().click('Close');
        grid = ui.window(m.window).control('ssCmbSearch');
        expect(Number(grid.cell(grid.currentRow, col))).toBe(id);
        const before = top();
        ui.window(m.window).toolbar().click('New');
        expect(top()).toBe(before + 1);
        const entry = ui.window(m.entry);
        expect(entry.toolbar().visible('Save')).toBeTruthy();
        entry.toolbar().click('Close');
        grid = ui.window(m.window).control('ssCmbSearch');
        expect(Number(grid.cell(grid.currentRow, col))).toBe(before + 1);
        ui.window(m.window).toolbar().click('Close');
        expect(ui.windows()).not.toContain(m.window);
    });

    test(m.window + ' for a reference diet item: family, widened to order, class, phylum, subkingdom, kingdom', () => {
        const item = referenceItem(m);
        pickers.open(m.window, { recordId: item.id, table: 'tblDietItem', keyField: 'DietItemID' });
        const w = ui.window(m.window);
        expect(w.control('fraFilter').visible).toBeTruthy();
        expect(w.toolbar().visible('Select')).toBeTruthy();
        const grid = w.control('ssCmbSearch');
        expect(listedIds(grid, m.key)).toEqual(expectedIds(m));
        for (let level = 6; level >= 1; --level) {
            w.control('optFilter(' + level + ')').click();
            const column = levels[level - 1];
            expect(listedIds(grid, m.key)).toEqual(expectedIds(m, column, item.row[column]));
        }
        expect(w.control('fraFilter').caption.indexOf('Filter  - Record: 1 / ')).toBe(0);
        w.control('optFilter(6)').click();
        const col = grid.columns.indexOf(m.key);
        const last = grid.rowCount - 1;
        grid.selectRow(last);
        const chosen = Number(grid.cell(last, col));
        expect(w.control('fraFilter').caption).toBe('Filter  - Record: ' + (last + 1) + ' / ' + grid.rowCount);
        w.toolbar().click('Select');
        expect(ui.windows()).not.toContain(m.window);
        const written = db.query('Select * From tblDietItem Where DietItemID = ' + item.id)[0];
        expect(written[m.key]).toBe(chosen);
        if (m.typed) {
            const source = db.query('Select * From ' + m.table + ' Where ' + m.key + ' = ' + chosen)[0];
            expect(written[m.typed.value]).toBeCloseTo(Number(fmt.vbFormat(source[m.typed.rowValue], '##.0')), 4);
            expect(written[m.typed.ds]).toBe(source.DataSourceID);
        }
    });

    test(m.window + ' for a scenario copy: the value written and the copy marked as the user\'s', () => {
        db.exec("Insert Into tblScenario (Scenario_Type, Scenario_Identifier_1) Values ('Wildlife', 'picker check')");
        const sid = db.query('Select Max(ScenarioID) As M From tblScenario')[0].M;
        db.exec('Insert Into tblWildlife (ScenarioID, DietID, DietDataSourceID) Values (' + sid + ', 1, 4)');
        db.exec('Insert Into tblWildlifeDiet (DietID, ScenarioID, DataSourceID) Values (1, ' + sid + ', 4)');
        const id = ++nextId;
        db.exec('Insert Into tblWildlifeDietItems (ScenarioID, DietID, DietItemID, Name) Values (' + sid + ', 1, '
                + id + ", 'Copy')");
        session.scenario.SID = sid;
        const first = expectedIds(m)[0];
        pickers.open(m.window, { recordId: id, table: 'tblWildlifeDietItems', keyField: 'DietItemID', selectedId: first });
        const w = ui.window(m.window);
        const grid = w.control('ssCmbSearch');
        expect(Number(grid.cell(grid.currentRow, grid.columns.indexOf(m.key)))).toBe(first);
        if (m.typed)
            w.control(m.typed.box).setText('42.25');
        w.toolbar().click('Select');
        const copy = db.query('Select * From tblWildlifeDietItems Where DietItemID = ' + id)[0];
        if (m.typed) {
            expect(copy[m.key]).toBe(0);
            expect(copy[m.typed.value]).toBeCloseTo(42.3, 4);
            expect(copy[m.typed.ds]).toBe(6);
        } else {
            expect(copy[m.key]).toBe(first);
        }
        expect(db.query('Select DietDataSourceID From tblWildlife Where ScenarioID = ' + sid)[0].DietDataSourceID).toBe(6);
        expect(db.query('Select DataSourceID From tblWildlifeDiet Where ScenarioID = ' + sid)[0].DataSourceID).toBe(6);
    });

    test(m.window + ': a caller row that is gone and a table without classification are reported; it stays open', () => {
        pickers.open(m.window, { recordId: 999999, table: 'tblDietItem', keyField: 'DietItemID' });
        const w = ui.window(m.window);
        ui.clearMessages();
        w.control('optFilter(6)').click();
        expect(texts().length).toBe(1);
        expect(texts()[0].indexOf('Error in routine ' + m.window + '.LoadData')).toBe(0);
        expect(texts()[0]).toContain('No current record.');
        expect(w.visible).toBeTruthy();
        w.toolbar().click('Close');
        pickers.open(m.window, { recordId: 1, table: 'tblDataSource', keyField: 'DataSourceID' });
        ui.clearMessages();
        ui.window(m.window).control('optFilter(1)').click();
        expect(texts().length).toBe(1);
        expect(texts()[0].indexOf('Error in routine ' + m.window + '.LoadData')).toBe(0);
        ui.window(m.window).toolbar().click('Close');
        expect(ui.windows()).not.toContain(m.window);
    });
}

test('moisture: the ratio follows the typed content; over 100 % is refused word for word', () => {
    pickers.open('frmSelect_WaterConversion', { recordId: 1, table: 'tblDietItem', keyField: 'DietItemID' });
    const w = ui.window('frmSelect_WaterConversion');
    ui.clearMessages();
    w.control('txtWaterRatio(0)').setText('75');
    expect(w.control('txtWaterRatio(1)').text).toBe('.250');
    w.control('txtWaterRatio(0)').setText('100');
    expect(w.control('txtWaterRatio(1)').text).toBe('.000');
    expect(texts()).toEqual([]);
    w.control('txtWaterRatio(0)').setText('100.5');
    expect(texts()).toEqual(['Water content cannot be greater than 100 %.']);
    expect(ui.messages()[0].icon).toBe('warning');
    expect(w.control('txtWaterRatio(1)').text).toBe('0');
    w.toolbar().click('Close');
});
