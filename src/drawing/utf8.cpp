#include "drawing/utf8.h"

#include <cstddef>

namespace pitchcraft {
namespace {

unsigned ByteAt(std::string_view text, std::size_t at) { return static_cast<unsigned char>(text[at]); }

/// The number of bytes that a leading byte announces; 0 for a byte that cannot lead.
std::size_t LengthOf(unsigned lead) {
  if (lead < 0x80) return 1;
  if (lead >= 0xC2 && lead < 0xE0) return 2;
  if (lead >= 0xE0 && lead < 0xF0) return 3;
  return lead >= 0xF0 && lead < 0xF5 ? 4 : 0;
}

bool Follows(std::string_view text, std::size_t at) {
  return at < text.size() && (ByteAt(text, at) & 0xC0U) == 0x80U;
}

}  // namespace

Utf8Character TakeCharacter(std::string_view& text) {
  const unsigned lead = ByteAt(text, 0);
  std::size_t length = LengthOf(lead);
  char32_t code = length == 1 ? lead : lead & (0x7FU >> length);
  for (std::size_t at = 1; at < length; ++at) {
    if (!Follows(text, at)) {
      length = 0;
      break;
    }
    code = code << 6U | (ByteAt(text, at) & 0x3FU);
  }
  if (length == 0) {
    code = kNoCharacter;
    length = 1;
  }
  const Utf8Character taken{code, text.substr(0, length)};
  text.remove_prefix(length);
  return taken;
}

}  // namespace pitchcraft
