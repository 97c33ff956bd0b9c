// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>
#include <QVariant>
#include <memory>
#include <stdexcept>

class QWidget;

//! Who changes a control: the program (no user signals, whatever the lock) or a user (the signals a
//! user's change gives: a combo's activated, a check box's click, a line edit's textEdited).
enum class Origin { Program, User };

//! What a control cannot do ("txtName does not take text"); the text names the control.
class ControlError : public std::runtime_error {
public:
    explicit ControlError(const QString &message)
        : std::runtime_error(message.toStdString()), m_message(message) {}
    const QString &message() const { return m_message; }

private:
    QString m_message;
};

//! How the program reads and writes one kind of control. Every place that needs a control's value
//! (bindings, form helpers, windows, scripts) goes through these, so a new kind of control is one
//! adapter: a subclass registered with ControlValue::registerAdapter.
class ControlAdapter {
public:
    virtual ~ControlAdapter() = default;
    //! Whether this adapter reads the widget.
    virtual bool handles(const QWidget *w) const = 0;
    //! The kind as scripts name it: "text", "combo", "check", "option", "grid", "tree", ...
    virtual QString kind() const = 0;
    //! The text shown (a grid: the current row's cells joined by tabs).
    virtual QString text(const QWidget *w) const;
    //! Puts text in the control; throws ControlError for a kind that takes none.
    virtual void setText(QWidget *w, const QString &text, Origin origin) const;
    //! The value: a combo's bound data, a check's 0/1/2, an option's state, a grid's or tab strip's
    //! current index; the text otherwise.
    virtual QVariant value(const QWidget *w) const { return text(w); }
    //! Sets the value; null empties the control.
    virtual void setValue(QWidget *w, const QVariant &value, Origin origin) const;
    //! The items of a list, combo, tab strip or tree (its items in display order).
    virtual QStringList items(const QWidget *w) const;
    //! The index of the item shown as text (-1 if none), as a user would pick it.
    virtual int find(const QWidget *w, const QString &text) const;
    //! Makes item index current.
    virtual void select(QWidget *w, int index, Origin origin) const;
    //! Empties the control.
    virtual void clear(QWidget *w) const { setValue(w, {}, Origin::Program); }
    //! A locked control shows its value and can be read, but takes no input.
    virtual bool locked(const QWidget *w) const;
    virtual void setLocked(QWidget *w, bool locked) const;

protected:
    [[noreturn]] static void refuse(const QWidget *w, const QString &what);
};

//! The adapter functions for any widget: each finds the widget's adapter and calls it.
namespace ControlValue {
//! The adapter of a widget (a generic one for widgets no adapter handles).
const ControlAdapter &of(const QWidget *w);
//! Adds an adapter; adapters registered later are asked first, so a subclass's adapter can be
//! registered after its base's.
void registerAdapter(std::unique_ptr<ControlAdapter> adapter);

inline QString kind(const QWidget *w) { return of(w).kind(); }
inline QString text(const QWidget *w) { return of(w).text(w); }
inline void setText(QWidget *w, const QString &t, Origin o = Origin::Program) { of(w).setText(w, t, o); }
inline QVariant value(const QWidget *w) { return of(w).value(w); }
inline void setValue(QWidget *w, const QVariant &v, Origin o = Origin::Program) { of(w).setValue(w, v, o); }
inline QStringList items(const QWidget *w) { return of(w).items(w); }
inline int find(const QWidget *w, const QString &t) { return of(w).find(w, t); }
inline void select(QWidget *w, int index, Origin o = Origin::Program) { of(w).select(w, index, o); }
inline void clear(QWidget *w) { of(w).clear(w); }
inline bool locked(const QWidget *w) { return w && of(w).locked(w); }
inline void setLocked(QWidget *w, bool on) { if (w) of(w).setLocked(w, on); }

//! The value a binding writes back: the control's value, with empty text as null.
QVariant boundValue(const QWidget *w);
//! Text as a user types it: nothing happens to a disabled or locked control.
void type(QWidget *w, const QString &text);
//! A value as a user sets it (a click on a check box, a choice in a combo); nothing happens to a
//! disabled or locked control.
void input(QWidget *w, const QVariant &value);
//! An item as a user picks it, by text or by index; throws ControlError when there is none.
void pick(QWidget *w, const QString &text);
void pick(QWidget *w, int index);
}  // namespace ControlValue

//! Registers the adapter of a kind of control from a static object in the file that defines it:
//!   static const ControlAdapterRegistration<TreeAdapter> reg;
template <typename A>
struct ControlAdapterRegistration {
    ControlAdapterRegistration() { ControlValue::registerAdapter(std::make_unique<A>()); }
};
