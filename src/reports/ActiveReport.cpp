// SPDX-License-Identifier: MIT
#include "ActiveReport.h"

#include "Database.h"
#include "Recordset.h"
#include "Session.h"
#include "VbError.h"

int ReportData::column(const QString &name) const
{
    for (int i = 0; i < columns.size(); ++i)
        if (columns[i].compare(name, Qt::CaseInsensitive) == 0)
            return i;
    return -1;
}

QVariant ReportData::value(int row, const QString &name) const
{
    const int c = column(name);
    if (c < 0 || row < 0 || row >= rows.size())
        return {};
    return rows[row].value(c);
}

ActiveReport::ActiveReport(Session &session, QString name) : m_session(session), m_name(std::move(name)) {}

void ActiveReport::prepare()
{
    m_data = {};
    ActiveReport_ReportStart();
    if (!recordSource.isEmpty())
        read();
    dataOpened();
}

void ActiveReport::read()
{
    auto rs = m_session.gDB->OpenRecordset(recordSource, RecordsetType::Snapshot);
    m_data.columns = rs->fieldNames();
    while (!rs->EOF_()) {
        QVariantList row;
        row.reserve(m_data.columns.size());
        for (int i = 0; i < m_data.columns.size(); ++i)
            row << rs->field(i);
        m_data.rows << row;
        rs->MoveNext();
    }
    rs->Close();
}

QList<ReportSection *> ActiveReport::sections()
{
    return {&reportHeader, &pageHeader, &groupHeader, &detail, &groupFooter, &reportFooter, &pageFooter};
}

ReportItem &ActiveReport::item(const QString &name)
{
    for (ReportSection *s : sections())
        for (ReportItem &i : s->items)
            if (i.name.compare(name, Qt::CaseInsensitive) == 0)
                return i;
    throw VbError(2465, QStringLiteral("Report '%1' has no control named '%2'").arg(m_name, name));
}

QHash<QString, ReportFactory> &reportDesigns()
{
    static QHash<QString, ReportFactory> designs;
    return designs;
}

ReportItem label(const QString &name, const QString &text, double x, double y, double w, double h)
{
    ReportItem i;
    i.name = name;
    i.text = text;
    i.x = x, i.y = y, i.w = w, i.h = h;
    return i;
}

ReportItem field(const QString &name, const QString &column, double x, double y, double w, const QString &format,
                 Qt::Alignment align)
{
    ReportItem i = label(name, {}, x, y, w);
    i.kind = ItemKind::Field;
    i.field = column;
    i.format = format;
    i.align = align;
    return i;
}

ReportItem rule(double x, double y, double w)
{
    ReportItem i = label({}, {}, x, y, w, 1);
    i.kind = ItemKind::Line;
    return i;
}

ReportItem bold(ReportItem item, double size)
{
    item.bold = true;
    if (size > 0)
        item.size = size;
    return item;
}
