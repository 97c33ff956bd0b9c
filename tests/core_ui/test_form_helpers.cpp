// SPDX-License-Identifier: MIT
#include "DataSourceText.h"
#include "TestSupport.h"
#include "Utilities.h"
#include "VbError.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <gtest/gtest.h>

TEST(LegacyColor, NumbersAreBlueGreenRed)
{
    EXPECT_EQ(legacyColor(16711680), QColor(0, 0, 255));
    EXPECT_EQ(legacyColor(255), QColor(255, 0, 0));
    EXPECT_EQ(legacyColor(0x00336699), QColor(0x99, 0x66, 0x33));
    EXPECT_EQ(toLegacyColor(QColor(0, 0, 255)), 16711680);
    EXPECT_EQ(toLegacyColor(legacyColor(0x00123456)), 0x00123456);
}

namespace {
//! A window with one control of each prefix.
struct FormFixture {
    QWidget window;
    QLineEdit *txt = new QLineEdit(QStringLiteral("text"), &window);
    QComboBox *cbo = new QComboBox(&window);
    QCheckBox *chk = new QCheckBox(&window);
    QGroupBox *fraMain = new QGroupBox(&window);
    QLabel *lbl = new QLabel(&window);
    FormFixture()
    {
        txt->setObjectName(QStringLiteral("txtName"));
        cbo->setObjectName(QStringLiteral("cboKind"));
        cbo->addItems({QStringLiteral("a"), QStringLiteral("b")});
        cbo->setCurrentIndex(1);
        chk->setObjectName(QStringLiteral("chkFlag"));
        fraMain->setObjectName(QStringLiteral("fraMain"));
        lbl->setObjectName(QStringLiteral("lblSource"));
    }
};
}  // namespace

TEST(FormHelpers, SetControlInfoByNamePrefix)
{
    TestSession ts;
    FormFixture f;
    SetControlInfo(ts.session(), &f.window, QStringLiteral("lock"), true);
    EXPECT_TRUE(isLocked(f.txt));
    EXPECT_FALSE(f.txt->hasFrame());
    EXPECT_TRUE(isLocked(f.cbo));
    EXPECT_TRUE(f.chk->isEnabled());
    EXPECT_TRUE(f.fraMain->isEnabled());
    SetControlInfo(ts.session(), &f.window, QStringLiteral("lock"), false);
    EXPECT_FALSE(isLocked(f.txt));
    EXPECT_TRUE(f.txt->hasFrame());

    SetControlInfo(ts.session(), &f.window, QStringLiteral("clear"), true);
    EXPECT_TRUE(f.txt->text().isEmpty());
    EXPECT_EQ(f.cbo->currentIndex(), -1);

    SetControlInfo(ts.session(), &f.window, QStringLiteral("enable"), false);
    EXPECT_FALSE(f.txt->isEnabled());
    EXPECT_TRUE(f.cbo->isEnabled());  // the combo verb is "enabled"
    EXPECT_TRUE(ts.messages.shown.isEmpty());

    // "enabled" on a window with a combo ends at the handler in the shared form.
    SetControlInfo(ts.session(), &f.window, QStringLiteral("enabled"), false);
    ASSERT_EQ(ts.messages.shown.size(), 1);
    EXPECT_TRUE(ts.messages.shown[0].text.startsWith(QStringLiteral("Error in routine  SetControlInfo")));
    EXPECT_EQ(ts.messages.shown[0].icon, MsgIcon::Stop);
}

TEST(FormHelpers, CommandRowAndOptions)
{
    QWidget w;
    QVector<QPushButton *> cmd;
    for (int i = 0; i < 7; ++i) {
        cmd << new QPushButton(&w);
        cmd.back()->setObjectName(arrayName(QStringLiteral("cmdControl"), i));
    }
    auto *fra = new QGroupBox(&w);
    fra->setObjectName(QStringLiteral("fraMain"));
    cmd[5]->setEnabled(false);
    SetCmdControls(&w, 1);
    const bool mode1[] = {true, false, false, true, true, false, true};
    for (int i = 0; i < 7; ++i)
        EXPECT_EQ(cmd[i]->isEnabled(), mode1[i]) << i;
    EXPECT_FALSE(fra->isEnabled());
    cmd[5]->setEnabled(true);
    SetCmdControls(&w, 2);
    for (int i = 0; i < 7; ++i)
        EXPECT_EQ(cmd[i]->isEnabled(), i == 5 ? true : !mode1[i]) << i;
    EXPECT_TRUE(fra->isEnabled());

    QVector<QAbstractButton *> opts;
    for (int i = 0; i < 3; ++i) {
        opts << new QRadioButton(&w);
        opts.back()->setObjectName(arrayName(QStringLiteral("optMeanMaxMin"), i));
    }
    EXPECT_EQ(GetOptionIndex(opts), -1);
    opts[2]->setChecked(true);
    EXPECT_EQ(GetOptionIndex(opts), 2);
}

TEST(FormHelpers, DataSourceTextAndColour)
{
    TestSession ts;
    auto rs = ts->gDB->OpenRecordset(QStringLiteral("Select * From tblDataSource Order By DataSourceID"));
    ASSERT_FALSE(rs->EOF_());
    const qint32 id = rs->field(QStringLiteral("DataSourceID")).toInt();
    const QString description = rs->field(QStringLiteral("Description")).toString();
    // A known source's label text and colour are checked through a window by runtime.js.
    QLabel other(QStringLiteral("before"));
    SetDataQuality(ts.session(), &other, 987654);
    EXPECT_EQ(other.text(), QStringLiteral("before"));

    EXPECT_EQ(GetDataFlagText(ts.session(), id), description + QStringLiteral("  "));
    EXPECT_EQ(GetDataSourceText(ts.session(), id), description);
    EXPECT_EQ(GetDataSourceText(ts.session(), 987654), QStringLiteral("not found"));
    EXPECT_TRUE(ts.messages.shown.isEmpty());
    EXPECT_EQ(GetDataFlagText(ts.session(), 987654), QStringLiteral("unknown"));
    ASSERT_EQ(ts.messages.shown.size(), 1);
    EXPECT_EQ(ts.messages.shown[0].text, QStringLiteral("Error Data Flag: 987654 could not be found in the database."));
    EXPECT_EQ(ts.messages.shown[0].icon, MsgIcon::Warning);
}
