// SPDX-License-Identifier: MIT
#include "frmSetup.h"

#include "DataControl.h"
#include "Diagnostics.h"
#include "FormBuilder.h"
#include "GridCellEditor.h"
#include "QtWindowHost.h"
#include "Recordset.h"
#include "Session.h"
#include "SystemLinks.h"
#include "Utilities.h"
#include "VbFormat.h"
#include "ZobToolbar.h"

#include <QAction>
#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTabWidget>

namespace {
const WindowRegistration<frmSetup> reg(QStringLiteral("frmSetup"));

struct PathRow {
    const char *caption;
    const char *field;
};
const PathRow kPaths[5] = {{"Database Path and File Name:", "PathDatabase"},
                           {"Export Path:", "PathExport"},
                           {"Project File(s) Path:", "PathProject"},
                           {"Scenario File(s) Path:", "PathScenario"},
                           {"Report File(s):", "PathReport"}};

const QStringList kUserFields = {QStringLiteral("Name"),     QStringLiteral("Department"), QStringLiteral("Address"),
                                 QStringLiteral("City"),     QStringLiteral("PostalCode"), QStringLiteral("Province"),
                                 QStringLiteral("Country"),  QStringLiteral("EMail"),      QStringLiteral("Phone"),
                                 QStringLiteral("Fax")};
const QStringList kReportFields = {QStringLiteral("ReportHeader1"), QStringLiteral("ReportHeader2")};

//! Shows only the named columns of a grid over a data control.
void showOnly(DataGrid *grid, const QStringList &fields)
{
    DataControl *dc = grid->dataControl();
    for (const QString &f : dc->fields())
        grid->setColumnHidden(f, !fields.contains(f, Qt::CaseInsensitive));
}

QString cellText(const QVariant &v)
{
    if (v.isNull())
        return {};
    try {
        return vb::CStr(v);
    } catch (const VbError &) {
        return v.toString();
    }
}

//! The grid caption of a box label: "Gender:" shows as "Gender", "Id:*" as "Id".
QString columnCaption(QString label)
{
    label.remove(QLatin1Char('*'));
    if (label.endsWith(QLatin1Char(':')))
        label.chop(1);
    return label.trimmed();
}
}  // namespace

const int frmSetup::kTabHelp[5] = {4001, 4002, 4003, 4004, 4005};

frmSetup::frmSetup(Session &session, QtWindowHost &host) : ZobWindow(session, host, QStringLiteral("frmSetup"))
{
    setCaption(QStringLiteral("System Setup"));
    HelpContextID = kTabHelp[0];
    FormBuilder b(this);
    ZobToolbar *tb = b.toolbar();
    tb->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    tb->addSeparatorButton();
    tb->addSeparatorButton();
    tb->addSeparatorButton();
    tb->addButton(QStringLiteral("Save"), QStringLiteral("Keep the setup and close"), QStringLiteral("OK"));
    tb->addSeparatorButton();
    tb->addSeparatorButton();
    tb->addSeparatorButton();
    tb->addButton(QStringLiteral("Close"), QStringLiteral("Close the setup"), QStringLiteral("Close"));
    tb->addSeparatorButton();
    tb->addButton(QStringLiteral("Help"), QStringLiteral("Help on this tab"), QStringLiteral("Help"));
    // Only one separator line between groups: the spare places are kept but not drawn.
    for (int i : {1, 2, 6, 7})
        tb->button(i)->setVisible(false);

    m_ssTabSetup = b.tabs(QStringLiteral("ssTabSetup"));

    // General Setup: the folders and the diagnostics level.
    FormBuilder general = b.page(m_ssTabSetup, QStringLiteral("General Setup"), QStringLiteral("tabGeneral"));
    for (int i = 0; i < 5; ++i) {
        auto *row = new QWidget(general.container());
        auto *h = new QHBoxLayout(row);
        h->setContentsMargins(0, 0, 0, 0);
        m_Path[i] = new QLineEdit(row);
        m_Path[i]->setObjectName(arrayName(QStringLiteral("Path"), i));
        FormBuilder::userTyped(m_Path[i]);
        auto *button = new QPushButton(QStringLiteral("..."), row);
        button->setObjectName(arrayName(QStringLiteral("cmdPath"), i));
        button->setAutoDefault(false);
        button->setToolTip(i < 2 ? QStringLiteral("Choose a file") : QStringLiteral("Choose a folder"));
        h->addWidget(m_Path[i], 1);
        h->addWidget(button);
        general.add(row, arrayName(QStringLiteral("fraPath"), i), QString::fromLatin1(kPaths[i].caption));
        if (auto *lbl = findChild<QLabel *>(QStringLiteral("lbl_") + row->objectName()))
            lbl->setBuddy(m_Path[i]);
        connect(button, &QPushButton::clicked, this, [this, i] { cmdPath_Click(i); });
    }
    m_cboDiagLevel = general.combo(QStringLiteral("cboDiagLevel"), diagLevelPrompt());
    m_cboDiagLevel->addItem(QStringLiteral("0 - none"), 0);
    const QStringList levels = diagLevelNames();
    for (int i = 0; i < levels.size(); ++i)
        m_cboDiagLevel->addItem(levels[i], i + 1);
    m_cboDiagLevel->setToolTip(QStringLiteral("What the program writes to diag.txt in its folder while it runs."));
    general.stretch();

    // Comments Setup: the user's default comments.
    FormBuilder comments = b.page(m_ssTabSetup, QStringLiteral("Comments Setup"), QStringLiteral("tabComments"));
    m_ssGrdMain = comments.grid(QStringLiteral("ssGrdMain"));
    FormBuilder add = comments.row();
    m_txtComment = add.textBox(QStringLiteral("txtComment"), QStringLiteral("New comment:"));
    FormBuilder::userTyped(m_txtComment);
    QPushButton *cmdAdd = add.button(QStringLiteral("cmdAdd"), QStringLiteral("Add"));
    m_dcComments = comments.dataControl(QStringLiteral("dcComments"));
    m_dcComments->setVisible(false);
    m_ssGrdMain->setDataControl(m_dcComments);

    // User Setup and Reports Setup: the fields of the user's row.
    FormBuilder user = b.page(m_ssTabSetup, QStringLiteral("     User Setup    "), QStringLiteral("tabUser"));
    user.label(QStringLiteral("lblUserNote"), QStringLiteral("Your name, organization and address, as reports show them. "
                                                             "Double-click a cell to change it."))->setWordWrap(true);
    m_ssGrdUser = user.grid(QStringLiteral("ssGrdUser"));
    FormBuilder report = b.page(m_ssTabSetup, QStringLiteral("       Reports Setup    "), QStringLiteral("tabReports"));
    report.label(QStringLiteral("lblReportNote"), QStringLiteral("The two header lines printed at the top of your reports. "
                                                                 "Double-click a cell to change it."))->setWordWrap(true);
    m_ssGrdReport = report.grid(QStringLiteral("ssGrdReport"));
    m_dcUser = b.dataControl(QStringLiteral("dcUser"));
    m_dcUser->setVisible(false);
    m_ssGrdUser->setDataControl(m_dcUser);
    m_ssGrdReport->setDataControl(m_dcUser);
    for (int i = 0; i < 5; ++i)
        m_dcUser->bind(m_Path[i], QString::fromLatin1(kPaths[i].field));

    // Table Setup: the list of tables, the boxes of one row, the rows, and the commands.
    FormBuilder tables = b.page(m_ssTabSetup, QStringLiteral("Table Setup"), QStringLiteral("tabTables"));
    auto *split = new QWidget(tables.container());
    auto *h = new QHBoxLayout(split);
    h->setContentsMargins(0, 0, 0, 0);
    tables.add(split, QStringLiteral("fraTables"));
    auto *listColumn = new QWidget(split);
    FormBuilder lc(listColumn);
    listColumn->layout()->setContentsMargins(0, 0, 0, 0);
    QLabel *lblTables = lc.label(QStringLiteral("lblTables"), QStringLiteral("Tables:"));
    m_LstTables = new QListWidget(listColumn);
    lc.add(m_LstTables, QStringLiteral("LstTables"));
    lblTables->setBuddy(m_LstTables);
    h->addWidget(listColumn, 1);
    auto *editColumn = new QWidget(split);
    FormBuilder ec(editColumn);
    editColumn->layout()->setContentsMargins(0, 0, 0, 0);
    h->addWidget(editColumn, 3);
    FormBuilder setupFrame = ec.frame(QStringLiteral("fraTableSetup"), QStringLiteral("Record"));
    m_fraTableSetup = ec.lastFrame();
    auto *boxes = new QWidget(m_fraTableSetup);
    auto *g = new QGridLayout(boxes);
    g->setContentsMargins(0, 0, 0, 0);
    setupFrame.add(boxes, QStringLiteral("fraFields"));
    for (int i = 0; i < 3; ++i) {
        m_LblSetup[i] = new QLabel(boxes);
        m_LblSetup[i]->setObjectName(arrayName(QStringLiteral("LblSetup"), i));
        m_txtFields[i] = new QLineEdit(boxes);
        m_txtFields[i]->setObjectName(arrayName(QStringLiteral("txtFields"), i));
        FormBuilder::userTyped(m_txtFields[i]);
        m_LblSetup[i]->setBuddy(m_txtFields[i]);
        g->addWidget(m_LblSetup[i], i, 0);
        g->addWidget(m_txtFields[i], i, 1);
    }
    m_lblIdNote = new QLabel(QStringLiteral("This field is READ ONLY and is generated by the system"), boxes);
    m_lblIdNote->setObjectName(QStringLiteral("lblIdNote"));
    m_lblIdNote->setWordWrap(true);
    g->addWidget(m_lblIdNote, 0, 2);
    g->setColumnStretch(1, 2);
    g->setColumnStretch(2, 1);
    m_txtFields[0]->setMaximumWidth(m_txtFields[0]->fontMetrics().horizontalAdvance(QLatin1Char('0')) * 12);
    m_ssGrdTable = ec.grid(QStringLiteral("ssGrdTable"));
    m_dcTable = ec.dataControl(QStringLiteral("dcTable"));
    m_ssGrdTable->setDataControl(m_dcTable);
    FormBuilder control = ec.frame(QStringLiteral("fraControl"), QString(), true);
    const char *const captions[5] = {"&New", "Edit", "&Save", "&Cancel", "&Delete"};
    for (int i = 0; i < 5; ++i) {
        m_cmdTables[i] = control.button(QStringLiteral("cmdTables"), i, QString::fromLatin1(captions[i]));
        connect(m_cmdTables[i], &QPushButton::clicked, this, [this, i] { cmdTables_Click(i); });
    }
    m_dcTableList = b.dataControl(QStringLiteral("dcTableList"));
    m_dcTableList->setVisible(false);

    m_cellEditors << new GridCellEditor(session, m_ssGrdMain, {QStringLiteral("Comment")}, QStringLiteral("ssGrdMain_AfterUpdate"))
                  << new GridCellEditor(session, m_ssGrdUser, kUserFields, QStringLiteral("ssGrdUser_AfterUpdate"))
                  << new GridCellEditor(session, m_ssGrdReport, kReportFields, QStringLiteral("ssGrdReport_AfterUpdate"));
    setMinimumSize(720, 520);
    resize(820, 600);

    connect(tb, &ZobToolbar::ButtonClick, this, [this](int index, const QString &) { TB_MDI_ButtonClick(index); });
    connect(m_ssTabSetup, &QTabWidget::currentChanged, this, [this](int tab) {
        if (tab >= 0 && tab < 5)
            HelpContextID = kTabHelp[tab];
        for (GridCellEditor *e : m_cellEditors)
            e->commit();
    });
    connect(m_cboDiagLevel, &QComboBox::activated, this, [this](int i) {
        this->session().gDiagLevel = static_cast<qint16>(m_cboDiagLevel->itemData(i).toInt());
    });
    connect(cmdAdd, &QPushButton::clicked, this, &frmSetup::cmdAdd_Click);
    connect(m_txtComment, &QLineEdit::returnPressed, this, &frmSetup::cmdAdd_Click);
    connect(m_LstTables, &QListWidget::currentItemChanged, this, [this](QListWidgetItem *item) {
        if (item)
            chooseTable(item->data(Qt::UserRole).toInt());
    });
    connect(m_dcTable, &DataControl::Reposition, this, &frmSetup::showTableRow);
}

void frmSetup::Form_Load()
{
    guarded(session(), {ErrForm::Shared, QStringLiteral("frmSetup Form_Load")}, [&] {
        for (DataControl *dc : {m_dcUser, m_dcComments, m_dcTableList, m_dcTable})
            dc->setDatabase(session().gDB);
        m_dcUser->setRecordSource(QStringLiteral("Select * from tblUser where User = '") + session().gUserName + QStringLiteral("'"));
        m_dcUser->Refresh();
        showOnly(m_ssGrdUser, kUserFields);
        showOnly(m_ssGrdReport, kReportFields);
        m_ssGrdUser->setColumnCaption(QStringLiteral("PostalCode"), QStringLiteral("Postal Code"));
        m_ssGrdUser->setColumnCaption(QStringLiteral("EMail"), QStringLiteral("E-Mail"));
        m_ssGrdReport->setColumnCaption(QStringLiteral("ReportHeader1"), QStringLiteral("Report Header 1"));
        m_ssGrdReport->setColumnCaption(QStringLiteral("ReportHeader2"), QStringLiteral("Report Header 2"));
        // Every caption readable: columns as wide as their captions, the last one taking what is left.
        for (DataGrid *grid : {m_ssGrdUser, m_ssGrdReport}) {
            grid->horizontalHeader()->setSectionResizeMode(QHeaderView::Interactive);
            grid->horizontalHeader()->setStretchLastSection(true);
            grid->resizeColumnsToContents();
            const int least = grid->fontMetrics().horizontalAdvance(QLatin1Char('M')) * 8;
            for (int c = 0; c < grid->model()->columnCount(); ++c)
                grid->setColumnWidth(c, std::max(grid->columnWidth(c), least));
        }
        m_ssGrdReport->setColumnWidth(m_dcUser->fieldIndex(QStringLiteral("ReportHeader1")),
                                      m_ssGrdReport->fontMetrics().horizontalAdvance(QLatin1Char('M')) * 24);

        m_dcComments->setRecordSource(QStringLiteral("Select Comment from tblComments where UserID = %1").arg(session().gUserID));
        m_dcComments->Refresh();
        m_ssGrdMain->horizontalHeader()->setStretchLastSection(true);

        m_dcTableList->setRecordSource(
            QStringLiteral("Select TableListID, Name from tblTableList Where L1IsVisible = True Order By Name"));
        m_dcTableList->Refresh();
        const QSignalBlocker block(m_LstTables);
        m_LstTables->clear();
        for (int row = 0; row < m_dcTableList->rowCount(); ++row) {
            auto *item = new QListWidgetItem(m_dcTableList->value(row, QStringLiteral("Name")).toString(), m_LstTables);
            item->setData(Qt::UserRole, m_dcTableList->value(row, QStringLiteral("TableListID")));
        }
        m_cboDiagLevel->setCurrentIndex(std::clamp<int>(session().gDiagLevel, 0, 4));
    });
    m_ssGrdTable->horizontalHeader()->setStretchLastSection(true);
    for (int i = 0; i < 3; ++i) {
        m_LblSetup[i]->setVisible(false);
        m_txtFields[i]->setVisible(false);
    }
    m_lblIdNote->setVisible(false);
    setEditing(false);
}

void frmSetup::TB_MDI_ButtonClick(int index)
{
    guarded(session(), {ErrForm::Shared, QStringLiteral(" TB_MDI_ButtonClick")}, [&] {
        switch (index) {
        case 4:
            for (GridCellEditor *e : m_cellEditors)
                e->commit();
            m_dcUser->UpdateRecord();
            // The database path changes for the rest of this run only; the stored upper-case
            // spelling is matched to the file on disk.
            session().gPathDatabase = resolvePathCase(m_Path[0]->text());
            unloadMe();
            break;
        case 8:
            unloadMe();
            break;
        case 10:
            showHelp();
            break;
        default:
            break;
        }
    });
}

void frmSetup::cmdPath_Click(int index)
{
    guarded(session(), {ErrForm::Shared, QStringLiteral("cmdPath_Click")}, [&] {
        if (index < 2) {
            QFileDialog dlg(this, QStringLiteral("Select File "));
            dlg.setObjectName(QStringLiteral("dlgFile"));
            dlg.setOption(QFileDialog::DontUseNativeDialog, true);
            dlg.setNameFilters({QStringLiteral("(*.MDB *.mdb *.sqlite)")});
            dlg.setFileMode(QFileDialog::ExistingFile);
            const QFileInfo current(resolvePathCase(m_Path[index]->text()));
            dlg.setDirectory(current.isDir() ? current.absoluteFilePath() : current.absolutePath());
            if (dlg.exec() == QDialog::Accepted && !dlg.selectedFiles().isEmpty()) {
                const QString chosen = dlg.selectedFiles().constFirst();
                if (!chosen.isEmpty())
                    m_Path[index]->setText(shownPath(chosen));
            }
            return;
        }
        session().gSelectedDir = m_Path[index]->text();
        host().show(QStringLiteral("frmGetDir"), true);
        m_Path[index]->setText(shownPath(session().gSelectedDir));
    });
}

void frmSetup::cmdAdd_Click()
{
    if (m_txtComment->text().trimmed().isEmpty()) {
        m_txtComment->setFocus();
        return;
    }
    const bool added = guarded(session(), {ErrForm::Shared, QStringLiteral("cmdAdd_Click")}, [&] {
        // The comment goes into the statement as typed: an apostrophe breaks it.
        session().gSQL = QStringLiteral("Insert into tblComments (UserID, comment) values('%1', '%2')")
                             .arg(session().gUserID)
                             .arg(m_txtComment->text());
        session().gDB->Execute(session().gSQL);
        m_dcComments->Refresh();
        m_dcComments->MoveLast();
    });
    if (added)
        m_txtComment->clear();
}

void frmSetup::chooseTable(int tableListId)
{
    guarded(session(), {ErrForm::Shared, QStringLiteral("LstTables_Click")}, [&] {
        m_tableListId = tableListId;
        auto rs = session().gDB->OpenRecordset(QStringLiteral("Select * from tblTableList where TableListID = %1").arg(tableListId),
                                               RecordsetType::Snapshot);
        auto flag = [&](const QString &field) { return rs->field(field).toBool(); };
        auto text = [&](const QString &field) { return rs->field(field).toString(); };
        m_tableName = text(QStringLiteral("Name"));
        m_actualTable = text(QStringLiteral("ActualTableName"));
        m_tableFields.clear();
        QString sql = QStringLiteral("Select ");
        for (int i = 0; i < 3; ++i) {
            const QString n = QString::number(i + 1);
            const bool labelVisible = flag(QStringLiteral("L") + n + QStringLiteral("IsVisible"));
            const bool fieldVisible = flag(QStringLiteral("F") + n + QStringLiteral("IsVisible"));
            // The third column takes part only when its label is shown.
            const bool used = i < 2 || labelVisible;
            m_LblSetup[i]->setVisible(used && labelVisible);
            m_LblSetup[i]->setText(text(QStringLiteral("Label") + n));
            m_txtFields[i]->setVisible(used && fieldVisible);
            m_fieldVisible[i] = used && fieldVisible;
            if (!used)
                continue;
            const QString field = text(QStringLiteral("Field") + n);
            sql += (i == 0 ? QString() : QStringLiteral(", ")) + field;
            m_tableFields << field;
        }
        rs->Close();
        sql += QStringLiteral(" from ") + m_actualTable;
        if (tableListId == 12)
            sql += QStringLiteral(" where USERID = %1").arg(session().gUserID);
        session().gSQL = sql;
        m_dcTable->setRecordSource(sql);
        m_dcTable->Refresh();
        for (int i = 0; i < m_tableFields.size(); ++i)
            m_ssGrdTable->setColumnCaption(m_tableFields[i], columnCaption(i == 0 ? QStringLiteral("Id") : m_LblSetup[i]->text()));
        m_fraTableSetup->setTitle(m_tableName);
        m_LblSetup[0]->setText(QStringLiteral("Id:*"));
        m_lblIdNote->setVisible(true);
        setEditing(false);
        showTableRow();
    });
}

void frmSetup::showTableRow()
{
    if (m_editing)
        return;
    const int row = m_dcTable->currentRow();
    for (int i = 0; i < 3; ++i)
        m_txtFields[i]->setText(row >= 0 && i < m_tableFields.size() ? cellText(m_dcTable->value(row, m_tableFields[i])) : QString());
}

void frmSetup::setEditing(bool editing)
{
    m_editing = editing;
    m_LstTables->setEnabled(!editing);
    m_ssGrdTable->setEnabled(!editing);
    m_dcTable->setEnabled(!editing);
    setLocked(m_txtFields[0], true);
    for (int i = 1; i < 3; ++i)
        setLocked(m_txtFields[i], !editing);
    const bool table = m_tableListId != 0;
    m_cmdTables[0]->setEnabled(!editing && table);
    m_cmdTables[1]->setEnabled(!editing && table);
    m_cmdTables[2]->setEnabled(editing);
    m_cmdTables[3]->setEnabled(editing);
    m_cmdTables[4]->setEnabled(!editing && table);
    if (editing) {
        for (int i = 1; i < 3; ++i)
            if (m_txtFields[i]->isVisibleTo(this)) {
                m_txtFields[i]->setFocus();
                break;
            }
    }
}

void frmSetup::cmdTables_Click(int index)
{
    guarded(session(), {ErrForm::Shared, QStringLiteral("cmdTables_Click")}, [&] {
        Recordset *rs = m_dcTable->recordset();
        switch (index) {
        case 0: {  // New
            if (!rs || m_tableFields.isEmpty())
                return;
            m_adding = true;
            setEditing(true);
            for (QLineEdit *box : m_txtFields)
                box->clear();
            if (m_tableName.compare(QLatin1String("Genus"), Qt::CaseInsensitive) != 0) {
                rs->AddNew();
                QVariant id = rs->field(m_tableFields[0]);
                // A user's comment belongs to him: the row carries his id.
                if (m_tableListId == 12) {
                    id = session().gUserID;
                    rs->setField(m_tableFields[0], id);
                }
                m_txtFields[0]->setText(cellText(id));
            }
            break;
        }
        case 1:  // Edit
            if (!rs || (rs->BOF() && rs->EOF_())) {
                session().msgBox(QStringLiteral("There are no records to edit."), QString(), MsgIcon::Information);
                return;
            }
            m_adding = false;
            setEditing(true);
            break;
        case 2:
            saveTableRow();
            break;
        case 3:  // Cancel
            if (rs && rs->editMode() != Recordset::EditMode::None)
                rs->CancelUpdate();
            m_adding = false;
            setEditing(false);
            showTableRow();
            break;
        case 4:
            deleteTableRow();
            break;
        default:
            break;
        }
    });
}

void frmSetup::saveTableRow()
{
    for (QLineEdit *box : m_txtFields)
        box->setText(box->text().trimmed());
    for (int i = 1; i < m_tableFields.size(); ++i) {
        if (m_fieldVisible[i] && m_txtFields[i]->text().isEmpty()) {
            session().msgBox(QStringLiteral("Please add a value for all required fields(ID, Property Name, Property Units)"),
                             QString(), MsgIcon::Warning);
            m_txtFields[i]->setFocus();
            return;
        }
    }
    Recordset *rs = m_dcTable->recordset();
    if (!rs)
        return;
    const int row = m_dcTable->currentRow();
    if (m_adding && m_tableName.compare(QLatin1String("Genus"), Qt::CaseInsensitive) == 0) {
        // A new genus goes in by a statement of its own; the values go in as typed.
        QStringList fields, values;
        for (int i = 1; i < m_tableFields.size(); ++i) {
            if (!m_fieldVisible[i])
                continue;
            fields << m_tableFields[i];
            values << QLatin1Char('\'') + m_txtFields[i]->text() + QLatin1Char('\'');
        }
        session().gSQL = QStringLiteral("Insert into %1 (%2) values (%3)").arg(m_actualTable, fields.join(QStringLiteral(", ")),
                                                                              values.join(QStringLiteral(", ")));
        session().gDB->Execute(session().gSQL);
    } else {
        if (!m_adding) {
            if (row < 0)
                throw VbError(VbErr::NoCurrentRecord, QStringLiteral("No current record."));
            rs->setAbsolutePosition(row);
            rs->Edit();
        }
        for (int i = 1; i < m_tableFields.size(); ++i)
            if (m_fieldVisible[i])
                rs->setField(m_tableFields[i], m_txtFields[i]->text());
        rs->Update();
    }
    const bool added = m_adding;
    m_adding = false;
    setEditing(false);
    m_dcTable->Refresh();
    if (added)
        m_dcTable->MoveLast();
    else
        m_dcTable->moveTo(row);
    showTableRow();
}

void frmSetup::deleteTableRow()
{
    static const QStringList kProtected = {QStringLiteral("Gender"), QStringLiteral("Genus"), QStringLiteral("Species")};
    if (kProtected.contains(m_tableName, Qt::CaseInsensitive)) {
        session().msgBox(QStringLiteral("Cannot delete Gender, Genus and Species records."), QString(), MsgIcon::Warning);
        return;
    }
    Recordset *rs = m_dcTable->recordset();
    const int row = m_dcTable->currentRow();
    if (!rs || row < 0)
        return;
    if (session().msgBox(QStringLiteral("Delete current record ?"), QString(), MsgIcon::Question, MsgButtons::YesNo, 2)
        != MsgAnswer::Yes)
        return;
    rs->setAbsolutePosition(row);
    rs->Delete();
    m_dcTable->Refresh();
    m_dcTable->moveTo(std::min(row, m_dcTable->rowCount() - 1));
    showTableRow();
}

void frmSetup::Form_Unload(bool &cancel)
{
    if (m_editing) {
        if (session().msgBox(QStringLiteral("Cancel changes ?"), QString(), MsgIcon::Question, MsgButtons::YesNo, 2)
            == MsgAnswer::No) {
            cancel = true;
            return;
        }
        if (Recordset *rs = m_dcTable->recordset(); rs && rs->editMode() != Recordset::EditMode::None)
            rs->CancelUpdate();
        m_editing = false;
    }
    for (GridCellEditor *e : m_cellEditors)
        e->commit();
    guarded(session(), {ErrForm::Shared, QStringLiteral("frmSetup Form_Unload")}, [&] { m_dcUser->UpdateRecord(); });
}
