// SPDX-License-Identifier: MIT
#include "frmSelect_Reference.h"

#include "ControlValue.h"
#include "DataControl.h"
#include "Diagnostics.h"
#include "FormBuilder.h"
#include "PickerSupport.h"
#include "QtWindowHost.h"
#include "Recordset.h"
#include "Session.h"
#include "VbFormat.h"
#include "ZobToolbar.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

namespace {
const WindowRegistration<frmSelect_Reference> reg(QStringLiteral("frmSelect_Reference"));
}  // namespace

frmSelect_Reference::frmSelect_Reference(Session &session, QtWindowHost &host)
    : RequestWindow(session, host, QStringLiteral("frmSelect_Reference"))
{
    setCaption(QStringLiteral("Reference"));
    HelpContextID = 2575;
    FormBuilder b(this);
    buildToolbar(b, {ToolButton::separator(),
                     {"New", "Add a reference", "New", [this] { openReferenceEntry(this->session(), this->host(), 0); }},
                     ToolButton::separator(),
                     {"Select", "Assign the highlighted reference", "Select", [this] { select(); }},
                     ToolButton::separator(),
                     {"Close", "Close the list", "Close", [this] { unloadMe(); }},
                     ToolButton::separator(),
                     {"Help", "Help", "Help", [this] { showHelp(); }}},
                 QStringLiteral(" frmSelect_Reference.TB_MDI_ButtonClick"));
    b.label(QStringLiteral("lblInput"), QStringLiteral("Type last name of first author or select reference from list:"));
    FormBuilder search = b.row();
    m_txtInput = search.textBox(QStringLiteral("txtInput"));
    FormBuilder::userTyped(m_txtInput);
    QPushButton *viewAll = search.button(QStringLiteral("cmdSearch"), QStringLiteral("&View All"));
    m_chkSpeciesFilter = search.check(QStringLiteral("chkSpeciesFilter"), QStringLiteral("Filter by species"));
    m_cboSpecies = search.combo(QStringLiteral("cboSpecies"));
    m_cboSpecies->setVisible(false);
    m_cboSpecies->setMinimumContentsLength(24);
    m_dc = b.hiddenData(QStringLiteral("dcReference"));
    m_grid = b.grid(QStringLiteral("ssCmbSearch"), m_dc,
                    {{"ReferenceID"}, {"fldRef_Author", "Author"}, {"fldRef_Title", "Title"}}, true);
    m_grid->setToolTip(QStringLiteral("Double-click a reference to open it; click a column head to sort."));
    QWidget *reference = b.memo(QStringLiteral("txtReference"), QString(), 3);
    ControlValue::setLocked(reference, true);
    m_dc->bind(reference, QStringLiteral("Reference"));

    connect(viewAll, &QPushButton::clicked, this,
            [this] { runCommand(QStringLiteral("cmdSearch_Click"), [this] { bind(listStatement() + QStringLiteral(" Order By fldRef_Author")); }); });
    connect(m_txtInput, &QLineEdit::textEdited, this, [this](const QString &text) {
        runCommand(QStringLiteral(" frmSelect_Reference.txtInput"), [&] { bind(authorStatement(text)); });
    });
    connect(m_chkSpeciesFilter, &QCheckBox::clicked, this,
            [this](bool on) { runCommand(QStringLiteral("chkSpeciesFilter_Click"), [&] { speciesFilter(on); }); });
    connect(m_cboSpecies, &QComboBox::activated, this, [this] {
        runCommand(QStringLiteral("cboSpecies_Click"), [this] { bind(speciesStatement(vb::CLng(ControlValue::value(m_cboSpecies)))); });
    });
    connect(m_grid, &DataGrid::HeadClick, this, [this](int column) {
        runCommand(QStringLiteral("ssCmbSearch_HeadClick"),
                   [&] { bind(listStatement() + QStringLiteral(" Order By ") + m_dc->fields().value(column)); });
    });
    connect(m_grid, &DataGrid::DblClick, this, [this] { runCommand(QStringLiteral("ssCmbSearch_DblClick"), [this] { openReference(); }); });
    resize(820, 520);
}

QString frmSelect_Reference::listStatement()
{
    return QStringLiteral("SELECT tblReferences.ReferenceID, tblReferences.fldRef_Author, tblReferences.fldRef_Title, "
                          "qryReference.Reference FROM tblReferences INNER JOIN qryReference ON tblReferences.ReferenceID = "
                          "qryReference.ReferenceID");
}

QString frmSelect_Reference::authorStatement(const QString &text)
{
    return listStatement() + QStringLiteral(" WHERE ((fldRef_Author Like '*%1*')) order by fldRef_Author").arg(text);
}

QString frmSelect_Reference::speciesStatement(qint32 speciesId)
{
    return QStringLiteral("SELECT tblReferences.ReferenceID, tblReferences.fldRef_Author, tblReferences.fldRef_Title, "
                          "qryReference.Reference FROM (jtblSpeciesReference INNER JOIN tblReferences ON "
                          "jtblSpeciesReference.ReferenceID = tblReferences.ReferenceID) INNER JOIN qryReference ON "
                          "tblReferences.ReferenceID = qryReference.ReferenceID Where jtblSpeciesReference.SpeciesID = %1 "
                          "ORDER BY tblReferences.fldRef_Author")
        .arg(speciesId);
}

void frmSelect_Reference::serveRequest()
{
    // From the menu there is no row to assign to: the list is for browsing.
    toolbar()->button(QStringLiteral("Select"))->setVisible(!recordRequest().table.isEmpty());
    guarded(session(), {ErrForm::Shared, QStringLiteral("frmSelect_Reference.Form_Load")}, [this] {
        bind(listStatement() + QStringLiteral(" Order By fldRef_Author"));
        const qint32 current = recordRequest().selectedId;
        for (int row = 0; current > 0 && row < m_dc->rowCount(); ++row)
            if (vb::CLng(m_dc->value(row, QStringLiteral("ReferenceID"))) == current) {
                m_dc->moveTo(row);
                break;
            }
    });
}

void frmSelect_Reference::bind(const QString &sql)
{
    m_dc->setDatabase(session().gDB);
    m_dc->setRecordSource(sql);
    m_dc->Refresh();
    m_grid->fitColumns(60);
}

void frmSelect_Reference::speciesFilter(bool on)
{
    if (on) {
        ControlValue::clear(m_txtInput);
        fillCombo(m_cboSpecies, *session().gDB, QStringLiteral("Select SpeciesID, Common From tblSpecies Order By Common"),
                  QStringLiteral("Common"), QStringLiteral("SpeciesID"));
    }
    m_cboSpecies->setVisible(on);
}

void frmSelect_Reference::openReference()
{
    const qint32 id = vb::CLng(m_dc->current().field(QStringLiteral("ReferenceID")));
    openReferenceEntry(session(), host(), id);
    m_dc->Refresh();
}

void frmSelect_Reference::select()
{
    const QVariant reference = m_dc->current().field(QStringLiteral("ReferenceID"));
    session().gSQL = callerRowSql();
    auto rs = session().gDB->OpenRecordset(session().gSQL, RecordsetType::Dynaset);
    rs->Edit();
    rs->setField(QStringLiteral("ReferenceID"), reference);
    rs->Update();
    rs->Close();
    unloadMe();
}
