// SPDX-License-Identifier: MIT
#include "Services.h"

QVector<MsgAnswer> buttonsOf(MsgButtons buttons)
{
    switch (buttons) {
    case MsgButtons::OK: return {MsgAnswer::OK};
    case MsgButtons::OKCancel: return {MsgAnswer::OK, MsgAnswer::Cancel};
    case MsgButtons::YesNo: return {MsgAnswer::Yes, MsgAnswer::No};
    case MsgButtons::YesNoCancel: return {MsgAnswer::Yes, MsgAnswer::No, MsgAnswer::Cancel};
    case MsgButtons::RetryCancel: return {MsgAnswer::Retry, MsgAnswer::Cancel};
    case MsgButtons::AbortRetryIgnore: return {MsgAnswer::Abort, MsgAnswer::Retry, MsgAnswer::Ignore};
    }
    return {MsgAnswer::OK};
}

QString answerName(MsgAnswer answer)
{
    switch (answer) {
    case MsgAnswer::OK: return QStringLiteral("OK");
    case MsgAnswer::Cancel: return QStringLiteral("Cancel");
    case MsgAnswer::Yes: return QStringLiteral("Yes");
    case MsgAnswer::No: return QStringLiteral("No");
    case MsgAnswer::Retry: return QStringLiteral("Retry");
    case MsgAnswer::Abort: return QStringLiteral("Abort");
    case MsgAnswer::Ignore: return QStringLiteral("Ignore");
    }
    return {};
}

QString iconName(MsgIcon icon)
{
    switch (icon) {
    case MsgIcon::None: return QStringLiteral("none");
    case MsgIcon::Information: return QStringLiteral("information");
    case MsgIcon::Warning: return QStringLiteral("warning");
    case MsgIcon::Stop: return QStringLiteral("stop");
    case MsgIcon::Question: return QStringLiteral("question");
    }
    return {};
}
