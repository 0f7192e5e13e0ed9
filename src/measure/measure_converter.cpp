#include "measure/measure_converter.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <numeric>

#include "core/number_text.h"
#include "measure/measure_parser.h"

namespace pitchcraft {
namespace {

constexpr double kMillimetresPerInch = 25.4;
constexpr std::int64_t kSixteenths = 16;  // per inch
constexpr std::int64_t kInchesPerFoot = 12;

// Up to here a measure is written out in full; 1e9 inches are 25,000 km. Decimals after the seventh are
// noise.
constexpr double kLongest = 1e9;
constexpr int kMostDecimals = 7;

std::string InchesText(std::int64_t sixteenths, bool afterFeet) {
  const std::int64_t whole = sixteenths / kSixteenths;
  const std::int64_t part = sixteenths % kSixteenths;
  if (part == 0) return std::to_string(whole) + '"';
  const std::int64_t common = std::gcd(part, kSixteenths);
  const std::string fraction =
      std::to_string(part / common) + '/' + std::to_string(kSixteenths / common) + '"';
  return whole == 0 && !afterFeet ? fraction : std::to_string(whole) + ' ' + fraction;
}

// To the nearest sixteenth; half a sixteenth goes to the even neighbour, as with decimals.
std::string TapeText(double inches, bool withFeet) {
  const auto sixteenths = static_cast<std::int64_t>(RoundTo(std::abs(inches) * kSixteenths, 0));
  constexpr std::int64_t kFoot = kSixteenths * kInchesPerFoot;
  const std::string sign = inches < 0 && sixteenths != 0 ? "-" : "";
  if (!withFeet || sixteenths < kFoot) return sign + InchesText(sixteenths, false);
  return sign + std::to_string(sixteenths / kFoot) + "' " + InchesText(sixteenths % kFoot, true);
}

std::string DecimalText(double value, int decimals) {
  decimals = std::clamp(decimals, 0, kMostDecimals);
  const double rounded = RoundTo(value, decimals);
  if (rounded == 0) return "0";  // never "-0"
  std::array<char, 32> buffer{};
  char* end =
      std::to_chars(buffer.data(), buffer.data() + buffer.size(), rounded, std::chars_format::fixed, decimals)
          .ptr;
  if (decimals > 0) {
    while (end[-1] == '0') --end;
    if (end[-1] == '.') --end;
  }
  return {buffer.data(), end};
}

bool IsWrittenOut(double value) {
  return std::abs(value) < kLongest;
}  // false for infinities and undefined numbers, too

}  // namespace

double MeasureConverter::ToValue(std::string_view text) const {
  const auto measure = ReadMeasure(text);
  if (!measure) return 0;
  const bool inMillimetres = BaseUnits == kBaseMillimetres;
  double value = measure->amount;
  if (measure->system == LengthSystem::Inches && inMillimetres) value *= kMillimetresPerInch;
  if (measure->system == LengthSystem::Millimetres && !inMillimetres) value /= kMillimetresPerInch;
  return std::isfinite(value) && value != 0 ? value : 0;  // and never -0
}

std::string MeasureConverter::ToText(double value) const {
  const bool inMillimetres = BaseUnits == kBaseMillimetres;
  const double inches = inMillimetres ? value / kMillimetresPerInch : value;
  const double millimetres = inMillimetres ? value : value * kMillimetresPerInch;
  switch (Units) {
    case kFeetAndInches:
    case kInchesAlone:
      if (IsWrittenOut(inches)) return TapeText(inches, Units == kFeetAndInches);
      break;
    case kMillimetres:
      if (IsWrittenOut(millimetres)) return DecimalText(millimetres, DecimalPlaces) + " mm";
      break;
    default:
      if (IsWrittenOut(value)) return DecimalText(value, DecimalPlaces);
  }
  return PlainText(value);  // a bare number in base units, so that it reads back
}

}  // namespace pitchcraft
