// SPDX-License-Identifier: MIT
// Fuzz target of the number routines: CSng, CDbl, CLng, CInt, Val, IsNumeric, Format and the default
// number texts. The input is a text, a line break and a Format pattern. Nothing may crash or raise
// anything but the legacy errors (6 overflow, 13 type mismatch, 94 invalid use of null, 5 invalid
// call); text that IsNumeric accepts converts with CDbl; a double's own text reads back as the same
// number to 15 digits, a single's to 7.
#include "VbError.h"
#include "VbFormat.h"

#include <QString>

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

[[noreturn]] void finding(const char *what, const QString &text)
{
    std::fprintf(stderr, "FINDING: %s\n  input: %s\n", what, text.toUtf8().constData());
    std::abort();
}

template <typename F>
void legacyErrorsOnly(const QString &text, F call)
{
    try {
        call();
    } catch (const VbError &e) {
        const int n = e.number();
        if (n != VbErr::Overflow && n != VbErr::TypeMismatch && n != VbErr::InvalidUseOfNull
            && n != VbErr::InvalidProcedureCall)
            finding("an error the legacy routines do not raise", text);
    }
}

bool near(double a, double b, double relative) { return std::fabs(a - b) <= relative * std::fabs(b); }

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QString input = QString::fromUtf8(reinterpret_cast<const char *>(data), qsizetype(size));
    const qsizetype cut = input.indexOf(QLatin1Char('\n'));
    const QString text = cut < 0 ? input : input.left(cut);
    const QString pattern = cut < 0 ? QStringLiteral("0.000") : input.mid(cut + 1);
    const QVariant value(text);

    legacyErrorsOnly(text, [&] { vb::CSng(value); });
    legacyErrorsOnly(text, [&] { vb::CLng(value); });
    legacyErrorsOnly(text, [&] { vb::CInt(value); });
    legacyErrorsOnly(text, [&] { vb::vbFormat(value, pattern); });
    legacyErrorsOnly(text, [&] {
        const double v = vb::Val(text);
        vb::vbFormat(v, pattern);
        vb::vbFormatSingle(static_cast<float>(v), pattern);
    });
    if (vb::IsNumeric(value)) {
        try {
            vb::CDbl(value);
        } catch (const VbError &e) {
            if (e.number() == VbErr::TypeMismatch)
                finding("IsNumeric accepts what CDbl refuses", text);
        }
    }

    // The raw bytes as numbers: their default texts read back as the same numbers.
    if (size >= sizeof(double)) {
        double d;
        std::memcpy(&d, data, sizeof d);
        if (std::isfinite(d) && std::fabs(d) >= 1e-300) {
            const QString t = vb::doubleToText(d);
            legacyErrorsOnly(t, [&] {
                if (!near(vb::CDbl(QVariant(t)), d, 1e-14))
                    finding("a double's text reads back as another number", t);
            });
        }
        float f;
        std::memcpy(&f, data, sizeof f);
        if (std::isnormal(f)) {
            const QString t = vb::singleToText(f);
            legacyErrorsOnly(t, [&] {
                if (!near(vb::CSng(QVariant(t)), f, 1e-6))
                    finding("a single's text reads back as another number", t);
            });
        }
    }
    return 0;
}
