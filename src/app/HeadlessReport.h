// SPDX-License-Identifier: MIT
#pragma once

#include "Services.h"

#include <QString>

class QtWindowHost;
class Session;

//! What the command line asks for: a report by name, its scenario or project, and the PDF file.
struct ReportRequest {
    QString report;
    QString scenario;
    QString project;
    QString pdf;
};

//! Makes a report's PDF without showing a window: the report is laid out for the scenario or
//! project given and written to the file (a relative path starts at the current folder). Returns 0
//! when the file is written; otherwise a message on standard error and 2.
int makeReport(Session &session, QtWindowHost &host, const ReportRequest &request);

//! The boxes of a run without windows: each is written to standard error and answered with its
//! default button.
class ConsoleMessageService : public MessageService {
public:
    MsgAnswer show(const QString &text, const QString &title, MsgIcon icon, MsgButtons buttons, int defaultButton) override;
};
