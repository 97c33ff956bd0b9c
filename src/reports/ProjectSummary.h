// SPDX-License-Identifier: MIT
#pragma once

#include "ActiveReport.h"

//! The project summary: the open project's heads and its scenarios, one detail band each.
class ProjectSummary : public ActiveReport {
public:
    explicit ProjectSummary(Session &session);
    void ActiveReport_ReportStart() override;
    QString subject() const override;
    //! The project reported; 0 takes the session's open project.
    qint32 projectId = 0;
};

//! The heading every report of a scenario or project carries: the title, the report type, the
//! printed date, the disk file and the last saved date, then a rule. fileField and savedField are
//! the columns of the file name and the last save.
void addReportHeading(ActiveReport &report, const QString &type, const QString &fileField, const QString &savedField);
//! The page footer "Page N of M".
void addPageFooter(ActiveReport &report);
