// SPDX-License-Identifier: MIT
#include "frmSelect_SoilIngestion.h"

#include "DataControl.h"
#include "Diagnostics.h"
#include "FormBuilder.h"
#include "GridLook.h"
#include "EntryWindows.h"
#include "IntakeSelection.h"
#include "QtWindowHost.h"
#include "Recordset.h"
#include "Session.h"
#include "VbFormat.h"
#include "WindowLinks.h"
#include "ZobToolbar.h"

#include <QAction>
#include <QHeaderView>

namespace {
const WindowRegistration<frmSelect_SoilIngestion> reg(QStringLiteral("frmSelect_SoilIngestion"));
const QString kEntry = QStringLiteral("frmDE_SoilIngestion");
constexpr int kHelpTopic = 4103;

//! The statement's expression for a column head's name.
QString sortExpression(const QString &key)
{
    static const QHash<QString, QString> names = {
        {QStringLiteral("Lifestage"), QStringLiteral("tblLifeStage.Description")},
        {QStringLiteral("Component"), QStringLiteral("tblComponent.Description")},
        {QStringLiteral("Taxon"), QStringLiteral("tblTaxon.Description")},
        {QStringLiteral("Units"), QStringLiteral("tblUnits.Description")},
        {QStringLiteral("State"), QStringLiteral("tblStateProvince.Description")},
        {QStringLiteral("Species"), QStringLiteral("tblTaxon.Description, tblSoilIngestion.Species")}};
    return names.value(key, key);
}
}  // namespace

frmSelect_SoilIngestion::frmSelect_SoilIngestion(Session &session, QtWindowHost &host)
    : RequestWindow(session, host, QStringLiteral("frmSelect_SoilIngestion"))
{
    setCaption(QStringLiteral("Select Existing Soil Ingestion"));
    HelpContextID = kHelpTopic;
    FormBuilder b(this);
    buildToolbar(b, {ToolButton::separator(),
                     {"New", "Add a study of soil ingestion", "New", [this] { newStudy(); }},
                     ToolButton::separator(),
                     {"Select", "Assign the chosen study to the scenario", "Select", [this] { accept(); }},
                     ToolButton::separator(),
                     {"Close", "Close the list", "Close", [this] { unloadMe(); }},
                     ToolButton::separator(),
                     {"Help", "Help on soil ingestion", "Help", [this] { showHelp(); }}},
                 QStringLiteral("SoilIngestion.ssGrdMain"));
    m_dcMain = b.hiddenData(QStringLiteral("dcMain"));
    m_ssGrdMain = b.grid(QStringLiteral("ssGrdMain"), m_dcMain,
                         {{QStringLiteral("SoilIngestionID"), {}, {}, true},
                          {QStringLiteral("Taxon")},
                          {QStringLiteral("Species")},
                          {QStringLiteral("IntakeMean"), QStringLiteral("% Soil in Diet")},
                          {QStringLiteral("Units")},
                          {QStringLiteral("Sample")},
                          {QStringLiteral("State")},
                          {QStringLiteral("Reference")}},
                         true);
    new GridLook(m_ssGrdMain);
    // The reference takes the width the other columns leave.
    m_ssGrdMain->horizontalHeader()->setStretchLastSection(true);
    m_ssGrdMain->setToolTip(QStringLiteral("Double-click a study to open it; click a column head to sort."));
    connect(m_ssGrdMain, &DataGrid::HeadClick, this, [this](int column) {
        runCommand(QStringLiteral("ssGrdMain_HeadClick"), [&] { LoadData(m_dcMain->fields().value(column)); });
    });
    connect(m_ssGrdMain, &DataGrid::DblClick, this, [this] { runCommand(QStringLiteral("ssGrdMain_DblClick"), [this] { openStudy(); }); });
    resize(sizeHint());
}

void frmSelect_SoilIngestion::serveRequest()
{
    const RecordRequest &r = recordRequest();
    if (r.recordId > 0)
        m_intakeTypeId = r.recordId;
    toolbar()->button(QStringLiteral("Select"))->setVisible(r.isSelection);
    m_dcMain->setDatabase(session().gDB);
    guarded(session(), {ErrForm::Shared, QStringLiteral("LoadData")}, [&] { LoadData(QStringLiteral("Species")); });
}

void frmSelect_SoilIngestion::LoadData(const QString &sortKey)
{
    m_dcMain->setRecordSource(
        QStringLiteral("SELECT tblSoilIngestion.*, tblTaxon.Description AS Taxon, tblUnits.Description AS Units, "
                       "tblStateProvince.Description AS State, qryReference.Reference FROM qryReference RIGHT JOIN ((((tblSoilIngestion "
                       "LEFT JOIN tblTaxon ON tblSoilIngestion.TaxonID = tblTaxon.TaxonID) LEFT JOIN tblUnits ON "
                       "tblSoilIngestion.UnitsID = tblUnits.UnitsID) LEFT JOIN tblVarianceType ON tblSoilIngestion.VarianceTypeID = "
                       "tblVarianceType.VarianceTypeID) LEFT JOIN tblStateProvince ON tblSoilIngestion.StateProvinceID = "
                       "tblStateProvince.StateProvinceID) ON qryReference.ReferenceID = tblSoilIngestion.ReferenceID ORDER BY ")
        + sortExpression(sortKey));
    m_dcMain->Refresh();
    m_sortKey = sortKey;
    m_ssGrdMain->fitColumns(28, 6);
    m_ssGrdMain->setColumnWidth(m_dcMain->fieldIndex(QStringLiteral("Reference")), 160);
}

void frmSelect_SoilIngestion::openStudy()
{
    const qint32 id = vb::CLng(m_dcMain->current().field(QStringLiteral("SoilIngestionID")));
    RecordRequest entry;
    entry.recordId = id;
    entry.table = QStringLiteral("tblSoilIngestion");
    entry.keyField = QStringLiteral("SoilIngestionID");
    openEntryWindow(session(), host(), kEntry, entry, true);
}

void frmSelect_SoilIngestion::newStudy()
{
    // The list goes first; the new study is entered on its own.
    if (QtWindowHost::isRegistered(kEntry))
        unloadMe();
    openNewEntry(session(), host(), kEntry, QStringLiteral("tblSoilIngestion"), QStringLiteral("SoilIngestionID"));
}

void frmSelect_SoilIngestion::accept()
{
    Recordset *rs = m_dcMain->recordset();
    if (!rs || m_dcMain->currentRow() < 0) {
        session().msgBox(QStringLiteral("Please select a record and then continue...!!!"), QString(), MsgIcon::Information);
        return;
    }
    guarded(session(), {ErrForm::Shared, QStringLiteral("Save")}, [&] { SaveSoilIngestion(session(), m_intakeTypeId, m_dcMain->current()); });
    session().resetCursor();
    unloadMe();
    if (auto *builder = host().loadedLink<BuilderView>(QStringLiteral("frmZOB")))
        builder->PrS_LoadIntakeControls();
}
