// SPDX-License-Identifier: MIT
#include "BuilderIntakePage.h"

#include "ControlEvents.h"
#include "ControlValue.h"
#include "DataSourceText.h"
#include "Diagnostics.h"
#include "FormBuilder.h"
#include "IntakeSelection.h"
#include "Recordset.h"
#include "Session.h"
#include "Utilities.h"
#include "VbFormat.h"
#include "clsScenario.h"
#include "frmZOB.h"

#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTabWidget>

namespace {
//! One intake type as its sub-page shows it; the page index plus one is the IntakeTypeID.
struct IntakeType {
    const char *page;
    const char *rate;
    const char *units;
    const char *comments;
};
const IntakeType kTypes[5] = {
    {"Air", "Air Intake Rate:", "m3/day", "Air Comments:"},
    {"Drinking Water", "Water Intake Rate:", "L/day", "Water Comments:"},
    {"Assimilated Food Requirement", "Diet Intake Rate:", "kcal/day", "Diet Comments:"},
    {"Soil", "Soil Intake Rate:", "% dry wt", "Soil Comments:"},
    {"Sediment", "Sediment Intake Rate:", "g/day", "Sediment Comments:"},
};
const QString kRateTip = QStringLiteral("Adjusted Rate = a * (Weight(g) * WeightConversionFactor) ^ b * UnitsConversionFactor");

QString text(const QVariant &v) { return v.isNull() ? QString() : v.toString(); }
}  // namespace

BuilderIntakePage::BuilderIntakePage(frmZOB &window, FormBuilder &page) : QObject(&window), m_w(window)
{
    m_ssTabIntake = page.tabs(QStringLiteral("ssTabIntake"));
    for (int n = 0; n < 5; ++n) {
        FormBuilder sub = page.page(m_ssTabIntake, QString::fromLatin1(kTypes[n].page));
        buildType(sub, n);
    }
    m_w.pageCommands(page, 3, [this] { selectFromDatabase(); }, [this] { enterHypothetical(); });
    connect(m_ssTabIntake, &QTabWidget::currentChanged, this, &BuilderIntakePage::subPageChanged);
}

void BuilderIntakePage::buildType(FormBuilder &page, int n)
{
    FormBuilder fields = page.fields(2, arrayName(QStringLiteral("fraIntake"), n));
    m_rate[n] = fields.textBox(QStringLiteral("txtIntakeRate"), n, QString::fromLatin1(kTypes[n].rate));
    if (n == 1 || n == 2)
        m_rate[n]->setToolTip(kRateTip);
    m_units[n] = fields.textBox(QStringLiteral("txtIntakeUnits"), n, QStringLiteral("Units:"));
    m_units[n]->setReadOnly(true);
    fields.nextRow();
    m_estimator[n] = static_cast<QLabel *>(fields.add(new QLabel, arrayName(QStringLiteral("LblEstimator"), n), QStringLiteral("Derivation:")));
    fields.nextRow();
    if (n < 3) {
        m_ucf[n] = fields.textBox(QStringLiteral("txtUCF"), n, QStringLiteral("Equation Units Conversion Factor:"));
        fields.lastLabel()->setObjectName(arrayName(QStringLiteral("lblUCF"), n));
        m_measureCF[n] = fields.textBox(QStringLiteral("txtIntakeMeasureCF"), n, QStringLiteral("Measure Conversion Factor:"));
        fields.lastLabel()->setObjectName(arrayName(QStringLiteral("lblMCF"), 3 + n));
    } else if (n == 3) {
        m_assignedSpecies = static_cast<QLabel *>(fields.add(new QLabel, QStringLiteral("LblAssignedSpecies"), QStringLiteral("Assigned Species:")));
    } else {
        m_measureCF[3] = fields.textBox(QStringLiteral("txtIntakeMeasureCF"), 3, QStringLiteral("Correction Factor:"));
        fields.lastLabel()->setObjectName(arrayName(QStringLiteral("lblMCF"), 6));
    }
    page.label(QStringLiteral("LbLDataSource"), 3 + n, QString());
    QWidget *comments = m_w.noteBox(page, 3 + n, QString::fromLatin1(kTypes[n].comments), 5);
    // A typed rate is written when its box is left; so are the rates when the sediment comment is.
    auto save = [this] { m_w.runCommand(QStringLiteral("SaveIntakeControls"), [this] { SaveIntakeControls(); }); };
    connect(ControlEvents::of(m_rate[n]), &ControlEvents::LostFocus, this, save);
    if (n == 4)
        connect(ControlEvents::of(comments), &ControlEvents::LostFocus, this, save);
}

void BuilderIntakePage::showUnits()
{
    for (int n = 0; n < 5; ++n)
        ControlValue::setText(m_units[n], QString::fromLatin1(kTypes[n].units));
}

int BuilderIntakePage::currentSubPage() const { return m_ssTabIntake->currentIndex(); }
void BuilderIntakePage::setSubPage(int index) { m_ssTabIntake->setCurrentIndex(index); }

qint32 &BuilderIntakePage::dataSourceOf(int type)
{
    clsScenario &sc = *m_w.session().gScenario;
    qint32 *members[5] = {&sc.Air_DataSource, &sc.WAT_DataSource, &sc.FMR_DataSource, &sc.Soil_DataSource, &sc.Sediment_DataSource};
    return *members[type - 1];
}

void BuilderIntakePage::load()
{
    Session &s = m_w.session();
    clsScenario &sc = *s.gScenario;
    guarded(s, {ErrForm::Shared, QStringLiteral("PrS_LoadIntakeControls")}, [&] {
        // A new scenario has nothing to show but the comment block.
        if (sc.Mode == QLatin1String("Add")) {
            const QString block = sc.userCommentBlock();
            for (int i = 3; i <= 7; ++i)
                ControlValue::setText(m_w.notes(i), block);
            return;
        }
        auto rs = s.gDB->OpenRecordset(
            QStringLiteral("SELECT tblIntakeZOB.* FROM tblIntakeZOB WHERE tblIntakeZOB.ScenarioID = %1").arg(sc.SID),
            RecordsetType::Dynaset);
        if (!(rs->BOF() && rs->EOF_())) {
            for (int type = 1; type <= 5; ++type) {
                rs->FindFirst(QStringLiteral("IntakeTypeID = %1").arg(type));
                if (!rs->NoMatch())
                    loadRow(*rs, type);
            }
        }
        rs->Close();
        s.resetCursor();
    });
}

void BuilderIntakePage::loadRow(Recordset &rs, int type)
{
    clsScenario &sc = *m_w.session().gScenario;
    const int n = type - 1;
    const QString comments = text(rs.field(QStringLiteral("Comments")));
    const qint32 source = rs.field(QStringLiteral("DataSourceID")).toInt();
    const qint32 category = rs.field(QStringLiteral("CategoryID")).toInt();
    if (type <= 3) {
        ControlValue::setText(m_rate[n], vb::vbFormat(rs.field(QStringLiteral("AdjustedRate")), QStringLiteral("0.0000")));
        ControlValue::setText(m_units[n], text(rs.field(QStringLiteral("Units"))));
        m_estimator[n]->setText(text(rs.field(QStringLiteral("Derivation"))));
        ControlValue::setText(m_ucf[n], text(rs.field(QStringLiteral("Units_CF"))));
        ControlValue::setText(m_measureCF[n], text(rs.field(QStringLiteral("Measured_CF"))));
        ControlValue::setText(m_w.notes(3 + n), comments);
        qint32 *categories[3] = {&sc.AirCategoryID, &sc.WatCategoryID, &sc.FMRCategoryID};
        *categories[n] = category;
        m_w.SetDataSource(source, 3 + n);
    } else if (type == 4) {
        const QVariant rate = rs.field(QStringLiteral("AdjustedRate"));
        ControlValue::setText(m_rate[3], rate.isNull() ? QString() : vb::CStr(rate));
        ControlValue::setText(m_units[3], QStringLiteral("% dry wt"));
        m_estimator[3]->setText(text(rs.field(QStringLiteral("Derivation"))));
        m_assignedSpecies->setText(text(rs.field(QStringLiteral("AssignedSpecies"))));
        ControlValue::setText(m_w.notes(6), comments == kNotFound ? QString() : comments);
        sc.SoilCategoryID = category;
        m_w.SetDataSource(source, 6);
    } else {
        ControlValue::setText(m_rate[4], vb::vbFormat(rs.field(QStringLiteral("AdjustedRate")), QStringLiteral("0.0000")));
        ControlValue::setText(m_units[4], QStringLiteral("g/day"));
        m_estimator[4]->setText(QStringLiteral("Estimated"));
        ControlValue::setText(m_measureCF[3], text(rs.field(QStringLiteral("Measured_CF"))));
        ControlValue::setText(m_w.notes(7), comments);
        SetDataQuality(m_w.session(), arrayItem<QLabel>(&m_w, QStringLiteral("LbLDataSource"), 7), source);
        sc.Sediment_DataSource = source;
    }
}

void BuilderIntakePage::clear()
{
    for (int n = 0; n < 4; ++n)
        ControlValue::clear(m_rate[n]);
    for (int n = 0; n < 3; ++n)
        ControlValue::clear(m_ucf[n]);
    for (int n = 0; n < 2; ++n)
        ControlValue::clear(m_measureCF[n]);
    m_estimator[3]->clear();
    m_assignedSpecies->clear();
    for (int i = 3; i <= 7; ++i)
        arrayItem<QLabel>(&m_w, QStringLiteral("LbLDataSource"), i)->clear();
    ControlValue::setText(m_rate[4], QStringLiteral("0"));
}

void BuilderIntakePage::SaveIntakeControls()
{
    Session &s = m_w.session();
    guarded(s, {ErrForm::Shared, QStringLiteral("SaveIntakeControls")}, [&] {
        for (int type = 1; type <= 5; ++type) {
            const int n = type - 1;
            // An empty, zero or non-numeric rate is never written.
            const double rate = vb::Val(ControlValue::text(m_rate[n]));
            if (!(rate > 0))
                continue;
            m_comments = ControlValue::text(m_w.notes(3 + n));
            if (m_comments.isEmpty())
                m_comments = s.gScenario->userCommentBlock();
            m_adjustedRate = rate;
            m_derivation = m_estimator[n]->text();
            m_units_ = ControlValue::text(m_units[n]);
            m_dataSourceID = dataSourceOf(type);
            if (type == 5) {
                m_units_ = QStringLiteral("g/day");
                m_derivation = QStringLiteral("Estimated");
                m_dataSourceID = 2;
            }
            SaveIntake(type);
        }
    });
}

bool BuilderIntakePage::IsIntakeUserEntered(int type)
{
    Session &s = m_w.session();
    const QVariant id = s.Lookup(QStringLiteral("tblIntakeZOB"), QStringLiteral("DataSourceID"),
                                 QStringLiteral("ScenarioID = %1 AND IntakeTypeID = %2").arg(s.gScenario->SID).arg(type));
    return id.toString() == QLatin1String("2");
}

void BuilderIntakePage::SaveIntake(int type)
{
    Session &s = m_w.session();
    clsScenario &sc = *s.gScenario;
    guarded(s, {ErrForm::Shared, QStringLiteral("SaveIntake")}, [&] {
        const bool typed = IsIntakeUserEntered(type);
        auto rs = s.gDB->OpenRecordset(
            QStringLiteral("Select * from tblIntakeZOB where ScenarioID = %1 And IntakeTypeID = %2").arg(sc.SID).arg(type),
            RecordsetType::Dynaset);
        rs->Edit();
        rs->setField(QStringLiteral("ScenarioID"), sc.SID);
        rs->setField(QStringLiteral("ZOB_SpeciesID"), sc.SpeciesID);
        if (typed) {
            rs->setField(QStringLiteral("BaseRate"), m_adjustedRate);
            rs->setField(QStringLiteral("IntakeModelID"), 0);
            rs->setField(QStringLiteral("Units_CF"), 1);
            rs->setField(QStringLiteral("Measured_CF"), 1);
            rs->setField(QStringLiteral("CategoryID"), 0);
            rs->setField(QStringLiteral("IntakeEquation"), QStringLiteral(""));
        }
        rs->setField(QStringLiteral("AdjustedRate"), m_adjustedRate);
        rs->setField(QStringLiteral("Units"), m_units_);
        rs->setField(QStringLiteral("Comments"), m_comments);
        rs->setField(QStringLiteral("DataSourceID"), m_dataSourceID);
        rs->setField(QStringLiteral("Derivation"), m_derivation);
        rs->Update();
        rs->Close();
        s.resetCursor();
    });
}

void BuilderIntakePage::subPageChanged(int index)
{
    const bool sediment = index == 4;
    for (const auto &[name, i] : {std::pair{"cmdSelect", 6}, {"cmdSelect", 7}, {"cmdMoreInfo", 3}})
        arrayItem<QWidget>(&m_w, QString::fromLatin1(name), i)->setVisible(!sediment);
    if (sediment) {
        // The sediment rate has no database source: it is always typed.
        ControlValue::setText(arrayItem<QLabel>(&m_w, QStringLiteral("LbLDataSource"), 7),
                              QStringLiteral("Data Source: ") + GetDataSourceText(m_w.session(), 2) + QStringLiteral("  "));
        FormBuilder::userTyped(m_rate[4]);
        m_rate[4]->setFocus();
    }
    SaveIntakeControls();
}

void BuilderIntakePage::enterHypothetical()
{
    Session &s = m_w.session();
    clsScenario &sc = *s.gScenario;
    const int n = currentSubPage();
    s.gDB->Execute(QStringLiteral("Update tblIntakeZOB Set IntakeModelID = 0, SoilIngestionID = 0, CategoryID=0, EstimatorID=0, "
                                  "AssignedSpecies='' Where tblIntakeZOB.ScenarioID = %1 AND tblIntakeZOB.IntakeTypeID = %2")
                       .arg(sc.SID).arg(n + 1));
    dataSourceOf(n + 1) = 2;
    ControlValue::clear(m_rate[n]);
    if (n < 3) {
        qint32 *categories[3] = {&sc.AirCategoryID, &sc.WatCategoryID, &sc.FMRCategoryID};
        *categories[n] = 0;
        for (QWidget *w : {static_cast<QWidget *>(m_ucf[n]), static_cast<QWidget *>(m_measureCF[n]),
                           arrayItem<QWidget>(&m_w, QStringLiteral("lblUCF"), n), arrayItem<QWidget>(&m_w, QStringLiteral("lblMCF"), 3 + n)})
            w->setVisible(false);
        m_estimator[n]->setText(QStringLiteral("Estimated"));
        // Air keeps its hidden factor, water empties it, food takes 1.
        if (n == 1)
            ControlValue::clear(m_ucf[1]);
        else if (n == 2)
            ControlValue::setText(m_ucf[2], QStringLiteral("1"));
    } else if (n == 3) {
        sc.SoilID = 0;
        m_estimator[3]->setText(QStringLiteral("Estimated"));
        m_assignedSpecies->clear();
    }
    if (n < 4)
        m_w.SetDataSource(2, 3 + n);
    m_rate[n]->setFocus();
}

void BuilderIntakePage::selectFromDatabase()
{
    // The rate dialogs compute and write the row, then call the page's load.
    Session &s = m_w.session();
    const int n = currentSubPage();
    if (n == 3) {
        RecordRequest request;
        request.recordId = 4;
        request.mode = QStringLiteral("Write");
        request.table = QStringLiteral("tblSoilIngestion");
        request.keyField = QStringLiteral("SoilIngestionID");
        request.isSelection = true;
        m_w.openWindow(QStringLiteral("frmSelect_SoilIngestion"), request, true);
    } else if (n < 3) {
        const QString taxon = ControlValue::text(m_w.findChild<QWidget *>(QStringLiteral("cboTaxon")));
        // An empty taxon is "not found", which is no number: the command fails and is reported.
        const qint32 taxonId = vb::CLng(s.Lookup(QStringLiteral("tblTaxon"), QStringLiteral("TaxonID"),
                                                 QStringLiteral("Description='%1'").arg(taxon)));
        const bool none = !HasIntakeCategory(s, n + 1, taxonId);
        if (none) {
            s.resetCursor();
            s.msgBox(QStringLiteral("No data available"), QString(), MsgIcon::Information);
            return;
        }
        PrS_LoadSelectIntakeScreen(n);
    }
    arrayItem<QWidget>(&m_w, QStringLiteral("cmdMoreInfo"), 3)->setVisible(true);
    if (n < 3) {
        for (QWidget *w : {static_cast<QWidget *>(m_ucf[n]), static_cast<QWidget *>(m_measureCF[n]),
                           arrayItem<QWidget>(&m_w, QStringLiteral("lblUCF"), n), arrayItem<QWidget>(&m_w, QStringLiteral("lblMCF"), 3 + n)})
            w->setVisible(true);
    }
}

void BuilderIntakePage::PrS_LoadSelectIntakeScreen(int n)
{
    Session &s = m_w.session();
    guarded(s, {ErrForm::Shared, QStringLiteral("PrS_LoadSelectIntakeScreen")}, [&] {
        if (!(vb::Val(ControlValue::text(m_w.findChild<QWidget *>(QStringLiteral("txtWeightWeight")))) > 0)) {
            s.msgBox(QStringLiteral("Weight not selected. Please select weight and then continue."), QString(), MsgIcon::Warning);
            return;
        }
        const qint32 species = s.gScenario->SpeciesID;
        const QVariant taxon = species != 0
            ? s.Lookup(QStringLiteral("tblSpecies"), QStringLiteral("TaxonID"), QStringLiteral("SpeciesID = %1").arg(species))
            : s.Lookup(QStringLiteral("tblTaxon"), QStringLiteral("TaxonID"),
                       QStringLiteral("Description='%1'").arg(ControlValue::text(m_w.findChild<QWidget *>(QStringLiteral("cboTaxon")))));
        RecordRequest request;
        request.recordId = n;
        request.selectedId = vb::CLng(taxon);
        request.mode = QStringLiteral("Read");
        m_w.openWindow(QStringLiteral("frmSelect_Intake"), request, true);
    });
}
