// Pictures of the project and system windows, written into the program folder (--home) under "screens".
// Run it on a full-size virtual screen, once at normal size and once with QT_SCALE_FACTOR=1.5 and
// the suffix "-150" (a first line `const SCREEN_SUFFIX = '-150';` put before this script):
//   xvfb-run -a -s "-screen 0 1920x1080x24" zobrel --home DIR --user ann --script capture.js --quit-after-script
// (the offscreen platform's small screen squeezes the windows at 1.5).
const suffix = (typeof SCREEN_SUFFIX === 'string') ? SCREEN_SUFFIX : '';
const shot = (w, name) => w.grab(session.home + '/' + name + suffix + '.png');
const setup = ui.window('frmSetup');
setup.control('ssGrdUser').selectRow(0);
for (let i = 0; i < 5; ++i) {
    setup.control('ssTabSetup').selectTab(i);
    if (i === 4) setup.control('LstTables').select('Location');
    shot(setup, 'frmSetup-' + i);
}
setup.control('cmdPath(2)').click();
shot(ui.window('frmGetDir'), 'frmGetDir');
ui.window('frmGetDir').control('cmdControl(1)').click();
setup.close();

db.exec("Update tblUser Set Name = 'Ann Smith', Department = 'Wildlife Toxicology' Where User = '" + session.user + "'");
ui.menu('mnuProject').trigger();
const list = ui.window('frmProjectList');
shot(list, 'frmProjectList-empty');
list.toolbar().click(2);
const p = ui.window('frmProject');
p.control('txtProject(0)').setText('Farm Pond Screening');
p.control('txtProject(1)').setText('Screening-level exposure of mallards and muskrats feeding at the farm pond.');
p.control('txtProject(5)').setText('Farm pond, north field');
p.control('cboStateProvince').select('Alaska');
p.control('txtProject(3)').setText('61.2181');
p.control('txtProject(4)').setText('-149.9003');
p.control('txtProject(6)').setText('Sediment samples from spring survey.');
p.toolbar().click('Save');
const chooser = ui.window('frmSearch_File');
chooser.control('txtSelectedFile').setText('farmpond');
shot(chooser, 'frmSearch_File-save');
chooser.control('cmdControl(0)').click();
// Each new scenario opens the builder (pictured by capture_builder.js); closing it returns here.
for (let i = 0; i < 2; ++i) {
    p.control('cmdScenario(3)').click();
    ui.window('frmZOB').toolbar().click('Close');
}
db.exec("Update tblScenario Set Scenario_Identifier_1 = 'Mallard, adult female'");
db.exec("Update tblWildlife Set ScenarioComments = 'Adult female mallard feeding on aquatic plants and invertebrates.'");
p.close();
ui.menu('mnuProjectOptions(1)').trigger();
const open = ui.window('frmSearch_File');
open.control('FileMain').select('farmpond.NAV');
shot(open, 'frmSearch_File-open');
open.control('cmdControl(0)').click();
const q = ui.window('frmProject');
q.control('ssGrdProjectScenarios').selectRow(1);
q.control('ssGrdProjectScenarios').selectRow(0);
shot(q, 'frmProject');
q.control('txtProject(1)').dblClick();
shot(ui.window('frmZoom'), 'frmZoom');
ui.window('frmZoom').close();
q.close();
ui.window('frmProjectList').close();
ui.menu('mnuProject').trigger();
shot(ui.window('frmMDI'), 'frmMDI');
shot(ui.window('frmProjectList'), 'frmProjectList');
