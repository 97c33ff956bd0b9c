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

//! The current row of a data control's recordset; a list without rows has no current record.
//! Columns as wide as their contents, but none wider than a third of the grid's default width.
void fitColumns(DataGrid *grid)
{
    grid->resizeColumnsToContents();
    const int widest = grid->fontMetrics().horizontalAdvance(QLatin1Char('M')) * 24;
    for (int c = 0; c < grid->model()->columnCount(); ++c)
        if (grid->columnWidth(c) > widest)
            grid->setColumnWidth(c, widest);
}

Recordset &currentRecord(DataControl *dc)
{
    Recordset *rs = dc->recordset();
    if (!rs || dc->currentRow() < 0)
        throw VbError(VbErr::NoCurrentRecord, QStringLiteral("No current record."));
    return *rs;
}
}  // namespace

frmProjectList::frmProjectList(Session &session, QtWindowHost &host)
    : ZobWindow(session, host, QStringLiteral("frmProjectList"))
{
    setCaption(QStringLiteral("Projects"));
    HelpContextID = 3500;
    FormBuilder b(this);
    ZobToolbar *tb = b.toolbar();
    tb->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    tb->addSeparatorButton();
    tb->addButton(QStringLiteral("New"), QStringLiteral("Make a new project"), QStringLiteral("New"));
    tb->addSeparatorButton();
    tb->addButton(QStringLiteral("Open"), QStringLiteral("Open the selected project"), QStringLiteral("Open"));
    tb->addSeparatorButton();
    tb->addButton(QStringLiteral("Close"), QStringLiteral("Close the project list"), QStringLiteral("Close"));
    tb->addSeparatorButton();
    tb->addButton(QStringLiteral("Help"), QStringLiteral("Help on the project list"), QStringLiteral("Help"));

    m_lblNoRecords = b.label(QStringLiteral("lblNoRecords"),
                             QStringLiteral("No projects: Click the new [blank page] icon to add a project."));
    m_lblNoRecords->setWordWrap(true);
    m_lblNoRecords->setVisible(false);
    m_ssGrdMain = b.grid(QStringLiteral("ssGrdMain"));
    m_dcMain = b.dataControl(QStringLiteral("dcMain"));
    m_dcMain->setVisible(false);
    m_ssGrdMain->setDataControl(m_dcMain);
    m_ssGrdMain->setToolTip(QStringLiteral("Double-click a project to open it; press Delete to delete it. "
                                           "Click a column head to sort."));
    resize(760, 420);

    connect(tb, &ZobToolbar::ButtonClick, this, [this](int index, const QString &) { TB_MDI_ButtonClick(index); });
    connect(m_ssGrdMain, &DataGrid::HeadClick, this, [this](int column) {
        const QString field = m_dcMain->fields().value(column);
        if (!field.isEmpty())
            sortBy(field);
    });
    connect(m_ssGrdMain, &DataGrid::DblClick, this, [this] { TB_MDI_ButtonClick(4); });
    connect(ControlEvents::of(m_ssGrdMain), &ControlEvents::KeyDown, this, [this](int &keyCode, int) {
        if (keyCode == 46) {
            keyCode = 0;
            deleteSelected();
        } else if (keyCode == 13) {
            keyCode = 0;
            TB_MDI_ButtonClick(4);
        }
    });
    connect(m_dcMain, &DataControl::Reposition, this, &frmProjectList::dcMain_Reposition);
}

void frmProjectList::Form_Load()
{
    guarded(session(), {ErrForm::Qualified, QStringLiteral("frmProjectList.Form_Load")}, [&] {
        m_dcMain->setDatabase(session().gDB);
        sortBy(QStringLiteral("Name"));
        m_ssGrdMain->setColumnHidden(QStringLiteral("ProjectID"), true);
        m_ssGrdMain->setColumnHidden(QStringLiteral("StateProvinceID"), true);
        m_ssGrdMain->setColumnCaption(QStringLiteral("Name"), QStringLiteral("Project Name"));
        m_ssGrdMain->setColumnCaption(QStringLiteral("Purpose"), QStringLiteral("Description"));
        m_ssGrdMain->setColumnCaption(QStringLiteral("Path"), QStringLiteral("Folder"));
        m_ssGrdMain->setColumnCaption(QStringLiteral("FileName"), QStringLiteral("File Name"));
        m_ssGrdMain->setColumnCaption(QStringLiteral("LastSaved"), QStringLiteral("Last Saved"));
    });
}

void frmProjectList::Form_Activate()
{
    if (m_dcMain->recordset())
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
        fitColumns(m_ssGrdMain);
    });
}

void frmProjectList::dcMain_Reposition()
{
    guarded(session(), {ErrForm::Qualified, QStringLiteral("frmProjectList.dcMain_Reposition")}, [&] {
        Recordset *rs = m_dcMain->recordset();
        m_lblNoRecords->setVisible(!rs || (rs->BOF() && rs->EOF_()));
    });
}

void frmProjectList::TB_MDI_ButtonClick(int index)
{
    guarded(session(), {ErrForm::Shared, QStringLiteral("TB_MDI_ButtonClick")}, [&] {
        switch (index) {
        case 2:
            session().gProject->AddNew();
            break;
        case 4:
            openSelected();
            break;
        case 6:
            unloadMe();
            break;
        case 8:
            showHelp();
            break;
        default:
            break;
        }
    });
}

void frmProjectList::openSelected()
{
    Recordset &rs = currentRecord(m_dcMain);
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
        Recordset &rs = currentRecord(m_dcMain);
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
