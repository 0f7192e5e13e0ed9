// The figures in the dumps of examples/, held against the roofs that they describe: faces, walls and boards
// as planes in space, met with each other. Nothing here is computed as the program computes it.
#include <gtest/gtest.h>

#include <cmath>

#include "../core/geometry3d.h"
#include "../support/golden.h"
#include "script_runner.h"

namespace pitchcraft {
namespace {

using namespace geometry;
using geometry::RoofFace;  // a plane, not a face of the layout

// A Single carries seven digits; a run of three formulas may lose part of the last one.
constexpr double kSingleError = 3e-6;
// The product's root of two is 1.4142135; lengths along a 45-degree hip are short by 4e-8 of themselves.
constexpr double kInches = 1e-3;

/// The dumps of an example, in order.
std::vector<Json> DumpsOf(const std::string& example) {
  std::vector<Json> dumps;
  for (Json& event :
       RunScript(testing::ReadWhole(PITCHCRAFT_SOURCE_DIR "/examples/" + example + ".txt")).events) {
    if (event["event"] == "dump") dumps.push_back(std::move(event));
  }
  return dumps;
}

void ExpectNear(const Json& rafter, const char* member, double expected) {
  const double found = rafter[member].get<double>();
  EXPECT_NEAR(found, expected, std::abs(expected) * kSingleError + kInches / 10) << member;
}

/// Length on a face between two vertical planes across its fall.
double CommonLength(double slope, double from, double to) {
  const Plane face = RoofFace({0, 0, 0}, {0, 1, 0}, slope);
  return Distance({0, from, face.HeightAt({0, from, 0})}, {0, to, face.HeightAt({0, to, 0})});
}

TEST(ExampleFigures, CommonShed) {
  const Json rafter = DumpsOf("common-shed")[0]["Rafter1"];
  const double slope = 5.0 / 12, plumb = 7.25 / std::cos(std::atan(slope));
  ExpectNear(rafter, "AdjSpan", 120 - 1.5);  // it butts the whole board
  ExpectNear(rafter, "Length1", CommonLength(slope, 0, 118.5));
  ExpectNear(rafter, "Length2", CommonLength(slope, -10.5, 118.5));
  ExpectNear(rafter, "KneewallRise", 20);
  ExpectNear(rafter, "PlumbCut", plumb);
  ExpectNear(rafter, "Seat", plumb / 3 / slope);
}

TEST(ExampleFigures, DualSlope) {
  const Json dump = DumpsOf("dual-slope")[0];
  ExpectNear(dump["Rafter1"], "Length2", CommonLength(9.0 / 12, -10.5, 119.25));
  ExpectNear(dump["Rafter2"], "Length1", CommonLength(5.0 / 12, 0, 215.25));
  ExpectNear(dump["Rafter2"], "Length2", CommonLength(5.0 / 12, -16, 215.25));
  ExpectNear(dump["Rafter2"], "Heel", 7.25 / std::cos(std::atan(5.0 / 12)) - 3.5 * 5 / 12);
}

/// The hip between a main face (wall along x) and an end face (wall along y) that meet over the corner of the
/// plates; it points upward.
Line HipOf(double mainSlope, double endSlope) {
  Line hip = Intersect(RoofFace({0, 0, 0}, {0, 1, 0}, mainSlope), RoofFace({0, 0, 0}, {1, 0, 0}, endSlope));
  if (hip.direction.z < 0) hip.direction = -1 * hip.direction;
  return hip;
}

/// Plan angle to the main wall, degrees.
double PlanAngle(const Line& hip) { return Degrees(std::atan2(hip.direction.y, hip.direction.x)); }

TEST(ExampleFigures, Hip) {
  const auto dumps = DumpsOf("hip");
  const Line hip = HipOf(8.0 / 12, 8.0 / 12);
  const Vector corner{0, 0, 0}, tail = Intersect(hip, AtY(-10.5)), head = Intersect(hip, AtY(156 - 0.75));
  const Json& rafter = dumps[0]["Rafter1"];
  ExpectNear(rafter, "HipValSpan", PlanDistance(corner, Intersect(hip, AtY(156))));
  ExpectNear(rafter, "Length1", Distance(corner, head));
  ExpectNear(rafter, "Length2", Distance(tail, head));
  ExpectNear(rafter, "HipValSlope", 12 * SlopeOf(hip));
  ExpectNear(rafter, "HipDrop", DropBeside(hip, RoofFace({0, 0, 0}, {0, 1, 0}, 8.0 / 12), 0.75, {0, -1, 0}));
  ExpectNear(rafter, "HipValPlumbCut", 9.25 / std::cos(std::atan(SlopeOf(hip))));
}

TEST(ExampleFigures, HipWithASteeperEnd) {
  // Equal overhangs: the end face is pushed in until its eave lies level with the main one.
  const Json equal = DumpsOf("hip")[1]["Rafter1"];
  const double endRun = 156 * 8.0 / 12;
  EXPECT_EQ(equal["RafterType"], 16);
  ExpectNear(equal, "HipEndOverhang", 10.5);
  ExpectNear(equal, "HipEndOverhangExcess", 10.5 - 7);
  ExpectNear(equal, "HipEndDrop", 3.5);
  ExpectNear(equal, "HipEndSpan", endRun - 3.5);
  // Overhangs by the slopes: both faces start at the plates.
  const Json free = DumpsOf("hip")[2]["Rafter1"];
  const Line hip = HipOf(8.0 / 12, 1);
  ExpectNear(free, "HipEndSpan", endRun);
  ExpectNear(free, "HipEndOverhang", 7);
  ExpectNear(free, "HipAngle1", PlanAngle(hip));
  ExpectNear(free, "HipValSlope", 12 * SlopeOf(hip));
  ExpectNear(free, "HipEndLength1", std::sqrt(2.0) * (endRun - 0.75 * 8 / 12));
  // The product lowers a bastard hip by more than the end face asks for: by the sine of its plan angle,
  // twice.
  const double drop = DropBeside(hip, RoofFace({0, 0, 0}, {1, 0, 0}, 1), 0.75, {-1, 0, 0});
  const double sine = std::sin(Radians(PlanAngle(hip)));
  ExpectNear(free, "HipDrop", drop / (sine * sine));
}

TEST(ExampleFigures, BastardHip) {
  const auto dumps = DumpsOf("bastard-hip");
  const Line hip = HipOf(10.0 / 12, 8.5 / 12);
  const Json& free = dumps[0]["Rafter1"];
  const Vector top = Intersect(hip, AtY(144));
  ExpectNear(free, "HipEndSpan", top.x);
  ExpectNear(free, "HipValSpan", PlanDistance({0, 0, 0}, top));
  ExpectNear(free, "HipAngle1", PlanAngle(hip));
  ExpectNear(free, "HipAngle2", 90 - PlanAngle(hip));
  ExpectNear(free, "HipEndOverhang", 10.5 * 10 / 8.5);
  const Json& equal = dumps[1]["Rafter1"];
  ExpectNear(equal, "HipEndOverhangExcess", 10.5 - 10.5 * 10 / 8.5);
  ExpectNear(equal, "HipEndOverhang", 10.5);
}

TEST(ExampleFigures, Valleys) {
  const Json valley = DumpsOf("valley")[0]["Rafter1"];
  const Line line = HipOf(7.0 / 12, 7.0 / 12);
  ExpectNear(valley, "HipValSpan", PlanDistance({0, 0, 0}, Intersect(line, AtY(138))));
  ExpectNear(valley, "HipValSlope", 12 * SlopeOf(line));
  // The head stands half the diagonal of the ridge's thickness back, in plan.
  ExpectNear(valley, "AdjValSpan", PlanDistance({0, 0, 0}, Intersect(line, AtY(138 - 0.75))));
  const Json pair = DumpsOf("unequal-span-valley")[0];
  EXPECT_EQ(pair["Rafter1"]["RafterType"], 15);
  EXPECT_EQ(pair["Rafter2"]["RafterType"], 14);
  ExpectNear(pair["Rafter1"], "HipValSpan", 108 * std::sqrt(2.0));
  ExpectNear(pair["Rafter2"], "HipValSpan", 168 * std::sqrt(2.0));
}

TEST(ExampleFigures, Bay) {
  const auto dumps = DumpsOf("bay");
  // Front wall along x at y = 0, the house behind it; the side turns 45 degrees away at the origin.
  const Plane front = RoofFace({0, 0, 0}, {0, 1, 0}, 0.5);
  const Plane side = RoofFace({0, 0, 0}, {1, 1, 0}, 0.5);
  const Line hip = Intersect(front, side);
  for (std::size_t solved = 0; solved < 4; ++solved) {
    const Json& rafter = dumps[solved]["Rafter1"];
    EXPECT_EQ(dumps[solved]["document"]["BayEditMode"], solved + 1);
    ExpectNear(rafter, "Projection", 30);
    ExpectNear(rafter, "Face", 60);
    ExpectNear(rafter, "Back", 120);
    ExpectNear(rafter, "BayAngle", 45);
    ExpectNear(rafter, "BaySide", 30 * std::sqrt(2.0));
    ExpectNear(rafter, "Length1", CommonLength(0.5, 0, 28.5));
    ExpectNear(rafter, "HipValSpan", PlanDistance({0, 0, 0}, Intersect(hip, AtY(30))));
    ExpectNear(rafter, "HipValSlope", 12 * SlopeOf(hip));
    ExpectNear(rafter, "HipLength1", Distance({0, 0, 0}, Intersect(hip, AtY(28.5))));
    ExpectNear(rafter, "LedgerSpan", 30 * std::sqrt(2.0));
  }
}

TEST(ExampleFigures, DutchHip) {
  const auto dumps = DumpsOf("dutch-hip");
  const Line hip = HipOf(0.5, 0.5);
  ExpectNear(dumps[0]["Rafter2"], "Length1", CommonLength(0.5, 0, 58.5));
  ExpectNear(dumps[0]["Rafter2"], "HipValSpan", PlanDistance({0, 0, 0}, Intersect(hip, AtY(60))));
  ExpectNear(dumps[0]["Rafter2"], "HipLength1", Distance({0, 0, 0}, Intersect(hip, AtY(58.5))));
  ExpectNear(dumps[1]["Rafter2"], "RidgeThickness", 0);
  ExpectNear(dumps[1]["Rafter2"], "Length1", CommonLength(0.5, 0, 60));
  ExpectNear(dumps[2]["Rafter2"], "HipLength1", Distance({0, 0, 0}, Intersect(hip, AtY(60))));
}

TEST(ExampleFigures, Octagon) {
  const auto dumps = DumpsOf("octagon");
  // Two neighbouring faces turned by 45 degrees, the middle of the house at the origin.
  const Vector first{0, -144, 0}, second{144 * std::sin(Radians(45)), -144 * std::cos(Radians(45)), 0};
  const Line hip = Intersect(RoofFace(first, -1 * first, 0.5), RoofFace(second, -1 * second, 0.5));
  const Vector corner = Intersect(hip, AtHeight(0)), peak = Intersect(hip, AtHeight(72));
  const Json& rafter = dumps[0]["Rafter1"];
  ExpectNear(rafter, "HipValSpan", PlanDistance(corner, peak));
  ExpectNear(rafter, "HipValSlope", 12 * SlopeOf(hip));
  ExpectNear(rafter, "Length1", Distance(corner, peak));
  ExpectNear(rafter, "HipEndSpan", 2 * PlanDistance(corner, first));
  ExpectNear(dumps[2]["Rafter1"], "HipValSpan", 156);
  ExpectNear(dumps[2]["Rafter1"], "Span", 156 * std::cos(Radians(22.5)));
}

TEST(ExampleFigures, BlindValley) {
  const auto dumps = DumpsOf("blind-valley");
  // The addition's ridge is as high as half its span at 6 in 12, and runs back until the main roof is as
  // high.
  const auto ridge = [](double halfSpan, double mainSlope) {
    const double height = RoofFace({0, 0, 0}, {0, 1, 0}, 0.5).HeightAt({0, halfSpan, 0});
    return Intersect(Line{{0, 0, height}, {1, 0, 0}}, RoofFace({0, 0, 0}, {1, 0, 0}, mainSlope)).x;
  };
  const auto field = [](const Json& dump, const char* name) {
    return dump["sheet"][name]["Value"].get<double>();
  };
  EXPECT_NEAR(field(dumps[1], "FtRidge(0)"), 120, kInches);
  EXPECT_NEAR(dumps[1]["sheet"]["LWSlope(2)"]["LeftValue"].get<double>(), 7.2, 1e-5);
  EXPECT_NEAR(field(dumps[1], "FtRidge(1)"), ridge(144 - 0.75, 7.2 / 12), kInches);
  const double slope = dumps[2]["sheet"]["LWSlope(2)"]["LeftValue"].get<double>() / 12;
  EXPECT_NEAR(field(dumps[2], "FtRidge(1)"), ridge(144 - 0.75, slope), kInches);
  EXPECT_NEAR(field(dumps[2], "FtRidge(0)"), ridge(144, slope), kInches);
}

TEST(ExampleFigures, Gambrel) {
  const auto dumps = DumpsOf("gambrel");
  // The radius reaches from the middle to the end of the overhang; the break stands on the circle at 45
  // degrees.
  const double radius = 144 + 10.5, breakRun = radius * std::cos(Radians(45));
  ExpectNear(dumps[0]["Rafter2"], "Span", breakRun);
  ExpectNear(dumps[0]["Rafter1"], "Span", 144 - breakRun);
  ExpectNear(dumps[0]["Rafter2"], "RiseToSpan", radius - radius * std::sin(Radians(45)));
  const Json& custom = dumps[1];
  ExpectNear(custom["Rafter1"], "RiseToSpan", 96);
  ExpectNear(custom["Rafter2"], "RiseToSpan", 48);
  ExpectNear(dumps[2]["Rafter1"], "RidgeAllowance", 0);
  ExpectNear(dumps[3]["Rafter2"], "Heel", 5.5 / std::cos(std::atan(0.5)));
}

}  // namespace
}  // namespace pitchcraft
