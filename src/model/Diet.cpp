// SPDX-License-Identifier: MIT
#include "Diet.h"

#include "DataSourceText.h"
#include "Diagnostics.h"
#include "Session.h"
#include "VbError.h"
#include "VbFormat.h"
#include "clsDietItem.h"
#include "clsScenario.h"

namespace {

const QString kUserSelect = QStringLiteral(
    "SELECT tblWildlifeDietItems.DietID, tblWildlifeDietItems.DietItemID, tblWildlifeDietItems.Name, "
    "tblWildlifeDietItems.Comments, tblWildlifeDietItems.Wet_Proportion, tblWildlifeDietItems.Dry_Proportion, "
    "tblGrossEnergy.WET_WT_KCALG, tblGrossEnergy.DRY_WT_KCALG, tblFoodGroup_1.Description AS GEFoodGroup, "
    "tblAE.Mean, tblAE.FoodName AS PredatorType, tblFoodGroup.Description AS AEFoodGroup, "
    "tblLifeStage.Description AS Lifestage, tblComponent.Description AS CompDesc, "
    "qryReference_1.Reference AS AEReference, qryReference.Reference AS GEReference, "
    "tblWaterConversion.Mean AS WaterPercent");

const QString kUserFrom = QStringLiteral(
    " FROM tblLifeStage RIGHT JOIN (tblComponent RIGHT JOIN (qryReference RIGHT JOIN (qryReference AS "
    "qryReference_1 RIGHT JOIN (tblWaterConversion RIGHT JOIN (tblFoodGroup AS tblFoodGroup_1 RIGHT JOIN "
    "(((tblGrossEnergy RIGHT JOIN tblWildlifeDietItems ON tblGrossEnergy.GrossEnergyID = "
    "tblWildlifeDietItems.GrossEnergyID) LEFT JOIN tblAE ON tblWildlifeDietItems.AEID = tblAE.AEID) LEFT JOIN "
    "tblFoodGroup ON tblAE.FoodGroupID = tblFoodGroup.FoodGroupID) ON tblFoodGroup_1.FoodGroupID = "
    "tblGrossEnergy.FoodGroupID) ON tblWaterConversion.WaterConversionID = tblWildlifeDietItems.WaterConversionID) "
    "ON qryReference_1.ReferenceID = tblAE.ReferenceID) ON qryReference.ReferenceID = tblGrossEnergy.ReferenceID) "
    "ON tblComponent.ComponentID = tblWildlifeDietItems.ComponentID) ON tblLifeStage.LifeStageID = "
    "tblWildlifeDietItems.LifeStageID");

QString sid(Session &s)
{
    if (!s.gScenario)
        throw VbError(91, QStringLiteral("Object variable or With block variable not set"));
    return QString::number(s.gScenario->SID);
}

//! The description of a data source class. The id is a 32-bit argument: a null id fails before
//! the lookup, as the legacy call did.
QString dataSourceText(Session &s, const QVariant &id) { return GetDataSourceText(s, vb::CLng(id)); }

//! A value joined into text with "&": null adds nothing, numbers in their default text.
QString joinText(const QVariant &v)
{
    if (v.isNull())
        return QString();
    return vb::CStr(v);
}

}  // namespace

QString GetDietItemsSQL(Session &s, const QString &type, qint32 id)
{
    QString sql;
    guarded(s, {ErrForm::Found, QStringLiteral("GetDietItemsSQL")}, [&] {
        if (type == QLatin1String("User")) {
            sql = kUserSelect + kUserFrom + QStringLiteral(" WHERE tblWildlifeDietItems.ScenarioID = ")
                  + QString::number(id) + QStringLiteral(" Order by tblWildlifeDietItems.Name");
        } else if (type == QLatin1String("Perm")) {
            // The reference list has the same shape on tblDietItem, with the item's data source added.
            QString select = kUserSelect;
            select.replace(QLatin1String("tblWildlifeDietItems"), QLatin1String("tblDietItem"));
            select.replace(QLatin1String("tblDietItem.Dry_Proportion,"),
                           QLatin1String("tblDietItem.Dry_Proportion, tblDietItem.DataSourceID,"));
            QString from = kUserFrom;
            from.replace(QLatin1String("tblWildlifeDietItems"), QLatin1String("tblDietItem"));
            sql = select + from + QStringLiteral(" WHERE ([tblDietItem].[DietID]= ") + QString::number(id)
                  + QStringLiteral(") Order By tblDietItem.Name");
        }
    });
    s.resetCursor();
    return sql;
}

bool ReplaceWildlifeDietItems(Session &s)
{
    bool goOn = false;
    guarded(s, {ErrForm::Qualified, QStringLiteral(".ReplaceWildlifeDietItems")}, [&] {
        const QString id = sid(s);
        s.gSQL = QStringLiteral("Select  * from tblWildlifeDietItems where ScenarioID = ") + id;
        auto rs = s.gDB->OpenRecordset(s.gSQL, RecordsetType::Dynaset);
        if (rs->BOF() && rs->EOF_()) {
            goOn = true;
        } else if (s.msgBox(QStringLiteral("Do you want to overwrite existing Diet ?"), QString(), MsgIcon::Question,
                            MsgButtons::YesNo, 2)
                   == MsgAnswer::Yes) {
            s.gDB->Execute(QStringLiteral("Update tblWildlife Set DietID = 0, DietSeason='', DietSex='', "
                                          "DietHabitat='' Where tblWildlife.ScenarioID = ")
                           + id);
            s.gDB->Execute(QStringLiteral("DELETE tblWildlifeDiet.* FROM tblWildlifeDiet WHERE tblWildlifeDiet.ScenarioID=")
                           + id);
            s.gDB->Execute(QStringLiteral("DELETE tblWildlifeDietItems.* FROM tblWildlifeDietItems WHERE "
                                          "tblWildlifeDietItems.ScenarioID=")
                           + id);
            goOn = true;
        }
        rs->Close();
        s.resetCursor();
    });
    return goOn;
}

void AddWildlifeDiet(Session &s, qint32 dietId)
{
    guarded(s, {ErrForm::Qualified, QStringLiteral(".AddWildlifeDiet")}, [&] {
        s.gSQL = QStringLiteral("Select * from tblDiet Where DietID = ") + QString::number(dietId);
        auto from = s.gDB->OpenRecordset(s.gSQL, RecordsetType::Dynaset);
        auto to = s.gDB->OpenRecordset(QStringLiteral("tblWildlifeDiet"), RecordsetType::Dynaset);
        to->AddNew();
        static const char *const kColumns[] = {
            "DietID", "fldDiet_ID", "SpeciesID", "DataTypeID", "ReferenceID", "MeasureTermID", "MaterialAnalyzedID",
            "AnalysisNotes", "CollectionNotes", "GenderID", "LifestageID", "HabitatTypeID", "BegMonthID",
            "EndMonthID", "Latitude", "Longitude", "Location", "DataSourceID", "DietTypeID", "StateProvinceID",
            "Region"};
        for (const char *column : kColumns) {
            const QString name = QLatin1String(column);
            to->setField(name, from->field(name));
        }
        to->setField(QStringLiteral("ScenarioID"), sid(s));
        to->Update();
        to->Close();
        from->Close();
    });
}

void AddWildlifeDietItems(Session &s, qint32 dietId)
{
    guarded(s, {ErrForm::CodeCrLf, QStringLiteral("AddWildlifeDietItems")}, [&] {
        const QString scenarioId = sid(s);
        auto to = s.gDB->OpenRecordset(QStringLiteral("tblWildlifeDietItems"), RecordsetType::Dynaset);
        // Items without a moisture row are left out by the inner join, without a word.
        s.gSQL = QStringLiteral("SELECT tblDietItem.*, tblWaterConversion.Mean, tblWaterConversion.DataSourceID AS "
                                "WaterDS FROM tblDietItem INNER JOIN tblWaterConversion ON "
                                "tblDietItem.WaterConversionID = tblWaterConversion.WaterConversionID WHERE "
                                "tblDietItem.DietID =")
                 + QString::number(dietId);
        auto from = s.gDB->OpenRecordset(s.gSQL, RecordsetType::Dynaset);
        auto copy = [&](const char *column) {
            const QString name = QLatin1String(column);
            to->setField(name, from->field(name));
        };
        while (!from->EOF_()) {
            to->AddNew();
            for (const char *column : {"DietItemID", "DietID", "Name", "WetValue", "DryValue", "Dry_Proportion",
                                       "Wet_Proportion", "Sample", "WaterConversionID"})
                copy(column);
            to->setField(QStringLiteral("WaterPercent"), from->field(QStringLiteral("Mean")));
            to->setField(QStringLiteral("WaterPercentDS"), from->field(QStringLiteral("WaterDS")));
            copy("TrophicLevelID");
            // The trophic level is frozen by value. An item without a trophic-level row has no level
            // to freeze: it is copied with the level empty, without a lookup that could only fail.
            const QVariant levelId = from->field(QStringLiteral("TrophicLevelID"));
            if (!levelId.isNull()) {
                const QString criteria = QStringLiteral("TrophicLevelID = ") + joinText(levelId);
                to->setField(QStringLiteral("TrophicLevel"),
                             s.Lookup(QStringLiteral("tblTrophicLevel"), QStringLiteral("TrophicLevel"), criteria));
                to->setField(QStringLiteral("TrophiclevelDS"),
                             s.Lookup(QStringLiteral("tblTrophicLevel"), QStringLiteral("DataSourceID"), criteria));
            }
            for (const char *column : {"AEID", "GrossEnergyID", "KingdomID", "SubkingdomID", "PhylumID", "ClassID",
                                       "OrderID", "FamilyID", "DataSourceID", "ComponentID", "LifestageID", "Genus",
                                       "Species", "N_Unit", "Comments", "Bio_Availability"})
                copy(column);
            to->setField(QStringLiteral("ScenarioID"), scenarioId);
            to->Update();
            from->MoveNext();
        }
        to->Close();
        from->Close();
    });
}

QString GetTrophicLevelText(Session &s, qint32 id, const QString &table)
{
    if (id == 0)
        return QStringLiteral("No record selected");
    QString text;
    guarded(s, {ErrForm::Shared, QStringLiteral("GetTrophicLevelText")}, [&] {
        s.gSQL = table == QLatin1String("tblDietItem")
                     ? QStringLiteral("SELECT tblDietItem.* FROM tblDietItem WHERE tblDietItem.DietItemID = ")
                     : QStringLiteral("SELECT tblWildlifeDietItems.* FROM tblWildlifeDietItems WHERE "
                                      "tblWildlifeDietItems.DietItemID = ");
        s.gSQL += QString::number(id);
        auto item = s.gDB->OpenRecordset(s.gSQL, RecordsetType::Dynaset);
        const QVariant levelId = item->field(QStringLiteral("TrophicLevelID"));
        item->Close();
        if (levelId.isNull())
            return;
        s.gSQL = QStringLiteral("Select tblTrophicLevel.Item, tblTrophicLevel.TrophicLevel, tblTrophicLevel.DataSourceID "
                                "From tblTrophicLevel Where TrophicLevelID = ")
                 + joinText(levelId);
        auto level = s.gDB->OpenRecordset(s.gSQL, RecordsetType::Dynaset);
        text = QStringLiteral("Item: ") + joinText(level->field(QStringLiteral("Item")))
               + QStringLiteral(" Trophic Level:  ")
               + vb::vbFormat(level->field(QStringLiteral("TrophicLevel")), QStringLiteral("#.##"))
               + QStringLiteral(" - Data Source: ") + dataSourceText(s, level->field(QStringLiteral("DataSourceID")));
        level->Close();
    });
    return text;
}

QString GetWaterConversionText(Session &s, qint32 id, const QString &table)
{
    QString text;
    if (id == 0)
        return text;
    guarded(s, {ErrForm::Shared, QStringLiteral("GetWaterConversionText")}, [&] {
        QString dataSourceField = QStringLiteral("DataSourceID");
        if (table == QLatin1String("tblDietItem")) {
            s.gSQL = QStringLiteral("Select * from tblDietItem Where DietItemID = ");
        } else if (table == QLatin1String("tblWildlifeDietItems")) {
            s.gSQL = QStringLiteral("Select * from tblWildlifeDietItems Where DietItemID = ");
            dataSourceField = QStringLiteral("WaterPercentDS");
        } else if (table == QLatin1String("tblGrossEnergy")) {
            s.gSQL = QStringLiteral("Select * from tblGrossEnergy Where GrossEnergyID = ");
        } else {
            return;
        }
        s.gSQL += QString::number(id);
        auto rs = s.gDB->OpenRecordset(s.gSQL, RecordsetType::Dynaset);
        if (rs->BOF() && rs->EOF_()) {
            text = QStringLiteral("Water content not found. ");
        } else {
            const QVariant item = s.Lookup(QStringLiteral("tblWaterConversion"), QStringLiteral("Item"),
                                           QStringLiteral("WaterConversionID = ")
                                               + joinText(rs->field(QStringLiteral("WaterConversionID"))));
            text = QStringLiteral("Item:  ") + joinText(item) + QStringLiteral(" Percent Water:  ")
                   + vb::vbFormat(rs->field(QStringLiteral("WaterPercent")), QStringLiteral("##.##"))
                   + QStringLiteral(" - Data Source: ") + dataSourceText(s, rs->field(dataSourceField));
        }
        rs->Close();
    });
    return text;
}

void UpdateDS(Session &s, bool changed)
{
    const RoutineInfo info{ErrForm::Qualified, QStringLiteral("modDiet.UpdateDS"), QStringLiteral("modDiet.UpdateDS")};
    guarded(s, info, [&] {
        const QString id = sid(s);
        const QVariant ds = s.Lookup(QStringLiteral("tblWildlifeDiet"), QStringLiteral("DataSourceID"),
                                     QStringLiteral("ScenarioID=") + id);
        // The lookup's "not found" compares as different from any number.
        const bool isUserData = ds.typeId() != QMetaType::QString && !ds.isNull() && ds.toDouble() == 6.0;
        if (!isUserData && changed) {
            s.gDB->Execute(QStringLiteral("Update tblWildlife Set DietDataSourceID =6 Where ScenarioID = ") + id);
            s.gDB->Execute(QStringLiteral("Update tblWildlifeDiet Set DataSourceID = 6 Where ScenarioID = ") + id);
            if (s.gDietItem && s.gDietItem->window)
                s.gDietItem->window->setIsChanged(false);
            s.gScenario->Diet_DataSource = 6;
        }
        traceSuccess(s, info);
    });
}
