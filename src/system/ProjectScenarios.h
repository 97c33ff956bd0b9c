// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class DataControl;
class QWidget;
class QtWindowHost;
class Session;

//! The commands of a project window on the scenarios of its project: create a wildlife scenario,
//! link and unlink one, open the one chosen in the builder or by its file, review its calculations,
//! and follow the row chosen in the grid (the scenario the next command acts on).
class ProjectScenarios {
public:
    //! scenarios: the data control of the project's scenarios; description: the box that shows the
    //! chosen scenario's comments; fileType: the three letters of the files a link offers.
    ProjectScenarios(Session &session, QtWindowHost &host, DataControl *scenarios, QWidget *description,
                     QString fileType);

    void newWildlifeScenario();
    //! Links the scenario chosen in the file chooser to the project, or unlinks the current one.
    void linkScenario(bool link);
    //! Makes the row chosen in the grid the current scenario and shows its comments.
    void scenarioRowChosen();
    void OpenSelectedScenario();
    void openScenarioFile();
    void showCalculations();

private:
    Session &m_session;
    QtWindowHost &m_host;
    DataControl *m_scenarios;
    QWidget *m_description;
    QString m_fileType;
};
