// Energy requirement of a scenario built row by row: MEavg on the wet and the dry basis, FMR and TDI with
// their roundings and fall-backs, the daily dry diet, and the itemised statement of the calculation grid
// run through the database. Every expected number is worked out by hand below.

const NO_ITEMS = 'No Diet Items exist in this scenario. Dietary calculations will not be done.';
let nextRef = 920000;

function newScenario(dietType, fmr) {
    db.exec("Insert Into tblScenario (Scenario_Type, Scenario_Identifier_1) Values ('Wildlife', 'energy check')");
    const sid = db.query('Select Max(ScenarioID) As M From tblScenario')[0].M;
    db.exec('Insert Into tblWildlife (ScenarioID, DietID, DietType) Values (' + sid + ', 0, ' + dietType + ')');
    for (let t = 1; t <= 5; ++t)
        db.exec('Insert Into tblIntakeZOB (ScenarioID, IntakeTypeID, BaseRate, AdjustedRate, DataSourceID) Values ('
                + sid + ', ' + t + ', 0, ' + (t === 3 ? fmr : 0) + ', 6)');
    session.scenario.SID = sid;
    session.scenario.DietType = dietType;
    return sid;
}

function ae(mean) {
    const id = ++nextRef;
    db.exec('Insert Into tblAE (AEID, FoodName, Mean, DataSourceID) Values (' + id + ", 'food', " + mean + ', 6)');
    return id;
}

function ge(wet, dry) {
    const id = ++nextRef;
    db.exec('Insert Into tblGrossEnergy (GrossEnergyID, Item, WET_WT_KCALG, DRY_WT_KCALG, DataSourceID) Values ('
            + id + ", 'energy', " + wet + ', ' + dry + ', 6)');
    return id;
}

function sqlValue(v) {
    if (v === null || v === undefined) return 'Null';
    return typeof v === 'string' ? "'" + v + "'" : String(v);
}

function item(sid, o) {
    const cols = Object.assign({ ScenarioID: sid, DietItemID: ++nextRef }, o);
    const names = Object.keys(cols);
    db.exec('Insert Into tblWildlifeDietItems (' + names.join(', ') + ') Values ('
            + names.map(n => sqlValue(cols[n])).join(', ') + ')');
    return cols.DietItemID;
}

function warnings() {
    return ui.messages().filter(m => m.text === NO_ITEMS);
}

function errorBoxes(routine) {
    return ui.messages().filter(m => m.text.indexOf('Error in routine ' + routine + '\r\n\r\n') === 0);
}

// Two items whose wet and dry columns give different sums:
//   wet: 0.70 * 1.5 * 0.6 + 0.80 * 2.0 * 0.4 = 0.63 + 0.64 = 1.27
//   dry: 0.70 * 5.0 * 0.3 + 0.80 * 4.0 * 0.7 = 1.05 + 2.24 = 3.29
function twoItems(sid) {
    item(sid, { Name: 'Beetles', AEID: ae(70), GrossEnergyID: ge(1.5, 5), Wet_Proportion: 0.6, Dry_Proportion: 0.3 });
    item(sid, { Name: 'Acorns', AEID: ae(80), GrossEnergyID: ge(2, 4), Wet_Proportion: 0.4, Dry_Proportion: 0.7 });
}

test('GetMEAvg takes the energy and the proportion of one basis together', () => {
    twoItems(newScenario(1, 100));
    expect(calc.GetMEAvg()).toBe(Math.fround(1.27));
    session.scenario.DietType = 0;
    expect(calc.GetMEAvg()).toBe(Math.fround(3.29));
    session.scenario.DietType = 2;            // any type but 0 is the wet basis
    expect(calc.GetMEAvg()).toBe(Math.fround(1.27));
});

test('GetMEAvg leaves out items without a matching efficiency or energy row and does not normalise', () => {
    const sid = newScenario(0, 100);
    item(sid, { Name: 'a', AEID: ae(50), GrossEnergyID: ge(1, 4), Dry_Proportion: 0.5 });   // 0.5 * 4 * 0.5 = 1
    item(sid, { Name: 'b', AEID: 0, GrossEnergyID: ge(1, 4), Dry_Proportion: 0.25 });
    item(sid, { Name: 'c', AEID: ae(50), GrossEnergyID: 999999, Dry_Proportion: 0.25 });
    expect(calc.GetMEAvg()).toBe(1);
});

test('GetMEAvg rounds to two decimals: 0.004 becomes 0 and TDI falls back to 1.0', () => {
    const sid = newScenario(0, 100);
    item(sid, { Name: 'a', AEID: ae(1), GrossEnergyID: ge(0.1, 0.4), Dry_Proportion: 1 });
    ui.clearMessages();
    expect(calc.GetMEAvg()).toBe(0);
    expect(calc.GetFMR_TDI('TDI')).toBe(1);
    expect(ui.messages().length).toBe(0);
});

test('MEavg and TDI round a tie of their decimal text away from zero', () => {
    const sid = newScenario(0, 2.01);
    const energy = ge(1, 2.01);
    item(sid, { Name: 'a', AEID: ae(50), GrossEnergyID: energy, Dry_Proportion: 1 });
    expect(calc.GetMEAvg()).toBe(Math.fround(1.01));              // 0.5 * 2.01 = 1.005
    db.exec('Update tblGrossEnergy Set DRY_WT_KCALG = 4 Where GrossEnergyID = ' + energy);
    expect(calc.GetMEAvg()).toBe(2);
    expect(calc.GetFMR_TDI('TDI')).toBe(Math.fround(1.01));       // 2.01 / 2 = 1.005
});

test('GetMEAvg without diet items warns and gives 1.0', () => {
    newScenario(1, 100);
    ui.clearMessages();
    expect(calc.GetMEAvg()).toBe(1);
    const boxes = warnings();
    expect(boxes.length).toBe(1);
    expect(boxes[0].icon).toBe('warning');
    expect(boxes[0].buttons).toEqual(['OK']);
    expect(ui.messages().length).toBe(1);
});

test('FMR 101.49 and MEavg 3.2 give TDI 31.72', () => {
    const sid = newScenario(0, 101.49);
    item(sid, { Name: 'a', AEID: ae(80), GrossEnergyID: ge(1, 4), Dry_Proportion: 1 });
    expect(calc.GetFMR_TDI('FMR')).toBe(Math.fround(101.49));
    expect(calc.GetMEAvg()).toBe(Math.fround(3.2));
    expect(calc.GetFMR_TDI('TDI')).toBe(Math.fround(31.72));   // 31.715625
    expect(calc.GetFMR_TDI('anything')).toBe(Math.fround(31.72));
});

test('FMR and TDI come back with two decimals', () => {
    const sid = newScenario(0, 100.006);          // FMR 100.01
    item(sid, { Name: 'a', AEID: ae(50), GrossEnergyID: ge(1, 6), Dry_Proportion: 1 });   // ME 3
    expect(calc.GetFMR_TDI('FMR')).toBe(Math.fround(100.01));
    expect(calc.GetFMR_TDI('TDI')).toBe(Math.fround(33.34));   // 100.006 / 3 = 33.3353
    db.exec('Update tblIntakeZOB Set AdjustedRate = 100.004 Where IntakeTypeID = 3 And ScenarioID = ' + sid);
    expect(calc.GetFMR_TDI('FMR')).toBe(100);
    expect(calc.GetFMR_TDI('TDI')).toBe(Math.fround(33.33));
});

test('values of a thousand and more come back through the thousands separator', () => {
    const sid = newScenario(0, 1234.567);
    const aeId = ae(50);
    item(sid, { Name: 'a', AEID: aeId, GrossEnergyID: ge(1, 2), Dry_Proportion: 1 });   // ME 1
    expect(calc.GetFMR_TDI('FMR')).toBe(Math.fround(1234.57));
    expect(calc.GetFMR_TDI('TDI')).toBe(Math.fround(1234.57));
    db.exec('Update tblIntakeZOB Set AdjustedRate = 2469.14 Where IntakeTypeID = 3 And ScenarioID = ' + sid);
    db.exec('Update tblAE Set Mean = 25 Where AEID = ' + aeId);                   // ME 0.5
    expect(calc.GetFMR_TDI('TDI')).toBe(Math.fround(4938.28));
});

test('TDI falls back to exactly 1.0 for an FMR of 0 and for a negative MEavg, with no message', () => {
    const sid = newScenario(0, 0);
    item(sid, { Name: 'a', AEID: ae(80), GrossEnergyID: ge(1, 4), Dry_Proportion: 1 });
    ui.clearMessages();
    expect(calc.GetFMR_TDI('TDI')).toBe(1);
    expect(calc.GetFMR_TDI('FMR')).toBe(0);
    const neg = newScenario(0, 50);
    item(neg, { Name: 'a', AEID: ae(-50), GrossEnergyID: ge(1, 2), Dry_Proportion: 1 });
    expect(calc.GetMEAvg()).toBe(-1);
    expect(calc.GetFMR_TDI('TDI')).toBe(1);
    expect(ui.messages().length).toBe(0);
});

test('without diet items TDI is FMR after the warning; FMR alone reads no diet', () => {
    newScenario(1, 42.5);
    ui.clearMessages();
    expect(calc.GetFMR_TDI('FMR')).toBe(42.5);
    expect(ui.messages().length).toBe(0);
    expect(calc.GetFMR_TDI('TDI')).toBe(42.5);
    expect(warnings().length).toBe(1);
    newScenario(1, 0);
    ui.clearMessages();
    expect(calc.GetFMR_TDI('TDI')).toBe(1);
    expect(warnings().length).toBe(1);
});

test('a missing or null food row is reported under " GetFMR_TDI" and gives 0', () => {
    const sid = newScenario(0, 10);
    item(sid, { Name: 'a', AEID: ae(80), GrossEnergyID: ge(1, 4), Dry_Proportion: 1 });
    db.exec('Update tblIntakeZOB Set AdjustedRate = Null Where IntakeTypeID = 3 And ScenarioID = ' + sid);
    ui.clearMessages();
    expect(calc.GetFMR_TDI('TDI')).toBe(0);
    expect(errorBoxes(' GetFMR_TDI').length).toBe(1);
    db.exec('Delete From tblIntakeZOB Where IntakeTypeID = 3 And ScenarioID = ' + sid);
    ui.clearMessages();
    expect(calc.GetFMR_TDI('FMR')).toBe(0);
    expect(errorBoxes(' GetFMR_TDI').length).toBe(1);
    expect(ui.cursor()).toBe('default');
});

test('the daily dry diet is TDI on the dry basis and (1 - H) * TDI on the wet basis', () => {
    const sid = newScenario(1, 40);
    item(sid, { Name: 'a', AEID: ae(50), GrossEnergyID: ge(2, 8), Wet_Proportion: 1, Dry_Proportion: 0.25,
                WaterPercent: 75 });
    expect(calc.GetFMR_TDI('TDI')).toBe(40);          // ME 0.5 * 2 * 1 = 1
    expect(calc.GetH2OAvg()).toBe(0.75);
    expect(calc.GetDailyDryDiet()).toBe(10);
    session.scenario.DietType = 0;                    // ME 0.5 * 8 * 0.25 = 1, H 0.1875 -> .19
    expect(calc.GetFMR_TDI('TDI')).toBe(40);
    expect(calc.GetDailyDryDiet()).toBe(40);
});

// The statement of the calculation grid, piece by piece as the program writes it.
function expectedCalculationSQL(sid, wet, tdiText) {
    const head = 'SELECT  tblScenario.*, tblWildlifeDietItems.Name, tblLifeStage.Description AS LifeStage, '
        + 'tblComponent.Description AS Component, tblAE.Mean,';
    const basis = wet
        ? ' tblWildlifeDietItems.Wet_Proportion AS DietProportion, tblGrossEnergy.WET_WT_KCALG AS GE, '
          + '[tblAE]![Mean]*0.01*[tblGrossEnergy]![WET_Wt_KCALG] AS ME, tblWildlifeDietItems.Wet_Proportion * '
          + '[tblAE]![Mean]*0.01*[tblGrossEnergy]![Wet_Wt_KCALG] AS ME_Wt,'
        : ' tblWildlifeDietItems.Dry_Proportion AS DietProportion, tblGrossEnergy.Dry_WT_KCALG AS GE, '
          + '[tblAE]![Mean]*0.01*[tblGrossEnergy]![Dry_Wt_KCALG] AS ME, tblWildlifeDietItems.Dry_Proportion * '
          + '[tblAE]![Mean]*0.01*[tblGrossEnergy]![Dry_Wt_KCALG] AS ME_Wt,';
    const intake = tdiText + (wet ? '*[tblWildlifeDietItems]![Wet_Proportion] AS Daily_Intake,'
                                  : '*[tblWildlifeDietItems]![Dry_Proportion] AS Daily_Intake,');
    const tail = ' tblDataSource.Description AS DataSource FROM (tblComponent RIGHT JOIN (tblLifeStage RIGHT JOIN '
        + '((tblGrossEnergy INNER JOIN (tblWildlifeDietItems INNER JOIN tblAE ON tblWildlifeDietItems.AEID = '
        + 'tblAE.AEID) ON tblGrossEnergy.GrossEnergyID = tblWildlifeDietItems.GrossEnergyID) LEFT JOIN tblDataSource '
        + 'ON tblWildlifeDietItems.DataSourceID = tblDataSource.DataSourceID) ON tblLifeStage.LifeStageID = '
        + 'tblWildlifeDietItems.LifeStageID) ON tblComponent.ComponentID = tblWildlifeDietItems.ComponentID)  INNER '
        + 'JOIN tblScenario ON tblWildlifeDietItems.ScenarioID = tblScenario.ScenarioID Where '
        + 'tblWildlifeDietItems.ScenarioID = ' + sid + ' ORDER BY tblWildlifeDietItems.Name';
    return head + basis + intake + tail;
}

test('CalculationSQL on the dry basis: the text, and itemised intake = TDI x proportion', () => {
    const sid = newScenario(0, 101.49);
    const ls = db.query('Select LifeStageID, Description From tblLifeStage Order By LifeStageID')[0];
    const comp = db.query('Select ComponentID, Description From tblComponent Order By ComponentID')[0];
    const ds = db.query('Select DataSourceID, Description From tblDataSource Where DataSourceID = 6')[0];
    // ME = 0.8 * 4 * 0.75 + 0.5 * 2.5 * 0.25 = 2.4 + 0.3125 = 2.7125 -> 2.71; TDI = 101.49 / 2.71 = 37.45
    item(sid, { Name: 'Worms', AEID: ae(80), GrossEnergyID: ge(1, 4), Dry_Proportion: 0.75, Wet_Proportion: 0.5,
                LifestageID: ls.LifeStageID, ComponentID: comp.ComponentID, DataSourceID: 6 });
    item(sid, { Name: 'Ants', AEID: ae(50), GrossEnergyID: ge(1, 2.5), Dry_Proportion: 0.25, Wet_Proportion: 0.5 });
    item(sid, { Name: 'Moss', AEID: 0, GrossEnergyID: ge(1, 2.5), Dry_Proportion: 0.5 });     // not in the join
    expect(calc.GetFMR_TDI('TDI')).toBe(Math.fround(37.45));
    const sql = calc.CalculationSQL();
    expect(sql).toBe(expectedCalculationSQL(sid, false, '37.45'));
    const rows = db.query(sql);
    expect(rows.map(r => r.Name)).toEqual(['Ants', 'Worms']);
    expect(rows[0].ScenarioID).toBe(sid);
    expect(rows[0].DietProportion).toBeCloseTo(0.25, 9);
    expect(rows[0].GE).toBeCloseTo(2.5, 9);
    expect(rows[0].ME).toBeCloseTo(1.25, 9);
    expect(rows[0].ME_Wt).toBeCloseTo(0.3125, 9);
    expect(rows[0].Daily_Intake).toBeCloseTo(9.3625, 9);       // 37.45 * 0.25
    expect(rows[0].DataSource).toBeNull();
    expect(rows[1].Daily_Intake).toBeCloseTo(28.0875, 9);      // 37.45 * 0.75
    expect(rows[1].ME).toBeCloseTo(3.2, 9);
    expect(rows[1].LifeStage).toBe(ls.Description);
    expect(rows[1].Component).toBe(comp.Description);
    expect(rows[1].DataSource).toBe(ds.Description);
    expect(ui.cursor()).toBe('default');
});

test('CalculationSQL on the wet basis uses the wet columns throughout', () => {
    const sid = newScenario(1, 60);
    // ME = 0.5 * 2 * 0.5 + 0.5 * 1 * 0.5 = 0.75; TDI = 80
    item(sid, { Name: 'b', AEID: ae(50), GrossEnergyID: ge(2, 9), Wet_Proportion: 0.5, Dry_Proportion: 0.9 });
    item(sid, { Name: 'a', AEID: ae(50), GrossEnergyID: ge(1, 9), Wet_Proportion: 0.5, Dry_Proportion: 0.1 });
    const sql = calc.CalculationSQL();
    expect(sql).toBe(expectedCalculationSQL(sid, true, '80'));
    const rows = db.query(sql);
    expect(rows.map(r => r.Name)).toEqual(['a', 'b']);
    expect(rows.map(r => r.GE)).toEqual([1, 2]);
    expect(rows.map(r => r.Daily_Intake)).toEqual([40, 40]);
    const total = rows.reduce((s, r) => s + r.ME_Wt, 0);
    expect(total).toBeCloseTo(0.75, 9);
});

test('CalculationSQL without items shows the warning and builds the statement on TDI 1', () => {
    const sid = newScenario(0, 0);
    ui.clearMessages();
    const sql = calc.CalculationSQL();
    expect(warnings().length).toBe(1);
    expect(sql).toBe(expectedCalculationSQL(sid, false, '1'));
    expect(db.query(sql).length).toBe(0);
});
