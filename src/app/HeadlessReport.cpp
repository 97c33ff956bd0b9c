// SPDX-License-Identifier: MIT
#include "HeadlessReport.h"

#include "Database.h"
#include "QtWindowHost.h"
#include "Recordset.h"
#include "ReportView.h"
#include "Session.h"
#include "VbError.h"
#include "clsProject.h"
#include "clsScenario.h"

#include <QFileInfo>
#include <cstdio>

namespace {
int fail(const QString &message)
{
    std::fprintf(stderr, "zobrel: %s\n", qPrintable(message));
    return 2;
}

//! The first row of a statement, or an empty map when there is none.
QVariantMap firstRow(Session &s, const QString &sql)
{
    QVariantMap row;
    auto rs = s.gDB->OpenRecordset(sql, RecordsetType::Snapshot);
    if (!rs->EOF_())
        for (const QString &name : rs->fieldNames())
            row.insert(name, rs->field(name));
    rs->Close();
    return row;
}

//! Opens the scenario as the reports and the calculations read it: its id, file, diet and basis.
bool openScenario(Session &s, qint32 sid)
{
    const QVariantMap scenario = firstRow(s, QStringLiteral("SELECT * FROM tblScenario WHERE ScenarioID = %1").arg(sid));
    if (scenario.isEmpty())
        return false;
    auto &c = *s.gScenario;
    c.SID = sid;
    c.Mode = QStringLiteral("Edit");
    c.ScenarioType = scenario.value(QStringLiteral("Scenario_Type")).toString();
    c.FilePath = scenario.value(QStringLiteral("Scenario_FilePath")).toString();
    c.FileName = scenario.value(QStringLiteral("Scenario_FileName")).toString();
    c.Identifier1 = scenario.value(QStringLiteral("Scenario_Identifier_1")).toString();
    const QVariantMap wildlife = firstRow(s, QStringLiteral("SELECT * FROM tblWildlife WHERE ScenarioID = %1").arg(sid));
    c.SpeciesID = wildlife.value(QStringLiteral("SpeciesID")).toInt();
    c.WeightID = wildlife.value(QStringLiteral("WeightID")).toInt();
    c.Weight = wildlife.value(QStringLiteral("Weight")).toFloat();
    c.WtSex = wildlife.value(QStringLiteral("WtSex")).toString();
    c.DietID = wildlife.value(QStringLiteral("DietID")).toInt();
    c.DietType = qint16(wildlife.value(QStringLiteral("DietType")).toInt());
    return true;
}

bool openProject(Session &s, qint32 pid)
{
    if (firstRow(s, QStringLiteral("SELECT ProjectID FROM tblProject WHERE ProjectID = %1").arg(pid)).isEmpty())
        return false;
    s.gProject->PID = pid;
    return true;
}
}  // namespace

MsgAnswer ConsoleMessageService::show(const QString &text, const QString &title, MsgIcon, MsgButtons buttons, int defaultButton)
{
    std::fprintf(stderr, "%s%s%s\n", qPrintable(title), title.isEmpty() ? "" : ": ",
                 qPrintable(QString(text).replace(QLatin1String("\r\n"), QLatin1String(" "))));
    const QVector<MsgAnswer> answers = buttonsOf(buttons);
    return answers.value(defaultButton - 1, answers.first());
}

int makeReport(Session &session, QtWindowHost &host, const ReportRequest &request)
{
    const auto it = reportCatalogue().constFind(request.report);
    if (it == reportCatalogue().constEnd()) {
        QStringList names = reportCatalogue().keys();
        names.sort(Qt::CaseInsensitive);
        return fail(QStringLiteral("there is no report \"%1\"; the reports are %2.").arg(request.report, names.join(QStringLiteral(", "))));
    }
    if (request.pdf.isEmpty())
        return fail(QStringLiteral("--report needs --pdf FILE."));
    const bool ofProject = *it == ReportSubject::Project;
    const QString option = ofProject ? QStringLiteral("--project") : QStringLiteral("--scenario");
    const QString idText = ofProject ? request.project : request.scenario;
    bool isNumber = false;
    const qint32 id = idText.toInt(&isNumber);
    if (idText.isEmpty())
        return fail(QStringLiteral("the report %1 needs %2 ID.").arg(request.report, option));
    session.gUserName = session.NetworkUserName();
    session.IsValidUser(session.gUserName);
    session.gProject = std::make_shared<clsProject>(session);
    session.gScenario = std::make_shared<clsScenario>(session);
    try {
        if (!isNumber || !(ofProject ? openProject(session, id) : openScenario(session, id)))
            return fail(QStringLiteral("there is no %1 with the id %2.").arg(ofProject ? QStringLiteral("project") : QStringLiteral("scenario"), idText));
    } catch (const VbError &e) {
        return fail(e.description());
    }
    auto *report = dynamic_cast<ReportView *>(host.form(request.report));
    if (!report || report->pageCount() == 0)
        return fail(QStringLiteral("the report %1 could not be laid out.").arg(request.report));
    const QString path = QFileInfo(request.pdf).absoluteFilePath();
    if (!report->exportPdf(path))
        return fail(QStringLiteral("the file %1 cannot be written.").arg(path));
    std::fprintf(stdout, "%s: %d page(s) written to %s\n", qPrintable(request.report), report->pageCount(), qPrintable(path));
    host.unload(request.report);
    return 0;
}
