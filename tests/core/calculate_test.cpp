// Calculate row by row: what each member gets, the texts, and what is left alone.
#include "record_table.h"

namespace pitchcraft {
namespace {

constexpr auto kCalculate = &Rafter::Calculate;

class CalculateTable : public testing::TestWithParam<CalculationRow> {};

TEST_P(CalculateTable, Gives) { CheckRow(GetParam()); }

// The small house: slope 6, run 144, overhang 10 1/2, 2 x 8 rafters, 2 x 10 hip, 1 1/2 ridge.
const CalculationRow kMembers[] = {
    {"Common",
     [](Rafter& r) { r.RafterType = Member::kCommon; },
     kCalculate,
     {{"Rise", 71.625},
      {"RiseWithOverhang", 76.875},
      {"AdjSpan", 143.25},
      {"AdjSpanWithOverhang", 153.75},
      {"Length1", 160.15836889},
      {"Length2", 171.89772577},
      {"CommonLength1", 160.15836889},
      {"CommonLength2", 171.89772577},
      {"HipEndLength1", 160.15836889},
      {"HipEndLength2", 171.89772577},
      {"PlumbCut", 8.10574642},
      {"Heel", 5.40383122},
      {"Seat", 5.40383041},
      {"CommonHeel", 5.40383122},
      {"CommonSeat", 5.40383041},
      {"AdjFasciaHeight", 7.25},
      {"RidgeAllowance", 0.75},
      {"ValRidgeAllowance", 0.0},
      {"HipDrop", 0.0},
      {"HipHeel", 0.0},
      {"HipValSeat", 0.0},
      {"LedgerSpan", 0.0},
      {"HipEndSpan", 144.0},
      {"HipEndSlope", 6.0},
      {"HipEndOverhang", 10.5},
      {"HipEndDegrees", 26.57},
      {"BottomBevelAngle", 0.0},
      {"TopBevelAngle", 0.0},
      {"CommonDifference", 1.11803399},
      {"CommonDifference16", 17.88854382},
      {"CommonDifference24", 26.83281573},
      {"HipEndCommonDifference", 1.11803399},
      {"HipEndCommonDifference16", 17.88854382},
      {"HipEndCommonDifference24", 26.83281573},
      {"Pitch", " 6/12"},
      {"HipEndPitch", " 6/12"},
      {"HipPitch", " 4.24/12"}}},
    {"Hip",
     [](Rafter& r) { r.RafterType = Member::kHip; },
     kCalculate,
     {{"HipValSpan", 203.646744},
      {"HipValOverhang", 14.84924175},
      {"HipValSlope", 4.24264087},
      {"HipDegrees", 19.47},
      {"HipAngle1", 45.0},
      {"HipAngle2", 45.0},
      {"HipValPlumbCut", 9.81110664},
      {"HipRidgeAllowance", 1.06066017},
      {"AdjHipSpan", 202.58608383},
      {"AdjHipSpanWithOverhang", 217.43532558},
      {"Length1", 214.87499153},
      {"Length2", 230.62499091},
      {"CommonLength1", 160.15836889},
      {"HipDrop", 0.26516505},
      {"HipHeel", 5.13866616},
      {"HipValSeat", 13.21565680},
      {"AdjFasciaHeight", 6.98483495},
      {"BottomBevelAngle", 45.0},
      {"TopBevelAngle", 45.0}}},
    {"Valley",
     [](Rafter& r) { r.RafterType = Member::kValley; },
     kCalculate,
     {{"ValRidgeAllowance", 1.06066017},
      {"AdjValSpan", 202.58608383},
      {"AdjValSpanWithOverhang", 217.43532558},
      {"Length1", 214.87499153},
      {"Length2", 230.62499091},
      {"HipDrop", 0.0},
      {"HipHeel", 0.0},
      {"HipValSeat", 12.46565680},
      {"AdjFasciaHeight", 7.25},
      {"BottomBevelAngle", 45.0},
      {"TopBevelAngle", 45.0}}},
    {"LongValley",
     [](Rafter& r) { r.RafterType = Member::kLongValley; },
     kCalculate,
     {{"ValRidgeAllowance", 1.06066017},
      {"Length1", 214.87499153},
      {"HipValSeat", 12.46565680},
      {"BottomBevelAngle", 45.0},
      {"TopBevelAngle", 45.0}}},
    {"ShortValleyButtsTheLongOne",
     [](Rafter& r) { r.RafterType = Member::kShortValley; },
     kCalculate,
     {{"ValRidgeAllowance", 0.75},
      {"AdjValSpan", 202.896744},
      {"Length1", 215.16790967},
      {"Length2", 230.91790735},
      {"HipValSeat", 12.46565680},
      {"BottomBevelAngle", 45.0},
      {"TopBevelAngle", 0.0}}},
    {"ShedButtsTheWholeRidge",
     [](Rafter& r) { r.RafterType = Member::kShed; },
     kCalculate,
     {{"RidgeAllowance", 1.5},
      {"AdjSpan", 142.5},
      {"Rise", 71.25},
      {"RiseWithOverhang", 76.5},
      {"Length1", 159.31984340},
      {"Length2", 171.05920028},
      {"TopBevelAngle", 0.0}}},
};
INSTANTIATE_TEST_SUITE_P(Members, CalculateTable, testing::ValuesIn(kMembers), RowName);

void Metric(Rafter& r, double slope) {
  r.SetUnits(1);
  r.Slope = slope;
}

const CalculationRow kTexts[] = {
    {"BelowOne",
     [](Rafter& r) { r.Slope = 0.5; },
     kCalculate,
     {{"Pitch", " .5/12"}, {"HipEndPitch", " .5/12"}, {"HipPitch", " 0.35/12"}}},
    {"HipIsCutNotRounded", [](Rafter& r) { r.Slope = 12; }, kCalculate, {{"HipPitch", " 8.48/12"}}},
    {"HipOfTenKeepsTwoDecimals",
     [](Rafter& r) { r.Slope = 15; },
     kCalculate,
     {{"Pitch", " 15/12"}, {"HipPitch", " 10.60/12"}}},
    {"Negative", [](Rafter& r) { r.Slope = -6; }, kCalculate, {{"Pitch", "-6/12"}, {"HipPitch", " -4.2/12"}}},
    {"MetricIsWhole",
     [](Rafter& r) { Metric(r, 333.3); },
     kCalculate,
     {{"Pitch", " 333/1000"}, {"HipPitch", " 236/1000"}}},
    {"MetricHalfGoesToTheEvenNumberUp",
     [](Rafter& r) { Metric(r, 499.5); },
     kCalculate,
     {{"Pitch", " 500/1000"}}},
    {"MetricHalfGoesToTheEvenNumberDown",
     [](Rafter& r) { Metric(r, 500.5); },
     kCalculate,
     {{"Pitch", " 500/1000"}}},
    {"HugeIsCutInTheMiddleOfItsDigits",
     [](Rafter& r) { r.Slope = 1e30; },
     kCalculate,
     {{"Pitch", " 1E+30/12"}, {"HipPitch", " 7.071/12"}}},
};
INSTANTIATE_TEST_SUITE_P(Texts, CalculateTable, testing::ValuesIn(kTexts), RowName);

const CalculationRow kRest[] = {
    {"KneewallRise", [](Rafter& r) { r.Kneewall = 60; }, kCalculate, {{"KneewallRise", 30.0}}},
    // 16 goes by the millimetre, 24 by two base runs: the two formulas part in metric.
    {"MetricJackDifferences",
     [](Rafter& r) { Metric(r, 500); },
     kCalculate,
     {{"CommonDifference", 1.11803399},
      {"CommonDifference16", 17.88854382},
      {"CommonDifference24", 2236.06797750}}},
    {"MetricHip",
     [](Rafter& r) {
       Metric(r, 1000);
       r.RafterType = Member::kHip;
       r.Span = 3600;
     },
     kCalculate,
     {{"HipValSpan", 5091.1686},
      {"HipValSlope", 707.10681860},
      {"HipDegrees", 35.26},
      {"HipDrop", 0.53033012}}},
    {"ClearsWhatAValleyLeft",
     [](Rafter& r) {
       r.RafterType = Member::kValley;
       r.Calculate();
       r.RafterType = Member::kHip;
     },
     kCalculate,
     {{"ValRidgeAllowance", 0.0}, {"AdjValSpan", 203.646744}}},
    {"ClearsWhatABayLeft",
     [](Rafter& r) {
       r.BayAngle = r.Back = r.Face = r.Projection = r.HipRunFactor = r.LedgerRunFactor = 12;
       r.CalculateBay();
       ASSERT_EQ(r.LedgerSpan, 12);
     },
     kCalculate,
     {{"LedgerSpan", 0.0}}},
    {"ClearsWhatABastardHipLeft",
     [](Rafter& r) {
       r.HipEndOverhangExcess = 1;
       r.HipEndDrop = 2;
       r.HipShift = 3;
     },
     kCalculate,
     {{"HipEndOverhangExcess", 0.0}, {"HipEndDrop", 0.0}, {"HipShift", 0.0}}},
};
INSTANTIATE_TEST_SUITE_P(Rest, CalculateTable, testing::ValuesIn(kRest), RowName);

TEST(Calculate, SeatAndHeelMakeUpThePlumbCut) {
  Rafter rafter;
  SmallHouse(rafter);
  rafter.Depth = 5.5;
  rafter.Calculate();
  EXPECT_NEAR(rafter.Seat * rafter.Slope / 12 + rafter.Heel, rafter.PlumbCut, 1e-6);
}

class OtherMembers : public testing::TestWithParam<Member> {};

TEST_P(OtherMembers, KeepLengthsBevelsHeelAndSeatOfTheHip) {
  Rafter rafter;
  SmallHouse(rafter);
  rafter.RafterType = Member::kHip;
  rafter.Calculate();
  const double length1 = rafter.Length1;
  const double length2 = rafter.Length2;
  const double hipHeel = rafter.HipHeel;
  const double hipSeat = rafter.HipValSeat;
  rafter.RafterType = GetParam();
  rafter.Span = 100;
  rafter.Calculate();
  EXPECT_EQ(rafter.Rise, Single(49.625));
  EXPECT_NEAR(rafter.CommonLength1, 110.96487335, 1e-5);
  EXPECT_EQ(rafter.Length1, length1);
  EXPECT_EQ(rafter.Length2, length2);
  EXPECT_EQ(rafter.HipHeel, hipHeel);
  EXPECT_EQ(rafter.HipValSeat, hipSeat);
  EXPECT_EQ(rafter.HipDrop, 0);
  EXPECT_EQ(rafter.TopBevelAngle, 45);
  EXPECT_EQ(rafter.BottomBevelAngle, 45);
}
INSTANTIATE_TEST_SUITE_P(Calculate, OtherMembers,
                         testing::Values(Member::kHipEndCommon, Member::kOctagonJack, Member::kOctagonHip,
                                         Member::kBayCommon));

TEST(Calculate, ResetsTheKindsOfBevel) {
  Rafter rafter;
  SmallHouse(rafter);
  rafter.TopBevelType = 3;
  rafter.BottomBevelType = 3;
  rafter.Calculate();
  EXPECT_EQ(rafter.TopBevelType, 0);
  EXPECT_EQ(rafter.BottomBevelType, 0);
}

}  // namespace
}  // namespace pitchcraft
