// The two members of an octagon, row by row.
#include <cmath>

#include "record_table.h"

namespace pitchcraft {
namespace {

constexpr auto kOctagon = &Rafter::CalculateOctagon;

class OctagonTable : public testing::TestWithParam<CalculationRow> {};

TEST_P(OctagonTable, Gives) { CheckRow(GetParam()); }

void Hip(Rafter& r) { r.RafterType = Member::kOctagonHip; }

void Jack(Rafter& r) { r.RafterType = Member::kOctagonJack; }

const CalculationRow kOctagons[] = {
    {"Hip",
     Hip,
     kOctagon,
     {{"HipValSpan", 155.86447684},
      {"Span", 144.0},
      {"HipEndSpan", 119.29350596},
      {"HipValSlope", 5.54327720},
      {"HipDegrees", 24.79},
      {"HipValOverhang", 11.36511810},
      {"HipValPlumbCut", 10.18923650},
      {"HipRidgeAllowance", 0.0},
      {"RidgeAllowance", 0.0},
      {"AdjHipSpan", 155.86447684},
      {"AdjHipSpanWithOverhang", 167.22959495},
      {"HipAngle1", 67.5},
      {"HipAngle2", 22.5},
      {"PlumbCut", 8.10574642},
      {"Heel", 5.40383122},
      {"Seat", 5.40383041},
      {"CommonHeel", 5.40383122},
      {"CommonSeat", 5.40383041},
      {"AdjFasciaHeight", 7.25},
      {"HipEndFasciaCut", 7.25},
      {"HipDrop", 0.15533009},
      {"HipHeel", 5.24850113},
      {"HipValSeat", 10.69562686},
      {"HipFasciaCut", 7.09466991},
      {"Rise", 72.0},
      {"RiseWithOverhang", 77.25},
      {"Length1", 171.69081263},
      {"Length2", 184.20993438},
      {"CommonDifference", 43.18676510},
      {"CommonDifference16", 57.58235347},
      {"CommonDifference24", 86.37353027},
      {"Pitch", " 6/12"},
      {"HipPitch", " 5.54/12"},
      {"HipEndPitch", ""}}},
    {"ClearsTheAllowancesOfAHipRoof",
     [](Rafter& r) {
       r.Calculate();
       r.HipValSpan = 0;
       Hip(r);
     },
     kOctagon,
     {{"RidgeAllowance", 0.0}, {"HipRidgeAllowance", 0.0}}},
    {"LongestJack",
     Jack,
     kOctagon,
     {{"AdjSpan", 122.72644705},
      {"AdjSpanWithOverhang", 133.22644705},
      {"Rise", 61.36322353},
      {"RiseWithOverhang", 66.61322353},
      {"Length1", 137.21233912},
      {"Length2", 148.95169601}}},
    {"RunToTheCornerFromTheRunToTheSide",
     [](Rafter& r) {
       Hip(r);
       r.Span = 100;
     },
     kOctagon,
     {{"Span", 100.0}, {"HipValSpan", 108.23922003}}},
    {"RunToTheSideFromTheRunToTheCorner",
     [](Rafter& r) {
       Hip(r);
       r.Span = 0;
       r.HipValSpan = 100;
     },
     kOctagon,
     {{"Span", 92.38795325}, {"HipValSpan", 100.0}}},
    // Two runs that do not belong together stand as they are, and the hip goes by their ratio.
    {"BothRunsStay",
     [](Rafter& r) {
       Hip(r);
       r.Span = 100;
       r.HipValSpan = 150;
     },
     kOctagon,
     {{"Span", 100.0}, {"HipValSpan", 150.0}, {"HipValSlope", 4.0}, {"HipValOverhang", 15.75}}},
    {"NoRunIsNoNumber",
     [](Rafter& r) {
       Hip(r);
       r.Span = 0;
     },
     kOctagon,
     {{"Span", 0.0}, {"HipValSpan", std::nan("")}, {"HipValSlope", std::nan("")}}},
    {"SpacingZero",
     [](Rafter& r) {
       Jack(r);
       r.spacing = 0;
     },
     kOctagon,
     {{"AdjSpan", 142.04015556},
      {"CommonDifference", 0.0},
      {"CommonDifference16", 0.0},
      {"CommonDifference24", 0.0}}},
    {"OtherMembersKeepRiseAndLength",
     [](Rafter& r) {
       r.RafterType = Member::kCommon;
       r.Rise = 5;
       r.Length1 = 6;
     },
     kOctagon,
     {{"Rise", 5.0}, {"Length1", 6.0}, {"HipValSpan", 155.86447684}}},
    {"ALockOfOneIsNoLock",
     [](Rafter& r) {
       Hip(r);
       r.HeelLocked = Flag::FromInteger(1);
       r.Heel = 4;
     },
     kOctagon,
     {{"Heel", 5.40383122}}},
    {"LockedSeat",
     [](Rafter& r) {
       Hip(r);
       r.SeatLocked = true;
       r.Seat = 3.5;
     },
     kOctagon,
     {{"Heel", 6.35574642}, {"Seat", 3.5}}},
    {"ZeroHeelTakesTheDefaultAndLeavesTheOverhang",
     [](Rafter& r) {
       Hip(r);
       r.HeelLocked = true;
       r.Heel = 0;
     },
     kOctagon,
     {{"Heel", 5.40383122}, {"Seat", 5.40383041}, {"Overhang", 10.5}}},
    {"HeelAboveThePlumbCut",
     [](Rafter& r) {
       Hip(r);
       r.HeelLocked = true;
       r.Heel = 50;
     },
     kOctagon,
     {{"Heel", 8.10574642}, {"Seat", 0.0}}},
    {"NoOverhangLimitsTheFasciaToTheHeel",
     [](Rafter& r) {
       Hip(r);
       r.Overhang = 0;
       r.FasciaHeight = 30;
       r.HipValDepth = 5.5;
     },
     kOctagon,
     {{"AdjFasciaHeight", 5.40383122}, {"HipEndFasciaCut", 6.05846495}, {"HipFasciaCut", 5.24850113}}},
    {"MetricTexts",
     [](Rafter& r) {
       r.SetUnits(1);
       Hip(r);
       r.Slope = 333.7;
     },
     kOctagon,
     {{"Pitch", " 334/1000"}, {"HipPitch", " 308/1000"}}},
};
INSTANTIATE_TEST_SUITE_P(Octagons, OctagonTable, testing::ValuesIn(kOctagons), RowName);

TEST(Octagon, ASecondRunKeepsBothRuns) {
  Rafter rafter;
  SmallHouse(rafter);
  Hip(rafter);
  rafter.CalculateOctagon();
  const double corner = rafter.HipValSpan;
  rafter.CalculateOctagon();
  EXPECT_EQ(rafter.Span, 144);
  EXPECT_NEAR(rafter.HipValSpan, corner, 2e-5);
}

TEST(Octagon, JackAndHipRiseDifferently) {
  Rafter rafter;
  SmallHouse(rafter);
  Hip(rafter);
  rafter.CalculateOctagon();
  const double hipRise = rafter.Rise;
  Jack(rafter);
  rafter.CalculateOctagon();
  EXPECT_GT(hipRise, rafter.Rise + 10);
}

}  // namespace
}  // namespace pitchcraft
