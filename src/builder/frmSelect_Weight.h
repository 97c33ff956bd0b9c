// SPDX-License-Identifier: MIT
#pragma once

#include "RequestWindow.h"

#include <QList>

class DataControl;
class DataGrid;
class QRadioButton;

//! Lists the body weights of the scenario's species, narrowed by status and gender, and gives the
//! statistic marked under "Estimator" of the chosen row to the scenario as its weight.
class frmSelect_Weight : public RequestWindow {
    Q_OBJECT
public:
    frmSelect_Weight(Session &session, QtWindowHost &host);

    bool isMdiChild() const override { return false; }

    //! Reads the list again with the filters marked, in the order given.
    void LoadData(const QString &order);
    //! The marked statistic, -1 when none is.
    int estimator() const;

protected:
    void serveRequest() override;

private:
    void buildOptions(FormBuilder &b);
    //! Offers the statistics that the current row has.
    void rowChanged();
    void select();
    //! Gives the row's statistic, gender and data source to the scenario and saves its weight.
    void SaveSelectedWeight(qint32 weightId);
    void openWeight(qint32 weightId, const QString &mode, bool modal);
    void newWeight();

    DataControl *m_dcWeight;
    DataGrid *m_grid;
    QList<QRadioButton *> m_optMeanMaxMin;
    QList<QRadioButton *> m_optStatus;
    QList<QRadioButton *> m_optGender;
};
