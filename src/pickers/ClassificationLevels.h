// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

//! The six levels of the taxonomic hierarchy, kingdom (0) to family (5), and the statements that
//! list a level's members, narrow a level to the children of a parent, and find the whole path above a
//! chosen member.
namespace ClassificationLevels {
constexpr int kCount = 6;
//! "Kingdom", "Subkingdom", "Phylum", "Class", "Order", "Family".
QString name(int level);
//! The level's table ("tblKingdom") and its key ("KingdomID", "SubkingdomID", ...).
QString table(int level);
QString key(int level);
//! Every member of a level, by name.
QString allStatement(int level);
//! The members of a level (1 to 5) under parent id, by name.
QString childrenStatement(int level, qint32 parentId);
//! The life stages or components that a kingdom allows (all of them for kingdom 0).
QString lifestageStatement(qint32 kingdomId);
QString componentStatement(qint32 kingdomId);
//! The chain from kingdom to family through the member id of level (1 to 5); kingdom..family ids in
//! the columns 0, 2, 4, 6, 8, 10.
QString pathStatement(int level, qint32 id);
}  // namespace ClassificationLevels
