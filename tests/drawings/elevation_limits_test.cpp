// Measures that no roof has: they give a blank and one error, never a freeze, and the next drawing is
// complete again.
#include <gtest/gtest.h>

#include <chrono>
#include <cmath>
#include <limits>

#include "core/run_time_error.h"
#include "elevation_case.h"

namespace pitchcraft {
namespace {

using testing::DrawnElevation;
using testing::ElevationCase;

constexpr double kInfinity = std::numeric_limits<double>::infinity();

class Hostile : public ::testing::Test {
 protected:
  Hostile() : board(meter, [](double) { return std::string("x"); }) {
    board.Recorder.SetCanvas({10000, 7000});
  }
  /// The number of the error raised by drawing; 0 if there is none.
  int Draw(const ElevationCase& c) {
    Rafter rafter;
    testing::Fill(rafter, c);
    rafter.RafterType = c.Type;
    rafter.Calculate();
    try {
      DrawRafter(board, rafter, testing::ContextOf(c));
    } catch (const RunTimeError& error) {
      return error.Number();
    }
    return 0;
  }

  ArialMeter meter;
  DraftingBoard board;
};

TEST_F(Hostile, EndsBlankWithOneOverflow) {
  for (const double bad : {kInfinity, -kInfinity, std::nan(""), 1e30, 1e12}) {
    for (double ElevationCase::*field :
         {&ElevationCase::Slope, &ElevationCase::Run, &ElevationCase::Overhang}) {
      ElevationCase c;
      c.*field = bad;
      EXPECT_EQ(Draw(c), 6) << c;
      EXPECT_TRUE(board.Recorder.IsClosed());
      EXPECT_TRUE(board.Recorder.Finished().empty());
      EXPECT_TRUE(board.DimensionPoints.empty());
      EXPECT_EQ(Draw(ElevationCase()), 0) << "the next drawing is whole again";
      EXPECT_GT(board.Recorder.Finished().size(), 40U);
    }
  }
}

TEST_F(Hostile, EveryMixtureEndsSoon) {
  const double values[] = {0, 1e-30, 1, -6, 144, 1e7, 1e9, 1e20, kInfinity, std::nan("")};
  const auto start = std::chrono::steady_clock::now();
  for (const Member type : {Member::kCommon, Member::kShed, Member::kHip, Member::kValley}) {
    for (const double slope : values) {
      for (const double run : values) {
        for (const double overhang : {0.0, 10.5, -3.0, 1e8}) {
          for (const double depth : {7.25, 0.0, 1e6, 1e30}) {
            for (const bool square : {false, true}) {
              ElevationCase c;
              c.Type = type;
              c.RoofType = static_cast<int>(type);
              c.Slope = slope;
              c.Run = run;
              c.Overhang = overhang;
              c.Depth = c.HipDepth = depth;
              c.Kneewall = 60;
              c.SquareCut = square;
              c.Tab = 1;
              const int error = Draw(c);
              ASSERT_TRUE(error == 0 || error == 6) << c;
              ASSERT_TRUE(board.Recorder.IsClosed()) << c;
            }
          }
        }
      }
    }
  }
  const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - start;
  EXPECT_LT(seconds.count(), 60);
}

TEST_F(Hostile, DrawsALevelRafter) {
  for (const Member type : {Member::kCommon, Member::kShed, Member::kHip, Member::kValley}) {
    for (const bool square : {false, true}) {
      ElevationCase c;
      c.Type = type;
      c.RoofType = static_cast<int>(type);
      c.Slope = 0;
      c.SquareCut = square;
      EXPECT_EQ(Draw(c), 0) << c;
      EXPECT_EQ(board.Pts(7).X, board.Pts(0).X) << "the seat ends at the ridge";
      EXPECT_EQ(board.Pts(8).Y, board.Pts(7).Y);
      EXPECT_GT(board.Recorder.Finished().size(), 30U);
    }
  }
}

TEST_F(Hostile, DrawsARunThatEndsBeforeTheRidgeBoard) {
  ElevationCase c;
  c.Run = 0;
  EXPECT_EQ(Draw(c), 0);
  c.Run = 0.75;
  EXPECT_EQ(Draw(c), 0);
}

TEST_F(Hostile, DrawsOnACanvasWithoutSize) {
  board.Recorder.SetCanvas({0, 0});
  EXPECT_EQ(Draw(ElevationCase()), 0);
  board.Recorder.ClearCanvas();
  EXPECT_EQ(Draw(ElevationCase()), 0);
}

}  // namespace
}  // namespace pitchcraft
