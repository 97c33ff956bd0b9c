// SPDX-License-Identifier: MIT
#include "frmDE_IntakeModel.h"

#include "ControlValue.h"
#include "DataControl.h"
#include "Diagnostics.h"
#include "Intake.h"
#include "Lookups.h"
#include "QtWindowHost.h"
#include "Recordset.h"
#include "Session.h"
#include "VbFormat.h"

#include <QLabel>

namespace {
const WindowRegistration<frmDE_IntakeModel> reg(QStringLiteral("frmDE_IntakeModel"));

const QString kCategories = QStringLiteral("Select * From tblCategory Order By Description");
const QString kAllUnits = QStringLiteral("Select * From tblUnits Order By Description");

EntryProfile entryProfile()
{
    return {.caption = QStringLiteral("Intake Model Allometric Equation"), .table = QStringLiteral("tblIntakeModel"),
            .key = QStringLiteral("IntakeModelID"), .dataControl = QStringLiteral("dcAllometricEquation"),
            .saveRoutine = QStringLiteral("SaveIntakeModel"), .picker = QStringLiteral("frmSelect_IntakeModel"),
            .newAddsRow = true, .noSelectButton = true, .writeModeOnly = true};
}

qint32 idOf(const QWidget *combo)
{
    const QVariant v = ControlValue::value(combo);
    return v.isNull() || v.toString().isEmpty() ? 0 : vb::CLng(v);
}
}  // namespace

frmDE_IntakeModel::frmDE_IntakeModel(Session &session, QtWindowHost &host)
    : EntryWindow(session, host, QStringLiteral("frmDE_IntakeModel"), entryProfile())
{
    FormBuilder model = body().frame(QStringLiteral("fraModel"), QStringLiteral("Equation")).fields(2);
    m_cboType = listField(model, QStringLiteral("cboAllometricEqn(2)"), QStringLiteral("Intake Type:"), QStringLiteral("IntakeTypeID"),
                          QStringLiteral("Select * From tblIntakeType WHERE IsModel = True"));
    listField(model, QStringLiteral("cboAllometricEqn(0)"), QStringLiteral("Taxon:"), QStringLiteral("TaxonID"), Lookups::taxon());
    m_cboCategory = listField(model, QStringLiteral("cboAllometricEqn(1)"), QStringLiteral("Species Group:"), QStringLiteral("CategoryID"), kCategories);
    m_txtNewSpeciesGroup = model.textBox(QStringLiteral("txtNewSpeciesGroup"), QStringLiteral("New Species Group"));
    m_lblNewSpeciesGroup = model.lastLabel();
    m_lblNewSpeciesGroup->setObjectName(QStringLiteral("lblNewSpeciesGroup"));
    FormBuilder::userTyped(m_txtNewSpeciesGroup);
    m_cboMeasure = listField(model, QStringLiteral("cboMeasure"), QStringLiteral("Measure:"), QStringLiteral("ModelDescriptionID"),
                             QStringLiteral("Select * From tblModelDescription"));
    m_numbers[0] = textField(model, QStringLiteral("txtMMF"), QStringLiteral("Measure Factor"), QStringLiteral("MMF"));
    m_numbers[1] = textField(model, QStringLiteral("txtUCF"), QStringLiteral("Correction Factor"), QStringLiteral("UCF"));
    m_numbers[2] = textField(model, QStringLiteral("txt_a"), QStringLiteral("a"), QStringLiteral("a"));
    m_numbers[3] = textField(model, QStringLiteral("txt_b"), QStringLiteral("b"), QStringLiteral("b"));
    m_cboWtUnits = listField(model, QStringLiteral("cboWtUnits"), QStringLiteral("Weight Units:"), QStringLiteral("WtUnitsID"),
                             QStringLiteral("Select * From tblUnits WHERE UNITSID IN (11, 13) Order By Description"),
                             QStringLiteral("Description"), QStringLiteral("UnitsID"));
    m_txtWtUnitsFactor = model.textBox(QStringLiteral("txtWtUnitsFactor"), QStringLiteral("Weight Factor:"));
    computed(m_txtWtUnitsFactor, [this](qint32) { return this->session().Lookup(QStringLiteral("tblUnits"), QStringLiteral("Factor"),
                                                                          QStringLiteral("UnitsID=%1").arg(idOf(m_cboWtUnits))).toString(); });
    m_cboEquationUnits = listField(model, QStringLiteral("cboEquationUnits"), QStringLiteral("Equation Units:"), QStringLiteral("EqnUnitsID"), kAllUnits,
                                   QStringLiteral("Description"), QStringLiteral("UnitsID"));
    m_cboFinalUnits = listField(model, QStringLiteral("cboFinalUnits"), QStringLiteral("Final Units:"), QStringLiteral("FinalUnitsID"), kAllUnits,
                                QStringLiteral("Description"), QStringLiteral("UnitsID"));
    dataSourceField(model);
    FormBuilder eq = body().fields();
    computed(eq.textBox(QStringLiteral("txtEquation"), QStringLiteral("Equation:")),
             [this](qint32 id) { return GetIntakeEquationText(this->session(), id, QStringLiteral("Equation")); });
    FormBuilder stats = body().frame(QStringLiteral("fraStatistics"), QStringLiteral("Regression Statistics to display")).fields(3);
    textField(stats, QStringLiteral("txtAllEq"), QStringLiteral("r^2:"), QStringLiteral("r2"));
    textField(stats, QStringLiteral("txtFields"), QStringLiteral("Sample Size:"), QStringLiteral("Sample"));
    textField(stats, QStringLiteral("txtMean"), QStringLiteral("Mean log X:"), QStringLiteral("Mean_log_X"));
    textField(stats, QStringLiteral("txtC"), QStringLiteral("c"), QStringLiteral("c"));
    textField(stats, QStringLiteral("txtD"), QStringLiteral("d"), QStringLiteral("d"));
    textField(stats, QStringLiteral("txtE"), QStringLiteral("e"), QStringLiteral("e"));
    referenceFrame(body());

    connect(m_cboType, &QComboBox::activated, this, [this] { runCommand(QStringLiteral("cboAllometricEqn_Click"), [this] { intakeTypeChosen(); }); });
    connect(m_cboWtUnits, &QComboBox::activated, this, [this] { runCommand(QStringLiteral("cboWtUnits_Click"), [this] { weightUnitChosen(); }); });
    connect(m_txtNewSpeciesGroup, &QLineEdit::editingFinished, this,
            [this] { runCommand(QStringLiteral("txtNewSpeciesGroup_LostFocus"), [this] { newSpeciesGroup(); }); });
    resize(760, 620);
}

QString frmDE_IntakeModel::recordSource(qint32 id) const
{
    return QStringLiteral("SELECT tblIntakeModel.*, qryReference.Reference FROM qryReference RIGHT JOIN tblIntakeModel ON "
                          "qryReference.ReferenceID = tblIntakeModel.ReferenceID WHERE IntakeModelID = %1")
        .arg(id);
}

QString frmDE_IntakeModel::unitText(qint32 intakeTypeId)
{
    static const char *const units[] = {"m3/day", "L/day", "kcal/day", "% dry diet", "g/day"};
    return intakeTypeId >= 1 && intakeTypeId <= 5 ? QString::fromLatin1(units[intakeTypeId - 1]) : QString();
}

QString frmDE_IntakeModel::factorNote(qint32 intakeTypeId)
{
    if (intakeTypeId >= 2)
        return QStringLiteral("Free-Living metabolic rate is determined using double-labelled water techniques. Therefore "
                              "correction factor is 1. Factors of 1-10 are available.");
    return QStringLiteral("Allometric equation for Inhalation and Drinking Water is for basal metabolism. To estimate "
                          "free-living rates multiply by a correction factor between 1 and 10");
}

void frmDE_IntakeModel::rowShown()
{
    const qint32 type = idOf(m_cboType);
    if (type > 0)
        narrowMeasures(type);
    for (QWidget *c : {static_cast<QWidget *>(m_cboFinalUnits), static_cast<QWidget *>(m_cboEquationUnits)})
        ControlValue::setLocked(c, true);
    // A record without a species group gets one typed in the box; the list waits until then.
    const bool noGroup = idOf(m_cboCategory) == 0;
    m_txtNewSpeciesGroup->setVisible(noGroup);
    m_lblNewSpeciesGroup->setVisible(noGroup);
    ControlValue::setLocked(m_cboCategory, noGroup || isLocked());
}

void frmDE_IntakeModel::narrowMeasures(qint32 intakeTypeId)
{
    const QVariant shown = ControlValue::value(m_cboMeasure);
    fillCombo(m_cboMeasure, *session().gDB, QStringLiteral("Select * From tblModelDescription Where IntakeTypeID = %1").arg(intakeTypeId),
              QStringLiteral("Description"), QStringLiteral("ModelDescriptionID"));
    ControlValue::setValue(m_cboMeasure, shown);
}

void frmDE_IntakeModel::intakeTypeChosen()
{
    const qint32 type = idOf(m_cboType);
    if (type <= 0)
        return;
    narrowMeasures(type);
    if (!ControlValue::items(m_cboMeasure).isEmpty())
        ControlValue::select(m_cboMeasure, 0);
    // The unit combos offer only the type's own unit.
    const QString unit = unitText(type);
    for (QComboBox *c : {m_cboFinalUnits, m_cboEquationUnits}) {
        const int index = unit.isEmpty() ? -1 : ControlValue::find(c, unit);
        if (index >= 0)
            ControlValue::select(c, index);
        else
            ControlValue::clear(c);
    }
    session().msgBox(factorNote(type), QString(), MsgIcon::Information);
}

void frmDE_IntakeModel::weightUnitChosen()
{
    refreshComputed();
}

void frmDE_IntakeModel::newSpeciesGroup()
{
    const QString text = ControlValue::text(m_txtNewSpeciesGroup).trimmed();
    if (text.isEmpty() || recordRequest().mode != QLatin1String("Write") || currentId() <= 0)
        return;
    auto rs = session().gDB->OpenRecordset(QStringLiteral("tblCategory"), RecordsetType::Dynaset);
    rs->AddNew();
    rs->setField(QStringLiteral("Description"), text);
    const qint32 category = vb::CLng(rs->field(QStringLiteral("CategoryID")));
    rs->Update();
    rs->Close();
    session().gDB->Execute(QStringLiteral("Update tblIntakeModel Set CategoryID = %1 Where IntakeModelID = %2").arg(category).arg(currentId()));
    ControlValue::clear(m_txtNewSpeciesGroup);
    fillCombo(m_cboCategory, *session().gDB, kCategories, QStringLiteral("Description"), QStringLiteral("CategoryID"));
    LoadData();
}

void frmDE_IntakeModel::save()
{
    const bool numbers = guarded(session(), {ErrForm::Shared, routine(QStringLiteral("SaveIntakeModel"))}, [&] {
        for (QWidget *box : m_numbers)
            vb::CSng(ControlValue::text(box));
    });
    if (numbers)
        EntryWindow::save();
}
