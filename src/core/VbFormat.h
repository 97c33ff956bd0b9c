// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>
#include <QString>
#include <QVariant>

//! Conversions and formatting that behave like the legacy runtime's (en-US locale: "." decimal point,
//! "," thousands separator). Failures throw VbError with the legacy numbers.
namespace vb {

//! Format(value, pattern) for the numeric patterns the program uses ("0.000", "#.000", "#,###.0#",
//! "#0.0####", "00.#", ...) and the date patterns ("Short Date", "mm/dd/yyyy", "MMM DD,YYYY h:mm:ss AMPM",
//! ...). Numbers round half away from zero on the value's shortest decimal text, so a single 2.675f
//! formats with "0.00" as 2.68 (a double's text is taken to 15 significant digits, a single's to 7,
//! as in their default text). A null value gives "". Text that reads as a number is formatted as one;
//! other text is returned as it stands.
QString vbFormat(const QVariant &value, const QString &pattern);
QString vbFormat(double value, const QString &pattern);
//! Same, for a single-precision value: its shortest decimal text is that of the float.
QString vbFormatSingle(float value, const QString &pattern);

//! CSng: text or number to single. Accepts leading/trailing blanks, thousands separators, a sign,
//! exponents, "&H" hex. Null throws 94; text that is not a number (including "not found" and "") 13;
//! out of range 6.
float CSng(const QVariant &value);
//! CDbl: as CSng, in double precision.
double CDbl(const QVariant &value);
//! CLng / CInt: rounds half to even, as the legacy runtime does; range errors throw 6.
qint32 CLng(const QVariant &value);
qint16 CInt(const QVariant &value);
//! Val: the leading number of a text, 0 when there is none. Blanks are skipped, commas end the
//! number. Only a number beyond the range of a double (or a radix literal beyond 32 bits) fails: 6.
double Val(const QString &text);

//! The default text of a Single (CStr / implicit conversion): the shortest text that reads back to
//! the same single, up to 7 significant digits, no leading zero before the point for |x| < 1 is *kept*
//! (VB writes "0.5"), exponent form as "1E+08" beyond the range of plain digits.
QString singleToText(float value);
//! The default text of a Double: up to 15 significant digits.
QString doubleToText(double value);
//! CStr of a variant: numbers as above, dates in the short form, booleans "True"/"False", null throws 94.
QString CStr(const QVariant &value);

//! The platform's short date text (M/d/yyyy) and the default date-and-time text
//! ("M/d/yyyy h:mm:ss AM"), as the legacy runtime writes them in en-US.
QString shortDate(const QDate &date);
QString defaultDateTimeText(const QDateTime &moment);

//! True when the text reads as a number under CDbl (IsNumeric).
bool IsNumeric(const QVariant &value);

}  // namespace vb
