// Characters one by one: the place, angle and size of each.
#include <gtest/gtest.h>

#include "core/run_time_error.h"
#include "drawing/text_tool.h"
#include "open_recording.h"

namespace pitchcraft {
namespace {

using testing::Recorder;

class Effects : public ::testing::Test {
 protected:
  Effects() {
    text.FontHeight = 100;
    text.TextColor = 1;
    text.GrowColor = 2;
    text.SetTextAlign(24);
    text.Angle = 0;
  }
  const TextOp& At(std::size_t at) { return std::get<TextOp>(recorder.meta.Operations().at(at)); }
  void ExpectAt(std::size_t at, const std::string& character, DrawnPoint where, double angle) {
    EXPECT_EQ(At(at).Text, character);
    EXPECT_EQ(At(at).At, where);
    EXPECT_NEAR(At(at).Angle, angle, 1e-3);
  }
  void ExpectLetteringUnchanged() {
    EXPECT_EQ(text.FontHeight, 100);
    EXPECT_EQ(text.TextColor, 1);
    EXPECT_EQ(text.TextAlign(), 24);
    EXPECT_EQ(text.Angle, 0);
  }

  Recorder recorder;
  TextTool& text = recorder.textFX;
};

TEST_F(Effects, StackDown) {
  text.TextVertical("a\u00BAc", 10, 1000);
  ExpectAt(0, "a", {10, 1000}, 0);
  ExpectAt(1, "\u00BA", {10, 900}, 0);
  ExpectAt(2, "c", {10, 800}, 0);
  EXPECT_EQ(At(0).Color, 1);
}

TEST_F(Effects, GoRoundACircle) {
  text.TextCircle("abcd", 0, 0, 1000);
  ExpectAt(0, "a", {0, 1000}, 0);
  ExpectAt(1, "b", {1000, 0}, -90);
  ExpectAt(2, "c", {0, -1000}, -180);
  ExpectAt(3, "d", {-1000, 0}, -270);
  ExpectLetteringUnchanged();
}

TEST_F(Effects, SpanAnArc) {
  text.TextArc("abc", 100, 100, 1000, 180, 0);
  ExpectAt(0, "a", {-900, 100}, 90);
  ExpectAt(1, "b", {100, 1100}, 0);
  ExpectAt(2, "c", {1100, 100}, -90);
  ExpectLetteringUnchanged();
}

TEST_F(Effects, GrowAlongALine) {
  text.GrowTextLine("000", 0, 0, 300);
  EXPECT_EQ(At(0).Height, 100);
  EXPECT_EQ(At(1).Height, 200);
  EXPECT_EQ(At(2).Height, 300);
  const double width = 100 * kEmPerCell * 1139 / 2048;
  EXPECT_NEAR(At(1).At.X, width, 0.51);
  EXPECT_NEAR(At(2).At.X, 3 * width, 0.51);
  EXPECT_EQ(At(2).Color, 2);
  ExpectLetteringUnchanged();
}

TEST_F(Effects, GrowDownAndRound) {
  text.GrowTextVertical("ab", 0, 0, 300);
  ExpectAt(1, "b", {0, -100}, 0);
  EXPECT_EQ(At(1).Height, 300);
  text.GrowTextArc("ab", 0, 0, 1000, 90, 0, 300);
  ExpectAt(3, "b", {1000, 0}, -90);
  EXPECT_EQ(At(3).Height, 300);
  ExpectLetteringUnchanged();
}

TEST_F(Effects, Spiral) {
  text.SpiralText("abc", 0, 0, 1000, 2000, 1);
  ExpectAt(0, "a", {0, 1000}, 0);
  ExpectAt(1, "b", {0, -1500}, -180);
  ExpectAt(2, "c", {0, 2000}, -360);
  EXPECT_EQ(At(0).Color, 2);
  ExpectLetteringUnchanged();
}

TEST_F(Effects, LeaveNothingForNoText) {
  text.TextCircle("", 0, 0, 1000);
  text.SpiralText("", 0, 0, 1, 2, 3);
  text.TextArc("x", 0, 0, 1000, 90, 0);  // a single character is at the start
  ASSERT_EQ(recorder.Count(), 1U);
  ExpectAt(0, "x", {0, 1000}, 0);
}

TEST_F(Effects, PutTheLetteringBackWhenTheyFail) {
  EXPECT_THROW(text.TextCircle("ab", 0, 0, 1e30), RunTimeError);
  ExpectLetteringUnchanged();
}

}  // namespace
}  // namespace pitchcraft
