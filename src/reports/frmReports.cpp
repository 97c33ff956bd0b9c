// SPDX-License-Identifier: MIT
#include "frmReports.h"

#include "ControlEvents.h"
#include "ControlValue.h"
#include "DataControl.h"
#include "Diagnostics.h"
#include "FormBuilder.h"
#include "QtWindowHost.h"
#include "Session.h"
#include "clsScenario.h"

#include <QCheckBox>
#include <QListWidget>

namespace {
const WindowRegistration<frmReports> reg(QStringLiteral("frmReports"));

//! The catalogue: scenario type, title and the report object that answers to it (none for the
//! contaminant titles, which are listed but print nothing).
struct Entry {
    const char *type;
    const char *title;
    const char *report;
};
const Entry kCatalogue[] = {
    {"Wildlife", "Wildlife Scenario", "ws_Scenario"},
    {"Wildlife", "Wildlife Species", "ws_Species"},
    {"Wildlife", "Wildlife Weight", "ws_Weight"},
    {"Wildlife", "Wildlife Diet", "ws_Diet"},
    {"Wildlife", "Wildlife Intake", "ws_intake"},
    {"Wildlife", "Wildlife Calculations", "ws_calc"},
    {"Contaminant", "Contaminant Scenario", ""},
    {"Contaminant", "Contaminant", ""},
    {"Contaminant", "Contaminant Abiotic Concentrations", ""},
    {"Contaminant", "Contaminant Biotic Concentrations", ""},
    {"Contaminant", "Contaminant Summary Calculations", ""},
    {"Contaminant", "Contaminant Detailed Calculations", ""},
};
const char *const kOptions[] = {"Comments", "References", "Supporting Information", "Diet Items"};
}  // namespace

frmReports::frmReports(Session &session, QtWindowHost &host) : ZobWindow(session, host, QStringLiteral("frmReports"))
{
    setCaption(QStringLiteral("Print"));
    HelpContextID = 3601;
    FormBuilder b(this);
    buildToolbar(b, {ToolButton::spare(), ToolButton::spare(), ToolButton::spare(),
                     {"Print", "Show the selected report", "Print", [this] { if (validate()) showReport(true); }},
                     ToolButton::separator(),
                     {"Close", "Close", "Close", [this] { unloadMe(); }},
                     ToolButton::spare(), ToolButton::spare(), ToolButton::separator(),
                     {"Help", "Help", "Help", [this] { showHelp(); }}});
    m_dcScenario = b.hiddenData(QStringLiteral("dcScenario"));
    m_grid = b.grid(QStringLiteral("ssGrdProjectScenarios"), m_dcScenario,
                    {{"ScenarioID", "Scenario_ID"}, {"Scenario_Type", "Scenario_Type"}, {"Scenario_FileName", "File Name"},
                     {"Scenario_Identifier_1", "Scenario"}}, true);
    m_grid->setMaximumHeight(70);
    FormBuilder row = b.row(1);
    m_lstReports = static_cast<QListWidget *>(row.column(2).above(new QListWidget(this), QStringLiteral("lstReports"),
        QStringLiteral("lblReports"), QStringLiteral("Please select a Report to Print:"), 1));
    FormBuilder options = row.column(1).frame(QStringLiteral("fraPrintOpt"), QStringLiteral("Print Options"));
    for (int i = 0; i < 4; ++i)
        m_chkPrintOpt << options.check(QStringLiteral("chkPrintOpt(%1)").arg(i), QString::fromLatin1(kOptions[i]));
    options.stretch();
    connect(m_dcScenario, &DataControl::Reposition, this, [this] { rowChange(); });
    connect(ControlEvents::of(m_lstReports), &ControlEvents::Click, this, [this] { setOptions(); });
    connect(m_lstReports, &QListWidget::currentRowChanged, this, [this] { setOptions(); });
    connect(ControlEvents::of(m_lstReports), &ControlEvents::DblClick, this, [this] {
        const RoutineInfo info(ErrForm::Shared, QStringLiteral("lstReports_DblClick"), QStringLiteral("frmReports.lstReports_DblClick"));
        if (guarded(this->session(), info, [this] { if (validate()) showReport(false); }))
            traceSuccess(this->session(), info);
    });
    resize(560, 380);
}

void frmReports::Form_Load()
{
    m_type.clear();
    m_dcScenario->setDatabase(session().gDB);
    const qint32 sid = session().gScenario ? session().gScenario->SID : 0;
    m_dcScenario->setRecordSource(QStringLiteral("select * from tblScenario where ScenarioID = %1").arg(sid));
    m_dcScenario->Refresh();
    if (m_dcScenario->rowCount() > 0) {
        m_dcScenario->MoveFirst();
        rowChange();
    }
}

void frmReports::rowChange()
{
    const int row = m_dcScenario->currentRow();
    if (m_dcScenario->rowCount() == 0 || row < 0)
        return;
    m_scenarioId = m_dcScenario->value(row, QStringLiteral("ScenarioID")).toString();
    const QString type = m_dcScenario->value(row, QStringLiteral("Scenario_Type")).toString();
    if (type != m_type) {
        m_type = type;
        fillList();
    }
}

void frmReports::fillList()
{
    ControlValue::clear(m_lstReports);
    QStringList titles;
    for (const Entry &e : kCatalogue)
        if (m_type == QLatin1String(e.type))
            titles << QString::fromLatin1(e.title);
    m_lstReports->addItems(titles);
}

void frmReports::setOptions()
{
    const QString title = m_lstReports->currentItem() ? m_lstReports->currentItem()->text() : QString();
    const bool none = title == QLatin1String("Contaminant Scenario") || title == QLatin1String("Wildlife Scenario");
    for (int i = 0; i < 4; ++i)
        m_chkPrintOpt[i]->setEnabled(!none && (i != 3 || title == QLatin1String("Wildlife Diet")));
}

bool frmReports::validate()
{
    if (m_dcScenario->rowCount() == 0 || m_dcScenario->currentRow() < 0) {
        session().msgBox(QStringLiteral("Please select a scenario."), QStringLiteral("Print"), MsgIcon::Warning);
        return false;
    }
    if (!m_lstReports->currentItem()) {
        session().msgBox(QStringLiteral("Please select a report."), QStringLiteral("Print"), MsgIcon::Warning);
        return false;
    }
    return true;
}

QString frmReports::reportOf(const QString &title)
{
    for (const Entry &e : kCatalogue)
        if (title == QLatin1String(e.title))
            return QString::fromLatin1(e.report);
    return {};
}

void frmReports::showReport(bool modal)
{
    const QString report = reportOf(m_lstReports->currentItem()->text());
    // Only the reports built into this program answer; the other titles do nothing.
    if (!report.isEmpty() && QtWindowHost::isRegistered(report))
        host().show(report, modal);
}
