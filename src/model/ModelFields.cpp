// SPDX-License-Identifier: MIT
// The field tables of the model objects, in the legacy order of their properties.
#include "clsProject.h"
#include "clsScenario.h"

const std::vector<ModelField<clsScenario>> &clsScenario::fields()
{
    static const std::vector<ModelField<clsScenario>> table = {
        field<&clsScenario::Air_DataSource>("Air_DataSource"),
        field<&clsScenario::WAT_DataSource>("WAT_DataSource"),
        field<&clsScenario::FMR_DataSource>("FMR_DataSource"),
        field<&clsScenario::Soil_DataSource>("Soil_DataSource"),
        field<&clsScenario::Sediment_DataSource>("Sediment_DataSource"),
        field<&clsScenario::SID>("SID"),
        field<&clsScenario::Mode>("Mode"),
        field<&clsScenario::ScenarioType>("ScenarioType"),
        field<&clsScenario::FileName>("FileName"),
        field<&clsScenario::FilePath>("FilePath"),
        field<&clsScenario::Identifier1>("Identifier1"),
        field<&clsScenario::HasChanged>("HasChanged"),
        field<&clsScenario::SpeciesHasChanged>("SpeciesHasChanged"),
        field<&clsScenario::SpeciesID>("SpeciesID"),
        field<&clsScenario::Species_DataSource>("Species_DataSource"),
        field<&clsScenario::SpeciesTaxon>("SpeciesTaxon"),
        field<&clsScenario::WeightID>("WeightID"),
        field<&clsScenario::Weight>("Weight"),
        field<&clsScenario::WtEstimator>("WtEstimator"),
        field<&clsScenario::WtSex>("WtSex"),
        field<&clsScenario::WtStatus>("WtStatus"),
        field<&clsScenario::Wt_DataSource>("Wt_DataSource"),
        field<&clsScenario::DietID>("DietID"),
        field<&clsScenario::DietType>("DietType"),
        field<&clsScenario::Diet_Season>("Diet_Season"),
        field<&clsScenario::Diet_Sex>("Diet_Sex"),
        field<&clsScenario::Diet_Habitat>("Diet_Habitat"),
        field<&clsScenario::Diet_DataSource>("Diet_DataSource"),
        field<&clsScenario::SoilID>("SoilID"),
        field<&clsScenario::AirCategoryID>("AirCategoryID"),
        field<&clsScenario::WatCategoryID>("WatCategoryID"),
        field<&clsScenario::FMRCategoryID>("FMRCategoryID"),
        field<&clsScenario::SoilCategoryID>("SoilCategoryID"),
        field<&clsScenario::SedimentCategoryID>("SedimentCategoryID"),
        field<&clsScenario::ChemicalID>("ChemicalID"),
    };
    return table;
}

const std::vector<ModelField<clsProject>> &clsProject::fields()
{
    static const std::vector<ModelField<clsProject>> table = {
        field<&clsProject::PID>("PID"),
        field<&clsProject::Name>("Name"),
        field<&clsProject::Desc>("Desc"),
        field<&clsProject::author>("author"),
        field<&clsProject::dteModified>("dteModified"),
        field<&clsProject::Location>("Location"),
        field<&clsProject::ProvSt>("ProvSt"),
        field<&clsProject::Latitude>("Latitude"),
        field<&clsProject::Longitude>("Longitude"),
        field<&clsProject::Comments>("Comments"),
        field<&clsProject::Mode>("Mode"),
        field<&clsProject::FileName>("FileName"),
        field<&clsProject::FilePath>("FilePath"),
    };
    return table;
}
