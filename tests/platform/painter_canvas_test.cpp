// What the painter leaves on an image.
#include "platform/painter_canvas.h"

#include <gtest/gtest.h>

#include <QImage>

#include "drawing/arial_meter.h"
#include "drawing/text_align.h"

namespace pitchcraft {
namespace {

constexpr DrawColor kWhite = 0xFFFFFF;
constexpr DrawColor kRed = 0x0000FF;

// An image of 100 x 80 pixels; its canvas has one drawing unit per pixel, y downward.
class PainterCanvasTest : public testing::Test {
 protected:
  explicit PainterCanvasTest(double ratio = 1)
      : image_(int(100 * ratio), int(80 * ratio), QImage::Format_RGB32) {
    image_.setDevicePixelRatio(ratio);
    image_.fill(Qt::black);
  }

  void Play(const DrawOp& operation, double scaleY = 1, double offsetY = 0) {
    QPainter painter(&image_);
    PainterCanvas canvas(painter, {1500, 1200, false}, meter_, 1.0 / 15);
    canvas.SetMap({1, scaleY, 0, offsetY});
    canvas.Play(Recording{operation});
  }

  int Light(int x, int y) const { return qGray(image_.pixel(x, y)); }

  /// The smallest box, in pixels, around everything brighter than a third.
  QRect Inked() const {
    QRect box;
    for (int y = 0; y < image_.height(); ++y) {
      for (int x = 0; x < image_.width(); ++x) {
        if (Light(x, y) > 85) box |= QRect(x, y, 1, 1);
      }
    }
    return box;
  }

  QImage image_;
  ArialMeter meter_;
};

TEST_F(PainterCanvasTest, LevelHairlineIsOnePixelAndFullyLit) {
  Play(LineOp{{10, 20}, {60, 20}, {kWhite, 0, 0}});
  EXPECT_EQ(Inked().height(), 1);
  EXPECT_NEAR(Inked().left(), 10, 1);
  EXPECT_NEAR(Inked().right(), 60, 1);
  const int row = Inked().top();
  EXPECT_NEAR(row, 20, 1);
  EXPECT_EQ(Light(30, row), 255);
  EXPECT_EQ(Light(30, row - 1), 0);
  EXPECT_EQ(Light(30, row + 1), 0);
}

TEST_F(PainterCanvasTest, ColorIsRedInTheLowestByte) {
  Play(LineOp{{10, 20}, {60, 20}, {kRed, 0, 0}});
  EXPECT_EQ(image_.pixel(30, 20) & 0xFFFFFFU, 0xFF0000U);
}

TEST_F(PainterCanvasTest, ThickLineHasItsWidth) {
  Play(LineOp{{10, 40}, {60, 40}, {kWhite, 0, 6}});
  EXPECT_EQ(Inked().height(), 6);
}

TEST_F(PainterCanvasTest, DashedLineHasStrokesAndGaps) {
  Play(LineOp{{0, 20}, {100, 20}, {kWhite, 2, 0}});
  int changes = 0;
  for (int x = 1; x < 100; ++x) changes += (Light(x, 20) > 127) != (Light(x - 1, 20) > 127) ? 1 : 0;
  EXPECT_GE(changes, 15);
  EXPECT_LE(changes, 40);
}

TEST_F(PainterCanvasTest, MapTurnsTheDrawingUpright) {
  Play(LineOp{{10, 60}, {60, 60}, {kWhite, 0, 0}}, -1, 80);
  EXPECT_NEAR(Inked().top(), 20, 1);
}

TEST_F(PainterCanvasTest, TextStandsAboveItsBaseLineAndAsWideAsTheTableSays) {
  TextOp text{{10, 50}, "12' 6\"", 30, 0, kAlignLeftBase, kWhite, "Arial", false, false};
  Play(text);
  const double width = meter_.TextWidth(text.Text, {"Arial", 30});
  EXPECT_NEAR(Inked().left(), 11, 2);
  EXPECT_NEAR(Inked().right(), 10 + width, 4);
  EXPECT_NEAR(Inked().bottom(), 49, 1);
  EXPECT_NEAR(Inked().top(), 50 - 30 * kCapitalPerCell, 1.5);
}

TEST_F(PainterCanvasTest, CentredTextStandsAboutItsAnchor) {
  Play(TextOp{{50, 40}, "HOH", 20, 0, kAlignCenterBase, kWhite, "Arial", false, false});
  EXPECT_NEAR((Inked().left() + Inked().right() + 1) / 2.0, 50, 1);
}

TEST_F(PainterCanvasTest, TextTurnedLeftRunsUpward) {
  Play(TextOp{{50, 70}, "HHHH", 14, 90, kAlignLeftBase, kWhite, "Arial", false, false});
  EXPECT_GT(Inked().height(), 2 * Inked().width());
  EXPECT_NEAR(Inked().bottom(), 69, 2);
  EXPECT_NEAR(Inked().right(), 49, 1);
  EXPECT_LT(Inked().top(), 40);
}

TEST_F(PainterCanvasTest, FontSizeIsExactBetweenWholePixels) {
  const std::string text = "HHHHHHHH";
  Play(TextOp{{2, 40}, text, 10, 0, kAlignLeftBase, kWhite, "Arial", false, false});
  const int at10 = Inked().width();
  image_.fill(Qt::black);
  QPainter painter(&image_);
  PainterCanvas canvas(painter, {1500, 1200, false}, meter_, 1.0 / 15);
  canvas.SetMap({1.1, 1.1, 0, 0});
  canvas.Play(TextOp{{2, 36}, text, 10, 0, kAlignLeftBase, kWhite, "Arial", false, false});
  painter.end();
  EXPECT_NEAR(Inked().width(), at10 * 1.1, 1.5);
}

TEST_F(PainterCanvasTest, BoldIsHeavier) {
  const auto ink = [this](bool bold) {
    image_.fill(Qt::black);
    Play(TextOp{{10, 50}, "Run", 30, 0, kAlignLeftBase, kWhite, "Arial", bold, false});
    long sum = 0;
    for (int y = 0; y < 80; ++y) {
      for (int x = 0; x < 100; ++x) sum += Light(x, y);
    }
    return sum;
  };
  EXPECT_GT(ink(true), 1.2 * double(ink(false)));
}

TEST_F(PainterCanvasTest, SolidFillCoversItsInside) {
  Play(FillOp{{{10, 10}, {50, 10}, {50, 50}, {10, 50}}, {kRed, 0}});
  EXPECT_EQ(image_.pixel(30, 30) & 0xFFFFFFU, 0xFF0000U);
  EXPECT_EQ(image_.pixel(60, 30) & 0xFFFFFFU, 0U);
}

TEST_F(PainterCanvasTest, HatchCoversPartOfItsInsideAndNothingElse) {
  Play(FillOp{{{10, 10}, {50, 10}, {50, 50}, {10, 50}}, {kWhite, 2}});
  int lit = 0;
  for (int y = 11; y < 49; ++y) {
    for (int x = 11; x < 49; ++x) lit += Light(x, y) > 100 ? 1 : 0;
  }
  EXPECT_GT(lit, 38 * 38 / 10);
  EXPECT_LT(lit, 38 * 38 / 2);
  EXPECT_TRUE(QRect(9, 9, 43, 43).contains(Inked()));
  // Falling: the bright lines run from the upper left to the lower right.
  int falling = 0;
  int rising = 0;
  for (int x = 15; x < 45; ++x) {
    falling += Light(x, 30) > 127 && Light(x + 1, 31) > 127 ? 1 : 0;
    rising += Light(x, 30) > 127 && Light(x + 1, 29) > 127 ? 1 : 0;
  }
  EXPECT_GT(falling, rising);
}

TEST_F(PainterCanvasTest, EllipseRectangleAndArcStayInTheirBox) {
  Play(EllipseOp{{20, 20}, {60, 40}, {kWhite, 0, 0}, {0, 1}});
  EXPECT_NEAR(Inked().width(), 41, 2);
  EXPECT_EQ(Light(40, 30), 0);
  image_.fill(Qt::black);
  Play(RectangleOp{{20, 20}, {60, 40}, 0, {kWhite, 0, 0}, {0, 1}});
  EXPECT_EQ(Light(40, 30), 0);
  EXPECT_EQ(Light(40, Inked().top()), 255);
  image_.fill(Qt::black);
  // From due east to due north: the upper right quarter.
  Play(ArcOp{{20, 20}, {60, 60}, {60, 40}, {40, 20}, {kWhite, 0, 0}});
  EXPECT_GE(Inked().left(), 38);
  EXPECT_LE(Inked().bottom(), 41);
}

TEST_F(PainterCanvasTest, NumbersBeyondAllMeasureAreHarmless) {
  Play(LineOp{{-2147483647, -2147483647}, {2147483647, 2147483647}, {kWhite, 2, 0}}, 1e300);
  Play(TextOp{{2147483647, 0}, "far", 2147483647, 33, kAlignLeftBase, kWhite, "Arial", false, false}, 1e300);
  SUCCEED();
}

class SharpCanvasTest : public PainterCanvasTest {
 protected:
  SharpCanvasTest() : PainterCanvasTest(2) {}
};

TEST_F(SharpCanvasTest, HairlineIsTwoFullPixelsAtTwiceTheRatio) {
  Play(LineOp{{10, 20}, {60, 20}, {kWhite, 0, 0}});
  EXPECT_EQ(Inked().height(), 2);
  EXPECT_EQ(Light(60, Inked().top()), 255);
  EXPECT_EQ(Light(60, Inked().bottom()), 255);
  EXPECT_NEAR(Inked().top(), 40, 1);
  EXPECT_NEAR(Inked().right(), 120, 2);
}

}  // namespace
}  // namespace pitchcraft
