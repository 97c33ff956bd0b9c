// SPDX-License-Identifier: MIT
#pragma once

//! Row ids of the lookup tables that the program itself relies on. The seeded database carries each
//! of them with the meaning given here; every other lookup row is data.
namespace FixedId {

namespace DataSource {
constexpr int BuilderTyped = 2;   //!< class of values typed in the scenario builder; editable in the species workbook
constexpr int VettedPrimary = 4;  //!< vetted class (primary literature): data-entry windows open such a record locked
constexpr int UserEntered = 6;    //!< "User entered": new intake rows, intake reset, any change to a copied diet
constexpr int VettedHandbook = 7; //!< second vetted class (compiled handbook): locked like 4
}  // namespace DataSource

//! True for the data-source classes whose records cannot be edited.
constexpr bool isVettedDataSource(int id) { return id == DataSource::VettedPrimary || id == DataSource::VettedHandbook; }

namespace IntakeType {
constexpr int Air = 1;         //!< "m3/day"
constexpr int Water = 2;       //!< "L/day"
constexpr int FoodEnergy = 3;  //!< "kcal/day"; its AdjustedRate is the scenario's FMR
constexpr int Soil = 4;        //!< "% dry wt" in a scenario, "% dry diet" in an equation
constexpr int Sediment = 5;    //!< "g/day"
constexpr int First = Air;
constexpr int Last = Sediment;
}  // namespace IntakeType

namespace Gender {
constexpr int Both = 1;     //!< life-history filter "Both"
constexpr int Male = 4;     //!< weight picker: gender option index 0 + 4
constexpr int Female = 5;   //!< weight picker: gender option index 1 + 4
constexpr int Unknown = 6;  //!< weight picker: gender option index 2 + 4
}  // namespace Gender

namespace Status {
constexpr int Captive = 1;  //!< weight picker: status option index 0 + 1
constexpr int Wild = 2;     //!< weight picker: status option index 1 + 1
}  // namespace Status

namespace LifeStage {
constexpr int Adult = 7;  //!< the diet filter tests this id; the weight filter tests the text below
constexpr const char *AdultText = "adult";
}  // namespace LifeStage

//! The estimator option index is stored as the id.
namespace Estimator {
constexpr int DetectionLimit = 0;
constexpr int Mean = 1;  //!< the value of a reset intake row
constexpr int Max = 2;
constexpr int Min = 3;
constexpr int MeanPlusVariance = 4;
constexpr int MeanMinusVariance = 5;
}  // namespace Estimator

//! The two body-weight units offered for an equation; Factor converts grams to the unit.
namespace Units {
constexpr int Grams = 11;      //!< Factor 1
constexpr int Kilograms = 13;  //!< Factor 0.001
}  // namespace Units

//! The tblTableList row of the user's comment phrases; the setup window filters it by user.
constexpr int TableListUserComments = 12;

}  // namespace FixedId
