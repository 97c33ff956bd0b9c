// SPDX-License-Identifier: MIT
#include "SeedLoader.h"

#include "VbError.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <sqlite3.h>

namespace {

[[noreturn]] void fail(const QString &message)
{
    throw VbError(VbErr::GenericDbError, message);
}

//! Column name -> declared type for a table, names compared without case. Empty when the table is missing.
QStringList tableColumns(sqlite3 *db, const QString &table)
{
    QStringList out;
    sqlite3_stmt *stmt = nullptr;
    const QByteArray sql = QStringLiteral("PRAGMA table_info([%1])").arg(table).toUtf8();
    if (sqlite3_prepare_v2(db, sql.constData(), -1, &stmt, nullptr) != SQLITE_OK)
        return out;
    while (sqlite3_step(stmt) == SQLITE_ROW) {
        out.append(QString::fromUtf8(reinterpret_cast<const char *>(sqlite3_column_text(stmt, 1))));
    }
    sqlite3_finalize(stmt);
    return out;
}

void exec(sqlite3 *db, const char *sql)
{
    char *err = nullptr;
    if (sqlite3_exec(db, sql, nullptr, nullptr, &err) != SQLITE_OK) {
        const QString message = QString::fromUtf8(err ? err : sqlite3_errmsg(db));
        sqlite3_free(err);
        fail(QStringLiteral("Seed: %1 failed: %2").arg(QLatin1String(sql), message));
    }
}

//! Loads one parsed file into its table with one prepared statement.
void loadTable(sqlite3 *db, const QString &fileName, const QString &table, const CsvTable &csv)
{
    const auto columns = tableColumns(db, table);
    if (columns.isEmpty())
        fail(QStringLiteral("Seed file %1: there is no table %2").arg(fileName, table));

    QStringList names;
    for (const QString &wanted : csv.header) {
        const QString name = wanted.trimmed();
        auto it = std::find_if(columns.begin(), columns.end(),
                               [&](const QString &c) { return c.compare(name, Qt::CaseInsensitive) == 0; });
        if (it == columns.end())
            fail(QStringLiteral("Seed file %1: table %2 has no column \"%3\"").arg(fileName, table, name));
        if (names.contains(*it, Qt::CaseInsensitive))
            fail(QStringLiteral("Seed file %1: column \"%2\" appears twice").arg(fileName, name));
        names.append(*it);
    }

    QStringList quoted;
    for (const QString &n : names)
        quoted.append(QLatin1Char('[') + n + QLatin1Char(']'));
    const QString sql = QStringLiteral("INSERT INTO [%1] (%2) VALUES (%3)")
                            .arg(table, quoted.join(QLatin1Char(',')),
                                 QStringList(names.size(), QStringLiteral("?")).join(QLatin1Char(',')));
    sqlite3_stmt *stmt = nullptr;
    if (sqlite3_prepare_v2(db, sql.toUtf8().constData(), -1, &stmt, nullptr) != SQLITE_OK)
        fail(QStringLiteral("Seed file %1: %2").arg(fileName, QString::fromUtf8(sqlite3_errmsg(db))));

    for (qsizetype r = 0; r < csv.rows.size(); ++r) {
        const QStringList &row = csv.rows.at(r);
        sqlite3_reset(stmt);
        sqlite3_clear_bindings(stmt);
        for (qsizetype c = 0; c < row.size(); ++c) {
            const QString &value = row.at(c);
            if (value.isNull()) {
                sqlite3_bind_null(stmt, int(c) + 1);
            } else {
                // Bound as text: the column's affinity turns numeric text into a number.
                const QByteArray bytes = value.toUtf8();
                sqlite3_bind_text(stmt, int(c) + 1, bytes.constData(), int(bytes.size()), SQLITE_TRANSIENT);
            }
        }
        if (sqlite3_step(stmt) != SQLITE_DONE) {
            const QString message = QString::fromUtf8(sqlite3_errmsg(db));
            const bool notNumber = sqlite3_extended_errcode(db) == SQLITE_CONSTRAINT_CHECK;
            sqlite3_finalize(stmt);
            // The number columns check their values; the failed check is named after its column.
            const QString column = message.section(QStringLiteral(": "), 1);
            const qsizetype c = names.indexOf(column, Qt::CaseInsensitive);
            if (notNumber && c >= 0)
                fail(QStringLiteral("Seed file %1, line %2: column \"%3\" holds \"%4\", which is not a number")
                         .arg(fileName).arg(csv.rowLines.at(r)).arg(column, row.at(c)));
            fail(QStringLiteral("Seed file %1, line %2: %3").arg(fileName).arg(csv.rowLines.at(r)).arg(message));
        }
    }
    sqlite3_finalize(stmt);
}

}  // namespace

CsvTable parseCsv(const QByteArray &utf8, const QString &sourceName)
{
    QString text = QString::fromUtf8(utf8);
    if (text.startsWith(QChar(0xFEFF)))
        text.remove(0, 1);

    CsvTable out;
    QStringList record;
    QString field;
    bool quoted = false;       // the current field began with a quote
    bool inQuotes = false;     // inside the quotes of the current field
    bool fieldStarted = false; // the current record has at least one character
    int line = 1;
    int recordLine = 1;

    auto endField = [&] {
        // An empty unquoted field is null; a quoted empty one is empty text.
        record.append(quoted ? field : (field.isEmpty() ? QString() : field));
        field = QString();
        quoted = false;
    };
    auto endRecord = [&] {
        endField();
        if (out.header.isEmpty()) {
            out.header = record;
        } else if (!(record.size() == 1 && record.first().isNull())) {  // blank lines are skipped
            if (record.size() != out.header.size())
                fail(QStringLiteral("Seed file %1, line %2: %3 fields where the header has %4")
                         .arg(sourceName).arg(recordLine).arg(record.size()).arg(out.header.size()));
            out.rows.append(record);
            out.rowLines.append(recordLine);
        }
        record.clear();
        fieldStarted = false;
    };

    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar ch = text.at(i);
        if (!fieldStarted) {
            recordLine = line;
            fieldStarted = true;
        }
        if (inQuotes) {
            if (ch == QLatin1Char('"')) {
                if (i + 1 < text.size() && text.at(i + 1) == QLatin1Char('"')) {
                    field.append(QLatin1Char('"'));
                    ++i;
                } else {
                    inQuotes = false;
                }
            } else {
                if (ch == QLatin1Char('\n'))
                    ++line;
                field.append(ch);
            }
            continue;
        }
        if (ch == QLatin1Char('"') && field.isEmpty() && !quoted) {
            quoted = true;
            inQuotes = true;
            field = QLatin1String("");
        } else if (ch == QLatin1Char(',')) {
            endField();
        } else if (ch == QLatin1Char('\r') && i + 1 < text.size() && text.at(i + 1) == QLatin1Char('\n')) {
            // the LF that follows ends the record
        } else if (ch == QLatin1Char('\n')) {
            endRecord();
            ++line;
        } else if (quoted) {
            fail(QStringLiteral("Seed file %1, line %2: text after a closing quote").arg(sourceName).arg(line));
        } else {
            field.append(ch);
        }
    }
    if (inQuotes)
        fail(QStringLiteral("Seed file %1, line %2: a quoted field is not closed").arg(sourceName).arg(recordLine));
    if (fieldStarted)
        endRecord();
    if (out.header.isEmpty())
        fail(QStringLiteral("Seed file %1: no header line").arg(sourceName));
    return out;
}

void loadSeed(sqlite3 *db, const QString &seedDir)
{
    const QDir dir(seedDir);
    if (!dir.exists())
        throw VbError(VbErr::PathNotFound, QStringLiteral("Seed folder %1 does not exist").arg(seedDir));
    const QStringList files = dir.entryList({QStringLiteral("*.csv")}, QDir::Files, QDir::Name);

    exec(db, "BEGIN");
    try {
        for (const QString &fileName : files) {
            QFile file(dir.filePath(fileName));
            if (!file.open(QIODevice::ReadOnly))
                throw VbError(VbErr::PathFileAccess, QStringLiteral("Cannot read seed file %1").arg(file.fileName()));
            const CsvTable csv = parseCsv(file.readAll(), fileName);
            loadTable(db, fileName, QFileInfo(fileName).completeBaseName(), csv);
        }
        exec(db, "COMMIT");
    } catch (...) {
        sqlite3_exec(db, "ROLLBACK", nullptr, nullptr, nullptr);
        throw;
    }
}
