// Pictures of the data entry windows, written into the program folder (--home) as dataentry-*.png: each
// entry window on a record of the seeded data (a vetted one locked, a user's one open), the measurement
// window, the diet item window, the allometric equation window, every page of the species workbook and
// the descriptors.
// Run it on a full-size virtual screen, once at normal size and once with QT_SCALE_FACTOR=1.5 and the
// suffix "-150" (a first line `const SCREEN_SUFFIX = '-150';` put before this script):
//   xvfb-run -a -s "-screen 0 1920x1080x24" zobrel --home DIR --user ann --script dataentry.js --quit-after-script
const suffix = (typeof SCREEN_SUFFIX === 'string') ? SCREEN_SUFFIX : '';
const shot = (w, name) => w.grab(session.home + '/dataentry-' + name + suffix + '.png');
if (ui.window('frmSetup')) ui.window('frmSetup').close();
function open(window, table, key, id, mode) {
    pickers.open(window, { recordId: id, table: table, keyField: key, mode: mode || 'Write', filter: false });
    return ui.window(window);
}
const first = (table, key, where) => db.query('Select ' + key + ' As K From ' + table + ' Where ' + where + ' Order By ' + key)[0].K;
const members = [['frmDE_AE', 'tblAE', 'AEID', 'DataSourceID = 5'],
                 ['frmDE_GE', 'tblGrossEnergy', 'GrossEnergyID', 'DataSourceID = 5'],
                 ['frmDE_WaterConversion', 'tblWaterConversion', 'WaterConversionID', 'DataSourceID = 7'],
                 ['frmDE_TrophicLevel', 'tblTrophicLevel', 'TrophicLevelID', 'DataSourceID = 3'],
                 ['frmDE_SoilIngestion', 'tblSoilIngestion', 'SoilIngestionID', 'DataSourceID = 5'],
                 ['frmDE_Weight', 'tblWeight', 'WeightID', 'DataSourceID = 4'],
                 ['frmDE_IntakeMeasured', 'tblIntakeMeasured', 'IntakeMeasuredID', 'DataSourceID = 4'],
                 ['frmDE_Reference', 'tblReferences', 'ReferenceID', 'DataSourceID = 7'],
                 ['frmDE_IntakeModel', 'tblIntakeModel', 'IntakeModelID', 'DataSourceID = 5']];
for (const [window, table, key, where] of members) {
    const w = open(window, table, key, first(table, key, where));
    shot(w, window);
    w.close();
    for (const name of ui.windows())
        if (name.startsWith('frmSelect_')) ui.window(name).close();
}
const ge = open('frmDE_GE', 'tblGrossEnergy', 'GrossEnergyID', first('tblGrossEnergy', 'GrossEnergyID', 'DataSourceID = 5'));
ge.control('cmdMeasurement(0)').click();
shot(ui.window('frmDE_Measurement'), 'frmDE_Measurement');
ui.window('frmDE_Measurement').toolbar().click(8);
ge.close();
const item = first('tblDietItem', 'DietItemID', 'GrossEnergyID > 0 And AEID > 0 And TrophicLevelID > 0');
shot(open('frmDE_DietItem', 'tblDietItem', 'DietItemID', item), 'frmDE_DietItem');
ui.window('frmDE_DietItem').close();
const diet = db.query('Select SpeciesID From tblDiet Where DataSourceID = 4 Order By DietID')[0].SpeciesID;
db.exec('Update tblSpecies Set DataSourceID = 6 Where SpeciesID = ' + diet);
const sp = open('frmDE_Species', 'tblSpecies', 'SpeciesID', diet, 'Read');
for (let i = 0; i < 4; ++i) {
    sp.control('ssTabSB').selectTab(i);
    shot(sp, 'frmDE_Species-' + i);
    if (i === 2) {
        sp.control('ssTabDiet').selectTab(1);
        shot(sp, 'frmDE_Species-2-items');
        sp.control('ssTabDiet').selectTab(0);
    }
}
sp.close();
db.exec("Insert Into tblDescriptor (fldDescriptor, fldUnits) Values ('Body length', 'mm')");
pickers.open('frmDE_Descriptor', { filter: false });
shot(ui.window('frmDE_Descriptor'), 'frmDE_Descriptor');
ui.window('frmDE_Descriptor').close();
