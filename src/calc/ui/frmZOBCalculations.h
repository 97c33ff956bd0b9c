// SPDX-License-Identifier: MIT
#pragma once

#include "WindowLinks.h"
#include "ZobWindow.h"

class DataControl;
class DataGrid;
class GridLook;
class QCheckBox;
class QLabel;
class QLineEdit;
class QTabWidget;

//! The review of the open scenario's calculation: FMR, MEavg and TDI, one row for each diet item on
//! the basis chosen when the window opens, and the intake rates. It writes nothing; the basis
//! chosen becomes the scenario object's DietType.
class frmZOBCalculations : public ZobWindow, public CalculationReview {
    Q_OBJECT
public:
    frmZOBCalculations(Session &session, QtWindowHost &host);

    bool isMdiChild() const override { return false; }
    void Form_Load() override;
    bool ZOBCalculationsValid() override;

private:
    void buildHeader(class FormBuilder &b);
    void buildGrids(class FormBuilder &b);
    //! Asks the basis in the wet/dry dialog; the answer lands in chkIsWet.
    void chooseBasis();
    void showFigures();
    //! Colours, patterns and captions that depend on the statement's columns and the basis.
    void dressDietGrid();
    void dressIntakeGrid();
    void dietHeadClick(int column);
    void intakeHeadClick(int column);
    //! The explanation of a column in the zoom window, under a title.
    void explain(const QString &title, const QString &text);
    QString itemizedIntakeText() const;

    QLineEdit *m_box[7] = {};
    QLabel *m_lblDryWet = nullptr;
    QCheckBox *m_chkIsWet = nullptr;
    QTabWidget *m_ssTabCalc = nullptr;
    DataControl *m_dcDietItems = nullptr;
    DataControl *m_dcIntakeRates = nullptr;
    DataGrid *m_ssGrdDietItems = nullptr;
    DataGrid *m_ssGrdIntake = nullptr;
    GridLook *m_dietLook = nullptr;
    GridLook *m_intakeLook = nullptr;
    QLabel *m_zoomText = nullptr;
};
