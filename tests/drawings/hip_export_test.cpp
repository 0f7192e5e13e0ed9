// Plan, layout and rafters of a hip roof as DXF files, as a CAD program reads them.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>

#include "drawings/hip_notes.h"
#include "drawings/hip_sheet.h"
#include "drawings/rafter_elevation.h"
#include "drawings/rafter_sheet.h"
#include "hip_outputs.h"
#include "legibility.h"
#include "output/dxf_figures.h"
#include "output/dxf_reading.h"
#include "support/number.h"

namespace pitchcraft {
namespace {

using ::testing::Contains;
using testing::DxfContent;
using testing::DxfRecord;
using ::testing::ElementsAreArray;
using testing::HipCase;
using testing::HipOutputs;

using Ends = std::array<double, 4>;

double Number(const DxfRecord& record, int code) { return testing::NumberIn(record(code)); }

std::vector<Ends> LinesOn(const DxfContent& file, const std::string& layer) {
  std::vector<Ends> lines;
  for (const DxfRecord& line : file.In("ENTITIES", "LINE")) {
    if (line(8) == layer)
      lines.push_back({Number(line, 10), Number(line, 20), Number(line, 11), Number(line, 21)});
  }
  return lines;
}

MATCHER_P(IsNear, ends, "") {
  for (std::size_t at = 0; at < ends.size(); ++at) {
    if (std::fabs(arg[at] - ends[at]) > 1e-4) return false;
  }
  return true;
}

std::vector<std::string> TextsOf(const DxfContent& file) {
  std::vector<std::string> texts;
  for (const DxfRecord& text : file.In("ENTITIES", "TEXT")) texts.push_back(text(1));
  return texts;
}

std::vector<HipCase> Roofs() {
  HipCase unequal;
  unequal.EndSlope = 9;
  unequal.OverhangsEqual = true;
  unequal.Layout = JackLayout::kCornersFlush;
  HipCase metric = testing::MetricHip();
  metric.EndSlope = 800;
  metric.Layout = JackLayout::kCorners;
  HipCase lastCommon;
  lastCommon.PastPeak = 5.25;
  lastCommon.WithOverhang = false;
  return {HipCase{}, unequal, metric, lastCommon};
}

void ExpectOutline(const DxfContent& file, const HipOutline& o) {
  const double width = 2 * o.MainRun;
  const auto plain = LinesOn(file, "0");
  for (const Ends& ends :
       {Ends{0, 0, width, 0}, Ends{width, 0, o.MainRun, o.EndRun}, Ends{o.MainRun, o.EndRun, 0, 0},
        Ends{o.MainRun, o.EndRun, o.MainRun, o.Top}, Ends{0, 0, 0, o.Top}, Ends{width, 0, width, o.Top}}) {
    EXPECT_THAT(plain, Contains(IsNear(ends)));
  }
  const double right = width - o.Overhang;
  const auto walls = LinesOn(file, "HIDDEN");
  EXPECT_EQ(walls.size(), 3);
  EXPECT_THAT(walls, Contains(IsNear(Ends{o.Overhang, o.EndOverhang, right, o.EndOverhang})));
  EXPECT_EQ(file.Entry("LAYER", "HIDDEN")(6), "HIDDEN");
  EXPECT_EQ(file.Entry("LTYPE", "HIDDEN")(73), "2");
}

TEST(HipExport, Plan) {
  for (const HipCase& c : Roofs()) {
    SCOPED_TRACE(::testing::Message() << c);
    HipOutputs outputs(c, &DrawHipPlan);
    const DxfContent file(outputs.Exported(&ExportHipPlan));
    const HipOutline outline = outputs.drawn.Layout().Outline;
    ExpectOutline(file, outline);
    EXPECT_EQ(LinesOn(file, "0").size(), outline.LastCommon ? 7 : 6);
    if (outline.LastCommon) {
      const double y = outline.LastCommonPlace();
      EXPECT_THAT(LinesOn(file, "0"), Contains(IsNear(Ends{0, y, outline.MainRun, y})));
      EXPECT_THAT(TextsOf(file), Contains("Last Common"));
    }
    EXPECT_EQ(LinesOn(file, "CENTER").size(), 0);
    EXPECT_EQ(file.In("ENTITIES", "DIMENSION").size(), 2);
    EXPECT_THAT(TextsOf(file), Contains(HipPlanTitle(outputs.drawn.rafter)));
    EXPECT_THAT(TextsOf(file), Contains(outputs.drawn.rafter.HipEndPitch.Stored().substr(1)));
  }
}

TEST(HipExport, LayoutHasEachRafter) {
  for (const HipCase& c : Roofs()) {
    SCOPED_TRACE(::testing::Message() << c);
    HipOutputs outputs(c);
    const DxfContent file(outputs.Exported(&ExportHipLayout));
    const HipLayout layout = outputs.drawn.Layout();
    ExpectOutline(file, layout.Outline);
    EXPECT_EQ(LinesOn(file, "0").size(), 6);
    const auto lines = LinesOn(file, "CENTER");
    EXPECT_EQ(lines.size(), layout.Rafters.size());
    std::vector<std::string> feet;
    for (const LaidRafter& rafter : layout.Rafters) {
      const double place = rafter.Place;
      const bool end = rafter.Face == HipRoofFace::kEnd;
      EXPECT_THAT(lines, Contains(IsNear(end ? Ends{place, 0, place, rafter.PlanLength}
                                             : Ends{0, place, rafter.PlanLength, place})));
      const std::string foot = FootText(rafter, outputs.context.LengthText);
      if (!foot.empty()) feet.push_back(foot);
    }
    std::vector<std::string> written;
    for (const DxfRecord& text : file.In("ENTITIES", "TEXT")) {
      if (text(72) != "2") continue;
      written.push_back(text(1));
      const bool upright = text(50) == "90.0";
      EXPECT_LT(Number(text, upright ? 21 : 11), 0) << text(1);
    }
    EXPECT_THAT(written, ElementsAreArray(feet));
    for (const DxfRecord& line : file.In("ENTITIES", "LINE")) {
      EXPECT_EQ(line(62), line(8) == "CENTER" ? "12" : "-");
    }
  }
}

/// The boxes of the texts' letters, by the widths of Arial.
std::vector<std::pair<std::string, DxfExtents>> Boxes(const DxfContent& file) {
  std::vector<std::pair<std::string, DxfExtents>> boxes;
  for (const DxfRecord& text : file.Named("TEXT")) {
    DxfText shown{text(1), {Number(text, 10), Number(text, 20)}, Number(text, 40), 0, 'L', {}};
    if (text(50) != "-") shown.Angle = Number(text, 50);
    DxfExtents box;
    box.Include(shown);
    boxes.emplace_back(text(1), box);
  }
  return boxes;
}

bool IsStruck(const DxfExtents& box, const DxfRecord& line) {
  const std::array<testing::Spot, 4> letters = {testing::Spot{box.Min.X, box.Min.Y},
                                                {box.Max.X, box.Min.Y},
                                                {box.Max.X, box.Max.Y},
                                                {box.Min.X, box.Max.Y}};
  const std::array<testing::Spot, 2> stroke = {testing::Spot{Number(line, 10), Number(line, 20)},
                                               {Number(line, 11), Number(line, 21)}};
  return testing::Meet(letters, stroke);
}

// Dimensions are in blocks, but count like everything else.
TEST(HipExport, TextsAreClearOfEachOtherAndOfLines) {
  HipCase close;
  close.Run = 181.5;
  close.Spacing = 19.2;
  close.Layout = JackLayout::kCorners;  // its top jack stands close to the commons
  HipCase dense;
  dense.Run = 240;
  dense.Spacing = 12;
  std::vector<HipCase> roofs = Roofs();
  roofs.insert(roofs.end(), {close, dense});
  for (const HipCase& c : roofs) {
    for (const double factor : {0.5, 1.0, 6.0}) {
      for (const auto write : {&ExportHipPlan, &ExportHipLayout}) {
        SCOPED_TRACE(::testing::Message() << c << " lettering " << factor);
        HipOutputs outputs(c, write == &ExportHipPlan ? &DrawHipPlan : &DrawHipLayout);
        const DxfContent file(outputs.Exported(write, factor * (c.Metric ? 50 : 2)));
        const auto boxes = Boxes(file);
        for (const auto& [text, box] : boxes) {
          for (const DxfRecord& line : file.Named("LINE")) {
            EXPECT_FALSE(IsStruck(box, line))
                << text << " by " << line.Place(10) << " to " << line.Place(11) << " on " << line(8);
          }
        }
        for (std::size_t at = 0; at < boxes.size(); ++at) {
          for (std::size_t other = at + 1; other < boxes.size(); ++other) {
            const DxfExtents& a = boxes[at].second;
            const DxfExtents& b = boxes[other].second;
            const bool apart =
                a.Max.X <= b.Min.X || b.Max.X <= a.Min.X || a.Max.Y <= b.Min.Y || b.Max.Y <= a.Min.Y;
            EXPECT_TRUE(apart) << boxes[at].first << " on " << boxes[other].first;
          }
        }
      }
    }
  }
}

TEST(HipExport, NotesStandInOrderBelowTheFeet) {
  for (const HipCase& c : Roofs()) {
    SCOPED_TRACE(::testing::Message() << c);
    HipOutputs outputs(c);
    const DxfContent file(outputs.Exported(&ExportHipLayout));
    std::vector<std::string> expected;
    for (const HipNote& note : NotesOfHipLayout(outputs.drawn.rafter, outputs.context.Drawing.HipLayout))
      expected.push_back(ExportText(note, outputs.context.LengthText));
    std::vector<std::string> notes;
    double lowest = 0;
    for (const DxfRecord& text : file.In("ENTITIES", "TEXT")) {
      if (!text(1).starts_with("* ")) continue;
      notes.push_back(text(1));
      EXPECT_LT(Number(text, 20), lowest - 2.99);
      lowest = Number(text, 20);
    }
    EXPECT_THAT(notes, ElementsAreArray(expected));
  }
}

TEST(HipExport, BlockStandsRightOfAllElse) {
  HipOutputs outputs({});
  const DxfContent file(outputs.Exported(&ExportHipLayout));
  double left = 0;
  for (const DxfRecord& text : file.In("ENTITIES", "TEXT")) {
    if (text(1).starts_with("Main Slope = ")) left = Number(text, 10);
  }
  EXPECT_GT(left, 2 * outputs.drawn.Layout().Outline.MainRun);
  for (const auto& [text, box] : Boxes(file)) {
    if (text.find(" = ") != std::string::npos || text.find("Roof") != std::string::npos) continue;
    EXPECT_LT(box.Max.X, left) << text;
  }
}

TEST(HipExport, DegreesHaveNoSign) {
  HipCase c;
  c.RiseOverRun = false;
  HipOutputs outputs(c);
  EXPECT_THAT(TextsOf(DxfContent(outputs.Exported(&ExportHipLayout))), Contains("26.57"));
}

TEST(BastardHipExport, Members) {
  for (const Member type : {Member::kCommon, Member::kHipEndCommon, Member::kBastardHip}) {
    HipCase c;
    c.EndSlope = 9;
    c.Width = 20000;  // room for the view from below
    HipOutputs outputs(c);
    outputs.drawn.rafter.RafterType = type;
    outputs.context.Drawing.OnDesignPage = false;
    DrawBastardHipRafters(outputs.drawn.board, outputs.drawn.rafter, outputs.context.Drawing);
    const DxfContent file(outputs.Exported(&ExportBastardHipRafter));
    const DraftingBoard& board = outputs.drawn.board;
    const auto real = [&](int point) {
      return std::pair(board.Pts(point).X / board.DrawScale, board.Pts(point).Y / board.DrawScale);
    };
    const auto [x0, y0] = real(0);
    const auto [x1, y1] = real(1);
    EXPECT_THAT(LinesOn(file, "0"), Contains(IsNear(Ends{x0, y0, x1, y1})));
    EXPECT_EQ(file.In("ENTITIES", "DIMENSION").size(), board.Dimensions.size());
    const auto texts = TextsOf(file);
    const RafterSheet sheet = BastardHipSheetOf(outputs.drawn.rafter, outputs.context);
    EXPECT_THAT(texts, Contains(sheet.Title));
    EXPECT_THAT(texts, Contains(sheet.Rows[0].front()));
    // The bevels of the two cheeks, in two rows at either end.
    const auto bevels = std::count_if(texts.begin(), texts.end(),
                                      [](const std::string& text) { return text.ends_with("d bevel"); });
    EXPECT_EQ(bevels, type == Member::kBastardHip ? 4 : 0);
  }
}

}  // namespace
}  // namespace pitchcraft
