// SPDX-License-Identifier: MIT
#include "BuilderWeightPage.h"

#include "ControlValue.h"
#include "Diagnostics.h"
#include "FormBuilder.h"
#include "Recordset.h"
#include "Session.h"
#include "Utilities.h"
#include "VbFormat.h"
#include "clsScenario.h"
#include "frmZOB.h"

#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>

bool isValidWeightText(const QString &text)
{
    return !text.trimmed().isEmpty() && vb::Val(text) > 0;
}

BuilderWeightPage::BuilderWeightPage(frmZOB &window, FormBuilder &page) : QObject(&window), m_w(window)
{
    FormBuilder fields = page.fields(1, QStringLiteral("fraWeight"));
    m_txtWeightWeight = fields.textBox(QStringLiteral("txtWeightWeight"), QStringLiteral("Weight(g):"));
    m_txtWeightSex = fields.textBox(QStringLiteral("txtWeightSex"), QStringLiteral("Gender:"));
    m_txtWeightEstimator = fields.textBox(QStringLiteral("txtWeightEstimator"), QStringLiteral("Estimator:"));
    fields.lastLabel()->setObjectName(arrayName(QStringLiteral("lblSB"), 27));
    m_txtWeightEstimator->setReadOnly(true);
    page.label(QStringLiteral("LbLDataSource"), 1, QString());
    m_w.noteBox(page, 1, QStringLiteral("Weight Comments:"), 6);
    m_w.pageCommands(page, 1, [this] { selectFromDatabase(); }, [this] { enterHypothetical(); });
}

void BuilderWeightPage::load()
{
    Session &s = m_w.session();
    guarded(s, {ErrForm::Shared, QStringLiteral("PrS_LoadWeightControls")}, [&] {
        auto rs = s.gDB->OpenRecordset(
            QStringLiteral("SELECT tblWildlife.ScenarioID, tblWildlife.WeightID, tblWildlife.Weight, tblWildlife.WtComments, "
                           "tblWildlife.WtSex, tblEstimator.Description AS Estimator, tblWildlife.WtDataSourceID FROM tblEstimator "
                           "RIGHT JOIN tblWildlife ON tblEstimator.EstimatorID = tblWildlife.WtEstimator WHERE "
                           "tblWildlife.ScenarioID = %1").arg(s.gScenario->SID),
            RecordsetType::Dynaset);
        ControlValue::setText(m_txtWeightWeight, vb::vbFormat(rs->field(QStringLiteral("Weight")), QStringLiteral("#0.00")));
        ControlValue::setText(m_txtWeightSex, rs->field(QStringLiteral("WtSex")).toString());
        ControlValue::setText(m_txtWeightEstimator, rs->field(QStringLiteral("Estimator")).toString());
        ControlValue::setText(m_w.notes(1), rs->field(QStringLiteral("WtComments")).toString());
        s.gScenario->WeightID = rs->field(QStringLiteral("WeightID")).toInt();
        m_w.SetDataSource(rs->field(QStringLiteral("WtDataSourceID")).toInt(), 1);
        rs->Close();
        s.resetCursor();
    });
}

void BuilderWeightPage::clear()
{
    for (QWidget *box : {m_txtWeightEstimator, m_txtWeightSex, m_txtWeightWeight})
        ControlValue::clear(box);
    ControlValue::clear(arrayItem<QWidget>(&m_w, QStringLiteral("LbLDataSource"), 1));
    m_w.session().gScenario->WtEstimator = 6;
}

QString BuilderWeightPage::weightText() const
{
    return ControlValue::text(m_txtWeightWeight).trimmed();
}

void BuilderWeightPage::saveTypedWeight()
{
    clsScenario &sc = *m_w.session().gScenario;
    if (weightText().isEmpty())
        return;
    if (sc.Wt_DataSource == 2) {
        // A typed weight must be above 0; the stored weight stays until it is.
        if (!isValidWeightText(weightText())) {
            ValidateWeight();
            return;
        }
        // Text that only starts with a number fails here, and the page change reports it.
        sc.Weight = vb::CSng(ControlValue::text(m_txtWeightWeight));
        sc.WtSex = ControlValue::text(m_txtWeightSex);
    }
    sc.SaveWildlifeGroup(QStringLiteral("WT"));
}

void BuilderWeightPage::ValidateWeight()
{
    if (!isValidWeightText(weightText())) {
        m_w.session().msgBox(QStringLiteral("Invalid weight. Please enter it again..."), QString(), MsgIcon::Warning);
        return;
    }
    m_w.session().gScenario->SaveWildlifeGroup(QStringLiteral("WT"));
}

void BuilderWeightPage::selectFromDatabase()
{
    Session &s = m_w.session();
    if (s.gScenario->Species_DataSource == 2) {
        s.msgBox(QStringLiteral("Weight is not available for Hypothetical Species...!!!"), QString(), MsgIcon::Warning);
        return;
    }
    arrayItem<QWidget>(&m_w, QStringLiteral("cmdMoreInfo"), 1)->setVisible(true);
    RecordRequest request;
    request.mode = QStringLiteral("Read");
    m_w.openWindow(QStringLiteral("frmSelect_Weight"), request, true);
}

void BuilderWeightPage::enterHypothetical()
{
    clsScenario &sc = *m_w.session().gScenario;
    sc.WeightID = 0;
    sc.Wt_DataSource = 2;
    arrayItem<QWidget>(&m_w, QStringLiteral("cmdMoreInfo"), 1)->setVisible(false);
    clear();
    m_w.SetDataSource(2, m_w.currentPage());
    m_txtWeightWeight->setFocus();
}
