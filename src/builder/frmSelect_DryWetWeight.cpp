// SPDX-License-Identifier: MIT
#include "frmSelect_DryWetWeight.h"

#include "ControlValue.h"
#include "FormBuilder.h"
#include "QtWindowHost.h"

#include <QGroupBox>
#include <QPushButton>
#include <QRadioButton>

namespace {
const WindowRegistration<frmSelect_DryWetWeight> reg(QStringLiteral("frmSelect_DryWetWeight"));
}  // namespace

frmSelect_DryWetWeight::frmSelect_DryWetWeight(Session &session, QtWindowHost &host)
    : ZobWindow(session, host, QStringLiteral("frmSelect_DryWetWeight"))
{
    FormBuilder b(this);
    FormBuilder group = b.frame(QStringLiteral("fraDietType"), QString());
    m_fraDietType = b.lastFrame();
    m_optDryWeight[0] = group.option(QStringLiteral("optDryWeight"), 0, QString());
    m_optDryWeight[1] = group.option(QStringLiteral("optDryWeight"), 1, QString());
    m_optDryWeight[0]->setChecked(true);
    FormBuilder buttons = b.row();
    buttons.stretch();
    const QList<QPushButton *> cmdOK = commandButtons(buttons, QStringLiteral("cmdOK"),
                                                      {{0, QStringLiteral("&OK"), [this] { ok(); }},
                                                       {1, QStringLiteral("Cancel"), [this] { unloadMe(); }}});
    cmdOK[0]->setDefault(true);
    setPurpose(1, nullptr);
}

void frmSelect_DryWetWeight::setPurpose(qint16 purpose, QWidget *answer)
{
    iOpt = purpose;
    m_ctl = answer;
    const bool sums = purpose == 1;
    setCaption(sums ? QStringLiteral("Select Wet/Dry Weight") : QStringLiteral("Perform calculations"));
    m_fraDietType->setTitle(sums ? QStringLiteral("Sum Proportions to 1.0") : QStringLiteral("Select Wet/Dry Weight"));
    m_optDryWeight[0]->setText(sums ? QStringLiteral("Dry Proportions") : QStringLiteral("Dry weight"));
    m_optDryWeight[1]->setText(sums ? QStringLiteral("Wet Proportions") : QStringLiteral("Wet weight"));
    adjustSize();
}

void frmSelect_DryWetWeight::ok()
{
    if (m_ctl)
        ControlValue::setValue(m_ctl, m_optDryWeight[1]->isChecked() ? 1 : 0);
    unloadMe();
}
