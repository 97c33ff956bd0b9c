// Pictures of the filtered pickers, written into the program folder (--home) as picker-*.png: each one
// from the menu, and each one assigning a value to a diet item with the list narrowed to the item's
// family. Run it on a display once at normal size and once with QT_SCALE_FACTOR=1.5 and suffix "-150":
//   zobrel --home DIR --user ann --script docs/screens/pickers.js --quit-after-script
const suffix = (typeof SCREEN_SUFFIX === 'string') ? SCREEN_SUFFIX : '';
const shot = (w, name) => w.grab(session.home + '/' + name + suffix + '.png');
if (ui.window('frmSetup')) ui.window('frmSetup').close();
const members = [['frmSelect_GE', 'mnuGE', 'tblGrossEnergy', 'GrossEnergyID'],
                 ['frmSelect_AE', 'mnuAE', 'tblAE', 'AEID'],
                 ['frmSelect_WaterConversion', 'mnuWaterConversion', 'tblWaterConversion', 'WaterConversionID'],
                 ['frmSelect_TrophicLevel', 'mnuTrophicLevel', 'tblTrophicLevel', 'TrophicLevelID']];
const levels = ['KingdomID', 'SubkingdomID', 'PhylumID', 'ClassID', 'OrderID', 'FamilyID'];
let id = 990000;
for (const [window, menu, table, key] of members) {
    ui.menu(menu).trigger();
    shot(ui.window(window), 'picker-' + window + '-menu');
    ui.window(window).close();
    const row = db.query('Select * From ' + table + ' Where FamilyID > 0 Order By ' + key)[0];
    db.exec('Insert Into tblDietItem (DietItemID, DietID, Name, ' + levels.join(', ') + ') Values (' + (++id)
            + ", 1, 'Probe', " + levels.map(l => row[l]).join(', ') + ')');
    pickers.open(window, { recordId: id, table: 'tblDietItem', keyField: 'DietItemID', selectedId: row[key] });
    const w = ui.window(window);
    w.control('optFilter(4)').click();
    shot(w, 'picker-' + window + '-assign');
    w.close();
}
// The classification picker with life stage and component, its text search, and the reference pickers.
pickers.open('frmSelect_Classification', { recordId: id, table: 'tblDietItem', keyField: 'DietItemID', collection: true });
shot(ui.window('frmSelect_Classification'), 'picker-frmSelect_Classification');
ui.window('frmSelect_Classification').control('cmdSrchClassification').click();
shot(ui.window('frmFind_Classification'), 'picker-frmFind_Classification');
ui.window('frmFind_Classification').close();
ui.window('frmSelect_Classification').close();
ui.menu('mnuReferences').trigger();
shot(ui.window('frmSelect_Reference'), 'picker-frmSelect_Reference');
ui.window('frmSelect_Reference').close();
pickers.open('frmReferenceSpecies', { recordId: 1, mode: 'Write' });
shot(ui.window('frmReferenceSpecies'), 'picker-frmReferenceSpecies');
ui.window('frmReferenceSpecies').close();
