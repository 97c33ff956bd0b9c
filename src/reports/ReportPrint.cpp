// SPDX-License-Identifier: MIT
// Drawing laid-out pages on a painter and into a PDF file through Qt's PDF writer.
#include "ReportLayout.h"

#include <QFile>
#include <QPainter>
#include <QPdfWriter>

void ReportLayout::render(const ReportPage &page, QPainter &painter, double dpi)
{
    const double k = dpi / 72;
    const auto scaled = [k](const QRectF &r) { return QRectF(r.x() * k, r.y() * k, r.width() * k, r.height() * k); };
    painter.save();
    for (const DrawnItem &d : page.items) {
        if (d.line) {
            painter.setPen(QPen(Qt::black, 0.75 * k));
            painter.drawLine(QPointF(d.rect.left() * k, d.rect.top() * k), QPointF(d.rect.right() * k, d.rect.top() * k));
            continue;
        }
        painter.setPen(Qt::black);
        painter.setFont(d.font);
        painter.drawText(scaled(d.rect), int(d.align | Qt::AlignTop) | Qt::TextSingleLine | Qt::TextDontClip, d.text);
    }
    painter.restore();
}

bool ReportLayout::writePdf(const QList<ReportPage> &pages, const QString &path, bool letter, const QString &title)
{
    {
        QFile probe(path);
        if (!probe.open(QIODevice::WriteOnly))
            return false;
    }
    QPdfWriter writer(path);
    writer.setPageSize(pageSize(letter));
    writer.setPageMargins(QMarginsF(0, 0, 0, 0));
    writer.setResolution(720);
    writer.setTitle(title);
    writer.setCreator(QStringLiteral("Zobrel"));
    QPainter painter;
    if (!painter.begin(&writer))
        return false;
    for (int i = 0; i < pages.size(); ++i) {
        if (i > 0)
            writer.newPage();
        render(pages[i], painter, 720);
    }
    return painter.end();
}
