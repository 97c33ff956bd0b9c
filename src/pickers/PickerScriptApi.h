// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QVariantMap>

class Session;

//! What scripts reach as "pickers": opening a picker for a caller's row, as the windows that own such
//! rows do (the caller's table, key and record id, the mode, the row it holds now, and whether the
//! picker assigns). An assigning picker is shown modally; the script goes on inside it.
class PickerScriptApi : public QObject {
    Q_OBJECT
public:
    PickerScriptApi(Session &session, QObject *parent);
    //! request: {recordId, table, keyField, mode, selectedId, filter, collection, entry}; filter
    //! defaults to true and mode to "ReadOnly". A filtering (assigning) window is shown modally.
    Q_INVOKABLE void open(const QString &window, const QVariantMap &request);

private:
    Session &m_session;
};
