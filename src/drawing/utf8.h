// Text split into characters.
#pragma once

#include <string_view>

namespace pitchcraft {

struct Utf8Character {
  char32_t Code = 0;
  std::string_view Bytes;
};

/// Replaces a byte that is not valid UTF-8.
inline constexpr char32_t kNoCharacter = 0xFFFD;

/// Takes the next character off a text that is not empty. An invalid byte is a character of its own.
Utf8Character TakeCharacter(std::string_view& text);

}  // namespace pitchcraft
