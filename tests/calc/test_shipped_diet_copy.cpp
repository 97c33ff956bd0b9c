// SPDX-License-Identifier: MIT
// Every diet of the shipped database chosen for a scenario of its own: the head row, the items that
// have a moisture row with their water content and trophic level frozen in.
#include "Diet.h"
#include "TestSupport.h"
#include "clsProject.h"
#include "clsScenario.h"

#include <QVariant>
#include <gtest/gtest.h>

#include <cmath>

namespace {

class ShippedDietCopy : public ::testing::Test {
protected:
    ShippedDietCopy()
    {
        s.userOverride = QStringLiteral("tester");
        s.startUser();
        s.gProject = std::make_shared<clsProject>(s);
        s.gScenario = std::make_shared<clsScenario>(s);
        // Fifty scenarios are written here: the copy need not survive a power cut.
        s.gDB->executeNative(QStringLiteral("PRAGMA synchronous = OFF"));
    }

    //! Every row of a statement, each as its list of values.
    QList<QVariantList> rows(const QString &select)
    {
        QList<QVariantList> out;
        auto rs = s.gDB->OpenRecordset(select, RecordsetType::Snapshot);
        for (; !rs->EOF_(); rs->MoveNext()) {
            QVariantList row;
            for (int c = 0; c < rs->fieldCount(); ++c)
                row << rs->field(c);
            out << row;
        }
        return out;
    }

    //! The diet choice of the builder: a new scenario, then the copy of head and items.
    qint32 scenarioOnDiet(qint32 dietId)
    {
        s.gScenario->AddNew(QStringLiteral("Wildlife"));
        EXPECT_TRUE(ReplaceWildlifeDietItems(s));
        AddWildlifeDiet(s, dietId);
        AddWildlifeDietItems(s, dietId);
        return s.gScenario->SID;
    }

    TestSession t;
    Session &s = t.session();
};

//! Equal as numbers when both are numbers (the copy may store a single), else as texts.
bool same(const QVariant &a, const QVariant &b)
{
    if (a.isNull() || b.isNull())
        return a.isNull() == b.isNull();
    bool okA = false, okB = false;
    const double x = a.toDouble(&okA), y = b.toDouble(&okB);
    if (okA && okB)
        return std::abs(x - y) <= 1e-6 * std::max(1.0, std::abs(x));
    return a.toString() == b.toString();
}

TEST_F(ShippedDietCopy, EveryDietCopiesIntoAScenarioOfItsOwn)
{
    const auto diets = rows(QStringLiteral("SELECT DietID, SpeciesID, ReferenceID, DataSourceID, MeasureTermID "
                                           "FROM tblDiet ORDER BY DietID"));
    ASSERT_GE(diets.size(), 50);
    for (const QVariantList &diet : diets) {
        const qint32 dietId = diet[0].toInt();
        SCOPED_TRACE(dietId);
        t.messages.shown.clear();
        const qint32 sid = scenarioOnDiet(dietId);

        const auto head = rows(QStringLiteral("SELECT DietID, SpeciesID, ReferenceID, DataSourceID, MeasureTermID "
                                              "FROM tblWildlifeDiet WHERE ScenarioID = %1").arg(sid));
        ASSERT_EQ(head.size(), 1);
        for (qsizetype c = 0; c < diet.size(); ++c)
            EXPECT_TRUE(same(head[0][c], diet[c])) << "head column " << c;

        // The items with a moisture row, in the reference and in the scenario.
        const auto expected = rows(QStringLiteral(
            "SELECT tblDietItem.DietItemID, tblDietItem.Name, tblDietItem.Wet_Proportion, tblDietItem.Dry_Proportion, "
            "tblWaterConversion.Mean, tblWaterConversion.DataSourceID, tblTrophicLevel.TrophicLevel, "
            "tblTrophicLevel.DataSourceID, tblDietItem.AEID, tblDietItem.GrossEnergyID, tblDietItem.DataSourceID, "
            "tblDietItem.TrophicLevelID FROM (tblDietItem INNER JOIN tblWaterConversion ON tblDietItem.WaterConversionID "
            "= tblWaterConversion.WaterConversionID) LEFT JOIN tblTrophicLevel ON tblDietItem.TrophicLevelID = "
            "tblTrophicLevel.TrophicLevelID WHERE tblDietItem.DietID = %1 ORDER BY tblDietItem.DietItemID").arg(dietId));
        const auto copied = rows(QStringLiteral(
            "SELECT DietItemID, Name, Wet_Proportion, Dry_Proportion, WaterPercent, WaterPercentDS, TrophicLevel, "
            "TrophiclevelDS, AEID, GrossEnergyID, DataSourceID, TrophicLevelID FROM tblWildlifeDietItems "
            "WHERE ScenarioID = %1 ORDER BY DietItemID").arg(sid));
        ASSERT_EQ(copied.size(), expected.size());
        ASSERT_FALSE(copied.isEmpty()) << "nothing of the diet reaches a scenario";
        for (qsizetype r = 0; r < copied.size(); ++r) {
            for (qsizetype c = 0; c < copied[r].size(); ++c)
                EXPECT_TRUE(same(copied[r][c], expected[r][c]))
                    << "item " << expected[r][0].toInt() << " column " << c << ": "
                    << copied[r][c].toString().toStdString() << " for " << expected[r][c].toString().toStdString();
        }
        // An item without a trophic-level id is copied with an empty level and no box; any box is a
        // failure of the copy.
        for (const ShownMessage &m : t.messages.shown)
            ADD_FAILURE() << "diet " << dietId << ": " << m.text.toStdString();
    }
}

}  // namespace
