// The prints of a hip roof: titles, rows, and that nothing on them overlaps.
#include "drawings/hip_sheet.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "drawings/rafter_elevation.h"
#include "drawings/rafter_sheet.h"
#include "hip_outputs.h"
#include "legibility.h"

namespace pitchcraft {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using testing::HipCase;
using testing::HipOutputs;
using testing::LabelsOf;
using testing::ValueOf;

HipCase Unequal(bool overhangsEqual = false) {
  HipCase c;
  c.EndSlope = 9;
  c.OverhangsEqual = overhangsEqual;
  return c;
}

TEST(HipSheet, Titles) {
  const HipOutputs plain({});
  EXPECT_EQ(HipPlanTitle(plain.drawn.rafter), "Hip Roof - Plan View");
  EXPECT_EQ(HipLayoutTitle(plain.drawn.rafter, plain.context), "Hip Roof - Layout  (16\" o.c. spacing)");
  const HipOutputs bastard(Unequal());
  EXPECT_EQ(HipPlanTitle(bastard.drawn.rafter), "Bastard Hip Roof - Plan View");
  EXPECT_EQ(HipLayoutTitle(bastard.drawn.rafter, bastard.context),
            "Bastard Hip Roof - Layout  (16\" o.c. spacing)");
  const HipOutputs equal(Unequal(true));
  EXPECT_EQ(HipPlanTitle(equal.drawn.rafter),
            "Bastard Hip Roof - Plan View (adjusted to make overhangs equal)");
}

TEST(HipSheet, Rows) {
  HipCase c;
  HipOutputs outputs(c);
  EXPECT_THAT(LabelsOf(Joined(HipRows(outputs.drawn.rafter, outputs.context))),
              ElementsAre("Common Rafter Run", "Common Overhang", "Hip End Common Run", "Hip End Overhang",
                          "Main Slope", "Hip End Slope", "Hip Rafter Slope", "Rafter Spacing",
                          "CommonDifference", "Hip End CommonDifference", "Common", "Hip", "Ridge"));
  outputs.context.Drawing.SquareCut = true;
  outputs.context.Drawing.HipLayout.LastCommon = 150;
  const SheetColumns columns = HipRows(outputs.drawn.rafter, outputs.context);
  EXPECT_THAT(LabelsOf(columns[2]),
              ElementsAre("Common", "Hip", "Ridge", "Fascia", "Last Common (distance o.c. from corner)"));
}

// Print and note give the same number, even if the field holds a place below the peak.
TEST(HipSheet, LastCommonIsTheOneThatIsDrawn) {
  HipCase c;
  c.PastPeak = -20;
  const HipOutputs outputs(c);
  const auto rows = Joined(HipRows(outputs.drawn.rafter, outputs.context));
  EXPECT_EQ(ValueOf(rows, "Last Common (distance o.c. from corner)"), "12' 0\"");
}

TEST(HipSheet, ValuesOfAPlainHip) {
  const HipOutputs outputs({});
  const auto rows = Joined(HipRows(outputs.drawn.rafter, outputs.context));
  EXPECT_EQ(ValueOf(rows, "Common Rafter Run"), "12' 0\"");
  EXPECT_EQ(ValueOf(rows, "Hip End Common Run"), ValueOf(rows, "Common Rafter Run"));
  EXPECT_EQ(ValueOf(rows, "Hip End Overhang"), "10 1/2\"");
  EXPECT_EQ(ValueOf(rows, "Main Slope"), "6/12 (26.5651\u00BA)");
  EXPECT_EQ(ValueOf(rows, "Hip End Slope"), "6/12 (26.5651\u00BA)");
  EXPECT_EQ(ValueOf(rows, "Rafter Spacing"), "16\"");
}

// The differences on the print are those between the lengths in the layout.
TEST(HipSheet, DifferencesAreThoseOfTheJacks) {
  for (const bool equal : {false, true}) {
    const HipOutputs outputs(Unequal(equal));
    const auto rows = Joined(HipRows(outputs.drawn.rafter, outputs.context));
    const HipLayout layout = outputs.drawn.Layout();
    const auto difference = [&](HipRoofFace face) {
      std::vector<double> lengths;
      for (const LaidRafter& rafter : layout.Rafters) {
        if (rafter.Face == face && rafter.Length) lengths.push_back(*rafter.Length);
      }
      return outputs.drawn.LengthText(lengths.at(1) - lengths.at(2));
    };
    EXPECT_EQ(ValueOf(rows, "CommonDifference"), difference(HipRoofFace::kMain)) << equal;
    EXPECT_EQ(ValueOf(rows, "Hip End CommonDifference"), difference(HipRoofFace::kEnd)) << equal;
  }
}

TEST(BastardHipSheet, TitleByMember) {
  HipOutputs outputs(Unequal());
  Rafter& rafter = outputs.drawn.rafter;
  const auto title = [&](Member type) {
    rafter.RafterType = type;
    return BastardHipSheetOf(rafter, outputs.context).Title;
  };
  EXPECT_EQ(title(Member::kCommon), "Bastard Hip Roof - Common Rafter");
  EXPECT_EQ(title(Member::kHipEndCommon), "Bastard Hip Roof - Hip End Common Rafter");
  EXPECT_EQ(title(Member::kBastardHip), "Bastard Hip Roof - Bastard Hip Rafter");
}

TEST(BastardHipSheet, Rows) {
  HipOutputs outputs(Unequal());
  const Rafter& rafter = outputs.drawn.rafter;
  outputs.context.Drawing.SquareCut = true;
  const auto rows = Joined(BastardHipSheetOf(rafter, outputs.context).Rows);
  EXPECT_THAT(LabelsOf(rows),
              ElementsAre("Common Rafter Run", "Common Overhang", "Hip End Common Run", "Hip End Overhang",
                          "Hip Rafter Run", "Hip Rafter Overhang", "Main Slope", "Hip End Slope",
                          "Hip Rafter Slope", "Ridge Allowance", "Hip End Ridge Allowance",
                          "Bastard Hip Ridge Allowance", "Common", "Hip", "Ridge", "Fascia", "Common Heel",
                          "Common Seat", "Hip End Seat", "Hip Heel", "Hip Seat", "Hip Drop"));
  EXPECT_EQ(ValueOf(rows, "Hip End Common Run"), "8' 0\"");
  EXPECT_EQ(ValueOf(rows, "Hip End Slope"), "9/12 (36.8699\u00BA)");
  EXPECT_EQ(ValueOf(rows, "Hip Rafter Run"), outputs.drawn.LengthText(rafter.HipValSpan));
  EXPECT_EQ(ValueOf(rows, "Bastard Hip Ridge Allowance"), outputs.drawn.LengthText(rafter.HipRidgeAllowance));
  EXPECT_EQ(ValueOf(rows, "Hip Seat"), outputs.drawn.LengthText(rafter.HipValSeat));
  outputs.context.Drawing.SquareCut = false;
  EXPECT_EQ(ValueOf(Joined(BastardHipSheetOf(rafter, outputs.context).Rows), "Fascia"), "-");
}

// On paper.

void ExpectReadable(const std::vector<TextOp>& texts, const Paper& paper) {
  Recording sheet;
  for (const TextOp& text : texts) {
    sheet.emplace_back(text);
    for (const testing::Spot& corner : testing::LettersOf(text)) {
      EXPECT_GE(corner.X, 0) << text.Text;
      EXPECT_LE(corner.X, paper.PrintableWidth()) << text.Text;
      EXPECT_GE(corner.Y, -paper.PrintableHeight()) << text.Text;
    }
  }
  EXPECT_THAT(testing::UnreadableTexts(sheet, 0xFFFFFF), ::testing::IsEmpty());
}

HipCase FortyFeet() {
  HipCase c;
  c.Run = 240;
  c.Spacing = 12;
  return c;
}

HipCase MetricUnequal() {
  HipCase c = testing::MetricHip();
  c.EndSlope = 800;
  c.OverhangsEqual = true;
  c.PastPeak = 200;
  return c;
}

TEST(HipPaper, NothingLiesOnAnything) {
  for (const HipCase& c : {HipCase{}, FortyFeet(), Unequal(), Unequal(true), MetricUnequal()}) {
    for (const auto print : {&PrintHipPlan, &PrintHipLayout, &PrintBastardHipRafters}) {
      if (print == &PrintBastardHipRafters && !c.IsBastard()) continue;
      for (const Paper& paper : {kLetterPaper, kA4Paper}) {
        SCOPED_TRACE(::testing::Message() << c);
        HipOutputs outputs(c);
        outputs.context.Drawing.SquareCut = true;
        outputs.context.Drawing.OnDesignPage = !c.IsBastard();
        ExpectReadable(outputs.Printed(print, paper), paper);
        EXPECT_THAT(testing::UnreadableTexts(outputs.Figure, 0xFFFFFF), ::testing::IsEmpty());
      }
    }
  }
}

TEST(HipPaper, HoldsTitleAndRows) {
  HipOutputs outputs({});
  std::vector<std::string> texts;
  for (const TextOp& text : outputs.Printed(&PrintHipLayout)) texts.push_back(text.Text);
  EXPECT_THAT(texts, Contains("Hip Roof - Layout  (16\" o.c. spacing)"));
  for (const std::string& row : Joined(HipRows(outputs.drawn.rafter, outputs.context)))
    EXPECT_THAT(texts, Contains(row));
}

// On paper the wood has a pen width of its own; dimensions, walls and centre lines are thin.
TEST(HipPaper, OutlinesHaveTheirPenWidth) {
  HipCase c;
  c.PastPeak = 8;
  HipOutputs outputs(c);
  const auto wide = [&] {
    int count = 0;
    for (const DrawOp& operation : outputs.Figure) {
      const auto* line = std::get_if<LineOp>(&operation);
      if (line == nullptr || line->Pen.Width == 0) continue;
      EXPECT_EQ(line->Pen.Color, outputs.context.Drawing.LineColor);
      ++count;
    }
    return count;
  };
  outputs.Printed(&PrintHipPlan);
  EXPECT_EQ(wide(), 7);  // three eaves, two hips, the ridge and the last common
  outputs.Printed(&PrintHipLayout);
  EXPECT_EQ(wide(), 6);
}

// 7 points is the small print of a newspaper.
TEST(HipPaper, JackLengthsCanBeReadOnALargeRoof) {
  constexpr double kSevenPoints = 140;
  HipOutputs outputs(FortyFeet());
  outputs.Printed(&PrintHipLayout);
  const HipLayout layout = outputs.drawn.Layout();
  double left = 0, right = 0, top = 0, bottom = 0;
  for (const DrawOp& operation : outputs.Figure) {
    if (const auto* text = std::get_if<TextOp>(&operation)) {
      for (const testing::Spot& spot : testing::LettersOf(*text)) {
        left = std::min(left, spot.X);
        right = std::max(right, spot.X);
        top = std::max(top, spot.Y);
        bottom = std::min(bottom, spot.Y);
      }
    }
  }
  const double twip = std::max((right - left) / kLetterPaper.PrintableWidth(),
                               (top - bottom) / (kLetterPaper.PrintableHeight() - 2 * 1440));
  std::size_t lengths = 0;
  for (const DrawOp& operation : outputs.Figure) {
    const auto* text = std::get_if<TextOp>(&operation);
    if (text == nullptr || text->Align != 26) continue;
    ++lengths;
    EXPECT_GE(text->Height, kSevenPoints * twip) << text->Text;
  }
  EXPECT_GE(lengths, layout.Rafters.size() - 4);
}

}  // namespace
}  // namespace pitchcraft
