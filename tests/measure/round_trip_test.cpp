// For any number: the text shown can be read again, and any text gives a number.
#include <gtest/gtest.h>
// rapidcheck's header must come after that of googletest.
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

#include "measure/measure_converter.h"

namespace pitchcraft {
namespace {

constexpr double kThirtySecond = 1.0 / 32;
constexpr double kMillimetresPerInch = 25.4;

// Seven significant digits keep a number to five parts in ten million.
double Tolerance(const MeasureConverter& converter, double value) {
  const double unit = converter.BaseUnits == kBaseMillimetres ? kMillimetresPerInch : 1;
  return std::max(kThirtySecond * unit * (1 + 1e-9), std::abs(value) * 5.1e-7);
}

bool ReadsBack(const MeasureConverter& converter, double value) {
  return std::abs(converter.ToValue(converter.ToText(value)) - value) <= Tolerance(converter, value);
}

// Sixty-fourths of an inch, so that half sixteenths occur, over any length that a roof can have.
RC_GTEST_PROP(RoundTrip, LengthsReadBackWithinAThirtySecond, (std::int32_t sixtyFourths)) {
  MeasureConverter converter;
  converter.Units = *rc::gen::element(kFeetAndInches, kInchesAlone, kMillimetres);
  const double value = sixtyFourths / 64.0;
  RC_ASSERT(std::abs(converter.ToValue(converter.ToText(value)) - value) <= kThirtySecond);
}

double NumberOfBits(std::uint64_t bits) {
  double value = 0;
  static_assert(sizeof(value) == sizeof(bits));
  std::memcpy(&value, &bits, sizeof(value));
  return value;
}

RC_GTEST_PROP(RoundTrip, EveryFiniteNumberReadsBack, ()) {
  MeasureConverter converter;
  converter.Units = *rc::gen::element(kFeetAndInches, kInchesAlone, kMillimetres);
  converter.BaseUnits = *rc::gen::element(kBaseInches, kBaseMillimetres);
  const double value = NumberOfBits(*rc::gen::arbitrary<std::uint64_t>());
  RC_PRE(std::isfinite(value));
  RC_ASSERT(ReadsBack(converter, value));
}

RC_GTEST_PROP(RoundTrip, PlainNumbersReadBackToTheirDecimals, (std::int32_t millionths)) {
  MeasureConverter converter;
  converter.Units = kPlainNumber;
  const double value = millionths / 1e6;
  RC_ASSERT(std::abs(converter.ToValue(converter.ToText(value)) - value) <= 0.5001e-4);
}

RC_GTEST_PROP(RoundTrip, ShownTextIsStable, (std::int32_t thousandths)) {
  MeasureConverter converter;
  converter.Units = *rc::gen::element(kPlainNumber, kInchesAlone, kFeetAndInches, kMillimetres);
  const std::string shown = converter.ToText(thousandths / 1e3);
  RC_ASSERT(converter.ToText(converter.ToValue(shown)) == shown);
}

RC_GTEST_PROP(AnyText, IsAFiniteNumber, (const std::string& text)) {
  RC_ASSERT(std::isfinite(MeasureConverter().ToValue(text)));
}

// Texts made of the pieces of a measure come much closer to a measure than random bytes.
RC_GTEST_PROP(AnyText, OfPiecesIsAFiniteNumberThatReadsBack, ()) {
  const auto pieces =
      *rc::gen::container<std::vector<std::string>>(rc::gen::elementOf(std::vector<std::string>{
          "1",  "12", "0",  ".",  ",", "/",      "-",      "+",      "'",      "\"",    " ",   "e",
          "ft", "in", "mm", "cm", "m", "\u00BD", "\u2019", "\u2033", "\u2044", "1e308", "\xE2"}));
  std::string text;
  for (const auto& piece : pieces) text += piece;
  const MeasureConverter converter;
  const double value = converter.ToValue(text);
  RC_ASSERT(std::isfinite(value));
  RC_ASSERT(ReadsBack(converter, value));
}

}  // namespace
}  // namespace pitchcraft
