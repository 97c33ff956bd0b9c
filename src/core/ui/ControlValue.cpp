// SPDX-License-Identifier: MIT
#include "ControlValue.h"

#include "DataControl.h"
#include "VbError.h"
#include "VbFormat.h"
#include "ZobToolbar.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QTabWidget>
#include <QTextEdit>
#include <QTreeWidget>
#include <functional>
#include <vector>

// --- The base: what a kind of control does not do ---

void ControlAdapter::refuse(const QWidget *w, const QString &what)
{
    throw ControlError(QStringLiteral("%1 %2").arg(w->objectName(), what));
}

QString ControlAdapter::text(const QWidget *w) const
{
    return w->isWindow() ? w->windowTitle() : QString();
}

void ControlAdapter::setText(QWidget *w, const QString &, Origin) const
{
    refuse(w, QStringLiteral("does not take text"));
}

void ControlAdapter::setValue(QWidget *w, const QVariant &value, Origin origin) const
{
    QString text;
    if (!value.isNull()) {
        try {
            text = vb::CStr(value);
        } catch (const VbError &) {
            text = value.toString();
        }
    }
    setText(w, text, origin);
}

QStringList ControlAdapter::items(const QWidget *w) const
{
    refuse(w, QStringLiteral("has no items"));
}

int ControlAdapter::find(const QWidget *w, const QString &text) const
{
    const QStringList all = items(w);
    for (int i = 0; i < all.size(); ++i)
        if (all[i].trimmed().compare(text.trimmed(), Qt::CaseInsensitive) == 0)
            return i;
    return -1;
}

void ControlAdapter::select(QWidget *w, int, Origin) const
{
    refuse(w, QStringLiteral("has nothing to select"));
}

bool ControlAdapter::locked(const QWidget *w) const
{
    return w->property("locked").toBool();
}

void ControlAdapter::setLocked(QWidget *w, bool on) const
{
    w->setProperty("locked", on);
}

namespace {

//! An adapter for the widgets of class W (and its subclasses).
template <typename W>
class Typed : public ControlAdapter {
public:
    bool handles(const QWidget *w) const final { return qobject_cast<const W *>(w) != nullptr; }

protected:
    static W *as(QWidget *w) { return static_cast<W *>(w); }
    static const W *as(const QWidget *w) { return static_cast<const W *>(w); }
};

// --- Text boxes ---

class LineEditAdapter : public Typed<QLineEdit> {
public:
    QString kind() const override { return QStringLiteral("text"); }
    QString text(const QWidget *w) const override { return as(w)->text(); }
    void setText(QWidget *w, const QString &text, Origin origin) const override
    {
        QLineEdit *e = as(w);
        if (origin == Origin::Program) {
            e->setText(text);
            e->setCursorPosition(0);  // a long value shows its start, not its end
            return;
        }
        // As typed: the edit signals fire.
        e->selectAll();
        if (text.isEmpty())
            e->del();
        else
            e->insert(text);
    }
    bool locked(const QWidget *w) const override { return as(w)->isReadOnly(); }
    void setLocked(QWidget *w, bool on) const override
    {
        as(w)->setReadOnly(on);
        as(w)->setFrame(!on);
        ControlAdapter::setLocked(w, on);
    }
};

//! Memos: plain and rich text edits alike hold plain text here.
template <typename W>
class MemoAdapter : public Typed<W> {
public:
    QString kind() const override { return QStringLiteral("text"); }
    QString text(const QWidget *w) const override { return this->as(w)->toPlainText(); }
    void setText(QWidget *w, const QString &text, Origin) const override
    {
        W *m = this->as(w);
        m->setPlainText(text);
        // A memo shows the start of its text, as a box shows the start of its line.
        m->moveCursor(QTextCursor::Start);
    }
    bool locked(const QWidget *w) const override { return this->as(w)->isReadOnly(); }
    void setLocked(QWidget *w, bool on) const override
    {
        this->as(w)->setReadOnly(on);
        this->as(w)->setFrameShape(on ? QFrame::NoFrame : QFrame::StyledPanel);
        ControlAdapter::setLocked(w, on);
    }
};

// --- Combos ---

//! Swallows the input that would change a locked combo.
class ComboLockFilter : public QObject {
public:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (!watched->property("locked").toBool())
            return false;
        switch (event->type()) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
        case QEvent::Wheel:
            return true;
        case QEvent::KeyPress: {
            const int key = static_cast<QKeyEvent *>(event)->key();
            return key != Qt::Key_Tab && key != Qt::Key_Backtab;
        }
        default:
            return false;
        }
    }
};

class ComboAdapter : public Typed<QComboBox> {
public:
    QString kind() const override { return QStringLiteral("combo"); }
    QString text(const QWidget *w) const override { return as(w)->currentText(); }
    void setText(QWidget *w, const QString &text, Origin origin) const override
    {
        QComboBox *c = as(w);
        if (c->isEditable()) {
            c->setEditText(text);
            return;
        }
        choose(c, c->findText(text, Qt::MatchFixedString), origin);
    }
    //! The bound data of the item shown (its text when it has none); an editable combo's typed text.
    QVariant value(const QWidget *w) const override
    {
        const QComboBox *c = as(w);
        if (c->currentIndex() < 0)
            return c->isEditable() && !c->currentText().isEmpty() ? QVariant(c->currentText()) : QVariant();
        return c->currentData().isValid() ? c->currentData() : QVariant(c->currentText());
    }
    void setValue(QWidget *w, const QVariant &value, Origin origin) const override
    {
        QComboBox *c = as(w);
        selectComboValue(c, value);
        if (origin == Origin::User && c->currentIndex() >= 0)
            emit c->activated(c->currentIndex());
    }
    QStringList items(const QWidget *w) const override
    {
        QStringList out;
        for (int i = 0; i < as(w)->count(); ++i)
            out << as(w)->itemText(i);
        return out;
    }
    int find(const QWidget *w, const QString &text) const override
    {
        const int exact = as(w)->findText(text, Qt::MatchExactly);
        return exact >= 0 ? exact : as(w)->findText(text, Qt::MatchFixedString);
    }
    void select(QWidget *w, int index, Origin origin) const override
    {
        if (index < 0 || index >= as(w)->count())
            refuse(w, QStringLiteral("has no item %1").arg(index));
        choose(as(w), index, origin);
    }
    void clear(QWidget *w) const override
    {
        as(w)->setCurrentIndex(-1);
        if (as(w)->isEditable())
            as(w)->setEditText(QString());
    }
    void setLocked(QWidget *w, bool on) const override
    {
        static ComboLockFilter filter;
        QComboBox *c = as(w);
        c->removeEventFilter(&filter);
        c->installEventFilter(&filter);
        if (c->lineEdit())
            c->lineEdit()->setReadOnly(on);
        c->setFrame(!on);
        ControlAdapter::setLocked(w, on);
    }

private:
    static void choose(QComboBox *c, int index, Origin origin)
    {
        c->setCurrentIndex(index);
        if (origin == Origin::User && index >= 0)
            emit c->activated(index);
    }
};

// --- Buttons ---

class CheckAdapter : public Typed<QCheckBox> {
public:
    QString kind() const override { return QStringLiteral("check"); }
    QString text(const QWidget *w) const override { return as(w)->text(); }
    //! 0 unchecked, 1 checked, 2 greyed, as the legacy check box reads.
    QVariant value(const QWidget *w) const override
    {
        const Qt::CheckState s = as(w)->checkState();
        return s == Qt::PartiallyChecked ? 2 : (s == Qt::Checked ? 1 : 0);
    }
    void setValue(QWidget *w, const QVariant &v, Origin origin) const override
    {
        const bool on = v.typeId() == QMetaType::Bool ? v.toBool() : v.toInt() != 0;
        if (origin == Origin::User) {
            if (as(w)->isChecked() != on)
                as(w)->click();
        } else if (!v.isNull() && v.toInt() == 2) {
            as(w)->setCheckState(Qt::PartiallyChecked);
        } else {
            as(w)->setChecked(on);
        }
    }
};

class OptionAdapter : public Typed<QRadioButton> {
public:
    QString kind() const override { return QStringLiteral("option"); }
    QString text(const QWidget *w) const override { return as(w)->text(); }
    QVariant value(const QWidget *w) const override { return as(w)->isChecked(); }
    void setValue(QWidget *w, const QVariant &v, Origin origin) const override
    {
        if (v.toBool() && origin == Origin::User && !as(w)->isChecked())
            as(w)->click();
        else
            as(w)->setChecked(v.toBool());
    }
};

class ButtonAdapter : public Typed<QAbstractButton> {
public:
    QString kind() const override { return QStringLiteral("button"); }
    QString text(const QWidget *w) const override { return as(w)->text(); }
};

// --- Displays and containers ---

class LabelAdapter : public Typed<QLabel> {
public:
    QString kind() const override { return QStringLiteral("label"); }
    QString text(const QWidget *w) const override { return as(w)->text(); }
    void setText(QWidget *w, const QString &text, Origin origin) const override
    {
        if (origin == Origin::User)
            refuse(w, QStringLiteral("does not take text"));  // nobody types into a label
        as(w)->setText(text);
    }
};

class FrameAdapter : public Typed<QGroupBox> {
public:
    QString kind() const override { return QStringLiteral("frame"); }
    QString text(const QWidget *w) const override { return as(w)->title(); }
};

class DataControlAdapter : public Typed<DataControl> {
public:
    QString kind() const override { return QStringLiteral("data"); }
    QString text(const QWidget *w) const override { return as(w)->caption(); }
    //! The current row (0-based, -1 for none); setting it moves there as the navigator would.
    QVariant value(const QWidget *w) const override { return as(w)->currentRow(); }
    void setValue(QWidget *w, const QVariant &v, Origin) const override { as(w)->moveTo(v.toInt()); }
    void select(QWidget *w, int index, Origin) const override { as(w)->moveTo(index); }
};

class ToolbarAdapter : public Typed<ZobToolbar> {
public:
    QString kind() const override { return QStringLiteral("toolbar"); }
};

class TabsAdapter : public Typed<QTabWidget> {
public:
    QString kind() const override { return QStringLiteral("tabs"); }
    QString text(const QWidget *w) const override { return as(w)->tabText(as(w)->currentIndex()); }
    QVariant value(const QWidget *w) const override { return as(w)->currentIndex(); }
    void setValue(QWidget *w, const QVariant &v, Origin) const override { as(w)->setCurrentIndex(v.toInt()); }
    QStringList items(const QWidget *w) const override
    {
        QStringList out;
        for (int i = 0; i < as(w)->count(); ++i)
            out << as(w)->tabText(i);
        return out;
    }
    void select(QWidget *w, int index, Origin) const override { as(w)->setCurrentIndex(index); }
};

class ListAdapter : public Typed<QListWidget> {
public:
    QString kind() const override { return QStringLiteral("list"); }
    QString text(const QWidget *w) const override
    {
        return as(w)->currentItem() ? as(w)->currentItem()->text() : QString();
    }
    QVariant value(const QWidget *w) const override { return as(w)->currentRow(); }
    void setValue(QWidget *w, const QVariant &v, Origin) const override { as(w)->setCurrentRow(v.toInt()); }
    QStringList items(const QWidget *w) const override
    {
        QStringList out;
        for (int i = 0; i < as(w)->count(); ++i)
            out << as(w)->item(i)->text();
        return out;
    }
    void select(QWidget *w, int index, Origin) const override
    {
        if (index < 0 || index >= as(w)->count())
            refuse(w, QStringLiteral("has no item %1").arg(index));
        as(w)->setCurrentRow(index);
    }
    void clear(QWidget *w) const override { as(w)->clear(); }
};

//! A tree: its items in display order (depth first), the current item's first column as text, and
//! its position in that order as value.
class TreeAdapter : public Typed<QTreeWidget> {
public:
    QString kind() const override { return QStringLiteral("tree"); }
    QString text(const QWidget *w) const override
    {
        return as(w)->currentItem() ? as(w)->currentItem()->text(0) : QString();
    }
    QVariant value(const QWidget *w) const override
    {
        const auto all = flat(as(w));
        return static_cast<int>(all.indexOf(as(w)->currentItem()));
    }
    void setValue(QWidget *w, const QVariant &v, Origin o) const override { select(w, v.toInt(), o); }
    QStringList items(const QWidget *w) const override
    {
        QStringList out;
        for (QTreeWidgetItem *item : flat(as(w)))
            out << item->text(0);
        return out;
    }
    void select(QWidget *w, int index, Origin) const override
    {
        const auto all = flat(as(w));
        if (index < 0 || index >= all.size())
            refuse(w, QStringLiteral("has no item %1").arg(index));
        as(w)->setCurrentItem(all[index]);
    }
    void clear(QWidget *w) const override { as(w)->clear(); }

private:
    static QList<QTreeWidgetItem *> flat(const QTreeWidget *t)
    {
        QList<QTreeWidgetItem *> out;
        std::function<void(QTreeWidgetItem *)> walk = [&](QTreeWidgetItem *item) {
            out << item;
            for (int i = 0; i < item->childCount(); ++i)
                walk(item->child(i));
        };
        for (int i = 0; i < t->topLevelItemCount(); ++i)
            walk(t->topLevelItem(i));
        return out;
    }
};

class GridAdapter : public Typed<DataGrid> {
public:
    QString kind() const override { return QStringLiteral("grid"); }
    QString text(const QWidget *w) const override
    {
        const int r = as(w)->currentRowIndex();
        return r >= 0 ? as(w)->rowTexts(r).join(QLatin1Char('\t')) : QString();
    }
    QVariant value(const QWidget *w) const override { return as(w)->currentRowIndex(); }
    void setValue(QWidget *w, const QVariant &v, Origin) const override { as(w)->selectRowIndex(v.toInt()); }
    void select(QWidget *w, int index, Origin) const override { as(w)->selectRowIndex(index); }
};

//! Any other widget: a window's caption as text, and nothing to set.
class GenericAdapter : public ControlAdapter {
public:
    bool handles(const QWidget *) const override { return true; }
    QString kind() const override { return {}; }
};

std::vector<std::unique_ptr<ControlAdapter>> &adapters()
{
    // Asked from the back: the more specific kinds come after the general ones.
    static std::vector<std::unique_ptr<ControlAdapter>> list = [] {
        std::vector<std::unique_ptr<ControlAdapter>> l;
        l.push_back(std::make_unique<ButtonAdapter>());
        l.push_back(std::make_unique<CheckAdapter>());
        l.push_back(std::make_unique<OptionAdapter>());
        l.push_back(std::make_unique<LineEditAdapter>());
        l.push_back(std::make_unique<MemoAdapter<QPlainTextEdit>>());
        l.push_back(std::make_unique<MemoAdapter<QTextEdit>>());
        l.push_back(std::make_unique<ComboAdapter>());
        l.push_back(std::make_unique<LabelAdapter>());
        l.push_back(std::make_unique<FrameAdapter>());
        l.push_back(std::make_unique<DataControlAdapter>());
        l.push_back(std::make_unique<ToolbarAdapter>());
        l.push_back(std::make_unique<TabsAdapter>());
        l.push_back(std::make_unique<ListAdapter>());
        l.push_back(std::make_unique<TreeAdapter>());
        l.push_back(std::make_unique<GridAdapter>());
        return l;
    }();
    return list;
}
}  // namespace

namespace ControlValue {

const ControlAdapter &of(const QWidget *w)
{
    static const GenericAdapter generic;
    auto &list = adapters();
    for (auto it = list.rbegin(); it != list.rend(); ++it)
        if ((*it)->handles(w))
            return **it;
    return generic;
}

void registerAdapter(std::unique_ptr<ControlAdapter> adapter)
{
    adapters().push_back(std::move(adapter));
}

QVariant boundValue(const QWidget *w)
{
    const QVariant v = value(w);
    if (v.typeId() == QMetaType::QString && v.toString().isEmpty())
        return {};
    return v;
}

namespace {
bool takesInput(const QWidget *w)
{
    return w->isEnabled() && !locked(w);
}
}  // namespace

void type(QWidget *w, const QString &t)
{
    if (takesInput(w))
        setText(w, t, Origin::User);
}

void input(QWidget *w, const QVariant &v)
{
    if (takesInput(w))
        setValue(w, v, Origin::User);
}

void pick(QWidget *w, const QString &t)
{
    if (!takesInput(w))
        return;
    const int index = find(w, t);
    if (index < 0)
        throw ControlError(QStringLiteral("%1 has no item %2").arg(w->objectName(), t));
    pick(w, index);
}

void pick(QWidget *w, int index)
{
    if (takesInput(w))
        select(w, index, Origin::User);
}
}  // namespace ControlValue
