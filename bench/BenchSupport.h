// SPDX-License-Identifier: MIT
#pragma once

#include "Session.h"

#include <QFile>
#include <QTemporaryDir>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <vector>

//! A session on a private copy of the seeded database, as every benchmark starts from.
class BenchSession {
public:
    BenchSession()
    {
        const QString db = m_dir.filePath(QStringLiteral("ZOB.sqlite"));
        m_ok = QFile::copy(QStringLiteral(ZOB_SEED_DB), db);
        if (!m_ok) {
            std::fprintf(stderr, "cannot copy %s\n", ZOB_SEED_DB);
            return;
        }
        QFile::setPermissions(db, QFile::ReadOwner | QFile::WriteOwner);
        session.home = m_dir.path();
        session.openDatabase();
    }
    bool ok() const { return m_ok; }
    Session session;

private:
    QTemporaryDir m_dir;
    bool m_ok = false;
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
