// SPDX-License-Identifier: MIT
#include "frmSetup.h"

#include "ControlValue.h"
#include "DataControl.h"
#include "Diagnostics.h"
#include "FormBuilder.h"
#include "GridCellEditor.h"
#include "PathSpelling.h"
#include "QtWindowHost.h"
#include "Session.h"
#include "SystemLinks.h"
#include "TableListEditor.h"
#include "Utilities.h"

#include <QComboBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>

namespace {
const WindowRegistration<frmSetup> reg(QStringLiteral("frmSetup"));

//! The path boxes Path(i): caption and the column of the user row each shows.
const struct {
    const char *caption;
    const char *field;
} kPaths[5] = {{"Database Path and File Name:", "PathDatabase"},
               {"Export Path:", "PathExport"},
               {"Project File(s) Path:", "PathProject"},
               {"Scenario File(s) Path:", "PathScenario"},
               {"Report File(s):", "PathReport"}};

//! The columns of the user row each grid shows; all of them take typing.
const QList<GridColumn> kUserColumns = {{"Name"}, {"Department"}, {"Address"}, {"City"}, {"PostalCode", "Postal Code"},
                                        {"Province"}, {"Country"}, {"EMail", "E-Mail"}, {"Phone"}, {"Fax"}};
const QList<GridColumn> kReportColumns = {{"ReportHeader1", "Report Header 1"}, {"ReportHeader2", "Report Header 2"}};

QStringList fieldsOf(const QList<GridColumn> &columns)
{
    QStringList fields;
    for (const GridColumn &c : columns)
        fields << c.field;
    return fields;
}
}  // namespace

const int frmSetup::kTabHelp[5] = {4001, 4002, 4003, 4004, 4005};

frmSetup::frmSetup(Session &session, QtWindowHost &host) : ZobWindow(session, host, QStringLiteral("frmSetup"))
{
    setCaption(QStringLiteral("System Setup"));
    HelpContextID = kTabHelp[0];
    FormBuilder b(this);
    // Scripts press OK, Close and Help as 4, 8 and 10: the spare places keep those numbers without
    // drawing more than one line between groups.
    buildToolbar(b,
                 {ToolButton::spare(), ToolButton::spare(), ToolButton::separator(),
                  {"Save", "Keep the setup and close", "OK", [this] { keepAndClose(); }},
                  ToolButton::separator(), ToolButton::spare(), ToolButton::spare(),
                  {"Close", "Close the setup", "Close", [this] { unloadMe(); }},
                  ToolButton::separator(),
                  {"Help", "Help on this tab", "Help", [this] { showHelp(); }}},
                 QStringLiteral(" TB_MDI_ButtonClick"));
    m_ssTabSetup = b.tabs(QStringLiteral("ssTabSetup"));
    m_dcUser = b.hiddenData(QStringLiteral("dcUser"));
    FormBuilder general = b.page(m_ssTabSetup, QStringLiteral("General Setup"), QStringLiteral("tabGeneral"));
    buildGeneral(general);
    FormBuilder comments = b.page(m_ssTabSetup, QStringLiteral("Comments Setup"), QStringLiteral("tabComments"));
    buildComments(comments);
    FormBuilder user = b.page(m_ssTabSetup, QStringLiteral("     User Setup    "), QStringLiteral("tabUser"));
    FormBuilder report = b.page(m_ssTabSetup, QStringLiteral("       Reports Setup    "), QStringLiteral("tabReports"));
    buildUserGrids(user, report);
    FormBuilder tables = b.page(m_ssTabSetup, QStringLiteral("Table Setup"), QStringLiteral("tabTables"));
    m_tables = new TableListEditor(session, tables);
    setMinimumSize(720, 520);
    resize(820, 600);
    connect(m_ssTabSetup, &QTabWidget::currentChanged, this, &frmSetup::tabChanged);
}

void frmSetup::buildGeneral(FormBuilder &page)
{
    // Each folder box with the button that chooses it.
    for (int i = 0; i < 5; ++i) {
        FormBuilder row = page.fieldRow(arrayName(QStringLiteral("fraPath"), i), QString::fromLatin1(kPaths[i].caption));
        m_Path[i] = row.textBox(QStringLiteral("Path"), i);
        FormBuilder::userTyped(m_Path[i]);
        m_dcUser->bind(m_Path[i], QString::fromLatin1(kPaths[i].field));
        QPushButton *choose = row.button(QStringLiteral("cmdPath"), i, QStringLiteral("..."));
        choose->setToolTip(i < 2 ? QStringLiteral("Choose a file") : QStringLiteral("Choose a folder"));
        connect(choose, &QPushButton::clicked, this, [this, i] { cmdPath_Click(i); });
    }
    m_cboDiagLevel = page.combo(QStringLiteral("cboDiagLevel"), diagLevelPrompt());
    m_cboDiagLevel->addItem(QStringLiteral("0 - none"), 0);
    const QStringList levels = diagLevelNames();
    for (int i = 0; i < levels.size(); ++i)
        m_cboDiagLevel->addItem(levels[i], i + 1);
    m_cboDiagLevel->setToolTip(QStringLiteral("What the program writes to diag.txt in its folder while it runs."));
    connect(m_cboDiagLevel, &QComboBox::activated, this, [this] {
        session().gDiagLevel = static_cast<qint16>(ControlValue::value(m_cboDiagLevel).toInt());
    });
    page.stretch();
}

void frmSetup::buildComments(FormBuilder &page)
{
    m_dcComments = page.hiddenData(QStringLiteral("dcComments"));
    m_ssGrdMain = page.grid(QStringLiteral("ssGrdMain"), m_dcComments);
    m_ssGrdMain->horizontalHeader()->setStretchLastSection(true);
    FormBuilder add = page.row();
    m_txtComment = add.textBox(QStringLiteral("txtComment"), QStringLiteral("New comment:"));
    FormBuilder::userTyped(m_txtComment);
    connect(add.button(QStringLiteral("cmdAdd"), QStringLiteral("Add")), &QPushButton::clicked, this, &frmSetup::cmdAdd_Click);
    connect(m_txtComment, &QLineEdit::returnPressed, this, &frmSetup::cmdAdd_Click);
    m_cellEditors << new GridCellEditor(session(), m_ssGrdMain, {QStringLiteral("Comment")}, QStringLiteral("ssGrdMain_AfterUpdate"));
}

void frmSetup::buildUserGrids(FormBuilder &user, FormBuilder &report)
{
    user.label(QStringLiteral("lblUserNote"), QStringLiteral("Your name, organization and address, as reports show them. "
                                                             "Double-click a cell to change it."))->setWordWrap(true);
    m_ssGrdUser = user.grid(QStringLiteral("ssGrdUser"), m_dcUser, kUserColumns, true);
    report.label(QStringLiteral("lblReportNote"), QStringLiteral("The two header lines printed at the top of your reports. "
                                                                 "Double-click a cell to change it."))->setWordWrap(true);
    m_ssGrdReport = report.grid(QStringLiteral("ssGrdReport"), m_dcUser, kReportColumns, true);
    for (DataGrid *grid : {m_ssGrdUser, m_ssGrdReport}) {
        grid->horizontalHeader()->setSectionResizeMode(QHeaderView::Interactive);
        grid->horizontalHeader()->setStretchLastSection(true);
    }
    m_cellEditors << new GridCellEditor(session(), m_ssGrdUser, fieldsOf(kUserColumns), QStringLiteral("ssGrdUser_AfterUpdate"))
                  << new GridCellEditor(session(), m_ssGrdReport, fieldsOf(kReportColumns), QStringLiteral("ssGrdReport_AfterUpdate"));
}

void frmSetup::Form_Load()
{
    guarded(session(), {ErrForm::Shared, QStringLiteral("frmSetup Form_Load")}, [&] {
        for (DataControl *dc : {m_dcUser, m_dcComments})
            dc->setDatabase(session().gDB);
        m_dcUser->setRecordSource(QStringLiteral("Select * from tblUser where User = '") + session().gUserName + QStringLiteral("'"));
        m_dcUser->Refresh();
        // Every caption readable: columns as wide as their captions, the last one taking what is left.
        m_ssGrdUser->fitColumns(0, 8);
        m_ssGrdReport->fitColumns(24, 24);
        m_dcComments->setRecordSource(QStringLiteral("Select Comment from tblComments where UserID = %1").arg(session().gUserID));
        m_dcComments->Refresh();
        m_tables->load();
        ControlValue::select(m_cboDiagLevel, std::clamp<int>(session().gDiagLevel, 0, 4));
    });
}

void frmSetup::tabChanged(int tab)
{
    if (tab >= 0 && tab < 5)
        HelpContextID = kTabHelp[tab];
    commitCells();
}

void frmSetup::commitCells()
{
    for (GridCellEditor *e : m_cellEditors)
        e->commit();
}

void frmSetup::keepAndClose()
{
    commitCells();
    m_dcUser->UpdateRecord();
    // The database path changes for the rest of this run only; the stored upper-case spelling is
    // matched to the file on disk.
    session().gPathDatabase = resolvePathCase(ControlValue::text(m_Path[0]));
    unloadMe();
}

void frmSetup::cmdPath_Click(int index)
{
    guarded(session(), {ErrForm::Shared, QStringLiteral("cmdPath_Click")}, [&] {
        QWidget *box = m_Path[index];
        if (index < 2) {
            QFileDialog dlg(this, QStringLiteral("Select File "));
            dlg.setObjectName(QStringLiteral("dlgFile"));
            dlg.setOption(QFileDialog::DontUseNativeDialog, true);
            dlg.setNameFilters({QStringLiteral("(*.MDB *.mdb *.sqlite)")});
            dlg.setFileMode(QFileDialog::ExistingFile);
            const QFileInfo current(resolvePathCase(ControlValue::text(box)));
            dlg.setDirectory(current.isDir() ? current.absoluteFilePath() : current.absolutePath());
            if (dlg.exec() == QDialog::Accepted && !dlg.selectedFiles().isEmpty()) {
                const QString chosen = dlg.selectedFiles().constFirst();
                if (!chosen.isEmpty())
                    ControlValue::setText(box, shownPath(chosen));
            }
            return;
        }
        session().gSelectedDir = ControlValue::text(box);
        host().show(QStringLiteral("frmGetDir"), true);
        ControlValue::setText(box, shownPath(session().gSelectedDir));
    });
}

void frmSetup::cmdAdd_Click()
{
    const QString comment = ControlValue::text(m_txtComment);
    if (comment.trimmed().isEmpty()) {
        m_txtComment->setFocus();
        return;
    }
    const bool added = guarded(session(), {ErrForm::Shared, QStringLiteral("cmdAdd_Click")}, [&] {
        // The comment goes into the statement as typed: an apostrophe breaks it.
        session().gSQL = QStringLiteral("Insert into tblComments (UserID, comment) values('%1', '%2')").arg(session().gUserID).arg(comment);
        session().gDB->Execute(session().gSQL);
        m_dcComments->Refresh();
        m_dcComments->MoveLast();
    });
    if (added)
        ControlValue::clear(m_txtComment);
}

void frmSetup::Form_Unload(bool &cancel)
{
    if (!m_tables->leave()) {
        cancel = true;
        return;
    }
    commitCells();
    guarded(session(), {ErrForm::Shared, QStringLiteral("frmSetup Form_Unload")}, [&] { m_dcUser->UpdateRecord(); });
}
