// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>
#include <functional>

class QObject;
class Session;

//! The objects that layers offer to scripts under a global name (calc, diet): every public
//! invokable method of such an object becomes callable as name.method(...). A layer registers its
//! objects from a static object, as windows register themselves:
//!   static const ScriptBindingRegistration reg(QStringLiteral("calc"),
//!       [](Session &s, QObject *parent) { return new CalcScriptApi(s, parent); });
namespace ScriptBindings {
//! Makes the object on the GUI thread; parent owns it.
using Factory = std::function<QObject *(Session &, QObject *parent)>;
struct Binding {
    QString name;
    Factory make;
};
void add(const QString &name, Factory make);
//! Every registered binding, in the order of registration.
const QList<Binding> &all();
}  // namespace ScriptBindings

struct ScriptBindingRegistration {
    ScriptBindingRegistration(const QString &name, ScriptBindings::Factory make)
    {
        ScriptBindings::add(name, std::move(make));
    }
};
