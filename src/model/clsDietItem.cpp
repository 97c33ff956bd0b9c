// SPDX-License-Identifier: MIT
#include "clsDietItem.h"

#include "Session.h"
#include "VbError.h"
#include "clsScenario.h"

#include <algorithm>

namespace {

//! The next free item id: above every DietItemID of the reference items and of all copies.
qint32 nextCopyItemId(Session &s)
{
    qint32 top = 0;
    for (const QString &table : {QStringLiteral("tblDietItem"), QStringLiteral("tblWildlifeDietItems")}) {
        auto rs = s.gDB->OpenRecordset(QStringLiteral("SELECT Max(DietItemID) AS MaxID FROM ") + table,
                                       RecordsetType::Snapshot);
        const QVariant v = rs->EOF_() ? QVariant() : rs->field(QStringLiteral("MaxID"));
        rs->Close();
        if (!v.isNull())
            top = std::max(top, v.toInt());
    }
    return top + 1;
}

}  // namespace

clsDietItem::clsDietItem(Session &session) : m_session(session) {}

qint32 clsDietItem::AddNew(const QString &table, qint32 dietId)
{
    Session &s = m_session;
    auto rs = s.gDB->OpenRecordset(table, RecordsetType::Dynaset);
    rs->AddNew();
    rs->setField(QStringLiteral("DietID"), dietId);
    const qint32 sid = s.gScenario ? s.gScenario->SID : 0;
    if (sid > 0 && rs->hasField(QStringLiteral("ScenarioID")))
        rs->setField(QStringLiteral("ScenarioID"), sid);
    QVariant id = rs->field(QStringLiteral("DietItemID"));
    if (id.isNull() || id.toInt() == 0) {
        // The scenario's copy keeps the reference ids and so has no autonumber of its own.
        id = nextCopyItemId(s);
        rs->setField(QStringLiteral("DietItemID"), id);
    }
    rs->Update();
    rs->Close();
    return id.toInt();
}

void clsDietItem::UpdateDietItemClass(const Classification &c)
{
    KingdomID = c.KingdomID;
    SubkingdomID = c.SubkingdomID;
    PhylumID = c.PhylumID;
    ClassID = c.ClassID;
    OrderID = c.OrderID;
    FamilyID = c.FamilyID;
}

qint32 clsDietItem::GetDID(const QDateTime &moment)
{
    const QDate d = moment.date();
    const QTime t = moment.time();
    const QString text = QStringLiteral("%1%2%3%4%5")
                             .arg(d.month(), 2, 10, QLatin1Char('0'))
                             .arg(d.day(), 2, 10, QLatin1Char('0'))
                             .arg(t.hour(), 2, 10, QLatin1Char('0'))
                             .arg(t.minute(), 2, 10, QLatin1Char('0'))
                             .arg(t.second(), 2, 10, QLatin1Char('0'));
    return text.toInt();
}
