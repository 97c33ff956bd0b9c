// SPDX-License-Identifier: MIT
#include "Recordset.h"

#include "Database.h"
#include "JetSql.h"
#include "VbError.h"

#include <QDateTime>
#include <QScopeGuard>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <string>
#include <sqlite3.h>

namespace {

const QString kRowIdAlias = QStringLiteral("__zob_rowid");
const QString kDateFormat = QStringLiteral("yyyy-MM-dd HH:mm:ss");

enum class ColumnKind { Text, Integer, Real, Boolean, Date, Other };

ColumnKind kindOf(const QString &declType)
{
    const QString t = declType.toUpper();
    if (t.startsWith(QLatin1String("BOOL")) || t == QLatin1String("YESNO"))
        return ColumnKind::Boolean;
    if (t.startsWith(QLatin1String("DATE")) || t.startsWith(QLatin1String("TIME")))
        return ColumnKind::Date;
    if (t.contains(QLatin1String("INT")))
        return ColumnKind::Integer;
    if (t.contains(QLatin1String("REAL")) || t.contains(QLatin1String("FLOA")) || t.contains(QLatin1String("DOUB"))
        || t.contains(QLatin1String("NUM")) || t.contains(QLatin1String("DEC")) || t.contains(QLatin1String("SINGLE")))
        return ColumnKind::Real;
    if (t.contains(QLatin1String("CHAR")) || t.contains(QLatin1String("TEXT")) || t.contains(QLatin1String("CLOB"))
        || t.contains(QLatin1String("MEMO")))
        return ColumnKind::Text;
    return ColumnKind::Other;
}

//! The kind as far as readValue tells kinds apart (yes/no and dates), from a declared type as SQLite
//! gives it, without making text of it.
ColumnKind readKindOf(const char *decl)
{
    if (!decl)
        return ColumnKind::Other;
    if (qstrnicmp(decl, "BOOL", 4) == 0 || qstricmp(decl, "YESNO") == 0)
        return ColumnKind::Boolean;
    if (qstrnicmp(decl, "DATE", 4) == 0 || qstrnicmp(decl, "TIME", 4) == 0)
        return ColumnKind::Date;
    return ColumnKind::Other;
}

//! Reads the stored form "yyyy-MM-dd HH:mm:ss" (or a date alone) without the general date parser,
//! which is slow enough to show in grids of many rows.
QDateTime parseStoredDate(const QString &text)
{
    if (text.size() != 10 && text.size() != 19)
        return {};
    auto num = [&](int from, int len) {
        int v = 0;
        for (int i = from; i < from + len; ++i) {
            const QChar c = text.at(i);
            if (!c.isDigit())
                return -1;
            v = v * 10 + c.digitValue();
        }
        return v;
    };
    if (text.at(4) != QLatin1Char('-') || text.at(7) != QLatin1Char('-'))
        return {};
    const QDate date(num(0, 4), num(5, 2), num(8, 2));
    if (!date.isValid())
        return {};
    if (text.size() == 10)
        return date.startOfDay();
    if (text.at(10) != QLatin1Char(' ') || text.at(13) != QLatin1Char(':') || text.at(16) != QLatin1Char(':'))
        return {};
    const QTime time(num(11, 2), num(14, 2), num(17, 2));
    return time.isValid() ? QDateTime(date, time) : QDateTime();
}

QVariant readValue(sqlite3_stmt *stmt, int col, ColumnKind kind)
{
    switch (sqlite3_column_type(stmt, col)) {
    case SQLITE_NULL:
        return {};
    case SQLITE_INTEGER: {
        const qint64 v = sqlite3_column_int64(stmt, col);
        if (kind == ColumnKind::Boolean)
            return QVariant(v != 0);
        if (v >= INT32_MIN && v <= INT32_MAX)
            return QVariant(static_cast<int>(v));
        return QVariant(static_cast<qlonglong>(v));
    }
    case SQLITE_FLOAT:
        return QVariant(sqlite3_column_double(stmt, col));
    default: {
        const QString text = QString::fromUtf8(reinterpret_cast<const char *>(sqlite3_column_text(stmt, col)),
                                               sqlite3_column_bytes(stmt, col));
        if (kind == ColumnKind::Date) {
            QDateTime dt = parseStoredDate(text);
            if (!dt.isValid())
                dt = QDateTime::fromString(text, Qt::ISODate);
            if (dt.isValid())
                return dt;
        }
        return text;
    }
    }
}

//! Reads numeric text the way the engine converts it into a number column: blanks around it and
//! thousands separators are allowed; anything else is a conversion error.
bool parseNumericText(const QString &text, double &out)
{
    QString s = text.trimmed();
    s.remove(QLatin1Char(','));
    if (s.isEmpty())
        return false;
    bool ok = false;
    out = s.toDouble(&ok);
    if (!ok && s.startsWith(QLatin1Char('.')))
        out = (QLatin1Char('0') + s).toDouble(&ok);
    return ok && std::isfinite(out);
}

void bindValue(sqlite3_stmt *stmt, int index, const QVariant &value)
{
    if (!value.isValid() || value.isNull()) {
        sqlite3_bind_null(stmt, index);
        return;
    }
    switch (value.typeId()) {
    case QMetaType::Bool:
        sqlite3_bind_int(stmt, index, value.toBool() ? 1 : 0);
        break;
    case QMetaType::Int: case QMetaType::UInt: case QMetaType::Short: case QMetaType::UShort:
    case QMetaType::LongLong: case QMetaType::ULongLong: case QMetaType::Long: case QMetaType::ULong:
        sqlite3_bind_int64(stmt, index, value.toLongLong());
        break;
    case QMetaType::Float: {
        // A single is stored as the double of its shortest decimal text (0.1f as 0.1), as the engine
        // converts a Single into a Double column.
        char buf[32];
        const auto res = std::to_chars(buf, buf + sizeof buf, value.toFloat());
        sqlite3_bind_double(stmt, index, std::strtod(std::string(buf, res.ptr).c_str(), nullptr));
        break;
    }
    case QMetaType::Double:
        sqlite3_bind_double(stmt, index, value.toDouble());
        break;
    case QMetaType::QDateTime:
        sqlite3_bind_text16(stmt, index, value.toDateTime().toString(kDateFormat).utf16(), -1, SQLITE_TRANSIENT);
        break;
    case QMetaType::QDate:
        sqlite3_bind_text16(stmt, index, value.toDate().startOfDay().toString(kDateFormat).utf16(), -1, SQLITE_TRANSIENT);
        break;
    default: {
        const QString text = value.toString();
        sqlite3_bind_text16(stmt, index, text.utf16(), static_cast<int>(text.size() * 2), SQLITE_TRANSIENT);
    }
    }
}

//! A statement from the database's cache, handed back (reset) when it goes out of scope.
struct Statement {
    sqlite3_stmt *stmt = nullptr;
    Database *db = nullptr;
    int prepare(Database *database, const QByteArray &sql)
    {
        db = database;
        return db->prepareCached(sql, &stmt);
    }
    ~Statement()
    {
        if (db)
            db->releaseCached(stmt);
    }
};

//! True when the statement has, outside parentheses and strings, one of the words that make a
//! result read-only: a join, grouping, DISTINCT or a compound.
bool hasReadOnlyShape(const QString &sql)
{
    int depth = 0;
    QChar quote;
    QString word;
    auto check = [&](const QString &w) {
        const QString u = w.toUpper();
        return u == QLatin1String("JOIN") || u == QLatin1String("GROUP") || u == QLatin1String("DISTINCT")
            || u == QLatin1String("UNION") || u == QLatin1String("HAVING") || u == QLatin1String("EXCEPT")
            || u == QLatin1String("INTERSECT");
    };
    for (const QChar c : sql) {
        if (!quote.isNull()) {
            if (c == quote)
                quote = QChar();
            continue;
        }
        if (c == QLatin1Char('\'') || c == QLatin1Char('"')) {
            quote = c;
            word.clear();
            continue;
        }
        if (c.isLetterOrNumber() || c == QLatin1Char('_')) {
            word += c;
            continue;
        }
        if (depth == 0 && !word.isEmpty() && check(word))
            return true;
        word.clear();
        if (c == QLatin1Char('('))
            ++depth;
        else if (c == QLatin1Char(')'))
            --depth;
    }
    return depth == 0 && !word.isEmpty() && check(word);
}

//! Where a statement's closing ORDER BY starts (outside parentheses and strings, with no LIMIT after
//! it), or -1.
qsizetype closingOrderBy(const QString &sql)
{
    int depth = 0;
    QChar quote;
    qsizetype wordStart = -1, orderAt = -1, lastOrder = -1;
    const qsizetype n = sql.size();
    for (qsizetype i = 0; i <= n; ++i) {
        const QChar c = i < n ? sql[i] : QChar(QLatin1Char(' '));
        if (!quote.isNull()) {
            if (c == quote)
                quote = QChar();
            continue;
        }
        if (c.isLetterOrNumber() || c == QLatin1Char('_')) {
            if (wordStart < 0)
                wordStart = i;
            continue;
        }
        if (wordStart >= 0 && depth == 0) {
            const QStringView word = QStringView(sql).mid(wordStart, i - wordStart);
            if (word.compare(QLatin1String("ORDER"), Qt::CaseInsensitive) == 0)
                orderAt = wordStart;
            else if (word.compare(QLatin1String("BY"), Qt::CaseInsensitive) == 0 && orderAt >= 0)
                lastOrder = orderAt;
            else if (word.compare(QLatin1String("LIMIT"), Qt::CaseInsensitive) == 0)
                return -1;
            if (word.compare(QLatin1String("ORDER"), Qt::CaseInsensitive) != 0)
                orderAt = -1;
        }
        wordStart = -1;
        if (c == QLatin1Char('\'') || c == QLatin1Char('"') || c == QLatin1Char('['))
            quote = c == QLatin1Char('[') ? QLatin1Char(']') : c;
        else if (c == QLatin1Char('('))
            ++depth;
        else if (c == QLatin1Char(')'))
            --depth;
    }
    return lastOrder;
}

//! What a statement's result looks like: its columns and, when every column comes from one table
//! and the statement is a plain single-table one, that table (the rows can then be written back).
RecordsetShape shapeOf(sqlite3_stmt *stmt, const QString &sql)
{
    RecordsetShape shape;
    const int n = sqlite3_column_count(stmt);
    QString table;
    bool oneTable = true;
    for (int i = 0; i < n; ++i) {
        QString name = QString::fromUtf8(sqlite3_column_name(stmt, i));
        // Inside nested joins SQLite marks column names with ":<n>" ("Factor:1"); the engine the
        // program was written for names the column plainly.
        const qsizetype colon = name.lastIndexOf(QLatin1Char(':'));
        if (colon > 0 && colon + 1 < name.size()) {
            bool digits = true;
            for (qsizetype k = colon + 1; k < name.size(); ++k)
                digits = digits && name.at(k).isDigit();
            if (digits)
                name.truncate(colon);
        }
        shape.columns << name;
        const char *origin = sqlite3_column_origin_name(stmt, i);
        shape.originColumns << (origin ? QString::fromUtf8(origin) : QString());
        const char *originTable = sqlite3_column_table_name(stmt, i);
        const QString tableName = originTable ? QString::fromUtf8(originTable) : QString();
        shape.originTables << tableName;
        const char *decl = sqlite3_column_decltype(stmt, i);
        shape.kinds << static_cast<int>(kindOf(decl ? QString::fromUtf8(decl) : QString()));
        if (tableName.isEmpty())
            oneTable = false;
        else if (table.isEmpty())
            table = tableName;
        else if (tableName.compare(table, Qt::CaseInsensitive) != 0)
            oneTable = false;
    }
    if (oneTable && !hasReadOnlyShape(sql))
        shape.table = table;
    return shape;
}

}  // namespace

Recordset::Recordset(Database *db, QString jetSource, SqlText sqliteSql, RecordsetType type)
    : m_db(db), m_sourceSql(std::move(jetSource)), m_sql(std::move(sqliteSql.text)), m_sqlUtf8(std::move(sqliteSql.utf8)),
      m_type(type) {}

Recordset::~Recordset() { finishReading(); }

void Recordset::load()
{
    finishReading();
    const QByteArray &sql = m_sqlUtf8;
    std::shared_ptr<const RecordsetShape> shape = m_db->shapeOf(sql);
    const bool writable = m_type != RecordsetType::Snapshot;
    // A statement seen before whose rows can be written back goes straight to its keyed form.
    Statement probe;
    if (!shape || !writable || shape->table.isEmpty()) {
        if (probe.prepare(m_db, sql) != SQLITE_OK)
            m_db->raiseLastError(m_sourceSql);
        bindParameters(probe.stmt);
        if (sqlite3_column_count(probe.stmt) == 0)
            throw VbError(VbErr::InvalidArgument, QStringLiteral("Invalid argument: '%1' does not return records.").arg(m_sourceSql));
        if (!shape) {
            auto made = std::make_shared<RecordsetShape>(shapeOf(probe.stmt, m_sql));
            if (!made->table.isEmpty()) {
                // The rowid of every row is fetched beside the columns so that edits find their row.
                QString withKey = m_sql;
                const qsizetype select = m_sql.indexOf(QLatin1String("SELECT"), 0, Qt::CaseInsensitive);
                withKey.insert(select + 6, QStringLiteral(" \"%1\".rowid AS %2,").arg(made->table, kRowIdAlias));
                made->keyedSql = withKey.toUtf8();
            }
            shape = made;
            m_db->keepShape(sql, shape);
        }
    }
    const int n = static_cast<int>(shape->columns.size());
    m_columns = shape->columns;
    m_originColumns = shape->originColumns;
    m_originTables = shape->originTables;
    m_kinds = shape->kinds;
    m_updatable = writable && !shape->table.isEmpty();
    m_keyOffset = 0;
    m_table.clear();
    if (m_updatable) {
        m_table = shape->table;
        m_keyColumn = m_db->primaryKeyOf(m_table);
        m_keyIndex = -1;
        for (int i = 0; i < n && !m_keyColumn.isEmpty(); ++i)
            if (m_originColumns[i].compare(m_keyColumn, Qt::CaseInsensitive) == 0)
                m_keyIndex = i;
        if (m_db->prepareCached(shape->keyedSql, &m_stmt) == SQLITE_OK) {
            m_keyOffset = 1;
            bindParameters(m_stmt);
        } else {
            m_db->releaseCached(m_stmt);
            m_stmt = nullptr;
            m_updatable = false;
            m_table.clear();
            if (!probe.stmt) {
                if (probe.prepare(m_db, sql) != SQLITE_OK)
                    m_db->raiseLastError(m_sourceSql);
                bindParameters(probe.stmt);
            }
        }
    }
    if (!m_stmt) {
        // The probe itself is read: it stays out of the cache's hands until the last row.
        m_stmt = probe.stmt;
        probe.stmt = nullptr;
        probe.db = nullptr;
    }

    m_rows.clear();
    m_rowKeys.clear();
    m_editMode = EditMode::None;
    m_populated = 0;
    m_noMatch = false;
    m_closed = false;
    m_deleted = false;
    m_db->readingStarted(this);
    if (!m_db->readsCanWait())
        fetchAll();
    if (!fetchTo(0)) {
        m_pos = -1;
        m_bof = m_eof = true;
    } else {
        setPosition(0);
    }
}

void Recordset::bindParameters(sqlite3_stmt *stmt) const
{
    for (int i = 0; i < m_params.size(); ++i)
        bindValue(stmt, i + 1, m_params[i]);
}

QVariant Database::lookupValue(const QString &table, const QString &field, const QString &criteria, bool *found)
{
    // The statement is read and handed back at once, so it never joins the reads still going on.
    SqlValues params;
    SqlText sql;
    sqlite3_stmt *stmt = lookupStatement(table, field, criteria, params, sql);
    Statement shared;
    const auto handBack = qScopeGuard([own = stmt] {
        if (own)
            sqlite3_reset(own);
    });
    if (!stmt) {
        if (shared.prepare(this, sql.utf8) != SQLITE_OK)
            raiseLastError(lookupSql(table, field, criteria));
        stmt = shared.stmt;
    }
    for (int i = 0; i < params.size(); ++i)
        bindValue(stmt, i + 1, params[i]);
    const int rc = sqlite3_step(stmt);
    if (rc != SQLITE_ROW && rc != SQLITE_DONE)
        raiseLastError(lookupSql(table, field, criteria));
    *found = rc == SQLITE_ROW;
    if (!*found)
        return {};
    return readValue(stmt, 0, readKindOf(sqlite3_column_decltype(stmt, 0)));
}

bool Recordset::readRow()
{
    if (!m_stmt)
        return false;
    const int rc = sqlite3_step(m_stmt);
    if (rc == SQLITE_DONE) {
        finishReading();
        return false;
    }
    if (rc != SQLITE_ROW) {
        finishReading();
        m_db->raiseLastError(m_sourceSql);
    }
    if (m_keyOffset)
        m_rowKeys.push_back(sqlite3_column_int64(m_stmt, 0));
    const int n = static_cast<int>(m_columns.size());
    QVector<QVariant> row(n);
    for (int i = 0; i < n; ++i)
        row[i] = readValue(m_stmt, i + m_keyOffset, static_cast<ColumnKind>(m_kinds[i]));
    m_rows.push_back(std::move(row));
    return true;
}

void Recordset::finishReading()
{
    if (!m_stmt)
        return;
    sqlite3_stmt *stmt = m_stmt;
    m_stmt = nullptr;
    m_db->readingStopped(this);
    m_db->releaseCached(stmt);
}

bool Recordset::fetchTo(int row)
{
    while (row >= m_rows.size())
        if (!readRow())
            return false;
    return row >= 0;
}

int Recordset::fetchAll()
{
    while (readRow()) {
    }
    return static_cast<int>(m_rows.size());
}

int Recordset::countRows()
{
    if (!m_stmt)
        return static_cast<int>(m_rows.size());
    QString body = m_sql.trimmed();
    while (body.endsWith(QLatin1Char(';')))
        body.chop(1);
    // The order of the rows does not change their number: a closing ORDER BY is not run again.
    if (const qsizetype orderBy = closingOrderBy(body); orderBy > 0)
        body.truncate(orderBy);
    Statement st;
    if (st.prepare(m_db, QStringLiteral("SELECT count(*) FROM (%1)").arg(body).toUtf8()) != SQLITE_OK)
        m_db->raiseLastError(m_sourceSql);
    bindParameters(st.stmt);
    if (sqlite3_step(st.stmt) != SQLITE_ROW)
        m_db->raiseLastError(m_sourceSql);
    return std::max(static_cast<int>(sqlite3_column_int64(st.stmt, 0)), static_cast<int>(m_rows.size()));
}

QVariant Recordset::valueAt(int row, int column) const
{
    if (row < 0 || row >= m_rows.size() || column < 0 || column >= m_columns.size())
        return {};
    return m_rows[row][column];
}

int Recordset::indexOf(const QString &name) const
{
    for (int i = 0; i < m_columns.size(); ++i)
        if (m_columns[i].compare(name, Qt::CaseInsensitive) == 0)
            return i;
    // A qualified name "tbl.col" or "tbl!col" finds the column of that table, or else the first column
    // of that name (two columns of one name from two tables are told apart by their table).
    const int dot = static_cast<int>(std::max(name.lastIndexOf(QLatin1Char('.')), name.lastIndexOf(QLatin1Char('!'))));
    if (dot > 0) {
        const QString table = name.left(dot);
        const QString column = name.mid(dot + 1);
        for (int i = 0; i < m_columns.size(); ++i)
            if (m_columns[i].compare(column, Qt::CaseInsensitive) == 0
                && m_originTables[i].compare(table, Qt::CaseInsensitive) == 0)
                return i;
        return indexOf(column);
    }
    return -1;
}

QStringList Recordset::fieldNames() const { return m_columns; }

void Recordset::requireCurrent() const
{
    if (m_closed)
        throw VbError(VbErr::InvalidArgument, QStringLiteral("Operation is not allowed when the object is closed."));
    if (m_editMode == EditMode::None && (m_deleted || m_pos < 0 || m_pos >= m_rows.size()))
        throw VbError::noCurrentRecord();
}

QVariant Recordset::field(const QString &name) const
{
    const int i = indexOf(name);
    if (i < 0)
        throw VbError(VbErr::ItemNotFound, QStringLiteral("Item not found in this collection. (%1)").arg(name));
    return field(i);
}

QVariant Recordset::field(int index) const
{
    requireCurrent();
    if (index < 0 || index >= m_columns.size())
        throw VbError(VbErr::ItemNotFound, QStringLiteral("Item not found in this collection."));
    if (m_editMode != EditMode::None)
        return m_buffer[index];
    return m_rows[m_pos][index];
}

void Recordset::setField(const QString &name, const QVariant &value)
{
    const int i = indexOf(name);
    if (i < 0)
        throw VbError(VbErr::ItemNotFound, QStringLiteral("Item not found in this collection. (%1)").arg(name));
    if (m_editMode == EditMode::None)
        throw VbError(VbErr::UpdateWithoutAddNewOrEdit, QStringLiteral("Update or CancelUpdate without AddNew or Edit."));
    QVariant stored = value;
    const ColumnKind kind = kindOf(m_db->columnType(m_table, m_originColumns[i]));
    const bool numeric = kind == ColumnKind::Integer || kind == ColumnKind::Real || kind == ColumnKind::Boolean;
    if (numeric && value.isValid() && !value.isNull()) {
        if (value.typeId() == QMetaType::QString) {
            double d = 0;
            if (!parseNumericText(value.toString(), d))
                throw VbError(VbErr::DataTypeConversion, QStringLiteral("Data type conversion error."));
            stored = d;
        } else if (value.typeId() == QMetaType::Bool && kind != ColumnKind::Boolean) {
            stored = value.toBool() ? -1 : 0;
        }
        if (kind == ColumnKind::Integer && stored.typeId() == QMetaType::Double) {
            const double d = stored.toDouble();
            stored = static_cast<qlonglong>(std::nearbyint(d));   // the engine rounds half to even
        }
        if (kind == ColumnKind::Boolean)
            stored = stored.toDouble() != 0.0;
    } else if (kind == ColumnKind::Date && value.typeId() == QMetaType::QDate) {
        stored = value.toDate().startOfDay();
    } else if (kind == ColumnKind::Text && value.isValid() && !value.isNull() && value.typeId() != QMetaType::QString) {
        stored = value.toString();
    }
    m_buffer[i] = stored;
    m_dirty[i] = true;
}

void Recordset::setPosition(int pos)
{
    m_deleted = false;
    m_pos = pos;
    m_bof = pos < 0;
    m_eof = pos >= m_rows.size();
    if (m_rows.isEmpty())
        m_bof = m_eof = true;
    if (!m_bof && !m_eof)
        touch(pos);
}

void Recordset::MoveFirst()
{
    if (m_rows.isEmpty())
        throw VbError::noCurrentRecord();
    m_editMode = EditMode::None;
    setPosition(0);
}

void Recordset::MoveLast()
{
    fetchAll();
    if (m_rows.isEmpty())
        throw VbError::noCurrentRecord();
    m_editMode = EditMode::None;
    m_populated = static_cast<int>(m_rows.size());
    setPosition(static_cast<int>(m_rows.size()) - 1);
}

void Recordset::MoveNext()
{
    if (m_eof)
        throw VbError::noCurrentRecord();
    m_editMode = EditMode::None;
    fetchTo(m_pos + 1);
    setPosition(std::min<int>(m_pos + 1, static_cast<int>(m_rows.size())));
}

void Recordset::MovePrevious()
{
    if (m_bof)
        throw VbError::noCurrentRecord();
    m_editMode = EditMode::None;
    setPosition(std::max(m_pos - 1, -1));
}

void Recordset::Move(int rows)
{
    if (rows == 0)
        return;
    if ((m_bof && rows < 0) || (m_eof && rows > 0))
        throw VbError::noCurrentRecord();
    m_editMode = EditMode::None;
    const int target = m_pos + rows;
    fetchTo(target);
    setPosition(std::clamp(target, -1, static_cast<int>(m_rows.size())));
}

int Recordset::RecordCount() const
{
    if (m_rows.isEmpty())
        return 0;
    return std::max(m_populated, 1);
}

int Recordset::AbsolutePosition() const
{
    if (m_bof || m_eof)
        return -1;
    return m_pos;
}

void Recordset::setAbsolutePosition(int pos)
{
    if (pos < 0 || !fetchTo(pos))
        throw VbError(VbErr::InvalidArgument, QStringLiteral("Invalid argument."));
    m_editMode = EditMode::None;
    setPosition(pos);
}

int Recordset::Bookmark() const
{
    requireCurrent();
    return m_pos;
}

void Recordset::setBookmark(int bookmark) { setAbsolutePosition(bookmark); }

void Recordset::find(const QString &criteria, int start, int step)
{
    // The criteria are evaluated by the database itself over the row's values, so that comparisons,
    // LIKE and case rules are exactly those of a WHERE clause on the same columns.
    const QString expr = translateJetCriteria(criteria);
    QString select = QStringLiteral("SELECT (%1) FROM (SELECT ").arg(expr);
    for (int i = 0; i < m_columns.size(); ++i) {
        if (i)
            select += QLatin1Char(',');
        const QString type = m_table.isEmpty() || m_originColumns[i].isEmpty()
                                 ? QString()
                                 : m_db->columnType(m_table, m_originColumns[i]);
        const bool text = kindOf(type) == ColumnKind::Text || type.isEmpty();
        select += QStringLiteral("?%1%2 AS \"%3\"")
                      .arg(i + 1)
                      .arg(text ? QStringLiteral(" COLLATE NOCASE") : QString())
                      .arg(QString(m_columns[i]).replace(QLatin1Char('"'), QLatin1String("\"\"")));
    }
    select += QLatin1Char(')');
    Statement st;
    const QByteArray utf8 = select.toUtf8();
    if (st.prepare(m_db, utf8.constData()) != SQLITE_OK)
        m_db->raiseLastError(criteria);
    m_editMode = EditMode::None;
    for (int r = start; r >= 0 && fetchTo(r); r += step) {
        sqlite3_reset(st.stmt);
        const QVector<QVariant> &row = m_rows[r];
        for (int i = 0; i < row.size(); ++i)
            bindValue(st.stmt, i + 1, row[i]);
        const int rc = sqlite3_step(st.stmt);
        if (rc != SQLITE_ROW)
            m_db->raiseLastError(criteria);
        if (sqlite3_column_type(st.stmt, 0) != SQLITE_NULL && sqlite3_column_double(st.stmt, 0) != 0.0) {
            m_noMatch = false;
            setPosition(r);
            return;
        }
    }
    // No match leaves the current row where it was, as DAO does.
    m_noMatch = true;
}

void Recordset::FindFirst(const QString &criteria) { find(criteria, 0, 1); }
void Recordset::FindLast(const QString &criteria) { find(criteria, fetchAll() - 1, -1); }
void Recordset::FindNext(const QString &criteria) { find(criteria, m_bof ? 0 : m_pos + 1, 1); }
void Recordset::FindPrevious(const QString &criteria)
{
    find(criteria, m_eof ? fetchAll() - 1 : m_pos - 1, -1);
}

static VbError notUpdatable()
{
    return VbError(VbErr::ReadOnly, QStringLiteral("Cannot update. Database or object is read-only."));
}

void Recordset::AddNew()
{
    if (!m_updatable)
        throw notUpdatable();
    m_db->finishReading();   // no read may still be going on when this connection writes
    m_buffer = QVector<QVariant>(m_columns.size());
    m_dirty = QVector<bool>(m_columns.size(), false);
    // Defaults of the table fill the new row, as the engine shows them before the row is saved.
    {
        Statement st;
        const QByteArray pragma = QStringLiteral("PRAGMA table_info(\"%1\")").arg(m_table).toUtf8();
        if (st.prepare(m_db, pragma.constData()) == SQLITE_OK) {
            while (sqlite3_step(st.stmt) == SQLITE_ROW) {
                if (sqlite3_column_type(st.stmt, 4) == SQLITE_NULL)
                    continue;
                const QString col = QString::fromUtf8(reinterpret_cast<const char *>(sqlite3_column_text(st.stmt, 1)));
                const QString dflt = QString::fromUtf8(reinterpret_cast<const char *>(sqlite3_column_text(st.stmt, 4)));
                const QString type = QString::fromUtf8(reinterpret_cast<const char *>(sqlite3_column_text(st.stmt, 2)));
                Statement ev;
                const QByteArray q = QStringLiteral("SELECT %1").arg(dflt).toUtf8();
                if (ev.prepare(m_db, q.constData()) == SQLITE_OK
                    && sqlite3_step(ev.stmt) == SQLITE_ROW) {
                    for (int i = 0; i < m_columns.size(); ++i)
                        if (m_originColumns[i].compare(col, Qt::CaseInsensitive) == 0)
                            m_buffer[i] = readValue(ev.stmt, 0, kindOf(type));
                }
            }
        }
    }
    // The autonumber of the new row is known at once: callers read it before Update. It is reserved,
    // so that another program adding a row meanwhile gets another number.
    m_newKey = 0;
    if (!m_keyColumn.isEmpty()) {
        m_newKey = m_db->reserveAutonumber(m_table, m_keyColumn);
        if (m_keyIndex >= 0) {
            m_buffer[m_keyIndex] = static_cast<int>(m_newKey);
            m_dirty[m_keyIndex] = true;
        }
    }
    m_editMode = EditMode::Add;
}

void Recordset::Edit()
{
    if (!m_updatable)
        throw notUpdatable();
    if (m_pos < 0 || m_pos >= m_rows.size())
        throw VbError::noCurrentRecord();
    m_buffer = m_rows[m_pos];
    m_dirty = QVector<bool>(m_columns.size(), false);
    m_editMode = EditMode::Edit;
}

void Recordset::CancelUpdate()
{
    if (m_editMode == EditMode::None)
        throw VbError(VbErr::UpdateWithoutAddNewOrEdit, QStringLiteral("Update or CancelUpdate without AddNew or Edit."));
    m_editMode = EditMode::None;
}

void Recordset::Update()
{
    if (m_editMode == EditMode::None)
        throw VbError(VbErr::UpdateWithoutAddNewOrEdit, QStringLiteral("Update or CancelUpdate without AddNew or Edit."));
    // No read may still be going on when this connection writes; a new row then joins the end of the
    // rows, after all the statement's rows.
    m_db->finishReading();
    sqlite3 *h = m_db->handle();
    QStringList cols;
    QVector<QVariant> values;
    for (int i = 0; i < m_columns.size(); ++i) {
        if (!m_dirty[i] && !(m_editMode == EditMode::Add && m_buffer[i].isValid()))
            continue;
        if (m_originColumns[i].isEmpty())
            continue;
        cols << m_originColumns[i];
        values << m_buffer[i];
    }
    QString sql;
    if (m_editMode == EditMode::Add) {
        QStringList quoted, marks;
        for (int i = 0; i < cols.size(); ++i) {
            quoted << QStringLiteral("\"%1\"").arg(cols[i]);
            marks << QStringLiteral("?%1").arg(i + 1);
        }
        sql = cols.isEmpty() ? QStringLiteral("INSERT INTO \"%1\" DEFAULT VALUES").arg(m_table)
                             : QStringLiteral("INSERT INTO \"%1\" (%2) VALUES (%3)").arg(m_table, quoted.join(QLatin1Char(',')),
                                                                                     marks.join(QLatin1Char(',')));
    } else {
        if (cols.isEmpty()) {
            m_editMode = EditMode::None;
            return;
        }
        QStringList sets;
        for (int i = 0; i < cols.size(); ++i)
            sets << QStringLiteral("\"%1\" = ?%2").arg(cols[i]).arg(i + 1);
        sql = QStringLiteral("UPDATE \"%1\" SET %2 WHERE rowid = ?%3").arg(m_table, sets.join(QLatin1Char(','))).arg(cols.size() + 1);
    }
    Statement st;
    const QByteArray utf8 = sql.toUtf8();
    if (st.prepare(m_db, utf8.constData()) != SQLITE_OK)
        m_db->raiseLastError(sql);
    for (int i = 0; i < values.size(); ++i)
        bindValue(st.stmt, i + 1, values[i]);
    if (m_editMode == EditMode::Edit)
        sqlite3_bind_int64(st.stmt, static_cast<int>(values.size()) + 1, m_rowKeys[m_pos]);
    if (sqlite3_step(st.stmt) != SQLITE_DONE)
        m_db->raiseLastError(m_table);

    const qint64 rowid = m_editMode == EditMode::Add ? sqlite3_last_insert_rowid(h) : m_rowKeys[m_pos];
    // Read the stored row back, so that the recordset shows what the table now holds.
    QVector<QVariant> stored = m_buffer;
    {
        QStringList names;
        for (const QString &c : m_originColumns)
            names << QStringLiteral("\"%1\"").arg(c);
        Statement rd;
        const QByteArray q = QStringLiteral("SELECT %1 FROM \"%2\" WHERE rowid = ?1").arg(names.join(QLatin1Char(',')), m_table).toUtf8();
        if (rd.prepare(m_db, q.constData()) == SQLITE_OK) {
            sqlite3_bind_int64(rd.stmt, 1, rowid);
            if (sqlite3_step(rd.stmt) == SQLITE_ROW)
                for (int i = 0; i < stored.size(); ++i)
                    stored[i] = readValue(rd.stmt, i, kindOf(m_db->columnType(m_table, m_originColumns[i])));
        }
    }
    if (m_editMode == EditMode::Add) {
        // A new row joins the end of the recordset; the current row stays where it was.
        m_rows.push_back(stored);
        m_rowKeys.push_back(rowid);
        if (m_bof && m_eof && m_rows.size() == 1) {
            m_pos = -1;
            m_bof = false;
            m_eof = false;
            setPosition(0);
        } else if (m_eof) {
            m_pos = static_cast<int>(m_rows.size());
        }
    } else {
        m_rows[m_pos] = stored;
    }
    m_editMode = EditMode::None;
}

void Recordset::Delete()
{
    if (!m_updatable)
        throw notUpdatable();
    m_db->finishReading();
    if (m_pos < 0 || m_pos >= m_rows.size())
        throw VbError::noCurrentRecord();
    Statement st;
    const QByteArray q = QStringLiteral("DELETE FROM \"%1\" WHERE rowid = ?1").arg(m_table).toUtf8();
    if (st.prepare(m_db, q.constData()) != SQLITE_OK)
        m_db->raiseLastError(m_table);
    sqlite3_bind_int64(st.stmt, 1, m_rowKeys[m_pos]);
    if (sqlite3_step(st.stmt) != SQLITE_DONE)
        m_db->raiseLastError(m_table);
    m_rows.removeAt(m_pos);
    m_rowKeys.removeAt(m_pos);
    fetchTo(m_pos);   // whether a row follows decides EOF
    // The position stays before the next row, so that MoveNext reaches it.
    m_pos -= 1;
    m_bof = m_pos < 0 && m_rows.isEmpty();
    m_eof = m_rows.isEmpty();
    m_deleted = true;
    m_editMode = EditMode::None;
}

void Recordset::Requery()
{
    load();
}

void Recordset::Close()
{
    finishReading();
    m_closed = true;
    m_rows.clear();
    m_rowKeys.clear();
    m_editMode = EditMode::None;
}
