// SPDX-License-Identifier: MIT
#include "frmSelect_Intake.h"

#include "ControlEvents.h"
#include "ControlValue.h"
#include "DataControl.h"
#include "Diagnostics.h"
#include "FormBuilder.h"
#include "GridLook.h"
#include "Intake.h"
#include "IntakeSelection.h"
#include "QtWindowHost.h"
#include "Recordset.h"
#include "Session.h"
#include "VbFormat.h"
#include "WindowLinks.h"
#include "clsScenario.h"

#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>

namespace {
const WindowRegistration<frmSelect_Intake> reg(QStringLiteral("frmSelect_Intake"));
const QString kLoadRoutine = QStringLiteral("frmSelect_IntakeForm_Load");
constexpr int kHelpTopic = 4101;
}  // namespace

frmSelect_Intake::frmSelect_Intake(Session &session, QtWindowHost &host)
    : ZobWindow(session, host, QStringLiteral("frmSelect_Intake"))
{
    setCaption(QStringLiteral("Select Intake"));
    HelpContextID = kHelpTopic;
    FormBuilder b(this);
    buildToolbar(b, {ToolButton::spare(), ToolButton::spare(), ToolButton::spare(), ToolButton::spare(),
                     ToolButton::separator(),
                     {"Save", "Compute the rate, write it to the scenario and close", "Save", [this] { saveAndClose(); }},
                     ToolButton::separator(),
                     {"Close", "Close without saving", "Close", [this] { unloadMe(); }},
                     ToolButton::separator(),
                     {"Help", "Help on choosing an intake rate", "Help", [this] { showHelp(); }}});
    m_tbIntakeType = b.tabs(QStringLiteral("tbIntakeType"));
    for (const char *page : {"Air", "Water", "Food"})
        b.page(m_tbIntakeType, QString::fromLatin1(page));
    m_tbIntakeType->setDocumentMode(true);
    m_tbIntakeType->setMaximumHeight(m_tbIntakeType->tabBar()->sizeHint().height() + 4);
    FormBuilder options = b.row();
    m_dataOption[0] = options.option(QStringLiteral("DataOption"), 0, QStringLiteral("Model"));
    m_dataOption[1] = options.option(QStringLiteral("DataOption"), 1, QStringLiteral("Measured"));
    QPushButton *explanation = options.button(QStringLiteral("cmdExplanation"), QStringLiteral("About the correction factor..."));
    options.stretch();
    buildModelFrame(b);
    buildMeasuredFrame(b);
    FormBuilder source = b.fields(2);
    m_cboDataSource = source.combo(QStringLiteral("cboDataSource"), QStringLiteral("Data Source"));
    m_txtReference = source.textBox(QStringLiteral("txtReference"), QStringLiteral("Reference:"));
    ControlValue::setLocked(m_cboDataSource, true);
    ControlValue::setLocked(m_txtReference, true);
    b.stretch();
    m_modelCombos << qMakePair(m_cboDataSource, QStringLiteral("DataSourceID"));
    m_modelFields << qMakePair<QWidget *, QString>(m_txtReference, QStringLiteral("Reference"));

    for (QRadioButton *option : m_dataOption)
        connect(option, &QRadioButton::toggled, this, [this](bool on) { if (on) dataOptionChanged(); });
    connect(explanation, &QPushButton::clicked, this, &frmSelect_Intake::explainCorrectionFactor);
    connect(m_cboCategory, &QComboBox::currentIndexChanged, this, &frmSelect_Intake::categoryChanged);
    connect(m_dcIntakeModel, &DataControl::Reposition, this, &frmSelect_Intake::showModel);
    connect(m_dcIntakeMeasured, &DataControl::Reposition, this, &frmSelect_Intake::showMeasuredSource);
    connect(ControlEvents::of(m_txtMMF), &ControlEvents::LostFocus, this, [this] {
        runCommand(QStringLiteral("txtMMF_LostFocus"),
                   [this] { ControlValue::setText(m_txtMMF, CorrectionFactorText(ControlValue::text(m_txtMMF))); });
    });
    resize(980, 560);
}

void frmSelect_Intake::buildModelFrame(FormBuilder &b)
{
    FormBuilder eq = b.frame(QStringLiteral("fraAllEq"), QStringLiteral("Allometric Equation: y = a * (body weight(g)) ^ b"));
    m_fraAllEq = b.lastFrame();
    FormBuilder head = eq.fields(1);
    m_cboCategory = head.combo(QStringLiteral("cboCategory"), QStringLiteral("Species Group:"));
    m_txtEquation = head.textBox(QStringLiteral("txtEquation"), QStringLiteral("Equation:"));
    ControlValue::setLocked(m_txtEquation, true);
    m_dcIntakeModel = eq.dataControl(QStringLiteral("dcIntakeModel"));
    FormBuilder f = eq.fields(2);
    const auto shown = [this](QWidget *w, const char *field, bool locked = true) {
        ControlValue::setLocked(w, locked);
        m_modelFields << qMakePair(w, QString::fromLatin1(field));
    };
    shown(f.textBox(QStringLiteral("txt_a"), QStringLiteral("a:")), "a");
    shown(f.textBox(QStringLiteral("txt_b"), QStringLiteral("b:")), "b");
    m_txtMMF = f.textBox(QStringLiteral("txtMMF"), QStringLiteral("Correction Factor (1-10):"));
    shown(m_txtMMF, "MMF", false);
    FormBuilder::userTyped(m_txtMMF);
    shown(f.textBox(QStringLiteral("txtUCF"), QStringLiteral("Units Conversion Factor:")), "UCF");
    const auto unit = [&](const char *name, const char *caption, const char *field) {
        QComboBox *combo = f.combo(QString::fromLatin1(name), QString::fromLatin1(caption));
        ControlValue::setLocked(combo, true);
        m_modelCombos << qMakePair(combo, QString::fromLatin1(field));
    };
    unit("cboWtUnits", "Weight Units:", "WtUnitsID");
    m_txtWtUnitsFactor = f.textBox(QStringLiteral("txtWtUnitsFactor"), QStringLiteral("Weight Conversion Factor:"));
    ControlValue::setLocked(m_txtWtUnitsFactor, true);
    unit("cboEquationUnits", "Equation Units:", "EqnUnitsID");
    unit("cboFinalUnits", "Final Units:", "FinalUnitsID");
    FormBuilder stats = eq.frame(QStringLiteral("fraRegressionStats"), QStringLiteral("Regression Statistics to display")).fields(3);
    const char *const statFields[][2] = {{"txt_r2", "r2"}, {"txt_Sample", "Sample"}, {"txt_Mean_Log_X", "Mean_Log_X"},
                                         {"txt_c", "c"}, {"txt_d", "d"}, {"txt_e", "e"}};
    for (const auto &s : statFields)
        shown(stats.textBox(QString::fromLatin1(s[0]), QString::fromLatin1(s[1]) + QLatin1Char(':')), s[1]);
}

void frmSelect_Intake::buildMeasuredFrame(FormBuilder &b)
{
    FormBuilder m = b.frame(QStringLiteral("fraMeasuredIntake"), QStringLiteral("Measured Intake"));
    m_fraMeasuredIntake = b.lastFrame();
    m_dcIntakeMeasured = m.hiddenData(QStringLiteral("dcIntakeMeasured"));
    m_ssGrdMeasuredAir = m.grid(QStringLiteral("ssGrdMeasuredAir"), m_dcIntakeMeasured,
                                {{QStringLiteral("IntakeMeasuredID"), {}, {}, true}, {QStringLiteral("Mean")},
                                 {QStringLiteral("Min")}, {QStringLiteral("Max")}, {QStringLiteral("VarValue"), QStringLiteral("Variance")},
                                 {QStringLiteral("Units")}, {QStringLiteral("Status")}, {QStringLiteral("Gender")},
                                 {QStringLiteral("Sample")}, {QStringLiteral("Note")}, {QStringLiteral("DataSourceID"), {}, {}, true}},
                                true);
    new GridLook(m_ssGrdMeasuredAir);
    FormBuilder cf = m.fields(1);
    m_txtMeasuredCorrectionFactor = cf.textBox(QStringLiteral("txtMeasuredCorrectionFactor"), QStringLiteral("Measure Conversion Factor:"));
    FormBuilder::userTyped(m_txtMeasuredCorrectionFactor);
    ControlValue::setText(m_txtMeasuredCorrectionFactor, QStringLiteral("2.5"));
    FormBuilder est = m.frame(QStringLiteral("fraEstimator"), QStringLiteral("Estimator"), true);
    const char *const captions[] = {"Detection Limit", "Mean", "Max", "Min", "Mean + Variance", "Mean - Variance"};
    for (int i = 0; i < 6; ++i)
        m_optMeanMaxMin[i] = est.option(QStringLiteral("optMeanMaxMin"), i, QString::fromLatin1(captions[i]));
    m_fraMeasuredIntake->setVisible(false);
}

void frmSelect_Intake::Form_Load()
{
    guarded(session(), {ErrForm::Shared, kLoadRoutine}, [&] {
        Database &db = *session().gDB;
        for (const char *name : {"cboWtUnits", "cboEquationUnits", "cboFinalUnits"})
            fillCombo(control<QComboBox>(QString::fromLatin1(name)), db, QStringLiteral("Select * From tblUnits Order By Description"),
                      QStringLiteral("Description"), QStringLiteral("UnitsID"));
        fillCombo(m_cboDataSource, db,
                  QStringLiteral("SELECT tblDataSource.DataSourceID, tblDataSource.Description From tblDataSource ORDER BY "
                                 "tblDataSource.Description;"),
                  QStringLiteral("Description"), QStringLiteral("DataSourceID"));
        m_dcIntakeModel->setDatabase(session().gDB);
        m_dcIntakeMeasured->setDatabase(session().gDB);
    });
}

void frmSelect_Intake::setRecord(const RecordRequest &request)
{
    ZobWindow::setRecord(request);
    Filter(static_cast<qint16>(request.recordId), request.selectedId, request.mode);
}

void frmSelect_Intake::Filter(qint16 pageIndex, qint32 taxonId, const QString &mode)
{
    m_intakeTypeId = pageIndex + 1;
    m_taxonId = taxonId;
    m_mode = mode;
    loadIntake();
}

void frmSelect_Intake::loadIntake()
{
    Session &s = session();
    s.setHourglass(true);
    m_loading = true;
    guarded(s, {ErrForm::Shared, kLoadRoutine}, [&] {
        for (int i = 0; i < m_tbIntakeType->count(); ++i)
            m_tbIntakeType->setTabEnabled(i, i == m_intakeTypeId - 1);
        m_tbIntakeType->setCurrentIndex(m_intakeTypeId - 1);
        fillCombo(m_cboCategory, *s.gDB, IntakeCategorySQL(m_intakeTypeId, m_taxonId), QStringLiteral("Description"),
                  QStringLiteral("CategoryID"));
        if (!HasIntakeCategory(s, m_intakeTypeId, m_taxonId)) {
            s.resetCursor();
            s.msgBox(QStringLiteral("No data available"), QString(), MsgIcon::Information);
            return;
        }
        const QVariant stored = s.Lookup(QStringLiteral("tblIntakeZOB"), QStringLiteral("CategoryID"),
                                         QStringLiteral("ScenarioID = %1 AND IntakeTypeID = %2").arg(s.gScenario->SID).arg(m_intakeTypeId));
        m_categoryId = stored.toString() == kNotFound ? 0 : vb::CLng(stored);
        if (m_categoryId != 0)
            selectComboValue(m_cboCategory, m_categoryId);
        if (m_categoryId == 0 || ControlValue::value(m_cboCategory).isNull()) {
            ControlValue::select(m_cboCategory, 0);
            if (m_categoryId == 0)
                m_categoryId = vb::CLng(ControlValue::value(m_cboCategory));
        }
        loadModels();
        m_dcIntakeMeasured->setRecordSource(IntakeMeasuredSQL(m_intakeTypeId, s.gScenario->SpeciesID));
        m_dcIntakeMeasured->Refresh();
        m_ssGrdMeasuredAir->fitColumns(30);
        ControlValue::setValue(m_dataOption[0], true);
        ControlValue::setValue(m_optMeanMaxMin[1], true);
        setHelpContext(m_fraAllEq, kHelpTopic);
        setHelpContext(m_fraMeasuredIntake, kHelpTopic);
    });
    m_loading = false;
    s.resetCursor();
}

void frmSelect_Intake::loadModels()
{
    m_dcIntakeModel->setRecordSource(IntakeModelsSQL(m_intakeTypeId, m_taxonId, m_categoryId));
    m_dcIntakeModel->Refresh();
    if (m_dcIntakeModel->rowCount() > 0)
        ControlValue::setText(m_txtEquation,
                              GetIntakeEquationText(session(), vb::CLng(m_dcIntakeModel->value(0, QStringLiteral("IntakeModelID"))),
                                                    QStringLiteral("Equation")));
    else
        ControlValue::setText(m_txtEquation, QStringLiteral("Not available"));
}

void frmSelect_Intake::showModel()
{
    const int row = m_dcIntakeModel->currentRow();
    for (const auto &[w, field] : m_modelFields) {
        const QVariant v = row < 0 ? QVariant() : m_dcIntakeModel->value(row, field);
        ControlValue::setText(w, v.isNull() ? QString() : vb::CStr(v));
    }
    for (const auto &[combo, field] : m_modelCombos)
        selectComboValue(combo, row < 0 ? QVariant() : m_dcIntakeModel->value(row, field));
    const QVariant units = row < 0 ? QVariant() : m_dcIntakeModel->value(row, QStringLiteral("WtUnitsID"));
    const QVariant factor = units.isNull() ? QVariant()
                                           : session().Lookup(QStringLiteral("tblUnits"), QStringLiteral("Factor"),
                                                              QStringLiteral("UnitsID=") + vb::CStr(units));
    ControlValue::setText(m_txtWtUnitsFactor, factor.isNull() ? QString() : vb::CStr(factor));
}

void frmSelect_Intake::categoryChanged()
{
    if (m_loading)
        return;
    guarded(session(), {ErrForm::Shared, kLoadRoutine}, [&] {
        m_categoryId = vb::CLng(ControlValue::value(m_cboCategory));
        loadModels();
    });
}

void frmSelect_Intake::dataOptionChanged()
{
    const bool measured = ControlValue::value(m_dataOption[1]).toBool();
    m_fraAllEq->setVisible(!measured);
    m_fraMeasuredIntake->setVisible(measured);
    if (measured)
        showMeasuredSource();
    else
        showModel();
}

void frmSelect_Intake::showMeasuredSource()
{
    if (!ControlValue::value(m_dataOption[1]).toBool())
        return;
    const int row = m_dcIntakeMeasured->currentRow();
    selectComboValue(m_cboDataSource, row < 0 ? QVariant() : m_dcIntakeMeasured->value(row, QStringLiteral("DataSourceID")));
    ControlValue::clear(m_txtReference);
}

void frmSelect_Intake::explainCorrectionFactor()
{
    if (m_tbIntakeType->currentIndex() >= 2)
        session().msgBox(QStringLiteral("Free-Living metabolic rate is determined using double-labelled water techniques. "
                                        "Therefore correction factor is 1. Factors of 1-10 are available."),
                         QString(), MsgIcon::Information);
    else
        session().msgBox(QStringLiteral("Allometric equation for Inhalation and Drinking Water is for basal metabolism. To "
                                        "estimate free-living rates multiply by a correction factor between 1 and 10"),
                         QString(), MsgIcon::Information);
}

void frmSelect_Intake::Save(int dataOption)
{
    guarded(session(), {ErrForm::Shared, QStringLiteral("Save")}, [&] {
        if (dataOption >= 1) {
            int estimator = 0;
            for (int i = 0; i < 6; ++i)
                if (ControlValue::value(m_optMeanMaxMin[i]).toBool())
                    estimator = i;
            SaveMeasuredIntake(session(), m_intakeTypeId, m_dcIntakeMeasured->current(),
                               ControlValue::text(m_txtMeasuredCorrectionFactor), estimator);
        } else {
            SaveModelIntake(session(), m_intakeTypeId, m_dcIntakeModel->current(), m_categoryId, ControlValue::text(m_txtEquation));
        }
    });
    session().resetCursor();
}

void frmSelect_Intake::saveAndClose()
{
    Save(ControlValue::value(m_dataOption[1]).toBool() ? 1 : 0);
    unloadMe();
    if (auto *builder = host().loadedLink<BuilderView>(QStringLiteral("frmZOB")))
        builder->PrS_LoadIntakeControls();
}
