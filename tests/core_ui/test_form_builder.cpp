// SPDX-License-Identifier: MIT
#include "FormBuilder.h"

#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QWidget>
#include <gtest/gtest.h>

TEST(FormBuilderRows, FieldRowLabelsItsFirstControlAndKeepsItsControlsSideBySide)
{
    QWidget form;
    FormBuilder b(&form);
    FormBuilder row = b.fieldRow(QStringLiteral("fraPath(0)"), QStringLiteral("Export Path:"));
    QLineEdit *box = row.textBox(QStringLiteral("Path"), 0);
    QPushButton *choose = row.button(QStringLiteral("cmdPath"), 0, QStringLiteral("..."));
    auto *lbl = form.findChild<QLabel *>(QStringLiteral("lbl_fraPath(0)"));
    ASSERT_NE(lbl, nullptr);
    EXPECT_EQ(lbl->text(), QStringLiteral("Export Path:"));
    EXPECT_EQ(lbl->buddy(), box);
    EXPECT_EQ(b.lastLabel(), lbl);
    EXPECT_EQ(box->objectName(), QStringLiteral("Path(0)"));
    EXPECT_EQ(box->parentWidget(), choose->parentWidget());
    EXPECT_EQ(box->parentWidget()->objectName(), QStringLiteral("fraPath(0)"));

    form.resize(400, 100);
    form.show();
    form.layout()->activate();
    box->parentWidget()->layout()->activate();
    EXPECT_LT(box->geometry().right(), choose->geometry().left());
    EXPECT_EQ(box->geometry().top(), choose->geometry().top());
}

TEST(FormBuilderRows, LastLabelFollowsTheCaptionedFieldsOfAGridAndARowWithoutCaptionTakesNoBuddy)
{
    QWidget form;
    FormBuilder b(&form);
    FormBuilder grid = b.fields();
    EXPECT_EQ(grid.lastLabel(), nullptr);
    QLineEdit *first = grid.textBox(QStringLiteral("txtA"), QStringLiteral("A:"));
    QLabel *a = grid.lastLabel();
    ASSERT_NE(a, nullptr);
    EXPECT_EQ(a->buddy(), first);
    // A control without a caption leaves the last label as it was.
    grid.label(QStringLiteral("lblNote"), QStringLiteral("note"));
    EXPECT_EQ(grid.lastLabel(), a);
    // A row without a caption has no label, and the last label does not become its first control's.
    FormBuilder bare = grid.fieldRow(QStringLiteral("fraBare"), QString());
    QLineEdit *inRow = bare.textBox(QStringLiteral("txtB"));
    EXPECT_EQ(a->buddy(), first);
    EXPECT_EQ(form.findChild<QLabel *>(QStringLiteral("lbl_fraBare")), nullptr);
    EXPECT_EQ(inRow->parentWidget()->objectName(), QStringLiteral("fraBare"));
}
