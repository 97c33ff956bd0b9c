// SPDX-License-Identifier: MIT
#include "Intake.h"

#include "CalcSupport.h"
#include "Diagnostics.h"

#include <cfloat>
#include <cmath>

namespace {

//! x ^ y with the legacy runtime's failures: a negative base needs a whole exponent, zero cannot be
//! raised to a negative power.
double power(double x, double y)
{
    if (x < 0.0 && y != std::trunc(y))
        throw VbError(VbErr::InvalidProcedureCall, QStringLiteral("Invalid procedure call or argument"));
    if (x == 0.0 && y < 0.0)
        throw VbError::divisionByZero();
    return std::pow(x, y);
}

//! A double rounded to single precision; beyond the single range it overflows (6).
float toSingle(double value)
{
    if (!std::isfinite(value) || std::fabs(value) > static_cast<double>(FLT_MAX))
        throw VbError::overflow();
    return static_cast<float>(value);
}

}  // namespace

QString GetIntakeEquationText(Session &s, qint32 intakeModelId, const QString &what)
{
    QString result;
    guarded(s, {ErrForm::Shared, QStringLiteral("GetIntakeEquationText")}, [&] {
        s.gSQL = QStringLiteral(
                     "SELECT tblIntakeModel.*, tblUnits.Description AS WtUnits, tblUnits.Factor, tblUnits_1.Description "
                     "AS FinalUnits, tblUnits_2.Description AS EqnUnits FROM tblUnits AS tblUnits_2 RIGHT JOIN (tblUnits "
                     "AS tblUnits_1 RIGHT JOIN (tblUnits RIGHT JOIN tblIntakeModel ON tblUnits.UnitsID = "
                     "tblIntakeModel.WtUnitsID) ON tblUnits_1.UnitsID = tblIntakeModel.FinalUnitsID) ON "
                     "tblUnits_2.UnitsID = tblIntakeModel.EqnUnitsID WHERE tblIntakeModel.IntakeModelID = ")
                 + QString::number(intakeModelId);
        auto rs = s.gDB->OpenRecordset(s.gSQL, RecordsetType::Snapshot);
        if (rs->BOF() && rs->EOF_())
            return;
        QString equation;
        QString units;
        const QVariant factor = rs->field(QStringLiteral("Factor"));
        const QVariant finalUnits = rs->field(QStringLiteral("FinalUnits"));
        if (factor.isNull() || finalUnits.isNull()) {
            equation = QStringLiteral("No data available.");
        } else {
            const float f = vb::CSng(factor);
            units = finalUnits.toString();
            equation = units + QStringLiteral(" = ") + calc::singleText(rs->field(QStringLiteral("a"))) + QStringLiteral(" * ");
            if (f == 1.0f)
                equation += QStringLiteral("Wt(g)");
            else
                equation += QStringLiteral("(Wt(g)*") + vb::singleToText(f) + QStringLiteral(")");
            equation += QStringLiteral("^ ") + calc::singleText(rs->field(QStringLiteral("b")));
            // A null factor compares as not different from 1 and adds nothing.
            for (const QString &name : {QStringLiteral("UCF"), QStringLiteral("MMF")}) {
                const QVariant v = rs->field(name);
                if (!v.isNull() && vb::CSng(v) != 1.0f)
                    equation += QStringLiteral("*") + calc::singleText(v);
            }
        }
        rs->Close();
        result = what == QLatin1String("Equation") ? equation : units;
    });
    return result;
}

double GetIntakeRate(Session &s, qint32 intakeModelId, float weight, const QString &kind)
{
    double result = 0.0;
    // Reported under the equation text's name: the text users quote.
    guarded(s, {ErrForm::Shared, QStringLiteral("GetIntakeEquationText")}, [&] {
        s.gSQL = QStringLiteral("SELECT tblUnits.Factor, tblIntakeModel.MMF, tblIntakeModel.UCF, tblIntakeModel.a, "
                                "tblIntakeModel.b FROM tblUnits INNER JOIN tblIntakeModel ON tblUnits.UnitsID = "
                                "tblIntakeModel.WtUnitsID WHERE tblIntakeModel.IntakeModelID =")
                 + QString::number(intakeModelId);
        auto rs = s.gDB->OpenRecordset(s.gSQL, RecordsetType::Snapshot);
        if (rs->BOF() && rs->EOF_())
            return;
        const float factor = vb::CSng(rs->field(QStringLiteral("Factor")));
        const QVariant mmf = rs->field(QStringLiteral("MMF"));
        const QVariant ucf = rs->field(QStringLiteral("UCF"));
        const float m = mmf.isNull() ? 1.0f : vb::CSng(mmf);
        const float u = ucf.isNull() ? 1.0f : vb::CSng(ucf);
        // The coefficient and exponent are single-precision columns: the double arithmetic below starts
        // from their single values, as it did on the engine that stored them as singles.
        const double a = static_cast<double>(vb::CSng(rs->field(QStringLiteral("a"))));
        const double b = static_cast<double>(vb::CSng(rs->field(QStringLiteral("b"))));
        rs->Close();
        const float w = toSingle(static_cast<double>(factor) * static_cast<double>(weight));
        const float base = toSingle(static_cast<double>(u) * (a * power(static_cast<double>(w), b)));
        const float adjusted = toSingle(static_cast<double>(base) * static_cast<double>(m));
        result = kind == QLatin1String("Base") ? base : adjusted;
    });
    return result;
}
