// The copy of a reference diet into a scenario: the item statements, the replace question, the diet head,
// the items (only those with a moisture row, with water and trophic values resolved at copy time), and the
// mark of a user-changed diet.

let nextRef = 950000;

function sqlValue(v) {
    if (v === null || v === undefined) return 'Null';
    return typeof v === 'string' ? "'" + v + "'" : String(v);
}

function insert(table, cols) {
    const names = Object.keys(cols);
    db.exec('Insert Into ' + table + ' (' + names.join(', ') + ') Values ('
            + names.map(n => sqlValue(cols[n])).join(', ') + ')');
}

function newScenario() {
    db.exec("Insert Into tblScenario (Scenario_Type, Scenario_Identifier_1) Values ('Wildlife', 'copy check')");
    const sid = db.query('Select Max(ScenarioID) As M From tblScenario')[0].M;
    db.exec('Insert Into tblWildlife (ScenarioID, DietID, DietType, DietSeason, DietSex, DietHabitat, DietDataSourceID)'
            + ' Values (' + sid + ", 0, 1, '', '', '', 4)");
    session.scenario.SID = sid;
    return sid;
}

function rows(table, sid) {
    return db.query('Select * From ' + table + ' Where ScenarioID = ' + sid);
}

// A reference diet of five items; "Snails" has no moisture row and "Slugs" points at a missing one.
const dietId = ++nextRef;
const head = {
    DietID: dietId, fldDiet_ID: 77, SpeciesID: 12, DataTypeID: 2, DietTypeID: 3, MeasureTermID: 4,
    MaterialAnalyzedID: 5, AnalysisNotes: 'stomachs', CollectionNotes: 'summer', GenderID: 4, LifestageID: 7,
    HabitatTypeID: 8, BegMonthID: 5, EndMonthID: 9, Location: 'Lakeside', Region: 'North', Latitude: '45.5',
    Longitude: '-75.25', StateProvinceID: 3, ReferenceID: 21, DataSourceID: 4, Notes: 'not copied'
};
insert('tblDiet', head);
const waterA = ++nextRef, waterB = ++nextRef, levelA = ++nextRef, levelB = ++nextRef;
insert('tblWaterConversion', { WaterConversionID: waterA, Item: 'insects', Mean: 61.5, DataSourceID: 7 });
insert('tblWaterConversion', { WaterConversionID: waterB, Item: 'seeds', Mean: 9.25, DataSourceID: 2 });
insert('tblTrophicLevel', { TrophicLevelID: levelA, Item: 'insects', TrophicLevel: 2.5, DataSourceID: 7 });
insert('tblTrophicLevel', { TrophicLevelID: levelB, Item: 'seeds', TrophicLevel: 1, DataSourceID: 2 });
function refItem(name, water, level, extra) {
    const id = ++nextRef;
    insert('tblDietItem', Object.assign({
        DietItemID: id, DietID: dietId, Name: name, Comments: 'about ' + name, WetValue: 3.5, DryValue: 1.25,
        Wet_Proportion: 0.2, Dry_Proportion: 0.1, Sample: 14, GrossEnergyID: 31, AEID: 32,
        WaterConversionID: water, WaterPercent: 50, WaterPercentDS: 6, TrophicLevelID: level, TrophicLevel: 9,
        TrophiclevelDS: 6, KingdomID: 1, SubkingdomID: 2, PhylumID: 3, ClassID: 4, OrderID: 5, FamilyID: 6,
        Genus: 'Genus ' + name, Species: 'species ' + name, ComponentID: 8, LifestageID: 7, N_Unit: 2,
        Bio_Availability: 0.75, DataSourceID: 7
    }, extra || {}));
    return id;
}
const beetles = refItem('Beetles', waterA, levelA, { Wet_Proportion: 0.4, Dry_Proportion: 0.3, DataSourceID: 4 });
const acorns = refItem('Acorns', waterB, levelB, { Wet_Proportion: 0.35, Dry_Proportion: 0.55 });
refItem('Snails', null, levelA);
refItem('Slugs', 999999, levelA);
const ants = refItem('Ants', waterA, levelA, { Wet_Proportion: 0.05, Dry_Proportion: 0.05, DataSourceID: null });

test('GetDietItemsSQL writes the statements of the copies and of the reference items', () => {
    const select = 'SELECT T.DietID, T.DietItemID, T.Name, T.Comments, T.Wet_Proportion, T.Dry_Proportion, '
        + 'tblGrossEnergy.WET_WT_KCALG, tblGrossEnergy.DRY_WT_KCALG, tblFoodGroup_1.Description AS GEFoodGroup, '
        + 'tblAE.Mean, tblAE.FoodName AS PredatorType, tblFoodGroup.Description AS AEFoodGroup, '
        + 'tblLifeStage.Description AS Lifestage, tblComponent.Description AS CompDesc, '
        + 'qryReference_1.Reference AS AEReference, qryReference.Reference AS GEReference, '
        + 'tblWaterConversion.Mean AS WaterPercent';
    const from = ' FROM tblLifeStage RIGHT JOIN (tblComponent RIGHT JOIN (qryReference RIGHT JOIN (qryReference AS '
        + 'qryReference_1 RIGHT JOIN (tblWaterConversion RIGHT JOIN (tblFoodGroup AS tblFoodGroup_1 RIGHT JOIN '
        + '(((tblGrossEnergy RIGHT JOIN T ON tblGrossEnergy.GrossEnergyID = T.GrossEnergyID) LEFT JOIN tblAE ON '
        + 'T.AEID = tblAE.AEID) LEFT JOIN tblFoodGroup ON tblAE.FoodGroupID = tblFoodGroup.FoodGroupID) ON '
        + 'tblFoodGroup_1.FoodGroupID = tblGrossEnergy.FoodGroupID) ON tblWaterConversion.WaterConversionID = '
        + 'T.WaterConversionID) ON qryReference_1.ReferenceID = tblAE.ReferenceID) ON qryReference.ReferenceID = '
        + 'tblGrossEnergy.ReferenceID) ON tblComponent.ComponentID = T.ComponentID) ON tblLifeStage.LifeStageID = '
        + 'T.LifeStageID';
    const user = (select + from).split('T.').join('tblWildlifeDietItems.').split(' T ').join(' tblWildlifeDietItems ')
        + ' WHERE tblWildlifeDietItems.ScenarioID = 42 Order by tblWildlifeDietItems.Name';
    const perm = (select.replace('T.Dry_Proportion,', 'T.Dry_Proportion, T.DataSourceID,') + from)
        .split('T.').join('tblDietItem.').split(' T ').join(' tblDietItem ')
        + ' WHERE ([tblDietItem].[DietID]= ' + dietId + ') Order By tblDietItem.Name';
    expect(diet.GetDietItemsSQL('User', 42)).toBe(user);
    expect(diet.GetDietItemsSQL('Perm', dietId)).toBe(perm);
    expect(diet.GetDietItemsSQL('Other', 42)).toBe('');
    // the reference statement keeps every item, also those without optional rows, sorted by name
    expect(db.query(perm).map(r => r.Name)).toEqual(['Acorns', 'Ants', 'Beetles', 'Slugs', 'Snails']);
    expect(db.query(perm).map(r => r.WaterPercent)).toEqual([9.25, 61.5, 61.5, null, null]);
    expect(ui.cursor()).toBe('default');
});

test('replacing nothing asks nothing and says yes', () => {
    newScenario();
    ui.clearMessages();
    expect(diet.Replace()).toBe(true);
    expect(ui.messages().length).toBe(0);
});

test('the copy: the diet head and the items that have a moisture row', () => {
    const sid = newScenario();
    diet.AddWildlifeDiet(dietId);
    diet.AddWildlifeDietItems(dietId);
    const copied = rows('tblWildlifeDiet', sid);
    expect(copied.length).toBe(1);
    for (const k of Object.keys(head)) {
        if (k === 'Notes') continue;
        expect(k + '=' + copied[0][k]).toBe(k + '=' + head[k]);
    }
    const items = db.query('Select * From tblWildlifeDietItems Where ScenarioID = ' + sid + ' Order By Name');
    expect(items.map(r => r.Name)).toEqual(['Acorns', 'Ants', 'Beetles']);
    expect(items.map(r => r.DietItemID)).toEqual([acorns, ants, beetles]);
});

test('the copied items carry water and trophic values resolved from their rows', () => {
    const sid = session.scenario.SID;
    const items = db.query('Select * From tblWildlifeDietItems Where ScenarioID = ' + sid + ' Order By Name');
    const [a, n, b] = items;
    expect([a.WaterPercent, a.WaterPercentDS, a.TrophicLevel, a.TrophiclevelDS]).toEqual([9.25, 2, 1, 2]);
    expect([b.WaterPercent, b.WaterPercentDS, b.TrophicLevel, b.TrophiclevelDS]).toEqual([61.5, 7, 2.5, 7]);
    expect([b.WaterConversionID, b.TrophicLevelID]).toEqual([waterA, levelA]);
    expect([b.Wet_Proportion, b.Dry_Proportion, a.Wet_Proportion, a.Dry_Proportion]).toEqual([0.4, 0.3, 0.35, 0.55]);
    expect([b.DietID, b.WetValue, b.DryValue, b.Sample, b.AEID, b.GrossEnergyID]).toEqual([dietId, 3.5, 1.25, 14, 32, 31]);
    expect([b.KingdomID, b.SubkingdomID, b.PhylumID, b.ClassID, b.OrderID, b.FamilyID]).toEqual([1, 2, 3, 4, 5, 6]);
    expect([b.Genus, b.Species, b.Comments]).toEqual(['Genus Beetles', 'species Beetles', 'about Beetles']);
    expect([b.ComponentID, b.LifestageID, b.N_Unit, b.Bio_Availability]).toEqual([8, 7, 2, 0.75]);
    // the data source of each item is its own, a null one stays null
    expect([a.DataSourceID, n.DataSourceID, b.DataSourceID]).toEqual([7, null, 4]);
});

test('a later change of the reference does not reach the copy', () => {
    const sid = session.scenario.SID;
    db.exec('Update tblWaterConversion Set Mean = 1 Where WaterConversionID = ' + waterA);
    db.exec('Update tblTrophicLevel Set TrophicLevel = 4 Where TrophicLevelID = ' + levelA);
    const b = db.query('Select * From tblWildlifeDietItems Where ScenarioID = ' + sid + " And Name = 'Beetles'")[0];
    expect([b.WaterPercent, b.TrophicLevel]).toEqual([61.5, 2.5]);
    db.exec('Update tblWaterConversion Set Mean = 61.5 Where WaterConversionID = ' + waterA);
    db.exec('Update tblTrophicLevel Set TrophicLevel = 2.5 Where TrophicLevelID = ' + levelA);
});

test('the item statement of the copies lists them by name with the water of their moisture row', () => {
    const sid = session.scenario.SID;
    db.exec('Update tblWildlifeDietItems Set WaterPercent = 1 Where ScenarioID = ' + sid);
    const listed = db.query(diet.GetDietItemsSQL('User', sid));
    expect(listed.map(r => r.Name)).toEqual(['Acorns', 'Ants', 'Beetles']);
    expect(listed.map(r => r.WaterPercent)).toEqual([9.25, 61.5, 61.5]);
    expect(listed.map(r => r.Wet_Proportion)).toEqual([0.35, 0.05, 0.4]);
    db.exec('Update tblWildlifeDietItems Set WaterPercent = 61.5 Where ScenarioID = ' + sid);
    db.exec("Update tblWildlifeDietItems Set WaterPercent = 9.25 Where Name = 'Acorns' And ScenarioID = " + sid);
});

test('UpdateDS marks a changed diet with 6 once, and only when told it changed', () => {
    const sid = session.scenario.SID;
    const ds = () => [rows('tblWildlife', sid)[0].DietDataSourceID, rows('tblWildlifeDiet', sid)[0].DataSourceID];
    expect(ds()).toEqual([4, 4]);
    diet.UpdateDS(false);
    expect(ds()).toEqual([4, 4]);
    diet.UpdateDS(true);
    expect(ds()).toEqual([6, 6]);
    // a diet already at 6 runs no statement
    db.exec('Update tblWildlife Set DietDataSourceID = 2 Where ScenarioID = ' + sid);
    diet.UpdateDS(true);
    expect(ds()).toEqual([2, 6]);
});

test('answering No to the replace question keeps the diet', () => {
    const sid = session.scenario.SID;
    db.exec("Update tblWildlife Set DietID = " + dietId + ", DietSeason = 'Summer', DietSex = 'Male', "
            + "DietHabitat = 'Marsh' Where ScenarioID = " + sid);
    const other = newScenario();
    diet.AddWildlifeDiet(dietId);
    diet.AddWildlifeDietItems(dietId);
    session.scenario.SID = sid;
    ui.clearMessages();
    ui.answer('No');
    expect(diet.Replace()).toBe(false);
    const asked = ui.messages();
    expect(asked.length).toBe(1);
    expect(asked[0].text).toBe('Do you want to overwrite existing Diet ?');
    expect(asked[0].icon).toBe('question');
    expect(asked[0].buttons).toEqual(['Yes', 'No']);
    expect(rows('tblWildlifeDietItems', sid).length).toBe(3);
    expect(rows('tblWildlifeDiet', sid).length).toBe(1);
    expect(rows('tblWildlife', sid)[0].DietID).toBe(dietId);

    ui.answer('Yes');
    expect(diet.Replace()).toBe(true);
    const w = rows('tblWildlife', sid)[0];
    expect([w.DietID, w.DietSeason, w.DietSex, w.DietHabitat]).toEqual([0, '', '', '']);
    expect(rows('tblWildlifeDietItems', sid).length).toBe(0);
    expect(rows('tblWildlifeDiet', sid).length).toBe(0);
    // another scenario's copy of the same diet stays
    expect(rows('tblWildlifeDietItems', other).length).toBe(3);
    expect(rows('tblWildlifeDiet', other).length).toBe(1);
    expect(ui.cursor()).toBe('default');
});

test('a failure in the middle of the copy keeps the rows written so far', () => {
    const sid = newScenario();
    const broken = ++nextRef;
    insert('tblDiet', { DietID: broken, DataSourceID: 4 });
    // the middle item's trophic level row is missing: its lookup gives "not found", which no number column takes
    for (const [name, level] of [['first', levelA], ['second', 999999], ['third', levelB]])
        insert('tblDietItem', { DietItemID: ++nextRef, DietID: broken, Name: name, WaterConversionID: waterA,
                                TrophicLevelID: level });
    ui.clearMessages();
    diet.AddWildlifeDietItems(broken);
    expect(db.query('Select Name From tblWildlifeDietItems Where ScenarioID = ' + sid).map(r => r.Name))
        .toEqual(['first']);
    const boxes = ui.messages();
    expect(boxes.length).toBe(1);
    expect(boxes[0].title).toBe('System Developer Message');
    expect(boxes[0].icon).toBe('stop');
    expect(boxes[0].text).toContain('\r\n');
    expect(boxes[0].text.endsWith('Error in code routine AddWildlifeDietItems')).toBe(true);
});

test('copying a diet head that is not there is reported in the qualified form and adds no row', () => {
    const sid = newScenario();
    ui.clearMessages();
    diet.AddWildlifeDiet(999999);
    expect(rows('tblWildlifeDiet', sid).length).toBe(0);
    const boxes = ui.messages();
    expect(boxes.length).toBe(1);
    expect(boxes[0].title).toBe('System Developer Message');
    expect(boxes[0].text.endsWith('\r\nError in .AddWildlifeDiet')).toBe(true);
});
