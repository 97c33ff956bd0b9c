// SPDX-License-Identifier: MIT
#pragma once

#include "DataControl.h"
#include "LifePage.h"

#include <memory>
#include <vector>

class DataGrid;
class QPlainTextEdit;

//! An option array of a table page: its name, its frame's caption, its options and the one chosen at start.
struct OptionSpec {
    QString name;
    QString caption;
    QStringList options;
    int chosen = 0;
};

//! A page of records in a grid: option arrays that narrow the rows, the grid, the reference of the
//! current row beneath it, and words in place of the grid when there are no rows.
class LifeTablePage : public LifePage {
    Q_OBJECT
public:
    //! The statement for a species and the chosen index of each option array, in order.
    using Statement = std::function<QString(qint32 speciesId, const QList<int> &chosen)>;

    LifeTablePage(Session &session, FormBuilder &b, const QString &dcName, const QString &gridName,
                  const QList<OptionSpec> &arrays, Statement statement, const QList<GridColumn> &columns,
                  const QString &referenceBox, const QString &emptyWords);
    ~LifeTablePage() override;
    void load(qint32 speciesId) override;
    DataControl *dataControl() const { return m_dc; }
    DataGrid *grid() const { return m_grid; }

private:
    void reposition();

    Session &m_session;
    std::vector<std::unique_ptr<OptionArray>> m_arrays;
    Statement m_statement;
    DataControl *m_dc;
    DataGrid *m_grid;
    QPlainTextEdit *m_reference;
    QLabel *m_empty;
};
