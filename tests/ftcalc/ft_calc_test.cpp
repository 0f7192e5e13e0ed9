// Sums as a carpenter types them, key by key, and what the display shows.
#include "ftcalc/ft_calc.h"

#include <gtest/gtest.h>

#include <ostream>
#include <random>

namespace pitchcraft {
namespace {

struct Row {
  const char* keys;
  const char* shown;
  CalcUnits units = CalcUnits::kFeetAndInches;
};

void PrintTo(const Row& row, std::ostream* out) { *out << row.keys; }

std::string ShownAfter(FtCalc& calculator, const char* keys) {
  calculator.Keys(keys);
  return calculator.Display();
}

class Sums : public testing::TestWithParam<Row> {};

TEST_P(Sums, AreShown) {
  FtCalc calculator;
  calculator.SetUnits(GetParam().units);
  EXPECT_EQ(ShownAfter(calculator, GetParam().keys), GetParam().shown);
  EXPECT_EQ(calculator.Message(), "");
}

INSTANTIATE_TEST_SUITE_P(
    Lengths, Sums,
    testing::Values(Row{"12'6+3'8 1/2=", "16' 2 1/2\""}, Row{"12' 6 1/2\"-14'=", "-1' 5 1/2\""},
                    Row{"5 1/2\"+7 1/4\"=", "1' 0 3/4\""}, Row{"150.5\"=", "12' 6 1/2\""},
                    Row{"8 ft - 3 mm =", "7' 11 7/8\""}, Row{"12'+3=", "12' 3\""}, Row{"3+12'=", "12' 3\""},
                    Row{"12'x3=", "36' 0\""}, Row{"3*12'=", "36' 0\""}, Row{"12'6:4=", "3' 1 1/2\""},
                    Row{"12'/4=", "3' 0\""}, Row{"10'x-2=", "-20' 0\""}, Row{"-4'+10'=", "6' 0\""},
                    Row{"1m=", "3' 3 3/8\""}));

INSTANTIATE_TEST_SUITE_P(Numbers, Sums,
                         testing::Values(Row{"2+3x4=", "20"}, Row{"7/8=", "0.875"}, Row{"1.5/2=", "0.75"},
                                         Row{"12'/3'=", "4"}, Row{"1/2/4=", "0.125"}, Row{"2:3=", "0.666667"},
                                         Row{"5 1/2+1/4=", "5.75"}, Row{"0x5=", "0"}, Row{"0x-5=", "0"}));

INSTANTIATE_TEST_SUITE_P(Areas, Sums,
                         testing::Values(Row{"12'x10'6=", "126 sq ft"}, Row{"6'x2'x10=", "120 sq ft"},
                                         Row{"126\"x12\"=", "10.5 sq ft"}, Row{"12'x10':5'=", "24' 0\""},
                                         Row{"12'x10':60'x2'=", "4 sq ft"},
                                         Row{"12\"x12\"=", "144 sq in", CalcUnits::kInches},
                                         Row{"2m x 3m=", "6 sq m", CalcUnits::kMillimetres}));

INSTANTIATE_TEST_SUITE_P(OtherUnits, Sums,
                         testing::Values(Row{"12'6 1/2=", "150 1/2\"", CalcUnits::kInches},
                                         Row{"3600mm+150=", "3750 mm", CalcUnits::kMillimetres},
                                         Row{"1\"=", "25.4 mm", CalcUnits::kMillimetres},
                                         Row{"3,6m=", "3600 mm", CalcUnits::kMillimetres}));

INSTANTIATE_TEST_SUITE_P(Entry, Sums,
                         testing::Values(Row{"12' 6", "12' 6"}, Row{"12'+", "12' 0\""}, Row{"1+2+", "3"},
                                         Row{"12'+-3'=", "9' 0\""}, Row{"12'+x3=", "36' 0\""}, Row{"", "0"},
                                         Row{"=", "0"}, Row{"1+2=+4=", "7"}, Row{"1+2=9", "9"}));

class Refused : public testing::TestWithParam<Row> {};

TEST_P(Refused, LeavesAMessageAndEverythingElse) {
  FtCalc calculator;
  std::string keys = GetParam().keys;
  const char last = keys.back();
  keys.pop_back();
  calculator.Keys(keys);
  const std::string before = calculator.Display();
  const auto tape = calculator.Tape();
  calculator.Key(last);
  EXPECT_EQ(calculator.Message(), GetParam().shown);
  EXPECT_EQ(calculator.Display(), before);
  EXPECT_EQ(calculator.Tape(), tape);
}

INSTANTIATE_TEST_SUITE_P(
    Keys, Refused,
    testing::Values(Row{"12':0=", "Nothing can be divided by zero."},
                    Row{"1:0+", "Nothing can be divided by zero."},
                    Row{"12':3:=", "A number is missing behind the sign."},
                    Row{"12'6'=", "This is no number and no measure: 12'6'"},
                    Row{"1,200=", "This is no number and no measure: 1,200"},
                    Row{"1:2'=", "A number cannot be divided by a measure."},
                    Row{"2'x2'x2'=", "This would be more than an area."},
                    Row{"2'x2'+2=", "An area can only be added to an area, or taken from one."},
                    Row{"9e307x100=", "The result is too large."}, Row{"9e307m=", "This is too large."}));

TEST(FtCalc, RefusedEntryCanBeMended) {
  FtCalc calculator;
  calculator.Keys("12':0=");
  calculator.Backspace();
  calculator.Keys("4=");
  EXPECT_EQ(calculator.Display(), "3' 0\"");
  EXPECT_EQ(calculator.Message(), "");
}

TEST(FtCalc, TapeRunsOn) {
  FtCalc calculator;
  calculator.Keys("12'6+3'8 1/2-1'=x2=");
  EXPECT_EQ(calculator.Tape(),
            (std::vector<std::string>{"  12' 6\"", "+ 3' 8 1/2\"", "- 1' 0\"", "= 15' 2 1/2\"",
                                      "  15' 2 1/2\"", "x 2", "= 30' 5\""}));
  calculator.Clear();
  EXPECT_EQ(calculator.Tape().size(), 7U);
  calculator.ClearTape();
  EXPECT_TRUE(calculator.Tape().empty());
}

TEST(FtCalc, TapeForgetsItsOldestLines) {
  FtCalc calculator;
  for (int i = 0; i < 2000; ++i) calculator.Keys("1=");
  EXPECT_EQ(calculator.Tape().size(), 1000U);
}

TEST(FtCalc, FigureIsHeldExactlyWhateverIsShown) {
  FtCalc calculator;
  calculator.Keys("1':7=x7=");
  EXPECT_EQ(calculator.Display(), "1' 0\"");
  calculator.SetUnits(CalcUnits::kMillimetres);
  EXPECT_EQ(calculator.Display(), "304.8 mm");
}

TEST(FtCalc, MemoryAddsUp) {
  FtCalc calculator;
  EXPECT_FALSE(calculator.HasMemory());
  calculator.Keys("12'6");
  calculator.MemoryAdd();
  EXPECT_EQ(calculator.Display(), "12' 6\"");
  calculator.Clear();
  calculator.Keys("2'");
  calculator.MemorySubtract();
  EXPECT_EQ(calculator.MemoryText(), "10' 6\"");
  calculator.Clear();
  calculator.Keys("1'+");
  calculator.MemoryRecall();
  calculator.Keys("=");
  EXPECT_EQ(calculator.Display(), "11' 6\"");
  calculator.MemoryClear();
  EXPECT_FALSE(calculator.HasMemory());
  calculator.MemoryRecall();
  EXPECT_EQ(calculator.Message(), "The memory is empty.");
  EXPECT_EQ(calculator.Display(), "11' 6\"");
}

TEST(FtCalc, MemoryRefusesAnotherKind) {
  FtCalc calculator;
  calculator.Keys("2'x2'=");
  calculator.MemoryAdd();
  calculator.Keys("3'");
  calculator.MemoryAdd();
  EXPECT_EQ(calculator.Message(), "An area can only be added to an area, or taken from one.");
  EXPECT_EQ(calculator.MemoryText(), "4 sq ft");
  EXPECT_EQ(calculator.Display(), "3'");
}

TEST(FtCalc, MemoryInTheMiddleOfASum) {
  FtCalc calculator;
  calculator.Keys("12'+3'");
  calculator.MemoryAdd();
  calculator.Keys("=");
  EXPECT_EQ(calculator.Display(), "15' 0\"");
  EXPECT_EQ(calculator.MemoryText(), "3' 0\"");
}

TEST(FtCalc, SignChangesOfEntryAndFigure) {
  FtCalc calculator;
  calculator.Keys("12'");
  calculator.ChangeSign();
  EXPECT_EQ(calculator.Display(), "-12'");
  calculator.ChangeSign();
  calculator.Keys("=");
  calculator.ChangeSign();
  EXPECT_EQ(calculator.Display(), "-12' 0\"");
}

TEST(FtCalc, BackspaceTakesWholeLetters) {
  FtCalc calculator;
  calculator.SetEntry("6\u00bd");
  calculator.Backspace();
  EXPECT_EQ(calculator.Display(), "6");
  calculator.Backspace();
  calculator.Backspace();
  EXPECT_EQ(calculator.Display(), "0");
}

TEST(FtCalc, ClearEntryKeepsTheSum) {
  FtCalc calculator;
  calculator.Keys("12'+99'");
  calculator.ClearEntry();
  EXPECT_EQ(calculator.Display(), "12' 0\"");
  calculator.Keys("1'=");
  EXPECT_EQ(calculator.Display(), "13' 0\"");
}

TEST(FtCalc, KeysWithoutMeaningAreNotTaken) {
  FtCalc calculator;
  for (const char key : {'q', '#', '\n', '\0'}) EXPECT_FALSE(calculator.Key(key));
  EXPECT_EQ(calculator.Display(), "0");
}

TEST(FtCalc, LongEntryStops) {
  FtCalc calculator;
  for (int i = 0; i < 100; ++i) calculator.Key('9');
  EXPECT_EQ(calculator.Display().size(), FtCalc::kLongestEntry);
}

// Whatever is pressed, it keeps working and shows a number.
TEST(FtCalc, EndlessFiddling) {
  constexpr std::string_view kKeys = "0123456789.,'\"/ -+*x:=ftmcheo";
  std::mt19937 random(7);
  FtCalc calculator;
  for (int i = 0; i < 20000; ++i) {
    switch (random() % 40) {
      case 0: calculator.MemoryAdd(); break;
      case 1: calculator.MemoryRecall(); break;
      case 2: calculator.Clear(); break;
      case 3: calculator.ChangeSign(); break;
      case 4: calculator.SetUnits(static_cast<CalcUnits>(random() % 3)); break;
      default: calculator.Key(kKeys[random() % kKeys.size()]);
    }
    ASSERT_FALSE(calculator.Display().empty());
    ASSERT_EQ(calculator.Display().find("nan"), std::string::npos);
    ASSERT_EQ(calculator.Display().find("inf"), std::string::npos);
  }
}

}  // namespace
}  // namespace pitchcraft
