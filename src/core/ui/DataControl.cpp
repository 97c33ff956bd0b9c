// SPDX-License-Identifier: MIT
#include "DataControl.h"

#include "ControlValue.h"

#include "Database.h"
#include "Recordset.h"
#include "Utilities.h"
#include "VbError.h"
#include "VbFormat.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMetaMethod>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionHeader>
#include <QStandardItemModel>
#include <QStyleOptionViewItem>
#include <QToolButton>
#include <cstdio>

namespace {
QToolButton *navButton(QWidget *parent, Qt::ArrowType arrow, const QString &name)
{
    auto *b = new QToolButton(parent);
    b->setArrowType(arrow);
    b->setObjectName(name);
    b->setAutoRaise(true);
    return b;
}

bool sameValue(const QVariant &a, const QVariant &b)
{
    const bool an = a.isNull() || (a.typeId() == QMetaType::QString && a.toString().isEmpty());
    const bool bn = b.isNull() || (b.typeId() == QMetaType::QString && b.toString().isEmpty());
    if (an || bn)
        return an == bn;
    return a.toString() == b.toString();
}

//! A value as a Jet literal: null, a boolean, a number, or quoted text with its quotes doubled.
QString jetLiteral(const QVariant &v)
{
    if (v.isNull() || !v.isValid())
        return QStringLiteral("Null");
    switch (v.typeId()) {
    case QMetaType::Bool:
        return v.toBool() ? QStringLiteral("True") : QStringLiteral("False");
    case QMetaType::Int:
    case QMetaType::LongLong:
    case QMetaType::Double:
    case QMetaType::Float:
        return v.toString();
    default:
        return QLatin1Char('\'') + v.toString().replace(QLatin1Char('\''), QStringLiteral("''")) + QLatin1Char('\'');
    }
}
}  // namespace

DataControl::DataControl(const QString &name, QWidget *parent)
    : QWidget(parent), m_caption(new QLabel(this))
{
    setObjectName(name);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    m_first = navButton(this, Qt::UpArrow, QStringLiteral("First"));
    m_prev = navButton(this, Qt::LeftArrow, QStringLiteral("Previous"));
    m_next = navButton(this, Qt::RightArrow, QStringLiteral("Next"));
    m_last = navButton(this, Qt::DownArrow, QStringLiteral("Last"));
    m_caption->setAlignment(Qt::AlignCenter);
    m_caption->setFrameShape(QFrame::StyledPanel);
    row->addWidget(m_first);
    row->addWidget(m_prev);
    row->addWidget(m_caption, 1);
    row->addWidget(m_next);
    row->addWidget(m_last);
    connect(m_first, &QToolButton::clicked, this, &DataControl::MoveFirst);
    connect(m_prev, &QToolButton::clicked, this, &DataControl::MovePrevious);
    connect(m_next, &QToolButton::clicked, this, &DataControl::MoveNext);
    connect(m_last, &QToolButton::clicked, this, &DataControl::MoveLast);
    setCaption(QStringLiteral("Record: 0 of 0"));
}

DataControl::~DataControl() = default;

QString DataControl::caption() const
{
    return m_caption->text();
}

void DataControl::setCaption(const QString &text)
{
    m_caption->setText(text);
}

void DataControl::Refresh()
{
    leaveRow();
    if (!m_db)
        throw VbError(3024, QStringLiteral("Could not find file ''."));
    auto rs = m_db->OpenRecordset(m_source, RecordsetType::Dynaset);
    emit aboutToRefresh();
    m_rs = std::move(rs);
    m_written.clear();
    m_fields = m_rs->fieldNames();
    countRows();
    emit refreshed();
    arrive();
}

void DataControl::countRows()
{
    // A screenful of rows is read at once; only a longer result is counted by the database.
    constexpr int firstRows = 64;
    m_rs->fetchTo(firstRows);
    m_count = m_rs->complete() ? m_rs->rowsRead() : m_rs->countRows();
}

void DataControl::refreshRow(int row)
{
    if (!m_rs || row < 0 || row >= m_rs->rowsRead())
        return;
    emit rowChanged(row);
}

int DataControl::currentRow() const
{
    if (!m_rs || m_rs->BOF() || m_rs->EOF_())
        return -1;
    return m_rs->AbsolutePosition();
}

int DataControl::fieldIndex(const QString &field) const
{
    for (int i = 0; i < m_fields.size(); ++i)
        if (m_fields[i].compare(field, Qt::CaseInsensitive) == 0)
            return i;
    return -1;
}

QVariant DataControl::value(int row, int column) const
{
    if (!m_rs || row < 0 || row >= m_count || column < 0 || column >= m_fields.size() || !m_rs->fetchTo(row))
        return {};
    if (const auto written = m_written.constFind({row, column}); written != m_written.cend())
        return *written;
    return m_rs->valueAt(row, column);
}

void DataControl::setWriteTable(const QString &table, const QStringList &keyFields, const QString &sharedCriteria)
{
    m_writeTable = {table, keyFields, sharedCriteria};
}

bool DataControl::writeValue(int row, const QString &field, const QVariant &value)
{
    if (!m_rs || row < 0 || row >= m_count || fieldIndex(field) < 0)
        return false;
    moveTo(row);
    try {
        if (m_rs->updatable() || m_writeTable.table.isEmpty()) {
            m_rs->Edit();   // a recordset that cannot be written throws 3027 here
            m_rs->setField(field, value);
            m_rs->Update();
        } else {
            writeToTable(row, field, value);
        }
        refreshRow(row);
        return true;
    } catch (const VbError &e) {
        writeFailed(e);
        return false;
    }
}

void DataControl::writeToTable(int row, const QString &field, const QVariant &value)
{
    QStringList where;
    if (!m_writeTable.shared.isEmpty())
        where << m_writeTable.shared;
    for (const QString &key : m_writeTable.keys)
        where << QStringLiteral("%1 = %2").arg(key, jetLiteral(this->value(row, key)));
    m_db->Execute(QStringLiteral("UPDATE %1 SET %2 = %3 WHERE %4")
                      .arg(m_writeTable.table, field, jetLiteral(value), where.join(QStringLiteral(" AND "))));
    m_written.insert({row, fieldIndex(field)}, value);
}

void DataControl::MoveFirst()
{
    if (!m_rs || m_count == 0)
        return;
    leaveRow();
    m_rs->MoveFirst();
    arrive();
}

void DataControl::MoveLast()
{
    if (!m_rs || m_count == 0)
        return;
    leaveRow();
    m_rs->MoveLast();
    arrive();
}

void DataControl::MoveNext()
{
    const int row = currentRow();
    if (row >= 0 && row + 1 < m_count)
        moveTo(row + 1);
}

void DataControl::MovePrevious()
{
    const int row = currentRow();
    if (row > 0)
        moveTo(row - 1);
}

void DataControl::moveTo(int row)
{
    if (!m_rs || row < 0 || row >= m_count || row == currentRow() || !m_rs->fetchTo(row))
        return;
    leaveRow();
    m_rs->setAbsolutePosition(row);
    arrive();
}

Recordset &DataControl::current() const
{
    if (!m_rs || currentRow() < 0)
        throw VbError::noCurrentRecord();
    return *m_rs;
}

void DataControl::arrive()
{
    showRow();
    SetRecordPosition(*this);
    const int row = currentRow();
    m_first->setEnabled(row > 0);
    m_prev->setEnabled(row > 0);
    m_next->setEnabled(row >= 0 && row + 1 < m_count);
    m_last->setEnabled(row >= 0 && row + 1 < m_count);
    emit Reposition();
}

void DataControl::showRow()
{
    const int row = currentRow();
    for (Binding &b : m_bindings) {
        if (!b.widget)
            continue;
        ControlValue::setValue(b.widget, row >= 0 ? value(row, b.field) : QVariant());
        b.shown = ControlValue::boundValue(b.widget);
    }
}

void DataControl::UpdateControls()
{
    showRow();
}

void DataControl::UpdateRecord()
{
    leaveRow();
}

void DataControl::leaveRow()
{
    const int row = currentRow();
    if (row < 0)
        return;
    emit leavingRow();
    QVector<Binding *> changed;
    for (Binding &b : m_bindings)
        if (b.widget && !b.readOnly && !sameValue(ControlValue::boundValue(b.widget), b.shown))
            changed.push_back(&b);
    if (changed.isEmpty())
        return;
    try {
        m_rs->Edit();
        for (Binding *b : changed)
            m_rs->setField(b->field, ControlValue::boundValue(b->widget));
        m_rs->Update();
        for (Binding *b : changed)
            b->shown = ControlValue::boundValue(b->widget);
        refreshRow(row);
    } catch (const VbError &e) {
        writeFailed(e);
    }
}

void DataControl::writeFailed(const VbError &e)
{
    if (m_rs->editMode() != Recordset::EditMode::None)
        m_rs->CancelUpdate();
    if (isSignalConnected(QMetaMethod::fromSignal(&DataControl::Error)))
        emit Error(e.number(), e.description());
    else
        std::fprintf(stderr, "%s: %d %s\n", qPrintable(objectName()), e.number(), qPrintable(e.description()));
}

void DataControl::bind(QWidget *control, const QString &field)
{
    m_bindings.push_back({control, field, ControlValue::kind(control) == QLatin1String("label"), {}});
}

namespace {
//! Whether a combo item's bound value (or its text) is the value looked for: whole numbers as numbers,
//! anything else as text without regard to case.
bool sameItemValue(const QVariant &have, const QVariant &value, const QString &wanted)
{
    const auto isWhole = [](const QVariant &v) { return v.typeId() == QMetaType::Int || v.typeId() == QMetaType::LongLong; };
    if (isWhole(have) && isWhole(value))
        return have.toLongLong() == value.toLongLong();
    return have.toString().compare(wanted, Qt::CaseInsensitive) == 0;
}

//! The items of a combo filled from a statement, read from its recordset a batch at a time as the
//! list is scrolled (or a value is looked for), so that a list of thousands opens at the cost of one
//! batch. Items added by hand after the fill come after the rows read so far, before later batches.
class RecordsetComboModel : public QStandardItemModel {
public:
    RecordsetComboModel(std::unique_ptr<Recordset> rs, int listColumn, int boundColumn, QObject *parent)
        : QStandardItemModel(0, 1, parent), m_rs(std::move(rs)), m_list(listColumn), m_bound(boundColumn)
    {
        fetchMore({});
    }
    bool canFetchMore(const QModelIndex &parent) const override
    {
        return !parent.isValid() && m_rs && m_rs->fetchTo(m_next);
    }
    void fetchMore(const QModelIndex &parent) override
    {
        if (!parent.isValid())
            readRows([](const QVariant &) { return false; }, 256);
    }

    //! Reads the rows not read yet as far as the first whose bound value is value: its row, -1 when
    //! none is. A value far down the list is found in the recordset's own values and the rows up to
    //! it become items at once.
    int readTo(const QVariant &value, const QString &wanted)
    {
        const int before = rowCount();
        const int read = readRows([&](const QVariant &bound) { return sameItemValue(bound, value, wanted); }, -1);
        return read > 0 && sameItemValue(item(before + read - 1)->data(Qt::UserRole), value, wanted) ? before + read - 1 : -1;
    }

private:

    //! Makes items of the next rows, up to limit rows (no limit when negative) or through the first
    //! row whose bound value stop accepts; the number of items made.
    template <typename Stop>
    int readRows(Stop stop, int limit)
    {
        if (!m_rs)
            return 0;
        QList<QStandardItem *> items;
        for (; (limit < 0 || items.size() < limit) && m_rs->fetchTo(m_next); ++m_next) {
            const QVariant shown = m_rs->valueAt(m_next, m_list);
            const QVariant bound = m_rs->valueAt(m_next, m_bound);
            auto *item = new QStandardItem(shown.isNull() ? QString() : shown.toString());
            item->setData(bound, Qt::UserRole);
            items << item;
            if (stop(bound)) {
                ++m_next;
                break;
            }
        }
        const int made = static_cast<int>(items.size());
        if (!items.isEmpty())
            invisibleRootItem()->appendRows(items);
        if (!m_rs->fetchTo(m_next))
            m_rs.reset();   // every row is an item: the statement is done with
        return made;
    }

    std::unique_ptr<Recordset> m_rs;
    int m_list;
    int m_bound;
    int m_next = 0;
};
}  // namespace

void fillCombo(QComboBox *combo, Database &db, const QString &jetSql, const QString &listField,
               const QString &boundColumn)
{
    auto rs = db.OpenRecordset(jetSql, RecordsetType::Snapshot);
    const QStringList fields = rs->fieldNames();
    auto column = [&](const QString &name) {
        for (int i = 0; i < fields.size(); ++i)
            if (fields[i].compare(name, Qt::CaseInsensitive) == 0)
                return i;
        throw VbError(VbErr::ItemNotFound, QStringLiteral("Item not found in this collection. (%1)").arg(name));
    };
    const int list = column(listField), bound = column(boundColumn);
    const QSignalBlocker block(combo);
    combo->setModel(new RecordsetComboModel(std::move(rs), list, bound, combo));
    combo->setCurrentIndex(-1);
}

void selectComboValue(QComboBox *combo, const QVariant &value)
{
    int found = -1;
    if (!value.isNull()) {
        const QString wanted = value.toString();
        for (int i = 0; i < combo->count() && found < 0; ++i) {
            const QVariant data = combo->itemData(i);
            if (sameItemValue(data.isValid() ? data : QVariant(combo->itemText(i)), value, wanted))
                found = i;
        }
        // Rows of a statement not read yet are read until the value turns up.
        if (auto *rows = dynamic_cast<RecordsetComboModel *>(combo->model()); rows && found < 0)
            found = rows->readTo(value, wanted);
    }
    combo->setCurrentIndex(found);
    if (found < 0 && combo->isEditable())
        combo->setEditText(QString());
}

// --- RecordsetModel ---

RecordsetModel::RecordsetModel(DataControl *dc, QObject *parent) : QAbstractTableModel(parent), m_dc(dc)
{
    connect(dc, &DataControl::aboutToRefresh, this, [this] { beginResetModel(); });
    connect(dc, &DataControl::refreshed, this, [this] { endResetModel(); });
    connect(dc, &DataControl::rowChanged, this, [this](int row) {
        emit dataChanged(index(row, 0), index(row, columnCount() - 1));
    });
}

int RecordsetModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() || !m_dc ? 0 : m_dc->rowCount();
}

int RecordsetModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() || !m_dc ? 0 : m_dc->columnCount();
}

QString RecordsetModel::text(int row, int column) const
{
    if (!m_dc)
        return {};
    const QVariant v = m_dc->value(row, column);
    if (v.isNull())
        return {};
    const QString pattern = m_formats.value(m_dc->fields().value(column).toLower());
    try {
        return pattern.isEmpty() ? vb::CStr(v) : vb::vbFormat(v, pattern);
    } catch (const VbError &) {
        return v.toString();
    }
}

bool RecordsetModel::isCheck(int column) const
{
    return m_dc && !m_checks.isEmpty() && m_checks.contains(m_dc->fields().value(column).toLower());
}

Qt::ItemFlags RecordsetModel::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags base = QAbstractTableModel::flags(index);
    return index.isValid() && isCheck(index.column()) ? base | Qt::ItemIsUserCheckable : base;
}

bool RecordsetModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (!index.isValid() || !m_dc || role != Qt::CheckStateRole || !isCheck(index.column()))
        return false;
    const bool on = value.toInt() == Qt::Checked;
    return m_dc->writeValue(index.row(), m_dc->fields().value(index.column()), on);
}

QVariant RecordsetModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || !m_dc)
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return isCheck(index.column()) ? QVariant() : QVariant(text(index.row(), index.column()));
    case Qt::CheckStateRole:
        if (!isCheck(index.column()))
            return {};
        return m_dc->value(index.row(), index.column()).toBool() ? Qt::Checked : Qt::Unchecked;
    case Qt::EditRole:
        return m_dc->value(index.row(), index.column());
    case Qt::TextAlignmentRole: {
        // Numbers line up on their last digit, as in a table on paper; text and yes/no stay left.
        const int type = m_dc->value(index.row(), index.column()).typeId();
        const bool number = type == QMetaType::Int || type == QMetaType::LongLong || type == QMetaType::Double
            || type == QMetaType::Short || type == QMetaType::Float || type == QMetaType::UInt || type == QMetaType::ULongLong;
        return number ? QVariant(Qt::AlignRight | Qt::AlignVCenter) : QVariant();
    }
    case Qt::ForegroundRole:
        if (m_styler) {
            const QColor c = m_styler(index.row()).fore;
            if (c.isValid())
                return c;
        }
        return {};
    case Qt::BackgroundRole:
        if (m_styler) {
            const QColor c = m_styler(index.row()).back;
            if (c.isValid())
                return c;
        }
        return {};
    default:
        return {};
    }
}

QVariant RecordsetModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole || !m_dc)
        return {};
    if (orientation == Qt::Vertical)
        return {};
    const QString field = m_dc->fields().value(section);
    return m_captions.value(field.toLower(), field);
}

// --- DataGrid ---

QList<GridColumn> inGroup(const QString &group, QList<GridColumn> columns)
{
    for (GridColumn &c : columns)
        c.group = group;
    return columns;
}

namespace {
//! Column heads with a band above them: neighbouring shown columns of one group share one caption.
class GroupedHeader : public QHeaderView {
public:
    explicit GroupedHeader(DataGrid *grid) : QHeaderView(Qt::Horizontal, grid), m_grid(grid)
    {
        setSectionsClickable(true);
        setHighlightSections(true);
    }

    QSize sizeHint() const override
    {
        QSize size = QHeaderView::sizeHint();
        if (m_grid->hasColumnGroups())
            size.setHeight(size.height() * 2);
        return size;
    }

protected:
    void paintSection(QPainter *painter, const QRect &rect, int logical) const override
    {
        if (!m_grid->hasColumnGroups()) {
            QHeaderView::paintSection(painter, rect, logical);
            return;
        }
        const int half = rect.height() / 2;
        painter->save();
        QHeaderView::paintSection(painter, rect.adjusted(0, half, 0, 0), logical);
        painter->restore();
        // The band spans the shown neighbours of the same group; each section paints its own part.
        const QString group = m_grid->columnGroup(logical);
        const int at = visualIndex(logical);
        auto reach = [&](int step) {
            int end = at;
            for (int v = at + step; !group.isEmpty() && v >= 0 && v < count(); v += step) {
                const int other = logicalIndex(v);
                if (isSectionHidden(other))
                    continue;
                if (m_grid->columnGroup(other) != group)
                    break;
                end = v;
            }
            return end;
        };
        const int first = reach(-1), last = reach(1);
        const int left = sectionViewportPosition(logicalIndex(first));
        const int right = sectionViewportPosition(logicalIndex(last)) + sectionSize(logicalIndex(last));
        QStyleOptionHeader band;
        initStyleOption(&band);
        // The caption stands in the middle of the part of the band in view, so that it stays readable
        // while the grid scrolls; where that part is too narrow it starts at the band's edge in view.
        const QRect span(left, rect.y(), right - left, half);
        const QRect inView = span.intersected(QRect(0, rect.y(), viewport()->width(), half));
        const bool fits = inView.width() >= fontMetrics().horizontalAdvance(group) + 2 * style()->pixelMetric(QStyle::PM_HeaderMargin);
        band.rect = fits ? inView : span;
        band.text = group;
        band.textAlignment = fits ? Qt::AlignCenter : (left >= 0 ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter;
        band.position = QStyleOptionHeader::Middle;
        painter->save();
        painter->setClipRect(QRect(rect.x(), rect.y(), rect.width(), half));
        style()->drawControl(QStyle::CE_Header, &band, painter, this);
        painter->restore();
    }

private:
    DataGrid *m_grid;
};
}  // namespace

DataGrid::DataGrid(const QString &name, QWidget *parent) : QTableView(parent)
{
    setObjectName(name);
    setHorizontalHeader(new GroupedHeader(this));
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setAlternatingRowColors(false);
    verticalHeader()->setDefaultSectionSize(20);
    horizontalHeader()->setSectionsClickable(true);
    connect(horizontalHeader(), &QHeaderView::sectionClicked, this, &DataGrid::HeadClick);
}

void DataGrid::setDataControl(DataControl *dc)
{
    m_model = new RecordsetModel(dc, this);
    setModel(m_model);
    connect(m_model, &QAbstractItemModel::modelReset, this, [this] { applyHidden(); });
    connect(selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex &current, const QModelIndex &previous) {
                if (m_syncing || !current.isValid())
                    return;
                m_syncing = true;
                if (DataControl *d = dataControl())
                    d->moveTo(current.row());
                m_syncing = false;
                emit RowColChange(previous.isValid() ? previous.row() : -1, previous.isValid() ? previous.column() : -1);
            });
    connect(dc, &DataControl::Reposition, this, [this] {
        if (m_syncing)
            return;
        DataControl *d = dataControl();
        const int row = d ? d->currentRow() : -1;
        m_syncing = true;
        if (row >= 0) {
            const int col = std::max(0, shownColumn(0));
            selectionModel()->setCurrentIndex(m_model->index(row, col),
                                              QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
        } else {
            selectionModel()->clear();
        }
        m_syncing = false;
    });
    applyHidden();
}

void DataGrid::setColumnCaption(const QString &field, const QString &caption)
{
    if (m_model) {
        m_model->setCaption(field, caption);
        emit m_model->headerDataChanged(Qt::Horizontal, 0, std::max(0, m_model->columnCount() - 1));
    }
}

void DataGrid::setColumnFormat(const QString &field, const QString &pattern)
{
    if (m_model)
        m_model->setFormat(field, pattern);
    viewport()->update();
}

void DataGrid::setColumnHidden(const QString &field, bool hidden)
{
    m_hidden.removeAll(field.toLower());
    if (hidden)
        m_hidden.append(field.toLower());
    applyHidden();
}

void DataGrid::setColumns(const QList<GridColumn> &columns, bool onlyThese)
{
    m_onlyShown.clear();
    for (const GridColumn &c : columns) {
        const QString field = c.field.toLower();
        if (!c.caption.isEmpty())
            setColumnCaption(c.field, c.caption);
        if (!c.pattern.isEmpty())
            setColumnFormat(c.field, c.pattern);
        m_hidden.removeAll(field);
        if (c.hidden)
            m_hidden.append(field);
        else if (onlyThese)
            m_onlyShown.append(field);
        if (c.width > 0)
            m_widths.insert(field, c.width);
        if (!c.group.isEmpty())
            m_groups.insert(field, c.group);
        if (c.check && m_model)
            m_model->setCheck(c.field);
    }
    if (!m_groups.isEmpty())
        horizontalHeader()->updateGeometry();
    applyHidden();
}

void DataGrid::fitColumns(int maxChars, int minChars)
{
    resizeColumnsToContents();
    const int charWidth = fontMetrics().horizontalAdvance(QLatin1Char('M'));
    for (int c = 0; c < model()->columnCount(); ++c) {
        int width = std::max(columnWidth(c), minChars * charWidth);
        if (maxChars > 0)
            width = std::min(width, maxChars * charWidth);
        setColumnWidth(c, width);
    }
    widenGroups();
}

void DataGrid::widenGroups()
{
    if (m_groups.isEmpty())
        return;
    // The shown columns of a group together are at least as wide as the group's caption.
    const int padding = 2 * fontMetrics().horizontalAdvance(QLatin1Char('M'));
    QList<int> run;
    auto widen = [&] {
        if (run.isEmpty())
            return;
        int total = 0;
        for (int c : run)
            total += columnWidth(c);
        const int missing = fontMetrics().horizontalAdvance(columnGroup(run.first())) + padding - total;
        for (int i = 0; missing > 0 && i < run.size(); ++i)
            setColumnWidth(run[i], columnWidth(run[i]) + missing / run.size() + (i < missing % run.size() ? 1 : 0));
        run.clear();
    };
    for (int n = 0, c = shownColumn(0); c >= 0; c = shownColumn(++n)) {
        if (!run.isEmpty() && columnGroup(run.first()) != columnGroup(c))
            widen();
        if (!columnGroup(c).isEmpty())
            run << c;
    }
    widen();
}

void DataGrid::applyHidden()
{
    DataControl *d = dataControl();
    if (!d)
        return;
    const int charWidth = fontMetrics().horizontalAdvance(QLatin1Char('M'));
    for (int c = 0; c < d->columnCount(); ++c) {
        const QString field = d->fields()[c].toLower();
        const bool shown = m_onlyShown.isEmpty() ? !m_hidden.contains(field) : m_onlyShown.contains(field);
        QTableView::setColumnHidden(c, !shown);
        if (const int width = m_widths.value(field); width > 0)
            setColumnWidth(c, width * charWidth);
    }
    // The only columns shown stand in the order declared, whatever the order of the record source.
    for (int place = 0; place < m_onlyShown.size(); ++place) {
        const int logical = d->fieldIndex(m_onlyShown[place]);
        if (logical >= 0)
            horizontalHeader()->moveSection(horizontalHeader()->visualIndex(logical), place);
    }
}

int DataGrid::sizeHintForColumn(int column) const
{
    if (!m_model || column < 0 || column >= m_model->columnCount())
        return -1;
    ensurePolished();
    const int rows = m_model->rowCount();
    const int rowHeight = std::max(1, verticalHeader()->defaultSectionSize());
    int top = rowAt(0);
    if (top < 0)
        top = 0;
    // Before the grid is laid out its viewport says nothing: a screenful of rows stands for the view.
    const int inView = isVisible() ? viewport()->height() / rowHeight + 1 : 0;
    const int bottom = std::min(rows, top + std::max(inView, 40));
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    auto cellWidth = [&](int row) {
        const QModelIndex index = m_model->index(row, column);
        return itemDelegateForIndex(index)->sizeHint(option, index).width();
    };
    int hint = 0;
    if (m_model->isCheck(column)) {
        hint = bottom > top ? cellWidth(top) : 0;   // a check box is as wide in every row
    } else {
        // A text cell is as wide as its text and the same margins: the cell with the widest text of
        // one line is the widest cell, and only it (and any of several lines) is measured whole.
        const QFontMetrics metrics(option.font);
        int widest = -1, widestRow = -1;
        for (int row = top; row < bottom; ++row) {
            const QString text = m_model->text(row, column);
            if (text.contains(QLatin1Char('\n'))) {
                hint = std::max(hint, cellWidth(row));
                continue;
            }
            const int advance = metrics.horizontalAdvance(text);
            if (advance > widest)
                widest = advance, widestRow = row;
        }
        if (widestRow >= 0)
            hint = std::max(hint, cellWidth(widestRow));
    }
    return hint + (showGrid() ? 1 : 0);
}

int DataGrid::shownColumn(int n) const
{
    if (!m_model)
        return -1;
    int seen = 0;
    for (int v = 0; v < horizontalHeader()->count(); ++v) {
        const int logical = horizontalHeader()->logicalIndex(v);
        if (isColumnHidden(logical))
            continue;
        if (seen++ == n)
            return logical;
    }
    return -1;
}

QStringList DataGrid::columnCaptions() const
{
    QStringList out;
    for (int n = 0, c = shownColumn(0); c >= 0; c = shownColumn(++n))
        out << m_model->headerData(c, Qt::Horizontal).toString();
    return out;
}

QString DataGrid::columnGroup(int column) const
{
    DataControl *d = dataControl();
    return d && !m_groups.isEmpty() ? m_groups.value(d->fields().value(column).toLower()) : QString();
}

QStringList DataGrid::columnGroups() const
{
    QStringList out;
    for (int n = 0, c = shownColumn(0); c >= 0; c = shownColumn(++n))
        out << columnGroup(c);
    return out;
}

bool DataGrid::clickCell(int row, int shownCol)
{
    const int c = shownColumn(shownCol);
    if (!m_model || c < 0 || row < 0 || row >= m_model->rowCount())
        return false;
    selectRowIndex(row);
    const QModelIndex index = m_model->index(row, c);
    if (!m_model->isCheck(c))
        return true;
    const bool on = index.data(Qt::CheckStateRole).toInt() == Qt::Checked;
    return m_model->setData(index, on ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
}

QStringList DataGrid::rowTexts(int row) const
{
    QStringList out;
    for (int n = 0, c = shownColumn(0); c >= 0; c = shownColumn(++n))
        out << m_model->text(row, c);
    return out;
}

QString DataGrid::cellText(int row, int shownCol) const
{
    const int c = shownColumn(shownCol);
    return c >= 0 && m_model ? m_model->text(row, c) : QString();
}

int DataGrid::currentRowIndex() const
{
    DataControl *d = dataControl();
    return d ? d->currentRow() : -1;
}

void DataGrid::selectRowIndex(int row)
{
    if (!m_model || row < 0 || row >= m_model->rowCount())
        return;
    const int col = std::max(0, shownColumn(0));
    selectionModel()->setCurrentIndex(m_model->index(row, col),
                                      QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

void DataGrid::dblClickRow(int row)
{
    selectRowIndex(row);
    emit DblClick();
}

void DataGrid::mouseDoubleClickEvent(QMouseEvent *event)
{
    QTableView::mouseDoubleClickEvent(event);
    emit DblClick();
}
