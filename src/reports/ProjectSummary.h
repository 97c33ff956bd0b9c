// SPDX-License-Identifier: MIT
#pragma once

#include "ReportDesign.h"

//! The project summary: the open project's heads and its scenarios, one detail band each.
class ProjectSummary : public ActiveReport {
public:
    explicit ProjectSummary(Session &session);
    void ActiveReport_ReportStart() override;
    QString subject() const override;
    //! The project reported; 0 takes the session's open project.
    qint32 projectId = 0;
};
