// SPDX-License-Identifier: MIT
#include "frmSelect_Species.h"

#include "DataControl.h"
#include "DialogSupport.h"
#include "Diagnostics.h"
#include "FormBuilder.h"
#include "QtWindowHost.h"
#include "Recordset.h"
#include "Session.h"
#include "VbFormat.h"
#include "WindowAvailable.h"
#include "WindowLinks.h"
#include "clsScenario.h"

#include <QPushButton>
#include <QRadioButton>

namespace {
const WindowRegistration<frmSelect_Species> reg(QStringLiteral("frmSelect_Species"));
const char *const kTaxa[] = {"&Birds", "&Mammals", "&Amphibians", "&Reptiles"};
const QString kEntryWindow = QStringLiteral("frmDE_Species");
const QString kColumns = QStringLiteral(
    "SELECT tblSpecies.SpeciesID, tblSpecies.TaxonID, tblTaxon.Description AS Taxon, tblSpecies.Common, "
    "tblSpecies.Latin, tblSpecies.DataSourceID FROM tblTaxon INNER JOIN tblSpecies ON tblTaxon.TaxonID = "
    "tblSpecies.TaxonID");
}  // namespace

frmSelect_Species::frmSelect_Species(Session &session, QtWindowHost &host)
    : RequestWindow(session, host, QStringLiteral("frmSelect_Species"))
{
    setCaption(QStringLiteral("Select Existing Species"));
    HelpContextID = 2575;
    FormBuilder b(this);
    buildToolbar(b, {ToolButton::separator(),
                     {"New", "Add New record", "New", [this] { newSpecies(); }},
                     ToolButton::separator(),
                     {"Select", "Select the highlighted species", "Select", [this] { select(); }},
                     ToolButton::separator(),
                     {"Close", "Close the list", "Close", [this] { unloadMe(); }},
                     ToolButton::separator(),
                     {"Help", "Help", "Help", [this] { showHelp(); }}},
                 QStringLiteral("frmSelect_Species.TB_MDI_ButtonClick"));
    m_dcMain = b.hiddenData(QStringLiteral("dcMain"));
    m_grid = b.grid(QStringLiteral("ssGrdMain"), m_dcMain,
                    {{"SpeciesID"}, {"TaxonID"}, {"Taxon"}, {"Common"}, {"Latin"}}, true);
    m_grid->setToolTip(QStringLiteral("Double-click a species to open its record; click a column head to sort."));
    FormBuilder bottom = b.row();
    FormBuilder taxa = bottom.frame(QStringLiteral("fraTaxon"), QStringLiteral("Taxon"), true);
    for (int i = 0; i < 4; ++i) {
        QRadioButton *opt = taxa.option(QStringLiteral("optSpec"), i, QString::fromLatin1(kTaxa[i]));
        connect(opt, &QRadioButton::clicked, this,
                [this, i] { runCommand(QStringLiteral("optSpec_Click"), [this, i] { bind(taxonStatement(i + 1)); }); });
    }
    bottom.stretch();
    QPushButton *browse = bottom.button(QStringLiteral("cmdBrowseSpecies"), QStringLiteral("Browse Species Information"));
    connect(browse, &QPushButton::clicked, this,
            [this] { runCommand(QStringLiteral("cmdBrowseSpecies_Click"), [this] { browseSpecies(); }); });
    connect(m_grid, &DataGrid::HeadClick, this, [this](int column) {
        runCommand(QStringLiteral("ssGrdMain_HeadClick"), [&] {
            const QString field = m_dcMain->fields().value(column);
            if (!field.isEmpty())
                LoadData(field);
        });
    });
    connect(m_grid, &DataGrid::DblClick, this, [this] {
        runCommand(QStringLiteral("ssGrdMain_DblClick"), [this] {
            openSpecies(vb::CLng(m_dcMain->current().field(QStringLiteral("SpeciesID"))), recordRequest().mode);
        });
    });
    resize(720, 480);
}

QString frmSelect_Species::listStatement(const QString &order)
{
    const QString by = order == QLatin1String("Taxon") ? QStringLiteral("tblTaxon.Description") : order;
    return kColumns + QStringLiteral(" Order by ") + by;
}

QString frmSelect_Species::taxonStatement(qint32 taxonId)
{
    return kColumns + QStringLiteral(" WHERE tblSpecies.TaxonID = %1 Order by Common").arg(taxonId);
}

void frmSelect_Species::serveRequest()
{
    guarded(session(), {ErrForm::Shared, QStringLiteral("frmSelect_Species.Form_Load")}, [this] { LoadData(QStringLiteral("Common")); });
}

void frmSelect_Species::LoadData(const QString &order)
{
    bind(listStatement(order));
}

void frmSelect_Species::bind(const QString &sql)
{
    session().gSQL = sql;
    m_dcMain->setDatabase(session().gDB);
    m_dcMain->setRecordSource(sql);
    m_dcMain->Refresh();
    m_grid->fitColumns(40);
}

void frmSelect_Species::select()
{
    if (m_dcMain->rowCount() == 0) {
        session().msgBox(QStringLiteral("Please select a record and then continue...!!!"), QString(), MsgIcon::Information);
        return;
    }
    Recordset &row = m_dcMain->current();
    const qint32 id = vb::CLng(row.field(QStringLiteral("SpeciesID")));
    if (recordRequest().entry != QLatin1String("ZOB")) {
        openSpecies(id, recordRequest().mode);
        return;
    }
    // Another species replacing a chosen one is what leads the builder to clear the scenario.
    clsScenario &scenario = *session().gScenario;
    scenario.SpeciesHasChanged = id != 0 && scenario.SpeciesID != 0 && scenario.SpeciesID != id;
    scenario.SpeciesID = id;
    scenario.Species_DataSource = row.field(QStringLiteral("DataSourceID")).toInt();
    if (auto *builder = host().loadedLink<BuilderView>(QStringLiteral("frmZOB")))
        builder->PrS_LoadSpeciesControls();
    unloadMe();
}

void frmSelect_Species::openSpecies(qint32 speciesId, const QString &mode)
{
    openForRecord(*this, kEntryWindow, recordOf(QStringLiteral("tblSpecies"), QStringLiteral("SpeciesID"), speciesId, mode), false);
}

void frmSelect_Species::newSpecies()
{
    if (windowAvailable(session(), kEntryWindow))
        openSpecies(session().GetNewRecordID(QStringLiteral("tblSpecies"), QStringLiteral("SpeciesID"), QString(), 0, 0),
                    QStringLiteral("Write"));
}

void frmSelect_Species::browseSpecies()
{
    openForRecord(*this, QStringLiteral("frmSearch_LifeHistory"),
                  recordOf(QStringLiteral("tblWildlife"), QStringLiteral("ScenarioID"), session().gScenario->SID, QString()), true);
}
