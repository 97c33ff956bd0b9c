// SPDX-License-Identifier: MIT
#include "Diagnostics.h"
#include "QtServices.h"
#include "QtWindowHost.h"
#include "Session.h"
#include "clsDietItem.h"
#include "frmMDI.h"

#if __has_include("ScriptRunner.h")
#include "ScriptMessageService.h"
#include "ScriptRunner.h"
#define ZOB_HAVE_AUTOMATION 1
#endif

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>
#include <cstdio>
#include <memory>

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Zobrel"));
    QApplication::setApplicationVersion(QStringLiteral(ZOB_VERSION));

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Wildlife exposure scenarios for ecological risk assessment."));
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption homeOpt(QStringLiteral("home"), QStringLiteral("Program folder holding ZOB.sqlite."), QStringLiteral("DIR"));
    const QCommandLineOption userOpt(QStringLiteral("user"), QStringLiteral("Login name to use instead of the system's."), QStringLiteral("NAME"));
    const QCommandLineOption diagOpt(QStringLiteral("diag"), QStringLiteral("Trace level 0-4."), QStringLiteral("LEVEL"), QStringLiteral("0"));
    const QCommandLineOption scriptOpt(QStringLiteral("script"), QStringLiteral("Run a JavaScript file after start-up."), QStringLiteral("FILE.js"));
    const QCommandLineOption quitOpt(QStringLiteral("quit-after-script"), QStringLiteral("End the program when the script ends."));
    const QCommandLineOption timeoutOpt(QStringLiteral("script-timeout"), QStringLiteral("Time limit of the script (default 120)."),
                                        QStringLiteral("SECONDS"), QStringLiteral("120"));
    parser.addOptions({homeOpt, userOpt, diagOpt, scriptOpt, quitOpt, timeoutOpt});
    parser.process(app);

    const QString script = parser.value(scriptOpt);
    if (!script.isEmpty() && !QFileInfo::exists(script)) {
        std::fprintf(stderr, "The script %s does not exist.\n", qPrintable(script));
        return 2;
    }

    Session session;
    QtWindowHost host(session);
    QtCursorService cursor;
    QtHelpService help(host);
    std::unique_ptr<MessageService> messages;
#ifdef ZOB_HAVE_AUTOMATION
    ScriptMessageService *scriptMessages = nullptr;
    if (!script.isEmpty()) {
        auto recorded = std::make_unique<ScriptMessageService>();
        scriptMessages = recorded.get();
        messages = std::move(recorded);
    }
#endif
    if (!messages)
        messages = std::make_unique<QtMessageService>();
    session.messages = messages.get();
    session.cursor = &cursor;
    session.help = &help;
    session.windows = &host;
    session.home = parser.isSet(homeOpt) ? QDir(parser.value(homeOpt)).absolutePath() : QCoreApplication::applicationDirPath();
    session.userOverride = parser.value(userOpt);
    session.gDiagLevel = static_cast<qint16>(std::clamp(parser.value(diagOpt).toInt(), 0, 4));

    // Without a database there is nothing to show: one message, then the process ends.
    if (!session.Main()) {
#ifdef ZOB_HAVE_AUTOMATION
        if (scriptMessages)
            for (const RecordedMessage &m : scriptMessages->messages())
                std::fprintf(stdout, "FAIL - start-up: %s\n", qPrintable(QString(m.text).replace(QLatin1String("\r\n"), QLatin1String(" / "))));
#endif
        return 1;
    }
    // The one diet-item object lives for the whole run.
    session.gDietItem = std::make_shared<clsDietItem>(session);

    frmMDI mdi(session, host);
    mdi.show();
    mdi.Form_Load();

#ifdef ZOB_HAVE_AUTOMATION
    std::unique_ptr<ScriptRunner> runner;
    if (scriptMessages) {
        runner = std::make_unique<ScriptRunner>(session, host, *scriptMessages);
        runner->exposeProgramObjects();
        runner->start(script, parser.isSet(quitOpt), parser.value(timeoutOpt).toInt());
    }
#endif
    const int code = app.exec();
#ifdef ZOB_HAVE_AUTOMATION
    if (runner && runner->isFinished())
        return runner->exitCode() < 0 ? code : runner->exitCode();
    // The program ended under the script (Exit, Close): its failures still decide the status.
    if (runner) {
        const int scriptCode = runner->finishAfterProgramEnd();
        return scriptCode != 0 ? scriptCode : code;
    }
#endif
    return code;
}
