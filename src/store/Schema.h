// SPDX-License-Identifier: MIT
#pragma once

#include "Database.h"

#include <QMap>
#include <QString>
#include <QStringList>

struct sqlite3;

//! Creates every table of the program (scenario, reference and lookup tables, joins, the settings
//! tables) and the view qryReference in an empty database, in one transaction. A database that
//! already holds one of the tables throws VbError and is left as it was.
void createSchema(sqlite3 *db);

//! The same on the program's database object; forgets its cached table information afterwards.
inline void createSchema(Database &db)
{
    createSchema(db.handle());
    db.clearSchemaCache();
}

//! Brings a database made by an earlier version up to the present tables: every column that a table
//! lacks is added (empty in the rows there are, with its default), so that a user's own database
//! keeps its rows and works with the columns that later versions write. Throws VbError when the file
//! refuses a change. Indexes added since are made where the file can take them.
void upgradeSchema(sqlite3 *db);
inline void upgradeSchema(Database &db)
{
    upgradeSchema(db.handle());
    db.clearSchemaCache();
}

//! The names of the tables that createSchema creates, in creation order.
QStringList schemaTables();

//! Table name -> its column names in declaration order.
const QMap<QString, QStringList> &schemaColumns();

//! The DDL text that createSchema runs: one CREATE statement for each table, then the view.
QStringList schemaStatements();
