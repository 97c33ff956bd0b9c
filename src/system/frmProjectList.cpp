// SPDX-License-Identifier: MIT
#include "frmProjectList.h"

#include "ControlEvents.h"
#include "DataControl.h"
#include "Diagnostics.h"
#include "FormBuilder.h"
#include "QtWindowHost.h"
#include "Recordset.h"
#include "Session.h"
#include "ZobToolbar.h"
#include "clsProject.h"

#include <QFile>
#include <QLabel>

namespace {
const WindowRegistration<frmProjectList> reg(QStringLiteral("frmProjectList"));
}  // namespace

frmProjectList::frmProjectList(Session &session, QtWindowHost &host)
    : ZobWindow(session, host, QStringLiteral("frmProjectList"))
{
    setCaption(QStringLiteral("Projects"));
    HelpContextID = 3500;
    FormBuilder b(this);
    buildToolbar(b, {
        ToolButton::separator(),
        {"New", "Make a new project", "New", [this] { this->session().gProject->AddNew(); }},
        ToolButton::separator(),
        {"Open", "Open the selected project", "Open", [this] { openSelected(); }},
        ToolButton::separator(),
        {"Close", "Close the project list", "Close", [this] { unloadMe(); }},
        ToolButton::separator(),
        {"Help", "Help on the project list", "Help", [this] { showHelp(); }},
    });
    m_lblNoRecords = b.label(QStringLiteral("lblNoRecords"),
                             QStringLiteral("No projects: Click the new [blank page] icon to add a project."));
    m_lblNoRecords->setWordWrap(true);
    m_lblNoRecords->setVisible(false);
    m_dcMain = b.hiddenData(QStringLiteral("dcMain"));
    m_ssGrdMain = b.grid(QStringLiteral("ssGrdMain"), m_dcMain,
                         {{"ProjectID", {}, {}, true}, {"StateProvinceID", {}, {}, true}, {"Name", "Project Name"},
                          {"Purpose", "Description"}, {"Path", "Folder"}, {"FileName", "File Name"}, {"LastSaved", "Last Saved"}});
    m_ssGrdMain->setToolTip(QStringLiteral("Double-click a project to open it; press Delete to delete it. "
                                           "Click a column head to sort."));
    resize(760, 420);

    connect(m_ssGrdMain, &DataGrid::HeadClick, this, [this](int column) {
        const QString field = m_dcMain->fields().value(column);
        if (!field.isEmpty())
            sortBy(field);
    });
    connect(m_ssGrdMain, &DataGrid::DblClick, this, [this] { toolbar()->click(QStringLiteral("Open")); });
    connect(ControlEvents::of(m_ssGrdMain), &ControlEvents::KeyDown, this, [this](int &keyCode, int) {
        if (keyCode == 46) {
            keyCode = 0;
            deleteSelected();
        } else if (keyCode == 13) {
            keyCode = 0;
            toolbar()->click(QStringLiteral("Open"));
        }
    });
    connect(m_dcMain, &DataControl::Reposition, this, &frmProjectList::dcMain_Reposition);
}

void frmProjectList::Form_Load()
{
    guarded(session(), {ErrForm::Qualified, QStringLiteral("frmProjectList.Form_Load")}, [&] {
        m_dcMain->setDatabase(session().gDB);
        sortBy(QStringLiteral("Name"));
    });
}

void frmProjectList::Form_Activate()
{
    // Coming back to the list (from a project, say) shows what changed meanwhile.
    if (!firstActivation() && m_dcMain->recordset())
        refreshList();
}

void frmProjectList::refreshList()
{
    sortBy(m_sortField);
}

void frmProjectList::sortBy(const QString &field)
{
    guarded(session(), {ErrForm::Shared, QStringLiteral("ssCmbSearch_HeadClick")}, [&] {
        m_dcMain->setDatabase(session().gDB);
        m_dcMain->setRecordSource(QStringLiteral("Select * from tblProject Order by ") + field);
        m_dcMain->Refresh();
        m_sortField = field;
        m_ssGrdMain->fitColumns(24);
    });
}

void frmProjectList::dcMain_Reposition()
{
    guarded(session(), {ErrForm::Qualified, QStringLiteral("frmProjectList.dcMain_Reposition")}, [&] {
        Recordset *rs = m_dcMain->recordset();
        m_lblNoRecords->setVisible(!rs || (rs->BOF() && rs->EOF_()));
    });
}

void frmProjectList::openSelected()
{
    Recordset &rs = m_dcMain->current();
    clsProject &project = *session().gProject;
    project.PID = rs.field(QStringLiteral("ProjectID")).toInt();
    const QString path = rs.field(QStringLiteral("Path")).toString();
    const QString file = rs.field(QStringLiteral("FileName")).toString();
    project.LoadProject();
    project.SetCmd(true);
    project.Mode = QStringLiteral("Edit");
    project.FilePath = path;
    project.FileName = file;
    if (project.window)
        project.window->show();
}

void frmProjectList::deleteSelected()
{
    if (session().msgBox(QStringLiteral("Are you sure you want to delete this record ?"), QString(), MsgIcon::Question,
                         MsgButtons::YesNo, 2)
        != MsgAnswer::Yes)
        return;
    guarded(session(), {ErrForm::Qualified, QStringLiteral("frmZOB.ssGrdMain_KeyDown")}, [&] {
        Recordset &rs = m_dcMain->current();
        const qint32 id = rs.field(QStringLiteral("ProjectID")).toInt();
        const QString marker = Session::join(rs.field(QStringLiteral("Path")).toString(),
                                             rs.field(QStringLiteral("FileName")).toString());
        // The marker file goes first: a project whose file is missing stays in the list.
        if (!QFile::exists(marker))
            throw VbError(VbErr::FileNotFound, QStringLiteral("File not found"));
        if (!QFile::remove(marker))
            throw VbError(VbErr::PathFileAccess, QStringLiteral("Path/File access error"));
        session().gDB->Execute(QStringLiteral("Delete * from tblProject where ProjectID = %1").arg(id));
        m_dcMain->Refresh();
        m_dcMain->MoveFirst();
    });
}
