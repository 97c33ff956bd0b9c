// SPDX-License-Identifier: MIT
#include "Diagnostics.h"

#include "VbFormat.h"

#include <QDateTime>

namespace {
const QString kCrLf = QStringLiteral("\r\n");
const QString kDeveloperTitle = QStringLiteral("System Developer Message");
}

ErrorText errorText(const Session &s, ErrForm form, const QString &routine, int number, const QString &description)
{
    const QString n = QString::number(number);
    switch (form) {
    case ErrForm::Shared:
        return {QStringLiteral("Error in routine ") + routine + kCrLf + kCrLf + description + kCrLf + n, s.gMsgTitle};
    case ErrForm::Qualified:
        return {n + kCrLf + description + kCrLf + QStringLiteral("Error in ") + routine, kDeveloperTitle};
    case ErrForm::Found:
        return {n + QLatin1Char('\t') + description + QStringLiteral("Error found in routine ") + routine, kDeveloperTitle};
    case ErrForm::CodeTab:
        return {n + QLatin1Char('\t') + description + QStringLiteral("Error in code routine ") + routine,
                s.gMsgTitle + kDeveloperTitle};
    case ErrForm::CodeCrLf:
        return {n + kCrLf + description + QStringLiteral("Error in code routine ") + routine, s.gMsgTitle + kDeveloperTitle};
    case ErrForm::Bare:
        return {n + kCrLf + description + routine, kDeveloperTitle};
    }
    return {};
}

QString traceFilePath(const Session &s, TraceLayout layout)
{
    // The two layouts have always gone to files whose names differ in case only.
    return Session::join(s.home, layout == TraceLayout::Tabbed ? QStringLiteral("diag.txt") : QStringLiteral("Diag.txt"));
}

void traceLine(Session &s, TraceLayout layout, const QString &message, int minLevel)
{
    if (s.gDiagLevel < minLevel)
        return;
    const QString time = vb::defaultDateTimeText(QDateTime::currentDateTime());
    // The line end of the layout is the line end the file writer adds.
    s.gDiagText = layout == TraceLayout::Tabbed ? time + QLatin1Char('\t') + message
                                                : time + QLatin1Char('\n') + message;
    s.GF_SetFileContent(traceFilePath(s, layout), s.gDiagText, QString());
}

void traceSuccess(Session &s, const RoutineInfo &info)
{
    if (!info.traceName.isEmpty())
        traceLine(s, info.layout, info.traceName + QStringLiteral(" successful :) "));
}

void traceError(Session &s, const RoutineInfo &info, int number, const QString &description)
{
    if (!info.traceName.isEmpty())
        traceLine(s, info.layout, info.traceName + QStringLiteral(" Error :( ") + QString::number(number) + description);
}

void traceParameters(Session &s, const RoutineInfo &info, const QVector<std::pair<QString, QString>> &values, int minLevel)
{
    if (info.traceName.isEmpty())
        return;
    QString text = info.traceName + QStringLiteral(" parameters: ");
    for (const auto &[name, value] : values)
        text += QLatin1Char('\n') + name + QStringLiteral(" = ") + value;
    traceLine(s, info.layout, text, minLevel);
}

QStringList diagLevelNames()
{
    return {QStringLiteral("1 - procedures"), QStringLiteral("2 - parameters"), QStringLiteral("3 - recordset"),
            QStringLiteral("4 - All")};
}

QString diagLevelPrompt() { return QStringLiteral("Enter the diagnostics level to include:"); }

void handleError(Session &s, const RoutineInfo &info, int number, const QString &description)
{
    traceError(s, info, number, description);
    s.resetCursor();
    if (info.form == ErrForm::Shared) {
        // The shared box takes the number as a 16-bit integer.
        s.PuS_ErrorMessage(description, static_cast<qint16>(number), info.routine);
        return;
    }
    const ErrorText t = errorText(s, info.form, info.routine, number, description);
    s.msgBox(t.text, t.title, MsgIcon::Stop, MsgButtons::OK, 1);
}
