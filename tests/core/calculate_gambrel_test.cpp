// The two rafters of a gambrel, row by row.
#include <limits>

#include "record_table.h"

namespace pitchcraft {
namespace {

constexpr auto kGambrel = &Rafter::CalculateGambrel;
constexpr double kInfinity = std::numeric_limits<double>::infinity();

// The slopes of 67.5 and 22.5 degrees that fit a gambrel to a circle.
constexpr double kSteep = 28.97056388855;
constexpr double kFlat = 4.970562934875;

class GambrelTable : public testing::TestWithParam<CalculationRow> {};

TEST_P(GambrelTable, Gives) { CheckRow(GetParam()); }

void Bottom(Rafter& r) {
  r.RafterType = Member::kGambrelBottom;
  r.Slope = kSteep;
  r.HipValSlope = kFlat;
  r.Span = 35;
}

void Top(Rafter& r, double heel) {
  r.RafterType = Member::kGambrelTop;
  r.Slope = kFlat;
  r.HipValSlope = kSteep;
  r.Span = 85;
  r.Heel = heel;
}

const CalculationRow kBottom[] = {
    {"OnAPurlin",
     [](Rafter& r) {
       Bottom(r);
       r.Purlins = true;
     },
     kGambrel,
     {{"JointAngle", 45.0},
      {"RidgeAllowance", 0.31066016},
      {"JointOffset", 0.0},
      {"JointCutAngle", 67.5},
      {"JointCut", 7.84734345},
      {"PlumbCut", 18.94516363},
      {"PlumbRun", 7.84734341},
      {"Heel", 9.47258181},
      {"Seat", 3.92367170},
      {"CommonHeel", 9.47258181},
      {"CommonSeat", 3.92367170},
      {"AdjFasciaHeight", 7.25},
      {"AdjSpan", 34.68933984},
      {"AdjSpanWithOverhang", 45.18933984},
      {"RiseToSpan", 84.49747801},
      {"RiseToSpanWithOverhang", 109.84672141},
      {"Rise", 83.74747800},
      {"RiseWithOverhang", 109.09672141},
      {"Length1", 90.64761646},
      {"CommonLength1", 90.64761646},
      {"Length2", 118.08543965},
      {"CommonLength2", 118.08543965},
      {"TopCutAngle", 0.0},
      {"Pitch", " 28.97056/12"},
      {"HipPitch", ""}}},
    {"WithoutAPurlin",
     Bottom,
     kGambrel,
     {{"JointAngle", 0.0},
      {"RidgeAllowance", 0.0},
      {"JointCutAngle", 22.5},
      {"JointCut", 18.94516363},
      {"AdjSpan", 35.0},
      {"Length1", 91.45941061},
      {"Length2", 118.89723380}}},
    {"WithoutAPurlinClearsWhatOneLeft",
     [](Rafter& r) {
       Bottom(r);
       r.Purlins = true;
       r.CalculateGambrel();
       r.Purlins = false;
       r.JointOffset = 7;
     },
     kGambrel,
     {{"RidgeAllowance", 0.0}, {"JointOffset", 0.0}, {"AdjSpan", 35.0}}},
    {"WithoutAPurlinAtTwelve",
     [](Rafter& r) {
       Bottom(r);
       r.Slope = 12;
     },
     kGambrel,
     {{"JointCutAngle", 45.0},
      {"RidgeAllowance", 0.0},
      {"JointCut", 10.25304833},
      {"PlumbCut", 10.25304833},
      {"Heel", 5.12652416},
      {"Seat", 5.12652416}}},
    {"OnAPurlinWithoutThickness",
     [](Rafter& r) {
       Bottom(r);
       r.Purlins = true;
       r.RidgeThickness = 0;
     },
     kGambrel,
     {{"RidgeAllowance", 0.0}, {"JointOffset", 0.0}, {"JointCutAngle", 67.5}, {"JointCut", 7.84734345}}},
    {"LockedHeel",
     [](Rafter& r) {
       Bottom(r);
       r.HeelLocked = true;
       r.Heel = 4;
     },
     kGambrel,
     {{"Heel", 4.0}, {"Seat", 6.19048922}}},
    {"LockedSeat",
     [](Rafter& r) {
       Bottom(r);
       r.SeatLocked = true;
       r.Seat = 3.5;
     },
     kGambrel,
     {{"Heel", 10.49541583}, {"Seat", 3.5}}},
    {"LockedZeroHeelClearsTheOverhang",
     [](Rafter& r) {
       Bottom(r);
       r.HeelLocked = true;
       r.Heel = 0;
     },
     kGambrel,
     {{"Heel", 0.0},
      {"Overhang", 0.0},
      {"Seat", 7.84734341},
      {"AdjFasciaHeight", 0.0},
      {"Length2", 91.45941061}}},
    {"HeelAboveThePlumbCut",
     [](Rafter& r) {
       Bottom(r);
       r.HeelLocked = true;
       r.Heel = 50;
     },
     kGambrel,
     {{"Heel", 18.94516363}, {"Seat", 0.0}}},
    {"NegativeHeelTakesHalf",
     [](Rafter& r) {
       Bottom(r);
       r.SeatLocked = true;
       r.Seat = 50;
     },
     kGambrel,
     {{"Heel", 9.47258181}, {"Seat", 3.92367170}, {"Overhang", 10.5}}},
    {"TallFasciaStopsAtThePlumbCut",
     [](Rafter& r) {
       Bottom(r);
       r.FasciaHeight = 30;
     },
     kGambrel,
     {{"AdjFasciaHeight", 18.94516363}}},
    {"NoOverhangLimitsTheFasciaToTheHeel",
     [](Rafter& r) {
       Bottom(r);
       r.FasciaHeight = 30;
       r.Overhang = 0;
     },
     kGambrel,
     {{"AdjFasciaHeight", 9.47258181}}},
    {"WithoutSlope",
     [](Rafter& r) {
       Bottom(r);
       r.Slope = 0;
     },
     kGambrel,
     {{"PlumbRun", kInfinity}, {"Seat", kInfinity}, {"JointCutAngle", 90.0}, {"Rise", 0.0}}},
    {"CalculateHandsOver", Bottom, &Rafter::Calculate, {{"Heel", 9.47258181}, {"Length1", 91.45941061}}},
    {"MetricPitch",
     [](Rafter& r) {
       r.SetUnits(1);
       Bottom(r);
       r.Slope = 2414.21337890625;
     },
     kGambrel,
     {{"Pitch", " 2414/1000"}}},
};
INSTANTIATE_TEST_SUITE_P(Bottom, GambrelTable, testing::ValuesIn(kBottom), RowName);

const CalculationRow kTop[] = {
    {"OnAPurlin",
     [](Rafter& r) {
       Top(r, 0);
       r.Purlins = true;
     },
     kGambrel,
     {{"RidgeAllowance", 0.75},
      {"JointAngle", 45.0},
      {"JointOffset", 0.75},
      {"JointCut", 7.84734345},
      {"JointCutAngle", 67.5},
      {"TopCutAngle", 67.5},
      {"AdjSpan", 83.5},
      {"Rise", 34.58683376},
      {"Length1", 90.37974922},
      {"Length2", 90.37974922},
      {"RiseToSpan", 35.20815412},
      {"Pitch", " 4.970563/12"}}},
    {"ZeroHeelRestsFlatAndClearsTheOverhang",
     [](Rafter& r) {
       Top(r, 0);
       r.JointOffset = 7;
     },
     kGambrel,
     {{"JointOffset", 0.0},
      {"TopCutAngle", 22.5},
      {"JointCut", 18.94516238},
      {"PlumbRun", 18.94516238},
      {"Heel", 0.0},
      {"Seat", 18.94516238},
      {"Overhang", 0.0},
      {"AdjFasciaHeight", 0.0},
      {"AdjSpan", 84.25},
      {"Length1", 91.19154338}}},
    {"RaisedHeelIsCutSquare",
     [](Rafter& r) { Top(r, 3); },
     kGambrel,
     {{"JointOffset", 0.0},
      {"TopCutAngle", 90.0},
      {"JointCut", 0.0},
      {"Heel", 3.0},
      {"Seat", 11.70252197},
      {"Overhang", 10.5},
      {"Length2", 102.55666154},
      {"RiseToSpanWithOverhang", 39.55739669}}},
    {"ALittleHeelIsARaisedOne",
     [](Rafter& r) {
       Top(r, 0.5);
       r.JointOffset = 7;
     },
     kGambrel,
     {{"JointOffset", 0.0}, {"TopCutAngle", 90.0}, {"Heel", 0.5}}},
    {"LocksAreNotLookedAt",
     [](Rafter& r) {
       Top(r, 3);
       r.SeatLocked = true;
       r.Seat = 1;
     },
     kGambrel,
     {{"Heel", 3.0}, {"Seat", 11.70252197}}},
    {"HeelAboveThePlumbCut", [](Rafter& r) { Top(r, 50); }, kGambrel, {{"Heel", 7.84734350}, {"Seat", 0.0}}},
    // A heel below 0 is none of the supports: the joint keeps its figures and the locks count again.
    {"NegativeHeelTakesHalf",
     [](Rafter& r) {
       Top(r, -1);
       r.JointOffset = 7;
       r.TopCutAngle = 8;
       r.JointCut = 9;
     },
     kGambrel,
     {{"Heel", 3.92367175},
      {"Seat", 9.47258119},
      {"JointOffset", 7.0},
      {"TopCutAngle", 8.0},
      {"JointCut", 9.0},
      {"AdjSpan", 77.25}}},
    {"NegativeHeelWithALockedSeat",
     [](Rafter& r) {
       Top(r, -1);
       r.SeatLocked = true;
       r.Seat = 2;
     },
     kGambrel,
     {{"Heel", 7.01891634}, {"Seat", 2.0}}},
    {"OnAPurlinWithoutThickness",
     [](Rafter& r) {
       Top(r, 0);
       r.Purlins = true;
       r.RidgeThickness = 0;
     },
     kGambrel,
     {{"RidgeAllowance", 0.0}, {"JointOffset", 0.0}, {"JointCut", 7.84734345}, {"Length1", 92.00333753}}},
    // Only the bottom rafter carries a fascia that could be taller than its plumb cut.
    {"TallFasciaStays",
     [](Rafter& r) {
       Top(r, 3);
       r.FasciaHeight = 30;
     },
     kGambrel,
     {{"AdjFasciaHeight", 30.0}}},
};
INSTANTIATE_TEST_SUITE_P(Top, GambrelTable, testing::ValuesIn(kTop), RowName);

}  // namespace
}  // namespace pitchcraft
