// SPDX-License-Identifier: MIT
#include "srptDietItems.h"

#include "ReportDesign.h"

namespace {
constexpr double kHalf = 238;
constexpr double kRight = 285;
constexpr double kSize = 8;
constexpr double kLine = kSize + 4;
}  // namespace

srptDietItems::srptDietItems(Session &session, qint32 sid) : ActiveReport(session, QStringLiteral("srptDietItems")), m_sid(sid)
{
    repeatHeadOverAllRows(*this);
    groupHeader.height = addBlockHeading(groupHeader, QStringLiteral("lblDietItems"), QStringLiteral("Diet Items"), 6);
    ReportSection &d = detail;
    // Two columns of short values, and the references and notes across the whole width.
    double y = 4;
    const auto pair = [&](Captioned left, Captioned right) {
        addCaptioned(d, {left}, y, 0, kHalf, 150, kSize);
        if (*right.caption)
            addCaptioned(d, {right}, y, kRight, kHalf, 85, kSize);
        y += kLine;
    };
    const auto across = [&](Captioned c) { y = addCaptioned(d, {c}, y, 0, kReportWidth, 150, kSize); };
    addCaptioned(d, {{"Diet Item:", "fldName", "Name"}}, y, 0, kRight - 10, 70);
    d.items.last().bold = true;
    addCaptioned(d, {{"Diet Proportion:", "fldProportion", "Wet_Proportion", "0.000"}}, y, kRight, kHalf, 95);
    y += 16;
    pair({"Trophic Level:", "fldTrophicLevel", "TrophicLevel"}, {"Component:", "fldComponent", "Component"});
    pair({"Lifestage:", "fldLifestage", "LifeStage"}, {""});
    pair({"Kingdom:", "fldKingdom", "Kingdom"}, {"Subkingdom:", "fldSubkingdom", "Subkingdom"});
    pair({"Phylum:", "fldPhylum", "Phylum"}, {"Class:", "fldClass", "Class"});
    pair({"Order:", "fldOrder", "Order"}, {"Family:", "fldFamily", "Family"});
    y += 4;
    pair({"Gross Energy (GE, kcal/g):", "fldGE", "GE"}, {"GE Source:", "fldGEDS", "GEDS"});
    across({"GE Assignment:", "fldGEFoodGroup", "GEFoodGroup"});
    across({"GE Reference:", "fldGERef", "GERef"});
    y += 4;
    pair({"Assimilation Efficiency (AE%):", "fldAE", "AE"}, {"AE Source:", "fldAEDS", "AEDS"});
    across({"AE Consumer:", "fldConsumerName", "ConsumerName"});
    across({"AE Food Item:", "fldFoodName", "FoodName"});
    across({"AE Reference:", "fldAERef", "AERef"});
    y += 4;
    pair({"Moisture Content (% H2O):", "fldWaterPercent", "WaterPercent"}, {"% H2O Source:", "fldH2ODS", "H2ODS"});
    across({"% H2O Type:", "fldH2OFoodGroup", "H2OFoodGroup"});
    across({"% H2O Reference:", "fldH2ORef", "H2ORef"});
    y += 4;
    across({"Notes:", "fldComments", "COMMENTS"});
    d.items << rule(0, y + 5, kReportWidth);
    d.height = y + 9;
}

void srptDietItems::ActiveReport_ReportStart()
{
    recordSource = QStringLiteral(
        "SELECT tblWildlifeDietItems.Name, tblWildlifeDietItems.Wet_Proportion, tblTrophicLevel.TrophicLevel, tblComponent.Description "
        "AS Component, tblLifeStage.Description AS Lifestage, tblWildlifeDietItems.Comments, tblWildlifeDietItems.WaterPercent, "
        "tblFoodGroup_1.Description AS H2OFoodGroup, tblDataSource_2.Description AS H2ODS, qryReference_2.Reference AS H2ORef, "
        "tblGrossEnergy.WET_WT_KCALG AS GE, tblFoodGroup.Description AS GEFoodGroup, tblDataSource.Description AS GEDS, "
        "qryReference_1.Reference AS GERef, tblAE.Mean AS AE, tblAE.ConsumerName, tblAE.FoodName, tblFoodGroup.Description AS "
        "AEFoodGroup, tblDataSource_1.Description AS AEDS, qryReference.Reference AS AERef, tblKingdom.Name AS Kingdom, "
        "tblSubkingdom.Name AS Subkingdom, tblPhylum.Name AS Phylum, tblClass.Name AS Class, tblOrder.Name AS [Order], "
        "tblFamily.Name AS Family FROM tblFoodGroup AS tblFoodGroup_1 RIGHT JOIN (tblDataSource AS tblDataSource_2 RIGHT JOIN "
        "(qryReference AS qryReference_2 RIGHT JOIN (((((((tblDataSource AS tblDataSource_1 RIGHT JOIN (qryReference AS "
        "qryReference_1 RIGHT JOIN (qryReference RIGHT JOIN (tblDataSource RIGHT JOIN (((((((tblWildlifeDietItems LEFT JOIN tblAE "
        "ON tblWildlifeDietItems.AEID = tblAE.AEID) LEFT JOIN tblGrossEnergy ON tblWildlifeDietItems.GrossEnergyID = "
        "tblGrossEnergy.GrossEnergyID) LEFT JOIN tblTrophicLevel ON tblWildlifeDietItems.TrophicLevelID = "
        "tblTrophicLevel.TrophicLevelID) LEFT JOIN tblComponent ON tblWildlifeDietItems.ComponentID = tblComponent.ComponentID) "
        "LEFT JOIN tblLifeStage ON tblWildlifeDietItems.LifeStageID = tblLifeStage.LifestageID) LEFT JOIN tblWaterConversion ON "
        "tblWildlifeDietItems.WaterConversionID = tblWaterConversion.WaterConversionID) LEFT JOIN tblFoodGroup ON "
        "tblAE.FoodGroupID = tblFoodGroup.FoodGroupID) ON tblDataSource.DataSourceID = tblGrossEnergy.DataSourceID) ON "
        "qryReference.ReferenceID = tblAE.ReferenceID) ON qryReference_1.ReferenceID = tblGrossEnergy.ReferenceID) ON "
        "tblDataSource_1.DataSourceID = tblAE.DataSourceID) LEFT JOIN tblKingdom ON tblWildlifeDietItems.KingdomID = "
        "tblKingdom.KingdomID) LEFT JOIN tblPhylum ON tblWildlifeDietItems.PhylumID = tblPhylum.PhylumID) LEFT JOIN tblClass ON "
        "tblWildlifeDietItems.ClassID = tblClass.ClassID) LEFT JOIN tblFamily ON tblWildlifeDietItems.FamilyID = "
        "tblFamily.FamilyID) LEFT JOIN tblSubkingdom ON tblWildlifeDietItems.SubkingdomID = tblSubkingdom.SubkingdomID) LEFT "
        "JOIN tblOrder ON tblWildlifeDietItems.OrderID = tblOrder.OrderID) ON qryReference_2.ReferenceID = "
        "tblWaterConversion.ReferenceID) ON tblDataSource_2.DataSourceID = tblWildlifeDietItems.WaterPercentDS) ON "
        "tblFoodGroup_1.FoodGroupID = tblWaterConversion.FoodGroupID\r\n WHERE tblWildlifeDietItems.ScenarioID = ")
        + QString::number(m_sid) + QStringLiteral(" ORDER BY tblWildlifeDietItems.Name");
}
