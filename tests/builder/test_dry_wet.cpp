// SPDX-License-Identifier: MIT
#include "ControlValue.h"
#include "QtWindowHost.h"
#include "TestSupport.h"
#include "WindowLinks.h"

#include <QCheckBox>
#include <QPushButton>
#include <gtest/gtest.h>

// The basis question answers through the caller's check box: OK writes the marked basis, Cancel
// leaves the box as it was; the captions follow the purpose.
TEST(DryWetQuestion, AnswersThroughTheCallersBox)
{
    TestSession ts;
    QtWindowHost host(ts.session());
    ts->windows = &host;
    QCheckBox answer;
    auto *chooser = host.link<BasisChooser>(QStringLiteral("frmSelect_DryWetWeight"));
    ASSERT_NE(chooser, nullptr);
    ZobWindow *w = host.loaded(QStringLiteral("frmSelect_DryWetWeight"));
    auto press = [&](int index) { w->control<QPushButton>(QStringLiteral("cmdOK(%1)").arg(index))->click(); };
    auto option = [&](int index) { return w->control<QWidget>(QStringLiteral("optDryWeight(%1)").arg(index)); };

    chooser->setPurpose(2, &answer);
    EXPECT_EQ(w->caption(), QStringLiteral("Perform calculations"));
    EXPECT_EQ(ControlValue::text(option(1)), QStringLiteral("Wet weight"));
    ControlValue::setValue(option(1), true);
    press(0);
    EXPECT_EQ(ControlValue::value(&answer).toInt(), 1);

    w = host.form(QStringLiteral("frmSelect_DryWetWeight"));
    host.link<BasisChooser>(QStringLiteral("frmSelect_DryWetWeight"))->setPurpose(1, &answer);
    EXPECT_EQ(w->caption(), QStringLiteral("Select Wet/Dry Weight"));
    EXPECT_EQ(ControlValue::text(option(0)), QStringLiteral("Dry Proportions"));
    ControlValue::setValue(option(0), true);
    press(1);
    EXPECT_EQ(ControlValue::value(&answer).toInt(), 1) << "Cancel keeps the answer given before";
    w = host.form(QStringLiteral("frmSelect_DryWetWeight"));
    host.link<BasisChooser>(QStringLiteral("frmSelect_DryWetWeight"))->setPurpose(1, &answer);
    press(0);
    EXPECT_EQ(ControlValue::value(&answer).toInt(), 0);
}
