// SPDX-License-Identifier: MIT
#pragma once

#include "ZobWindow.h"

class DataControl;
class DataGrid;
class QLineEdit;
class QListWidget;

//! Searches the whole taxonomic hierarchy by text (anywhere, exact, or at the start of any name or
//! description) and writes the complete path of the row found into the caller's record.
class frmFind_Classification : public ZobWindow {
    Q_OBJECT
public:
    frmFind_Classification(Session &session, QtWindowHost &host);

    bool isMdiChild() const override { return false; }
    void Form_Load() override;

    //! Lists the hierarchy in the order of a sort field (empty: by every level's name).
    void LoadData(const QString &sort);
    //! The criterion that finds text in any of the ten columns, by the kind of find (0 anywhere,
    //! 1 exact, 2 starting with). The text goes in as it stands.
    static QString findCriteria(int kind, const QString &text);
    //! The order clause of a sort field.
    static QString orderClause(const QString &sort);

private:
    void find(bool next);
    void select();

    QLineEdit *m_txtSearch;
    QListWidget *m_lstFindCrit;
    DataControl *m_dc;
    DataGrid *m_grid;
};
