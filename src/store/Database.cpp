// SPDX-License-Identifier: MIT
#include "Database.h"

#include "JetSql.h"
#include "SqlParameters.h"
#include "VbError.h"

#include <QFileInfo>
#include <QHash>
#include <sqlite3.h>

struct Database::TableInfo {
    bool exists = false;
    QString key;                        // INTEGER PRIMARY KEY column, "" when the table uses its rowid
    QStringList columns;
    QHash<QString, QString> types;      // lower-case column name -> declared type
};

struct Database::Cache {
    QHash<QString, TableInfo> tables;   // lower-case table name -> info
    // A statement is cached under its text; a cached statement is in use from prepareCached until
    // releaseCached. The flag is found by the statement's pointer, which is quicker than by its text.
    QHash<QByteArray, sqlite3_stmt *> statements;   // SQL text -> its statement
    QHash<sqlite3_stmt *, bool> inUse;              // cached statement -> handed out now
    QList<Recordset *> reading;                   // recordsets with a statement still being read
    int writeAheadLog = -1;                       // 1 in write-ahead-log mode, 0 not, -1 not asked yet
    SqlParameters taken;   // the numbers of the statement being opened, its text reused from the last
    QHash<QString, SqlText> translations;   // Jet SELECT -> its SQLite text
    // A lookup keeps its statement prepared for itself: lookups run by the thousand, and finding a
    // shared statement by its text each time is a fair part of what one costs.
    struct Lookup {
        SqlText sql;                   // null text: the criteria are translated with their numbers each time
        sqlite3_stmt *stmt = nullptr;  // its own, prepared once
    };
    QHash<QString, Lookup> lookups;         // table, field and criteria without numbers -> the lookup
    struct {
        QString table, field, criteria;     // criteria without numbers
        Lookup lookup;
    } lastLookup;                           // the last lookup: the next one is mostly the same
    void clearLookups()
    {
        for (const Lookup &l : std::as_const(lookups))
            sqlite3_finalize(l.stmt);
        lookups.clear();
        lastLookup = {};
    }
    QHash<QByteArray, std::shared_ptr<const RecordsetShape>> shapes;   // SQLite SELECT -> its result shape
};

namespace {
constexpr int kStatementCacheLimit = 256;

struct StatementCloser {
    void operator()(sqlite3_stmt *stmt) const { sqlite3_finalize(stmt); }
};
using OwnedStatement = std::unique_ptr<sqlite3_stmt, StatementCloser>;

//! True when what follows a statement is only blanks and empty statements.
bool onlyEmptyStatements(const char *tail, const char *end)
{
    for (; tail && tail < end; ++tail) {
        const char c = *tail;
        if (c != ';' && c != ' ' && (c < '\t' || c > '\r'))
            return false;
    }
    return true;
}

[[noreturn]] void raiseExtraStatement(const QString &context)
{
    throw VbError(VbErr::SyntaxError,
                  QStringLiteral("Syntax error (characters found after end of SQL statement) in query expression '%1'.")
                      .arg(context));
}

//! Prepares the first statement of sql and refuses anything after it, and a NUL, which SQLite would
//! take as the end of the text. Returns SQLite's result code.
int prepareFirst(sqlite3 *db, const QByteArray &sql, sqlite3_stmt **out, const QString &context)
{
    *out = nullptr;
    if (sql.contains('\0'))
        throw VbError(VbErr::SyntaxError, QStringLiteral("Syntax error (NUL character) in query expression '%1'.").arg(context));
    const char *tail = nullptr;
    const int rc = sqlite3_prepare_v2(db, sql.constData(), static_cast<int>(sql.size()), out, &tail);
    if (rc == SQLITE_OK && !onlyEmptyStatements(tail, sql.constData() + sql.size())) {
        sqlite3_finalize(*out);
        *out = nullptr;
        raiseExtraStatement(context);
    }
    return rc;
}

QString lockedText(const QString &path)
{
    return QStringLiteral("Could not update; currently locked. Another program is writing to the database '%1' "
                          "and held it longer than we could wait. Nothing was saved; try again in a moment.")
        .arg(path);
}

QString sqliteMessage(sqlite3 *db) { return QString::fromUtf8(sqlite3_errmsg(db)); }

//! Maps a SQLite failure to the number the legacy engine gave for the same fault.
int legacyNumber(int code, const QString &message)
{
    const int primary = code & 0xff;
    if (primary == SQLITE_BUSY || primary == SQLITE_LOCKED)
        return VbErr::CurrentlyLocked;
    // The schema's number columns check what they take; a key refuses anything but an integer.
    if (code == SQLITE_CONSTRAINT_CHECK || primary == SQLITE_MISMATCH)
        return VbErr::DataTypeMismatch;
    if (primary == SQLITE_CONSTRAINT) {
        if (message.contains(QLatin1String("UNIQUE")) || message.contains(QLatin1String("PRIMARY KEY")))
            return VbErr::DuplicateKey;
        return VbErr::GenericDbError;
    }
    if (primary == SQLITE_NOTADB || primary == SQLITE_CORRUPT)
        return VbErr::NotDatabaseFormat;
    if (primary == SQLITE_CANTOPEN)
        return VbErr::CannotOpenDatabase;
    if (primary == SQLITE_READONLY)
        return VbErr::ReadOnly;
    if (message.startsWith(QLatin1String("no such table")))
        return VbErr::InputTableNotFound;
    if (message.startsWith(QLatin1String("no such column")))
        return VbErr::TooFewParameters;   // Jet reads an unknown name as a missing parameter
    if (message.contains(QLatin1String("syntax error")) || message.startsWith(QLatin1String("unrecognized token"))
        || message.contains(QLatin1String("incomplete input")))
        return VbErr::SyntaxError;
    return VbErr::GenericDbError;
}

}  // namespace

Database::Database(QString path, sqlite3 *db) : m_path(std::move(path)), m_db(db), m_cache(std::make_unique<Cache>())
{
    // Before the first statement: a lock held by another program is waited for, never reported at once.
    sqlite3_busy_timeout(m_db, kBusyTimeoutMs);
    registerJetFunctions(m_db);
}

Database::~Database()
{
    finishReading();
    m_cache->clearLookups();
    for (sqlite3_stmt *stmt : std::as_const(m_cache->statements))
        sqlite3_finalize(stmt);
    m_cache->statements.clear();
    if (m_db)
        sqlite3_close_v2(m_db);
}

std::shared_ptr<Database> Database::open(const QString &path)
{
    if (!QFileInfo(path).isFile())
        throw VbError(VbErr::CouldNotFindFile, QStringLiteral("Could not find file '%1'.").arg(path));
    sqlite3 *db = nullptr;
    // The program uses its connection from one thread only: SQLite need not lock it around each call.
    const int rc = sqlite3_open_v2(path.toUtf8().constData(), &db, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr);
    if (rc != SQLITE_OK) {
        const QString msg = db ? sqliteMessage(db) : QStringLiteral("out of memory");
        sqlite3_close_v2(db);
        throw VbError(legacyNumber(rc, msg), QStringLiteral("Cannot open database '%1'. %2").arg(path, msg));
    }
    std::shared_ptr<Database> result(new Database(path, db));
    // A file that is not a database only shows itself on the first read; a lock shows there too.
    sqlite3_stmt *raw = nullptr;
    int read = sqlite3_prepare_v2(db, "SELECT count(*) FROM sqlite_master", -1, &raw, nullptr);
    const OwnedStatement probe(raw);
    if (read == SQLITE_OK)
        read = sqlite3_step(raw) == SQLITE_ROW ? SQLITE_OK : sqlite3_errcode(db);
    if (read != SQLITE_OK) {
        if (legacyNumber(read, {}) == VbErr::CurrentlyLocked)
            throw VbError(VbErr::FileInUse, QStringLiteral("Could not use '%1'; file already in use. Another program "
                                                           "holds it locked; try again in a moment.").arg(path));
        throw VbError(VbErr::NotDatabaseFormat,
                      QStringLiteral("Unrecognized database format '%1'. %2").arg(path, sqliteMessage(db)));
    }
    return result;
}

std::shared_ptr<Database> Database::create(const QString &path)
{
    sqlite3 *db = nullptr;
    const int rc = sqlite3_open_v2(path.toUtf8().constData(), &db,
                                   SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_NOMUTEX, nullptr);
    if (rc != SQLITE_OK) {
        const QString msg = db ? sqliteMessage(db) : QStringLiteral("out of memory");
        sqlite3_close_v2(db);
        throw VbError(legacyNumber(rc, msg), QStringLiteral("Cannot create database '%1'. %2").arg(path, msg));
    }
    return std::shared_ptr<Database>(new Database(path, db));
}

void Database::raiseLastError(const QString &context) const
{
    const QString msg = sqliteMessage(m_db);
    const int number = legacyNumber(sqlite3_extended_errcode(m_db), msg);
    QString text = msg;
    if (number == VbErr::SyntaxError)
        text = QStringLiteral("Syntax error in query expression '%1'. (%2)").arg(context, msg);
    else if (number == VbErr::DuplicateKey)
        text = QStringLiteral("The changes you requested to the table were not successful because they would "
                              "create duplicate values in the index, primary key, or relationship. (%1)").arg(msg);
    else if (number == VbErr::InputTableNotFound)
        text = QStringLiteral("The Microsoft Jet database engine cannot find the input table or query. (%1)").arg(msg);
    else if (number == VbErr::TooFewParameters)
        text = QStringLiteral("Too few parameters. (%1)").arg(msg);
    else if (number == VbErr::DataTypeMismatch)
        text = QStringLiteral("Data type mismatch in criteria expression. (%1)").arg(msg);
    else if (number == VbErr::CurrentlyLocked)
        text = lockedText(m_path);
    else if (!context.isEmpty())
        text = QStringLiteral("%1 [%2]").arg(msg, context);
    throw VbError(number, text);
}

//! What a statement does to the open recordsets of the connection: a write must not meet a read
//! still going on (the read's snapshot could not become a write when another program has written
//! since), and a schema change must also forget the result shapes.
enum class StatementKind { Read, Write, Schema };
static StatementKind kindOfStatement(const QString &sql)
{
    const QString head = sql.trimmed().left(7).toUpper();
    if (head.startsWith(QLatin1String("SELECT")) || head.startsWith(QLatin1String("PRAGMA")))
        return StatementKind::Read;
    if (head.startsWith(QLatin1String("INSERT")) || head.startsWith(QLatin1String("UPDATE"))
        || head.startsWith(QLatin1String("DELETE")) || head.startsWith(QLatin1String("WITH")))
        return StatementKind::Write;
    return StatementKind::Schema;
}

bool Database::readsCanWait()
{
    if (m_cache->writeAheadLog < 0) {
        sqlite3_stmt *raw = nullptr;
        m_cache->writeAheadLog = 0;
        if (sqlite3_prepare_v2(m_db, "PRAGMA journal_mode", -1, &raw, nullptr) == SQLITE_OK) {
            const OwnedStatement stmt(raw);
            m_cache->writeAheadLog = sqlite3_step(raw) == SQLITE_ROW
                                     && qstricmp(reinterpret_cast<const char *>(sqlite3_column_text(raw, 0)), "wal") == 0;
        }
    }
    return m_cache->writeAheadLog == 1;
}

void Database::beforeStatement(const QString &sql)
{
    if (sql.trimmed().startsWith(QLatin1String("PRAGMA"), Qt::CaseInsensitive))
        m_cache->writeAheadLog = -1;   // the journal mode may change
    const StatementKind kind = kindOfStatement(sql);
    if (kind != StatementKind::Read)
        finishReading();
    if (kind == StatementKind::Schema)
        m_cache->shapes.clear();
}

void Database::readingStarted(Recordset *rs)
{
    if (!m_cache->reading.contains(rs))
        m_cache->reading.append(rs);
}

void Database::readingStopped(Recordset *rs) { m_cache->reading.removeOne(rs); }

std::shared_ptr<const RecordsetShape> Database::shapeOf(const QByteArray &sql) const
{
    return m_cache->shapes.value(sql);
}

void Database::keepShape(const QByteArray &sql, std::shared_ptr<const RecordsetShape> shape)
{
    if (m_cache->shapes.size() >= 4 * kStatementCacheLimit)
        m_cache->shapes.clear();
    m_cache->shapes.insert(sql, std::move(shape));
}

void Database::finishReading()
{
    while (!m_cache->reading.isEmpty())
        m_cache->reading.first()->fetchAll();   // each one leaves the list when its statement ends
}

sqlite3_stmt *Database::prepareOne(const QByteArray &sql, const QString &context)
{
    sqlite3_stmt *stmt = nullptr;
    if (prepareFirst(m_db, sql, &stmt, context) != SQLITE_OK)
        raiseLastError(context);
    return stmt;
}

int Database::runOne(const QByteArray &sql, const QString &context)
{
    const OwnedStatement stmt(prepareOne(sql, context));
    if (!stmt)
        return 0;
    int rc;
    while ((rc = sqlite3_step(stmt.get())) == SQLITE_ROW) {
    }
    if (rc != SQLITE_DONE)
        raiseLastError(context);
    return sqlite3_changes(m_db);
}

void Database::executeNative(const QString &sqliteSql)
{
    beforeStatement(sqliteSql);
    runOne(sqliteSql.toUtf8(), sqliteSql);
}

int Database::Execute(const QString &jetSql, bool failOnError)
{
    beforeStatement(jetSql);
    const QString sql = translateJetSql(jetSql);
    const QByteArray utf8 = sql.toUtf8();
    // Without failOnError DAO still raises on a statement it cannot run at all; what it forgives is
    // a row that violates a rule, which SQLite's OR IGNORE conflict clause reproduces row by row.
    QByteArray text = utf8;
    if (!failOnError) {
        const QByteArray head = utf8.trimmed().left(7).toUpper();
        if (head.startsWith("INSERT ") )
            text = "INSERT OR IGNORE " + utf8.trimmed().mid(7);
        else if (head.startsWith("UPDATE "))
            text = "UPDATE OR IGNORE " + utf8.trimmed().mid(7);
    }
    m_recordsAffected = runOne(text, jetSql);
    return m_recordsAffected;
}

bool Database::shareWithOtherPrograms()
{
    sqlite3_stmt *raw = nullptr;
    if (sqlite3_prepare_v2(m_db, "PRAGMA journal_mode=WAL", -1, &raw, nullptr) != SQLITE_OK)
        return false;
    const OwnedStatement stmt(raw);
    m_cache->writeAheadLog = -1;
    return sqlite3_step(raw) == SQLITE_ROW
           && qstricmp(reinterpret_cast<const char *>(sqlite3_column_text(raw, 0)), "wal") == 0;
}

qint64 Database::reserveAutonumber(const QString &table, const QString &keyColumn)
{
    const QString t = QString(table).replace(QLatin1Char('"'), QLatin1String("\"\""));
    const QString k = QString(keyColumn).replace(QLatin1Char('"'), QLatin1String("\"\""));
    int autoIncrement = 0;
    sqlite3_table_column_metadata(m_db, nullptr, table.toUtf8().constData(), keyColumn.toUtf8().constData(), nullptr,
                                  nullptr, nullptr, nullptr, &autoIncrement);
    auto scalar = [&](const QString &sql, qint64 bound) {
        const OwnedStatement stmt(prepareOne(sql.toUtf8(), table));
        const QByteArray name = table.toUtf8();
        const int parameters = sqlite3_bind_parameter_count(stmt.get());
        if (parameters > 0)
            sqlite3_bind_text(stmt.get(), 1, name.constData(), static_cast<int>(name.size()), SQLITE_TRANSIENT);
        if (parameters > 1)
            sqlite3_bind_int64(stmt.get(), 2, bound);
        const int rc = sqlite3_step(stmt.get());
        if (rc != SQLITE_ROW && rc != SQLITE_DONE)
            raiseLastError(table);
        return rc == SQLITE_ROW ? sqlite3_column_int64(stmt.get(), 0) : qint64(sqlite3_changes(m_db));
    };
    if (!autoIncrement)
        return scalar(QStringLiteral("SELECT coalesce(max(\"%1\"), 0) + 1 FROM \"%2\"").arg(k, t), 0);
    // The read and the write of the counter are one transaction under the write lock, so that two
    // programs cannot both read the same number.
    Transaction reservation(*this);
    const qint64 next = scalar(QStringLiteral("SELECT max(coalesce((SELECT seq FROM sqlite_sequence WHERE name = ?1), 0), "
                                              "coalesce((SELECT max(\"%1\") FROM \"%2\"), 0)) + 1").arg(k, t), 0);
    if (scalar(QStringLiteral("UPDATE sqlite_sequence SET seq = ?2 WHERE name = ?1"), next) == 0)
        scalar(QStringLiteral("INSERT INTO sqlite_sequence (name, seq) VALUES (?1, ?2)"), next);
    reservation.commit();
    return next;
}

Database::Transaction::Transaction(Database &db) : m_db(db)
{
    if (!sqlite3_get_autocommit(db.m_db))
        return;
    db.finishReading();   // a read still going on could not become the transaction's write
    db.runOne("BEGIN IMMEDIATE", QStringLiteral("BEGIN"));
    m_active = true;
}

Database::Transaction::~Transaction()
{
    if (m_active) {
        m_db.finishReading();   // a rollback would cut short the reads begun inside the transaction
        sqlite3_exec(m_db.m_db, "ROLLBACK", nullptr, nullptr, nullptr);
    }
}

void Database::Transaction::commit()
{
    if (!m_active)
        return;
    m_db.runOne("COMMIT", QStringLiteral("COMMIT"));
    m_active = false;
}

std::unique_ptr<Recordset> Database::OpenRecordset(const QString &source, RecordsetType type)
{
    const QString trimmed = source.trimmed();
    SqlText sql;
    SqlValues params;
    // A bare table name opens the whole table, as DAO does.
    const bool isName = !trimmed.isEmpty() && !trimmed.contains(QLatin1Char(' ')) && !trimmed.contains(QLatin1Char('('));
    if (isName) {
        QString name = trimmed;
        if (name.startsWith(QLatin1Char('[')) && name.endsWith(QLatin1Char(']')))
            name = name.mid(1, name.size() - 2);
        if (!hasTable(name))
            throw VbError(VbErr::InputTableNotFound,
                          QStringLiteral("The Microsoft Jet database engine cannot find the input table or query '%1'.").arg(name));
        sql.text = QStringLiteral("SELECT * FROM \"%1\"").arg(name);
        sql.utf8 = sql.text.toUtf8();
    } else {
        sql = translatedSelect(trimmed, params);
    }
    std::unique_ptr<Recordset> rs(new Recordset(this, source, std::move(sql), type));
    rs->m_params = std::move(params);
    rs->load();
    return rs;
}

SqlText Database::translatedSelect(const QString &jetSql, SqlValues &params)
{
    // Statements that differ only in the numbers they compare share a translation and a prepared
    // statement; the numbers are bound.
    SqlParameters &taken = m_cache->taken;
    takeComparedNumbers(jetSql, taken);
    SqlText sql = translated(taken.templateText, static_cast<int>(taken.values.size()));
    if (sql.text.isNull()) {
        params.clear();
        return translated(jetSql, 0);
    }
    params = std::move(taken.values);
    return sql;
}

QString Database::lookupSql(const QString &table, const QString &field, const QString &criteria)
{
    const QString sql = QStringLiteral("SELECT [%1] FROM [%2]").arg(field, table);
    return QStringView(criteria).trimmed().isEmpty() ? sql : sql + QStringLiteral(" WHERE ") + criteria;
}

sqlite3_stmt *Database::lookupStatement(const QString &table, const QString &field, const QString &criteria, SqlValues &params,
                                       SqlText &sql)
{
    // Lookups run by the thousand in calculations and lists, mostly with the same table, field and
    // criteria but other numbers. Only the criteria can hold numbers, so only they are read for them,
    // and the statement is found by table, field and the criteria without their numbers.
    SqlParameters &taken = m_cache->taken;
    takeComparedNumbers(criteria, taken);
    params = std::move(taken.values);
    auto &last = m_cache->lastLookup;
    // A lookup repeated with other numbers is compared piece by piece, without making its key.
    if (table != last.table || field != last.field || taken.templateText != last.criteria) {
        const QString key = table + QChar(0) + field + QChar(0) + taken.templateText;
        auto it = m_cache->lookups.constFind(key);
        if (it == m_cache->lookups.constEnd()) {
            Cache::Lookup made{translated(lookupSql(table, field, taken.templateText), static_cast<int>(params.size())), nullptr};
            // One that does not prepare is prepared each time from the shared statements, which report why.
            if (!made.sql.text.isNull())
                prepareFirst(m_db, made.sql.utf8, &made.stmt, made.sql.text);
            if (m_cache->lookups.size() >= 4 * kStatementCacheLimit)
                m_cache->clearLookups();
            it = m_cache->lookups.insert(key, made);
        }
        last.table = table;
        last.field = field;
        last.criteria = QString(taken.templateText.constData(), taken.templateText.size());   // the template is a reused buffer
        last.lookup = it.value();
    }
    if (last.lookup.sql.text.isNull()) {   // the numbers could not be taken out: the statement with its numbers
        params.clear();
        sql = translated(lookupSql(table, field, criteria), 0);
        return nullptr;
    }
    sql = last.lookup.sql;
    return last.lookup.stmt;
}

SqlText Database::translated(const QString &jetSql, int parameters)
{
    // Windows and lookups open the same few statements over and over: each is translated once.
    auto it = m_cache->translations.constFind(jetSql);
    if (it != m_cache->translations.constEnd())
        return it.value();
    SqlText sql{translateJetSql(jetSql), {}};
    if (parameters > 0 && !markersToParameters(sql.text, parameters))
        sql.text = QString();   // the caller translates the statement with its numbers instead
    sql.utf8 = sql.text.toUtf8();
    if (m_cache->translations.size() >= 4 * kStatementCacheLimit)
        m_cache->translations.clear();
    m_cache->translations.insert(QString(jetSql.constData(), jetSql.size()), sql);   // jetSql may be a reused buffer
    return sql;
}

const Database::TableInfo *Database::tableInfo(const QString &table)
{
    const QString lower = table.toLower();
    auto it = m_cache->tables.constFind(lower);
    if (it != m_cache->tables.constEnd())
        return &it.value();
    TableInfo info;
    sqlite3_stmt *stmt = nullptr;
    const QByteArray sql = QStringLiteral("PRAGMA table_info(\"%1\")").arg(table).toUtf8();
    if (sqlite3_prepare_v2(m_db, sql.constData(), -1, &stmt, nullptr) == SQLITE_OK) {
        int keyCount = 0;
        QString keyName;
        QString keyType;
        while (sqlite3_step(stmt) == SQLITE_ROW) {
            info.exists = true;
            const QString name = QString::fromUtf8(reinterpret_cast<const char *>(sqlite3_column_text(stmt, 1)));
            const QString type = QString::fromUtf8(reinterpret_cast<const char *>(sqlite3_column_text(stmt, 2)));
            info.columns << name;
            info.types.insert(name.toLower(), type.toUpper());
            if (sqlite3_column_int(stmt, 5) > 0) {
                ++keyCount;
                keyName = name;
                keyType = type.toUpper();
            }
        }
        // Only an INTEGER PRIMARY KEY is the rowid itself; anything else is reached through the rowid.
        if (keyCount == 1 && keyType == QLatin1String("INTEGER"))
            info.key = keyName;
    }
    sqlite3_finalize(stmt);
    if (!info.exists) {
        // A view has columns too, but is not a table that can take a key.
        return &*m_cache->tables.insert(lower, info);
    }
    return &*m_cache->tables.insert(lower, info);
}

QString Database::primaryKeyOf(const QString &table) { return tableInfo(table)->key; }

bool Database::hasTable(const QString &table) { return tableInfo(table)->exists; }

QString Database::columnType(const QString &table, const QString &column)
{
    return tableInfo(table)->types.value(column.toLower());
}

QStringList Database::columnsOf(const QString &table) { return tableInfo(table)->columns; }

void Database::clearSchemaCache()
{
    m_cache->tables.clear();
    m_cache->shapes.clear();
}


int Database::prepareCached(const QByteArray &sql, sqlite3_stmt **out)
{
    *out = nullptr;
    const auto it = m_cache->statements.constFind(sql);
    if (it != m_cache->statements.constEnd()) {
        bool &busy = m_cache->inUse[it.value()];
        if (!busy) {
            busy = true;
            *out = it.value();
            return SQLITE_OK;
        }
    }
    const int rc = prepareFirst(m_db, sql, out, QString::fromUtf8(sql));
    if (rc != SQLITE_OK || it != m_cache->statements.constEnd())
        return rc;   // a failure, or a second user of a statement in use: not cached
    if (m_cache->statements.size() >= kStatementCacheLimit) {
        // Forget the statements nobody holds; the busy ones stay until they are handed back.
        for (auto e = m_cache->statements.begin(); e != m_cache->statements.end();) {
            if (m_cache->inUse.value(e.value())) {
                ++e;
                continue;
            }
            m_cache->inUse.remove(e.value());
            sqlite3_finalize(e.value());
            e = m_cache->statements.erase(e);
        }
    }
    m_cache->statements.insert(sql, *out);
    m_cache->inUse.insert(*out, true);
    return rc;
}

void Database::releaseCached(sqlite3_stmt *stmt)
{
    if (!stmt)
        return;
    const auto busy = m_cache->inUse.find(stmt);
    if (busy == m_cache->inUse.end()) {
        sqlite3_finalize(stmt);
        return;
    }
    // Every use binds all of a statement's parameters, so the old values need no clearing.
    sqlite3_reset(stmt);
    busy.value() = false;
}
