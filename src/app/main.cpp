// SPDX-License-Identifier: MIT
#include "DataFolder.h"
#include "Diagnostics.h"
#include "HeadlessReport.h"
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
#include <QIcon>
#include <cstdio>
#include <memory>

namespace {

void setProgramNames()
{
    QCoreApplication::setApplicationName(QStringLiteral("Zobrel"));
    QCoreApplication::setApplicationVersion(QStringLiteral(ZOB_VERSION));
}

void describeOptions(QCommandLineParser &parser)
{
    parser.setApplicationDescription(QStringLiteral(
        "Wildlife exposure scenarios for ecological risk assessment.\n\n"
        "Without --home the data live in the per-user data folder (%1), made on the first start from the "
        "seeded template.").arg(QDir::toNativeSeparators(DataFolder::defaultHome())));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addOptions({
        {QStringLiteral("home"), QStringLiteral("Program folder holding ZOB.sqlite (default: the per-user data folder)."), QStringLiteral("DIR")},
        {QStringLiteral("user"), QStringLiteral("Login name to use instead of the system's."), QStringLiteral("NAME")},
        {QStringLiteral("diag"), QStringLiteral("Trace level 0-4."), QStringLiteral("LEVEL"), QStringLiteral("0")},
        {QStringLiteral("script"), QStringLiteral("Run a JavaScript file after start-up."), QStringLiteral("FILE.js")},
        {QStringLiteral("quit-after-script"), QStringLiteral("End the program when the script ends.")},
        {QStringLiteral("script-timeout"), QStringLiteral("Time limit of the script (default 120)."), QStringLiteral("SECONDS"), QStringLiteral("120")},
        {QStringLiteral("report"), QStringLiteral("Write the named report as a PDF file and end, without a window (with --pdf and --scenario or --project)."), QStringLiteral("NAME")},
        {QStringLiteral("scenario"), QStringLiteral("The scenario of --report."), QStringLiteral("SID")},
        {QStringLiteral("project"), QStringLiteral("The project of --report (ProjectSummary)."), QStringLiteral("PID")},
        {QStringLiteral("pdf"), QStringLiteral("The PDF file that --report writes."), QStringLiteral("FILE")},
    });
}

//! --help and --version print and end the process under a plain core application, before any window
//! system is touched, so that they work without a display.
void answerHelpOrVersion(int argc, char *argv[])
{
    QCoreApplication core(argc, argv);
    setProgramNames();
    QCommandLineParser parser;
    describeOptions(parser);
    parser.parse(core.arguments());
    for (const char *name : {"help", "help-all", "version"})
        if (parser.isSet(QLatin1String(name)))
            parser.process(core);
}

//! A report made from the command line shows nothing, so it needs no display: unless a platform is
//! named, it runs on the offscreen one.
bool reportWithoutWindow(int argc, char *argv[])
{
    for (int i = 1; i < argc; ++i) {
        const QByteArray arg(argv[i]);
        if (arg == "--report" || arg == "-report" || arg.startsWith("--report=")) {
            if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
                qputenv("QT_QPA_PLATFORM", "offscreen");
            return true;
        }
    }
    return false;
}

}  // namespace

int main(int argc, char *argv[])
{
    answerHelpOrVersion(argc, argv);
    const bool reportOnly = reportWithoutWindow(argc, argv);
    QApplication app(argc, argv);
    setProgramNames();
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/icons/zobrel.svg")));
    QApplication::setDesktopFileName(QStringLiteral("zobrel"));

    // The window application takes its own options (-platform, ...) first; the rest are the program's.
    QCommandLineParser parser;
    describeOptions(parser);
    parser.process(app);

    const QString script = parser.value(QStringLiteral("script"));
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
    if (!messages && reportOnly)
        messages = std::make_unique<ConsoleMessageService>();
    if (!messages)
        messages = std::make_unique<QtMessageService>();
    session.messages = messages.get();
    session.cursor = &cursor;
    session.help = &help;
    session.windows = &host;
    // Without --home the program folder is the user's data folder, made from the template once.
    const bool ownHome = !parser.isSet(QStringLiteral("home"));
    session.home = ownHome ? DataFolder::defaultHome() : QDir(parser.value(QStringLiteral("home"))).absolutePath();
    const bool firstStart = ownHome
                            && DataFolder::prepare(session.home, Session::databaseFileName(),
                                                   DataFolder::startingDatabase(QCoreApplication::applicationDirPath(), Session::databaseFileName()))
                                   == DataFolder::Outcome::Created;
    session.userOverride = parser.value(QStringLiteral("user"));
    session.gDiagLevel = static_cast<qint16>(std::clamp(parser.value(QStringLiteral("diag")).toInt(), 0, 4));

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
    if (reportOnly)
        return makeReport(session, host, {parser.value(QStringLiteral("report")), parser.value(QStringLiteral("scenario")),
                                          parser.value(QStringLiteral("project")), parser.value(QStringLiteral("pdf"))});

    frmMDI mdi(session, host);
    mdi.show();
    if (firstStart)
        session.msgBox(DataFolder::firstStartMessage(session.home), QStringLiteral("Zobrel"), MsgIcon::Information);
    mdi.Form_Load();

#ifdef ZOB_HAVE_AUTOMATION
    std::unique_ptr<ScriptRunner> runner;
    if (scriptMessages) {
        runner = std::make_unique<ScriptRunner>(session, host, *scriptMessages);
        runner->exposeProgramObjects();
        runner->start(script, parser.isSet(QStringLiteral("quit-after-script")),
                      parser.value(QStringLiteral("script-timeout")).toInt());
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
