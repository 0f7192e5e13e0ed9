// Any bytes typed into a measurement field give a finite number, and the text then shown reads back as that
// number.
#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>

#include "measure/measure_converter.h"

namespace {

using pitchcraft::MeasureConverter;

constexpr double kMillimetresPerInch = 25.4;
constexpr std::size_t kLongestText = 24;
constexpr double kWellOnTape = 1e7;  // far below the point where plain numbers replace tape measures

void Require(bool holds, const char* what, double value, const std::string& shown) {
  if (holds) return;
  std::fprintf(stderr, "%s: %a shown as <%s>\n", what, value, shown.c_str());
  std::abort();
}

// Half a sixteenth, half a millimetre, or the seventh significant digit. Plain numbers keep their decimals.
double Tolerance(const MeasureConverter& converter, double value) {
  const double unit = converter.BaseUnits == pitchcraft::kBaseMillimetres ? kMillimetresPerInch : 1;
  return std::max(unit / 32 * (1 + 1e-9), std::abs(value) * 5.1e-7);
}

void ShowAndReadBack(MeasureConverter& converter, double value) {
  using namespace pitchcraft;
  for (const int units : {kFeetAndInches, kInchesAlone, kMillimetres, kPlainNumber}) {
    converter.Units = units;
    const std::string shown = converter.ToText(value);
    Require(shown.size() <= kLongestText, "too long", value, shown);
    const double back = converter.ToValue(shown);
    Require(std::isfinite(back), "not finite", value, shown);
    const bool reads =
        std::isfinite(value) ? std::abs(back - value) <= Tolerance(converter, value) : back == 0;
    Require(reads, "reads back as another number", value, shown);
    if (std::abs(value) < kWellOnTape)
      Require(converter.ToText(back) == shown, "shown otherwise", value, shown);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(data, data + size);
  double bits = 0;
  if (size > 0) std::memcpy(&bits, data, std::min(size, sizeof(bits)));  // the bytes as a number of any kind
  MeasureConverter converter;
  for (const int base : {pitchcraft::kBaseInches, pitchcraft::kBaseMillimetres}) {
    converter.BaseUnits = base;
    const double value = converter.ToValue(text);
    Require(std::isfinite(value), "not finite", value, text);
    ShowAndReadBack(converter, value);
    ShowAndReadBack(converter, bits);
  }
  return 0;
}
