// What the side view shows: which dimensions there are, in which pen, and how they line up.
#include "drawings/rafter_elevation.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "elevation_case.h"

namespace pitchcraft {
namespace {

using ::testing::Contains;
using testing::DrawnElevation;
using ::testing::ElementsAre;
using testing::ElevationCase;
using ::testing::IsEmpty;
using ::testing::Not;

/// The texts of the dimensions, in order.
std::vector<std::string> Measures(const DrawnElevation& drawn) {
  std::vector<std::string> texts;
  const auto& values = drawn.board.DimensionPoints;
  for (std::size_t at = 0; at < values.size(); ++at) {
    const auto* text = std::get_if<std::string>(&values[at]);
    if (text != nullptr && text->size() > 1) texts.push_back(*text);
  }
  return texts;
}

std::vector<TextOp> Texts(const DrawnElevation& drawn) {
  std::vector<TextOp> texts;
  for (const DrawOp& op : drawn.Operations()) {
    if (const auto* text = std::get_if<TextOp>(&op)) texts.push_back(*text);
  }
  return texts;
}

TextOp Find(const DrawnElevation& drawn, const std::string& words) {
  for (const TextOp& text : Texts(drawn)) {
    if (text.Text == words) return text;
  }
  ADD_FAILURE() << "no text " << words;
  return {};
}

bool Shows(const DrawnElevation& drawn, const std::string& words) {
  const auto texts = Texts(drawn);
  return std::any_of(texts.begin(), texts.end(), [&](const TextOp& text) { return text.Text == words; });
}

std::vector<LineOp> Lines(const DrawnElevation& drawn, DrawColor color, int style) {
  std::vector<LineOp> lines;
  for (const DrawOp& op : drawn.Operations()) {
    const auto* line = std::get_if<LineOp>(&op);
    if (line != nullptr && line->Pen.Color == color && line->Pen.Style == style) lines.push_back(*line);
  }
  return lines;
}

ElevationCase Hip() {
  ElevationCase c;
  c.Type = Member::kHip;
  c.RoofType = 1;
  return c;
}

TEST(RafterElevation, MeasuresACommon) {
  const DrawnElevation drawn((ElevationCase()));
  EXPECT_THAT(Measures(drawn), ElementsAre("13' 4 3/16\"", "14' 3 7/8\"", "5 1/2\"", "10 1/2\"", "5 3/8\"",
                                           "6' 5\"", "11' 11 1/4\""));
}

TEST(RafterElevation, LeavesOutTheTailWithoutOverhang) {
  ElevationCase c;
  c.Overhang = 0;
  EXPECT_THAT(Measures(DrawnElevation(c)), ElementsAre("13' 4 3/16\"", "5 3/8\"", "6' 5\"", "11' 11 1/4\""));
}

TEST(RafterElevation, LeavesOutAHeelOfNothing) {
  ElevationCase c;
  c.Heel = 0;
  const DrawnElevation drawn(c);
  EXPECT_EQ(Measures(drawn).size(), 3U);
  EXPECT_THAT(Lines(drawn, 0xFF, 2), IsEmpty()) << "the dashed line has no length";
}

TEST(RafterElevation, LeavesTheTailCutUnmeasuredWhenItIsSquare) {
  ElevationCase c;
  c.SquareCut = true;
  EXPECT_THAT(Measures(DrawnElevation(c)), Not(Contains("5 1/2\"")));
}

TEST(RafterElevation, MeasuresTheKneewall) {
  ElevationCase c;
  c.Kneewall = 60;
  EXPECT_THAT(Measures(DrawnElevation(c)),
              ElementsAre("7' 9 1/16\"", "13' 4 3/16\"", "14' 3 7/8\"", "5 1/2\"", "10 1/2\"", "5 3/8\"",
                          "2' 6\"", "3' 11\"", "6' 5\"", "5' 0\"", "11' 11 1/4\""));
}

TEST(RafterElevation, AddsTheWholeRiseOnLaterPages) {
  ElevationCase c;
  c.Tab = 1;
  EXPECT_EQ(Measures(DrawnElevation(c)).back(), "6' 4 7/8\"");
  c.Type = Member::kHip;
  c.RoofType = 1;
  EXPECT_EQ(Measures(DrawnElevation(c)).back(), "16' 10 9/16\"");
}

TEST(RafterElevation, DashesTheHeelInTheColourOfDimensions) {
  const DrawnElevation drawn((ElevationCase()));
  const auto dashed = Lines(drawn, 0xFF, 2);
  ASSERT_EQ(dashed.size(), 1U);
  EXPECT_EQ(dashed[0].From, (DrawnPoint{105, 52}));
  EXPECT_EQ(dashed[0].To.X, 105);
  ElevationCase c;
  c.Kneewall = 60;
  EXPECT_EQ(Lines(DrawnElevation(c), 0xFF, 2).size(), 2U);
}

TEST(RafterElevation, KeepsLinesThinAndColoursApart) {
  const DrawnElevation drawn((ElevationCase()));
  for (const DrawOp& op : drawn.Operations()) {
    if (const auto* line = std::get_if<LineOp>(&op)) {
      EXPECT_EQ(line->Pen.Width, 0);
      EXPECT_TRUE(line->Pen.Color == 0xFF || line->Pen.Color == 0xFFFFFF);
    }
    if (const auto* text = std::get_if<TextOp>(&op)) {
      EXPECT_EQ(text->Color, 0xFFFF);
      EXPECT_EQ(text->Font, "Arial");
    }
  }
}

TEST(RafterElevation, RedrawsTheTailOfASquareHip) {
  ElevationCase c = Hip();
  EXPECT_THAT(Lines(DrawnElevation(c), 0, 0), IsEmpty());
  c.SquareCut = true;
  const DrawnElevation drawn(c);
  const auto unseen = Lines(drawn, 0, 0);
  ASSERT_EQ(unseen.size(), 1U) << "the tail up to the corner of the roof planes, in the colour of the ground";
  EXPECT_EQ(unseen[0].To, (DrawnPoint{0, 0}));
  EXPECT_GT(drawn.X(2), 0) << "the wood ends a little short of it";
  EXPECT_LT(drawn.X(2), 0.25);
}

TEST(RafterElevation, TitlesTheDrawingInBold) {
  const DrawnElevation drawn((ElevationCase()));
  const TextOp title = Texts(drawn).back();
  EXPECT_EQ(title.Text, " 6/12");
  EXPECT_TRUE(title.Bold);
  EXPECT_EQ(title.Align, 0);
  EXPECT_NEAR(title.Height, 360 * drawn.board.PointFactor, 0.51);
  EXPECT_NEAR(title.At.X, drawn.board.Recorder.MinX(), 0.51);
  EXPECT_EQ(drawn.board.Pts(9).X, drawn.board.Pts(10).X);
}

TEST(RafterElevation, WritesThePlumbAngleOnItsExtensionLine) {
  const DrawnElevation drawn((ElevationCase()));
  const TextOp label = Find(drawn, "63.4\u00BA");
  EXPECT_EQ(label.Align, 8);
  EXPECT_NEAR(label.At.X, drawn.board.Pts(0).X + drawn.board.DimGap, 0.51);
  EXPECT_NEAR(label.At.Y, drawn.board.Pts(0).Y, 0.51);
}

TEST(RafterElevation, WritesTheAngleOfASquareTail) {
  ElevationCase c;
  c.SquareCut = true;
  EXPECT_EQ(Texts(DrawnElevation(c)).size(), 8U) << "a common's is square by definition";
  c = Hip();
  c.SquareCut = true;
  // The angle between the hip's edge and the line where its plane meets that of the fascia: 180 - f - e.
  const double f = std::atan(16.970562 / 6) * 180 / std::acos(-1.0);
  const double e = std::atan(std::sqrt(2.0) * 6 / 12) * 180 / std::acos(-1.0);
  EXPECT_NEAR(180 - f - e, 74.2, 0.05);
  EXPECT_EQ(Find(DrawnElevation(c), "74.2\u00BA").Align, 2);
  c.Overhang = 0;
  EXPECT_FALSE(Shows(DrawnElevation(c), "74.2\u00BA")) << "no tail, no cut";
}

TEST(RafterElevation, BringsTheLinesBelowToOneLevel) {
  for (const bool square : {false, true}) {
    for (const double slope : {1.0, 6.0, 18.0}) {
      ElevationCase c;
      c.SquareCut = square;
      c.Slope = slope;
      const DrawnElevation drawn(c);
      // The level lines under the wood in the colour of dimensions: those of the overhang and the run.
      std::vector<int> levels;
      for (const LineOp& line : Lines(drawn, 0xFF, 0)) {
        if (line.From.Y == line.To.Y && line.From.Y < drawn.board.Pts(3).Y) levels.push_back(line.From.Y);
      }
      ASSERT_FALSE(levels.empty());
      EXPECT_EQ(std::count(levels.begin(), levels.end(), levels[0]),
                static_cast<std::ptrdiff_t>(levels.size()));
    }
  }
}

TEST(RafterElevation, ShowsTheEndsOfABevelledRafterWhereThereIsRoom) {
  ElevationCase c = Hip();
  c.Slope = 18;
  EXPECT_FALSE(Shows(DrawnElevation(c), "45\u00BA bevels")) << "not on the design page";
  c.Tab = 2;
  const DrawnElevation hip(c);
  EXPECT_TRUE(Shows(hip, "45\u00BA bevels"));
  EXPECT_LT(hip.X(20), hip.X(19)) << "a point at the tail";
  EXPECT_GT(hip.X(23), hip.X(18)) << "and at the ridge";
  c.Slope = 2;
  EXPECT_FALSE(Shows(DrawnElevation(c), "45\u00BA bevels")) << "a wide drawing";
  c.Slope = 18;
  c.Type = Member::kValley;
  c.RoofType = 2;
  const DrawnElevation valley(c);
  EXPECT_GT(valley.X(20), valley.X(19)) << "the valley's tail is notched over the corner";
  c.Type = Member::kLongValley;
  c.RoofType = 10;
  EXPECT_TRUE(Shows(DrawnElevation(c), "45\u00BA bevel"));
  c.Type = Member::kCommon;
  c.RoofType = 0;
  EXPECT_FALSE(Shows(DrawnElevation(c), "45\u00BA bevels"));
}

TEST(RafterElevation, RecordsStrokesAndTextsForOtherWriters) {
  const DrawnElevation drawn((ElevationCase()));
  std::size_t strokes = 0;
  std::size_t texts = 0;
  const auto& values = drawn.board.DimensionPoints;
  for (std::size_t at = 0; at < values.size();) {
    const bool text = at + 2 < values.size() && std::holds_alternative<std::string>(values[at + 2]);
    at += text ? 5 : 4;
    ++(text ? texts : strokes);
  }
  EXPECT_EQ(texts, 7U);
  EXPECT_EQ(strokes, Lines(drawn, 0xFF, 0).size());
}

TEST(RafterElevation, KeepsTextAtTwelvePointsOnTheOutlinesOwnScale) {
  const DrawnElevation drawn((ElevationCase()));
  EXPECT_EQ(Find(drawn, "6' 5\"").Height, std::lround(240 * drawn.board.PointFactor));
}

TEST(RafterElevation, KnowsItsWidth) {
  const DrawnElevation drawn((ElevationCase()));
  EXPECT_NEAR(drawn.board.DrawingWidth, drawn.board.Recorder.MaxX() - drawn.board.Recorder.MinX(), 1e-3);
}

}  // namespace
}  // namespace pitchcraft
