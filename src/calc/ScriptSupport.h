// SPDX-License-Identifier: MIT
#pragma once

#include "VbError.h"
#include "VbFormat.h"

#include <QString>
#include <QVariant>
#include <exception>

//! Helpers of the script bindings.
namespace scriptapi {

//! A script's id argument as a 32-bit integer (numbers and numeric text; CLng's errors otherwise).
inline qint32 toId(const QVariant &value) { return vb::CLng(value); }

//! Runs body; an error that escapes it becomes lastError and the fallback result.
template <typename R, typename Body>
R guardedCall(QString &lastError, R fallback, Body &&body)
{
    lastError.clear();
    try {
        return body();
    } catch (const VbError &e) {
        lastError = QString::number(e.number()) + QLatin1Char(' ') + e.description();
    } catch (const std::exception &e) {
        lastError = QString::fromUtf8(e.what());
    }
    return fallback;
}

}  // namespace scriptapi
