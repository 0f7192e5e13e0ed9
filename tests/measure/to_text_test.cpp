// What a field shows for a number.
#include <gtest/gtest.h>

#include <limits>
#include <ostream>
#include <string>

#include "measure/measure_converter.h"

namespace pitchcraft {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kUndefined = std::numeric_limits<double>::quiet_NaN();
constexpr double kGreatest = std::numeric_limits<double>::max();
constexpr double kLeast = std::numeric_limits<double>::denorm_min();

struct Row {
  const char* name;
  int units;
  int baseUnits;
  int decimalPlaces;
  double value;
  const char* text;
};

void PrintTo(const Row& row, std::ostream* out) { *out << row.value; }

std::string NameOf(const testing::TestParamInfo<Row>& row) { return row.param.name; }

class ToText : public testing::TestWithParam<Row> {};

TEST_P(ToText, Shows) {
  MeasureConverter converter;
  converter.Units = GetParam().units;
  converter.BaseUnits = GetParam().baseUnits;
  converter.DecimalPlaces = GetParam().decimalPlaces;
  EXPECT_EQ(converter.ToText(GetParam().value), GetParam().text);
}

constexpr Row kFeetRows[] = {
    {"FeetAlone", 4, 0, 4, 144, "12' 0\""},
    {"FeetAndInches", 4, 0, 4, 150, "12' 6\""},
    {"FeetAndMixed", 4, 0, 4, 150.5, "12' 6 1/2\""},
    {"FeetAndFraction", 4, 0, 4, 144.75, "12' 0 3/4\""},
    {"OneFoot", 4, 0, 4, 12, "1' 0\""},
    {"FeetAndFractionReduced", 4, 0, 4, 144.5, "12' 0 1/2\""},
    {"UnderAFoot", 4, 0, 4, 10.5, "10 1/2\""},
    {"UnderAnInch", 4, 0, 4, 0.75, "3/4\""},
    {"Zero", 4, 0, 4, 0, "0\""},
    {"ZeroNegative", 4, 0, 4, -0.0, "0\""},
    {"Negative", 4, 0, 4, -150.5, "-12' 6 1/2\""},
    {"NegativeUnderAFoot", 4, 0, 4, -0.75, "-3/4\""},
    {"Sixteenth", 4, 0, 4, 0.0625, "1/16\""},
    {"FifteenSixteenths", 4, 0, 4, 0.9375, "15/16\""},
    {"ReducedToEighths", 4, 0, 4, 0.375, "3/8\""},
    {"ReducedToQuarters", 4, 0, 4, 0.25, "1/4\""},
    {"NearestBelow", 4, 0, 4, 0.0937, "1/16\""},
    {"NearestAbove", 4, 0, 4, 0.0938, "1/8\""},
    {"CarriesIntoInches", 4, 0, 4, 5.97, "6\""},
    {"CarriesIntoFeet", 4, 0, 4, 11.97, "1' 0\""},
    {"CarriesIntoNextFoot", 4, 0, 4, 23.99, "2' 0\""},
    {"RoundsWhatItShows", 4, 0, 4, 19.2, "1' 7 3/16\""},
    {"HalfDownToEven", 4, 0, 4, 1.0 / 32, "0\""},
    {"HalfUpToEven", 4, 0, 4, 3.0 / 32, "1/8\""},
    {"HalfDownToEvenAgain", 4, 0, 4, 5.0 / 32, "1/8\""},
    {"HalfNegativeToEven", 4, 0, 4, -3.0 / 32, "-1/8\""},
    {"NegativeThatRoundsToZero", 4, 0, 4, -0.01, "0\""},
    {"Tiny", 4, 0, 4, 1e-30, "0\""},
    {"TiniestNegative", 4, 0, 4, -kLeast, "0\""},
    {"LongStillOnTape", 4, 0, 4, 999'999'999, "83333333' 3\""},
    {"TooLongForATape", 4, 0, 4, 1e9, "1E+09"},
    {"Huge", 4, 0, 4, 1e30, "1E+30"},
    {"HugeNegative", 4, 0, 4, -1e30, "-1E+30"},
    {"Greatest", 4, 0, 4, kGreatest, "1.797693E+308"},
    {"Infinite", 4, 0, 4, kInfinity, "inf"},
    {"InfiniteNegative", 4, 0, 4, -kInfinity, "-inf"},
    {"Undefined", 4, 0, 4, kUndefined, "nan"},
    {"FromMillimetres", 4, 1, 4, 3822.7, "12' 6 1/2\""},
    {"DecimalPlacesDoNotMatter", 4, 0, 0, 150.5, "12' 6 1/2\""},
};
INSTANTIATE_TEST_SUITE_P(Feet, ToText, testing::ValuesIn(kFeetRows), NameOf);

constexpr Row kInchRows[] = {
    {"Whole", 3, 0, 4, 16, "16\""},
    {"Mixed", 3, 0, 4, 19.2, "19 3/16\""},
    {"OverAFoot", 3, 0, 4, 150.5, "150 1/2\""},
    {"Fraction", 3, 0, 4, 0.75, "3/4\""},
    {"Zero", 3, 0, 4, 0, "0\""},
    {"Negative", 3, 0, 4, -19.1875, "-19 3/16\""},
    {"Carries", 3, 0, 4, 15.99, "16\""},
    {"Huge", 3, 0, 4, 1e30, "1E+30"},
    {"Infinite", 3, 0, 4, kInfinity, "inf"},
    {"FromMillimetres", 3, 1, 4, 406.4, "16\""},
};
INSTANTIATE_TEST_SUITE_P(Inches, ToText, testing::ValuesIn(kInchRows), NameOf);

constexpr Row kMetricRows[] = {
    {"Whole", 6, 1, 0, 3600, "3600 mm"},
    {"RoundsWhatItShows", 6, 1, 0, 3600.6, "3601 mm"},
    {"HalfToEvenBelow", 6, 1, 0, 2.5, "2 mm"},
    {"HalfToEvenAbove", 6, 1, 0, 3.5, "4 mm"},
    {"Decimals", 6, 1, 2, 3600.256, "3600.26 mm"},
    {"ZerosCut", 6, 1, 4, 3600.5, "3600.5 mm"},
    {"PointCut", 6, 1, 4, 3600, "3600 mm"},
    {"ZerosOfTheWholeStay", 6, 1, 0, 100, "100 mm"},
    {"Zero", 6, 1, 0, 0, "0 mm"},
    {"NegativeThatRoundsToZero", 6, 1, 0, -0.4, "0 mm"},
    {"Negative", 6, 1, 0, -400, "-400 mm"},
    {"FromInches", 6, 0, 1, 16, "406.4 mm"},
    {"Huge", 6, 1, 0, 1e30, "1E+30"},
    {"GreatestFromInches", 6, 0, 0, kGreatest, "1.797693E+308"},
    {"InfiniteNegative", 6, 1, 0, -kInfinity, "-inf"},
    {"Undefined", 6, 1, 0, kUndefined, "nan"},
};
INSTANTIATE_TEST_SUITE_P(Metric, ToText, testing::ValuesIn(kMetricRows), NameOf);

constexpr Row kPlainRows[] = {
    {"Angle", 0, 0, 4, 26.56505117707799, "26.5651"},
    {"ZerosCut", 0, 0, 4, 45, "45"},
    {"BelowOne", 0, 0, 4, 0.5, "0.5"},
    {"HalfToEvenBelow", 0, 0, 1, 0.25, "0.2"},
    {"HalfToEvenAbove", 0, 0, 1, 0.75, "0.8"},
    {"NoDecimals", 0, 0, 0, 26.565, "27"},
    {"NegativeDecimalPlacesAreNone", 0, 0, -3, 26.565, "27"},
    {"DecimalPlacesEndAtSeven", 0, 0, 300, 1.0 / 3, "0.3333333"},
    {"Negative", 0, 0, 4, -26.56506, "-26.5651"},
    {"RoundsToZero", 0, 0, 4, -0.00001, "0"},
    {"Tiny", 0, 0, 4, 1e-30, "0"},
    {"LargeInFull", 0, 0, 4, 123456789.125, "123456789.125"},
    {"LargeSevenDecimals", 0, 0, 7, -999999999.5, "-999999999.5"},
    {"Huge", 0, 0, 4, 1e30, "1E+30"},
    {"Infinite", 0, 0, 4, kInfinity, "inf"},
    {"Undefined", 0, 0, 4, kUndefined, "nan"},
    {"BaseUnitsDoNotMatter", 0, 1, 4, 26.5, "26.5"},
    {"UnknownUnitsArePlain", 99, 0, 4, 26.5, "26.5"},
};
INSTANTIATE_TEST_SUITE_P(Plain, ToText, testing::ValuesIn(kPlainRows), NameOf);

TEST(MeasureConverter, StartsInFeetAndInches) {
  const MeasureConverter converter;
  EXPECT_EQ(converter.Units, kFeetAndInches);
  EXPECT_EQ(converter.BaseUnits, kBaseInches);
  EXPECT_EQ(converter.DecimalPlaces, 4);
  EXPECT_TRUE(converter.Imperial);
}

}  // namespace
}  // namespace pitchcraft
