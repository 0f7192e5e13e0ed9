// Lettering: what is recorded, and the box reported for each alignment and angle.
#include "drawing/text_tool.h"

#include <gtest/gtest.h>

#include "core/run_time_error.h"
#include "open_recording.h"

namespace pitchcraft {
namespace {

using testing::Recorder;

class Letters : public ::testing::Test {
 protected:
  Letters() {
    text.FontHeight = 100;
    text.BoundsChanged = [this](double left, double top, double right, double bottom) {
      minX = std::min({minX, left, right});
      maxX = std::max({maxX, left, right});
      minY = std::min({minY, top, bottom});
      maxY = std::max({maxY, top, bottom});
    };
  }
  void Write(int align, double angle = 0) {
    minX = minY = 1e9;
    maxX = maxY = -1e9;
    text.SetTextAlign(align);
    text.Angle = angle;
    text.TextLine("12' 6\"", Single(1000), Single(2000));
  }
  void ExpectBox(double left, double bottom, double right, double top) {
    EXPECT_NEAR(minX, left, 0.01);
    EXPECT_NEAR(minY, bottom, 0.01);
    EXPECT_NEAR(maxX, right, 0.01);
    EXPECT_NEAR(maxY, top, 0.01);
  }

  Recorder recorder;
  TextTool& text = recorder.textFX;
  double minX = 0, minY = 0, maxX = 0, maxY = 0;
};

TEST_F(Letters, RecordsTextWithItsFont) {
  text.FontName = "Arial";
  text.FontBold = true;
  text.FontItalic = true;
  text.TextColor = 65535;
  text.SetTextAlign(30);
  text.Angle = 12.5;
  text.TextLine("63.4\u00BA", Single(10.5), Single(-7.5));
  const TextOp& op = recorder.Last<TextOp>();
  EXPECT_EQ(op.Text, "63.4\u00BA");
  EXPECT_EQ(op.At, (DrawnPoint{10, -8}));
  EXPECT_EQ(op.Height, 100);
  EXPECT_EQ(op.Angle, 12.5);
  EXPECT_EQ(op.Align, 30);
  EXPECT_EQ(op.Color, 65535);
  EXPECT_EQ(op.Font, "Arial");
  EXPECT_TRUE(op.Bold);
  EXPECT_TRUE(op.Italic);
}

TEST_F(Letters, CoversItsBoxByAlignment) {
  const double w = text.TextWidth("12' 6\"");
  ASSERT_GT(w, 100);
  struct Row {
    int Align;
    double Left, Right, Bottom, Top;
  };
  // Texts with top flags hang below the anchor; those with bottom or base line flags are above it.
  const Row rows[] = {
      {0, 0, w, -100, 0},          {8, 0, w, 0, 100},   {24, 0, w, 0, 100},
      {6, -w / 2, w / 2, -100, 0}, {2, -w, 0, -100, 0}, {10, -w, 0, 0, 100},
      {14, -w / 2, w / 2, 0, 100}, {26, -w, 0, 0, 100}, {30, -w / 2, w / 2, 0, 100},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.Align);
    Write(row.Align);
    ExpectBox(1000 + row.Left, 2000 + row.Bottom, 1000 + row.Right, 2000 + row.Top);
  }
}

TEST_F(Letters, TurnsItsBoxAboutTheAnchor) {
  const double w = text.TextWidth("12' 6\"");
  Write(24, 90);
  ExpectBox(900, 2000, 1000, 2000 + w);
  Write(30, -90);
  ExpectBox(1000, 2000 - w / 2, 1100, 2000 + w / 2);
}

TEST_F(Letters, KeepsTheAnchorUpsideDown) {
  const double w = text.TextWidth("12' 6\"");
  Write(24, 180);
  ExpectBox(1000 - w, 1900, 1000, 2000);
  EXPECT_EQ(recorder.Last<TextOp>().At, (DrawnPoint{1000, 2000}));
}

TEST_F(Letters, WritesAtTheCurrentPositionWithoutOne) {
  recorder.drawFX.DrawLine(30, 40);
  text.TextLine("a");
  EXPECT_EQ(recorder.Last<TextOp>().At, (DrawnPoint{30, 40}));
  text.TextLine("a", Single(7));
  EXPECT_EQ(recorder.Last<TextOp>().At, (DrawnPoint{7, 40}));
}

TEST_F(Letters, WritesAShadowFirst) {
  text.Appearance = 1;
  text.ShadowColor = 5;
  text.TextColor = 6;
  text.TextLine("a", Single(10), Single(10));
  ASSERT_EQ(recorder.Count(), 2U);
  const TextOp& shadow = std::get<TextOp>(recorder.meta.Operations()[0]);
  EXPECT_EQ(shadow.Color, 5);
  EXPECT_EQ(shadow.At, (DrawnPoint{11, 9}));
  EXPECT_EQ(recorder.Last<TextOp>().Color, 6);
}

TEST_F(Letters, RefusesAnInfinitePlace) {
  EXPECT_THROW(text.TextLine("a", Single(1.0 / 0.0), Single(0)), RunTimeError);
}

TEST(TextFXWithoutCanvas, IsSilent) {
  TextTool text;
  text.TextLine("a", Single(1), Single(1));
  EXPECT_EQ(text.TextWidth("a"), 0);
  EXPECT_EQ(text.CanvasKind(), 0);
  EXPECT_THROW(text.SetCanvas(nullptr), RunTimeError);
}

}  // namespace
}  // namespace pitchcraft
