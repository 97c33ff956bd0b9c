// SPDX-License-Identifier: MIT
// The tables windows are described by: label/field grids, toolbars and menus.
#include "FormBuilder.h"
#include "MenuTable.h"
#include "ZobToolbar.h"

#include <QAction>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QWidget>
#include <gtest/gtest.h>

namespace {
//! Row, column and column span of a widget in the grid that holds it.
struct Cell {
    int row = -1, column = -1, span = 0;
};
Cell cellOf(QWidget *w)
{
    auto *grid = qobject_cast<QGridLayout *>(w->parentWidget()->layout());
    Cell c;
    if (!grid)
        return c;
    int rowSpan = 0;
    grid->getItemPosition(grid->indexOf(w), &c.row, &c.column, &rowSpan, &c.span);
    return c;
}
}  // namespace

TEST(FieldGrid, PairsFillRowsInReadingOrderAndAShortRowsLastFieldSpansTheRest)
{
    QWidget form;
    FormBuilder b(&form);
    FormBuilder g = b.fields(2);
    QLineEdit *name = g.textBox(QStringLiteral("txtName"), QStringLiteral("Name:"));
    g.nextRow();
    QLineEdit *lat = g.textBox(QStringLiteral("txtLat"), QStringLiteral("Latitude:"));
    QLineEdit *lon = g.textBox(QStringLiteral("txtLon"), QStringLiteral("Longitude:"));
    QPlainTextEdit *notes = g.memo(QStringLiteral("txtNotes"), 3, QStringLiteral("Notes:"), 2);
    g.nextRow();
    g.nextRow();  // an empty row ends nothing

    EXPECT_EQ(cellOf(name).row, 0);
    EXPECT_EQ(cellOf(name).span, 3);  // the field and the second pair's label and field
    EXPECT_EQ(cellOf(lat).row, 1);
    EXPECT_EQ(cellOf(lat).column, 1);
    EXPECT_EQ(cellOf(lon).row, 1);
    EXPECT_EQ(cellOf(lon).column, 3);
    EXPECT_EQ(cellOf(lon).span, 1);
    EXPECT_EQ(cellOf(notes).row, 2);
    EXPECT_EQ(cellOf(notes).span, 3);
    EXPECT_EQ(notes->objectName(), QStringLiteral("txtNotes(3)"));

    for (QWidget *field : {static_cast<QWidget *>(name), static_cast<QWidget *>(lat), static_cast<QWidget *>(notes)}) {
        auto *label = form.findChild<QLabel *>(QStringLiteral("lbl_") + field->objectName());
        ASSERT_NE(label, nullptr) << field->objectName().toStdString();
        EXPECT_EQ(label->buddy(), field);
        EXPECT_EQ(cellOf(label).row, cellOf(field).row);
        EXPECT_EQ(cellOf(label).column, cellOf(field).column - 1);
    }
    // A two-line memo is taller than a one-line box but not as tall as an unlimited one.
    EXPECT_GT(notes->height(), name->sizeHint().height());
    EXPECT_EQ(notes->minimumHeight(), notes->maximumHeight());
}

TEST(ToolbarTable, SeparatorsAndSparesCountInTheIndexAndHandlersRunThroughTheWrapper)
{
    QWidget w;
    ZobToolbar tb(&w);
    QStringList ran;
    QStringList wrapped;
    tb.define({ToolButton::spare(),
               {QStringLiteral("New"), QStringLiteral("Make one"), QStringLiteral("New"), [&] { ran << QStringLiteral("New"); }},
               ToolButton::separator(),
               {QStringLiteral("Close"), QStringLiteral("Close it"), {}, [&] { ran << QStringLiteral("Close"); }},
               {QStringLiteral("Print"), QStringLiteral("Print it"), {}, {}}},
              [&](const std::function<void()> &handler) {
                  wrapped << QStringLiteral("in");
                  handler();
              });
    EXPECT_EQ(tb.buttonCount(), 5);
    EXPECT_EQ(tb.indexOf(QStringLiteral("New")), 2);
    EXPECT_EQ(tb.indexOf(QStringLiteral("close")), 4);
    EXPECT_FALSE(tb.button(1)->isVisible());
    EXPECT_TRUE(tb.button(1)->isSeparator());
    EXPECT_TRUE(tb.button(3)->isVisible());
    EXPECT_EQ(tb.button(4)->text(), QStringLiteral("Close"));  // no caption: the key
    EXPECT_EQ(tb.button(4)->toolTip(), QStringLiteral("Close it"));

    EXPECT_TRUE(tb.click(4));
    EXPECT_TRUE(tb.click(QStringLiteral("New")));
    EXPECT_FALSE(tb.click(3));  // a separator is no button
    EXPECT_TRUE(tb.click(QStringLiteral("Print")));  // a button without a handler does nothing
    EXPECT_EQ(ran, (QStringList{QStringLiteral("Close"), QStringLiteral("New")}));
    EXPECT_EQ(wrapped.size(), 2);

    tb.button(QStringLiteral("New"))->setEnabled(false);
    tb.click(QStringLiteral("New"));
    EXPECT_EQ(ran.size(), 2);  // a disabled button is not pressed
}

TEST(MenuTable, ItemsNamedInOrderWithSubmenusAndSeparatorsAndMissingWindowsSaySo)
{
    QMenuBar bar;
    int opened = 0;
    QMenu *menu = addMenu(&bar, QStringLiteral("mnuData"), QStringLiteral("&Data"),
                          {{QStringLiteral("mnuOpen"), QStringLiteral("&Open"), [&] { ++opened; }},
                           MenuEntry::separatorNamed(QStringLiteral("mnuBar1")),
                           {QStringLiteral("mnuMissing"), QStringLiteral("Missing"), [&] { ++opened; },
                            QStringLiteral("frmNoSuchWindow")},
                           {QStringLiteral("mnuMore"), QStringLiteral("More"), {}, {}, {
                                {QStringLiteral("mnuInner"), QStringLiteral("Inner"), [&] { opened += 10; }},
                            }}},
                          QStringLiteral("mnuDataTitle"));
    EXPECT_EQ(menu->objectName(), QStringLiteral("mnuData"));
    EXPECT_EQ(menu->menuAction()->objectName(), QStringLiteral("mnuDataTitle"));
    const QList<QAction *> actions = menu->actions();
    ASSERT_EQ(actions.size(), 4);
    EXPECT_EQ(actions[0]->objectName(), QStringLiteral("mnuOpen"));
    EXPECT_TRUE(actions[1]->isSeparator());
    EXPECT_EQ(actions[1]->objectName(), QStringLiteral("mnuBar1"));

    QAction *missing = actions[2];
    EXPECT_FALSE(missing->isEnabled());
    EXPECT_EQ(missing->toolTip(), missingWindowTip(QStringLiteral("frmNoSuchWindow")));
    EXPECT_EQ(missing->statusTip(), missing->toolTip());
    EXPECT_TRUE(missing->toolTip().contains(QStringLiteral("frmNoSuchWindow")));

    actions[0]->trigger();
    ASSERT_NE(actions[3]->menu(), nullptr);
    actions[3]->menu()->actions().value(0)->trigger();
    EXPECT_EQ(opened, 11);
}
