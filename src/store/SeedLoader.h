// SPDX-License-Identifier: MIT
#pragma once

#include "Database.h"

#include <QString>
#include <QStringList>

struct sqlite3;

//! One parsed CSV file: the header and the records. A null QString is an empty unquoted field.
struct CsvTable {
    QStringList header;
    QList<QStringList> rows;
    QList<int> rowLines;  //!< line (1-based) on which each record starts, for messages
};

//! Parses CSV text (RFC 4180: quoted fields may hold commas, doubled quotes and line breaks; LF or
//! CRLF line ends; a UTF-8 byte-order mark is skipped). An empty unquoted field becomes a null
//! QString, a quoted empty field "" an empty one. A record whose field count differs from the
//! header's, or an unterminated quote, throws VbError naming `sourceName` and the line.
CsvTable parseCsv(const QByteArray &utf8, const QString &sourceName);

//! Loads every `seedDir/*.csv` into the existing tables: the file name is the table, the header the
//! columns. Files load in name order, in one transaction, with the ids the files give; values go in
//! as text and the column types convert them (numbers to REAL, ids to INTEGER). Throws VbError
//! naming the file (and line or column) for a missing folder, an unknown table or column, a row the
//! database refuses, or a value that a numeric column cannot take as a number. On error nothing
//! is loaded.
void loadSeed(sqlite3 *db, const QString &seedDir);

inline void loadSeed(Database &db, const QString &seedDir) { loadSeed(db.handle(), seedDir); }
