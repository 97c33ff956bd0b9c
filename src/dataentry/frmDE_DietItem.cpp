// SPDX-License-Identifier: MIT
#include "frmDE_DietItem.h"

#include "ControlEvents.h"
#include "ControlValue.h"
#include "DataControl.h"
#include "Diagnostics.h"
#include "FormBuilder.h"
#include "QtWindowHost.h"
#include "Recordset.h"
#include "Session.h"
#include "Utilities.h"
#include "VbFormat.h"
#include "Wildlife.h"
#include "clsDietItem.h"
#include "clsScenario.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

namespace {
const WindowRegistration<frmDE_DietItem> reg(QStringLiteral("frmDE_DietItem"));

const QString kScenarioItems = QStringLiteral("tblWildlifeDietItems");

//! The pickers of the five buttons, with the item's column that holds the current choice.
struct Assignment {
    const char *caption, *window, *column;
};
const Assignment kAssignments[] = {
    {"&Classification", "frmSelect_Classification", nullptr},
    {"&Moisture Content", "frmSelect_WaterConversion", "WaterConversionID"},
    {"&Trophic Level", "frmSelect_TrophicLevel", "TrophicLevelID"},
    {"&Gross Energy", "frmSelect_GE", "GrossEnergyID"},
    {"&Assimilation Efficiency", "frmSelect_AE", "AEID"},
};
}  // namespace

frmDE_DietItem::frmDE_DietItem(Session &session, QtWindowHost &host)
    : RequestWindow(session, host, QStringLiteral("frmDE_DietItem"))
{
    setCaption(QStringLiteral("Add/Modify Diet Item"));
    HelpContextID = 2575;
    FormBuilder b(this);
    buildToolbar(b, {ToolButton::separator(),
                     {"New", "New", "New", [] {}},
                     ToolButton::separator(),
                     {"Save", "Save the item and close", "Save", [this] { saveAndEnd(); }},
                     ToolButton::separator(),
                     {"Close", "Save the item and close", "Close", [this] { saveAndEnd(); }},
                     {"Select", "Save the item and close", "Select", [this] { saveAndEnd(); }},
                     {"Delete", "Delete the item", "Delete", [this] { deleteItem(); }},
                     ToolButton::separator(),
                     {"Help", "Help", "Help", [this] { showHelp(); }}},
                 QStringLiteral(" frmDE_DietItem.TB_MDI_ButtonClick"));
    toolbar()->button(QStringLiteral("New"))->setVisible(false);
    FormBuilder assignment = b.frame(QStringLiteral("fraAssignment"), QStringLiteral("Assignment"));
    FormBuilder names = assignment.fields();
    m_txtDI[6] = names.textBox(QStringLiteral("txtDI"), 6, QStringLiteral("Diet Item Common Name:"));
    m_txtDI[5] = names.memo(QStringLiteral("txtDI"), 5, QStringLiteral("Diet Item Notes:"), 3);
    const int texts[] = {1, 8, 9, 10, 11};
    FormBuilder rows = assignment.fields(1);
    for (int i = 0; i < 5; ++i) {
        FormBuilder row = rows.fieldRow(arrayName(QStringLiteral("fraSelectDD"), i), QString());
        QPushButton *button = row.button(QStringLiteral("cmdSelectDD"), i, QString::fromLatin1(kAssignments[i].caption));
        button->setMinimumWidth(button->fontMetrics().horizontalAdvance(QStringLiteral("Assimilation Efficiency")) + 24);
        connect(button, &QPushButton::clicked, this,
                [this, i] { runCommand(QStringLiteral("cmdSelectDD_Click"), [this, i] { selectValue(i); }); });
        m_txtDI[texts[i]] = row.textBox(QStringLiteral("txtDI"), texts[i]);
        ControlValue::setLocked(m_txtDI[texts[i]], true);
        m_txtDI[texts[i]]->setMinimumWidth(m_txtDI[texts[i]]->fontMetrics().averageCharWidth() * 60);
    }
    FormBuilder values = b.frame(QStringLiteral("fraDI"), QStringLiteral("Assign Values"));
    values.label(QStringLiteral("lblDI"), QStringLiteral("Proportion (0 to 1.0) of this diet item:"));
    FormBuilder proportions = values.fields(2);
    m_txtDI[3] = proportions.textBox(QStringLiteral("txtDI"), 3, QStringLiteral("In wet weight"));
    m_txtDI[4] = proportions.textBox(QStringLiteral("txtDI"), 4, QStringLiteral("In dry weight"));
    for (int i : {3, 4, 5, 6})
        FormBuilder::userTyped(m_txtDI[i]);
    // A double click on a box shows its text large, to read or to edit.
    for (QWidget *box : m_txtDI)
        if (box)
            connect(ControlEvents::of(box), &ControlEvents::DblClick, this, [this, box] {
                runCommand(QStringLiteral("txtDI_DblClick"), [this, box] {
                    if (auto *zoom = this->host().link<TextZoom>(QStringLiteral("frmZoom")))
                        zoom->ZoomText(box, QStringLiteral("Modify Text"), ControlValue::locked(box));
                });
            });
    m_dc = b.hiddenData(QStringLiteral("dcDietItems"));
    connect(m_dc, &DataControl::Reposition, this, [this] { runCommand(QStringLiteral("dcDietItems_Reposition"), [this] { fillTexts(); }); });
    b.stretch();
    if (session.gDietItem)
        session.gDietItem->window = this;
    resize(720, 520);
}

frmDE_DietItem::~frmDE_DietItem()
{
    if (session().gDietItem && session().gDietItem->window == this)
        session().gDietItem->window = nullptr;
}

void frmDE_DietItem::Form_Unload(bool &cancel)
{
    Q_UNUSED(cancel);
    if (session().gDietItem && session().gDietItem->window == this)
        session().gDietItem->window = nullptr;
}

void frmDE_DietItem::serveRequest()
{
    const RecordRequest &r = recordRequest();
    if (r.table.isEmpty())
        return;  // made only to be told of a picker's write: there is no item yet
    const QString source = r.entry.isEmpty() ? QStringLiteral("Data Entry") : r.entry;
    if (r.keyField.isEmpty())
        NewDietItem(source, r.table, r.recordId);
    else
        LoadData(r.recordId, source, r.table, r.keyField);
}

QString frmDE_DietItem::rowCriteria() const
{
    // A scenario's copy keeps the reference item's id: the id is one only within the scenario.
    QString where = QStringLiteral(" Where %1 = %2").arg(m_key.isEmpty() ? QStringLiteral("DietItemID") : m_key).arg(m_id);
    if (m_table.compare(kScenarioItems, Qt::CaseInsensitive) == 0 && session().gScenario && session().gScenario->SID > 0)
        where += QStringLiteral(" AND ScenarioID = %1").arg(session().gScenario->SID);
    return where;
}

void frmDE_DietItem::NewDietItem(const QString &source, const QString &table, qint32 dietId)
{
    guarded(session(), {ErrForm::Shared, QStringLiteral("frmDE_DietItem.NewDietItem")}, [&] {
        const qint32 id = session().gDietItem->AddNew(table, dietId);
        LoadData(id, source, table, QStringLiteral("DietItemID"));
    });
}

void frmDE_DietItem::LoadData(qint32 recordId, const QString &source, const QString &table, const QString &key)
{
    m_id = recordId;
    m_source = source;
    m_table = table;
    m_key = key;
    const RoutineInfo info{ErrForm::Shared, QStringLiteral("frmDE_DietItem.LoadData"), QStringLiteral("frmDE_DietItem.LoadData")};
    guarded(session(), info, [&] {
        m_dc->setDatabase(session().gDB);
        m_dc->setRecordSource(QStringLiteral("Select * From ") + m_table + rowCriteria());
        m_dc->Refresh();
        const bool any = m_dc->currentRow() >= 0;
        auto column = [&](const char *name) { return any ? m_dc->value(m_dc->currentRow(), QString::fromLatin1(name)) : QVariant(); };
        ControlValue::setText(m_txtDI[3], vb::vbFormat(column("Wet_Proportion"), QStringLiteral("#.000")));
        ControlValue::setText(m_txtDI[4], vb::vbFormat(column("Dry_Proportion"), QStringLiteral("#.000")));
        ControlValue::setText(m_txtDI[5], column("Comments").toString());
        ControlValue::setText(m_txtDI[6], column("Name").toString());
        m_loaded = shownValues();
        fillTexts();
        traceSuccess(session(), info);
    });
}

QStringList frmDE_DietItem::shownValues() const
{
    return {ControlValue::text(m_txtDI[6]), ControlValue::text(m_txtDI[5]), ControlValue::text(m_txtDI[3]),
            ControlValue::text(m_txtDI[4])};
}

void frmDE_DietItem::refreshList()
{
    if (m_id <= 0 || m_table.isEmpty())
        return;
    m_dc->Refresh();
    fillTexts();
}

void frmDE_DietItem::fillTexts()
{
    Session &s = session();
    const bool any = m_dc->currentRow() >= 0;
    auto id = [&](const char *name) {
        const QVariant v = any ? m_dc->value(m_dc->currentRow(), QString::fromLatin1(name)) : QVariant();
        return v.isNull() ? 0 : vb::CLng(v);
    };
    ControlValue::setText(m_txtDI[1], any ? GetClassificationText(s, m_id, m_table, QStringLiteral("DietItemID")) : QString());
    // A new item has no moisture yet (a typed one has the id 0).
    const bool moisture = any && !m_dc->value(m_dc->currentRow(), QStringLiteral("WaterConversionID")).isNull();
    ControlValue::setText(m_txtDI[8], moisture ? GetWaterConversionText(s, m_id, m_table) : QString());
    ControlValue::setText(m_txtDI[9], any ? GetTrophicLevelText(s, m_id, m_table) : QString());
    ControlValue::setText(m_txtDI[10], Get_AEGE(QStringLiteral("GE"), id("GrossEnergyID")));
    ControlValue::setText(m_txtDI[11], Get_AEGE(QStringLiteral("AE"), id("AEID")));
}

QString frmDE_DietItem::Get_AEGE(const QString &selector, qint32 id)
{
    QString out;
    guarded(session(), {ErrForm::Shared, QStringLiteral("Get_AEGE")}, [&] {
        if (id <= 0)
            return;
        const QString sql = selector == QLatin1String("GE")
            ? QStringLiteral("SELECT 'Item: ' & tblGrossEnergy.Item & ' Wet: ' & tblGrossEnergy.WET_WT_KCALG & ' Dry:  ' & "
                             "tblGrossEnergy.DRY_WT_KCALG AS Display FROM tblGrossEnergy WHERE tblGrossEnergy.GrossEnergyID = %1")
            : QStringLiteral("SELECT tblAE.ConsumerName & ' eating ' & tblAE.FoodName & ' - ' & tblAE.Mean AS Display From tblAE "
                             "WHERE tblAE.AEID = %1");
        auto rs = session().gDB->OpenRecordset(sql.arg(id), RecordsetType::Snapshot);
        if (!rs->EOF_())
            out = rs->field(QStringLiteral("Display")).toString();
        rs->Close();
    });
    return out;
}

void frmDE_DietItem::selectValue(int index)
{
    const Assignment &a = kAssignments[index];
    const QString window = QString::fromLatin1(a.window);
    ZobWindow *w = host().form(window);
    if (!w)
        return;
    RecordRequest r;
    r.recordId = m_id;
    r.table = m_table;
    r.keyField = QStringLiteral("DietItemID");
    r.mode = QStringLiteral("ReadOnly");
    r.filter = true;
    r.collection = index == 0;
    if (a.column && m_dc->currentRow() >= 0) {
        const QVariant current = m_dc->value(m_dc->currentRow(), QString::fromLatin1(a.column));
        r.selectedId = current.isNull() ? 0 : vb::CLng(current);
    }
    w->setRecord(r);
    host().show(window, true);
    refreshList();
}

void frmDE_DietItem::saveAndEnd()
{
    const bool saved = guarded(session(), {ErrForm::Shared, QStringLiteral("frmDE_DietItem.Save")}, [&] {
        auto rs = session().gDB->OpenRecordset(QStringLiteral("Select * From ") + m_table + rowCriteria(), RecordsetType::Dynaset);
        const QStringList now = shownValues();
        const bool changed = now != m_loaded;
        const bool copy = m_table.compare(kScenarioItems, Qt::CaseInsensitive) == 0;
        if (!rs->EOF_()) {
            auto proportion = [](const QString &text) {
                return text.trimmed().isEmpty() ? QVariant() : QVariant(vb::vbFormat(QVariant(text), QStringLiteral("0.000")));
            };
            rs->Edit();
            try {
                rs->setField(QStringLiteral("Name"), ControlValue::boundValue(m_txtDI[6]));
                rs->setField(QStringLiteral("Comments"), ControlValue::boundValue(m_txtDI[5]));
                rs->setField(QStringLiteral("Wet_Proportion"), proportion(now[2]));
                rs->setField(QStringLiteral("Dry_Proportion"), proportion(now[3]));
                // A scenario's copy changed away from the reference is the user's.
                if (copy && changed)
                    rs->setField(QStringLiteral("DataSourceID"), 6);
                rs->Update();
            } catch (...) {
                rs->CancelUpdate();
                throw;
            }
        }
        rs->Close();
        if (changed) {
            m_isChanged = true;
            if (copy)
                UpdateDS(session(), m_isChanged);
        }
    });
    if (!saved)
        return;  // the window stays open with what was typed
    tellBuilder(false);
    unloadMe();
}

void frmDE_DietItem::deleteItem()
{
    if (session().msgBox(QStringLiteral("Are you sure you want to delete this record ?"), QString(), MsgIcon::Question,
                         MsgButtons::YesNo) != MsgAnswer::Yes)
        return;
    session().gDB->Execute(QStringLiteral("Delete * From ") + m_table + rowCriteria());
    // The builder reads its items again whoever opened this window.
    tellBuilder(true);
    unloadMe();
}

void frmDE_DietItem::tellBuilder(bool always)
{
    if (!always && m_source != QLatin1String("ZOB"))
        return;
    if (auto *builder = host().loadedLink<BuilderView>(QStringLiteral("frmZOB")))
        builder->UpdateDietItems();
}
