// The rafter table of a framing square: what is stamped on the blade for each rise to 12 of run.
#include <gtest/gtest.h>

#include "core/rafter.h"

namespace pitchcraft {
namespace {

struct SquareColumn {
  int Rise;
  double CommonPerFoot;  // inches, two decimals
  double HipPerFoot;     // of common run, inches, two decimals
  double Difference16;   // jacks 16 inches on centre, sixteenths
  double Difference24;   // jacks 24 inches on centre, sixteenths
};

const SquareColumn kSquare[] = {
    // clang-format off
    // rise common    hip   16 inches   24 inches
    { 2,    12.17,  17.09,  16.2500,    24.3125},
    { 3,    12.37,  17.23,  16.5000,    24.7500},
    { 4,    12.65,  17.44,  16.8750,    25.3125},
    { 5,    13.00,  17.69,  17.3125,    26.0000},
    { 6,    13.42,  18.00,  17.8750,    26.8125},
    { 7,    13.89,  18.36,  18.5000,    27.8125},
    { 8,    14.42,  18.76,  19.2500,    28.8750},
    { 9,    15.00,  19.21,  20.0000,    30.0000},
    {10,    15.62,  19.70,  20.8125,    31.2500},
    {11,    16.28,  20.22,  21.6875,    32.5625},
    {12,    16.97,  20.78,  22.6250,    33.9375},
    {13,    17.69,  21.38,  23.5625,    35.3750},
    {14,    18.44,  22.00,  24.5625,    36.8750},
    {15,    19.21,  22.65,  25.6250,    38.4375},
    {16,    20.00,  23.32,  26.6875,    40.0000},
    {17,    20.81,  24.02,  27.7500,    41.6250},
    {18,    21.63,  24.74,  28.8750,    43.2500},
    // clang-format on
};

constexpr double kHalfAHundredth = 0.005 + 1e-5;
constexpr double kHalfASixteenth = 1.0 / 32 + 1e-5;

void PrintTo(const SquareColumn& column, std::ostream* out) { *out << column.Rise << " in 12"; }

class FramingSquare : public testing::TestWithParam<SquareColumn> {
 protected:
  // One foot of run between two points: no boards.
  void RunOneFoot(Member type) {
    rafter_.RafterType = type;
    rafter_.Slope = GetParam().Rise;
    rafter_.Span = 12;
    rafter_.Depth = 7.25;
    rafter_.Calculate();
  }

  Rafter rafter_;
};

TEST_P(FramingSquare, CommonPerFootOfRun) {
  RunOneFoot(Member::kCommon);
  EXPECT_NEAR(rafter_.Length1, GetParam().CommonPerFoot, kHalfAHundredth);
}

TEST_P(FramingSquare, HipPerFootOfRun) {
  RunOneFoot(Member::kHip);
  EXPECT_NEAR(rafter_.Length1, GetParam().HipPerFoot, kHalfAHundredth);
}

TEST_P(FramingSquare, ValleyPerFootOfRun) {
  RunOneFoot(Member::kValley);
  EXPECT_NEAR(rafter_.Length1, GetParam().HipPerFoot, kHalfAHundredth);
}

TEST_P(FramingSquare, JackDifferences) {
  RunOneFoot(Member::kHip);
  EXPECT_NEAR(rafter_.CommonDifference16, GetParam().Difference16, kHalfASixteenth);
  EXPECT_NEAR(rafter_.CommonDifference24, GetParam().Difference24, kHalfASixteenth);
  EXPECT_NEAR(rafter_.CommonDifference * 16, GetParam().Difference16, kHalfASixteenth);
}

TEST_P(FramingSquare, BastardHipWithEqualSlopesIsTheSame) {
  rafter_.HipEndSlope = GetParam().Rise;
  RunOneFoot(Member::kBastardHip);
  EXPECT_NEAR(rafter_.Length1, GetParam().HipPerFoot, kHalfAHundredth);
  EXPECT_NEAR(rafter_.CommonDifference16, GetParam().Difference16, kHalfASixteenth);
  EXPECT_NEAR(rafter_.HipEndCommonDifference24, GetParam().Difference24, kHalfASixteenth);
}

INSTANTIATE_TEST_SUITE_P(RisesTwoToEighteen, FramingSquare, testing::ValuesIn(kSquare),
                         [](const auto& square) { return "Rise" + std::to_string(square.param.Rise); });

}  // namespace
}  // namespace pitchcraft
