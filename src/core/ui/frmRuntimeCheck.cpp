// SPDX-License-Identifier: MIT
#include "frmRuntimeCheck.h"

#include "DataControl.h"
#include "Diagnostics.h"
#include "FormBuilder.h"
#include "QtWindowHost.h"
#include "Session.h"
#include "Utilities.h"
#include "ZobToolbar.h"
#include "frmRuntimeDialog.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

frmRuntimeCheck::frmRuntimeCheck(Session &session, QtWindowHost &host)
    : ZobWindow(session, host, QStringLiteral("frmRuntimeCheck"))
{
    setCaption(QStringLiteral("Runtime Check"));
    HelpContextID = 1000;
    FormBuilder b(this);
    ZobToolbar *tb = b.toolbar();
    tb->addButton(QStringLiteral("Open"), QStringLiteral("Open the dialog"));
    tb->addSeparatorButton();
    tb->addButton(QStringLiteral("Close"), QStringLiteral("Close"));
    tb->addButton(QStringLiteral("Help"), QStringLiteral("Help"));
    m_ssGrdMain = b.grid(QStringLiteral("ssGrdMain"));
    m_dcMain = b.dataControl(QStringLiteral("dcMain"));
    m_txtDescription = b.textBox(QStringLiteral("txtDescription"), QStringLiteral("Description:"));
    FormBuilder::userTyped(m_txtDescription);
    m_lblDataSource = b.label(QStringLiteral("lblDataSource"), QString());
    FormBuilder buttons = b.row();
    QPushButton *open = buttons.button(QStringLiteral("cmdCheck"), 0, QStringLiteral("Open &Dialog"));
    QPushButton *ask = buttons.button(QStringLiteral("cmdCheck"), 1, QStringLiteral("&Ask"));
    m_lblResult = b.label(QStringLiteral("lblResult"), QString());

    m_dcMain->bind(m_txtDescription, QStringLiteral("Description"));
    m_ssGrdMain->setDataControl(m_dcMain);

    connect(open, &QPushButton::clicked, this, [this] {
        this->host().show(QStringLiteral("frmRuntimeDialog"), true);
        m_lblResult->setText(QStringLiteral("Dialog: ") + frmRuntimeDialog::lastResult);
    });
    connect(ask, &QPushButton::clicked, this, [this] {
        const MsgAnswer a = this->session().msgBox(QStringLiteral("Do you want to continue?"), QStringLiteral("Runtime Check"),
                                                   MsgIcon::Question, MsgButtons::YesNo, 2);
        m_lblResult->setText(QStringLiteral("Answer: ") + answerName(a));
    });
    connect(tb, &ZobToolbar::ButtonClick, this, [this, open](int index, const QString &) {
        if (index == 1)
            open->click();
        else if (index == 3)
            unloadMe();
        else if (index == 4)
            showHelp();
    });
    connect(m_ssGrdMain, &DataGrid::HeadClick, this, [this](int column) {
        sortBy(m_dcMain->fields().value(column));
    });
    connect(m_ssGrdMain, &DataGrid::DblClick, this, [this] {
        const int row = m_dcMain->currentRow();
        if (row < 0)
            return;
        this->session().msgBox(QStringLiteral("Data source: ") + m_dcMain->value(row, QStringLiteral("Description")).toString(),
                               QString(), MsgIcon::Information);
    });
    connect(m_dcMain, &DataControl::Reposition, this, [this] {
        const int row = m_dcMain->currentRow();
        if (row >= 0)
            SetDataQuality(this->session(), m_lblDataSource, m_dcMain->value(row, QStringLiteral("DataSourceID")).toInt());
    });
}

void frmRuntimeCheck::Form_Load()
{
    guarded(session(), {ErrForm::Qualified, QStringLiteral("frmRuntimeCheck.Form_Load")}, [&] {
        m_dcMain->setDatabase(session().gDB);
        m_ssGrdMain->setColumnHidden(QStringLiteral("ForeColor"), true);
        m_ssGrdMain->setColumnCaption(QStringLiteral("DataSourceID"), QStringLiteral("Id"));
        sortBy(QStringLiteral("DataSourceID"));
    });
}

void frmRuntimeCheck::sortBy(const QString &field)
{
    guarded(session(), {ErrForm::Qualified, QStringLiteral("frmRuntimeCheck.ssGrdMain_HeadClick")}, [&] {
        m_dcMain->setRecordSource(QStringLiteral("Select DataSourceID, Description, ForeColor From tblDataSource Order By ") + field);
        m_dcMain->Refresh();
    });
}

void frmRuntimeCheck::Form_Unload(bool &cancel)
{
    m_dcMain->UpdateRecord();
    cancel = session().msgBox(QStringLiteral("Close the runtime check?"), QStringLiteral("Runtime Check"), MsgIcon::Question,
                              MsgButtons::YesNo, 1) == MsgAnswer::No;
}
