// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

struct sqlite3;

//! Translates the Jet dialect in which the program writes its SQL into SQLite's.
//!
//! Handled: `!` qualifiers (`[t]![c]`, `t!c`), `&` concatenation, `*` and `?` (and `#`) in LIKE
//! patterns, `DELETE t.* FROM t`, `Delete * from t`, qualified columns in `UPDATE ... SET t.c =`,
//! `True`/`False`/`Yes`/`No`, `Not (x) Is Null`, `[bracketed names]`, `#date#` literals, and the
//! few VB functions the program's queries call. String literals that are not LIKE patterns are
//! never changed. Tokenizer based; throws VbError(VbErr::SyntaxError) on text it cannot read
//! (an unterminated string, for instance), on a `;` followed by anything but another `;` (one
//! statement per text), on a NUL character, and on parentheses nested beyond 200 levels. Every
//! token is written out once, so the output grows linearly with the input.
QString translateJetSql(const QString &jetSql);

//! Translates a Jet criteria expression, as given to FindFirst or Lookup, into a SQLite expression.
//! A criteria holds no `;` at all.
QString translateJetCriteria(const QString &jetCriteria);

//! Registers on a connection the SQL functions that translated text calls: jet_text(x), an operand
//! of `&`, and jet_right(s, n), the legacy Right. Every connection that runs translated text needs them.
void registerJetFunctions(sqlite3 *db);
