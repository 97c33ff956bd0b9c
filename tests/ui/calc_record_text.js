// The one-line descriptions of records, word for word and blank for blank: classification, measurement,
// trophic level and water content texts of reference rows and of a scenario's copies.

let nextRef = 940000;

function insert(table, cols) {
    const names = Object.keys(cols);
    db.exec('Insert Into ' + table + ' (' + names.join(', ') + ') Values ('
            + names.map(n => cols[n] === null ? 'Null'
                        : typeof cols[n] === 'string' ? "'" + cols[n] + "'" : String(cols[n])).join(', ') + ')');
}

function describe(id) {
    return db.query('Select Description From tblDataSource Where DataSourceID = ' + id)[0].Description;
}

const levels = [['tblKingdom', 'KingdomID', 'Animalia'], ['tblSubkingdom', 'SubkingdomID', 'Bilateria'],
                ['tblPhylum', 'PhylumID', 'Arthropoda'], ['tblClass', 'ClassID', 'Insecta'],
                ['tblOrder', 'OrderID', 'Coleoptera'], ['tblFamily', 'FamilyID', 'Carabidae']];
const classIds = {};
for (const [table, key, name] of levels) {
    classIds[key] = ++nextRef;
    insert(table, { [key]: classIds[key], Name: name, Description: name + ' (all)' });
}
const varianceType = db.query('Select VarianceTypeID, Description From tblVarianceType Order By VarianceTypeID')[0];

test('the classification text names all six levels with their exact blanks', () => {
    const id = ++nextRef;
    insert('tblAE', Object.assign({ AEID: id, Mean: 70 }, classIds));
    expect(calc.GetClassificationText(id, 'tblAE', 'AEID'))
        .toBe('Kingdom:  Animalia, Subkingdom:  Bilateria, Phylum:  Arthropoda,  Class:  Insecta,  '
              + 'Order:  Coleoptera,  Family:  Carabidae');
});

test('a null level keeps its label empty; an id without a row says "not found"', () => {
    const onlyClass = ++nextRef;
    insert('tblWaterConversion', { WaterConversionID: onlyClass, Mean: 50, ClassID: classIds.ClassID });
    expect(calc.GetClassificationText(onlyClass, 'tblWaterConversion', 'WaterConversionID'))
        .toBe('Kingdom:  , Subkingdom:  , Phylum:  ,  Class:  Insecta,  Order:  ,  Family:  ');
    const dangling = ++nextRef;
    insert('tblGrossEnergy', { GrossEnergyID: dangling, KingdomID: classIds.KingdomID, FamilyID: 999999 });
    expect(calc.GetClassificationText(dangling, 'tblGrossEnergy', 'GrossEnergyID'))
        .toBe('Kingdom:  Animalia, Subkingdom:  , Phylum:  ,  Class:  ,  Order:  ,  Family:  not found');
});

test('the measurement text of an efficiency, a water content and a digestibility', () => {
    const id = ++nextRef;
    insert('tblAE', { AEID: id, Mean: 72.5, Min: 60, Max: 81.25, VarValue: 4.4,
                      VarianceTypeID: varianceType.VarianceTypeID, DataSourceID: 6 });
    const tail = ',  Variance Type:  ' + varianceType.Description + ', Data Source:  ' + describe(6);
    expect(calc.GetMeasurementText(id, 'tblAE', 'AEID', 'AE'))
        .toBe('Mean:  72.5, Min:  60, Max:  81.25, Variance:  4.4' + tail);
    expect(calc.GetMeasurementText(id, 'tblAE', 'AEID', 'DE'))
        .toBe('Mean:  72.5, Min:  60, Max:  81.25, Variance:  4.4' + tail);
    const water = ++nextRef;
    insert('tblWaterConversion', { WaterConversionID: water, Mean: 78.3, Min: null, Max: 90, VarValue: null,
                                   VarianceTypeID: null, DataSourceID: null });
    expect(calc.GetMeasurementText(water, 'tblWaterConversion', 'WaterConversionID', 'H2O'))
        .toBe('Mean:  78.3, Min:  , Max:  90, Variance:  ,  Variance Type:  , Data Source:  ');
});

test('the measurement text of gross energy on the wet and the dry basis, both labelled Mean', () => {
    const id = ++nextRef;
    insert('tblGrossEnergy', { GrossEnergyID: id, WET_WT_KCALG: 1.25, Min_W: 1.1, Max_W: 1.4, Variance_ww: 0.02,
                               DRY_WT_KCALG: 5.5, Min_D: 5, Max_D: 6.05, Variance_dw: 0.3, DataSourceID: 6,
                               VarianceTypeID: varianceType.VarianceTypeID });
    const tail = ',  Variance Type:  ' + varianceType.Description + ', Data Source:  ' + describe(6);
    expect(calc.GetMeasurementText(id, 'tblGrossEnergy', 'GrossEnergyID', 'WW'))
        .toBe('Mean:  1.25, Min:  1.1, Max:  1.4, Variance:  0.02' + tail);
    expect(calc.GetMeasurementText(id, 'tblGrossEnergy', 'GrossEnergyID', 'DW'))
        .toBe('Mean:  5.5, Min:  5, Max:  6.05, Variance:  0.3' + tail);
    expect(calc.GetMeasurementText(id, 'tblGrossEnergy', 'GrossEnergyID', 'X')).toBe(tail);
});

test('the trophic level text reads the level row, two decimals at most', () => {
    const level = ++nextRef;
    insert('tblTrophicLevel', { TrophicLevelID: level, Item: 'Ground beetle', TrophicLevel: 2.456, DataSourceID: 6 });
    const ref = ++nextRef;
    insert('tblDietItem', { DietItemID: ref, DietID: 1, Name: 'Beetles', TrophicLevelID: level, TrophicLevel: 9,
                            DataSourceID: 4 });
    expect(diet.GetTrophicLevelText(ref, 'tblDietItem'))
        .toBe('Item: Ground beetle Trophic Level:  2.46 - Data Source: ' + describe(6));
    const copy = ++nextRef;
    insert('tblWildlifeDietItems', { ScenarioID: 1, DietItemID: copy, Name: 'Beetles', TrophicLevelID: level,
                                     TrophicLevel: 7, TrophiclevelDS: 4 });
    expect(diet.GetTrophicLevelText(copy, 'tblWildlifeDietItems'))
        .toBe('Item: Ground beetle Trophic Level:  2.46 - Data Source: ' + describe(6));
    expect(diet.GetTrophicLevelText(0, 'tblDietItem')).toBe('No record selected');
    expect(diet.GetTrophicLevelText(0, 'tblWildlifeDietItems')).toBe('No record selected');
});

test('the water content text of an item, a copy and a gross energy row', () => {
    const w = ++nextRef;
    insert('tblWaterConversion', { WaterConversionID: w, Item: 'Beetle, adult', Mean: 61, DataSourceID: 7 });
    const ref = ++nextRef;
    insert('tblDietItem', { DietItemID: ref, DietID: 1, Name: 'Beetles', WaterConversionID: w, WaterPercent: 72.456,
                            WaterPercentDS: 2, DataSourceID: 4 });
    expect(diet.GetWaterConversionText(ref, 'tblDietItem'))
        .toBe('Item:  Beetle, adult Percent Water:  72.46 - Data Source: ' + describe(4));
    const copy = ++nextRef;
    insert('tblWildlifeDietItems', { ScenarioID: 1, DietItemID: copy, Name: 'Beetles', WaterConversionID: w,
                                     WaterPercent: 65.5, WaterPercentDS: 6, DataSourceID: 4 });
    expect(diet.GetWaterConversionText(copy, 'tblWildlifeDietItems'))
        .toBe('Item:  Beetle, adult Percent Water:  65.5 - Data Source: ' + describe(6));
    const energy = ++nextRef;
    insert('tblGrossEnergy', { GrossEnergyID: energy, Item: 'energy', WaterConversionID: w, WaterPercent: 61.25,
                               WaterPercentDS: 6, DataSourceID: 7 });
    expect(diet.GetWaterConversionText(energy, 'tblGrossEnergy'))
        .toBe('Item:  Beetle, adult Percent Water:  61.25 - Data Source: ' + describe(7));
    expect(diet.GetWaterConversionText(999999, 'tblDietItem')).toBe('Water content not found. ');
});

test('a record that is not there is reported and gives an empty text', () => {
    ui.clearMessages();
    expect(calc.GetClassificationText(999999, 'tblAE', 'AEID')).toBe('');
    expect(calc.GetMeasurementText(999999, 'tblAE', 'AEID', 'AE')).toBe('');
    const boxes = ui.messages();
    expect(boxes.length).toBe(2);
    expect(boxes[0].text.indexOf('Error in routine  GetClassificationText\r\n\r\n')).toBe(0);
    expect(boxes[1].text.indexOf('Error in routine  GetMeasurementText\r\n\r\n')).toBe(0);
    expect(ui.cursor()).toBe('default');
});
