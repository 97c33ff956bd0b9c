// SPDX-License-Identifier: MIT
#pragma once

#include "SqlParameters.h"

#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVector>
#include <memory>

class Database;
struct sqlite3_stmt;

//! The columns of a statement's result, kept by the database per statement text: names, the base
//! column and table of each ("" when computed), how values are read, and the one table the rows can
//! be written back to ("" when none).
struct RecordsetShape {
    QStringList columns;
    QStringList originColumns;
    QStringList originTables;
    QVector<int> kinds;
    QString table;
    QByteArray keyedSql;   // the statement with the table's rowid read first, when table is set
};

//! A statement in SQLite's dialect, with its text as SQLite takes it.
struct SqlText {
    QString text;
    QByteArray utf8;
};

//! DAO recordset types: dynaset (2) can be written when it rests on one table; snapshot (4) never.
enum class RecordsetType { Table = 1, Dynaset = 2, Snapshot = 4 };

//! A DAO-style recordset over the result of one statement.
//!
//! In write-ahead-log mode rows are read from the statement as the position reaches them (the first
//! row when the recordset opens), so that opening a large result costs what is looked at; under a
//! rollback journal, where a read would block other programs' writes, every row is read at once; MoveLast, FindLast and a count read
//! to the end. The current position, BOF/EOF, FindFirst/FindNext with Jet criteria, and RecordCount
//! "as far as populated" behave as DAO's. A dynaset whose columns all
//! come from one table with a key can be edited: AddNew (the new autonumber is readable at once),
//! Edit, Update, CancelUpdate, Delete. Editing any other recordset (an aggregate, a join, a snapshot)
//! throws 3027. Field names are case-insensitive.
class Recordset {
public:
    enum class EditMode { None, Edit, Add };

    ~Recordset();
    Recordset(const Recordset &) = delete;
    Recordset &operator=(const Recordset &) = delete;

    // Navigation.
    bool BOF() const { return m_bof; }
    bool EOF_() const { return m_eof; }  //!< EOF is a macro in C; read as rs.EOF_()
    bool atEnd() const { return m_eof; }
    void MoveFirst();
    void MoveLast();
    void MoveNext();
    void MovePrevious();
    void Move(int rows);
    //! Rows accessed so far (DAO): 0 when empty, otherwise at least 1; the full count after MoveLast.
    int RecordCount() const;
    //! The rows read from the statement so far (at least every row visited).
    int rowsRead() const { return static_cast<int>(m_rows.size()); }
    //! True once every row of the result has been read.
    bool complete() const { return !m_stmt; }
    //! Reads rows until row (0-based) is read or the result ends; true when the row exists.
    bool fetchTo(int row);
    //! Reads every remaining row; gives the number of rows.
    int fetchAll();
    //! The number of rows of the result: the rows read when complete, otherwise counted by the database
    //! without reading them.
    int countRows();
    //! The value of a field of any row read so far, without moving (for grids).
    QVariant valueAt(int row, int column) const;
    //! Zero-based position of the current row, -1 at BOF/EOF.
    int AbsolutePosition() const;
    void setAbsolutePosition(int pos);
    //! An opaque bookmark of the current row (its index); setBookmark moves there.
    int Bookmark() const;
    void setBookmark(int bookmark);

    // Search with a Jet criteria expression such as "DataSourceID = 4" or "User = 'ann'".
    void FindFirst(const QString &criteria);
    void FindNext(const QString &criteria);
    void FindPrevious(const QString &criteria);
    void FindLast(const QString &criteria);
    bool NoMatch() const { return m_noMatch; }

    // Fields.
    int fieldCount() const { return static_cast<int>(m_columns.size()); }
    QStringList fieldNames() const;
    bool hasField(const QString &name) const { return indexOf(name) >= 0; }
    //! The value of a field of the current row (or of the row being added/edited). Null is an
    //! invalid QVariant. An unknown name throws 3265; no current row throws 3021.
    QVariant field(const QString &name) const;
    QVariant field(int index) const;
    QVariant operator[](const QString &name) const { return field(name); }
    //! Sets a field during Edit or AddNew (3020 otherwise). Text given to a number column is read as a
    //! number the way the engine does, thousands separators included; text that is not a number throws
    //! 3421 (data type conversion error).
    void setField(const QString &name, const QVariant &value);

    // Editing.
    bool updatable() const { return m_updatable; }
    void AddNew();
    void Edit();
    void Update();
    void CancelUpdate();
    void Delete();
    EditMode editMode() const { return m_editMode; }

    //! Re-runs the statement; the position goes to the first row.
    void Requery();
    void Close();

    const QString &source() const { return m_sourceSql; }
    //! The base table of an updatable recordset, "" otherwise.
    const QString &baseTable() const { return m_table; }

private:
    friend class Database;
    Recordset(Database *db, QString jetSource, SqlText sqliteSql, RecordsetType type);
    void load();
    int indexOf(const QString &name) const;
    void requireCurrent() const;
    void setPosition(int pos);
    void find(const QString &criteria, int start, int step);
    void touch(int pos) { if (pos + 1 > m_populated) m_populated = pos + 1; }
    bool readRow();
    void bindParameters(sqlite3_stmt *stmt) const;
    void finishReading();

    Database *m_db;
    QString m_sourceSql;   // as given (Jet)
    QString m_sql;         // translated
    QByteArray m_sqlUtf8;  // the same, as SQLite takes it
    SqlValues m_params;   // values of ?1..?n in m_sql
    RecordsetType m_type;
    QStringList m_columns;
    QStringList m_originColumns;   // column in the base table, per column ("" if computed)
    QStringList m_originTables;    // table of each column ("" if computed)
    QVector<QVector<QVariant>> m_rows;
    sqlite3_stmt *m_stmt = nullptr;           // the statement still being read, null once complete
    QVector<int> m_kinds;                    // how each column's values are read
    int m_keyOffset = 0;                     // 1 when the rowid is read before the columns
    QVector<qint64> m_rowKeys;     // key value of each row in the base table (updatable only)
    QString m_table;
    QString m_keyColumn;
    int m_keyIndex = -1;
    bool m_updatable = false;
    int m_pos = -1;
    int m_populated = 0;
    bool m_bof = true;
    bool m_eof = true;
    bool m_noMatch = false;
    EditMode m_editMode = EditMode::None;
    QVector<QVariant> m_buffer;
    QVector<bool> m_dirty;
    qint64 m_newKey = 0;
    bool m_closed = false;
    bool m_deleted = false;   // the current row was deleted; no current record until a move
};
