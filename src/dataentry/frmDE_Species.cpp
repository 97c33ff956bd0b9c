// SPDX-License-Identifier: MIT
#include "frmDE_Species.h"

#include "ControlEvents.h"
#include "ControlValue.h"
#include "DataControl.h"
#include "Diagnostics.h"
#include "Diet.h"
#include "FormBuilder.h"
#include "Functions.h"
#include "QtWindowHost.h"
#include "RecordBinding.h"
#include "Recordset.h"
#include "Session.h"
#include "Utilities.h"
#include "VbFormat.h"
#include "WindowLinks.h"
#include "WorkbookPages.h"
#include "ZobToolbar.h"
#include "clsScenario.h"
#include "frmDE_IntakeMeasured.h"

#include <QAction>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>

namespace {
const WindowRegistration<frmDE_Species> reg(QStringLiteral("frmDE_Species"));

//! The tables, keys and position texts of the record pages.
const char *const kTables[] = {"tblSpecies", "tblWeight", "tblDiet"};
const char *const kKeys[] = {"SpeciesID", "WeightID", "DietID"};
const char *const kPositions[] = {"Species: %1 of %2", "Weight: %1 of %2", "Species Diet: %1 of %2"};
}  // namespace

frmDE_Species::frmDE_Species(Session &session, QtWindowHost &host) : RequestWindow(session, host, QStringLiteral("frmDE_Species"))
{
    setCaption(QStringLiteral("Wildlife Data Entry"));
    HelpContextID = 2575;
    FormBuilder b(this);
    buildToolbar(b, {ToolButton::separator(),
                     {"New", "Add a record on this page", "New", [this] { newRecord(); }},
                     ToolButton::separator(),
                     {"Save", "Save the species", "Save", [this] { SaveSpecies(); }},
                     ToolButton::separator(),
                     {"Select", "Use this species in the scenario", "Select", [this] { select(); }},
                     ToolButton::separator(),
                     {"Close", "Close", "Close", [this] { unloadMe(); }},
                     {"Help", "Help", "Help", [this] { showHelp(); }}},
                 QStringLiteral(" frmDE_Species.TB_MDI_ButtonClick"));
    m_lblHeader = b.frame(QStringLiteral("fraMain"), QStringLiteral("Currently Viewing Data for the following Species"))
                      .label(QStringLiteral("lblHeader"), QString());
    m_pages = new WorkbookPages(session, b, this);
    connectCommands();
    resize(900, 720);
}

void frmDE_Species::connectCommands()
{
    for (int page = 0; page < 3; ++page) {
        RecordBinding *r = m_pages->records[page];
        connect(r->dataControl(), &DataControl::Reposition, this, [this, page, r] {
            runCommand(QStringLiteral("dc_Reposition"), [=, this] {
                r->showRow();
                DataControl *dc = r->dataControl();
                dc->setCaption(QString::fromLatin1(kPositions[page]).arg(dc->currentRow() + 1).arg(dc->rowCount()));
                if (page == 2)
                    LoadDietItems();
                SetPageLock(page);
            });
        });
        connect(r->dataControl(), &DataControl::leavingRow, this, [this, r] { runCommand(QStringLiteral("dc_Validate"), [r] { r->writeRow(); }); });
    }
    // Leaving a page writes what was typed on it, as leaving its row does.
    connect(m_pages->tabs, &QTabWidget::currentChanged, this, [this](int page) {
        writeRecords();
        runCommand(QStringLiteral("ssTabSB_Click"), [=, this] { SetPageLock(page); });
    });
    connect(m_pages->dietTabs, &QTabWidget::currentChanged, this, [this] {
        writeRecords();
        runCommand(QStringLiteral("ssTabDiet_Click"), [this] { SetPageLock(2); });
    });
    for (int i = 0; i < m_pages->cmdRef.size(); ++i)
        connect(m_pages->cmdRef[i], &QPushButton::clicked, this, [this, i] { runCommand(QStringLiteral("cmdRef_Click"), [=, this] { referenceCommand(i); }); });
    for (int i = 0; i < 3; ++i)
        connect(m_pages->cmdEdit[i], &QPushButton::clicked, this, [this, i] { runCommand(QStringLiteral("cmdEdit_Click"), [=, this] { editCommand(i); }); });
    connect(m_pages->cmdAdd, &QPushButton::clicked, this, [this] {
        runCommand(QStringLiteral("cmdAdd_Click"), [this] {
            RecordRequest r;
            r.recordId = speciesId();
            r.table = QStringLiteral("tblSpecies");
            r.keyField = QStringLiteral("SpeciesID");
            if (ZobWindow *w = this->host().form(QStringLiteral("frmReferenceSpecies"))) {
                w->setRecord(r);
                this->host().show(QStringLiteral("frmReferenceSpecies"), true);
            }
            LoadReference(4);
        });
    });
    connect(m_pages->ssGrdDietItems, &DataGrid::DblClick, this, [this] {
        runCommand(QStringLiteral("ssGrdDietItems_DblClick"), [this] {
            // The items of a vetted diet are not opened from the grid.
            const QString ds = m_pages->diet->currentValue(QStringLiteral("DataSourceID")).toString();
            if (ds == QLatin1String("4") || ds == QLatin1String("7"))
                return;
            editCommand(2);
        });
    });
    connect(ControlEvents::of(m_pages->ssGrdDietItems), &ControlEvents::KeyDown, this, [this](int &code, int) {
        if (code == 46)
            runCommand(QStringLiteral("ssGrdDietItems_KeyDown"), [this] { deleteDietItem(); });
    });
    // A double click on a text shows it large; on a locked page for reading only.
    for (QWidget *memo : std::as_const(m_pages->memos))
        connect(ControlEvents::of(memo), &ControlEvents::DblClick, this, [this, memo] {
            runCommand(QStringLiteral("txtRef_DblClick"), [this, memo] {
                if (auto *zoom = host().link<TextZoom>(QStringLiteral("frmZoom")))
                    zoom->ZoomText(memo, QStringLiteral("Text Editor"), ControlValue::locked(memo));
            });
        });
    connect(m_pages->ssGridMeasurement, &DataGrid::DblClick, this, [this] { runCommand(QStringLiteral("cmdEdit_Click"), [this] { editCommand(0); }); });
}

void frmDE_Species::Form_Load()
{
    for (RecordBinding *r : std::as_const(m_pages->records)) {
        r->dataControl()->setDatabase(session().gDB);
        r->fillLookups();
    }
    for (DataControl *dc : {m_pages->dcReference, m_pages->dcDietItem, m_pages->dcMeasured})
        dc->setDatabase(session().gDB);
}

void frmDE_Species::Form_Unload(bool &cancel)
{
    Q_UNUSED(cancel);
    writeRecords();
    for (RecordBinding *r : std::as_const(m_pages->records))
        disconnect(r->dataControl(), nullptr, this, nullptr);
}

void frmDE_Species::writeRecords()
{
    for (RecordBinding *r : std::as_const(m_pages->records))
        runCommand(QStringLiteral("dc_Validate"), [r] { r->writeRow(); });
}

bool frmDE_Species::editable(const QVariant &dataSource)
{
    const QString ds = dataSource.isNull() ? QString() : dataSource.toString();
    return ds == QLatin1String("2") || ds == QLatin1String("6");
}

void frmDE_Species::serveRequest()
{
    guarded(session(), {ErrForm::Shared, QStringLiteral("frmDE_Species.Form_Load")}, [&] {
        DataControl *dc = m_pages->species->dataControl();
        dc->setRecordSource(QStringLiteral("Select * from tblSpecies Where SpeciesID = %1").arg(speciesId()));
        dc->Refresh();
        LoadReference(4);
        ControlValue::setText(m_lblHeader, speciesHeaderText(session(), speciesId()));
        loadMeasured();
        loadWeights();
        LoadDiet();
        m_pages->tabs->setCurrentIndex(0);
        SetPageLock(0);
    });
}

void frmDE_Species::LoadReference(int filter)
{
    DataControl *dc = m_pages->dcReference;
    dc->setRecordSource(WorkbookPages::referenceStatement(speciesId(), filter));
    dc->Refresh();
    m_pages->grdReferences->fitColumns(120);
}

void frmDE_Species::loadWeights()
{
    DataControl *dc = m_pages->weight->dataControl();
    dc->setRecordSource(QStringLiteral("SELECT tblWeight.*, [qryReference].[Reference] FROM qryReference RIGHT JOIN tblWeight ON "
                                       "[qryReference].[ReferenceID]= [tblWeight].[ReferenceID] WHERE tblWeight.SpeciesID = %1")
                            .arg(speciesId()));
    dc->Refresh();
}

void frmDE_Species::LoadDiet()
{
    DataControl *dc = m_pages->diet->dataControl();
    dc->setRecordSource(QStringLiteral("SELECT tblDiet.*, qryReference.Reference FROM qryReference RIGHT JOIN tblDiet ON "
                                       "qryReference.ReferenceID = tblDiet.ReferenceID WHERE tblDiet.SpeciesID = %1")
                            .arg(speciesId()));
    dc->Refresh();   // its arrival at the first diet loads that diet's items
}

void frmDE_Species::LoadDietItems()
{
    DataControl *dc = m_pages->dcDietItem;
    dc->setRecordSource(GetDietItemsSQL(session(), QStringLiteral("Perm"), m_pages->diet->currentId()));
    dc->Refresh();
    m_pages->ssGrdDietItems->fitColumns(30);
}

void frmDE_Species::loadMeasured()
{
    DataControl *dc = m_pages->dcMeasured;
    dc->setRecordSource(WorkbookPages::measuredStatement(speciesId()));
    dc->Refresh();
    m_pages->ssGridMeasurement->fitColumns(30);
}

void frmDE_Species::SetPageLock(int page)
{
    if (page != m_pages->tabs->currentIndex())
        return;
    ZobToolbar *tb = toolbar();
    if (page == 3) {
        tb->button(QStringLiteral("New"))->setVisible(true);
        tb->button(QStringLiteral("Save"))->setVisible(false);
        return;
    }
    RecordBinding *r = m_pages->records[page];
    const bool open = editable(r->currentValue(QStringLiteral("DataSourceID")));
    r->setLocked(!open);
    // Nobody vets or unvets a record here.
    ControlValue::setLocked(m_pages->dataSource(page), true);
    // A species open for editing may be given another weight or diet whatever the one shown is.
    const bool speciesOpen = editable(m_pages->species->currentValue(QStringLiteral("DataSourceID")));
    bool newShown = open;
    if (page == 1) {
        const bool none = r->dataControl()->rowCount() == 0;
        for (QWidget *frame : std::as_const(m_pages->weightFrames))
            frame->setVisible(!none);
        m_pages->lblNoWeights->setVisible(none);
        newShown = speciesOpen;
    }
    if (page == 2) {
        const bool items = m_pages->dietTabs->currentIndex() > 0;
        m_pages->cmdEdit[1]->setEnabled(open);
        m_pages->cmdEdit[2]->setEnabled(open);
        newShown = items ? open : speciesOpen;
    }
    tb->button(QStringLiteral("New"))->setVisible(newShown);
    tb->button(QStringLiteral("Save"))->setVisible(open);
    tb->button(QStringLiteral("Select"))->setVisible(recordRequest().mode != QLatin1String("Write"));
}

void frmDE_Species::addRow(int page)
{
    const QString table = QString::fromLatin1(kTables[page]), key = QString::fromLatin1(kKeys[page]);
    const qint32 id = session().GetNewRecordID(table, key, QStringLiteral("SpeciesID"), speciesId(), 0);
    if (page == 1)
        loadWeights();
    else
        LoadDiet();
    m_pages->records[page]->moveToId(id);
    SetPageLock(page);
}

void frmDE_Species::newRecord()
{
    const int page = m_pages->tabs->currentIndex();
    if (page == 1) {
        addRow(1);
    } else if (page == 2) {
        if (m_pages->dietTabs->currentIndex() > 0)
            editCommand(1);
        else
            addRow(2);
    } else if (page == 3) {
        auto *w = host().form<frmDE_IntakeMeasured>(QStringLiteral("frmDE_IntakeMeasured"));
        if (!w)
            return;
        w->AddRecord(speciesId());
        host().show(QStringLiteral("frmDE_IntakeMeasured"), true);
        loadMeasured();
    }
}

void frmDE_Species::SaveSpecies()
{
    const RoutineInfo info{ErrForm::Shared, QStringLiteral("frmDE_Species.SaveSpecies"), QStringLiteral("frmDE_Species.SaveSpecies")};
    guarded(session(), info, [&] {
        for (RecordBinding *r : std::as_const(m_pages->records))
            r->writeRow();
        ControlValue::setText(m_lblHeader, speciesHeaderText(session(), speciesId()));
        traceSuccess(session(), info);
    });
}

void frmDE_Species::select()
{
    writeRecords();
    clsScenario &scenario = *session().gScenario;
    const qint32 id = speciesId();
    scenario.SpeciesHasChanged = id != 0 && scenario.SpeciesID != 0 && scenario.SpeciesID != id;
    scenario.SpeciesID = id;
    const QVariant ds = m_pages->species->currentValue(QStringLiteral("DataSourceID"));
    scenario.Species_DataSource = ds.isNull() ? 0 : vb::CLng(ds);
    if (auto *builder = host().loadedLink<BuilderView>(QStringLiteral("frmZOB")))
        builder->PrS_LoadSpeciesControls();
    unloadMe();
}

void frmDE_Species::editCommand(int index)
{
    Session &s = session();
    auto openItem = [&](const RecordRequest &r) {
        if (ZobWindow *w = host().form(QStringLiteral("frmDE_DietItem"))) {
            w->setRecord(r);
            host().show(QStringLiteral("frmDE_DietItem"), true);
        }
        LoadDietItems();
    };
    RecordRequest r;
    r.table = QStringLiteral("tblDietItem");
    r.entry = QStringLiteral("Data Entry");
    if (index == 0) {
        if (m_pages->dcMeasured->rowCount() == 0) {
            s.msgBox(QStringLiteral("No record to edit."), QString(), MsgIcon::Information);
            return;
        }
        r.table = QStringLiteral("tblIntakeMeasured");
        r.keyField = QStringLiteral("IntakeMeasuredID");
        r.recordId = vb::CLng(m_pages->dcMeasured->current().field(QStringLiteral("IntakeMeasuredID")));
        r.mode = QStringLiteral("Read");
        r.entry.clear();
        if (ZobWindow *w = host().form(QStringLiteral("frmDE_IntakeMeasured"))) {
            w->setRecord(r);
            host().show(QStringLiteral("frmDE_IntakeMeasured"), true);
        }
        loadMeasured();
    } else if (index == 1) {
        const qint32 diet = m_pages->diet->currentId();
        if (diet <= 0) {
            s.msgBox(QStringLiteral("No diet record found."), QStringLiteral("System Developer Message"), MsgIcon::Information);
            return;
        }
        r.recordId = diet;  // no key field: a new item of this diet
        openItem(r);
    } else {
        if (m_pages->dcDietItem->rowCount() == 0) {
            s.msgBox(QStringLiteral("No record to edit."), QString(), MsgIcon::Information);
            return;
        }
        r.recordId = vb::CLng(m_pages->dcDietItem->current().field(QStringLiteral("DietItemID")));
        r.keyField = QStringLiteral("DietItemID");
        openItem(r);
    }
}

void frmDE_Species::referenceCommand(int index)
{
    if (index <= 4) {
        LoadReference(index);
        return;
    }
    // The reference of the weight (5) or of the diet (6) shown.
    RecordBinding *r = m_pages->records[index == 5 ? 1 : 2];
    const qint32 id = r->currentId();
    if (id <= 0)
        return;
    r->writeRow();
    RecordRequest request;
    request.recordId = id;
    request.table = r->table();
    request.keyField = r->key();
    request.mode = QStringLiteral("Read");
    const QVariant ref = r->currentValue(QStringLiteral("ReferenceID"));
    request.selectedId = ref.isNull() ? 0 : vb::CLng(ref);
    if (ZobWindow *w = host().form(QStringLiteral("frmSelect_Reference"))) {
        w->setRecord(request);
        host().show(QStringLiteral("frmSelect_Reference"), true);
    }
    r->dataControl()->Refresh();
    r->moveToId(id);
}

void frmDE_Species::deleteDietItem()
{
    if (m_pages->dcDietItem->rowCount() == 0)
        return;
    if (session().msgBox(QStringLiteral("Are you sure you want to delete this record ?"), QString(), MsgIcon::Question,
                         MsgButtons::YesNo) != MsgAnswer::Yes)
        return;
    const qint32 id = vb::CLng(m_pages->dcDietItem->current().field(QStringLiteral("DietItemID")));
    auto rs = session().gDB->OpenRecordset(QStringLiteral("Select * from tblDietItem where DietItemID = %1").arg(id), RecordsetType::Dynaset);
    const QString ds = rs->EOF_() ? QString() : rs->field(QStringLiteral("DataSourceID")).toString();
    if (!rs->EOF_() && ds != QLatin1String("4") && ds != QLatin1String("7"))
        rs->Delete();
    rs->Close();
    LoadDietItems();
}
