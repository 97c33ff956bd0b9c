// SPDX-License-Identifier: MIT
#include "BuilderScenarioRows.h"

#include "Diagnostics.h"
#include "Recordset.h"
#include "Session.h"
#include "clsScenario.h"

#include <QFile>

void readScenarioRow(clsScenario &sc, const Recordset &row)
{
    auto field = [&row](const char *name) { return row.field(QString::fromLatin1(name)); };
    sc.Identifier1 = field("Common").toString();
    sc.SpeciesID = field("SpeciesID").toInt();
    sc.Species_DataSource = field("SpeciesDataSourceID").toInt();
    sc.Wt_DataSource = field("WtDataSourceID").toInt();
    sc.WeightID = field("WeightID").toInt();
    sc.WtEstimator = static_cast<qint16>(field("WtEstimator").toInt());
    sc.WtStatus = static_cast<qint16>(field("WtStatus").toInt());
    sc.WtSex = field("WtSex").toString();
    sc.Weight = field("Weight").toFloat();
    sc.Diet_DataSource = field("DietDataSourceID").toInt();
    sc.DietID = field("DietID").toInt();
    sc.DietType = static_cast<qint16>(field("DietType").toInt());
    sc.Diet_Season = field("DietSeason").toString();
    sc.Diet_Sex = field("DietSex").toString();
    sc.Diet_Habitat = field("DietHabitat").toString();
}

void readIntakeSources(clsScenario &sc, Recordset &rows)
{
    qint32 *sources[5] = {&sc.Air_DataSource, &sc.WAT_DataSource, &sc.FMR_DataSource, &sc.Soil_DataSource, &sc.Sediment_DataSource};
    qint32 *categories[4] = {&sc.AirCategoryID, &sc.WatCategoryID, &sc.FMRCategoryID, &sc.SoilCategoryID};
    for (int type = 1; type <= 5; ++type) {
        rows.FindFirst(QStringLiteral("IntakeTypeID = %1").arg(type));
        if (rows.NoMatch())
            continue;
        *sources[type - 1] = rows.field(QStringLiteral("DataSourceID")).toInt();
        if (type <= 4)
            *categories[type - 1] = rows.field(QStringLiteral("CategoryID")).toInt();
    }
}

void resetScenarioRows(Session &s)
{
    const qint32 sid = s.gScenario->SID;
    s.gDB->Execute(QStringLiteral("DELETE tblWildlifeDietItems.* From tblWildlifeDietItems WHERE tblWildlifeDietItems.ScenarioID = %1").arg(sid));
    s.gDB->Execute(QStringLiteral(
        "UPDATE tblIntakeZOB SET tblIntakeZOB.IntakeModelID = 0, tblIntakeZOB.SoilIngestionID = 0, tblIntakeZOB.CategoryID = 0, "
        "tblIntakeZOB.BaseRate = 0, tblIntakeZOB.AdjustedRate = 0, tblIntakeZOB.Units = 'm3/day', tblIntakeZOB.Units_CF = 1, "
        "tblIntakeZOB.Measured_CF = 1, tblIntakeZOB.IntakeEquation = ' ', tblIntakeZOB.Comments = ' ', "
        "tblIntakeZOB.Derivation = 'Estimated', tblIntakeZOB.IntakeMeasuredID = 0, tblIntakeZOB.EstimatorID = 1, "
        "tblIntakeZOB.ZOB_SpeciesID = 0, tblIntakeZOB.DataSourceID = 6, tblIntakeZOB.AssignedSpecies = ' ' "
        "WHERE tblIntakeZOB.ScenarioID = %1").arg(sid), true);
}

void forgetScenarioChoices(Session &s)
{
    clsScenario &sc = *s.gScenario;
    if (!sc.FileName.isEmpty())
        QFile::remove(Session::join(sc.FilePath, sc.FileName));
    sc.FileName.clear();
    sc.WeightID = 0;
    sc.Weight = 0;
    sc.WtEstimator = 0;
    sc.WtSex = QStringLiteral("unknown");
    sc.WtStatus = 2;
    sc.DietID = 0;
    sc.DietType = 0;
    sc.Wt_DataSource = 6;
    sc.Diet_DataSource = 6;
    for (qint32 *source : {&sc.Air_DataSource, &sc.WAT_DataSource, &sc.FMR_DataSource, &sc.Soil_DataSource, &sc.Sediment_DataSource})
        *source = 6;
}

bool anyDietItems(Session &s)
{
    bool exist = false;
    guarded(s, {ErrForm::Qualified, QStringLiteral("frmZOB.WildlifeDietItemsExist")}, [&] {
        auto rs = s.gDB->OpenRecordset(QStringLiteral("tblWildlifeDietItems"), RecordsetType::Snapshot);
        exist = !(rs->BOF() && rs->EOF_());
        rs->Close();
        if (!exist)
            s.msgBox(QStringLiteral("No Diet Items exist in this scenario. Dietary calculations will not be done."), QString(),
                     MsgIcon::Warning);
    });
    return exist;
}
