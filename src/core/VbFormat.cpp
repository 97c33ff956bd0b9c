// SPDX-License-Identifier: MIT
#include "VbFormat.h"

#include "VbError.h"

#include <QHash>

#include <array>
#include <cfloat>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <vector>

namespace vb {
namespace {

// ---------------------------------------------------------------------------------------------
// Decimal digits of a number
// ---------------------------------------------------------------------------------------------

//! A number as decimal digits: value = ±0.<digits> × 10^point. The digits carry no leading or
//! trailing zeros; no digits at all is zero. All rounding for display happens on this form.
struct Decimal {
    bool negative = false;
    std::string digits;
    int point = 0;

    bool isZero() const { return digits.empty(); }
};

void stripTrailingZeros(Decimal &d)
{
    while (!d.digits.empty() && d.digits.back() == '0')
        d.digits.pop_back();
    if (d.digits.empty()) {
        d.point = 0;
        d.negative = false;
    }
}

//! Reads the "d.ddde±xx" text that std::to_chars writes in scientific form.
Decimal fromScientific(const char *first, const char *last)
{
    Decimal d;
    const char *p = first;
    if (p != last && *p == '-') {
        d.negative = true;
        ++p;
    }
    for (; p != last && *p != 'e'; ++p) {
        if (*p >= '0' && *p <= '9')
            d.digits.push_back(*p);
    }
    int exponent = 0;
    if (p != last) {
        ++p;  // 'e'
        if (p != last && *p == '+')
            ++p;
        std::from_chars(p, last, exponent);
    }
    size_t lead = 0;
    while (lead < d.digits.size() && d.digits[lead] == '0')
        ++lead;
    d.digits.erase(0, lead);
    d.point = exponent + 1;
    stripTrailingZeros(d);
    return d;
}

//! A double's digits as the legacy runtime sees them: correctly rounded to 15 significant digits,
//! which is the shortest round-trip text whenever that has 15 digits or fewer.
Decimal decimalOf(double value)
{
    char buf[64];
    const auto r = std::to_chars(buf, buf + sizeof buf, value, std::chars_format::scientific, 14);
    return fromScientific(buf, r.ptr);
}

//! A single's digits: correctly rounded to 7 significant digits.
Decimal decimalOf(float value)
{
    char buf[48];
    const auto r = std::to_chars(buf, buf + sizeof buf, value, std::chars_format::scientific, 6);
    return fromScientific(buf, r.ptr);
}

Decimal decimalOf(qint64 value)
{
    Decimal d;
    char buf[32];
    const auto r = std::to_chars(buf, buf + sizeof buf, value);
    const char *p = buf;
    if (*p == '-') {
        d.negative = true;
        ++p;
    }
    d.digits.assign(p, size_t(r.ptr - p));
    if (d.digits == "0")
        d.digits.clear();
    d.point = int(d.digits.size());
    stripTrailingZeros(d);
    return d;
}

Decimal decimalOf(quint64 value)
{
    Decimal d;
    char buf[32];
    const auto r = std::to_chars(buf, buf + sizeof buf, value);
    d.digits.assign(buf, r.ptr);
    if (d.digits == "0")
        d.digits.clear();
    d.point = int(d.digits.size());
    stripTrailingZeros(d);
    return d;
}

//! Keeps `decimals` digits after the point, rounding half away from zero on the decimal digits.
void roundAt(Decimal &d, int decimals)
{
    const int keep = d.point + decimals;
    if (keep >= int(d.digits.size()))
        return;
    if (keep < 0) {
        d.digits.clear();
        d.point = 0;
        return;
    }
    const bool up = d.digits[size_t(keep)] >= '5';
    d.digits.resize(size_t(keep));
    if (up) {
        while (!d.digits.empty() && d.digits.back() == '9')
            d.digits.pop_back();
        if (d.digits.empty()) {
            d.digits = "1";
            ++d.point;  // the carry ran out of the leading digit: 9.99 -> 10
        } else {
            ++d.digits.back();
        }
    }
    const bool negative = d.negative;
    stripTrailingZeros(d);
    if (!d.digits.empty())
        d.negative = negative;
}

// ---------------------------------------------------------------------------------------------
// Default text of numbers
// ---------------------------------------------------------------------------------------------

void appendExponent(QString &out, int exponent, bool forcePlus, int minDigits)
{
    if (exponent < 0)
        out += QLatin1Char('-');
    else if (forcePlus)
        out += QLatin1Char('+');
    char buf[16];
    const auto r = std::to_chars(buf, buf + sizeof buf, exponent < 0 ? -exponent : exponent);
    for (int pad = minDigits - int(r.ptr - buf); pad > 0; --pad)
        out += QLatin1Char('0');
    out += QLatin1String(buf, int(r.ptr - buf));
}

//! Plain digits between 1E-05 and the precision limit, exponent form ("1.5E+08") outside.
QString numberText(const Decimal &d, int precision)
{
    if (d.isZero())
        return QStringLiteral("0");
    QString out;
    out.reserve(int(d.digits.size()) + 8);
    if (d.negative)
        out += QLatin1Char('-');
    const int len = int(d.digits.size());
    const int exponent = d.point - 1;
    if (exponent < -5 || exponent >= precision) {
        out += QLatin1Char(d.digits[0]);
        if (len > 1) {
            out += QLatin1Char('.');
            out += QLatin1String(d.digits.data() + 1, len - 1);
        }
        out += QLatin1Char('E');
        appendExponent(out, exponent, true, 2);
    } else if (d.point <= 0) {
        out += QLatin1String("0.");
        for (int i = d.point; i < 0; ++i)
            out += QLatin1Char('0');
        out += QLatin1String(d.digits.data(), len);
    } else if (d.point >= len) {
        out += QLatin1String(d.digits.data(), len);
        for (int i = len; i < d.point; ++i)
            out += QLatin1Char('0');
    } else {
        out += QLatin1String(d.digits.data(), d.point);
        out += QLatin1Char('.');
        out += QLatin1String(d.digits.data() + d.point, len - d.point);
    }
    return out;
}

QString nonFiniteText(double value)
{
    if (std::isnan(value))
        return QStringLiteral("-1.#IND");
    return value < 0 ? QStringLiteral("-1.#INF") : QStringLiteral("1.#INF");
}

// ---------------------------------------------------------------------------------------------
// Reading numbers from text
// ---------------------------------------------------------------------------------------------

enum class Parse { Ok, NotNumber, Overflow };

inline bool isDigit(QChar c) { return c.unicode() >= '0' && c.unicode() <= '9'; }

int hexValue(char16_t c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    if (c >= 'A' && c <= 'F')
        return c - 'A' + 10;
    return -1;
}

//! A radix literal's value: up to 0xFFFF is an Integer and up to 0xFFFFFFFF a Long, both read as
//! two's complement (so "&HFFFF" is -1), as the legacy runtime does.
std::optional<double> radixValue(quint64 raw)
{
    if (raw <= 0xFFFFu)
        return double(qint16(quint16(raw)));
    if (raw <= 0xFFFFFFFFu)
        return double(qint32(quint32(raw)));
    return std::nullopt;
}

//! Reads the digits of "&H..." or "&O..." starting after the prefix; returns the raw value and
//! advances `i`. `overflow` is set when the digits exceed 32 bits.
quint64 readRadixDigits(const QString &text, qsizetype &i, int radix, bool skipBlanks, bool &overflow,
                        int &count)
{
    quint64 raw = 0;
    count = 0;
    overflow = false;
    for (; i < text.size(); ++i) {
        const char16_t c = text[i].unicode();
        if (skipBlanks && (c == ' ' || c == '\t' || c == '\n'))
            continue;
        const int v = radix == 16 ? hexValue(c) : (c >= '0' && c <= '7' ? c - '0' : -1);
        if (v < 0)
            break;
        raw = raw * quint64(radix) + quint64(v);
        if (raw > 0xFFFFFFFFull)
            overflow = true;
        ++count;
    }
    return raw;
}

//! Decimal magnitude of a clean "digits.digitsE±exp" number, used to tell overflow from underflow
//! when std::from_chars reports the value out of range.
bool magnitudeIsLarge(const std::string &clean)
{
    size_t i = 0;
    if (i < clean.size() && clean[i] == '-')
        ++i;
    long magnitude = 0;
    bool seenNonZero = false;
    bool inFraction = false;
    for (; i < clean.size() && clean[i] != 'e'; ++i) {
        const char c = clean[i];
        if (c == '.') {
            inFraction = true;
            continue;
        }
        if (!seenNonZero) {
            if (c == '0') {
                if (inFraction)
                    --magnitude;
                continue;
            }
            seenNonZero = true;
        }
        if (!inFraction)
            ++magnitude;
    }
    if (i < clean.size()) {
        long exponent = 0;
        const char *p = clean.data() + i + 1;
        const char *end = clean.data() + clean.size();
        bool neg = false;
        if (p != end && (*p == '-' || *p == '+'))
            neg = *p++ == '-';
        for (; p != end; ++p)
            exponent = std::min(exponent * 10 + (*p - '0'), 100000L);
        magnitude += neg ? -exponent : exponent;
    }
    return magnitude > 0;
}

//! The text-to-number rules of CDbl/CSng: blanks around, a sign in front or behind, parentheses for
//! a negative amount, a "$", thousands commas in the integer digits, a fraction, an exponent with E
//! or D, or a "&H"/"&O" literal. Fills `clean` with "-ddd.ddde-xx" for std::from_chars, or sets
//! `radix` for a radix literal.
Parse normalizeNumber(const QString &text, std::string &clean, std::optional<double> &radix)
{
    clean.clear();
    radix.reset();
    qsizetype i = 0;
    qsizetype end = text.size();
    while (i < end && text[i].isSpace())
        ++i;
    while (end > i && text[end - 1].isSpace())
        --end;
    if (i == end)
        return Parse::NotNumber;

    if (text[i] == QLatin1Char('&') && i + 1 < end) {
        const char16_t kind = text[i + 1].unicode();
        int radixBase = 0;
        if (kind == 'H' || kind == 'h')
            radixBase = 16;
        else if (kind == 'O' || kind == 'o')
            radixBase = 8;
        if (radixBase == 0)
            return Parse::NotNumber;
        qsizetype j = i + 2;
        bool overflow = false;
        int count = 0;
        const QString body = text.left(end);
        const quint64 raw = readRadixDigits(body, j, radixBase, false, overflow, count);
        if (count == 0 || j != end)
            return Parse::NotNumber;
        if (overflow)
            return Parse::Overflow;
        radix = radixValue(raw);
        return radix ? Parse::Ok : Parse::Overflow;
    }

    bool negative = false;
    bool signSeen = false;
    bool parens = false;
    bool currency = false;
    auto takePrefix = [&]() {
        bool any = true;
        while (any && i < end) {
            any = false;
            const char16_t c = text[i].unicode();
            if ((c == '+' || c == '-') && !signSeen) {
                negative = c == '-';
                signSeen = true;
                any = true;
            } else if (c == '(' && !parens && !signSeen) {
                parens = true;
                any = true;
            } else if (c == '$' && !currency) {
                currency = true;
                any = true;
            }
            if (any)
                ++i;
        }
    };
    takePrefix();

    if (negative)
        clean.push_back('-');
    bool anyDigit = false;
    bool intDigit = false;
    for (; i < end; ++i) {
        const QChar c = text[i];
        if (isDigit(c)) {
            clean.push_back(char(c.unicode()));
            anyDigit = intDigit = true;
        } else if (c == QLatin1Char(',') && intDigit) {
            continue;
        } else {
            break;
        }
    }
    if (i < end && text[i] == QLatin1Char('.')) {
        clean.push_back('.');
        for (++i; i < end && isDigit(text[i]); ++i) {
            clean.push_back(char(text[i].unicode()));
            anyDigit = true;
        }
    }
    if (!anyDigit)
        return Parse::NotNumber;
    if (i < end) {
        const char16_t c = text[i].unicode();
        if (c == 'e' || c == 'E' || c == 'd' || c == 'D') {
            qsizetype j = i + 1;
            std::string exponent = "e";
            if (j < end && (text[j] == QLatin1Char('+') || text[j] == QLatin1Char('-')))
                exponent.push_back(char(text[j++].unicode()));
            const qsizetype digitsFrom = j;
            for (; j < end && isDigit(text[j]); ++j)
                exponent.push_back(char(text[j].unicode()));
            if (j == digitsFrom)
                return Parse::NotNumber;
            clean += exponent;
            i = j;
        }
    }
    // What may follow the number: a closing parenthesis, a trailing sign, blanks.
    while (i < end && text[i].isSpace())
        ++i;
    if (parens) {
        if (i >= end || text[i] != QLatin1Char(')'))
            return Parse::NotNumber;
        ++i;
        if (signSeen)
            return Parse::NotNumber;
        clean.insert(clean.begin(), '-');
    } else if (i < end && !signSeen && (text[i] == QLatin1Char('-') || text[i] == QLatin1Char('+'))) {
        if (text[i] == QLatin1Char('-'))
            clean.insert(clean.begin(), '-');
        ++i;
    }
    return i == end ? Parse::Ok : Parse::NotNumber;
}

template <typename T>
Parse parseText(const QString &text, T &out)
{
    std::string clean;
    std::optional<double> radix;
    const Parse p = normalizeNumber(text, clean, radix);
    if (p != Parse::Ok)
        return p;
    if (radix) {
        out = T(*radix);
        return Parse::Ok;
    }
    T value{};
    const auto r = std::from_chars(clean.data(), clean.data() + clean.size(), value);
    if (r.ec == std::errc::result_out_of_range) {
        if (magnitudeIsLarge(clean))
            return Parse::Overflow;
        value = T(0);
    } else if (r.ec != std::errc() || r.ptr != clean.data() + clean.size()) {
        return Parse::NotNumber;
    }
    out = value == T(0) ? T(0) : value;  // no negative zero
    return Parse::Ok;
}

// ---------------------------------------------------------------------------------------------
// Dates
// ---------------------------------------------------------------------------------------------

constexpr std::array<const char *, 12> kMonthNames = {"January", "February", "March",     "April",
                                                      "May",     "June",     "July",      "August",
                                                      "September", "October", "November", "December"};
constexpr std::array<const char *, 7> kDayNames = {"Sunday",   "Monday", "Tuesday", "Wednesday",
                                                   "Thursday", "Friday", "Saturday"};

const QDate &serialOrigin()
{
    static const QDate origin(1899, 12, 30);
    return origin;
}

double dateToSerial(const QDateTime &moment)
{
    const qint64 days = serialOrigin().daysTo(moment.date());
    const double fraction = moment.time().msecsSinceStartOfDay() / 86400000.0;
    // Before the origin the time of day still counts away from zero: -1.25 is 29 Dec 1899, 6:00.
    return days < 0 ? double(days) - fraction : double(days) + fraction;
}

std::optional<QDateTime> serialToDate(double serial)
{
    if (!std::isfinite(serial) || serial < -657434.0 || serial >= 2958466.0)
        return std::nullopt;
    const double whole = std::trunc(serial);
    qint64 msecs = std::llround(std::fabs(serial - whole) * 86400.0) * 1000;
    QDate date = serialOrigin().addDays(qint64(whole));
    if (msecs >= 86400000) {
        msecs -= 86400000;
        date = date.addDays(whole < 0 ? -1 : 1);
    }
    return QDateTime(date, QTime::fromMSecsSinceStartOfDay(int(msecs)));
}

bool isSerialOrigin(const QDate &date) { return date == serialOrigin(); }

QString twoDigits(int v)
{
    QString s;
    s.reserve(2);
    s += QLatin1Char(char('0' + (v / 10) % 10));
    s += QLatin1Char(char('0' + v % 10));
    return s;
}

QString timeText(const QTime &time)
{
    const int h = time.hour();
    const int h12 = h % 12 == 0 ? 12 : h % 12;
    return QString::number(h12) + QLatin1Char(':') + twoDigits(time.minute()) + QLatin1Char(':') +
           twoDigits(time.second()) + (h < 12 ? QLatin1String(" AM") : QLatin1String(" PM"));
}

enum class DateTok : quint8 {
    Literal, General, Day, Day2, DayAbbr, DayName, ShortDate, LongDate, Weekday, WeekOfYear,
    Month, Month2, MonthAbbr, MonthName, Quarter, DayOfYear, Year2, Year4,
    Hour, Hour2, Minute, Minute2, Second, Second2, LongTime, AmPm
};

struct DateToken {
    DateTok kind;
    QString text;  // literal text, or the two AM/PM texts joined as "AM|PM"
};

std::vector<DateToken> tokenizeDatePattern(const QString &pattern)
{
    std::vector<DateToken> out;
    auto literal = [&out](const QString &t) {
        if (!out.empty() && out.back().kind == DateTok::Literal)
            out.back().text += t;
        else
            out.push_back({DateTok::Literal, t});
    };
    bool afterHour = false;
    const qsizetype n = pattern.size();
    for (qsizetype i = 0; i < n;) {
        const QChar c = pattern[i];
        const char16_t lc = c.toLower().unicode();
        auto run = [&]() {
            qsizetype j = i;
            while (j < n && pattern[j].toLower().unicode() == lc)
                ++j;
            const int len = int(j - i);
            i = j;
            return len;
        };
        if (c == QLatin1Char('"')) {
            const qsizetype close = pattern.indexOf(QLatin1Char('"'), i + 1);
            const qsizetype stop = close < 0 ? n : close;
            literal(pattern.mid(i + 1, stop - i - 1));
            i = stop + 1;
            continue;
        }
        if (c == QLatin1Char('\\')) {
            if (i + 1 < n)
                literal(QString(pattern[i + 1]));
            i += 2;
            continue;
        }
        if (pattern.mid(i, 5).compare(QLatin1String("am/pm"), Qt::CaseInsensitive) == 0) {
            const bool upper = c.isUpper();
            out.push_back({DateTok::AmPm, upper ? QStringLiteral("AM|PM") : QStringLiteral("am|pm")});
            i += 5;
            continue;
        }
        if (pattern.mid(i, 4).compare(QLatin1String("ampm"), Qt::CaseInsensitive) == 0) {
            out.push_back({DateTok::AmPm, QStringLiteral("AM|PM")});
            i += 4;
            continue;
        }
        if (pattern.mid(i, 3).compare(QLatin1String("a/p"), Qt::CaseInsensitive) == 0) {
            out.push_back({DateTok::AmPm, c.isUpper() ? QStringLiteral("A|P") : QStringLiteral("a|p")});
            i += 3;
            continue;
        }
        switch (lc) {
        case 'c':
            ++i;
            out.push_back({DateTok::General, {}});
            break;
        case 'd': {
            static constexpr DateTok kinds[] = {DateTok::Day, DateTok::Day2, DateTok::DayAbbr,
                                                DateTok::DayName, DateTok::ShortDate, DateTok::LongDate};
            int len = run();
            while (len > 0) {
                const int take = std::min(len, 6);
                out.push_back({kinds[take - 1], {}});
                len -= take;
            }
            break;
        }
        case 'w':
            out.push_back({run() >= 2 ? DateTok::WeekOfYear : DateTok::Weekday, {}});
            break;
        case 'm': {
            const int len = run();
            if (afterHour && len <= 2)
                out.push_back({len == 2 ? DateTok::Minute2 : DateTok::Minute, {}});
            else
                out.push_back({len == 1   ? DateTok::Month
                               : len == 2 ? DateTok::Month2
                               : len == 3 ? DateTok::MonthAbbr
                                          : DateTok::MonthName,
                               {}});
            break;
        }
        case 'n':
            out.push_back({run() >= 2 ? DateTok::Minute2 : DateTok::Minute, {}});
            break;
        case 'q':
            ++i;
            out.push_back({DateTok::Quarter, {}});
            break;
        case 'y': {
            const int len = run();
            out.push_back({len == 1 ? DateTok::DayOfYear : len == 2 ? DateTok::Year2 : DateTok::Year4, {}});
            break;
        }
        case 'h':
            out.push_back({run() >= 2 ? DateTok::Hour2 : DateTok::Hour, {}});
            break;
        case 's':
            out.push_back({run() >= 2 ? DateTok::Second2 : DateTok::Second, {}});
            break;
        case 't': {
            const int len = run();
            if (len >= 5)
                out.push_back({DateTok::LongTime, {}});
            else
                literal(QString(len, c));
            break;
        }
        default:
            literal(QString(c));
            ++i;
            break;
        }
        // An "m" right after an hour (with only separators between) is minutes.
        const DateTok last = out.empty() ? DateTok::Literal : out.back().kind;
        if (last == DateTok::Hour || last == DateTok::Hour2)
            afterHour = true;
        else if (last != DateTok::Literal)
            afterHour = false;
    }
    return out;
}

int weekday(const QDate &date) { return date.dayOfWeek() % 7 + 1; }  // Sunday = 1

QString longDate(const QDate &date)
{
    return QLatin1String(kDayNames[size_t(weekday(date) - 1)]) + QLatin1String(", ") +
           QLatin1String(kMonthNames[size_t(date.month() - 1)]) + QLatin1Char(' ') +
           QString::number(date.day()) + QLatin1String(", ") + QString::number(date.year());
}

QString formatDateTokens(const QDateTime &moment, const std::vector<DateToken> &tokens)
{
    const QDate date = moment.date();
    const QTime time = moment.time();
    bool twelveHour = false;
    for (const auto &t : tokens)
        twelveHour = twelveHour || t.kind == DateTok::AmPm;
    QString out;
    for (const auto &t : tokens) {
        switch (t.kind) {
        case DateTok::Literal: out += t.text; break;
        case DateTok::General: out += defaultDateTimeText(moment); break;
        case DateTok::Day: out += QString::number(date.day()); break;
        case DateTok::Day2: out += twoDigits(date.day()); break;
        case DateTok::DayAbbr: out += QLatin1String(kDayNames[size_t(weekday(date) - 1)], 3); break;
        case DateTok::DayName: out += QLatin1String(kDayNames[size_t(weekday(date) - 1)]); break;
        case DateTok::ShortDate: out += shortDate(date); break;
        case DateTok::LongDate: out += longDate(date); break;
        case DateTok::Weekday: out += QString::number(weekday(date)); break;
        case DateTok::WeekOfYear: {
            const int jan1 = weekday(QDate(date.year(), 1, 1));
            out += QString::number((date.dayOfYear() - 1 + jan1 - 1) / 7 + 1);
            break;
        }
        case DateTok::Month: out += QString::number(date.month()); break;
        case DateTok::Month2: out += twoDigits(date.month()); break;
        case DateTok::MonthAbbr: out += QLatin1String(kMonthNames[size_t(date.month() - 1)], 3); break;
        case DateTok::MonthName: out += QLatin1String(kMonthNames[size_t(date.month() - 1)]); break;
        case DateTok::Quarter: out += QString::number((date.month() - 1) / 3 + 1); break;
        case DateTok::DayOfYear: out += QString::number(date.dayOfYear()); break;
        case DateTok::Year2: out += twoDigits(date.year() % 100); break;
        case DateTok::Year4: {
            const QString y = QString::number(date.year());
            out += y.size() < 4 ? QString(4 - y.size(), QLatin1Char('0')) + y : y;
            break;
        }
        case DateTok::Hour:
        case DateTok::Hour2: {
            int h = time.hour();
            if (twelveHour)
                h = h % 12 == 0 ? 12 : h % 12;
            out += t.kind == DateTok::Hour2 ? twoDigits(h) : QString::number(h);
            break;
        }
        case DateTok::Minute: out += QString::number(time.minute()); break;
        case DateTok::Minute2: out += twoDigits(time.minute()); break;
        case DateTok::Second: out += QString::number(time.second()); break;
        case DateTok::Second2: out += twoDigits(time.second()); break;
        case DateTok::LongTime: out += timeText(time); break;
        case DateTok::AmPm: {
            const qsizetype bar = t.text.indexOf(QLatin1Char('|'));
            out += time.hour() < 12 ? t.text.left(bar) : t.text.mid(bar + 1);
            break;
        }
        }
    }
    return out;
}

//! The named formats that stand for a whole date or time pattern.
std::optional<QString> namedDateFormat(const QString &pattern, const QDateTime &moment)
{
    const auto is = [&pattern](const char *name) {
        return pattern.compare(QLatin1String(name), Qt::CaseInsensitive) == 0;
    };
    if (is("General Date"))
        return defaultDateTimeText(moment);
    if (is("Short Date"))
        return shortDate(moment.date());
    if (is("Long Date"))
        return longDate(moment.date());
    if (is("Medium Date"))
        return formatDateTokens(moment, tokenizeDatePattern(QStringLiteral("dd-mmm-yy")));
    if (is("Long Time"))
        return timeText(moment.time());
    if (is("Medium Time"))
        return formatDateTokens(moment, tokenizeDatePattern(QStringLiteral("hh:nn AMPM")));
    if (is("Short Time"))
        return formatDateTokens(moment, tokenizeDatePattern(QStringLiteral("hh:nn")));
    return std::nullopt;
}

bool isNamedDateFormat(const QString &pattern)
{
    static const char *const names[] = {"General Date", "Short Date", "Long Date", "Medium Date",
                                        "Long Time",    "Medium Time", "Short Time"};
    for (const char *name : names)
        if (pattern.compare(QLatin1String(name), Qt::CaseInsensitive) == 0)
            return true;
    return false;
}

bool isNamedNumberFormat(const QString &pattern)
{
    static const char *const names[] = {"General Number", "Currency", "Fixed", "Standard", "Percent",
                                        "Scientific", "Yes/No", "True/False", "On/Off"};
    for (const char *name : names)
        if (pattern.compare(QLatin1String(name), Qt::CaseInsensitive) == 0)
            return true;
    return false;
}

//! True for a named date format, or a user-defined pattern with date or time letters and no digit
//! placeholders.
bool isDatePattern(const QString &pattern)
{
    if (isNamedDateFormat(pattern))
        return true;
    if (isNamedNumberFormat(pattern))
        return false;
    bool dateLetters = false;
    for (qsizetype i = 0; i < pattern.size(); ++i) {
        const char16_t c = pattern[i].unicode();
        if (c == '"') {
            const qsizetype close = pattern.indexOf(QLatin1Char('"'), i + 1);
            if (close < 0)
                break;
            i = close;
            continue;
        }
        if (c == '\\') {
            ++i;
            continue;
        }
        if (c == '0' || c == '#')
            return false;
        switch (c | 0x20) {
        case 'd': case 'm': case 'y': case 'h': case 'n': case 's': case 'w': case 'q': case 'c': case 't':
            dateLetters = true;
            break;
        default:
            break;
        }
    }
    return dateLetters;
}

QString formatDate(const QDateTime &moment, const QString &pattern)
{
    if (!moment.isValid())
        return {};
    if (auto named = namedDateFormat(pattern, moment))
        return *named;
    return formatDateTokens(moment, tokenizeDatePattern(pattern));
}

std::optional<QDateTime> parseDateText(const QString &text)
{
    const QString t = text.trimmed();
    static const char *const forms[] = {"M/d/yyyy h:mm:ss AP", "M/d/yyyy h:mm AP", "M/d/yyyy H:mm:ss",
                                        "M/d/yyyy", "yyyy-MM-dd HH:mm:ss", "yyyy-MM-ddTHH:mm:ss",
                                        "yyyy-MM-dd"};
    for (const char *form : forms) {
        const QDateTime dt = QDateTime::fromString(t, QLatin1String(form));
        if (dt.isValid())
            return dt;
    }
    return std::nullopt;
}

// ---------------------------------------------------------------------------------------------
// Numeric patterns
// ---------------------------------------------------------------------------------------------

struct NumToken {
    enum Kind : quint8 { IntDigit, FracDigit, Point, Literal, Exponent } kind;
    bool zero = false;   // '0' rather than '#'
    QString text;        // literal text, or "E"/"e" for the exponent
    bool expPlus = false;
    int expDigits = 0;
};

struct NumSection {
    std::vector<NumToken> tokens;
    int intPlaceholders = 0;
    int requiredInt = 0;       // integer digits always written (from the leftmost '0')
    int fracPlaceholders = 0;
    int lastFracZero = -1;     // last fraction position that must be written
    bool grouping = false;
    int scaleThousands = 0;
    int percent = 0;
    bool exponent = false;
    bool hasPoint = false;
    bool empty = true;
};

NumSection parseNumSection(const QString &s)
{
    NumSection sec;
    sec.empty = s.isEmpty();
    bool inFraction = false;
    bool afterExponent = false;
    int pendingCommas = 0;
    int firstZero = -1;
    auto literal = [&sec](const QString &t) {
        if (!sec.tokens.empty() && sec.tokens.back().kind == NumToken::Literal)
            sec.tokens.back().text += t;
        else
            sec.tokens.push_back({NumToken::Literal, false, t});
    };
    auto closeInteger = [&]() {
        sec.scaleThousands += pendingCommas;
        pendingCommas = 0;
    };
    const qsizetype n = s.size();
    for (qsizetype i = 0; i < n; ++i) {
        const QChar c = s[i];
        const char16_t u = c.unicode();
        if (afterExponent && (u == '0' || u == '#')) {
            ++sec.tokens.back().expDigits;
            continue;
        }
        afterExponent = false;
        switch (u) {
        case '0':
        case '#':
            if (inFraction) {
                if (u == '0')
                    sec.lastFracZero = sec.fracPlaceholders;
                ++sec.fracPlaceholders;
                sec.tokens.push_back({NumToken::FracDigit, u == '0', {}});
            } else {
                if (pendingCommas > 0)
                    sec.grouping = true;
                pendingCommas = 0;
                if (u == '0' && firstZero < 0)
                    firstZero = sec.intPlaceholders;
                ++sec.intPlaceholders;
                sec.tokens.push_back({NumToken::IntDigit, u == '0', {}});
            }
            break;
        case '.':
            if (inFraction || sec.exponent) {
                literal(QStringLiteral("."));
            } else {
                closeInteger();
                inFraction = true;
                sec.hasPoint = true;
                sec.tokens.push_back({NumToken::Point, false, {}});
            }
            break;
        case ',':
            if (!inFraction && !sec.exponent && sec.intPlaceholders > 0)
                ++pendingCommas;
            break;
        case '%':
            ++sec.percent;
            literal(QStringLiteral("%"));
            break;
        case 'E':
        case 'e':
            if (!sec.exponent && i + 1 < n && (s[i + 1] == QLatin1Char('+') || s[i + 1] == QLatin1Char('-')) &&
                sec.intPlaceholders + sec.fracPlaceholders > 0) {
                closeInteger();
                sec.exponent = true;
                NumToken t{NumToken::Exponent, false, QString(c)};
                t.expPlus = s[i + 1] == QLatin1Char('+');
                sec.tokens.push_back(t);
                afterExponent = true;
                ++i;
            } else {
                literal(QString(c));
            }
            break;
        case '"': {
            const qsizetype close = s.indexOf(QLatin1Char('"'), i + 1);
            const qsizetype stop = close < 0 ? n : close;
            literal(s.mid(i + 1, stop - i - 1));
            i = stop;
            break;
        }
        case '\\':
            if (i + 1 < n)
                literal(QString(s[++i]));
            break;
        default:
            literal(QString(c));
            break;
        }
    }
    closeInteger();
    sec.requiredInt = firstZero < 0 ? 0 : sec.intPlaceholders - firstZero;
    return sec;
}

//! A pattern as the number formatting uses it: what kind it is and, for a numeric one, its sections.
struct NumPattern {
    enum class Kind : quint8 { Numeric, General, Truth, Date } kind = Kind::Numeric;
    std::vector<NumSection> sections;
    QString whenTrue, whenFalse;
};

std::vector<QString> splitSections(const QString &pattern)
{
    std::vector<QString> parts;
    QString current;
    bool quoted = false;
    for (qsizetype i = 0; i < pattern.size(); ++i) {
        const QChar c = pattern[i];
        if (c == QLatin1Char('"'))
            quoted = !quoted;
        if (!quoted && c == QLatin1Char('\\') && i + 1 < pattern.size()) {
            current += c;
            current += pattern[++i];
            continue;
        }
        if (!quoted && c == QLatin1Char(';')) {
            parts.push_back(current);
            current.clear();
            continue;
        }
        current += c;
    }
    parts.push_back(current);
    return parts;
}

//! Writes a non-negative number through one section.
QString renderSection(Decimal d, const NumSection &sec)
{
    d.negative = false;
    if (!d.isZero())
        d.point += 2 * sec.percent - 3 * sec.scaleThousands;
    const int fracCount = sec.fracPlaceholders;
    int exponent = 0;
    if (sec.exponent) {
        const int intCount = sec.intPlaceholders;
        if (!d.isZero()) {
            exponent = d.point - intCount;
            d.point = intCount;
            roundAt(d, fracCount);
            if (!d.isZero() && d.point > intCount) {
                exponent += d.point - intCount;
                d.point = intCount;
            }
        }
    } else {
        roundAt(d, fracCount);
    }

    std::string intDigits;
    if (!d.isZero() && d.point > 0) {
        intDigits.reserve(size_t(d.point));
        for (int i = 0; i < d.point; ++i)
            intDigits.push_back(i < int(d.digits.size()) ? d.digits[size_t(i)] : '0');
    }
    if (int(intDigits.size()) < sec.requiredInt)
        intDigits.insert(0, size_t(sec.requiredInt) - intDigits.size(), '0');
    const int intLen = int(intDigits.size());

    std::string fracDigits(size_t(fracCount), '0');
    int lastShown = sec.lastFracZero;
    for (int j = 0; j < fracCount; ++j) {
        const int pos = d.point + j;
        if (pos >= 0 && pos < int(d.digits.size())) {
            fracDigits[size_t(j)] = d.digits[size_t(pos)];
            if (fracDigits[size_t(j)] != '0')
                lastShown = std::max(lastShown, j);
        }
    }

    QString out;
    out.reserve(intLen + intLen / 3 + fracCount + 8);
    auto putIntDigit = [&](int g) {
        if (sec.grouping && g > 0 && (intLen - g) % 3 == 0)
            out += QLatin1Char(',');
        out += QLatin1Char(intDigits[size_t(g)]);
    };
    // Digits beyond the placeholders all go into the leftmost one; the others take one digit each
    // counting from the right.
    int intIndex = 0;
    int fracIndex = 0;
    bool intWritten = false;
    for (const NumToken &t : sec.tokens) {
        switch (t.kind) {
        case NumToken::IntDigit: {
            const int slot = intIndex++;
            const int g = intLen - sec.intPlaceholders + slot;
            if (slot == 0) {
                for (int k = 0; k <= g; ++k)
                    putIntDigit(k);
            } else if (g >= 0) {
                putIntDigit(g);
            }
            intWritten = true;
            break;
        }
        case NumToken::FracDigit: {
            const int j = fracIndex++;
            if (j <= lastShown)
                out += QLatin1Char(fracDigits[size_t(j)]);
            break;
        }
        case NumToken::Point:
            if (!intWritten && sec.intPlaceholders == 0)
                for (int k = 0; k < intLen; ++k)
                    putIntDigit(k);
            intWritten = true;
            out += QLatin1Char('.');
            break;
        case NumToken::Literal:
            out += t.text;
            break;
        case NumToken::Exponent:
            out += t.text;
            appendExponent(out, exponent, t.expPlus, t.expDigits);
            break;
        }
    }
    return out;
}

//! A number through a pattern of up to three sections: positive; negative; zero.
QString formatDecimal(const Decimal &d, const NumPattern &p)
{
    const auto &secs = p.sections;
    if (d.isZero() && secs.size() >= 3 && !secs[2].empty)
        return renderSection(d, secs[2]);
    if (d.negative && secs.size() >= 2 && !secs[1].empty)
        return renderSection(d, secs[1]);
    QString body = renderSection(d, secs[0]);
    // A negative amount keeps its sign even when it rounds to zero ("-0.00").
    if (d.negative)
        body.prepend(QLatin1Char('-'));
    return body;
}

//! The named numeric formats, as patterns.
std::optional<QString> namedNumericPattern(const QString &pattern)
{
    const auto is = [&pattern](const char *name) {
        return pattern.compare(QLatin1String(name), Qt::CaseInsensitive) == 0;
    };
    if (is("Fixed"))
        return QStringLiteral("0.00");
    if (is("Standard"))
        return QStringLiteral("#,##0.00");
    if (is("Percent"))
        return QStringLiteral("0.00%");
    if (is("Scientific"))
        return QStringLiteral("0.00E+00");
    if (is("Currency"))
        return QStringLiteral("$#,##0.00;($#,##0.00)");
    return std::nullopt;
}

std::optional<QString> namedTruthFormat(const QString &pattern, bool isTrue)
{
    const auto is = [&pattern](const char *name) {
        return pattern.compare(QLatin1String(name), Qt::CaseInsensitive) == 0;
    };
    if (is("Yes/No"))
        return isTrue ? QStringLiteral("Yes") : QStringLiteral("No");
    if (is("True/False"))
        return isTrue ? QStringLiteral("True") : QStringLiteral("False");
    if (is("On/Off"))
        return isTrue ? QStringLiteral("On") : QStringLiteral("Off");
    return std::nullopt;
}

//! Formats a number held as digits; `asDate` turns it into a date serial for date patterns and
//! `defaultText` is its text for an empty or "General Number" pattern.
//! Parsed patterns are kept per thread: the program formats with a handful of patterns in loops.
const NumPattern &numPattern(const QString &pattern)
{
    thread_local QHash<QString, NumPattern> cache;
    auto it = cache.constFind(pattern);
    if (it != cache.constEnd())
        return *it;
    if (cache.size() > 256)
        cache.clear();
    NumPattern parsed;
    if (pattern.isEmpty() || pattern.compare(QLatin1String("General Number"), Qt::CaseInsensitive) == 0) {
        parsed.kind = NumPattern::Kind::General;
    } else if (auto yes = namedTruthFormat(pattern, true)) {
        parsed.kind = NumPattern::Kind::Truth;
        parsed.whenTrue = *yes;
        parsed.whenFalse = *namedTruthFormat(pattern, false);
    } else if (auto named = namedNumericPattern(pattern)) {
        for (const QString &part : splitSections(*named))
            parsed.sections.push_back(parseNumSection(part));
    } else if (isDatePattern(pattern)) {
        parsed.kind = NumPattern::Kind::Date;
    } else {
        for (const QString &part : splitSections(pattern))
            parsed.sections.push_back(parseNumSection(part));
    }
    return *cache.insert(pattern, std::move(parsed));
}

//! Formats a number held as digits; a date pattern reads it as a date serial, and `defaultText`
//! gives its text for an empty or "General Number" pattern.
template <typename Value, typename DefaultText>
QString formatNumber(const Decimal &d, Value value, const QString &pattern, DefaultText defaultText)
{
    const NumPattern &p = numPattern(pattern);
    switch (p.kind) {
    case NumPattern::Kind::General:
        return defaultText();
    case NumPattern::Kind::Truth:
        return d.isZero() ? p.whenFalse : p.whenTrue;
    case NumPattern::Kind::Date: {
        const auto moment = serialToDate(double(value));
        return moment ? formatDate(*moment, pattern) : defaultText();
    }
    case NumPattern::Kind::Numeric:
        break;
    }
    return formatDecimal(d, p);
}

bool isNull(const QVariant &v) { return !v.isValid() || v.isNull(); }

//! A number read from text, or the runtime's error: 6 when it is out of range, 13 when it is no number.
template <typename T>
T parseTextChecked(const QString &text)
{
    T out = 0;
    switch (parseText(text, out)) {
    case Parse::Ok: return out;
    case Parse::Overflow: throw VbError::overflow();
    case Parse::NotNumber: break;
    }
    throw VbError::typeMismatch();
}

//! The integer, floating-point and character types, which the runtime reads as numbers.
bool isNumberType(int typeId)
{
    switch (typeId) {
    case QMetaType::Double:
    case QMetaType::Float:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Long:
    case QMetaType::ULong:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::SChar:
    case QMetaType::UChar:
    case QMetaType::Char:
        return true;
    default:
        return false;
    }
}

}  // namespace

// ---------------------------------------------------------------------------------------------
// Public functions
// ---------------------------------------------------------------------------------------------

QString vbFormat(double value, const QString &pattern)
{
    if (!std::isfinite(value))
        return nonFiniteText(value);
    const Decimal d = decimalOf(value);
    return formatNumber(d, value, pattern, [&d] { return numberText(d, 15); });
}

QString vbFormatSingle(float value, const QString &pattern)
{
    if (!std::isfinite(value))
        return nonFiniteText(value);
    const Decimal d = decimalOf(value);
    return formatNumber(d, value, pattern, [&d] { return numberText(d, 7); });
}

QString vbFormat(const QVariant &value, const QString &pattern)
{
    if (isNull(value))
        return {};
    switch (value.typeId()) {
    case QMetaType::Float:
        return vbFormatSingle(value.toFloat(), pattern);
    case QMetaType::Double:
        return vbFormat(value.toDouble(), pattern);
    case QMetaType::Bool: {
        const qint64 v = value.toBool() ? -1 : 0;
        const Decimal d = decimalOf(v);
        return formatNumber(d, double(v), pattern, [v] {
            return v != 0 ? QStringLiteral("True") : QStringLiteral("False");
        });
    }
    case QMetaType::Int:
    case QMetaType::Short:
    case QMetaType::Long:
    case QMetaType::LongLong:
    case QMetaType::SChar:
    case QMetaType::Char: {
        const qint64 v = value.toLongLong();
        const Decimal d = decimalOf(v);
        return formatNumber(d, double(v), pattern, [v] { return QString::number(v); });
    }
    case QMetaType::UInt:
    case QMetaType::UShort:
    case QMetaType::ULong:
    case QMetaType::ULongLong:
    case QMetaType::UChar: {
        const quint64 v = value.toULongLong();
        const Decimal d = decimalOf(v);
        return formatNumber(d, double(v), pattern, [v] { return QString::number(v); });
    }
    case QMetaType::QDate:
    case QMetaType::QDateTime:
    case QMetaType::QTime: {
        QDateTime moment;
        if (value.typeId() == QMetaType::QDate)
            moment = QDateTime(value.toDate(), QTime(0, 0));
        else if (value.typeId() == QMetaType::QTime)
            moment = QDateTime(serialOrigin(), value.toTime());
        else
            moment = value.toDateTime();
        if (pattern.isEmpty())
            return defaultDateTimeText(moment);
        // A numeric pattern writes the date's serial number.
        if (!isDatePattern(pattern))
            return vbFormat(dateToSerial(moment), pattern);
        return formatDate(moment, pattern);
    }
    default:
        break;
    }
    const QString text = value.toString();
    double number = 0;
    if (parseText(text, number) == Parse::Ok)
        return vbFormat(number, pattern);
    if (!pattern.isEmpty() && isDatePattern(pattern)) {
        if (auto moment = parseDateText(text))
            return formatDate(*moment, pattern);
    }
    return text;
}

namespace {

double toDoubleChecked(const QVariant &value)
{
    if (isNull(value))
        throw VbError::invalidUseOfNull();
    if (isNumberType(value.typeId()))
        return value.toDouble();
    switch (value.typeId()) {
    case QMetaType::Bool:
        return value.toBool() ? -1.0 : 0.0;
    case QMetaType::QDate:
        return dateToSerial(QDateTime(value.toDate(), QTime(0, 0)));
    case QMetaType::QDateTime:
        return dateToSerial(value.toDateTime());
    case QMetaType::QTime:
        return dateToSerial(QDateTime(serialOrigin(), value.toTime()));
    case QMetaType::QString:
    case QMetaType::QByteArray:
    case QMetaType::QChar: {
        return parseTextChecked<double>(value.toString());
    }
    default:
        break;
    }
    throw VbError::typeMismatch();
}

}  // namespace

double CDbl(const QVariant &value) { return toDoubleChecked(value); }

float CSng(const QVariant &value)
{
    if (isNull(value))
        throw VbError::invalidUseOfNull();
    switch (value.typeId()) {
    case QMetaType::Float:
        return value.toFloat();
    case QMetaType::QString:
    case QMetaType::QByteArray:
    case QMetaType::QChar: {
        // Read the text straight into single precision, without a detour through double.
        return parseTextChecked<float>(value.toString());
    }
    default:
        break;
    }
    const double d = toDoubleChecked(value);
    if (std::isnan(d))
        return std::numeric_limits<float>::quiet_NaN();
    if (std::fabs(d) > double(FLT_MAX))
        throw VbError::overflow();
    return float(d);
}

namespace {
//! Rounds half to even and checks the range of the integer type.
template <typename Int>
Int toIntegerChecked(const QVariant &value)
{
    const double d = toDoubleChecked(value);
    const double r = std::nearbyint(d);  // default rounding mode: ties to even
    if (std::isnan(r) || r < double(std::numeric_limits<Int>::min()) ||
        r > double(std::numeric_limits<Int>::max()))
        throw VbError::overflow();
    return Int(r);
}
}  // namespace

qint32 CLng(const QVariant &value) { return toIntegerChecked<qint32>(value); }
qint16 CInt(const QVariant &value) { return toIntegerChecked<qint16>(value); }

double Val(const QString &text)
{
    const qsizetype n = text.size();
    qsizetype i = 0;
    auto skipBlanks = [&]() {
        while (i < n) {
            const char16_t c = text[i].unicode();
            if (c != ' ' && c != '\t' && c != '\n')
                break;
            ++i;
        }
    };
    skipBlanks();
    if (i + 1 < n && text[i] == QLatin1Char('&')) {
        const char16_t kind = text[i + 1].unicode();
        const int radixBase = (kind == 'H' || kind == 'h') ? 16 : (kind == 'O' || kind == 'o') ? 8 : 0;
        if (radixBase == 0)
            return 0;
        i += 2;
        bool overflow = false;
        int count = 0;
        const quint64 raw = readRadixDigits(text, i, radixBase, true, overflow, count);
        if (overflow)
            throw VbError::overflow();
        return count == 0 ? 0.0 : *radixValue(raw);
    }

    std::string clean;
    clean.reserve(32);
    if (i < n && (text[i] == QLatin1Char('-') || text[i] == QLatin1Char('+'))) {
        if (text[i] == QLatin1Char('-'))
            clean.push_back('-');
        ++i;
    }
    bool anyDigit = false;
    bool pointSeen = false;
    for (;; ++i) {
        skipBlanks();
        if (i >= n)
            break;
        const QChar c = text[i];
        if (isDigit(c)) {
            clean.push_back(char(c.unicode()));
            anyDigit = true;
        } else if (c == QLatin1Char('.') && !pointSeen) {
            clean.push_back('.');
            pointSeen = true;
        } else {
            break;
        }
    }
    if (!anyDigit)
        return 0;
    if (i < n) {
        const char16_t c = text[i].unicode();
        if (c == 'e' || c == 'E' || c == 'd' || c == 'D') {
            std::string exponent = "e";
            ++i;
            skipBlanks();
            if (i < n && (text[i] == QLatin1Char('-') || text[i] == QLatin1Char('+')))
                exponent.push_back(char(text[i++].unicode()));
            bool expDigit = false;
            for (;; ++i) {
                skipBlanks();
                if (i >= n || !isDigit(text[i]))
                    break;
                exponent.push_back(char(text[i].unicode()));
                expDigit = true;
            }
            if (expDigit)
                clean += exponent;
        }
    }
    double value = 0;
    const auto r = std::from_chars(clean.data(), clean.data() + clean.size(), value);
    if (r.ec == std::errc::result_out_of_range) {
        if (magnitudeIsLarge(clean))
            throw VbError::overflow();
        return 0;
    }
    return value == 0 ? 0.0 : value;
}

QString singleToText(float value)
{
    if (!std::isfinite(value))
        return nonFiniteText(value);
    return numberText(decimalOf(value), 7);
}

QString doubleToText(double value)
{
    if (!std::isfinite(value))
        return nonFiniteText(value);
    return numberText(decimalOf(value), 15);
}

QString CStr(const QVariant &value)
{
    if (isNull(value))
        throw VbError::invalidUseOfNull();
    switch (value.typeId()) {
    case QMetaType::Float:
        return singleToText(value.toFloat());
    case QMetaType::Double:
        return doubleToText(value.toDouble());
    case QMetaType::Bool:
        return value.toBool() ? QStringLiteral("True") : QStringLiteral("False");
    case QMetaType::Int:
    case QMetaType::Short:
    case QMetaType::Long:
    case QMetaType::LongLong:
    case QMetaType::SChar:
    case QMetaType::Char:
        return QString::number(value.toLongLong());
    case QMetaType::UInt:
    case QMetaType::UShort:
    case QMetaType::ULong:
    case QMetaType::ULongLong:
    case QMetaType::UChar:
        return QString::number(value.toULongLong());
    case QMetaType::QDate:
        return shortDate(value.toDate());
    case QMetaType::QDateTime:
        return defaultDateTimeText(value.toDateTime());
    case QMetaType::QTime:
        return timeText(value.toTime());
    case QMetaType::QString:
        return value.toString();
    case QMetaType::QByteArray:
        return QString::fromUtf8(value.toByteArray());
    default:
        break;
    }
    if (value.canConvert<QString>())
        return value.toString();
    throw VbError::typeMismatch();
}

QString shortDate(const QDate &date)
{
    if (!date.isValid())
        return {};
    QString year = QString::number(date.year());
    if (year.size() < 4)
        year.prepend(QString(4 - year.size(), QLatin1Char('0')));
    return QString::number(date.month()) + QLatin1Char('/') + QString::number(date.day()) +
           QLatin1Char('/') + year;
}

QString defaultDateTimeText(const QDateTime &moment)
{
    if (!moment.isValid())
        return {};
    const QDate date = moment.date();
    const QTime time = moment.time();
    // A value on the day the serial numbers count from is a bare time of day.
    if (isSerialOrigin(date))
        return timeText(time);
    if (time.msecsSinceStartOfDay() == 0)
        return shortDate(date);
    return shortDate(date) + QLatin1Char(' ') + timeText(time);
}

bool IsNumeric(const QVariant &value)
{
    if (isNull(value))
        return false;
    if (value.typeId() == QMetaType::Bool || isNumberType(value.typeId()))
        return true;
    switch (value.typeId()) {
    case QMetaType::QString:
    case QMetaType::QByteArray:
    case QMetaType::QChar: {
        double out = 0;
        return parseText(value.toString(), out) == Parse::Ok;
    }
    default:
        return false;
    }
}

}  // namespace vb
