// SPDX-License-Identifier: MIT
#include "frmDE_Measurement.h"

#include "ControlValue.h"
#include "DataControl.h"
#include "Diagnostics.h"
#include "FormBuilder.h"
#include "QtWindowHost.h"
#include "Recordset.h"
#include "Session.h"
#include "Utilities.h"
#include "VbFormat.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QTimer>

namespace {
const WindowRegistration<frmDE_Measurement> reg(QStringLiteral("frmDE_Measurement"));

const char *const kCaptions[] = {"Mean: ", "Minimum(g):", "Maximum(g):", "Sample Size: ", "Variance:"};
// The three lists that only the kind "All" shows: combo, column, caption, statement.
struct Extra {
    const char *combo, *column, *caption, *sql;
};
const Extra kExtras[] = {
    {"cboGender", "GenderID", "Gender: ", "SELECT * From tblGender ORDER BY tblGender.Description;"},
    {"cboStatus", "StatusID", "Status: ", "SELECT * From tblStatus ORDER BY tblStatus.Description;"},
    {"cboUnits", "UnitsID", "Units: ", "SELECT * From tblUnits ORDER BY tblUnits.Description;"},
};
}  // namespace

frmDE_Measurement::frmDE_Measurement(Session &session, QtWindowHost &host)
    : ZobWindow(session, host, QStringLiteral("frmDE_Measurement"))
{
    setCaption(QStringLiteral("Measurement Information"));
    HelpContextID = 2575;
    FormBuilder b(this);
    buildToolbar(b, {ToolButton::separator(),
                     {"New", "Clear the boxes", "Clear", [this] { SetControlInfo(this->session(), this, QStringLiteral("clear"), true); }},
                     ToolButton::separator(),
                     {"Save", "Save the values", "Save", [this] { SaveMeasurement(); }},
                     ToolButton::separator(),
                     {"Select", "Save the values and close", "OK", [this] { SaveMeasurement(); unloadMe(); }},
                     ToolButton::separator(),
                     {"Close", "Close without saving", "Close", [this] { unloadMe(); }}},
                 QStringLiteral(" frmDE_Measurement.TB_MDI_ButtonClick"));
    FormBuilder f = b.frame(QStringLiteral("fraMeasurement"), QStringLiteral("Measurement")).fields(1);
    for (int i = 0; i < 5; ++i) {
        m_txt[i] = f.textBox(QStringLiteral("txtFields"), 30 + i, QString::fromLatin1(kCaptions[i]));
        FormBuilder::userTyped(m_txt[i]);
    }
    m_cboVarianceType = f.combo(QStringLiteral("cboVarianceType"), QStringLiteral("Variance Type:"));
    m_cboDataSource = f.combo(QStringLiteral("cboDataSource"), QStringLiteral("Data Source:"));
    m_lblDataSource = f.lastLabel();
    QComboBox **extras[] = {&m_cboGender, &m_cboStatus, &m_cboUnits};
    for (int i = 0; i < 3; ++i) {
        *extras[i] = f.combo(QString::fromLatin1(kExtras[i].combo), QString::fromLatin1(kExtras[i].caption));
        m_lblExtras[i] = f.lastLabel();
    }
    b.stretch();
    resize(420, 360);
}

QStringList frmDE_Measurement::columnsOf(const QString &kind)
{
    if (kind == QLatin1String("WW"))
        return {QStringLiteral("WET_WT_KCALG"), QStringLiteral("Min_W"), QStringLiteral("Max_W"), QString(), QStringLiteral("Variance_ww")};
    if (kind == QLatin1String("DW"))
        return {QStringLiteral("DRY_WT_KCALG"), QStringLiteral("Min_D"), QStringLiteral("Max_D"), QString(), QStringLiteral("Variance_dw")};
    if (kind == QLatin1String("AE") || kind == QLatin1String("H2O") || kind == QLatin1String("All"))
        return {QStringLiteral("Mean"), QStringLiteral("Min"), QStringLiteral("Max"), QStringLiteral("Sample"), QStringLiteral("VarValue")};
    return {};
}

QString frmDE_Measurement::rowStatement() const
{
    return QStringLiteral("Select * From %1 WHERE %1.%2 = %3").arg(m_table, m_key).arg(m_id);
}

void frmDE_Measurement::PuS_SetRecord(qint32 recordId, const QString &keyField, const QString &tableName, const QString &kind)
{
    m_id = recordId;
    m_key = keyField;
    m_table = tableName;
    m_kind = kind;
    guarded(session(), {ErrForm::Shared, QStringLiteral("frmDE_Measurement.Form_Load")}, [&] {
        Database &db = *session().gDB;
        fillCombo(m_cboVarianceType, db, QStringLiteral("SELECT * From tblVarianceType ORDER BY tblVarianceType.Description;"),
                  QStringLiteral("Description"), QStringLiteral("VarianceTypeID"));
        fillCombo(m_cboDataSource, db, QStringLiteral("SELECT tblDataSource.DataSourceID, tblDataSource.Description From "
                                                      "tblDataSource ORDER BY tblDataSource.Description;"),
                  QStringLiteral("Description"), QStringLiteral("DataSourceID"));
        const bool all = kind == QLatin1String("All");
        QComboBox *extras[] = {m_cboGender, m_cboStatus, m_cboUnits};
        for (int i = 0; i < 3; ++i) {
            extras[i]->setVisible(all);
            m_lblExtras[i]->setVisible(all);
            if (all)
                fillCombo(extras[i], db, QString::fromLatin1(kExtras[i].sql), QStringLiteral("Description"),
                          QString::fromLatin1(kExtras[i].column));
        }
        const QStringList columns = columnsOf(kind);
        m_txt[3]->setEnabled(columns.value(3).size() > 0);
        SetControlInfo(session(), this, QStringLiteral("clear"), true);
        if (m_id > 0)
            LoadData();
    });
}

void frmDE_Measurement::LoadData()
{
    const RoutineInfo info{ErrForm::Shared, QStringLiteral("frmDE_Measurement.LoadData"), QStringLiteral("frmDE_Measurement.LoadData")};
    guarded(session(), info, [&] {
        auto rs = session().gDB->OpenRecordset(rowStatement(), RecordsetType::Dynaset);
        if (rs->EOF_())
            return;
        const QStringList columns = columnsOf(m_kind);
        for (int i = 0; i < columns.size(); ++i)
            if (!columns[i].isEmpty())
                ControlValue::setValue(m_txt[i], rs->field(columns[i]));
        ControlValue::setValue(m_cboVarianceType, rs->field(QStringLiteral("VarianceTypeID")));
        ControlValue::setValue(m_cboDataSource, rs->field(QStringLiteral("DataSourceID")));
        if (m_kind == QLatin1String("All")) {
            QComboBox *extras[] = {m_cboGender, m_cboStatus, m_cboUnits};
            for (int i = 0; i < 3; ++i)
                ControlValue::setValue(extras[i], rs->field(QString::fromLatin1(kExtras[i].column)));
        }
        rs->Close();
        traceSuccess(session(), info);
    });
}

void frmDE_Measurement::SaveMeasurement()
{
    const RoutineInfo info{ErrForm::Shared, QStringLiteral("frmDE_Measurement.SaveMeasurement"),
                           QStringLiteral("frmDE_Measurement.SaveMeasurement")};
    guarded(session(), info, [&] {
        auto rs = session().gDB->OpenRecordset(rowStatement(), RecordsetType::Dynaset);
        if (rs->EOF_())
            return;
        rs->Edit();
        try {
            rs->setField(QStringLiteral("VarianceTypeID"), ControlValue::boundValue(m_cboVarianceType));
            rs->setField(QStringLiteral("DataSourceID"), ControlValue::boundValue(m_cboDataSource));
            const QStringList columns = columnsOf(m_kind);
            for (int i = 0; i < columns.size(); ++i)
                if (!columns[i].isEmpty())
                    rs->setField(columns[i], ControlValue::boundValue(m_txt[i]));
            if (m_kind == QLatin1String("All")) {
                QComboBox *extras[] = {m_cboGender, m_cboStatus, m_cboUnits};
                for (int i = 0; i < 3; ++i)
                    rs->setField(QString::fromLatin1(kExtras[i].column), ControlValue::boundValue(extras[i]));
            }
            rs->Update();
        } catch (...) {
            rs->CancelUpdate();
            throw;
        }
        rs->Close();
        traceSuccess(session(), info);
    });
}
