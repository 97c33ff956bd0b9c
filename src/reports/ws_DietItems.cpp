// SPDX-License-Identifier: MIT
// The reference diet of the open scenario (the permanent diet the scenario's diet was copied from):
// its study, season, place and reference, and its items with their proportions.
#include "DataSourceText.h"
#include "QtWindowHost.h"
#include "ReportDesign.h"
#include "ReportWindow.h"
#include "VbFormat.h"

namespace {
//! The columns of the items: head, column, x, width, pattern; numbers right-aligned.
struct Column {
    const char *head;
    const char *column;
    double x, w;
    const char *format;
};
const Column kColumns[] = {{"Diet Item", "ItemName", 0, 170, ""},
                           {"Wet Proportion", "Wet_Proportion", 175, 70, "0.000"},
                           {"Dry Proportion", "Dry_Proportion", 250, 70, "0.000"},
                           {"Notes", "ItemComments", 330, 193, ""}};

class ws_DietItems : public ScenarioReport {
public:
    explicit ws_DietItems(Session &session) : ScenarioReport(session, QStringLiteral("ws_DietItems"))
    {
        caption = QStringLiteral("Wildlife Diet Items");
        addReportHeading(*this, QStringLiteral("Report Type:  DIET ITEMS"), QStringLiteral("Scenario_FileName"), QStringLiteral("Scenario_LastSaved"));
        const double y = addCaptioned(reportHeader, {{"Wildlife Species:", "fldCommon", "Common"}, {"Season:", "fldSeason", "Season"},
                                                     {"Gender:", "fldGender", "Description"}, {"Habitat:", "fldHabitat", "Habitat_type"},
                                                     {"Location:", "fldLocation", "fldDIET_LOCATION"},
                                                     {"Basis of Measurement:", "fldMeasure", "MEASURE_DESCRIPTION"},
                                                     {"Material Analyzed:", "fldAnalysis", "Analysis_Description"}, {"Source:", "fldSource", ""},
                                                     {"Comments:", "fldComments", "fldDIET_COMMENTS"}, {"Context:", "fldContext", "fldDIET_Context"},
                                                     {"Notes:", "fldNotes", "Notes"}, {"Reference:", "fldReference", "Reference"}},
                                      4);
        reportHeader.height = y + 10;
        repeatHeadOverAllRows(*this);
        groupHeader.items << bold(label(QStringLiteral("lblItems"), QStringLiteral("Diet Items"), 0, 0, kReportWidth, 16), 11);
        for (const Column &c : kColumns) {
            const Qt::Alignment align = *c.format ? Qt::AlignRight : Qt::AlignLeft;
            ReportItem head = bold(label({}, QString::fromLatin1(c.head), c.x, 20, c.w));
            head.align = align;
            groupHeader.items << head;
            detail.items << field(QStringLiteral("fld") + QString::fromLatin1(c.column), QString::fromLatin1(c.column), c.x, 1, c.w,
                                  QString::fromLatin1(c.format), align);
        }
        groupHeader.items << rule(0, 35, kReportWidth);
        groupHeader.height = 39;
        detail.height = 15;
        addPageFooter(*this);
    }

    void ActiveReport_ReportStart() override
    {
        recordSource = QStringLiteral(
            "SELECT tblScenario.ScenarioID, tblScenario.Scenario_FileName, tblScenario.Scenario_LastSaved, tblScenario.Scenario_CreatedBy, "
            "tblScenario.Scenario_ModifiedBy, tblScenario.Scenario_PrintedBy, [tblMonth].[Description] & ' - ' & [tblMonth_1].[Description] AS "
            "Season, tblSpecies.Common, tblDiet.DataSourceID, tblDiet.Notes, tblDiet.fldDIET_LOCATION, tblDiet.fldDIET_COMMENTS, "
            "tblDiet.fldDIET_Context, tblGender.Description, tblHabitatType.Habitat_type, [tblReferences]![fldRef_Author] & '. ' & "
            "[tblReferences]![fldRef_Year] & '. ' & [tblReferences]![fldRef_Title] & '. ' & [tblReferences]![fldRef_Source] & '. ' AS "
            "Reference, tblMeasureTerm.MEASURE_DESCRIPTION, tblAnalysis.Analysis_Description, tblDietItem.Name AS ItemName, "
            "tblDietItem.Wet_Proportion, tblDietItem.Dry_Proportion, tblDietItem.Comments AS ItemComments FROM ((((((((((tblScenario "
            "INNER JOIN tblWildlife ON tblScenario.ScenarioID = tblWildlife.ScenarioID) INNER JOIN tblDiet ON tblWildlife.DietID = "
            "tblDiet.DietID) LEFT JOIN tblSpecies ON tblDiet.SpeciesID = tblSpecies.SpeciesID) LEFT JOIN tblMonth ON tblDiet.BegMonthID "
            "= tblMonth.MonthID) LEFT JOIN tblMonth AS tblMonth_1 ON tblDiet.EndMonthID = tblMonth_1.MonthID) LEFT JOIN tblGender ON "
            "tblDiet.GenderID = tblGender.GenderID) LEFT JOIN tblHabitatType ON tblDiet.HabitatTypeID = tblHabitatType.HabitatTypeID) "
            "LEFT JOIN tblReferences ON tblDiet.ReferenceID = tblReferences.ReferenceID) LEFT JOIN tblMeasureTerm ON "
            "tblDiet.MeasureTermID = tblMeasureTerm.MeasureTermID) LEFT JOIN tblAnalysis ON tblDiet.AnalysisID = tblAnalysis.AnalysisID) "
            "LEFT JOIN tblDietItem ON tblDiet.DietID = tblDietItem.DietID WHERE tblScenario.ScenarioID = ")
            + subject() + QStringLiteral(" ORDER BY tblDietItem.Name");
    }

    void dataOpened() override
    {
        const QVariant source = data().value(0, QStringLiteral("DataSourceID"));
        setText(QStringLiteral("fldSource"), source.isNull() ? QString() : GetDataSourceText(m_session, vb::CLng(source)));
    }
};
const ReportRegistration<ws_DietItems> reg(QStringLiteral("ws_DietItems"));
}  // namespace
