// SPDX-License-Identifier: MIT
// The overview report of the open scenario: who made and changed it, and its description.
#include "QtWindowHost.h"
#include "ReportDesign.h"
#include "ReportWindow.h"

namespace {
class ws_Scenario : public ScenarioReport {
public:
    explicit ws_Scenario(Session &session) : ScenarioReport(session, QStringLiteral("ws_Scenario"))
    {
        caption = QStringLiteral("Wildlife Scenario");
        addReportHeading(*this, QStringLiteral("Report Type: OVERVIEW"), QStringLiteral("File"), QStringLiteral("Scenario_LastSaved"));
        detail.items << bold(label({}, QStringLiteral("Created by:"), 0, 6, 110))
                     << field(QStringLiteral("fldCreatedBy"), QStringLiteral("Scenario_CreatedBy"), 115, 6, 408)
                     << bold(label({}, QStringLiteral("Modified by:"), 0, 22, 110))
                     << field(QStringLiteral("fldModifiedBy"), QStringLiteral("Scenario_ModifiedBy"), 115, 22, 408)
                     << bold(label({}, QStringLiteral("Scenario Description:"), 0, 44, 523))
                     << field(QStringLiteral("fldScenarioDescription"), QStringLiteral("ScenarioDescription"), 0, 60, 523);
        detail.height = 76;
        addPageFooter(*this);
    }
    void ActiveReport_ReportStart() override
    {
        recordSource = QStringLiteral("SELECT tblScenario.Scenario_FileName AS File, tblScenario.Scenario_CreatedBy, "
                                      "tblScenario.Scenario_ModifiedBy, tblScenario.Scenario_LastSaved, tblScenario.Comments AS "
                                      "ScenarioDescription FROM tblScenario WHERE tblScenario.ScenarioID  = ") + subject();
    }
};
const ReportRegistration<ws_Scenario> reg(QStringLiteral("ws_Scenario"));
}  // namespace
