// SPDX-License-Identifier: MIT
#include "FilteredPicker.h"

#include "ControlValue.h"
#include "Diagnostics.h"
#include "FormBuilder.h"
#include "PickerSupport.h"
#include "QtWindowHost.h"
#include "Recordset.h"
#include "Session.h"
#include "Utilities.h"
#include "VbFormat.h"
#include "Wildlife.h"
#include "ZobToolbar.h"

#include <QGroupBox>
#include <QLineEdit>
#include <QRadioButton>

namespace {
const char *const kLevelColumns[] = {"KingdomID", "SubkingdomID", "PhylumID", "ClassID", "OrderID", "FamilyID"};
const char *const kLevelCaptions[] = {"No filter", "Kingdom", "Subkingdom", "Phylum", "Class", "Order", "Family"};
}  // namespace

FilteredPicker::FilteredPicker(Session &session, QtWindowHost &host, const QString &name, PickerProfile profile)
    : RequestWindow(session, host, name), m_profile(std::move(profile))
{
    setCaption(m_profile.caption);
    HelpContextID = m_profile.helpContext;
    FormBuilder b(this);
    buildToolbar(b, {ToolButton::separator(),
                     {"New", "Add a record to the table", "New", [this] { newRecord(); }},
                     ToolButton::separator(),
                     {"Select", "Assign the chosen record", "Select", [this] { select(); }},
                     ToolButton::separator(),
                     {"Close", "Close the list", "Close", [this] { unloadMe(); }},
                     ToolButton::separator(),
                     {"Help", "Help", "Help", [this] { showHelp(); }}},
                 QStringLiteral(" ") + name + QStringLiteral(".TB_MDI_ButtonClick"));
    buildList(b);
    buildFilter(b);
    resize(860, 520);
}

void FilteredPicker::buildList(FormBuilder &b)
{
    FormBuilder db = b.frame(QStringLiteral("fraDatabase"), QStringLiteral("Database Values"));
    m_dc = db.hiddenData(m_profile.dataControl);
    m_grid = db.grid(QStringLiteral("ssCmbSearch"), m_dc, m_profile.columns, true);
    m_grid->setToolTip(QStringLiteral("Double-click a row to open it; click a column head to sort."));
    FormBuilder f = b.fields();
    m_txtClassification = f.textBox(QStringLiteral("txtClassification"), QStringLiteral("Classification Assignment:"));
    m_txtReferences = f.textBox(QStringLiteral("txtReferences"), QStringLiteral("Reference:"));
    ControlValue::setLocked(m_txtClassification, true);
    ControlValue::setLocked(m_txtReferences, true);
    m_dc->bind(m_txtReferences, QStringLiteral("Reference"));

    connect(m_dc, &DataControl::Reposition, this, &FilteredPicker::reposition);
    connect(m_grid, &DataGrid::HeadClick, this, [this](int column) {
        runCommand(QStringLiteral("ssCmbSearch_HeadClick"), [&] {
            const QString field = m_dc->fields().value(column);
            if (!field.isEmpty())
                LoadData(field);
        });
    });
    connect(m_grid, &DataGrid::DblClick, this, [this] { runCommand(QStringLiteral("ssCmbSearch_DblClick"), [this] { doubleClick(); }); });
}

void FilteredPicker::buildFilter(FormBuilder &b)
{
    FormBuilder f = b.frame(QStringLiteral("fraFilter"), QStringLiteral("Filter"), true);
    m_fraFilter = b.lastFrame();
    for (int i = 0; i < 7; ++i) {
        QRadioButton *opt = f.option(QStringLiteral("optFilter"), i, QString::fromLatin1(kLevelCaptions[i]));
        m_optFilter.append(opt);
        connect(opt, &QRadioButton::clicked, this, [this] {
            runCommand(QStringLiteral("optFilter_Click"), [this] {
                const bool write = m_profile.writeFilterSort.size() && recordRequest().mode == QLatin1String("Write");
                LoadData(write ? m_profile.writeFilterSort : m_profile.filterSort);
            });
        });
    }
    f.stretch();
    m_optFilter.first()->setChecked(true);
}

FormBuilder FilteredPicker::assignFrame()
{
    FormBuilder b(this);
    FormBuilder f = b.frame(QStringLiteral("fraAssigned"), QStringLiteral("Assign Value"));
    m_fraAssigned = b.lastFrame();
    return f;
}

void FilteredPicker::serveRequest()
{
    const bool assigning = recordRequest().filter;
    m_fraFilter->setVisible(assigning);
    if (m_fraAssigned)
        m_fraAssigned->setVisible(assigning);
    toolbar()->button(QStringLiteral("Select"))->setVisible(assigning || m_profile.selectOpensEntry);
    LoadData(m_profile.firstSort);
}

QString FilteredPicker::levelColumn(int level)
{
    return level >= 1 && level <= 6 ? QString::fromLatin1(kLevelColumns[level - 1]) : QString();
}

QString FilteredPicker::orderField(const QString &sort)
{
    if (sort == QLatin1String("Lifestage"))
        return QStringLiteral("tblLifeStage.Description");
    if (sort == QLatin1String("Component"))
        return QStringLiteral("tblComponent.Description");
    return sort;
}

QString FilteredPicker::listStatement(const PickerProfile &profile, const QString &column, qint32 value, const QString &sort)
{
    QString sql = profile.listSql;
    if (!column.isEmpty() && value > 0)
        sql += QStringLiteral(" WHERE %1.%2=%3").arg(profile.table, column).arg(value);
    return sql + QStringLiteral(" ORDER BY ") + orderField(sort);
}

int FilteredPicker::filterLevel() const
{
    for (int i = 0; i < m_optFilter.size(); ++i)
        if (m_optFilter[i]->isChecked())
            return i;
    return 0;
}

QString FilteredPicker::routine(const QString &name) const
{
    return objectName() + QLatin1Char('.') + name;
}

qint32 FilteredPicker::callerClassification(const QString &column)
{
    session().gSQL = callerRowSql();
    auto rs = session().gDB->OpenRecordset(session().gSQL, RecordsetType::Dynaset);
    const QVariant value = rs->field(column);
    rs->Close();
    return value.isNull() ? 0 : vb::CLng(value);
}

void FilteredPicker::LoadData(const QString &sort)
{
    const RoutineInfo info{ErrForm::Shared, routine(QStringLiteral("LoadData")), routine(QStringLiteral("LoadData"))};
    guarded(session(), info, [&] {
        const int level = filterLevel();
        const QString column = level >= 1 && recordRequest().recordId >= 1 ? levelColumn(level) : QString();
        const qint32 value = column.isEmpty() ? 0 : callerClassification(column);
        m_dc->setDatabase(session().gDB);
        m_dc->setRecordSource(listStatement(m_profile, column, value, sort));
        m_dc->Refresh();
        m_grid->fitColumns(40);
        const qint32 selected = recordRequest().selectedId;
        if (m_dc->rowCount() > 0 && selected > 0) {
            for (int row = 0; row < m_dc->rowCount(); ++row)
                if (vb::CLng(m_dc->value(row, m_profile.key)) == selected) {
                    m_dc->moveTo(row);
                    break;
                }
        }
        reposition();
        traceSuccess(session(), info);
    });
}

void FilteredPicker::reposition()
{
    const int count = m_dc->rowCount(), row = m_dc->currentRow();
    if (count == 0 || row < 0) {
        m_fraFilter->setTitle(QStringLiteral("Filter - No records found"));
        return;
    }
    m_fraFilter->setTitle(QStringLiteral("Filter  - Record: %1 / %2").arg(row + 1).arg(count));
    const qint32 id = vb::CLng(m_dc->value(row, m_profile.key));
    ControlValue::setText(m_txtClassification, GetClassificationText(session(), id, m_profile.table, m_profile.key));
}

void FilteredPicker::select()
{
    const RecordRequest &r = recordRequest();
    if (!r.filter) {
        if (m_profile.selectOpensEntry)
            doubleClick();
        return;
    }
    session().gSQL = callerRowSql();
    auto caller = session().gDB->OpenRecordset(session().gSQL, RecordsetType::Dynaset);
    if (caller->EOF_() && m_profile.quietWhenCallerGone)
        return;
    caller->Edit();
    writeAssignment(*caller);
    caller->Update();
    caller->Close();
    reportToDietItem(session(), host());
    unloadMe();
}

void FilteredPicker::writeAssignment(Recordset &caller)
{
    const TypedAssignment &t = m_profile.typed;
    const float typed = typedValue();
    if (!t.valueColumn.isEmpty() && typed > 0) {
        caller.setField(t.keyColumn, 0);
        caller.setField(t.valueColumn, vb::vbFormatSingle(typed, QStringLiteral("##.0")));
        caller.setField(t.dataSourceColumn, 6);
        return;
    }
    Recordset &row = m_dc->current();
    caller.setField(m_profile.key, row.field(m_profile.key));
    if (t.valueColumn.isEmpty())
        return;
    caller.setField(t.valueColumn, vb::vbFormat(row.field(t.rowValueField), QStringLiteral("##.0")));
    caller.setField(t.dataSourceColumn, row.field(QStringLiteral("DataSourceID")));
}

void FilteredPicker::openEntry(qint32 recordId, const QString &mode, const RecordRequest &request, bool modal)
{
    RecordRequest entry = request;
    entry.recordId = recordId;
    entry.mode = mode;
    unloadMe();
    if (ZobWindow *w = host().form(m_profile.entryWindow)) {
        w->setRecord(entry);
        host().show(m_profile.entryWindow, modal);
    }
}

void FilteredPicker::newRecord()
{
    if (!windowAvailable(session(), m_profile.entryWindow))
        return;
    const qint32 id = session().GetNewRecordID(m_profile.table, m_profile.key, QString(), 0, 0);
    RecordRequest request;
    request.table = m_profile.table;
    request.keyField = m_profile.key;
    openEntry(id, QStringLiteral("Write"), request, false);
}

void FilteredPicker::doubleClick()
{
    const qint32 id = vb::CLng(m_dc->current().field(m_profile.key));
    if (!windowAvailable(session(), m_profile.entryWindow))
        return;
    RecordRequest request = recordRequest();
    QString mode = request.mode;
    if (m_profile.entryAlwaysWrites) {
        mode = QStringLiteral("Write");
        request.selectedId = request.recordId;
    }
    openEntry(id, mode, request, true);
}
