// The calc.* and diet.* script bindings over the program's database: argument orders, the single values
// that come back as JavaScript numbers, booleans and texts, the reports that reach the message boxes, and
// the calculation grid's statement run through the database. The arithmetic itself is checked in
// tests/calc; here each binding is called with a hand-worked case.

const NO_ITEMS = 'No Diet Items exist in this scenario. Dietary calculations will not be done.';
let nextRef = 910000;

function sqlValue(v) {
    if (v === null || v === undefined) return 'Null';
    return typeof v === 'string' ? "'" + v + "'" : String(v);
}

function insert(table, cols) {
    const names = Object.keys(cols);
    db.exec('Insert Into ' + table + ' (' + names.join(', ') + ') Values ('
            + names.map(n => sqlValue(cols[n])).join(', ') + ')');
}

function newScenario(dietType, fmr) {
    db.exec("Insert Into tblScenario (Scenario_Type, Scenario_Identifier_1) Values ('Wildlife', 'calc check')");
    const sid = db.query('Select Max(ScenarioID) As M From tblScenario')[0].M;
    db.exec('Insert Into tblWildlife (ScenarioID, DietID, DietType) Values (' + sid + ', 0, ' + dietType + ')');
    for (let t = 1; t <= 5; ++t)
        db.exec('Insert Into tblIntakeZOB (ScenarioID, IntakeTypeID, BaseRate, AdjustedRate, DataSourceID) Values ('
                + sid + ', ' + t + ', 0, ' + (t === 3 ? (fmr || 0) : 0) + ', 6)');
    session.scenario.SID = sid;
    session.scenario.DietType = dietType;
    session.scenario.DietID = 0;
    return sid;
}

function water(mean) {
    const id = ++nextRef;
    insert('tblWaterConversion', { WaterConversionID: id, Item: 'water ' + mean, Mean: mean, DataSourceID: 6 });
    return id;
}
function ae(mean) {
    const id = ++nextRef;
    insert('tblAE', { AEID: id, FoodName: 'food', Mean: mean, DataSourceID: 6 });
    return id;
}
function ge(wet, dry) {
    const id = ++nextRef;
    insert('tblGrossEnergy', { GrossEnergyID: id, Item: 'energy', WET_WT_KCALG: wet, DRY_WT_KCALG: dry, DataSourceID: 6 });
    return id;
}
function item(sid, o) {
    const id = ++nextRef;
    insert('tblWildlifeDietItems', Object.assign({ ScenarioID: sid, DietItemID: id }, o));
    return id;
}
function props(sid, field) {
    return db.query('Select ' + field + ' As P From tblWildlifeDietItems Where ScenarioID = ' + sid
                    + ' Order By DietItemID').map(r => r.P);
}
function expectProps(actual, expected) {
    expect(actual.length).toBe(expected.length);
    for (let i = 0; i < expected.length; ++i)
        expect(actual[i]).toBeCloseTo(expected[i], 6);
}
function errorBoxes(routine) {
    return ui.messages().filter(m => m.text.indexOf('Error in routine ' + routine + '\r\n\r\n') === 0);
}
function describe(id) {
    return db.query('Select Description From tblDataSource Where DataSourceID = ' + id)[0].Description;
}

test('ConvertWeightIs takes (valueIsDry, value, water) and gives the single back; a failure gives NaN', () => {
    expect(calc.ConvertWeightIs(false, 0.4, 50)).toBe(Math.fround(0.2));
    expect(calc.ConvertWeightIs(true, 0.1, 70)).toBe(Math.fround(0.333));
    expect(calc.ConvertWeightIs(true, 0.5, 100)).toBe(NaN);
    expect(calc.lastError()).toContain('11');
});

test('CalculateDietPorportion answers true or false; its failure reaches the error box', () => {
    const sid = newScenario(1);
    item(sid, { Name: 'a', Wet_Proportion: 0.3, Dry_Proportion: 0.6 });
    item(sid, { Name: 'b', Wet_Proportion: 0.3, Dry_Proportion: 0.2 });
    ui.clearMessages();
    expect(calc.CalculateDietPorportion(true)).toBe(true);
    expectProps(props(sid, 'Wet_Proportion'), [0.5, 0.5]);
    expectProps(props(sid, 'Dry_Proportion'), [0.6, 0.2]);
    expect(ui.messages().length).toBe(0);
    expect(calc.CalculateDietPorportion(true)).toBe(false);        // already exactly 1.0
    const boxes = errorBoxes('CalculateDietPorportion');
    expect(boxes.length).toBe(1);
    expect(boxes[0].icon).toBe('stop');
    expect(boxes[0].buttons).toEqual(['OK']);
    expect(boxes[0].title).toBe('');
    expect(ui.cursor()).toBe('default');
});

test('ConvertDietProportion takes (wetToDry, mode); Perm follows the diet set from the script', () => {
    const sid = newScenario(1);
    item(sid, { Name: 'a', Wet_Proportion: 0.5, WaterConversionID: water(50) });
    calc.ConvertDietProportion(true, 'User');
    expectProps(props(sid, 'Dry_Proportion'), [0.25]);
    calc.ConvertDietProportion(true);                              // the one-argument form is "User"
    expectProps(props(sid, 'Dry_Proportion'), [0.25]);

    const dietId = ++nextRef;
    const w = water(60);
    const one = newScenario(1);
    item(one, { Name: 'a', DietID: dietId, Wet_Proportion: 0.5, WaterConversionID: w });
    const two = newScenario(1);
    item(two, { Name: 'a', DietID: dietId, Wet_Proportion: 0.25, WaterConversionID: w });
    session.scenario.SID = one;
    session.scenario.DietID = dietId;
    calc.ConvertDietProportion(true, 'Perm');
    expectProps(props(one, 'Dry_Proportion'), [0.2]);
    expectProps(props(two, 'Dry_Proportion'), [0.1]);

    const bad = newScenario(0);
    item(bad, { Name: 'a', Dry_Proportion: 0.5, Wet_Proportion: 0.7, WaterConversionID: water(100) });
    ui.clearMessages();
    calc.ConvertDietProportion(false, 'User');
    expect(errorBoxes('ConvertDietProportion').length).toBe(1);
    expect(errorBoxes('ConvertDietProportion')[0].text).toContain('11');
});

test('SumProportions, GetH2OAvg and GetAvgTrophicLevel on a scenario made by the script', () => {
    const sid = newScenario(1);
    item(sid, { Name: 'a', Wet_Proportion: 0.3, Dry_Proportion: 0.05, WaterConversionID: water(50),
                WaterPercent: 70, TrophicLevel: 2 });
    item(sid, { Name: 'b', Wet_Proportion: 0.3, Dry_Proportion: 0.05, WaterConversionID: water(75),
                WaterPercent: 80, TrophicLevel: 3.5 });
    ui.clearMessages();
    calc.SumProportions(true);
    expectProps(props(sid, 'Wet_Proportion'), [0.5, 0.5]);
    expectProps(props(sid, 'Dry_Proportion'), [0.667, 0.333]);
    expect(ui.messages().length).toBe(0);
    expect(calc.GetH2OAvg()).toBe(Math.fround(0.75));
    expect(calc.GetAvgTrophicLevel(sid, 'tblWildlifeDietItems')).toBe('2.75');

    newScenario(1);
    ui.clearMessages();
    expect(calc.GetH2OAvg()).toBe(0);
    expect(errorBoxes(' GetH2OAvg').length).toBe(1);
    expect(ui.messages().filter(m => m.text === NO_ITEMS).length).toBe(0);
});

test('GetMEAvg, GetFMR_TDI and GetDailyDryDiet give singles; no items warn in a box', () => {
    const sid = newScenario(0, 101.49);
    item(sid, { Name: 'a', AEID: ae(80), GrossEnergyID: ge(1, 4), Dry_Proportion: 1, Wet_Proportion: 1,
                WaterPercent: 75 });
    expect(calc.GetFMR_TDI('FMR')).toBe(Math.fround(101.49));
    expect(calc.GetMEAvg()).toBe(Math.fround(3.2));
    expect(calc.GetFMR_TDI('TDI')).toBe(Math.fround(31.72));
    expect(calc.GetDailyDryDiet()).toBe(Math.fround(31.72));
    session.scenario.DietType = 2;              // any type but 0 is the wet basis: ME .8 * 1 * 1
    expect(calc.GetMEAvg()).toBe(Math.fround(0.8));

    newScenario(1, 42.5);
    ui.clearMessages();
    expect(calc.GetMEAvg()).toBe(1);
    expect(calc.GetFMR_TDI('TDI')).toBe(42.5);
    const boxes = ui.messages().filter(m => m.text === NO_ITEMS);
    expect(boxes.length).toBe(2);
    expect(boxes[0].icon).toBe('warning');
    expect(boxes[0].buttons).toEqual(['OK']);
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
    // ME = 0.8 * 4 * 0.75 + 0.5 * 2.5 * 0.25 = 2.4 + 0.3125 = 2.7125 -> 2.71; TDI = 101.49 / 2.71 = 37.45
    item(sid, { Name: 'Worms', AEID: ae(80), GrossEnergyID: ge(1, 4), Dry_Proportion: 0.75, Wet_Proportion: 0.5,
                LifestageID: ls.LifeStageID, ComponentID: comp.ComponentID, DataSourceID: 6 });
    item(sid, { Name: 'Ants', AEID: ae(50), GrossEnergyID: ge(1, 2.5), Dry_Proportion: 0.25, Wet_Proportion: 0.5 });
    item(sid, { Name: 'Moss', AEID: 0, GrossEnergyID: ge(1, 2.5), Dry_Proportion: 0.5 });     // not in the join
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
    expect(rows[1].LifeStage).toBe(ls.Description);
    expect(rows[1].Component).toBe(comp.Description);
    expect(rows[1].DataSource).toBe(describe(6));
    expect(ui.cursor()).toBe('default');
});

test('CalculationSQL on the wet basis uses the wet columns throughout; without items TDI is 1', () => {
    const sid = newScenario(1, 60);
    // ME = 0.5 * 2 * 0.5 + 0.5 * 1 * 0.5 = 0.75; TDI = 80
    item(sid, { Name: 'b', AEID: ae(50), GrossEnergyID: ge(2, 9), Wet_Proportion: 0.5, Dry_Proportion: 0.9 });
    item(sid, { Name: 'a', AEID: ae(50), GrossEnergyID: ge(1, 9), Wet_Proportion: 0.5, Dry_Proportion: 0.1 });
    const sql = calc.CalculationSQL();
    expect(sql).toBe(expectedCalculationSQL(sid, true, '80'));
    const rows = db.query(sql);
    expect(rows.map(r => r.GE)).toEqual([1, 2]);
    expect(rows.map(r => r.Daily_Intake)).toEqual([40, 40]);

    const empty = newScenario(0, 0);
    ui.clearMessages();
    const none = calc.CalculationSQL();
    expect(ui.messages().filter(m => m.text === NO_ITEMS).length).toBe(1);
    expect(none).toBe(expectedCalculationSQL(empty, false, '1'));
    expect(db.query(none).length).toBe(0);
});

test('GetIntakeEquationText takes (id, what) and GetIntakeRate (id, weight, kind)', () => {
    const unit = (description, factor) => {
        const id = ++nextRef;
        insert('tblUnits', { UnitsID: id, Description: description, Factor: factor });
        return id;
    };
    const model = o => {
        const id = ++nextRef;
        insert('tblIntakeModel', Object.assign({ IntakeModelID: id, IntakeTypeID: 3 }, o));
        return id;
    };
    const grams = unit('g', 1), kg = unit('kg', 0.001), kcal = unit('kcal/day', null);
    const food = model({ a: 4.82, b: 0.734, UCF: 0.239, MMF: 2.5, WtUnitsID: grams, FinalUnitsID: kcal });
    expect(calc.GetIntakeEquationText(food, 'Equation')).toBe('kcal/day = 4.82 * Wt(g)^ 0.734*0.239*2.5');
    expect(calc.GetIntakeEquationText(food, 'Units')).toBe('kcal/day');
    // 0.239 * 4.82 * 350.5^0.734 = 84.9662
    const base = calc.GetIntakeRate(food, 350.5, 'Base');
    expect(base).toBeCloseTo(84.9662, 3);
    expect(calc.GetIntakeRate(food, 350.5, 'Adjusted')).toBe(Math.fround(base * Math.fround(2.5)));
    const simple = model({ a: 1, b: 1, UCF: 2, MMF: 3, WtUnitsID: kg, FinalUnitsID: kcal });
    expect(calc.GetIntakeRate(simple, 1000, 'Base')).toBe(Math.fround(2 * Math.fround(Math.fround(0.001) * 1000)));

    ui.clearMessages();
    expect(calc.GetIntakeEquationText(999999, 'Equation')).toBe('');
    expect(calc.GetIntakeRate(999999, 1000, 'Base')).toBe(0);
    expect(ui.messages().length).toBe(0);
    const noA = model({ a: null, b: 0.5, UCF: 1, MMF: 1, WtUnitsID: kg, FinalUnitsID: kcal });
    expect(calc.GetIntakeRate(noA, 100, 'Adjusted')).toBe(0);
    expect(errorBoxes('GetIntakeEquationText').length).toBe(1);
    expect(ui.cursor()).toBe('default');
});

test('the record texts: classification, measurement, trophic level and water content', () => {
    const classIds = {};
    for (const [table, key, name] of [['tblKingdom', 'KingdomID', 'Animalia'], ['tblSubkingdom', 'SubkingdomID', 'Bilateria'],
                                      ['tblPhylum', 'PhylumID', 'Arthropoda'], ['tblClass', 'ClassID', 'Insecta'],
                                      ['tblOrder', 'OrderID', 'Coleoptera'], ['tblFamily', 'FamilyID', 'Carabidae']]) {
        classIds[key] = ++nextRef;
        insert(table, { [key]: classIds[key], Name: name, Description: name + ' (all)' });
    }
    const vt = db.query('Select VarianceTypeID, Description From tblVarianceType Order By VarianceTypeID')[0];
    const aeId = ++nextRef;
    insert('tblAE', Object.assign({ AEID: aeId, Mean: 72.5, Min: 60, Max: 81.25, VarValue: 4.4,
                                    VarianceTypeID: vt.VarianceTypeID, DataSourceID: 6 }, classIds));
    expect(calc.GetClassificationText(aeId, 'tblAE', 'AEID'))
        .toBe('Kingdom:  Animalia, Subkingdom:  Bilateria, Phylum:  Arthropoda,  Class:  Insecta,  '
              + 'Order:  Coleoptera,  Family:  Carabidae');
    expect(calc.GetMeasurementText(aeId, 'tblAE', 'AEID', 'AE'))
        .toBe('Mean:  72.5, Min:  60, Max:  81.25, Variance:  4.4,  Variance Type:  ' + vt.Description
              + ', Data Source:  ' + describe(6));

    const level = ++nextRef, w = ++nextRef, ref = ++nextRef;
    insert('tblTrophicLevel', { TrophicLevelID: level, Item: 'Ground beetle', TrophicLevel: 2.456, DataSourceID: 6 });
    insert('tblWaterConversion', { WaterConversionID: w, Item: 'Beetle, adult', Mean: 61, DataSourceID: 7 });
    insert('tblDietItem', { DietItemID: ref, DietID: 1, Name: 'Beetles', TrophicLevelID: level, TrophicLevel: 9,
                            WaterConversionID: w, WaterPercent: 72.456, WaterPercentDS: 2, DataSourceID: 4 });
    expect(diet.GetTrophicLevelText(ref, 'tblDietItem'))
        .toBe('Item: Ground beetle Trophic Level:  2.46 - Data Source: ' + describe(6));
    expect(diet.GetWaterConversionText(ref, 'tblDietItem'))
        .toBe('Item:  Beetle, adult Percent Water:  72.46 - Data Source: ' + describe(4));

    ui.clearMessages();
    expect(calc.GetClassificationText(999999, 'tblAE', 'AEID')).toBe('');
    expect(calc.GetMeasurementText(999999, 'tblAE', 'AEID', 'AE')).toBe('');
    const boxes = ui.messages();
    expect(boxes.length).toBe(2);
    expect(boxes[0].text.indexOf('Error in routine  GetClassificationText\r\n\r\n')).toBe(0);
    expect(boxes[1].text.indexOf('Error in routine  GetMeasurementText\r\n\r\n')).toBe(0);
    expect(ui.cursor()).toBe('default');
});
