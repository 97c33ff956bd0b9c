// SPDX-License-Identifier: MIT
// The program's style: standard icons made once per direction of writing, installed once.
#include "ProgramStyle.h"

#include <QApplication>
#include <QStyleOption>
#include <gtest/gtest.h>

TEST(ProgramStyle, StandardIconsAreMadeOncePerDirectionOfWriting)
{
    ProgramStyle style;
    QStyleOption leftToRight, rightToLeft;
    leftToRight.direction = Qt::LeftToRight;
    rightToLeft.direction = Qt::RightToLeft;
    const QIcon back = style.standardIcon(QStyle::SP_ArrowBack, &leftToRight);
    EXPECT_EQ(style.standardIcon(QStyle::SP_ArrowBack, &leftToRight).cacheKey(), back.cacheKey());
    // "Back" points the other way in a right-to-left window: the same as "forward" left to right.
    const QIcon backRtl = style.standardIcon(QStyle::SP_ArrowBack, &rightToLeft);
    EXPECT_NE(backRtl.cacheKey(), back.cacheKey());
    EXPECT_EQ(backRtl.pixmap(16).toImage(), style.standardIcon(QStyle::SP_ArrowForward, &leftToRight).pixmap(16).toImage());
    EXPECT_NE(style.standardIcon(QStyle::SP_TitleBarCloseButton).cacheKey(), back.cacheKey());
}

TEST(ProgramStyle, InstallingTwiceKeepsTheFirstStyleAndTheTextLayout)
{
    ProgramStyle::install();
    QStyle *first = QApplication::style();
    ProgramStyle::install();
    EXPECT_EQ(QApplication::style(), first);
    EXPECT_TRUE(qobject_cast<ProgramStyle *>(first));
    EXPECT_TRUE(QApplication::font().styleStrategy() & QFont::PreferNoShaping);
}
