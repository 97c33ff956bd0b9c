// SPDX-License-Identifier: MIT
// The diet report of the open scenario: the diet chosen, its reference and supporting information,
// the average trophic level, and each diet item with its energy, efficiency and moisture.
#include "Calculations.h"
#include "QtWindowHost.h"
#include "ReportDesign.h"
#include "ReportWindow.h"
#include "Session.h"
#include "VbFormat.h"
#include "srptDietItems.h"

namespace {
class ws_Diet : public ScenarioReport {
public:
    explicit ws_Diet(Session &session) : ScenarioReport(session, QStringLiteral("ws_Diet"))
    {
        caption = QStringLiteral("Wildlife Diet");
        addReportHeading(*this, QStringLiteral("Report Type:  DIET"), QStringLiteral("Scenario_FileName"), QStringLiteral("Scenario_LastSaved"));
        reportHeader.items << field(QStringLiteral("fldDIType"), QStringLiteral("DIType"), 330, 4, 193);
        double y = addCaptioned(reportHeader, {{"Wildlife Species:", "fldCommon", "Common"}}, 4, 0, 325);
        y = addCaptioned(reportHeader, {{"Season:", "fldSeason", "DietSeason"}, {"Habitat:", "fldHabitat", "Type"}, {"Gender:", "fldGender", "DietSex"},
                                        {"Source:", "fldSource", "DataSource"}, {"Created by:", "fldCreatedBy", "Scenario_Createdby"},
                                        {"Last Modified by:", "fldModifiedBy", "Scenario_Modifiedby"},
                                        {"Estimated Average Trophic Level of Diet:", "fldAvgTL", ""}, {"Comments:", "fldComments", "DietComments"}},
                         y, 0, kReportWidth, 215);
        reportHeader.height = y + 10;
        addReferenceList(*this, QStringLiteral("fldReference"));
        y = addBlockHeading(reportFooter, QStringLiteral("lblSupporting"), QStringLiteral("Supporting Information"), 12);
        y = addCaptioned(reportFooter, {{"Location:", "fldLocation", "Location"}, {"Region:", "fldRegion", "Region"},
                                        {"State/Province:", "Field24", ""}, {"Measure Term:", "fldTerm", "Term"},
                                        {"Basis of Measurement:", "fldTermDesc", "TermDesc"},
                                        {"Material Analyzed:", "txtMethodAnalysis", "AnalysisNotes"}, {"Notes:", "fldCollectionNotes", "CollectionNotes"}},
                         y);
        ReportItem items = label(QStringLiteral("srptDietItems"), {}, 0, y + 6, kReportWidth, 0);
        items.kind = ItemKind::SubReport;
        items.subReport = [this](const ReportData &, int) { return std::make_unique<srptDietItems>(m_session, sid()); };
        reportFooter.items << items;
        reportFooter.height = y + 6;
        addPageFooter(*this);
    }

    void ActiveReport_ReportStart() override
    {
        recordSource = QStringLiteral(
            "SELECT tblScenario.*, tblWildlife.*, tblDietType.Description AS DIType, tblGender.Description AS Gender, tblHabitatType.Type, "
            "tblWildlifeDiet.CollectionNotes, tblWildlifeDiet.Location, tblWildlifeDiet.Region, tblWildlifeDiet.StateProvinceID, "
            "tblMeasureTerm.Term, tblMeasureTerm.Description AS TermDesc, tblWildlifeDiet.AnalysisNotes, tblDataSource.Description AS "
            "DataSource, qryReference.Reference FROM ((tblScenario INNER JOIN (qryReference RIGHT JOIN (tblDietType RIGHT JOIN "
            "(tblMeasureTerm RIGHT JOIN (tblDataSource RIGHT JOIN (tblWildlifeDiet RIGHT JOIN tblWildlife ON tblWildlifeDiet.DietID = "
            "tblWildlife.DietID) ON tblDataSource.DataSourceID = tblWildlife.DietDataSourceID) ON tblMeasureTerm.MeasureTermID = "
            "tblWildlifeDiet.MeasureTermID) ON tblDietType.DietTypeID = tblWildlife.DietType) ON qryReference.ReferenceID = "
            "tblWildlifeDiet.ReferenceID) ON tblScenario.ScenarioID = tblWildlife.ScenarioID) LEFT JOIN tblGender ON "
            "tblWildlifeDiet.GenderID = tblGender.GenderID) LEFT JOIN tblHabitatType ON tblWildlifeDiet.HabitatTypeID = "
            "tblHabitatType.HabitatTypeID WHERE tblScenario.ScenarioID = ")
            + subject();
        setText(QStringLiteral("fldAvgTL"), GetAvgTrophicLevel(m_session, sid(), QStringLiteral("tblWildlifeDietItems")));
    }

    //! The state or province by its id, blank when there is none.
    void dataOpened() override
    {
        const QVariant state = data().value(0, QStringLiteral("StateProvinceID"));
        QVariant text;
        if (!state.isNull())
            text = m_session.Lookup(QStringLiteral("tblStateProvince"), QStringLiteral("Description"),
                                    QStringLiteral("StateProvinceID=") + vb::CStr(state));
        setText(QStringLiteral("Field24"), text.isNull() ? QString() : vb::CStr(text));
    }
};
const ReportRegistration<ws_Diet> reg(QStringLiteral("ws_Diet"));
}  // namespace
