// Text widths from the built-in table.
#include "drawing/arial_meter.h"

#include <gtest/gtest.h>

namespace pitchcraft {
namespace {

// The em of a cell of this height is 2048, so widths are the table's own numbers.
constexpr double kTableCell = 2048 * 1.117;

double Width(std::string_view text, bool bold = false, bool italic = false) {
  return ArialMeter().TextWidth(text, {"Arial", kTableCell, bold, italic});
}

TEST(ArialMeter, KnowsTheFiguresOfAMeasure) {
  EXPECT_NEAR(Width("0"), 1139, 1e-6);
  EXPECT_NEAR(Width("'"), 391, 1e-6);
  EXPECT_NEAR(Width("\""), 727, 1e-6);
  EXPECT_NEAR(Width("/"), 569, 1e-6);
  EXPECT_NEAR(Width("12' 6 1/2\""), 1139 * 5 + 391 + 569 * 3 + 727, 1e-6);
}

TEST(ArialMeter, IsEmptyForNoText) { EXPECT_EQ(Width(""), 0); }

TEST(ArialMeter, GrowsWithTheHeightOfTheCell) {
  const ArialMeter meter;
  const double once = meter.TextWidth("13' 4 3/16\"", {"Arial", 24});
  EXPECT_NEAR(meter.TextWidth("13' 4 3/16\"", {"Arial", 48}), 2 * once, 1e-9);
}

TEST(ArialMeter, TakesTheEmFromTheCell) {
  // An ascent of 0.905 em and a descent of 0.212 em make up the cell.
  EXPECT_NEAR(ArialMeter().TextWidth("0", {"Arial", 111.7}), 100 * 1139.0 / 2048, 1e-9);
}

TEST(ArialMeter, BoldIsWiderWhereTheFaceIs) {
  EXPECT_NEAR(Width("A"), 1366, 1e-6);
  EXPECT_NEAR(Width("A", true), 1479, 1e-6);
  EXPECT_NEAR(Width("0", true), 1139, 1e-6);
  EXPECT_NEAR(Width("A", true, true), 1479, 1e-6);
  EXPECT_NEAR(Width("A", false, true), 1366, 1e-6);
}

TEST(ArialMeter, ReadsUtf8) {
  EXPECT_NEAR(Width("\u00BA"), 748, 1e-6);  // the degree sign of the lettering
  EXPECT_NEAR(Width("\u00FC"), Width("u"), 1e-6);
  EXPECT_NEAR(Width("\u2014"), 2048, 1e-6);
  EXPECT_NEAR(Width("\u221E"), 1460, 1e-6);
}

TEST(ArialMeter, GivesWhatItDoesNotKnowAnAverageWidth) {
  const double average = Width("\u4E2D");
  EXPECT_GT(average, 900);
  EXPECT_LT(average, 1400);
  EXPECT_NEAR(Width("\U0001F600"), average, 1e-6);
}

TEST(ArialMeter, CountsABrokenByteAsOneCharacter) {
  const double average = Width("\u4E2D");
  EXPECT_NEAR(Width("\xC3"), average, 1e-6);
  EXPECT_NEAR(Width("\xFF\xFF"), 2 * average, 1e-6);
  EXPECT_NEAR(Width("\xE2\x80"
                    "0"),
              2 * average + 1139, 1e-6);
}

TEST(ArialMeter, HasControlCharactersTakeTheAverageAndDoesNotCrash) {
  EXPECT_GT(Width(std::string_view("\0\t\n", 3)), 0);
}

}  // namespace
}  // namespace pitchcraft
