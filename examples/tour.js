// A first look at Zobrel driven by a script. Run it headless on a copy of the database:
//
//   mkdir -p /tmp/zob && cp build/share/zobrel/ZOB.sqlite /tmp/zob/
//   QT_QPA_PLATFORM=offscreen build/bin/zobrel --home /tmp/zob --user newcomer \
//       --script examples/tour.js --quit-after-script
//
// The first start of a user makes his record and folders and welcomes him.

console.log('Signed in as', session.user, '(user id ' + session.userId + ') in', session.home);

const welcome = ui.messages().filter(m => m.text.indexOf('Welcome') === 0);
if (welcome.length)
    console.log('The program said:\n' + welcome[0].text.replace(/\r\n/g, '\n'));

console.log('Open windows:', ui.windows());

// The about box: shown by the Help menu, closed by Escape.
ui.show('frmSplash');
const splash = ui.window('frmSplash');
console.log('About box:', splash.control('lblProductName').caption, '/', splash.control('lblProduct').caption);
splash.grab(session.home + '/about.png');
splash.keyDown(27);
console.log('A picture of it is in', session.home + '/about.png');

// The data sources and the colours their labels take.
db.query('Select DataSourceID, Description, ForeColor From tblDataSource Order By DataSourceID')
    .forEach(r => console.log('  data source', r.DataSourceID, r.Description, 'colour', r.ForeColor));

// Legacy number formatting.
console.log('2.675 as "0.00" is', fmt.vbFormat(2.675, '0.00'));

test('the welcome message was shown once', () => expect(welcome.length).toBe(1));
