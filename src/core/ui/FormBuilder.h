// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>

struct GridColumn;
class QGridLayout;

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
    //! Element index of the text box array name ("txtNotes(8)").
    QLineEdit *textBox(const QString &name, int index, const QString &caption = {});
    //! A memo; with lines > 0 it is as high as that many lines of text.
    QPlainTextEdit *memo(const QString &name, const QString &caption = {}, int lines = 0);
    QPlainTextEdit *memo(const QString &name, int index, const QString &caption, int lines = 0);
    QComboBox *combo(const QString &name, const QString &caption = {});
    QComboBox *combo(const QString &name, int index, const QString &caption);
    QLabel *label(const QString &name, const QString &caption);
    QLabel *label(const QString &name, int index, const QString &caption);
    QCheckBox *check(const QString &name, const QString &caption);
    QRadioButton *option(const QString &name, int index, const QString &caption);
    QPushButton *button(const QString &name, const QString &caption);
    QPushButton *button(const QString &name, int index, const QString &caption);
    DataGrid *grid(const QString &name);
    //! A grid over a data control with its columns declared (see DataGrid::setColumns).
    DataGrid *grid(const QString &name, DataControl *dc, const QList<GridColumn> &columns = {}, bool onlyThese = false);
    DataControl *dataControl(const QString &name);
    //! A data control the user does not see (one that only feeds boxes, grids or combos).
    DataControl *hiddenData(const QString &name);
    //! The toolbar TB_MDI, placed first in the window.
    ZobToolbar *toolbar();
    //! A frame; build its contents with the builder returned.
    FormBuilder frame(const QString &name, const QString &caption, bool horizontal = false);
    QGroupBox *lastFrame() const { return m_lastFrame; }
    //! A tab strip; pages are added with page().
    QTabWidget *tabs(const QString &name);
    FormBuilder page(QTabWidget *tabs, const QString &caption, const QString &name = {});
    //! A row of controls side by side; stretch > 0 lets it take that share of the height left.
    FormBuilder row(int stretch = 0, const QString &name = {});
    //! A label/field grid with up to pairs label/field pairs side by side on a row. Controls with a
    //! caption made by the returned builder fill it in reading order, each label the buddy of its
    //! field; nextRow() ends a row early (its last field then spans the rest of the row).
    FormBuilder fields(int pairs = 1, const QString &name = {});
    void nextRow();
    //! A column of controls beside the others in a row builder; stretch weighs its share of width.
    FormBuilder column(int stretch = 1, const QString &name = {});
    //! A row of controls that stands as one field behind a label of caption (a box and its "..."
    //! button); the label is the buddy of the first control placed in the row.
    FormBuilder fieldRow(const QString &name, const QString &caption);
    //! The label made for the last field given a caption, null if none.
    QLabel *lastLabel() const { return m_lastLabel; }
    //! Any widget, named; with a caption on a label/field row.
    QWidget *add(QWidget *widget, const QString &name, const QString &caption = {});
    //! A control under a label of its own name (labelName) that captions it; stretch > 0 lets the
    //! control take that share of the height left.
    QWidget *above(QWidget *widget, const QString &name, const QString &labelName, const QString &caption, int stretch = 0);
    //! A read-only text panel that keeps its text's lines: sunken, selectable, taking the focus, as
    //! high as lines lines.
    QLabel *panel(const QString &name, const QString &caption, int lines);
    //! Space that takes what is left.
    void stretch();

    //! Marks a box as one the user types in: blue text.
    static void userTyped(QWidget *box);

private:
    FormBuilder(QWidget *container, QGridLayout *grid, int pairs);
    QFormLayout *formRows();
    void placeInGrid(QWidget *label, QWidget *field);
    QWidget *m_container;
    QBoxLayout *m_layout = nullptr;
    QGridLayout *m_grid = nullptr;
    int m_pairs = 1, m_gridRow = 0, m_gridPair = 0;
    QWidget *m_lastField = nullptr;
    QFormLayout *m_rows = nullptr;
    QGroupBox *m_lastFrame = nullptr;
    QLabel *m_lastLabel = nullptr;
    QLabel *m_buddyOfFirst = nullptr;
};
