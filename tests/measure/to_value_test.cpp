// What a person types into a field, row by row, and the number that it means.
#include <gtest/gtest.h>

#include <chrono>
#include <cmath>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "measure/measure_converter.h"

namespace pitchcraft {
namespace {

using namespace std::string_view_literals;

struct Row {
  const char* name;
  std::string_view text;
  double inches;  // with BaseUnits inches
};

void PrintTo(const Row& row, std::ostream* out) { *out << '"' << row.text << '"'; }

template <typename AnyRow>
std::string NameOf(const testing::TestParamInfo<AnyRow>& row) {
  return row.param.name;
}

double InInches(std::string_view text) { return MeasureConverter().ToValue(text); }

double InMillimetres(std::string_view text) {
  MeasureConverter converter;
  converter.BaseUnits = kBaseMillimetres;
  return converter.ToValue(text);
}

// A bare number is in base units, so these read the same in both systems.
class BareNumber : public testing::TestWithParam<Row> {};

TEST_P(BareNumber, IsInBaseUnits) {
  EXPECT_DOUBLE_EQ(InInches(GetParam().text), GetParam().inches);
  EXPECT_DOUBLE_EQ(InMillimetres(GetParam().text), GetParam().inches);
}

constexpr Row kBareNumbers[] = {
    {"Whole", "12", 12},
    {"Decimals", "150.5", 150.5},
    {"FineDecimals", "19.2", 19.2},
    {"NoZeroInFront", ".5", 0.5},
    {"BlankInFront", " .5", 0.5},
    {"NothingAfterThePoint", "5.", 5},
    {"Mixed", "6 1/2", 6.5},
    {"MixedWithDash", "6-1/2", 6.5},
    {"MixedWithBlanksAndDash", "6 - 1/2", 6.5},
    {"Fraction", "1/2", 0.5},
    {"Sixteenths", "11/16", 0.6875},
    {"ImproperFraction", "3/2", 1.5},
    {"FractionOfZero", "0/4", 0},
    {"LeadingZeros", "007", 7},
    {"BlanksAround", "  \t 6 1/2 \r\n", 6.5},
    {"Negative", "-12.25", -12.25},
    {"NegativeMixed", "-6 1/2", -6.5},
    {"NegativeFraction", "-1/2", -0.5},
    {"NegativeAndBlank", "- 6", -6},
    {"PlusSign", "+6", 6},
    {"MinusSign", "\u22126", -6},
    {"ExponentWithPlus", "1E+30", 1e30},
    {"ExponentBare", "1e5", 1e5},
    {"ExponentTiny", "1e-30", 1e-30},
    {"NegativeExponent", "-2.5E+2", -250},
    {"HalfSign", "\u00BD", 0.5},
    {"WholeAndHalfSign", "6\u00BD", 6.5},
    {"BlankAndQuarterSign", "6 \u00BC", 6.25},
    {"DashAndThreeQuarterSign", "6-\u00BE", 6.75},
    {"EighthSign", "\u215B", 0.125},
    {"ThreeEighthsSign", "1\u215C", 1.375},
    {"FiveEighthsSign", "1\u215D", 1.625},
    {"SevenEighthsSign", "1\u215E", 1.875},
    {"ThirdSign", "\u2153", 1.0 / 3},
    {"TwoThirdsSign", "\u2154", 2.0 / 3},
    {"FractionSlash", "5\u20448", 0.625},
    {"NoBreakBlank", "6\u00A01/2", 6.5},
    {"DecimalComma", "3,6", 3.6},
    {"DecimalCommaTwoPlaces", "12,75", 12.75},
    {"DecimalCommaAfterZero", "0,125", 0.125},
    {"DecimalCommaAfterFourDigits", "1234,567", 1234.567},
    {"DecimalCommaFourPlaces", "1,2345", 1.2345},
};
INSTANTIATE_TEST_SUITE_P(Text, BareNumber, testing::ValuesIn(kBareNumbers), NameOf<Row>);

// A unit is converted, whatever the base units are.
class WithUnit : public testing::TestWithParam<Row> {};

TEST_P(WithUnit, IsConverted) {
  EXPECT_DOUBLE_EQ(InInches(GetParam().text), GetParam().inches);
  EXPECT_DOUBLE_EQ(InMillimetres(GetParam().text), GetParam().inches * 25.4);
}

constexpr Row kWithUnits[] = {
    {"FeetThenInches", "12'6", 150},
    {"FeetInchMark", "12'6\"", 150},
    {"FeetMixed", "12' 6 1/2\"", 150.5},
    {"FeetMixedWithDash", "12' 6-1/2\"", 150.5},
    {"FeetDashInches", "12'-6 1/2\"", 150.5},
    {"FeetDashInchesDash", "12'-6-1/2\"", 150.5},
    {"FeetBlankDashBlank", "12' - 6\"", 150},
    {"FeetEnDash", "12'\u20136\"", 150},
    {"FeetCommaInches", "12', 6\"", 150},
    {"FeetAlone", "12'", 144},
    {"FeetDecimals", "12.5'", 150},
    {"FeetDecimalsAndInches", "12.5' 3\"", 153},
    {"FeetMixedAlone", "12 1/2'", 150},
    {"FeetFraction", "1/4'", 3},
    {"FeetZeroInches", "12' 0\"", 144},
    {"FeetThenFraction", "12' 3/4\"", 144.75},
    {"FeetThenBareFraction", "12' 3/4", 144.75},
    {"ManyInches", "1' 30\"", 42},
    {"InchMark", "16\"", 16},
    {"InchMarkMixed", "19 3/16\"", 19.1875},
    {"InchMarkBlank", "16 \"", 16},
    {"TwoSingleQuotes", "16''", 16},
    {"FeetAndTwoSingleQuotes", "12'6 1/2''", 150.5},
    {"NegativeFeet", "-12' 6\"", -150},
    {"NegativeInches", "-3/4\"", -0.75},
    {"WordsShort", "12 ft 6 in", 150},
    {"WordsWithoutBlanks", "12ft6in", 150},
    {"WordsWithPoints", "12 ft. 6 in.", 150},
    {"WordsInFull", "12 feet 6 inches", 150},
    {"WordsOne", "1 foot 1 inch", 13},
    {"WordsInCapitals", "12 FT 6 IN", 150},
    {"WordsMixedCase", "2 Feet 3 1/2 Inches", 27.5},
    {"WordFeetBareInches", "12 ft 6", 150},
    {"WordThenMark", "12 ft 6\"", 150},
    {"TypographicQuotes", "12\u2019 6 1/2\u201D", 150.5},
    {"Primes", "12\u2032 6\u00BD\u2033", 150.5},
    {"TypographicTwoSingle", "6\u2019\u2019", 6},
    {"OpeningQuotes", "12\u2018 6\u201C", 150},
    {"ExponentFeet", "1e2 ft", 1200},
    {"Millimetres", "400 mm", 400 / 25.4},
    {"MillimetresWithoutBlank", "400mm", 400 / 25.4},
    {"Centimetres", "40 cm", 400 / 25.4},
    {"Metres", "3.6 m", 3600 / 25.4},
    {"MetresCapital", "3.6 M", 3600 / 25.4},
    {"MetresComma", "3,6 m", 3600 / 25.4},
    {"MetresCommaThreePlaces", "0,405 m", 405 / 25.4},
    {"MetresAndCentimetres", "3 m 60 cm", 3600 / 25.4},
    {"MetresCentimetresMillimetres", "3 m 60 cm 5 mm", 3605 / 25.4},
    {"NegativeMillimetres", "-400 mm", -400 / 25.4},
    {"MillimetresFraction", "1/2 mm", 0.5 / 25.4},
    {"MillimetresOneTurn", "25.4 mm", 1},
};
INSTANTIATE_TEST_SUITE_P(Text, WithUnit, testing::ValuesIn(kWithUnits), NameOf<Row>);

// A text that cannot be read is 0, never the number in one of its parts.
class Unreadable : public testing::TestWithParam<Row> {};

TEST_P(Unreadable, IsZero) {
  for (const double value : {InInches(GetParam().text), InMillimetres(GetParam().text)}) {
    EXPECT_EQ(value, 0);
    EXPECT_FALSE(std::signbit(value));
  }
}

constexpr Row kUnreadable[] = {
    {"Empty", "", 0},
    {"Blanks", "   ", 0},
    {"Letters", "abc", 0},
    {"NotANumber", "nan", 0},
    {"Infinity", "inf", 0},
    {"NegativeInfinity", "-inf", 0},
    {"InfinityInFull", "infinity", 0},
    {"Hexadecimal", "0x10", 0},
    {"DivisionByZero", "1/0", 0},
    {"ZeroByZero", "0/0", 0},
    {"MixedDivisionByZero", "6 1/0", 0},
    {"FeetDivisionByZero", "12' 1/0\"", 0},
    {"TooLarge", "1e400", 0},
    {"TooLargeNegative", "-1e400", 0},
    {"TooLargeInMetres", "1e308 m", 0},
    {"TooSmall", "1e-400", 0},
    {"HugeExponent", "1e99999999999999999999", 0},
    {"ExponentWithoutDigits", "1e", 0},
    {"ExponentWithoutDigitsPlus", "1e+", 0},
    {"MinusAlone", "-", 0},
    {"PlusAlone", "+", 0},
    {"PointAlone", ".", 0},
    {"CommaAlone", ",", 0},
    {"QuoteAlone", "'", 0},
    {"DoubleQuoteAlone", "\"", 0},
    {"UnitAlone", "mm", 0},
    {"TwoSigns", "--6", 0},
    {"MixedSigns", "+-6", 0},
    {"SignBehind", "6-", 0},
    {"ZeroNegative", "-0", 0},
    {"TwoPoints", "1.2.3", 0},
    {"ThousandsComma", "1,200", 0},
    {"ThousandsCommaWithUnit", "1,200 mm", 0},
    {"ThousandsCommaAndPoint", "1,200.5", 0},
    {"TwoCommas", "1,200,000", 0},
    {"PointThenComma", "1.200,5", 0},
    {"TextBehind", "12 apples", 0},
    {"TextInFront", "about 12", 0},
    {"UnknownUnit", "12 yd", 0},
    {"UnitWithTail", "12 mmm", 0},
    {"PercentSign", "25%", 0},
    {"TwoBareNumbers", "12 6", 0},
    {"ThreeBareNumbers", "12 6 1/2", 0},
    {"DecimalsThenFraction", "6.5 1/2", 0},
    {"TwoFractions", "1/2 1/2", 0},
    {"FractionOfFraction", "1/2/3", 0},
    {"SlashAlone", "/", 0},
    {"NothingBelow", "1/", 0},
    {"NothingAbove", "/2", 0},
    {"DecimalsBelow", "1/2.5", 0},
    {"FractionSignBelow", "1/\u00BD", 0},
    {"InchesThenFeet", "6\" 12'", 0},
    {"FeetTwice", "12' 6'", 0},
    {"InchesTwice", "6\" 6\"", 0},
    {"InchesThenBare", "6\" 3", 0},
    {"MetresThenBare", "3 m 20", 0},
    {"FeetAndMillimetres", "12' 30 mm", 0},
    {"ThreeSingleQuotes", "12'''", 0},
    {"MarkWithoutNumber", "12' \"", 0},
    {"DashWithoutInches", "12'-", 0},
    {"NegativeInchesPart", "12' --6", 0},
    {"NulByte", "12\0'"sv, 0},
    {"InvalidUtf8", "12\xFF", 0},
    {"CutUtf8", "12\xE2\x80", 0},
    {"LoneContinuation", "\x80\xBF", 0},
    {"OverlongUtf8", "12\xC0\xA7", 0},
    {"Emoji", "\xF0\x9F\x8F\xA0", 0},
    {"ArabicDigits", "\u0661\u0662", 0},
    {"FullWidthDigits", "\uFF11\uFF12", 0},
};
INSTANTIATE_TEST_SUITE_P(Text, Unreadable, testing::ValuesIn(kUnreadable), NameOf<Row>);

// 10,000 characters of anything are read at once: as a number if they are one, otherwise as 0.
struct LongRow {
  const char* name;
  std::string_view repeated;
  double inches;
};

class LongText : public testing::TestWithParam<LongRow> {};

TEST_P(LongText, IsReadAtOnce) {
  std::string text;
  while (text.size() < 10'000) text += GetParam().repeated;
  const auto begin = std::chrono::steady_clock::now();
  EXPECT_DOUBLE_EQ(InInches(text), GetParam().inches);
  EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::milliseconds(250));
}

INSTANTIATE_TEST_SUITE_P(Text, LongText,
                         testing::Values(LongRow{"Nines", "9", 0}, LongRow{"Zeros", "0", 0},
                                         LongRow{"Letters", "x", 0}, LongRow{"Quotes", "'", 0},
                                         LongRow{"Blanks", " ", 0}, LongRow{"Dashes", "-", 0},
                                         LongRow{"Slashes", "1/", 0}, LongRow{"Feet", "12' ", 0},
                                         LongRow{"HalfSigns", "\u00BD", 0}, LongRow{"Points", ".", 0},
                                         LongRow{"Exponents", "1e", 0}, LongRow{"BadBytes", "\xE2", 0}),
                         NameOf<LongRow>);

TEST(LongText, DecimalsWithoutEnd) { EXPECT_DOUBLE_EQ(InInches("0." + std::string(10'000, '3')), 1.0 / 3); }

TEST(LongText, BlanksBetween) { EXPECT_DOUBLE_EQ(InInches("12'" + std::string(10'000, ' ') + "6\""), 150); }

TEST(ToValue, DoesNotDependOnHowAValueIsShown) {
  MeasureConverter converter;
  for (const int units : {kPlainNumber, kInchesAlone, kFeetAndInches, kMillimetres}) {
    converter.Units = units;
    EXPECT_EQ(converter.ToValue("12'6"), 150) << "Units " << units;
    EXPECT_EQ(converter.ToValue("19.2"), 19.2) << "Units " << units;
  }
}

}  // namespace
}  // namespace pitchcraft
