// SPDX-License-Identifier: MIT
// The intake details of the open scenario: its intake rows as the intake report lists them, then
// for each kind of intake the row's comments and what the value rests on.
#include "Database.h"
#include "Diagnostics.h"
#include "QtWindowHost.h"
#include "Recordset.h"
#include "ReportWindow.h"
#include "Session.h"
#include "VbFormat.h"
#include "ws_intake.h"

namespace {
//! The kinds of intake by IntakeTypeID 1 to 5: caption and the suffix of their field names.
const std::pair<const char *, const char *> kKinds[] = {
    {"Air:", "Air"}, {"Water:", "Water"}, {"Food:", "Food"}, {"Soil:", "Soil"}, {"Sediments:", "Sediment"}};

QString textOf(const QVariant &v) { return !v.isValid() || v.isNull() ? QString() : vb::CStr(v); }

class wsc_detail : public ScenarioReport {
public:
    explicit wsc_detail(Session &session) : ScenarioReport(session, QStringLiteral("wsc_detail"))
    {
        caption = QStringLiteral("Wildlife Intake Details");
        addReportHeading(*this, QStringLiteral("Report Type:  INTAKE DETAILS"), {}, {});
        repeatHeadOverAllRows(*this);
        groupHeader.items << bold(label(QStringLiteral("lblIntake"), QStringLiteral("Intake"), 0, 0, kReportWidth, 16), 11);
        addIntakeColumns(groupHeader, 20, detail);
        groupHeader.height = 46;
        double y = 8;
        for (const char *block : {"Comments", "Supporting Information"}) {
            y = addBlockHeading(reportFooter, QStringLiteral("lbl") + QString::fromLatin1(block).remove(QLatin1Char(' ')), QString::fromLatin1(block), y);
            const QString prefix = QLatin1String(block) == QLatin1String("Comments") ? QStringLiteral("fldComments") : QStringLiteral("fldSupport");
            for (const auto &[caption, suffix] : kKinds) {
                reportFooter.items << bold(label({}, QString::fromLatin1(caption), 0, y, 80))
                                   << label(prefix + QString::fromLatin1(suffix), {}, 85, y, kReportWidth - 85);
                y += 14;
            }
            y += 10;
        }
        reportFooter.height = y;
        addPageFooter(*this);
    }

    void ActiveReport_ReportStart() override
    {
        for (const auto &[caption, suffix] : kKinds) {
            setText(QStringLiteral("fldComments") + QString::fromLatin1(suffix), {});
            setText(QStringLiteral("fldSupport") + QString::fromLatin1(suffix), {});
        }
        recordSource = intakeRatesSql(sid());
        guarded(m_session, {ErrForm::Qualified, QStringLiteral("wsc_detail.ActiveReport_ReportStart")}, [&] {
            fillHeading();
            fillBlocks();
        });
    }

private:
    void fillHeading()
    {
        auto rs = m_session.gDB->OpenRecordset(
            QStringLiteral("SELECT Scenario_FileName, Scenario_LastSaved FROM tblScenario WHERE ScenarioID = ") + subject(), RecordsetType::Snapshot);
        if (rs->EOF_())
            return;
        setText(QStringLiteral("fldFile"), textOf(rs->field(0)));
        const QVariant saved = rs->field(1);
        setText(QStringLiteral("fldLastSaved"), saved.isNull() ? QString() : vb::vbFormat(saved, QStringLiteral("mmmm d, yyyy")));
    }

    //! Each kind's comments, and its equation (or soil study) with the reference it rests on.
    void fillBlocks()
    {
        auto rs = m_session.gDB->OpenRecordset(
            QStringLiteral("SELECT tblIntakeZOB.IntakeTypeID, tblIntakeZOB.Comments, tblIntakeZOB.IntakeEquation, tblIntakeZOB.Derivation, "
                           "tblSoilIngestion.Species, qryReference.Reference, qryReference_1.Reference AS SoilReference FROM "
                           "((((tblIntakeZOB LEFT JOIN tblIntakeModel ON tblIntakeZOB.IntakeModelID = tblIntakeModel.IntakeModelID) LEFT "
                           "JOIN qryReference ON tblIntakeModel.ReferenceID = qryReference.ReferenceID) LEFT JOIN tblSoilIngestion ON "
                           "tblIntakeZOB.SoilIngestionID = tblSoilIngestion.SoilIngestionID) LEFT JOIN qryReference AS qryReference_1 ON "
                           "tblSoilIngestion.ReferenceID = qryReference_1.ReferenceID) WHERE tblIntakeZOB.ScenarioID = ")
                + subject() + QStringLiteral(" ORDER BY tblIntakeZOB.IntakeTypeID"),
            RecordsetType::Snapshot);
        for (; !rs->EOF_(); rs->MoveNext()) {
            const int type = vb::CLng(rs->field(QStringLiteral("IntakeTypeID")));
            if (type < 1 || type > 5)
                continue;
            const QString suffix = QString::fromLatin1(kKinds[type - 1].second);
            setText(QStringLiteral("fldComments") + suffix, textOf(rs->field(QStringLiteral("Comments"))));
            QStringList support;
            for (const char *column : {"Derivation", "IntakeEquation", "Species", "Reference", "SoilReference"})
                if (const QString t = textOf(rs->field(QString::fromLatin1(column))).trimmed(); !t.isEmpty())
                    support << t;
            setText(QStringLiteral("fldSupport") + suffix, support.join(QStringLiteral("; ")));
        }
    }
};
const ReportRegistration<wsc_detail> reg(QStringLiteral("wsc_detail"));
}  // namespace
