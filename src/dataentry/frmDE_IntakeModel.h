// SPDX-License-Identifier: MIT
#pragma once

#include "EntryWindow.h"

//! The entry window of an allometric intake equation (tblIntakeModel): y = a * (body weight(g)) ^ b
//! for an intake type, taxon and species group, with its units, measure and regression statistics.
//! The units of the result follow the intake type; a record without a species group gets one typed in
//! a box of its own, made at once. Outside mode "Write" the record is locked like a vetted one.
class frmDE_IntakeModel : public EntryWindow {
    Q_OBJECT
public:
    frmDE_IntakeModel(Session &session, QtWindowHost &host);

    //! The unit of the result of an intake type ("" for a type without one).
    static QString unitText(qint32 intakeTypeId);
    //! The guidance on the correction factor for an intake type.
    static QString factorNote(qint32 intakeTypeId);

    //! Checks the four numbers of the equation (a text that is no number fails the save) and saves.
    void save() override;

protected:
    QString recordSource(qint32 id) const override;
    void rowShown() override;

private:
    void narrowMeasures(qint32 intakeTypeId);
    void intakeTypeChosen();
    void weightUnitChosen();
    void newSpeciesGroup();

    QComboBox *m_cboType, *m_cboCategory, *m_cboMeasure, *m_cboWtUnits, *m_cboEquationUnits, *m_cboFinalUnits;
    QLineEdit *m_txtNewSpeciesGroup, *m_txtWtUnitsFactor;
    QLabel *m_lblNewSpeciesGroup;
    QWidget *m_numbers[4];
};
