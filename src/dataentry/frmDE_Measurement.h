// SPDX-License-Identifier: MIT
#pragma once

#include "ZobWindow.h"

#include <QStringList>

class QComboBox;
class QLabel;
class QLineEdit;

//! The statistics of one value of a caller's row (mean, minimum, maximum, sample size, variance,
//! variance type, data source), read from and written to the columns that the kind names: "WW" and
//! "DW" the wet and dry gross energy columns, "AE", "H2O" and "All" the plain ones ("All" also
//! gender, status and units). Any other kind reads and writes only the variance type and data source.
class frmDE_Measurement : public ZobWindow {
    Q_OBJECT
public:
    frmDE_Measurement(Session &session, QtWindowHost &host);

    bool isMdiChild() const override { return false; }

    //! The record and the kind; the window reads the row at once.
    void PuS_SetRecord(qint32 recordId, const QString &keyField, const QString &tableName, const QString &kind);
    //! The columns of mean, minimum, maximum, sample size and variance for a kind ("" where the kind
    //! has none); empty for an unknown kind.
    static QStringList columnsOf(const QString &kind);

    //! Fills the boxes from the row.
    void LoadData();
    //! Writes the boxes into the row: empty text and empty combos as null.
    void SaveMeasurement();

private:
    QString rowStatement() const;

    qint32 m_id = 0;
    QString m_key, m_table, m_kind;
    QLineEdit *m_txt[5];
    QComboBox *m_cboVarianceType, *m_cboDataSource, *m_cboGender, *m_cboStatus, *m_cboUnits;
    QLabel *m_lblDataSource;
    QLabel *m_lblExtras[3];
};
