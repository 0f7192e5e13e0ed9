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

TEST(FormLayout, AWindowTooSmallIsLaidOutAtTheMinimum) {
  EXPECT_EQ(LayOutForm(0, -5, {}).picture1, LayOutForm(kMinimumWidth, kMinimumHeight, {}).picture1);
}

}  // namespace
}  // namespace pitchcraft
