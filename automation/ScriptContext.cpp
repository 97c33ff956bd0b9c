// SPDX-License-Identifier: MIT
#include "ScriptContext.h"

#include "GuiBridge.h"
#include "QtWindowHost.h"
#include "ZobWindow.h"

#include <QApplication>
#include <QJSEngine>
#include <QMainWindow>
#include <charconv>

QVariant ScriptContext::gui(const std::function<QVariant()> &fn) const
{
    try {
        return bridge->call(fn);
    } catch (const BridgeError &e) {
        engine->throwError(e.message());
        return {};
    }
}

QJSValue ScriptContext::toJs(const QVariant &v) const
{
    if (!v.isValid() || v.isNull())
        return QJSValue(QJSValue::NullValue);
    switch (v.typeId()) {
    case QMetaType::Float: {
        // A single reads as the number of its shortest decimal text (0.1f is 0.1, not 0.100000001).
        const float f = v.toFloat();
        char buf[32];
        const auto res = std::to_chars(buf, buf + sizeof buf, f);
        return QJSValue(std::strtod(std::string(buf, res.ptr).c_str(), nullptr));
    }
    case QMetaType::QVariantList:
    case QMetaType::QStringList: {
        const QVariantList list = v.toList();
        QJSValue arr = engine->newArray(static_cast<uint>(list.size()));
        for (int i = 0; i < list.size(); ++i)
            arr.setProperty(static_cast<quint32>(i), toJs(list[i]));
        return arr;
    }
    case QMetaType::QVariantMap: {
        const QVariantMap map = v.toMap();
        QJSValue obj = engine->newObject();
        for (auto it = map.cbegin(); it != map.cend(); ++it)
            obj.setProperty(it.key(), toJs(it.value()));
        return obj;
    }
    default:
        return engine->toScriptValue(v);
    }
}

QVariant jsToVariant(const QJSValue &v)
{
    if (v.isNull() || v.isUndefined())
        return {};
    return v.toVariant();
}

QWidget *findScriptWindow(const ScriptContext &ctx, const QString &name)
{
    if (ZobWindow *w = ctx.host->loaded(name))
        return w;
    const auto tops = QApplication::topLevelWidgets();
    for (QWidget *w : tops)
        if (w->objectName() == name && (w->isVisible() || qobject_cast<QMainWindow *>(w)))
            return w;
    if (QWidget *main = ctx.host->mainWindow())
        if (auto *w = main->findChild<QWidget *>(name))
            if (w->isWindow() && w->isVisible())
                return w;
    return nullptr;
}

QWidget *requireControl(const ScriptContext &ctx, const QString &window, const QString &name)
{
    QWidget *w = findScriptWindow(ctx, window);
    if (!w)
        throw BridgeError(QStringLiteral("the window %1 is not loaded").arg(window));
    if (name.isEmpty())
        return w;
    auto *c = w->findChild<QWidget *>(name);
    if (!c)
        throw BridgeError(QStringLiteral("the window %1 has no control %2").arg(window, name));
    return c;
}
