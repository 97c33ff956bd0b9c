// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>
#include <QString>

class Session;

//! The one open project: a named group of scenarios with its row in tblProject and its marker file.
class clsProject {
public:
    explicit clsProject(Session &session) : m_session(session) {}

    qint32 PID = 0;
    QString Name;
    QString Desc;
    QString author;
    QDateTime dteModified;
    QString Location;
    qint32 ProvSt = 0;
    QString Latitude;
    QString Longitude;
    QString Comments;
    QString Mode;
    QString FileName;
    QString FilePath;

protected:
    Session &m_session;
};
