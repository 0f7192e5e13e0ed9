#include "drawing/arial_meter.h"

#include <algorithm>
#include <iterator>

#include "drawing/arial_advances.h"
#include "drawing/utf8.h"

namespace pitchcraft {
namespace {

constexpr double kUnitsPerEm = 2048;

int AdvanceOf(char32_t code, const arial::Advances& face) {
  if (code >= arial::kFirst && code <= arial::kLast) return face.Latin[code - arial::kFirst];
  const auto* const extra = std::find(std::begin(arial::kExtra), std::end(arial::kExtra), code);
  if (extra != std::end(arial::kExtra)) return face.Extra[extra - std::begin(arial::kExtra)];
  return face.Average;
}

const arial::Advances& TableOf(const TextFace& face) {
  if (face.Bold) return face.Italic ? arial::kBoldItalic : arial::kBold;
  return face.Italic ? arial::kItalic : arial::kRegular;
}

}  // namespace

double ArialMeter::TextWidth(std::string_view text, const TextFace& face) const {
  const arial::Advances& table = TableOf(face);
  long total = 0;
  while (!text.empty()) total += AdvanceOf(TakeCharacter(text).Code, table);
  return static_cast<double>(total) / kUnitsPerEm * face.Height * kEmPerCell;
}

}  // namespace pitchcraft
