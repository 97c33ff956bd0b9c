// SPDX-License-Identifier: MIT
#include "FormBuilder.h"

#include "DataControl.h"
#include "Utilities.h"
#include "ZobToolbar.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QVBoxLayout>

FormBuilder::FormBuilder(QWidget *container, bool horizontal) : m_container(container)
{
    m_layout = qobject_cast<QBoxLayout *>(container->layout());
    if (!m_layout) {
        m_layout = horizontal ? static_cast<QBoxLayout *>(new QHBoxLayout(container))
                              : static_cast<QBoxLayout *>(new QVBoxLayout(container));
    }
}

FormBuilder::FormBuilder(QWidget *container, QGridLayout *grid, int pairs)
    : m_container(container), m_grid(grid), m_pairs(std::max(1, pairs))
{
}

QFormLayout *FormBuilder::formRows()
{
    if (!m_rows) {
        m_rows = new QFormLayout;
        m_layout->addLayout(m_rows);
    }
    return m_rows;
}

QWidget *FormBuilder::add(QWidget *widget, const QString &name, const QString &caption)
{
    if (!name.isEmpty())
        widget->setObjectName(name);
    if (m_buddyOfFirst) {
        m_buddyOfFirst->setBuddy(widget);
        m_buddyOfFirst = nullptr;
    }
    if (m_grid) {
        if (caption.isEmpty()) {
            // A control without a caption takes a row of its own across the grid.
            nextRow();
            m_grid->addWidget(widget, m_gridRow++, 0, 1, 2 * m_pairs);
        } else {
            auto *lbl = new QLabel(caption, m_container);
            lbl->setObjectName(QStringLiteral("lbl_") + name);
            lbl->setBuddy(widget);
            m_lastLabel = lbl;
            placeInGrid(lbl, widget);
        }
        return widget;
    }
    if (caption.isEmpty()) {
        m_rows = nullptr;  // the next captioned field starts a new block of rows below this widget
        m_layout->addWidget(widget);
    } else {
        auto *lbl = new QLabel(caption, m_container);
        lbl->setObjectName(QStringLiteral("lbl_") + name);
        lbl->setBuddy(widget);
        m_lastLabel = lbl;
        formRows()->addRow(lbl, widget);
    }
    return widget;
}

void FormBuilder::placeInGrid(QWidget *label, QWidget *field)
{
    const int column = 2 * m_gridPair;
    // The caption of a memo stands at its first line.
    const bool tall = qobject_cast<QPlainTextEdit *>(field) != nullptr;
    m_grid->addWidget(label, m_gridRow, column, tall ? Qt::AlignTop : Qt::Alignment());
    m_grid->addWidget(field, m_gridRow, column + 1);
    m_grid->setColumnStretch(column + 1, 1);
    m_lastField = field;
    if (++m_gridPair == m_pairs) {
        ++m_gridRow;
        m_gridPair = 0;
        m_lastField = nullptr;
    }
}

void FormBuilder::nextRow()
{
    if (!m_grid || m_gridPair == 0)
        return;
    // The last field of a short row spans the rest of it.
    const int column = 2 * m_gridPair - 1;
    m_grid->removeWidget(m_lastField);
    m_grid->addWidget(m_lastField, m_gridRow, column, 1, 2 * m_pairs - column);
    ++m_gridRow;
    m_gridPair = 0;
    m_lastField = nullptr;
}

FormBuilder FormBuilder::fields(int pairs, const QString &name)
{
    auto *w = new QWidget(m_container);
    w->setObjectName(name);
    auto *grid = new QGridLayout(w);
    grid->setContentsMargins(0, 0, 0, 0);
    add(w, QString());
    return FormBuilder(w, grid, pairs);
}

FormBuilder FormBuilder::column(int stretch, const QString &name)
{
    auto *w = new QWidget(m_container);
    w->setObjectName(name);
    m_rows = nullptr;
    m_layout->addWidget(w, stretch);
    FormBuilder b(w);
    b.m_layout->setContentsMargins(0, 0, 0, 0);
    return b;
}

FormBuilder FormBuilder::fieldRow(const QString &name, const QString &caption)
{
    auto *w = new QWidget(m_container);
    add(w, name, caption);
    FormBuilder b(w, true);
    b.m_layout->setContentsMargins(0, 0, 0, 0);
    b.m_buddyOfFirst = caption.isEmpty() ? nullptr : m_lastLabel;
    return b;
}

QLineEdit *FormBuilder::textBox(const QString &name, const QString &caption)
{
    auto *w = new QLineEdit(m_container);
    add(w, name, caption);
    return w;
}

QLineEdit *FormBuilder::textBox(const QString &name, int index, const QString &caption)
{
    return textBox(arrayName(name, index), caption);
}

QPlainTextEdit *FormBuilder::memo(const QString &name, const QString &caption, int lines)
{
    auto *w = new QPlainTextEdit(m_container);
    w->setTabChangesFocus(true);
    if (lines > 0) {
        const int margins = static_cast<int>(2 * w->document()->documentMargin()) + 2 * w->frameWidth();
        w->setFixedHeight(w->fontMetrics().lineSpacing() * lines + margins);
    }
    add(w, name, caption);
    return w;
}

QPlainTextEdit *FormBuilder::memo(const QString &name, int index, const QString &caption, int lines)
{
    return memo(arrayName(name, index), caption, lines);
}

QComboBox *FormBuilder::combo(const QString &name, const QString &caption)
{
    auto *w = new QComboBox(m_container);
    add(w, name, caption);
    return w;
}

QComboBox *FormBuilder::combo(const QString &name, int index, const QString &caption)
{
    return combo(arrayName(name, index), caption);
}

QLabel *FormBuilder::label(const QString &name, const QString &caption)
{
    auto *w = new QLabel(caption, m_container);
    add(w, name);
    return w;
}

QLabel *FormBuilder::label(const QString &name, int index, const QString &caption)
{
    return label(arrayName(name, index), caption);
}

QCheckBox *FormBuilder::check(const QString &name, const QString &caption)
{
    auto *w = new QCheckBox(caption, m_container);
    add(w, name);
    return w;
}

QRadioButton *FormBuilder::option(const QString &name, int index, const QString &caption)
{
    auto *w = new QRadioButton(caption, m_container);
    add(w, arrayName(name, index));
    return w;
}

QPushButton *FormBuilder::button(const QString &name, const QString &caption)
{
    auto *w = new QPushButton(caption, m_container);
    w->setAutoDefault(false);
    add(w, name);
    return w;
}

QPushButton *FormBuilder::button(const QString &name, int index, const QString &caption)
{
    return button(arrayName(name, index), caption);
}

DataGrid *FormBuilder::grid(const QString &name)
{
    auto *w = new DataGrid(name, m_container);
    add(w, name);
    return w;
}

DataGrid *FormBuilder::grid(const QString &name, DataControl *dc, const QList<GridColumn> &columns, bool onlyThese)
{
    DataGrid *w = grid(name);
    w->setDataControl(dc);
    w->setColumns(columns, onlyThese);
    return w;
}

DataControl *FormBuilder::dataControl(const QString &name)
{
    auto *w = new DataControl(name, m_container);
    add(w, name);
    return w;
}

DataControl *FormBuilder::hiddenData(const QString &name)
{
    // Not laid out: it only feeds other controls.
    auto *w = new DataControl(name, m_container);
    w->setVisible(false);
    return w;
}

ZobToolbar *FormBuilder::toolbar()
{
    auto *w = new ZobToolbar(m_container);
    m_layout->insertWidget(0, w);
    return w;
}

FormBuilder FormBuilder::frame(const QString &name, const QString &caption, bool horizontal)
{
    auto *box = new QGroupBox(caption, m_container);
    add(box, name);
    m_lastFrame = box;
    return FormBuilder(box, horizontal);
}

QTabWidget *FormBuilder::tabs(const QString &name)
{
    auto *w = new QTabWidget(m_container);
    add(w, name);
    return w;
}

FormBuilder FormBuilder::page(QTabWidget *tabs, const QString &caption, const QString &name)
{
    auto *page = new QWidget(tabs);
    if (!name.isEmpty())
        page->setObjectName(name);
    tabs->addTab(page, caption);
    return FormBuilder(page);
}

FormBuilder FormBuilder::row(int stretch, const QString &name)
{
    auto *w = new QWidget(m_container);
    w->setObjectName(name);
    m_rows = nullptr;
    m_layout->addWidget(w, stretch);
    FormBuilder b(w, true);
    b.m_layout->setContentsMargins(0, 0, 0, 0);
    return b;
}

QWidget *FormBuilder::above(QWidget *widget, const QString &name, const QString &labelName, const QString &caption,
                            int stretch)
{
    label(labelName, caption)->setBuddy(widget);
    add(widget, name);
    if (stretch > 0 && m_layout)
        m_layout->setStretchFactor(widget, stretch);
    return widget;
}

QLabel *FormBuilder::panel(const QString &name, const QString &caption, int lines)
{
    auto *w = new QLabel(m_container);
    w->setTextFormat(Qt::PlainText);
    w->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    w->setWordWrap(true);
    w->setFrameShape(QFrame::StyledPanel);
    w->setFrameShadow(QFrame::Sunken);
    w->setAutoFillBackground(true);
    w->setBackgroundRole(QPalette::Base);
    w->setMargin(4);
    w->setFocusPolicy(Qt::StrongFocus);
    w->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    w->setMinimumHeight(w->fontMetrics().lineSpacing() * lines + 12);
    add(w, name, caption);
    if (QLabel *lbl = m_container->findChild<QLabel *>(QStringLiteral("lbl_") + name))
        lbl->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    return w;
}

void FormBuilder::stretch()
{
    m_rows = nullptr;
    if (m_grid)
        m_grid->setRowStretch(m_gridRow + 1, 1);
    else
        m_layout->addStretch(1);
}

void FormBuilder::userTyped(QWidget *box)
{
    setForeColor(box, legacyColor(kUserTypedColor));
}
