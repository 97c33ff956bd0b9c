// SPDX-License-Identifier: MIT
// What reaches the database: one statement per call, whatever the text holds; and two connections on
// one file, as two programs have them: waiting for each other's locks, never sharing an autonumber,
// reporting a lock that outlasts the wait as a lock, with nothing half-written.
#include "Database.h"
#include "Schema.h"
#include "TestSupport.h"
#include "VbError.h"

#include <QElapsedTimer>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <sqlite3.h>

#include <chrono>
#include <functional>
#include <thread>

namespace {

class SharedFile : public ::testing::Test {
protected:
    void SetUp() override
    {
        auto db = Database::create(path());
        createSchema(*db);
        db->Execute(QStringLiteral("INSERT INTO tblProject (Name) VALUES ('kept')"));
    }
    QString path() const { return dir.filePath(QStringLiteral("ZOB.sqlite")); }
    int count(Database &db, const QString &table)
    {
        auto rs = db.OpenRecordset(QStringLiteral("SELECT count(*) AS n FROM ") + table, RecordsetType::Snapshot);
        return rs->field(0).toInt();
    }
    //! Another program's connection holding the write lock (in rollback-journal mode also the read
    //! lock) until release.
    sqlite3 *holdLock(const char *begin)
    {
        sqlite3 *other = nullptr;
        EXPECT_EQ(sqlite3_open(path().toUtf8().constData(), &other), SQLITE_OK);
        EXPECT_EQ(sqlite3_exec(other, begin, nullptr, nullptr, nullptr), SQLITE_OK);
        EXPECT_EQ(sqlite3_exec(other, "INSERT INTO tblProject (Name) VALUES ('other')", nullptr, nullptr, nullptr), SQLITE_OK);
        return other;
    }
    QTemporaryDir dir;
};

TEST_F(SharedFile, TypedTextCannotAddASecondStatement)
{
    auto db = Database::open(path());
    // A comment typed into an insert that closes the quote and appends a statement.
    const QString typed = QStringLiteral("x'); DELETE FROM tblProject WHERE ('1'='1");
    const QString insert = QStringLiteral("Insert Into tblComments (UserID, Comment) Values (1, '") + typed + QStringLiteral("')");
    QString text;
    EXPECT_EQ(errorNumber([&] { db->Execute(insert); }, &text), VbErr::SyntaxError);
    EXPECT_TRUE(text.startsWith(QStringLiteral("Syntax error"))) << text.toStdString();
    EXPECT_EQ(count(*db, QStringLiteral("tblProject")), 1);
    EXPECT_EQ(count(*db, QStringLiteral("tblComments")), 0);

    // Every entry refuses a second statement and a NUL, and runs nothing of the text.
    const QString nul = QStringLiteral("DELETE FROM tblProject WHERE Name = 'a") + QChar(0) + QStringLiteral("' OR 1=1");
    for (const auto &call : std::initializer_list<std::function<void()>>{
             [&] { db->Execute(QStringLiteral("DELETE FROM tblComments; DELETE FROM tblProject")); },
             [&] { db->Execute(nul); },
             [&] { db->OpenRecordset(QStringLiteral("SELECT * FROM tblProject; DELETE FROM tblProject")); },
             [&] { db->executeNative(QStringLiteral("SELECT 1; DELETE FROM tblProject")); },
             [&] { db->executeNative(nul); },
         })
        EXPECT_EQ(errorNumber(call), VbErr::SyntaxError);
    EXPECT_EQ(count(*db, QStringLiteral("tblProject")), 1);

    // A statement that ends in `;` is still one statement.
    EXPECT_EQ(db->Execute(QStringLiteral("UPDATE tblProject SET Comments = 'a;b' WHERE Name = 'kept';")), 1);
}

TEST_F(SharedFile, TextInANumberColumnIsTheTypeMismatchError)
{
    auto db = Database::open(path());
    QString text;
    EXPECT_EQ(errorNumber([&] { db->Execute(QStringLiteral("Insert into tblGenus (FamilyID, Name) values ('1,5', 'x')")); },
                          &text),
              VbErr::DataTypeMismatch);
    EXPECT_TRUE(text.startsWith(QStringLiteral("Data type mismatch in criteria expression."))) << text.toStdString();
    EXPECT_EQ(count(*db, QStringLiteral("tblGenus")), 0);
    EXPECT_EQ(db->Execute(QStringLiteral("Insert into tblGenus (FamilyID, Name) values ('15', 'x')")), 1);
}

TEST_F(SharedFile, AConnectionWaitsForALockFromItsFirstStatement)
{
    // The other program holds the file (rollback journal: nobody may read) while this one opens it;
    // the open's first read waits instead of calling the file damaged.
    sqlite3 *other = holdLock("BEGIN EXCLUSIVE");
    std::thread release([&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(300));
        sqlite3_exec(other, "COMMIT", nullptr, nullptr, nullptr);
    });
    std::shared_ptr<Database> db;
    EXPECT_EQ(errorNumber([&] { db = Database::open(path()); }), 0);
    release.join();
    sqlite3_close(other);
    ASSERT_TRUE(db);
    EXPECT_EQ(count(*db, QStringLiteral("tblProject")), 2);
}

TEST_F(SharedFile, ALockThatOutlastsTheWaitIsReportedAsALockAndChangesNothing)
{
    auto db = Database::open(path());
    EXPECT_TRUE(db->shareWithOtherPrograms());
    sqlite3 *other = holdLock("BEGIN IMMEDIATE");
    QElapsedTimer waited;
    waited.start();
    QString text;
    EXPECT_EQ(errorNumber([&] { db->Execute(QStringLiteral("UPDATE tblProject SET Name = 'changed'")); }, &text),
              VbErr::CurrentlyLocked);
    EXPECT_GE(waited.elapsed(), Database::kBusyTimeoutMs - 100);
    EXPECT_TRUE(text.contains(QStringLiteral("locked")) && !text.contains(QStringLiteral("format"))) << text.toStdString();
    // In write-ahead-log mode the reader is not held up by the writer.
    EXPECT_EQ(count(*db, QStringLiteral("tblProject")), 1);
    sqlite3_exec(other, "ROLLBACK", nullptr, nullptr, nullptr);
    sqlite3_close(other);
    auto rs = db->OpenRecordset(QStringLiteral("SELECT Name FROM tblProject"), RecordsetType::Snapshot);
    EXPECT_EQ(rs->field(0).toString(), QStringLiteral("kept"));
}

TEST_F(SharedFile, ATransactionIsAllOrNothing)
{
    auto db = Database::open(path());
    {
        Database::Transaction t(*db);
        db->Execute(QStringLiteral("UPDATE tblProject SET Name = 'gone'"));
        // A nested one leaves the decision to the outer.
        Database::Transaction inner(*db);
        db->Execute(QStringLiteral("INSERT INTO tblProject (Name) VALUES ('added')"));
        inner.commit();
    }
    auto rs = db->OpenRecordset(QStringLiteral("SELECT Name FROM tblProject"), RecordsetType::Snapshot);
    EXPECT_EQ(rs->field(0).toString(), QStringLiteral("kept"));
    EXPECT_EQ(count(*db, QStringLiteral("tblProject")), 1);
    {
        Database::Transaction t(*db);
        db->Execute(QStringLiteral("INSERT INTO tblProject (Name) VALUES ('added')"));
        t.commit();
    }
    EXPECT_EQ(count(*db, QStringLiteral("tblProject")), 2);
}

}  // namespace
