#include "drawing/arial_meter.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

#include "drawing/arial_advances.h"

namespace pitchcraft {
namespace {

constexpr char32_t kNoCharacter = 0xFFFD;
constexpr double kUnitsPerEm = 2048;

unsigned ByteAt(std::string_view text, std::size_t at) { return static_cast<unsigned char>(text[at]); }

/// The number of bytes that a leading byte announces; 0 for a byte that cannot lead.
std::size_t LengthOf(unsigned lead) {
  if (lead < 0x80) return 1;
  if (lead >= 0xC2 && lead < 0xE0) return 2;
  if (lead >= 0xE0 && lead < 0xF0) return 3;
  return lead >= 0xF0 && lead < 0xF5 ? 4 : 0;
}

/// Takes the next character off the text; a byte that fits nowhere counts as one unknown character.
char32_t TakeCharacter(std::string_view& text) {
  const unsigned lead = ByteAt(text, 0);
  const std::size_t length = LengthOf(lead);
  char32_t code = length == 1 ? lead : lead & (0x7FU >> length);
  for (std::size_t at = 1; at < length; ++at) {
    if (at >= text.size() || (ByteAt(text, at) & 0xC0U) != 0x80U) {
      text.remove_prefix(1);
      return kNoCharacter;
    }
    code = code << 6U | (ByteAt(text, at) & 0x3FU);
  }
  text.remove_prefix(std::max<std::size_t>(length, 1));
  return length == 0 ? kNoCharacter : code;
}

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
  while (!text.empty()) total += AdvanceOf(TakeCharacter(text), table);
  return static_cast<double>(total) / kUnitsPerEm * face.Height * kEmPerCell;
}

}  // namespace pitchcraft
