// All members of a bay and of a Dutch hip end, row by row.
#include <cmath>
#include <numbers>

#include "record_table.h"

namespace pitchcraft {
namespace {

constexpr auto kBay = &Rafter::CalculateBay;

class BayTable : public testing::TestWithParam<CalculationRow> {};

TEST_P(BayTable, Gives) { CheckRow(GetParam()); }

void Corner(Rafter& r, double angle) {
  const double radians = angle * std::numbers::pi / 180;
  r.BayAngle = angle;
  r.HipRunFactor = r.SlopeBase / std::cos(radians / 2);
  r.LedgerRunFactor = r.SlopeBase / std::sin(radians);
}

// Corners of 135 degrees, 4 feet out, 70 inches wide in front.
void Bay(Rafter& r) {
  r.RafterType = Member::kBayCommon;
  Corner(r, 45);
  r.Face = 70;
  r.Back = 166;
  r.CenterLedgerSpan = 166;
  r.Projection = 48;
}

void DutchHip(Rafter& r) {
  r.RafterType = Member::kBayCommon;
  Corner(r, 90);
  r.Face = 288;
  r.Back = 288;
  r.CenterLedgerSpan = 288;
  r.Projection = 96;
}

const CalculationRow kMembers[] = {
    {"Corner135",
     Bay,
     kBay,
     {{"HipValSlope", 5.54327720},
      {"LedgerSlope", 4.24264069},
      {"HipDegrees", 24.79},
      {"LedgerDegrees", 19.47},
      {"RidgeAllowance", 1.5},
      {"HipRidgeAllowance", 1.62358830},
      {"LedgerRidgeAllowance", 0.62132034},
      {"CenterLedgerLength", 167.24264069},
      {"LedgerDrop", 0.53033009},
      {"HipDrop", 0.14350629},
      {"HipValOverhang", 11.36511810},
      {"LedgerOverhang", 14.84924240},
      {"PlumbCut", 8.10574642},
      {"Heel", 5.40383122},
      {"Seat", 5.40383041},
      {"CommonHeel", 5.40383122},
      {"CommonSeat", 5.40383041},
      {"AdjFasciaHeight", 7.25},
      {"HipHeel", 5.26032493},
      {"HipFasciaHeight", 7.10649371},
      {"HipValPlumbCut", 10.18923650},
      {"HipValSeat", 10.67003089},
      {"LedgerHeel", 4.87350113},
      {"LedgerFasciaHeight", 6.71966991},
      {"LedgerPlumbCut", 9.81110659},
      {"LedgerSeat", 13.96565721},
      {"HipValSpan", 51.95482561},
      {"LedgerSpan", 67.88225099},
      {"AdjSpan", 46.5},
      {"AdjHipSpan", 50.33123731},
      {"AdjLedgerSpan", 67.26093065},
      {"AdjSpanWithOverhang", 57.0},
      {"AdjHipSpanWithOverhang", 61.69635542},
      {"AdjLedgerSpanWithOverhang", 82.11017306},
      {"Rise", 23.25},
      {"RiseWithOverhang", 28.5},
      {"HipRise", 23.25},
      {"HipRiseWithOverhang", 28.5},
      {"LedgerRise", 23.78033009},
      {"LedgerRiseWithOverhang", 29.03033009},
      {"Length1", 51.98858048},
      {"Length2", 63.72793736},
      {"HipLength1", 55.44182491},
      {"HipLength2", 67.96094667},
      {"LedgerLength1", 71.34099026},
      {"LedgerLength2", 87.09099026},
      {"HipCommonDifference16", 43.18676510},
      {"HipCommonDifference24", 64.78014765},
      {"LedgerCommonDifference16", 17.88854382},
      {"LedgerCommonDifference24", 26.83281573}}},
    {"SquareCornerOfADutchHip",
     DutchHip,
     kBay,
     {{"HipValSlope", 4.24264069},
      {"LedgerSlope", 6.0},
      {"HipDegrees", 19.47},
      {"LedgerDegrees", 26.57},
      {"HipRidgeAllowance", 2.12132034},
      {"LedgerRidgeAllowance", 1.5},
      {"CenterLedgerLength", 291.0},
      {"LedgerDrop", 0.0},
      {"HipDrop", 0.26516504},
      {"LedgerHeel", 5.40383122},
      {"LedgerSeat", 9.87596636},
      {"HipLength1", 141.75},
      {"HipLength2", 157.5},
      {"LedgerLength1", 105.65421194},
      {"HipCommonDifference16", 17.88854382},
      {"HipCommonDifference24", 26.83281573},
      {"LedgerCommonDifference16", 0.0},
      {"LedgerCommonDifference24", 0.0}}},
    {"SquareCornerClearsWhatAnAngledOneLeft",
     [](Rafter& r) {
       Bay(r);
       r.CalculateBay();
       DutchHip(r);
     },
     kBay,
     {{"LedgerCommonDifference16", 0.0}, {"LedgerCommonDifference24", 0.0}}},
    {"DutchHipWithoutALedger",
     [](Rafter& r) {
       DutchHip(r);
       r.RidgeThickness = 0;
     },
     kBay,
     {{"RidgeAllowance", 0.0},
      {"HipRidgeAllowance", 0.0},
      {"LedgerRidgeAllowance", 0.0},
      {"LedgerDrop", 0.0},
      {"CenterLedgerLength", 288.0},
      {"AdjSpan", 96.0}}},
    {"CenterLedgerHasTheLengthsToo",
     [](Rafter& r) {
       Bay(r);
       r.RafterType = Member::kCenterLedger;
     },
     kBay,
     {{"Length1", 51.98858048}, {"Pitch", ""}, {"HipPitch", ""}, {"LedgerPitch", ""}}},
    // Factors of 12 where a metric corner would have 1000: jack differences reckon in inches in both units.
    {"MetricJackDifferencesUseTheSquareOfTwelve",
     [](Rafter& r) {
       r.SetUnits(1);
       Bay(r);
       r.Slope = 500;
     },
     kBay,
     {{"HipCommonDifference16", 19.31927005},
      {"HipCommonDifference24", 28.97890507},
      {"LedgerCommonDifference16", 8.00230367},
      {"LedgerCommonDifference24", 12.00345550}}},
};
INSTANTIATE_TEST_SUITE_P(Members, BayTable, testing::ValuesIn(kMembers), RowName);

const CalculationRow kHeelsAndFascias[] = {
    {"NoOverhangBringsTheFasciaToTheHeels",
     [](Rafter& r) {
       Bay(r);
       r.Overhang = 0;
       r.FasciaHeight = 1;
     },
     kBay,
     {{"AdjFasciaHeight", 5.40383122},
      {"HipFasciaHeight", 5.26032493},
      {"LedgerFasciaHeight", 4.87350113},
      {"Length2", 51.98858048}}},
    {"TallFasciaStopsAtEachPlumbCut",
     [](Rafter& r) {
       Bay(r);
       r.FasciaHeight = 30;
       r.HipValDepth = 5.5;
       r.RidgeDepth = 5.5;
     },
     kBay,
     {{"AdjFasciaHeight", 8.10574642},
      {"HipValPlumbCut", 6.05846495},
      {"HipFasciaHeight", 6.05846495},
      {"LedgerPlumbCut", 5.83363095},
      {"LedgerFasciaHeight", 5.83363095}}},
    {"AnyLockButZeroCounts",
     [](Rafter& r) {
       Bay(r);
       r.HeelLocked = Flag::FromInteger(1);
       r.Heel = 4;
     },
     kBay,
     {{"Heel", 4.0}, {"Seat", 8.21149284}}},
    {"AnySeatLockButZeroCounts",
     [](Rafter& r) {
       Bay(r);
       r.SeatLocked = Flag::FromInteger(2);
       r.Seat = 3.5;
     },
     kBay,
     {{"Heel", 6.35574642}, {"Seat", 3.5}}},
    {"ZeroHeelTakesTheDefaultAndLeavesTheOverhang",
     [](Rafter& r) {
       Bay(r);
       r.HeelLocked = true;
       r.Heel = 0;
     },
     kBay,
     {{"Heel", 5.40383122}, {"Seat", 5.40383041}, {"Overhang", 10.5}}},
    {"HeelAboveThePlumbCut",
     [](Rafter& r) {
       Bay(r);
       r.HeelLocked = true;
       r.Heel = 50;
     },
     kBay,
     {{"Heel", 8.10574642}, {"Seat", 0.0}, {"CommonHeel", 8.10574642}}},
};
INSTANTIATE_TEST_SUITE_P(HeelsAndFascias, BayTable, testing::ValuesIn(kHeelsAndFascias), RowName);

void Texts(Rafter& r, Member type, int units, double slope) {
  r.SetUnits(units);
  Bay(r);
  r.RafterType = type;
  r.Slope = slope;
}

// Slope 11.3: hip 10.43984, ledger 7.990307. Slope 333.7 in metric: hip 308.2985, ledger 235.9615.
const CalculationRow kTexts[] = {
    {"Common",
     [](Rafter& r) { Texts(r, Member::kBayCommon, 0, 11.3); },
     kBay,
     {{"HipPitch", "10.43/12"}, {"Pitch", " 11.3/12"}, {"LedgerPitch", ""}}},
    {"CommonMetricKeepsTheDecimalsOfItsOwnSlope",
     [](Rafter& r) { Texts(r, Member::kBayCommon, 1, 333.7); },
     kBay,
     {{"HipPitch", "308/1000"}, {"Pitch", " 333.7/1000"}}},
    {"HipCutsBothByItsSlope",
     [](Rafter& r) { Texts(r, Member::kBayHip, 0, 10.123); },
     kBay,
     {{"HipPitch", "9.35/12"}, {"Pitch", "10.1/12"}, {"LedgerPitch", ""}}},
    {"HipOfTenKeepsFiveCharacters",
     [](Rafter& r) { Texts(r, Member::kBayHip, 0, 11.31234); },
     kBay,
     {{"HipPitch", "10.45/12"}, {"Pitch", "11.31/12"}}},
    {"HipMetric",
     [](Rafter& r) { Texts(r, Member::kBayHip, 1, 333.7); },
     kBay,
     {{"HipPitch", "308/1000"}, {"Pitch", "334/1000"}}},
    {"LedgerCutsBothByItsSlope",
     [](Rafter& r) { Texts(r, Member::kBayLedger, 0, 11.31234); },
     kBay,
     {{"LedgerPitch", "7.99/12"}, {"Pitch", "11.3/12"}, {"HipPitch", ""}}},
    {"LedgerMetricIsCutNotRounded",
     [](Rafter& r) { Texts(r, Member::kBayLedger, 1, 333.7); },
     kBay,
     {{"LedgerPitch", "235.9/1000"}, {"Pitch", "334/1000"}}},
    {"LedgerMetricOfLowSlopeLeavesTheCommonUncut",
     [](Rafter& r) { Texts(r, Member::kBayLedger, 1, 12.6); },
     kBay,
     {{"LedgerPitch", "8.90/1000"}, {"Pitch", "13/1000"}}},
};
INSTANTIATE_TEST_SUITE_P(Texts, BayTable, testing::ValuesIn(kTexts), RowName);

struct MissingDimension {
  const char* Name;
  Single Rafter::*Member;
};

class IncompleteBay : public testing::TestWithParam<MissingDimension> {};

TEST_P(IncompleteBay, IsLeftAlone) {
  Rafter rafter;
  SmallHouse(rafter);
  Bay(rafter);
  rafter.*GetParam().Member = 0;
  rafter.AdjFasciaHeight = 99;
  rafter.Heel = 99;
  EXPECT_FALSE(rafter.HasBay());
  rafter.CalculateBay();
  EXPECT_EQ(rafter.AdjFasciaHeight, 99);
  EXPECT_EQ(rafter.Heel, 99);
  EXPECT_EQ(rafter.HipValSlope, 0);
  EXPECT_EQ(rafter.Length1, 0);
  EXPECT_EQ(std::string(rafter.Pitch), "");
}

INSTANTIATE_TEST_SUITE_P(CalculateBay, IncompleteBay,
                         testing::Values(MissingDimension{"Projection", &Rafter::Projection},
                                         MissingDimension{"Face", &Rafter::Face},
                                         MissingDimension{"Back", &Rafter::Back},
                                         MissingDimension{"BayAngle", &Rafter::BayAngle}),
                         [](const auto& missing) { return std::string(missing.param.Name); });

}  // namespace
}  // namespace pitchcraft
