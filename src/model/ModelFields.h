// SPDX-License-Identifier: MIT
#pragma once

#include <QVariant>
#include <type_traits>
#include <vector>

//! One property of a model object by name, read and written as a QVariant: the generic access that
//! scripts use (session.scenario.SID). Whole numbers read as int and singles as the double of the
//! single, as the program's other readers see them.
template <typename T>
struct ModelField {
    const char *name;
    QVariant (*get)(const T &);
    void (*set)(T &, const QVariant &);
    //! What the field reads as when there is no object: the default of the type get gives.
    QVariant (*none)();
};

namespace modelfields {
template <typename>
struct MemberOf;
template <typename O, typename V>
struct MemberOf<V O::*> {
    using Owner = O;
    using Value = V;
    //! How the value is shown: whole numbers as int, singles as double.
    using Shown = std::conditional_t<std::is_same_v<V, float>, double,
                                     std::conditional_t<std::is_integral_v<V> && !std::is_same_v<V, bool>, int, V>>;
};
}  // namespace modelfields

//! The field of a data member: field<&clsScenario::SID>("SID").
template <auto Member>
ModelField<typename modelfields::MemberOf<decltype(Member)>::Owner> field(const char *name)
{
    using M = modelfields::MemberOf<decltype(Member)>;
    using Owner = typename M::Owner;
    using Shown = typename M::Shown;
    return {name,
            [](const Owner &o) { return QVariant::fromValue(static_cast<Shown>(o.*Member)); },
            [](Owner &o, const QVariant &v) { o.*Member = static_cast<typename M::Value>(v.value<Shown>()); },
            [] { return QVariant::fromValue(Shown{}); }};
}

//! The field of that name, null when there is none.
template <typename T>
const ModelField<T> *findField(const std::vector<ModelField<T>> &fields, const QString &name)
{
    for (const ModelField<T> &f : fields)
        if (name == QLatin1String(f.name))
            return &f;
    return nullptr;
}
