// SPDX-License-Identifier: MIT
#include "frmProject.h"

#include "ControlEvents.h"
#include "ControlValue.h"
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
const QString kCalculations = QStringLiteral("frmZOBCalculations");

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
        {"Open", "Open the selected scenario by its file", "Open", [this] { openScenarioFile(); }},
        {"Select", "Edit the selected scenario", "Edit", [this] { OpenSelectedScenario(); }},
        {"Calculations", "Review the calculations of the selected scenario", "Calculations", [this] { showCalculations(); }},
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
    setHelpContext(m_ssGrdProjectScenarios, 3512);
    setHelpContext(m_txtScenarioDescription, 3509);
    resize(820, 640);
    connectEvents();
}

void frmProject::buildProjectFields(FormBuilder &b)
{
    FormBuilder fields = b.frame(QStringLiteral("fraProject"), QStringLiteral("Project")).fields(2);
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
    FormBuilder list = scenarios.column();
    m_dcScenario = b.hiddenData(QStringLiteral("dcScenario"));
    m_ssGrdProjectScenarios = list.grid(QStringLiteral("ssGrdProjectScenarios"), m_dcScenario,
        {{"ScenarioID", "Id"}, {"Scenario_Type", "Type"}, {"Scenario_FilePath", "Folder"}, {"Scenario_FileName", "File Name"},
         {"Scenario_LastSaved", "Last Saved"}, {"Scenario_Identifier_1", "Scenario"}});
    m_txtScenarioDescription = list.memo(QStringLiteral("txtScenarioDescription"), QStringLiteral("Scenario Description:"), 3);
    m_txtScenarioDescription->setReadOnly(true);
    FormBuilder commands = scenarios.column(0);
    commandButtons(commands, QStringLiteral("cmdScenario"), {
             {3, "Create &Wildlife Scenario", [this] { newWildlifeScenario(); }},
             {4, "Create Contaminant &Scenario...", {}},  // contaminant scenarios are not part of this program
             {6, "&Edit Scenario", [this] { OpenSelectedScenario(); }},
             {5, "&Calculations", [this] { showCalculations(); }},
             {0, "&Link Scenario", [this] { linkScenario(true); }},
             {1, "&Unlink Scenario", [this] { linkScenario(false); }},
             {2, "Close", [this] { unloadMe(); }}});
    commands.stretch();
    arrayItem<QWidget>(this, QStringLiteral("cmdScenario"), 4)->setToolTip(QStringLiteral("Contaminant scenarios are not part of this program."));
}

void frmProject::connectEvents()
{
    connect(m_ssGrdProjectScenarios, &DataGrid::RowColChange, this, [this](int, int) { scenarioRowChosen(); });
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
        // A new project has no row yet: what was typed stays.
        if (m_boundPid > 0 && session().gProject->Mode != QLatin1String("Add"))
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
        scenarioRowChosen();
}

void frmProject::scenarioDoubleClicked()
{
    if (m_dcScenario->rowCount() == 0) {
        session().msgBox(QStringLiteral("Please select a scenario..."), QString(), MsgIcon::Information);
        return;
    }
    guarded(session(), {ErrForm::Shared, QStringLiteral("ssGrdProjectScenarios_DblClick")}, [&] { OpenSelectedScenario(); });
}

void frmProject::newWildlifeScenario()
{
    session().setHourglass(true);
    auto previous = session().gScenario;
    session().gScenario = std::make_shared<clsScenario>(session());
    session().gScenario->window = builderLink(host());
    if (previous)
        session().gScenario->notes = previous->notes;
    session().gScenario->AddNew(QStringLiteral("Wildlife"));
    // Without the builder open, show the new scenario in the list at once.
    if (!QtWindowHost::isRegistered(QStringLiteral("frmZOB")) && !m_dcScenario->recordSource().isEmpty())
        m_dcScenario->Refresh();
}

void frmProject::linkScenario(bool link)
{
    clsProject &project = *session().gProject;
    if (project.PID == 0)
        return;
    try {
        if (link) {
            auto rs = session().gDB->OpenRecordset(QStringLiteral("jtblProjectScenario"), RecordsetType::Dynaset);
            // Picking a scenario file in the chooser makes it the current scenario.
            if (session().fileChooser)
                session().fileChooser->choose(sFileName.right(3), QStringLiteral("Open"));
            if (session().gScenario->SID == 0) {
                session().msgBox(QStringLiteral("Please select a scenario..."), QString(), MsgIcon::Information);
                return;
            }
            rs->AddNew();
            rs->setField(QStringLiteral("ProjectID"), project.PID);
            rs->setField(QStringLiteral("ScenarioID"), session().gScenario->SID);
            rs->Update();
            rs->Close();
        } else {
            session().gDB->Execute(QStringLiteral("Delete * from jtblProjectScenario where projectID = %1 AND ScenarioID= %2")
                                       .arg(project.PID)
                                       .arg(session().gScenario->SID));
        }
        if (!m_dcScenario->recordSource().isEmpty()) {
            m_dcScenario->Refresh();
            // The row now shown is the scenario the next command acts on.
            if (m_dcScenario->currentRow() >= 0)
                scenarioRowChosen();
            else
                m_txtScenarioDescription->clear();
        }
    } catch (const VbError &e) {
        if (e.number() == VbErr::DuplicateKey) {
            session().resetCursor();
            session().msgBox(QStringLiteral("This scenario is already linked to the project. "), QString(), MsgIcon::Warning);
        } else {
            handleError(session(), {ErrForm::Shared, QStringLiteral("frmProject.OpenSelectedScenario")}, e.number(),
                        e.description());
        }
    }
}

void frmProject::scenarioRowChosen()
{
    const int row = m_dcScenario->currentRow();
    if (row < 0)
        return;
    guarded(session(), {ErrForm::Shared, QStringLiteral("ssGrdProjectScenarios_RowColChange")}, [&] {
        const qint32 id = m_dcScenario->value(row, QStringLiteral("ScenarioID")).toInt();
        session().gScenario->SID = id;
        session().gScenario->ScenarioType = QStringLiteral("Wildlife");
        const QVariant text = session().Lookup(QStringLiteral("tblWildlife"), QStringLiteral("ScenarioComments"),
                                               QStringLiteral("ScenarioID = %1").arg(id));
        m_txtScenarioDescription->setPlainText(text.toString() + QStringLiteral(" "));
    });
}

void frmProject::OpenSelectedScenario()
{
    Recordset *rs = m_dcScenario->recordset();
    if (!rs || (rs->BOF() && rs->EOF_())) {
        session().msgBox(QStringLiteral("Please select a scenario..."), QString(), MsgIcon::Information);
        return;
    }
    Recordset &row = m_dcScenario->current();
    clsScenario &scenario = *session().gScenario;
    scenario.Clear();
    scenario.SID = row.field(QStringLiteral("ScenarioID")).toInt();
    scenario.FilePath = row.field(QStringLiteral("Scenario_FilePath")).toString();
    scenario.FileName = row.field(QStringLiteral("Scenario_FileName")).toString();
    scenario.Mode = QStringLiteral("Edit");
    if (scenario.window)
        scenario.window->showBuilder();
}

void frmProject::openScenarioFile()
{
    Recordset &row = m_dcScenario->current();
    const qint32 id = row.field(QStringLiteral("ScenarioID")).toInt();
    const QString path = row.field(QStringLiteral("Scenario_FilePath")).toString();
    const QString file = row.field(QStringLiteral("Scenario_FileName")).toString();
    session().gScenario->SID = id;
    session().gScenario->OpenFile(path, file, false);
}

void frmProject::showCalculations()
{
    clsScenario &scenario = *session().gScenario;
    if (scenario.ScenarioType.isEmpty()) {
        session().msgBox(QStringLiteral("Please select a scenario.  "), QString(), MsgIcon::Information);
        return;
    }
    if (scenario.ScenarioType != QLatin1String("Wildlife"))
        return;
    scenario.Mode = QStringLiteral("Edit");
    if (!QtWindowHost::isRegistered(kCalculations)) {
        session().msgBox(QStringLiteral("The calculation review is not available in this version of the program."), QString(),
                         MsgIcon::Information);
        return;
    }
    auto *review = host().link<CalculationReview>(kCalculations);
    if (review && review->ZOBCalculationsValid())
        host().show(kCalculations, true);
}

void frmProject::zoom(int index)
{
    guarded(session(), {ErrForm::Shared, QStringLiteral("txtProject_DblClick")}, [&] {
        if (auto *z = host().form<frmZoom>(QStringLiteral("frmZoom")))
            z->ZoomText(m_txtProject[index], QStringLiteral("Modify Text"), false);
    });
}
