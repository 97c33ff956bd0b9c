// SPDX-License-Identifier: MIT
#include "frmSelect_Diet.h"

#include "Calculations.h"
#include "ControlEvents.h"
#include "ControlValue.h"
#include "DataControl.h"
#include "DialogSupport.h"
#include "Diagnostics.h"
#include "Diet.h"
#include "DietItemColumns.h"
#include "FormBuilder.h"
#include "QtWindowHost.h"
#include "Recordset.h"
#include "Session.h"
#include "Utilities.h"
#include "VbFormat.h"
#include "WindowLinks.h"
#include "ZobToolbar.h"
#include "clsScenario.h"

#include <QAction>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTabWidget>

namespace {
const WindowRegistration<frmSelect_Diet> reg(QStringLiteral("frmSelect_Diet"));

//! A look-up list of the dialog: its statement, the column shown and the combos it feeds.
struct LookupList {
    const char *sql;
    const char *shown;
    const char *bound;
};
const LookupList kLookups[] = {
    {"Select * From tblDataSource Order by Description", "Description", "DataSourceID"},
    {"Select * From tblDietType", "Description", "DietTypeID"},
    {"Select * From tblDataType", "Description", "DataTypeID"},
    {"Select * From tblStateProvince Order by Description", "Description", "StateProvinceID"},
    {"Select * From tblMonth", "Description", "MonthID"},
    {"Select * From tblLifestage", "Description", "LifeStageID"},
    {"Select * From tblGender", "Description", "GenderID"},
    {"Select * From tblHabitatType", "Description", "HabitatTypeID"},
    {"Select * From tblMeasureTerm Order by Term", "Term", "MeasureTermID"},
    {"Select * From tblMaterialAnalyzed", "Description", "MaterialAnalyzedID"},
};
}  // namespace

frmSelect_Diet::frmSelect_Diet(Session &session, QtWindowHost &host)
    : RequestWindow(session, host, QStringLiteral("frmSelect_Diet"))
{
    setCaption(QStringLiteral("Select Diet"));
    HelpContextID = 1005;
    FormBuilder b(this);
    buildToolbar(b, {ToolButton::separator(),
                     {"New", "Add New record", "New", [this] { newDiet(); }},
                     ToolButton::separator(),
                     {"Save", "Save the diet shown", "Save", [this] { m_dcDiet->UpdateRecord(); }},
                     ToolButton::separator(),
                     {"Select", "Copy the diet shown into the scenario", "Select", [this] { select(); }},
                     ToolButton::separator(),
                     {"Close", "Close the window", "Close", [this] { unloadMe(); }},
                     ToolButton::separator(),
                     {"Help", "Help", "Help", [this] { showHelp(); }}},
                 QStringLiteral("frmSelect_Diet.TB_MDI_ButtonClick"));
    m_dcDiet = b.dataControl(QStringLiteral("dcDiet"));
    m_dcDietItem = b.hiddenData(QStringLiteral("dcDietItem"));
    m_tabs = b.tabs(QStringLiteral("SSTab1"));
    FormBuilder diet = b.page(m_tabs, QStringLiteral("Diet "));
    buildDiet(diet);
    FormBuilder items = b.page(m_tabs, QStringLiteral("Diet Items"));
    buildItems(items);
    connect(m_dcDiet, &DataControl::Reposition, this,
            [this] { guarded(this->session(), {ErrForm::Shared, QStringLiteral("dcDiet_Reposition")}, [this] { reloadItems(); }); });
    resize(900, 620);
}

void frmSelect_Diet::buildDiet(FormBuilder &page)
{
    FormBuilder info = page.frame(QStringLiteral("fraDiet"), QStringLiteral("Diet Information")).fields(2);
    QComboBox *dataSource = info.combo(QStringLiteral("cboDataSource"), QStringLiteral("Data Source:"));
    QComboBox *dataType = info.combo(QStringLiteral("cboDataType"), QStringLiteral("Data Type:"));
    QComboBox *dietType = info.combo(QStringLiteral("cboDietType"), QStringLiteral("Diet Type:"));
    QComboBox *measure = info.combo(QStringLiteral("sscboMeasureTerm"), QStringLiteral("Measure:"));
    QComboBox *material = info.combo(QStringLiteral("sscboMaterialAnalyzed"), QStringLiteral("Material Analyzed:"));
    m_txtTL = info.textBox(QStringLiteral("txtTL"), QStringLiteral("Average Trophic Level:"));
    QLineEdit *analysis = info.textBox(QStringLiteral("txtAnalysisNotes"), QStringLiteral("Analysis Notes:"));
    info.nextRow();

    FormBuilder collection = page.frame(QStringLiteral("fraCollection"), QStringLiteral("Collection Information")).fields(2);
    m_cboFrom = collection.combo(QStringLiteral("cboFrom"), 0, QStringLiteral("From:"));
    m_cboTo = collection.combo(QStringLiteral("cboTo"), 0, QStringLiteral("To:"));
    m_cboCollection[0] = collection.combo(QStringLiteral("cboCollection"), 0, QStringLiteral("Life Stage:"));
    m_cboCollection[1] = collection.combo(QStringLiteral("cboCollection"), 1, QStringLiteral("Gender:"));
    m_cboCollection[2] = collection.combo(QStringLiteral("cboCollection"), 2, QStringLiteral("Habitat:"));
    QComboBox *state = collection.combo(QStringLiteral("cboStateProvince"), QStringLiteral("State/Province:"));
    QLineEdit *latitude = collection.textBox(QStringLiteral("txtFields"), 0, QStringLiteral("Latitude:"));
    QLineEdit *longitude = collection.textBox(QStringLiteral("txtFields"), 1, QStringLiteral("Longitude:"));
    QLineEdit *location = collection.textBox(QStringLiteral("txtLocation"), QStringLiteral("Location:"));
    m_txtRegion[0] = collection.textBox(QStringLiteral("txtRegion"), 0, QStringLiteral("Region:"));
    m_txtRegion[1] = collection.textBox(QStringLiteral("txtRegion"), 1, QStringLiteral("Collection Notes:"));
    collection.nextRow();

    FormBuilder reference = page.frame(QStringLiteral("fraReference"), QStringLiteral("Reference"));
    QWidget *txtReference = reference.memo(QStringLiteral("txtReference"), QString(), 3);
    page.stretch();

    const QList<QPair<QWidget *, const char *>> bound = {
        {dataSource, "DataSourceID"}, {dataType, "DataTypeID"}, {dietType, "DietTypeID"}, {measure, "MeasureTermID"},
        {material, "MaterialAnalyzedID"}, {analysis, "AnalysisNotes"}, {m_cboFrom, "BegMonthID"}, {m_cboTo, "EndMonthID"},
        {m_cboCollection[0], "LifestageID"}, {m_cboCollection[1], "GenderID"}, {m_cboCollection[2], "HabitatTypeID"},
        {state, "StateProvinceID"}, {latitude, "Latitude"}, {longitude, "Longitude"}, {location, "Location"},
        {m_txtRegion[0], "Region"}, {m_txtRegion[1], "CollectionNotes"}, {txtReference, "Reference"}};
    for (const auto &[control, field] : bound)
        m_dcDiet->bind(control, QString::fromLatin1(field));
    for (QLineEdit *region : m_txtRegion)
        connect(ControlEvents::of(region), &ControlEvents::DblClick, this, [this, region] {
            runCommand(QStringLiteral("txtRegion_DblClick"), [this, region] {
                if (auto *zoom = host().link<TextZoom>(QStringLiteral("frmZoom")))
                    zoom->ZoomText(region, QStringLiteral("View Text"), true);
            });
        });
}

void frmSelect_Diet::buildItems(FormBuilder &page)
{
    FormBuilder frame = page.frame(QStringLiteral("fraDietItems"), QStringLiteral("Diet Item Information"));
    m_grid = frame.grid(QStringLiteral("ssGrdDietItems"), m_dcDietItem, dietItemColumns(), true);
    m_grid->setToolTip(QStringLiteral("Double-click a cell to read its whole text; click a column head for its help."));
    m_zoomCell = page.textBox(QStringLiteral("txtCellText"));
    m_zoomCell->setVisible(false);
    connect(m_grid, &DataGrid::DblClick, this, [this] { runCommand(QStringLiteral("ssGrdDietItems_DblClick"), [this] { zoomCell(); }); });
    connect(m_grid, &DataGrid::HeadClick, this, [this](int logical) {
        runCommand(QStringLiteral("ssGrdDietItems_HeadClick"), [this, logical] { columnHelp(logical); });
    });
}

void frmSelect_Diet::Form_Load()
{
    const QList<QList<QComboBox *>> targets = {
        {control<QComboBox>(QStringLiteral("cboDataSource"))}, {control<QComboBox>(QStringLiteral("cboDietType"))},
        {control<QComboBox>(QStringLiteral("cboDataType"))},   {control<QComboBox>(QStringLiteral("cboStateProvince"))},
        {m_cboFrom, m_cboTo},                                  {m_cboCollection[0]},
        {m_cboCollection[1]},                                  {m_cboCollection[2]},
        {control<QComboBox>(QStringLiteral("sscboMeasureTerm"))}, {control<QComboBox>(QStringLiteral("sscboMaterialAnalyzed"))}};
    guarded(session(), {ErrForm::Shared, QStringLiteral("frmSelect_Diet.Form_Load")}, [&] {
        for (int i = 0; i < targets.size(); ++i)
            for (QComboBox *combo : targets[i])
                fillCombo(combo, *session().gDB, QString::fromLatin1(kLookups[i].sql), QString::fromLatin1(kLookups[i].shown),
                          QString::fromLatin1(kLookups[i].bound));
    });
}

QString frmSelect_Diet::dietStatement(qint32 id, qint32 speciesId)
{
    QString sql = QStringLiteral(
        "SELECT tblDiet.*, tblMeasureTerm.Description AS Term, tblMaterialAnalyzed.Means, tblMaterialAnalyzed.Description "
        "AS Analyzed, qryReference.Reference FROM qryReference RIGHT JOIN ((tblDiet LEFT JOIN tblMaterialAnalyzed ON "
        "tblDiet.MaterialAnalyzedID = tblMaterialAnalyzed.MaterialAnalyzedID) LEFT JOIN tblMeasureTerm ON "
        "tblDiet.MeasureTermID = tblMeasureTerm.MeasureTermID) ON qryReference.ReferenceID = tblDiet.ReferenceID");
    if (id >= 1)
        return sql + QStringLiteral(" WHERE tblDiet.DietID = %1").arg(id);
    if (speciesId != 0)
        sql += QStringLiteral(" WHERE tblDiet.SpeciesID = %1").arg(speciesId);
    return sql;
}

void frmSelect_Diet::serveRequest()
{
    guarded(session(), {ErrForm::Shared, QStringLiteral("frmSelect_Diet.Filter")}, [this] {
        const RecordRequest &r = recordRequest();
        const bool list = r.recordId < 1;
        const bool reading = r.mode == QLatin1String("Read");
        showToolButton(*toolbar(), QStringLiteral("New"), !reading);
        showToolButton(*toolbar(), QStringLiteral("Save"), !reading);
        session().gSQL = dietStatement(r.recordId, session().gScenario->SpeciesID);
        m_dcDiet->setDatabase(session().gDB);
        m_dcDiet->setRecordSource(session().gSQL);
        m_dcDiet->Refresh();
        if (list && m_dcDiet->rowCount() > 0) {
            m_dcDiet->MoveLast();
            m_dcDiet->MoveFirst();
        }
        showToolButton(*toolbar(), QStringLiteral("Select"), list);
        m_dcDiet->setVisible(list);
        SetControlInfo(session(), this, QStringLiteral("lock"), true);
        // The look-up boxes of the material and the measure are not caught by the prefixes.
        ControlValue::setLocked(control<QWidget>(QStringLiteral("sscboMeasureTerm")), true);
        ControlValue::setLocked(control<QWidget>(QStringLiteral("sscboMaterialAnalyzed")), true);
        reloadItems();
    });
}

void frmSelect_Diet::reloadItems()
{
    const int row = m_dcDiet->currentRow();
    const qint32 dietId = row < 0 ? 0 : m_dcDiet->value(row, QStringLiteral("DietID")).toInt();
    m_dcDietItem->setDatabase(session().gDB);
    m_dcDietItem->setRecordSource(GetDietItemsSQL(session(), QStringLiteral("Perm"), dietId));
    m_dcDietItem->Refresh();
    m_grid->fitColumns(30);
    ControlValue::setText(m_txtTL, GetAvgTrophicLevel(session(), dietId, QStringLiteral("tblDietItem")));
}

void frmSelect_Diet::select()
{
    Session &s = session();
    if (!ReplaceWildlifeDietItems(s))
        return;
    Recordset &row = m_dcDiet->current();
    const qint32 dietId = vb::CLng(row.field(QStringLiteral("DietID")));
    AddWildlifeDiet(s, dietId);
    AddWildlifeDietItems(s, dietId);
    clsScenario &scenario = *s.gScenario;
    scenario.DietID = dietId;
    const QVariant term = s.Lookup(QStringLiteral("tblDiet"), QStringLiteral("MeasureTermID"), QStringLiteral("DietID = %1").arg(dietId));
    const QVariant wet = s.Lookup(QStringLiteral("tblMeasureTerm"), QStringLiteral("WeightIsWet"),
                                  QStringLiteral("MeasureTermID = %1").arg(vb::CStr(term)));
    // The yes/no column reads as a boolean; the scenario keeps its wet flag as 1 or 0.
    scenario.DietType = vb::CInt(wet) != 0 ? 1 : 0;
    scenario.Diet_DataSource = row.field(QStringLiteral("DataSourceID")).toInt();
    DietHeadText head;
    head.season = ControlValue::text(m_cboFrom) + QStringLiteral(" - ") + ControlValue::text(m_cboTo);
    head.sex = ControlValue::text(m_cboCollection[1]);
    head.habitat = ControlValue::text(m_cboCollection[2]);
    head.trophicLevel = ControlValue::text(m_txtTL);
    head.collectionNotes = ControlValue::text(m_txtRegion[1]);
    BuilderView *builder = host().loadedLink<BuilderView>(QStringLiteral("frmZOB"));
    if (builder)
        builder->setDietHead(head);
    unloadMe();
    if (builder)
        builder->UpdateDietItems();
}

void frmSelect_Diet::zoomCell()
{
    const int row = m_grid->currentRowIndex();
    const int logical = m_grid->currentIndex().column();
    if (row < 0 || logical < 0)
        return;
    const QString field = m_dcDietItem->fields().value(logical);
    QString caption = QStringLiteral("Enter/Modify Data");
    if (field.compare(QLatin1String("Comments"), Qt::CaseInsensitive) == 0)
        caption = QStringLiteral("Enter/Modify Diet Item Notes");
    else if (field.compare(QLatin1String("AEReference"), Qt::CaseInsensitive) == 0)
        caption = QStringLiteral("AE Reference");
    else if (field.compare(QLatin1String("GEReference"), Qt::CaseInsensitive) == 0)
        caption = QStringLiteral("GE Reference");
    ControlValue::setText(m_zoomCell, m_grid->recordsetModel()->text(row, logical));
    if (auto *zoom = host().link<TextZoom>(QStringLiteral("frmZoom")))
        zoom->ZoomText(m_zoomCell, caption, true);
}

void frmSelect_Diet::columnHelp(int logical)
{
    int shown = -1;
    for (int n = 0; n < m_grid->columnCaptions().size(); ++n)
        if (m_grid->shownColumn(n) == logical)
            shown = n;
    const int topic = dietDialogColumnHelp(shown);
    if (topic > 0 && session().help)
        session().help->showTopic(topic);
}

void frmSelect_Diet::newDiet()
{
    // A new diet is made in the species' data-entry window, on the scenario's species.
    openForRecord(*this, QStringLiteral("frmDE_Species"),
                  recordOf(QStringLiteral("tblSpecies"), QStringLiteral("SpeciesID"), session().gScenario->SpeciesID,
                           QStringLiteral("Write")),
                  false, false);
}
