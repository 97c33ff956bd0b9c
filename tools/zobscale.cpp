// SPDX-License-Identifier: MIT
// zobscale <seeded.sqlite> <out.sqlite> <factor> [seed]: makes a database <factor> times the seeded one.
//
// Every reference table of the list below holds <factor> copies of its seeded rows: copy k of a row
// has key + k * (largest seeded key), and every link to a scaled table points to copy k of the row it
// named, so that links stay valid inside each copy. Names get " #k" so that copies can be told apart,
// and measured values vary by up to 10% around the seeded ones. The user's tables, empty in the seed,
// get <factor> units of work: 10 projects of 2 scenarios each (wildlife, diet, diet items and the three
// intake rows, each from a species of the reference data), one user and three comments. The same
// seed number gives the same database.
#include <QByteArray>
#include <QFile>
#include <QHash>
#include <QList>
#include <QString>
#include <QVariant>
#include <QStringList>

#include <sqlite3.h>

#include <cstdint>
#include <cstdio>
#include <stdexcept>

namespace {

//! The reference tables that grow with the factor.
const char *const kScaled[] = {
    "tblSpecies", "jtblSpeciesReference", "tblWeight", "tblDiet", "tblDietItem", "tblGrossEnergy", "tblAE",
    "tblWaterConversion", "tblTrophicLevel", "tblIntakeModel", "tblIntakeMeasured", "tblSoilIngestion",
    "tblReferences", "tblLIFEHISTORYTEXT", "tblPOPDENS", "tblSEASON", "tblKingdom", "tblSubkingdom", "tblPhylum",
    "tblClass", "tblOrder", "tblFamily", "tblGenus", "tblStateProvince"};

//! Text columns that name a row: copies get " #k" after them.
const char *const kNameColumns[] = {"Common", "Latin", "Name", "Item", "Description", "ConsumerName", "FoodName",
                                    "fldRef_Author", "fldRef_Title", "LIFEHIST_TEXT", "Species", "Location"};

//! Columns holding a reference id under another name.
bool isReferenceLink(const QString &column)
{
    return column.startsWith(QLatin1String("Ref"), Qt::CaseInsensitive)
        || column.startsWith(QLatin1String("GenRef"), Qt::CaseInsensitive);
}

struct Rng {
    std::uint64_t state;
    std::uint64_t next()
    {
        std::uint64_t z = (state += 0x9E3779B97F4A7C15ull);
        z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ull;
        z = (z ^ (z >> 27)) * 0x94D049BB133111EBull;
        return z ^ (z >> 31);
    }
    int below(int n) { return n <= 0 ? 0 : static_cast<int>(next() % static_cast<std::uint64_t>(n)); }
};

class Db {
public:
    explicit Db(sqlite3 *h) : m_h(h) {}
    void exec(const QString &sql)
    {
        char *err = nullptr;
        if (sqlite3_exec(m_h, sql.toUtf8().constData(), nullptr, nullptr, &err) != SQLITE_OK) {
            const QString msg = QString::fromUtf8(err ? err : sqlite3_errmsg(m_h));
            sqlite3_free(err);
            throw std::runtime_error(qPrintable(msg + QStringLiteral(" in ") + sql.left(200)));
        }
    }
    sqlite3 *handle() const { return m_h; }
    sqlite3_stmt *prepare(const QString &sql)
    {
        sqlite3_stmt *st = nullptr;
        if (sqlite3_prepare_v2(m_h, sql.toUtf8().constData(), -1, &st, nullptr) != SQLITE_OK)
            throw std::runtime_error(qPrintable(QString::fromUtf8(sqlite3_errmsg(m_h)) + QStringLiteral(" in ") + sql));
        return st;
    }
    QList<QList<QVariant>> rows(const QString &sql)
    {
        sqlite3_stmt *st = prepare(sql);
        QList<QList<QVariant>> out;
        while (sqlite3_step(st) == SQLITE_ROW) {
            QList<QVariant> r;
            for (int i = 0; i < sqlite3_column_count(st); ++i) {
                switch (sqlite3_column_type(st, i)) {
                case SQLITE_NULL: r << QVariant(); break;
                case SQLITE_INTEGER: r << QVariant(static_cast<qlonglong>(sqlite3_column_int64(st, i))); break;
                case SQLITE_FLOAT: r << QVariant(sqlite3_column_double(st, i)); break;
                default: r << QVariant(QString::fromUtf8(reinterpret_cast<const char *>(sqlite3_column_text(st, i))));
                }
            }
            out << r;
        }
        sqlite3_finalize(st);
        return out;
    }
    qint64 number(const QString &sql)
    {
        const auto r = rows(sql);
        return r.isEmpty() || r[0].isEmpty() ? 0 : r[0][0].toLongLong();
    }

private:
    sqlite3 *m_h;
};

struct Column {
    QString name;
    QString type;
    bool key = false;
};

QList<Column> columnsOf(Db &db, const QString &table)
{
    QList<Column> out;
    for (const auto &r : db.rows(QStringLiteral("PRAGMA table_info(\"%1\")").arg(table)))
        out << Column{r[1].toString(), r[2].toString().toUpper(), r[5].toInt() > 0 && r[2].toString().toUpper() == QLatin1String("INTEGER")};
    return out;
}

//! Adds copies 1..factor-1 of every scaled table's seeded rows.
void scaleReference(Db &db, int factor, std::uint64_t seed)
{
    // The key column and largest key of each scaled table with a key: the step between copies.
    QHash<QString, qint64> stepOfKey;   // key column (lower case) -> step
    QHash<QString, QList<Column>> columns;
    for (const char *t : kScaled) {
        const QString table = QLatin1String(t);
        columns[table] = columnsOf(db, table);
        for (const Column &c : columns[table])
            if (c.key)
                stepOfKey[c.name.toLower()] = std::max<qint64>(1, db.number(QStringLiteral("SELECT max(\"%1\") FROM \"%2\"").arg(c.name, table)));
    }
    const qint64 referenceStep = stepOfKey.value(QStringLiteral("referenceid"));
    for (const char *t : kScaled) {
        const QString table = QLatin1String(t);
        db.exec(QStringLiteral("CREATE TEMP TABLE seedrows AS SELECT * FROM \"%1\"").arg(table));
        QStringList names, exprs;
        for (const Column &c : columns[table]) {
            const QString q = QStringLiteral("\"%1\"").arg(c.name);
            names << q;
            qint64 step = stepOfKey.value(c.name.toLower());
            if (!step && isReferenceLink(c.name) && c.type == QLatin1String("INTEGER"))
                step = referenceStep;
            bool named = false;
            for (const char *n : kNameColumns)
                named = named || c.name.compare(QLatin1String(n), Qt::CaseInsensitive) == 0;
            if (step)
                exprs << QStringLiteral("CASE WHEN %1 > 0 THEN %1 + :k * %2 ELSE %1 END").arg(q).arg(step);
            else if (named && c.type.startsWith(QLatin1String("TEXT")))
                exprs << QStringLiteral("CASE WHEN %1 IS NULL THEN NULL ELSE %1 || ' #' || :k END").arg(q);
            else if (c.type == QLatin1String("REAL"))
                exprs << QStringLiteral("%1 * (0.9 + zobvary(:seed, :k, rowid) * 0.2)").arg(q);
            else
                exprs << q;
        }
        const QString sql = QStringLiteral("INSERT INTO \"%1\" (%2) SELECT %3 FROM temp.seedrows ORDER BY rowid")
                                .arg(table, names.join(QLatin1Char(',')), exprs.join(QLatin1Char(',')));
        sqlite3_stmt *st = db.prepare(sql);
        for (int k = 1; k < factor; ++k) {
            const int kIndex = sqlite3_bind_parameter_index(st, ":k");
            const int sIndex = sqlite3_bind_parameter_index(st, ":seed");
            if (kIndex)
                sqlite3_bind_int(st, kIndex, k);
            if (sIndex)
                sqlite3_bind_int64(st, sIndex, static_cast<sqlite3_int64>(seed));
            if (sqlite3_step(st) != SQLITE_DONE) {
                const QString msg = QString::fromUtf8(sqlite3_errmsg(db.handle()));
                sqlite3_finalize(st);
                throw std::runtime_error(qPrintable(msg + QStringLiteral(" in ") + table));
            }
            sqlite3_reset(st);
        }
        sqlite3_finalize(st);
        db.exec(QStringLiteral("DROP TABLE temp.seedrows"));
    }
}

//! A number in [0, 1) fixed by (seed, copy, row): the variation of a measured value.
void zobvary(sqlite3_context *ctx, int, sqlite3_value **argv)
{
    Rng r{static_cast<std::uint64_t>(sqlite3_value_int64(argv[0])) * 1000003u
          + static_cast<std::uint64_t>(sqlite3_value_int64(argv[1])) * 7919u
          + static_cast<std::uint64_t>(sqlite3_value_int64(argv[2]))};
    sqlite3_result_double(ctx, static_cast<double>(r.next() >> 11) / 9007199254740992.0);
}

QString quoted(const QString &s) { return QLatin1Char('\'') + QString(s).replace(QLatin1Char('\''), QLatin1String("''")) + QLatin1Char('\''); }

//! Fills the user's tables with <factor> units of projects, scenarios, users and comments.
void addUserWork(Db &db, int factor, std::uint64_t seed)
{
    Rng rng{seed};
    const auto species = db.rows(QStringLiteral("SELECT SpeciesID, Common, Latin FROM tblSpecies ORDER BY SpeciesID"));
    const auto provinces = db.rows(QStringLiteral("SELECT StateProvinceID FROM tblStateProvince ORDER BY StateProvinceID"));
    QHash<qint64, QList<qint64>> dietsOf, weightsOf;
    for (const auto &r : db.rows(QStringLiteral("SELECT SpeciesID, DietID FROM tblDiet ORDER BY DietID")))
        dietsOf[r[0].toLongLong()] << r[1].toLongLong();
    for (const auto &r : db.rows(QStringLiteral("SELECT SpeciesID, WeightID FROM tblWeight WHERE Mean > 0 ORDER BY WeightID")))
        weightsOf[r[0].toLongLong()] << r[1].toLongLong();
    QHash<qint64, QList<qint64>> modelsOfType;
    for (const auto &r : db.rows(QStringLiteral("SELECT IntakeTypeID, IntakeModelID FROM tblIntakeModel ORDER BY IntakeModelID")))
        modelsOfType[r[0].toLongLong()] << r[1].toLongLong();
    if (species.isEmpty() || provinces.isEmpty())
        throw std::runtime_error("the seeded database has no species or provinces");

    qint64 scenario = db.number(QStringLiteral("SELECT coalesce(max(ScenarioID), 0) FROM tblScenario"));
    qint64 project = db.number(QStringLiteral("SELECT coalesce(max(ProjectID), 0) FROM tblProject"));
    for (int unit = 0; unit < factor; ++unit) {
        const QString user = QStringLiteral("user%1").arg(unit + 1, 3, 10, QLatin1Char('0'));
        db.exec(QStringLiteral("INSERT INTO tblUser (User, Name, Department, City, Country) VALUES (%1, %2, 'Risk assessment', 'Ottawa', 'Canada')")
                    .arg(quoted(user), quoted(QStringLiteral("Assessor %1").arg(unit + 1))));
        const qint64 userId = db.number(QStringLiteral("SELECT last_insert_rowid()"));
        for (int c = 0; c < 3; ++c)
            db.exec(QStringLiteral("INSERT INTO tblComments (UserID, Comment) VALUES (%1, %2)")
                        .arg(userId)
                        .arg(quoted(QStringLiteral("Comment %1 of %2").arg(c + 1).arg(user))));
        for (int p = 0; p < 10; ++p) {
            ++project;
            const QString date = QStringLiteral("20%1-%2-%3 10:%4:00")
                                     .arg(10 + rng.below(15))
                                     .arg(1 + rng.below(12), 2, 10, QLatin1Char('0'))
                                     .arg(1 + rng.below(28), 2, 10, QLatin1Char('0'))
                                     .arg(rng.below(60), 2, 10, QLatin1Char('0'));
            db.exec(QStringLiteral("INSERT INTO tblProject (ProjectID, Name, Purpose, Author, Location, StateProvinceID, Path, FileName, LastSaved) "
                                   "VALUES (%1, %2, %3, %4, 'Site %5', %6, '/projects/%7', %8, '%9')")
                        .arg(project)
                        .arg(quoted(QStringLiteral("Project %1").arg(rng.below(1000000), 6, 10, QLatin1Char('0'))),
                             quoted(QStringLiteral("Exposure of wildlife at site %1").arg(project)), quoted(user))
                        .arg(rng.below(500))
                        .arg(provinces[rng.below(provinces.size())][0].toLongLong())
                        .arg(user, quoted(QStringLiteral("Project%1.zpj").arg(project)), date));
            for (int s = 0; s < 2; ++s) {
                ++scenario;
                db.exec(QStringLiteral("INSERT INTO tblScenario (ScenarioID, Scenario_Type, Scenario_FilePath, Scenario_FileName, Scenario_Added, "
                                       "Scenario_LastSaved, Scenario_CreatedBy, Scenario_ModifiedBy, Scenario_Identifier_1) VALUES "
                                       "(%1, 'Wildlife', '/projects/%2', 'Scenario%1.zsc', '%3', '%3', %4, %4, 'S%1')")
                            .arg(scenario)
                            .arg(user, date, quoted(user)));
                db.exec(QStringLiteral("INSERT INTO jtblProjectScenario (ProjectID, ScenarioID) VALUES (%1, %2)").arg(project).arg(scenario));
                const auto &sp = species[rng.below(species.size())];
                const qint64 sid = sp[0].toLongLong();
                const QList<qint64> diets = dietsOf.value(sid), weights = weightsOf.value(sid);
                const qint64 diet = diets.isEmpty() ? 0 : diets[rng.below(diets.size())];
                const qint64 weight = weights.isEmpty() ? 0 : weights[rng.below(weights.size())];
                db.exec(QStringLiteral("INSERT INTO tblWildlife (ScenarioID, SpeciesID, Common, Latin, WeightID, Weight, DietID, DietType) "
                                       "SELECT %1, %2, %3, %4, %5, (SELECT Mean FROM tblWeight WHERE WeightID = %5), %6, 0")
                            .arg(scenario)
                            .arg(sid)
                            .arg(quoted(sp[1].toString()), quoted(sp[2].toString()))
                            .arg(weight)
                            .arg(diet));
                db.exec(QStringLiteral("INSERT INTO tblContaminantScenario (ScenarioID) VALUES (%1)").arg(scenario));
                db.exec(QStringLiteral("INSERT INTO tblScenarioHeader (ScenarioID, Scenario_Created_By) VALUES (%1, %2)").arg(scenario).arg(quoted(user)));
                if (diet) {
                    db.exec(QStringLiteral("INSERT INTO tblWildlifeDiet (DietID, SpeciesID, DataTypeID, ReferenceID, MeasureTermID, DataSourceID, ScenarioID) "
                                           "SELECT DietID, SpeciesID, DataTypeID, ReferenceID, MeasureTermID, DataSourceID, %1 FROM tblDiet WHERE DietID = %2")
                                .arg(scenario)
                                .arg(diet));
                    db.exec(QStringLiteral("INSERT INTO tblWildlifeDietItems (ScenarioID, DietID, DietItemID, Name, WetValue, DryValue, Wet_Proportion, "
                                           "Dry_Proportion, WaterConversionID, TrophicLevelID, AEID, GrossEnergyID, DataSourceID) "
                                           "SELECT %1, DietID, DietItemID, Name, WetValue, DryValue, Wet_Proportion, Dry_Proportion, "
                                           "WaterConversionID, TrophicLevelID, AEID, GrossEnergyID, DataSourceID FROM tblDietItem WHERE DietID = %2")
                                .arg(scenario)
                                .arg(diet));
                }
                for (int type = 1; type <= 3; ++type) {
                    const QList<qint64> models = modelsOfType.value(type);
                    db.exec(QStringLiteral("INSERT INTO tblIntakeZOB (ScenarioID, IntakeTypeID, IntakeModelID, Derivation) VALUES (%1, %2, %3, 'Model')")
                                .arg(scenario)
                                .arg(type)
                                .arg(models.isEmpty() ? 0 : models[rng.below(models.size())]));
                }
            }
        }
    }
}

}  // namespace

int main(int argc, char *argv[])
{
    if (argc < 4 || argc > 5) {
        std::fprintf(stderr, "usage: zobscale <seeded database> <output database> <factor> [seed]\n");
        return 2;
    }
    const QString from = QString::fromLocal8Bit(argv[1]);
    const QString to = QString::fromLocal8Bit(argv[2]);
    const int factor = QByteArray(argv[3]).toInt();
    const std::uint64_t seed = argc == 5 ? QByteArray(argv[4]).toULongLong() : 1;
    if (factor < 1) {
        std::fprintf(stderr, "zobscale: the factor must be a whole number of at least 1\n");
        return 2;
    }
    const QString partial = to + QStringLiteral(".part");
    QFile::remove(partial);
    if (!QFile::copy(from, partial)) {
        std::fprintf(stderr, "zobscale: cannot copy %s\n", qPrintable(from));
        return 1;
    }
    QFile::setPermissions(partial, QFile::ReadOwner | QFile::WriteOwner);
    sqlite3 *handle = nullptr;
    if (sqlite3_open_v2(partial.toUtf8().constData(), &handle, SQLITE_OPEN_READWRITE, nullptr) != SQLITE_OK) {
        std::fprintf(stderr, "zobscale: cannot open %s\n", qPrintable(partial));
        return 1;
    }
    sqlite3_create_function(handle, "zobvary", 3, SQLITE_UTF8 | SQLITE_DETERMINISTIC, nullptr, zobvary, nullptr, nullptr);
    Db db(handle);
    int status = 0;
    try {
        db.exec(QStringLiteral("PRAGMA synchronous = OFF"));
        db.exec(QStringLiteral("BEGIN"));
        scaleReference(db, factor, seed);
        addUserWork(db, factor, seed);
        db.exec(QStringLiteral("COMMIT"));
        db.exec(QStringLiteral("VACUUM"));
    } catch (const std::exception &e) {
        std::fprintf(stderr, "zobscale: %s\n", e.what());
        status = 1;
    }
    sqlite3_close(handle);
    if (status == 0) {
        QFile::remove(to);
        if (!QFile::rename(partial, to))
            status = 1;
    }
    QFile::remove(partial);
    return status;
}
