// SPDX-License-Identifier: MIT
#include "ReportLayout.h"

#include "VbFormat.h"

#include <QImage>
#include <QFontMetricsF>
#include <QTextLayout>
#include <algorithm>

namespace {
// Text is measured at ten times the point resolution and scaled back, so that widths do not depend
// on the screen.
constexpr double kMeasureDpi = 720;
const QString kPageNumber = QString(QChar(0xE000));
const QString kPageCount = QString(QChar(0xE001));

const QImage &metricDevice()
{
    static const QImage device = [] {
        QImage img(1, 1, QImage::Format_RGB32);
        const int dpm = qRound(kMeasureDpi / 0.0254);
        img.setDotsPerMeterX(dpm);
        img.setDotsPerMeterY(dpm);
        return img;
    }();
    return device;
}

QFont fontOf(const ReportItem &item)
{
    QFont f(QStringLiteral("DejaVu Sans"));
    f.setPointSizeF(item.size);
    f.setBold(item.bold);
    // Plain glyphs, no ligatures: the text copied or extracted from a PDF reads as it was written.
    f.setStyleStrategy(QFont::PreferNoShaping);
    return f;
}

bool isNullValue(const QVariant &v) { return !v.isValid() || v.isNull(); }

QString defaultText(const QVariant &v)
{
    if (isNullValue(v))
        return {};
    return vb::CStr(v);
}

bool sameLine(const DrawnItem &a, const DrawnItem &b) { return std::abs(a.rect.top() - b.rect.top()) < 2; }
}  // namespace

QString ReportPage::text() const
{
    QList<DrawnItem> texts;
    for (const DrawnItem &d : items)
        if (!d.line && !d.text.trimmed().isEmpty())
            texts << d;
    std::stable_sort(texts.begin(), texts.end(), [](const DrawnItem &a, const DrawnItem &b) {
        return sameLine(a, b) ? a.rect.left() < b.rect.left() : a.rect.top() < b.rect.top();
    });
    QStringList lines;
    for (int i = 0; i < texts.size(); ++i) {
        if (i > 0 && sameLine(texts[i - 1], texts[i]))
            lines.last() += QLatin1Char(' ') + texts[i].text.trimmed();
        else
            lines << texts[i].text.trimmed();
    }
    return lines.join(QLatin1Char('\n'));
}

ReportLayout::ReportLayout(bool letter) : m_paper(pageSize(letter).size(QPageSize::Point)) {}

QList<DrawnItem> ReportLayout::wrap(const QString &text, const QFont &font, double w, Qt::Alignment align,
                                    double &height) const
{
    QList<DrawnItem> out;
    const double k = kMeasureDpi / 72;
    height = 0;
    QString all = text;
    all.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    for (const QString &paragraph : all.split(QLatin1Char('\n'))) {
        QTextLayout layout(paragraph, font, &metricDevice());
        layout.beginLayout();
        int count = 0;
        for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine(), ++count) {
            line.setLineWidth(w * k);
            const double h = line.height() / k;
            DrawnItem d{QRectF(0, height, w, h), paragraph.mid(line.textStart(), line.textLength()), font, align};
            if (!d.text.trimmed().isEmpty())
                out << d;
            height += h;
        }
        layout.endLayout();
        if (count == 0)
            height += QFontMetricsF(font, &metricDevice()).height() / k;
    }
    return out;
}

QString ReportLayout::itemText(const ReportItem &item, const ReportData &data, int row, int first, int last) const
{
    if (item.kind == ItemKind::PageNumber)
        return item.text.contains(QLatin1String("%1")) ? item.text.arg(kPageNumber, kPageCount) : item.text + kPageNumber;
    if (item.kind == ItemKind::PageCount)
        return item.text + kPageCount;
    if (item.kind != ItemKind::Field)
        return item.text;
    if (item.summary != Summary::None) {
        double total = 0;
        for (int r = first; r < last; ++r) {
            const QVariant v = data.value(r, item.field);
            if (!isNullValue(v))
                total += item.summary == Summary::Count ? 1 : vb::CDbl(v);
        }
        return item.format.isEmpty() ? vb::doubleToText(total) : vb::vbFormat(total, item.format);
    }
    if (item.field.isEmpty() || data.column(item.field) < 0 || row < 0)
        return item.text;
    const QVariant v = data.value(row, item.field);
    return item.format.isEmpty() ? defaultText(v) : vb::vbFormat(v, item.format);
}

QList<DrawnItem> ReportLayout::content(const ReportItem &item, const ReportData &data, int row, int first, int last,
                                       double &height) const
{
    if (item.kind == ItemKind::Line) {
        height = item.h;
        return {DrawnItem{QRectF(0, 0, item.w, 0), {}, {}, Qt::AlignLeft, true}};
    }
    if (item.kind == ItemKind::SubReport) {
        height = 0;
        if (!item.subReport)
            return {};
        const std::unique_ptr<ActiveReport> sub = item.subReport(data, row);
        sub->prepare();
        QList<DrawnItem> out;
        for (const Band &b : flow(*sub)) {
            for (DrawnItem d : b.items) {
                d.rect.translate(0, height);
                out << d;
            }
            height += b.height;
        }
        return out;
    }
    return wrap(itemText(item, data, row, first, last), fontOf(item), item.w, item.align, height);
}

ReportLayout::Band ReportLayout::band(const ReportSection &section, const ReportData &data, int row, int first,
                                      int last) const
{
    Band out;
    if (!section.visible)
        return out;
    QList<const ReportItem *> items;
    for (const ReportItem &i : section.items)
        items << &i;
    std::stable_sort(items.begin(), items.end(), [](const ReportItem *a, const ReportItem *b) { return a->y < b->y; });
    // An item moves down by the growth of the items that end above it.
    QList<double> pushed;
    double grown = 0;
    for (int i = 0; i < items.size(); ++i) {
        const ReportItem &it = *items[i];
        double shift = 0;
        for (int j = 0; j < i; ++j)
            if (items[j]->y + items[j]->h <= it.y + 0.01)
                shift = std::max(shift, pushed[j]);
        double h = 0;
        for (DrawnItem d : content(it, data, row, first, last, h)) {
            d.rect.translate(it.x, it.y + shift);
            out.items << d;
        }
        pushed << shift + std::max(0.0, h - it.h);
        grown = std::max(grown, pushed.last());
    }
    out.height = section.height + grown;
    return out;
}

namespace {
//! Visits the bands of a report in order: report header, then for each row the group footer and
//! header at a change of the group value and the detail, then the last group footer and the report
//! footer. visit gets the band, the row it belongs to and whether it opens (1) or closes (-1) a group.
template <typename Make, typename Visit>
void walk(ActiveReport &report, Make make, Visit visit)
{
    const ReportData &d = report.data();
    const int n = int(d.rows.size());
    const QString group = report.groupHeader.groupField;
    visit(make(report.reportHeader, n ? 0 : -1, 0, n), n ? 0 : -1, 0);
    int groupStart = 0;
    for (int r = 0; r < n; ++r) {
        const bool change = r == 0 || (!group.isEmpty() && d.value(r, group) != d.value(r - 1, group));
        if (change && r > 0) {
            visit(make(report.groupFooter, r - 1, groupStart, r), r - 1, -1);
            groupStart = r;
        }
        if (change)
            visit(make(report.groupHeader, r, r, n), r, 1);
        visit(make(report.detail, r, r, r + 1), r, 0);
    }
    if (n)
        visit(make(report.groupFooter, n - 1, groupStart, n), n - 1, -1);
    visit(make(report.reportFooter, n - 1, 0, n), n - 1, 0);
}
}  // namespace

QList<ReportLayout::Band> ReportLayout::flow(ActiveReport &report) const
{
    QList<Band> out;
    walk(report, [&](const ReportSection &s, int row, int first, int last) { return band(s, report.data(), row, first, last); },
         [&](const Band &b, int, int) { out << b; });
    return out;
}

QList<ReportPage> ReportLayout::layout(ActiveReport &report)
{
    report.prepare();
    const ReportData &d = report.data();
    const int n = int(d.rows.size());
    m_pages.clear();
    m_repeat = nullptr;
    m_bottom = m_paper.height() - kMargin - band(report.pageFooter, d, -1, 0, n).height;
    QList<int> pageRows;
    int current = n ? 0 : -1;
    Band repeat;
    const auto make = [&](const ReportSection &s, int row, int first, int last) { return band(s, d, row, first, last); };
    const auto start = [&] {
        pageRows << current;
        newPage(report, current);
    };
    start();
    m_start = start;
    walk(report, make, [&](const Band &b, int row, int edge) {
        current = row;
        if (edge == -1)
            m_repeat = nullptr;
        place(b);
        if (edge == 1 && report.groupHeader.repeat) {
            repeat = b;
            m_repeat = &repeat;
        }
    });
    m_start = nullptr;
    const QString count = QString::number(m_pages.size());
    for (int p = 0; p < m_pages.size(); ++p) {
        const Band footer = band(report.pageFooter, d, pageRows[p], 0, n);
        const double top = m_paper.height() - kMargin - footer.height;
        for (DrawnItem item : footer.items) {
            item.rect.translate(kMargin, top);
            m_pages[p].items << item;
        }
        for (DrawnItem &item : m_pages[p].items)
            item.text.replace(kPageNumber, QString::number(p + 1)).replace(kPageCount, count);
    }
    return m_pages;
}

void ReportLayout::newPage(ActiveReport &report, int row)
{
    m_pages << ReportPage{};
    m_y = kMargin;
    put(band(report.pageHeader, report.data(), row, 0, int(report.data().rows.size())), m_y);
    if (m_repeat)
        put(*m_repeat, m_y);
    m_pageTop = m_y;
}

void ReportLayout::put(const Band &b, double top)
{
    for (DrawnItem d : b.items) {
        d.rect.translate(kMargin, top);
        m_pages.last().items << d;
    }
    m_y = top + b.height;
}

void ReportLayout::place(const Band &b)
{
    if (b.height <= 0 && b.items.isEmpty())
        return;
    if (m_y + b.height <= m_bottom + 0.01) {
        put(b, m_y);
        return;
    }
    if (m_y > m_pageTop + 0.01 && b.height <= m_bottom - m_pageTop) {
        m_start();
        put(b, m_y);
        return;
    }
    // Taller than a page: split between its lines.
    QList<DrawnItem> items = b.items;
    std::stable_sort(items.begin(), items.end(), [](const DrawnItem &x, const DrawnItem &y) { return x.rect.top() < y.rect.top(); });
    double origin = m_y;
    for (DrawnItem d : items) {
        if (origin + d.rect.bottom() > m_bottom + 0.01 && origin + d.rect.top() > m_pageTop + 0.01) {
            m_start();
            origin = m_y - d.rect.top();
        }
        d.rect.translate(kMargin, origin);
        m_pages.last().items << d;
    }
    m_y = origin + b.height;
}
