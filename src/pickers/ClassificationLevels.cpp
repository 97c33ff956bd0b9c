// SPDX-License-Identifier: MIT
#include "ClassificationLevels.h"

namespace ClassificationLevels {
namespace {
const char *const kNames[] = {"Kingdom", "Subkingdom", "Phylum", "Class", "Order", "Family"};
const char *const kKeys[] = {"KingdomID", "SubkingdomID", "PhylumID", "ClassID", "OrderID", "FamilyID"};
// The parent column of each level from 1 on, as the lists are narrowed.
const char *const kParents[] = {"", "KingdomID", "SubkingdomID", "PhylumID", "ClassID", "OrderId"};
// The path query's filter column of each level from 1 on.
const char *const kPathColumns[] = {"", "tblSubkingdom.SubKingdomID", "tblPhylum.PhylumID", "tblClass.ClassID",
                                    "tblOrder.OrderID", "tblFamily.FamilyID"};
}  // namespace

QString name(int level) { return QString::fromLatin1(kNames[level]); }
QString table(int level) { return QStringLiteral("tbl") + name(level); }
QString key(int level) { return QString::fromLatin1(kKeys[level]); }

QString allStatement(int level)
{
    return QStringLiteral("Select * from %1 order by Name").arg(table(level));
}

QString childrenStatement(int level, qint32 parentId)
{
    return QStringLiteral("Select * from %1 where %2 = %3 Order by Name")
        .arg(table(level), QString::fromLatin1(kParents[level]))
        .arg(parentId);
}

QString lifestageStatement(qint32 kingdomId)
{
    QString sql = QStringLiteral("SELECT tblLifeStage.LifestageID, tblLifeStage.Description FROM jKingdomLifestage INNER JOIN "
                                 "tblLifeStage ON jKingdomLifestage.LifeStageID = tblLifeStage.LifeStageID");
    if (kingdomId > 0)
        sql += QStringLiteral(" Where jKingdomLifestage.KingdomID = %1").arg(kingdomId);
    return sql + QStringLiteral(" ORDER BY tblLifeStage.Description");
}

QString componentStatement(qint32 kingdomId)
{
    QString sql = QStringLiteral("SELECT tblComponent.ComponentID, tblComponent.Description FROM jtblKingdomComponent INNER "
                                 "JOIN tblComponent ON jtblKingdomComponent.ComponentID = tblComponent.ComponentID");
    if (kingdomId > 0)
        sql += QStringLiteral(" Where jtblKingdomComponent.KingdomID = %1").arg(kingdomId);
    return sql + QStringLiteral(" ORDER BY tblComponent.Description");
}

QString pathStatement(int level, qint32 id)
{
    return QStringLiteral(
               "SELECT tblKingdom.KingdomID, tblKingdom.Name, tblSubkingdom.SubKingdomID, tblSubkingdom.Name, "
               "tblPhylum.PhylumID, tblPhylum.Name, tblClass.ClassID, tblClass.Name, tblOrder.OrderID, tblOrder.Name, "
               "tblFamily.FamilyID, tblFamily.Name FROM tblKingdom INNER JOIN (tblSubkingdom INNER JOIN (((tblOrder "
               "INNER JOIN tblFamily ON tblOrder.OrderID = tblFamily.OrderID) INNER JOIN tblClass ON tblOrder.ClassID = "
               "tblClass.ClassID) INNER JOIN tblPhylum ON tblClass.PhylumID = tblPhylum.PhylumID) ON "
               "tblSubkingdom.SubKingdomID = tblPhylum.SubkingdomID) ON tblKingdom.KingdomID = tblSubkingdom.KingdomID")
        + QStringLiteral(" WHERE %1 = %2").arg(QString::fromLatin1(kPathColumns[level])).arg(id);
}
}  // namespace ClassificationLevels
