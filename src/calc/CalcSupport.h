// SPDX-License-Identifier: MIT
#pragma once

#include "Session.h"
#include "VbError.h"
#include "VbFormat.h"
#include "clsScenario.h"

#include <QString>
#include <QVariant>

//! Helpers shared by the calculation modules.
namespace calc {

//! The open scenario; like the legacy object reference, a missing one fails with 91.
inline clsScenario &scenario(Session &s)
{
    if (!s.gScenario)
        throw VbError(91, QStringLiteral("Object variable or With block variable not set"));
    return *s.gScenario;
}

//! The scenario id as it is joined into a statement.
inline QString sidText(Session &s) { return QString::number(scenario(s).SID); }

//! A number read back from its Format text: the rounding point of every stored or returned number.
//! A null value fails as CSng(Null) does (94).
inline float roundedSingle(const QVariant &value, const QString &pattern)
{
    if (value.isNull())
        return vb::CSng(QVariant());
    return vb::CSng(vb::vbFormat(value, pattern));
}

inline float roundedSingle(float value, const QString &pattern) { return vb::CSng(vb::vbFormatSingle(value, pattern)); }

//! A Lookup result as a single. A lookup that failed gives an empty value, which counts as 0;
//! "not found" is a type mismatch (13).
inline float lookupSingle(const QVariant &value)
{
    if (!value.isValid())
        return 0.0f;
    return vb::CSng(value);
}

//! A value joined into a text with "&": null adds nothing, numbers in their default text.
inline QString joinText(const QVariant &value)
{
    if (value.isNull())
        return QString();
    return vb::CStr(value);
}

//! A single's default text, null adding nothing: the numbers of the equation and measurement texts.
inline QString singleText(const QVariant &value)
{
    if (value.isNull())
        return QString();
    return vb::singleToText(vb::CSng(value));
}

}  // namespace calc
