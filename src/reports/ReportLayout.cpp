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

ReportLayout::Band ReportLayout::content(const ReportItem &item, const ReportData &data, int row, int first, int last) const
{
    Band out;
    if (item.kind == ItemKind::Line) {
        out.height = item.h;
        out.items << DrawnItem{QRectF(0, 0, item.w, 0), {}, {}, Qt::AlignLeft, true};
    } else if (item.kind == ItemKind::SubReport) {
        if (item.subReport) {
            const std::unique_ptr<ActiveReport> sub = item.subReport(data, row);
            sub->prepare();
            out = subReport(*sub);
        }
    } else {
        out.items = wrap(itemText(item, data, row, first, last), fontOf(item), item.w, item.align, out.height);
    }
    return out;
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
        const Band c = content(it, data, row, first, last);
        for (DrawnItem d : c.items) {
            d.rect.translate(it.x, it.y + shift);
            out.items << d;
        }
        for (const auto &[top, bottom] : c.keep)
            out.keep << std::pair(top + it.y + shift, bottom + it.y + shift);
        if (!c.head.isEmpty()) {
            out.head.clear();
            for (DrawnItem d : c.head) {
                d.rect.translate(it.x, 0);
                out.head << d;
            }
            out.headHeight = c.headHeight;
            out.headTop = c.headTop + it.y + shift;
        }
        pushed << shift + std::max(0.0, c.height - it.h);
        grown = std::max(grown, pushed.last());
    }
    out.height = section.height + grown;
    return out;
}

ReportLayout::Band ReportLayout::subReport(ActiveReport &sub) const
{
    Band out;
    // Each band is kept on one page, a group head together with the band after it.
    double keepFrom = -1;
    walk(sub, [&](const ReportSection &s, int row, int first, int last) { return band(s, sub.data(), row, first, last); },
         [&](const Band &b, int, int edge) {
             if (b.items.isEmpty() && b.height <= 0)
                 return;
             for (DrawnItem d : b.items) {
                 d.rect.translate(0, out.height);
                 out.items << d;
             }
             if (edge == 1 && sub.groupHeader.repeat) {
                 out.head = b.items;
                 out.headHeight = b.height;
                 out.headTop = out.height;
             }
             if (edge == 1) {
                 keepFrom = out.height;
             } else {
                 out.keep << std::pair(keepFrom >= 0 ? keepFrom : out.height, out.height + b.height);
                 keepFrom = -1;
             }
             out.height += b.height;
         });
    if (keepFrom >= 0)
        out.keep << std::pair(keepFrom, out.height);
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
    if (b.keep.isEmpty() && m_y > m_pageTop + 0.01 && b.height <= m_bottom - m_pageTop) {
        m_start();
        put(b, m_y);
        return;
    }
    // Split over pages: between the kept spans that fit on a page, otherwise between lines.
    QList<DrawnItem> items = b.items;
    std::stable_sort(items.begin(), items.end(), [](const DrawnItem &x, const DrawnItem &y) { return x.rect.top() < y.rect.top(); });
    const double room = m_bottom - m_pageTop - b.headHeight;
    double origin = m_y;
    double floor = m_pageTop;
    for (DrawnItem d : items) {
        double top = d.rect.top(), bottom = d.rect.bottom();
        for (const auto &[kt, kb] : b.keep)
            if (top >= kt - 0.01 && top < kb - 0.01 && kb - kt <= room) {
                top = kt;
                bottom = std::max(bottom, kb);
                break;
            }
        if (origin + bottom > m_bottom + 0.01 && origin + top > floor + 0.01) {
            m_start();
            if (top > b.headTop + 0.01) {
                for (DrawnItem h : b.head) {
                    h.rect.translate(kMargin, m_y);
                    m_pages.last().items << h;
                }
                m_y += b.headHeight;
            }
            floor = m_y;
            origin = m_y - top;
        }
        d.rect.translate(kMargin, origin);
        m_pages.last().items << d;
    }
    m_y = origin + b.height;
}
