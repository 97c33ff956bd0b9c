// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class FormBuilder;
class QLineEdit;
class frmZOB;

//! Whether a typed body weight may be stored: a number above 0 (the text's leading number).
bool isValidWeightText(const QString &text);

//! The weight page of the builder: the body weight in grams with its sex and statistic, chosen from
//! a weight record of the species or typed as hypothetical data.
class BuilderWeightPage : public QObject {
    Q_OBJECT
public:
    BuilderWeightPage(frmZOB &window, FormBuilder &page);

    //! Reloads the page from the scenario's tblWildlife row (PrS_LoadWeightControls).
    void load();
    //! Empties the weight boxes and sets the scenario's statistic to "not applicable".
    void clear();
    //! Leaving the page: a typed weight goes into gScenario (for hypothetical data) and is saved.
    void saveTypedWeight();
    //! The weight box's text, trimmed.
    QString weightText() const;
    //! Refuses a weight that is empty or not above 0; otherwise saves the weight group.
    void ValidateWeight();

private:
    void selectFromDatabase();
    void enterHypothetical();

    frmZOB &m_w;
    QLineEdit *m_txtWeightWeight;
    QLineEdit *m_txtWeightSex;
    QLineEdit *m_txtWeightEstimator;
};
