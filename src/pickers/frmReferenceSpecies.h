// SPDX-License-Identifier: MIT
#pragma once

#include "RequestWindow.h"

class DataControl;
class DataGrid;
class QLabel;
class QLineEdit;

//! The names behind a two-list assignment: the main record, the join table that links it to the other
//! side, and the other side's rows. Kept as data so that the statements are built the same way for any
//! such pair.
struct AssignmentNames {
    QString mainTable, mainKey, mainShown;
    QString joinTable, joinKey;
    QString otherTable, otherKey, otherShown;
};

//! Moves references between the list of those available and the list of those assigned to one species
//! (the request's record id), showing which general texts each assigned reference supports.
class frmReferenceSpecies : public RequestWindow {
    Q_OBJECT
public:
    frmReferenceSpecies(Session &session, QtWindowHost &host);


    static AssignmentNames names();
    //! The other side's rows not linked to the main record id, by their shown field.
    static QString availableStatement(const AssignmentNames &n, qint32 id);
    //! The species' references with the four text marks.
    static QString assignedStatement(qint32 speciesId);

    //! Reads both lists again.
    void loadLists();

protected:
    void serveRequest() override;

private:
    void fillHeader();
    void assign();
    void unassign();

    QLabel *m_lblHeader;
    QLineEdit *m_txtInput;
    DataControl *m_dc[2];
    DataGrid *m_grid[2];
};
