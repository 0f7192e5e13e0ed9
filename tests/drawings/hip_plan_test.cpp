// What plan and layout of a hip roof show, and where.
#include "drawings/hip_plan.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "core/run_time_error.h"
#include "drawings/hip_notes.h"
#include "hip_case.h"
#include "legibility.h"

namespace pitchcraft {
namespace {

using ::testing::Contains;
using testing::DrawnHip;
using ::testing::ElementsAre;
using testing::HipCase;
using ::testing::Not;
using testing::UnreadableTexts;

constexpr DrawColor kLineColor = 0xFFFFFF;

std::vector<std::string> NotesOf(const DrawnHip& drawn) {
  std::vector<std::string> notes;
  for (const std::string& text : drawn.Texts()) {
    if (text.starts_with("   * ")) notes.push_back(text.substr(5));
  }
  return notes;
}

TextOp Find(const DrawnHip& drawn, const std::string& words) {
  for (const TextOp& text : drawn.All<TextOp>()) {
    if (text.Text == words) return text;
  }
  ADD_FAILURE() << "no text " << words;
  return {};
}

// Outline.

TEST(HipPlan, StandsOnTheHipEndsEave) {
  HipCase c;
  c.EndSlope = 9;
  const DrawnHip drawn(c, &DrawHipPlan);
  const auto expect = [&](int point, double x, double y) {
    EXPECT_NEAR(drawn.board.Pts(point).X / 10, x, 1e-3) << "x of " << point;
    EXPECT_NEAR(drawn.board.Pts(point).Y / 10, y, 1e-3) << "y of " << point;
  };
  const double top = 103 + 24;
  expect(0, 0, 0);
  expect(1, 309, 0);
  expect(2, 154.5, 103);
  expect(3, 154.5, top);
  expect(4, 0, top);
  expect(5, 309, top);
  expect(6, 10.5, top);
  expect(7, 10.5, 7);
  expect(8, 298.5, 7);
  expect(9, 298.5, top);
}

TEST(HipPlan, ShowsSlopesAndMeasures) {
  HipCase c;
  c.EndSlope = 9;
  EXPECT_THAT(DrawnHip(c, &DrawHipPlan).Texts(), ElementsAre("6/12", "9/12", "8' 7\"", "25' 9\""));
  c.RiseOverRun = false;
  EXPECT_THAT(DrawnHip(c, &DrawHipPlan).Texts(),
              ElementsAre("26.57\u00BA", "36.87\u00BA", "8' 7\"", "25' 9\""));
}

TEST(HipPlan, ShowsTheLastCommonInTheOutlinesPen) {
  HipCase c;
  EXPECT_THAT(DrawnHip(c, &DrawHipPlan).Texts(), Not(Contains("Last Common")));
  c.PastPeak = 12;
  const DrawnHip drawn(c, &DrawHipPlan);
  EXPECT_THAT(drawn.Texts(), Contains("Last Common"));
  const LineOp wanted{{0, 1665}, {1545, 1665}, {kLineColor, 0, 0}};
  EXPECT_THAT(drawn.All<LineOp>(), Contains(wanted));
}

TEST(HipPlan, KeepsTheMainSlopeClearOfTheLineThroughThePeak) {
  for (const double spacing : {0.0, 6.0, 16.0, 48.0}) {
    HipCase c;
    c.Spacing = spacing;
    for (const auto draw : {&DrawHipPlan, &DrawHipLayout}) {
      const DrawnHip drawn(c, draw);
      EXPECT_GT(Find(drawn, "6/12").At.Y, drawn.board.Pts(2).Y + drawn.board.DimGap - 2);
    }
  }
}

// Layout.

TEST(HipLayoutDrawing, WritesEachLengthAtTheFootOfItsJack) {
  for (const bool withOverhang : {false, true}) {
    HipCase c;
    c.EndSlope = 9;
    c.WithOverhang = withOverhang;
    const DrawnHip drawn(c);
    const double height = drawn.board.DimTextHeight;
    std::vector<TextOp> texts = drawn.All<TextOp>();
    const auto take = [&](const std::string& words, double x, double y) {
      const auto found = std::find_if(texts.begin(), texts.end(), [&](const TextOp& text) {
        return text.Text == words && std::fabs(text.At.X - x) <= 1 && std::fabs(text.At.Y - y) <= 1;
      });
      ASSERT_NE(found, texts.end()) << words << " at " << x << "," << y;
      EXPECT_EQ(found->Angle, y < 0 ? 90 : 0);
      texts.erase(found);
    };
    for (const LaidRafter& rafter : drawn.Layout().Rafters) {
      if (rafter.IsJack() && !rafter.Length) continue;
      const std::string words = rafter.IsJack() ? drawn.LengthText(*rafter.Length) : rafter.Label;
      const double place = rafter.Place * 10;
      if (rafter.Face == HipRoofFace::kEnd) {
        take(words, place + height / 4, -height);
      } else {
        take(words, -height, place - height / 4);
      }
    }
    const auto notes = static_cast<std::ptrdiff_t>(NotesOf(drawn).size());
    EXPECT_EQ(std::ssize(texts), 4 + notes) << "slopes, measures and notes are all that is left";
  }
}

TEST(HipLayoutDrawing, DrawsEachRafterFromItsEave) {
  for (const JackLayout layout : {JackLayout::kCenter, JackLayout::kCorners, JackLayout::kCornersFlush}) {
    HipCase c;
    c.EndSlope = 4;
    c.Layout = layout;
    const DrawnHip drawn(c);
    const std::vector<LineOp> lines = drawn.All<LineOp>();
    std::size_t at = 9;  // after hips, eaves, ridge and walls
    for (const LaidRafter& rafter : drawn.Layout().Rafters) {
      const bool end = rafter.Face == HipRoofFace::kEnd;
      const auto place = static_cast<int>(std::lround(rafter.Place * 10));
      const auto length = static_cast<int>(std::lround(rafter.PlanLength * 10));
      const LineOp& line = lines.at(at++);
      EXPECT_EQ(line.Pen.Color, 0xFF);
      EXPECT_EQ(end ? line.From.Y : line.From.X, 0);
      EXPECT_NEAR(end ? line.From.X : line.From.Y, place, 1);
      EXPECT_EQ(end ? line.To.X : line.To.Y, end ? line.From.X : line.From.Y);
      EXPECT_NEAR(end ? line.To.Y : line.To.X, length, 1);
    }
    EXPECT_NEAR(drawn.board.Pts(15).X, drawn.board.Pts(2).X, 0.01);
    EXPECT_NEAR(drawn.board.Pts(16).Y, drawn.board.Pts(2).Y, 0.01);
    EXPECT_NEAR(drawn.board.Pts(17).Y, drawn.board.Pts(2).Y, 0.01);
    EXPECT_NEAR(drawn.board.Pts(18).X, drawn.board.Pts(2).X, 0.01);
  }
}

TEST(HipLayoutDrawing, TellsItsRulesInOrder) {
  HipCase c;
  EXPECT_THAT(NotesOf(DrawnHip(c)),
              ElementsAre("jacks are measured along longest edge", "jack measurement includes overhang",
                          "layout is on center from hip center to outside corners"));
  c.WithOverhang = false;
  c.Layout = JackLayout::kCorners;
  c.PastPeak = 6;
  c.EndSlope = 12;
  c.OverhangsEqual = true;
  EXPECT_THAT(
      NotesOf(DrawnHip(c)),
      ElementsAre("jacks are measured along longest edge", "jack measurement DOES NOT includes overhang",
                  "layout is on center from outside wall corners",
                  "main roof jacks are laid out o.c. from the last common",
                  "last common is 6' 0 3/4\" on center from wall corner",
                  "layout is adjusted to make overhangs equal", "hips are offset 10 1/2\" from corners",
                  "hip end wall is 5 1/4\" higher than side wall"));
  c.PastPeak.reset();
  c.Layout = JackLayout::kCornersFlush;
  c.EndSlope = 4;
  EXPECT_THAT(
      NotesOf(DrawnHip(c)),
      ElementsAre("jacks are measured along longest edge", "jack measurement DOES NOT includes overhang",
                  "layout is flush from outside wall corners", "layout is adjusted to make overhangs equal",
                  "hips are offset 5 1/4\" from corners", "hip end wall is 1 3/4\" lower than side wall"));
}

TEST(HipLayoutDrawing, IsSilentAboutAWallThatStandsWhereItBelongs) {
  HipCase c;
  c.EndSlope = 9;
  c.OverhangsEqual = true;
  Rafter rafter;
  testing::CalculateHip(rafter, c);
  rafter.OverhangsEqual = false;
  rafter.Calculate();
  EXPECT_NE(rafter.HipEndDrop, 0) << "it outlives the moved wall";
  EXPECT_EQ(NotesOfHipLayout(rafter, {}).size(), 3U);
}

TEST(HipNotes, HaveAWordingForTheScreenAndOneForAFile) {
  const auto inches = [](double length) { return std::to_string(std::lround(length)) + " in"; };
  const HipNote center{HipNoteKind::kFromCenter, {}};
  EXPECT_EQ(ScreenText(center, inches), "   * layout is on center from hip center to outside corners");
  EXPECT_EQ(ExportText(center, inches), "* layout is from hip center to outside wall corners");
  const HipNote corners{HipNoteKind::kFromCorners, {}};
  EXPECT_EQ(ExportText(corners, inches), "* layout is centered from outside wall corners");
  const HipNote lower{HipNoteKind::kWallLower, 7.0};
  EXPECT_EQ(ScreenText(lower, inches), "   * hip end wall is 7 in lower than side wall");
  EXPECT_EQ(ExportText(lower, inches), "* hip end wall is 7 in lower than side wall");
}

// Legibility.

constexpr std::pair<double, double> kPictures[] = {{5000, 5500}, {7000, 4000}, {10000, 7000}, {24000, 14000}};

int faults = 0;

void ExpectReadable(HipCase c) {
  for (const auto& [width, height] : kPictures) {
    c.Width = width;
    c.Height = height;
    for (const auto draw : {&DrawHipPlan, &DrawHipLayout}) {
      for (const std::string& fault : UnreadableTexts(DrawnHip(c, draw).Operations())) {
        if (++faults <= 10) ADD_FAILURE() << c << (draw == &DrawHipPlan ? " plan: " : ": ") << fault;
      }
    }
  }
}

template <typename Vary>
void ForEveryLayout(HipCase c, const Vary& vary) {
  for (const JackLayout layout : {JackLayout::kCenter, JackLayout::kCorners, JackLayout::kCornersFlush}) {
    c.Layout = layout;
    vary(c);
  }
}

TEST(HipPlanLegibility, HoldsAtEveryRunAndSpacing) {
  ForEveryLayout({}, [](HipCase c) {
    for (const double run : {12.0, 48.0, 144.0, 147.5, 240.0, 480.0, 1200.0}) {
      for (const double spacing : {4.0, 12.0, 19.2, 48.0}) {
        c.Run = run;
        c.Spacing = spacing;
        ExpectReadable(c);
      }
    }
  });
}

TEST(HipPlanLegibility, HoldsAtEverySlopeAndOverhang) {
  ForEveryLayout({}, [](HipCase c) {
    for (const auto& [slope, endSlope] : {std::pair{6.0, 9.0}, {12.0, 3.0}, {3.0, 12.0}, {18.0, 2.0}}) {
      for (const double overhang : {0.0, 10.5, 40.0}) {
        for (const bool equal : {false, true}) {
          c.Slope = slope;
          c.EndSlope = endSlope;
          c.Overhang = overhang;
          c.OverhangsEqual = equal;
          c.WithOverhang = equal;
          ExpectReadable(c);
        }
      }
    }
  });
}

TEST(HipPlanLegibility, HoldsWithALastCommon) {
  for (const double past : {0.0, 0.5, 2.0, 8.0, 16.0}) {
    for (const double run : {48.0, 144.0, 480.0}) {
      HipCase c;
      c.PastPeak = past;
      c.Run = run;
      ExpectReadable(c);
      c.EndSlope = 10;
      c.OverhangsEqual = true;
      ExpectReadable(c);
    }
  }
}

TEST(HipPlanLegibility, HoldsInMillimetresAndDegrees) {
  ForEveryLayout(testing::MetricHip(), [](HipCase c) {
    for (const double endSlope : {300.0, 500.0, 800.0}) {
      c.EndSlope = endSlope;
      c.RiseOverRun = endSlope < 500;
      ExpectReadable(c);
    }
  });
}

// The layout of a 40 foot roof at 12" on center is lettered at full size: nothing shrinks and there is no
// second row.
TEST(HipPlanLegibility, KeepsTheLengthsOfAFortyFootRoofLarge) {
  HipCase c;
  c.Run = 240;
  c.Spacing = 12;
  for (const auto& [width, height] : {std::pair{10000.0, 7000.0}, {14400.0, 10800.0}}) {
    c.Width = width;
    c.Height = height;
    const DrawnHip drawn(c);
    EXPECT_GT(Find(drawn, "Common").Height, 0.95 * drawn.board.DimTextHeight);
  }
}

TEST(HipPlanLegibility, KeepsTextsInsideThePicture) {
  HipCase c;
  c.EndSlope = 9;
  c.OverhangsEqual = true;
  const DrawnHip drawn(c);
  const DrawingRecorder& canvas = drawn.board.Recorder;
  for (const TextOp& text : drawn.All<TextOp>()) {
    for (const testing::Spot& corner : testing::LettersOf(text)) {
      EXPECT_TRUE(corner.X >= canvas.MinX() && corner.X <= canvas.MaxX() && corner.Y >= canvas.MinY() &&
                  corner.Y <= canvas.MaxY())
          << text.Text;
    }
  }
}

// Limits.

int ErrorOf(const HipCase& c, DrawnHip::Procedure draw, DraftingBoard& board) {
  Rafter rafter;
  testing::CalculateHip(rafter, c);
  try {
    draw(board, rafter, testing::ContextOf(c, rafter));
  } catch (const RunTimeError& error) {
    return error.Number();
  }
  return 0;
}

TEST(HipPlanLimits, EndBlankWithOneError) {
  const ArialMeter meter;
  DraftingBoard board(meter, [](double) { return std::string("x"); });
  board.Recorder.SetCanvas({10000, 7000});
  const double bad[] = {1e30, 1e12, std::nan(""), std::numeric_limits<double>::infinity()};
  for (const double value : bad) {
    for (double HipCase::*field : {&HipCase::Run, &HipCase::Overhang, &HipCase::Spacing}) {
      HipCase c;
      c.*field = value;
      for (const auto draw : {&DrawHipPlan, &DrawHipLayout}) {
        EXPECT_NE(ErrorOf(c, draw, board), 0) << c;
        EXPECT_TRUE(board.Recorder.Finished().empty());
        EXPECT_TRUE(board.DimensionPoints.empty());
        EXPECT_EQ(ErrorOf({}, draw, board), 0) << "the next drawing is whole again";
      }
    }
  }
  HipCase c;
  c.Run = 1e6;
  EXPECT_EQ(ErrorOf(c, &DrawHipLayout, board), 5) << "more jacks than any roof has";
  EXPECT_TRUE(board.Recorder.Finished().empty());
}

TEST(HipPlanLimits, EveryMixtureEnds) {
  const ArialMeter meter;
  DraftingBoard board(meter, [](double) { return std::string("x"); });
  board.Recorder.SetCanvas({10000, 7000});
  const double values[] = {0, 1e-30, 1, -6, 144, 1e7, 1e20, std::nan("")};
  ForEveryLayout({}, [&](HipCase c) {
    for (const double slope : values) {
      for (const double endSlope : values) {
        for (const double run : values) {
          for (const double spacing : {0.0, 0.001, 16.0, -3.0, 1e30}) {
            for (const double overhang : {0.0, 10.5, -3.0, 1e8}) {
              c.Slope = slope;
              c.EndSlope = endSlope;
              c.Run = run;
              c.Spacing = spacing;
              c.Overhang = overhang;
              const int error = ErrorOf(c, &DrawHipLayout, board);
              ASSERT_TRUE(error == 0 || error == 5 || error == 6) << c;
              ASSERT_TRUE(board.Recorder.IsClosed()) << c;
            }
          }
        }
      }
    }
  });
}

TEST(HipPlanLimits, DrawsALevelRoof) {
  HipCase c;
  c.Slope = c.EndSlope = 0;
  EXPECT_GT(DrawnHip(c).Layout().Rafters.size(), 15U);
}

}  // namespace
}  // namespace pitchcraft
