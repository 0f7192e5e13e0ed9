// The comparison of a page's three forms sees what it is there for: each form of a roof that is right is
// changed a little, and the change is found.
#include <gmock/gmock.h>

#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include "one_page.h"
#include "support/scratch_folder.h"

namespace pitchcraft {
namespace {

using ::testing::Contains;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using ::testing::StartsWith;

struct Forms {
  testing::PageFacts Facts;
  testing::PageForm Screen;
  testing::SheetForm Paper;
  testing::SheetForm File;

  testing::Disagreements Compare() const { return testing::Compare(Facts, Screen, &Paper, &File); }
};

class OnePageRulesTest : public ::testing::Test {
 protected:
  Forms FormsAfter(const std::vector<std::string>& lines) {
    PageUnderTest page(folder_.Path());
    for (const std::string& line : lines) EXPECT_TRUE(page.Do(line)) << line;
    const ThreeForms forms = TakeForms(page);
    EXPECT_THAT(forms.Presence, IsEmpty());
    return {page.Facts(), forms.Screen, forms.Paper.value(), forms.File.value()};
  }
  Forms HipRafter() {
    // So steep that the rafter from below has its place.
    return FormsAfter({"pick cboType Hip", "type LWSlope(0) 18 | 12", "page VSTab(0) 2"});
  }
  Forms HipLayout() { return FormsAfter({"pick cboType Hip", "type LWSlope(0) 6 | 12", "page VSTab(0) 3"}); }

  testing::ScratchFolder folder_;
};

TEST_F(OnePageRulesTest, AFormHoldsAllThatIsDrawn) {
  const Forms hip = HipRafter();
  EXPECT_THAT(hip.Compare(), IsEmpty());
  EXPECT_GE(hip.Screen.Wood.size(), 8U);
  EXPECT_THAT(hip.Screen.Centers, SizeIs(1)) << "the line of the heel";
  EXPECT_THAT(hip.Screen.Dimensions, SizeIs(hip.File.Drawing.Dimensions.size()));
  ASSERT_TRUE(hip.Screen.EndView && hip.File.Drawing.EndView);
  EXPECT_THAT(hip.Screen.EndView->Strokes, SizeIs(7));
  EXPECT_THAT(hip.Screen.EndLabels, SizeIs(2));
  EXPECT_THAT(hip.Screen.Leaders, IsEmpty());

  const Forms layout = HipLayout();
  EXPECT_THAT(layout.Compare(), IsEmpty());
  EXPECT_THAT(layout.Screen.Wood, SizeIs(6));
  EXPECT_THAT(layout.Screen.Walls, SizeIs(3));
  EXPECT_THAT(layout.Screen.Dimensions, SizeIs(2));
  EXPECT_GT(layout.Screen.Centers.size(), 10U) << "commons and jacks";
  EXPECT_GT(layout.Screen.Labels.size(), 10U) << "their lengths";
  EXPECT_THAT(layout.Screen.Notes, SizeIs(3));
}

struct Change {
  const char* Rule;  ///< that finds it
  const char* Name;
  bool OnLayout = false;
  std::function<void(Forms&)> Make;
};

void PrintTo(const Change& change, std::ostream* stream) { *stream << change.Name; }

std::vector<Change> Changes() {
  using testing::FormStroke;
  return {
      {"wood", "AStrokeMoved", false, [](Forms& f) { f.Paper.Drawing.Wood[1].To.X += 0.4; }},
      {"wood", "AStrokeMissing", false, [](Forms& f) { f.File.Drawing.Wood.pop_back(); }},
      {"wood", "AStrokeMore", false,
       [](Forms& f) {
         f.Screen.Wood.push_back(FormStroke{{10, 10}, {20, 10}});
       }},
      {"wood", "AStrokeTwice", false,
       [](Forms& f) { f.File.Drawing.Wood.push_back(f.File.Drawing.Wood[0]); }},
      {"wood", "AnotherScale", false,
       [](Forms& f) {
         for (FormStroke& stroke : f.File.Drawing.Wood) stroke.To.X *= 1.01;
       }},
      {"walls", "AWallMoved", true, [](Forms& f) { f.File.Drawing.Walls[0].From.X += 0.4; }},
      {"centre lines", "AJackMissing", true, [](Forms& f) { f.Screen.Centers.pop_back(); }},
      {"centre lines", "AJackMoved", true, [](Forms& f) { f.File.Drawing.Centers[4].To.Y += 0.4; }},
      {"dimensions", "AnotherLength", false, [](Forms& f) { f.File.Drawing.Dimensions[0].Text = "1' 2\""; }},
      {"dimensions", "ADimensionMissing", false, [](Forms& f) { f.Paper.Drawing.Dimensions.pop_back(); }},
      {"measure", "TextsExchanged", false,
       [](Forms& f) {
         for (auto* form : {&f.Screen, &f.Paper.Drawing, &f.File.Drawing})
           std::swap(form->Dimensions[0].Text, form->Dimensions[1].Text);
       }},
      {"measured elsewhere", "ADimensionMoved", true,
       [](Forms& f) {
         for (auto* point : {&f.File.Drawing.Dimensions[0].P1, &f.File.Drawing.Dimensions[0].P2}) {
           point->X += 2;
           point->Y += 2;
         }
       }},
      {"off the outline", "TheOutlineOfAnotherRoof", true,
       [](Forms& f) {
         for (auto* strokes : {&f.File.Drawing.Wood, &f.File.Drawing.Walls}) {
           for (FormStroke& stroke : *strokes) {
             for (auto* point : {&stroke.From, &stroke.To}) {
               point->X *= 1.1;
               point->Y *= 1.1;
             }
           }
         }
       }},
      {"labels", "AnotherJack", true, [](Forms& f) { f.Paper.Drawing.Labels[4] = "9' 9\""; }},
      {"notes", "AnotherRule", true,
       [](Forms& f) { f.File.Drawing.Notes[1] = "* jacks are measured to their middle"; }},
      {"notes", "AnotherStart", true,
       [](Forms& f) { f.File.Drawing.Notes[2] = "* layout is flush from outside wall corners"; }},
      {"heading", "AnotherSlope", false, [](Forms& f) { f.Paper.Drawing.Heading = " 18/12"; }},
      {"heading", "TheSlopeOfAnotherMember", false,
       [](Forms& f) { f.Screen.Heading = f.Paper.Drawing.Heading = " 18/12"; }},
      {"heading", "AHeadingOverAPlan", true,
       [](Forms& f) { f.Screen.Heading = f.Paper.Drawing.Heading = " 6/12"; }},
      {"end view", "NoEndViewInTheFile", false, [](Forms& f) { f.File.Drawing.EndView.reset(); }},
      {"end view", "AShorterEndView", false, [](Forms& f) { f.File.Drawing.EndView->Length -= 1; }},
      {"end view", "AnotherEnd", false,
       [](Forms& f) { f.File.Drawing.EndView->Strokes[1].To.X += f.File.Drawing.EndView->Height / 2; }},
      {"end view", "AnotherBevel", false, [](Forms& f) { f.File.Drawing.EndLabels[0] = "45d bevel"; }},
      {"title", "TheTitleOfAnotherPage", false,
       [](Forms& f) { f.Paper.Sheet.Title = f.File.Sheet.Title = "Hip Roof - Common Rafter"; }},
      {"title", "TwoTitles", false, [](Forms& f) { f.File.Sheet.Title += " (adjusted)"; }},
      {"rows", "ARowMissing", false, [](Forms& f) { f.File.Sheet.Rows.pop_back(); }},
      {"rows", "AnotherRow", false, [](Forms& f) { f.File.Sheet.Rows[1] = "Common Run = 13' 0\""; }},
      {"empty row", "ARowWithoutAValue", false,
       [](Forms& f) { f.Paper.Sheet.Rows[1] = f.File.Sheet.Rows[1] = "Common Run = "; }},
      {"empty row", "LumberWithoutSizes", false,
       [](Forms& f) { f.Paper.Sheet.Rows[1] = f.File.Sheet.Rows[1] = "Common =  x "; }},
      {"slope row", "AnAngleOfAnotherSlope", false,
       [](Forms& f) { f.Paper.Sheet.Rows[0] = f.File.Sheet.Rows[0] = "Common Slope = 18/12 (56.33\u00BA)"; }},
      {"unknown", "AFigureNobodyKnows", false, [](Forms& f) { f.Screen.Unknown.emplace_back("an arc"); }},
  };
}

class ChangedFormTest : public OnePageRulesTest, public ::testing::WithParamInterface<Change> {};

TEST_P(ChangedFormTest, IsFound) {
  Forms forms = GetParam().OnLayout ? HipLayout() : HipRafter();
  GetParam().Make(forms);
  EXPECT_THAT(forms.Compare(), Contains(StartsWith(std::string(GetParam().Rule) + ":")));
}

INSTANTIATE_TEST_SUITE_P(Changes, ChangedFormTest, ::testing::ValuesIn(Changes()),
                         [](const auto& change) { return std::string(change.param.Name); });

// Allowed, because it goes by the lettering, whose size each form has of its own, or because it is rounded.
TEST_F(OnePageRulesTest, WhatIsTrueOfAnyFormIsAllowed) {
  Forms hip = HipRafter();
  for (testing::FormStroke& stroke : hip.File.Drawing.Wood) {  // a file may stand anywhere
    stroke.From.X += 500;
    stroke.To.X += 500;
  }
  for (testing::FormStroke& stroke : hip.File.Drawing.Centers) {
    stroke.From.X += 500;
    stroke.To.X += 500;
  }
  for (testing::FormDimension& dimension : hip.File.Drawing.Dimensions) {
    dimension.P1.X += 500;
    dimension.P2.X += 500;
  }
  hip.File.Drawing.EndView->LeftTop.X += 500;
  for (testing::FormStroke& stroke : hip.File.Drawing.EndView->Strokes) {
    stroke.From.X += 500;
    stroke.To.X += 500;
  }
  hip.Paper.Drawing.EndView.reset();  // where a paper is too narrow for it
  hip.Paper.Drawing.EndLabels.clear();
  EXPECT_THAT(hip.Compare(), IsEmpty());
  hip.Screen.Wood[0].From.X += 0.04;  // less than a unit of the drawing
  EXPECT_THAT(hip.Compare(), IsEmpty());
}

}  // namespace
}  // namespace pitchcraft
