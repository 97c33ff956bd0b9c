// SPDX-License-Identifier: MIT
#include "DietHabitsPage.h"

#include "ControlValue.h"
#include "DataControl.h"
#include "Diagnostics.h"
#include "Diet.h"
#include "FormBuilder.h"
#include "LifeHistorySql.h"
#include "Session.h"

#include <QLabel>
#include <QLineEdit>

DietHabitsPage::DietHabitsPage(Session &session, FormBuilder &b) : LifePage(b.container()), m_session(session)
{
    FormBuilder options = b.row();
    m_lifestage = std::make_unique<OptionArray>(options, this, QStringLiteral("optLS"), QStringLiteral("Lifestage"),
                                                QStringList{"Adult", "Non-adult", "All"}, 2);
    m_sex = std::make_unique<OptionArray>(options, this, QStringLiteral("optSex"), QStringLiteral("Sex"),
                                          QStringList{"Male", "Female", "Both", "All"}, 3);
    m_dc = b.dataControl(QStringLiteral("dcFoodHabitsSpecific"));
    m_empty = emptyNote(b, QStringLiteral("lblNoDiets"),
                        QStringLiteral("The database holds no diet study of this species with these choices."));
    FormBuilder study = b.fields(3);
    const QList<QPair<const char *, const char *>> fields{
        {"Analysis", "Analysis:"}, {"Method", "Method:"},       {"Term", "Measure:"},
        {"Lifestage", "Lifestage:"}, {"Gender", "Sex:"},        {"State", "State:"},
        {"BEGMONTH", "Begins:"},    {"ENDMONTH", "Ends:"},      {"Reference", "Reference:"}};
    for (const auto &[field, caption] : fields) {
        QLineEdit *box = study.textBox(QStringLiteral("txt") + QString::fromLatin1(field), QString::fromLatin1(caption));
        ControlValue::setLocked(box, true);
        m_boxes.append({box, QString::fromLatin1(field)});
    }
    m_items = b.hiddenData(QStringLiteral("dcFoodHabitsSpecific_DI"));
    FormBuilder table = b.row(1);
    m_grid = table.grid(QStringLiteral("ssGrdDietItems"), m_items,
                        {{"Name", "Diet Item"}, {"Wet_Proportion", "Wet Proportion", "0.000"},
                         {"Dry_Proportion", "Dry Proportion", "0.000"}, {"Lifestage"}, {"CompDesc", "Component"},
                         {"Comments"}},
                        true);
    m_grid->setEditTriggers(QAbstractItemView::NoEditTriggers);
    connect(m_dc, &DataControl::Reposition, this, &DietHabitsPage::reposition);
}

DietHabitsPage::~DietHabitsPage() = default;

void DietHabitsPage::load(qint32 speciesId)
{
    loadRows(m_session, m_dc, QStringLiteral("frmLifeHistory.dcFoodHabitsSpecific_Load"),
             [&] { return LifeHistorySql::dietStatement(speciesId, m_lifestage->chosen(), m_sex->chosen()); });
}

void DietHabitsPage::reposition()
{
    guarded(m_session, {ErrForm::Shared, QStringLiteral("frmLifeHistory.dcFoodHabitsSpecific_Reposition")}, [&] {
        const int row = m_dc->currentRow();
        m_empty->setVisible(row < 0);
        for (const auto &[box, field] : m_boxes)
            ControlValue::setText(box, row >= 0 ? m_dc->value(row, field).toString() : QString());
        m_dc->setCaption(QStringLiteral("Diet Item: ") + (row >= 0 ? QString::number(row + 1) : QString())
                         + QStringLiteral(" of ") + QString::number(m_dc->rowCount()));
        // Items of the diet shown; none when there is no diet.
        const qint32 dietId = row >= 0 ? m_dc->value(row, QStringLiteral("DietID")).toInt() : -1;
        m_items->setDatabase(m_session.gDB);
        m_items->setRecordSource(GetDietItemsSQL(m_session, QStringLiteral("Perm"), dietId));
        m_items->Refresh();
        m_grid->fitColumns(40, 6);
    });
}
