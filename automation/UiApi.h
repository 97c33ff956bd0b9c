// SPDX-License-Identifier: MIT
#pragma once

#include "ScriptContext.h"

#include <QObject>
#include <QStringList>

//! The global "ui": windows and menu items by name, the recorded message boxes and their queued
//! answers, the cursor and the help viewer.
class UiApi : public QObject {
    Q_OBJECT
public:
    explicit UiApi(const ScriptContext &ctx);
    Q_INVOKABLE QJSValue window(const QString &name);
    Q_INVOKABLE QStringList windows() const;
    //! Loads and shows a window (modal when asked).
    Q_INVOKABLE void show(const QString &name, bool modal = false);
    Q_INVOKABLE QJSValue menu(const QString &name);
    //! Queues answers for the next boxes (variadic in JavaScript).
    Q_INVOKABLE void answerList(const QStringList &answers);
    Q_INVOKABLE QJSValue messages() const;
    Q_INVOKABLE void clearMessages();
    Q_INVOKABLE QStringList pendingAnswers() const;
    Q_INVOKABLE QString cursor() const;
    //! The number of the help topic on show, 0 when the viewer was never opened.
    Q_INVOKABLE int helpTopic() const;
    //! Asks for a help topic by number, as a Help button does.
    Q_INVOKABLE void showHelp(int number);
    //! Waits until the program is idle.
    Q_INVOKABLE void idle();
private:
    //! Runs fn on the GUI thread with the context.
    QVariant gui(const std::function<QVariant(const ScriptContext &)> &fn) const;
    ScriptContext m_ctx;
};
