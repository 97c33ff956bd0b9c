// SPDX-License-Identifier: MIT
#include "FormBuilder.h"

#include "DataControl.h"
#include "Utilities.h"
#include "ZobToolbar.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
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
    if (caption.isEmpty()) {
        m_rows = nullptr;  // the next captioned field starts a new block of rows below this widget
        m_layout->addWidget(widget);
    } else {
        auto *lbl = new QLabel(caption, m_container);
        lbl->setObjectName(QStringLiteral("lbl_") + name);
        lbl->setBuddy(widget);
        formRows()->addRow(lbl, widget);
    }
    return widget;
}

QLineEdit *FormBuilder::textBox(const QString &name, const QString &caption)
{
    auto *w = new QLineEdit(m_container);
    add(w, name, caption);
    return w;
}

QPlainTextEdit *FormBuilder::memo(const QString &name, const QString &caption)
{
    auto *w = new QPlainTextEdit(m_container);
    w->setTabChangesFocus(true);
    add(w, name, caption);
    return w;
}

QComboBox *FormBuilder::combo(const QString &name, const QString &caption)
{
    auto *w = new QComboBox(m_container);
    add(w, name, caption);
    return w;
}

QLabel *FormBuilder::label(const QString &name, const QString &caption)
{
    auto *w = new QLabel(caption, m_container);
    add(w, name);
    return w;
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

DataControl *FormBuilder::dataControl(const QString &name)
{
    auto *w = new DataControl(name, m_container);
    add(w, name);
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

FormBuilder FormBuilder::row()
{
    auto *w = new QWidget(m_container);
    m_rows = nullptr;
    m_layout->addWidget(w);
    FormBuilder b(w, true);
    b.m_layout->setContentsMargins(0, 0, 0, 0);
    return b;
}

void FormBuilder::stretch()
{
    m_rows = nullptr;
    m_layout->addStretch(1);
}

void FormBuilder::userTyped(QWidget *box)
{
    setForeColor(box, legacyColor(kUserTypedColor));
}
