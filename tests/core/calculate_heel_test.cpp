// Calculate row by row: every edge of heel, seat and fascia.
#include <limits>

#include "record_table.h"

namespace pitchcraft {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr auto kCalculate = &Rafter::Calculate;

class HeelTable : public testing::TestWithParam<CalculationRow> {};

TEST_P(HeelTable, Gives) { CheckRow(GetParam()); }

void LockHeel(Rafter& r, double heel) {
  r.HeelLocked = true;
  r.Heel = heel;
}

// A seat so long that the heel above it comes out exactly 0: at slope 12 the seat is the plumb cut.
void LockSeatToNoHeel(Rafter& r) {
  r.Slope = 12;
  r.Calculate();
  r.SeatLocked = true;
  r.Seat = r.PlumbCut;
  r.Overhang = 10.5;
}

const CalculationRow kHeels[] = {
    {"TwoThirdsOfThePlumbCutWhenUnlocked",
     [](Rafter& r) { r.Depth = 5.5; },
     kCalculate,
     {{"PlumbCut", 6.14918694}, {"Heel", 4.09945817}, {"Seat", 4.09945755}}},
    {"LockedHeelGivesSeat",
     [](Rafter& r) { LockHeel(r, 4); },
     kCalculate,
     {{"Heel", 4.0}, {"Seat", 8.21149284}, {"CommonHeel", 4.0}, {"CommonSeat", 8.21149284}}},
    {"LockedSeatGivesHeel",
     [](Rafter& r) {
       r.SeatLocked = true;
       r.Seat = 3.5;
     },
     kCalculate,
     {{"Heel", 6.35574642}, {"Seat", 3.5}, {"CommonHeel", 6.35574642}, {"CommonSeat", 3.5}}},
    {"HeelLockGoesBeforeSeatLock",
     [](Rafter& r) {
       LockHeel(r, 4);
       r.SeatLocked = true;
       r.Seat = 1;
     },
     kCalculate,
     {{"Heel", 4.0}, {"Seat", 8.21149284}}},
    {"ALockOfOneIsNoLock",
     [](Rafter& r) {
       LockHeel(r, 4);
       r.HeelLocked = Flag::FromInteger(1);
     },
     kCalculate,
     {{"Heel", 5.40383122}, {"Seat", 5.40383041}}},
    {"HeelAboveThePlumbCutIsThePlumbCut",
     [](Rafter& r) { LockHeel(r, 20); },
     kCalculate,
     {{"Heel", 8.10574642}, {"Seat", 0.0}, {"CommonHeel", 8.10574642}, {"CommonSeat", 0.0}}},
    {"HeelEqualToThePlumbCutStays",
     [](Rafter& r) {
       r.Calculate();
       LockHeel(r, r.PlumbCut);
     },
     kCalculate,
     {{"Heel", 8.10574642}, {"Seat", 0.0}, {"Overhang", 10.5}}},
    {"HeelEqualToThePlumbCutOfALevelRafterHasNoSeat",
     [](Rafter& r) {
       r.Slope = 0;
       LockHeel(r, r.Depth);
     },
     kCalculate,
     {{"Heel", 7.25}, {"Seat", std::numeric_limits<double>::quiet_NaN()}}},
    {"ASmallHeelStays",
     [](Rafter& r) { LockHeel(r, 0.125); },
     kCalculate,
     {{"Heel", 0.125}, {"Seat", 15.96149284}, {"Overhang", 10.5}}},
    {"LockedZeroHeelClearsTheOverhang",
     [](Rafter& r) { LockHeel(r, 0); },
     kCalculate,
     {{"Heel", 0.0},
      {"Overhang", 0.0},
      {"Seat", 16.21149284},
      {"AdjSpanWithOverhang", 143.25},
      {"RiseWithOverhang", 71.625},
      {"Length2", 160.15836889}}},
    {"SeatLockedToAZeroHeelClearsTheOverhang",
     LockSeatToNoHeel,
     kCalculate,
     {{"Heel", 0.0}, {"Overhang", 0.0}, {"Seat", 10.25304833}, {"AdjFasciaHeight", 0.0}}},
    {"SeatLockedTooLongIsOverruled",
     [](Rafter& r) {
       r.SeatLocked = true;
       r.Seat = 20;
     },
     kCalculate,
     {{"Heel", 5.40383122}, {"Seat", 5.40383041}, {"Overhang", 10.5}}},
    {"LockedNegativeHeelIsOverruled",
     [](Rafter& r) { LockHeel(r, -1); },
     kCalculate,
     {{"Heel", 5.40383122}, {"Seat", 5.40383041}, {"Overhang", 10.5}}},
    // The runs of hip and hip end were taken before the heel cleared the overhang; they follow at the next
    // run.
    {"ZeroHeelLeavesTheOverhangsOfTheHipThisOnce",
     [](Rafter& r) {
       r.RafterType = Member::kHip;
       LockHeel(r, 0);
     },
     kCalculate,
     {{"Overhang", 0.0},
      {"HipEndOverhang", 10.5},
      {"HipValOverhang", 14.84924175},
      {"AdjHipSpanWithOverhang", 217.43532558}}},
    {"SlopeZeroHasAnEndlessSeat",
     [](Rafter& r) { r.Slope = 0; },
     kCalculate,
     {{"PlumbCut", 7.25},
      {"Heel", 4.83333358},
      {"Seat", kInfinity},
      {"Rise", 0.0},
      {"Length1", 143.25},
      {"HipValSlope", 0.0},
      {"Pitch", " 0/12"},
      {"HipPitch", " 0/12"}}},
    {"SlopeSixAfterSlopeZeroIsPlainAgain",
     [](Rafter& r) {
       r.Slope = 0;
       r.Calculate();
       r.Slope = 6;
     },
     kCalculate,
     {{"Heel", 5.40383122}, {"Seat", 5.40383041}, {"Length1", 160.15836889}}},
};
INSTANTIATE_TEST_SUITE_P(Heels, HeelTable, testing::ValuesIn(kHeels), RowName);

const CalculationRow kFascias[] = {
    {"TallerThanThePlumbCut",
     [](Rafter& r) { r.FasciaHeight = 12; },
     kCalculate,
     {{"AdjFasciaHeight", 8.10574642}, {"FasciaHeight", 12.0}}},
    {"NoOverhangLimitsItToTheHeel",
     [](Rafter& r) {
       r.FasciaHeight = 12;
       r.Overhang = 0;
     },
     kCalculate,
     {{"AdjFasciaHeight", 5.40383122}}},
    {"NoOverhangLeavesALowFascia",
     [](Rafter& r) {
       r.FasciaHeight = 3.5;
       r.Overhang = 0;
     },
     kCalculate,
     {{"AdjFasciaHeight", 3.5}}},
    // Lower than the plumb cut of the common but taller than that of the hip: it goes up to the common's.
    {"TallerThanAShallowHip",
     [](Rafter& r) {
       r.RafterType = Member::kHip;
       r.HipValDepth = 5.5;
     },
     kCalculate,
     {{"HipValPlumbCut", 5.83363089}, {"AdjFasciaHeight", 7.84058137}}},
    {"AsTallAsAShallowHipStays",
     [](Rafter& r) {
       r.RafterType = Member::kHip;
       r.HipValDepth = 5.5;
       r.Calculate();
       r.FasciaHeight = r.HipValPlumbCut;
     },
     kCalculate,
     {{"AdjFasciaHeight", 5.56846584}}},
    {"TallerThanAShallowValley",
     [](Rafter& r) {
       r.RafterType = Member::kValley;
       r.HipValDepth = 5.5;
     },
     kCalculate,
     {{"AdjFasciaHeight", 8.10574642}}},
    {"AShallowHipDoesNotMoveTheCommonsFascia",
     [](Rafter& r) { r.HipValDepth = 5.5; },
     kCalculate,
     {{"AdjFasciaHeight", 7.25}}},
    {"TheDropOfTheHipLowersIt",
     [](Rafter& r) {
       r.RafterType = Member::kHip;
       r.Slope = 12;
     },
     kCalculate,
     {{"HipDrop", 0.53033011}, {"AdjFasciaHeight", 6.71966989}, {"HipHeel", 6.30503578}}},
};
INSTANTIATE_TEST_SUITE_P(Fascias, HeelTable, testing::ValuesIn(kFascias), RowName);

}  // namespace
}  // namespace pitchcraft
