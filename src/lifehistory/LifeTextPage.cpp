// SPDX-License-Identifier: MIT
#include "LifeTextPage.h"

#include "ControlValue.h"
#include "DataControl.h"
#include "Diagnostics.h"
#include "FormBuilder.h"
#include "LifeHistorySql.h"
#include "Recordset.h"
#include "Session.h"
#include "Utilities.h"

#include <QLabel>
#include <QPlainTextEdit>

LifeTextPage::LifeTextPage(Session &session, FormBuilder &b, const QString &dcName, const QString &boxArray,
                           const QString &optionArray)
    : LifePage(b.container()), m_session(session), m_optionArray(optionArray)
{
    const QStringList captions = LifeHistorySql::topicCaptions(optionArray);
    if (!captions.isEmpty())
        m_options = std::make_unique<OptionArray>(b, this, optionArray, QStringLiteral("Topic"), captions);
    m_dc = b.dataControl(dcName);
    m_empty = emptyNote(b, QStringLiteral("lblNoText") + dcName.mid(2),
                        QStringLiteral("The database holds no text on this topic for this species."));
    m_boxes[0] = b.memo(boxArray, 0, QString(), 8);
    FormBuilder refs = b.row();
    FormBuilder left = refs.column();
    FormBuilder right = refs.column();
    m_boxes[1] = static_cast<QPlainTextEdit *>(left.above(new QPlainTextEdit(left.container()), arrayName(boxArray, 1),
                                                          QStringLiteral("lblReferences") + dcName.mid(2),
                                                          QStringLiteral("References")));
    m_boxes[2] = static_cast<QPlainTextEdit *>(right.above(new QPlainTextEdit(right.container()), arrayName(boxArray, 2),
                                                           QStringLiteral("lblGeneralReferences") + dcName.mid(2),
                                                           QStringLiteral("General References")));
    for (QPlainTextEdit *box : m_boxes)
        ControlValue::setLocked(box, true);
    connect(m_dc, &DataControl::Reposition, this, &LifeTextPage::reposition);
}

LifeTextPage::~LifeTextPage() = default;

void LifeTextPage::load(qint32 speciesId)
{
    const int option = m_options ? m_options->chosen() : 0;
    loadRows(m_session, m_dc, QStringLiteral("frmLifeHistory.") + m_dc->objectName() + QStringLiteral("_Load"), [&] {
        return LifeHistorySql::textStatement(speciesId, LifeHistorySql::topicClause(m_optionArray, option));
    });
}

void LifeTextPage::reposition()
{
    guarded(m_session, {ErrForm::Shared, QStringLiteral("frmLifeHistory.") + m_dc->objectName() + QStringLiteral("_Reposition")},
            [&] {
                for (QPlainTextEdit *box : m_boxes)
                    ControlValue::clear(box);
                const int row = m_dc->currentRow();
                m_empty->setVisible(row < 0);
                if (row >= 0) {
                    const Recordset &rs = m_dc->current();
                    ControlValue::setText(m_boxes[0], rs.field(QStringLiteral("LIFEHIST_TEXT")).toString());
                    using namespace LifeHistorySql;
                    Database &db = *m_session.gDB;
                    ControlValue::setText(m_boxes[1], referenceText(db, referenceClause(referenceValues(rs, QStringLiteral("Ref"), 15))));
                    ControlValue::setText(m_boxes[2], referenceText(db, referenceClause(referenceValues(rs, QStringLiteral("GenRef"), 7))));
                }
                const QString position = row >= 0 ? QString::number(row + 1) : QString();
                m_dc->setCaption(position + QStringLiteral(" of ") + QString::number(m_dc->rowCount()));
            });
}
