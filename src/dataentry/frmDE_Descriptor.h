// SPDX-License-Identifier: MIT
#pragma once

#include "ZobWindow.h"

class DataControl;
class RecordBinding;

//! The descriptors (tblDescriptor): a description and its units, browsed on a data control and
//! edited between Edit (or New) and Save or Cancel; the command buttons follow the state.
class frmDE_Descriptor : public ZobWindow {
    Q_OBJECT
public:
    frmDE_Descriptor(Session &session, QtWindowHost &host);

    void Form_Load() override;

private:
    void command(int index);
    //! Browsing (true): New, Delete, Close and Edit; editing (false): Save and Cancel, the fields open.
    void browse(bool on);
    void save();
    void cancel();
    void remove();
    void reload(qint32 id);

    DataControl *m_dc;
    RecordBinding *m_record;
    qint32 m_added = 0;
};
