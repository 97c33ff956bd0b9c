// SPDX-License-Identifier: MIT
#include "SqlParameters.h"

namespace {

// Marker n is this prefix followed by n (zero-padded): a number no statement of the program holds.
const QString kMarker = QStringLiteral("90817263544536");

QString marker(int n) { return kMarker + QStringLiteral("%1").arg(n, 3, 10, QLatin1Char('0')); }

bool isDigit(QChar c) { return c >= QLatin1Char('0') && c <= QLatin1Char('9'); }
bool isWordChar(QChar c) { return c.isLetterOrNumber() || c == QLatin1Char('_'); }

}  // namespace

SqlParameters takeComparedNumbers(const QString &jetSql)
{
    SqlParameters out;
    if (jetSql.contains(kMarker)) {
        out.templateText = jetSql;
        return out;
    }
    const qsizetype n = jetSql.size();
    QChar lastSignificant;   // the last character outside strings and brackets that is not blank
    qsizetype copied = 0;
    for (qsizetype i = 0; i < n;) {
        const QChar c = jetSql[i];
        if (c == QLatin1Char('\'') || c == QLatin1Char('"') || c == QLatin1Char('[') || c == QLatin1Char('#')
            || c == QLatin1Char('`')) {
            const QChar close = c == QLatin1Char('[') ? QLatin1Char(']') : c;
            qsizetype j = jetSql.indexOf(close, i + 1);
            j = j < 0 ? n : j + 1;
            lastSignificant = close;
            i = j;
            continue;
        }
        const bool compared = lastSignificant == QLatin1Char('=') || lastSignificant == QLatin1Char('<')
                              || lastSignificant == QLatin1Char('>');
        if (isDigit(c) && compared && out.values.size() < 999) {
            qsizetype j = i;
            while (j < n && isDigit(jetSql[j]))
                ++j;
            bool real = false;
            if (j < n && jetSql[j] == QLatin1Char('.')) {
                real = true;
                ++j;
                while (j < n && isDigit(jetSql[j]))
                    ++j;
            }
            if (j < n && (isWordChar(jetSql[j]) || jetSql[j] == QLatin1Char('.'))) {
                // An exponent, a name that starts with digits or anything unusual: left as it is.
                lastSignificant = jetSql[j - 1];
                i = j;
                continue;
            }
            const QString number = jetSql.mid(i, j - i);
            bool ok = false;
            const QVariant value = real ? QVariant(number.toDouble(&ok)) : QVariant(number.toLongLong(&ok));
            if (ok) {
                out.templateText += QStringView(jetSql).mid(copied, i - copied);
                out.templateText += marker(static_cast<int>(out.values.size()) + 1);
                out.values.push_back(value);
                copied = j;
            }
            lastSignificant = jetSql[j - 1];
            i = j;
            continue;
        }
        if (!c.isSpace())
            lastSignificant = c;
        ++i;
    }
    out.templateText += QStringView(jetSql).mid(copied);
    return out;
}

bool markersToParameters(QString &sql, int count)
{
    qsizetype from = 0;
    for (int k = 1; k <= count; ++k) {
        const QString m = marker(k);
        const qsizetype at = sql.indexOf(m, from);
        if (at < 0 || sql.indexOf(m, at + m.size()) >= 0)
            return false;
        const QString param = QStringLiteral("?%1").arg(k);
        sql.replace(at, m.size(), param);
        from = at + param.size();
    }
    return !sql.contains(kMarker);
}
