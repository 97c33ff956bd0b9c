// SPDX-License-Identifier: MIT
#include "frmSearch_LifeHistory.h"

#include "ControlEvents.h"
#include "ControlValue.h"
#include "DataControl.h"
#include "FormBuilder.h"
#include "LifeHistorySql.h"
#include "QtWindowHost.h"
#include "Recordset.h"
#include "Session.h"
#include "Utilities.h"
#include "WindowLinks.h"
#include "clsScenario.h"
#include "frmLifeHistory.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>

namespace {
const WindowRegistration<frmSearch_LifeHistory> reg(QStringLiteral("frmSearch_LifeHistory"));

const char *const kInfoPages[] = {"General Information", "Diet and Intake Rate Information",
                                  "Population  and Habitat Dynamics", "Seasonal Activities", "Body Size and Growth Rate"};
}  // namespace

frmSearch_LifeHistory::frmSearch_LifeHistory(Session &session, QtWindowHost &host)
    : ZobWindow(session, host, QStringLiteral("frmSearch_LifeHistory"))
{
    setCaption(QStringLiteral("Life History Search"));
    HelpContextID = 3700;
    FormBuilder b(this);
    buildToolbar(b, {ToolButton::separator(), {"Clear", "Clear the search criteria", "Clear", [this] { clearCriteria(); }},
                     ToolButton::separator(), {"Search", "Find the species that meet the criteria", "Search", [this] { search(); }},
                     ToolButton::separator(), {"Close", "Close the search", "Close", [this] { unloadMe(); }},
                     {"Select", "Take the selected species", "Select", [this] { selectSpecies(); }},
                     ToolButton::separator(), {"Help", "Help on the species search", "Help", [this] { showHelp(); }}},
                 QStringLiteral("frmSeardch_LifeHistory.TB_MDI_ButtonClick"));
    FormBuilder criteria = b.frame(QStringLiteral("fraCriteria"), QStringLiteral("Search Criteria")).fields(2);
    m_txtSearch[0] = criteria.textBox(QStringLiteral("txtSearch"), 0, QStringLiteral("Species:"));
    m_cboTaxon = criteria.combo(QStringLiteral("cboTaxon"), QStringLiteral("Taxon:"));
    m_cboHabitat = criteria.combo(QStringLiteral("cboHabitat"), QStringLiteral("Habitat:"));
    m_txtSearch[3] = criteria.textBox(QStringLiteral("txtSearch"), 3, QStringLiteral("Diet Item:"));
    FormBuilder level = criteria.fieldRow(QStringLiteral("fraTrophicLevel"), QStringLiteral("Trophic Level:  from"));
    m_txtSearch[1] = level.textBox(QStringLiteral("txtSearch"), 1);
    level.label(QStringLiteral("lblTo"), QStringLiteral("to"));
    m_txtSearch[2] = level.textBox(QStringLiteral("txtSearch"), 2);
    for (QWidget *box : {static_cast<QWidget *>(m_txtSearch[0]), static_cast<QWidget *>(m_txtSearch[3]),
                         static_cast<QWidget *>(m_txtSearch[1]), static_cast<QWidget *>(m_txtSearch[2]),
                         static_cast<QWidget *>(m_cboTaxon), static_cast<QWidget *>(m_cboHabitat)}) {
        FormBuilder::userTyped(box);
        markFocus(box);
    }
    m_dcSearch = b.hiddenData(QStringLiteral("dcSearch"));
    m_gridCaption = b.label(QStringLiteral("lblSearchCaption"), QString());
    FormBuilder table = b.row(1);
    m_grid = table.grid(QStringLiteral("ssGrdSearch"), m_dcSearch,
                        {{"SpeciesID", {}, {}, true}, {"DataSourceID", {}, {}, true}, {"Taxon"}, {"Common", "Common Name"},
                         {"Latin", "Latin Name"}});
    m_grid->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_grid->setToolTip(QStringLiteral("Double-click a species to read its life history."));
    FormBuilder links = b.row();
    for (int i = 0; i < 5; ++i) {
        QLabel *link = links.label(QStringLiteral("LblGenInfo"), i, QString::fromLatin1(kInfoPages[i]));
        link->setStyleSheet(QStringLiteral("color: #0000ee; text-decoration: underline;"));
        link->setCursor(Qt::PointingHandCursor);
        connect(ControlEvents::of(link), &ControlEvents::Click, this, [this, i] { openBrowser(i); });
    }
    links.stretch();
    resize(820, 560);
    connect(m_grid, &DataGrid::DblClick, this, [this] { openBrowser(0); });
    // Enter on a species reads its life history, as a double click does.
    connect(ControlEvents::of(m_grid), &ControlEvents::KeyDown, this, [this](int &keyCode, int) {
        if (keyCode == 13) {
            keyCode = 0;
            openBrowser(0);
        }
    });
}

void frmSearch_LifeHistory::markFocus(QWidget *box)
{
    // Colour 8454143 (a pale yellow) while the box has the focus, white after.
    connect(ControlEvents::of(box), &ControlEvents::GotFocus, box,
            [box] { box->setStyleSheet(QStringLiteral("background-color: #ffff80; color: blue;")); });
    connect(ControlEvents::of(box), &ControlEvents::LostFocus, box,
            [box] { box->setStyleSheet(QStringLiteral("background-color: white; color: blue;")); });
}

void frmSearch_LifeHistory::Form_Load()
{
    runCommand(QStringLiteral("frmSearch_LifeHistory.Form_Load"), [this] {
        Database &db = *session().gDB;
        fillCombo(m_cboTaxon, db, QStringLiteral("Select * from tblTaxon Order By Description"), QStringLiteral("Description"),
                  QStringLiteral("TaxonID"));
        fillCombo(m_cboHabitat, db,
                  QStringLiteral("SELECT tblHabitatType.HabitatTypeID, tblHabitatType.List From tblHabitatType Where "
                                 "((Not (tblHabitatType.List) Is Null)) ORDER BY tblHabitatType.List"),
                  QStringLiteral("List"), QStringLiteral("HabitatTypeID"));
        ControlValue::clear(m_cboTaxon);
        ControlValue::clear(m_cboHabitat);
        m_dcSearch->setDatabase(session().gDB);
        m_dcSearch->setRecordSource(LifeHistorySql::searchStatement(QString()));
        m_dcSearch->Refresh();
        m_grid->fitColumns(40);
    });
}

void frmSearch_LifeHistory::setRecord(const RecordRequest &request)
{
    ZobWindow::setRecord(request);
    ID = request.recordId;
    TableName = request.table.isEmpty() ? QStringLiteral("NA") : request.table;
    IDField = request.keyField;
}

void frmSearch_LifeHistory::clearCriteria()
{
    SetControlInfo(session(), this, QStringLiteral("clear"), false);
    m_txtSearch[0]->setFocus();
}

void frmSearch_LifeHistory::search()
{
    LifeHistorySql::SearchCriteria c;
    c.species = ControlValue::text(m_txtSearch[0]);
    if (!ControlValue::text(m_cboTaxon).isEmpty())
        c.taxonId = ControlValue::value(m_cboTaxon).toString();
    c.habitat = ControlValue::text(m_cboHabitat);
    c.dietItem = ControlValue::text(m_txtSearch[3]);
    c.trophicFrom = ControlValue::text(m_txtSearch[1]);
    c.trophicTo = ControlValue::text(m_txtSearch[2]);
    m_dcSearch->setRecordSource(LifeHistorySql::searchStatement(LifeHistorySql::searchWhere(c)));
    m_dcSearch->Refresh();
    if (m_dcSearch->rowCount() == 0) {
        m_gridCaption->setText(QStringLiteral("No records found"));
        session().msgBox(QStringLiteral("No records found."), QString(), MsgIcon::Information);
        return;
    }
    m_dcSearch->MoveFirst();
    m_grid->selectRowIndex(0);
}

void frmSearch_LifeHistory::selectSpecies()
{
    const int row = m_dcSearch->currentRow();
    if (row >= 0) {
        const qint32 species = m_dcSearch->value(row, QStringLiteral("SpeciesID")).toInt();
        const qint32 source = m_dcSearch->value(row, QStringLiteral("DataSourceID")).toInt();
        if (TableName != QLatin1String("NA")) {
            auto rs = session().gDB->OpenRecordset(
                QStringLiteral("Select * From %1 Where %2 = %3").arg(TableName, IDField).arg(ID), RecordsetType::Dynaset);
            rs->Edit();
            rs->setField(QStringLiteral("SpeciesID"), species);
            rs->Update();
            rs->Close();
        }
        session().gScenario->SpeciesID = species;
        session().gScenario->Species_DataSource = source;
        if (auto *builder = host().loadedLink<BuilderView>(QStringLiteral("frmZOB")))
            builder->PrS_LoadSpeciesControls();
    } else {
        session().msgBox(QStringLiteral("No records selected."), QString(), MsgIcon::Warning);
    }
    unloadMe();
}

void frmSearch_LifeHistory::openBrowser(int tab)
{
    if (m_dcSearch->rowCount() == 0) {
        session().msgBox(QStringLiteral("No species record."), QString(), MsgIcon::Warning);
        return;
    }
    auto *browser = host().form<frmLifeHistory>(QStringLiteral("frmLifeHistory"));
    if (!browser)
        return;
    browser->PuS_SetTab(tab);
    browser->showSpecies(m_dcSearch);
    host().show(QStringLiteral("frmLifeHistory"), true);
}
