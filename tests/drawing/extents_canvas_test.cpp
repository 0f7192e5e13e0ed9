// How far a drawing reaches.
#include "drawing/extents_canvas.h"

#include <gtest/gtest.h>

#include "drawing/arial_meter.h"

namespace pitchcraft {
namespace {

class Extents : public ::testing::Test {
 protected:
  ArialMeter meter;
  ExtentsCanvas canvas{{}, meter};
};

TEST_F(Extents, AreEmptyAtFirst) { EXPECT_TRUE(canvas.Empty()); }

TEST_F(Extents, TakeInLinesAndBoxes) {
  canvas.Play(LineOp{{10, 20}, {-5, 60}, {}});
  canvas.Play(RectangleOp{{0, 0}, {90, 1}, 0, {}, {}});
  EXPECT_FALSE(canvas.Empty());
  EXPECT_EQ(canvas.Left(), -5);
  EXPECT_EQ(canvas.Right(), 90);
  EXPECT_EQ(canvas.Top(), 0);
  EXPECT_EQ(canvas.Bottom(), 60);
}

TEST_F(Extents, TakeInTheWholeCellOfAText) {
  canvas.Play(TextOp{{0, 0}, "0", 1117, 0, 24, 0, "Arial", false, false});
  EXPECT_NEAR(canvas.Bottom(), 905, 1e-6);
  EXPECT_NEAR(canvas.Top(), -212, 1e-6);
  EXPECT_NEAR(canvas.Right(), 1000.0 * 1139 / 2048, 1e-6);
}

TEST_F(Extents, TurnTextsWithTheirAngle) {
  canvas.Play(TextOp{{0, 0}, "0", 1117, 90, 24, 0, "Arial", false, false});
  EXPECT_NEAR(canvas.Left(), -905, 1e-4);
  EXPECT_NEAR(canvas.Right(), 212, 1e-4);
  EXPECT_NEAR(canvas.Bottom(), 1000.0 * 1139 / 2048, 1e-4);
}

}  // namespace
}  // namespace pitchcraft
