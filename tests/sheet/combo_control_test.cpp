#include "sheet/combo_control.h"

#include <gtest/gtest.h>

namespace pitchcraft {
namespace {

TEST(ComboControl, TextAndPositionAreOneFact) {
  ComboControl combo;
  combo.SetList({"12\"", "16\"", "24\""});
  combo.SetText("24\"");
  EXPECT_EQ(combo.ListIndex(), 2);
  combo.SetText("20\"");
  EXPECT_EQ(combo.ListIndex(), -1);
  combo.SetListIndex(0);
  EXPECT_EQ(combo.Text(), "12\"");
  combo.SetListIndex(9);
  EXPECT_EQ(combo.Text(), "12\"");
}

TEST(ComboControl, ANewListKeepsTheText) {
  ComboControl combo;
  combo.SetList({"a", "b"});
  combo.SetListIndex(1);
  combo.SetList({"b", "c"});
  EXPECT_EQ(combo.Text(), "b");
  EXPECT_EQ(combo.ListIndex(), 0);
}

TEST(ComboControl, CopyingAPositionCopiesTheTextWhereTheRowIsMissing) {
  ComboControl from;
  from.SetList({"1", "2", "3"});
  ComboControl to;
  to.SetList({"10", "20"});
  from.SetListIndex(1);
  to.CopyPositionFrom(from);
  EXPECT_EQ(to.Text(), "20");
  from.SetListIndex(2);
  to.CopyPositionFrom(from);
  EXPECT_EQ(to.Text(), "3");
  from.SetText("26.57");
  to.CopyPositionFrom(from);
  EXPECT_EQ(to.Text(), "26.57");
}

}  // namespace
}  // namespace pitchcraft
