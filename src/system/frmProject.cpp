// SPDX-License-Identifier: MIT
#include "frmProject.h"

#include "ControlEvents.h"
#include "ControlValue.h"
#include "ProjectScenarios.h"
#include "DataControl.h"
#include "Diagnostics.h"
#include "FormBuilder.h"
#include "QtWindowHost.h"
#include "Recordset.h"
#include "Session.h"
#include "SystemLinks.h"
#include "Utilities.h"
#include "WindowLinks.h"
#include "ZobToolbar.h"
#include "clsScenario.h"
#include "frmZoom.h"

#include <QAction>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

namespace {
const WindowRegistration<frmProject> reg(QStringLiteral("frmProject"));

//! The project's boxes txtProject(0..6), their columns, captions and lines (0: a one-line box),
//! in the order the grid shows them; two boxes share a row where the next says so.
struct ProjectField {
    int index;
    const char *field;
    const char *caption;
    int lines;
    bool rowEnds;
};
const ProjectField kFields[] = {
    {0, "Name", "Project Name:", 0, true},  {2, "Author", "Author:", 0, true},
    {1, "Purpose", "Description:", 3, true}, {5, "Location", "Location:", 0, false},
    {3, "Latitude", "Latitude:", 0, false},  {4, "Longitude", "Longitude:", 0, true},
    {6, "Comments", "Comments:", 3, true},
};

}  // namespace

frmProject::frmProject(Session &session, QtWindowHost &host) : ZobWindow(session, host, QStringLiteral("frmProject"))
{
    setCaption(QStringLiteral("Project"));
    HelpContextID = 3512;
    FormBuilder b(this);
    ZobToolbar *tb = buildToolbar(b, {
        {"New", "Make a new project", "New", [this] { this->session().gProject->AddNew(); }},
        {"Save", "Save the project", "Save", [this] { saveProject(); }},
        ToolButton::separator(),
        {"Open", "Open the selected scenario by its file", "Open", [this] { m_scenarioCommands->openScenarioFile(); }},
        {"Select", "Edit the selected scenario", "Edit", [this] { m_scenarioCommands->OpenSelectedScenario(); }},
        {"Calculations", "Review the calculations of the selected scenario", "Calculations", [this] { m_scenarioCommands->showCalculations(); }},
        {"Print", "Preview and print the project summary", "Print", [this] { this->host().show(QStringLiteral("ProjectSummary")); }},
        ToolButton::separator(),
        {"Close", "Close the project (it is saved)", "Close", [this] { unloadMe(); }},
        {"Help", "Help on the project window", "Help", [this] { showHelp(); }},
    });
    if (!QtWindowHost::isRegistered(QStringLiteral("ProjectSummary"))) {
        tb->button(QStringLiteral("Print"))->setEnabled(false);
        tb->button(QStringLiteral("Print"))->setToolTip(QStringLiteral("The project summary report is not available yet in this version of the program."));
    }
    buildProjectFields(b);
    buildScenarios(b);
    m_scenarioCommands = std::make_unique<ProjectScenarios>(session, host, m_dcScenario, m_txtScenarioDescription,
                                                            sFileName.right(3));
    setHelpContext(m_ssGrdProjectScenarios, 3512);
    setHelpContext(m_txtScenarioDescription, 3509);
    resize(820, 640);
    connectEvents();
}

frmProject::~frmProject() = default;

void frmProject::buildProjectFields(FormBuilder &b)
{
    FormBuilder fields = b.frame(QStringLiteral("fraProject"), QStringLiteral("Project")).fields(2, QStringLiteral("fraProjectFields"));
    m_dcProject = b.hiddenData(QStringLiteral("dcProject"));
    for (const ProjectField &f : kFields) {
        const QString caption = QString::fromLatin1(f.caption);
        QWidget *box = f.lines ? static_cast<QWidget *>(fields.memo(QStringLiteral("txtProject"), f.index, caption, f.lines))
                               : fields.textBox(QStringLiteral("txtProject"), f.index, caption);
        FormBuilder::userTyped(box);
        m_dcProject->bind(box, QString::fromLatin1(f.field));
        m_txtProject[f.index] = box;
        if (f.lines) {
            box->setToolTip(QStringLiteral("Double-click to edit the text in a larger window."));
            connect(ControlEvents::of(box), &ControlEvents::DblClick, this, [this, i = f.index] { zoom(i); });
        }
        if (f.index == 5)
            m_cboStateProvince = fields.combo(QStringLiteral("cboStateProvince"), QStringLiteral("Province/State:"));
        if (f.rowEnds)
            fields.nextRow();
    }
    m_dcProject->bind(m_cboStateProvince, QStringLiteral("StateProvinceID"));
}

void frmProject::buildScenarios(FormBuilder &b)
{
    // The project's scenarios with their commands beside them.
    FormBuilder scenarios = b.frame(QStringLiteral("fraScenarios"), QStringLiteral("Scenarios"), true);
    FormBuilder list = scenarios.column(1, QStringLiteral("fraScenarioList"));
    m_dcScenario = b.hiddenData(QStringLiteral("dcScenario"));
    m_ssGrdProjectScenarios = list.grid(QStringLiteral("ssGrdProjectScenarios"), m_dcScenario,
        {{"ScenarioID", "Id"}, {"Scenario_Type", "Type"}, {"Scenario_FilePath", "Folder"}, {"Scenario_FileName", "File Name"},
         {"Scenario_LastSaved", "Last Saved"}, {"Scenario_Identifier_1", "Scenario"}});
    m_txtScenarioDescription = list.memo(QStringLiteral("txtScenarioDescription"), QStringLiteral("Scenario Description:"), 3);
    m_txtScenarioDescription->setReadOnly(true);
    FormBuilder commands = scenarios.column(0, QStringLiteral("fraScenarioCommands"));
    commandButtons(commands, QStringLiteral("cmdScenario"), {
             {3, "Create &Wildlife Scenario", [this] { m_scenarioCommands->newWildlifeScenario(); }},
             {4, "Create Contaminant &Scenario...", {}},  // contaminant scenarios are not part of this program
             {6, "&Edit Scenario", [this] { m_scenarioCommands->OpenSelectedScenario(); }},
             {5, "&Calculations", [this] { m_scenarioCommands->showCalculations(); }},
             {0, "&Link Scenario", [this] { m_scenarioCommands->linkScenario(true); }},
             {1, "&Unlink Scenario", [this] { m_scenarioCommands->linkScenario(false); }},
             {2, "Close", [this] { unloadMe(); }}});
    commands.stretch();
    arrayItem<QWidget>(this, QStringLiteral("cmdScenario"), 4)->setToolTip(QStringLiteral("Contaminant scenarios are not part of this program."));
}

void frmProject::connectEvents()
{
    connect(m_ssGrdProjectScenarios, &DataGrid::RowColChange, this, [this](int, int) { m_scenarioCommands->scenarioRowChosen(); });
    // Each reading of the scenarios fits the columns to what they now hold.
    connect(m_dcScenario, &DataControl::refreshed, m_ssGrdProjectScenarios, &QTableView::resizeColumnsToContents);
    connect(m_dcScenario, &DataControl::Reposition, this, &frmProject::scenarioRowMoved);
    connect(m_ssGrdProjectScenarios, &DataGrid::DblClick, this, &frmProject::scenarioDoubleClicked);
    connect(m_dcProject, &DataControl::Reposition, this, [this] {
        if (m_dcProject->currentRow() >= 0)
            PuS_SetMessage(m_dcProject->value(m_dcProject->currentRow(), QStringLiteral("Name")).toString());
    });
}

void frmProject::Form_Load()
{
    guarded(session(), {ErrForm::Shared, QStringLiteral("frmProject Form_Load")}, [&] {
        for (QWidget *box : m_txtProject)
            ControlValue::clear(box);
        for (DataControl *dc : {m_dcProject, m_dcScenario})
            dc->setDatabase(session().gDB);
        // The state combo: every state and province, by type and name.
        fillCombo(m_cboStateProvince, *session().gDB, QStringLiteral("Select * From tblStateProvince Order By Type, Description"),
                  QStringLiteral("Description"), QStringLiteral("StateProvinceID"));
    });
}

void frmProject::Form_Activate()
{
    guarded(session(), {ErrForm::Shared, QStringLiteral("frmProject Form_Activate")}, [&] {
        // A new project has no row yet: what was typed stays. At the first activation the project
        // has just been read.
        if (!firstActivation() && m_boundPid > 0 && session().gProject->Mode != QLatin1String("Add"))
            m_dcProject->Refresh();
    });
}

void frmProject::Form_Unload(bool &cancel)
{
    Q_UNUSED(cancel);
    guarded(session(), {ErrForm::Shared, QStringLiteral("frmProject Form_Unload")}, [&] {
        offerFileAgain();
        session().gProject->Save();
    });
    refreshProjectList();
}

void frmProject::PuS_SetMessage(const QString &text)
{
    setCaption(QStringLiteral("Project: ") + text.toUpper());
}

// --- the project object's view of the window ---

void frmProject::load() {}

void frmProject::show()
{
    host().show(objectName());
}

QString frmProject::projectText(int index) const
{
    return index >= 0 && index < 7 ? ControlValue::text(m_txtProject[index]) : QString();
}

void frmProject::setProjectText(int index, const QString &text)
{
    if (index >= 0 && index < 7)
        ControlValue::setText(m_txtProject[index], text);
}

qint32 frmProject::stateProvinceId() const
{
    return ControlValue::value(m_cboStateProvince).toInt();
}

void frmProject::clearControls()
{
    // Leave the project on show first (what was typed is written to its row), so that the emptied
    // boxes are not taken for changes to it.
    if (m_boundPid > 0) {
        m_dcProject->setRecordSource(QStringLiteral("Select tblProject.* from tblProject where ProjectID = 0"));
        m_dcProject->Refresh();
        m_dcScenario->setRecordSource(QStringLiteral("Select tblScenario.* from tblScenario where ScenarioID = 0"));
        m_dcScenario->Refresh();
        m_boundPid = 0;
    }
    SetControlInfo(session(), this, QStringLiteral("clear"), false);
    setCaption(QStringLiteral("Project"));
}

void frmProject::setScenarioCommands(bool enabled)
{
    for (int i : {0, 3, 4, 6})
        arrayItem<QWidget>(this, QStringLiteral("cmdScenario"), i)->setEnabled(enabled);
    if (enabled)
        followProject();
}

void frmProject::setProjectSource(const QString &sql)
{
    m_dcProject->setDatabase(session().gDB);
    m_dcProject->setRecordSource(sql);
    m_dcProject->Refresh();
    m_boundPid = session().gProject->PID;
}

void frmProject::setScenarioSource(const QString &sql)
{
    m_dcScenario->setDatabase(session().gDB);
    m_dcScenario->setRecordSource(sql);
    m_dcScenario->Refresh();
}

void frmProject::followProject()
{
    clsProject &project = *session().gProject;
    if (project.Mode != QLatin1String("Edit") || project.PID == 0 || project.PID == m_boundPid)
        return;
    project.LoadProject();
    refreshProjectList();
}

void frmProject::offerFileAgain()
{
    // A new project whose file name was not given at an earlier save is asked for one again,
    // instead of never being stored.
    clsProject &project = *session().gProject;
    if (project.Mode == QLatin1String("Add") && project.FileName.isEmpty())
        project.FileName = QStringLiteral("*.NAV");
}

void frmProject::refreshProjectList()
{
    if (auto *list = host().loadedLink<ListView>(QStringLiteral("frmProjectList")))
        list->refreshList();
}

// --- commands ---

void frmProject::saveProject()
{
    offerFileAgain();
    session().gProject->Save();
    session().gProject->SetCmd(true);
}

void frmProject::scenarioRowMoved()
{
    const int row = m_dcScenario->currentRow();
    if (row >= 0 && !m_dcScenario->value(row, QStringLiteral("Scenario_FileName")).isNull())
        m_scenarioCommands->scenarioRowChosen();
}

void frmProject::scenarioDoubleClicked()
{
    if (m_dcScenario->rowCount() == 0) {
        session().msgBox(QStringLiteral("Please select a scenario..."), QString(), MsgIcon::Information);
        return;
    }
    guarded(session(), {ErrForm::Shared, QStringLiteral("ssGrdProjectScenarios_DblClick")}, [&] { m_scenarioCommands->OpenSelectedScenario(); });
}

void frmProject::zoom(int index)
{
    guarded(session(), {ErrForm::Shared, QStringLiteral("txtProject_DblClick")}, [&] {
        if (auto *z = host().form<frmZoom>(QStringLiteral("frmZoom")))
            z->ZoomText(m_txtProject[index], QStringLiteral("Modify Text"), false);
    });
}
