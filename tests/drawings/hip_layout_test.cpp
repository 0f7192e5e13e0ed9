// Compares every jack of a layout with the jack in space, for all ways to lay out a roof.
#include "drawings/hip_layout.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core/run_time_error.h"
#include "hip_case.h"
#include "hip_space.h"

namespace pitchcraft {
namespace {

using ::testing::ElementsAre;
using testing::HipCase;
using testing::HipSpace;

constexpr JackLayout kLayouts[] = {JackLayout::kCenter, JackLayout::kCorners, JackLayout::kCornersFlush};

HipLayout LayOut(const HipCase& c) {
  Rafter rafter;
  testing::CalculateHip(rafter, c);
  return LayOutHip(rafter, testing::ContextOf(c, rafter).HipLayout);
}

std::vector<LaidRafter> JacksOf(const HipLayout& layout, HipRoofFace face) {
  std::vector<LaidRafter> jacks;
  for (const LaidRafter& rafter : layout.Rafters) {
    if (rafter.Face == face && rafter.IsJack()) jacks.push_back(rafter);
  }
  return jacks;
}

std::vector<std::string> LabelsOf(const HipLayout& layout) {
  std::vector<std::string> labels;
  for (const LaidRafter& rafter : layout.Rafters) {
    if (!rafter.IsJack()) labels.emplace_back(rafter.Label);
  }
  return labels;
}

void ExpectJackInSpace(const HipCase& c, const LaidRafter& jack, double place) {
  const HipSpace space(c);
  const double near = (c.Run + c.Overhang) * 3e-6;
  ASSERT_NEAR(jack.Place, place, near);
  EXPECT_NEAR(jack.PlanLength, space.ToMiddleOfHip(jack.Face, place), 4 * near);
  const auto length = space.LongestEdge(jack.Face, place, c.WithOverhang);
  ASSERT_EQ(jack.Length.has_value(), length.has_value()) << "place " << place;
  if (!length) return;
  EXPECT_NEAR(*jack.Length, *length, 6 * near) << "place " << place;
}

void ExpectLayoutInSpace(const HipCase& c) {
  SCOPED_TRACE(::testing::PrintToString(c));
  const HipLayout layout = LayOut(c);
  for (const HipRoofFace face : {HipRoofFace::kEnd, HipRoofFace::kMain}) {
    const std::vector<LaidRafter> jacks = JacksOf(layout, face);
    const std::vector<double> places = HipSpace(c).PlacesOf(face);
    ASSERT_EQ(jacks.size(), places.size()) << (face == HipRoofFace::kEnd ? "end" : "main");
    for (std::size_t at = 0; at < jacks.size(); ++at) ExpectJackInSpace(c, jacks[at], places[at]);
  }
}

template <typename Vary>
void ForEveryLayout(HipCase c, const Vary& vary) {
  for (const JackLayout layout : kLayouts) {
    for (const bool withOverhang : {false, true}) {
      c.Layout = layout;
      c.WithOverhang = withOverhang;
      vary(c);
    }
  }
}

TEST(HipLayout, HasEveryJackOfEqualSlopesWithItsLength) {
  ForEveryLayout({}, [](HipCase c) {
    for (const double run : {30.0, 96.0, 133.5, 144.0, 181.5, 192.0, 240.25}) {
      for (const double spacing : {12.0, 16.0, 19.2, 24.0, 48.0}) {
        for (const double overhang : {0.0, 10.5, 16.0, 24.0, 40.0}) {
          c.Run = run;
          c.Spacing = spacing;
          c.Overhang = overhang;
          ExpectLayoutInSpace(c);
        }
      }
    }
  });
}

TEST(HipLayout, HasEveryJackOfUnequalSlopesWithItsLength) {
  constexpr std::pair<double, double> kSlopes[] = {{6, 9}, {9, 6}, {4, 12}, {12, 4}, {8, 8.5}};
  ForEveryLayout({}, [&](HipCase c) {
    for (const auto& [slope, endSlope] : kSlopes) {
      for (const bool equal : {false, true}) {
        for (const double overhang : {0.0, 10.5, 20.0}) {
          for (const double run : {64.0, 144.0}) {
            c.Slope = slope;
            c.EndSlope = endSlope;
            c.OverhangsEqual = equal;
            c.Overhang = overhang;
            c.Run = run;
            ExpectLayoutInSpace(c);
          }
        }
      }
    }
  });
}

TEST(HipLayout, HasEveryJackFromTheLastCommonWithItsLength) {
  ForEveryLayout({}, [](HipCase c) {
    for (const double endSlope : {4.0, 6.0, 9.0}) {
      for (const bool equal : {false, true}) {
        for (const double past : {0.0, 0.5, 3.0, 11.25, 15.5, 16.0}) {
          c.EndSlope = endSlope;
          c.OverhangsEqual = equal;
          c.PastPeak = past;
          ExpectLayoutInSpace(c);
        }
      }
    }
  });
}

TEST(HipLayout, HasEveryJackOfOtherLumberWithItsLength) {
  ForEveryLayout({}, [](HipCase c) {
    for (const double thickness : {1.5, 3.0, 5.5}) {
      for (const double hip : {0.75, 1.5, 3.5}) {
        for (const double endSlope : {3.0, 6.0, 12.0}) {
          c.Thickness = thickness;
          c.HipThickness = hip;
          c.EndSlope = endSlope;
          ExpectLayoutInSpace(c);
        }
      }
    }
  });
}

TEST(HipLayout, HasEveryJackInMillimetresWithItsLength) {
  ForEveryLayout(testing::MetricHip(), [](HipCase c) {
    for (const double endSlope : {300.0, 500.0, 750.0}) {
      for (const bool equal : {false, true}) {
        for (const double spacing : {304.8, 400.0, 406.4, 600.0}) {
          for (const double run : {3600.0, 4000.0}) {
            c.EndSlope = endSlope;
            c.OverhangsEqual = equal;
            c.Spacing = spacing;
            c.Run = run;
            ExpectLayoutInSpace(c);
          }
        }
      }
    }
  });
}

// The rules, one by one.

TEST(HipLayout, BeginsBesideTheCommon) {
  HipCase c;
  const std::vector<LaidRafter> jacks = JacksOf(LayOut(c), HipRoofFace::kEnd);
  EXPECT_NEAR(jacks[0].Place, 154.5 - 16, 1e-4) << "the first place out";
  // The run to the edge half a thickness further in, minus half the hip, measured along the jack.
  const double run = 154.5 - 16 + 0.75 - 0.75 * std::sqrt(2.0);
  EXPECT_NEAR(*jacks[0].Length, run * std::sqrt(1.25), 1e-3);
  Rafter rafter;
  testing::CalculateHip(rafter, c);
  for (std::size_t i = 1; i < jacks.size(); ++i) {
    EXPECT_NEAR(*jacks[i].Length, *jacks[0].Length - 16 * rafter.HipEndCommonDifference * double(i), 1e-3);
  }
}

// The line runs to the middle of the hip, where people expect it. The wood ends at the side of the hip: on
// the longest edge, earlier by half the hip and later by half the jack's own step.
TEST(HipLayout, DrawsAJackToTheMiddleOfTheHip) {
  HipCase c;
  c.EndSlope = 9;
  for (const LaidRafter& jack : LayOut(c).Rafters) {
    if (!jack.IsJack()) continue;
    const bool end = jack.Face == HipRoofFace::kEnd;
    const double ratio = end ? 6.0 / 9 : 9.0 / 6;
    const double run = *jack.Length / std::hypot(1, end ? 9.0 / 12 : 6.0 / 12);
    EXPECT_NEAR(jack.PlanLength - run, 0.75 * std::hypot(1, ratio) - 0.75 * ratio, 1e-3);
  }
}

TEST(HipLayout, StandsFlushByTheJacksSide) {
  HipCase c;
  c.Layout = JackLayout::kCorners;
  const auto centered = JacksOf(LayOut(c), HipRoofFace::kEnd);
  c.Layout = JackLayout::kCornersFlush;
  const auto flush = JacksOf(LayOut(c), HipRoofFace::kEnd);
  EXPECT_NEAR(centered.back().Place, 10.5, 1e-4) << "the middle at the corner of the walls";
  EXPECT_NEAR(flush.back().Place, 11.25, 1e-4) << "the side at the corner of the walls";
}

TEST(HipLayout, CountsWholeSpacingsOutIntoTheOverhang) {
  HipCase c;
  c.Layout = JackLayout::kCorners;
  c.Overhang = 40;
  EXPECT_NEAR(JacksOf(LayOut(c), HipRoofFace::kEnd).back().Place, 8, 1e-4);
  c.Overhang = 47.5;  // nearly three spacings are still two
  EXPECT_NEAR(JacksOf(LayOut(c), HipRoofFace::kEnd).back().Place, 15.5, 1e-4);
  c.Overhang = 48;  // the third would stand in the corner of the eaves, under the hip
  EXPECT_NEAR(JacksOf(LayOut(c), HipRoofFace::kEnd).back().Place, 16, 1e-4);
}

TEST(HipLayout, CountsTheOverhangOnce) {
  HipCase c;
  c.Layout = JackLayout::kCorners;
  const auto whole = JacksOf(LayOut(c), HipRoofFace::kMain);
  c.WithOverhang = false;
  const auto fromWall = JacksOf(LayOut(c), HipRoofFace::kMain);
  ASSERT_EQ(whole.size(), fromWall.size());
  for (std::size_t at = 0; at + 1 < whole.size(); ++at) {
    EXPECT_NEAR(*whole[at].Length - *fromWall[at].Length, 10.5 * std::sqrt(1.25), 1e-3);
  }
  EXPECT_FALSE(fromWall.back().Length) << "at the corner the hip ends it before the wall";
}

TEST(HipLayout, LeavesOutAJackThatWouldStandInTheCommon) {
  HipCase c;
  c.Layout = JackLayout::kCorners;
  for (const double gap : {0.0, 1.0, 1.5}) {
    c.Run = 9 * 16 + gap;
    const double first = JacksOf(LayOut(c), HipRoofFace::kEnd)[0].Place;
    EXPECT_NEAR(first, gap < 1.5 ? 10.5 + 8 * 16 : 10.5 + 9 * 16, 1e-4) << "touching it at " << gap;
  }
}

TEST(HipLayout, LabelsTheCommonsOfEveryLayout) {
  HipCase c;
  c.Run = 150;
  EXPECT_THAT(LabelsOf(LayOut(c)), ElementsAre("End Common", "Common"));
  for (const JackLayout layout : {JackLayout::kCorners, JackLayout::kCornersFlush}) {
    c.Layout = layout;
    EXPECT_THAT(LabelsOf(LayOut(c)), ElementsAre("End Common", "Commons"));
  }
  c.Layout = JackLayout::kCorners;
  c.Run = 144;
  EXPECT_THAT(LabelsOf(LayOut(c)), ElementsAre("End Common", "Common")) << "a place falls on the peak";
  c.PastPeak = 20;  // a last common that was set out at a wider spacing
  EXPECT_THAT(LabelsOf(LayOut(c)), ElementsAre("End Common", "Common", "Common"));
}

TEST(HipLayout, KeepsTheLastCommonOnTheRidge) {
  HipCase c;
  c.PastPeak = -5;
  EXPECT_NEAR(LayOut(c).Outline.LastCommonPlace(), 154.5, 1e-4);
  EXPECT_NEAR(*LayOut(c).Outline.LastCommon, 144, 1e-4);
  c.PastPeak = 40;
  EXPECT_NEAR(LayOut(c).Outline.Top, 154.5 + 40 + 8, 1e-4) << "the figure reaches beyond it";
}

TEST(HipLayout, TakesTheEndOfAPlainHipFromItsSide) {
  HipCase c;
  Rafter rafter;
  testing::CalculateHip(rafter, c);
  rafter.Overhang = 24;  // entered, and not calculated yet
  HipCase now;
  now.Overhang = 24;
  const HipLayout layout = LayOutHip(rafter, {});
  EXPECT_EQ(layout.Outline.EndOverhang, 24);
  EXPECT_NEAR(layout.Outline.EndRun, layout.Outline.MainRun, 1e-9);
}

TEST(HipLayout, LaysOutTheCommonsAloneWhereNoJackHasRoom) {
  for (const JackLayout layout : kLayouts) {
    HipCase c;
    c.Layout = layout;
    for (const double spacing : {0.0, -16.0, 0.001, 1.4, std::nan("")}) {
      c.Spacing = spacing;
      EXPECT_EQ(LayOut(c).Rafters.size(), 2U) << spacing;
    }
  }
  HipCase c;
  c.Spacing = 200;
  EXPECT_EQ(LayOut(c).Rafters.size(), 2U) << "wider than the run";
}

TEST(HipLayout, RefusesMoreJacksThanAnyRoofHas) {
  for (const JackLayout layout : kLayouts) {
    HipCase c;
    c.Layout = layout;
    c.Run = 1e6;
    EXPECT_THROW(LayOut(c), RunTimeError);
    c.Run = 144;
    c.Thickness = 0;
    c.Spacing = 0.001;
    EXPECT_THROW(LayOut(c), RunTimeError);
    c.Thickness = 1.5;
    c.Spacing = 12;
    c.Run = 12 * 1900;
    EXPECT_GT(LayOut(c).Rafters.size(), 3700U);
  }
}

}  // namespace
}  // namespace pitchcraft
