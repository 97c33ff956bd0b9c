// SPDX-License-Identifier: MIT
// zobgrow DB FACTOR: makes a reference database FACTOR times its size for benchmarks. Every row of the
// picker tables, the references and the diet items is copied FACTOR - 1 times under new keys (each copy
// keeps its classification, reference and data source), so that lists, filters and joins see as many
// rows as a large database would.
#include <sqlite3.h>

#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

namespace {
bool exec(sqlite3 *db, const std::string &sql)
{
    char *error = nullptr;
    if (sqlite3_exec(db, sql.c_str(), nullptr, nullptr, &error) != SQLITE_OK) {
        std::fprintf(stderr, "zobgrow: %s\n  in %s\n", error ? error : "?", sql.c_str());
        sqlite3_free(error);
        return false;
    }
    return true;
}

std::vector<std::string> columns(sqlite3 *db, const std::string &table)
{
    std::vector<std::string> out;
    sqlite3_stmt *st = nullptr;
    sqlite3_prepare_v2(db, ("PRAGMA table_info([" + table + "])").c_str(), -1, &st, nullptr);
    while (sqlite3_step(st) == SQLITE_ROW)
        out.emplace_back(reinterpret_cast<const char *>(sqlite3_column_text(st, 1)));
    sqlite3_finalize(st);
    return out;
}

long long maxKey(sqlite3 *db, const std::string &table, const std::string &key)
{
    sqlite3_stmt *st = nullptr;
    sqlite3_prepare_v2(db, ("SELECT Max([" + key + "]) FROM [" + table + "]").c_str(), -1, &st, nullptr);
    long long value = 0;
    if (sqlite3_step(st) == SQLITE_ROW)
        value = sqlite3_column_int64(st, 0);
    sqlite3_finalize(st);
    return value;
}
}  // namespace

int main(int argc, char **argv)
{
    if (argc != 3 || std::atoi(argv[2]) < 1) {
        std::fprintf(stderr, "usage: zobgrow DATABASE FACTOR\n");
        return 2;
    }
    const int factor = std::atoi(argv[2]);
    sqlite3 *db = nullptr;
    if (sqlite3_open_v2(argv[1], &db, SQLITE_OPEN_READWRITE, nullptr) != SQLITE_OK) {
        std::fprintf(stderr, "zobgrow: cannot open %s\n", argv[1]);
        return 1;
    }
    // Each table with its key, the first column.
    const char *tables[] = {"tblGrossEnergy", "tblAE", "tblWaterConversion", "tblTrophicLevel", "tblReferences",
                            "tblDietItem"};
    bool ok = exec(db, "BEGIN");
    for (const char *table : tables) {
        const std::vector<std::string> cols = columns(db, table);
        if (!ok || cols.empty())
            break;
        const long long top = maxKey(db, table, cols[0]);
        std::string names, values;
        for (size_t i = 0; i < cols.size(); ++i) {
            names += (i ? ", [" : "[") + cols[i] + "]";
            values += (i ? ", [" : "[") + cols[i] + "]";
        }
        for (int copy = 1; copy < factor && ok; ++copy) {
            const std::string shifted = "[" + cols[0] + "] + " + std::to_string(copy * (top + 1));
            std::string select = shifted + values.substr(values.find(','));
            ok = exec(db, "INSERT INTO [" + std::string(table) + "] (" + names + ") SELECT " + select + " FROM [" + table
                              + "] WHERE [" + cols[0] + "] <= " + std::to_string(top));
        }
    }
    ok = ok && exec(db, "COMMIT");
    sqlite3_close(db);
    return ok ? 0 : 1;
}
