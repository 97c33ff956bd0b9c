// SPDX-License-Identifier: MIT
// The control-value adapter: what each kind of control reads and takes, the difference between a
// program's change (no user signals, whatever the lock) and a user's (the signals a user's change
// gives, nothing at all on a disabled or locked control), and what a kind refuses.
#include "ControlValue.h"
#include "DataControl.h"
#include "Database.h"
#include "TestSupport.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <gtest/gtest.h>

namespace {
//! Counts the emissions of a signal.
struct Count {
    int n = 0;
    template <typename Sender, typename Signal>
    Count(Sender *s, Signal signal)
    {
        QObject::connect(s, signal, [this] { ++n; });
    }
};

QString refusal(const std::function<void()> &fn)
{
    try {
        fn();
    } catch (const ControlError &e) {
        return e.message();
    }
    return {};
}
}  // namespace

TEST(ControlValueText, LineEditTakesTypingOnlyWhenOpenAndBindsEmptyAsNull)
{
    QLineEdit box;
    box.setObjectName(QStringLiteral("txtName"));
    Count edited(&box, &QLineEdit::textEdited);
    EXPECT_EQ(ControlValue::kind(&box), QStringLiteral("text"));

    ControlValue::setText(&box, QStringLiteral("by program"));
    EXPECT_EQ(edited.n, 0);
    ControlValue::type(&box, QStringLiteral("typed"));
    EXPECT_EQ(ControlValue::text(&box), QStringLiteral("typed"));
    EXPECT_GT(edited.n, 0);

    // A number reaches the box as the legacy conversion writes it.
    ControlValue::setValue(&box, 2.5);
    EXPECT_EQ(ControlValue::value(&box), QVariant(QStringLiteral("2.5")));

    ControlValue::type(&box, QString());
    EXPECT_EQ(ControlValue::value(&box), QVariant(QString()));  // the value is the text, ""
    EXPECT_TRUE(ControlValue::boundValue(&box).isNull());       // the binding writes null

    ControlValue::setLocked(&box, true);
    EXPECT_TRUE(ControlValue::locked(&box));
    EXPECT_TRUE(box.isReadOnly());
    ControlValue::type(&box, QStringLiteral("ignored"));
    EXPECT_EQ(box.text(), QString());
    ControlValue::setText(&box, QStringLiteral("program writes through the lock"));
    EXPECT_EQ(box.text(), QStringLiteral("program writes through the lock"));

    ControlValue::setLocked(&box, false);
    box.setEnabled(false);
    ControlValue::type(&box, QStringLiteral("ignored"));
    EXPECT_EQ(box.text(), QStringLiteral("program writes through the lock"));
}

TEST(ControlValueText, MemoHoldsPlainTextAndHonoursItsLock)
{
    QPlainTextEdit memo;
    ControlValue::type(&memo, QStringLiteral("line one\nline two"));
    EXPECT_EQ(ControlValue::kind(&memo), QStringLiteral("text"));
    EXPECT_EQ(ControlValue::text(&memo), QStringLiteral("line one\nline two"));
    EXPECT_EQ(memo.textCursor().position(), 0);  // shows the start of its text
    ControlValue::setLocked(&memo, true);
    ControlValue::type(&memo, QStringLiteral("ignored"));
    EXPECT_EQ(ControlValue::text(&memo), QStringLiteral("line one\nline two"));
    ControlValue::clear(&memo);
    EXPECT_TRUE(ControlValue::boundValue(&memo).isNull());
}

TEST(ControlValueCombo, ValueIsTheBoundDataAndOnlyAUserChoiceIsActivated)
{
    QComboBox combo;
    combo.setObjectName(QStringLiteral("cboKind"));
    combo.addItem(QStringLiteral("Alpha"), 10);
    combo.addItem(QStringLiteral("alpha"), 20);
    combo.addItem(QStringLiteral("Beta"), 30);
    Count activated(&combo, qOverload<int>(&QComboBox::activated));
    combo.setCurrentIndex(-1);
    EXPECT_TRUE(ControlValue::value(&combo).isNull());

    ControlValue::setValue(&combo, 30);
    EXPECT_EQ(ControlValue::text(&combo), QStringLiteral("Beta"));
    EXPECT_EQ(activated.n, 0);
    ControlValue::input(&combo, 20);
    EXPECT_EQ(ControlValue::value(&combo), QVariant(20));
    EXPECT_EQ(activated.n, 1);

    // By text: the exact item first, else the first whatever the case.
    ControlValue::pick(&combo, QStringLiteral("alpha"));
    EXPECT_EQ(combo.currentIndex(), 1);
    ControlValue::pick(&combo, QStringLiteral("BETA"));
    EXPECT_EQ(combo.currentIndex(), 2);
    EXPECT_EQ(activated.n, 3);
    EXPECT_EQ(ControlValue::items(&combo), (QStringList{QStringLiteral("Alpha"), QStringLiteral("alpha"), QStringLiteral("Beta")}));
    EXPECT_EQ(refusal([&] { ControlValue::pick(&combo, 3); }), QStringLiteral("cboKind has no item 3"));

    // Locked: no user change of any sort; the program still sets it.
    ControlValue::setLocked(&combo, true);
    ControlValue::pick(&combo, 0);
    ControlValue::input(&combo, 10);
    ControlValue::type(&combo, QStringLiteral("Alpha"));
    EXPECT_EQ(combo.currentIndex(), 2);
    EXPECT_EQ(activated.n, 3);
    ControlValue::setValue(&combo, 10);
    EXPECT_EQ(combo.currentIndex(), 0);
    ControlValue::clear(&combo);
    EXPECT_EQ(combo.currentIndex(), -1);
}

TEST(ControlValueCombo, EditableComboTakesTypedTextAsItsValue)
{
    QComboBox combo;
    combo.setEditable(true);
    combo.addItems({QStringLiteral("Spring"), QStringLiteral("Summer")});
    combo.setCurrentIndex(-1);
    combo.setEditText(QString());
    EXPECT_TRUE(ControlValue::value(&combo).isNull());
    ControlValue::type(&combo, QStringLiteral("Autumn"));
    EXPECT_EQ(ControlValue::value(&combo), QVariant(QStringLiteral("Autumn")));
    ControlValue::pick(&combo, QStringLiteral("summer"));
    EXPECT_EQ(ControlValue::value(&combo), QVariant(QStringLiteral("Summer")));  // no data: the text
    ControlValue::setLocked(&combo, true);
    EXPECT_TRUE(combo.lineEdit()->isReadOnly());
    ControlValue::type(&combo, QStringLiteral("Winter"));
    EXPECT_EQ(combo.currentText(), QStringLiteral("Summer"));
}

TEST(ControlValueButtons, CheckReadsZeroOneTwoAndOnlyAUserClicks)
{
    QCheckBox check;
    Count clicked(&check, &QCheckBox::clicked);
    EXPECT_EQ(ControlValue::kind(&check), QStringLiteral("check"));
    ControlValue::setValue(&check, 2);
    EXPECT_EQ(check.checkState(), Qt::PartiallyChecked);
    EXPECT_EQ(ControlValue::value(&check), QVariant(2));
    ControlValue::setValue(&check, true);
    EXPECT_EQ(ControlValue::value(&check), QVariant(1));
    EXPECT_EQ(clicked.n, 0);
    ControlValue::input(&check, 0);
    EXPECT_EQ(ControlValue::value(&check), QVariant(0));
    EXPECT_EQ(clicked.n, 1);
    ControlValue::input(&check, 0);  // already so: no click
    EXPECT_EQ(clicked.n, 1);
    check.setEnabled(false);
    ControlValue::input(&check, 1);
    EXPECT_EQ(ControlValue::value(&check), QVariant(0));

    QWidget group;
    auto *first = new QRadioButton(QStringLiteral("first"), &group);
    auto *second = new QRadioButton(QStringLiteral("second"), &group);
    Count secondClicked(second, &QRadioButton::clicked);
    ControlValue::setValue(first, true);
    EXPECT_EQ(ControlValue::kind(first), QStringLiteral("option"));
    ControlValue::input(second, true);
    EXPECT_EQ(ControlValue::value(first), QVariant(false));
    EXPECT_EQ(ControlValue::value(second), QVariant(true));
    EXPECT_EQ(secondClicked.n, 1);
    EXPECT_EQ(ControlValue::text(second), QStringLiteral("second"));
}

TEST(ControlValueItems, TabsAndListSelectByIndexOrText)
{
    QTabWidget tabs;
    tabs.addTab(new QWidget, QStringLiteral("Species"));
    tabs.addTab(new QWidget, QStringLiteral("Diet"));
    ControlValue::pick(&tabs, QStringLiteral(" diet "));
    EXPECT_EQ(ControlValue::value(&tabs), QVariant(1));
    EXPECT_EQ(ControlValue::text(&tabs), QStringLiteral("Diet"));
    EXPECT_EQ(ControlValue::items(&tabs), (QStringList{QStringLiteral("Species"), QStringLiteral("Diet")}));

    QListWidget list;
    list.setObjectName(QStringLiteral("lstTables"));
    list.addItems({QStringLiteral("Taxon"), QStringLiteral("Status")});
    ControlValue::pick(&list, QStringLiteral("status"));
    EXPECT_EQ(ControlValue::text(&list), QStringLiteral("Status"));
    EXPECT_EQ(ControlValue::value(&list), QVariant(1));
    EXPECT_EQ(refusal([&] { ControlValue::pick(&list, 2); }), QStringLiteral("lstTables has no item 2"));
    list.setEnabled(false);
    ControlValue::pick(&list, 0);
    EXPECT_EQ(list.currentRow(), 1);

    // A tree's items, text and value by the node picked are checked through the script API.
}

TEST(ControlValueItems, GridReadsItsCurrentRowAndSelectsMoveTheDataControl)
{
    TestSession ts;
    ts->gDB->Execute(QStringLiteral("Delete * From tblProject"));
    for (const char *name : {"alpha", "beta"})
        ts->gDB->Execute(QStringLiteral("Insert Into tblProject (Name, Author) Values ('%1', 'Ann')").arg(QLatin1String(name)));
    DataControl dc(QStringLiteral("dcMain"));
    dc.setDatabase(ts->gDB);
    dc.setRecordSource(QStringLiteral("Select Name, Author From tblProject Order By Name"));
    DataGrid grid(QStringLiteral("ssGrdMain"));
    grid.setDataControl(&dc);
    dc.Refresh();
    EXPECT_EQ(ControlValue::kind(&grid), QStringLiteral("grid"));
    EXPECT_EQ(ControlValue::kind(&dc), QStringLiteral("data"));
    EXPECT_EQ(ControlValue::text(&dc), dc.caption());
    EXPECT_EQ(ControlValue::text(&grid), QStringLiteral("alpha\tAnn"));
    ControlValue::pick(&grid, 1);
    EXPECT_EQ(ControlValue::value(&grid), QVariant(1));
    EXPECT_EQ(dc.currentRow(), 1);
    EXPECT_EQ(ControlValue::text(&grid), QStringLiteral("beta\tAnn"));
}
