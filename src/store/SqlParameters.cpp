// SPDX-License-Identifier: MIT
#include "SqlParameters.h"

namespace {

// Marker n is this prefix followed by n (zero-padded): a number no statement of the program holds.
const QString kMarker = QStringLiteral("90817263544536");
constexpr qsizetype kMarkerSize = 17;

//! Writes marker n (1..999) at out, kMarkerSize characters.
void writeMarker(QChar *out, int n)
{
    std::copy(kMarker.constBegin(), kMarker.constEnd(), out);
    out[14] = QLatin1Char(char('0' + n / 100));
    out[15] = QLatin1Char(char('0' + n / 10 % 10));
    out[16] = QLatin1Char(char('0' + n % 10));
}

QString marker(int n)
{
    QString out(kMarkerSize, Qt::Uninitialized);
    writeMarker(out.data(), n);
    return out;
}

bool isDigit(QChar c) { return c >= QLatin1Char('0') && c <= QLatin1Char('9'); }
bool isWordChar(QChar c) { return c.isLetterOrNumber() || c == QLatin1Char('_'); }

}  // namespace

void takeComparedNumbers(const QString &jetSql, SqlParameters &out)
{
    // Runs for every statement a window or a lookup opens, so it reads the text once, makes no text
    // for the numbers it reads and writes the template in place. A text that already holds a marker
    // needs no check here: its markers do not come through translation once each, and it is then
    // translated with its numbers.
    out.values.clear();
    QVarLengthArray<std::pair<qsizetype, qsizetype>, 4> spans;   // where each number taken out starts and ends
    const qsizetype n = jetSql.size();
    const QChar *text = jetSql.constData();
    for (qsizetype i = 0; i < n;) {
        const char16_t c = text[i].unicode();
        if (c == u'\'' || c == u'"' || c == u'[' || c == u'#' || c == u'`') {
            const char16_t close = c == u'[' ? u']' : c;
            qsizetype j = i + 1;
            while (j < n && text[j].unicode() != close)
                ++j;
            i = j < n ? j + 1 : n;
            continue;
        }
        if (c < u'0' || c > u'9' || (i > 0 && isWordChar(text[i - 1]))) {
            ++i;
            continue;
        }
        // A number that starts here counts when a comparison is the last thing before it (blanks
        // aside); a closing quote or bracket before it is not one.
        qsizetype before = i - 1;
        while (before >= 0 && text[before].isSpace())
            --before;
        const char16_t last = before >= 0 ? text[before].unicode() : u' ';
        qsizetype j = i;
        qint64 whole = 0;
        while (j < n && isDigit(text[j])) {
            whole = whole * 10 + (text[j].unicode() - '0');
            ++j;
        }
        bool real = false;
        if (j < n && text[j] == QLatin1Char('.')) {
            real = true;
            ++j;
            while (j < n && isDigit(text[j]))
                ++j;
        }
        const bool compared = last == u'=' || last == u'<' || last == u'>';
        // An exponent, a name that starts with digits or anything unusual is left as it is.
        if (!compared || out.values.size() >= 999 || (j < n && (isWordChar(text[j]) || text[j] == QLatin1Char('.')))) {
            i = j;
            continue;
        }
        bool ok = true;
        QVariant value;
        if (real)
            value = QStringView(text + i, j - i).toDouble(&ok);
        else if (j - i > 18)   // may not fit: read with an overflow check
            value = QStringView(text + i, j - i).toLongLong(&ok);
        else
            value = qlonglong(whole);
        if (ok) {
            spans.append({i, j});
            out.values.push_back(std::move(value));
        }
        i = j;
    }
    if (spans.isEmpty()) {
        out.templateText = jetSql;   // no numbers: the text itself, shared
        return;
    }
    qsizetype size = n;
    for (const auto &[from, to] : spans)
        size += kMarkerSize - (to - from);
    out.templateText.resize(size);   // keeps the capacity of the last template when it is not shared
    QChar *w = out.templateText.data();
    qsizetype copied = 0;
    for (qsizetype k = 0; k < spans.size(); ++k) {
        w = std::copy(text + copied, text + spans[k].first, w);
        writeMarker(w, static_cast<int>(k) + 1);
        w += kMarkerSize;
        copied = spans[k].second;
    }
    std::copy(text + copied, text + n, w);
}

bool markersToParameters(QString &sql, int count)
{
    qsizetype from = 0;
    for (int k = 1; k <= count; ++k) {
        const QString m = marker(k);
        const qsizetype at = sql.indexOf(m, from);
        if (at < 0 || sql.indexOf(m, at + m.size()) >= 0)
            return false;
        const QString param = QLatin1Char('?') + QString::number(k);
        sql.replace(at, m.size(), param);
        from = at + param.size();
    }
    return !sql.contains(kMarker);
}
