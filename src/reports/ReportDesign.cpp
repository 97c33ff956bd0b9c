// SPDX-License-Identifier: MIT
#include "ReportDesign.h"

#include "Session.h"
#include "VbFormat.h"
#include "clsScenario.h"

#include <QDate>

QString ScenarioReport::subject() const
{
    return QString::number(sid());
}

qint32 ScenarioReport::sid() const
{
    return m_session.gScenario ? m_session.gScenario->SID : 0;
}

void addReportHeading(ActiveReport &report, const QString &type, const QString &fileField, const QString &savedField)
{
    ReportSection &h = report.pageHeader;
    ReportItem title = bold(label(QStringLiteral("lblHeader"), QStringLiteral("Wildlife Scenario"), 0, 0, kReportWidth, 20), 15);
    title.align = Qt::AlignHCenter;
    h.items << title << bold(label(QStringLiteral("lblType"), type, 0, 24, 300, 14), 10)
            << label(QStringLiteral("lblPrinted"), QStringLiteral("Printed on:"), 330, 24, 70)
            << label(QStringLiteral("fldDate"), vb::shortDate(QDate::currentDate()), 400, 24, 123)
            << label(QStringLiteral("lblFile"), QStringLiteral("Disk File:"), 0, 42, 70)
            << field(QStringLiteral("fldFile"), fileField, 70, 42, 255)
            << label(QStringLiteral("lblLastSaved"), QStringLiteral("Last Saved:"), 330, 42, 70)
            << field(QStringLiteral("fldLastSaved"), savedField, 400, 42, 123, QStringLiteral("mmmm d, yyyy"))
            << rule(0, 60, kReportWidth);
    h.height = 66;
}

void addPageFooter(ActiveReport &report)
{
    ReportItem page = label(QStringLiteral("lblPage"), QStringLiteral("Page %1 of %2"), 0, 6, kReportWidth);
    page.kind = ItemKind::PageNumber;
    page.align = Qt::AlignHCenter;
    report.pageFooter.items << rule(0, 0, kReportWidth) << page;
    report.pageFooter.height = 22;
}

double addCaptioned(ReportSection &section, std::initializer_list<Captioned> rows, double y, double x, double width,
                    double captionWidth, double size)
{
    const double line = size + 4;
    for (const Captioned &r : rows) {
        ReportItem caption = bold(label({}, QString::fromLatin1(r.caption), x, y, captionWidth - 4, line));
        ReportItem value = field(QString::fromLatin1(r.name), QString::fromLatin1(r.column), x + captionWidth, y,
                                 width - captionWidth, QString::fromLatin1(r.format));
        caption.size = value.size = size;
        value.h = line;
        section.items << caption << value;
        y += line;
    }
    return y;
}

double addBlockHeading(ReportSection &section, const QString &name, const QString &text, double y)
{
    section.items << bold(label(name, text, 0, y, kReportWidth, 16), 11) << rule(0, y + 17, kReportWidth);
    return y + 22;
}

void repeatHeadOverAllRows(ActiveReport &report)
{
    report.groupHeader.groupField.clear();
    report.groupHeader.repeat = true;
}

void addReferenceList(ActiveReport &report, const QString &fieldName)
{
    repeatHeadOverAllRows(report);
    report.groupHeader.height = addBlockHeading(report.groupHeader, QStringLiteral("lblReferences"), QStringLiteral("Reference(s)"), 0);
    report.detail.items << field(fieldName, QStringLiteral("Reference"), 10, 1, kReportWidth - 10);
    report.detail.height = 15;
}
