// runs: twice
// home: data folder
// Started without --home, the program keeps its data in the per-user data folder of the platform
// (here XDG_DATA_HOME inside the test's folder). The first start makes the folder from the template
// and says once where it is; the second start finds the same database with the user's rows in it.

const secondStart = fs.exists('second-start');
const isFolderMessage = m => m.text.indexOf('Zobrel keeps your data in this folder:') === 0;

if (!secondStart) {
    test('first start: the data folder is made with a copy of the template and named once', () => {
        expect(session.home.endsWith('/data/Zobrel')).toBeTruthy();
        expect(fs.exists(session.home + '/ZOB.sqlite')).toBeTruthy();
        expect(fs.exists('ZOB.sqlite.part')).toBeFalsy();
        const said = ui.messages().filter(isFolderMessage);
        expect(said.length).toBe(1);
        expect(said[0].text).toContain('\r\n' + session.home + '\r\n');
        expect(said[0].icon).toBe('information');
        expect(said[0].buttons).toEqual(['OK']);
        // The folder message comes first; the new user's welcome follows it.
        expect(ui.messages().length).toBe(2);
        expect(ui.messages()[1].text.indexOf('Welcome to ZOB.')).toBe(0);
    });

    test('first start: the copy holds the seeded reference data and the new user', () => {
        expect(db.query('Select * from tblGender').length).toBeGreaterThan(0);
        const u = db.query("Select * from tblUser Where User = 'tester'");
        expect(u.length).toBe(1);
        // The database path is stored as the file is spelled on disk.
        expect(u[0].PathDatabase).toBe(session.home + '/ZOB.sqlite');
        expect(fs.exists('tester/Project')).toBeTruthy();
    });

    test('first start: the user leaves a comment of his own behind', () => {
        expect(db.exec("Insert into tblComments (UserID, Comment) values (" + session.userId + ", 'Kept between starts')")).toBe(1);
    });
} else {
    test('second start: nothing is said, the same user is known', () => {
        expect(ui.messages().filter(isFolderMessage).length).toBe(0);
        expect(ui.messages().length).toBe(0);
        expect(ui.window('frmProjectList')).not.toBeNull();
    });

    test('second start: the user\'s rows are still there', () => {
        expect(db.query("Select * from tblUser Where User = 'tester'").length).toBe(1);
        expect(db.query("Select * from tblComments Where Comment = 'Kept between starts'").length).toBe(1);
    });
}
