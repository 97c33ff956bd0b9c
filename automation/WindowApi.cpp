// SPDX-License-Identifier: MIT
#include "WindowApi.h"

#include "ControlApi.h"
#include "GuiBridge.h"
#include "InputSim.h"
#include "QtWindowHost.h"
#include "ReportView.h"
#include "ZobToolbar.h"

#include <QAction>
#include <QJSEngine>
#include <QWidget>

namespace {
ZobToolbar *toolbarOf(const ScriptContext &ctx, const QString &window)
{
    return requireControl(ctx, window, {})->findChild<ZobToolbar *>(QStringLiteral("TB_MDI"));
}
}  // namespace

// --- ToolbarApi ---

ToolbarApi::ToolbarApi(const ScriptContext &ctx, QString window) : m_ctx(ctx), m_window(std::move(window)) {}

QVariant ToolbarApi::button(const QJSValue &indexOrKey, const std::function<QVariant(ZobToolbar *, int)> &fn) const
{
    const ScriptContext ctx = m_ctx;
    const QString window = m_window;
    const bool byIndex = indexOrKey.isNumber();
    const int index = indexOrKey.toInt();
    const QString key = indexOrKey.toString();
    return m_ctx.gui([=]() -> QVariant {
        ZobToolbar *tb = toolbarOf(ctx, window);
        if (!tb)
            throw BridgeError(QStringLiteral("the window %1 has no toolbar").arg(window));
        const int i = byIndex ? index : tb->indexOf(key);
        if (!tb->button(i) || tb->button(i)->isSeparator())
            throw BridgeError(QStringLiteral("the toolbar of %1 has no button %2").arg(window, key));
        return fn(tb, i);
    });
}

QStringList ToolbarApi::keys() const
{
    const ScriptContext ctx = m_ctx;
    const QString window = m_window;
    return m_ctx.gui([=]() -> QVariant {
        ZobToolbar *tb = toolbarOf(ctx, window);
        QStringList out;
        for (int i = 1; tb && i <= tb->buttonCount(); ++i)
            out << tb->keyOf(i);
        return out;
    }).toStringList();
}

void ToolbarApi::click(const QJSValue &indexOrKey)
{
    button(indexOrKey, [](ZobToolbar *tb, int i) { tb->click(i); return QVariant(); });
}

bool ToolbarApi::visible(const QJSValue &indexOrKey) const
{
    return button(indexOrKey, [](ZobToolbar *tb, int i) { return QVariant(tb->button(i)->isVisible()); }).toBool();
}

bool ToolbarApi::enabled(const QJSValue &indexOrKey) const
{
    return button(indexOrKey, [](ZobToolbar *tb, int i) { return QVariant(tb->button(i)->isEnabled()); }).toBool();
}

// --- WindowApi ---

WindowApi::WindowApi(const ScriptContext &ctx, QString name) : m_ctx(ctx), m_name(std::move(name)) {}

QVariant WindowApi::with(const std::function<QVariant(QWidget *)> &fn) const
{
    const ScriptContext ctx = m_ctx;
    const QString name = m_name;
    return m_ctx.gui([=] { return fn(findScriptWindow(ctx, name)); });
}

QVariant WindowApi::withLoaded(const std::function<QVariant(QWidget *)> &fn) const
{
    const ScriptContext ctx = m_ctx;
    const QString name = m_name;
    return m_ctx.gui([=] { return fn(requireControl(ctx, name, {})); });
}

QString WindowApi::caption() const
{
    return withLoaded([](QWidget *w) { return QVariant(w->windowTitle()); }).toString();
}

bool WindowApi::visible() const
{
    return with([](QWidget *w) { return QVariant(w && w->isVisible()); }).toBool();
}

bool WindowApi::loaded() const
{
    return with([](QWidget *w) { return QVariant(w != nullptr); }).toBool();
}

QStringList WindowApi::controls() const
{
    return withLoaded([](QWidget *w) {
        QStringList out;
        const auto children = w->findChildren<QWidget *>();
        for (QWidget *c : children)
            if (!c->objectName().isEmpty() && !c->objectName().startsWith(QLatin1String("qt_")))
                out << c->objectName();
        return QVariant(out);
    }).toStringList();
}

QJSValue WindowApi::control(const QString &name)
{
    const ScriptContext ctx = m_ctx;
    const QString window = m_name;
    const QVariant found = m_ctx.gui([=]() -> QVariant { return requireControl(ctx, window, name) != nullptr; });
    if (!found.toBool())
        return QJSValue(QJSValue::NullValue);
    return m_ctx.engine->newQObject(new ControlApi(m_ctx, m_name, name));
}

bool WindowApi::hasControl(const QString &name) const
{
    return with([name](QWidget *w) { return QVariant(w && w->findChild<QWidget *>(name)); }).toBool();
}

QJSValue WindowApi::toolbar()
{
    return m_ctx.engine->newQObject(new ToolbarApi(m_ctx, m_name));
}

void WindowApi::close()
{
    const ScriptContext ctx = m_ctx;
    const QString name = m_name;
    m_ctx.gui([=]() -> QVariant {
        if (ctx.host->isLoaded(name))
            ctx.host->unload(name);
        else if (QWidget *w = findScriptWindow(ctx, name))
            w->close();
        return {};
    });
}

bool WindowApi::grab(const QString &path)
{
    return withLoaded([path](QWidget *w) {
        if (!w->isVisible())
            w->ensurePolished(), w->adjustSize();
        return QVariant(w->grab().save(path, "PNG"));
    }).toBool();
}

void WindowApi::keyDown(int code, int shift)
{
    withLoaded([=](QWidget *w) { InputSim::key(w, code, shift); return QVariant(); });
}

void WindowApi::click()
{
    withLoaded([](QWidget *w) { InputSim::click(w); return QVariant(); });
}

// --- MenuApi ---

MenuApi::MenuApi(const ScriptContext &ctx, QString name) : m_ctx(ctx), m_name(std::move(name)) {}

QVariant MenuApi::with(const std::function<QVariant(QAction *)> &fn) const
{
    const ScriptContext ctx = m_ctx;
    const QString name = m_name;
    return m_ctx.gui([=]() -> QVariant {
        QWidget *main = ctx.host->mainWindow();
        QAction *a = main ? main->findChild<QAction *>(name) : nullptr;
        if (!a)
            throw BridgeError(QStringLiteral("the menu has no item %1").arg(name));
        return fn(a);
    });
}

bool MenuApi::enabled() const { return with([](QAction *a) { return QVariant(a->isEnabled()); }).toBool(); }
bool MenuApi::visible() const { return with([](QAction *a) { return QVariant(a->isVisible()); }).toBool(); }
QString MenuApi::caption() const { return with([](QAction *a) { return QVariant(a->text()); }).toString(); }

void MenuApi::trigger()
{
    with([](QAction *a) {
        if (a->isEnabled() && a->isVisible())
            a->trigger();
        return QVariant();
    });
}

namespace {
ReportView *reportOf(QWidget *w, const QString &name)
{
    auto *report = dynamic_cast<ReportView *>(w);
    if (!report)
        throw BridgeError(QStringLiteral("the window %1 is not a report").arg(name));
    return report;
}
}  // namespace

int WindowApi::pageCount() const
{
    return withLoaded([this](QWidget *w) { return QVariant(reportOf(w, m_name)->pageCount()); }).toInt();
}

QString WindowApi::text() const
{
    return withLoaded([this](QWidget *w) { return QVariant(reportOf(w, m_name)->reportText()); }).toString();
}

bool WindowApi::exportPdf(const QString &path)
{
    return withLoaded([this, path](QWidget *w) { return QVariant(reportOf(w, m_name)->exportPdf(path)); }).toBool();
}
