// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class DataControl;
class DataGrid;
class QBoxLayout;
class QCheckBox;
class QComboBox;
class QFormLayout;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QRadioButton;
class QTabWidget;
class QWidget;
class ZobToolbar;

//! Builds the controls of a window in code, each named as the system names it (arrays as
//! "name(i)"). Fields with a caption are laid out as label/field rows; everything else stacks in
//! order (vertically, or side by side in a row builder).
class FormBuilder {
public:
    //! Builds into container; a vertical layout is made for it if it has none.
    explicit FormBuilder(QWidget *container, bool horizontal = false);

    QWidget *container() const { return m_container; }

    //! A text box; with a caption it sits on a row behind a label of that caption.
    QLineEdit *textBox(const QString &name, const QString &caption = {});
    QPlainTextEdit *memo(const QString &name, const QString &caption = {});
    QComboBox *combo(const QString &name, const QString &caption = {});
    QLabel *label(const QString &name, const QString &caption);
    QCheckBox *check(const QString &name, const QString &caption);
    QRadioButton *option(const QString &name, int index, const QString &caption);
    QPushButton *button(const QString &name, const QString &caption);
    QPushButton *button(const QString &name, int index, const QString &caption);
    DataGrid *grid(const QString &name);
    DataControl *dataControl(const QString &name);
    //! The toolbar TB_MDI, placed first in the window.
    ZobToolbar *toolbar();
    //! A frame; build its contents with the builder returned.
    FormBuilder frame(const QString &name, const QString &caption, bool horizontal = false);
    QGroupBox *lastFrame() const { return m_lastFrame; }
    //! A tab strip; pages are added with page().
    QTabWidget *tabs(const QString &name);
    FormBuilder page(QTabWidget *tabs, const QString &caption, const QString &name = {});
    //! A row of controls side by side.
    FormBuilder row();
    //! Any widget, named; with a caption on a label/field row.
    QWidget *add(QWidget *widget, const QString &name, const QString &caption = {});
    //! Space that takes what is left.
    void stretch();

    //! Marks a box as one the user types in: blue text.
    static void userTyped(QWidget *box);

private:
    QFormLayout *formRows();
    QBoxLayout *m_layout;
    QWidget *m_container;
    QFormLayout *m_rows = nullptr;
    QGroupBox *m_lastFrame = nullptr;
};
