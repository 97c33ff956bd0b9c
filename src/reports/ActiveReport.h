// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <functional>
#include <memory>

class ActiveReport;
class Session;

//! The rows a report's data control read: column names and values by row.
struct ReportData {
    QStringList columns;
    QList<QVariantList> rows;
    //! The column's index (case-insensitive), -1 when the statement has no such column.
    int column(const QString &name) const;
    QVariant value(int row, const QString &name) const;
};

enum class ItemKind { Label, Field, Line, PageNumber, PageCount, SubReport };
enum class Summary { None, Sum, Count };

//! One control of a section. A page number item prints its text with %1 as the page number and %2
//! as the page count (or its text followed by the number). placed in points from the section's top left corner. A label prints
//! its text; a field prints its bound column (with its Format pattern), or its text when unbound.
//! Labels and fields grow downwards to hold their wrapped text and push what is below them down.
struct ReportItem {
    ItemKind kind = ItemKind::Label;
    QString name;
    double x = 0, y = 0, w = 0, h = 12;
    QString text;
    QString field;
    QString format;
    Qt::Alignment align = Qt::AlignLeft;
    bool bold = false;
    double size = 9;
    Summary summary = Summary::None;
    //! A sub-report item: makes the sub-report for the current row of the owner.
    std::function<std::unique_ptr<ActiveReport>(const ReportData &, int row)> subReport;
};

//! A band of the report. A group header starts whenever the value of groupField changes and, with
//! repeat, again at the top of each page its group runs onto.
struct ReportSection {
    explicit ReportSection(QString sectionName = {}) : name(std::move(sectionName)) {}
    QString name;
    double height = 0;
    QList<ReportItem> items;
    bool visible = true;
    bool repeat = false;
    QString groupField;
};

//! A report object: the sections of its design, a data control (the Jet statement read through the
//! session's database) and a start routine run before layout that sets the statement and fills what
//! the design can't bind.
class ActiveReport {
public:
    ActiveReport(Session &session, QString name);
    virtual ~ActiveReport() = default;

    //! Runs before layout: sets recordSource and fills unbound items.
    virtual void ActiveReport_ReportStart() {}
    //! Runs once the data control's rows are read: fills the items that depend on them.
    virtual void dataOpened() {}

    const QString &name() const { return m_name; }
    //! What the report is about (a scenario or project id); a preview lays the report out again
    //! when it changes.
    virtual QString subject() const { return {}; }
    //! The window caption of the preview.
    QString caption;
    Session &session() const { return m_session; }

    //! Runs the start routine, reads the data control's statement (no statement: no rows) and then
    //! runs dataOpened.
    void prepare();
    const ReportData &data() const { return m_data; }

    //! An item by name in any section; an unknown name throws.
    ReportItem &item(const QString &name);
    void setText(const QString &name, const QString &text) { item(name).text = text; }

    //! The sections in the order the engine visits them.
    QList<ReportSection *> sections();

    ReportSection reportHeader{QStringLiteral("ReportHeader")};
    ReportSection pageHeader{QStringLiteral("PageHeader")};
    ReportSection groupHeader{QStringLiteral("GroupHeader")};
    ReportSection detail{QStringLiteral("Detail")};
    ReportSection groupFooter{QStringLiteral("GroupFooter")};
    ReportSection reportFooter{QStringLiteral("ReportFooter")};
    ReportSection pageFooter{QStringLiteral("PageFooter")};

    //! The data control's statement (Jet SQL).
    QString recordSource;
    //! Letter instead of A4.
    bool letter = false;

protected:
    Session &m_session;

private:
    void read();

    QString m_name;
    ReportData m_data;
};

//! Makes a report design for a session.
using ReportFactory = std::function<std::unique_ptr<ActiveReport>(Session &)>;
//! The report designs by name; each adds itself as it registers (ReportRegistration).
QHash<QString, ReportFactory> &reportDesigns();

//! Design helpers: a label, a bound field, a label and field side by side, a rule.
ReportItem label(const QString &name, const QString &text, double x, double y, double w, double h = 12);
ReportItem field(const QString &name, const QString &column, double x, double y, double w, const QString &format = {},
                 Qt::Alignment align = Qt::AlignLeft);
ReportItem rule(double x, double y, double w);
ReportItem bold(ReportItem item, double size = 0);
