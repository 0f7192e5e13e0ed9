// The pen: absolute and relative entry, the last point, and the bounds it reports.
#include "drawing/stroke_tool.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>

#include "core/run_time_error.h"
#include "open_recording.h"

namespace pitchcraft {
namespace {

using ::testing::ElementsAre;
using testing::Recorder;

struct Box {
  double Left, Top, Right, Bottom;
  bool operator==(const Box&) const = default;
};

class Strokes : public ::testing::Test {
 protected:
  Strokes() {
    pen.BoundsChanged = [this](double l, double t, double r, double b) { boxes.push_back({l, t, r, b}); };
  }
  const LineOp& Line() { return recorder.Last<LineOp>(); }
  void ExpectLine(DrawnPoint from, DrawnPoint to) {
    EXPECT_EQ(Line().From, from);
    EXPECT_EQ(Line().To, to);
  }
  void ExpectLast(double x, double y) {
    EXPECT_NEAR(pen.LastX, x, 1e-4);
    EXPECT_NEAR(pen.LastY, y, 1e-4);
  }

  Recorder recorder;
  StrokeTool& pen = recorder.drawFX;
  std::vector<Box> boxes;
};

TEST_F(Strokes, DrawsARelativeLineFromTheLastPoint) {
  pen.MoveToPoint(5, 5);
  pen.EntryMode = 1;
  pen.DrawLine(10, 20);
  ExpectLine({5, 5}, {15, 25});
  ExpectLast(15, 25);
}

TEST_F(Strokes, TakesTheStartOfFourValuesAsAbsoluteInRelativeMode) {
  pen.MoveToPoint(500, 500);
  pen.EntryMode = 1;
  pen.DrawLine(10, 20, Single(30), Single(40));
  ExpectLine({10, 20}, {40, 60});
  ExpectLast(40, 60);
}

TEST_F(Strokes, ReadsThreeValuesAsTwo) {
  pen.MoveToPoint(7, 8);
  pen.DrawLine(1, 2, Single(3), std::nullopt);
  ExpectLine({7, 8}, {1, 2});
  pen.DrawLine(4, 5, std::nullopt, Single(3));
  ExpectLine({1, 2}, {4, 5});
}

TEST_F(Strokes, DrawsAbsoluteLines) {
  pen.DrawLine(1, 2, Single(3), Single(4));
  ExpectLine({1, 2}, {3, 4});
  pen.DrawLine(9, 9);
  ExpectLine({3, 4}, {9, 9});
}

TEST_F(Strokes, AMoveLeavesNothingToSeeButCounts) {
  pen.MoveToPoint(-30, 40);
  EXPECT_EQ(recorder.Count(), 0U);
  EXPECT_THAT(boxes, ElementsAre(Box{-30, 40, -30, 40}));
}

TEST_F(Strokes, AMoveWithoutLengthWidensTheBounds) {
  recorder.meta.Attach(pen, recorder.textFX);
  pen.MoveToPoint(100, -50);
  pen.MoveToPoint(100, -50);
  EXPECT_EQ(recorder.meta.MaxX(), 100);
  EXPECT_EQ(recorder.meta.MinY(), -50);
}

TEST_F(Strokes, MovesRelativelyInRelativeMode) {
  pen.MoveToPoint(10, 10);
  pen.EntryMode = 1;
  pen.MoveToPoint(5, -5);
  ExpectLast(15, 5);
  EXPECT_EQ(boxes.back(), (Box{15, 5, 15, 5}));
}

TEST_F(Strokes, ReportsABoxAsItWasDrawn) {
  pen.DrawLine(10, 20, Single(-10), Single(-20));
  EXPECT_THAT(boxes, ElementsAre(Box{10, 20, -10, -20}));
}

TEST_F(Strokes, GathersNoRoundingErrorOverAThousandSteps) {
  pen.MoveToPoint(0, 0);
  pen.EntryMode = 1;
  for (int step = 0; step < 1000; ++step) pen.DrawLine(0.1, 0);
  EXPECT_NEAR(pen.LastX, 100, 0.01);
  EXPECT_NE(pen.LastX, 100);  // it is a Single
  EXPECT_EQ(Line().To, (DrawnPoint{100, 0}));
}

TEST_F(Strokes, RoundsHalvesToTheEvenUnit) {
  pen.DrawLine(0.5, 1.5, Single(2.5), Single(-0.5));
  ExpectLine({0, 2}, {2, 0});
}

TEST_F(Strokes, CarriesColourStyleAndWidth) {
  pen.SetPenColor(255);
  pen.SetDrawStyle(2);
  pen.SetDrawWidth(3);
  pen.DrawLine(1, 1);
  EXPECT_EQ(Line().Pen, (DrawnPen{255, 2, 3}));
  EXPECT_EQ(pen.PenColor(), 255);
  EXPECT_EQ(pen.DrawStyle(), 2);
  EXPECT_EQ(pen.DrawWidth(), 3);
}

TEST_F(Strokes, TurnsAPolarLineFromXTowardsY) {
  pen.MoveToPoint(10, 10);
  pen.EntryMode = 1;  // does not matter here
  pen.DrawPolarLine(90, 100);
  ExpectLine({10, 10}, {10, 110});
  pen.DrawPolarLine(30, 100, Single(0), Single(0));
  ExpectLine({0, 0}, {87, 50});
  pen.DrawPolarLine(0, 10, Single(50), std::nullopt);  // a start needs both coordinates
  ExpectLine({87, 50}, {97, 50});
}

TEST_F(Strokes, ProjectsAModelOnThreeAxes) {
  pen.DrawLine3D(0, 0, 0, Single(100), Single(0), Single(0));
  ExpectLine({0, 0}, {87, 50});
  pen.DrawLine3D(0, 0, 0, Single(0), Single(100), Single(0));
  ExpectLine({0, 0}, {0, 100});
  pen.DrawLine3D(0, 0, 0, Single(0), Single(0), Single(100));
  ExpectLine({0, 0}, {87, -50});
}

TEST_F(Strokes, GoesOnFromTheLastModelPoint) {
  pen.DrawLine3D(0, 0, 0, Single(0), Single(100), Single(0));
  pen.DrawLine3D(0, 200, 0);
  ExpectLine({0, 100}, {0, 200});
  EXPECT_EQ(pen.LastY3D, 200);
  pen.EntryMode = 1;
  pen.DrawLine3D(0, 50, 0);
  ExpectLine({0, 200}, {0, 250});
  EXPECT_EQ(pen.LastY3D, 250);
}

TEST_F(Strokes, FillsAPolygonThatEndsInTheOrigin) {
  const std::array<Single, 6> points = {10, 20, 30, 20, 30, 40};
  pen.SetFillColor(77);
  pen.SetFillStyle(2);
  pen.DrawRegionFill(points);
  const FillOp& fill = recorder.Last<FillOp>();
  EXPECT_THAT(fill.Points, ElementsAre(DrawnPoint{10, 20}, DrawnPoint{30, 20}, DrawnPoint{30, 40},
                                       DrawnPoint{0, 0}, DrawnPoint{0, 0}));
  EXPECT_EQ(fill.Brush, (DrawnBrush{77, 2}));
  EXPECT_TRUE(boxes.empty()) << "a fill does not count towards the extents";
}

TEST_F(Strokes, DrawsRoundFiguresAboutTheirCentre) {
  pen.DrawCircle(10, 20, 5);
  EXPECT_EQ(recorder.Last<EllipseOp>().From, (DrawnPoint{5, 15}));
  EXPECT_EQ(recorder.Last<EllipseOp>().To, (DrawnPoint{15, 25}));
  EXPECT_EQ(boxes.back(), (Box{5, 15, 15, 25}));
  ExpectLast(10, 20);
  pen.EntryMode = 1;
  pen.DrawEllipse(10, 10, 4, 2);
  EXPECT_EQ(recorder.Last<EllipseOp>().From, (DrawnPoint{16, 28}));
  ExpectLast(20, 30);
}

TEST_F(Strokes, DrawsRectangles) {
  pen.MoveToPoint(100, 100);
  pen.DrawRectangle(1, 2, 3, 4);
  EXPECT_EQ(recorder.Last<RectangleOp>().To, (DrawnPoint{3, 4}));
  ExpectLast(3, 4);
  pen.EntryMode = 1;
  pen.DrawRoundedRectangle(10, 10, 20, 30, 6);
  EXPECT_EQ(recorder.Last<RectangleOp>().From, (DrawnPoint{13, 14}));
  EXPECT_EQ(recorder.Last<RectangleOp>().To, (DrawnPoint{33, 44}));
  EXPECT_EQ(recorder.Last<RectangleOp>().Corner, 6);
  EXPECT_EQ(boxes.back(), (Box{13, 14, 33, 44}));
}

TEST_F(Strokes, DrawsAPointAsACross) {
  pen.DrawPoint(10, 20, 4);
  ASSERT_EQ(recorder.Count(), 2U);
  ExpectLine({10, 18}, {10, 22});
  EXPECT_EQ(std::get<LineOp>(recorder.meta.Operations()[0]).From, (DrawnPoint{8, 20}));
  EXPECT_THAT(boxes, ElementsAre(Box{8, 20, 12, 20}, Box{10, 18, 10, 22}, Box{8, 18, 12, 22}));
}

TEST_F(Strokes, DrawsTheSameCrossInRelativeMode) {
  pen.EntryMode = 1;
  pen.DrawPoint(10, 20, 4);
  ExpectLine({10, 18}, {10, 22});
}

TEST_F(Strokes, TurnsAnArcTowardsMinusY) {
  pen.DrawArc(0, 0, 10, 0, std::acos(-1.0) / 2, 1);
  EXPECT_EQ(recorder.Last<ArcOp>().Start, (DrawnPoint{10, 0}));
  EXPECT_EQ(recorder.Last<ArcOp>().End, (DrawnPoint{0, -10}));
  pen.DrawArc(0, 0, 10, 0, 1, 2);
  EXPECT_EQ(boxes.back(), (Box{-5, -10, 5, 10}));
  pen.DrawArc(0, 0, 10, 0, 1, 0.5);
  EXPECT_EQ(boxes.back(), (Box{-10, -5, 10, 5}));
}

TEST_F(Strokes, RefusesWhatIsNo32BitNumber) {
  const double infinite = std::numeric_limits<double>::infinity();
  EXPECT_THROW(pen.MoveToPoint(infinite, 0), RunTimeError);
  EXPECT_THROW(pen.DrawLine(3e9, 0), RunTimeError);
  EXPECT_THROW(pen.DrawPolarLine(45, std::nan("")), RunTimeError);
  EXPECT_EQ(recorder.Count(), 0U);
}

TEST_F(Strokes, ReadsTheCanvasPosition) {
  pen.DrawLine(10, 20);
  EXPECT_EQ(pen.CurrentX(), 10);
  EXPECT_EQ(pen.CurrentY(), 20);
  pen.EntryMode = 1;
  pen.SetCurrentX(5);
  EXPECT_EQ(pen.CurrentX(), 15);
  pen.EntryMode = 0;
  pen.SetCurrentY(5);
  EXPECT_EQ(pen.CurrentY(), 5);
}

TEST_F(Strokes, ClearsItsCanvas) {
  pen.DrawLine(10, 20);
  pen.Clear();
  EXPECT_EQ(recorder.Count(), 0U);
}

TEST(StrokesWithoutCanvas, IsSilent) {
  StrokeTool pen;
  int reports = 0;
  pen.BoundsChanged = [&](double, double, double, double) { ++reports; };
  const std::array<Single, 4> points = {1, 2, 3, 4};
  pen.MoveToPoint(1, 1);
  pen.DrawLine(1, 1);
  pen.DrawPolarLine(1, 1);
  pen.DrawLine3D(1, 1, 1);
  pen.DrawRegionFill(points);
  pen.DrawRectangle(1, 1, 2, 2);
  pen.DrawPoint(1, 1, 1);
  pen.DrawArc(1, 1, 1, 0, 1, 1);
  pen.Clear();
  EXPECT_EQ(pen.CurrentX(), 0);
  EXPECT_EQ(pen.LastX, 0);
  EXPECT_EQ(pen.CanvasKind(), 0);
  EXPECT_EQ(StrokeTool::DrawPolygon(), 0);
  EXPECT_EQ(reports, 0);
}

TEST(StrokesWithoutCanvas, RefusesToTakeNone) { EXPECT_THROW(StrokeTool().SetCanvas(nullptr), RunTimeError); }

TEST(StrokesWithoutCanvas, IsAnErrorOnceThereWasOne) {
  Recorder recorder;
  recorder.drawFX.Destroy();
  EXPECT_THROW(recorder.drawFX.DrawLine(1, 1), RunTimeError);
}

}  // namespace
}  // namespace pitchcraft
