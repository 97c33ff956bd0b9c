// SPDX-License-Identifier: MIT
#pragma once

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
