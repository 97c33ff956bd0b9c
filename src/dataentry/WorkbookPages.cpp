// SPDX-License-Identifier: MIT
#include "WorkbookPages.h"

#include "DataControl.h"
#include "FormBuilder.h"
#include "RecordBinding.h"
#include "Session.h"
#include "Utilities.h"
#include "Wildlife.h"

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>

namespace {
// The lookups of the workbook: combo, column, statement, shown field, key of the list.
struct Lookup {
    const char *name, *caption, *column, *sql, *shown, *key;
};
const Lookup kStatus{"cboStatus", "Status:", "StatusID", "Select * From tblStatus Order By Description", "Description", "StatusID"};
const Lookup kVariance{"cboVarianceType", "Variance Type:", "VarianceTypeID", "SELECT * From tblVarianceType ORDER BY tblVarianceType.Description;",
                       "Description", "VarianceTypeID"};
const Lookup kFrom{"cboFrom", "From:", "BegMonthID", "Select * From tblMonth Order By Description", "Description", "MonthID"};
const Lookup kTo{"cboTo", "To:", "EndMonthID", "Select * From tblMonth Order By Description", "Description", "MonthID"};
const Lookup kHabitat{"cboCollection(0)", "Habitat:", "HabitatTypeID", "Select * From tblHabitatType Order By Type", "Type", "HabitatTypeID"};
const Lookup kGender{"cboCollection(1)", "Gender:", "GenderID", "Select * From tblGender Order By Description", "Description", "GenderID"};
const Lookup kLifestage{"cboCollection(2)", "Life Stage:", "LifestageID", "Select * From tblLifestage Order By Description", "Description", "LifeStageID"};

QComboBox *listField(FormBuilder &b, RecordBinding *r, const Lookup &l, const QString &suffix = {})
{
    QComboBox *c = b.combo(QString::fromLatin1(l.name) + suffix, QString::fromLatin1(l.caption));
    r->addField(c, QString::fromLatin1(l.column));
    r->lookup(c, QString::fromLatin1(l.sql), QString::fromLatin1(l.shown), QString::fromLatin1(l.key));
    return c;
}

template <typename W>
W *bound(RecordBinding *r, W *control, const char *column)
{
    r->addField(control, QString::fromLatin1(column));
    return control;
}
}  // namespace

WorkbookPages::WorkbookPages(Session &session, FormBuilder &b, QObject *parent) : QObject(parent), m_session(session)
{
    tabs = b.tabs(QStringLiteral("ssTabSB"));
    FormBuilder p0 = b.page(tabs, QStringLiteral("Species"));
    speciesPage(p0);
    FormBuilder p1 = b.page(tabs, QStringLiteral("Weight"));
    weightPage(p1);
    FormBuilder p2 = b.page(tabs, QStringLiteral("Diet"));
    dietPage(p2);
    FormBuilder p3 = b.page(tabs, QStringLiteral("Intake"));
    intakePage(p3);
    records = {species, weight, diet};
}

QWidget *WorkbookPages::dataSourceField(FormBuilder &b, RecordBinding *record, int page)
{
    QComboBox *c = b.combo(arrayName(QStringLiteral("cboDataSource"), page), QStringLiteral("Data Source:"));
    record->addField(c, QStringLiteral("DataSourceID"));
    record->lookup(c, QStringLiteral("Select * From tblDataSource Order by Description"), QStringLiteral("Description"), QStringLiteral("DataSourceID"));
    m_dataSource[page] = c;
    return c;
}

void WorkbookPages::speciesPage(FormBuilder &page)
{
    species = new RecordBinding(m_session, page.dataControl(QStringLiteral("dcSpecies")), QStringLiteral("tblSpecies"),
                                QStringLiteral("SpeciesID"), this);
    FormBuilder info = page.frame(QStringLiteral("fraSpecies"), QStringLiteral("Species Information")).fields(2);
    bound(species, info.textBox(QStringLiteral("txtCommon"), QStringLiteral("Common Name:")), "Common");
    bound(species, info.textBox(QStringLiteral("txtLatin"), QStringLiteral("Scientific Name:")), "Latin");
    QComboBox *taxon = bound(species, info.combo(QStringLiteral("cboTaxon"), QStringLiteral("Taxon:")), "TaxonID");
    species->lookup(taxon, QStringLiteral("Select * From tblTaxon Order By Description"), QStringLiteral("Description"), QStringLiteral("TaxonID"));
    dataSourceField(info, species, 0);
    FormBuilder cls = page.fieldRow(QStringLiteral("fraClassification"), QStringLiteral("Classification:"));
    QLineEdit *text = cls.textBox(QStringLiteral("txtClassification"));
    species->computed(text, [this](qint32 id) { return GetClassificationText(m_session, id, QStringLiteral("tblSpecies"), QStringLiteral("SpeciesID")); });
    species->addButton(cls.button(QStringLiteral("cmdClassification"), QStringLiteral("&Classification")));

    FormBuilder general = page.frame(QStringLiteral("fraGeneral"), QStringLiteral("General Characteristics ")).fields(1);
    const char *const columns[] = {"Distribution", "Habitat", "GenDiet", "Related"};
    const char *const captions[] = {"Distribution:", "Habitat:", "Diet:", "Related:"};
    for (int i = 0; i < 4; ++i) {
        FormBuilder row = general.fieldRow(arrayName(QStringLiteral("fraRef"), i), QString::fromLatin1(captions[i]));
        QPlainTextEdit *memo = bound(species, row.memo(QStringLiteral("txtRef"), i, QString(), 2), columns[i]);
        memos << memo;
        cmdRef << row.button(QStringLiteral("cmdRef"), i, QStringLiteral("References"));
    }
    FormBuilder refs = page.frame(QStringLiteral("fraReferences"), QStringLiteral("References"));
    dcReference = refs.hiddenData(QStringLiteral("dcReference"));
    grdReferences = refs.grid(QStringLiteral("grdReferences"), dcReference, {{"Reference"}}, true);
    FormBuilder buttons = refs.row();
    cmdAdd = buttons.button(QStringLiteral("cmdAdd"), QStringLiteral("Add References"));
    species->addButton(cmdAdd);
    cmdRef << buttons.button(QStringLiteral("cmdRef"), 4, QStringLiteral("All References"));
    buttons.stretch();
}

void WorkbookPages::weightPage(FormBuilder &page)
{
    weight = new RecordBinding(m_session, page.dataControl(QStringLiteral("dcWeight")), QStringLiteral("tblWeight"),
                               QStringLiteral("WeightID"), this);
    lblNoWeights = page.label(QStringLiteral("lblNoWeights"), QStringLiteral("No weights: Click the new [blank page] icon to add a weight."));
    FormBuilder m = page.frame(QStringLiteral("fraMeasurement"), QStringLiteral("Measurement")).fields(3);
    weightFrames << page.lastFrame();
    const char *const columns[] = {"Mean", "Min", "Max", "Sample", "VarValue"};
    const char *const captions[] = {"Mean (g):", "Minimum (g):", "Maximum (g):", "Sample Size:", "Variance:"};
    for (int i = 0; i < 5; ++i)
        bound(weight, m.textBox(QStringLiteral("txtFields"), i, QString::fromLatin1(captions[i])), columns[i]);
    listField(m, weight, kVariance);
    listField(m, weight, kStatus);
    dataSourceField(m, weight, 1);
    FormBuilder c = page.frame(QStringLiteral("fraCollection"), QStringLiteral("Collection Information")).fields(3);
    weightFrames << page.lastFrame();
    for (const Lookup *l : {&kFrom, &kTo, &kHabitat, &kGender, &kLifestage})
        listField(c, weight, *l);
    bound(weight, c.textBox(QStringLiteral("txtLocation"), QStringLiteral("Location:")), "Location");
    bound(weight, c.textBox(QStringLiteral("txtRegion"), QStringLiteral("Region:")), "Region");
    bound(weight, c.textBox(QStringLiteral("txtFields"), 5, QStringLiteral("Latitude:")), "Latitude");
    bound(weight, c.textBox(QStringLiteral("txtFields"), 6, QStringLiteral("Longitude:")), "Longitude");
    c.nextRow();
    memos << bound(weight, c.memo(QStringLiteral("txtNotes"), QStringLiteral("Notes:"), 2), "Notes");
    FormBuilder r = page.frame(QStringLiteral("fraReference"), QStringLiteral("Reference"), true);
    weightFrames << page.lastFrame();
    cmdRef << r.button(QStringLiteral("cmdRef"), 5, QStringLiteral("&Reference"));
    weight->addButton(cmdRef.last());
    weight->computed(r.memo(QStringLiteral("txtReference"), QString(), 2),
                     [this](qint32) { return weight->currentValue(QStringLiteral("Reference")).toString(); });
    page.stretch();
}

void WorkbookPages::dietPage(FormBuilder &page)
{
    dietTabs = page.tabs(QStringLiteral("ssTabDiet"));
    FormBuilder head = page.page(dietTabs, QStringLiteral("Diet"));
    diet = new RecordBinding(m_session, head.dataControl(QStringLiteral("dcDiet")), QStringLiteral("tblDiet"), QStringLiteral("DietID"), this);
    FormBuilder info = head.frame(QStringLiteral("fraDiet"), QStringLiteral("Diet Information")).fields(2);
    QComboBox *term = bound(diet, info.combo(QStringLiteral("sscboMeasureTerm"), QStringLiteral("Measure:")), "MeasureTermID");
    diet->lookup(term, QStringLiteral("Select * From tblMeasureTerm Order by Term"), QStringLiteral("Term"), QStringLiteral("MeasureTermID"));
    QComboBox *material = bound(diet, info.combo(QStringLiteral("sscboMaterialAnalyzed"), QStringLiteral("Material Analyzed:")), "MaterialAnalyzedID");
    diet->lookup(material, QStringLiteral("Select * From tblMaterialAnalyzed Order By Means"), QStringLiteral("Means"), QStringLiteral("MaterialAnalyzedID"));
    QComboBox *type = bound(diet, info.combo(QStringLiteral("cboDietType"), QStringLiteral("Diet Type:")), "DietTypeID");
    diet->lookup(type, QStringLiteral("Select * From tblDietType Order By Description"), QStringLiteral("Description"), QStringLiteral("DietTypeID"));
    QComboBox *data = bound(diet, info.combo(QStringLiteral("cboDataType"), QStringLiteral("Data Type:")), "DataTypeID");
    diet->lookup(data, QStringLiteral("Select * From tblDataType Order By Description"), QStringLiteral("Description"), QStringLiteral("DataTypeID"));
    dataSourceField(info, diet, 2);
    info.nextRow();
    memos << bound(diet, info.memo(QStringLiteral("txtAnalysisNotes"), QStringLiteral("Analysis Notes:"), 2), "AnalysisNotes");
    FormBuilder c = head.frame(QStringLiteral("fraDietCollection"), QStringLiteral("Collection Information")).fields(3);
    for (const Lookup *l : {&kFrom, &kTo, &kHabitat, &kGender, &kLifestage})
        listField(c, diet, *l, QStringLiteral("_Diet"));
    QComboBox *state = bound(diet, c.combo(QStringLiteral("cboStateProvince"), QStringLiteral("State/Province:")), "StateProvinceID");
    diet->lookup(state, QStringLiteral("Select * From tblStateProvince Order by Description"), QStringLiteral("Description"), QStringLiteral("StateProvinceID"));
    c.nextRow();
    memos << bound(diet, c.memo(QStringLiteral("txtCollectionNotes"), QStringLiteral("Collection Notes:"), 2), "CollectionNotes");
    FormBuilder r = head.frame(QStringLiteral("fraDietReference"), QStringLiteral("Reference"), true);
    cmdRef << r.button(QStringLiteral("cmdRef"), 6, QStringLiteral("&Reference"));
    diet->addButton(cmdRef.last());
    diet->computed(r.memo(QStringLiteral("txtDietReference"), QString(), 2),
                   [this](qint32) { return diet->currentValue(QStringLiteral("Reference")).toString(); });
    head.stretch();

    FormBuilder items = page.page(dietTabs, QStringLiteral("Diet Items"));
    dcDietItem = items.hiddenData(QStringLiteral("dcDietItem"));
    ssGrdDietItems = items.grid(QStringLiteral("ssGrdDietItems"), dcDietItem,
                                {{"Name", "Diet Item"}, {"Wet_Proportion", "Prop (wet)", "#.###"}, {"Dry_Proportion", "Prop (dry)", "#.###"},
                                 {"WET_WT_KCALG", "GE wet"}, {"DRY_WT_KCALG", "GE dry"}, {"WaterPercent", "H2O %"},
                                 {"Mean", "Assim. Eff. %"}, {"Lifestage"}, {"CompDesc", "Component"}, {"Comments", "Notes"}},
                                true);
    FormBuilder buttons = items.row();
    cmdEdit << nullptr;
    cmdEdit << buttons.button(QStringLiteral("cmdEdit"), 1, QStringLiteral("&New Diet Item"));
    cmdEdit << buttons.button(QStringLiteral("cmdEdit"), 2, QStringLiteral("&Edit Diet Item"));
    buttons.stretch();
}

void WorkbookPages::intakePage(FormBuilder &page)
{
    dcMeasured = page.hiddenData(QStringLiteral("dcMeasured"));
    ssGridMeasurement = page.grid(QStringLiteral("ssGridMeasurement"), dcMeasured,
                                  {{"IntakeType", "Intake Type"}, {"Gender"}, {"Status"}, {"Mean"}, {"Min"}, {"Max"}, {"Sample"},
                                   {"VarianceType", "Variance Type"}, {"Units"}, {"DataSource", "Data Source"}},
                                  true);
    FormBuilder buttons = page.row();
    cmdEdit[0] = buttons.button(QStringLiteral("cmdEdit"), 0, QStringLiteral("&Modify Selected Intake Item"));
    buttons.stretch();
}

QString WorkbookPages::referenceStatement(qint32 speciesId, int filter)
{
    static const char *const endings[] = {" AND jtblSpeciesReference.IsDistribution = True", " AND jtblSpeciesReference.IsHabitat = True",
                                          " AND jtblSpeciesReference.IsDiet = True", " AND jtblSpeciesReference.IsRelated = True", ""};
    return QStringLiteral("SELECT jtblSpeciesReference.SpeciesID, qryReference.Reference FROM qryReference INNER JOIN "
                          "jtblSpeciesReference ON qryReference.ReferenceID = jtblSpeciesReference.ReferenceID WHERE "
                          "jtblSpeciesReference.SpeciesID = %1")
               .arg(speciesId)
           + QString::fromLatin1(endings[std::clamp(filter, 0, 4)]) + QStringLiteral(" Order By Reference");
}

QString WorkbookPages::measuredStatement(qint32 speciesId)
{
    return QStringLiteral(
        "SELECT tblIntakeMeasured.IntakeMeasuredID, tblIntakeType.Description AS IntakeType, tblGender.Description AS Gender, "
        "tblStatus.Description AS Status, tblVarianceType.Description AS VarianceType, tblUnits.Description AS Units, "
        "tblIntakeMeasured.Mean, tblIntakeMeasured.Min, tblIntakeMeasured.Max, tblIntakeMeasured.Sample, tblDataSource.Description "
        "AS DataSource FROM (((((tblIntakeMeasured LEFT JOIN tblIntakeType ON tblIntakeMeasured.IntakeTypeID = "
        "tblIntakeType.IntakeTypeID) LEFT JOIN tblGender ON tblIntakeMeasured.GenderID = tblGender.GenderID) LEFT JOIN "
        "tblVarianceType ON tblIntakeMeasured.VarianceTypeID = tblVarianceType.VarianceTypeID) LEFT JOIN tblStatus ON "
        "tblIntakeMeasured.StatusID = tblStatus.StatusID) LEFT JOIN tblUnits ON tblIntakeMeasured.UnitsID = tblUnits.UnitsID) "
        "LEFT JOIN tblDataSource ON tblIntakeMeasured.DataSourceID = tblDataSource.DataSourceID Where "
        "tblIntakeMeasured.SpeciesID = %1 ORDER BY tblIntakeType.Description, tblGender.Description").arg(speciesId);
}
