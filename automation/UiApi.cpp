// SPDX-License-Identifier: MIT
#include "UiApi.h"

#include "GuiBridge.h"
#include "HelpViewer.h"
#include "QtWindowHost.h"
#include "ScriptMessageService.h"
#include "Session.h"
#include "WindowApi.h"

#include <QAction>
#include <QApplication>
#include <QJSEngine>

UiApi::UiApi(const ScriptContext &ctx) : m_ctx(ctx) {}

QVariant UiApi::gui(const std::function<QVariant(const ScriptContext &)> &fn) const
{
    const ScriptContext ctx = m_ctx;
    return m_ctx.gui([=] { return fn(ctx); });
}

QJSValue UiApi::window(const QString &name)
{
    const bool found = gui([=](const ScriptContext &ctx) { return QVariant(findScriptWindow(ctx, name) != nullptr); }).toBool();
    if (!found)
        return QJSValue(QJSValue::NullValue);
    return m_ctx.engine->newQObject(new WindowApi(m_ctx, name));
}

QStringList UiApi::windows() const
{
    return gui([](const ScriptContext &ctx) { return QVariant(ctx.host->loadedWindows()); }).toStringList();
}

void UiApi::show(const QString &name, bool modal)
{
    gui([=](const ScriptContext &ctx) {
        if (!QtWindowHost::isRegistered(name))
            throw BridgeError(QStringLiteral("the program has no window %1").arg(name));
        ctx.host->show(name, modal);
        return QVariant();
    });
}

QJSValue UiApi::menu(const QString &name)
{
    const bool found = gui([=](const ScriptContext &ctx) {
        QWidget *main = ctx.host->mainWindow();
        return QVariant(main && main->findChild<QAction *>(name));
    }).toBool();
    if (!found)
        return QJSValue(QJSValue::NullValue);
    return m_ctx.engine->newQObject(new MenuApi(m_ctx, name));
}

void UiApi::answerList(const QStringList &answers)
{
    gui([=](const ScriptContext &ctx) { ctx.messages->queueAnswers(answers); return QVariant(); });
}

QJSValue UiApi::messages() const
{
    return m_ctx.toJs(gui([](const ScriptContext &ctx) {
        QVariantList out;
        for (const RecordedMessage &m : ctx.messages->messages()) {
            QStringList buttons;
            for (MsgAnswer a : buttonsOf(m.buttons))
                buttons << answerName(a);
            out << QVariantMap{{QStringLiteral("text"), m.text},
                               {QStringLiteral("title"), m.title},
                               {QStringLiteral("icon"), m.isInput ? QStringLiteral("input") : iconName(m.icon)},
                               {QStringLiteral("buttons"), buttons},
                               {QStringLiteral("defaultButton"), m.defaultButton},
                               {QStringLiteral("answer"), m.answer}};
        }
        return QVariant(out);
    }));
}

void UiApi::clearMessages()
{
    gui([](const ScriptContext &ctx) { ctx.messages->clear(); return QVariant(); });
}

QStringList UiApi::pendingAnswers() const
{
    return gui([](const ScriptContext &ctx) { return QVariant(ctx.messages->pendingAnswers()); }).toStringList();
}

QString UiApi::cursor() const
{
    return gui([](const ScriptContext &ctx) {
        const bool busy = ctx.session->cursor && ctx.session->cursor->busy();
        return QVariant(busy ? QStringLiteral("hourglass") : QStringLiteral("default"));
    }).toString();
}

int UiApi::helpTopic() const
{
    return gui([](const ScriptContext &) {
        for (QWidget *w : QApplication::allWidgets())
            if (auto *v = qobject_cast<HelpViewer *>(w))
                return QVariant(v->currentTopic());
        return QVariant(0);
    }).toInt();
}

void UiApi::showHelp(int number)
{
    gui([number](const ScriptContext &ctx) {
        if (ctx.session->help)
            ctx.session->help->showTopic(number);
        return QVariant();
    });
}

void UiApi::idle()
{
    gui([](const ScriptContext &) { return QVariant(); });
}
