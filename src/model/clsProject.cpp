// SPDX-License-Identifier: MIT
#include "clsProject.h"

#include "Database.h"
#include "Session.h"
#include "VbError.h"
#include "VbFormat.h"

#include <QDate>
#include <QFile>
#include <QScopeGuard>

clsProject::clsProject(Session &session) : m_session(session)
{
    FileName = QStringLiteral("*.NAV");
    dteModified = QDate::currentDate().startOfDay();
}

void clsProject::Clear()
{
    PID = 0;
    Name.clear();
    Desc.clear();
    author.clear();
    dteModified = QDate::currentDate().startOfDay();
    Location.clear();
    ProvSt = 0;
    Latitude.clear();
    Longitude.clear();
    Comments.clear();
    // "*.NAV" marks a project that has no file yet.
    FileName = QStringLiteral("*.NAV");
    FilePath.clear();
    if (window)
        window->clearControls();
}

void clsProject::AddNew()
{
    Clear();
    Mode = QStringLiteral("Add");
    if (!window)
        return;
    window->load();
    const QVariant name = m_session.Lookup(QStringLiteral("tblUser"), QStringLiteral("Name"),
                                           QStringLiteral("User = '") + m_session.gUserName + QStringLiteral("'"));
    window->setProjectText(2, name.toString());
    window->show();
}

void clsProject::OpenFile()
{
    if (PID == 0 && m_session.fileChooser) {
        // The chooser's selection reads the marker file, which sets PID.
        const FileChoice c = m_session.fileChooser->choose(QStringLiteral("NAV"), QStringLiteral("Open"));
        FileName = c.file;
        FilePath = c.path;
        Mode = QStringLiteral("Edit");
    }
    if (!FileName.isEmpty()) {
        LoadProject();
        SetCmd(true);
        if (window)
            window->show();
    }
}

void clsProject::LoadProject()
{
    if (!window)
        return;
    window->setProjectSource(QStringLiteral("Select tblProject.* from tblProject where ProjectID = %1").arg(PID));
    window->setScenarioSource(QStringLiteral(
        "SELECT tblScenario.ScenarioID, tblScenario.Scenario_Type, tblScenario.Scenario_FilePath, "
        "tblScenario.Scenario_FileName, tblScenario.Scenario_LastSaved, tblScenario.Scenario_Identifier_1 FROM "
        "tblScenario INNER JOIN jtblProjectScenario ON tblScenario.ScenarioID = jtblProjectScenario.ScenarioID WHERE "
        "jtblProjectScenario.ProjectID = %1").arg(PID));
    SetCmd(true);
}

void clsProject::SetValues()
{
    if (!window)
        return;
    Name = window->projectText(0);
    Desc = window->projectText(1);
    author = window->projectText(2);
    dteModified = QDate::currentDate().startOfDay();
    Location = window->projectText(5);
    Latitude = window->projectText(3);
    Longitude = window->projectText(4);
    Comments = window->projectText(6);
    ProvSt = window->stateProvinceId();
}

QString clsProject::markerLine() const
{
    return QStringLiteral("Project ID: %1, Project Name: %2, Project Author: %3, Project Purpose: %4, Date last modified: %5,")
        .arg(PID)
        .arg(Name, author, Desc, vb::CStr(dteModified));
}

void clsProject::Save()
{
    if (!window || window->projectText(0).isEmpty()) {
        m_session.msgBox(QStringLiteral("Please add a value for all required field(s)-(Project Name)"), QString(),
                         MsgIcon::Warning);
        return;
    }
    // The save goes to the file gPathDatabase names: through the program's own connection while that
    // is the file it opened, through a further one once the setup window has pointed elsewhere.
    const std::shared_ptr<Database> db = m_session.gDB && m_session.gDB->path() == m_session.gPathDatabase
                                             ? m_session.gDB
                                             : Database::open(m_session.gPathDatabase);
    SetValues();
    const qint32 oldPID = PID;
    const QString oldFileName = FileName;
    const QString oldFilePath = FilePath;
    if (FileName == QLatin1String("*.NAV") && m_session.fileChooser) {
        // The action carries a trailing blank, as the chooser has always been asked.
        const FileChoice c = m_session.fileChooser->choose(QStringLiteral("NAV"), QStringLiteral("Save "));
        FileName = c.saveFile ? c.file : QString();
        FilePath = c.path;
    }
    if (FileName.isEmpty())
        return;
    auto write = [&](Recordset &rs) {
        rs.setField(QStringLiteral("Name"), Name);
        rs.setField(QStringLiteral("Purpose"), Desc);
        rs.setField(QStringLiteral("author"), author);
        if (Mode == QLatin1String("Add"))
            rs.setField(QStringLiteral("LastSaved"), QDateTime::currentDateTime());
        rs.setField(QStringLiteral("Location"), Location);
        rs.setField(QStringLiteral("StateProvinceID"), ProvSt);
        rs.setField(QStringLiteral("Latitude"), Latitude);
        rs.setField(QStringLiteral("Longitude"), Longitude);
        rs.setField(QStringLiteral("Comments"), Comments);
        rs.setField(QStringLiteral("Path"), FilePath);
        rs.setField(QStringLiteral("FileName"), FileName);
    };
    // The row and the marker file are saved together: the row's transaction is committed only once
    // the marker file is written, and a failure on the way rolls the row back to what it was and
    // leaves the project as it was before the save.
    Database::Transaction transaction(*db);
    bool saved = false;
    const auto keepAsBefore = qScopeGuard([&] {
        if (saved)
            return;
        PID = oldPID;
        FileName = oldFileName;
        FilePath = oldFilePath;
    });
    if (Mode == QLatin1String("Add")) {
        auto rs = db->OpenRecordset(QStringLiteral("tblProject"), RecordsetType::Dynaset);
        rs->AddNew();
        write(*rs);
        PID = rs->field(QStringLiteral("ProjectID")).toInt();
        rs->Update();
        rs->Close();
    } else {
        auto rs = db->OpenRecordset(QStringLiteral("Select * from tblProject where ProjectID = %1").arg(PID),
                                    RecordsetType::Dynaset);
        rs->Edit();
        write(*rs);
        rs->setField(QStringLiteral("LastSaved"), QDateTime::currentDateTime());
        rs->Update();
        rs->Close();
    }
    const QString marker = Session::join(FilePath, FileName);
    QFile previous(marker);
    const bool hadMarker = previous.open(QIODevice::ReadOnly);
    const QByteArray previousContent = hadMarker ? previous.readAll() : QByteArray();
    previous.close();
    if (m_session.GF_SetFileContent(marker, markerLine(), QStringLiteral("Overwrite")))
        return;  // the writer has shown its error
    try {
        transaction.commit();
    } catch (const VbError &) {
        // The row was not stored: the marker file goes back to what it was.
        if (hadMarker && previous.open(QIODevice::WriteOnly | QIODevice::Truncate))
            previous.write(previousContent);
        else if (!hadMarker)
            QFile::remove(marker);
        throw;
    }
    saved = true;
    if (Mode == QLatin1String("Add"))
        m_session.msgBox(QStringLiteral("Project has been saved successfully"), QString(), MsgIcon::Information);
    Mode = QStringLiteral("Edit");
}

void clsProject::SetCmd(bool enabled)
{
    if (window)
        window->setScenarioCommands(enabled);
}
