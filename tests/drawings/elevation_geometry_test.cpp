// The outline against the solid: every stroke is an edge of the wood, and together they close.
#include "drawings/rafter_elevation_geometry.h"

#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <vector>

#include "elevation_case.h"
#include "wood.h"

namespace pitchcraft {
namespace {

using testing::DrawnElevation;
using testing::ElevationCase;
using testing::Wood;

constexpr DrawColor kLineColor = 0xFFFFFF;

std::vector<LineOp> OutlineOf(const DrawnElevation& drawn) {
  std::vector<LineOp> outline;
  for (const DrawOp& op : drawn.Operations()) {
    const auto* line = std::get_if<LineOp>(&op);
    if (line != nullptr && line->Pen.Color == kLineColor) outline.push_back(*line);
  }
  return outline;
}

/// At three places along the stroke there must be wood on exactly one side.
void ExpectEdgeOfWood(const LineOp& line, const Wood& wood, double scale) {
  const double x1 = line.From.X / scale;
  const double y1 = line.From.Y / scale;
  const double dx = line.To.X / scale - x1;
  const double dy = line.To.Y / scale - y1;
  const double length = std::hypot(dx, dy);
  const double off = 1.6 / scale;  // drawn coordinates are whole units
  if (length < 4 * off) return;
  for (const double along : {0.25, 0.5, 0.75}) {
    const double x = x1 + dx * along;
    const double y = y1 + dy * along;
    const bool left = wood.Holds(x - dy / length * off, y + dx / length * off);
    const bool right = wood.Holds(x + dy / length * off, y - dx / length * off);
    EXPECT_NE(left, right) << "stroke " << line.From.X << "," << line.From.Y << " to " << line.To.X << ","
                           << line.To.Y << " at " << along;
  }
}

void ExpectClosed(const std::vector<LineOp>& outline) {
  std::map<std::pair<int, int>, int> ends;
  for (const LineOp& line : outline) {
    ++ends[{line.From.X, line.From.Y}];
    ++ends[{line.To.X, line.To.Y}];
  }
  for (const auto& [end, count] : ends) {
    EXPECT_EQ(count, 2) << "at " << end.first << "," << end.second;
  }
}

void ExpectOutlineOfWood(const ElevationCase& c) {
  SCOPED_TRACE(::testing::PrintToString(c));
  const DrawnElevation drawn(c);
  const Wood wood(c);
  const std::vector<LineOp> outline = OutlineOf(drawn);
  ASSERT_GE(outline.size(), 4U);
  for (const LineOp& line : outline) ExpectEdgeOfWood(line, wood, drawn.board.DrawScale);
  ExpectClosed(outline);
}

constexpr std::pair<Member, int> kMembers[] = {{Member::kCommon, 0}, {Member::kShed, 3},
                                               {Member::kHip, 1},    {Member::kValley, 2},
                                               {Member::kCommon, 1}, {Member::kCommon, 4}};

TEST(ElevationOutline, IsTheWoodAtEverySlopeAndOverhang) {
  for (const auto& [type, roof] : kMembers) {
    for (const double slope : {1.0, 3.0, 6.0, 12.0, 20.0}) {
      for (const double overhang : {0.0, 1.0, 4.0, 10.5, 24.0, 40.0}) {
        for (const bool square : {false, true}) {
          ElevationCase c;
          c.Type = type;
          c.RoofType = roof;
          c.Slope = slope;
          c.Overhang = overhang;
          c.SquareCut = square;
          ExpectOutlineOfWood(c);
        }
      }
    }
  }
}

TEST(ElevationOutline, IsTheWoodAtEveryHeelAndFascia) {
  for (const auto& [type, roof] : kMembers) {
    for (const double heel : {0.0, 1.0, 4.0, 8.0, 100.0}) {
      for (const double fascia : {0.0, 2.0, 5.5, 7.25, 20.0}) {
        for (const bool square : {false, true}) {
          ElevationCase c;
          c.Type = type;
          c.RoofType = roof;
          c.Heel = heel;
          c.Fascia = fascia;
          c.SquareCut = square;
          ExpectOutlineOfWood(c);
        }
      }
    }
  }
}

TEST(ElevationOutline, IsTheWoodWithAKneewall) {
  for (const auto& [type, roof] : kMembers) {
    for (const double slope : {1.0, 6.0, 15.0}) {
      for (const double kneewall : {0.5, 3.0, 12.0, 60.0, 130.0, 142.0, 150.0}) {
        for (const double overhang : {0.0, 10.5}) {
          ElevationCase c;
          c.Type = type;
          c.RoofType = roof;
          c.Slope = slope;
          c.Kneewall = kneewall;
          c.Overhang = overhang;
          ExpectOutlineOfWood(c);
        }
      }
    }
  }
}

TEST(ElevationOutline, IsTheWoodOfHipsOfOtherLumber) {
  for (const Member type : {Member::kHip, Member::kValley}) {
    for (const double depth : {3.5, 5.5, 9.25, 11.25}) {
      for (const bool square : {false, true}) {
        ElevationCase c;
        c.Type = type;
        c.RoofType = static_cast<int>(type);
        c.HipDepth = depth;
        c.SquareCut = square;
        ExpectOutlineOfWood(c);
      }
    }
  }
}

TEST(ElevationOutline, IsTheWoodInMillimetres) {
  for (const auto& [type, roof] : kMembers) {
    for (const bool square : {false, true}) {
      ElevationCase c = testing::Metric();
      c.Type = type;
      c.RoofType = roof;
      c.SquareCut = square;
      c.Kneewall = 1500;
      ExpectOutlineOfWood(c);
    }
  }
}

// The points, one by one.

TEST(ElevationPoints, LieWhereACarpenterMeasuresThem) {
  // 6 in 12, 12' run, 10 1/2" overhang, 2x8: the numbers on the framing square.
  const DrawnElevation drawn((ElevationCase()));
  const double plumb = 7.25 * std::sqrt(1.25);
  const double heel = plumb * 2 / 3;
  const auto expect = [&](int point, double x, double y) {
    EXPECT_NEAR(drawn.X(point), x, 1e-3) << "x of " << point;
    EXPECT_NEAR(drawn.Y(point), y, 1e-3) << "y of " << point;
  };
  expect(0, 143.25 + 10.5, (143.25 + 10.5) / 2);
  expect(1, 10.5, 5.25);
  expect(2, 0, 0);
  expect(3, 0, -5.5);
  expect(4, 2 * (plumb - 5.5), -5.5);
  expect(5, 10.5, 5.25 - heel);
  expect(6, 10.5, 5.25 - plumb);
  expect(7, 10.5 + 2 * (plumb - heel), 5.25 - heel);
  expect(8, 153.75, 76.875 - plumb);
}

TEST(ElevationPoints, HaveTheUndersideParallelAtTheDepth) {
  for (const auto& [type, roof] : kMembers) {
    ElevationCase c;
    c.Type = type;
    c.RoofType = roof;
    c.HipDepth = 9.25;
    const DrawnElevation drawn(c);
    const double depth = type == Member::kHip || type == Member::kValley ? 9.25 : 7.25;
    const double dx = drawn.X(0) - drawn.X(1);
    const double dy = drawn.Y(0) - drawn.Y(1);
    for (const int point : {4, 6, 7, 8}) {
      const double off =
          ((drawn.X(point) - drawn.X(1)) * dy - (drawn.Y(point) - drawn.Y(1)) * dx) / std::hypot(dx, dy);
      EXPECT_NEAR(off, depth, 2e-3) << "point " << point << " of type " << static_cast<int>(type);
    }
  }
}

TEST(ElevationPoints, CutASquareTailSquare) {
  ElevationCase c;
  c.SquareCut = true;
  const DrawnElevation drawn(c);
  const double along = (drawn.X(1) - drawn.X(2)) * (drawn.X(3) - drawn.X(2)) +
                       (drawn.Y(1) - drawn.Y(2)) * (drawn.Y(3) - drawn.Y(2));
  EXPECT_NEAR(along, 0, 1e-3);
  EXPECT_NEAR(std::hypot(drawn.X(3) - drawn.X(2), drawn.Y(3) - drawn.Y(2)), 7.25, 1e-3);
}

TEST(ElevationPoints, EndACutThatIsDeeperThanTheOverhangAtTheWall) {
  for (const Member type : {Member::kCommon, Member::kHip, Member::kValley}) {
    ElevationCase c;
    c.Type = type;
    c.RoofType = static_cast<int>(type);
    c.Overhang = 2;
    c.SquareCut = true;
    const DrawnElevation drawn(c);
    EXPECT_NEAR(drawn.X(3), drawn.X(1), 1e-4);
    EXPECT_NEAR(drawn.X(4), drawn.X(3), 1e-6);
    EXPECT_LT(drawn.Y(3), drawn.Y(2));
  }
}

TEST(ElevationPoints, JoinWallAndTailWithoutOverhang) {
  ElevationCase c;
  c.Overhang = 0;
  const DrawnElevation drawn(c);
  EXPECT_EQ(drawn.X(1), drawn.X(2));
  EXPECT_EQ(drawn.Y(1), drawn.Y(2));
}

TEST(ElevationPoints, CutASeatOffAtTheRidge) {
  ElevationCase c;
  c.Slope = 0.5;
  c.Run = 24;
  const DrawnElevation drawn(c);
  EXPECT_EQ(drawn.X(7), drawn.X(0));
  EXPECT_EQ(drawn.X(8), drawn.X(7));
  EXPECT_NEAR(drawn.Y(8), drawn.Y(7), 1e-4);
}

TEST(ElevationPoints, LayOutTheKneewallsNotchLikeTheWalls) {
  ElevationCase c;
  c.Kneewall = 60;
  const DrawnElevation drawn(c);
  EXPECT_NEAR(drawn.X(27) - drawn.X(1), 60, 1e-3);
  EXPECT_NEAR(drawn.Y(27) - drawn.Y(1), 30, 1e-3);
  EXPECT_NEAR(drawn.Y(27) - drawn.Y(28), drawn.Y(1) - drawn.Y(5), 1e-3);
  EXPECT_NEAR(drawn.X(29) - drawn.X(28), drawn.X(7) - drawn.X(5), 1e-3);
  EXPECT_NEAR(drawn.Y(28) - drawn.Y(30), drawn.Y(5) - drawn.Y(6), 1e-3);
  EXPECT_EQ(drawn.X(31), drawn.X(0));
  EXPECT_EQ(drawn.Y(31), drawn.Y(29));
}

TEST(ElevationPoints, HangTheFasciaOfAHipRoofsCommonByItsOwnHeight) {
  ElevationCase c;
  c.RoofType = 1;
  const DrawnElevation common(c);
  EXPECT_NEAR(common.Y(2) - common.Y(3), 5.5, 1e-4);
  c.Type = Member::kHip;
  const DrawnElevation hip(c);
  EXPECT_NEAR(hip.Y(2) - hip.Y(3), 5.5 - 0.75 * 6 / 16.970562, 1e-4) << "the hip's is lowered by its drop";
}

}  // namespace
}  // namespace pitchcraft
