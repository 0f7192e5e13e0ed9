// Numbers as text and back, rounding, and the same figures under a comma locale.
#include "core/number_text.h"

#include <gtest/gtest.h>

#include <charconv>
#include <clocale>
#include <cmath>
#include <limits>
#include <string>

namespace pitchcraft {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNan = std::numeric_limits<double>::quiet_NaN();

struct TextRow {
  double Value;
  const char* Plain;
  const char* Signed;
};

const TextRow kTexts[] = {
    // clang-format off
    {0,           "0",            " 0"},
    {-0.0,        "0",            " 0"},
    {6,           "6",            " 6"},
    {-6,          "-6",           "-6"},
    {0.5,         "0.5",          " .5"},
    {-0.5,        "-0.5",         "-.5"},
    {12.25,       "12.25",        " 12.25"},
    {8.48528175,  "8.485282",     " 8.485282"},
    {8.4852809,   "8.485281",     " 8.485281"},
    {2.0 / 3,     "0.6666667",    " .6666667"},
    {10.5,        "10.5",         " 10.5"},
    {1000,        "1000",         " 1000"},
    {1234567,     "1234567",      " 1234567"},
    {12345678,    "1.234568E+07", " 1.234568E+07"},
    {1e30,        "1E+30",        " 1E+30"},
    {-1e-30,      "-1E-30",       "-1E-30"},
    {kInfinity,   "inf",          " inf"},
    {-kInfinity,  "-inf",         "-inf"},
    {kNan,        "nan",          " nan"},
    // clang-format on
};

void ExpectTexts() {
  for (const TextRow& row : kTexts) {
    EXPECT_EQ(PlainText(row.Value), row.Plain) << row.Value;
    EXPECT_EQ(SignedText(row.Value), row.Signed) << row.Value;
  }
}

TEST(NumberText, PlainAndSigned) { ExpectTexts(); }

TEST(NumberText, IsTheSameUnderACommaLocale) {
  const std::string before = std::setlocale(LC_ALL, nullptr);
  if (std::setlocale(LC_ALL, "de_DE.UTF-8") == nullptr) GTEST_SKIP() << "de_DE.UTF-8 is not installed";
  ExpectTexts();
  EXPECT_EQ(ExactText(0.1F), "0.1");
  EXPECT_EQ(LeadingNumber("6.5"), 6.5);
  EXPECT_EQ(LeadingNumber("6,5"), 6);
  std::setlocale(LC_ALL, before.c_str());
}

TEST(NumberText, ExactBringsBackTheSameNumber) {
  EXPECT_EQ(ExactText(0.1F), "0.1");
  EXPECT_EQ(ExactText(0.1), "0.1");
  EXPECT_EQ(ExactText(static_cast<double>(0.1F)), "0.10000000149011612");
  for (const float value : {1.0F / 3, 160.15837F, 1e-40F, std::numeric_limits<float>::max()}) {
    const std::string text = ExactText(value);
    float back = 0;
    std::from_chars(text.data(), text.data() + text.size(), back);
    EXPECT_EQ(back, value) << text;
  }
  EXPECT_EQ(ExactText(std::numeric_limits<float>::infinity()), "inf");
  EXPECT_EQ(ExactText(std::numeric_limits<float>::quiet_NaN()), "nan");
}

struct RoundRow {
  double Value;
  int Decimals;
  double Rounded;
};

TEST(RoundTo, HalfGoesToTheEvenNeighbour) {
  const RoundRow rows[] = {
      // clang-format off
      {0.5,       0, 0},
      {1.5,       0, 2},
      {2.5,       0, 2},
      {-0.5,      0, 0},
      {-1.5,      0, -2},
      {333.3,     0, 333},
      {0.125,     2, 0.12},
      {0.375,     2, 0.38},
      {19.471221, 2, 19.47},
      {35.264391, 2, 35.26},
      {2.675,     2, 2.68},   // 2.675 x 100 is 267.5 in double, a half, though 2.675 itself is a little less
      {1e300,     2, 1e300},
      // clang-format on
  };
  for (const RoundRow& row : rows) EXPECT_EQ(RoundTo(row.Value, row.Decimals), row.Rounded) << row.Value;
}

TEST(RoundTo, LeavesWhatIsNoNumber) {
  EXPECT_EQ(RoundTo(kInfinity, 2), kInfinity);
  EXPECT_EQ(RoundTo(-kInfinity, 0), -kInfinity);
  EXPECT_TRUE(std::isnan(RoundTo(kNan, 2)));
  EXPECT_EQ(RoundTo(1.7e308, 2), 1.7e308);
}

TEST(LeadingNumber, ReadsWhatATextBeginsWith) {
  const std::pair<const char*, double> rows[] = {
      // clang-format off
      {"25%",    25},
      {" 6 1/2", 6},
      {"\t-3.5", -3.5},
      {"+4",     4},
      {"+-4",    0},
      {"--4",    0},
      {".5",     0.5},
      {"1e3x",   1000},
      {"x",      0},
      {"",       0},
      {"   ",    0},
      {"nan",    0},
      {"inf",    0},
      {"1e999",  0},
      {"\xC3\xA9", 0},
      // clang-format on
  };
  for (const auto& [text, value] : rows) EXPECT_EQ(LeadingNumber(text), value) << '"' << text << '"';
  EXPECT_EQ(LeadingNumber(std::string(10000, '9')), 0);
  EXPECT_EQ(LeadingNumber(std::string_view("12345").substr(1, 2)), 23);
}

TEST(Trimmed, TakesWhiteSpaceOffBothEnds) {
  EXPECT_EQ(Trimmed(" \t\r\n a b \v\f"), "a b");
  EXPECT_EQ(Trimmed(" "), "");
  EXPECT_EQ(Trimmed(""), "");
}

}  // namespace
}  // namespace pitchcraft
