// SPDX-License-Identifier: MIT
#include "ControlApi.h"

#include "ControlValue.h"
#include "DataControl.h"
#include "GuiBridge.h"
#include "InputSim.h"
#include "Utilities.h"

#include <QAbstractButton>

namespace {
bool isKind(const QWidget *w, const char *kind)
{
    return ControlValue::kind(w) == QLatin1String(kind);
}

//! A grid's row as a user reaches it: one of its rows, or an error naming the grid.
void requireRow(DataGrid *g, int row)
{
    if (!g->recordsetModel() || row < 0 || row >= g->recordsetModel()->rowCount())
        throw BridgeError(QStringLiteral("%1 has no row %2").arg(g->objectName()).arg(row));
}
}  // namespace

ControlApi::ControlApi(const ScriptContext &ctx, QString window, QString name)
    : m_ctx(ctx), m_window(std::move(window)), m_name(std::move(name))
{
}

QVariant ControlApi::with(const std::function<QVariant(QWidget *)> &fn) const
{
    const ScriptContext ctx = m_ctx;
    const QString window = m_window, name = m_name;
    return m_ctx.gui([=] {
        try {
            return fn(requireControl(ctx, window, name));
        } catch (const ControlError &e) {
            throw BridgeError(e.message());
        }
    });
}

QVariant ControlApi::withGrid(const std::function<QVariant(DataGrid *)> &fn) const
{
    return with([fn](QWidget *w) {
        auto *g = qobject_cast<DataGrid *>(w);
        if (!g)
            throw BridgeError(QStringLiteral("%1 is not a grid").arg(w->objectName()));
        return fn(g);
    });
}

QVariant ControlApi::withTabs(const std::function<QVariant(QWidget *)> &fn) const
{
    return with([fn](QWidget *w) {
        if (!isKind(w, "tabs"))
            throw BridgeError(QStringLiteral("%1 is not a tab strip").arg(w->objectName()));
        return fn(w);
    });
}

// --- What a control shows ---

QString ControlApi::text() const { return with([](QWidget *w) { return ControlValue::text(w); }).toString(); }
QString ControlApi::caption() const { return text(); }

QString ControlApi::type() const
{
    return with([](QWidget *w) {
        const QString kind = ControlValue::kind(w);
        return kind.isEmpty() ? QString::fromLatin1(w->metaObject()->className()) : kind;
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

bool ControlApi::locked() const { return with([](QWidget *w) { return QVariant(ControlValue::locked(w)); }).toBool(); }
int ControlApi::foreColor() const { return with([](QWidget *w) { return QVariant(toLegacyColor(::foreColor(w))); }).toInt(); }

QJSValue ControlApi::value() const
{
    return m_ctx.toJs(with([](QWidget *w) {
        // A list box reads as the text of its current item, as the legacy list box's default
        // property does.
        return isKind(w, "list") ? QVariant(ControlValue::text(w)) : ControlValue::value(w);
    }));
}

QJSValue ControlApi::items() const
{
    return m_ctx.toJs(with([](QWidget *w) { return QVariant(ControlValue::items(w)); }));
}

// --- Input as a user gives it ---

void ControlApi::setText(const QString &text)
{
    with([text](QWidget *w) { ControlValue::type(w, text); return QVariant(); });
}

void ControlApi::setValue(const QJSValue &value)
{
    const QVariant v = jsToVariant(value);
    with([v](QWidget *w) {
        // A number or a boolean goes into a text box as JavaScript writes it.
        if (isKind(w, "text"))
            ControlValue::type(w, v.toString());
        else
            ControlValue::input(w, v);
        return QVariant();
    });
}

void ControlApi::select(const QJSValue &textOrIndex)
{
    const bool byIndex = textOrIndex.isNumber();
    const int index = textOrIndex.toInt();
    const QString text = textOrIndex.toString();
    with([=](QWidget *w) {
        if (byIndex)
            ControlValue::pick(w, index);
        else
            ControlValue::pick(w, text);
        return QVariant();
    });
}

void ControlApi::click()
{
    with([](QWidget *w) {
        if (auto *b = qobject_cast<QAbstractButton *>(w))
            b->click();
        else
            InputSim::click(w);
        return QVariant();
    });
}

void ControlApi::dblClick()
{
    with([](QWidget *w) {
        if (auto *g = qobject_cast<DataGrid *>(w))
            g->dblClickRow(g->currentRowIndex());
        else
            InputSim::dblClick(w);
        return QVariant();
    });
}

void ControlApi::focus() { with([](QWidget *w) { InputSim::focus(w); return QVariant(); }); }
void ControlApi::blur() { with([](QWidget *w) { InputSim::blur(w); return QVariant(); }); }

void ControlApi::keyDown(int code, int shift)
{
    with([code, shift](QWidget *w) { InputSim::key(w, code, shift); return QVariant(); });
}

// --- Grids ---

QJSValue ControlApi::rows() const
{
    return m_ctx.toJs(withGrid([](DataGrid *g) {
        QVariantList out;
        const int n = g->recordsetModel() ? g->recordsetModel()->rowCount() : 0;
        for (int r = 0; r < n; ++r)
            out << QVariant(g->rowTexts(r));
        return QVariant(out);
    }));
}

QJSValue ControlApi::columns() const
{
    return m_ctx.toJs(withGrid([](DataGrid *g) { return QVariant(g->columnCaptions()); }));
}

int ControlApi::rowCount() const
{
    return withGrid([](DataGrid *g) { return QVariant(g->recordsetModel() ? g->recordsetModel()->rowCount() : 0); }).toInt();
}

int ControlApi::currentRow() const
{
    return withGrid([](DataGrid *g) { return QVariant(g->currentRowIndex()); }).toInt();
}

QString ControlApi::cell(int row, int column) const
{
    return withGrid([row, column](DataGrid *g) { return QVariant(g->cellText(row, column)); }).toString();
}

void ControlApi::selectRow(int row)
{
    withGrid([row](DataGrid *g) {
        requireRow(g, row);
        g->selectRowIndex(row);
        return QVariant();
    });
}

void ControlApi::clickCell(int row, int column)
{
    withGrid([row, column](DataGrid *g) {
        requireRow(g, row);
        if (g->shownColumn(column) < 0)
            throw BridgeError(QStringLiteral("%1 has no column %2").arg(g->objectName()).arg(column));
        if (!g->clickCell(row, column))
            throw BridgeError(QStringLiteral("%1: the cell (%2, %3) could not be written").arg(g->objectName()).arg(row).arg(column));
        return QVariant();
    });
}

void ControlApi::dblClickRow(int row)
{
    withGrid([row](DataGrid *g) {
        requireRow(g, row);
        g->dblClickRow(row);
        return QVariant();
    });
}

void ControlApi::headClick(const QJSValue &column)
{
    const bool byIndex = column.isNumber();
    const int index = column.toInt();
    const QString caption = column.toString();
    withGrid([=](DataGrid *g) {
        const int shown = byIndex ? index : static_cast<int>(g->columnCaptions().indexOf(caption));
        const int logical = g->shownColumn(shown);
        if (logical < 0)
            throw BridgeError(QStringLiteral("%1 has no column %2").arg(g->objectName(), caption));
        g->headClick(logical);
        return QVariant();
    });
}

// --- Tab strips ---

int ControlApi::currentTab() const
{
    return withTabs([](QWidget *w) { return ControlValue::value(w); }).toInt();
}

void ControlApi::selectTab(int index)
{
    withTabs([index](QWidget *w) {
        if (index < 0 || index >= ControlValue::items(w).size())
            throw BridgeError(QStringLiteral("%1 has no tab %2").arg(w->objectName()).arg(index));
        ControlValue::select(w, index);
        return QVariant();
    });
}
