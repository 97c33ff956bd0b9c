// SPDX-License-Identifier: MIT
#include "ScriptRunner.h"

#include "GlobalApis.h"
#include "ObjectBridge.h"
#include "QtWindowHost.h"
#include "ScriptBindings.h"
#include "ScriptMessageService.h"
#include "Session.h"
#include "UiApi.h"

#include <QCoreApplication>
#include <QFile>
#include <QJSEngine>
#include <QThread>
#include <QTimer>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <mutex>
#include <thread>

static void initAutomationResources()
{
    Q_INIT_RESOURCE(automation);
}

//! The test results of the script, reported by test() in the prelude.
class TestReporter : public QObject {
    Q_OBJECT
public:
    explicit TestReporter(ScriptRunner &runner) : m_runner(runner) {}
    Q_INVOKABLE void pass(const QString &name)
    {
        ++m_runner.m_passed;
        ScriptRunner::printLine(QStringLiteral("ok - ") + name);
    }
    Q_INVOKABLE void fail(const QString &name, const QString &detail)
    {
        ++m_runner.m_failed;
        ScriptRunner::printLine(QStringLiteral("FAIL - %1: %2").arg(name, detail));
    }
    Q_INVOKABLE void log(const QString &text) { ScriptRunner::printLine(text); }

private:
    ScriptRunner &m_runner;
};

void ScriptRunner::printLine(const QString &line)
{
    static std::mutex mutex;
    std::lock_guard<std::mutex> lock(mutex);
    std::fputs(line.toUtf8().constData(), stdout);
    std::fputc('\n', stdout);
    std::fflush(stdout);
}

ScriptRunner::ScriptRunner(Session &session, QtWindowHost &host, ScriptMessageService &messages, QObject *parent)
    : QObject(parent), m_session(session), m_host(host), m_messages(messages)
{
    initAutomationResources();
}

ScriptRunner::~ScriptRunner()
{
    m_bridge.shutdown();
    if (m_thread) {
        if (!m_thread->wait(5000))
            std::_Exit(m_exitCode.load() > 0 ? m_exitCode.load() : 3);
        delete m_thread;
    }
}

int ScriptRunner::finishAfterProgramEnd()
{
    if (m_finished.load())
        return m_exitCode.load();
    m_bridge.shutdown();
    if (m_thread && !m_thread->wait(5000))
        return 1;
    m_finished = true;
    const int code = m_scriptCode.load();
    m_exitCode = code < 0 ? 1 : code;
    return m_exitCode.load();
}

void ScriptRunner::exposeObject(const QString &name, QObject *object)
{
    m_exposed.insert(name, object);
}

void ScriptRunner::exposeProgramObjects()
{
    for (const ScriptBindings::Binding &b : ScriptBindings::all())
        exposeObject(b.name, b.make(m_session, this));
}

void ScriptRunner::start(const QString &path, bool quitAfter, int timeoutSeconds)
{
    m_quitAfter = quitAfter;
    m_timeout = timeoutSeconds > 0 ? timeoutSeconds : 120;

    // The watchdog: a timer on the GUI thread, and behind it a plain thread for a GUI thread that
    // no longer runs its event loop. Either ends the process with a failure line.
    QTimer::singleShot(std::chrono::seconds(m_timeout), this, &ScriptRunner::timedOut);
    std::thread([this, limit = m_timeout] {
        std::this_thread::sleep_for(std::chrono::seconds(limit + 10));
        if (!m_finished.load())
            timedOut();
    }).detach();

    m_thread = QThread::create([this, path] { runScript(path); });
    m_thread->setObjectName(QStringLiteral("script"));
    m_thread->start();
}

void ScriptRunner::timedOut()
{
    if (m_finished.exchange(true))
        return;
    printLine(QStringLiteral("FAIL - script: it did not finish within %1 s and was stopped").arg(m_timeout));
    printLine(QStringLiteral("%1 passed, %2 failed").arg(m_passed.load()).arg(m_failed.load() + 1));
    std::fflush(stderr);
    std::_Exit(124);
}

void ScriptRunner::runScript(const QString &path)
{
    bool uncaught = false;
    {
        QJSEngine engine;
        ScriptContext ctx{&engine, &m_bridge, &m_session, &m_host, &m_messages};
        QJSValue global = engine.globalObject();
        global.setProperty(QStringLiteral("__report"), engine.newQObject(new TestReporter(*this)));
        global.setProperty(QStringLiteral("__ui"), engine.newQObject(new UiApi(ctx)));
        global.setProperty(QStringLiteral("db"), engine.newQObject(new DbApi(ctx)));
        global.setProperty(QStringLiteral("session"), engine.newQObject(new SessionApi(ctx)));
        global.setProperty(QStringLiteral("fmt"), engine.newQObject(new FmtApi(ctx)));
        global.setProperty(QStringLiteral("fs"), engine.newQObject(new FsApi(ctx)));

        QFile prelude(QStringLiteral(":/automation/prelude.js"));
        prelude.open(QIODevice::ReadOnly);
        const QJSValue pre = engine.evaluate(QString::fromUtf8(prelude.readAll()), QStringLiteral("prelude.js"));
        if (pre.isError()) {
            printLine(QStringLiteral("FAIL - script library: ") + pre.toString());
            uncaught = true;
        }
        for (auto it = m_exposed.cbegin(); it != m_exposed.cend(); ++it) {
            if (!it.value())
                continue;
            auto *bridge = new ObjectBridgeApi(ctx, it.value());
            const QStringList names = bridge->methodNames();
            QJSValue nameArray = engine.newArray(static_cast<uint>(names.size()));
            for (int i = 0; i < names.size(); ++i)
                nameArray.setProperty(static_cast<quint32>(i), names[i]);
            global.property(QStringLiteral("__expose")).call({QJSValue(it.key()), engine.newQObject(bridge), nameArray});
        }

        QFile file(path);
        if (!file.open(QIODevice::ReadOnly)) {
            printLine(QStringLiteral("FAIL - script: cannot read %1").arg(path));
            uncaught = true;
        } else if (!uncaught) {
            const QJSValue result = engine.evaluate(QString::fromUtf8(file.readAll()), path);
            if (result.isError()) {
                uncaught = true;
                printLine(QStringLiteral("FAIL - uncaught error: %1 (%2:%3)")
                              .arg(result.toString(), path, result.property(QStringLiteral("lineNumber")).toString()));
            }
        }
    }
    const int failed = m_failed.load();
    printLine(QStringLiteral("%1 passed, %2 failed").arg(m_passed.load()).arg(failed + (uncaught ? 1 : 0)));
    const int code = (failed > 0 || uncaught) ? 1 : 0;
    m_scriptCode = code;
    QMetaObject::invokeMethod(this, [this, code] { onFinished(code); }, Qt::QueuedConnection);
}

void ScriptRunner::onFinished(int code)
{
    if (m_finished.exchange(true))
        return;
    m_exitCode = code;
    emit finished(code);
    if (m_quitAfter) {
        // Leaves every event loop, nested ones included; should a window hold the process, it ends
        // anyway a little later.
        std::thread([code] {
            std::this_thread::sleep_for(std::chrono::seconds(10));
            std::fflush(stdout);
            std::_Exit(code);
        }).detach();
        QCoreApplication::exit(code);
    }
}

#include "ScriptRunner.moc"
