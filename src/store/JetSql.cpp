// SPDX-License-Identifier: MIT
#include "JetSql.h"

#include "VbError.h"

#include <QDate>
#include <QStringList>
#include <QTime>

#include <algorithm>
#include <array>
#include <string_view>
#include <vector>

#include <sqlite3.h>

namespace {

// ---------------------------------------------------------------------------------------------
// Tokens
// ---------------------------------------------------------------------------------------------

enum class Tk : unsigned char {
    Word,    // bare identifier or keyword
    Name,    // [bracketed] or `quoted` identifier
    String,  // '...' or "..."
    Number,
    Date,    // #...#, already converted to 'yyyy-MM-dd hh:mm:ss'
    Op,      // punctuation and operators
};

// The words the translator reacts to. Anything else is an ordinary identifier.
enum class Kw : unsigned char {
    None, All, And, As, Asc, Between, By, Case, Cross, Delete, Desc, Distinct, Distinctrow, Else,
    End, Eqv, Escape, False, From, Full, Group, Having, Imp, In, Inner, Insert, Into, Is, Join,
    Left, Like, Limit, Mod, No, Not, On, Or, Order, Outer, Right, Select, Set, Then, Top, True,
    Union, Update, Values, When, Where, Xor, Yes,
};

struct KwEntry {
    std::string_view word;  // lower case
    Kw kw;
};

// Sorted by word for the binary search in keywordOf().
constexpr std::array<KwEntry, 51> kKeywords{{
    {"all", Kw::All},         {"and", Kw::And},         {"as", Kw::As},
    {"asc", Kw::Asc},         {"between", Kw::Between}, {"by", Kw::By},
    {"case", Kw::Case},       {"cross", Kw::Cross},     {"delete", Kw::Delete},
    {"desc", Kw::Desc},       {"distinct", Kw::Distinct}, {"distinctrow", Kw::Distinctrow},
    {"else", Kw::Else},       {"end", Kw::End},         {"eqv", Kw::Eqv},
    {"escape", Kw::Escape},   {"false", Kw::False},     {"from", Kw::From},
    {"full", Kw::Full},       {"group", Kw::Group},     {"having", Kw::Having},
    {"imp", Kw::Imp},         {"in", Kw::In},           {"inner", Kw::Inner},
    {"insert", Kw::Insert},   {"into", Kw::Into},       {"is", Kw::Is},
    {"join", Kw::Join},       {"left", Kw::Left},       {"like", Kw::Like},
    {"limit", Kw::Limit},     {"mod", Kw::Mod},         {"no", Kw::No},
    {"not", Kw::Not},         {"on", Kw::On},           {"or", Kw::Or},
    {"order", Kw::Order},     {"outer", Kw::Outer},     {"right", Kw::Right},
    {"select", Kw::Select},   {"set", Kw::Set},         {"then", Kw::Then},
    {"top", Kw::Top},         {"true", Kw::True},       {"union", Kw::Union},
    {"update", Kw::Update},   {"values", Kw::Values},   {"when", Kw::When},
    {"where", Kw::Where},     {"xor", Kw::Xor},         {"yes", Kw::Yes},
}};

// The functions of the legacy dialect that are rewritten; anything else passes as written.
enum class Fn : unsigned char { None, Nz, Len, UCase, LCase, Mid, Left, Right, Val, Date, Now };

struct FnEntry {
    std::string_view word;
    Fn fn;
};

constexpr std::array<FnEntry, 10> kFunctions{{
    {"date", Fn::Date}, {"lcase", Fn::LCase}, {"left", Fn::Left}, {"len", Fn::Len},
    {"mid", Fn::Mid},   {"now", Fn::Now},     {"nz", Fn::Nz},     {"right", Fn::Right},
    {"ucase", Fn::UCase}, {"val", Fn::Val},
}};

static_assert(std::is_sorted(kKeywords.begin(), kKeywords.end(),
                             [](const KwEntry &a, const KwEntry &b) { return a.word < b.word; }));
static_assert(std::is_sorted(kFunctions.begin(), kFunctions.end(),
                             [](const FnEntry &a, const FnEntry &b) { return a.word < b.word; }));

// A word of up to 16 ASCII characters packed big-endian into two integers, so that comparing keys
// orders words as strings do; the lookups run for every bare word of every statement.
struct Key {
    quint64 hi = 0, lo = 0;
    constexpr bool operator<(const Key &o) const { return hi < o.hi || (hi == o.hi && lo < o.lo); }
    constexpr bool operator==(const Key &o) const = default;
};

constexpr Key packKey(std::string_view w)
{
    Key k;
    for (size_t i = 0; i < 16; ++i) {
        const quint64 c = i < w.size() ? quint64(static_cast<unsigned char>(w[i])) : 0;
        (i < 8 ? k.hi : k.lo) = ((i < 8 ? k.hi : k.lo) << 8) | c;
    }
    return k;
}

template <typename Entry, size_t N>
constexpr std::array<Key, N> packTable(const std::array<Entry, N> &table)
{
    std::array<Key, N> keys{};
    for (size_t i = 0; i < N; ++i)
        keys[i] = packKey(table[i].word);
    return keys;
}

constexpr auto kKeywordKeys = packTable(kKeywords);
constexpr auto kFunctionKeys = packTable(kFunctions);
constexpr qsizetype kLongestWord = 11;  // "distinctrow"

// The lower-case key of a word; false when the word is too long or not ASCII to be one we know.
bool keyOf(QStringView word, Key &key)
{
    if (word.size() > kLongestWord)
        return false;
    char buf[16] = {};
    for (qsizetype i = 0; i < word.size(); ++i) {
        char16_t c = word[i].unicode();
        if (c >= 0x80)
            return false;
        if (c >= 'A' && c <= 'Z')
            c = char16_t(c - 'A' + 'a');
        buf[i] = char(c);
    }
    key = packKey(std::string_view(buf, size_t(word.size())));
    return true;
}

template <typename Entry, size_t N, typename Result>
Result find(const std::array<Key, N> &keys, const std::array<Entry, N> &table, QStringView word,
            Result none, Result Entry::*field)
{
    Key key;
    if (!keyOf(word, key))
        return none;
    const auto it = std::lower_bound(keys.begin(), keys.end(), key);
    return it != keys.end() && *it == key ? table[size_t(it - keys.begin())].*field : none;
}

Kw keywordOf(QStringView word) { return find(kKeywordKeys, kKeywords, word, Kw::None, &KwEntry::kw); }
Fn functionOf(QStringView word) { return find(kFunctionKeys, kFunctions, word, Fn::None, &FnEntry::fn); }

struct Token {
    Tk kind = Tk::Op;
    Kw kw = Kw::None;
    bool space = false;   // whitespace precedes the token
    qsizetype pos = 0;    // raw text in the source
    qsizetype len = 0;    // raw text length, quotes and brackets included
    QString value;        // String: its content; Name: the name; Date: the ISO text
};

[[noreturn]] void syntaxError(const QString &what, const QString &source)
{
    throw VbError(VbErr::SyntaxError,
                  QStringLiteral("Syntax error %1 in query expression '%2'.").arg(what, source));
}

// ---------------------------------------------------------------------------------------------
// #date# literals
// ---------------------------------------------------------------------------------------------

int monthOfName(QStringView name)
{
    static const char *const names[] = {"jan", "feb", "mar", "apr", "may", "jun",
                                        "jul", "aug", "sep", "oct", "nov", "dec"};
    if (name.size() < 3)
        return 0;
    for (int m = 0; m < 12; ++m) {
        if (name.left(3).compare(QLatin1String(names[m], 3), Qt::CaseInsensitive) == 0)
            return m + 1;
    }
    return 0;
}

int fullYear(int y, qsizetype digits)
{
    if (digits <= 2)
        return y < 30 ? 2000 + y : 1900 + y;  // the legacy two-digit year window
    return y;
}

// Reads the text between the # signs: a date (m/d/y, y-m-d, d-mmm-y), a time (h:mm[:ss] [AM|PM])
// or both. Returns a null string when the text is not a date.
QString parseDateLiteral(QStringView text)
{
    const QList<QStringView> parts = text.trimmed().split(QLatin1Char(' '), Qt::SkipEmptyParts);
    QDate date(1899, 12, 30);  // the legacy day zero, for a time alone
    QTime time(0, 0, 0);
    bool haveDate = false, haveTime = false;
    int ampm = 0;
    for (qsizetype p = 0; p < parts.size(); ++p) {
        QStringView part = parts[p];
        if (part.compare(QLatin1String("AM"), Qt::CaseInsensitive) == 0
            || part.compare(QLatin1String("PM"), Qt::CaseInsensitive) == 0) {
            if (!haveTime || ampm)
                return {};
            ampm = part[0].toUpper() == QLatin1Char('A') ? 1 : 2;
        } else if (part.contains(QLatin1Char(':'))) {
            if (haveTime)
                return {};
            const QList<QStringView> hms = part.split(QLatin1Char(':'));
            if (hms.size() < 2 || hms.size() > 3)
                return {};
            int v[3] = {0, 0, 0};
            for (qsizetype i = 0; i < hms.size(); ++i) {
                bool ok = false;
                v[i] = hms[i].toInt(&ok);
                if (!ok)
                    return {};
            }
            time = QTime(v[0], v[1], v[2]);
            if (!time.isValid())
                return {};
            haveTime = true;
        } else {
            if (haveDate)
                return {};
            const QChar sep = part.contains(QLatin1Char('/')) ? QLatin1Char('/') : QLatin1Char('-');
            const QList<QStringView> f = part.split(sep);
            if (f.size() != 3)
                return {};
            bool ok0 = false, ok1 = false, ok2 = false;
            const int a = f[0].toInt(&ok0), b = f[1].toInt(&ok1), c = f[2].toInt(&ok2);
            if (ok0 && ok1 && ok2) {
                date = f[0].size() == 4 ? QDate(a, b, c)                           // y-m-d
                                        : QDate(fullYear(c, f[2].size()), a, b);  // m/d/y
            } else if (ok0 && !ok1 && ok2 && monthOfName(f[1])) {
                date = QDate(fullYear(c, f[2].size()), monthOfName(f[1]), a);    // d-mmm-y
            } else {
                return {};
            }
            if (!date.isValid())
                return {};
            haveDate = true;
        }
    }
    if (!haveDate && !haveTime)
        return {};
    if (ampm) {
        int h = time.hour();
        if (h < 1 || h > 12)
            return {};
        h = (h % 12) + (ampm == 2 ? 12 : 0);
        time = QTime(h, time.minute(), time.second());
    }
    return date.toString(QStringLiteral("yyyy-MM-dd")) + QLatin1Char(' ')
           + time.toString(QStringLiteral("hh:mm:ss"));
}

// ---------------------------------------------------------------------------------------------
// Tokenizer
// ---------------------------------------------------------------------------------------------

bool isDigit(QChar c) { return c.unicode() >= '0' && c.unicode() <= '9'; }
bool isAsciiLetter(char16_t u) { return (u >= 'a' && u <= 'z') || (u >= 'A' && u <= 'Z'); }
bool isWordStart(QChar c)
{
    const char16_t u = c.unicode();
    return isAsciiLetter(u) || u == '_' || (u >= 0x80 && c.isLetter());
}
bool isWordChar(QChar c)
{
    const char16_t u = c.unicode();
    return isAsciiLetter(u) || (u >= '0' && u <= '9') || u == '_' || (u >= 0x80 && c.isLetterOrNumber());
}
bool isBlank(QChar c)
{
    const char16_t u = c.unicode();
    return u == ' ' || (u >= '\t' && u <= '\r') || (u >= 0x80 && c.isSpace());
}

std::vector<Token> tokenize(const QString &s)
{
    // SQLite reads a statement only up to a NUL: whatever follows it would go unseen.
    if (s.contains(QChar(0)))
        syntaxError(QStringLiteral("(NUL character)"), s);
    std::vector<Token> out;
    out.reserve(size_t(s.size() / 4 + 4));
    const qsizetype n = s.size();
    qsizetype i = 0;
    bool space = false;
    while (i < n) {
        const QChar c = s[i];
        if (isBlank(c)) {
            space = true;
            ++i;
            continue;
        }
        Token t;
        t.space = space;
        t.pos = i;
        space = false;
        const char16_t u = c.unicode();
        if (u == '\'' || u == '"') {
            // A quote inside is written twice. The other kind of quote is an ordinary character.
            qsizetype j = i + 1;
            QString value;
            for (;;) {
                if (j >= n)
                    syntaxError(QStringLiteral("in string"), s);
                if (s[j] == c) {
                    if (j + 1 < n && s[j + 1] == c) {
                        value += c;
                        j += 2;
                        continue;
                    }
                    break;
                }
                value += s[j];
                ++j;
            }
            t.kind = Tk::String;
            t.value = std::move(value);
            i = j + 1;
        } else if (u == '[' || u == '`') {
            const qsizetype j = s.indexOf(QLatin1Char(u == '[' ? ']' : '`'), i + 1);
            if (j < 0)
                syntaxError(QStringLiteral("(missing closing bracket)"), s);
            t.kind = Tk::Name;
            t.value = s.mid(i + 1, j - i - 1);
            i = j + 1;
        } else if (u == '#') {
            const qsizetype j = s.indexOf(QLatin1Char('#'), i + 1);
            if (j < 0)
                syntaxError(QStringLiteral("in date"), s);
            t.kind = Tk::Date;
            t.value = parseDateLiteral(QStringView(s).mid(i + 1, j - i - 1));
            if (t.value.isNull())
                syntaxError(QStringLiteral("in date"), s);
            i = j + 1;
        } else if (isDigit(c)
                   || (u == '.' && i + 1 < n && isDigit(s[i + 1])
                       && (out.empty() || (out.back().kind != Tk::Word && out.back().kind != Tk::Name
                                           && !(out.back().kind == Tk::Op && s[out.back().pos] == QLatin1Char(')')))))) {
            qsizetype j = i;
            while (j < n && isDigit(s[j]))
                ++j;
            if (j < n && s[j] == QLatin1Char('.')) {
                ++j;
                while (j < n && isDigit(s[j]))
                    ++j;
            }
            if (j < n && (s[j] == QLatin1Char('e') || s[j] == QLatin1Char('E'))) {
                qsizetype k = j + 1;
                if (k < n && (s[k] == QLatin1Char('+') || s[k] == QLatin1Char('-')))
                    ++k;
                if (k < n && isDigit(s[k])) {
                    while (k < n && isDigit(s[k]))
                        ++k;
                    j = k;
                }
            }
            t.kind = Tk::Number;
            t.len = j - i;
            i = j;
        } else if (isWordStart(c)) {
            qsizetype j = i + 1;
            while (j < n && isWordChar(s[j]))
                ++j;
            t.kind = Tk::Word;
            t.len = j - i;
            // A word right after a qualifier is a column name, never a keyword.
            const bool qualified = !out.empty() && out.back().kind == Tk::Op && out.back().len == 1
                                   && (s[out.back().pos] == QLatin1Char('.') || s[out.back().pos] == QLatin1Char('!'));
            if (!qualified)
                t.kw = keywordOf(QStringView(s).mid(i, t.len));
            i = j;
        } else {
            t.kind = Tk::Op;
            t.len = 1;
            if (i + 1 < n) {
                const char16_t v = s[i + 1].unicode();
                if ((u == '<' && (v == '>' || v == '=')) || (u == '>' && v == '='))
                    t.len = 2;
            }
            i += t.len;
        }
        // Two literals in a row, or a plain name followed by a literal, is what an unescaped
        // apostrophe inside a joined value leaves behind ('o'brien's'): refuse it here.
        if (t.kind == Tk::String && !out.empty()) {
            const Token &prev = out.back();
            if (prev.kind == Tk::String || prev.kind == Tk::Number || prev.kind == Tk::Name
                || (prev.kind == Tk::Word && prev.kw == Kw::None))
                syntaxError(QStringLiteral("(missing operator)"), s);
        }
        t.len = i - t.pos;   // the raw text with its quotes or brackets
        out.push_back(std::move(t));
    }
    return out;
}

// ---------------------------------------------------------------------------------------------
// LIKE patterns and numeric bounds
// ---------------------------------------------------------------------------------------------

// Calls sink(ch, wildcard) for each unit of a Jet pattern: `*` and `?` and `#` are wildcards
// (`#` approximated by one character), `[x]` is the literal x, a longer [list] one character.
template <typename F>
void walkJetPattern(const QString &p, F sink)
{
    const qsizetype n = p.size();
    for (qsizetype i = 0; i < n; ++i) {
        const QChar c = p[i];
        switch (c.unicode()) {
        case '*': sink(QLatin1Char('%'), true); break;
        case '?':
        case '#': sink(QLatin1Char('_'), true); break;
        case '[': {
            const qsizetype j = p.indexOf(QLatin1Char(']'), i + 1);
            if (j < 0) {
                sink(c, false);
                break;
            }
            const qsizetype len = j - i - 1;
            if (len == 1)
                sink(p[i + 1], false);
            else if (len > 1)
                sink(QLatin1Char('_'), true);  // a character list matches one character
            i = j;
            break;
        }
        default: sink(c, false); break;
        }
    }
}

// The SQLite pattern for a Jet pattern; needsEscape tells that `\` escapes were written.
QString likePattern(const QString &jet, bool &needsEscape)
{
    needsEscape = false;
    walkJetPattern(jet, [&](QChar c, bool wild) {
        if (!wild && (c == QLatin1Char('%') || c == QLatin1Char('_')))
            needsEscape = true;
    });
    QString out;
    out.reserve(jet.size() + 2);
    out += QLatin1Char('\'');
    walkJetPattern(jet, [&](QChar c, bool wild) {
        if (!wild && needsEscape
            && (c == QLatin1Char('%') || c == QLatin1Char('_') || c == QLatin1Char('\\')))
            out += QLatin1Char('\\');
        if (c == QLatin1Char('\''))
            out += c;
        out += c;
    });
    out += QLatin1Char('\'');
    return out;
}

// The text as a SQL number when it reads as one ("12", " -3.5 ", "1e3"), else a null string.
QString numericText(const QString &v)
{
    const QString t = v.trimmed();
    qsizetype i = 0;
    const qsizetype n = t.size();
    QString sign;
    if (i < n && (t[i] == QLatin1Char('+') || t[i] == QLatin1Char('-'))) {
        if (t[i] == QLatin1Char('-'))
            sign = QStringLiteral("-");
        ++i;
    }
    const qsizetype start = i;
    qsizetype digits = 0;
    while (i < n && isDigit(t[i]))
        ++i, ++digits;
    if (i < n && t[i] == QLatin1Char('.')) {
        ++i;
        while (i < n && isDigit(t[i]))
            ++i, ++digits;
    }
    if (!digits)
        return {};
    if (i < n && (t[i] == QLatin1Char('e') || t[i] == QLatin1Char('E'))) {
        ++i;
        if (i < n && (t[i] == QLatin1Char('+') || t[i] == QLatin1Char('-')))
            ++i;
        if (i == n || !isDigit(t[i]))
            return {};
        while (i < n && isDigit(t[i]))
            ++i;
    }
    if (i != n)
        return {};
    QString body = t.mid(start);
    if (body.startsWith(QLatin1Char('.')))
        body.prepend(QLatin1Char('0'));
    return sign + body;
}

void appendQuoted(QString &out, const QString &value, QChar quote)
{
    out += quote;
    for (const QChar c : value) {
        if (c == quote)
            out += c;
        out += c;
    }
    out += quote;
}

// ---------------------------------------------------------------------------------------------
// Translation
// ---------------------------------------------------------------------------------------------

enum class Ctx : unsigned char { Plain, Like, Between };

// Parentheses nest at most this deep; the translation recurses once per level.
constexpr size_t kMaxDepth = 200;

class Translator {
public:
    Translator(const QString &src, bool statement) : m_src(src), m_t(tokenize(src))
    {
        const int n = int(m_t.size());
        m_match.assign(size_t(n), -1);
        m_skip.assign(size_t(n), 0);
        m_parent.assign(size_t(n), -1);
        std::vector<int> stack;
        for (int i = 0; i < n; ++i) {
            m_parent[size_t(i)] = stack.empty() ? -1 : stack.back();
            if (isOp(i, '(')) {
                if (stack.size() >= kMaxDepth)
                    syntaxError(QStringLiteral("(too many nested parentheses)"), m_src);
                stack.push_back(i);
            } else if (isOp(i, ')')) {
                if (stack.empty())
                    syntaxError(QStringLiteral("(extra ')')"), m_src);
                m_match[size_t(stack.back())] = i;
                m_match[size_t(i)] = stack.back();
                m_parent[size_t(i)] = stack.size() > 1 ? stack[stack.size() - 2] : -1;
                stack.pop_back();
            }
        }
        if (!stack.empty())
            syntaxError(QStringLiteral("(missing ')')"), m_src);
        // One statement per text: a `;` may only close a statement, and a criteria has none.
        for (int i = 0; i < n; ++i) {
            if (!isOp(i, ';'))
                continue;
            if (!statement)
                syntaxError(QStringLiteral("(';' in criteria)"), m_src);
            for (int j = i + 1; j < n; ++j)
                if (!isOp(j, ';'))
                    syntaxError(QStringLiteral("(characters found after end of SQL statement)"), m_src);
            break;
        }
        // A word followed by a qualifier is a table name, never a keyword.
        for (int i = 0; i + 1 < n; ++i) {
            if (m_t[size_t(i)].kind == Tk::Word && (isOp(i + 1, '.') || isOp(i + 1, '!')))
                m_t[size_t(i)].kw = Kw::None;
        }
        if (statement)
            prepareStatement();
    }

    QString run()
    {
        QString out;
        out.reserve(m_src.size() + m_src.size() / 4 + 16);
        int end = int(m_t.size());
        while (end > 0 && isOp(end - 1, ';'))
            --end;
        range(0, end, out);
        appendLimit(-1, out);
        for (int i = end; i < int(m_t.size()); ++i)
            emitToken(i, Ctx::Plain, out);
        return out;
    }

private:
    const QString &m_src;
    std::vector<Token> m_t;
    std::vector<int> m_match;   // partner of each parenthesis
    std::vector<int> m_parent;  // innermost open parenthesis around each token, -1 at top level
    std::vector<char> m_skip;   // tokens that the translation drops
    std::vector<std::pair<int, QString>> m_limits;  // closing parenthesis (-1: the end) -> LIMIT
    bool m_pendingSpace = false;
    bool m_likeEscape = false;

    const Token &tok(int i) const { return m_t[size_t(i)]; }
    bool isOp(int i, char c) const
    {
        if (i < 0 || i >= int(m_t.size()))
            return false;
        const Token &t = m_t[size_t(i)];
        return t.kind == Tk::Op && t.len == 1 && m_src[t.pos] == QLatin1Char(c);
    }
    bool isKw(int i, Kw kw) const { return i >= 0 && i < int(m_t.size()) && m_t[size_t(i)].kw == kw; }
    bool isIdent(int i) const
    {
        return i >= 0 && i < int(m_t.size())
               && ((m_t[size_t(i)].kind == Tk::Word && m_t[size_t(i)].kw == Kw::None)
                   || m_t[size_t(i)].kind == Tk::Name);
    }
    QStringView raw(int i) const { return QStringView(m_src).mid(tok(i).pos, tok(i).len); }

    // Marks what the statement forms of the legacy dialect drop or move: DISTINCTROW, TOP n,
    // `DELETE t.*` / `DELETE *`, and the qualifier of each column assigned in UPDATE ... SET.
    void prepareStatement()
    {
        const int n = int(m_t.size());
        for (int i = 0; i < n; ++i) {
            if (tok(i).kw != Kw::Select)
                continue;
            int j = i + 1;
            while (isKw(j, Kw::Distinct) || isKw(j, Kw::All) || isKw(j, Kw::Distinctrow)) {
                if (isKw(j, Kw::Distinctrow))
                    m_skip[size_t(j)] = 1;  // on the program's one-table queries it is a no-op
                ++j;
            }
            if (isKw(j, Kw::Top) && j + 1 < n && tok(j + 1).kind == Tk::Number) {
                m_skip[size_t(j)] = m_skip[size_t(j + 1)] = 1;
                const int open = m_parent[size_t(i)];
                m_limits.emplace_back(open < 0 ? -1 : m_match[size_t(open)], raw(j + 1).toString());
            }
        }
        if (n == 0)
            return;
        if (tok(0).kw == Kw::Delete) {
            if (isOp(1, '*') && isKw(2, Kw::From)) {
                m_skip[1] = 1;
            } else if (isIdent(1) && (isOp(2, '.') || isOp(2, '!')) && isOp(3, '*') && isKw(4, Kw::From)) {
                m_skip[1] = m_skip[2] = m_skip[3] = 1;
            }
        } else if (tok(0).kw == Kw::Update) {
            int i = 1;
            while (i < n && !(tok(i).kw == Kw::Set && m_parent[size_t(i)] == -1))
                ++i;
            // Each assignment: [qualifier .] column = value, up to a comma or WHERE at top level.
            while (i < n && !isKw(i, Kw::Where)) {
                const int a = i + 1;
                if (isIdent(a) && (isOp(a + 1, '.') || isOp(a + 1, '!')) && isIdent(a + 2) && isOp(a + 3, '='))
                    m_skip[size_t(a)] = m_skip[size_t(a + 1)] = 1;
                i = a;
                while (i < n && !((isOp(i, ',') || isKw(i, Kw::Where)) && m_parent[size_t(i)] == -1))
                    ++i;
            }
        }
    }

    void appendLimit(int closeIndex, QString &out)
    {
        for (const auto &[at, count] : m_limits) {
            if (at == closeIndex)
                out += QStringLiteral(" LIMIT ") + count;
        }
    }

    void space(int i, QString &out)
    {
        if ((tok(i).space || m_pendingSpace) && !out.isEmpty())
            out += QLatin1Char(' ');
        m_pendingSpace = false;
    }

    // Tokens at which an operand of `&` ends: everything that binds more loosely than `&`.
    bool isDelimiter(int i) const
    {
        const Token &t = tok(i);
        if (m_skip[size_t(i)])
            return true;
        if (t.kind == Tk::Op) {
            const char16_t c = m_src[t.pos].unicode();
            return c == ',' || c == '=' || c == '<' || c == '>' || c == ';';
        }
        if (t.kind != Tk::Word)
            return false;
        switch (t.kw) {
        case Kw::None: case Kw::True: case Kw::False: case Kw::Yes: case Kw::No: case Kw::Mod:
            return false;
        case Kw::Left: case Kw::Right:
            return !isOp(i + 1, '(');  // LEFT JOIN, not Left(s, n)
        default:
            return true;
        }
    }

    // A sequence at one parenthesis level: split into runs at the delimiters.
    void range(int b, int e, QString &out)
    {
        Ctx ctx = Ctx::Plain;
        bool betweenOpen = false;
        int runStart = b;
        for (int i = b; i < e;) {
            if (isOp(i, '(')) {
                i = m_match[size_t(i)] + 1;
                continue;
            }
            if (!isDelimiter(i)) {
                ++i;
                continue;
            }
            runExpr(runStart, i, ctx, out);
            if (m_skip[size_t(i)]) {
                m_pendingSpace = m_pendingSpace || tok(i).space;
            } else {
                emitToken(i, Ctx::Plain, out);
            }
            const Kw kw = tok(i).kw;
            if (kw == Kw::Like) {
                ctx = Ctx::Like;
            } else if (kw == Kw::Between) {
                ctx = Ctx::Between;
                betweenOpen = true;
            } else if (kw == Kw::And && betweenOpen) {
                ctx = Ctx::Between;
                betweenOpen = false;
            } else {
                ctx = Ctx::Plain;
            }
            runStart = ++i;
        }
        runExpr(runStart, e, ctx, out);
    }

    // One operand between delimiters; `&` chains become || over operands that read Null as ''.
    void runExpr(int b, int e, Ctx ctx, QString &out)
    {
        if (b >= e)
            return;
        m_likeEscape = false;
        bool chain = false;
        for (int i = b; i < e; ++i) {
            if (isOp(i, '('))
                i = m_match[size_t(i)];
            else if (isOp(i, '&'))
                chain = true;
        }
        if (!chain) {
            if (ctx == Ctx::Between && e == b + 1 && tok(b).kind == Tk::String) {
                const QString number = numericText(tok(b).value);
                if (!number.isNull()) {
                    // Quoted numeric bounds compare as numbers, as the legacy engine compared them.
                    space(b, out);
                    out += number;
                    return;
                }
            }
            operand(b, e, ctx, out);
        } else {
            space(b, out);
            out += QLatin1Char('(');
            int partStart = b;
            bool first = true;
            for (int i = b; i <= e; ++i) {
                if (i < e && isOp(i, '(')) {
                    i = m_match[size_t(i)];
                    continue;
                }
                if (i < e && !isOp(i, '&'))
                    continue;
                if (partStart == i)
                    syntaxError(QStringLiteral("(missing operand)"), m_src);
                if (!first)
                    out += QLatin1String(" || ");
                first = false;
                concatPart(partStart, i, ctx, out);
                partStart = i + 1;
            }
            // Text compares ignore case in the legacy engine, and a computed text has no column
            // collation to inherit that from.
            out += QLatin1String(") COLLATE NOCASE");
        }
        if (ctx == Ctx::Like && m_likeEscape)
            out += QLatin1String(" ESCAPE '\\'");
    }

    // One operand of `&`: Null reads as '' and a real number as its shortest text (3, not 3.0), by
    // jet_text, so that the operand is written once however deeply `&` nests.
    void concatPart(int b, int e, Ctx ctx, QString &out)
    {
        const bool oldPending = m_pendingSpace;
        m_pendingSpace = false;
        QString x;
        operand(b, e, ctx, x);
        m_pendingSpace = oldPending;
        if (e == b + 1 && tok(b).kind == Tk::String) {
            out += x;
            return;
        }
        out += QLatin1String("jet_text(") + x + QLatin1Char(')');
    }

    void operand(int b, int e, Ctx ctx, QString &out)
    {
        for (int i = b; i < e;) {
            if (m_skip[size_t(i)]) {
                m_pendingSpace = m_pendingSpace || tok(i).space;
                ++i;
                continue;
            }
            if (isOp(i, '(')) {
                const int close = m_match[size_t(i)];
                group(i, out);
                i = close + 1;
                continue;
            }
            if (tok(i).kind == Tk::Word && isOp(i + 1, '(') && !isOp(i - 1, '.') && !isOp(i - 1, '!')) {
                const Fn fn = functionOf(raw(i));
                if (fn != Fn::None && function(i, fn, out)) {
                    i = m_match[size_t(i + 1)] + 1;
                    continue;
                }
            }
            emitToken(i, ctx, out);
            ++i;
        }
    }

    void group(int open, QString &out)
    {
        const int close = m_match[size_t(open)];
        space(open, out);
        out += QLatin1Char('(');
        range(open + 1, close, out);
        appendLimit(close, out);
        space(close, out);
        out += QLatin1Char(')');
    }

    // The arguments of the call whose '(' is at open, each translated on its own.
    QStringList arguments(int open)
    {
        QStringList args;
        const int close = m_match[size_t(open)];
        if (close == open + 1)
            return args;
        int start = open + 1;
        for (int i = start; i <= close; ++i) {
            if (i < close && isOp(i, '(')) {
                i = m_match[size_t(i)];
                continue;
            }
            if (i < close && !isOp(i, ','))
                continue;
            QString a;
            m_pendingSpace = false;
            range(start, i, a);
            args.push_back(a.trimmed());
            start = i + 1;
        }
        m_pendingSpace = false;
        return args;
    }

    // Rewrites a call of the legacy dialect; false leaves it as written.
    bool function(int i, Fn fn, QString &out)
    {
        const int open = i + 1;
        auto rename = [&](const char *name) {
            space(i, out);
            out += QLatin1String(name);
            group(open, out);
            return true;
        };
        switch (fn) {
        case Fn::Len: return rename("LENGTH");
        case Fn::UCase: return rename("UPPER");
        case Fn::LCase: return rename("LOWER");
        case Fn::Mid: return rename("SUBSTR");
        default: break;
        }
        const bool oldPending = m_pendingSpace;
        const QStringList a = arguments(open);
        m_pendingSpace = oldPending;
        QString text;
        switch (fn) {
        case Fn::Nz:
            if (a.size() == 1)
                text = QStringLiteral("IFNULL(%1,'')").arg(a[0]);
            else if (a.size() == 2)
                text = QStringLiteral("IFNULL(%1,%2)").arg(a[0], a[1]);
            break;
        case Fn::Left:
            if (a.size() == 2)
                text = QStringLiteral("SUBSTR(%1,1,%2)").arg(a[0], a[1]);
            break;
        case Fn::Right:
            if (a.size() == 2)
                text = QStringLiteral("jet_right(%1,%2)").arg(a[0], a[1]);
            break;
        case Fn::Val:
            if (a.size() == 1)
                text = QStringLiteral("CAST(%1 AS REAL)").arg(a[0]);
            break;
        case Fn::Date:
            if (a.isEmpty())
                text = QStringLiteral("datetime('now','localtime','start of day')");
            break;
        case Fn::Now:
            if (a.isEmpty())
                text = QStringLiteral("datetime('now','localtime')");
            break;
        default: break;
        }
        if (text.isEmpty())
            return false;
        space(i, out);
        out += text;
        return true;
    }

    void emitToken(int i, Ctx ctx, QString &out)
    {
        const Token &t = tok(i);
        space(i, out);
        switch (t.kind) {
        case Tk::Word:
            switch (t.kw) {
            case Kw::True:
            case Kw::Yes:
                if (!isKw(i - 1, Kw::As)) {
                    out += QLatin1Char('1');
                    return;
                }
                break;
            case Kw::False:
            case Kw::No:
                if (!isKw(i - 1, Kw::As)) {
                    out += QLatin1Char('0');
                    return;
                }
                break;
            case Kw::Mod:
                out += QLatin1Char('%');
                return;
            default: break;
            }
            out += raw(i);
            return;
        case Tk::Name:
            appendQuoted(out, t.value, QLatin1Char('"'));
            return;
        case Tk::String:
            if (ctx == Ctx::Like) {
                bool escape = false;
                out += likePattern(t.value, escape);
                m_likeEscape = m_likeEscape || escape;
            } else {
                appendQuoted(out, t.value, QLatin1Char('\''));
            }
            return;
        case Tk::Date:
            out += QLatin1Char('\'') + t.value + QLatin1Char('\'');
            return;
        case Tk::Number:
            out += raw(i);
            return;
        case Tk::Op:
            if (isOp(i, '!'))
                out += QLatin1Char('.');
            else if (isOp(i, '&'))
                out += QLatin1String("||");  // not reached: runs split at '&'
            else {
                // "--" and "/*" open comments in SQLite but are two operators in the legacy dialect.
                if ((isOp(i, '-') && out.endsWith(QLatin1Char('-')))
                    || (isOp(i, '*') && out.endsWith(QLatin1Char('/'))))
                    out += QLatin1Char(' ');
                out += raw(i);
            }
            return;
        }
    }
};

// "<table> RIGHT JOIN <right side> ON <condition>" as "<right side> LEFT JOIN <table> ON <condition>":
// the same rows, but SQLite materializes a join on the right of a RIGHT JOIN and scans it once for
// every row of the other side, which at a few thousand rows a side takes seconds, and nested several
// deep, minutes; on the right of a LEFT JOIN the table is looked up by its index. The table must open
// its bracket level (it then is the whole left side, joins being read from left to right), so that
// the swap keeps every other join where the author put it. A statement whose list has a bare "*" is
// left alone: its columns come in the order of the tables.
class RightJoinRewrite {
public:
    explicit RightJoinRewrite(const QString &src) : m_src(src), m_t(tokenize(src)), m_n(int(m_t.size())) {}

    //! The statement with its first rewritable RIGHT JOIN swapped; empty when there is none.
    QString once() const
    {
        if (!kw(0, Kw::Select) || bareStar())
            return {};
        for (int j = 1; j < m_n; ++j) {
            if (!kw(j, Kw::Right))
                continue;
            const int left = tableStart(j - 1);
            const int join = kw(j + 1, Kw::Outer) ? j + 2 : j + 1;
            if (left < 0 || !kw(join, Kw::Join))
                continue;
            const int rightEnd = operandEnd(join + 1);
            if (rightEnd < 0 || !kw(rightEnd + 1, Kw::On))
                continue;
            const int condEnd = conditionEnd(rightEnd + 2);
            QString out = m_src.left(m_t[size_t(left)].pos) + piece(join + 1, rightEnd) + QLatin1String(" LEFT JOIN ")
                          + piece(left, j - 1) + QLatin1Char(' ') + piece(rightEnd + 1, condEnd - 1);
            if (condEnd < m_n)
                out += (op(condEnd, ')') ? QString() : QStringLiteral(" ")) + m_src.mid(m_t[size_t(condEnd)].pos);
            return out;
        }
        return {};
    }

private:
    bool op(int i, char c) const
    {
        return i >= 0 && i < m_n && m_t[size_t(i)].kind == Tk::Op && m_t[size_t(i)].len == 1
               && m_src.at(m_t[size_t(i)].pos) == QLatin1Char(c);
    }
    bool kw(int i, Kw k) const { return i >= 0 && i < m_n && m_t[size_t(i)].kw == k; }
    bool name(int i) const
    {
        return i >= 0 && i < m_n
               && (m_t[size_t(i)].kind == Tk::Name || (m_t[size_t(i)].kind == Tk::Word && m_t[size_t(i)].kw == Kw::None));
    }
    QString piece(int first, int last) const   // the source text of tokens first..last
    {
        const qsizetype begin = m_t[size_t(first)].pos;
        return m_src.mid(begin, m_t[size_t(last)].pos + m_t[size_t(last)].len - begin);
    }
    //! A "*" for all columns in the outer column list, not "table.*" and not a product.
    bool bareStar() const
    {
        for (int i = 1, depth = 0; i < m_n && !(depth == 0 && kw(i, Kw::From)); ++i) {
            depth += op(i, '(') ? 1 : op(i, ')') ? -1 : 0;
            if (depth == 0 && op(i, '*') && !op(i - 1, '.') && (op(i + 1, ',') || kw(i + 1, Kw::From)))
                return true;
        }
        return false;
    }
    //! The first token of "table [[AS] alias]" ending at last, when it opens its bracket level of a
    //! FROM clause; -1 otherwise.
    int tableStart(int last) const
    {
        int first = last;
        if (name(first) && name(first - 1))
            --first;   // "table alias"
        else if (name(first) && kw(first - 1, Kw::As) && name(first - 2))
            first -= 2;
        if (!name(first) || !name(last))
            return -1;
        return kw(first - 1, Kw::From) || op(first - 1, '(') ? first : -1;
    }
    //! The last token of a bracketed join or a "table [[AS] alias]" starting at first; -1 otherwise.
    int operandEnd(int first) const
    {
        if (op(first, '(')) {
            for (int i = first + 1, depth = 1; i < m_n; ++i) {
                depth += op(i, '(') ? 1 : op(i, ')') ? -1 : 0;
                if (depth == 0)
                    return kw(first + 1, Kw::Select) ? -1 : i;   // a subquery is left alone
            }
            return -1;
        }
        if (!name(first))
            return -1;
        if (kw(first + 1, Kw::As))
            return name(first + 2) ? first + 2 : -1;
        return name(first + 1) ? first + 1 : first;
    }
    //! One past the last token of an ON condition starting at first: where its bracket level closes
    //! or the next join or clause begins.
    int conditionEnd(int first) const
    {
        int i = first;
        for (int depth = 0; i < m_n; ++i) {
            depth += op(i, '(') ? 1 : op(i, ')') ? -1 : 0;
            if (depth < 0)
                break;
            if (depth > 0)
                continue;
            const bool join = kw(i, Kw::Join) || kw(i, Kw::Inner)
                              || ((kw(i, Kw::Left) || kw(i, Kw::Right)) && !op(i + 1, '('));   // not Left(text, n)
            if (join || kw(i, Kw::Where) || kw(i, Kw::Order) || kw(i, Kw::Group) || kw(i, Kw::Having)
                || kw(i, Kw::Union) || op(i, ';'))
                break;
        }
        return i;
    }

    const QString &m_src;
    std::vector<Token> m_t;
    int m_n;
};

//! Every RIGHT JOIN that RightJoinRewrite can swap, swapped.
QString rightJoinsAsLeftJoins(const QString &src)
{
    if (!src.contains(QLatin1String("right"), Qt::CaseInsensitive))
        return src;
    QString out = src;
    try {
        for (QString next = RightJoinRewrite(out).once(); !next.isEmpty(); next = RightJoinRewrite(out).once())
            out = next;
    } catch (const VbError &) {
        return src;   // the translator reports it
    }
    return out;
}

}  // namespace

QString translateJetSql(const QString &jetSql)
{
    return Translator(rightJoinsAsLeftJoins(jetSql), true).run();
}

QString translateJetCriteria(const QString &jetCriteria)
{
    return Translator(jetCriteria, false).run();
}

namespace {

// jet_text(x): an operand of `&`. Null is '', a real number its text to 15 digits (3, not 3.0),
// anything else itself.
void jetText(sqlite3_context *ctx, int, sqlite3_value **argv)
{
    sqlite3_value *v = argv[0];
    switch (sqlite3_value_type(v)) {
    case SQLITE_NULL:
        sqlite3_result_text(ctx, "", 0, SQLITE_STATIC);
        return;
    case SQLITE_FLOAT:
        sqlite3_result_text(ctx, sqlite3_mprintf("%.15g", sqlite3_value_double(v)), -1, sqlite3_free);
        return;
    default:
        sqlite3_result_value(ctx, v);
    }
}

// jet_right(s, n): the last n characters of s; '' for n <= 0, all of s for n beyond its length.
void jetRight(sqlite3_context *ctx, int, sqlite3_value **argv)
{
    if (sqlite3_value_type(argv[0]) == SQLITE_NULL || sqlite3_value_type(argv[1]) == SQLITE_NULL) {
        sqlite3_result_null(ctx);
        return;
    }
    const auto *s = sqlite3_value_text(argv[0]);
    const int bytes = sqlite3_value_bytes(argv[0]);
    const sqlite3_int64 n = sqlite3_value_int64(argv[1]);
    int pos = bytes;
    for (sqlite3_int64 taken = 0; pos > 0 && taken < n; ++taken) {
        --pos;
        while (pos > 0 && (s[pos] & 0xC0) == 0x80)  // back over UTF-8 continuation bytes
            --pos;
    }
    sqlite3_result_text(ctx, reinterpret_cast<const char *>(s) + pos, bytes - pos, SQLITE_TRANSIENT);
}

}  // namespace

void registerJetFunctions(sqlite3 *db)
{
    const int flags = SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_INNOCUOUS;
    sqlite3_create_function(db, "jet_text", 1, flags, nullptr, jetText, nullptr, nullptr);
    sqlite3_create_function(db, "jet_right", 2, flags, nullptr, jetRight, nullptr, nullptr);
}
