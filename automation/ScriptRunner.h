// SPDX-License-Identifier: MIT
#pragma once

#include "GuiBridge.h"

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QString>
#include <atomic>

class QThread;
class QtWindowHost;
class ScriptMessageService;
class Session;

//! Runs a JavaScript file against the running program: the script has its own thread and engine,
//! and every call it makes into the program is carried to the GUI thread (GuiBridge). It prints one
//! line per test and "N passed, N failed" last. A script that does not finish within its time limit
//! fails with a clear line and the process ends.
class ScriptRunner : public QObject {
    Q_OBJECT
public:
    ScriptRunner(Session &session, QtWindowHost &host, ScriptMessageService &messages, QObject *parent = nullptr);
    ~ScriptRunner() override;

    //! Makes every public invokable method of a GUI-thread object callable from scripts as
    //! name.method(...). Call before start().
    void exposeObject(const QString &name, QObject *object);
    //! Exposes the objects the program's layers registered for scripts (ScriptBindingRegistration).
    void exposeProgramObjects();

    //! Starts the script. With quitAfter the program ends when the script ends, with the status 0
    //! when every test passed and nothing was left uncaught, 1 otherwise.
    void start(const QString &path, bool quitAfter, int timeoutSeconds = 120);

    //! The status of the finished script (-1 while it runs).
    int exitCode() const { return m_exitCode.load(); }

    //! For a program that ended while its script still ran (Exit, Close): ends the script's pending
    //! call, waits for the script to finish and gives its status, 1 when it did not finish.
    int finishAfterProgramEnd();
    bool isFinished() const { return m_finished.load(); }

    //! Writes a line on standard output at once (thread-safe).
    static void printLine(const QString &line);

signals:
    void finished(int exitCode);

private:
    void runScript(const QString &path);
    void onFinished(int code);
    void timedOut();

    Session &m_session;
    QtWindowHost &m_host;
    ScriptMessageService &m_messages;
    GuiBridge m_bridge;
    QThread *m_thread = nullptr;
    QHash<QString, QPointer<QObject>> m_exposed;
    bool m_quitAfter = false;
    int m_timeout = 120;
    std::atomic<int> m_exitCode{-1};
    std::atomic<int> m_scriptCode{-1};
    std::atomic<bool> m_finished{false};
    std::atomic<int> m_passed{0};
    std::atomic<int> m_failed{0};
    friend class TestReporter;
};
