// SPDX-License-Identifier: MIT
// The species report of the open scenario: the species chosen, its source and comments, one line for
// each reference of the species, and the species' supporting information.
#include "DataSourceText.h"
#include "QtWindowHost.h"
#include "ReportDesign.h"
#include "ReportWindow.h"
#include "VbFormat.h"

#include <QDir>

namespace {
class ws_Species : public ScenarioReport {
public:
    explicit ws_Species(Session &session) : ScenarioReport(session, QStringLiteral("ws_Species"))
    {
        caption = QStringLiteral("Wildlife Species");
        addReportHeading(*this, QStringLiteral("Report Type:  SPECIES"), QStringLiteral("File"), QStringLiteral("Scenario_LastSaved"));
        double y = addCaptioned(reportHeader, {{"Common Name:", "fldCommon", "Common"}, {"Scientific Name:", "fldLatin", "Latin"},
                                               {"Source:", "fldSource", ""}, {"Created by:", "fldCreatedBy", "CreatedBy"},
                                               {"Modified by:", "fldModifiedBy", "ModifiedBy"}, {"Comments:", "fldComments", "SpeciesComments"}},
                                4);
        reportHeader.height = y + 10;
        addReferenceList(*this, QStringLiteral("fldReference"));
        y = addBlockHeading(reportFooter, QStringLiteral("lblSupporting"), QStringLiteral("Supporting Information"), 12);
        y = addCaptioned(reportFooter, {{"Distribution:", "fldDistribution", "Distribution"}, {"Habitat:", "fldHabitat", "Habitat"},
                                        {"General Diet:", "fldGenDiet", "GenDiet"}, {"Related Species", "fldRelated", "Related"}},
                         y);
        reportFooter.height = y + 4;
        addPageFooter(*this);
    }

    //! The disk file joins folder and name with the platform's separator.
    void ActiveReport_ReportStart() override
    {
        recordSource = QStringLiteral(
            "SELECT [Scenario_FilePath] & '%1' & [Scenario_FileName] AS File, tblUser_1.Name AS CreatedBy, tblUser.Name AS "
            "ModifiedBy, tblScenario.Scenario_LastSaved, tblSpecies.Common, tblSpecies.Latin, tblWildlife.SpeciesComments, "
            "tblWildlife.SpeciesDataSourceID, tblSpecies.Distribution, tblSpecies.Habitat, tblSpecies.GenDiet, tblSpecies.Related, "
            "qryReference.Reference, tblWildlife.ScenarioID FROM ((tblScenario LEFT JOIN tblUser ON tblScenario.Scenario_ModifiedBy "
            "= tblUser.User) LEFT JOIN tblUser AS tblUser_1 ON tblScenario.Scenario_CreatedBy = tblUser_1.User) INNER JOIN "
            "(qryReference RIGHT JOIN ((tblSpecies RIGHT JOIN tblWildlife ON tblSpecies.SpeciesID = tblWildlife.SpeciesID) LEFT "
            "JOIN jtblSpeciesReference ON tblSpecies.SpeciesID = jtblSpeciesReference.SpeciesID) ON qryReference.ReferenceID = "
            "jtblSpeciesReference.ReferenceID) ON tblScenario.ScenarioID = tblWildlife.ScenarioID Where tblWildlife.ScenarioID = ")
            .arg(QDir::separator()) + subject() + QStringLiteral(" ORDER BY qryReference.Reference;");
    }

    void dataOpened() override
    {
        const QVariant source = data().value(0, QStringLiteral("SpeciesDataSourceID"));
        setText(QStringLiteral("fldSource"), source.isNull() ? QString() : GetDataSourceText(m_session, vb::CLng(source)));
    }
};
const ReportRegistration<ws_Species> reg(QStringLiteral("ws_Species"));
}  // namespace
