// SPDX-License-Identifier: MIT
#include "EntryWindow.h"

#include "ControlValue.h"
#include "DataControl.h"
#include "Diagnostics.h"
#include "Functions.h"
#include "Lookups.h"
#include "QtWindowHost.h"
#include "Recordset.h"
#include "Session.h"
#include "Utilities.h"
#include "VbFormat.h"
#include "Wildlife.h"
#include "ZobToolbar.h"
#include "frmDE_Measurement.h"

#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>

EntryWindow::EntryWindow(Session &session, QtWindowHost &host, const QString &name, EntryProfile profile)
    : RequestWindow(session, host, name), m_profile(std::move(profile)), m_body(this),
      m_dc(new DataControl(m_profile.dataControl, this)),
      m_record(new RecordBinding(session, m_dc, m_profile.table, m_profile.key, this))
{
    setCaption(m_profile.caption);
    HelpContextID = 2575;
    QList<ToolButton> places = {ToolButton::separator(),
                                {"New", "Add a record", "New", [this] { newRecord(); }},
                                ToolButton::separator(),
                                {"Save", "Save the record", "Save", [this] { save(); }},
                                ToolButton::separator(),
                                {"Select", "Return to the window that asked", "Select", [this] { unloadMe(); }},
                                ToolButton::separator(),
                                {"Close", "Close and go back to the list", "Close", [this] { closeWindow(); }},
                                ToolButton::separator(),
                                {"Help", "Help", "Help", [this] { showHelp(); }}};
    if (m_profile.noSelectButton)
        places.erase(places.begin() + 4, places.begin() + 6);
    buildToolbar(m_body, places, QStringLiteral(" ") + name + QStringLiteral(".TB_MDI_ButtonClick"));
    if (m_profile.speciesPanel)
        m_lblSpecies = m_body.frame(QStringLiteral("fraMain"), QStringLiteral("Species"))
                           .label(QStringLiteral("lblSpecies"), QString());
}

void EntryWindow::Form_Load()
{
    // The navigator comes last, below the member's fields.
    m_body.add(m_dc, m_profile.dataControl);
    m_dc->setDatabase(session().gDB);
    connect(m_dc, &DataControl::Reposition, this, [this] {
        runCommand(m_profile.dataControl + QStringLiteral("_Reposition"), [this] { showRow(); });
    });
    connect(m_dc, &DataControl::leavingRow, this, [this] {
        runCommand(m_profile.dataControl + QStringLiteral("_Validate"), [this] { writeRow(); });
    });
    m_record->fillLookups();
}

void EntryWindow::Form_Unload(bool &cancel)
{
    Q_UNUSED(cancel);
    // Leaving the window leaves the row: what was typed is kept, as on a move.
    if (m_dc && m_dc->currentRow() >= 0)
        runCommand(m_profile.dataControl + QStringLiteral("_Validate"), [this] { writeRow(); });
    disconnect(m_dc, nullptr, this, nullptr);
}

QWidget *EntryWindow::textField(FormBuilder &b, const QString &name, const QString &caption, const QString &column, int lines)
{
    if (lines > 0)
        return field(b.memo(name, caption, lines), column);
    return field(b.textBox(name, caption), column);
}

QComboBox *EntryWindow::listField(FormBuilder &b, const QString &name, const QString &caption, const QString &column,
                                  const QString &sql, const QString &listField, const QString &listKey)
{
    QComboBox *combo = field(b.combo(name, caption), column);
    lookup(combo, sql, listField, listKey.isEmpty() ? column : listKey);
    return combo;
}

void EntryWindow::lookup(QComboBox *combo, const QString &sql, const QString &listField, const QString &boundColumn)
{
    m_record->lookup(combo, sql, listField, boundColumn);
}

void EntryWindow::computed(QWidget *control, std::function<QString(qint32)> text)
{
    m_record->computed(control, std::move(text));
}

QPushButton *EntryWindow::recordButton(FormBuilder &b, const QString &name, int index, const QString &caption,
                                       std::function<void()> handler)
{
    QPushButton *button = index < 0 ? b.button(name, caption) : b.button(name, index, caption);
    const QString routineName = (index < 0 ? name : arrayName(name, index)) + QStringLiteral("_Click");
    connect(button, &QPushButton::clicked, this, [this, routineName, handler] { runCommand(routineName, handler); });
    m_record->addButton(button);
    return button;
}

void EntryWindow::spreadFields(FormBuilder &b, const QString &unit)
{
    const QString suffix = unit.isEmpty() ? QStringLiteral(":") : QStringLiteral(" (%1):").arg(unit);
    textField(b, QStringLiteral("txtSample"), QStringLiteral("Sample Size:"), QStringLiteral("Sample"));
    textField(b, QStringLiteral("txtMin"), QStringLiteral("Minimum") + suffix, QStringLiteral("Min"));
    textField(b, QStringLiteral("txtMax"), QStringLiteral("Maximum") + suffix, QStringLiteral("Max"));
    textField(b, QStringLiteral("txtVarValue"), QStringLiteral("Variance:"), QStringLiteral("VarValue"));
    listField(b, QStringLiteral("cboVarianceType"), QStringLiteral("Variance Type:"), QStringLiteral("VarianceTypeID"),
              Lookups::varianceType());
}

void EntryWindow::dataSourceField(FormBuilder &b)
{
    auto *cbo = field(b.combo(QStringLiteral("cboDataSource"), QStringLiteral("Data Source:")), QStringLiteral("DataSourceID"));
    lookup(cbo, QStringLiteral("SELECT tblDataSource.DataSourceID, tblDataSource.Description From tblDataSource "
                               "ORDER BY tblDataSource.Description;"),
           QStringLiteral("Description"), QStringLiteral("DataSourceID"));
    m_lblDataQuality = b.label(QStringLiteral("lblDataQuality"), QString());
}

void EntryWindow::classificationField(FormBuilder &b, const QString &mode)
{
    FormBuilder row = b.fieldRow(QStringLiteral("fraClassification"), QStringLiteral("Classification:"));
    QWidget *text = row.textBox(QStringLiteral("txtClassification"));
    computed(text, [this](qint32 id) { return GetClassificationText(session(), id, m_profile.table, m_profile.key); });
    recordButton(row, QStringLiteral("cmdClassification"), -1, QStringLiteral("&Classification"), [this, mode] {
        openForRecord(QStringLiteral("frmSelect_Classification"), mode, 0, true);
        refreshComputed();
    });
}

void EntryWindow::referenceFrame(FormBuilder &b)
{
    FormBuilder f = b.frame(QStringLiteral("fraReference"), QStringLiteral("Reference"), true);
    recordButton(f, QStringLiteral("cmdReference"), -1, QStringLiteral("&Reference"), [this] {
        const QVariant ref = currentValue(QStringLiteral("ReferenceID"));
        openForRecord(QStringLiteral("frmSelect_Reference"), QStringLiteral("Read"), ref.isNull() ? 0 : vb::CLng(ref), false);
        LoadData();
    });
    QWidget *text = f.memo(QStringLiteral("txtReference"), QString(), 2);
    computed(text, [this](qint32) { return currentValue(QStringLiteral("Reference")).toString(); });
}

QPushButton *EntryWindow::measurementButton(FormBuilder &b, const QString &name, int index, const QString &caption,
                                            const QString &kind, QWidget *text)
{
    if (text)
        computed(text, [this, kind](qint32 id) { return GetMeasurementText(session(), id, m_profile.table, m_profile.key, kind); });
    return recordButton(b, name, index, caption, [this, kind] {
        const qint32 id = currentId();
        if (id <= 0)
            return;
        writeRow();
        auto *w = host().form<frmDE_Measurement>(QStringLiteral("frmDE_Measurement"));
        if (!w)
            return;
        w->PuS_SetRecord(id, m_profile.key, m_profile.table, kind);
        host().show(QStringLiteral("frmDE_Measurement"), true);
        refreshComputed();
    });
}

void EntryWindow::openForRecord(const QString &window, const QString &mode, qint32 selectedId, bool collection, bool filter)
{
    ZobWindow *w = host().form(window);
    if (!w)
        return;
    writeRow();
    RecordRequest r;
    r.recordId = currentId();
    r.table = m_profile.table;
    r.keyField = m_profile.key;
    r.mode = mode;
    r.selectedId = selectedId;
    r.collection = collection;
    r.filter = filter;
    r.isSelection = true;
    w->setRecord(r);
    host().show(window, true);
}

QString EntryWindow::recordSource(qint32 id) const
{
    const QString &t = m_profile.table;
    return QStringLiteral("SELECT %1.*, qryReference.Reference FROM qryReference RIGHT JOIN %1 ON "
                          "qryReference.ReferenceID = %1.ReferenceID WHERE %1.%2 = %3")
        .arg(t, m_profile.key)
        .arg(id);
}

void EntryWindow::serveRequest()
{
    LoadData();
}

void EntryWindow::LoadData()
{
    const RoutineInfo info{ErrForm::Shared, routine(QStringLiteral("LoadData")), routine(QStringLiteral("LoadData"))};
    guarded(session(), info, [&] {
        const qint32 id = recordRequest().recordId;
        m_dc->setRecordSource(id < 1 ? m_profile.table : recordSource(id));
        m_dc->Refresh();
        // Where the statement binds several rows, the record asked for is shown first.
        if (recordRequest().keyField.compare(m_profile.key, Qt::CaseInsensitive) == 0 && m_dc->rowCount() > 1)
            m_record->moveToId(id);
        showRow();
        traceSuccess(session(), info);
    });
}

qint32 EntryWindow::currentId() const
{
    return m_record->currentId();
}

QVariant EntryWindow::currentValue(const QString &column) const
{
    return m_record->currentValue(column);
}

void EntryWindow::showRow()
{
    m_record->showRow();
    const bool any = m_dc->currentRow() >= 0;
    const int count = m_dc->rowCount();
    if (m_profile.position.isEmpty())
        SetRecordPosition(*m_dc);
    else
        m_dc->setCaption(m_profile.position.arg(any ? m_dc->currentRow() + 1 : 0).arg(count));
    if (m_lblDataQuality) {
        const QVariant ds = currentValue(QStringLiteral("DataSourceID"));
        ControlValue::setText(m_lblDataQuality, QString());
        if (!ds.isNull())
            SetDataQuality(session(), m_lblDataQuality, vb::CLng(ds));
    }
    if (m_lblSpecies) {
        const QVariant species = currentValue(QStringLiteral("SpeciesID"));
        ControlValue::setText(m_lblSpecies, species.isNull() ? QString() : speciesHeaderText(session(), vb::CLng(species)));
    }
    applyLock();
    rowShown();
}

void EntryWindow::refreshComputed()
{
    m_record->refreshComputed();
}

bool EntryWindow::isVetted() const
{
    const QVariant ds = currentValue(QStringLiteral("DataSourceID"));
    const QString text = ds.isNull() ? QString() : ds.toString();
    return text == QLatin1String("4") || text == QLatin1String("7");
}

bool EntryWindow::isLocked() const
{
    return isVetted() || (m_profile.writeModeOnly && recordRequest().mode != QLatin1String("Write"));
}

void EntryWindow::applyLock()
{
    ZobToolbar *tb = toolbar();
    const bool locked = isLocked();
    tb->button(QStringLiteral("Save"))->setVisible(!locked);
    if (m_profile.writeModeOnly)
        tb->button(QStringLiteral("New"))->setVisible(!locked);
    if (QAction *select = tb->button(QStringLiteral("Select")))
        select->setVisible(!locked && m_profile.hasSelect && recordRequest().mode != QLatin1String("Write"));
    SetForm(locked);
    // Nobody vets or unvets a record here.
    if (QWidget *cbo = control(QStringLiteral("cboDataSource")))
        ControlValue::setLocked(cbo, true);
}

void EntryWindow::SetForm(bool bTo)
{
    const RoutineInfo info{ErrForm::Shared, routine(QStringLiteral("SetForm")), routine(QStringLiteral("SetForm"))};
    guarded(session(), info, [&] {
        traceParameters(session(), info, {{QStringLiteral("bTo"), bTo ? QStringLiteral("True") : QStringLiteral("False")}});
        SetControlInfo(session(), this, QStringLiteral("lock"), bTo);
        m_record->setLocked(bTo);
        traceSuccess(session(), info);
    });
}

void EntryWindow::writeRow()
{
    m_record->writeRow();
}

void EntryWindow::save()
{
    const RoutineInfo info{ErrForm::Shared, routine(m_profile.saveRoutine), routine(m_profile.saveRoutine)};
    guarded(session(), info, [&] {
        writeRow();
        traceSuccess(session(), info);
    });
}

void EntryWindow::openOn(qint32 id, const QString &mode)
{
    writeRow();
    RecordRequest r = recordRequest();
    r.recordId = id;
    r.mode = mode;
    r.table = m_profile.table;
    r.keyField = m_profile.key;
    setRecord(r);
    Form_Activate();
}

void EntryWindow::newRecord()
{
    if (!m_profile.newAddsRow)
        return;
    openOn(session().GetNewRecordID(m_profile.table, m_profile.key, QString(), 0, 0), QStringLiteral("Write"));
}

void EntryWindow::closeWindow()
{
    const qint32 id = currentId();
    unloadMe();
    if (m_profile.picker.isEmpty())
        return;
    if (ZobWindow *w = host().form(m_profile.picker)) {
        RecordRequest r;
        r.recordId = id;
        r.selectedId = id;
        r.table = m_profile.table;
        r.keyField = m_profile.key;
        r.mode = QStringLiteral("Write");
        r.isSelection = false;
        w->setRecord(r);
        host().show(m_profile.picker, false);
    }
}
