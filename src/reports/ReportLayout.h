// SPDX-License-Identifier: MIT
#pragma once

#include "ActiveReport.h"

#include <QFont>
#include <QPageSize>
#include <QRectF>
#include <functional>

class QPainter;
class QPagedPaintDevice;

//! One thing placed on a page, in points from the paper's top left corner.
struct DrawnItem {
    QRectF rect;
    QString text;
    QFont font;
    Qt::Alignment align = Qt::AlignLeft;
    bool line = false;
};

struct ReportPage {
    QList<DrawnItem> items;
    //! The page's text in reading order: items top to bottom, those on one line left to right and
    //! joined by a blank, lines separated by "\n".
    QString text() const;
};

//! Lays a prepared report out into pages: page header and footer on every page, the report header
//! once, group headers at each change of their field (repeated on a new page when asked), a detail
//! band for each row, group and report footers with their summaries, and sub-reports in line.
//! A band that does not fit goes to the next page whole; one taller than a page is split between
//! its lines, and one with a sub-report between the sub-report's bands. "Page N of M" items are filled once the pages are counted.
class ReportLayout {
public:
    static constexpr double kMargin = 36;

    explicit ReportLayout(bool letter = false);
    QList<ReportPage> layout(ActiveReport &report);

    QSizeF paper() const { return m_paper; }
    static QPageSize pageSize(bool letter) { return QPageSize(letter ? QPageSize::Letter : QPageSize::A4); }

    //! Draws one page on a painter whose device has the given resolution (dots per inch).
    static void render(const ReportPage &page, QPainter &painter, double dpi);
    //! Writes the pages as a PDF file; false when the file cannot be written.
    static bool writePdf(const QList<ReportPage> &pages, const QString &path, bool letter, const QString &title);

    //! A band made ready for a page: its items relative to its top, and its height. A band with a
    //! sub-report keeps each of the sub-report's own bands on one page when it runs over pages, and
    //! draws the sub-report's repeated group head again at the top of each page it runs onto.
    struct Band {
        QList<DrawnItem> items;
        double height = 0;
        //! Spans (top, bottom) that are not split between pages.
        QList<std::pair<double, double>> keep;
        //! The head repeated on each further page once the band has passed it, its height, and
        //! where it first stands in the band.
        QList<DrawnItem> head;
        double headHeight = 0;
        double headTop = 0;
    };
    //! The band of a section for a row (-1: none), summaries over rows [first, last).
    Band band(const ReportSection &section, const ReportData &data, int row, int first, int last) const;

private:
    //! An item's drawn content relative to its top left corner.
    Band content(const ReportItem &item, const ReportData &data, int row, int first, int last) const;
    //! A sub-report laid out in line: its bands one under the other, each kept whole.
    Band subReport(ActiveReport &sub) const;
    QList<DrawnItem> wrap(const QString &text, const QFont &font, double w, Qt::Alignment align, double &height) const;
    QString itemText(const ReportItem &item, const ReportData &data, int row, int first, int last) const;

    //! Starts a page: the page header bound to row, then the repeated group header if any.
    void newPage(ActiveReport &report, int row);
    //! Places a band at the current position, on a new page when it does not fit.
    void place(const Band &band);
    void put(const Band &band, double top);

    QSizeF m_paper;
    QList<ReportPage> m_pages;
    double m_y = 0;
    double m_bottom = 0;
    double m_pageTop = 0;
    std::function<void()> m_start;
    const Band *m_repeat = nullptr;
};
