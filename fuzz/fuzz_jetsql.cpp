// SPDX-License-Identifier: MIT
// Fuzz target of the Jet-SQL translator. For any text the translation either raises the syntax error
// 3075 or gives SQLite text that holds one statement (nothing after its `;`, no comment that hides
// the rest), no NUL, and at most a fixed multiple of the input's length. Text that SQLite accepts is
// prepared on an empty database with the program's schema, and a query is run there.
#include "JetSql.h"
#include "Schema.h"
#include "VbError.h"

#include <QString>

#include <sqlite3.h>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace {

[[noreturn]] void finding(const char *what, const QString &in, const QByteArray &out)
{
    std::fprintf(stderr, "FINDING: %s\n  input:  %s\n  output: %s\n", what, in.toUtf8().constData(), out.constData());
    std::abort();
}

sqlite3 *schemaDatabase()
{
    static sqlite3 *db = [] {
        sqlite3 *d = nullptr;
        sqlite3_open(":memory:", &d);
        createSchema(d);
        registerJetFunctions(d);
        // A statement that loops (a recursive query) is cut short, and none reaches another file or
        // changes the connection.
        sqlite3_progress_handler(d, 100000, [](void *) { return 1; }, nullptr);
        sqlite3_set_authorizer(
            d,
            [](void *, int action, const char *, const char *, const char *, const char *) {
                switch (action) {
                case SQLITE_ATTACH: case SQLITE_DETACH: case SQLITE_TRANSACTION: case SQLITE_SAVEPOINT:
                case SQLITE_PRAGMA:
                    return SQLITE_DENY;
                default:
                    return SQLITE_OK;
                }
            },
            nullptr);
        return d;
    }();
    return db;
}

// Where the text would go on after its statement: outside literals and names, a `;` followed by
// anything but blanks and `;`, or a comment, which would hide the rest of the statement.
const char *addedText(const QByteArray &sql)
{
    const qsizetype n = sql.size();
    bool ended = false;
    for (qsizetype i = 0; i < n; ++i) {
        const char c = sql[i];
        if (c == '\0')
            return "NUL in output";
        if (ended) {
            if (c != ';' && c != ' ' && (c < '\t' || c > '\r'))
                return "text after the statement";
            continue;
        }
        if (c == '\'' || c == '"' || c == '`') {
            for (++i; i < n && !(sql[i] == c && !(i + 1 < n && sql[i + 1] == c)); ++i)
                if (sql[i] == c)
                    ++i;  // a doubled quote
            continue;
        }
        if (c == '[') {
            while (i < n && sql[i] != ']')
                ++i;
            continue;
        }
        if ((c == '-' && i + 1 < n && sql[i + 1] == '-') || (c == '/' && i + 1 < n && sql[i + 1] == '*'))
            return "comment in output";
        if (c == ';')
            ended = true;
    }
    return nullptr;
}

void check(const QString &in, bool statement)
{
    QString out;
    try {
        out = statement ? translateJetSql(in) : translateJetCriteria(in);
    } catch (const VbError &e) {
        if (e.number() != VbErr::SyntaxError)
            finding("an error other than 3075", in, QByteArray::number(e.number()));
        return;
    }
    const QByteArray sql = out.toUtf8();
    if (out.size() > 40 * in.size() + 64)
        finding("output not linear in the input", in, sql.left(400));
    if (const char *what = addedText(sql))
        finding(what, in, sql);
    if (!statement)
        return;
    sqlite3 *db = schemaDatabase();
    sqlite3_stmt *stmt = nullptr;
    const char *tail = nullptr;
    if (sqlite3_prepare_v2(db, sql.constData(), int(sql.size()), &stmt, &tail) != SQLITE_OK || !stmt)
        return;
    for (const char *t = tail; t < sql.constData() + sql.size(); ++t)
        if (*t != ';' && *t != ' ' && (*t < '\t' || *t > '\r'))
            finding("SQLite reads a second statement", in, sql);
    // Queries run; statements that would change the database or the connection do not.
    if (sqlite3_stmt_readonly(stmt))
        for (int rows = 0; rows < 1000 && sqlite3_step(stmt) == SQLITE_ROW; ++rows) {
        }
    sqlite3_finalize(stmt);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QString in = QString::fromUtf8(reinterpret_cast<const char *>(data), qsizetype(size));
    check(in, true);
    check(in, false);
    return 0;
}
