// SPDX-License-Identifier: MIT
#pragma once

#include "ActiveReport.h"
#include "QtWindowHost.h"
#include "ReportDesign.h"
#include "ReportLayout.h"
#include "ReportView.h"
#include "ZobWindow.h"

class QPrinter;
class QPrintPreviewWidget;

//! The preview window of a report: the report's pages as they will print, with commands to print
//! them, save them as PDF and zoom. The window is named after its report object; the report is laid
//! out when the window loads and again when it is shown for another subject (scenario or project).
class ReportWindow : public ZobWindow, public ReportView {
    Q_OBJECT
public:
    ReportWindow(Session &session, QtWindowHost &host, std::unique_ptr<ActiveReport> report);

    void Form_Load() override;
    void Form_Activate() override;

    int pageCount() const override { return int(m_pages.size()); }
    QString reportText() const override;
    bool exportPdf(const QString &path) override;

    const QList<ReportPage> &pages() const { return m_pages; }

private:
    //! Runs the report again: start routine, data, layout.
    void run();
    void paint(QPrinter *printer);
    void print();
    void savePdf();

    std::unique_ptr<ActiveReport> m_report;
    QList<ReportPage> m_pages;
    QString m_subject;
    QPrinter *m_printer;
    QPrintPreviewWidget *m_preview;
};

//! The preview window of report design R, made by the window host from its registration.
template <typename R>
class ReportWindowOf : public ReportWindow {
public:
    ReportWindowOf(Session &session, QtWindowHost &host) : ReportWindow(session, host, std::make_unique<R>(session)) {}
};

//! Registers report design R under its name: its preview window, the design itself, and its entry in
//! the catalogue of reports with its subject (a scenario report or a project report).
template <typename R>
struct ReportRegistration {
    explicit ReportRegistration(const QString &name) : window(name)
    {
        reportCatalogue().insert(name, std::is_base_of_v<ScenarioReport, R> ? ReportSubject::Scenario : ReportSubject::Project);
        reportDesigns().insert(name, [](Session &s) { return std::make_unique<R>(s); });
    }
    WindowRegistration<ReportWindowOf<R>> window;
};
