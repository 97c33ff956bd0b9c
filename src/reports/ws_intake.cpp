// SPDX-License-Identifier: MIT
#include "ws_intake.h"

#include "QtWindowHost.h"
#include "ReportWindow.h"

namespace {
const ReportRegistration<ws_intake> reg(QStringLiteral("ws_intake"));
constexpr double kSize = 7.5;

//! The columns of the intake rows: head, field name, column, x, width, pattern, right-aligned.
struct Column {
    const char *head;
    const char *name;
    const char *column;
    double x, w;
    const char *format;
    bool right;
};
const Column kColumns[] = {
    {"Type of Intake", "fldIntakeType", "IntakeType", 0, 60, "", false},
    {"Base Intake Rate", "fldBase", "BaseRate", 62, 50, "#,##0.00", true},
    {"Units", "fldUnits", "Units", 118, 48, "", false},
    {"Source", "fldSource", "DataSource", 168, 62, "", false},
    {"Estimator", "fldEstimator", "Estimator", 232, 60, "", false},
    {"Correction Factor (1-10)", "fldCorrection", "Measured_CF", 294, 40, "", true},
    {"Notes", "fldNote", "Comments", 340, 76, "", false},
    {"Basis", "fldBasis", "Derivation", 418, 50, "", false},
    {"Adjusted Intake Rate", "Field2", "AdjustedRate", 470, 53, "#,##0.00", true},
};
//! The soil line under the rows, in the same columns: field name and design text.
const std::pair<const char *, const char *> kSoilLine[] = {
    {"Field10", "Soil:"}, {"fldBRSoilGrams", ""}, {"Field4", "g/day"}, {"fldSoilGramSource", "Calculated"},
    {"fldSoilGramEstimator", ""}, {"CF", "1"}, {"fldSoilGramsNotes", ""}, {"Field9", "Calculated"}, {"ADRate", ""}};

//! One line of the supporting information: caption, field name (empty: none) and design text.
struct Line {
    const char *caption;
    const char *name;
    const char *text;
};
const Line kSupport[] = {
    {"Air Allometric Equation:", "fldEqnText1", ""}, {"Species Group:", "fldSpeciesGroup1", ""},
    {"Units Correction Factor:", "fldUCF1", ""}, {"Weight Units Correction Factor:", "fldWtUCF1", ""},
    {"Measure Correction Factor:", "fldMCF1", ""}, {"Reference:", "fldRef1", ""}, {"", "", ""},
    {"Water Allometric Equation:", "fldEqnText2", ""}, {"Species Group:", "fldSpeciesGroup2", ""},
    {"Units Correction Factor:", "fldUCF2", ""}, {"Weight Units Correction Factor:", "fldWtUCF2", ""},
    {"Measure Correction Factor:", "fldMCF2", ""}, {"Reference:", "fldRef2", ""}, {"", "", ""},
    {"Metabolic Rate Allometric Equation:", "fldEqnText3", ""}, {"Species Group:", "fldSpeciesGroup3", ""},
    {"Units Correction Factor:", "fldUCF3", ""}, {"Weight Units Correction Factor:", "fldWtUCF3", ""},
    {"Measure Correction Factor:", "fldMCF3", ""}, {"Reference:", "fldRef3", ""}, {"r^2:", "fldr2", ""},
    {"Sample Size:", "fldSample3", ""}, {"Lower 95% Cl (kcal/day):", "fldLower95", ""},
    {"Upper 95% Cl (kcal/day):", "fldUpper95", ""}, {"c:", "fldc", ""}, {"d:", "fldd", ""}, {"e:", "flde", ""},
    {"Mean Log Weight", "fldMean_log_X", ""},
    {"FMR 95% CI Equation:", "lblCIEquation",
     "95% CI for log_FMR_species_x = log_FMR_speices_x +/- c * [d + e * (log_Wt_species_x - mean_log_Wt_model_species^2)]^0.5   where Wt is in grams and FMR is in KJoules/day. Results converted to kcal/day."},
    {"", "", ""},
    {"Soil: Proportion Dry Diet (f_soil):", "fldEqnText4", ""}, {"Species Group:", "fldSpeciesGroup4", ""},
    {"Sample Size:", "fldSample4", ""}, {"Reference:", "fldRef4", ""},
    {"Soil:  Intake in g/day, calculated:", "fldEqnText5", ""}, {"Daily Dry-weight Diet (DD):", "fldDD", ""},
    {"(Average Percent Water:)", "fldAvgWaterPercent", ""}};

ReportItem small(ReportItem item)
{
    item.size = kSize;
    return item;
}
}  // namespace

void addIntakeColumns(ReportSection &heads, double y, ReportSection &detail)
{
    for (const Column &c : kColumns) {
        ReportItem head = small(bold(label({}, QString::fromLatin1(c.head), c.x, y, c.w, 18)));
        head.align = c.right ? Qt::AlignRight : Qt::AlignLeft;
        heads.items << head;
        detail.items << small(field(QString::fromLatin1(c.name), QString::fromLatin1(c.column), c.x, 2, c.w,
                                    QString::fromLatin1(c.format), c.right ? Qt::AlignRight : Qt::AlignLeft));
    }
    heads.items << rule(0, y + 20, kReportWidth);
    detail.height = 14;
}

ws_intake::ws_intake(Session &session) : ScenarioReport(session, QStringLiteral("ws_intake"))
{
    caption = QStringLiteral("Wildlife Intake");
    addReportHeading(*this, QStringLiteral("Report Type:  INTAKE"), {}, {});
    ReportSection &h = pageHeader;
    const std::pair<const char *, const char *> heads[] = {{"Created By:", "fldCreatedBy"}, {"Last Modified by:", "fldLastModifiedBy"},
                                                           {"Wildlife Species:", "fldSpecies"}, {"Body Weight(g):", "fldWeight"},
                                                           {"Sex:", "fldSex"}};
    for (int i = 0; i < 5; ++i) {
        const double x = i % 2 ? 330 : 0, y = 66 + (i / 2) * 14;
        h.items << label({}, QString::fromLatin1(heads[i].first), x, y, 80) << label(QString::fromLatin1(heads[i].second), {}, x + 80, y, 170);
    }
    h.items << bold(label(QStringLiteral("lblIntakeRates"), QStringLiteral("Intake Rates"), 0, 112, kReportWidth, 14), 11);
    addIntakeColumns(h, 130, detail);
    h.height = 154;

    ReportSection &f = reportFooter;
    f.items << rule(0, 2, kReportWidth);
    for (int i = 0; i < 9; ++i) {
        ReportItem item = small(label(QString::fromLatin1(kSoilLine[i].first), QString::fromLatin1(kSoilLine[i].second),
                                      kColumns[i].x, 6, kColumns[i].w));
        item.align = kColumns[i].right ? Qt::AlignRight : Qt::AlignLeft;
        f.items << item;
    }
    f.items << rule(0, 22, kReportWidth) << bold(label(QStringLiteral("lblSupporting"), QStringLiteral("Supporting Information"), 0, 30, kReportWidth, 14), 11);
    double y = 48;
    for (const Line &l : kSupport) {
        const QString name = QString::fromLatin1(l.name);
        if (!name.isEmpty()) {
            f.items << small(bold(label({}, QString::fromLatin1(l.caption), 0, y, 170)))
                    << small(label(name, QString::fromLatin1(l.text), 175, y, name == QLatin1String("fldEqnText4") ? 120 : kReportWidth - 175));
            if (name == QLatin1String("fldEqnText4"))
                f.items << small(label(QStringLiteral("fldF_Soil"), {}, 300, y, 100));
            if (name == QLatin1String("fldEqnText5")) {
                f.items.last().w = 120;
                f.items << small(label(QStringLiteral("fldBaseIntakeRate"), {}, 300, y, 100));
            }
        }
        y += name.isEmpty() ? 6 : 12;
    }
    y += 8;
    for (int i = 1; i <= 4; ++i, y += 12)
        f.items << small(label({}, QString::number(i), 0, y, 12)) << small(label(QStringLiteral("lbl%1").arg(i), {}, 14, y, kReportWidth - 14));
    f.height = y + 4;
    addPageFooter(*this);
}
