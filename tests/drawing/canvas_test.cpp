// What a canvas passes to its back-end: mapped shapes, pens only when they change, dashes that can be seen,
// and texts by the left end of their base line.
#include "drawing/canvas.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "drawing/arial_meter.h"

namespace pitchcraft {
namespace {

class Notes : public Canvas {
 public:
  explicit Notes(const TextMeter& meter, double unitsPerTwip = 1)
      : Canvas({1000, 1000}, meter, unitsPerTwip) {}

  int pens = 0;
  CanvasPen pen;
  std::vector<double> dashes;
  CanvasPoint from, to, third, fourth;
  CanvasText text;
  std::vector<CanvasPoint> points;
  DrawnBrush brush;

 private:
  void doPen(const CanvasPen& used) override {
    ++pens;
    pen = used;
    dashes.assign(used.Dashes.begin(), used.Dashes.end());
  }
  void doLine(CanvasPoint a, CanvasPoint b) override {
    from = a;
    to = b;
  }
  void doText(const CanvasText& set) override { text = set; }
  void doFill(std::span<const CanvasPoint> corners, const DrawnBrush& used) override {
    points.assign(corners.begin(), corners.end());
    brush = used;
  }
  void doEllipse(CanvasPoint a, CanvasPoint b, const DrawnBrush&) override { doLine(a, b); }
  void doArc(CanvasPoint a, CanvasPoint b, CanvasPoint start, CanvasPoint end) override {
    doLine(a, b);
    third = start;
    fourth = end;
  }
  void doRectangle(CanvasPoint a, CanvasPoint b, CanvasPoint corner, const DrawnBrush&) override {
    doLine(a, b);
    third = corner;
  }
};

class CanvasTest : public ::testing::Test {
 protected:
  static void ExpectPoint(CanvasPoint point, double x, double y) {
    EXPECT_NEAR(point.X, x, 1e-9);
    EXPECT_NEAR(point.Y, y, 1e-9);
  }
  ArialMeter meter;
  Notes notes{meter};
};

// Half the size, y downward, origin at (10, 500).
constexpr CanvasMap kHalf = {0.5, -0.5, 10, 500};

TEST_F(CanvasTest, MapsOnce) {
  notes.SetMap(kHalf);
  notes.Play(LineOp{{0, 0}, {100, 200}, {}});
  ExpectPoint(notes.from, 10, 500);
  ExpectPoint(notes.to, 60, 400);
}

TEST_F(CanvasTest, ChangesPensOnlyWhenTheyDiffer) {
  const Recording lines = {LineOp{{}, {}, {1, 0, 0}}, LineOp{{}, {}, {1, 0, 0}}, LineOp{{}, {}, {2, 0, 0}},
                           LineOp{{}, {}, {2, 2, 0}}, LineOp{{}, {}, {2, 2, 1}}};
  notes.Play(lines);
  EXPECT_EQ(notes.pens, 4);
  notes.Play(lines);
  EXPECT_EQ(notes.pens, 8) << "a new recording finds an unknown pen";
}

TEST_F(CanvasTest, MakesStyleTwoLookDashed) {
  for (const int style : {1, 2}) {
    notes.Play(LineOp{{}, {}, {0, style, 0}});
    ASSERT_EQ(notes.dashes.size(), 2U) << style;
    EXPECT_GE(notes.dashes[0], 45) << "a stroke of three dots is the least that is a dash";
    EXPECT_GE(notes.dashes[1], 30);
  }
  notes.Play(LineOp{{}, {}, {0, 0, 0}});
  EXPECT_TRUE(notes.dashes.empty());
}

TEST_F(CanvasTest, KeepsDashesTheSameSizeAtAnyScale) {
  Notes screen(meter, 1.0 / 15);
  screen.SetMap({7, -7, 0, 0});
  screen.Play(LineOp{{}, {}, {0, 2, 0}});
  notes.Play(LineOp{{}, {}, {0, 2, 0}});
  EXPECT_NEAR(screen.dashes[0] * 15, notes.dashes[0], 1e-9);
}

TEST_F(CanvasTest, ScalesThePenButForTheThinnest) {
  notes.SetMap(kHalf);
  notes.Play(LineOp{{}, {}, {0, 0, 8}});
  EXPECT_EQ(notes.pen.Width, 4);
  notes.Play(LineOp{{}, {}, {0, 0, 0}});
  EXPECT_EQ(notes.pen.Width, 0);
}

TEST_F(CanvasTest, GivesTheLeftEndOfTheBaseLine) {
  notes.SetMap(kHalf);
  TextOp text{{100, 100}, "00", 200, 0, 24, 7, "Arial", false, false};
  notes.Play(text);
  const double width = 100 * kEmPerCell * 2 * 1139 / 2048;
  EXPECT_EQ(notes.text.Height, 100);
  EXPECT_NEAR(notes.text.Width, width, 1e-9);
  ExpectPoint(notes.text.Origin, 60, 450);
  text.Align = 30;
  notes.Play(text);
  ExpectPoint(notes.text.Origin, 60 - width / 2, 450);
  text.Align = 2;
  notes.Play(text);
  ExpectPoint(notes.text.Origin, 60 - width, 450 + 100 * kAscentPerCell);
  text.Align = 8;
  notes.Play(text);
  ExpectPoint(notes.text.Origin, 60, 450 - 100 * kDescentPerCell);
}

TEST_F(CanvasTest, TurnsTheBaseLineCounterClockwise) {
  notes.SetMap(kHalf);
  TextOp text{{100, 100}, "00", 200, 90, 30, 7, "Arial", false, false};
  notes.Play(text);
  EXPECT_NEAR(notes.text.Origin.X, 60, 1e-6);
  EXPECT_NEAR(notes.text.Origin.Y, 450 + notes.text.Width / 2, 1e-6) << "it reads upward";
  text.Align = 0;  // hangs from its top: the base line is right of the anchor
  notes.Play(text);
  EXPECT_NEAR(notes.text.Origin.X, 60 + 100 * kAscentPerCell, 1e-6);
  EXPECT_NEAR(notes.text.Origin.Y, 450, 1e-6);
}

TEST_F(CanvasTest, TurnsTextsTheSameWayWithYUp) {
  TextOp text{{100, 100}, "00", 200, 90, 24, 7, "Arial", false, false};
  text.Align = 30;
  notes.Play(text);
  EXPECT_NEAR(notes.text.Origin.Y, 100 - notes.text.Width / 2, 1e-6);
}

TEST_F(CanvasTest, PutsTheUpperLeftCornerFirst) {
  notes.SetMap(kHalf);
  notes.Play(EllipseOp{{0, 0}, {100, 200}, {}, {}});
  ExpectPoint(notes.from, 10, 400);
  ExpectPoint(notes.to, 60, 500);
  notes.Play(RectangleOp{{100, 200}, {0, 0}, 10, {}, {}});
  ExpectPoint(notes.from, 10, 400);
  ExpectPoint(notes.third, 5, 5);
}

TEST_F(CanvasTest, MapsArcsAndFills) {
  notes.SetMap(kHalf);
  notes.Play(ArcOp{{0, 0}, {100, 100}, {100, 50}, {50, 100}, {}});
  ExpectPoint(notes.third, 60, 475);
  ExpectPoint(notes.fourth, 35, 450);
  notes.Play(FillOp{{{0, 0}, {100, 0}, {0, 100}}, {9, 2}});
  ASSERT_EQ(notes.points.size(), 3U);
  ExpectPoint(notes.points[2], 10, 450);
  EXPECT_EQ(notes.brush, (DrawnBrush{9, 2}));
}

}  // namespace
}  // namespace pitchcraft
