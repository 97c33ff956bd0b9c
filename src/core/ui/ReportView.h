// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QString>

//! A report shown in its preview window: what scripts read of it and how they save it.
class ReportView {
public:
    virtual ~ReportView() = default;
    virtual int pageCount() const = 0;
    //! The text of every page in reading order, lines separated by "\n".
    virtual QString reportText() const = 0;
    //! Writes the report as a PDF file; false when the file cannot be written.
    virtual bool exportPdf(const QString &path) = 0;
};

//! What a report is about: the open scenario or the open project.
enum class ReportSubject { Scenario, Project };

//! The report designs of the program by name, with their subject; each design adds itself when its
//! preview window registers.
inline QHash<QString, ReportSubject> &reportCatalogue()
{
    static QHash<QString, ReportSubject> catalogue;
    return catalogue;
}
