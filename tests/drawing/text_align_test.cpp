// The nine flags taken apart.
#include "drawing/text_align.h"

#include <gtest/gtest.h>

namespace pitchcraft {
namespace {

struct Row {
  int Align;
  AlignSide Side;
  AlignLevel Level;
};

TEST(TextAlign, TakesEveryFlagApart) {
  const Row rows[] = {
      {0, AlignSide::kLeft, AlignLevel::kTop},      {2, AlignSide::kRight, AlignLevel::kTop},
      {6, AlignSide::kCenter, AlignLevel::kTop},    {8, AlignSide::kLeft, AlignLevel::kBottom},
      {10, AlignSide::kRight, AlignLevel::kBottom}, {14, AlignSide::kCenter, AlignLevel::kBottom},
      {24, AlignSide::kLeft, AlignLevel::kBase},    {26, AlignSide::kRight, AlignLevel::kBase},
      {30, AlignSide::kCenter, AlignLevel::kBase},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(SideOf(row.Align), row.Side) << row.Align;
    EXPECT_EQ(LevelOf(row.Align), row.Level) << row.Align;
  }
}

TEST(TextAlign, SharesTheWidth) {
  EXPECT_EQ(ShareLeftOf(AlignSide::kLeft), 0);
  EXPECT_EQ(ShareLeftOf(AlignSide::kCenter), 0.5);
  EXPECT_EQ(ShareLeftOf(AlignSide::kRight), 1);
}

}  // namespace
}  // namespace pitchcraft
