// SPDX-License-Identifier: MIT
#include "BuilderDietPage.h"

#include "Calculations.h"
#include "ControlEvents.h"
#include "ControlValue.h"
#include "DataControl.h"
#include "Diagnostics.h"
#include "Diet.h"
#include "DietItemColumns.h"
#include "FormBuilder.h"
#include "QtWindowHost.h"
#include "Recordset.h"
#include "Session.h"
#include "Utilities.h"
#include "WindowAvailable.h"
#include "clsDietItem.h"
#include "clsScenario.h"
#include "frmZOB.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>

namespace {
const QString kDietItemWindow = QStringLiteral("frmDE_DietItem");
const QString kBasisWindow = QStringLiteral("frmSelect_DryWetWeight");

//! The help topic of a shown column of the item grid, 0 for none.
int columnTopic(int column)
{
    switch (column) {
    case 1: case 3: return 1035;
    case 2: case 4: return 2508;
    case 6: return 1037;
    case 7: return 2518;
    case 8: return 1036;
    case 9: return 2509;
    case 10: case 11: return 2519;
    default: return 0;
    }
}
}  // namespace

BuilderDietPage::BuilderDietPage(frmZOB &window, FormBuilder &page) : QObject(&window), m_w(window)
{
    QTabWidget *inner = page.tabs(QStringLiteral("SSTab1"));
    FormBuilder diet = page.page(inner, QStringLiteral("Diet"));
    buildDiet(diet);
    FormBuilder items = page.page(inner, QStringLiteral("Diet Items"));
    buildItems(items);
}

void BuilderDietPage::buildDiet(FormBuilder &page)
{
    FormBuilder fields = page.fields(2, QStringLiteral("fraDiet"));
    m_txtDietSeason = fields.textBox(QStringLiteral("txtDietSeason"), QStringLiteral("Season:"));
    m_txtDietHabitat = fields.textBox(QStringLiteral("txtDietHabitat"), QStringLiteral("Habitat:"));
    m_txtDietSex = fields.textBox(QStringLiteral("txtDietSex"), QStringLiteral("Gender:"));
    fields.nextRow();
    FormBuilder level = page.fields(1, QStringLiteral("fraDietTL"));
    m_txtDietTL = level.textBox(QStringLiteral("txtDietTL"),
                                QStringLiteral("Average Trophic Level for Diet (add 1 for Average Trophic Level of Consumer):"));
    m_txtDietTL->setReadOnly(true);
    m_txtDietTL->setMaximumWidth(120);
    page.label(QStringLiteral("LbLDataSource"), 2, QString());
    m_chkIsWet = page.check(QStringLiteral("chkIsWet"), QStringLiteral("Wet weight basis"));
    m_chkIsWet->setVisible(false);
    FormBuilder notes = page.row(1, QStringLiteral("fraDietNotes"));
    m_w.noteBox(notes, 2, QStringLiteral("Diet Comments:"), 5);
    m_w.noteBox(notes, 9, QStringLiteral("Diet Record Notes:"), 5, QStringLiteral("lblDietNotes"));
    m_w.pageCommands(page, 2, [this] { selectFromDatabase(); }, [this] { enterHypothetical(); });
}

void BuilderDietPage::buildItems(FormBuilder &page)
{
    FormBuilder commands = page.row(0, QStringLiteral("fraDietItemCommands"));
    const QList<QPushButton *> edit = m_w.commandButtons(commands, QStringLiteral("cmdEdit"), {
        {0, QStringLiteral("&Add Diet Item"), [this] { editItem(false); }},
        {1, QStringLiteral("&Modify Current Diet Item"), [this] { editItem(true); }}});
    if (!QtWindowHost::isRegistered(kDietItemWindow)) {
        for (QPushButton *b : edit) {
            b->setEnabled(false);
            b->setToolTip(QStringLiteral("Diet items cannot be added or changed here yet: the diet item window is not part of this version of the program."));
        }
    }
    commands.stretch();
    QPushButton *sum = commands.button(QStringLiteral("cmdSumProportions"), QStringLiteral("&Sum Proportions to 1.0"));
    connect(sum, &QPushButton::clicked, this, [this] { m_w.runCommand(QStringLiteral("cmdSumProportions_Click"), [this] { sumProportions(); }); });
    m_dcDietItems = page.hiddenData(QStringLiteral("dcDietItems"));
    m_grid = page.grid(QStringLiteral("ssGrdDietItems"), m_dcDietItems, dietItemColumns(), true);
    connect(m_grid, &DataGrid::HeadClick, this, &BuilderDietPage::columnHelp);
    connect(m_grid, &DataGrid::DblClick, this, [this] { m_w.runCommand(QStringLiteral("cmdEdit_Click"), [this] { editItem(true); }); });
    connect(ControlEvents::of(m_grid), &ControlEvents::KeyDown, this, [this](int &code, int) {
        if (code == 46)
            deleteItem();
    });
}

QString BuilderDietPage::season() const { return ControlValue::text(m_txtDietSeason); }
QString BuilderDietPage::habitat() const { return ControlValue::text(m_txtDietHabitat); }
QString BuilderDietPage::sex() const { return ControlValue::text(m_txtDietSex); }

void BuilderDietPage::refreshItems()
{
    Session &s = m_w.session();
    s.gSQL = GetDietItemsSQL(s, QStringLiteral("User"), s.gScenario->SID);
    m_dcDietItems->setDatabase(s.gDB);
    m_dcDietItems->setRecordSource(s.gSQL);
    m_dcDietItems->Refresh();
    m_grid->fitColumns(28, 6);
}

void BuilderDietPage::showTrophicLevel()
{
    Session &s = m_w.session();
    ControlValue::setText(m_txtDietTL, GetAvgTrophicLevel(s, s.gScenario->SID, QStringLiteral("tblWildlifeDietItems")));
}

void BuilderDietPage::load()
{
    Session &s = m_w.session();
    clsScenario &sc = *s.gScenario;
    guarded(s, {ErrForm::Shared, QStringLiteral("frmZOB.LoadDietControls")}, [&] {
        auto rs = s.gDB->OpenRecordset(QStringLiteral("SELECT * From tblWildlife WHERE tblWildlife.ScenarioID = %1").arg(sc.SID),
                                       RecordsetType::Dynaset);
        ControlValue::setText(m_txtDietSex, rs->field(QStringLiteral("DietSex")).toString());
        ControlValue::setText(m_txtDietSeason, rs->field(QStringLiteral("DietSeason")).toString());
        ControlValue::setText(m_txtDietHabitat, rs->field(QStringLiteral("DietHabitat")).toString());
        ControlValue::setText(m_w.notes(2), rs->field(QStringLiteral("DietComments")).toString());
        sc.Diet_DataSource = rs->field(QStringLiteral("DietDataSourceID")).toInt();
        rs->Close();
        const QVariant notes = s.Lookup(QStringLiteral("tblWildlifeDiet"), QStringLiteral("CollectionNotes"),
                                        QStringLiteral("ScenarioID = %1").arg(sc.SID));
        ControlValue::setText(m_w.notes(9), notes.toString() == kNotFound ? QString() : notes.toString());
        m_w.SetDataSource(sc.Diet_DataSource, 2);
        refreshItems();
        s.resetCursor();
    });
}

void BuilderDietPage::updateItems()
{
    Session &s = m_w.session();
    guarded(s, {ErrForm::Shared, QStringLiteral("UpdateDietItems")}, [&] {
        refreshItems();
        showTrophicLevel();
        m_w.SetDataSource(s.gScenario->Diet_DataSource, 2);
    });
}

void BuilderDietPage::setHead(const DietHeadText &head)
{
    ControlValue::setText(m_txtDietSeason, head.season);
    ControlValue::setText(m_txtDietSex, head.sex);
    ControlValue::setText(m_txtDietHabitat, head.habitat);
    ControlValue::setText(m_txtDietTL, head.trophicLevel);
    ControlValue::setText(m_w.notes(9), head.collectionNotes);
}

void BuilderDietPage::clear()
{
    Session &s = m_w.session();
    for (QWidget *box : {m_txtDietHabitat, m_txtDietSeason, m_txtDietSex})
        ControlValue::clear(box);
    ControlValue::clear(arrayItem<QWidget>(&m_w, QStringLiteral("LbLDataSource"), 2));
    s.gDB->Execute(QStringLiteral("DELETE * From tblWildlifeDietItems WHERE tblWildlifeDietItems.ScenarioID = %1").arg(s.gScenario->SID));
}

void BuilderDietPage::showRecordNotes(bool on)
{
    arrayItem<QWidget>(&m_w, QStringLiteral("cmdMoreInfo"), 2)->setVisible(on);
    m_w.notes(9)->setVisible(on);
    m_w.findChild<QLabel *>(QStringLiteral("lblDietNotes"))->setVisible(on);
}

void BuilderDietPage::selectFromDatabase()
{
    Session &s = m_w.session();
    if (s.gScenario->Species_DataSource == 2) {
        s.msgBox(QStringLiteral("Diet is not available for Hypothetical Species...!!!"), QString(), MsgIcon::Warning);
        return;
    }
    showRecordNotes(true);
    PrS_LoadSelectDietScreen();
    refreshItems();
}

void BuilderDietPage::PrS_LoadSelectDietScreen()
{
    Session &s = m_w.session();
    guarded(s, {ErrForm::Shared, QStringLiteral("PrS_LoadSelectDietScreen")}, [&] {
        if (s.gScenario->Species_DataSource == 2) {
            s.msgBox(QStringLiteral("Diets not available for Hypothetical Species...!!!"), QString(), MsgIcon::Warning);
            return;
        }
        s.setHourglass(true);
        if (s.gScenario->SpeciesID == 0) {
            s.msgBox(QStringLiteral("Species not selected/saved. Cannot Proceed...!!!"), QString(), MsgIcon::Warning);
            return;
        }
        RecordRequest request;
        request.recordId = 0;
        request.mode = QStringLiteral("Read");
        m_w.openWindow(QStringLiteral("frmSelect_Diet"), request, false);
        s.resetCursor();
    });
}

void BuilderDietPage::enterHypothetical()
{
    Session &s = m_w.session();
    clsScenario &sc = *s.gScenario;
    sc.DietID = 0;
    sc.Diet_DataSource = 2;
    const MsgAnswer wet = s.msgBox(QStringLiteral("Is this diet wet weight basis?  "), QString(), MsgIcon::Question, MsgButtons::YesNo);
    sc.DietType = wet == MsgAnswer::Yes ? 1 : 0;
    showRecordNotes(false);
    // The answer does not matter: a hypothetical diet starts either way.
    ReplaceWildlifeDietItems(s);
    for (QWidget *box : {m_txtDietSex, m_txtDietHabitat, m_txtDietSeason})
        ControlValue::clear(box);
    m_w.SetDataSource(2, m_w.currentPage());
    ControlValue::clear(m_txtDietTL);
    for (QWidget *box : {m_txtDietSex, m_txtDietHabitat, m_txtDietSeason})
        ControlValue::setLocked(box, false);
    m_txtDietSeason->setFocus();
}

void BuilderDietPage::editItem(bool current)
{
    Session &s = m_w.session();
    guarded(s, {ErrForm::Shared, QStringLiteral("cmdEdit_Click")}, [&] {
        if (!windowAvailable(s, kDietItemWindow))
            return;
        RecordRequest request;
        request.table = QStringLiteral("tblWildlifeDietItems");
        request.entry = QStringLiteral("ZOB");
        if (current) {
            Recordset *rs = m_dcDietItems->recordset();
            if (!rs || rs->EOF_() || rs->BOF()) {
                s.msgBox(QStringLiteral("No record to edit."), QString(), MsgIcon::Warning);
                return;
            }
            s.gDietItem->Mode = QStringLiteral("Edit");
            request.recordId = m_dcDietItems->current().field(QStringLiteral("DietItemID")).toInt();
            request.keyField = QStringLiteral("DietItemID");
        } else {
            s.gDietItem->Mode = QStringLiteral("New");
            request.recordId = s.gScenario->DietID;
        }
        m_w.openWindow(kDietItemWindow, request, false);
    });
}

void BuilderDietPage::deleteItem()
{
    Session &s = m_w.session();
    if (m_dcDietItems->currentRow() < 0)
        return;
    guarded(s, {ErrForm::Qualified, QStringLiteral("frmZOB.ssGrdDietItems_KeyDown")}, [&] {
        if (s.msgBox(QStringLiteral("Are you sure you want to delete this record ?"), QString(), MsgIcon::Question,
                     MsgButtons::YesNo, 2) != MsgAnswer::Yes)
            return;
        const qint32 id = m_dcDietItems->current().field(QStringLiteral("DietItemID")).toInt();
        s.gDB->Execute(QStringLiteral("Delete * from tblWildlifeDietItems where DietItemID = %1 AND ScenarioID= %2")
                           .arg(id).arg(s.gScenario->SID));
        m_dcDietItems->Refresh();
        m_dcDietItems->MoveFirst();
        showTrophicLevel();
    });
}

void BuilderDietPage::columnHelp(int logicalColumn)
{
    int shown = 0;
    while (m_grid->shownColumn(shown) != logicalColumn && shown < m_dcDietItems->columnCount())
        ++shown;
    const int topic = columnTopic(shown);
    if (topic == 0 || !m_w.session().help)
        return;
    // The grid carries the column's topic only while it is shown.
    m_w.setHelpContext(m_grid, topic);
    m_w.session().help->showTopic(topic);
    m_w.setHelpContext(m_grid, 0);
}

void BuilderDietPage::sumProportions()
{
    Session &s = m_w.session();
    auto *chooser = windowAvailable(s, kBasisWindow) ? m_w.host().link<BasisChooser>(kBasisWindow) : nullptr;
    if (!chooser)
        return;
    chooser->setPurpose(1, m_chkIsWet);
    m_w.host().show(kBasisWindow, true);
    // Cancel leaves the check box as it was, and the sums run on that basis.
    if (ControlValue::value(m_chkIsWet).toInt() == 1) {
        SumProportions(s, true);
        ControlValue::setValue(m_chkIsWet, 0);
    } else {
        SumProportions(s, false);
    }
    refreshItems();
}
