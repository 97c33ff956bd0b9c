// SPDX-License-Identifier: MIT
#include "ProjectScenarios.h"

#include "ControlValue.h"
#include "DataControl.h"
#include "Diagnostics.h"
#include "QtWindowHost.h"
#include "Recordset.h"
#include "Session.h"
#include "SystemLinks.h"
#include "WindowLinks.h"
#include "clsProject.h"
#include "clsScenario.h"

namespace {
const QString kCalculations = QStringLiteral("frmZOBCalculations");
}

ProjectScenarios::ProjectScenarios(Session &session, QtWindowHost &host, DataControl *scenarios, QWidget *description,
                                   QString fileType)
    : m_session(session), m_host(host), m_scenarios(scenarios), m_description(description), m_fileType(std::move(fileType))
{
}

void ProjectScenarios::newWildlifeScenario()
{
    m_session.setHourglass(true);
    auto previous = m_session.gScenario;
    m_session.gScenario = std::make_shared<clsScenario>(m_session);
    m_session.gScenario->window = builderLink(m_host);
    if (previous)
        m_session.gScenario->notes = previous->notes;
    m_session.gScenario->AddNew(QStringLiteral("Wildlife"));
    // Without the builder open, show the new scenario in the list at once.
    if (!QtWindowHost::isRegistered(QStringLiteral("frmZOB")) && !m_scenarios->recordSource().isEmpty())
        m_scenarios->Refresh();
}

void ProjectScenarios::linkScenario(bool link)
{
    clsProject &project = *m_session.gProject;
    if (project.PID == 0)
        return;
    try {
        if (link) {
            auto rs = m_session.gDB->OpenRecordset(QStringLiteral("jtblProjectScenario"), RecordsetType::Dynaset);
            // Picking a scenario file in the chooser makes it the current scenario.
            if (m_session.fileChooser)
                m_session.fileChooser->choose(m_fileType, QStringLiteral("Open"));
            if (m_session.gScenario->SID == 0) {
                m_session.msgBox(QStringLiteral("Please select a scenario..."), QString(), MsgIcon::Information);
                return;
            }
            rs->AddNew();
            rs->setField(QStringLiteral("ProjectID"), project.PID);
            rs->setField(QStringLiteral("ScenarioID"), m_session.gScenario->SID);
            rs->Update();
            rs->Close();
        } else {
            m_session.gDB->Execute(QStringLiteral("Delete * from jtblProjectScenario where projectID = %1 AND ScenarioID= %2")
                                       .arg(project.PID)
                                       .arg(m_session.gScenario->SID));
        }
        if (!m_scenarios->recordSource().isEmpty()) {
            m_scenarios->Refresh();
            // The row now shown is the scenario the next command acts on.
            if (m_scenarios->currentRow() >= 0)
                scenarioRowChosen();
            else
                ControlValue::clear(m_description);
        }
    } catch (const VbError &e) {
        if (e.number() == VbErr::DuplicateKey) {
            m_session.resetCursor();
            m_session.msgBox(QStringLiteral("This scenario is already linked to the project. "), QString(), MsgIcon::Warning);
        } else {
            handleError(m_session, {ErrForm::Shared, QStringLiteral("frmProject.OpenSelectedScenario")}, e.number(),
                        e.description());
        }
    }
}

void ProjectScenarios::scenarioRowChosen()
{
    const int row = m_scenarios->currentRow();
    if (row < 0)
        return;
    guarded(m_session, {ErrForm::Shared, QStringLiteral("ssGrdProjectScenarios_RowColChange")}, [&] {
        const qint32 id = m_scenarios->value(row, QStringLiteral("ScenarioID")).toInt();
        m_session.gScenario->SID = id;
        m_session.gScenario->ScenarioType = QStringLiteral("Wildlife");
        const QVariant text = m_session.Lookup(QStringLiteral("tblWildlife"), QStringLiteral("ScenarioComments"),
                                               QStringLiteral("ScenarioID = %1").arg(id));
        ControlValue::setText(m_description, text.toString() + QStringLiteral(" "));
    });
}

void ProjectScenarios::OpenSelectedScenario()
{
    Recordset *rs = m_scenarios->recordset();
    if (!rs || (rs->BOF() && rs->EOF_())) {
        m_session.msgBox(QStringLiteral("Please select a scenario..."), QString(), MsgIcon::Information);
        return;
    }
    Recordset &row = m_scenarios->current();
    clsScenario &scenario = *m_session.gScenario;
    scenario.Clear();
    scenario.SID = row.field(QStringLiteral("ScenarioID")).toInt();
    scenario.FilePath = row.field(QStringLiteral("Scenario_FilePath")).toString();
    scenario.FileName = row.field(QStringLiteral("Scenario_FileName")).toString();
    scenario.Mode = QStringLiteral("Edit");
    if (scenario.window)
        scenario.window->showBuilder();
}

void ProjectScenarios::openScenarioFile()
{
    Recordset &row = m_scenarios->current();
    const qint32 id = row.field(QStringLiteral("ScenarioID")).toInt();
    const QString path = row.field(QStringLiteral("Scenario_FilePath")).toString();
    const QString file = row.field(QStringLiteral("Scenario_FileName")).toString();
    m_session.gScenario->SID = id;
    m_session.gScenario->OpenFile(path, file, false);
}

void ProjectScenarios::showCalculations()
{
    clsScenario &scenario = *m_session.gScenario;
    if (scenario.ScenarioType.isEmpty()) {
        m_session.msgBox(QStringLiteral("Please select a scenario.  "), QString(), MsgIcon::Information);
        return;
    }
    if (scenario.ScenarioType != QLatin1String("Wildlife"))
        return;
    scenario.Mode = QStringLiteral("Edit");
    if (!QtWindowHost::isRegistered(kCalculations)) {
        m_session.msgBox(QStringLiteral("The calculation review is not available in this version of the program."), QString(),
                         MsgIcon::Information);
        return;
    }
    auto *review = m_host.link<CalculationReview>(kCalculations);
    if (review && review->ZOBCalculationsValid())
        m_host.show(kCalculations, true);
}

