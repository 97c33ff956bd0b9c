// SPDX-License-Identifier: MIT
#include "Wildlife.h"

#include "CalcSupport.h"
#include "Calculations.h"
#include "Diagnostics.h"

QString GetClassificationText(Session &s, qint32 id, const QString &tableName, const QString &idField)
{
    QString text;
    guarded(s, {ErrForm::Shared, QStringLiteral(" GetClassificationText")}, [&] {
        s.gSQL = QStringLiteral("Select * From ") + tableName + QStringLiteral(" Where ") + idField
                 + QStringLiteral(" = ") + QString::number(id);
        auto rs = s.gDB->OpenRecordset(s.gSQL, RecordsetType::Dynaset);
        struct Level {
            const char *label;
            const char *column;
            const char *table;
        };
        static const Level kLevels[] = {
            {"Kingdom:  ", "KingdomID", "tblKingdom"},     {", Subkingdom:  ", "SubkingdomID", "tblSubkingdom"},
            {", Phylum:  ", "PhylumID", "tblPhylum"},      {",  Class:  ", "ClassID", "tblClass"},
            {",  Order:  ", "OrderID", "tblOrder"},        {",  Family:  ", "FamilyID", "tblFamily"},
        };
        QString built;
        for (const Level &level : kLevels) {
            built += QLatin1String(level.label);
            const QString column = QLatin1String(level.column);
            const QVariant value = rs->field(column);
            if (!value.isNull())
                built += calc::joinText(s.Lookup(QLatin1String(level.table), QStringLiteral("Name"),
                                                 column + QStringLiteral(" = ") + calc::joinText(value)));
        }
        rs->Close();
        text = built;
    });
    return text;
}

QString GetMeasurementText(Session &s, qint32 id, const QString &tableName, const QString &idField,
                           const QString &kind)
{
    QString text;
    guarded(s, {ErrForm::Shared, QStringLiteral(" GetMeasurementText")}, [&] {
        s.gSQL = QStringLiteral("Select * From ") + tableName + QStringLiteral(" Where ") + idField
                 + QStringLiteral(" = ") + QString::number(id);
        auto rs = s.gDB->OpenRecordset(s.gSQL, RecordsetType::Dynaset);
        QStringList fields;
        if (kind == QLatin1String("AE") || kind == QLatin1String("H2O") || kind == QLatin1String("DE"))
            fields = {QStringLiteral("Mean"), QStringLiteral("Min"), QStringLiteral("Max"), QStringLiteral("VarValue")};
        else if (kind == QLatin1String("WW"))
            fields = {QStringLiteral("WET_WT_KCALG"), QStringLiteral("Min_W"), QStringLiteral("Max_W"),
                      QStringLiteral("Variance_ww")};
        else if (kind == QLatin1String("DW"))
            fields = {QStringLiteral("DRY_WT_KCALG"), QStringLiteral("Min_D"), QStringLiteral("Max_D"),
                      QStringLiteral("Variance_dw")};
        QString built;
        if (!fields.isEmpty()) {
            static const char *const kLabels[] = {"Mean:  ", ", Min:  ", ", Max:  ", ", Variance:  "};
            for (int i = 0; i < 4; ++i)
                built += QLatin1String(kLabels[i]) + calc::singleText(rs->field(fields[i]));
        }
        built += QStringLiteral(",  Variance Type:  ");
        const QVariant varianceType = rs->field(QStringLiteral("VarianceTypeID"));
        if (!varianceType.isNull())
            built += calc::joinText(s.Lookup(QStringLiteral("tblVarianceType"), QStringLiteral("Description"),
                                             QStringLiteral("VarianceTypeID = ") + calc::joinText(varianceType)));
        built += QStringLiteral(", Data Source:  ");
        const QVariant dataSource = rs->field(QStringLiteral("DataSourceID"));
        if (!dataSource.isNull())
            built += calc::joinText(s.Lookup(QStringLiteral("tblDataSource"), QStringLiteral("Description"),
                                             QStringLiteral("DataSourceID = ") + calc::joinText(dataSource)));
        rs->Close();
        text = built;
    });
    return text;
}

QString CalculationSQL(Session &s)
{
    QString sql;
    guarded(s, {ErrForm::Shared, QStringLiteral("CalculationSQL")}, [&] {
        // TDI first: it builds its own statements in gSQL.
        const QString tdi = vb::singleToText(GetFMR_TDI(s, QStringLiteral("TDI")));
        const bool wet = calc::scenario(s).DietType != 0;
        s.gSQL = QStringLiteral("SELECT  tblScenario.*, tblWildlifeDietItems.Name, tblLifeStage.Description AS "
                                "LifeStage, tblComponent.Description AS Component, tblAE.Mean,");
        if (wet)
            s.gSQL += QStringLiteral(
                " tblWildlifeDietItems.Wet_Proportion AS DietProportion, tblGrossEnergy.WET_WT_KCALG AS GE, "
                "[tblAE]![Mean]*0.01*[tblGrossEnergy]![WET_Wt_KCALG] AS ME, tblWildlifeDietItems.Wet_Proportion * "
                "[tblAE]![Mean]*0.01*[tblGrossEnergy]![Wet_Wt_KCALG] AS ME_Wt,");
        else
            s.gSQL += QStringLiteral(
                " tblWildlifeDietItems.Dry_Proportion AS DietProportion, tblGrossEnergy.Dry_WT_KCALG AS GE, "
                "[tblAE]![Mean]*0.01*[tblGrossEnergy]![Dry_Wt_KCALG] AS ME, tblWildlifeDietItems.Dry_Proportion * "
                "[tblAE]![Mean]*0.01*[tblGrossEnergy]![Dry_Wt_KCALG] AS ME_Wt,");
        s.gSQL += tdi;
        s.gSQL += wet ? QStringLiteral("*[tblWildlifeDietItems]![Wet_Proportion] AS Daily_Intake,")
                      : QStringLiteral("*[tblWildlifeDietItems]![Dry_Proportion] AS Daily_Intake,");
        s.gSQL += QStringLiteral(
                      " tblDataSource.Description AS DataSource FROM (tblComponent RIGHT JOIN (tblLifeStage RIGHT JOIN "
                      "((tblGrossEnergy INNER JOIN (tblWildlifeDietItems INNER JOIN tblAE ON tblWildlifeDietItems.AEID = "
                      "tblAE.AEID) ON tblGrossEnergy.GrossEnergyID = tblWildlifeDietItems.GrossEnergyID) LEFT JOIN "
                      "tblDataSource ON tblWildlifeDietItems.DataSourceID = tblDataSource.DataSourceID) ON "
                      "tblLifeStage.LifeStageID = tblWildlifeDietItems.LifeStageID) ON tblComponent.ComponentID = "
                      "tblWildlifeDietItems.ComponentID)  INNER JOIN tblScenario ON tblWildlifeDietItems.ScenarioID = "
                      "tblScenario.ScenarioID Where tblWildlifeDietItems.ScenarioID = ")
                  + calc::sidText(s) + QStringLiteral(" ORDER BY tblWildlifeDietItems.Name");
        sql = s.gSQL;
    });
    s.resetCursor();
    return sql;
}
