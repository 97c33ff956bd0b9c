// SPDX-License-Identifier: MIT
// The DAO layer over SQLite: navigation, edits, autonumbers, Find, errors.
#include "Database.h"
#include "TestSupport.h"
#include "VbError.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <sqlite3.h>

namespace {

class RecordsetTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        db = Database::create(dir.filePath(QStringLiteral("t.sqlite")));
        ASSERT_EQ(sqlite3_exec(db->handle(), 
            "CREATE TABLE tblThing (ThingID INTEGER PRIMARY KEY AUTOINCREMENT, Name TEXT COLLATE NOCASE, "
            "Amount REAL, Flag BOOLEAN DEFAULT 0, Added DATETIME, Kind INTEGER DEFAULT 6);"
            "CREATE TABLE tblLink (ThingID INTEGER, Note TEXT COLLATE NOCASE);"
            "INSERT INTO tblThing (Name, Amount, Kind) VALUES ('Alder', 1.5, 4), ('birch', 2.5, 7), ('Cedar', NULL, 4);"
            "INSERT INTO tblLink VALUES (1, 'a'), (1, 'b'), (3, 'c');",
                               nullptr, nullptr, nullptr),
                  SQLITE_OK);
    }
    QTemporaryDir dir;
    std::shared_ptr<Database> db;
};

TEST_F(RecordsetTest, NavigationCountsAsFarAsPopulated)
{
    auto rs = db->OpenRecordset(QStringLiteral("tblThing"));
    EXPECT_FALSE(rs->BOF());
    EXPECT_EQ(rs->RecordCount(), 1);  // only the first row has been visited
    EXPECT_EQ(rs->AbsolutePosition(), 0);
    rs->MoveNext();
    EXPECT_EQ(rs->RecordCount(), 2);
    rs->MoveLast();
    EXPECT_EQ(rs->RecordCount(), 3);
    EXPECT_EQ(rs->field(QStringLiteral("name")).toString(), QStringLiteral("Cedar"));
    rs->MoveNext();
    EXPECT_TRUE(rs->EOF_());
    EXPECT_EQ(errorNumber([&] { rs->field(QStringLiteral("Name")); }), VbErr::NoCurrentRecord);
    EXPECT_EQ(errorNumber([&] { rs->MoveNext(); }), VbErr::NoCurrentRecord);
    rs->MovePrevious();
    EXPECT_EQ(rs->AbsolutePosition(), 2);
    rs->MoveFirst();
    rs->MovePrevious();
    EXPECT_TRUE(rs->BOF());

    auto empty = db->OpenRecordset(QStringLiteral("Select * From tblThing Where ThingID = 99"));
    EXPECT_TRUE(empty->BOF() && empty->EOF_());
    EXPECT_EQ(empty->RecordCount(), 0);
    EXPECT_EQ(errorNumber([&] { empty->MoveFirst(); }), VbErr::NoCurrentRecord);
}

TEST_F(RecordsetTest, FieldsAreCaseInsensitiveTypedAndNullable)
{
    auto rs = db->OpenRecordset(QStringLiteral("Select * From tblThing Order By ThingID"));
    EXPECT_EQ(rs->field(QStringLiteral("AMOUNT")).toDouble(), 1.5);
    EXPECT_EQ(rs->field(QStringLiteral("tblThing.Name")).toString(), QStringLiteral("Alder"));
    EXPECT_EQ(rs->field(QStringLiteral("Flag")).typeId(), QMetaType::Bool);
    EXPECT_EQ(errorNumber([&] { rs->field(QStringLiteral("Nope")); }), VbErr::ItemNotFound);
    rs->MoveLast();
    EXPECT_TRUE(rs->field(QStringLiteral("Amount")).isNull());

    // Dates go in as date-times and come back as such; a date alone is midnight.
    rs->Edit();
    rs->setField(QStringLiteral("Added"), QDate(2026, 2, 28));
    rs->Update();
    EXPECT_EQ(rs->field(QStringLiteral("Added")).toDateTime(), QDateTime(QDate(2026, 2, 28), QTime(0, 0)));
    rs->Edit();
    rs->setField(QStringLiteral("Added"), QDateTime(QDate(2026, 11, 22), QTime(15, 4, 5)));
    rs->Update();
    EXPECT_EQ(rs->field(QStringLiteral("Added")).toDateTime(), QDateTime(QDate(2026, 11, 22), QTime(15, 4, 5)));
}

TEST_F(RecordsetTest, AddNewShowsAutonumberAndDefaultsBeforeUpdate)
{
    auto rs = db->OpenRecordset(QStringLiteral("tblThing"));
    rs->AddNew();
    EXPECT_EQ(rs->field(QStringLiteral("ThingID")).toInt(), 4);
    EXPECT_EQ(rs->field(QStringLiteral("Kind")).toInt(), 6);
    rs->setField(QStringLiteral("Name"), QStringLiteral("Dogwood"));
    rs->setField(QStringLiteral("Amount"), QStringLiteral(" 1,234.5 "));  // numeric text, thousands included
    rs->Update();
    // The current row stays where it was; the new row joins the end.
    EXPECT_EQ(rs->field(QStringLiteral("Name")).toString(), QStringLiteral("Alder"));
    rs->MoveLast();
    EXPECT_EQ(rs->field(QStringLiteral("Amount")).toDouble(), 1234.5);

    // A deleted last row does not hand its number out again.
    db->Execute(QStringLiteral("Delete * from tblThing where ThingID = 4"));
    auto again = db->OpenRecordset(QStringLiteral("tblThing"));
    again->AddNew();
    EXPECT_EQ(again->field(QStringLiteral("ThingID")).toInt(), 5);
    again->CancelUpdate();
    EXPECT_EQ(db->OpenRecordset(QStringLiteral("Select * from tblThing where ThingID = 5"))->RecordCount(), 0);

    // A table without a declared key gets rows too.
    auto link = db->OpenRecordset(QStringLiteral("tblLink"));
    link->AddNew();
    link->setField(QStringLiteral("ThingID"), 2);
    link->Update();
    EXPECT_EQ(db->OpenRecordset(QStringLiteral("Select * from tblLink where ThingID = 2"))->RecordCount(), 1);
}

TEST_F(RecordsetTest, EditUpdateWritesOnlyThatRowAndRejectsBadNumbers)
{
    auto rs = db->OpenRecordset(QStringLiteral("Select * From tblThing Where Kind = 4"));
    rs->MoveNext();
    rs->Edit();
    rs->setField(QStringLiteral("Amount"), QStringLiteral(".250"));
    rs->Update();
    EXPECT_EQ(rs->field(QStringLiteral("Amount")).toDouble(), 0.25);
    auto check = db->OpenRecordset(QStringLiteral("Select Amount From tblThing Order By ThingID"), RecordsetType::Snapshot);
    EXPECT_EQ(check->field(0).toDouble(), 1.5);
    check->MoveLast();
    EXPECT_EQ(check->field(0).toDouble(), 0.25);

    rs->Edit();
    EXPECT_EQ(errorNumber([&] { rs->setField(QStringLiteral("Amount"), QStringLiteral("not found")); }),
              VbErr::DataTypeConversion);
    rs->CancelUpdate();
    EXPECT_EQ(errorNumber([&] { rs->setField(QStringLiteral("Amount"), 1); }), VbErr::UpdateWithoutAddNewOrEdit);
    EXPECT_EQ(errorNumber([&] { rs->Update(); }), VbErr::UpdateWithoutAddNewOrEdit);
}

TEST_F(RecordsetTest, AggregatesJoinsAndSnapshotsCannotBeEdited)
{
    const QStringList readOnly = {
        QStringLiteral("Select sum(Amount) As Total from tblThing"),
        QStringLiteral("SELECT tblThing.Name, tblLink.Note FROM tblThing INNER JOIN tblLink ON tblThing.ThingID = tblLink.ThingID"),
        QStringLiteral("SELECT tblThing.* FROM tblThing INNER JOIN tblLink ON tblThing.ThingID = tblLink.ThingID"),
        QStringLiteral("SELECT DISTINCT Kind FROM tblThing"),
    };
    for (const QString &sql : readOnly) {
        auto rs = db->OpenRecordset(sql);
        EXPECT_FALSE(rs->updatable()) << sql.toStdString();
        EXPECT_EQ(errorNumber([&] { rs->Edit(); }), VbErr::ReadOnly) << sql.toStdString();
        EXPECT_EQ(errorNumber([&] { rs->AddNew(); }), VbErr::ReadOnly) << sql.toStdString();
    }
    auto snap = db->OpenRecordset(QStringLiteral("tblThing"), RecordsetType::Snapshot);
    EXPECT_EQ(errorNumber([&] { snap->Edit(); }), VbErr::ReadOnly);
}

TEST_F(RecordsetTest, ColumnsOfNestedJoinsKeepTheirPlainNames)
{
    // SQLite names columns of parenthesised joins "Note:1"; a second Name is found by its table.
    auto rs = db->OpenRecordset(QStringLiteral(
        "SELECT tblThing.Name, tblLink.Note, tblOther.Name FROM tblThing AS tblOther RIGHT JOIN (tblThing RIGHT JOIN "
        "tblLink ON tblThing.ThingID = tblLink.ThingID) ON tblOther.ThingID = tblLink.ThingID WHERE tblLink.Note = 'c'"));
    EXPECT_EQ(rs->fieldNames(), (QStringList{"Name", "Note", "Name"}));
    EXPECT_EQ(rs->field(QStringLiteral("Note")).toString(), QStringLiteral("c"));
    EXPECT_EQ(rs->field(QStringLiteral("tblLink.Note")).toString(), QStringLiteral("c"));
    EXPECT_EQ(rs->field(QStringLiteral("Name")).toString(), QStringLiteral("Cedar"));
}

TEST_F(RecordsetTest, StatementsThatDifferOnlyInTheirNumbersShareOneButKeepTheirOwnValues)
{
    auto value = [&](const QString &field, const QString &criteria) {
        bool found = false;
        const QVariant v = db->lookupValue(QStringLiteral("tblThing"), field, criteria, &found);
        return found ? v : QVariant(QStringLiteral("<none>"));
    };
    // One shared statement, each lookup with its own numbers; digits in a quoted text or a name stay.
    EXPECT_EQ(value(QStringLiteral("Name"), QStringLiteral("ThingID = 2")).toString(), QStringLiteral("birch"));
    EXPECT_EQ(value(QStringLiteral("Name"), QStringLiteral("ThingID = 3")).toString(), QStringLiteral("Cedar"));
    EXPECT_EQ(value(QStringLiteral("Name"), QStringLiteral("ThingID = 9")).toString(), QStringLiteral("<none>"));
    EXPECT_EQ(value(QStringLiteral("ThingID"), QStringLiteral("Name = 'birch' And Amount > 2.25")).toInt(), 2);
    EXPECT_EQ(value(QStringLiteral("ThingID"), QStringLiteral("Name = '3' Or Kind = 7")).toInt(), 2);
    EXPECT_EQ(value(QStringLiteral("Amount"), QStringLiteral("")).toDouble(), 1.5);   // no criteria: the first row
    EXPECT_EQ(value(QStringLiteral("Flag"), QStringLiteral("ThingID = 1")).typeId(), QMetaType::Bool);
    // Text that looks like the marker the numbers are replaced by: the statement is run with its numbers.
    EXPECT_EQ(value(QStringLiteral("Name"), QStringLiteral("Name = '90817263544536001' Or ThingID = 1")).toString(),
              QStringLiteral("Alder"));
    EXPECT_EQ(value(QStringLiteral("Name"), QStringLiteral("ThingID = 90817263544536001 Or ThingID = 3")).toString(),
              QStringLiteral("Cedar"));
    for (int id : {1, 2, 3}) {
        auto rs = db->OpenRecordset(QStringLiteral("Select Name, Kind from tblThing Where ThingID = ") + QString::number(id));
        EXPECT_EQ(rs->field(0).toString(), (QStringList{"Alder", "birch", "Cedar"}[id - 1]));
    }
    bool found = true;
    EXPECT_THROW(db->lookupValue(QStringLiteral("tblNothing"), QStringLiteral("Name"), QString(), &found), VbError);
    EXPECT_THROW(db->lookupValue(QStringLiteral("tblNothing"), QStringLiteral("Name"), QString(), &found), VbError);
    // A lookup hands its statement back after each use: the table can be written and even dropped.
    db->Execute(QStringLiteral("Update tblThing Set Name = 'Aspen' Where ThingID = 1"));
    EXPECT_EQ(value(QStringLiteral("Name"), QStringLiteral("ThingID = 1")).toString(), QStringLiteral("Aspen"));
    db->executeNative(QStringLiteral("DROP TABLE tblThing"));
    EXPECT_THROW(value(QStringLiteral("Name"), QStringLiteral("ThingID = 1")), VbError);
}

TEST_F(RecordsetTest, FindUsesJetCriteriaWithoutRegardToCase)
{
    auto rs = db->OpenRecordset(QStringLiteral("tblThing"), RecordsetType::Snapshot);
    rs->FindFirst(QStringLiteral("Name = 'BIRCH'"));
    ASSERT_FALSE(rs->NoMatch());
    EXPECT_EQ(rs->field(QStringLiteral("ThingID")).toInt(), 2);
    rs->FindFirst(QStringLiteral("Kind = 4"));
    EXPECT_EQ(rs->field(QStringLiteral("ThingID")).toInt(), 1);
    rs->FindNext(QStringLiteral("Kind = 4"));
    EXPECT_EQ(rs->field(QStringLiteral("ThingID")).toInt(), 3);
    rs->FindNext(QStringLiteral("Kind = 4"));
    EXPECT_TRUE(rs->NoMatch());
    EXPECT_EQ(rs->field(QStringLiteral("ThingID")).toInt(), 3);  // no match leaves the row alone
    rs->FindFirst(QStringLiteral("Name Like 'c*'"));
    EXPECT_EQ(rs->field(QStringLiteral("ThingID")).toInt(), 3);
    rs->FindFirst(QStringLiteral("Amount Is Null"));
    EXPECT_EQ(rs->field(QStringLiteral("ThingID")).toInt(), 3);
    EXPECT_NE(errorNumber([&] { rs->FindFirst(QStringLiteral("Name = 'o'brien'")); }), 0);
}

TEST_F(RecordsetTest, DeleteMovesOnAndExecuteReportsErrors)
{
    auto rs = db->OpenRecordset(QStringLiteral("tblThing"));
    rs->Delete();
    EXPECT_EQ(errorNumber([&] { rs->field(QStringLiteral("Name")); }), VbErr::NoCurrentRecord);
    rs->MoveNext();
    EXPECT_EQ(rs->field(QStringLiteral("Name")).toString(), QStringLiteral("birch"));

    EXPECT_EQ(db->Execute(QStringLiteral("UPDATE tblThing SET tblThing.Kind = 9 WHERE tblThing.Kind = 4")), 1);
    EXPECT_EQ(errorNumber([&] { db->Execute(QStringLiteral("Select * From tblUser Where User ='o'brien'")); }),
              VbErr::SyntaxError);
    EXPECT_EQ(errorNumber([&] { db->OpenRecordset(QStringLiteral("tblMissing")); }), VbErr::InputTableNotFound);
    EXPECT_EQ(errorNumber([&] { db->Execute(QStringLiteral("INSERT INTO tblThing (ThingID, Name) VALUES (2, 'x')")); }),
              VbErr::DuplicateKey);
    // Without failOnError a row that breaks a rule is skipped instead.
    EXPECT_EQ(db->Execute(QStringLiteral("INSERT INTO tblThing (ThingID, Name) VALUES (2, 'x')"), false), 0);
}

TEST_F(RecordsetTest, RowsAreReadAsTheyAreReachedAndCountedWithoutReading)
{
    ASSERT_TRUE(db->shareWithOtherPrograms());   // where a half-read statement holds up nobody
    db->executeNative(QStringLiteral("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 500) "
                                     "INSERT INTO tblThing (Name, Kind) SELECT 'row ' || i, i % 3 FROM n"));
    auto rs = db->OpenRecordset(QStringLiteral("Select * From tblThing Where Kind = 1 Order By ThingID"));
    EXPECT_EQ(rs->rowsRead(), 1);
    EXPECT_FALSE(rs->complete());
    EXPECT_EQ(rs->countRows(), 167);
    EXPECT_EQ(rs->rowsRead(), 1);
    EXPECT_EQ(db->OpenRecordset(QStringLiteral("Select Top 5 * From tblThing Order By Name Desc"))->countRows(), 5);
    rs->setAbsolutePosition(9);
    EXPECT_EQ(rs->rowsRead(), 10);
    EXPECT_EQ(rs->RecordCount(), 10);
    rs->FindFirst(QStringLiteral("Name = 'ROW 100'"));
    EXPECT_FALSE(rs->NoMatch());
    EXPECT_EQ(rs->AbsolutePosition(), 33);
    const int mark = rs->Bookmark();
    rs->MoveLast();
    EXPECT_TRUE(rs->complete());
    EXPECT_EQ(rs->RecordCount(), 167);
    rs->setBookmark(mark);
    EXPECT_EQ(rs->field(QStringLiteral("Name")).toString(), QStringLiteral("row 100"));
    EXPECT_EQ(errorNumber([&] { rs->setAbsolutePosition(167); }), VbErr::InvalidArgument);
}

TEST_F(RecordsetTest, RowsAddedWhileReadingComeLastAndOnceAndSchemaChangesWait)
{
    ASSERT_TRUE(db->shareWithOtherPrograms());   // where a half-read statement holds up nobody
    db->executeNative(QStringLiteral("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 200) "
                                     "INSERT INTO tblThing (Name) SELECT 'row ' || i FROM n"));
    auto rs = db->OpenRecordset(QStringLiteral("tblThing"));
    rs->AddNew();
    rs->setField(QStringLiteral("Name"), QStringLiteral("added"));
    rs->Update();
    rs->MoveFirst();
    int added = 0, rows = 0;
    for (; !rs->EOF_(); rs->MoveNext(), ++rows)
        added += rs->field(QStringLiteral("Name")).toString() == QLatin1String("added");
    EXPECT_EQ(added, 1);
    EXPECT_EQ(rows, 204);
    rs->MoveLast();
    EXPECT_EQ(rs->field(QStringLiteral("Name")).toString(), QStringLiteral("added"));

    // A statement still being read would lock its table against a schema change: it is read first.
    auto pending = db->OpenRecordset(QStringLiteral("Select * From tblThing Order By ThingID"));
    ASSERT_FALSE(pending->complete());
    db->executeNative(QStringLiteral("CREATE TABLE tblScratch (ID INTEGER)"));
    db->executeNative(QStringLiteral("DROP TABLE tblScratch"));
    EXPECT_TRUE(pending->complete());
    pending->MoveLast();
    EXPECT_EQ(pending->RecordCount(), 204);

    // Deleting the last row read finds whether another follows.
    auto two = db->OpenRecordset(QStringLiteral("Select * From tblThing Where ThingID <= 2"));
    two->Delete();
    two->MoveNext();
    EXPECT_FALSE(two->EOF_());
    EXPECT_EQ(two->field(QStringLiteral("ThingID")).toInt(), 2);
}

TEST(DatabaseOpen, MissingOrDamagedFilesRaiseTheirNumbers)
{
    QTemporaryDir dir;
    EXPECT_EQ(errorNumber([&] { Database::open(dir.filePath(QStringLiteral("none.sqlite"))); }), VbErr::CouldNotFindFile);
    QFile junk(dir.filePath(QStringLiteral("junk.sqlite")));
    ASSERT_TRUE(junk.open(QIODevice::WriteOnly));
    junk.write(QByteArray(4096, 'x'));
    junk.close();
    EXPECT_EQ(errorNumber([&] { Database::open(junk.fileName()); }), VbErr::NotDatabaseFormat);
}

}  // namespace
