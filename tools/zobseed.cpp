// SPDX-License-Identifier: MIT
// zobseed <seedDir> <out.sqlite>: builds the default database from the seed CSV files.
#include "Schema.h"
#include "SeedLoader.h"
#include "VbError.h"

#include <QCoreApplication>
#include <QFile>

#include <sqlite3.h>

#include <cstdio>

namespace {

void execOrThrow(sqlite3 *db, const char *sql)
{
    char *err = nullptr;
    if (sqlite3_exec(db, sql, nullptr, nullptr, &err) != SQLITE_OK) {
        const QString message = QString::fromUtf8(err ? err : sqlite3_errmsg(db));
        sqlite3_free(err);
        throw VbError(VbErr::GenericDbError, QStringLiteral("%1: %2").arg(QLatin1String(sql), message));
    }
}

}  // namespace

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    const QStringList args = app.arguments();
    if (args.size() != 3) {
        std::fprintf(stderr, "usage: zobseed <seed folder> <output database>\n");
        return 2;
    }
    const QString seedDir = args.at(1);
    const QString outPath = args.at(2);

    if (QFile::exists(outPath) && !QFile::remove(outPath)) {
        std::fprintf(stderr, "zobseed: cannot replace %s\n", qPrintable(outPath));
        return 1;
    }

    sqlite3 *db = nullptr;
    if (sqlite3_open_v2(outPath.toUtf8().constData(), &db, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr)
        != SQLITE_OK) {
        std::fprintf(stderr, "zobseed: cannot create %s: %s\n", qPrintable(outPath), sqlite3_errmsg(db));
        sqlite3_close(db);
        return 1;
    }
    int status = 0;
    try {
        execOrThrow(db, "PRAGMA journal_mode = DELETE");
        createSchema(db);
        loadSeed(db, seedDir);
        execOrThrow(db, "VACUUM");
    } catch (const VbError &e) {
        std::fprintf(stderr, "zobseed: %s\n", qPrintable(e.description()));
        status = 1;
    }
    sqlite3_close(db);
    if (status != 0)
        QFile::remove(outPath);  // never leave a half-built database for the build to pick up
    return status;
}
