// Diet proportions of a scenario built row by row: the wet/dry conversion of one amount, the rescaling of
// one basis, the derivation of the other basis, "Sum Proportions to 1.0" on either basis, the average
// water fraction and the average trophic level. Every expected number is worked out by hand below.

const ERR_TITLE = '';            // the shared error box has the application's message title, which is empty
const NO_ITEMS = 'No Diet Items exist in this scenario. Dietary calculations will not be done.';
let nextRef = 910000;

function newScenario(dietType) {
    db.exec("Insert Into tblScenario (Scenario_Type, Scenario_Identifier_1) Values ('Wildlife', 'calc check')");
    const sid = db.query('Select Max(ScenarioID) As M From tblScenario')[0].M;
    db.exec('Insert Into tblWildlife (ScenarioID, DietID, DietType) Values (' + sid + ', 0, ' + dietType + ')');
    for (let t = 1; t <= 5; ++t)
        db.exec('Insert Into tblIntakeZOB (ScenarioID, IntakeTypeID, BaseRate, AdjustedRate, DataSourceID) Values ('
                + sid + ', ' + t + ', 0, 0, 6)');
    session.scenario.SID = sid;
    session.scenario.DietType = dietType;
    session.scenario.DietID = 0;
    return sid;
}

function water(mean) {
    const id = ++nextRef;
    db.exec('Insert Into tblWaterConversion (WaterConversionID, Item, Mean, DataSourceID) Values ('
            + id + ", 'water " + mean + "', " + mean + ', 6)');
    return id;
}

function sqlValue(v) {
    if (v === null || v === undefined) return 'Null';
    return typeof v === 'string' ? "'" + v + "'" : String(v);
}

// One row of tblWildlifeDietItems; `o` gives the columns.
function item(sid, o) {
    const cols = Object.assign({ ScenarioID: sid, DietItemID: ++nextRef }, o);
    const names = Object.keys(cols);
    db.exec('Insert Into tblWildlifeDietItems (' + names.join(', ') + ') Values ('
            + names.map(n => sqlValue(cols[n])).join(', ') + ')');
    return cols.DietItemID;
}

function props(sid, field) {
    return db.query('Select DietItemID, ' + field + ' As P From tblWildlifeDietItems Where ScenarioID = ' + sid
                    + ' Order By DietItemID').map(r => r.P);
}

function expectProps(actual, expected) {
    expect(actual.length).toBe(expected.length);
    for (let i = 0; i < expected.length; ++i) {
        if (expected[i] === null) expect(actual[i]).toBeNull();
        else expect(actual[i]).toBeCloseTo(expected[i], 6);
    }
}

function errorBoxes(routine) {
    return ui.messages().filter(m => m.text.indexOf('Error in routine ' + routine + '\r\n\r\n') === 0);
}

test('ConvertWeightIs turns wet into dry and back, rounded to three decimals', () => {
    expect(calc.ConvertWeightIs(false, 0.4, 50)).toBe(Math.fround(0.2));     // 0.5 * 0.4
    expect(calc.ConvertWeightIs(true, 0.2, 50)).toBe(Math.fround(0.4));      // 0.2 / 0.5
    expect(calc.ConvertWeightIs(true, 1, 75)).toBe(4);                        // 1 / 0.25
    expect(calc.ConvertWeightIs(false, 0.333, 70)).toBe(Math.fround(0.1));   // 0.0999 -> 0.100
    expect(calc.ConvertWeightIs(true, 0.1, 70)).toBe(Math.fround(0.333));    // 0.3333 -> 0.333
    expect(calc.ConvertWeightIs(false, 0.0025, 50)).toBe(Math.fround(0.001)); // 0.00125 -> 0.001
    expect(calc.ConvertWeightIs(false, 0, 80)).toBe(0);
});

test('ConvertWeightIs rounds a tie of its decimal text away from zero', () => {
    // 0.5 * 0.005 is the single nearest 0.0025 (a hair below it in binary); its text 0.0025 is a tie
    expect(calc.ConvertWeightIs(false, 0.005, 50)).toBe(Math.fround(0.003));
    // 0.5 * 0.0007 = 0.00035 -> 0.000 (no tie; below half)
    expect(calc.ConvertWeightIs(false, 0.0007, 50)).toBe(0);
});

test('ConvertWeightIs leaves a division by zero to its caller', () => {
    expect(calc.ConvertWeightIs(true, 0.5, 100)).toBe(NaN);      // no number: the failure reached the script
    expect(calc.lastError()).toContain('11');
    expect(calc.ConvertWeightIs(false, 0.5, 100)).toBe(0);        // wet to dry at 100 % water is simply 0
});

test('CalculateDietPorportion rescales only the working basis and writes three decimals', () => {
    const sid = newScenario(1);
    const w = water(50);
    item(sid, { Name: 'a', Wet_Proportion: 0.3, Dry_Proportion: 0.6, WaterConversionID: w });
    item(sid, { Name: 'b', Wet_Proportion: 0.3, Dry_Proportion: 0.2, WaterConversionID: w });
    ui.clearMessages();
    expect(calc.CalculateDietPorportion(true)).toBe(true);
    expectProps(props(sid, 'Wet_Proportion'), [0.5, 0.5]);   // 0.3 / 0.6
    expectProps(props(sid, 'Dry_Proportion'), [0.6, 0.2]);   // untouched
    expect(ui.messages().length).toBe(0);

    expect(calc.CalculateDietPorportion(false)).toBe(true);
    expectProps(props(sid, 'Dry_Proportion'), [0.75, 0.25]);     // 0.6 / 0.8 and 0.2 / 0.8
    expectProps(props(sid, 'Wet_Proportion'), [0.5, 0.5]);
});

test('CalculateDietPorportion of 0.1, 0.2 and 0.4 gives .143, .286 and .571', () => {
    const sid = newScenario(0);
    item(sid, { Name: 'a', Dry_Proportion: 0.1 });
    item(sid, { Name: 'b', Dry_Proportion: 0.2 });
    item(sid, { Name: 'c', Dry_Proportion: 0.4 });
    expect(calc.CalculateDietPorportion(false)).toBe(true);
    expectProps(props(sid, 'Dry_Proportion'), [0.143, 0.286, 0.571]);
});

test('CalculateDietPorportion reads a proportion as a single: 0.247 of 2 is .123, not .124', () => {
    const sid = newScenario(0);
    item(sid, { Name: 'a', Dry_Proportion: 0.247 });      // 0.247 as a single is 0.24699999...
    item(sid, { Name: 'b', Dry_Proportion: 1.753 });
    expect(calc.CalculateDietPorportion(false)).toBe(true);
    expectProps(props(sid, 'Dry_Proportion'), [0.123, 0.877]);
});

test('ConvertDietProportion rounds the single result of the conversion: 0.247 at 50 % is .124', () => {
    const sid = newScenario(1);
    // 0.5 * 0.247 is the single whose shortest text is 0.1235, a tie
    item(sid, { Name: 'a', Wet_Proportion: 0.247, WaterConversionID: water(50) });
    calc.ConvertDietProportion(true, 'User');
    expectProps(props(sid, 'Dry_Proportion'), [0.124]);
});

test('three thirds of .333 stay .333 and a second run rescales again', () => {
    const sid = newScenario(1);
    for (const n of ['a', 'b', 'c']) item(sid, { Name: n, Wet_Proportion: 0.333 });
    expect(calc.CalculateDietPorportion(true)).toBe(true);
    expectProps(props(sid, 'Wet_Proportion'), [0.333, 0.333, 0.333]);
    ui.clearMessages();
    expect(calc.CalculateDietPorportion(true)).toBe(true);     // 0.999 is not exactly 1
    expect(ui.messages().length).toBe(0);
});

test('a null proportion is written as 0 and counts for nothing', () => {
    const sid = newScenario(1);
    item(sid, { Name: 'a', Wet_Proportion: 0.3 });
    item(sid, { Name: 'b', Wet_Proportion: null });
    item(sid, { Name: 'c', Wet_Proportion: 0.3 });
    expect(calc.CalculateDietPorportion(true)).toBe(true);
    expectProps(props(sid, 'Wet_Proportion'), [0.5, 0, 0.5]);
});

test('a diet already summing to exactly 1.0 answers with the error report and stays as it was', () => {
    const sid = newScenario(1);
    item(sid, { Name: 'a', Wet_Proportion: 0.5, Dry_Proportion: 0.2 });
    item(sid, { Name: 'b', Wet_Proportion: 0.5, Dry_Proportion: 0.2 });
    ui.clearMessages();
    expect(calc.CalculateDietPorportion(true)).toBe(false);
    const boxes = errorBoxes('CalculateDietPorportion');
    expect(boxes.length).toBe(1);
    expect(boxes[0].icon).toBe('stop');
    expect(boxes[0].buttons).toEqual(['OK']);
    expect(boxes[0].title).toBe(ERR_TITLE);
    expectProps(props(sid, 'Wet_Proportion'), [0.5, 0.5]);
    expectProps(props(sid, 'Dry_Proportion'), [0.2, 0.2]);
    expect(ui.cursor()).toBe('default');
});

test('a total of 0 and a scenario without items are reported and change nothing', () => {
    const sid = newScenario(0);
    item(sid, { Name: 'a', Dry_Proportion: 0 });
    item(sid, { Name: 'b', Dry_Proportion: 0 });
    ui.clearMessages();
    expect(calc.CalculateDietPorportion(false)).toBe(false);
    expect(errorBoxes('CalculateDietPorportion').length).toBe(1);
    expectProps(props(sid, 'Dry_Proportion'), [0, 0]);

    newScenario(0);
    ui.clearMessages();
    expect(calc.CalculateDietPorportion(false)).toBe(false);
    expect(errorBoxes('CalculateDietPorportion').length).toBe(1);
});

test('ConvertDietProportion takes the water of the reference row, not the item column', () => {
    const sid = newScenario(1);
    // The item's own WaterPercent (10) is what GetH2OAvg uses; the conversion must use 50 and 75.
    item(sid, { Name: 'a', Wet_Proportion: 0.5, Dry_Proportion: 0.9, WaterPercent: 10, WaterConversionID: water(50) });
    item(sid, { Name: 'b', Wet_Proportion: 0.5, Dry_Proportion: 0.9, WaterPercent: 10, WaterConversionID: water(75) });
    item(sid, { Name: 'c', Wet_Proportion: null, Dry_Proportion: 0.9, WaterPercent: 10, WaterConversionID: water(75) });
    calc.ConvertDietProportion(true, 'User');
    expectProps(props(sid, 'Dry_Proportion'), [0.25, 0.125, 0]);
    expectProps(props(sid, 'Wet_Proportion'), [0.5, 0.5, null]);

    calc.ConvertDietProportion(false, 'User');      // 0.25 / 0.5, 0.125 / 0.25, 0 / 0.25
    expectProps(props(sid, 'Wet_Proportion'), [0.5, 0.5, 0]);
    expect(ui.cursor()).toBe('default');
});

test('ConvertDietProportion in the mode Perm converts every scenario that has the diet', () => {
    const dietId = ++nextRef;
    const w = water(60);
    const one = newScenario(1);
    item(one, { Name: 'a', DietID: dietId, Wet_Proportion: 0.5, WaterConversionID: w });
    const two = newScenario(1);
    item(two, { Name: 'a', DietID: dietId, Wet_Proportion: 0.25, WaterConversionID: w });
    const other = newScenario(1);
    item(other, { Name: 'a', DietID: dietId + 1, Wet_Proportion: 0.5, Dry_Proportion: 0.9, WaterConversionID: w });
    session.scenario.SID = one;
    session.scenario.DietID = dietId;
    calc.ConvertDietProportion(true, 'Perm');
    expectProps(props(one, 'Dry_Proportion'), [0.2]);     // 0.4 * 0.5
    expectProps(props(two, 'Dry_Proportion'), [0.1]);     // 0.4 * 0.25
    expectProps(props(other, 'Dry_Proportion'), [0.9]);
});

test('a missing water row stops the conversion there; earlier rows stay converted', () => {
    const sid = newScenario(1);
    item(sid, { Name: 'a', Wet_Proportion: 0.4, Dry_Proportion: 0.9, WaterConversionID: water(50) });
    item(sid, { Name: 'b', Wet_Proportion: 0.4, Dry_Proportion: 0.9, WaterConversionID: 999999 });
    item(sid, { Name: 'c', Wet_Proportion: 0.2, Dry_Proportion: 0.9, WaterConversionID: water(50) });
    ui.clearMessages();
    calc.ConvertDietProportion(true, 'User');
    expect(errorBoxes('ConvertDietProportion').length).toBe(1);
    expectProps(props(sid, 'Dry_Proportion'), [0.2, 0.9, 0.9]);
    expect(ui.cursor()).toBe('default');
});

test('converting dry to wet at 100 % water is a division by zero, reported by ConvertDietProportion', () => {
    const sid = newScenario(0);
    item(sid, { Name: 'a', Dry_Proportion: 0.5, Wet_Proportion: 0.7, WaterConversionID: water(100) });
    ui.clearMessages();
    calc.ConvertDietProportion(false, 'User');
    const boxes = errorBoxes('ConvertDietProportion');
    expect(boxes.length).toBe(1);
    expect(boxes[0].text).toContain('11');
    expectProps(props(sid, 'Wet_Proportion'), [0.7]);
});

test('Sum Proportions to 1.0 on the wet basis: wet first, then dry derived and normalised', () => {
    const sid = newScenario(1);
    item(sid, { Name: 'a', Wet_Proportion: 0.3, Dry_Proportion: 0.05, WaterConversionID: water(50) });
    item(sid, { Name: 'b', Wet_Proportion: 0.3, Dry_Proportion: 0.05, WaterConversionID: water(75) });
    ui.clearMessages();
    calc.SumProportions(true);
    // wet .5/.5; dry .25 and .125, total .375 -> .667 and .333
    expectProps(props(sid, 'Wet_Proportion'), [0.5, 0.5]);
    expectProps(props(sid, 'Dry_Proportion'), [0.667, 0.333]);
    expect(ui.messages().length).toBe(0);
});

test('Sum Proportions to 1.0 on the dry basis: dry first, then wet derived and normalised', () => {
    const sid = newScenario(0);
    item(sid, { Name: 'a', Dry_Proportion: 0.2, Wet_Proportion: 0.01, WaterConversionID: water(50) });
    item(sid, { Name: 'b', Dry_Proportion: 0.2, Wet_Proportion: 0.01, WaterConversionID: water(75) });
    calc.SumProportions(false);
    // dry .5/.5; wet 1 and 2, total 3 -> .333 and .667
    expectProps(props(sid, 'Dry_Proportion'), [0.5, 0.5]);
    expectProps(props(sid, 'Wet_Proportion'), [0.333, 0.667]);
});

test('Sum Proportions goes on after the report of an already normal basis', () => {
    const sid = newScenario(1);
    item(sid, { Name: 'a', Wet_Proportion: 0.5, Dry_Proportion: 0.01, WaterConversionID: water(50) });
    item(sid, { Name: 'b', Wet_Proportion: 0.5, Dry_Proportion: 0.01, WaterConversionID: water(80) });
    ui.clearMessages();
    calc.SumProportions(true);
    expect(errorBoxes('CalculateDietPorportion').length).toBe(1);
    // dry .25 and .1, total .35 -> .714 and .286
    expectProps(props(sid, 'Wet_Proportion'), [0.5, 0.5]);
    expectProps(props(sid, 'Dry_Proportion'), [0.714, 0.286]);
});

test('GetH2OAvg weights the item water on the scenario basis and keeps two decimals', () => {
    const sid = newScenario(1);
    item(sid, { Name: 'a', Wet_Proportion: 0.5, Dry_Proportion: 0.2, WaterPercent: 70 });
    item(sid, { Name: 'b', Wet_Proportion: 0.5, Dry_Proportion: 0.8, WaterPercent: 80 });
    expect(calc.GetH2OAvg()).toBe(Math.fround(0.75));            // wet: 0.35 + 0.40
    session.scenario.DietType = 0;
    expect(calc.GetH2OAvg()).toBe(Math.fround(0.78));            // dry: 0.14 + 0.64

    const one = newScenario(1);
    item(one, { Name: 'a', Wet_Proportion: 1, WaterPercent: 75.4 });
    expect(calc.GetH2OAvg()).toBe(Math.fround(0.75));
    db.exec('Update tblWildlifeDietItems Set WaterPercent = 75.6 Where ScenarioID = ' + one);
    expect(calc.GetH2OAvg()).toBe(Math.fround(0.76));
    db.exec('Update tblWildlifeDietItems Set WaterPercent = 50.5 Where ScenarioID = ' + one);
    expect(calc.GetH2OAvg()).toBe(Math.fround(0.51));           // 0.505, a tie of the text
});

test('GetH2OAvg without items takes the failure path: report, 0, no warning', () => {
    newScenario(1);
    ui.clearMessages();
    expect(calc.GetH2OAvg()).toBe(0);
    expect(errorBoxes(' GetH2OAvg').length).toBe(1);
    expect(ui.messages().filter(m => m.text === NO_ITEMS).length).toBe(0);
});

test('GetAvgTrophicLevel of a scenario is the plain average of the copied levels', () => {
    const sid = newScenario(1);
    item(sid, { Name: 'a', Wet_Proportion: 0.8, TrophicLevel: 2 });
    item(sid, { Name: 'b', Wet_Proportion: 0.1, TrophicLevel: 3 });
    item(sid, { Name: 'c', Wet_Proportion: 0.1, TrophicLevel: 3.5 });
    expect(calc.GetAvgTrophicLevel(sid, 'tblWildlifeDietItems')).toBe('2.83');
    expect(calc.GetAvgTrophicLevel(sid, 'anything else')).toBe('2.83');
    const empty = newScenario(1);
    expect(calc.GetAvgTrophicLevel(empty, 'tblWildlifeDietItems')).toBe('0');
    const whole = newScenario(1);
    item(whole, { Name: 'a', TrophicLevel: 3 });
    expect(calc.GetAvgTrophicLevel(whole, 'tblWildlifeDietItems')).toBe('3.00');
});

test('GetAvgTrophicLevel of a reference diet averages the levels of tblTrophicLevel', () => {
    const dietId = ++nextRef;
    const tl = [2, 3.25].map(v => {
        const id = ++nextRef;
        db.exec('Insert Into tblTrophicLevel (TrophicLevelID, Item, TrophicLevel, DataSourceID) Values ('
                + id + ", 'level', " + v + ', 6)');
        return id;
    });
    for (const [i, t] of [[1, tl[0]], [2, tl[1]], [3, null]])
        db.exec('Insert Into tblDietItem (DietItemID, DietID, Name, TrophicLevelID, TrophicLevel) Values ('
                + (++nextRef) + ', ' + dietId + ", 'item " + i + "', " + sqlValue(t) + ', 9)');
    // (2 + 3.25) / 2 = 2.625, a tie that goes away from zero; the item's own TrophicLevel 9 plays no part
    expect(calc.GetAvgTrophicLevel(dietId, 'tblDietItem')).toBe('2.63');
    expect(calc.GetAvgTrophicLevel(dietId + 1000, 'tblDietItem')).toBe('0');
});
