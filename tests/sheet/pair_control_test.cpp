#include "sheet/pair_control.h"

#include <gtest/gtest.h>

#include <limits>

namespace pitchcraft {
namespace {

class PairControlTest : public testing::Test {
 protected:
  PairControlTest() {
    for (const char* row : {"2x4|1.5|3.5", "2x6|1.5|5.5", "2x8|1.5|7.25"}) lumber.AddEntry(row);
  }
  PairControl lumber;
};

TEST_F(PairControlTest, ARowIsCaptionAndTwoValues) {
  ASSERT_EQ(lumber.List().size(), 3U);
  EXPECT_EQ(lumber.List()[2].Caption, "2x8");
  EXPECT_EQ(lumber.List()[2].Left, 1.5);
  EXPECT_EQ(lumber.List()[2].Right, 7.25);
}

TEST_F(PairControlTest, ATextWithoutTwoBarsIsNoRow) {
  lumber.AddEntry("2x10|1.5");
  lumber.AddEntry("");
  lumber.AddEntry("words");
  EXPECT_EQ(lumber.List().size(), 3U);
}

TEST_F(PairControlTest, APositionShowsItsRow) {
  lumber.SetListIndex(1);
  EXPECT_EQ(lumber.LeftText(), "1 1/2\"");
  EXPECT_EQ(lumber.RightText(), "5 1/2\"");
  lumber.SetListIndex(7);
  EXPECT_EQ(lumber.ListIndex(), 1) << "a position that is not there changes nothing";
}

TEST_F(PairControlTest, ValuesFindTheirRow) {
  lumber.SetValues(1.5, 7.25);
  EXPECT_EQ(lumber.ListIndex(), 2);
  lumber.SetRightValue(7);
  EXPECT_EQ(lumber.ListIndex(), -1);
  lumber.SetRightText("5 1/2");
  EXPECT_EQ(lumber.ListIndex(), 1);
}

TEST_F(PairControlTest, CopyingAPositionCopiesTheValuesWhereTheRowIsMissing) {
  lumber.SetListIndex(2);
  PairControl empty;
  empty.CopyPositionFrom(lumber);
  EXPECT_EQ(empty.RightValue(), 7.25);
  EXPECT_EQ(empty.ListIndex(), -1);
  PairControl other;
  for (const char* row : {"a|1|1", "b|2|2", "c|3|3"}) other.AddEntry(row);
  other.CopyPositionFrom(lumber);
  EXPECT_EQ(other.ListIndex(), 2);
  EXPECT_EQ(other.LeftValue(), 3);
}

TEST_F(PairControlTest, AnEmptyListHasNoPositionZero) {
  PairControl empty;
  empty.SetListIndex(0);
  EXPECT_EQ(empty.ListIndex(), -1);
}

TEST_F(PairControlTest, AnEntryStaysAsTypedUntilItIsLeft) {
  lumber.SetEntry("25%", "12");
  EXPECT_EQ(lumber.LeftText(), "25%");
  EXPECT_EQ(lumber.LeftValue(), 0);
  EXPECT_EQ(lumber.RightValue(), 12);
}

TEST_F(PairControlTest, InfinityIsShownAndReadsZero) {
  lumber.SetValues(std::numeric_limits<double>::infinity(), 12);
  EXPECT_EQ(lumber.LeftText(), "inf");
  EXPECT_EQ(lumber.LeftValue(), 0);
}

}  // namespace
}  // namespace pitchcraft
