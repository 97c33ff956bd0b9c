// SPDX-License-Identifier: MIT
#include "LifeTablePage.h"

#include "ControlValue.h"
#include "Diagnostics.h"
#include "FormBuilder.h"
#include "Session.h"

#include <QLabel>
#include <QPlainTextEdit>

LifeTablePage::LifeTablePage(Session &session, FormBuilder &b, const QString &dcName, const QString &gridName,
                             const QList<OptionSpec> &arrays, Statement statement, const QList<GridColumn> &columns,
                             const QString &referenceBox, const QString &emptyWords)
    : LifePage(b.container()), m_session(session), m_statement(std::move(statement))
{
    if (!arrays.isEmpty()) {
        FormBuilder options = b.row();
        for (const OptionSpec &a : arrays)
            m_arrays.push_back(std::make_unique<OptionArray>(options, this, a.name, a.caption, a.options, a.chosen));
    }
    m_dc = b.hiddenData(dcName);
    m_empty = emptyNote(b, QStringLiteral("lblNoRecords") + dcName.mid(2), emptyWords);
    FormBuilder table = b.row(1);
    m_grid = table.grid(gridName, m_dc, columns, true);
    m_grid->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_reference = static_cast<QPlainTextEdit *>(b.above(new QPlainTextEdit(b.container()), referenceBox,
                                                        QStringLiteral("lblReference") + dcName.mid(2),
                                                        QStringLiteral("Reference")));
    m_reference->setMaximumHeight(m_reference->fontMetrics().lineSpacing() * 4);
    ControlValue::setLocked(m_reference, true);
    connect(m_dc, &DataControl::Reposition, this, &LifeTablePage::reposition);
}

LifeTablePage::~LifeTablePage() = default;

void LifeTablePage::load(qint32 speciesId)
{
    QList<int> chosen;
    for (const auto &a : m_arrays)
        chosen << a->chosen();
    loadRows(m_session, m_dc, QStringLiteral("frmLifeHistory.") + m_dc->objectName() + QStringLiteral("_Load"),
             [&] { return m_statement(speciesId, chosen); });
    m_grid->fitColumns(40, 6);
}

void LifeTablePage::reposition()
{
    const int row = m_dc->currentRow();
    const bool none = m_dc->rowCount() == 0;
    m_empty->setVisible(none);
    m_grid->setVisible(!none);
    ControlValue::setText(m_reference, row >= 0 ? m_dc->value(row, QStringLiteral("Reference")).toString() : QString());
}
