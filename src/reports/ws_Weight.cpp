// SPDX-License-Identifier: MIT
// The weight report of the open scenario: the body weight chosen and the weight record behind it,
// with the record's references and supporting information.
#include "Database.h"
#include "QtWindowHost.h"
#include "Recordset.h"
#include "ReportDesign.h"
#include "ReportWindow.h"
#include "Session.h"
#include "VbFormat.h"

namespace {
class ws_Weight : public ScenarioReport {
public:
    explicit ws_Weight(Session &session) : ScenarioReport(session, QStringLiteral("ws_Weight"))
    {
        caption = QStringLiteral("Wildlife Weight");
        addReportHeading(*this, QStringLiteral("Report Type:  WEIGHT"), QStringLiteral("Scenario_FileName"), QStringLiteral("Scenario_LastSaved"));
        const double y = addCaptioned(reportHeader, {{"Wildlife Species:", "fldCommon", "Common"}, {"Body Weight(g):", "fldWeight", "Weight", "#,##0.0"},
                                                     {"Gender:", "fldSex", "WtSex"}, {"Lifestage:", "fldLifestage", "Lifestage"},
                                                     {"Season:", "fldSeason", "Season"}, {"Habitat:", "fldHabitat", "Habitat"},
                                                     {"Status:", "fldStatus", ""}, {"Estimator:", "fldEstimator", "Estimator"},
                                                     {"Source:", "fldSource", "DataSource"}, {"Comments:", "fldComments", "WtComments"}},
                                      4);
        reportHeader.height = y + 10;
        addReferenceList(*this, QStringLiteral("reference"));
        double f = addBlockHeading(reportFooter, QStringLiteral("lblSupporting"), QStringLiteral("Supporting Information"), 12);
        f = addCaptioned(reportFooter, {{"Location:", "fldLocation", "Location"}, {"Region:", "fldRegion", "Region"},
                                        {"Sample Size:", "fldSample", "Sample"}, {"Variance Type:", "fldVarianceType", "VarianceType"},
                                        {"Variance value:", "fldVarValue", "VarValue"}, {"Notes:", "fldNotes", "Notes"}},
                         f);
        reportFooter.height = f + 4;
        addPageFooter(*this);
    }

    void ActiveReport_ReportStart() override
    {
        recordSource = QStringLiteral(
            "SELECT tblScenario.*, tblWildlife.Common, tblWildlife.Weight, tblWildlife.WtComments, tblStatus.Description AS Status, "
            "tblWildlife.WtSex, tblEstimator.Description AS Estimator, tblDataSource.Description AS DataSource, tblWeight.Location, "
            "tblWeight.Region, tblWeight.Sample, tblVarianceType.Description AS VarianceType, tblWeight.VarValue, "
            "tblHabitatType.Description AS Habitat, tblLifeStage.Description AS Lifestage, [tblMonth].[Description] & ' ' & "
            "[tblMonth_1].[Description] AS Season, qryReference.Reference FROM tblStatus RIGHT JOIN (tblEstimator RIGHT JOIN "
            "(tblMonth AS tblMonth_1 RIGHT JOIN (tblMonth RIGHT JOIN ((((tblDataSource RIGHT JOIN (qryReference RIGHT JOIN "
            "((tblScenario INNER JOIN tblWildlife ON tblScenario.ScenarioID = tblWildlife.ScenarioID) LEFT JOIN tblWeight ON "
            "tblWildlife.WeightID = tblWeight.WeightID) ON qryReference.ReferenceID = tblWeight.ReferenceID) ON "
            "tblDataSource.DataSourceID = tblWildlife.WtDataSourceID) LEFT JOIN tblVarianceType ON tblWeight.VarianceTypeID = "
            "tblVarianceType.VarianceTypeID) LEFT JOIN tblLifeStage ON tblWeight.LifeStageID = tblLifeStage.LifestageID) LEFT JOIN "
            "tblHabitatType ON tblWeight.HabitatTypeID = tblHabitatType.HabitatTypeID) ON tblMonth.MonthID = tblWeight.BegMonthID) "
            "ON tblMonth_1.MonthID = tblWeight.EndMonthID) ON tblEstimator.EstimatorID = tblWildlife.WtEstimator) ON "
            "tblStatus.StatusID = tblWildlife.WtStatus WHERE tblScenario.ScenarioID = ")
            + subject() + QStringLiteral(" ORDER BY qryReference.Reference");
    }

    //! The status prints the scenario's status id, not its description.
    void dataOpened() override
    {
        auto rs = m_session.gDB->OpenRecordset(QStringLiteral("SELECT WtStatus FROM tblWildlife WHERE ScenarioID = ") + subject(),
                                               RecordsetType::Snapshot);
        const QVariant status = rs->EOF_() ? QVariant() : rs->field(0);
        setText(QStringLiteral("fldStatus"), status.isNull() ? QString() : vb::CStr(status));
    }
};
const ReportRegistration<ws_Weight> reg(QStringLiteral("ws_Weight"));
}  // namespace
