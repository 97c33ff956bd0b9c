// SPDX-License-Identifier: MIT
#include "TestSupport.h"
#include "VbError.h"
#include "VbFormat.h"

#include <gtest/gtest.h>

#include <QDateTime>
#include <QVariant>

#include <cfloat>

using namespace vb;

namespace {

struct FormatCase {
    double value;
    const char *pattern;
    const char *expected;
};

void PrintTo(const FormatCase &c, std::ostream *os)
{
    *os << "Format(" << c.value << ", \"" << c.pattern << "\")";
}

class VbFormatDouble : public ::testing::TestWithParam<FormatCase> {};

TEST_P(VbFormatDouble, WritesLegacyText)
{
    const FormatCase &c = GetParam();
    EXPECT_EQ(vbFormat(c.value, QString::fromLatin1(c.pattern)).toStdString(), c.expected);
}

INSTANTIATE_TEST_SUITE_P(Patterns, VbFormatDouble, ::testing::Values(
    // No leading zero where the integer digits are all optional. (Zero through every pattern: below.)
    FormatCase{0.25, "#.000", ".250"}, FormatCase{12.3456, "#.000", "12.346"}, FormatCase{5.5, "###.000", "5.500"},
    FormatCase{0.25, "0.000", "0.250"}, FormatCase{123456789012.5, "0.000", "123456789012.500"},
    // One or two decimals, thousands grouping.
    FormatCase{0.754, "#,###.0#", ".75"}, FormatCase{75.4, "#,###.0#", "75.4"}, FormatCase{2, "#,###.0#", "2.0"},
    FormatCase{1234.567, "#,###.0#", "1,234.57"}, FormatCase{1.05, "#,###.0#", "1.05"},
    FormatCase{1234567.891, "#,##0.0#", "1,234,567.89"}, FormatCase{999.5, "#,##0", "1,000"},
    FormatCase{1234567, "#,##0.##", "1,234,567."}, FormatCase{1234.5, "#,##0.0", "1,234.5"},
    // Ties go away from zero on the decimal text, not on the binary value.
    FormatCase{0.125, "0.00", "0.13"}, FormatCase{-0.125, "0.00", "-0.13"}, FormatCase{2.5, "0", "3"},
    FormatCase{-2.5, "0", "-3"}, FormatCase{0.0005, "0.000", "0.001"}, FormatCase{2.675, "0.00", "2.68"},
    FormatCase{1.005, "#0.00", "1.01"}, FormatCase{0.0045, "0.0000", "0.0045"}, FormatCase{9.995, "0.00", "10.00"},
    FormatCase{0.1 + 0.2, "0.0000000000000000", "0.3000000000000000"},
    FormatCase{99.96, "##.0", "100.0"}, FormatCase{0.04, "##.0", ".0"},
    // Optional decimals and the point the legacy runtime always keeps.
    FormatCase{5, "#.##", "5."}, FormatCase{5.1, "##.##", "5.1"}, FormatCase{5, "00.#", "05."},
    FormatCase{5.25, "00.#", "05.3"}, FormatCase{123, "00.#", "123."}, FormatCase{0.1234567, "#0.0####", "0.12346"},
    FormatCase{2, "#0.0####", "2.0"}, FormatCase{1.555, "#0.0#", "1.56"}, FormatCase{3, "#0.###", "3."},
    FormatCase{0.0004, "0.##", "0."}, FormatCase{7.899, "0.##", "7.9"}, FormatCase{0.5, "0", "1"},
    FormatCase{0.4, "#", ""}, FormatCase{12.5, "#", "13"},
    // Negative values, including one that rounds to zero and keeps its sign.
    FormatCase{-1234.567, "#,##0.0#", "-1,234.57"}, FormatCase{-0.25, "#.000", "-.250"},
    FormatCase{-0.001, "0.00", "-0.00"}, FormatCase{-0.0, "0.00", "0.00"},
    // Literals, percent, sections, scaling and exponent forms.
    FormatCase{0.256, "0.0%", "25.6%"}, FormatCase{0.125, "0\"%\"", "0%"}, FormatCase{3, "\\$0.00", "$3.00"},
    FormatCase{3.5, "0.0 \"g/day\"", "3.5 g/day"}, FormatCase{-3, "$0.00", "-$3.00"},
    FormatCase{5, "0.0;(0.0);\"zero\"", "5.0"}, FormatCase{-5, "0.0;(0.0);\"zero\"", "(5.0)"},
    FormatCase{0, "0.0;(0.0);\"zero\"", "zero"}, FormatCase{-5, "0.0;", "-5.0"},
    FormatCase{1234567, "#,##0,", "1,235"}, FormatCase{5551234, "###-####", "555-1234"},
    FormatCase{1234.5, "0.00E+00", "1.23E+03"}, FormatCase{0.000123, "0.0E-00", "1.2E-04"},
    FormatCase{9.99, "0.0E+0", "1.0E+1"},
    FormatCase{1234.5, "Standard", "1,234.50"}, FormatCase{0.5, "Percent", "50.00%"},
    FormatCase{1.0 / 3, "", "0.333333333333333"}));

TEST(VbFormat, SinglesRoundOnTheirOwnShortestText)
{
    // 2.675f is 2.67499995... in binary; its text is "2.675".
    EXPECT_EQ(vbFormatSingle(2.675f, QStringLiteral("0.00")), QStringLiteral("2.68"));
    EXPECT_EQ(vbFormatSingle(1.0f / 3, QStringLiteral("0.0000")), QStringLiteral("0.3333"));
    EXPECT_EQ(vbFormatSingle(0.1f + 0.2f, QStringLiteral("0.0000000")), QStringLiteral("0.3000000"));
    EXPECT_EQ(vbFormatSingle(0.1f, QStringLiteral("0.0000000000")), QStringLiteral("0.1000000000"));
    EXPECT_EQ(vbFormatSingle(0.125f, QStringLiteral("#,###.0#")), QStringLiteral(".13"));
    EXPECT_EQ(vbFormatSingle(16777217.0f, QStringLiteral("0")), QStringLiteral("16777220"));
    // The same single widened to double shows its binary tail.
    EXPECT_EQ(vbFormat(double(0.1f), QStringLiteral("0.000000000")), QStringLiteral("0.100000001"));
}

TEST(VbFormat, ZeroThroughEveryPatternOfTheProgram)
{
    const std::pair<const char *, const char *> cases[] = {
        {"0.000", "0.000"}, {"#.000", ".000"},   {"0.0000", "0.0000"}, {"#0.00", "0.00"},
        {"0.00", "0.00"},   {"#,###.0#", ".0"},  {"#.##", "."},         {"##.##", "."},
        {"##.0", ".0"},     {"#0.0#", "0.0"},    {"#0.###", "0."},      {"#,##0.0#", "0.0"},
        {"00.#", "00."},    {"#0.0####", "0.0"}, {"###.000", ".000"},   {"#,##0.0", "0.0"},
        {"0.##", "0."},     {"#,##0.##", "0."},  {"0", "0"},            {"#", ""},
        {"#,##0", "0"}};
    for (const auto &[pattern, expected] : cases) {
        EXPECT_EQ(vbFormat(0.0, QString::fromLatin1(pattern)), QString::fromLatin1(expected)) << pattern;
        EXPECT_EQ(vbFormatSingle(0.0f, QString::fromLatin1(pattern)), QString::fromLatin1(expected)) << pattern;
    }
}

TEST(VbFormat, VariantsDispatchOnTheirType)
{
    const QString pattern = QStringLiteral("0.00");
    EXPECT_EQ(vbFormat(QVariant(), pattern), QString());
    EXPECT_EQ(vbFormat(QVariant(QMetaType::fromType<double>()), pattern), QString());
    EXPECT_EQ(vbFormat(QVariant(2.675f), pattern), QStringLiteral("2.68"));
    EXPECT_EQ(vbFormat(QVariant(2.675), pattern), QStringLiteral("2.68"));
    EXPECT_EQ(vbFormat(QVariant(7), pattern), QStringLiteral("7.00"));
    EXPECT_EQ(vbFormat(QVariant(qint64(-12345678901)), QStringLiteral("#,##0")),
              QStringLiteral("-12,345,678,901"));
    EXPECT_EQ(vbFormat(QVariant(true), QStringLiteral("0")), QStringLiteral("-1"));
    EXPECT_EQ(vbFormat(QVariant(QStringLiteral(" 1,234.567 ")), QStringLiteral("#,###.0#")),
              QStringLiteral("1,234.57"));
    EXPECT_EQ(vbFormat(QVariant(QStringLiteral("not found")), pattern), QStringLiteral("not found"));
    EXPECT_EQ(vbFormat(QVariant(QString()), pattern), QString());
    EXPECT_EQ(vbFormat(QVariant(QDate(2026, 11, 22)), QStringLiteral("yyyy")), QStringLiteral("2026"));
    EXPECT_EQ(vbFormat(QVariant(QDate(2026, 11, 22)), QStringLiteral("0")), QStringLiteral("46348"));
    EXPECT_EQ(vbFormat(QVariant(QDate(2026, 11, 22)), QStringLiteral("Standard")), QStringLiteral("46,348.00"));
    EXPECT_EQ(vbFormat(QVariant(0.0), QStringLiteral("Yes/No")), QStringLiteral("No"));
    EXPECT_EQ(vbFormat(QVariant(-2), QStringLiteral("On/Off")), QStringLiteral("On"));
    EXPECT_EQ(vbFormat(QVariant(46348.5), QStringLiteral("mm/dd/yyyy hh:mm")), QStringLiteral("11/22/2026 12:00"));
    EXPECT_EQ(vbFormat(QVariant(QStringLiteral("11/22/2026")), QStringLiteral("Long Date")),
              QStringLiteral("Sunday, November 22, 2026"));
}

TEST(VbFormat, DatePatterns)
{
    const QDateTime pm(QDate(2026, 11, 22), QTime(15, 4, 5));
    const QDateTime am(QDate(2026, 1, 5), QTime(0, 7, 9));
    const struct {
        QDateTime moment;
        const char *pattern;
        const char *expected;
    } cases[] = {
        {pm, "Short Date", "11/22/2026"},
        {am, "Short Date", "1/5/2026"},
        {pm, "General Date", "11/22/2026 3:04:05 PM"},
        {am, "General Date", "1/5/2026 12:07:09 AM"},
        {QDateTime(QDate(2026, 1, 5), QTime(0, 0)), "General Date", "1/5/2026"},
        {pm, "Long Date", "Sunday, November 22, 2026"},
        {am, "Long Date", "Monday, January 5, 2026"},
        {am, "mm/dd/yyyy", "01/05/2026"},
        {am, "MM/DD/YYYY", "01/05/2026"},
        {pm, "MMM DD,YYYY h:mm:ss AMPM", "Nov 22,2026 3:04:05 PM"},
        {am, "MMM DD,YYYY h:mm:ss AMPM", "Jan 05,2026 12:07:09 AM"},
        {pm, "hh:mm:ss", "15:04:05"},
        {am, "hh:mm:ss", "00:07:09"},
        {pm, "yyyy", "2026"},
        {pm, "h:nn am/pm", "3:04 pm"},
        {pm, "dddd d mmmm yy, q", "Sunday 22 November 26, 4"},
        {pm, "\"day \"y", "day 326"},
        {pm, "Medium Date", "22-Nov-26"},
        {pm, "Long Time", "3:04:05 PM"},
    };
    for (const auto &c : cases)
        EXPECT_EQ(vbFormat(QVariant(c.moment), QString::fromLatin1(c.pattern)).toStdString(), c.expected)
            << c.pattern;
}

// shortDate and defaultDateTimeText are the "Short Date" and "General Date" forms checked above.
TEST(VbDates, CStrAndCDblOfDates)
{
    EXPECT_EQ(defaultDateTimeText(QDateTime(QDate(2026, 11, 22), QTime(12, 0, 0))),
              QStringLiteral("11/22/2026 12:00:00 PM"));
    EXPECT_EQ(CStr(QVariant(QDate(2026, 1, 5))), QStringLiteral("1/5/2026"));
    EXPECT_EQ(CStr(QVariant(QDateTime(QDate(2026, 1, 5), QTime(9, 30, 0)))), QStringLiteral("1/5/2026 9:30:00 AM"));
    EXPECT_DOUBLE_EQ(CDbl(QVariant(QDateTime(QDate(2026, 11, 22), QTime(6, 0)))), 46348.25);
    EXPECT_DOUBLE_EQ(CDbl(QVariant(QDateTime(QDate(1899, 12, 29), QTime(6, 0)))), -1.25);
}

struct TextCase {
    float value;
    const char *expected;
};

TEST(VbText, SingleDefaultText)
{
    const TextCase cases[] = {
        {0.1f, "0.1"},           {1.0f / 3, "0.3333333"}, {123456789.0f, "1.234568E+08"},
        {100.0f, "100"},         {3.0f, "3"},             {0.5f, "0.5"},
        {-0.25f, "-0.25"},       {1234567.0f, "1234567"}, {10000000.0f, "1E+07"},
        {1e-5f, "0.00001"},      {1.5e-5f, "0.000015"},   {1e-6f, "1E-06"},
        {1e-7f, "1E-07"},        {2.675f, "2.675"},       {0.0f, "0"},
        {-0.0f, "0"},            {FLT_MAX, "3.402823E+38"}, {1.1f * 1.1f, "1.21"},
    };
    for (const auto &c : cases) {
        EXPECT_EQ(singleToText(c.value).toStdString(), c.expected);
        EXPECT_EQ(CStr(QVariant(c.value)).toStdString(), c.expected);
    }
}

TEST(VbText, DoubleDefaultText)
{
    const std::pair<double, const char *> cases[] = {
        {0.1 + 0.2, "0.3"},          {1.0 / 3, "0.333333333333333"}, {2.0 / 3, "0.666666666666667"},
        {1e15, "1E+15"},             {123456789012345.0, "123456789012345"},
        {1e-5, "0.00001"},           {1.5e-7, "1.5E-07"},             {-1234.5, "-1234.5"},
        {double(0.1f), "0.100000001490116"}, {1e300, "1E+300"},     {5e-324, "4.94065645841247E-324"},
    };
    for (const auto &[value, expected] : cases) {
        EXPECT_EQ(doubleToText(value).toStdString(), expected);
        EXPECT_EQ(CStr(QVariant(value)).toStdString(), expected);
    }
}

TEST(VbText, CStrOfOtherVariants)
{
    EXPECT_EQ(CStr(QVariant(true)), QStringLiteral("True"));
    EXPECT_EQ(CStr(QVariant(false)), QStringLiteral("False"));
    EXPECT_EQ(CStr(QVariant(-42)), QStringLiteral("-42"));
    EXPECT_EQ(CStr(QVariant(QStringLiteral(" as is "))), QStringLiteral(" as is "));
    EXPECT_EQ(CStr(QVariant(QString())), QString());
    try {
        CStr(QVariant());
        FAIL() << "null converted";
    } catch (const VbError &e) {
        EXPECT_EQ(e.number(), VbErr::InvalidUseOfNull);
    }
}

TEST(VbConvert, CSngAndCDblReadText)
{
    const std::pair<const char *, double> cases[] = {
        {"1,234.5", 1234.5}, {"  12.5  ", 12.5}, {"-3", -3},     {"+.5", 0.5},     {"5.", 5},
        {"1,2,3", 123},      {"1e3", 1000},      {"2.5D-1", 0.25}, {"&H1F", 31},   {"&HFFFF", -1},
        {"&H10000", 65536},  {"&o17", 15},       {"$1,000", 1000}, {"(2.5)", -2.5}, {"7-", -7},
        {"1E-400", 0},       {"0.1", 0.1},
    };
    for (const auto &[text, expected] : cases) {
        const QVariant v(QString::fromLatin1(text));
        EXPECT_DOUBLE_EQ(CDbl(v), expected) << text;
        EXPECT_EQ(CSng(v), float(expected)) << text;
        EXPECT_TRUE(IsNumeric(v)) << text;
    }
    EXPECT_EQ(CSng(QVariant(QStringLiteral("1,234.5"))), 1234.5f);
    // Text goes straight to single precision.
    EXPECT_EQ(CSng(QVariant(QStringLiteral("16777217"))), 16777216.0f);
}

TEST(VbConvert, ConversionErrors)
{
    const char *notNumbers[] = {"not found", "abc", "1.2.3", "", "   ", "-", ".", "1e", "1 2", "&H",
                                "&HG", "1.5,0", ",5", "(5", "--5", "5-5", "inf", "nan", "0x10"};
    for (const char *text : notNumbers) {
        const QVariant v(QString::fromLatin1(text));
        EXPECT_EQ(errorNumber([&] { CSng(v); }), VbErr::TypeMismatch) << text;
        EXPECT_EQ(errorNumber([&] { CDbl(v); }), VbErr::TypeMismatch) << text;
        EXPECT_FALSE(IsNumeric(v)) << text;
    }
    EXPECT_EQ(errorNumber([] { CSng(QVariant()); }), VbErr::InvalidUseOfNull);
    EXPECT_EQ(errorNumber([] { CDbl(QVariant(QMetaType::fromType<float>())); }), VbErr::InvalidUseOfNull);
    EXPECT_EQ(errorNumber([] { CLng(QVariant()); }), VbErr::InvalidUseOfNull);
    EXPECT_EQ(errorNumber([] { CSng(QVariant(1e39)); }), VbErr::Overflow);
    EXPECT_EQ(errorNumber([] { CSng(QVariant(QStringLiteral("1e39"))); }), VbErr::Overflow);
    EXPECT_EQ(errorNumber([] { CDbl(QVariant(QStringLiteral("1e309"))); }), VbErr::Overflow);
    EXPECT_EQ(errorNumber([] { CDbl(QVariant(QStringLiteral("&H123456789"))); }), VbErr::Overflow);
    EXPECT_FALSE(IsNumeric(QVariant()));
    EXPECT_FALSE(IsNumeric(QVariant(QDate(2026, 1, 1))));
    EXPECT_TRUE(IsNumeric(QVariant(2.5f)));
    EXPECT_TRUE(IsNumeric(QVariant(true)));
}

TEST(VbConvert, NumbersAndBooleans)
{
    EXPECT_EQ(CSng(QVariant(0.1)), 0.1f);
    EXPECT_EQ(CSng(QVariant(true)), -1.0f);
    EXPECT_EQ(CDbl(QVariant(false)), 0.0);
    EXPECT_EQ(CDbl(QVariant(0.1f)), double(0.1f));
    EXPECT_EQ(CSng(QVariant(double(FLT_MAX))), FLT_MAX);
}

TEST(VbConvert, IntegersRoundHalfToEven)
{
    const std::pair<double, qint32> cases[] = {
        {0.5, 0}, {1.5, 2}, {2.5, 2}, {3.5, 4}, {-0.5, 0}, {-1.5, -2}, {-2.5, -2}, {2.4999, 2}, {2.5001, 3},
    };
    for (const auto &[value, expected] : cases) {
        EXPECT_EQ(CLng(QVariant(value)), expected) << value;
        EXPECT_EQ(CInt(QVariant(value)), qint16(expected)) << value;
    }
    EXPECT_EQ(CLng(QVariant(QStringLiteral("2.5"))), 2);
    EXPECT_EQ(CInt(QVariant(true)), -1);
    EXPECT_EQ(CInt(QVariant(32767.4)), 32767);
    EXPECT_EQ(CInt(QVariant(-32768.5)), -32768);
    EXPECT_EQ(errorNumber([] { CInt(QVariant(32767.5)); }), VbErr::Overflow);
    EXPECT_EQ(errorNumber([] { CInt(QVariant(-32769)); }), VbErr::Overflow);
    EXPECT_EQ(CLng(QVariant(2147483647.4)), 2147483647);
    EXPECT_EQ(errorNumber([] { CLng(QVariant(2147483647.5)); }), VbErr::Overflow);
    EXPECT_EQ(errorNumber([] { CLng(QVariant(QStringLiteral("x"))); }), VbErr::TypeMismatch);
}

TEST(VbConvert, ValReadsTheLeadingNumber)
{
    const std::pair<const char *, double> cases[] = {
        {"1,234", 1},      {"1 2", 12},         {"  \t-3.5kg", -3.5}, {"&H1F", 31},   {"&hFFFF", -1},
        {"&O17", 15},      {"abc", 0},          {"", 0},              {".5", 0.5},    {"- 5", -5},
        {"1.2.3", 1.2},    {"1e3", 1000},       {"1d2", 100},         {"12E", 12},    {"12e+", 12},
        {"2 . 5 e 1", 25}, {"$5", 0},           {"-", 0},             {"1e-400", 0},  {"007", 7},
        {"24 hours", 24},  {"1\n2", 12},        {"&H", 0},            {"+7x", 7},
    };
    for (const auto &[text, expected] : cases)
        EXPECT_DOUBLE_EQ(Val(QString::fromLatin1(text)), expected) << text;
    EXPECT_EQ(errorNumber([] { Val(QStringLiteral("1e400")); }), VbErr::Overflow);
}

}  // namespace
