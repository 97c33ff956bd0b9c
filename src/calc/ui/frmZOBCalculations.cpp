// SPDX-License-Identifier: MIT
#include "frmZOBCalculations.h"

#include "CalcSupport.h"
#include "Calculations.h"
#include "ControlValue.h"
#include "DataControl.h"
#include "Diagnostics.h"
#include "FormBuilder.h"
#include "GridLook.h"
#include "WindowAvailable.h"
#include "QtWindowHost.h"
#include "Recordset.h"
#include "Session.h"
#include "VbFormat.h"
#include "Wildlife.h"
#include "clsScenario.h"

#include <QCheckBox>
#include <QHash>
#include <QLabel>
#include <QLineEdit>
#include <QTabWidget>
#include <QTimer>

namespace {
const WindowRegistration<frmZOBCalculations> reg(QStringLiteral("frmZOBCalculations"));

const QString kBasisDialog = QStringLiteral("frmSelect_DryWetWeight");
//! The first help topic of the three result boxes (TDI, MEavg, FMR); the tab strip's topic.
constexpr int kBoxTopic = 513;
constexpr int kTabTopic = 1073;
//! Background colours of the first and the sixth column of both grids (blue-green-red).
constexpr quint32 kFirstColumnColor = 12632064;
constexpr quint32 kSixthColumnColor = 14737632;

}  // namespace

frmZOBCalculations::frmZOBCalculations(Session &session, QtWindowHost &host)
    : ZobWindow(session, host, QStringLiteral("frmZOBCalculations"))
{
    setCaption(QStringLiteral("Wildlife Scenario - Calculations"));
    HelpContextID = kTabTopic;
    FormBuilder b(this);
    buildToolbar(b, {ToolButton::spare(), ToolButton::spare(), ToolButton::spare(), ToolButton::spare(),
                     ToolButton::separator(),
                     {"Close", "Close the calculations", "Close", [this] { unloadMe(); }},
                     {"Print", "Print or preview a report", "Print",
                      [this] {
                          if (windowAvailable(this->session(), QStringLiteral("frmReports")))
                              this->host().show(QStringLiteral("frmReports"), true);
                      }},
                     ToolButton::spare(), ToolButton::separator(),
                     {"Help", "Help on the calculations", "Help", [this] { showHelp(); }}});
    buildHeader(b);
    buildGrids(b);
    resize(1180, 640);
}

void frmZOBCalculations::buildHeader(FormBuilder &b)
{
    FormBuilder top = b.row();
    FormBuilder left = top.column(1).fields(1);
    const char *const captions[] = {"Wildlife Scenario:", "Wildlife Species:", "Body Weight (g):", "Gender:",
                                    "Total Daily Dietary Intake (TDI = FMR/MEavg - g/d)",
                                    "Weighted Avg Metabolizable Energy(MEavg - kcal/g)",
                                    "Free Metabolic Rate (FMR - kcal/d)"};
    FormBuilder right = top.column(1).fields(1);
    for (int i = 0; i < 7; ++i) {
        m_box[i] = (i < 4 ? left : right).textBox(QStringLiteral("txtWildLifeScenario"), i, QString::fromLatin1(captions[i]));
        ControlValue::setLocked(m_box[i], true);
        if (i == 2 || i >= 4)
            m_box[i]->setAlignment(Qt::AlignRight);
    }
    m_lblDryWet = right.label(QStringLiteral("LblDryWet"), QStringLiteral("WEIGHT:  Wet"));
    QFont bold = m_lblDryWet->font();
    bold.setBold(true);
    m_lblDryWet->setFont(bold);
    m_chkIsWet = b.check(QStringLiteral("chkIsWet"), QString());
    m_chkIsWet->setVisible(false);
    m_zoomText = b.label(QStringLiteral("lblExplanation"), QString());
    m_zoomText->setVisible(false);
}

void frmZOBCalculations::buildGrids(FormBuilder &b)
{
    m_ssTabCalc = b.tabs(QStringLiteral("ssTabCalc"));
    FormBuilder diet = b.page(m_ssTabCalc, QStringLiteral("Dietary Requirements - Conversion"), QStringLiteral("tabDiet"));
    diet.label(QStringLiteral("lblConversion"), QStringLiteral("from (Kcal/d) to (g/d)"));
    m_dcDietItems = diet.hiddenData(QStringLiteral("dcDietItems"));
    m_ssGrdDietItems = diet.grid(QStringLiteral("ssGrdDietItems"), m_dcDietItems);
    FormBuilder rates = b.page(m_ssTabCalc, QStringLiteral("Intake Rates"), QStringLiteral("tabIntake"));
    m_dcIntakeRates = rates.hiddenData(QStringLiteral("dcIntakeRates"));
    m_ssGrdIntake = rates.grid(QStringLiteral("ssGrdIntake"), m_dcIntakeRates);
    m_dietLook = new GridLook(m_ssGrdDietItems);
    m_intakeLook = new GridLook(m_ssGrdIntake);
    m_ssGrdDietItems->setToolTip(QStringLiteral("Click a column head for an explanation of the column."));
    m_ssGrdIntake->setToolTip(m_ssGrdDietItems->toolTip());
    connect(m_ssGrdDietItems, &DataGrid::HeadClick, this, &frmZOBCalculations::dietHeadClick);
    connect(m_ssGrdIntake, &DataGrid::HeadClick, this, &frmZOBCalculations::intakeHeadClick);
}

void frmZOBCalculations::Form_Load()
{
    guarded(session(), {ErrForm::Shared, QStringLiteral("Form_Load")}, [&] {
        auto rs = session().gDB->OpenRecordset(
            QStringLiteral("SELECT tblScenario.Scenario_FileName, tblWildlife.* FROM tblScenario INNER JOIN tblWildlife ON "
                           "tblScenario.ScenarioID = tblWildlife.ScenarioID Where tblWildlife.ScenarioID = ")
                + calc::sidText(session()),
            RecordsetType::Snapshot);
        // A scenario not yet complete shows its missing values as empty boxes.
        const QVariant weight = rs->field(QStringLiteral("Weight"));
        ControlValue::setText(m_box[0], calc::joinText(rs->field(QStringLiteral("Scenario_FileName"))));
        ControlValue::setText(m_box[1], calc::joinText(rs->field(QStringLiteral("Common"))));
        ControlValue::setText(m_box[2], weight.isNull() ? QString() : vb::vbFormat(weight, QStringLiteral("#,##0.0#")));
        ControlValue::setText(m_box[3], calc::joinText(rs->field(QStringLiteral("WtSex"))));
        rs->Close();
        chooseBasis();
        showFigures();
        setHelpContext(m_box[4], kBoxTopic);
        setHelpContext(m_box[5], kBoxTopic + 1);
        setHelpContext(m_box[6], kBoxTopic + 2);
        setHelpContext(m_ssTabCalc, kTabTopic);
    });
}

void frmZOBCalculations::chooseBasis()
{
    // The dialog starts on the scenario's basis, so that Cancel keeps it.
    ControlValue::setValue(m_chkIsWet, session().gScenario->DietType != 0 ? 1 : 0);
    if (!windowAvailable(session(), kBasisDialog))
        return;
    if (auto *chooser = host().link<BasisChooser>(kBasisDialog)) {
        chooser->setPurpose(2, m_chkIsWet);
        host().show(kBasisDialog, true);
    }
}

void frmZOBCalculations::showFigures()
{
    Session &s = session();
    const auto basis = [this] { return static_cast<qint16>(ControlValue::value(m_chkIsWet).toInt()); };
    s.gScenario->DietType = basis();
    ControlValue::setText(m_box[6], vb::singleToText(GetFMR_TDI(s, QStringLiteral("FMR"))));
    ControlValue::setText(m_box[5], vb::singleToText(GetMEAvg(s)));
    // MEavg is asked again: only a positive one gives a TDI (its fall-back 1.0 is positive too).
    if (GetMEAvg(s) > 0)
        ControlValue::setText(m_box[4], vb::singleToText(GetFMR_TDI(s, QStringLiteral("TDI"))));
    s.gScenario->DietType = basis();
    ControlValue::setText(m_lblDryWet, s.gScenario->DietType != 0 ? QStringLiteral("WEIGHT:  Wet") : QStringLiteral("WEIGHT:  Dry"));
}

bool frmZOBCalculations::ZOBCalculationsValid()
{
    bool valid = false;
    guarded(session(), {ErrForm::Shared, QStringLiteral("ZOBCalculationsValid")}, [&] {
        m_dcDietItems->setDatabase(session().gDB);
        m_dcDietItems->setRecordSource(CalculationSQL(session()));
        m_dcDietItems->Refresh();
        valid = m_dcDietItems->rowCount() > 0;
        m_ssTabCalc->setCurrentIndex(valid ? 0 : 1);
        dressDietGrid();
        m_dcIntakeRates->setDatabase(session().gDB);
        m_dcIntakeRates->setRecordSource(
            QStringLiteral("SELECT tblIntakeType.Description, tblIntakeZOB.BaseRate, tblIntakeZOB.Units, tblIntakeZOB.Derivation, "
                           "tblIntakeZOB.Measured_CF, tblIntakeZOB.ADJUSTEDRate FROM tblIntakeZOB INNER JOIN tblIntakeType ON "
                           "tblIntakeZOB.IntakeTypeID = tblIntakeType.IntakeTypeID WHERE tblIntakeZOB.ScenarioID = ")
            + calc::sidText(session()));
        m_dcIntakeRates->Refresh();
        dressIntakeGrid();
    });
    // A review that is not shown goes at once, so that the next command asks the basis again.
    if (!valid)
        QTimer::singleShot(0, &host(), [host = &host()] { host->unload(QStringLiteral("frmZOBCalculations")); });
    return valid;
}

void frmZOBCalculations::dressDietGrid()
{
    const QString geCaption = session().gScenario->DietType != 0 ? QStringLiteral("Gross Energy    (Kcal/g wet wt)")
                                                                 : QStringLiteral("Gross Energy    (Kcal/g dry wt)");
    m_ssGrdDietItems->setColumns({{QStringLiteral("Name"), QStringLiteral("Diet Item")},
                                  {QStringLiteral("GE"), geCaption, QStringLiteral("#.##")},
                                  {QStringLiteral("Mean"), QStringLiteral(" Assimilation Efficiency  (1-100)"), QStringLiteral("##.0")},
                                  {QStringLiteral("ME"), QStringLiteral("Metabolizable Energy (kcal/g)"), QStringLiteral("#0.0#")},
                                  {QStringLiteral("DietProportion"), QStringLiteral("Prop of Diet (0-1)"), QStringLiteral("#0.###")},
                                  {QStringLiteral("Daily_Intake"), QStringLiteral("Itemized Daily Intake (g/d)"), QStringLiteral("#,###.0#")},
                                  {QStringLiteral("DataSource"), QStringLiteral("Data Source"), {}, true}},
                                 true);
    const int name = m_dcDietItems->fieldIndex(QStringLiteral("Name"));
    m_dietLook->setColumnColor(name, kFirstColumnColor);
    m_dietLook->setColumnColor(m_dcDietItems->fieldIndex(QStringLiteral("Daily_Intake")), kSixthColumnColor);
    m_dietLook->setTextColumns({name});
    // A row whose data source reads 2 is trial data; the column holds the source's description.
    const int source = m_dcDietItems->fieldIndex(QStringLiteral("DataSource"));
    m_ssGrdDietItems->recordsetModel()->setRowStyler([this, source](int row) {
        return m_dcDietItems->value(row, source).toString() == QLatin1String("2") ? RowStyle{Qt::darkBlue, QColor(255, 255, 192)}
                                                                                 : RowStyle{};
    });
    m_ssGrdDietItems->fitColumns(34, 8);
}

void frmZOBCalculations::dressIntakeGrid()
{
    m_ssGrdIntake->setColumns({{QStringLiteral("Description"), QStringLiteral("Type of Intake")},
                               {QStringLiteral("BaseRate"), QStringLiteral("Base Intake Rate"), QStringLiteral("#0.0####")},
                               {QStringLiteral("Units"), QStringLiteral("Units")},
                               {QStringLiteral("Derivation"), QStringLiteral("Basis")},
                               {QStringLiteral("Measured_CF"), QStringLiteral("Correction Factor (1-10)")},
                               {QStringLiteral("ADJUSTEDRate"), QStringLiteral("Adjusted Intake Rate"), QStringLiteral("#0.0####")}},
                              true);
    const int type = m_dcIntakeRates->fieldIndex(QStringLiteral("Description"));
    m_intakeLook->setColumnColor(type, kFirstColumnColor);
    m_intakeLook->setColumnColor(m_dcIntakeRates->fieldIndex(QStringLiteral("ADJUSTEDRate")), kSixthColumnColor);
    m_intakeLook->setTextColumns({type, m_dcIntakeRates->fieldIndex(QStringLiteral("Units")),
                                  m_dcIntakeRates->fieldIndex(QStringLiteral("Derivation"))});
    m_ssGrdIntake->fitColumns(34, 8);
}

void frmZOBCalculations::explain(const QString &title, const QString &text)
{
    ControlValue::setText(m_zoomText, text);
    if (windowAvailable(session(), QStringLiteral("frmZoom")))
        if (auto *zoom = host().link<TextZoom>(QStringLiteral("frmZoom")))
            zoom->ZoomText(m_zoomText, title, true);
}

void frmZOBCalculations::dietHeadClick(int column)
{
    runCommand(QStringLiteral("ssGrdDietItems_HeadClick"), [&] {
        const QString field = m_dcDietItems->fields().value(column);
        if (field.compare(QLatin1String("Name"), Qt::CaseInsensitive) == 0)
            explain(QStringLiteral("Calculated Values"),
                    QStringLiteral("Caloric Based Dietary Requirements (kcal/d) are calculated from an allometric equation and "
                                   "body weight.  Weight Based Dietary Requirements (g/d) are calculated from Caloric "
                                   "Requirements and diet composition (i.e., the scope and relative abundance of ingested "
                                   "diet items).  Methodology and equations used to convert from kcal/d to g/d are presented "
                                   "below."));
        else if (field.compare(QLatin1String("ME"), Qt::CaseInsensitive) == 0)
            explain(QStringLiteral("Metabolizable Energy"),
                    QStringLiteral("Metabolizable Energy of DITEM ITEM[k]\r\n= ME[k] (kcal /g) \r\n"
                                   "= Gross Energyk (kcal / g) * Assimilation Efficiency[k] (unitless)"));
        else if (field.compare(QLatin1String("Daily_Intake"), Qt::CaseInsensitive) == 0)
            explain(QStringLiteral("Itemized Daily Intake"), itemizedIntakeText());
        // The columns without an explanation of their own open their help topic.
        static const QHash<QString, int> topics = {{QStringLiteral("ge"), 2508}, {QStringLiteral("mean"), 2509},
                                                   {QStringLiteral("dietproportion"), 1035}};
        if (const int topic = topics.value(field.toLower()); topic && session().help)
            session().help->showTopic(topic);
    });
}

QString frmZOBCalculations::itemizedIntakeText() const
{
    const auto box = [this](int i) {
        const QString shown = ControlValue::text(m_box[i]);
        return shown.isEmpty() ? shown : vb::vbFormat(vb::CDbl(shown), QStringLiteral("#,###.0#"));
    };
    const QStringList lines = {
        QStringLiteral("WEIGHTED AVERAGE METABOLIZABLE ENERGY"), QStringLiteral("= MEav (kcal /g)"),
        QStringLiteral("= Sum of (pk * ME[k])"),
        QStringLiteral("where pk = Proportion of Diet represented by diet item[k] (unitless), "),
        QStringLiteral("calculated as the wet weight of that item, relative to the combined wet weight of all diet items in the diet"),
        QStringLiteral("and k = each diet item "), QStringLiteral("= ") + box(5) + QStringLiteral(" kcal / g"), QString(), QString(),
        QStringLiteral("FREE METABOLIC RATE"), QStringLiteral("= FMR (kcal / d)"),
        QStringLiteral("= Slope*(Weight^Exponent)*Correction Factor"), QStringLiteral("= "),
        QStringLiteral("= ") + box(6) + QStringLiteral(" kcal / d "), QString(), QString(),
        QStringLiteral("TOTAL DAILY DIETARY INTAKE"), QStringLiteral("= TDI (g / d)"),
        QStringLiteral("= FMR (kcal / d) / MEav (kcal / g)"), QStringLiteral("= ") + box(4) + QStringLiteral(" (g / d)"),
        QString(), QString(), QStringLiteral("ITEMIZED DAILY INTAKE OF DIET ITEM[k]"), QStringLiteral("= pk * TDI (g/d) ")};
    return lines.join(QStringLiteral("\r\n"));
}

void frmZOBCalculations::intakeHeadClick(int column)
{
    runCommand(QStringLiteral("ssGrdIntake_HeadClick"), [&] {
        const QString field = m_dcIntakeRates->fields().value(column).toLower();
        if (field == QLatin1String("baserate"))
            explain(QStringLiteral("Base Intake Rate"),
                    QStringLiteral("Base Intake Rate: This value may be a basal intake rate, a laboratory setting intake rate or "
                                   "a free living intake rate."));
        else if (field == QLatin1String("derivation"))
            explain(QStringLiteral("Derivation"),
                    QStringLiteral("Derivation: This indicates whether the value of the Base Intake Rate was estimated using an "
                                   "allometric equation or measured directly in a study"));
        else if (field == QLatin1String("measured_cf"))
            explain(QStringLiteral("Correction Factor"),
                    QStringLiteral("Correction Factor: This is used to convert the Base Intake Rate to a Free Living Intake Rate"));
        else if (field == QLatin1String("adjustedrate"))
            explain(QStringLiteral("Adjusted Intake Rate"),
                    QStringLiteral("Adjusted Intake Rate: This value represents the Free Living Intake Rate and is calculated as "
                                   "[Base Intake Rate (units) * Corr. Factor (unitless)]"));
    });
}
