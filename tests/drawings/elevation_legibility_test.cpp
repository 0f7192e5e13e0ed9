// For any rafter and any size of picture, no line runs through a text, and no text overlaps another or is
// upside down.
#include <gtest/gtest.h>

#include "elevation_case.h"
#include "legibility.h"

namespace pitchcraft {
namespace {

using testing::DrawnElevation;
using testing::ElevationCase;
using testing::UnreadableTexts;

constexpr std::pair<double, double> kPictures[] = {{5000, 5500}, {7000, 4000}, {10000, 7000}, {24000, 14000}};

int faults = 0;

void ExpectReadable(ElevationCase c) {
  for (const auto& [width, height] : kPictures) {
    c.Width = width;
    c.Height = height;
    const DrawnElevation drawn(c);
    for (const std::string& fault : UnreadableTexts(drawn.Operations())) {
      if (++faults <= 10) ADD_FAILURE() << c << ": " << fault;
    }
  }
}

template <typename Vary>
void ForEveryMember(const Vary& vary) {
  constexpr std::pair<Member, int> kMembers[] = {{Member::kCommon, 0}, {Member::kShed, 3},
                                                 {Member::kHip, 1},    {Member::kValley, 2},
                                                 {Member::kCommon, 1}, {Member::kShortValley, 10}};
  for (const auto& [type, roof] : kMembers) {
    for (const bool square : {false, true}) {
      for (const int tab : {0, 1}) {
        ElevationCase c;
        c.Type = type;
        c.RoofType = roof;
        c.SquareCut = square;
        c.Tab = tab;
        vary(c);
      }
    }
  }
}

TEST(ElevationLegibility, HoldsAtEverySlopeRunAndOverhang) {
  ForEveryMember([](ElevationCase c) {
    for (const double slope : {0.0, 1.0, 6.0, 12.0, 24.0}) {
      for (const double run : {24.0, 144.0, 400.0}) {
        for (const double overhang : {0.0, 1.0, 10.5}) {
          c.Slope = slope;
          c.Run = run;
          c.Overhang = overhang;
          ExpectReadable(c);
        }
      }
    }
  });
}

TEST(ElevationLegibility, HoldsAtEveryHeel) {
  ForEveryMember([](ElevationCase c) {
    for (const double slope : {0.0, 1.0, 6.0, 18.0}) {
      for (const double heel : {0.0, 0.25, 1.0, 4.0, 50.0}) {
        c.Slope = slope;
        c.Heel = heel;
        ExpectReadable(c);
      }
    }
  });
}

TEST(ElevationLegibility, HoldsWithAKneewall) {
  ForEveryMember([](ElevationCase c) {
    for (const double slope : {0.5, 1.0, 6.0, 12.0, 24.0}) {
      for (const double kneewall : {2.0, 60.0, 130.0}) {
        for (const double overhang : {0.0, 10.5}) {
          c.Slope = slope;
          c.Kneewall = kneewall;
          c.Overhang = overhang;
          ExpectReadable(c);
        }
      }
    }
  });
}

TEST(ElevationLegibility, HoldsInMillimetres) {
  ForEveryMember([](const ElevationCase& kind) {
    for (const double slope : {0.0, 80.0, 500.0, 1500.0}) {
      for (const double kneewall : {0.0, 1200.0}) {
        ElevationCase c = testing::Metric();
        c.Type = kind.Type;
        c.RoofType = kind.RoofType;
        c.SquareCut = kind.SquareCut;
        c.Tab = kind.Tab;
        c.Slope = slope;
        c.Kneewall = kneewall;
        ExpectReadable(c);
      }
    }
  });
}

// Tests the check itself: it must find what a person would see.
TEST(Legibility, SeesStruckOverlappingAndUpsideDownTexts) {
  const TextOp text{{0, 0}, "12' 6\"", 100, 0, 24, 0, "Arial", false, false};
  TextOp beside = text;
  beside.At = {500, 0};
  EXPECT_TRUE(UnreadableTexts({text, beside, LineOp{{-50, -10}, {500, -10}, {255, 0, 0}}}).empty());
  EXPECT_EQ(UnreadableTexts({text, LineOp{{-50, 30}, {500, 40}, {255, 0, 0}}}).size(), 1U);
  TextOp over = text;
  over.At = {100, 20};
  EXPECT_EQ(UnreadableTexts({text, over}).size(), 1U);
  TextOp down = text;
  down.Angle = 180;
  EXPECT_EQ(UnreadableTexts({down}).size(), 1U);
  down.Angle = 360;
  EXPECT_TRUE(UnreadableTexts({down}).empty());
}

}  // namespace
}  // namespace pitchcraft
