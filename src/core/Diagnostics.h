// SPDX-License-Identifier: MIT
#pragma once

#include "Session.h"
#include "VbError.h"

#include <QString>
#include <QVector>
#include <exception>
#include <utility>

//! The forms in which a routine's error handler shows its message (stop icon, OK).
enum class ErrForm {
    Shared,     //!< "Error in routine <R>" CRLF CRLF <Desc> CRLF <N>; title gMsgTitle
    Qualified,  //!< <N> CRLF <Desc> CRLF "Error in <R>"; title "System Developer Message"
    Found,      //!< <N> TAB <Desc> "Error found in routine <R>"; title "System Developer Message"
    CodeTab,    //!< <N> TAB <Desc> "Error in code routine <R>"; title gMsgTitle + "System Developer Message"
    CodeCrLf,   //!< <N> CRLF <Desc> "Error in code routine <R>"; same title
    Bare,       //!< <N> CRLF <Desc> <R>; title "System Developer Message"
};

//! The two layouts of a trace line.
enum class TraceLayout {
    Tabbed,     //!< <time> TAB <message>, in "diag.txt"
    Lined,      //!< <time> CRLF <message>, in "Diag.txt"
};

//! How a routine reports: its message form and name, and its trace point if it has one.
struct RoutineInfo {
    RoutineInfo(ErrForm f, QString name, QString trace = {}, TraceLayout l = TraceLayout::Tabbed)
        : form(f), routine(std::move(name)), traceName(std::move(trace)), layout(l) {}
    ErrForm form = ErrForm::Shared;
    QString routine;          //!< the name the message shows
    QString traceName;        //!< the name in trace lines; empty for routines without a trace point
    TraceLayout layout = TraceLayout::Tabbed;
};

//! The text and title of an error message in a given form.
struct ErrorText {
    QString text;
    QString title;
};
ErrorText errorText(const Session &s, ErrForm form, const QString &routine, int number, const QString &description);

//! Writes trace lines when gDiagLevel is at least minLevel; a failing trace file reports through
//! GF_SetFileContent and never stops the routine.
void traceLine(Session &s, TraceLayout layout, const QString &message, int minLevel = 1);
void traceSuccess(Session &s, const RoutineInfo &info);
void traceError(Session &s, const RoutineInfo &info, int number, const QString &description);
//! "<R> parameters: " CRLF and a line "<name> = <value>" for each.
void traceParameters(Session &s, const RoutineInfo &info, const QVector<std::pair<QString, QString>> &values,
                     int minLevel = 2);
//! The trace file of a layout.
QString traceFilePath(const Session &s, TraceLayout layout);

//! The names of the trace levels and the prompt that asks for one.
QStringList diagLevelNames();
QString diagLevelPrompt();

//! The handler of a routine: trace the error line, reset the pointer, show the message.
void handleError(Session &s, const RoutineInfo &info, int number, const QString &description);

//! Runs body as a routine with an armed handler. A VbError (or any exception) ends the body; the
//! handler writes the trace line, resets the pointer and shows the message; the function then returns
//! false, and the caller returns whatever default its result held. Never re-raises.
template <typename Body>
bool guarded(Session &s, const RoutineInfo &info, Body &&body)
{
    try {
        body();
        return true;
    } catch (const VbError &e) {
        handleError(s, info, e.number(), e.description());
    } catch (const std::exception &e) {
        handleError(s, info, VbErr::GenericDbError, QString::fromUtf8(e.what()));
    }
    return false;
}
