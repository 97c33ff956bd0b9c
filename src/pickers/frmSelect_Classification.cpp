// SPDX-License-Identifier: MIT
#include "frmSelect_Classification.h"

#include "ClassificationLevels.h"
#include "ControlValue.h"
#include "DataControl.h"
#include "Diagnostics.h"
#include "FormBuilder.h"
#include "PickerSupport.h"
#include "QtWindowHost.h"
#include "Recordset.h"
#include "Session.h"
#include "VbFormat.h"
#include "ZobToolbar.h"

#include <QComboBox>
#include <QGroupBox>
#include <QPushButton>

namespace CL = ClassificationLevels;

namespace {
const WindowRegistration<frmSelect_Classification> reg(QStringLiteral("frmSelect_Classification"));
const char *const kCombos[] = {"ssCmbKingdom", "ssCmbSubKingdom", "ssCmbPhylum", "ssCmbClass",
                               "ssCmbOrder",   "ssCmbFamily",     "ssCmbLifeStage", "ssCmbComponent"};
constexpr int kLifestage = 6, kComponent = 7;
}  // namespace

frmSelect_Classification::frmSelect_Classification(Session &session, QtWindowHost &host)
    : RequestWindow(session, host, QStringLiteral("frmSelect_Classification"))
{
    setCaption(QStringLiteral("Select Classification Assignment"));
    HelpContextID = 46;
    FormBuilder b(this);
    buildToolbar(b, {ToolButton::separator(),
                     {"New", "Start again below the subkingdom", "New", [this] { newChoice(); }},
                     ToolButton::separator(),
                     {"Select", "Assign the classification shown", "Select", [this] { select(); }},
                     ToolButton::separator(),
                     {"Close", "Close without assigning", "Close", [this] { refreshDietItems(this->host()); unloadMe(); }},
                     ToolButton::separator(), ToolButton::spare(),
                     {"Help", "Help", "Help", [this] { showHelp(); }}},
                 QStringLiteral(" frmSelect_Classification.TB_MDI_ButtonClick"));
    FormBuilder levels = b.frame(QStringLiteral("fraClassification"), QStringLiteral("Classification")).fields();
    for (int i = 0; i < CL::kCount; ++i)
        m_combos[i] = levels.combo(QString::fromLatin1(kCombos[i]), CL::name(i) + QLatin1Char(':'));
    FormBuilder collection = b.frame(QStringLiteral("fraCollection"), QStringLiteral("Collection")).fields();
    m_fraCollection = b.lastFrame();
    m_combos[kLifestage] = collection.combo(QStringLiteral("ssCmbLifeStage"), QStringLiteral("Life Stage:"));
    m_combos[kComponent] = collection.combo(QStringLiteral("ssCmbComponent"), QStringLiteral("Component:"));
    m_fraCollection->setVisible(false);
    QPushButton *search = b.button(QStringLiteral("cmdSrchClassification"), QStringLiteral("Search Classification"));
    connect(search, &QPushButton::clicked, this, [this] { runCommand(QStringLiteral("cmdSrchClassification_Click"), [this] { openSearch(); }); });
    for (int i = 0; i < CL::kCount; ++i)
        connect(m_combos[i], &QComboBox::activated, this, [this, i] {
            runCommand(QStringLiteral("%1_Click").arg(QString::fromLatin1(kCombos[i])), [this, i] { choose(i); });
        });
    resize(520, 380);
}

QString frmSelect_Classification::routine(const QString &name) const
{
    return QStringLiteral("frmSelect_Classification.") + name;
}

void frmSelect_Classification::serveRequest()
{
    guarded(session(), {ErrForm::Shared, QStringLiteral("frmSelect_ClassificationLoad")}, [this] { bindLists(); });
    if (recordRequest().recordId >= 1)
        LoadData();
}

void frmSelect_Classification::bindLists()
{
    Database &db = *session().gDB;
    for (int i = 0; i < CL::kCount; ++i)
        fillCombo(m_combos[i], db, CL::allStatement(i), QStringLiteral("Name"), CL::key(i));
    const bool collection = recordRequest().collection;
    fillCombo(m_combos[kLifestage], db,
              collection ? CL::lifestageStatement(0) : QStringLiteral("Select * from tblLifeStage Order by Description"),
              QStringLiteral("Description"), QStringLiteral("LifestageID"));
    fillCombo(m_combos[kComponent], db,
              collection ? CL::componentStatement(0) : QStringLiteral("Select * from tblComponent order by Description"),
              QStringLiteral("Description"), QStringLiteral("ComponentID"));
    m_fraCollection->setVisible(collection);
    m_combos[kLifestage]->setEnabled(!collection);
    m_combos[kComponent]->setEnabled(!collection);
}

void frmSelect_Classification::setValue(int index, const QVariant &value)
{
    ControlValue::setValue(m_combos[index], value);
}

QVariant frmSelect_Classification::valueOf(int index) const
{
    return ControlValue::boundValue(m_combos[index]);
}

void frmSelect_Classification::LoadData()
{
    const RoutineInfo info{ErrForm::Shared, routine(QStringLiteral("LoadData")), routine(QStringLiteral("LoadData"))};
    guarded(session(), info, [&] {
        const RecordRequest &r = recordRequest();
        session().gSQL = callerRowSql(false);
        auto rs = session().gDB->OpenRecordset(session().gSQL, RecordsetType::Dynaset);
        if (rs->EOF_()) {
            traceLine(session(), TraceLayout::Tabbed, routine(QStringLiteral("LoadData Recordset is empty")));
            return;
        }
        QVector<std::pair<QString, QString>> params;
        for (int i = 0; i < CL::kCount; ++i)
            params.append({CL::key(i), rs->field(CL::key(i)).toString()});
        traceParameters(session(), info, params, 3);
        if (rs->field(QStringLiteral("KingdomID")).isNull())
            return;
        for (int i = 0; i < CL::kCount; ++i) {
            const QVariant value = rs->field(CL::key(i));
            if (i > 0)
                LoadCombo(i, vb::CLng(rs->field(CL::key(i - 1))));
            if (value.isNull())
                break;
            setValue(i, value);
            m_tags[i] = valueOf(i);
        }
        if (r.collection) {
            const qint32 kingdom = vb::CLng(rs->field(QStringLiteral("KingdomID")));
            LoadCombo(kLifestage, kingdom);
            LoadCombo(kComponent, kingdom);
            for (int i : {kLifestage, kComponent})
                if (const QVariant v = rs->field(i == kLifestage ? QStringLiteral("LifestageID") : QStringLiteral("ComponentID")); !v.isNull())
                    setValue(i, v);
        }
        rs->Close();
        traceSuccess(session(), info);
    });
}

void frmSelect_Classification::LoadCombo(int level, qint32 parentId)
{
    Database &db = *session().gDB;
    if (level == kLifestage)
        fillCombo(m_combos[level], db, CL::lifestageStatement(parentId), QStringLiteral("Description"), QStringLiteral("LifestageID"));
    else if (level == kComponent)
        fillCombo(m_combos[level], db, CL::componentStatement(parentId), QStringLiteral("Description"), QStringLiteral("ComponentID"));
    else
        fillCombo(m_combos[level], db, CL::childrenStatement(level, parentId), QStringLiteral("Name"), CL::key(level));
}

void frmSelect_Classification::ClearCombos(int level)
{
    if (level < 0 || level > 5)
        return;
    for (int i = level; i < CL::kCount; ++i)
        ControlValue::clear(m_combos[i]);
    if (level == 0) {
        ControlValue::clear(m_combos[kLifestage]);
        ControlValue::clear(m_combos[kComponent]);
    }
}

void frmSelect_Classification::choose(int level)
{
    const QVariant value = valueOf(level);
    if (m_tags[level] == value)
        return;
    m_tags[level] = value;
    const qint32 id = vb::CLng(value);
    if (level == 0) {
        m_combos[kLifestage]->setEnabled(true);
        m_combos[kComponent]->setEnabled(true);
        ClearCombos(1);
        for (int i : {1, kLifestage, kComponent})
            LoadCombo(i, id);
        return;
    }
    ClearCombos(level + 1);
    fillAncestry(level, id);
}

void frmSelect_Classification::fillAncestry(int level, qint32 id)
{
    auto rs = session().gDB->OpenRecordset(CL::pathStatement(level, id), RecordsetType::Snapshot);
    if (rs->EOF_()) {
        session().msgBox(QStringLiteral("Error in Classification Heirarchy."), QString(), MsgIcon::Warning);
        return;
    }
    for (int i = 0; i < level; ++i) {
        const QVariant above = rs->field(2 * i);
        setValue(i, above);
        LoadCombo(i + 1, vb::CLng(above));
    }
    setValue(level, id);
    if (level + 1 < CL::kCount)
        LoadCombo(level + 1, id);
}

void frmSelect_Classification::newChoice()
{
    ClearCombos(2);
    m_combos[kLifestage]->setEnabled(false);
    m_combos[kComponent]->setEnabled(false);
}

void frmSelect_Classification::select()
{
    if (ControlValue::text(m_combos[0]).isEmpty()) {
        session().msgBox(QStringLiteral("Kingdom cannot be blank. Please select Kingdom and then continue."), QString(),
                         MsgIcon::Warning);
        return;
    }
    session().gSQL = callerRowSql(false);
    auto rs = session().gDB->OpenRecordset(session().gSQL, RecordsetType::Dynaset);
    rs->Edit();
    rs->setField(QStringLiteral("KingdomID"), valueOf(0));
    // A blank combo leaves its column as it was.
    for (int i = 1; i < 8; ++i) {
        const QString column = i < CL::kCount ? CL::key(i) : i == kLifestage ? QStringLiteral("LifestageID") : QStringLiteral("ComponentID");
        if (!valueOf(i).isNull())
            rs->setField(column, valueOf(i));
    }
    rs->Update();
    rs->Close();
    reportToDietItem(session(), host());
    unloadMe();
}

void frmSelect_Classification::openSearch()
{
    const QString search = QStringLiteral("frmFind_Classification");
    if (!windowAvailable(session(), search))
        return;
    if (ZobWindow *w = host().form(search)) {
        w->setRecord(recordRequest());
        host().show(search, true);
    }
}
