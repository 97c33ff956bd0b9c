// SPDX-License-Identifier: MIT
// Every statement the program writes, in its own Jet dialect, runs on the seeded database: the
// translator and the schema together must accept all of them. Values joined into a statement at run
// time are given as 1 (ids) or a plain word.
#include "TestSupport.h"
#include "VbError.h"

#include <gtest/gtest.h>

namespace {

const char *const kStatements[] = {
    R"sql(DELETE * From tblWildlifeDietItems WHERE tblWildlifeDietItems.ScenarioID = 1)sql",
    R"sql(DELETE tblWildlifeDiet.* FROM tblWildlifeDiet WHERE tblWildlifeDiet.ScenarioID=1)sql",
    R"sql(DELETE tblWildlifeDietItems.* FROM tblWildlifeDietItems WHERE tblWildlifeDietItems.ScenarioID=1)sql",
    R"sql(Delete * from jtblProjectScenario where projectID = 1 AND ScenarioID= 1)sql",
    R"sql(Delete * from jtblProjectScenario where projectID = 1)sql",
    R"sql(Delete * from tblProject where ProjectID = 1)sql",
    R"sql(Delete * from tblWildlifeDietItems where DietItemID = 1 AND ScenarioID= 1)sql",
    R"sql(SELECT 'Item: ' & tblGrossEnergy.Item & ' Wet: ' & tblGrossEnergy.WET_WT_KCALG & ' Dry:  ' & tblGrossEnergy.DRY_WT_KCALG AS Display FROM tblGrossEnergy WHERE tblGrossEnergy.GrossEnergyID = 1)sql",
    R"sql(SELECT * FROM tblWildlife WHERE ScenarioID = 1)sql",
    R"sql(SELECT * From tblGender ORDER BY tblGender.Description;)sql",
    R"sql(SELECT * From tblStatus ORDER BY tblStatus.Description;)sql",
    R"sql(SELECT * From tblUnits ORDER BY tblUnits.Description;)sql",
    R"sql(SELECT * From tblVarianceType ORDER BY tblVarianceType.Description;)sql",
    R"sql(SELECT * From tblWildlife WHERE tblWildlife.ScenarioID = 1)sql",
    R"sql(SELECT Avg([tblWildlifeDietItems].[TROPHICLEVEL]) AS ReturnValue FROM tblWildlifeDietItems WHERE (((tblWildlifeDietItems.ScenarioID)=1)))sql",
    R"sql(SELECT Avg(tblTrophicLevel.TROPHICLEVEL) AS ReturnValue FROM tblWildlifeDietItems  INNER JOIN tblTrophicLevel ON tblWildlifeDietItems.TrophicLevelID = tblTrophicLevel.TrophicLevelID Where tblWildlifeDietItems.DietID = 1)sql",
    R"sql(SELECT ReferenceID, Reference FROM qryReference WHERE qryReference.ReferenceID NOT IN (SELECT jtblSpeciesReference.ReferenceID FROM jtblSpeciesReference LEFT JOIN tblSpecies ON jtblSpeciesReference.SpeciesID = tblSpecies.SpeciesID WHERE tblSpecies.SpeciesID = 1) Order By Reference)sql",
    R"sql(SELECT SUM(tblWildlifeDietItems.WaterPercent * [tblWildlifeDietItems].[Wet_Proportion]/100) AS Water FROM tblWildlifeDietItems WHERE tblWildlifeDietItems.ScenarioID = 1)sql",
    R"sql(SELECT Sum([tblAE]![Mean]*0.01*[tblGrossEnergy]!WET_WT_KCALG * [tblWildlifeDietItems].[Wet_Proportion]) AS ME FROM tblGrossEnergy INNER JOIN (tblWildlifeDietItems INNER JOIN tblAE ON tblWildlifeDietItems.AEID = tblAE.AEID) ON tblGrossEnergy.GrossEnergyID = tblWildlifeDietItems.GrossEnergyID GROUP BY tblWildlifeDietItems.ScenarioID HAVING tblWildlifeDietItems.ScenarioID = 1)sql",
    R"sql(SELECT [Scenario_FilePath] & '\' & [Scenario_FileName] AS File, tblUser_1.Name AS CreatedBy, tblUser.Name AS ModifiedBy, tblScenario.Scenario_LastSaved, tblSpecies.Common, tblSpecies.Latin, tblWildlife.SpeciesComments, tblWildlife.SpeciesDataSourceID, tblSpecies.Distribution, tblSpecies.Habitat, tblSpecies.GenDiet, tblSpecies.Related, qryReference.Reference, tblWildlife.ScenarioID FROM ((tblScenario LEFT JOIN tblUser ON tblScenario.Scenario_ModifiedBy = tblUser.User) LEFT JOIN tblUser AS tblUser_1 ON tblScenario.Scenario_CreatedBy = tblUser_1.User) INNER JOIN (qryReference RIGHT JOIN ((tblSpecies RIGHT JOIN tblWildlife ON tblSpecies.SpeciesID = tblWildlife.SpeciesID) LEFT JOIN jtblSpeciesReference ON tblSpecies.SpeciesID = jtblSpeciesReference.SpeciesID) ON qryReference.ReferenceID = jtblSpeciesReference.ReferenceID) ON tblScenario.ScenarioID = tblWildlife.ScenarioID Where tblWildlife.ScenarioID = 1 ORDER BY qryReference.Reference;)sql",
    R"sql(SELECT jtblSpeciesReference.ReferenceID, qryReference.Reference, jtblSpeciesReference.IsDistribution, jtblSpeciesReference.IsHabitat, jtblSpeciesReference.IsDiet, jtblSpeciesReference.IsRelated FROM qryReference INNER JOIN jtblSpeciesReference ON qryReference.ReferenceID = jtblSpeciesReference.ReferenceID Where jtblSpeciesReference.SpeciesID = 1 ORDER BY qryReference.Reference;)sql",
    R"sql(SELECT jtblSpeciesReference.SpeciesID, qryReference.Reference FROM qryReference INNER JOIN jtblSpeciesReference ON qryReference.ReferenceID = jtblSpeciesReference.ReferenceID WHERE jtblSpeciesReference.SpeciesID = 1)sql",
    R"sql(SELECT tblAE.*, qryReference.Reference FROM qryReference RIGHT JOIN tblAE ON qryReference.ReferenceID = tblAE.ReferenceID WHERE tblAE.AEID = 1  Order By ConsumerName)sql",
    R"sql(SELECT tblAE.AEID, tblAE.ConsumerName, tblAE.FoodName, tblLifeStage.Description AS Lifestage, tblComponent.Description AS Component, tblAE.Mean, tblAE.Min, tblAE.Max, qryReference.Reference FROM qryReference RIGHT JOIN ((tblAE LEFT JOIN tblComponent ON tblAE.ComponentID = tblComponent.ComponentID) LEFT JOIN tblLifeStage ON tblAE.LifestageID = tblLifeStage.LifeStageID) ON qryReference.ReferenceID = tblAE.ReferenceID)sql",
    R"sql(SELECT tblAE.ConsumerName & ' eating ' & tblAE.FoodName & ' - ' & tblAE.Mean AS Display From tblAE WHERE tblAE.AEID = 1)sql",
    R"sql(SELECT tblCategory.CategoryID, tblCategory.Description FROM tblCategory INNER JOIN tblIntakeModel ON tblCategory.CategoryID = tblIntakeModel.CategoryID Where (tblIntakeModel.IntakeTypeID = 1) And ((tblIntakeModel.TaxonID) = 1) ORDER BY tblCategory.Description)sql",
    R"sql(SELECT tblComponent.ComponentID, tblComponent.Description FROM jtblKingdomComponent INNER JOIN tblComponent ON jtblKingdomComponent.ComponentID = tblComponent.ComponentID ORDER BY tblComponent.Description)sql",
    R"sql(SELECT tblComponent.ComponentID, tblComponent.Description FROM jtblKingdomComponent INNER JOIN tblComponent ON jtblKingdomComponent.ComponentID = tblComponent.ComponentID Where jtblKingdomComponent.KingdomID = 1 ORDER BY tblComponent.Description)sql",
    R"sql(SELECT tblDataSource.DataSourceID, tblDataSource.Description From tblDataSource ORDER BY tblDataSource.Description;)sql",
    R"sql(SELECT tblDiet.*, qryReference.Reference FROM qryReference RIGHT JOIN tblDiet ON qryReference.ReferenceID = tblDiet.ReferenceID WHERE tblDiet.SpeciesID = 1)sql",
    R"sql(SELECT tblDiet.*, tblMeasureTerm.Description AS Term, tblMaterialAnalyzed.Means, tblMaterialAnalyzed.Description AS Analyzed, qryReference.Reference FROM qryReference RIGHT JOIN ((tblDiet LEFT JOIN tblMaterialAnalyzed ON tblDiet.MaterialAnalyzedID = tblMaterialAnalyzed.MaterialAnalyzedID) LEFT JOIN tblMeasureTerm ON tblDiet.MeasureTermID = tblMeasureTerm.MeasureTermID) ON qryReference.ReferenceID = tblDiet.ReferenceID)sql",
    R"sql(SELECT tblDietItem.* FROM tblDietItem WHERE tblDietItem.DietItemID = 1)sql",
    R"sql(SELECT tblDietItem.*, tblWaterConversion.Mean, tblWaterConversion.DataSourceID AS WaterDS FROM tblDietItem INNER JOIN tblWaterConversion ON tblDietItem.WaterConversionID = tblWaterConversion.WaterConversionID WHERE tblDietItem.DietID =1)sql",
    R"sql(SELECT tblGrossEnergy.GrossEnergyID, tblGrossEnergy.Item, tblLifeStage.Description AS Lifestage, tblComponent.Description AS Component, tblGrossEnergy.Min_W, tblGrossEnergy.Max_W,tblGrossEnergy.Min_D, tblGrossEnergy.Max_D, tblGrossEnergy.DRY_WT_KCALG, tblGrossEnergy.WET_WT_KCALG, qryReference.Reference FROM ((qryReference RIGHT JOIN tblGrossEnergy ON qryReference.ReferenceID = tblGrossEnergy.ReferenceID) LEFT JOIN tblComponent ON tblGrossEnergy.ComponentID = tblComponent.ComponentID) LEFT JOIN tblLifeStage ON tblGrossEnergy.LifestageID = tblLifeStage.LifeStageID)sql",
    R"sql(SELECT tblHabitatType.HabitatTypeID, tblHabitatType.List From tblHabitatType Where ((Not (tblHabitatType.List) Is Null)) ORDER BY tblHabitatType.List)sql",
    R"sql(SELECT tblIntakeMeasured.IntakeMeasuredID, tblIntakeMeasured.Mean, tblIntakeMeasured.Min, tblIntakeMeasured.Max, tblIntakeMeasured.VarValue, tblUnits.Description AS Units, tblStatus.Description AS Status, tblGender.Description AS Gender, tblIntakeMeasured.Sample, tblIntakeMeasured.Note, tblIntakeMeasured.DataSourceID FROM ((tblIntakeMeasured LEFT JOIN tblGender ON tblIntakeMeasured.GenderID = tblGender.GenderID) LEFT JOIN tblStatus ON tblIntakeMeasured.StatusID = tblStatus.StatusID) LEFT JOIN tblUnits ON tblIntakeMeasured.UnitsID = tblUnits.UnitsID WHERE (IntakeTypeID = 1) AND (tblIntakeMeasured.SpeciesID = 1))sql",
    R"sql(SELECT tblIntakeMeasured.IntakeMeasuredID, tblIntakeType.Description AS IntakeType, tblGender.Description AS Gender, tblStatus.Description AS Status, tblVarianceType.Description AS VarianceType, tblUnits.Description AS Units, tblIntakeMeasured.Mean, tblIntakeMeasured.Min, tblIntakeMeasured.Max, tblIntakeMeasured.Sample, tblDataSource.Description AS DataSource FROM (((((tblIntakeMeasured LEFT JOIN tblIntakeType ON tblIntakeMeasured.IntakeTypeID = tblIntakeType.IntakeTypeID) LEFT JOIN tblGender ON tblIntakeMeasured.GenderID = tblGender.GenderID) LEFT JOIN tblVarianceType ON tblIntakeMeasured.VarianceTypeID = tblVarianceType.VarianceTypeID) LEFT JOIN tblStatus ON tblIntakeMeasured.StatusID = tblStatus.StatusID) LEFT JOIN tblUnits ON tblIntakeMeasured.UnitsID = tblUnits.UnitsID) LEFT JOIN tblDataSource ON tblIntakeMeasured.DataSourceID = tblDataSource.DataSourceID Where tblIntakeMeasured.SpeciesID = 1 ORDER BY tblIntakeType.Description, tblGender.Description)sql",
    R"sql(SELECT tblIntakeModel.*, qryReference.Reference FROM qryReference INNER JOIN tblIntakeModel ON qryReference.ReferenceID = tblIntakeModel.ReferenceID WHERE (tblIntakeModel.IntakeTypeID = 1) AND (tblIntakeModel.TaxonID = 1 ) AND (tblIntakeModel.CategoryID = 1))sql",
    R"sql(SELECT tblIntakeModel.*, qryReference.Reference FROM qryReference RIGHT JOIN tblIntakeModel ON qryReference.ReferenceID = tblIntakeModel.ReferenceID WHERE IntakeModelID = 1)sql",
    R"sql(SELECT tblIntakeModel.*, tblUnits.Description AS WtUnits, tblUnits.Factor, tblUnits_1.Description AS FinalUnits, tblUnits_2.Description AS EqnUnits FROM tblUnits AS tblUnits_2 RIGHT JOIN (tblUnits AS tblUnits_1 RIGHT JOIN (tblUnits RIGHT JOIN tblIntakeModel ON tblUnits.UnitsID = tblIntakeModel.WtUnitsID) ON tblUnits_1.UnitsID = tblIntakeModel.FinalUnitsID) ON tblUnits_2.UnitsID = tblIntakeModel.EqnUnitsID WHERE tblIntakeModel.IntakeModelID = 1)sql",
    R"sql(SELECT tblIntakeModel.Mean_log_X, tblIntakeModel.c, tblIntakeModel.d, tblIntakeModel.e From tblIntakeModel WHERE (((tblIntakeModel.IntakeModelID)=1));)sql",
    R"sql(SELECT tblIntakeType.Description, tblIntakeZOB.BaseRate, tblIntakeZOB.Units, tblIntakeZOB.Derivation, tblIntakeZOB.Measured_CF, tblIntakeZOB.ADJUSTEDRate FROM tblIntakeZOB INNER JOIN tblIntakeType ON tblIntakeZOB.IntakeTypeID = tblIntakeType.IntakeTypeID WHERE tblIntakeZOB.ScenarioID = 1)sql",
    R"sql(SELECT tblIntakeZOB.* FROM tblIntakeZOB WHERE tblIntakeZOB.ScenarioID = 1)sql",
    R"sql(SELECT tblIntakeZOB.BaseRate, tblSoilIngestion.Species, tblEstimator.Description, tblSoilIngestion.Sample, qryReference.Reference FROM ((tblEstimator RIGHT JOIN tblIntakeZOB ON tblEstimator.EstimatorID = tblIntakeZOB.EstimatorID) INNER JOIN tblSoilIngestion ON tblIntakeZOB.SoilIngestionID = tblSoilIngestion.SoilIngestionID) LEFT JOIN qryReference ON tblSoilIngestion.ReferenceID = qryReference.ReferenceID WHERE (((tblIntakeZOB.ScenarioID)=1) AND ((tblIntakeZOB.IntakeTypeID)=4));)sql",
    R"sql(SELECT tblIntakeZOB.IntakeModelID, tblIntakeZOB.IntakeTypeID, tblIntakeZOB.IntakeEquation, tblCategory.Description, tblIntakeZOB.Units_CF, tblIntakeZOB.Measured_CF, tblUnits.Factor, tblIntakeModel.r2, tblIntakeModel.c, tblIntakeModel.d, tblIntakeModel.e, tblIntakeModel.Mean_log_X, tblIntakeModel.Sample, qryReference.Reference FROM (qryReference RIGHT JOIN ((tblIntakeZOB LEFT JOIN tblCategory ON tblIntakeZOB.CategoryID = tblCategory.CategoryID) LEFT JOIN tblIntakeModel ON tblIntakeZOB.IntakeModelID = tblIntakeModel.IntakeModelID) ON qryReference.ReferenceID = tblIntakeModel.ReferenceID) LEFT JOIN tblUnits ON tblIntakeModel.WtUnitsID = tblUnits.UnitsID WHERE tblIntakeZOB.ScenarioID = 1 ORDER BY tblIntakeZOB.IntakeTypeID)sql",
    R"sql(SELECT tblIntakeZOB.ScenarioID, tblIntakeType.Description AS IntakeType, tblIntakeZOB.Units, tblIntakeZOB.BaseRate, tblIntakeZOB.AdjustedRate, tblIntakeZOB.Derivation, tblIntakeZOB.Measured_CF, tblDataSource.Description AS DataSource, tblIntakeZOB.Comments, tblEstimator.Description AS Estimator FROM ((tblIntakeZOB INNER JOIN tblIntakeType ON tblIntakeZOB.IntakeTypeID = tblIntakeType.IntakeTypeID) INNER JOIN tblDataSource ON tblIntakeZOB.DataSourceID = tblDataSource.DataSourceID) INNER JOIN tblEstimator ON tblIntakeZOB.EstimatorID = tblEstimator.EstimatorID WHERE tblIntakeZOB.ScenarioID = 1)sql",
    R"sql(SELECT tblKingdom.KingdomID, tblKingdom.Name As Kingdom, tblSubkingdom.SubkingdomID, tblSubkingdom.Name As Subkingdom, tblPhylum.PhylumID, tblPhylum.Description As PhylumDesc, tblPhylum.Name As Phylum, tblClass.ClassID, tblClass.Description As ClassDesc, tblClass.Name As Class, tblOrder.OrderID, tblOrder.Description As OrderDesc, tblOrder.Name As OrderName, tblFamily.FamilyID, tblFamily.Name As Family, tblFamily.Description As FamilyDesc FROM (tblKingdom INNER JOIN tblSubkingdom ON tblKingdom.KingdomID = tblSubkingdom.KingdomID) INNER JOIN (tblPhylum INNER JOIN ((tblClass INNER JOIN tblOrder ON tblClass.ClassID = tblOrder.ClassID) INNER JOIN tblFamily ON tblOrder.OrderID = tblFamily.OrderID) ON tblPhylum.PhylumID = tblClass.PhylumID) ON tblSubkingdom.SubkingdomID = tblPhylum.SubkingdomID)sql",
    R"sql(SELECT tblKingdom.KingdomID, tblKingdom.Name, tblSubkingdom.SubKingdomID, tblSubkingdom.Name, tblPhylum.PhylumID, tblPhylum.Name, tblClass.ClassID, tblClass.Name, tblOrder.OrderID, tblOrder.Name, tblFamily.FamilyID, tblFamily.Name FROM tblKingdom INNER JOIN (tblSubkingdom INNER JOIN (((tblOrder INNER JOIN tblFamily ON tblOrder.OrderID = tblFamily.OrderID) INNER JOIN tblClass ON tblOrder.ClassID = tblClass.ClassID) INNER JOIN tblPhylum ON tblClass.PhylumID = tblPhylum.PhylumID) ON tblSubkingdom.SubKingdomID = tblPhylum.SubkingdomID) ON tblKingdom.KingdomID = tblSubkingdom.KingdomID)sql",
    R"sql(SELECT tblLifeStage.LifestageID, tblLifeStage.Description FROM jKingdomLifestage INNER JOIN tblLifeStage ON jKingdomLifestage.LifeStageID = tblLifeStage.LifeStageID ORDER BY tblLifeStage.Description)sql",
    R"sql(SELECT tblLifeStage.LifestageID, tblLifeStage.Description FROM jKingdomLifestage INNER JOIN tblLifeStage ON jKingdomLifestage.LifeStageID = tblLifeStage.LifeStageID Where jKingdomLifestage.KingdomID = 1 ORDER BY tblLifeStage.Description)sql",
    R"sql(SELECT tblReferences.* FROM tblReferences WHERE tblReferences.ReferenceID = 1)sql",
    R"sql(SELECT tblReferences.ReferenceID, tblReferences.fldRef_Author, tblReferences.fldRef_Title, qryReference.Reference FROM (jtblSpeciesReference INNER JOIN tblReferences ON jtblSpeciesReference.ReferenceID = tblReferences.ReferenceID) INNER JOIN qryReference ON tblReferences.ReferenceID = qryReference.ReferenceID Where jtblSpeciesReference.SpeciesID = 1 ORDER BY tblReferences.fldRef_Author)sql",
    R"sql(SELECT tblReferences.ReferenceID, tblReferences.fldRef_Author, tblReferences.fldRef_Title, qryReference.Reference FROM tblReferences INNER JOIN qryReference ON tblReferences.ReferenceID = qryReference.ReferenceID Order By fldRef_Author)sql",
    R"sql(SELECT tblScenario.*, tblWildlife.* FROM tblScenario INNER JOIN tblWildlife ON tblScenario.ScenarioID = tblWildlife.ScenarioID Where tblWildlife.ScenarioID = 1)sql",
    R"sql(SELECT tblScenario.*, tblWildlife.*, tblDietType.Description AS DIType, tblGender.Description AS Gender, tblHabitatType.Type, tblWildlifeDiet.CollectionNotes, tblWildlifeDiet.Location, tblWildlifeDiet.Region, tblWildlifeDiet.StateProvinceID, tblMeasureTerm.Term, tblMeasureTerm.Description AS TermDesc, tblWildlifeDiet.AnalysisNotes, tblDataSource.Description AS DataSource, qryReference.Reference FROM ((tblScenario INNER JOIN (qryReference RIGHT JOIN (tblDietType RIGHT JOIN (tblMeasureTerm RIGHT JOIN (tblDataSource RIGHT JOIN (tblWildlifeDiet RIGHT JOIN tblWildlife ON tblWildlifeDiet.DietID = tblWildlife.DietID) ON tblDataSource.DataSourceID = tblWildlife.DietDataSourceID) ON tblMeasureTerm.MeasureTermID = tblWildlifeDiet.MeasureTermID) ON tblDietType.DietTypeID = tblWildlife.DietType) ON qryReference.ReferenceID = tblWildlifeDiet.ReferenceID) ON tblScenario.ScenarioID = tblWildlife.ScenarioID) LEFT JOIN tblGender ON tblWildlifeDiet.GenderID = tblGender.GenderID) LEFT JOIN tblHabitatType ON tblWildlifeDiet.HabitatTypeID = tblHabitatType.HabitatTypeID WHERE tblScenario.ScenarioID = 1)sql",
    R"sql(SELECT tblScenario.*, tblWildlife.Common, tblWildlife.Weight, tblWildlife.WtComments, tblStatus.Description AS Status, tblWildlife.WtSex, tblEstimator.Description AS Estimator, tblDataSource.Description AS DataSource, tblWeight.Location, tblWeight.Region, tblWeight.Sample, tblVarianceType.Description AS VarianceType, tblWeight.VarValue, tblHabitatType.Description AS Habitat, tblLifeStage.Description AS Lifestage, [tblMonth].[Description] & ' ' & [tblMonth_1].[Description] AS Season, qryReference.Reference FROM tblStatus RIGHT JOIN (tblEstimator RIGHT JOIN (tblMonth AS tblMonth_1 RIGHT JOIN (tblMonth RIGHT JOIN ((((tblDataSource RIGHT JOIN (qryReference RIGHT JOIN ((tblScenario INNER JOIN tblWildlife ON tblScenario.ScenarioID = tblWildlife.ScenarioID) LEFT JOIN tblWeight ON tblWildlife.WeightID = tblWeight.WeightID) ON qryReference.ReferenceID = tblWeight.ReferenceID) ON tblDataSource.DataSourceID = tblWildlife.WtDataSourceID) LEFT JOIN tblVarianceType ON tblWeight.VarianceTypeID = tblVarianceType.VarianceTypeID) LEFT JOIN tblLifeStage ON tblWeight.LifeStageID = tblLifeStage.LifestageID) LEFT JOIN tblHabitatType ON tblWeight.HabitatTypeID = tblHabitatType.HabitatTypeID) ON tblMonth.MonthID = tblWeight.BegMonthID) ON tblMonth_1.MonthID = tblWeight.EndMonthID) ON tblEstimator.EstimatorID = tblWildlife.WtEstimator) ON tblStatus.StatusID = tblWildlife.WtStatus WHERE tblScenario.ScenarioID = 1 ORDER BY qryReference.Reference)sql",
    R"sql(SELECT tblScenario.ScenarioID, tblScenario.Scenario_Type, tblScenario.Scenario_FilePath, tblScenario.Scenario_FileName, tblScenario.Scenario_LastSaved, tblScenario.Scenario_Identifier_1 FROM tblScenario INNER JOIN jtblProjectScenario ON tblScenario.ScenarioID = jtblProjectScenario.ScenarioID WHERE jtblProjectScenario.ProjectID = 1)sql",
    R"sql(SELECT tblScenario.Scenario_FileName AS File, tblScenario.Scenario_CreatedBy, tblScenario.Scenario_ModifiedBy, tblScenario.Scenario_LastSaved, tblScenario.Comments AS ScenarioDescription FROM tblScenario WHERE tblScenario.ScenarioID  = 1)sql",
    R"sql(SELECT tblScenario.Scenario_FileName, tblWildlife.* FROM tblScenario INNER JOIN tblWildlife ON tblScenario.ScenarioID = tblWildlife.ScenarioID Where tblWildlife.ScenarioID = 1)sql",
    R"sql(SELECT tblSpecies.*, tblTaxon.Description AS Taxon FROM tblSpecies INNER JOIN tblTaxon ON tblSpecies.TaxonID = tblTaxon.TaxonID Where SpeciesID = 1)sql",
    R"sql(SELECT tblSpecies.SpeciesID, tblSpecies.TaxonID, tblTaxon.Description AS Taxon, tblSpecies.Common, tblSpecies.Latin, tblSpecies.DataSourceID FROM tblTaxon INNER JOIN tblSpecies ON tblTaxon.TaxonID = tblSpecies.TaxonID WHERE tblSpecies.TaxonID = 1 Order by Common)sql",
    R"sql(SELECT tblSpecies.SpeciesID, tblTaxon.Description AS Taxon, tblSpecies.Common, tblSpecies.Latin, tblSpecies.DataSourceID FROM tblSpecies INNER JOIN tblTaxon ON tblSpecies.TaxonID = tblTaxon.TaxonID ORDER BY tblTaxon.Description, tblSpecies.Common)sql",
    R"sql(SELECT tblSpecies.SpeciesID, tblTaxon.Description AS Taxon, tblSpecies.Common, tblSpecies.Latin, tblSpecies.DataSourceID FROM tblSpecies INNER JOIN tblTaxon ON tblSpecies.TaxonID = tblTaxon.TaxonID)sql",
    R"sql(SELECT tblTrophicLevel.*, qryReference.Reference FROM qryReference RIGHT JOIN tblTrophicLevel ON qryReference.ReferenceID = tblTrophicLevel.ReferenceID Where TrophicLevelID = 1)sql",
    R"sql(SELECT tblTrophicLevel.*, qryReference.Reference, tblHabitatType.Description AS Habitat FROM (qryReference RIGHT JOIN tblTrophicLevel ON qryReference.ReferenceID = tblTrophicLevel.ReferenceID) LEFT JOIN tblHabitatType ON tblTrophicLevel.HabitatTypeID = tblHabitatType.HabitatTypeID)sql",
    R"sql(SELECT tblUnits.Factor, tblIntakeModel.MMF, tblIntakeModel.UCF, tblIntakeModel.a, tblIntakeModel.b FROM tblUnits INNER JOIN tblIntakeModel ON tblUnits.UnitsID = tblIntakeModel.WtUnitsID WHERE tblIntakeModel.IntakeModelID =1)sql",
    R"sql(SELECT tblWaterConversion.*, tblComponent.Description AS Component, tblLifeStage.Description AS Lifestage, qryReference.Reference FROM ((qryReference RIGHT JOIN tblWaterConversion ON qryReference.ReferenceID = tblWaterConversion.ReferenceID) LEFT JOIN tblComponent ON tblWaterConversion.ComponentID = tblComponent.ComponentID) LEFT JOIN tblLifeStage ON tblWaterConversion.LifestageID = tblLifeStage.LifeStageID)sql",
    R"sql(SELECT tblWeight.*, [qryReference].[Reference] FROM qryReference RIGHT JOIN tblWeight ON [qryReference].[ReferenceID]= [tblWeight].[ReferenceID] WHERE tblWeight.SpeciesID = 1)sql",
    R"sql(SELECT tblWeight.*, tblGender.Description AS Gender FROM tblWeight LEFT JOIN tblGender ON tblWeight.GenderID = tblGender.GenderID WHERE tblWeight.WeightID = 1)sql",
    R"sql(SELECT tblWeight.WeightID, tblStatus.Description AS Status, tblGender.Description AS Gender, tblWeight.Mean, tblWeight.Min, tblWeight.Max, tblWeight.Sample, tblVarianceType.Description AS VT, tblWeight.VarValue, tblHabitatType.Description AS Habitat, qryReference.Reference FROM ((((qryReference INNER JOIN tblWeight ON qryReference.ReferenceID = tblWeight.ReferenceID) LEFT JOIN tblGender ON tblWeight.GenderID = tblGender.GenderID) LEFT JOIN tblVarianceType ON tblWeight.VarianceTypeID = tblVarianceType.VarianceTypeID) LEFT JOIN tblStatus ON tblWeight.StatusID = tblStatus.StatusID) LEFT JOIN tblHabitatType ON tblWeight.HabitatTypeID = tblHabitatType.HabitatTypeID)sql",
    R"sql(SELECT tblWildlife.*, tblIntakeZOB.* FROM tblWildlife INNER JOIN tblIntakeZOB ON tblWildlife.ScenarioID = tblIntakeZOB.ScenarioID WHERE tblIntakeZOB.ScenarioID = 1)sql",
    R"sql(SELECT tblWildlife.ScenarioID, tblWildlife.WeightID, tblWildlife.Weight, tblWildlife.WtComments, tblWildlife.WtSex, tblEstimator.Description AS Estimator, tblWildlife.WtDataSourceID FROM tblEstimator RIGHT JOIN tblWildlife ON tblEstimator.EstimatorID = tblWildlife.WtEstimator WHERE tblWildlife.ScenarioID = 1)sql",
    R"sql(SELECT tblWildlifeDietItems.* FROM tblWildlifeDietItems WHERE tblWildlifeDietItems.DietItemID = 1)sql",
    R"sql(SELECT tblWildlifeDietItems.Name, tblWildlifeDietItems.Wet_Proportion, tblTrophicLevel.TrophicLevel, tblComponent.Description AS Component, tblLifeStage.Description AS Lifestage, tblWildlifeDietItems.Comments, tblWildlifeDietItems.WaterPercent, tblFoodGroup_1.Description AS H2OFoodGroup, tblDataSource_2.Description AS H2ODS, qryReference_2.Reference AS H2ORef, tblGrossEnergy.WET_WT_KCALG AS GE, tblFoodGroup.Description AS GEFoodGroup, tblDataSource.Description AS GEDS, qryReference_1.Reference AS GERef, tblAE.Mean AS AE, tblAE.ConsumerName, tblAE.FoodName, tblFoodGroup.Description AS AEFoodGroup, tblDataSource_1.Description AS AEDS, qryReference.Reference AS AERef, tblKingdom.Name AS Kingdom, tblSubkingdom.Name AS Subkingdom, tblPhylum.Name AS Phylum, tblClass.Name AS Class, tblOrder.Name AS [Order], tblFamily.Name AS Family FROM tblFoodGroup AS tblFoodGroup_1 RIGHT JOIN (tblDataSource AS tblDataSource_2 RIGHT JOIN (qryReference AS qryReference_2 RIGHT JOIN (((((((tblDataSource AS tblDataSource_1 RIGHT JOIN (qryReference AS qryReference_1 RIGHT JOIN (qryReference RIGHT JOIN (tblDataSource RIGHT JOIN (((((((tblWildlifeDietItems LEFT JOIN tblAE ON tblWildlifeDietItems.AEID = tblAE.AEID) LEFT JOIN tblGrossEnergy ON tblWildlifeDietItems.GrossEnergyID = tblGrossEnergy.GrossEnergyID) LEFT JOIN tblTrophicLevel ON tblWildlifeDietItems.TrophicLevelID = tblTrophicLevel.TrophicLevelID) LEFT JOIN tblComponent ON tblWildlifeDietItems.ComponentID = tblComponent.ComponentID) LEFT JOIN tblLifeStage ON tblWildlifeDietItems.LifeStageID = tblLifeStage.LifestageID) LEFT JOIN tblWaterConversion ON tblWildlifeDietItems.WaterConversionID = tblWaterConversion.WaterConversionID) LEFT JOIN tblFoodGroup ON tblAE.FoodGroupID = tblFoodGroup.FoodGroupID) ON tblDataSource.DataSourceID = tblGrossEnergy.DataSourceID) ON qryReference.ReferenceID = tblAE.ReferenceID) ON qryReference_1.ReferenceID = tblGrossEnergy.ReferenceID) ON tblDataSource_1.DataSourceID = tblAE.DataSourceID) LEFT JOIN tblKingdom ON tblWildlifeDietItems.KingdomID = tblKingdom.KingdomID) LEFT JOIN tblPhylum ON tblWildlifeDietItems.PhylumID = tblPhylum.PhylumID) LEFT JOIN tblClass ON tblWildlifeDietItems.ClassID = tblClass.ClassID) LEFT JOIN tblFamily ON tblWildlifeDietItems.FamilyID = tblFamily.FamilyID) LEFT JOIN tblSubkingdom ON tblWildlifeDietItems.SubkingdomID = tblSubkingdom.SubkingdomID) LEFT JOIN tblOrder ON tblWildlifeDietItems.OrderID = tblOrder.OrderID) ON qryReference_2.ReferenceID = tblWaterConversion.ReferenceID) ON tblDataSource_2.DataSourceID = tblWildlifeDietItems.WaterPercentDS) ON tblFoodGroup_1.FoodGroupID = tblWaterConversion.FoodGroupID)sql",
    R"sql(Select  * from tblWildlifeDietItems where ScenarioID = 1)sql",
    R"sql(Select * FROM tblLIFEHISTORYTEXT WHERE SpeciesID = 1)sql",
    R"sql(Select * From tblAE Where AEID = 1)sql",
    R"sql(Select * From tblCategory Order By Description)sql",
    R"sql(Select * From tblDataSource Order by Description)sql",
    R"sql(Select * From tblDataType Order By Description)sql",
    R"sql(Select * From tblDietType Order By Description)sql",
    R"sql(Select * From tblGender Order By Description)sql",
    R"sql(Select * From tblHabitatType Order By Type)sql",
    R"sql(Select * From tblIntakeType WHERE IsModel = True)sql",
    R"sql(Select * From tblIntakeZOB Where IntakeTypeID = 1 AND ScenarioID = 1)sql",
    R"sql(Select * From tblLifestage Order By Description)sql",
    R"sql(Select * From tblMaterialAnalyzed Order By Means)sql",
    R"sql(Select * From tblMeasureTerm Order by Term)sql",
    R"sql(Select * From tblModelDescription Where IntakeTypeID = 1)sql",
    R"sql(Select * From tblMonth Order By Description)sql",
    R"sql(Select * From tblSpecies Where SpeciesID = 1)sql",
    R"sql(Select * From tblStateProvince Order By Type, Description)sql",
    R"sql(Select * From tblStateProvince Order by Description)sql",
    R"sql(Select * From tblStatus Order By Description)sql",
    R"sql(Select * From tblTaxon Order By Description)sql",
    R"sql(Select * From tblUnits Order By Description)sql",
    R"sql(Select * From tblUnits WHERE UNITSID IN (11, 13) Order By Description)sql",
    R"sql(Select * From tblUser Where User ='tester')sql",
    R"sql(Select * From tblWeight Where WeightID = 1)sql",
    R"sql(Select * from tblClass order by Name)sql",
    R"sql(Select * from tblClass where PhylumID = 1 Order by Name)sql",
    R"sql(Select * from tblComments where UserID = 1)sql",
    R"sql(Select * from tblComponent order by Description)sql",
    R"sql(Select * from tblContaminantScenario where ScenarioID= 1)sql",
    R"sql(Select * from tblDataSource Where DataSourceID = 1)sql",
    R"sql(Select * from tblDiet Where DietID = 1)sql",
    R"sql(Select * from tblDietItem Where DietItemID = 1)sql",
    R"sql(Select * from tblFamily order by Name)sql",
    R"sql(Select * from tblFamily where OrderId = 1 Order by Name)sql",
    R"sql(Select * from tblGrossEnergy Where GrossEnergyID = 1)sql",
    R"sql(Select * from tblIntakeModel Where IntakeModelID = 1)sql",
    R"sql(Select * from tblIntakeZOB where ScenarioID = 1)sql",
    R"sql(Select * from tblKingdom order by Name)sql",
    R"sql(Select * from tblOrder order by Name)sql",
    R"sql(Select * from tblOrder where ClassID = 1 Order by Name)sql",
    R"sql(Select * from tblPhylum order by Name)sql",
    R"sql(Select * from tblPhylum where SubkingdomID = 1 Order by Name)sql",
    R"sql(Select * from tblProject where ProjectID = 1)sql",
    R"sql(Select * from tblScenario where ScenarioID = 1)sql",
    R"sql(Select * from tblSubkingdom order by Name)sql",
    R"sql(Select * from tblSubkingdom where KingdomID = 1 Order by Name)sql",
    R"sql(Select * from tblTableList where TableListID = 1)sql",
    R"sql(Select * from tblUser where UserID = 1)sql",
    R"sql(Select * from tblWildlifeDietItems Where DietID = 1)sql",
    R"sql(Select * from tblWildlifeDietItems Where DietItemID = 1)sql",
    R"sql(Select Comment from tblComments where UserID = 1)sql",
    R"sql(Select SpeciesID, Common From tblSpecies Order By Common)sql",
    R"sql(Select TableListID, Name from tblTableList Where L1IsVisible = True Order By Name)sql",
    R"sql(Select sum(WET_Proportion) As Wet_Total, sum(Dry_Proportion) As Dry_Total from tblWildlifeDietItems Where ScenarioID = 1)sql",
    R"sql(Select tblFoodGroup.* from tblFoodGroup Order by Description)sql",
    R"sql(Select tblLifeStage.LifestageID, tblLifeStage.Description From tblLifeStage Order by Description)sql",
    R"sql(Select tblTrophicLevel.Item, tblTrophicLevel.TrophicLevel, tblTrophicLevel.DataSourceID From tblTrophicLevel Where TrophicLevelID = 1)sql",
    R"sql(UPDATE tblIntakeZOB SET tblIntakeZOB.IntakeModelID = 0, tblIntakeZOB.SoilIngestionID = 0, tblIntakeZOB.CategoryID = 0, tblIntakeZOB.BaseRate = 0, tblIntakeZOB.AdjustedRate = 0, tblIntakeZOB.Units = 'm3/day', tblIntakeZOB.Units_CF = 1, tblIntakeZOB.Measured_CF = 1, tblIntakeZOB.IntakeEquation = ' ', tblIntakeZOB.Comments = ' ', tblIntakeZOB.Derivation = 'Estimated', tblIntakeZOB.IntakeMeasuredID = 0, tblIntakeZOB.EstimatorID = 1, tblIntakeZOB.ZOB_SpeciesID = 0, tblIntakeZOB.DataSourceID = 6, tblIntakeZOB.AssignedSpecies = ' ' WHERE tblIntakeZOB.ScenarioID = 1)sql",
    R"sql(UPDATE tblIntakeZOB SET tblIntakeZOB.IntakeModelID = 0, tblIntakeZOB.SoilIngestionID = 0, tblIntakeZOB.CategoryID = 0, tblIntakeZOB.BaseRate = 0, tblIntakeZOB.AdjustedRate = 0, tblIntakeZOB.Units = 'm3/day', tblIntakeZOB.Units_CF = 1, tblIntakeZOB.Measured_CF = 1, tblIntakeZOB.IntakeEquation = ' ', tblIntakeZOB.Comments = ' ', tblIntakeZOB.Derivation = 'Estimated', tblIntakeZOB.IntakeMeasuredID = 0, tblIntakeZOB.EstimatorID = 1, tblIntakeZOB.ZOB_SpeciesID = 0, tblIntakeZOB.DataSourceID = 6, tblIntakeZOB.AssignedSpecies = ' ')sql",
    R"sql(Update tblIntakeModel Set CategoryID = 1 Where IntakeModelID = 1)sql",
    R"sql(Update tblIntakeZOB Set IntakeModelID = 0, SoilIngestionID = 0, CategoryID=0, EstimatorID=0, AssignedSpecies='' Where tblIntakeZOB.ScenarioID = 1 AND tblIntakeZOB.IntakeTypeID = 1)sql",
    R"sql(Update tblWildlife Set DietDataSourceID =6 Where ScenarioID = 1)sql",
    R"sql(Update tblWildlife Set DietID = 0, DietSeason='', DietSex='', DietHabitat='' Where tblWildlife.ScenarioID = 1)sql",
    R"sql(Update tblWildlifeDiet Set DataSourceID = 6 Where ScenarioID = 1)sql",
};

TEST(ProgramStatements, AllRunOnTheSeededDatabase)
{
    TestSession t(true);
    Database &db = *t->gDB;
    int run = 0;
    for (const char *text : kStatements) {
        const QString sql = QString::fromUtf8(text);
        try {
            if (sql.startsWith(QLatin1String("SELECT"), Qt::CaseInsensitive))
                db.OpenRecordset(sql, RecordsetType::Snapshot);
            else
                db.Execute(sql);
            ++run;
        } catch (const VbError &e) {
            ADD_FAILURE() << e.number() << " " << e.description().toStdString() << "\n  in: " << text;
        }
    }
    EXPECT_EQ(run, static_cast<int>(std::size(kStatements)));
}

// The month combos list by name, so April comes first. (A record without a reference staying in
// a RIGHT JOIN is checked by the translator and schema tests.)
TEST(ProgramStatements, MonthsAreListedByName)
{
    TestSession t(true);
    auto months = t->gDB->OpenRecordset(QStringLiteral("Select * From tblMonth Order By Description"), RecordsetType::Snapshot);
    EXPECT_EQ(months->field(QStringLiteral("Description")).toString(), QStringLiteral("April"));
}

}  // namespace
