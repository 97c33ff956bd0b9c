// SPDX-License-Identifier: MIT
// The report engine without a window: bound fields with their patterns, groups with headers, footers
// and sums, page breaks with the page header, repeated group heads and "Page N of M" on every page,
// a text taller than a page split between its lines, a sub-report bound to a field of its owner
// pushing what follows down, the start routine, and the PDF file read back with pdftotext.
#include "ActiveReport.h"
#include "Database.h"
#include "ReportLayout.h"
#include "TestSupport.h"
#include "VbError.h"

#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {
//! A plain report over the scenario table: one group per type, detail name and id.
class ListReport : public ActiveReport {
public:
    explicit ListReport(Session &s) : ActiveReport(s, QStringLiteral("ListReport"))
    {
        pageHeader.items << label(QStringLiteral("lblTitle"), QStringLiteral("Scenario list"), 0, 0, 300);
        pageHeader.height = 20;
        groupHeader.groupField = QStringLiteral("Scenario_Type");
        groupHeader.repeat = true;
        groupHeader.items << field(QStringLiteral("fldType"), QStringLiteral("Scenario_Type"), 0, 0, 200);
        groupHeader.height = 16;
        detail.items << field(QStringLiteral("fldName"), QStringLiteral("Scenario_Identifier_1"), 20, 0, 200)
                     << field(QStringLiteral("fldId"), QStringLiteral("ScenarioID"), 300, 0, 100, QStringLiteral("#,##0.00"), Qt::AlignRight)
                     << field(QStringLiteral("fldComments"), QStringLiteral("Comments"), 20, 14, 400);
        detail.height = 28;
        ReportItem sum = field(QStringLiteral("fldSum"), QStringLiteral("ScenarioID"), 300, 0, 100, QStringLiteral("#,##0.00"), Qt::AlignRight);
        sum.summary = Summary::Sum;
        groupFooter.items << label({}, QStringLiteral("Group total"), 0, 0, 100) << sum;
        groupFooter.height = 16;
        sum.summary = Summary::Count;
        sum.format = QStringLiteral("0");
        reportFooter.items << label({}, QStringLiteral("Scenarios"), 0, 0, 100) << sum
                           << label(QStringLiteral("lblStart"), QStringLiteral("design text"), 0, 20, 300);
        reportFooter.height = 40;
        ReportItem page = label({}, QStringLiteral("Page %1 of %2"), 0, 0, 200);
        page.kind = ItemKind::PageNumber;
        pageFooter.items << page;
        pageFooter.height = 14;
    }
    void ActiveReport_ReportStart() override
    {
        ++starts;
        setText(QStringLiteral("lblStart"), QStringLiteral("filled at start"));
        recordSource = QStringLiteral("SELECT * FROM tblScenario ORDER BY Scenario_Type, ScenarioID");
    }
    int starts = 0;
};

class ReportEngine : public ::testing::Test {
protected:
    ReportEngine() : ts(false) {}
    void addScenario(const QString &type, const QString &name, const QString &comments = {})
    {
        ts->gDB->Execute(QStringLiteral("INSERT INTO tblScenario (Scenario_Type, Scenario_Identifier_1, Comments) VALUES ('%1', '%2', %3)")
                             .arg(type, name, comments.isEmpty() ? QStringLiteral("Null") : QLatin1Char('\'') + comments + QLatin1Char('\'')));
    }
    static QStringList lines(const ReportPage &page) { return page.text().split(QLatin1Char('\n')); }
    //! Nothing drawn outside the paper's margins.
    static void expectInsideMargins(const QList<ReportPage> &pages, QSizeF paper)
    {
        const QRectF body(ReportLayout::kMargin - 0.5, ReportLayout::kMargin - 0.5, paper.width() - 2 * ReportLayout::kMargin + 1,
                          paper.height() - 2 * ReportLayout::kMargin + 1);
        for (const ReportPage &p : pages)
            for (const DrawnItem &d : p.items)
                EXPECT_TRUE(body.contains(d.rect)) << d.text.toStdString() << " at " << d.rect.y();
    }
    TestSession ts;
};
}  // namespace

TEST_F(ReportEngine, GroupsFormatsAndSums)
{
    addScenario(QStringLiteral("Wildlife"), QStringLiteral("Heron"));
    addScenario(QStringLiteral("Contaminant"), QStringLiteral("Lead"));
    addScenario(QStringLiteral("Wildlife"), QStringLiteral("Mink"));
    ListReport r(ts.session());
    const QList<ReportPage> pages = ReportLayout().layout(r);
    ASSERT_EQ(pages.size(), 1);
    EXPECT_EQ(r.starts, 1);
    EXPECT_EQ(lines(pages[0]), (QStringList{QStringLiteral("Scenario list"), QStringLiteral("Contaminant"), QStringLiteral("Lead 2.00"),
                                            QStringLiteral("Group total 2.00"), QStringLiteral("Wildlife"), QStringLiteral("Heron 1.00"),
                                            QStringLiteral("Mink 3.00"), QStringLiteral("Group total 4.00"), QStringLiteral("Scenarios 3"),
                                            QStringLiteral("filled at start"), QStringLiteral("Page 1 of 1")}));
    // Right-aligned numbers end at the field's right edge.
    for (const DrawnItem &d : pages[0].items)
        if (d.text == QLatin1String("2.00")) {
            EXPECT_EQ(d.align, Qt::AlignRight);
            EXPECT_DOUBLE_EQ(d.rect.right(), ReportLayout::kMargin + 400);
        }
    EXPECT_THROW(r.item(QStringLiteral("fldMissing")), VbError);
}

TEST_F(ReportEngine, EmptyDataPrintsHeadersAndFootersOnly)
{
    ListReport r(ts.session());
    const QList<ReportPage> pages = ReportLayout().layout(r);
    ASSERT_EQ(pages.size(), 1);
    EXPECT_EQ(lines(pages[0]), (QStringList{QStringLiteral("Scenario list"), QStringLiteral("Scenarios 0"),
                                            QStringLiteral("filled at start"), QStringLiteral("Page 1 of 1")}));
}

TEST_F(ReportEngine, PagesRepeatHeadsAndNumberThemselves)
{
    for (int i = 1; i <= 80; ++i)
        addScenario(QStringLiteral("Wildlife"), QStringLiteral("Animal %1").arg(i));
    ListReport r(ts.session());
    ReportLayout layout;
    const QList<ReportPage> pages = layout.layout(r);
    ASSERT_GT(pages.size(), 2);
    expectInsideMargins(pages, layout.paper());
    QStringList names;
    for (int p = 0; p < pages.size(); ++p) {
        const QStringList l = lines(pages[p]);
        EXPECT_EQ(l.first(), QStringLiteral("Scenario list"));
        EXPECT_EQ(l[1], QStringLiteral("Wildlife")) << "group head repeated on page " << p + 1;
        EXPECT_EQ(l.last(), QStringLiteral("Page %1 of %2").arg(p + 1).arg(pages.size()));
        for (const QString &line : l)
            if (line.startsWith(QLatin1String("Animal ")))
                names << line.section(QLatin1Char(' '), 0, 1);
    }
    ASSERT_EQ(names.size(), 80);  // every row once, in order
    for (int i = 0; i < 80; ++i)
        EXPECT_EQ(names[i], QStringLiteral("Animal %1").arg(i + 1));
}

TEST_F(ReportEngine, TextTallerThanAPageIsSplitBetweenLines)
{
    QStringList words;
    for (int i = 0; i < 1200; ++i)
        words << QStringLiteral("w%1").arg(i);
    addScenario(QStringLiteral("Wildlife"), QStringLiteral("Talker"), words.join(QLatin1Char(' ')));
    addScenario(QStringLiteral("Wildlife"), QStringLiteral("After"));
    ListReport r(ts.session());
    ReportLayout layout;
    const QList<ReportPage> pages = layout.layout(r);
    ASSERT_GE(pages.size(), 2);
    expectInsideMargins(pages, layout.paper());
    QString all;
    for (const ReportPage &p : pages)
        all += p.text() + QLatin1Char('\n');
    QStringList seen;
    for (const QString &w : all.split(QRegularExpression(QStringLiteral("\\s+"))))
        if (w.startsWith(QLatin1Char('w')) && w.size() > 1 && w[1].isDigit())
            seen << w;
    EXPECT_EQ(seen, words);
    EXPECT_GT(all.indexOf(QLatin1String("After")), all.indexOf(QLatin1String("w1199")));
}

namespace {
//! An owner listing scenarios, each with a sub-report of the scenarios of the same type.
class OwnerReport : public ActiveReport {
public:
    explicit OwnerReport(Session &s) : ActiveReport(s, QStringLiteral("Owner"))
    {
        recordSource = QStringLiteral("SELECT * FROM tblScenario WHERE Scenario_Identifier_1 = 'Owner'");
        ReportItem sub = label(QStringLiteral("srpt"), {}, 20, 14, 300, 4);
        sub.kind = ItemKind::SubReport;
        sub.subReport = [&s](const ReportData &d, int row) {
            auto child = std::make_unique<ActiveReport>(s, QStringLiteral("Child"));
            child->recordSource = QStringLiteral("SELECT * FROM tblScenario WHERE Scenario_Type = '%1' AND Scenario_Identifier_1 <> 'Owner' ORDER BY ScenarioID")
                                      .arg(d.value(row, QStringLiteral("Scenario_Type")).toString());
            child->detail.items << field({}, QStringLiteral("Scenario_Identifier_1"), 0, 0, 200);
            child->detail.height = 14;
            return child;
        };
        detail.items << field({}, QStringLiteral("Scenario_Type"), 0, 0, 200) << sub
                     << label({}, QStringLiteral("below the items"), 0, 20, 200);
        detail.height = 34;
    }
};
}  // namespace

TEST_F(ReportEngine, SubReportFollowsItsOwnerRowAndPushesWhatFollows)
{
    addScenario(QStringLiteral("Wildlife"), QStringLiteral("Owner"));
    addScenario(QStringLiteral("Contaminant"), QStringLiteral("Owner"));
    addScenario(QStringLiteral("Wildlife"), QStringLiteral("Heron"));
    addScenario(QStringLiteral("Wildlife"), QStringLiteral("Mink"));
    addScenario(QStringLiteral("Contaminant"), QStringLiteral("Lead"));
    OwnerReport r(ts.session());
    const QList<ReportPage> pages = ReportLayout().layout(r);
    ASSERT_EQ(pages.size(), 1);
    EXPECT_EQ(lines(pages[0]), (QStringList{QStringLiteral("Wildlife"), QStringLiteral("Heron"), QStringLiteral("Mink"),
                                            QStringLiteral("below the items"), QStringLiteral("Contaminant"), QStringLiteral("Lead"),
                                            QStringLiteral("below the items")}));
}

TEST_F(ReportEngine, PdfHoldsThePagesAndTheirTexts)
{
    for (int i = 1; i <= 80; ++i)
        addScenario(QStringLiteral("Wildlife"), QStringLiteral("Animal %1").arg(i));
    ListReport r(ts.session());
    const QList<ReportPage> pages = ReportLayout().layout(r);
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("list.pdf"));
    ASSERT_TRUE(ReportLayout::writePdf(pages, path, false, QStringLiteral("List")));
    EXPECT_FALSE(ReportLayout::writePdf(pages, dir.filePath(QStringLiteral("missing/list.pdf")), false, QStringLiteral("List")));
    const QString pdftotext = QStandardPaths::findExecutable(QStringLiteral("pdftotext"));
    if (pdftotext.isEmpty())
        GTEST_SKIP() << "pdftotext is not installed";
    QProcess p;
    p.start(pdftotext, {QStringLiteral("-layout"), path, QStringLiteral("-")});
    ASSERT_TRUE(p.waitForFinished());
    const QString text = QString::fromUtf8(p.readAllStandardOutput());
    EXPECT_EQ(text.count(QLatin1Char('\f')), pages.size());
    EXPECT_TRUE(text.contains(QStringLiteral("Page %1 of %1").arg(pages.size())));
    EXPECT_TRUE(text.contains(QLatin1String("Animal 80")));
    EXPECT_TRUE(text.contains(QLatin1String("Group total")));
}

namespace {
//! One owner row whose sub-report lists every other scenario as a block of three lines under a
//! head that repeats on each page the list runs onto. The heading above leaves room on the first
//! page for the head but not for a block.
class LongSubReport : public ActiveReport {
public:
    explicit LongSubReport(Session &s) : ActiveReport(s, QStringLiteral("LongSub"))
    {
        recordSource = QStringLiteral("SELECT * FROM tblScenario WHERE Scenario_Identifier_1 = 'Owner'");
        pageHeader.items << label({}, QStringLiteral("Page head"), 0, 0, 200);
        pageHeader.height = 16;
        reportHeader.items << label({}, QStringLiteral("Tall heading"), 0, 0, 200);
        reportHeader.height = 700;
        ReportItem sub = label(QStringLiteral("srpt"), {}, 0, 0, 400, 0);
        sub.kind = ItemKind::SubReport;
        sub.subReport = [&s](const ReportData &, int) {
            auto child = std::make_unique<ActiveReport>(s, QStringLiteral("Blocks"));
            child->recordSource = QStringLiteral("SELECT * FROM tblScenario WHERE Scenario_Identifier_1 <> 'Owner' ORDER BY ScenarioID");
            child->groupHeader.repeat = true;
            child->groupHeader.items << label({}, QStringLiteral("Block head"), 0, 0, 200);
            child->groupHeader.height = 16;
            for (int line = 0; line < 3; ++line)
                child->detail.items << field({}, QStringLiteral("Scenario_Identifier_1"), 0, 14.0 * line, 200);
            child->detail.height = 44;
            return child;
        };
        reportFooter.items << sub;
        ReportItem page = label({}, QStringLiteral("Page %1 of %2"), 0, 0, 200);
        page.kind = ItemKind::PageNumber;
        pageFooter.items << page;
        pageFooter.height = 14;
    }
};
}  // namespace

TEST_F(ReportEngine, SubReportRunsOverPagesBlockByBlockWithItsHeadRepeated)
{
    addScenario(QStringLiteral("Wildlife"), QStringLiteral("Owner"));
    for (int i = 1; i <= 40; ++i)
        addScenario(QStringLiteral("Wildlife"), QStringLiteral("Item %1").arg(i));
    LongSubReport r(ts.session());
    ReportLayout layout;
    const QList<ReportPage> pages = layout.layout(r);
    ASSERT_GE(pages.size(), 3);
    expectInsideMargins(pages, layout.paper());
    // The head goes with the first block to the next page rather than stand alone.
    EXPECT_EQ(lines(pages[0]), (QStringList{QStringLiteral("Page head"), QStringLiteral("Tall heading"),
                                            QStringLiteral("Page 1 of %1").arg(pages.size())}));
    int blocks = 0;
    for (int p = 1; p < pages.size(); ++p) {
        const QStringList l = lines(pages[p]);
        EXPECT_EQ(l.first(), QStringLiteral("Page head"));
        EXPECT_EQ(l.last(), QStringLiteral("Page %1 of %2").arg(p + 1).arg(pages.size()));
        // The head on every page the list reaches, and each block's three lines on one page.
        EXPECT_EQ(l[1], QStringLiteral("Block head")) << "page " << p + 1;
        EXPECT_EQ(l.count(QStringLiteral("Block head")), 1) << "page " << p + 1;
        for (int i = 1; i <= 40; ++i) {
            const int n = int(l.count(QStringLiteral("Item %1").arg(i)));
            EXPECT_TRUE(n == 0 || n == 3) << "Item " << i << " split on page " << p + 1;
            blocks += n / 3;
        }
    }
    EXPECT_EQ(blocks, 40);
}
