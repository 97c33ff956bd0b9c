// SPDX-License-Identifier: MIT
#pragma once

#include "ScriptContext.h"

#include <QObject>
#include <QPointer>
#include <QStringList>

//! Calls the invokable methods of a GUI-thread object from the script thread: the objects that
//! layers offer to scripts (ScriptBindingRegistration) and those exposed by ScriptRunner::exposeObject.
class ObjectBridgeApi : public QObject {
    Q_OBJECT
public:
    ObjectBridgeApi(const ScriptContext &ctx, QObject *target);
    //! The names of the object's invokable methods.
    QStringList methodNames() const;
    //! Calls the method of that name that takes as many arguments, each converted to its
    //! parameter's type; the result comes back as a JavaScript value.
    Q_INVOKABLE QJSValue invoke(const QString &method, const QVariantList &args);
private:
    ScriptContext m_ctx;
    QPointer<QObject> m_target;
};
