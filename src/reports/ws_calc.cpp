// SPDX-License-Identifier: MIT
// The calculations report of the open scenario: how the food energy requirement becomes a daily
// food intake in grams, explained step by step, and the itemized intake of each diet item with
// the totals. Every figure comes from the calculation routines.
#include "Calculations.h"
#include "Database.h"
#include "QtWindowHost.h"
#include "Recordset.h"
#include "ReportDesign.h"
#include "ReportWindow.h"
#include "Session.h"
#include "VbFormat.h"
#include "Wildlife.h"
#include "clsScenario.h"

namespace {
constexpr double kSize = 8;

//! The columns of the itemized intake: head, column, x, width, pattern; numbers right-aligned.
struct Column {
    const char *head;
    const char *column;
    double x, w;
    const char *format;
    bool right;
};
const Column kColumns[] = {{"Diet Item", "Name", 0, 100, "", false},
                           {"Component", "Component", 104, 52, "", false},
                           {"Life Stage", "LifeStage", 160, 50, "", false},
                           {"Gross Energy (kcal/g)", "GE", 214, 42, "", true},
                           {"Assimilation Efficiency (0-100)", "Mean", 260, 62, "##0.0", true},
                           {"Metabolizable Energy (kcal/g)", "ME", 326, 64, "#,##0.00", true},
                           {"Proportion of Diet (0-1)", "DietProportion", 394, 56, "#,##0.00", true},
                           {"Itemized Daily Intake (g/d)", "Daily_Intake", 454, 69, "#,##0.00", true}};

//! The numbered explanations: number, label name, and the design text (empty: filled at start).
const std::tuple<const char *, const char *, const char *> kSteps[] = {
    {"1", "lbl1", "Caloric-based dietary requirements (kcal / d) are calculated from an allometric equation and body weight, or are measured directly in a study.  Weight-based dietary requirements (g / d) are calculated from Caloric requirements and diet composition (i.e., the scope and relative abundance of ingested diet items)."},
    {"2", "lbl2", "Metabolizable Energy of Diet Itemk  {MEk (kcal / g)} = Gross Energyk (kcal / g) * Assimilation Efficiencyk (unitless)."},
    {"3", "lbl3", "Weighted Average Metabolizable Energy  {MEAvg (kcal / g)}"},
    {"", "lbl3c", "where pk = Proportion of Diet represented by diet itemk (unitless), calculated as the wet weight of that item, relative to the combined wet weight of all diet items in the diet and k = each diet item"},
    {"4", "lbl4", "Free Living Metabolic Rate  {FMR (kcal / d)} = 101.49 kcal / d  where FMR is the food energy intake selected or entered by the ZOB User."},
    {"", "lblFMR", ""},
    {"5", "lbl5", ""},
    {"6", "lbl6", "Itemized Daily Intake (IDI, g/d) for Diet Item k = Total DIetary Intake (TDI, g/d) x pk."}};

ReportItem small(ReportItem item)
{
    item.size = kSize;
    return item;
}

class ws_calc : public ScenarioReport {
public:
    explicit ws_calc(Session &session) : ScenarioReport(session, QStringLiteral("ws_calc"))
    {
        caption = QStringLiteral("Wildlife Calculations");
        addReportHeading(*this, QStringLiteral("Report Type: CALCULATIONS"), QStringLiteral("Scenario_FileName"), QStringLiteral("Scenario_LastSaved"));
        ReportSection &h = reportHeader;
        h.items << bold(label(QStringLiteral("lblTitle"), QStringLiteral("Dietary Requirements - Conversion from (kcal/d) to (g/d)"), 0, 4,
                              kReportWidth, 16), 11)
                << bold(label(QStringLiteral("lblWetDry"), {}, 0, 22, 200))
                << bold(label({}, QStringLiteral("Average Trophic Level of Diet:"), 260, 22, 160))
                << label(QStringLiteral("fldAvgTrophicLev"), {}, 420, 22, 103);
        double y = 42;
        for (const auto &[number, name, text] : kSteps) {
            h.items << bold(label({}, QString::fromLatin1(number), 0, y, 14))
                    << label(QString::fromLatin1(name), QString::fromLatin1(text), 18, y, kReportWidth - 18);
            y += 17;
        }
        h.height = y + 6;

        repeatHeadOverAllRows(*this);
        for (const Column &c : kColumns) {
            ReportItem head = bold(label({}, QString::fromLatin1(c.head), c.x, 0, c.w, 30));
            head.size = 7.5;
            head.align = c.right ? Qt::AlignRight : Qt::AlignLeft;
            groupHeader.items << head;
            detail.items << small(field(QStringLiteral("fld") + QString::fromLatin1(c.column), QString::fromLatin1(c.column), c.x, 1, c.w,
                                        QString::fromLatin1(c.format), c.right ? Qt::AlignRight : Qt::AlignLeft));
        }
        groupHeader.items << rule(0, 32, kReportWidth);
        groupHeader.height = 36;
        detail.height = 13;

        ReportSection &f = reportFooter;
        f.items << rule(0, 2, kReportWidth) << small(bold(label(QStringLiteral("lblTotal"), QStringLiteral("Total"), 0, 6, 100)));
        for (const Column &c : {kColumns[6], kColumns[7]}) {
            ReportItem sum = small(bold(field(QStringLiteral("sum") + QString::fromLatin1(c.column), QString::fromLatin1(c.column), c.x, 6, c.w,
                                              QStringLiteral("#,##0.00"), Qt::AlignRight)));
            sum.summary = Summary::Sum;
            f.items << sum;
        }
        // The summation sign stands a little higher than the text beside it, on the same line.
        f.items << bold(label(QStringLiteral("lblSigma"), QString(QChar(0x03A3)), 0, 28, 14, 18), 12)
                << label(QStringLiteral("lblPkMEk"), QStringLiteral("pk * MEk"), 16, 29.5, 60)
                << label(QStringLiteral("lblMEAvg"), {}, 70, 29.5, kReportWidth - 70);
        f.height = 56;
        addPageFooter(*this);
    }

    void ActiveReport_ReportStart() override
    {
        clsScenario *scenario = m_session.gScenario.get();
        recordSource = CalculationSQL(m_session);
        setText(QStringLiteral("lblWetDry"), scenario && scenario->DietType != 0 ? QStringLiteral("Wet Weight") : QStringLiteral("Dry Weight"));
        setText(QStringLiteral("fldAvgTrophicLev"), GetAvgTrophicLevel(m_session, sid(), QStringLiteral("tblWildlifeDietItems")));
        setText(QStringLiteral("lblFMR"), QStringLiteral("Free Metabolic Rate  {FMR (kcal / d)} = ")
                                              + vb::vbFormatSingle(GetFMR_TDI(m_session, QStringLiteral("FMR")), QStringLiteral("0.##"))
                                              + QStringLiteral(" kcal / d  where FMR is the food energy requirement selected or entered by the ZOB User."));
        setText(QStringLiteral("lblMEAvg"), QStringLiteral("= ") + vb::vbFormatSingle(GetMEAvg(m_session), QStringLiteral("#,##0.##"))
                                                + QStringLiteral("  kcal / g wet weight."));
        setText(QStringLiteral("lbl5"), QStringLiteral("Total Dietary Intake Rate  {TDI (g / d)} = FMR (kcal / d) / MEAvg (kcal / g) = ")
                                            + vb::vbFormatSingle(GetFMR_TDI(m_session, QStringLiteral("TDI")), QStringLiteral("0.##"))
                                            + QStringLiteral(" g / d."));
        fillHeadingWithoutItems();
    }

private:
    //! The heading's file and date come from the rows; without diet items they come from the
    //! scenario itself.
    void fillHeadingWithoutItems()
    {
        auto rs = m_session.gDB->OpenRecordset(
            QStringLiteral("SELECT Scenario_FileName, Scenario_LastSaved FROM tblScenario WHERE ScenarioID = ") + subject(), RecordsetType::Snapshot);
        const bool found = !rs->EOF_();
        const QVariant file = found ? rs->field(0) : QVariant();
        const QVariant saved = found ? rs->field(1) : QVariant();
        setText(QStringLiteral("fldFile"), file.isNull() ? QString() : vb::CStr(file));
        setText(QStringLiteral("fldLastSaved"), saved.isNull() ? QString() : vb::vbFormat(saved, QStringLiteral("mmmm d, yyyy")));
    }
};
const ReportRegistration<ws_calc> reg(QStringLiteral("ws_calc"));
}  // namespace
