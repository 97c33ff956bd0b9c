// SPDX-License-Identifier: MIT
// The CSV reader and the seed loader: quoting, nulls, and errors that name the file and the column.
#include "SchemaDb.h"
#include "SeedLoader.h"
#include "VbError.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace {

void writeFile(const QString &path, const QByteArray &content)
{
    QFile f(path);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write(content);
}

//! Loads `files` (name -> content) from a fresh folder; returns the error text, or "" on success.
QString loadFiles(sqlite3 *db, const QList<QPair<QString, QByteArray>> &files)
{
    QTemporaryDir dir;
    for (const auto &f : files)
        writeFile(dir.filePath(f.first), f.second);
    try {
        loadSeed(db, dir.path());
    } catch (const VbError &e) {
        return e.description();
    }
    return {};
}

}  // namespace

TEST(SeedCsv, QuotingNullsAndLineEnds)
{
    const QByteArray text = "\xEF\xBB\xBF" "a,b,c\r\n"
                            "1,\"x, y\",\"say \"\"hi\"\"\"\r\n"
                            "2,,\"\"\n"
                            "3,\"two\nlines\",z";
    const CsvTable t = parseCsv(text, QStringLiteral("t.csv"));
    ASSERT_EQ(t.header, QStringList({"a", "b", "c"}));
    ASSERT_EQ(t.rows.size(), 3);
    EXPECT_EQ(t.rows[0], QStringList({"1", "x, y", "say \"hi\""}));
    EXPECT_TRUE(t.rows[1][1].isNull());       // empty field: null
    EXPECT_FALSE(t.rows[1][2].isNull());      // quoted empty field: empty text
    EXPECT_TRUE(t.rows[1][2].isEmpty());
    EXPECT_EQ(t.rows[2][1], "two\nlines");
    EXPECT_EQ(t.rows[2][2], "z");             // last record without a line end
    EXPECT_EQ(t.rowLines, QList<int>({2, 3, 4}));
}

TEST(SeedCsv, MalformedInputIsRefusedWithTheLine)
{
    try {
        parseCsv("a,b\n1,2\n3\n", QStringLiteral("bad.csv"));
        FAIL() << "a short record was accepted";
    } catch (const VbError &e) {
        EXPECT_TRUE(e.description().contains("bad.csv")) << e.what();
        EXPECT_TRUE(e.description().contains("line 3")) << e.what();
    }
    EXPECT_THROW(parseCsv("a,b\n1,\"open\n", QStringLiteral("q.csv")), VbError);
    EXPECT_THROW(parseCsv("a,b\n1,\"x\"y\n", QStringLiteral("q.csv")), VbError);
}

TEST(SeedLoader, LoadsWithTheGivenIdsAndConvertsNumbers)
{
    const Db db = memoryDbWithSchema();
    const QString error = loadFiles(db.get(), {
        {"tblUnits.csv", "UnitsID,Description,Factor\n13,kg,0.001\n11,g,1\n"},
        {"tblReferences.csv", "ReferenceID,fldRef_Author,fldRef_Year,fldRef_Title,fldRef_Source,DataSourceID\n"
                              "204,\"Doe, J\",1999,\"A \"\"quoted\"\" title\",\"Src\",4\n"},
    });
    ASSERT_EQ(error, QString());
    EXPECT_EQ(scalar(db.get(), "SELECT typeof(Factor) || ' ' || Factor FROM tblUnits WHERE UnitsID = 13"), "real 0.001");
    EXPECT_EQ(scalar(db.get(), "SELECT typeof(UnitsID) FROM tblUnits WHERE Description = 'G'"), "integer");
    EXPECT_EQ(scalar(db.get(), "SELECT Reference FROM qryReference WHERE ReferenceID = 204"),
              "Doe, J. 1999. A \"quoted\" title. Src. ");
    // Later rows continue after the highest loaded id.
    sqlite3_exec(db.get(), "INSERT INTO tblReferences DEFAULT VALUES", nullptr, nullptr, nullptr);
    EXPECT_EQ(sqlite3_last_insert_rowid(db.get()), 205);
}

TEST(SeedLoader, ErrorsNameTheFileAndColumnAndLoadNothing)
{
    const Db db = memoryDbWithSchema();
    const QByteArray gender = "GenderID,Description\n4,Male\n";

    QString error = loadFiles(db.get(), {{"tblGender.csv", gender}, {"tblNoSuch.csv", "x\n1\n"}});
    EXPECT_TRUE(error.contains("tblNoSuch.csv")) << error.toStdString();

    error = loadFiles(db.get(), {{"tblGender.csv", gender}, {"tblUnits.csv", "UnitsID,Colour\n1,red\n"}});
    EXPECT_TRUE(error.contains("tblUnits.csv") && error.contains("Colour")) << error.toStdString();

    error = loadFiles(db.get(), {{"tblGender.csv", gender}, {"tblUnits.csv", "UnitsID,Factor\n1,a lot\n"}});
    EXPECT_TRUE(error.contains("tblUnits.csv") && error.contains("Factor") && error.contains("a lot"))
        << error.toStdString();

    error = loadFiles(db.get(), {{"tblGender.csv", gender + "4,Again\n"}});
    EXPECT_TRUE(error.contains("tblGender.csv") && error.contains("line 3")) << error.toStdString();

    // Every failure above rolled the whole load back, including the good file before it.
    EXPECT_EQ(scalar(db.get(), "SELECT count(*) FROM tblGender"), "0");

    try {
        loadSeed(db.get(), QStringLiteral("/nonexistent/seed"));
        FAIL() << "a missing folder was accepted";
    } catch (const VbError &e) {
        EXPECT_EQ(e.number(), VbErr::PathNotFound);
    }
}
