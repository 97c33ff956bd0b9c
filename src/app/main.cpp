// SPDX-License-Identifier: MIT
#include "Diagnostics.h"
#include "QtServices.h"
#include "Session.h"
#include "frmMDI.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>

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
    parser.addOptions({homeOpt, userOpt, diagOpt});
    parser.process(app);

    Session session;
    QtMessageService messages;
    QtCursorService cursor;
    session.messages = &messages;
    session.cursor = &cursor;
    session.home = parser.isSet(homeOpt) ? QDir(parser.value(homeOpt)).absolutePath() : QCoreApplication::applicationDirPath();
    session.userOverride = parser.value(userOpt);
    session.gDiagLevel = static_cast<qint16>(std::clamp(parser.value(diagOpt).toInt(), 0, 4));

    // Without a database there is nothing to show: one message, then the process ends.
    if (!session.Main())
        return 1;

    frmMDI mdi(session);
    mdi.show();
    mdi.Form_Load();
    return app.exec();
}
