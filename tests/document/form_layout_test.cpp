#include "document/form_layout.h"

#include <gtest/gtest.h>

#include <vector>

namespace pitchcraft {
namespace {

bool Overlap(const Area& a, const Area& b) {
  return a.Left < b.Right() && b.Left < a.Right() && a.Top < b.Bottom() && b.Top < a.Bottom();
}

TEST(FormLayout, PartsFillTheWindowWithoutOverlap) {
  for (const int width : {9400, 14400, 19200, 38400}) {
    for (const int height : {7000, 10800, 21600}) {
      for (const bool bars : {false, true}) {
        const FormLayout layout = LayOutForm(width, height, {bars, bars, bars, bars});
        const std::vector<Area> parts{layout.menuBar, layout.toolBar,  layout.bayStrip, layout.tabStrip,
                                      layout.sheet,   layout.picture1, layout.statusBar};
        for (std::size_t i = 0; i < parts.size(); ++i) {
          EXPECT_GE(parts[i].Left, 0);
          EXPECT_LE(parts[i].Right(), width);
          EXPECT_LE(parts[i].Bottom(), height);
          for (std::size_t j = i + 1; j < parts.size(); ++j)
            EXPECT_FALSE(Overlap(parts[i], parts[j])) << i << j;
        }
        EXPECT_GT(layout.picture1.Width, 0);
        EXPECT_GT(layout.picture1.Height, 0);
        EXPECT_GE(layout.picture3.Width, layout.picture1.Width);
      }
    }
  }
}

TEST(FormLayout, HiddenBarsGiveTheirHeightToTheDrawing) {
  const FormLayout with = LayOutForm(15000, 10500, {true, true, false, false});
  const FormLayout without = LayOutForm(15000, 10500, {false, false, false, false});
  EXPECT_EQ(without.picture1.Height - with.picture1.Height, with.toolBar.Height + with.statusBar.Height);
}

TEST(FormLayout, EveryEdgeStandsOnAPixel) {
  const FormLayout layout = LayOutForm(14321, 9876, {});
  for (const Area& area : {layout.sheet, layout.picture1, layout.picture3, layout.tabStrip}) {
    EXPECT_EQ(area.Left % 15, 0);
    EXPECT_EQ(area.Top % 15, 0);
    EXPECT_EQ(area.Width % 15, 0);
  }
}

TEST(FormLayout, WiderAndHigherWordsGetWiderColumnsAndHigherRows) {
  const WordRoom words{1.5, 1.25, 13000};
  const FormLayout usual = LayOutForm(24000, 18000, {.bayStrip = true});
  const FormLayout large = LayOutForm(24000, 18000, {.bayStrip = true, .words = words});
  EXPECT_DOUBLE_EQ(large.sheetAcross, usual.sheetAcross * 1.5);
  EXPECT_DOUBLE_EQ(large.sheetDown, usual.sheetDown * 1.25);
  EXPECT_NEAR(large.sheet.Width, usual.sheet.Width * 1.5, 15);
  EXPECT_EQ(large.toolBar.Height, usual.toolBar.Height) << "it holds no words";
  for (const auto part :
       {&FormLayout::menuBar, &FormLayout::bayStrip, &FormLayout::tabStrip, &FormLayout::statusBar}) {
    const int wanted = (usual.*part).Height * 5 / 4;
    EXPECT_GT((large.*part).Height, wanted - 15) << "a whole pixel";
    EXPECT_LE((large.*part).Height, wanted);
  }
}

// The sheet has the rows of a gambrel, the longest, and a picture beside it as wide as ever.
TEST(FormLayout, TheLeastWindowHoldsAllWords) {
  for (const double across : {1.0, 1.3, 2.5}) {
    for (const double down : {1.0, 1.2, 2.0}) {
      for (const int strip : {0, kMinimumWidth, 20000}) {
        const FormParts parts{true, true, true, true, {across, down, strip}};
        const Area least = LeastForm(parts.words);
        const FormLayout layout = LayOutForm(0, 0, parts);
        EXPECT_GE(least.Width, strip);
        EXPECT_GE(layout.menuBar.Width, least.Width / 15 * 15);
        EXPECT_GE(layout.picture1.Width, LayOutForm(0, 0, {}).picture1.Width - 15);
        EXPECT_GE(layout.picture1.Height, 15);
        EXPECT_LE(layout.sheet.Right(), layout.picture1.Left);
        EXPECT_GE(layout.sheet.Bottom() - layout.sheet.Top, static_cast<int>(4785 * down));
      }
    }
  }
}

TEST(FormLayout, AWindowTooSmallIsLaidOutAtTheMinimum) {
  EXPECT_EQ(LayOutForm(0, -5, {}).picture1, LayOutForm(kMinimumWidth, kMinimumHeight, {}).picture1);
}

}  // namespace
}  // namespace pitchcraft
