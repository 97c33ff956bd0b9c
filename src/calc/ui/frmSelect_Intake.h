// SPDX-License-Identifier: MIT
#pragma once

#include "ZobWindow.h"

class DataControl;
class DataGrid;
class QComboBox;
class QGroupBox;
class QLineEdit;
class QRadioButton;
class QTabWidget;

//! The choice of the air, water or food-energy rate of the open scenario: an allometric equation of
//! the taxon in a chosen category, or a measured rate of the species. The rates are computed when the
//! choice is accepted and written into the scenario's intake row; the builder then shows them.
class frmSelect_Intake : public ZobWindow {
    Q_OBJECT
public:
    frmSelect_Intake(Session &session, QtWindowHost &host);

    bool isMdiChild() const override { return false; }
    void Form_Load() override;
    //! Sets the intake type (the builder's intake page index, the type less one), the taxon and the
    //! caller's mode, and reads the dialog's lists for them.
    void Filter(qint16 pageIndex, qint32 taxonId, const QString &mode);
    //! The caller's request: recordId the page index, selectedId the taxon, and the mode.
    void setRecord(const RecordRequest &request) override;

private:
    void buildModelFrame(class FormBuilder &b);
    void buildMeasuredFrame(class FormBuilder &b);
    //! Reads the dialog's lists for the intake type and taxon of the last Filter.
    void loadIntake();
    void loadModels();
    //! Shows the current model in the model boxes (they are read-only copies, never written back).
    void showModel();
    //! In the measured view the data source is the measurement's; it has no reference of its own here.
    void showMeasuredSource();
    void categoryChanged();
    void dataOptionChanged();
    void explainCorrectionFactor();
    //! Writes the chosen rate into the scenario's row; a failure is reported and nothing is written.
    void Save(int dataOption);
    void saveAndClose();

    qint32 m_intakeTypeId = 1;
    qint32 m_taxonId = 0;
    qint32 m_categoryId = 0;
    QString m_mode;
    bool m_loading = false;

    QTabWidget *m_tbIntakeType = nullptr;
    QRadioButton *m_dataOption[2] = {};
    QRadioButton *m_optMeanMaxMin[6] = {};
    QGroupBox *m_fraAllEq = nullptr;
    QGroupBox *m_fraMeasuredIntake = nullptr;
    QComboBox *m_cboCategory = nullptr;
    QComboBox *m_cboDataSource = nullptr;
    QLineEdit *m_txtEquation = nullptr;
    QLineEdit *m_txtMMF = nullptr;
    QLineEdit *m_txtWtUnitsFactor = nullptr;
    QLineEdit *m_txtReference = nullptr;
    QLineEdit *m_txtMeasuredCorrectionFactor = nullptr;
    //! The model boxes and combos with the column each shows.
    QList<QPair<QWidget *, QString>> m_modelFields;
    QList<QPair<QComboBox *, QString>> m_modelCombos;
    DataControl *m_dcIntakeModel = nullptr;
    DataControl *m_dcIntakeMeasured = nullptr;
    DataGrid *m_ssGrdMeasuredAir = nullptr;
};
