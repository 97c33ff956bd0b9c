// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

//! Translates the Jet dialect in which the program writes its SQL into SQLite's.
//!
//! Handled: `!` qualifiers (`[t]![c]`, `t!c`), `&` concatenation, `*` and `?` (and `#`) in LIKE
//! patterns, `DELETE t.* FROM t`, `Delete * from t`, qualified columns in `UPDATE ... SET t.c =`,
//! `True`/`False`/`Yes`/`No`, `Not (x) Is Null`, `[bracketed names]`, `#date#` literals, and the
//! few VB functions the program's queries call. String literals that are not LIKE patterns are
//! never changed. Tokenizer based; throws VbError(VbErr::SyntaxError) on text it cannot read
//! (an unterminated string, for instance).
QString translateJetSql(const QString &jetSql);

//! Translates a Jet criteria expression, as given to FindFirst or Lookup, into a SQLite expression.
QString translateJetCriteria(const QString &jetCriteria);
