// SPDX-License-Identifier: MIT
#pragma once

#include "ModelFields.h"

#include <QDateTime>
#include <QString>

class Session;

//! What the project object reaches in the project window: its boxes, its state combo, its two data
//! controls and its scenario buttons. frmProject implements it; tests give a fake.
class ProjectWindow {
public:
    virtual ~ProjectWindow() = default;
    //! Loads the window (its load logic runs once) without showing it.
    virtual void load() = 0;
    virtual void show() = 0;
    //! Text of txtProject(i), 0 name ... 6 comments.
    virtual QString projectText(int index) const = 0;
    virtual void setProjectText(int index, const QString &text) = 0;
    //! StateProvinceID shown by the state combo, 0 when it shows nothing.
    virtual qint32 stateProvinceId() const = 0;
    //! Clears the text boxes and combos of the window (SetControlInfo "clear").
    virtual void clearControls() = 0;
    //! Enables cmdScenario 0, 3, 4 and 6 (Link, Create Wildlife, Create Contaminant, Edit).
    virtual void setScenarioCommands(bool enabled) = 0;
    //! Gives the project data control its statement and refreshes it.
    virtual void setProjectSource(const QString &sql) = 0;
    //! Gives the scenario data control its statement and refreshes it.
    virtual void setScenarioSource(const QString &sql) = 0;
};

//! The one open project: a named group of scenarios with its row in tblProject and its marker file.
class clsProject {
public:
    explicit clsProject(Session &session);

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
    //! The properties above by name (ModelFields.cpp), for scripts.
    static const std::vector<ModelField<clsProject>> &fields();

    //! The project window; null while it does not exist.
    ProjectWindow *window = nullptr;

    // Operations, in the legacy order. None has a handler: errors go to the caller's.
    void AddNew();
    void OpenFile();
    void LoadProject();
    void Save();
    void SetCmd(bool enabled);
    void SetValues();
    void Clear();

    //! "Project ID: <PID>, Project Name: <Name>, Project Author: <author>, Project Purpose: <Desc>,
    //! Date last modified: <dteModified>,".
    QString markerLine() const;

private:
    Session &m_session;
};
