// SPDX-License-Identifier: MIT
#pragma once

#include "ZobWindow.h"
#include "clsProject.h"

#include <memory>

class DataControl;
class ProjectScenarios;
class FormBuilder;
class DataGrid;
class QComboBox;
class QPlainTextEdit;
class QPushButton;

//! One project: its descriptive fields bound to its tblProject row, and the grid of its scenarios, from
//! which scenarios are created, linked, unlinked, opened and reviewed. Closing it saves the project.
class frmProject : public ZobWindow, public ProjectWindow {
    Q_OBJECT
public:
    frmProject(Session &session, QtWindowHost &host);
    ~frmProject() override;

    void Form_Load() override;
    void Form_Activate() override;
    void Form_Unload(bool &cancel) override;
    QSize sizeHint() const override { return QWidget::sizeHint().expandedTo({820, 640}); }

    //! Scenario file name pattern whose last three letters give the type of file to link.
    QString sFileName = QStringLiteral("*.ZOB");
    //! Sets the caption "Project: " + the text in upper case.
    void PuS_SetMessage(const QString &text);

    // ProjectWindow
    void load() override;
    void show() override;
    QString projectText(int index) const override;
    void setProjectText(int index, const QString &text) override;
    qint32 stateProvinceId() const override;
    void clearControls() override;
    void setScenarioCommands(bool enabled) override;
    void setProjectSource(const QString &sql) override;
    void setScenarioSource(const QString &sql) override;

private:
    void buildProjectFields(FormBuilder &b);
    void buildScenarios(FormBuilder &b);
    void connectEvents();
    void saveProject();
    void scenarioRowMoved();
    void scenarioDoubleClicked();
    void zoom(int index);
    //! After a save has given a new project its id, binds the window to that row.
    void followProject();
    void refreshProjectList();
    void offerFileAgain();

    DataControl *m_dcProject;
    QComboBox *m_cboStateProvince = nullptr;
    DataControl *m_dcScenario;
    DataGrid *m_ssGrdProjectScenarios;
    QPlainTextEdit *m_txtScenarioDescription;
    QWidget *m_txtProject[7] = {};
    qint32 m_boundPid = -1;
    std::unique_ptr<ProjectScenarios> m_scenarioCommands;
};
