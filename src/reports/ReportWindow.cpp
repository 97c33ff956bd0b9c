// SPDX-License-Identifier: MIT
#include "ReportWindow.h"

#include "FormBuilder.h"
#include "Session.h"
#include "VbError.h"
#include "ZobToolbar.h"

#include <QDir>
#include <QFileDialog>
#include <QPainter>
#include <QPrintDialog>
#include <QPrintPreviewWidget>
#include <QPrinter>

ReportWindow::ReportWindow(Session &session, QtWindowHost &host, std::unique_ptr<ActiveReport> report)
    : ZobWindow(session, host, report->name()), m_report(std::move(report))
{
    setCaption(m_report->caption.isEmpty() ? m_report->name() : m_report->caption);
    HelpContextID = 3600;
    FormBuilder b(this);
    buildToolbar(b, {{"Print", "Print the report", "Print", [this] { print(); }},
                     {"Pdf", "Save the report as a PDF file", "PDF", [this] { savePdf(); }},
                     ToolButton::separator(),
                     {"ZoomIn", "Larger", "Zoom +", [this] { m_preview->zoomIn(); }},
                     {"ZoomOut", "Smaller", "Zoom -", [this] { m_preview->zoomOut(); }},
                     {"FitWidth", "Fit the page width", "Width", [this] { m_preview->fitToWidth(); }},
                     ToolButton::separator(),
                     {"Close", "Close the preview", "Close", [this] { unloadMe(); }},
                     {"Help", "Help", "Help", [this] { showHelp(); }}});
    m_printer = new QPrinter(QPrinter::HighResolution);
    m_printer->setFullPage(true);
    m_printer->setPageSize(ReportLayout::pageSize(m_report->letter));
    m_preview = new QPrintPreviewWidget(m_printer, this);
    b.add(m_preview, QStringLiteral("pvwReport"));
    connect(m_preview, &QPrintPreviewWidget::paintRequested, this, &ReportWindow::paint);
    resize(760, 820);
}

void ReportWindow::Form_Load()
{
    run();
}

void ReportWindow::Form_Activate()
{
    if (m_report->subject() != m_subject)
        run();
}

void ReportWindow::run()
{
    m_subject = m_report->subject();
    m_pages = ReportLayout(m_report->letter).layout(*m_report);
    m_preview->updatePreview();
}

void ReportWindow::paint(QPrinter *printer)
{
    QPainter painter(printer);
    for (int i = 0; i < m_pages.size(); ++i) {
        if (i > 0)
            printer->newPage();
        ReportLayout::render(m_pages[i], painter, printer->resolution());
    }
}

QString ReportWindow::reportText() const
{
    QStringList pages;
    for (const ReportPage &p : m_pages)
        pages << p.text();
    return pages.join(QLatin1Char('\n'));
}

bool ReportWindow::exportPdf(const QString &path)
{
    const QString file = QDir(session().home).absoluteFilePath(path);
    return ReportLayout::writePdf(m_pages, file, m_report->letter, caption());
}

void ReportWindow::print()
{
    QPrintDialog dialog(m_printer, this);
    if (dialog.exec() == QDialog::Accepted)
        paint(m_printer);
}

void ReportWindow::savePdf()
{
    const QString path = QFileDialog::getSaveFileName(this, QStringLiteral("Save as PDF"),
                                                      QDir(session().home).absoluteFilePath(m_report->name() + QStringLiteral(".pdf")),
                                                      QStringLiteral("PDF files (*.pdf)"));
    if (!path.isEmpty() && !exportPdf(path))
        throw VbError(75, QStringLiteral("Path/File access error"));
}
