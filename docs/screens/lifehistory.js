// Pictures of the species search and the life-history browser, written into the program folder (--home).
// Run it under a display once at normal size and once with QT_SCALE_FACTOR=1.5 and SCREEN_SUFFIX '-150':
//   zobrel --home DIR --user ann --script docs/screens/lifehistory.js --quit-after-script
const suffix = (typeof SCREEN_SUFFIX === 'string') ? SCREEN_SUFFIX : '';
const shot = (w, name) => w.grab(session.home + '/' + name + suffix + '.png');
if (ui.window('frmSetup')) ui.window('frmSetup').close();
ui.menu('mnuLifeStage').trigger();
const s = ui.window('frmSearch_LifeHistory');
s.control('cboTaxon').select('Birds');
s.toolbar().click(4);
shot(s, 'frmSearch_LifeHistory');
s.toolbar().click(2);
s.control('txtSearch(0)').setText('American robin');
s.toolbar().click(4);
s.control('LblGenInfo(0)').click();
const w = ui.window('frmLifeHistory');
w.control('optGeneral(1)').setValue(true);
shot(w, 'frmLifeHistory-general');
w.control('ssTabLifeHistory').selectTab(1);
w.control('ssTabDietIntake').selectTab(1);
shot(w, 'frmLifeHistory-diets');
w.control('ssTabLifeHistory').selectTab(2);
w.control('ssTabPopulationHabitat').selectTab(1);
shot(w, 'frmLifeHistory-population');
w.control('ssTabLifeHistory').selectTab(4);
w.control('ssTabBodySizeAndGrowth').selectTab(1);
shot(w, 'frmLifeHistory-weights');
w.control('ssTabBodySizeAndGrowth').selectTab(2);
w.control('optBodySizeGrowthRate(3)').setValue(true);
shot(w, 'frmLifeHistory-empty');
w.close();
s.close();
