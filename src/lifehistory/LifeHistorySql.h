// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

class Database;
class Recordset;

//! The statements of the species search and the life-history browser, built from the criteria and
//! option choices as text (Jet dialect), and the numbered reference lists of the text pages.
namespace LifeHistorySql {

//! The criteria of the species search, as the boxes hold them (texts go in unescaped).
struct SearchCriteria {
    QString species = {};
    //! The bound id of the taxon shown; empty when the combo shows nothing.
    QString taxonId = {};
    QString habitat = {};
    QString dietItem = {};
    QString trophicFrom = {};
    QString trophicTo = {};
};

//! The criteria joined into a where text, trimmed and without a closing "AND"; empty for none.
QString searchWhere(const SearchCriteria &c);
//! The search statement for a where text (all species for an empty one), by taxon and common name.
QString searchStatement(const QString &where);

//! The rows of one topic of free text for a species: clause is the topic's " AND LifeText_Type ..." text.
QString textStatement(qint32 speciesId, const QString &clause);
//! The topic clause of option index of a text page ("optGeneral" ...); empty for an unknown index.
QString topicClause(const QString &optionArray, int index);
//! The captions of a text page's option array, in index order.
QStringList topicCaptions(const QString &optionArray);

//! " IN ( a, b ) " for the non-blank values, in order; empty when all are blank.
QString referenceClause(const QStringList &values);
//! The values of columns prefix1..prefixN of the current row (a missing column throws).
QStringList referenceValues(const Recordset &row, const QString &prefix, int count);
//! The numbered reference list for a clause: "1.  Author. Year. Title. Source" lines, each ending
//! in CR LF, ordered by author; empty (and nothing read) for an empty clause.
QString referenceText(Database &db, const QString &clause);

//! Body weights of a species; sex 0 Male, 1 Female, 2 Both, 3 All; lifestage 0 Adult, 1 Non-adult,
//! 2 All; status 0 Captive, 1 Wild, 2 All.
QString weightStatement(qint32 speciesId, int sex, int lifestage, int status);
//! Diets of a species; lifestage 0 Adult, 1 Non-adult, 2 All; sex 0 Male, 1 Female, 2 Both, 3 All.
QString dietStatement(qint32 speciesId, int lifestage, int sex);
//! The factor ids of the growth-rate and intake-rate options, in index order.
const QList<int> &growthFactors();
const QList<int> &intakeFactors();
//! Factor records of a species: growth true for the body size page's statement, false for the
//! intake and metabolic rates'.
QString factorStatement(qint32 speciesId, int factorId, bool growth);
//! Population records of a species for a size class ("POPDYN" or "RANGE").
QString populationStatement(qint32 speciesId, const QString &sizeClass);
//! Seasonal records of a species for an activity class ("reproduction", "dispersal", "tempreg/develop").
QString seasonStatement(qint32 speciesId, const QString &activityClass);

}  // namespace LifeHistorySql
