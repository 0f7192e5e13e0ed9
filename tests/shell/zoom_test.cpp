// What of a drawing a view shows.
#include "shell/zoom.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <cmath>
#include <tuple>
#include <vector>

namespace pitchcraft::testing {
namespace {

constexpr QSizeF kView(800, 600);

void ExpectNear(QPointF actual, QPointF expected) {
  EXPECT_NEAR(actual.x(), expected.x(), 1e-6);
  EXPECT_NEAR(actual.y(), expected.y(), 1e-6);
}

TEST(Zoom, ShowsAllAtFirst) {
  const Zoom zoom;
  EXPECT_TRUE(zoom.ShowsAll());
  ExpectNear(zoom.ToDrawing({123, 45}), {123, 45});
}

TEST(Zoom, WhatIsUnderThePointerStays) {
  Zoom zoom;
  zoom.About({200, 150}, 2, kView);
  EXPECT_EQ(zoom.Factor(), 2);
  ExpectNear(zoom.ToDrawing({200, 150}), {200, 150});
  ExpectNear(zoom.Offset(), {-200, -150});
  zoom.About({600, 300}, 1.5, kView);
  ExpectNear(zoom.ToDrawing({600, 300}), {400, 225});
}

TEST(Zoom, NeverLessThanAllNorMoreThanTheMost) {
  Zoom zoom;
  zoom.About({10, 10}, 0.1, kView);
  EXPECT_TRUE(zoom.ShowsAll());
  ExpectNear(zoom.Offset(), {0, 0});
  zoom.About({10, 10}, 1e9, kView);
  EXPECT_EQ(zoom.Factor(), Zoom::kMost);
}

TEST(Zoom, PanStopsAtTheDrawingsEdges) {
  Zoom zoom;
  zoom.Pan({50, 50}, kView);
  ExpectNear(zoom.Offset(), {0, 0});
  zoom.About({400, 300}, 2, kView);
  zoom.Pan({-100, 40}, kView);
  ExpectNear(zoom.Offset(), {-500, -260});
  zoom.Pan({-1e6, 1e6}, kView);
  ExpectNear(zoom.Offset(), {-800, 0});
}

TEST(Zoom, AnotherSizeShowsTheSamePart) {
  Zoom zoom;
  zoom.About({800, 0}, 4, kView);
  zoom.Resize(kView, {1600, 300});
  EXPECT_EQ(zoom.Factor(), 4);
  ExpectNear(zoom.ToDrawing({0, 0}), {1200, 0});
}

TEST(Zoom, AViewOfNoSizeIsHarmless) {
  Zoom zoom;
  zoom.About({0, 0}, 2, {0, 0});
  zoom.Resize({0, 0}, kView);
  ExpectNear(zoom.Offset(), {0, 0});
}

// The hands of an hour: the drawing covers the view after each step.
RC_GTEST_PROP(ZoomProperty, TheDrawingCoversTheView, ()) {
  Zoom zoom;
  const auto steps = *rc::gen::container<std::vector<std::tuple<int, int, int>>>(
      rc::gen::tuple(rc::gen::inRange(-900, 900), rc::gen::inRange(-700, 700), rc::gen::inRange(-3, 4)));
  for (const auto& [x, y, turn] : steps) {
    if (turn == 0) {
      zoom.Pan(QPointF(x, y), kView);
    } else {
      zoom.About(QPointF(x, y), std::exp2(turn), kView);
    }
    const QPointF corner = zoom.ToDrawing({0, 0});
    const QPointF far = zoom.ToDrawing({kView.width(), kView.height()});
    RC_ASSERT(corner.x() >= -1e-6 && corner.y() >= -1e-6);
    RC_ASSERT(far.x() <= kView.width() + 1e-6 && far.y() <= kView.height() + 1e-6);
    RC_ASSERT(zoom.Factor() >= 1 && zoom.Factor() <= Zoom::kMost);
  }
}

}  // namespace
}  // namespace pitchcraft::testing
