// Dimension lines: directions, extension lines, arrows, and the place of the text.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>

#include "drawing/arial_meter.h"
#include "drawing/drafting_board.h"

namespace pitchcraft {
namespace {

constexpr double kPi = 3.14159265358979;

struct Stroke {
  double X1, Y1, X2, Y2;
};

/// Gap 12, arrow 16, leg 16, text 24 high; one drawing unit is one unit of length.
class DimensionTest : public ::testing::Test {
 protected:
  DimensionTest() {
    board.DrawScale = 1;
    board.BeginDrawing(0, 0xFFFFFF);
  }

  void Draw(int kind, PointRecord p1, PointRecord p2, int outside = 0, int mode = 0, int flag = 0,
            std::optional<std::string> text = {}) {
    board.BeginDrawing(0, 0xFFFFFF);
    board.Pts(1) = p1;
    board.Pts(2) = p2;
    board.Dimension2(kind, 1, 2, 12, 16, 16, 24, outside, mode, flag, std::move(text));
  }
  Stroke At(std::size_t stroke) {
    const auto number = [&](std::size_t at) {
      return double{std::get<Single>(board.DimensionPoints.at(at))};
    };
    return {number(stroke * 4), number(stroke * 4 + 1), number(stroke * 4 + 2), number(stroke * 4 + 3)};
  }
  void ExpectStroke(std::size_t stroke, Stroke expected) {
    const Stroke s = At(stroke);
    EXPECT_NEAR(s.X1, expected.X1, 1e-3) << "stroke " << stroke;
    EXPECT_NEAR(s.Y1, expected.Y1, 1e-3) << "stroke " << stroke;
    EXPECT_NEAR(s.X2, expected.X2, 1e-3) << "stroke " << stroke;
    EXPECT_NEAR(s.Y2, expected.Y2, 1e-3) << "stroke " << stroke;
  }
  std::size_t Strokes() {
    std::size_t count = 0;
    for (const DrawOp& op : board.Recorder.Operations()) count += std::holds_alternative<LineOp>(op) ? 1 : 0;
    return count;
  }
  const TextOp& Text() { return std::get<TextOp>(board.Recorder.Operations().back()); }
  double Width(const std::string& text) { return meter.TextWidth(text, {"Arial", 24}); }

  ArialMeter meter;
  DraftingBoard board{meter, [](double length) { return std::to_string(std::lround(length)); }};
};

TEST_F(DimensionTest, MeasuresByKind) {
  Draw(1, {0, 0}, {300, 400});
  EXPECT_EQ(Text().Text, "500");
  Draw(2, {0, 0}, {300, 400});
  EXPECT_EQ(Text().Text, "300");
  Draw(3, {0, 0}, {300, 400});
  EXPECT_EQ(Text().Text, "400");
  EXPECT_EQ(board.DimensionText(1, 1, 2), "500");
}

TEST_F(DimensionTest, MeasuresInUnitsOfLength) {
  board.DrawScale = 10;
  Draw(2, {0, 0}, {1230, 0});
  EXPECT_EQ(Text().Text, "123");
  EXPECT_NEAR(At(0).X1, 0, 1e-4);
  EXPECT_NEAR(At(1).X1, 123, 1e-4) << "the list is in units of length";
}

TEST_F(DimensionTest, WritesATextThatIsGiven) {
  Draw(2, {0, 0}, {300, 0}, 0, 0, 0, "Run");
  EXPECT_EQ(Text().Text, "Run");
}

TEST_F(DimensionTest, DrawsNoEmptyTextButRecordsIt) {
  Draw(2, {0, 0}, {300, 0}, 0, 0, 0, "");
  EXPECT_TRUE(std::holds_alternative<LineOp>(board.Recorder.Operations().back()));
  EXPECT_EQ(board.DimensionPoints.size(), Strokes() * 4 + 5);
}

// Lines.

TEST_F(DimensionTest, DrawsExtensionLinesPastTheDimensionLine) {
  Draw(2, {0, 0}, {300, 0});
  ExpectStroke(0, {0, 12, 0, 44});  // gap 12, leg 16, arrow 16
  ExpectStroke(1, {300, 12, 300, 44});
  ExpectStroke(2, {0, 28, 300, 28});
  EXPECT_EQ(Strokes(), 7U);
  EXPECT_NEAR(board.Pts(33).X, 0, 1e-4);
  EXPECT_NEAR(board.Pts(33).Y, 28, 1e-4);
}

TEST_F(DimensionTest, BringsBothExtensionLinesToOneLevel) {
  struct Row {
    int Kind;
    PointRecord P1, P2;
    double Level;
    bool IsX;
  };
  const Row rows[] = {
      {2, {0, 50}, {300, 0}, 78, false},   // to the right: the line is above
      {2, {0, 0}, {300, 50}, 78, false},   //
      {2, {300, 50}, {0, 0}, -28, false},  // to the left: below
      {2, {300, 0}, {0, 50}, -28, false},  //
      {3, {50, 0}, {0, 300}, -28, true},   // upward: left
      {3, {0, 0}, {50, 300}, -28, true},   //
      {3, {50, 300}, {0, 0}, 78, true},    // downward: right
      {3, {0, 300}, {50, 0}, 78, true},    //
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.Level);
    Draw(row.Kind, row.P1, row.P2);
    const Stroke line = At(2);
    EXPECT_NEAR(row.IsX ? line.X1 : line.Y1, row.Level, 1e-3);
    EXPECT_NEAR(row.IsX ? line.X2 : line.Y2, row.Level, 1e-3);
  }
}

TEST_F(DimensionTest, DrawsExtensionLinesOfDifferentLengths) {
  Draw(2, {0, 50}, {300, 0});
  ExpectStroke(0, {0, 62, 0, 94});
  ExpectStroke(1, {300, 12, 300, 94});
}

TEST_F(DimensionTest, KeepsLevelLinesLevelBetweenTwoUnits) {
  for (const int kind : {2, 3}) {
    for (const auto& [p1, p2] : {std::pair<PointRecord, PointRecord>{{0.5, 0.5}, {2000.5, 2000.5}},
                                 {{2000.5, 2000.5}, {0.5, 0.5}}}) {
      Draw(kind, p1, p2);
      for (std::size_t at = 0; at < 3; ++at) {
        const auto& line = std::get<LineOp>(board.Recorder.Operations()[at]);
        EXPECT_TRUE(line.From.X == line.To.X || line.From.Y == line.To.Y)
            << "stroke " << at << " kind " << kind;
      }
    }
  }
}

TEST_F(DimensionTest, StandsSquareToAlignedPoints) {
  Draw(1, {0, 0}, {300, 400});
  // 28 away from the points, to the upper left.
  ExpectStroke(2, {-28 * 0.8, 28 * 0.6, 300 - 28 * 0.8, 400 + 28 * 0.6});
}

TEST_F(DimensionTest, PointsInAllDirectionsAligned) {
  struct Row {
    PointRecord P1, P2;
    double Degrees;
  };
  const Row rows[] = {
      {{0, 0}, {0, 300}, 90},   {{0, 300}, {0, 0}, 270},  {{0, 0}, {300, 0}, 0},     {{300, 0}, {0, 0}, 180},
      {{0, 0}, {300, 300}, 45}, {{300, 300}, {0, 0}, 45}, {{0, 300}, {300, 0}, -45}, {{5, 5}, {5, 5}, 0},
  };
  for (const Row& row : rows) {
    Draw(1, row.P1, row.P2);
    EXPECT_NEAR(Text().Angle, row.Degrees, 1e-3) << row.Degrees;
  }
}

TEST_F(DimensionTest, KeepsTheLevelForNoWidth) {
  Draw(2, {100, 0}, {100, 50});
  EXPECT_EQ(Text().Angle, 0);
  EXPECT_EQ(Text().Text, "0");
}

TEST_F(DimensionTest, DrawsEqualPointsWithArrowsOutside) {
  Draw(1, {100, 100}, {100, 100});
  EXPECT_EQ(Strokes(), 8U);
  ExpectStroke(2, {100, 128, 68, 128});
  ExpectStroke(3, {100, 128, 132, 128});
}

// Arrows.

TEST_F(DimensionTest, TurnsTheArrowsOutsideWhereThereIsNoRoom) {
  Draw(2, {0, 0}, {60, 0});  // 2.5 texts: not more
  EXPECT_EQ(Strokes(), 8U);
  ExpectStroke(2, {0, 28, -32, 28});
  ExpectStroke(3, {60, 28, 92, 28});
  Draw(2, {0, 0}, {60.1, 0});
  EXPECT_EQ(Strokes(), 7U);
}

TEST_F(DimensionTest, TurnsTheArrowsOutsideOnRequest) {
  Draw(2, {0, 0}, {300, 0}, 1);
  EXPECT_EQ(Strokes(), 8U);
}

TEST_F(DimensionTest, StartsEveryArrowStrokeAtItsTip) {
  const double along = 16 * std::cos(25 * kPi / 180);
  const double beside = 16 * std::sin(25 * kPi / 180);
  Draw(2, {0, 0}, {300, 0});
  ExpectStroke(3, {0, 28, along, 28 + beside});
  ExpectStroke(4, {0, 28, along, 28 - beside});
  ExpectStroke(5, {300, 28, 300 - along, 28 - beside});
  ExpectStroke(6, {300, 28, 300 - along, 28 + beside});
  Draw(2, {0, 0}, {300, 0}, 1);
  EXPECT_NEAR(At(4).X2, -along, 1e-3) << "outside, the heads point inward";
  EXPECT_NEAR(At(6).X2, 300 + along, 1e-3);
}

TEST_F(DimensionTest, PointsItsArrowsAtTheEndsFromRightToLeftToo) {
  // The strokes of a head inside run from the tip towards the other end; those of a head outside, away from
  // it.
  for (const int outside : {0, 1}) {
    for (const auto& [p1, p2] : {std::pair<PointRecord, PointRecord>{{0, 0}, {300, 400}},
                                 {{300, 400}, {0, 0}},
                                 {{0, 400}, {300, 0}},
                                 {{300, 0}, {0, 400}},
                                 {{300, 0}, {0, 0}}}) {
      Draw(1, p1, p2, outside);
      const std::size_t head = outside == 1 ? 4 : 3;
      const double dx = p2.X - p1.X;
      const double dy = p2.Y - p1.Y;
      for (std::size_t at = head; at < head + 2; ++at) {
        const Stroke s = At(at);
        const double towards = (s.X2 - s.X1) * dx + (s.Y2 - s.Y1) * dy;
        EXPECT_GT(outside == 1 ? -towards : towards, 0) << p1.X << "," << p1.Y << " outside " << outside;
      }
      if (outside == 1) {
        const Stroke tail = At(2);
        EXPECT_LT((tail.X2 - tail.X1) * dx + (tail.Y2 - tail.Y1) * dy, 0)
            << "the tail leads away from the other end";
      }
    }
  }
}

// Text.

TEST_F(DimensionTest, SetsAlignedTextOneGapOverTheLine) {
  Draw(1, {0, 0}, {300, 0});
  EXPECT_EQ(Text().At, (DrawnPoint{150, 40}));
  EXPECT_EQ(Text().Align, 30);
  Draw(1, {300, 0}, {0, 0});  // the line is below; one more gap keeps the text off it
  EXPECT_EQ(Text().At, (DrawnPoint{150, -52}));
}

TEST_F(DimensionTest, SetsHorizontalText) {
  Draw(2, {0, 0}, {300, 0});
  EXPECT_EQ(Text().At, (DrawnPoint{150, 28})) << "on the line";
  Draw(2, {300, 0}, {0, 0}, 0, 1);
  EXPECT_EQ(Text().At, (DrawnPoint{150, -16})) << "over the line";
  EXPECT_NEAR(Text().Angle, 0, 1e-4) << "upright";
  Draw(2, {300, 0}, {0, 0}, 0, 1, 1);
  EXPECT_EQ(Text().At, (DrawnPoint{150, -67})) << "under the ends of the extension lines";
  EXPECT_NEAR(board.Pts(11).Y, -67, 1e-3);
}

TEST_F(DimensionTest, SetsVerticalText) {
  Draw(3, {0, 0}, {0, 300});
  EXPECT_EQ(Text().At, (DrawnPoint{-40, 150})) << "left of the line, reading upward";
  EXPECT_NEAR(Text().Angle, 90, 1e-3);
  Draw(3, {0, 300}, {0, 0}, 0, 1);
  EXPECT_EQ(Text().At, (DrawnPoint{16, 138}));
  EXPECT_NEAR(Text().Angle, 90, 1e-3);
  Draw(3, {0, 0}, {0, 300}, 1, 3);
  EXPECT_EQ(Text().At, (DrawnPoint{-28, 138})) << "level, between the arrows";
  EXPECT_NEAR(Text().Angle, 0, 1e-3);
}

TEST_F(DimensionTest, SetsLevelTextBelowAShortHeight) {
  Draw(3, {0, 0}, {0, 35}, 1, 3);
  EXPECT_NEAR(Text().At.Y, 17.5 - 12 - 56, 0.51);
  Draw(3, {0, 0}, {0, 37}, 1, 3);
  EXPECT_NEAR(Text().At.Y, 18.5 - 12, 0.51);
}

TEST_F(DimensionTest, MovesAWideVerticalTextAside) {
  const double width = Width("12345");
  ASSERT_GT(width + 32, 70);
  Draw(3, {0, 70}, {0, 0}, 0, 1, 0, "12345");
  EXPECT_NEAR(board.Pts(10).X, 28 - 12 + 54, 1e-3);
  EXPECT_NEAR(board.Pts(14).X, board.Pts(10).X, 1e-6);
  EXPECT_NEAR(board.Pts(12).X, 44 + 54, 1e-3) << "the mark moves with the text";
  Draw(3, {0, width + 33}, {0, 0}, 0, 1, 0, "12345");
  EXPECT_NEAR(board.Pts(10).X, 16, 1e-3);
}

TEST_F(DimensionTest, StandsWhereItIsTold) {
  board.Pts(1) = {0, 0};
  board.Pts(2) = {300, 0};
  Dimension dimension;
  dimension.Kind = 2;
  dimension.P1 = 1;
  dimension.P2 = 2;
  dimension.TextHeight = 24;
  dimension.TextAt = PointRecord{-5, 77};
  board.Dimension2(dimension);
  EXPECT_EQ(Text().At, (DrawnPoint{-5, 77}));
}

TEST_F(DimensionTest, MarksHowFarTheDrawingReaches) {
  Draw(1, {0, 0}, {300, 0});
  EXPECT_NEAR(board.Pts(12).Y, 44, 1e-3);
  Draw(2, {0, 0}, {300, 0});
  EXPECT_NEAR(board.Pts(11).Y, 44, 1e-3);
  Draw(3, {0, 300}, {0, 0});
  EXPECT_NEAR(board.Pts(12).X, 44, 1e-3);
}

TEST_F(DimensionTest, RecordsItsAngleInRadians) {
  Draw(1, {0, 0}, {300, 300});
  const auto& values = board.DimensionPoints;
  EXPECT_NEAR(std::get<Single>(values[values.size() - 2]), kPi / 4, 1e-5);
  EXPECT_EQ(std::get<std::string>(values.back()), "C");
}

}  // namespace
}  // namespace pitchcraft
