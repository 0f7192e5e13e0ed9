// Traces of whole plans and layouts. Each was checked by eye as a picture, and each of its jacks is compared
// with the jack in space.
#include <gtest/gtest.h>

#include "drawing/text_trace.h"
#include "hip_case.h"
#include "hip_space.h"
#include "support/golden.h"

namespace pitchcraft {
namespace {

using testing::DrawnHip;
using testing::HipCase;
using testing::HipSpace;

std::string TraceOf(const DrawnHip& drawn) {
  const ArialMeter meter;
  TextTrace trace(meter);
  trace.Play(drawn.Operations());
  return trace.Lines();
}

/// The lengths shown are those of the jacks in space, and there are no others.
void ExpectTrueLengths(const HipCase& c, const DrawnHip& drawn) {
  const HipSpace space(c);
  std::multiset<std::string> shown;
  for (const TextOp& text : drawn.All<TextOp>()) {
    if (text.Align == 26) shown.insert(text.Text);
  }
  for (const char* label : {"End Common", "Common", "Commons"}) shown.erase(label);
  std::multiset<std::string> real;
  for (const HipRoofFace face : {HipRoofFace::kEnd, HipRoofFace::kMain}) {
    for (const double place : space.PlacesOf(face)) {
      const auto length = space.LongestEdge(face, place, c.WithOverhang);
      if (length) real.insert(drawn.LengthText(*length));
    }
  }
  EXPECT_EQ(shown, real);
}

void Expect(const std::string& name, const HipCase& c) {
  SCOPED_TRACE(name);
  const DrawnHip layout(c);
  ExpectTrueLengths(c, layout);
  testing::ExpectGolden("drawings/golden/hip-layout-" + name + ".trace", TraceOf(layout));
  testing::ExpectGolden("drawings/golden/hip-plan-" + name + ".trace", TraceOf(DrawnHip(c, &DrawHipPlan)));
}

HipCase Of(JackLayout layout, bool withOverhang) {
  HipCase c;
  c.Layout = layout;
  c.WithOverhang = withOverhang;
  return c;
}

TEST(HipGolden, EqualSlopes) {
  Expect("center", Of(JackLayout::kCenter, true));
  Expect("center-from-wall", Of(JackLayout::kCenter, false));
  Expect("corners", Of(JackLayout::kCorners, true));  // the run is nine spacings
  Expect("flush-from-wall", Of(JackLayout::kCornersFlush, false));
}

TEST(HipGolden, Spacings) {
  HipCase c = Of(JackLayout::kCorners, true);
  c.Overhang = 40;  // wider than two spacings
  Expect("wide-overhang", c);
  c = Of(JackLayout::kCenter, true);
  c.Run = 36;
  c.Spacing = 48;
  Expect("wide-spacing", c);
  c.Run = 240;
  c.Spacing = 12;
  Expect("forty-feet", c);
  c.Run = 181.5;
  c.Spacing = 19.2;
  c.Layout = JackLayout::kCorners;  // its top jack stands close to the commons
  Expect("close-to-common", c);
}

TEST(HipGolden, UnequalSlopes) {
  HipCase c = Of(JackLayout::kCorners, true);
  c.EndSlope = 9;
  Expect("steeper-end", c);
  c.OverhangsEqual = true;
  Expect("steeper-end-equal", c);
  c.EndSlope = 4;
  c.Layout = JackLayout::kCornersFlush;
  Expect("flatter-end-equal", c);
  c.OverhangsEqual = false;
  c.Layout = JackLayout::kCenter;
  c.WithOverhang = false;
  Expect("flatter-end-from-wall", c);
}

TEST(HipGolden, LastCommon) {
  HipCase c = Of(JackLayout::kCorners, true);
  c.PastPeak = 5.25;
  Expect("last-common", c);
  c.EndSlope = 10;
  c.OverhangsEqual = true;
  c.PastPeak = 16;
  Expect("last-common-equal", c);
}

TEST(HipGolden, Metric) {
  HipCase c = testing::MetricHip();
  Expect("metric", c);
  c.EndSlope = 800;
  c.OverhangsEqual = true;
  c.Layout = JackLayout::kCorners;
  c.RiseOverRun = false;
  Expect("metric-degrees", c);
}

}  // namespace
}  // namespace pitchcraft
