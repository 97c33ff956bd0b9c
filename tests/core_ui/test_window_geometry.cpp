// SPDX-License-Identifier: MIT
// Window sizes that fit the screen: the main window's first size at 100 % and 150 %, and child windows
// kept inside the workspace that shows them.
#include "WindowGeometry.h"

#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <gtest/gtest.h>

TEST(WindowGeometry, TheFirstSizeFitsTheAvailableScreenAtAnyScale)
{
    const QSize usual(1024, 720);
    // 1920 x 1080 with a panel, at 100 %: the usual size.
    EXPECT_EQ(WindowGeometry::firstSize(usual, QRect(0, 0, 1920, 1040)), usual);
    // The same screen at 150 % is 1280 x 693 device-independent pixels: the height gives way.
    const QSize at150 = WindowGeometry::firstSize(usual, QRect(0, 0, 1280, 693));
    EXPECT_EQ(at150.width(), 1024);
    EXPECT_LE(at150.height(), 693 * 9 / 10 + 1);
    // A small screen: both give way, leaving a margin for the frame.
    const QSize small = WindowGeometry::firstSize(usual, QRect(0, 0, 800, 600));
    EXPECT_LT(small.width(), 800);
    EXPECT_LT(small.height(), 600);
}

TEST(WindowGeometry, AWindowIsShrunkAndMovedInsideItsBounds)
{
    const QRect bounds(0, 0, 800, 500);
    EXPECT_EQ(WindowGeometry::fitted(QRect(10, 20, 300, 200), bounds), QRect(10, 20, 300, 200));
    // Too far right and down: moved back so that its far edges touch the bounds.
    EXPECT_EQ(WindowGeometry::fitted(QRect(700, 450, 300, 200), bounds), QRect(500, 300, 300, 200));
    // Too big: shrunk to the bounds and put at their corner.
    EXPECT_EQ(WindowGeometry::fitted(QRect(40, 30, 1000, 700), bounds), bounds);
    // Bounds that do not start at the origin.
    EXPECT_EQ(WindowGeometry::fitted(QRect(0, 0, 100, 100), QRect(50, 60, 400, 300)), QRect(50, 60, 100, 100));
}

TEST(WindowGeometry, AChildWindowLargerThanTheWorkspaceIsFittedIntoIt)
{
    QMdiArea area;
    area.resize(600, 400);
    area.show();
    auto *content = new QLabel(QStringLiteral("content"));
    content->setMinimumSize(100, 100);
    QMdiSubWindow *sub = area.addSubWindow(content);
    sub->setGeometry(250, 150, 900, 700);
    sub->show();
    WindowGeometry::fitInside(sub, area.viewport());
    EXPECT_TRUE(area.viewport()->rect().contains(sub->geometry())) << sub->geometry().width() << "x" << sub->geometry().height();
}
