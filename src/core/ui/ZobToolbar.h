// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QToolBar>
#include <QVector>
#include <functional>

class QAction;

//! One place on a toolbar, as a table row: a button with its key, tip, caption and handler, or a
//! separator. Separators count in the index like buttons; a spare separator keeps its index but is
//! not drawn (for windows whose button numbers have gaps).
struct ToolButton {
    enum class Kind { Button, Separator, Spare };
    QString key = {};
    QString tip = {};
    QString caption = {};
    std::function<void()> handler = {};
    Kind kind = Kind::Button;

    static ToolButton separator() { return {{}, {}, {}, {}, Kind::Separator}; }
    static ToolButton spare() { return {{}, {}, {}, {}, Kind::Spare}; }
};

//! The toolbar of a window (TB_MDI). Its buttons are numbered from 1 in the order added, separators
//! included, and carry a key; both address a button.
class ZobToolbar : public QToolBar {
    Q_OBJECT
public:
    explicit ZobToolbar(QWidget *parent = nullptr);

    //! Adds a button with a key and a tooltip; the icon is drawn from the key. Returns its index.
    int addButton(const QString &key, const QString &toolTip, const QString &caption = {});
    //! Adds a separator, which takes an index like a button.
    int addSeparatorButton();
    //! Adds the places of a table in order. Each button's handler runs when it is pressed, passed
    //! through wrap when one is given (a window's error handler).
    void define(const QList<ToolButton> &places,
                const std::function<void(const std::function<void()> &)> &wrap = {});

    int buttonCount() const { return static_cast<int>(m_buttons.size()); }
    //! The action of button index (1-based), or of a key; null if none.
    QAction *button(int index) const;
    QAction *button(const QString &key) const;
    //! The index of a key, 0 if none.
    int indexOf(const QString &key) const;
    QString keyOf(int index) const;

    //! Presses a button as a click would: nothing happens for a hidden or disabled one.
    //! Returns false when there is no such button.
    bool click(int index);
    bool click(const QString &key);

signals:
    //! A button was pressed: its 1-based index and its key.
    void ButtonClick(int index, const QString &key);

private:
    QVector<QAction *> m_buttons;
};
