// SPDX-License-Identifier: MIT
// An in-memory SQLite database with the program's schema, and small helpers to run and read SQL on it,
// for the tests of the schema, the seed loader and the built seed database.
#pragma once

#include "Schema.h"

#include <gtest/gtest.h>

#include <QString>

#include <sqlite3.h>

#include <memory>
#include <string>

struct SqliteCloser {
    void operator()(sqlite3 *db) const { sqlite3_close(db); }
};
using Db = std::unique_ptr<sqlite3, SqliteCloser>;

inline Db memoryDbWithSchema()
{
    sqlite3 *raw = nullptr;
    sqlite3_open(":memory:", &raw);
    Db db(raw);
    createSchema(db.get());
    return db;
}

inline void exec(sqlite3 *db, const char *sql)
{
    char *err = nullptr;
    const int rc = sqlite3_exec(db, sql, nullptr, nullptr, &err);
    const std::string message = err ? err : "";
    sqlite3_free(err);
    ASSERT_EQ(rc, SQLITE_OK) << sql << ": " << message;
}

//! First column of the first row as text; "<null>" for null, "<none>" without a row.
inline QString scalar(sqlite3 *db, const QString &sql)
{
    sqlite3_stmt *stmt = nullptr;
    if (sqlite3_prepare_v2(db, sql.toUtf8().constData(), -1, &stmt, nullptr) != SQLITE_OK)
        return QStringLiteral("<error: %1>").arg(QString::fromUtf8(sqlite3_errmsg(db)));
    QString out = QStringLiteral("<none>");
    if (sqlite3_step(stmt) == SQLITE_ROW) {
        out = sqlite3_column_type(stmt, 0) == SQLITE_NULL
                  ? QStringLiteral("<null>")
                  : QString::fromUtf8(reinterpret_cast<const char *>(sqlite3_column_text(stmt, 0)));
    }
    sqlite3_finalize(stmt);
    return out;
}
