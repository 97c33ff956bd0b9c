// SPDX-License-Identifier: MIT
#pragma once

#include "Session.h"

#include <QByteArray>
#include <QFile>
#include <QList>
#include <QTemporaryDir>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <vector>

#include <sqlite3.h>

//! A program folder holding a private copy of a database.
class CopiedHome {
public:
    explicit CopiedHome(const QString &database)
    {
        const QString copy = m_dir.filePath(QStringLiteral("ZOB.sqlite"));
        m_ok = QFile::copy(database, copy) && QFile::setPermissions(copy, QFile::ReadOwner | QFile::WriteOwner);
    }
    bool ok() const { return m_ok; }
    QString path() const { return m_dir.path(); }

private:
    QTemporaryDir m_dir;
    bool m_ok = false;
};

//! A session on a private copy of the seeded database, as every benchmark starts from.
class BenchSession {
public:
    BenchSession()
    {
        if (!m_home.ok()) {
            std::fprintf(stderr, "cannot copy %s\n", ZOB_SEED_DB);
            return;
        }
        session.home = m_home.path();
        session.openDatabase();
    }
    bool ok() const { return m_home.ok(); }
    Session session;

private:
    CopiedHome m_home{QStringLiteral(ZOB_SEED_DB)};
};

//! Runs f(i) for i in [0, n) and gives the mean time of one call in microseconds.
template <typename F>
double perCallMicros(int n, F &&f)
{
    const auto start = std::chrono::steady_clock::now();
    for (int i = 0; i < n; ++i)
        f(i);
    const auto end = std::chrono::steady_clock::now();
    return std::chrono::duration<double, std::micro>(end - start).count() / n;
}

//! The median of some times.
inline double benchMedian(std::vector<double> v)
{
    if (v.empty())
        return 0.0;
    std::sort(v.begin(), v.end());
    return (v[v.size() / 2] + v[(v.size() - 1) / 2]) / 2;
}

//! The time of one call of f in milliseconds.
template <typename F>
double benchMillis(F &&f)
{
    const auto start = std::chrono::steady_clock::now();
    f();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

//! Runs each statement on SQLite itself to its end, reading every column: what a program written on
//! the C interface would do to show the same rows.
inline void replayStatements(sqlite3 *db, const QList<QByteArray> &statements)
{
    volatile qint64 sink = 0;
    for (const QByteArray &sql : statements) {
        sqlite3_stmt *st = nullptr;
        if (sqlite3_prepare_v2(db, sql.constData(), static_cast<int>(sql.size()), &st, nullptr) != SQLITE_OK)
            continue;
        const int n = sqlite3_column_count(st);
        while (sqlite3_step(st) == SQLITE_ROW)
            for (int i = 0; i < n; ++i)
                sink = sink + (sqlite3_column_type(st, i) == SQLITE_TEXT ? sqlite3_column_bytes(st, i) : sqlite3_column_int64(st, i));
        sqlite3_finalize(st);
    }
}

