// Traces of whole drawings. Each was checked by eye as a picture, and the geometry tests compare its outline
// with the wood.
#include <gtest/gtest.h>

#include "drawing/text_trace.h"
#include "elevation_case.h"
#include "support/golden.h"

namespace pitchcraft {
namespace {

using testing::DrawnElevation;
using testing::ElevationCase;

std::string TraceOf(const DrawnElevation& drawn) {
  const ArialMeter meter;
  TextTrace trace(meter);
  trace.Play(drawn.Operations());
  return trace.Lines();
}

ElevationCase Of(Member type, int roof) {
  ElevationCase c;
  c.Type = type;
  c.RoofType = roof;
  return c;
}

void Expect(const std::string& name, const ElevationCase& c) {
  testing::ExpectGolden("drawings/golden/" + name + ".trace", TraceOf(DrawnElevation(c)));
}

constexpr std::pair<const char*, std::pair<Member, int>> kMembers[] = {
    {"common", {Member::kCommon, 0}},
    {"shed", {Member::kShed, 3}},
    {"hip", {Member::kHip, 1}},
    {"valley", {Member::kValley, 2}},
    {"hip-roof-common", {Member::kCommon, 1}},
};

TEST(ElevationGolden, PlumbCut) {
  for (const auto& [name, kind] : kMembers) Expect(name, Of(kind.first, kind.second));
}

TEST(ElevationGolden, SquareCut) {
  for (const auto& [name, kind] : kMembers) {
    ElevationCase c = Of(kind.first, kind.second);
    c.SquareCut = true;
    Expect(std::string(name) + "-square", c);
    c.Overhang = 2;
    Expect(std::string(name) + "-square-short", c);
  }
}

TEST(ElevationGolden, WithoutOverhang) {
  for (const auto& [name, kind] : kMembers) {
    ElevationCase c = Of(kind.first, kind.second);
    c.Overhang = 0;
    Expect(std::string(name) + "-no-overhang", c);
  }
}

TEST(ElevationGolden, LaterPages) {
  for (const auto& [name, kind] : kMembers) {
    ElevationCase c = Of(kind.first, kind.second);
    c.Tab = 1;
    Expect(std::string(name) + "-page", c);
    c.Slope = 18;  // narrow enough for the view of the ends
    c.SquareCut = true;
    Expect(std::string(name) + "-page-steep", c);
  }
}

TEST(ElevationGolden, Kneewall) {
  for (const int roof : {0, 3, 4}) {
    ElevationCase c = Of(roof == 3 ? Member::kShed : Member::kCommon, roof);
    c.Kneewall = 60;
    Expect("kneewall-roof-" + std::to_string(roof), c);
  }
  ElevationCase c;
  c.Kneewall = 120;
  c.Overhang = 0;
  c.Tab = 1;
  Expect("kneewall-near-ridge", c);
}

TEST(ElevationGolden, Heel) {
  ElevationCase c;
  c.Heel = 0;
  Expect("heel-none", c);
  c.Heel = 3.5;
  Expect("heel-locked", c);
}

TEST(ElevationGolden, Level) {
  ElevationCase c;
  c.Slope = 0;
  Expect("level", c);
}

TEST(ElevationGolden, Degrees) {
  ElevationCase c = Of(Member::kHip, 1);
  c.RiseOverRun = false;
  Expect("hip-degrees", c);
}

TEST(ElevationGolden, Metric) {
  ElevationCase c = testing::Metric();
  Expect("metric-common", c);
  c.Type = Member::kHip;
  c.RoofType = 1;
  c.SquareCut = true;
  Expect("metric-hip-square", c);
}

TEST(ElevationGolden, SmallAndLargePicture) {
  ElevationCase c;
  c.Width = 5000;
  c.Height = 5500;
  Expect("picture-small", c);
  c.Width = 24000;
  c.Height = 14000;
  Expect("picture-large", c);
}

TEST(ElevationGolden, IsTheSameDrawnTwice) {
  const ElevationCase c;
  EXPECT_EQ(TraceOf(DrawnElevation(c)), TraceOf(DrawnElevation(c)));
}

}  // namespace
}  // namespace pitchcraft
