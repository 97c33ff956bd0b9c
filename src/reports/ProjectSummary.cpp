// SPDX-License-Identifier: MIT
#include "ProjectSummary.h"

#include "QtWindowHost.h"
#include "ReportWindow.h"
#include "Session.h"
#include "VbFormat.h"
#include "clsProject.h"

#include <QDate>

namespace {
const WindowRegistration<ReportWindowOf<ProjectSummary>> reg(QStringLiteral("ProjectSummary"));
constexpr double kWidth = 523;

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

void addReportHeading(ActiveReport &report, const QString &type, const QString &fileField, const QString &savedField)
{
    ReportSection &h = report.pageHeader;
    ReportItem title = bold(label(QStringLiteral("lblHeader"), QStringLiteral("Wildlife Scenario"), 0, 0, kWidth, 20), 15);
    title.align = Qt::AlignHCenter;
    h.items << title << bold(label(QStringLiteral("lblType"), type, 0, 24, 300, 14), 10)
            << label(QStringLiteral("lblPrinted"), QStringLiteral("Printed on:"), 330, 24, 70)
            << label(QStringLiteral("fldDate"), vb::shortDate(QDate::currentDate()), 400, 24, 123)
            << label(QStringLiteral("lblFile"), QStringLiteral("Disk File:"), 0, 42, 70)
            << field(QStringLiteral("fldFile"), fileField, 70, 42, 255)
            << label(QStringLiteral("lblLastSaved"), QStringLiteral("Last Saved:"), 330, 42, 70)
            << field(QStringLiteral("fldLastSaved"), savedField, 400, 42, 123, QStringLiteral("mmmm d, yyyy"))
            << rule(0, 60, kWidth);
    h.height = 66;
}

void addPageFooter(ActiveReport &report)
{
    ReportItem page = label(QStringLiteral("lblPage"), QStringLiteral("Page %1 of %2"), 0, 6, kWidth);
    page.kind = ItemKind::PageNumber;
    page.align = Qt::AlignHCenter;
    report.pageFooter.items << rule(0, 0, kWidth) << page;
    report.pageFooter.height = 22;
}

ProjectSummary::ProjectSummary(Session &session) : ActiveReport(session, QStringLiteral("ProjectSummary"))
{
    caption = QStringLiteral("Project Summary");
    addReportHeading(*this, QStringLiteral("Report Type:  Project Summary"), QStringLiteral("File"), QStringLiteral("LastSaved"));
    double y = 4;
    for (const Head &head : kHeads) {
        reportHeader.items << bold(label({}, QString::fromLatin1(head.caption), 0, y, 110))
                           << field(QStringLiteral("fld") + QString::fromLatin1(head.field), QString::fromLatin1(head.field), 115, y, kWidth - 115);
        y += 16;
    }
    reportHeader.height = y + 8;
    // One group over all rows, so that the list's heads repeat on every page it runs onto.
    groupHeader.repeat = true;
    groupHeader.items << bold(label(QStringLiteral("lblScenarios"), QStringLiteral("Associated Scenarios"), 0, 0, kWidth, 16), 11);
    for (const Column &c : kColumns)
        groupHeader.items << bold(label({}, QString::fromLatin1(c.head), c.x, 20, c.w));
    groupHeader.items << rule(0, 34, kWidth);
    groupHeader.height = 38;
    for (const Column &c : kColumns) {
        const QString name = QString::fromLatin1(c.field);
        detail.items << field(QStringLiteral("fld") + name, name, c.x, 0, c.w, QString::fromLatin1(c.format));
    }
    detail.items << field(QStringLiteral("fldZOBComments"), QStringLiteral("ZOBComments"), 20, 14, kWidth - 20);
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
