// SPDX-License-Identifier: MIT
#pragma once

#include "Recordset.h"
#include <QString>
#include <QVariant>
#include <memory>

struct sqlite3;
struct sqlite3_stmt;

//! The one open database of the program, with DAO's operations: OpenRecordset and Execute.
//! Every statement is Jet SQL and passes through translateJetSql. Errors throw VbError with the
//! legacy numbers (3022 duplicate key, 3075 syntax error, 3078 unknown table, 3024 missing file...).
class Database {
public:
    //! Opens an existing database file. A missing file throws 3024, a file that is not a database 3343,
    //! a file that another program keeps locked beyond the wait 3045.
    static std::shared_ptr<Database> open(const QString &path);
    //! Creates (or opens) a database file, for the seed builder and tests.
    static std::shared_ptr<Database> create(const QString &path);

    //! How long every statement of a connection, its first included, waits for another program's
    //! lock before it gives up with 3218 "Could not update; currently locked.".
    static constexpr int kBusyTimeoutMs = 5000;

    ~Database();
    Database(const Database &) = delete;
    Database &operator=(const Database &) = delete;

    const QString &path() const { return m_path; }

    //! Opens a recordset on a table name or a Jet SELECT statement.
    std::unique_ptr<Recordset> OpenRecordset(const QString &source, RecordsetType type = RecordsetType::Dynaset);
    //! The value of column field in the first row of table that meets the Jet criteria (every row when
    //! they are empty), read as a snapshot recordset reads it, without making one. found is false when
    //! no row meets them.
    QVariant lookupValue(const QString &table, const QString &field, const QString &criteria, bool *found);

    //! Runs one action statement. With failOnError (dbFailOnError) any error throws; without it, as in
    //! DAO, a statement that is syntactically wrong still throws, but constraint failures on single rows
    //! are skipped. Returns the number of rows affected. Text after the statement (a second statement)
    //! or a NUL character is the syntax error 3075, and nothing runs.
    int Execute(const QString &jetSql, bool failOnError = true);

    //! Runs one SQLite statement as it stands, without translation (schema, pragmas); the same rule of
    //! one statement applies.
    void executeNative(const QString &sqliteSql);

    //! Puts the file in write-ahead-log mode, in which the readers and the one writer of several
    //! programs work side by side. False where the file system does not allow it (the file then keeps
    //! its rollback journal, and programs take turns).
    bool shareWithOtherPrograms();

    //! The next autonumber of table's key, reserved at once: it is written as used, so that no other
    //! program, and no later AddNew, gets it. A key without AUTOINCREMENT cannot be reserved and gets
    //! the next free number.
    qint64 reserveAutonumber(const QString &table, const QString &keyColumn);

    //! A write transaction: it takes the write lock at once (waiting as a statement waits) and is
    //! rolled back unless committed, so that a failure leaves nothing half-written. Inside another
    //! transaction it does nothing: the outer one decides.
    class Transaction {
    public:
        explicit Transaction(Database &db);
        ~Transaction();
        Transaction(const Transaction &) = delete;
        Transaction &operator=(const Transaction &) = delete;
        void commit();
    private:
        Database &m_db;
        bool m_active = false;
    };

    //! Rows affected by the last Execute.
    int RecordsAffected() const { return m_recordsAffected; }

    //! The primary-key column of a table ("" for none), and whether the table exists. Cached.
    QString primaryKeyOf(const QString &table);
    bool hasTable(const QString &table);
    //! Declared type of a column ("" when unknown); numeric columns convert text on assignment.
    QString columnType(const QString &table, const QString &column);
    //! Column names of a table in their order.
    QStringList columnsOf(const QString &table);
    //! Forgets cached table information after DDL.
    void clearSchemaCache();

    sqlite3 *handle() const { return m_db; }

    //! A prepared statement for sql, from a cache of statements kept across calls (preparing is the
    //! dearest part of a small query). Returns SQLite's result code; hand the statement back with
    //! releaseCached. A statement still in use is never handed out twice: a second one is prepared.
    //! Text after the first statement, or a NUL, throws the syntax error 3075.
    int prepareCached(const QByteArray &sql, sqlite3_stmt **out);
    //! Resets a statement from prepareCached and makes it available again (or finalizes it).
    void releaseCached(sqlite3_stmt *stmt);

    //! Recordsets whose statement is still being read (they read rows as they are reached). Such a
    //! statement keeps a read of the file going: before any write on this connection, every open
    //! recordset reads its remaining rows.
    //! True when a statement may be left half read: in write-ahead-log mode, where a read holds up no
    //! other program. Under a rollback journal a read blocks every writer, so recordsets read to the end.
    bool readsCanWait();
    void readingStarted(Recordset *rs);
    void readingStopped(Recordset *rs);
    void finishReading();

    //! The result shape of a statement text as last seen, null when unknown; forgotten on any schema
    //! change.
    std::shared_ptr<const RecordsetShape> shapeOf(const QByteArray &sql) const;
    void keepShape(const QByteArray &sql, std::shared_ptr<const RecordsetShape> shape);

    //! Raises the VbError matching SQLite's last error on this connection.
    [[noreturn]] void raiseLastError(const QString &context = {}) const;

private:
    explicit Database(QString path, sqlite3 *db);
    struct TableInfo;
    const TableInfo *tableInfo(const QString &table);
    //! The SQLite text of a Jet statement whose first `parameters` compared numbers are markers (see
    //! SqlParameters), cached; null when the markers did not come through.
    SqlText translated(const QString &jetSql, int parameters);
    //! A Jet SELECT in SQLite's dialect, with the numbers it compares taken out into params.
    SqlText translatedSelect(const QString &jetSql, SqlValues &params);
    //! The statement of a lookup, with the numbers of its criteria taken out into params: the lookup's
    //! own prepared statement, or null when the statement sql is to be prepared from the shared ones.
    sqlite3_stmt *lookupStatement(const QString &table, const QString &field, const QString &criteria, SqlValues &params,
                                  SqlText &sql);
    static QString lookupSql(const QString &table, const QString &field, const QString &criteria);
    //! Before a statement that writes: open statements are read to the end (and before one that may
    //! change the schema, the result shapes are forgotten too).
    void beforeStatement(const QString &sql);
    //! Prepares the one statement of sql (null for text without a statement); see prepareCached.
    sqlite3_stmt *prepareOne(const QByteArray &sql, const QString &context);
    //! Runs the one statement of sql to its end; the rows it changed.
    int runOne(const QByteArray &sql, const QString &context);

    QString m_path;
    sqlite3 *m_db = nullptr;
    int m_recordsAffected = 0;
    struct Cache;
    std::unique_ptr<Cache> m_cache;
};
