// SPDX-License-Identifier: MIT
#include "ProjectSummary.h"

#include "QtWindowHost.h"
#include "ReportWindow.h"
#include "Session.h"
#include "clsProject.h"

namespace {
const ReportRegistration<ProjectSummary> reg(QStringLiteral("ProjectSummary"));

//! The project's heads as caption and column pairs, two to a row where the second is given.
struct Head {
    const char *caption;
    const char *field;
};
const Head kHeads[] = {{"Project Name:", "Name"},      {"Description", "Purpose"}, {"Project Location:", "Location"},
                       {"State/Province:", "State"},  {"Latitude:", "Latitude"},  {"Longitude:", "Longitude"},
                       {"Project Author:", "Author"}, {"Comments:", "Comments"}};

//! The columns of the scenario list: head, column, x, width, pattern.
struct Column {
    const char *head;
    const char *field;
    double x;
    double w;
    const char *format;
};
const Column kColumns[] = {{"Scenario Type", "Scenario_Type", 0, 90, ""},
                           {"Scenaro File Name", "Scenario_FileName", 95, 170, ""},
                           {"Species", "Scenario_Identifier_1", 270, 145, ""},
                           {"Date Last Modified", "Scenario_LastSaved", 420, 103, "d-mmm-yyyy"}};
}  // namespace

ProjectSummary::ProjectSummary(Session &session) : ActiveReport(session, QStringLiteral("ProjectSummary"))
{
    caption = QStringLiteral("Project Summary");
    addReportHeading(*this, QStringLiteral("Report Type:  Project Summary"), QStringLiteral("File"), QStringLiteral("LastSaved"));
    double y = 4;
    for (const Head &head : kHeads) {
        reportHeader.items << bold(label({}, QString::fromLatin1(head.caption), 0, y, 110))
                           << field(QStringLiteral("fld") + QString::fromLatin1(head.field), QString::fromLatin1(head.field), 115, y, kReportWidth - 115);
        y += 16;
    }
    reportHeader.height = y + 8;
    // One group over all rows, so that the list's heads repeat on every page it runs onto.
    groupHeader.repeat = true;
    groupHeader.items << bold(label(QStringLiteral("lblScenarios"), QStringLiteral("Associated Scenarios"), 0, 0, kReportWidth, 16), 11);
    for (const Column &c : kColumns)
        groupHeader.items << bold(label({}, QString::fromLatin1(c.head), c.x, 20, c.w));
    groupHeader.items << rule(0, 34, kReportWidth);
    groupHeader.height = 38;
    for (const Column &c : kColumns) {
        const QString name = QString::fromLatin1(c.field);
        detail.items << field(QStringLiteral("fld") + name, name, c.x, 0, c.w, QString::fromLatin1(c.format));
    }
    detail.items << field(QStringLiteral("fldZOBComments"), QStringLiteral("ZOBComments"), 20, 14, kReportWidth - 20);
    detail.height = 32;
    addPageFooter(*this);
}

QString ProjectSummary::subject() const
{
    return QString::number(projectId ? projectId : (m_session.gProject ? m_session.gProject->PID : 0));
}

void ProjectSummary::ActiveReport_ReportStart()
{
    const QString pid = subject();
    recordSource = QStringLiteral(
        "SELECT tblProject.Name, tblProject.Purpose, tblProject.Author, tblProject.Location, tblProject.Latitude, "
        "tblProject.Longitude, tblProject.Comments, tblProject.FileName AS File, tblProject.LastSaved, "
        "tblScenario.Scenario_Type, tblStateProvince.Description AS State, tblScenario.Scenario_FileName, "
        "tblScenario.Scenario_LastSaved, tblScenario.Scenario_Identifier_1, tblScenario.Comments AS ZOBComments\r\n"
        "FROM tblScenario RIGHT JOIN ((tblProject LEFT JOIN tblStateProvince ON tblProject.StateProvinceID = "
        "tblStateProvince.StateProvinceID) LEFT JOIN jtblProjectScenario ON tblProject.ProjectID = "
        "jtblProjectScenario.ProjectID) ON tblScenario.ScenarioID = jtblProjectScenario.ScenarioID WHERE "
        "tblProject.ProjectID = ") + pid;
}
