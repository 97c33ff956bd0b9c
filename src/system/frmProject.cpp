// SPDX-License-Identifier: MIT
#include "frmProject.h"

#include "ControlEvents.h"
#include "DataControl.h"
#include "Diagnostics.h"
#include "FormBuilder.h"
#include "QtWindowHost.h"
#include "Recordset.h"
#include "Session.h"
#include "SystemLinks.h"
#include "Utilities.h"
#include "ZobToolbar.h"
#include "clsScenario.h"
#include "frmProjectList.h"
#include "frmZoom.h"

#include <QAction>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace {
const WindowRegistration<frmProject> reg(QStringLiteral("frmProject"));
const QString kCalculations = QStringLiteral("frmZOBCalculations");
const char *const kHelpProperty = "HelpContextID";

const QString kFields[7] = {QStringLiteral("Name"),      QStringLiteral("Purpose"),  QStringLiteral("Author"),
                            QStringLiteral("Latitude"),  QStringLiteral("Longitude"), QStringLiteral("Location"),
                            QStringLiteral("Comments")};
const QString kCaptions[7] = {QStringLiteral("Project Name:"), QStringLiteral("Description:"), QStringLiteral("Author:"),
                              QStringLiteral("Latitude:"),     QStringLiteral("Longitude:"),   QStringLiteral("Location:"),
                              QStringLiteral("Comments:")};

QString boxText(const QWidget *w)
{
    if (auto *e = qobject_cast<const QLineEdit *>(w)) return e->text();
    if (auto *p = qobject_cast<const QPlainTextEdit *>(w)) return p->toPlainText();
    return {};
}

Recordset &currentRecord(DataControl *dc)
{
    Recordset *rs = dc->recordset();
    if (!rs || dc->currentRow() < 0)
        throw VbError(VbErr::NoCurrentRecord, QStringLiteral("No current record."));
    return *rs;
}
}  // namespace

frmProject::frmProject(Session &session, QtWindowHost &host) : ZobWindow(session, host, QStringLiteral("frmProject"))
{
    setCaption(QStringLiteral("Project"));
    HelpContextID = 3512;
    FormBuilder b(this);
    ZobToolbar *tb = b.toolbar();
    tb->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    tb->addButton(QStringLiteral("New"), QStringLiteral("Make a new project"), QStringLiteral("New"));
    tb->addButton(QStringLiteral("Save"), QStringLiteral("Save the project"), QStringLiteral("Save"));
    tb->addSeparatorButton();
    tb->addButton(QStringLiteral("Open"), QStringLiteral("Open the selected scenario by its file"), QStringLiteral("Open"));
    tb->addButton(QStringLiteral("Select"), QStringLiteral("Edit the selected scenario"), QStringLiteral("Edit"));
    tb->addButton(QStringLiteral("Calculations"), QStringLiteral("Review the calculations of the selected scenario"),
                  QStringLiteral("Calculations"));
    tb->addButton(QStringLiteral("Print"), QStringLiteral("Preview and print the project summary"), QStringLiteral("Print"));
    tb->addSeparatorButton();
    tb->addButton(QStringLiteral("Close"), QStringLiteral("Close the project (it is saved)"), QStringLiteral("Close"));
    tb->addButton(QStringLiteral("Help"), QStringLiteral("Help on the project window"), QStringLiteral("Help"));
    if (!QtWindowHost::isRegistered(QStringLiteral("ProjectSummary"))) {
        tb->button(QStringLiteral("Print"))->setEnabled(false);
        tb->button(QStringLiteral("Print"))->setToolTip(QStringLiteral("The project summary report is not available yet in this version of the program."));
    }

    // The project's fields, in reading order.
    FormBuilder project = b.frame(QStringLiteral("fraProject"), QStringLiteral("Project"));
    auto *fields = new QWidget(this);
    auto *g = new QGridLayout(fields);
    g->setContentsMargins(0, 0, 0, 0);
    project.add(fields, QStringLiteral("fraProjectFields"));
    for (int i = 0; i < 7; ++i) {
        QWidget *box;
        if (i == 1 || i == 6) {
            auto *memo = new QPlainTextEdit(fields);
            memo->setTabChangesFocus(true);
            memo->setFixedHeight(memo->fontMetrics().lineSpacing() * 3 + 12);
            memo->setToolTip(QStringLiteral("Double-click to edit the text in a larger window."));
            box = memo;
        } else {
            box = new QLineEdit(fields);
        }
        box->setObjectName(arrayName(QStringLiteral("txtProject"), i));
        FormBuilder::userTyped(box);
        m_txtProject[i] = box;
    }
    m_cboStateProvince = new QComboBox(fields);
    m_cboStateProvince->setObjectName(QStringLiteral("cboStateProvince"));
    auto caption = [&](int i) {
        auto *l = new QLabel(kCaptions[i], fields);
        l->setObjectName(QStringLiteral("lbl_") + m_txtProject[i]->objectName());
        l->setBuddy(m_txtProject[i]);
        return l;
    };
    auto *lblState = new QLabel(QStringLiteral("Province/State:"), fields);
    lblState->setObjectName(QStringLiteral("lbl_cboStateProvince"));
    lblState->setBuddy(m_cboStateProvince);
    g->addWidget(caption(0), 0, 0);
    g->addWidget(m_txtProject[0], 0, 1, 1, 3);
    g->addWidget(caption(2), 1, 0);
    g->addWidget(m_txtProject[2], 1, 1, 1, 3);
    g->addWidget(caption(1), 2, 0, Qt::AlignTop);
    g->addWidget(m_txtProject[1], 2, 1, 1, 3);
    g->addWidget(caption(5), 3, 0);
    g->addWidget(m_txtProject[5], 3, 1);
    g->addWidget(lblState, 3, 2);
    g->addWidget(m_cboStateProvince, 3, 3);
    g->addWidget(caption(3), 4, 0);
    g->addWidget(m_txtProject[3], 4, 1);
    g->addWidget(caption(4), 4, 2);
    g->addWidget(m_txtProject[4], 4, 3);
    g->addWidget(caption(6), 5, 0, Qt::AlignTop);
    g->addWidget(m_txtProject[6], 5, 1, 1, 3);
    g->setColumnStretch(1, 1);
    g->setColumnStretch(3, 1);

    // The project's scenarios with their commands beside them.
    FormBuilder scenarios = b.frame(QStringLiteral("fraScenarios"), QStringLiteral("Scenarios"), true);
    auto *left = new QWidget(this);
    scenarios.add(left, QStringLiteral("fraScenarioList"));
    FormBuilder l(left);
    left->layout()->setContentsMargins(0, 0, 0, 0);
    m_ssGrdProjectScenarios = l.grid(QStringLiteral("ssGrdProjectScenarios"));
    m_txtScenarioDescription = l.memo(QStringLiteral("txtScenarioDescription"), QStringLiteral("Scenario Description:"));
    m_txtScenarioDescription->setReadOnly(true);
    m_txtScenarioDescription->setFixedHeight(m_txtScenarioDescription->fontMetrics().lineSpacing() * 3 + 12);
    if (auto *lbl = findChild<QLabel *>(QStringLiteral("lbl_txtScenarioDescription")))
        lbl->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    auto *right = new QWidget(this);
    scenarios.add(right, QStringLiteral("fraScenarioCommands"));
    FormBuilder r(right);
    right->layout()->setContentsMargins(0, 0, 0, 0);
    const struct { int index; const char *caption; } buttons[] = {
        {3, "Create &Wildlife Scenario"}, {4, "Create Contaminant &Scenario..."}, {6, "&Edit Scenario"},
        {5, "&Calculations"}, {0, "&Link Scenario"}, {1, "&Unlink Scenario"}, {2, "Close"}};
    for (const auto &button : buttons) {
        QPushButton *p = r.button(QStringLiteral("cmdScenario"), button.index, QString::fromLatin1(button.caption));
        m_cmdScenario[button.index] = p;
        const int index = button.index;
        connect(p, &QPushButton::clicked, this, [this, index] { cmdScenario_Click(index); });
    }
    r.stretch();
    m_cmdScenario[4]->setToolTip(QStringLiteral("Contaminant scenarios are not part of this program."));

    m_dcProject = b.dataControl(QStringLiteral("dcProject"));
    m_dcScenario = b.dataControl(QStringLiteral("dcScenario"));
    m_dcStateProvince = b.dataControl(QStringLiteral("dcStateProvince"));
    m_dcProject->setVisible(false);
    m_dcScenario->setVisible(false);
    m_dcStateProvince->setVisible(false);
    for (int i = 0; i < 7; ++i)
        m_dcProject->bindText(m_txtProject[i], kFields[i]);
    m_dcProject->bindCombo(m_cboStateProvince, QStringLiteral("StateProvinceID"));
    m_ssGrdProjectScenarios->setDataControl(m_dcScenario);

    // Reading order for the keyboard.
    QWidget *order[] = {m_txtProject[0], m_txtProject[2], m_txtProject[1], m_txtProject[5], m_cboStateProvince,
                        m_txtProject[3], m_txtProject[4], m_txtProject[6], m_ssGrdProjectScenarios,
                        m_txtScenarioDescription, m_cmdScenario[3], m_cmdScenario[4], m_cmdScenario[6],
                        m_cmdScenario[5], m_cmdScenario[0], m_cmdScenario[1], m_cmdScenario[2]};
    for (size_t i = 1; i < std::size(order); ++i)
        setTabOrder(order[i - 1], order[i]);
    resize(820, 640);

    connect(tb, &ZobToolbar::ButtonClick, this, [this](int, const QString &key) { TB_MDI_ButtonClick(key); });
    connect(m_ssGrdProjectScenarios, &DataGrid::RowColChange, this, [this](int, int) { scenarioRowChosen(); });
    // Each reading of the scenarios fits the columns to what they now hold.
    connect(m_dcScenario, &DataControl::refreshed, m_ssGrdProjectScenarios, &QTableView::resizeColumnsToContents);
    connect(m_dcScenario, &DataControl::Reposition, this, [this] {
        const int row = m_dcScenario->currentRow();
        if (row >= 0 && !m_dcScenario->value(row, QStringLiteral("Scenario_FileName")).isNull())
            scenarioRowChosen();
    });
    connect(m_ssGrdProjectScenarios, &DataGrid::DblClick, this, [this] {
        if (m_dcScenario->rowCount() == 0) {
            this->session().msgBox(QStringLiteral("Please select a scenario..."), QString(), MsgIcon::Information);
            return;
        }
        guarded(this->session(), {ErrForm::Shared, QStringLiteral("ssGrdProjectScenarios_DblClick")}, [&] { OpenSelectedScenario(); });
    });
    connect(m_dcProject, &DataControl::Reposition, this, [this] {
        const int row = m_dcProject->currentRow();
        if (row >= 0)
            PuS_SetMessage(m_dcProject->value(row, QStringLiteral("Name")).toString());
    });
    for (int i : {1, 6})
        connect(ControlEvents::of(m_txtProject[i]), &ControlEvents::DblClick, this, [this, i] { zoom(i); });
}

void frmProject::Form_Load()
{
    guarded(session(), {ErrForm::Shared, QStringLiteral("frmProject Form_Load")}, [&] {
        m_ssGrdProjectScenarios->setProperty(kHelpProperty, 3512);
        m_cmdScenario[0]->setProperty(kHelpProperty, 3512);
        m_txtScenarioDescription->setProperty(kHelpProperty, 3509);
        for (QWidget *box : m_txtProject)
            if (auto *e = qobject_cast<QLineEdit *>(box)) e->clear();
            else if (auto *p = qobject_cast<QPlainTextEdit *>(box)) p->clear();
        m_dcProject->setDatabase(session().gDB);
        m_dcScenario->setDatabase(session().gDB);
        m_dcStateProvince->setDatabase(session().gDB);
        // The state combo: every state and province, by type and name.
        m_dcStateProvince->setRecordSource(QStringLiteral("Select * From tblStateProvince Order By Type, Description"));
        m_dcStateProvince->Refresh();
        m_cboStateProvince->clear();
        for (int row = 0; row < m_dcStateProvince->rowCount(); ++row)
            m_cboStateProvince->addItem(m_dcStateProvince->value(row, QStringLiteral("Description")).toString(),
                                        m_dcStateProvince->value(row, QStringLiteral("StateProvinceID")));
        m_cboStateProvince->setCurrentIndex(-1);
        m_ssGrdProjectScenarios->setColumnCaption(QStringLiteral("ScenarioID"), QStringLiteral("Id"));
        m_ssGrdProjectScenarios->setColumnCaption(QStringLiteral("Scenario_Type"), QStringLiteral("Type"));
        m_ssGrdProjectScenarios->setColumnCaption(QStringLiteral("Scenario_FilePath"), QStringLiteral("Folder"));
        m_ssGrdProjectScenarios->setColumnCaption(QStringLiteral("Scenario_FileName"), QStringLiteral("File Name"));
        m_ssGrdProjectScenarios->setColumnCaption(QStringLiteral("Scenario_LastSaved"), QStringLiteral("Last Saved"));
        m_ssGrdProjectScenarios->setColumnCaption(QStringLiteral("Scenario_Identifier_1"), QStringLiteral("Scenario"));
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

bool frmProject::Form_KeyDown(int keyCode, int shift)
{
    Q_UNUSED(shift);
    if (keyCode != 112 || !session().help)
        return false;
    int number = HelpContextID;
    for (QWidget *w = focusWidget(); w && w != this; w = w->parentWidget())
        if (w->property(kHelpProperty).isValid()) {
            number = w->property(kHelpProperty).toInt();
            break;
        }
    session().help->showTopic(number);
    return true;
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
    return index >= 0 && index < 7 ? boxText(m_txtProject[index]) : QString();
}

void frmProject::setProjectText(int index, const QString &text)
{
    if (index < 0 || index >= 7)
        return;
    if (auto *e = qobject_cast<QLineEdit *>(m_txtProject[index])) e->setText(text);
    else if (auto *p = qobject_cast<QPlainTextEdit *>(m_txtProject[index])) p->setPlainText(text);
}

qint32 frmProject::stateProvinceId() const
{
    return m_cboStateProvince->currentIndex() < 0 ? 0 : m_cboStateProvince->currentData().toInt();
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
        m_cmdScenario[i]->setEnabled(enabled);
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
    if (auto *list = qobject_cast<frmProjectList *>(host().loaded(QStringLiteral("frmProjectList"))))
        list->refreshList();
}

// --- commands ---

void frmProject::TB_MDI_ButtonClick(const QString &key)
{
    guarded(session(), {ErrForm::Shared, QStringLiteral("TB_MDI_ButtonClick")}, [&] {
        if (key == QLatin1String("New")) {
            session().gProject->AddNew();
        } else if (key == QLatin1String("Open")) {
            openScenarioFile();
        } else if (key == QLatin1String("Close")) {
            unloadMe();
        } else if (key == QLatin1String("Calculations")) {
            showCalculations();
        } else if (key == QLatin1String("Save")) {
            offerFileAgain();
            session().gProject->Save();
            session().gProject->SetCmd(true);
        } else if (key == QLatin1String("Select")) {
            OpenSelectedScenario();
        } else if (key == QLatin1String("Print")) {
            host().show(QStringLiteral("ProjectSummary"));
        } else if (key == QLatin1String("Help")) {
            showHelp();
        }
    });
    session().resetCursor();
}

void frmProject::cmdScenario_Click(int index)
{
    guarded(session(), {ErrForm::Shared, QStringLiteral("cmdScenario_Click")}, [&] {
        switch (index) {
        case 0:
        case 1:
            linkScenario(index == 0);
            break;
        case 2:
            unloadMe();
            break;
        case 3: {
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
            break;
        }
        case 4:
            break;  // contaminant scenarios are not part of this program
        case 5:
            showCalculations();
            break;
        case 6:
            OpenSelectedScenario();
            break;
        default:
            break;
        }
    });
    session().resetCursor();
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
    Recordset &row = currentRecord(m_dcScenario);
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
    Recordset &row = currentRecord(m_dcScenario);
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
    ZobWindow *w = host().form(kCalculations);
    bool valid = false;
    if (w)
        QMetaObject::invokeMethod(w, "ZOBCalculationsValid", Qt::DirectConnection, Q_RETURN_ARG(bool, valid));
    if (valid)
        host().show(kCalculations, true);
}

void frmProject::zoom(int index)
{
    guarded(session(), {ErrForm::Shared, QStringLiteral("txtProject_DblClick")}, [&] {
        if (auto *z = host().form<frmZoom>(QStringLiteral("frmZoom")))
            z->ZoomText(m_txtProject[index], QStringLiteral("Modify Text"), false);
    });
}
