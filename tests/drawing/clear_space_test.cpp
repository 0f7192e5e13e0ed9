// Whether there is room for a text among lines and other texts.
#include "drawing/clear_space.h"

#include <gtest/gtest.h>

#include "drawing/arial_meter.h"

namespace pitchcraft {
namespace {

// Ten digits: 556 wide for a cell of 111.7, and 71.6 high above the base line.
TextOp Text(int x, int y, double angle = 0, int align = 24) {
  return {{x, y}, "0000000000", 112, angle, align, 0, "Arial", false, false};
}

bool Clear(const DrawOp& drawn, const TextOp& text, double margin = 0) {
  return IsClear({drawn}, ArialMeter(), text, margin);
}

LineOp Line(int x1, int y1, int x2, int y2) { return {{x1, y1}, {x2, y2}, {}}; }

TEST(ClearSpace, IsClearOfNothing) { EXPECT_TRUE(IsClear({}, ArialMeter(), Text(0, 0), 100)); }

TEST(ClearSpace, SeesALineAcross) {
  EXPECT_FALSE(Clear(Line(-100, 30, 1000, 40), Text(0, 0)));
  EXPECT_FALSE(Clear(Line(100, 30, 110, 35), Text(0, 0))) << "a line inside of the letters";
  EXPECT_FALSE(Clear(Line(300, -500, 300, 500), Text(0, 0)));
}

TEST(ClearSpace, LetsLinesPassBeside) {
  EXPECT_TRUE(Clear(Line(-100, 80, 1000, 80), Text(0, 0)));
  EXPECT_TRUE(Clear(Line(-100, -1, 1000, -1), Text(0, 0)));
  EXPECT_TRUE(Clear(Line(570, -500, 570, 500), Text(0, 0)));
  EXPECT_TRUE(Clear(Line(-200, 0, 0, 200), Text(0, 0)))
      << "a slope that cuts the corner of the box's surroundings";
}

TEST(ClearSpace, KeepsTheMargin) {
  EXPECT_TRUE(Clear(Line(-100, 80, 1000, 80), Text(0, 0), 5));
  EXPECT_FALSE(Clear(Line(-100, 80, 1000, 80), Text(0, 0), 20));
}

TEST(ClearSpace, TurnsWithTheText) {
  EXPECT_FALSE(Clear(Line(-40, -100, -40, 1000), Text(0, 0, 90)));
  EXPECT_TRUE(Clear(Line(40, -100, 40, 1000), Text(0, 0, 90)));
}

TEST(ClearSpace, ReadsTheAlignment) {
  EXPECT_TRUE(Clear(Line(-100, 30, 1000, 30), Text(0, 0, 0, 0))) << "hangs below its anchor";
  EXPECT_FALSE(Clear(Line(-100, -60, 1000, -60), Text(0, 0, 0, 0)));
  EXPECT_FALSE(Clear(Line(-200, -100, -200, 100), Text(0, 0, 0, 30)));
}

TEST(ClearSpace, SeesOtherTexts) {
  EXPECT_FALSE(Clear(Text(300, 30), Text(0, 0)));
  EXPECT_TRUE(Clear(Text(600, 0), Text(0, 0)));
  EXPECT_TRUE(Clear(Text(0, 90), Text(0, 0)));
  EXPECT_FALSE(Clear(Text(250, -200, 90), Text(0, 0)));
}

TEST(ClearSpace, DividesTurnedTextsByTheirOwnEdges) {
  // Their upright boxes overlap, but the letters do not.
  EXPECT_TRUE(Clear(Text(0, 0, 45), Text(150, 0, 45)));
}

}  // namespace
}  // namespace pitchcraft
