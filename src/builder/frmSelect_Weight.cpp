// SPDX-License-Identifier: MIT
#include "frmSelect_Weight.h"

#include "ControlValue.h"
#include "DataControl.h"
#include "DialogSupport.h"
#include "Diagnostics.h"
#include "FormBuilder.h"
#include "QtWindowHost.h"
#include "Recordset.h"
#include "Session.h"
#include "VbFormat.h"
#include "WeightChoice.h"
#include "WindowAvailable.h"
#include "WindowLinks.h"
#include "ZobToolbar.h"
#include "clsScenario.h"

#include <QAction>
#include <QLabel>
#include <QPlainTextEdit>
#include <QRadioButton>

namespace {
const WindowRegistration<frmSelect_Weight> reg(QStringLiteral("frmSelect_Weight"));
const char *const kEstimators[] = {"Detection Limit", "Mean", "Max", "Min", "Mean + Variance", "Mean - Variance"};
const char *const kStatus[] = {"Captive", "Wild", "All"};
const char *const kGender[] = {"Male", "Female", "Unknown", "All"};
const QString kStatusOrder = QStringLiteral("tblStatus.Description");
const QString kEntryWindow = QStringLiteral("frmDE_Weight");

//! The id a filter option stands for: its index plus base, 0 for "All" (the last option).
qint32 filterId(const QList<QRadioButton *> &options, int base)
{
    for (int i = 0; i + 1 < options.size(); ++i)
        if (options[i]->isChecked())
            return i + base;
    return 0;
}
}  // namespace

frmSelect_Weight::frmSelect_Weight(Session &session, QtWindowHost &host)
    : RequestWindow(session, host, QStringLiteral("frmSelect_Weight"))
{
    setCaption(QStringLiteral("Select Weight"));
    HelpContextID = 1004;
    FormBuilder b(this);
    buildToolbar(b, {ToolButton::separator(),
                     {"New", "Add New record", "New", [this] { newWeight(); }},
                     ToolButton::separator(),
                     {"Select", "Take the marked statistic of the highlighted weight", "Select", [this] { select(); }},
                     ToolButton::separator(),
                     {"Close", "Close the list", "Close", [this] { unloadMe(); }},
                     ToolButton::separator(),
                     {"Help", "Help", "Help", [this] { showHelp(); }}},
                 QStringLiteral("frmSelect_Weight.TB_MDI_ButtonClick"));
    buildOptions(b);
    m_dcWeight = b.hiddenData(QStringLiteral("dcWeight"));
    m_grid = b.grid(QStringLiteral("ssGrdWeight"), m_dcWeight,
                    {{"WeightID"}, {"Status", "Status"}, {"Gender", "Gender"}, {"Mean", "Mean(g)", "#0.00"},
                     {"Min", "Min(g)", "#0.00"}, {"Max", "Max(g)", "#0.00"}, {"Sample", "Sample"},
                     {"VT", "VarianceType"}, {"VarValue", "Variance"}, {"Habitat", "Habitat"}},
                    true);
    m_grid->setToolTip(QStringLiteral("Double-click a weight to open its record; click a column head to sort."));
    FormBuilder reference = b.frame(QStringLiteral("fraReference"), QStringLiteral("Reference"));
    keepFrameHeight(b.lastFrame());
    QWidget *txtReference = reference.memo(QStringLiteral("txtReference"), QString(), 3);
    ControlValue::setLocked(txtReference, true);
    m_dcWeight->bind(txtReference, QStringLiteral("Reference"));

    connect(m_dcWeight, &DataControl::Reposition, this, &frmSelect_Weight::rowChanged);
    connect(m_grid, &DataGrid::HeadClick, this, [this](int column) {
        runCommand(QStringLiteral("ssGrdWeight_HeadClick"), [&] {
            const QString order = WeightChoice::headOrder(column);
            if (!order.isEmpty())
                LoadData(order);
        });
    });
    connect(m_grid, &DataGrid::DblClick, this, [this] {
        runCommand(QStringLiteral("ssGrdWeight_DblClick"), [this] {
            openWeight(vb::CLng(m_dcWeight->current().field(QStringLiteral("WeightID"))), recordRequest().mode, true);
        });
    });
    resize(860, 560);
}

void frmSelect_Weight::buildOptions(FormBuilder &b)
{
    FormBuilder top = b.row();
    top.container()->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    FormBuilder estimators = top.frame(QStringLiteral("frmMeanMaxMin"), QStringLiteral("Estimator"));
    for (int i = 0; i < 6; ++i)
        m_optMeanMaxMin.append(estimators.option(QStringLiteral("optMeanMaxMin"), i, QString::fromLatin1(kEstimators[i])));
    FormBuilder filters = top.frame(QStringLiteral("fraFilter"), QStringLiteral("Filters"));
    FormBuilder status = filters.row();
    status.label(QStringLiteral("lblStatus"), QStringLiteral("Status:"))->setMinimumWidth(60);
    for (int i = 0; i < 3; ++i)
        m_optStatus.append(status.option(QStringLiteral("optStatus"), i, QString::fromLatin1(kStatus[i])));
    status.stretch();
    FormBuilder gender = filters.row();
    gender.label(QStringLiteral("lblGender"), QStringLiteral("Gender:"))->setMinimumWidth(60);
    for (int i = 0; i < 4; ++i)
        m_optGender.append(gender.option(QStringLiteral("optGender"), i, QString::fromLatin1(kGender[i])));
    gender.stretch();
    filters.stretch();
    top.stretch();
    m_optStatus.last()->setChecked(true);
    m_optGender.last()->setChecked(true);
    for (QRadioButton *opt : m_optStatus + m_optGender)
        connect(opt, &QRadioButton::clicked, this,
                [this] { runCommand(QStringLiteral("optFilter_Click"), [this] { LoadData(kStatusOrder); }); });
}

void frmSelect_Weight::serveRequest()
{
    showToolButton(*toolbar(), QStringLiteral("New"), recordRequest().mode != QLatin1String("Read"));
    m_optMeanMaxMin[WeightChoice::Mean]->setChecked(true);
    guarded(session(), {ErrForm::Shared, QStringLiteral("frmSelect_Weight.Form_Load")}, [this] { LoadData(kStatusOrder); });
}

void frmSelect_Weight::LoadData(const QString &order)
{
    session().gSQL = WeightChoice::listStatement(session().gScenario->SpeciesID, filterId(m_optStatus, 1),
                                                 filterId(m_optGender, 4), order);
    m_dcWeight->setDatabase(session().gDB);
    m_dcWeight->setRecordSource(session().gSQL);
    m_dcWeight->Refresh();
    m_grid->fitColumns(30);
    rowChanged();
}

int frmSelect_Weight::estimator() const
{
    for (int i = 0; i < m_optMeanMaxMin.size(); ++i)
        if (m_optMeanMaxMin[i]->isChecked())
            return i;
    return -1;
}

void frmSelect_Weight::rowChanged()
{
    // A marked option that is hidden stays marked; Detection Limit is never offered.
    for (int i = 0; i <= WeightChoice::MeanPlusVariance; ++i)
        m_optMeanMaxMin[i]->setVisible(false);
    const int row = m_dcWeight->currentRow();
    if (row < 0)
        return;
    const WeightChoice::WeightRow values{m_dcWeight->value(row, QStringLiteral("Mean")), m_dcWeight->value(row, QStringLiteral("Max")),
                                         m_dcWeight->value(row, QStringLiteral("Min")), m_dcWeight->value(row, QStringLiteral("VarValue"))};
    for (int i = WeightChoice::Mean; i <= WeightChoice::MeanMinusVariance; ++i)
        m_optMeanMaxMin[i]->setVisible(WeightChoice::offered(values, static_cast<qint16>(i)));
}

void frmSelect_Weight::select()
{
    if (m_dcWeight->rowCount() == 0) {
        session().msgBox(QStringLiteral("No records to select."), QString(), MsgIcon::Warning);
        return;
    }
    const int marked = estimator();
    if (marked >= 0)
        session().gScenario->WtEstimator = static_cast<qint16>(marked);
    SaveSelectedWeight(vb::CLng(m_dcWeight->current().field(QStringLiteral("WeightID"))));
    if (auto *builder = host().loadedLink<BuilderView>(QStringLiteral("frmZOB")))
        builder->PrS_LoadWeightControls();
    unloadMe();
}

void frmSelect_Weight::SaveSelectedWeight(qint32 weightId)
{
    clsScenario &scenario = *session().gScenario;
    auto rs = session().gDB->OpenRecordset(
        QStringLiteral("SELECT tblWeight.*, tblGender.Description AS Gender FROM tblWeight LEFT JOIN tblGender ON "
                       "tblWeight.GenderID = tblGender.GenderID WHERE tblWeight.WeightID = %1")
            .arg(weightId),
        RecordsetType::Dynaset);
    if (!rs->EOF_()) {
        scenario.WeightID = weightId;
        scenario.WtSex = rs->field(QStringLiteral("Gender")).toString();
        scenario.Wt_DataSource = rs->field(QStringLiteral("DataSourceID")).toInt();
        const WeightChoice::WeightRow values{rs->field(QStringLiteral("Mean")), rs->field(QStringLiteral("Max")),
                                             rs->field(QStringLiteral("Min")), rs->field(QStringLiteral("VarValue"))};
        const int marked = estimator();
        float weight = 0;
        if (WeightChoice::weightFor(values, static_cast<qint16>(marked), weight)) {
            scenario.Weight = weight;
            scenario.WtEstimator = static_cast<qint16>(marked);
        }
    }
    rs->Close();
    scenario.SaveWildlifeGroup(QStringLiteral("WT"));
}

void frmSelect_Weight::openWeight(qint32 weightId, const QString &mode, bool modal)
{
    openForRecord(*this, kEntryWindow, recordOf(QStringLiteral("tblWeight"), QStringLiteral("WeightID"), weightId, mode), modal);
}

void frmSelect_Weight::newWeight()
{
    if (recordRequest().mode == QLatin1String("Read") || !windowAvailable(session(), kEntryWindow))
        return;
    openWeight(session().GetNewRecordID(QStringLiteral("tblWeight"), QStringLiteral("WeightID"), QString(), 0, 0),
               QStringLiteral("Write"), false);
}
