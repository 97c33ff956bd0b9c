// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractTableModel>
#include <QColor>
#include <QHash>
#include <QPointer>
#include <QSet>
#include <QTableView>
#include <QVariant>
#include <QVector>
#include <QWidget>
#include <functional>
#include <memory>

class Database;
class QComboBox;
class QLabel;
class QToolButton;
class Recordset;
class VbError;

//! A data control: a record source (Jet SQL) on a database, its recordset and current row, a caption
//! "Record: n of m", a Reposition signal, and the boxes bound to its columns. Refresh reads the first
//! rows only; the others are read from the recordset when they are asked for (a grid asks for the rows
//! it shows), and the full count comes from the database. The bound columns of a row are written back
//! when the row is left: on a move, on Refresh, or on UpdateRecord.
class DataControl : public QWidget {
    Q_OBJECT
public:
    explicit DataControl(const QString &name, QWidget *parent = nullptr);
    ~DataControl() override;

    void setDatabase(std::shared_ptr<Database> db) { m_db = std::move(db); }
    const std::shared_ptr<Database> &database() const { return m_db; }
    void setRecordSource(const QString &jetSql) { m_source = jetSql; }
    const QString &recordSource() const { return m_source; }

    //! Writes back the row being left, re-runs the record source, goes to the first row.
    //! Errors (a bad statement) throw VbError to the caller's handler.
    void Refresh();
    //! The recordset, null before the first Refresh.
    Recordset *recordset() const { return m_rs.get(); }
    //! The recordset on its current row; throws VbError 3021 "No current record." when there is none.
    Recordset &current() const;

    // Navigation; each leaves the row (writing back) and signals Reposition.
    void MoveFirst();
    void MoveLast();
    void MoveNext();
    void MovePrevious();
    //! Goes to row (0-based); out of range does nothing.
    void moveTo(int row);
    //! The current row (0-based), -1 when there is none.
    int currentRow() const;

    //! Writes the bound boxes of the current row to the database now (legacy UpdateRecord).
    void UpdateRecord();
    //! Shows the current row in the bound boxes again, dropping what was typed.
    void UpdateControls();
    //! Tells the grids that a row's values changed in the recordset.
    void refreshRow(int row);
    //! Writes one value of a row at once, as an edit in a grid cell does: the data control goes to
    //! the row and writes through its recordset when that rests on one table, otherwise into the
    //! write-back table (setWriteTable). False, with the failure reported as a write-back failure is
    //! (Error), when the value could not be written.
    bool writeValue(int row, const QString &field, const QVariant &value);
    //! Where writeValue puts the values of a record source that cannot be written itself (a join): the
    //! table whose record a row shows, found by the row's keyFields (same names in the table) and by a
    //! criterion that every row shares (Jet, may be empty).
    void setWriteTable(const QString &table, const QStringList &keyFields, const QString &sharedCriteria = {});

    //! The rows of the record source at the last Refresh: counted by the database unless the first
    //! rows read were all of them.
    int rowCount() const { return m_count; }
    int columnCount() const { return static_cast<int>(m_fields.size()); }
    const QStringList &fields() const { return m_fields; }
    int fieldIndex(const QString &field) const;
    //! A value of a row (read from the recordset up to that row when needed); null out of range.
    QVariant value(int row, int column) const;
    QVariant value(int row, const QString &field) const { return value(row, fieldIndex(field)); }

    //! Binds a control to a column. A box shows null as empty and writes null when emptied; a combo
    //! shows the item whose data equals the value and writes the data of the chosen item (null for
    //! none); a label only shows the value.
    void bind(QWidget *control, const QString &field);

    //! The navigator's caption.
    QString caption() const;
    void setCaption(const QString &text);

signals:
    //! The current row changed (or the rows were read again).
    void Reposition();
    //! The current row is about to be left (a move, a Refresh, UpdateRecord), before the bound boxes
    //! are written back: a window that writes its own columns does so here.
    void leavingRow();
    //! The rows are about to be read again / were read again.
    void aboutToRefresh();
    void refreshed();
    //! A row's values in the copy changed (after a write-back).
    void rowChanged(int row);
    //! A write-back failed; without a receiver the failure is written to standard error.
    void Error(int number, const QString &description);

private:
    struct Binding {
        QPointer<QWidget> widget;
        QString field;
        bool readOnly;    // a label: shown, never written back
        QVariant shown;   // the value put into the box, to tell what the user changed
    };
    void leaveRow();
    void arrive();
    void showRow();
    void countRows();
    void writeToTable(int row, const QString &field, const QVariant &value);
    //! Drops the edit under way and reports a failed write.
    void writeFailed(const VbError &e);

    std::shared_ptr<Database> m_db;
    QString m_source;
    std::unique_ptr<Recordset> m_rs;
    QStringList m_fields;
    int m_count = 0;
    QVector<Binding> m_bindings;
    struct WriteTable {
        QString table;
        QStringList keys;
        QString shared;
    } m_writeTable;
    QHash<QPair<int, int>, QVariant> m_written;   // values written to the write table since the Refresh
    QLabel *m_caption;
    QToolButton *m_first, *m_prev, *m_next, *m_last;
};

//! Fills a combo from a statement: the shown column becomes the text, the bound column the data. The
//! items are read a batch at a time as the list is scrolled or a value is looked for.
void fillCombo(QComboBox *combo, Database &db, const QString &jetSql, const QString &listField,
               const QString &boundColumn);
//! Shows the item whose data equals value (text compare without case), reading items not read yet;
//! -1 and an empty box for none.
void selectComboValue(QComboBox *combo, const QVariant &value);

//! Colours of a grid row.
struct RowStyle {
    QColor fore;
    QColor back;
};

//! The rows of a data control as a table for grids: column captions, format patterns, row styles.
class RecordsetModel : public QAbstractTableModel {
    Q_OBJECT
public:
    explicit RecordsetModel(DataControl *dc, QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

    void setCaption(const QString &field, const QString &caption) { m_captions.insert(field.toLower(), caption); }
    void setFormat(const QString &field, const QString &pattern) { m_formats.insert(field.toLower(), pattern); }
    //! Shows a column as a check box that the user ticks in place; the data control writes it.
    void setCheck(const QString &field) { m_checks.insert(field.toLower()); }
    bool isCheck(int column) const;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;
    void setRowStyler(std::function<RowStyle(int row)> styler) { m_styler = std::move(styler); }
    //! The text shown in a cell.
    QString text(int row, int column) const;
    DataControl *dataControl() const { return m_dc; }

private:
    QPointer<DataControl> m_dc;
    QHash<QString, QString> m_captions;
    QHash<QString, QString> m_formats;
    QSet<QString> m_checks;
    std::function<RowStyle(int)> m_styler;
};

//! A grid column as a window declares it.
struct GridColumn {
    QString field;
    //! The head's caption; empty keeps the field name.
    QString caption = {};
    //! A Format pattern for the cells; empty for none.
    QString pattern = {};
    bool hidden = false;
    //! The width in average characters; 0 fits the contents.
    int width = 0;
    //! The caption of the band above the heads that neighbouring columns of the same group share.
    QString group = {};
    //! A check box ticked in place; the data control writes the value.
    bool check = false;
};

//! The columns given, all under one group caption.
QList<GridColumn> inGroup(const QString &group, QList<GridColumn> columns);

//! A grid bound to a data control (ssGrd...). Selecting a row moves the data control, and a move of the
//! data control selects the row. Head click, row change, double click and key down are signals.
class DataGrid : public QTableView {
    Q_OBJECT
public:
    explicit DataGrid(const QString &name, QWidget *parent = nullptr);

    void setDataControl(DataControl *dc);
    DataControl *dataControl() const { return m_model ? m_model->dataControl() : nullptr; }
    RecordsetModel *recordsetModel() const { return m_model; }

    void setColumnCaption(const QString &field, const QString &caption);
    void setColumnFormat(const QString &field, const QString &pattern);
    void setColumnHidden(const QString &field, bool hidden);
    //! Declares columns by field, after setDataControl. With onlyThese, the columns of the record source that are not
    //! listed are hidden and the listed ones stand in the order given. Each setting survives a Refresh.
    void setColumns(const QList<GridColumn> &columns, bool onlyThese = false);

    //! Fits each column to its contents and caption, within minChars and maxChars average characters
    //! (0: no limit).
    void fitColumns(int maxChars = 0, int minChars = 0);

    //! The captions of the shown columns, in order, and the texts of a row's shown cells.
    QStringList columnCaptions() const;
    //! The group of each shown column, in order ("" for none).
    QStringList columnGroups() const;
    //! The group of a logical column.
    QString columnGroup(int column) const;
    bool hasColumnGroups() const { return !m_groups.isEmpty(); }
    //! A click on a cell as a user gives it: the row becomes current, and a check box cell is ticked or
    //! cleared (and written). False when the check could not be written.
    bool clickCell(int row, int shownColumn);
    QStringList rowTexts(int row) const;
    QString cellText(int row, int shownColumn) const;
    //! The logical column of the n-th shown column.
    int shownColumn(int n) const;

    int currentRowIndex() const;
    void selectRowIndex(int row);
    //! What a click on a column head or a double click on a row does, for scripts and tests.
    void headClick(int column) { emit HeadClick(column); }
    void dblClickRow(int row);

signals:
    void HeadClick(int column);
    void DblClick();
    void RowColChange(int lastRow, int lastColumn);

protected:
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    //! The widest cell of the rows in view (or of the first screenful before the grid is laid out):
    //! a column is sized without reading rows nobody sees.
    int sizeHintForColumn(int column) const override;

private:
    void applyHidden();
    //! Widens the columns of a group that are together narrower than its caption.
    void widenGroups();
    RecordsetModel *m_model = nullptr;
    QStringList m_hidden;
    QStringList m_onlyShown;        // when set, the only fields shown
    QHash<QString, int> m_widths;   // field -> width in characters
    QHash<QString, QString> m_groups;   // field -> group caption
    bool m_syncing = false;
    int m_lastRow = -1;
};
