// Text taken apart into characters.
#pragma once

#include <string_view>

namespace pitchcraft {

struct Utf8Character {
  char32_t Code = 0;
  std::string_view Bytes;
};

/// What stands for a byte that fits nowhere.
inline constexpr char32_t kNoCharacter = 0xFFFD;

/// Takes the next character off a text that is not empty. A byte that is no UTF-8 is a character of its own.
Utf8Character TakeCharacter(std::string_view& text);

}  // namespace pitchcraft
