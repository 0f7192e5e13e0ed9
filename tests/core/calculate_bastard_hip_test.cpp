// The two calculations of a hip end with a slope of its own, row by row.
#include <limits>

#include "record_table.h"

namespace pitchcraft {
namespace {

constexpr auto kBastardHip = &Rafter::CalculateBastardHip;
constexpr auto kAdjusted = &Rafter::CalculateAdjustedBastardHip;

class BastardHipTable : public testing::TestWithParam<CalculationRow> {};

TEST_P(BastardHipTable, Gives) { CheckRow(GetParam()); }

void Slopes(Rafter& r, double main, double end) {
  r.RafterType = Member::kBastardHip;
  r.Slope = main;
  r.HipEndSlope = end;
}

// Main roof 10 in 12, end 8 1/2 in 12.
void FlatterEnd(Rafter& r) { Slopes(r, 10, 8.5); }

void SteeperEnd(Rafter& r) { Slopes(r, 8.5, 10); }

void EqualOverhangs(Rafter& r) { r.OverhangsEqual = true; }

const CalculationRow kNatural[] = {
    {"FlatterEnd",
     FlatterEnd,
     kBastardHip,
     {{"HipEndSpan", 169.41176471},
      {"HipEndOverhang", 12.35294118},
      {"HipEndRidgeAllowance", 0.88235294},
      {"AdjHipEndSpan", 168.52941176},
      {"AdjHipEndSpanWithOverhang", 180.88235294},
      {"PlumbCut", 9.43738503},
      {"HipEndPlumbCut", 8.88453737},
      {"RidgeAllowance", 0.75},
      {"AdjSpan", 143.25},
      {"AdjSpanWithOverhang", 153.75},
      {"HipValSlope", 6.47648420},
      {"HipDegrees", 28.36},
      {"HipValOverhang", 16.21249998},
      {"HipValSpan", 222.34285691},
      {"HipValPlumbCut", 10.51120633},
      {"HipRidgeAllowance", 1.15803571},
      {"AdjHipSpan", 221.18482120},
      {"AdjHipSpanWithOverhang", 237.39732118},
      {"HipAngle1", 40.36453657},
      {"HipAngle2", 49.63546343},
      {"AdjFasciaHeight", 7.25},
      {"HipEndFasciaCut", 7.25},
      {"Heel", 6.29159033},
      {"Seat", 3.77495363},
      {"CommonHeel", 6.29159033},
      {"CommonSeat", 3.77495363},
      {"HipEndHeel", 6.29159033},
      {"HipEndSeat", 3.66063112},
      {"HipDrop", 0.82027530},
      {"HipHeel", 5.47131503},
      {"HipValSeat", 9.33819857},
      {"HipFasciaCut", 6.42972470},
      {"Rise", 119.375},
      {"RiseWithOverhang", 128.125},
      {"HipRise", 119.375},
      {"HipRiseWithOverhang", 128.125},
      {"HipEndRise", 119.375},
      {"HipEndRiseWithOverhang", 128.125},
      {"CommonLength1", 186.46971101},
      {"CommonLength2", 200.13764795},
      {"HipEndLength1", 206.52494584},
      {"HipEndLength2", 221.66289999},
      {"Length1", 251.34262622},
      {"Length2", 269.76564594},
      {"HipEndCommonDifference", 1.44170992},
      {"HipEndCommonDifference16", 23.06735870},
      {"HipEndCommonDifference24", 34.60103805},
      {"CommonDifference", 1.10645204},
      {"CommonDifference16", 17.70323260},
      {"CommonDifference24", 26.55484890},
      {"HipEndOverhangExcess", 0.0},
      {"HipShift", 0.0},
      {"OverhangsEqual", -1.0},
      {"Pitch", " 10/12"},
      {"HipPitch", " 6.47/12"},
      {"HipEndPitch", " 8.5/12"}}},
    {"MainCommonOfTheSameRoof",
     [](Rafter& r) {
       FlatterEnd(r);
       r.RafterType = Member::kCommon;
     },
     kBastardHip,
     {{"Length1", 186.46971101}, {"Length2", 200.13764795}}},
    {"EndCommonOfTheSameRoof",
     [](Rafter& r) {
       FlatterEnd(r);
       r.RafterType = Member::kHipEndCommon;
     },
     kBastardHip,
     {{"Length1", 206.52494584}, {"Length2", 221.66289999}}},
    {"OtherMembersKeepTheirLengths",
     [](Rafter& r) {
       FlatterEnd(r);
       r.RafterType = Member::kHip;
       r.Length1 = 5;
     },
     kBastardHip,
     {{"Length1", 5.0}, {"Length2", 0.0}, {"CommonLength1", 186.46971101}}},
    {"EqualSlopesMakeAPlainHip",
     [](Rafter& r) { Slopes(r, 6, 6); },
     kBastardHip,
     {{"HipEndSpan", 144.0},
      {"HipAngle1", 45.0},
      {"HipAngle2", 45.0},
      {"HipValSpan", 203.64675298},
      {"Length1", 214.875},
      {"Length2", 230.625},
      {"CommonDifference16", 17.88854382},
      {"HipEndCommonDifference24", 26.83281573}}},
    // The drop of the end that was there before stays: only the excess and the shift are cleared.
    {"LeavesTheDropOfTheEnd",
     [](Rafter& r) {
       FlatterEnd(r);
       r.HipEndDrop = 7;
       r.HipEndOverhangExcess = 7;
       r.HipShift = 7;
     },
     kBastardHip,
     {{"HipEndDrop", 7.0}, {"HipEndOverhangExcess", 0.0}, {"HipShift", 0.0}}},
    {"AFlagMakesItTheAdjustedCalculation",
     [](Rafter& r) {
       FlatterEnd(r);
       EqualOverhangs(r);
     },
     kBastardHip,
     {{"HipEndOverhang", 10.5}, {"HipShift", -1.85294118}}},
    {"TheSecondRunIsTheAdjustedOne",
     [](Rafter& r) {
       FlatterEnd(r);
       r.CalculateBastardHip();
     },
     kBastardHip,
     {{"HipEndOverhang", 10.5}, {"HipShift", -1.85294118}, {"OverhangsEqual", -1.0}}},
    {"CalculateHandsOver",
     FlatterEnd,
     &Rafter::Calculate,
     {{"HipEndSpan", 169.41176471}, {"Length1", 251.34262622}, {"HipEndPitch", " 8.5/12"}}},
    {"CalculateKeepsTheEndCommonToItself",
     [](Rafter& r) {
       FlatterEnd(r);
       r.RafterType = Member::kHipEndCommon;
     },
     &Rafter::Calculate,
     {{"HipEndSpan", 144.0}, {"HipEndSlope", 10.0}}},
    {"ZeroHeelTakesTheDefaultAndLeavesTheOverhang",
     [](Rafter& r) {
       FlatterEnd(r);
       r.HeelLocked = true;
       r.Heel = 0;
     },
     kBastardHip,
     {{"Heel", 6.29159033}, {"Seat", 3.77495363}, {"Overhang", 10.5}}},
    {"NegativeHeelTakesTheDefault",
     [](Rafter& r) {
       FlatterEnd(r);
       r.SeatLocked = true;
       r.Seat = 50;
     },
     kBastardHip,
     {{"Heel", 6.29159033}, {"Seat", 3.77495363}}},
    {"HeelAboveThePlumbCut",
     [](Rafter& r) {
       FlatterEnd(r);
       r.HeelLocked = true;
       r.Heel = 50;
     },
     kBastardHip,
     {{"Heel", 9.43738503}, {"Seat", 0.0}, {"HipEndHeel", 9.43738503}}},
    {"FasciaTallerThanBothPlumbCuts",
     [](Rafter& r) {
       FlatterEnd(r);
       r.FasciaHeight = 20;
       r.HipValDepth = 5.5;
     },
     kBastardHip,
     {{"AdjFasciaHeight", 9.43738503}, {"HipEndFasciaCut", 6.24990647}, {"HipFasciaCut", 8.61710973}}},
    // The cut of the end is taken before the missing overhang limits the fascia to the heel.
    {"NoOverhangLimitsTheFasciaButNotTheEndCut",
     [](Rafter& r) {
       FlatterEnd(r);
       r.Overhang = 0;
     },
     kBastardHip,
     {{"AdjFasciaHeight", 6.29159033}, {"HipEndFasciaCut", 7.25}, {"HipFasciaCut", 5.47131503}}},
    {"MetricTexts",
     [](Rafter& r) {
       r.SetUnits(1);
       Slopes(r, 833.3, 708.5);
     },
     kBastardHip,
     {{"Pitch", " 833/1000"}, {"HipPitch", " 540/1000"}, {"HipEndPitch", " 708/1000"}}},
    {"MetricDifferenceAt24IsThatOfTwoBaseRuns",
     [](Rafter& r) {
       r.SetUnits(1);
       Slopes(r, 500, 500);
     },
     kBastardHip,
     {{"CommonDifference16", 17.88854382}, {"CommonDifference24", 2236.06797750}}},
    {"EndWithoutSlopeIsEndless",
     [](Rafter& r) { Slopes(r, 10, 0); },
     kBastardHip,
     {{"HipEndSpan", std::numeric_limits<double>::infinity()}, {"HipAngle1", 0.0}, {"HipValSlope", 0.0}}},
};
INSTANTIATE_TEST_SUITE_P(Natural, BastardHipTable, testing::ValuesIn(kNatural), RowName);

const CalculationRow kEqualOverhangs[] = {
    {"FlatterEndLiesLowerAndFartherOut",
     [](Rafter& r) {
       FlatterEnd(r);
       EqualOverhangs(r);
     },
     kAdjusted,
     {{"HipEndOverhang", 10.5},
      {"HipEndOverhangExcess", -1.85294118},
      {"HipEndDrop", -1.3125},
      {"HipShift", -1.85294118},
      {"HipEndSpan", 171.26470588},
      {"HipEndRidgeAllowance", 0.88235294},
      {"AdjHipEndSpan", 170.38235294},
      {"AdjHipEndSpanWithOverhang", 180.88235294},
      {"HipAngle1", 40.36453657},
      {"HipAngle2", 49.63546343},
      {"HipRidgeAllowance", 0.98433036},
      {"HipValSpan", 222.34285691},
      {"HipValOverhang", 16.21249998},
      {"AdjHipSpan", 221.35852656},
      {"AdjHipSpanWithOverhang", 237.57102654},
      {"HipRise", 119.375},
      {"HipRiseWithOverhang", 128.125},
      {"HipEndRise", 120.6875},
      {"HipEndRiseWithOverhang", 128.125},
      {"Length1", 251.49550275},
      {"Length2", 269.91852155},
      {"CommonLength1", 186.46971101},
      {"HipEndLength1", 208.03974817},
      {"HipEndLength2", 221.66289999},
      {"AdjFasciaHeight", 7.25},
      {"HipEndFasciaCut", 7.25},
      {"HipFasciaCut", 6.42972470},
      {"HipDrop", 0.82027530},
      {"HipEndCommonDifference", 1.44170992},
      {"CommonDifference", 1.10645204},
      {"CommonDifference24", 26.55484890}}},
    {"SteeperEndLiesHigherAndFartherIn",
     [](Rafter& r) {
       SteeperEnd(r);
       EqualOverhangs(r);
     },
     kAdjusted,
     {{"HipEndOverhangExcess", 1.575},
      {"HipEndDrop", 1.3125},
      {"HipShift", 1.85294118},
      {"HipEndSpan", 120.825},
      {"HipEndOverhang", 10.5},
      {"HipValOverhang", 16.21249998},
      {"HipValSpan", 186.55955338},
      {"HipRidgeAllowance", 1.15803571},
      {"HipRise", 100.15625},
      {"HipRiseWithOverhang", 108.90625},
      {"HipEndRise", 100.15625},
      {"CommonDifference16", 23.06735870},
      {"HipEndCommonDifference16", 17.70323260}}},
    {"EndCommonOfTheSameRoof",
     [](Rafter& r) {
       FlatterEnd(r);
       EqualOverhangs(r);
       r.RafterType = Member::kHipEndCommon;
     },
     kAdjusted,
     {{"Length1", 208.79563896}, {"Length2", 221.66289999}}},
    {"MainCommonOfTheSameRoof",
     [](Rafter& r) {
       FlatterEnd(r);
       EqualOverhangs(r);
       r.RafterType = Member::kCommon;
     },
     kAdjusted,
     {{"Length1", 186.46971101}, {"Length2", 200.13764795}}},
    {"EqualSlopesShiftNothing",
     [](Rafter& r) {
       Slopes(r, 6, 6);
       EqualOverhangs(r);
       r.HipShift = 7;
     },
     kAdjusted,
     {{"HipEndOverhangExcess", 0.0}, {"HipEndDrop", 0.0}, {"HipShift", 0.0}, {"Length1", 214.875}}},
    // Asked for directly, without the flag: the lengths are the adjusted ones, the hip line stays in its
    // place.
    {"WithoutTheFlagNothingShiftsOnAFlatterEnd",
     [](Rafter& r) {
       FlatterEnd(r);
       r.HipShift = 7;
     },
     kAdjusted,
     {{"HipShift", 0.0}, {"HipEndOverhang", 10.5}, {"HipEndSpan", 171.26470588}, {"OverhangsEqual", 0.0}}},
    {"WithoutTheFlagNothingShiftsOnASteeperEnd",
     [](Rafter& r) {
       SteeperEnd(r);
       r.HipShift = 7;
     },
     kAdjusted,
     {{"HipShift", 0.0}, {"HipValSpan", 186.55955338}}},
};
INSTANTIATE_TEST_SUITE_P(EqualOverhangs, BastardHipTable, testing::ValuesIn(kEqualOverhangs), RowName);

TEST(BastardHip, SeatAndHeelMakeUpEachPlumbCut) {
  Rafter rafter;
  SmallHouse(rafter);
  FlatterEnd(rafter);
  rafter.CalculateBastardHip();
  EXPECT_NEAR(rafter.Heel + rafter.Seat * 10 / 12, rafter.PlumbCut, 1e-5);
  EXPECT_NEAR(rafter.HipEndHeel + rafter.HipEndSeat * 8.5 / 12, rafter.HipEndPlumbCut, 1e-5);
  EXPECT_NEAR(rafter.HipHeel + rafter.HipValSeat * rafter.HipValSlope / 12, rafter.HipValPlumbCut, 1e-5);
}

}  // namespace
}  // namespace pitchcraft
