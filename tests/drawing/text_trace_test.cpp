// One line for each shape, in drawing units.
#include "drawing/text_trace.h"

#include <gtest/gtest.h>

#include "drawing/arial_meter.h"

namespace pitchcraft {
namespace {

TEST(TextTrace, WritesOneLineAFigure) {
  const ArialMeter meter;
  TextTrace trace(meter);
  const Recording recording = {
      LineOp{{1, -2}, {30, 40}, {255, 2, 0}},
      TextOp{{5, 6}, "12' 6\"", 41, 26.5650512, 30, 65535, "Arial", true, false},
      FillOp{{{0, 0}, {10, 0}, {0, 10}}, {7, 2}},
      EllipseOp{{0, 0}, {4, 4}, {1, 0, 0}, {2, 1}},
      ArcOp{{0, 0}, {4, 4}, {4, 2}, {2, 4}, {1, 0, 0}},
      RectangleOp{{0, 0}, {4, 5}, 3, {1, 0, 2}, {2, 1}},
  };
  trace.Play(recording);
  EXPECT_EQ(trace.Lines(),
            "line 1,-2 30,40 color 255 style 2 width 0\n"
            "text 5,6 [12' 6\"] height 41 angle 26.57 align 30 color 65535 Arial bold\n"
            "fill 0,0 10,0 0,10 color 7 style 2\n"
            "ellipse 0,0 4,4 fill 2 style 1 color 1 style 0 width 0\n"
            "arc 0,0 4,4 4,2 2,4 color 1 style 0 width 0\n"
            "rectangle 0,0 4,5 corner 3 fill 2 style 1 color 1 style 0 width 2\n");
}

}  // namespace
}  // namespace pitchcraft
