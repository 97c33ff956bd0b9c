// SPDX-License-Identifier: MIT
#include "ObjectBridge.h"

#include "GuiBridge.h"

#include <QMetaMethod>

namespace {
constexpr int kMaxArguments = 10;

//! The method of the object with that name and argument count, invalid when there is none.
QMetaMethod methodOf(const QObject *target, const QString &method, qsizetype argCount)
{
    const QMetaObject *mo = target->metaObject();
    for (int i = mo->methodOffset(); i < mo->methodCount(); ++i) {
        const QMetaMethod m = mo->method(i);
        if (m.methodType() == QMetaMethod::Method && QString::fromLatin1(m.name()) == method
            && m.parameterCount() == argCount)
            return m;
    }
    return {};
}

//! Calls the method with the arguments converted to its parameter types.
QVariant call(QObject *target, const QMetaMethod &chosen, const QString &method, const QVariantList &args)
{
    QVector<QVariant> values(args.size());
    QGenericArgument gargs[kMaxArguments];
    for (int i = 0; i < args.size(); ++i) {
        const QMetaType type = chosen.parameterMetaType(i);
        QVariant v = args[i];
        if (type.id() == QMetaType::QVariant) {
            values[i] = v;
            gargs[i] = QGenericArgument("QVariant", &values[i]);
            continue;
        }
        if (!v.isValid())
            v = QVariant(type);
        if (!v.convert(type))
            throw BridgeError(QStringLiteral("%1: argument %2 cannot be read as %3")
                                  .arg(method).arg(i + 1).arg(QString::fromLatin1(type.name())));
        values[i] = v;
        gargs[i] = QGenericArgument(type.name(), values[i].constData());
    }
    QVariant ret;
    QGenericReturnArgument gret;
    if (chosen.returnMetaType().id() != QMetaType::Void) {
        ret = QVariant(chosen.returnMetaType());
        gret = QGenericReturnArgument(chosen.returnMetaType().name(), ret.data());
    }
    const bool ok = chosen.invoke(target, Qt::DirectConnection, gret, gargs[0], gargs[1], gargs[2], gargs[3],
                                  gargs[4], gargs[5], gargs[6], gargs[7], gargs[8], gargs[9]);
    if (!ok)
        throw BridgeError(QStringLiteral("%1 could not be called").arg(method));
    // A method that returns a QVariant wrote into the variant held by ret: hand on that one.
    if (chosen.returnMetaType().id() == QMetaType::QVariant)
        return ret.value<QVariant>();
    return ret;
}
}  // namespace

ObjectBridgeApi::ObjectBridgeApi(const ScriptContext &ctx, QObject *target) : m_ctx(ctx), m_target(target) {}

QStringList ObjectBridgeApi::methodNames() const
{
    QStringList names;
    if (!m_target)
        return names;
    const QMetaObject *mo = m_target->metaObject();
    for (int i = mo->methodOffset(); i < mo->methodCount(); ++i) {
        const QMetaMethod m = mo->method(i);
        if (m.methodType() == QMetaMethod::Method && m.access() == QMetaMethod::Public
            && !names.contains(QString::fromLatin1(m.name())))
            names << QString::fromLatin1(m.name());
    }
    return names;
}

QJSValue ObjectBridgeApi::invoke(const QString &method, const QVariantList &args)
{
    QPointer<QObject> target = m_target;
    return m_ctx.toJs(m_ctx.gui([=]() -> QVariant {
        if (!target)
            throw BridgeError(QStringLiteral("the object is gone"));
        const QMetaMethod chosen = methodOf(target, method, args.size());
        if (!chosen.isValid())
            throw BridgeError(QStringLiteral("%1 takes no %2 arguments").arg(method).arg(args.size()));
        if (args.size() > kMaxArguments)
            throw BridgeError(QStringLiteral("%1 has too many parameters").arg(method));
        return call(target, chosen, method, args);
    }));
}
