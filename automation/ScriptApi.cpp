// SPDX-License-Identifier: MIT
#include "ScriptApi.h"

#include "ControlEvents.h"
#include "DataControl.h"
#include "Database.h"
#include "GuiBridge.h"
#include "HelpViewer.h"
#include "QtWindowHost.h"
#include "ScriptMessageService.h"
#include "Session.h"
#include "Utilities.h"
#include "VbError.h"
#include "VbFormat.h"
#include "ZobToolbar.h"
#include "ZobWindow.h"
#include "clsProject.h"
#include "clsScenario.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGroupBox>
#include <QJSEngine>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMainWindow>
#include <QMetaMethod>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QTabWidget>
#include <QTextEdit>
#include <charconv>

// --- context ---

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

namespace {
QString errText(const QString &what)
{
    return what;
}

QWidget *requireControl(const ScriptContext &ctx, const QString &window, const QString &name)
{
    QWidget *w = findScriptWindow(ctx, window);
    if (!w)
        throw BridgeError(errText(QStringLiteral("the window %1 is not loaded").arg(window)));
    if (name.isEmpty())
        return w;
    auto *c = w->findChild<QWidget *>(name);
    if (!c)
        throw BridgeError(QStringLiteral("the window %1 has no control %2").arg(window, name));
    return c;
}

QWidget *mouseTarget(QWidget *w)
{
    if (auto *area = qobject_cast<QAbstractScrollArea *>(w))
        return area->viewport();
    return w;
}

void sendMouse(QWidget *w, QEvent::Type type)
{
    QWidget *t = mouseTarget(w);
    const QPointF pos(std::max(1, t->width() / 2), std::max(1, t->height() / 2));
    QMouseEvent ev(type, pos, t->mapToGlobal(pos), Qt::LeftButton,
                   type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(t, &ev);
}

void sendKey(QWidget *w, int vbCode, int shift)
{
    const int key = qtKeyFromVb(vbCode);
    if (key == 0)
        throw BridgeError(QStringLiteral("no key has the code %1").arg(vbCode));
    Qt::KeyboardModifiers mods;
    if (shift & 1) mods |= Qt::ShiftModifier;
    if (shift & 2) mods |= Qt::ControlModifier;
    if (shift & 4) mods |= Qt::AltModifier;
    QString text;
    if ((vbCode >= 48 && vbCode <= 57) || (vbCode >= 65 && vbCode <= 90))
        text = QChar(vbCode >= 65 && !(shift & 1) ? vbCode + 32 : vbCode);
    else if (vbCode == 32)
        text = QStringLiteral(" ");
    else if (vbCode == 13)
        text = QStringLiteral("\r");
    else if (vbCode == 27)
        text = QString(QChar(27));
    QKeyEvent press(QEvent::KeyPress, key, mods, text);
    QCoreApplication::sendEvent(w, &press);
    QKeyEvent release(QEvent::KeyRelease, key, mods, text);
    QCoreApplication::sendEvent(w, &release);
}

void typeText(QWidget *w, const QString &text)
{
    if (!w->isEnabled() || isLocked(w))
        return;  // as for a user: a locked or disabled box takes no typing
    if (auto *e = qobject_cast<QLineEdit *>(w)) {
        e->selectAll();
        if (text.isEmpty())
            e->del();
        else
            e->insert(text);
    } else if (auto *t = qobject_cast<QTextEdit *>(w)) {
        t->setPlainText(text);
    } else if (auto *p = qobject_cast<QPlainTextEdit *>(w)) {
        p->setPlainText(text);
    } else if (auto *c = qobject_cast<QComboBox *>(w)) {
        if (c->isEditable()) {
            c->setEditText(text);
        } else {
            const int i = c->findText(text, Qt::MatchFixedString);
            c->setCurrentIndex(i);
            if (i >= 0)
                emit c->activated(i);
        }
    } else {
        throw BridgeError(QStringLiteral("%1 does not take text").arg(w->objectName()));
    }
}

QString widgetText(QWidget *w)
{
    if (auto *e = qobject_cast<QLineEdit *>(w)) return e->text();
    if (auto *t = qobject_cast<QTextEdit *>(w)) return t->toPlainText();
    if (auto *p = qobject_cast<QPlainTextEdit *>(w)) return p->toPlainText();
    if (auto *c = qobject_cast<QComboBox *>(w)) return c->currentText();
    if (auto *l = qobject_cast<QLabel *>(w)) return l->text();
    if (auto *b = qobject_cast<QAbstractButton *>(w)) return b->text();
    if (auto *g = qobject_cast<QGroupBox *>(w)) return g->title();
    if (auto *d = qobject_cast<DataControl *>(w)) return d->caption();
    if (auto *lw = qobject_cast<QListWidget *>(w)) return lw->currentItem() ? lw->currentItem()->text() : QString();
    if (auto *tw = qobject_cast<QTabWidget *>(w)) return tw->tabText(tw->currentIndex());
    if (auto *g = qobject_cast<DataGrid *>(w)) {
        const int r = g->currentRowIndex();
        return r >= 0 ? g->rowTexts(r).join(QLatin1Char('\t')) : QString();
    }
    if (w->isWindow()) return w->windowTitle();
    return {};
}

QString kindOf(QWidget *w)
{
    if (qobject_cast<DataGrid *>(w)) return QStringLiteral("grid");
    if (qobject_cast<DataControl *>(w)) return QStringLiteral("data");
    if (qobject_cast<QLineEdit *>(w) || qobject_cast<QTextEdit *>(w) || qobject_cast<QPlainTextEdit *>(w)) return QStringLiteral("text");
    if (qobject_cast<QComboBox *>(w)) return QStringLiteral("combo");
    if (qobject_cast<QCheckBox *>(w)) return QStringLiteral("check");
    if (qobject_cast<QRadioButton *>(w)) return QStringLiteral("option");
    if (qobject_cast<QAbstractButton *>(w)) return QStringLiteral("button");
    if (qobject_cast<QLabel *>(w)) return QStringLiteral("label");
    if (qobject_cast<QGroupBox *>(w)) return QStringLiteral("frame");
    if (qobject_cast<QTabWidget *>(w)) return QStringLiteral("tabs");
    if (qobject_cast<QListWidget *>(w)) return QStringLiteral("list");
    if (qobject_cast<ZobToolbar *>(w)) return QStringLiteral("toolbar");
    return QString::fromLatin1(w->metaObject()->className());
}

DataGrid *requireGrid(QWidget *w)
{
    auto *g = qobject_cast<DataGrid *>(w);
    if (!g)
        throw BridgeError(QStringLiteral("%1 is not a grid").arg(w->objectName()));
    return g;
}

QVariant jsToVariant(const QJSValue &v)
{
    if (v.isNull() || v.isUndefined())
        return {};
    return v.toVariant();
}
}  // namespace

// --- ControlApi ---

ControlApi::ControlApi(const ScriptContext &ctx, QString window, QString name)
    : m_ctx(ctx), m_window(std::move(window)), m_name(std::move(name))
{
}

QVariant ControlApi::with(const std::function<QVariant(QWidget *)> &fn) const
{
    const ScriptContext ctx = m_ctx;
    const QString window = m_window, name = m_name;
    return m_ctx.gui([=] { return fn(requireControl(ctx, window, name)); });
}

QString ControlApi::text() const { return with([](QWidget *w) { return widgetText(w); }).toString(); }
QString ControlApi::type() const { return with([](QWidget *w) { return kindOf(w); }).toString(); }

QString ControlApi::caption() const
{
    return with([](QWidget *w) -> QVariant {
        if (auto *tw = qobject_cast<QTabWidget *>(w))
            return tw->tabText(tw->currentIndex());
        return widgetText(w);
    }).toString();
}

bool ControlApi::visible() const
{
    return with([](QWidget *w) { return QVariant(w->isWindow() ? w->isVisible() : w->isVisibleTo(w->window())); }).toBool();
}

bool ControlApi::enabled() const
{
    // The control's own setting, as the legacy property reads, whatever its frame says.
    return with([](QWidget *w) { return QVariant(!w->testAttribute(Qt::WA_ForceDisabled)); }).toBool();
}

bool ControlApi::locked() const { return with([](QWidget *w) { return QVariant(isLocked(w)); }).toBool(); }
int ControlApi::foreColor() const { return with([](QWidget *w) { return QVariant(toLegacyColor(::foreColor(w))); }).toInt(); }

QJSValue ControlApi::value() const
{
    return m_ctx.toJs(with([](QWidget *w) -> QVariant {
        if (auto *c = qobject_cast<QCheckBox *>(w))
            return static_cast<int>(c->checkState()) == Qt::PartiallyChecked ? 2 : (c->isChecked() ? 1 : 0);
        if (auto *r = qobject_cast<QRadioButton *>(w))
            return r->isChecked();
        if (auto *c = qobject_cast<QComboBox *>(w)) {
            if (c->currentIndex() < 0)
                return c->isEditable() && !c->currentText().isEmpty() ? QVariant(c->currentText()) : QVariant();
            return c->currentData().isValid() ? c->currentData() : QVariant(c->currentText());
        }
        if (auto *g = qobject_cast<DataGrid *>(w))
            return g->currentRowIndex();
        if (auto *t = qobject_cast<QTabWidget *>(w))
            return t->currentIndex();
        return widgetText(w);
    }));
}

QJSValue ControlApi::items() const
{
    return m_ctx.toJs(with([](QWidget *w) -> QVariant {
        QStringList out;
        if (auto *c = qobject_cast<QComboBox *>(w))
            for (int i = 0; i < c->count(); ++i) out << c->itemText(i);
        else if (auto *l = qobject_cast<QListWidget *>(w))
            for (int i = 0; i < l->count(); ++i) out << l->item(i)->text();
        else if (auto *t = qobject_cast<QTabWidget *>(w))
            for (int i = 0; i < t->count(); ++i) out << t->tabText(i);
        else
            throw BridgeError(QStringLiteral("%1 has no items").arg(w->objectName()));
        return out;
    }));
}

QJSValue ControlApi::rows() const
{
    return m_ctx.toJs(with([](QWidget *w) -> QVariant {
        DataGrid *g = requireGrid(w);
        QVariantList out;
        const int n = g->recordsetModel() ? g->recordsetModel()->rowCount() : 0;
        for (int r = 0; r < n; ++r)
            out << QVariant(g->rowTexts(r));
        return out;
    }));
}

QJSValue ControlApi::columns() const
{
    return m_ctx.toJs(with([](QWidget *w) -> QVariant { return requireGrid(w)->columnCaptions(); }));
}

int ControlApi::rowCount() const
{
    return with([](QWidget *w) -> QVariant {
        DataGrid *g = requireGrid(w);
        return g->recordsetModel() ? g->recordsetModel()->rowCount() : 0;
    }).toInt();
}

int ControlApi::currentRow() const
{
    return with([](QWidget *w) -> QVariant { return requireGrid(w)->currentRowIndex(); }).toInt();
}

int ControlApi::currentTab() const
{
    return with([](QWidget *w) -> QVariant {
        auto *t = qobject_cast<QTabWidget *>(w);
        if (!t) throw BridgeError(QStringLiteral("%1 is not a tab strip").arg(w->objectName()));
        return t->currentIndex();
    }).toInt();
}

void ControlApi::setText(const QString &text)
{
    with([text](QWidget *w) { typeText(w, text); return QVariant(); });
}

void ControlApi::click()
{
    with([](QWidget *w) {
        if (auto *b = qobject_cast<QAbstractButton *>(w)) {
            b->click();
        } else {
            sendMouse(w, QEvent::MouseButtonPress);
            sendMouse(w, QEvent::MouseButtonRelease);
        }
        return QVariant();
    });
}

void ControlApi::dblClick()
{
    with([](QWidget *w) {
        if (auto *g = qobject_cast<DataGrid *>(w)) {
            g->dblClickRow(g->currentRowIndex());
        } else {
            sendMouse(w, QEvent::MouseButtonPress);
            sendMouse(w, QEvent::MouseButtonRelease);
            sendMouse(w, QEvent::MouseButtonDblClick);
            sendMouse(w, QEvent::MouseButtonRelease);
        }
        return QVariant();
    });
}

void ControlApi::focus()
{
    with([](QWidget *w) {
        w->window()->activateWindow();
        w->setFocus(Qt::OtherFocusReason);
        if (!w->hasFocus()) {
            // Without an active window (headless) focus moves are not delivered: deliver one.
            QFocusEvent in(QEvent::FocusIn, Qt::OtherFocusReason);
            QCoreApplication::sendEvent(w, &in);
        }
        return QVariant();
    });
}

void ControlApi::blur()
{
    with([](QWidget *w) {
        if (w->hasFocus()) {
            w->clearFocus();
        } else {
            QFocusEvent out(QEvent::FocusOut, Qt::OtherFocusReason);
            QCoreApplication::sendEvent(w, &out);
        }
        return QVariant();
    });
}

void ControlApi::keyDown(int code, int shift)
{
    with([code, shift](QWidget *w) { sendKey(w, code, shift); return QVariant(); });
}

void ControlApi::setValue(const QJSValue &value)
{
    const QVariant v = jsToVariant(value);
    with([v](QWidget *w) {
        if (!w->isEnabled())
            return QVariant();
        if (auto *c = qobject_cast<QCheckBox *>(w)) {
            const bool on = v.typeId() == QMetaType::Bool ? v.toBool() : v.toInt() != 0;
            if (c->isChecked() != on)
                c->click();
        } else if (auto *r = qobject_cast<QRadioButton *>(w)) {
            if (v.toBool() && !r->isChecked())
                r->click();
            else if (!v.toBool())
                r->setChecked(false);
        } else if (auto *c = qobject_cast<QComboBox *>(w)) {
            if (isLocked(c))
                return QVariant();
            selectComboValue(c, v);
            if (c->currentIndex() >= 0)
                emit c->activated(c->currentIndex());
        } else if (auto *t = qobject_cast<QTabWidget *>(w)) {
            t->setCurrentIndex(v.toInt());
        } else if (auto *g = qobject_cast<DataGrid *>(w)) {
            g->selectRowIndex(v.toInt());
        } else {
            typeText(w, v.isNull() ? QString() : v.toString());
        }
        return QVariant();
    });
}

void ControlApi::select(const QJSValue &textOrIndex)
{
    const bool byIndex = textOrIndex.isNumber();
    const int index = textOrIndex.toInt();
    const QString text = textOrIndex.toString();
    with([=](QWidget *w) {
        if (auto *c = qobject_cast<QComboBox *>(w)) {
            if (!c->isEnabled() || isLocked(c))
                return QVariant();
            int i = byIndex ? index : c->findText(text, Qt::MatchExactly);
            if (!byIndex && i < 0)
                i = c->findText(text, Qt::MatchFixedString);
            if (i < 0 || i >= c->count())
                throw BridgeError(QStringLiteral("%1 has no item %2").arg(c->objectName(), text));
            c->setCurrentIndex(i);
            emit c->activated(i);
        } else if (auto *l = qobject_cast<QListWidget *>(w)) {
            int i = index;
            if (!byIndex) {
                const auto found = l->findItems(text, Qt::MatchFixedString);
                i = found.isEmpty() ? -1 : l->row(found.first());
            }
            if (i < 0 || i >= l->count())
                throw BridgeError(QStringLiteral("%1 has no item %2").arg(l->objectName(), text));
            l->setCurrentRow(i);
        } else if (auto *t = qobject_cast<QTabWidget *>(w)) {
            int i = index;
            for (int k = 0; !byIndex && k < t->count(); ++k)
                if (t->tabText(k).trimmed().compare(text.trimmed(), Qt::CaseInsensitive) == 0)
                    i = k;
            t->setCurrentIndex(i);
        } else if (auto *g = qobject_cast<DataGrid *>(w)) {
            g->selectRowIndex(index);
        } else {
            throw BridgeError(QStringLiteral("%1 has nothing to select").arg(w->objectName()));
        }
        return QVariant();
    });
}

void ControlApi::selectRow(int row)
{
    with([row](QWidget *w) {
        DataGrid *g = requireGrid(w);
        if (!g->recordsetModel() || row < 0 || row >= g->recordsetModel()->rowCount())
            throw BridgeError(QStringLiteral("%1 has no row %2").arg(w->objectName()).arg(row));
        g->selectRowIndex(row);
        return QVariant();
    });
}

void ControlApi::headClick(const QJSValue &column)
{
    const bool byIndex = column.isNumber();
    const int index = column.toInt();
    const QString caption = column.toString();
    with([=](QWidget *w) {
        DataGrid *g = requireGrid(w);
        int shown = index;
        if (!byIndex)
            shown = static_cast<int>(g->columnCaptions().indexOf(caption));
        const int logical = g->shownColumn(shown);
        if (logical < 0)
            throw BridgeError(QStringLiteral("%1 has no column %2").arg(w->objectName(), column.toString()));
        g->headClick(logical);
        return QVariant();
    });
}

void ControlApi::dblClickRow(int row)
{
    with([row](QWidget *w) {
        DataGrid *g = requireGrid(w);
        if (!g->recordsetModel() || row < 0 || row >= g->recordsetModel()->rowCount())
            throw BridgeError(QStringLiteral("%1 has no row %2").arg(w->objectName()).arg(row));
        g->dblClickRow(row);
        return QVariant();
    });
}

QString ControlApi::cell(int row, int column) const
{
    return with([row, column](QWidget *w) -> QVariant { return requireGrid(w)->cellText(row, column); }).toString();
}

void ControlApi::selectTab(int index)
{
    with([index](QWidget *w) {
        auto *t = qobject_cast<QTabWidget *>(w);
        if (!t) throw BridgeError(QStringLiteral("%1 is not a tab strip").arg(w->objectName()));
        if (index < 0 || index >= t->count())
            throw BridgeError(QStringLiteral("%1 has no tab %2").arg(w->objectName()).arg(index));
        t->setCurrentIndex(index);
        return QVariant();
    });
}

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
        auto *tb = requireControl(ctx, window, {})->findChild<ZobToolbar *>(QStringLiteral("TB_MDI"));
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
        auto *tb = requireControl(ctx, window, {})->findChild<ZobToolbar *>(QStringLiteral("TB_MDI"));
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

QString WindowApi::caption() const
{
    const ScriptContext ctx = m_ctx;
    const QString name = m_name;
    return m_ctx.gui([=]() -> QVariant { return requireControl(ctx, name, {})->windowTitle(); }).toString();
}

bool WindowApi::visible() const
{
    const ScriptContext ctx = m_ctx;
    const QString name = m_name;
    return m_ctx.gui([=]() -> QVariant {
        QWidget *w = findScriptWindow(ctx, name);
        return w && w->isVisible();
    }).toBool();
}

bool WindowApi::loaded() const
{
    const ScriptContext ctx = m_ctx;
    const QString name = m_name;
    return m_ctx.gui([=]() -> QVariant { return findScriptWindow(ctx, name) != nullptr; }).toBool();
}

QStringList WindowApi::controls() const
{
    const ScriptContext ctx = m_ctx;
    const QString name = m_name;
    return m_ctx.gui([=]() -> QVariant {
        QStringList out;
        const auto children = requireControl(ctx, name, {})->findChildren<QWidget *>();
        for (QWidget *c : children)
            if (!c->objectName().isEmpty() && !c->objectName().startsWith(QLatin1String("qt_")))
                out << c->objectName();
        return out;
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
    const ScriptContext ctx = m_ctx;
    const QString window = m_name;
    return m_ctx.gui([=]() -> QVariant {
        QWidget *w = findScriptWindow(ctx, window);
        return w && w->findChild<QWidget *>(name);
    }).toBool();
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
    const ScriptContext ctx = m_ctx;
    const QString name = m_name;
    return m_ctx.gui([=]() -> QVariant {
        QWidget *w = requireControl(ctx, name, {});
        if (!w->isVisible())
            w->ensurePolished(), w->adjustSize();
        return w->grab().save(path, "PNG");
    }).toBool();
}

void WindowApi::keyDown(int code, int shift)
{
    const ScriptContext ctx = m_ctx;
    const QString name = m_name;
    m_ctx.gui([=]() -> QVariant {
        sendKey(requireControl(ctx, name, {}), code, shift);
        return {};
    });
}

void WindowApi::click()
{
    const ScriptContext ctx = m_ctx;
    const QString name = m_name;
    m_ctx.gui([=]() -> QVariant {
        QWidget *w = requireControl(ctx, name, {});
        sendMouse(w, QEvent::MouseButtonPress);
        sendMouse(w, QEvent::MouseButtonRelease);
        return {};
    });
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

// --- UiApi ---

UiApi::UiApi(const ScriptContext &ctx) : m_ctx(ctx) {}

QJSValue UiApi::window(const QString &name)
{
    const ScriptContext ctx = m_ctx;
    const bool found = m_ctx.gui([=]() -> QVariant { return findScriptWindow(ctx, name) != nullptr; }).toBool();
    if (!found)
        return QJSValue(QJSValue::NullValue);
    return m_ctx.engine->newQObject(new WindowApi(m_ctx, name));
}

QStringList UiApi::windows() const
{
    const ScriptContext ctx = m_ctx;
    return m_ctx.gui([=]() -> QVariant { return ctx.host->loadedWindows(); }).toStringList();
}

void UiApi::show(const QString &name, bool modal)
{
    const ScriptContext ctx = m_ctx;
    m_ctx.gui([=]() -> QVariant {
        if (!QtWindowHost::isRegistered(name))
            throw BridgeError(QStringLiteral("the program has no window %1").arg(name));
        ctx.host->show(name, modal);
        return {};
    });
}

QJSValue UiApi::menu(const QString &name)
{
    const ScriptContext ctx = m_ctx;
    const bool found = m_ctx.gui([=]() -> QVariant {
        QWidget *main = ctx.host->mainWindow();
        return main && main->findChild<QAction *>(name);
    }).toBool();
    if (!found)
        return QJSValue(QJSValue::NullValue);
    return m_ctx.engine->newQObject(new MenuApi(m_ctx, name));
}

void UiApi::answerList(const QStringList &answers)
{
    const ScriptContext ctx = m_ctx;
    m_ctx.gui([=]() -> QVariant {
        ctx.messages->queueAnswers(answers);
        return {};
    });
}

QJSValue UiApi::messages() const
{
    const ScriptContext ctx = m_ctx;
    const QVariant v = m_ctx.gui([=]() -> QVariant {
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
        return out;
    });
    return m_ctx.toJs(v);
}

void UiApi::clearMessages()
{
    const ScriptContext ctx = m_ctx;
    m_ctx.gui([=]() -> QVariant {
        ctx.messages->clear();
        return {};
    });
}

QStringList UiApi::pendingAnswers() const
{
    const ScriptContext ctx = m_ctx;
    return m_ctx.gui([=]() -> QVariant { return ctx.messages->pendingAnswers(); }).toStringList();
}

QString UiApi::cursor() const
{
    const ScriptContext ctx = m_ctx;
    return m_ctx.gui([=]() -> QVariant {
        const bool busy = ctx.session->cursor && ctx.session->cursor->busy();
        return busy ? QStringLiteral("hourglass") : QStringLiteral("default");
    }).toString();
}

int UiApi::helpTopic() const
{
    return m_ctx.gui([]() -> QVariant {
        for (QWidget *w : QApplication::allWidgets())
            if (auto *v = qobject_cast<HelpViewer *>(w))
                return v->currentTopic();
        return 0;
    }).toInt();
}

void UiApi::showHelp(int number)
{
    const ScriptContext ctx = m_ctx;
    m_ctx.gui([=]() -> QVariant {
        if (ctx.session->help)
            ctx.session->help->showTopic(number);
        return {};
    });
}

void UiApi::idle()
{
    m_ctx.gui([]() -> QVariant { return {}; });
}

// --- DbApi ---

QJSValue DbApi::query(const QString &jetSql)
{
    const ScriptContext ctx = m_ctx;
    const QVariant v = m_ctx.gui([=]() -> QVariant {
        auto rs = ctx.session->gDB->OpenRecordset(jetSql, RecordsetType::Snapshot);
        const QStringList names = rs->fieldNames();
        QVariantList rows;
        while (!rs->EOF_()) {
            QVariantMap row;
            for (int i = 0; i < names.size(); ++i)
                row.insert(names[i], rs->field(i));
            rows << row;
            rs->MoveNext();
        }
        return rows;
    });
    return m_ctx.toJs(v);
}

int DbApi::exec(const QString &jetSql)
{
    const ScriptContext ctx = m_ctx;
    return m_ctx.gui([=]() -> QVariant { return ctx.session->gDB->Execute(jetSql, true); }).toInt();
}

// --- ScenarioApi / ProjectApi / SessionApi ---

#define ZOB_SCENARIO_GET(type, prop, expr)                                                                   \
    type ScenarioApi::prop() const                                                                          \
    {                                                                                                       \
        const ScriptContext ctx = m_ctx;                                                                    \
        return qvariant_cast<type>(m_ctx.gui([=]() -> QVariant {                                            \
            auto &sc = ctx.session->gScenario;                                                              \
            return sc ? QVariant::fromValue<type>(expr) : QVariant::fromValue<type>(type{});               \
        }));                                                                                                \
    }

ZOB_SCENARIO_GET(int, SID, sc->SID)
ZOB_SCENARIO_GET(QString, Mode, sc->Mode)
ZOB_SCENARIO_GET(int, DietID, sc->DietID)
ZOB_SCENARIO_GET(int, DietType, sc->DietType)
ZOB_SCENARIO_GET(QString, ScenarioType, sc->ScenarioType)
ZOB_SCENARIO_GET(QString, FileName, sc->FileName)
ZOB_SCENARIO_GET(QString, FilePath, sc->FilePath)
ZOB_SCENARIO_GET(int, SpeciesID, sc->SpeciesID)
ZOB_SCENARIO_GET(int, WeightID, sc->WeightID)
ZOB_SCENARIO_GET(double, Weight, static_cast<double>(sc->Weight))
#undef ZOB_SCENARIO_GET

bool ScenarioApi::exists() const
{
    const ScriptContext ctx = m_ctx;
    return m_ctx.gui([=]() -> QVariant { return ctx.session->gScenario != nullptr; }).toBool();
}

void ScenarioApi::setSID(int v)
{
    const ScriptContext ctx = m_ctx;
    m_ctx.gui([=]() -> QVariant {
        if (ctx.session->gScenario) ctx.session->gScenario->SID = v;
        return {};
    });
}

void ScenarioApi::setDietID(int v)
{
    const ScriptContext ctx = m_ctx;
    m_ctx.gui([=]() -> QVariant {
        if (ctx.session->gScenario) ctx.session->gScenario->DietID = v;
        return {};
    });
}

void ScenarioApi::setDietType(int v)
{
    const ScriptContext ctx = m_ctx;
    m_ctx.gui([=]() -> QVariant {
        if (ctx.session->gScenario) ctx.session->gScenario->DietType = static_cast<qint16>(v);
        return {};
    });
}

#define ZOB_PROJECT_GET(type, prop, expr)                                                                    \
    type ProjectApi::prop() const                                                                           \
    {                                                                                                       \
        const ScriptContext ctx = m_ctx;                                                                    \
        return qvariant_cast<type>(m_ctx.gui([=]() -> QVariant {                                            \
            auto &p = ctx.session->gProject;                                                                \
            return p ? QVariant::fromValue<type>(expr) : QVariant::fromValue<type>(type{});                \
        }));                                                                                                \
    }

ZOB_PROJECT_GET(int, PID, p->PID)
ZOB_PROJECT_GET(QString, Name, p->Name)
ZOB_PROJECT_GET(QString, Mode, p->Mode)
ZOB_PROJECT_GET(QString, FileName, p->FileName)
ZOB_PROJECT_GET(QString, FilePath, p->FilePath)
#undef ZOB_PROJECT_GET

bool ProjectApi::exists() const
{
    const ScriptContext ctx = m_ctx;
    return m_ctx.gui([=]() -> QVariant { return ctx.session->gProject != nullptr; }).toBool();
}

SessionApi::SessionApi(const ScriptContext &ctx) : m_ctx(ctx)
{
    m_scenario = ctx.engine->newQObject(new ScenarioApi(ctx));
    m_project = ctx.engine->newQObject(new ProjectApi(ctx));
}

QString SessionApi::user() const
{
    const ScriptContext ctx = m_ctx;
    return m_ctx.gui([=]() -> QVariant { return ctx.session->gUserName; }).toString();
}

int SessionApi::userId() const
{
    const ScriptContext ctx = m_ctx;
    return m_ctx.gui([=]() -> QVariant { return ctx.session->gUserID; }).toInt();
}

QString SessionApi::home() const
{
    const ScriptContext ctx = m_ctx;
    return m_ctx.gui([=]() -> QVariant { return ctx.session->home; }).toString();
}

// --- FmtApi ---

QString FmtApi::vbFormat(const QJSValue &value, const QString &pattern)
{
    const QVariant v = jsToVariant(value);
    return m_ctx.gui([=]() -> QVariant { return vb::vbFormat(v, pattern); }).toString();
}

QJSValue FmtApi::CSng(const QJSValue &text)
{
    const QVariant v = jsToVariant(text);
    return m_ctx.toJs(m_ctx.gui([=]() -> QVariant { return QVariant(vb::CSng(v)); }));
}

double FmtApi::Val(const QString &text)
{
    return m_ctx.gui([=]() -> QVariant { return vb::Val(text); }).toDouble();
}

QJSValue FmtApi::Lookup(const QString &table, const QString &field, const QString &criteria)
{
    const ScriptContext ctx = m_ctx;
    return m_ctx.toJs(m_ctx.gui([=]() -> QVariant { return ctx.session->Lookup(table, field, criteria); }));
}

// --- FsApi ---

QString FsApi::resolve(const QString &path) const
{
    if (QDir::isAbsolutePath(path))
        return path;
    const ScriptContext ctx = m_ctx;
    const QString home = m_ctx.gui([=]() -> QVariant { return ctx.session->home; }).toString();
    return QDir(home).filePath(path);
}

QJSValue FsApi::read(const QString &path)
{
    QFile f(resolve(path));
    if (!f.open(QIODevice::ReadOnly)) {
        m_ctx.engine->throwError(QStringLiteral("cannot read %1").arg(path));
        return {};
    }
    return QJSValue(QString::fromUtf8(f.readAll()));
}

bool FsApi::exists(const QString &path)
{
    return QFileInfo::exists(resolve(path));
}

QStringList FsApi::list(const QString &dir)
{
    return QDir(resolve(dir)).entryList(QDir::AllEntries | QDir::NoDotAndDotDot, QDir::Name);
}

// --- ObjectBridgeApi ---

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
    const QVariant result = m_ctx.gui([=]() -> QVariant {
        if (!target)
            throw BridgeError(QStringLiteral("the object is gone"));
        const QMetaObject *mo = target->metaObject();
        QMetaMethod chosen;
        for (int i = mo->methodOffset(); i < mo->methodCount() && !chosen.isValid(); ++i) {
            const QMetaMethod m = mo->method(i);
            if (m.methodType() == QMetaMethod::Method && QString::fromLatin1(m.name()) == method
                && m.parameterCount() == args.size())
                chosen = m;
        }
        if (!chosen.isValid())
            throw BridgeError(QStringLiteral("%1 takes no %2 arguments").arg(method).arg(args.size()));
        if (args.size() > 10)
            throw BridgeError(QStringLiteral("%1 has too many parameters").arg(method));
        QVector<QVariant> values(args.size());
        QGenericArgument gargs[10];
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
        const bool ok = chosen.invoke(target.data(), Qt::DirectConnection, gret, gargs[0], gargs[1], gargs[2],
                                      gargs[3], gargs[4], gargs[5], gargs[6], gargs[7], gargs[8], gargs[9]);
        if (!ok)
            throw BridgeError(QStringLiteral("%1 could not be called").arg(method));
        // A method that returns a QVariant wrote into the variant held by ret: hand on that one.
        if (chosen.returnMetaType().id() == QMetaType::QVariant)
            return ret.value<QVariant>();
        return ret;
    });
    return m_ctx.toJs(result);
}
