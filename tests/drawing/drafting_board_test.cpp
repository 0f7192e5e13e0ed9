// The board: points, metrics, dimension texts, and what is left of a drawing that fails.
#include "drawing/drafting_board.h"

#include <gtest/gtest.h>

#include <cmath>

#include "core/run_time_error.h"
#include "drawing/arial_meter.h"

namespace pitchcraft {
namespace {

class Board : public ::testing::Test {
 protected:
  Board() { board.BeginDrawing(0, 0xFFFFFF); }
  const TextOp& LastText() { return std::get<TextOp>(board.Recorder.Operations().back()); }
  double Number(std::size_t at) { return std::get<Single>(board.DimensionPoints.at(at)); }
  std::string Word(std::size_t at) { return std::get<std::string>(board.DimensionPoints.at(at)); }

  ArialMeter meter;
  DraftingBoard board{meter, [](double length) { return std::to_string(std::lround(length)); }};
};

TEST_F(Board, HasSixtyFourPoints) {
  board.Pts(0).X = 1;
  board.Pts(63).Y = 2;
  EXPECT_EQ(board.Pts(63).Y, 2);
  EXPECT_THROW(board.Pts(64), RunTimeError);
  EXPECT_THROW(board.Pts(-1), RunTimeError);
}

TEST_F(Board, StartsEachDrawingEmpty) {
  board.Pts(3) = {1, 2};
  board.DimText("a", 10, 0, 0, 30);
  board.Strokes.EntryMode = 1;
  board.Strokes.SetDrawStyle(2);
  board.Letters.FontBold = true;
  board.BeginDrawing(5, 6);
  EXPECT_TRUE(board.Recorder.IsOpen());
  EXPECT_EQ(board.Recorder.BackColor, 5);
  EXPECT_EQ(board.Pts(3).X, 0);
  EXPECT_TRUE(board.DimensionPoints.empty());
  board.Strokes.DrawLine(10, 0);
  EXPECT_EQ(std::get<LineOp>(board.Recorder.Operations().back()).Pen, (DrawnPen{6, 0, 0}));
  EXPECT_EQ(board.Strokes.EntryMode, 0);
  EXPECT_FALSE(board.Letters.FontBold);
}

TEST_F(Board, TakesItsMeasuresFromTheExtents) {
  board.Strokes.MoveToPoint(2000, 1000);
  board.Recorder.SetCanvas({10000, 8000});
  EXPECT_NEAR(board.SetMetrics(), (2000.0 / 10000) / (1000.0 / 8000), 1e-6);
  EXPECT_NEAR(board.PointFactor, 0.2, 1e-6);
  EXPECT_NEAR(board.DimGap, 24, 1e-4);
  EXPECT_NEAR(board.DimArrow, 32, 1e-4);
  EXPECT_NEAR(board.DimLeg, 32, 1e-4);
  EXPECT_NEAR(board.DimTextHeight, 48, 1e-4);
}

TEST_F(Board, KnowsTheWidthOfTheLastDrawing) {
  board.Strokes.DrawLine(-30, 0, Single(70), Single(5));
  board.EndDrawing();
  EXPECT_EQ(board.DrawingWidth, 100);
  EXPECT_TRUE(board.Recorder.IsClosed());
}

TEST_F(Board, LeavesABlankForADrawingThatFails) {
  board.Strokes.DrawLine(10, 10);
  board.DimText("a", 10, 0, 0, 30);
  board.AbandonDrawing();
  EXPECT_TRUE(board.Recorder.Finished().empty());
  EXPECT_TRUE(board.DimensionPoints.empty());
  EXPECT_EQ(board.Recorder.MaxX(), 0);
}

TEST_F(Board, TurnsAnAngleIntoAnOffset) {
  const PointRecord offset = DraftingBoard::AngleDistance(std::acos(-1.0) / 6, 10);
  EXPECT_NEAR(offset.X, 8.660254, 1e-6);
  EXPECT_NEAR(offset.Y, 5, 1e-6);
}

// Dimension texts.

TEST_F(Board, WritesADimensionsTextAtPointTen) {
  board.Pts(10) = {100, 200};
  board.Letters.Angle = 33;
  board.DimText("6' 2\"", 48.4, 0.5, 0, 30);
  EXPECT_EQ(LastText().At, (DrawnPoint{100, 200}));
  EXPECT_EQ(LastText().Height, 48);
  EXPECT_EQ(LastText().Align, 30);
  EXPECT_NEAR(LastText().Angle, 0.5 * 57.295779513082, 1e-4);
  EXPECT_EQ(board.Letters.Angle, 33) << "the angle that was set before stands again";
}

TEST_F(Board, TurnsByMode) {
  struct Row {
    int Mode;
    double Radians, Degrees;
  };
  const double pi = std::acos(-1.0);
  const Row rows[] = {
      {0, 0.5, 28.6479}, {1, pi, 0},       {2, 0, 90},        {3, pi / 2, 0},
      {7, 0.5, 28.6479}, {2, 1.5 * pi, 0}, {2, 1.9 * pi, 72}, {0, 2.5 * pi, 90},
  };
  for (const Row& row : rows) {
    board.DimText("a", 10, row.Radians, row.Mode, 30);
    EXPECT_NEAR(LastText().Angle, row.Degrees, 1e-3) << "mode " << row.Mode << " at " << row.Radians;
  }
}

TEST_F(Board, FlipsTheTextForPrintersThatTurnFonts) {
  board.TextFlip = -1;
  board.DimText("a", 10, 0.5, 0, 30);
  EXPECT_NEAR(LastText().Angle, -28.6479, 1e-3);
}

TEST_F(Board, AppendsFiveValuesForAText) {
  board.DrawScale = 10;
  board.Pts(10) = {105, -20};
  board.DimText("6' 2\"", 48, 0.5, 2, 30);
  ASSERT_EQ(board.DimensionPoints.size(), 5U);
  EXPECT_NEAR(Number(0), 10.5, 1e-5);
  EXPECT_NEAR(Number(1), -2, 1e-6);
  EXPECT_EQ(Word(2), "6' 2\"");
  EXPECT_NEAR(Number(3), 0.5 + 1.570796326795, 1e-6) << "in radians";
  EXPECT_EQ(Word(4), "C");
}

TEST_F(Board, NamesTheAlignmentByALetter) {
  const std::pair<int, const char*> rows[] = {{0, "L"},  {8, "L"}, {24, "L"}, {6, "C"}, {14, "C"},
                                              {30, "C"}, {2, "R"}, {10, "R"}, {26, "R"}};
  for (const auto& [align, letter] : rows) {
    board.DimensionPoints.clear();
    board.DimText("a", 10, 0, 0, align);
    EXPECT_EQ(Word(4), letter) << align;
  }
  board.DimensionPoints.clear();
  board.DimText("a", 10, 0, 0, 1);
  EXPECT_EQ(board.DimensionPoints.size(), 4U) << "a flag that is not in the table has no letter";
}

TEST_F(Board, DrawsNoEmptyTextButRecordsIt) {
  board.DimText("", 10, 0, 0, 30);
  EXPECT_TRUE(board.Recorder.Operations().empty());
  EXPECT_EQ(board.DimensionPoints.size(), 5U);
}

}  // namespace
}  // namespace pitchcraft
