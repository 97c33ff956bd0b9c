// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

//! The lists of the lookup tables that the entry windows offer in their combos.
namespace Lookups {
inline QString taxon() { return QStringLiteral("Select * From tblTaxon Order By Description"); }
inline QString foodGroup() { return QStringLiteral("Select tblFoodGroup.* from tblFoodGroup Order by Description"); }
inline QString habitat() { return QStringLiteral("Select * From tblHabitatType Order By Type"); }
inline QString varianceType() { return QStringLiteral("SELECT * From tblVarianceType ORDER BY tblVarianceType.Description;"); }
inline QString units() { return QStringLiteral("Select * From tblUnits Order By Description"); }
inline QString status() { return QStringLiteral("Select * From tblStatus Order By Description"); }
inline QString gender() { return QStringLiteral("Select * From tblGender Order By Description"); }
inline QString lifestage() { return QStringLiteral("Select * From tblLifestage Order By Description"); }
inline QString month() { return QStringLiteral("Select * From tblMonth Order By Description"); }
inline QString intakeType() { return QStringLiteral("Select * From tblIntakeType Order By Description"); }
}  // namespace Lookups
