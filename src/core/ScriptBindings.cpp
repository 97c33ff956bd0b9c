// SPDX-License-Identifier: MIT
#include "ScriptBindings.h"

namespace ScriptBindings {
namespace {
QList<Binding> &registry()
{
    static QList<Binding> list;
    return list;
}
}  // namespace

void add(const QString &name, Factory make)
{
    registry().append({name, std::move(make)});
}

const QList<Binding> &all()
{
    return registry();
}
}  // namespace ScriptBindings
