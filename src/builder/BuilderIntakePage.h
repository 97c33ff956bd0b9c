// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class FormBuilder;
class QLabel;
class QLineEdit;
class QTabWidget;
class frmZOB;

//! The intake page of the builder: one sub-page and one tblIntakeZOB row for each intake type (air,
//! water, food, soil, sediment), showing the rate, its units and derivation, and writing typed rates
//! back to the rows.
class BuilderIntakePage : public QObject {
    Q_OBJECT
public:
    BuilderIntakePage(frmZOB &window, FormBuilder &page);

    //! Writes the units of the five types into their boxes.
    void showUnits();
    //! Loads the five sub-pages from the scenario's rows (PrS_LoadIntakeControls).
    void load();
    //! Empties the rate boxes (ClearIntakeControls).
    void clear();
    //! Writes every row whose typed rate is above 0 (SaveIntakeControls).
    void SaveIntakeControls();
    //! The sub-page of ssTabIntake on show.
    int currentSubPage() const;
    void setSubPage(int index);

private:
    void buildType(FormBuilder &page, int n);
    void loadRow(class Recordset &rs, int type);
    void SaveIntake(int type);
    bool IsIntakeUserEntered(int type);
    void enterHypothetical();
    void selectFromDatabase();
    //! Opens the intake dialog for sub-page n once a weight stands on the weight page.
    void PrS_LoadSelectIntakeScreen(int n);
    void subPageChanged(int index);
    qint32 &dataSourceOf(int type);

    frmZOB &m_w;
    QTabWidget *m_ssTabIntake = nullptr;
    QLineEdit *m_rate[5] = {};
    QLineEdit *m_units[5] = {};
    QLabel *m_estimator[5] = {};
    QLineEdit *m_ucf[3] = {};
    QLineEdit *m_measureCF[4] = {};
    QLabel *m_assignedSpecies = nullptr;
    // The row being written.
    double m_adjustedRate = 0;
    QString m_derivation, m_units_, m_comments;
    qint32 m_dataSourceID = 0;
};
