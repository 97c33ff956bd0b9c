// SPDX-License-Identifier: MIT
#pragma once

#include "ActiveReport.h"

//! The width between the margins of an A4 page, in points.
constexpr double kReportWidth = 523;

//! A report of the open scenario: its subject is the scenario's id.
class ScenarioReport : public ActiveReport {
public:
    using ActiveReport::ActiveReport;
    QString subject() const override;
    qint32 sid() const;
};

//! The heading every report of a scenario or project carries: the title, the report type, the
//! printed date, the disk file and the last saved date, then a rule. fileField and savedField are
//! the columns of the file name and the last save.
void addReportHeading(ActiveReport &report, const QString &type, const QString &fileField, const QString &savedField);
//! The page footer "Page N of M".
void addPageFooter(ActiveReport &report);

//! One caption and the field beside it. An empty column leaves the field unbound (filled by name).
struct Captioned {
    const char *caption;
    const char *name;
    const char *column;
    const char *format = "";
};
//! Caption and field rows one under the other from y in a column starting at x of the given width;
//! a field that wraps pushes the rows below it down. Returns the y under the last row.
double addCaptioned(ReportSection &section, std::initializer_list<Captioned> rows, double y, double x = 0,
                    double width = kReportWidth, double captionWidth = 130, double size = 9);
//! A bold heading of a block with a rule under it; returns the y under the rule.
double addBlockHeading(ReportSection &section, const QString &name, const QString &text, double y);
//! The references of a scenario report: one detail line per row of the statement (its column
//! "Reference" in the named field) under the head "Reference(s)", repeated on each page they reach.
void addReferenceList(ActiveReport &report, const QString &fieldName);
//! A group head of one group over all rows, repeated on each page the rows run onto.
void repeatHeadOverAllRows(ActiveReport &report);
