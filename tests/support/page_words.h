// Words of the pages: read and put together by those who compare them.
#pragma once

#include <charconv>
#include <cstddef>
#include <sstream>
#include <string>

namespace pitchcraft::testing {

inline constexpr const char* kDegreeSign = "\u00BA";

template <typename... Parts>
std::string Said(const Parts&... parts) {
  std::ostringstream words;
  (words << ... << parts);
  return words.str();
}

/// Reads a plain number at a place of the text and goes behind it. False where there is none.
inline bool ReadNumber(const std::string& text, std::size_t& at, double& number) {
  const auto result = std::from_chars(text.data() + at, text.data() + text.size(), number);
  at = static_cast<std::size_t>(result.ptr - text.data());
  return result.ec == std::errc();
}

}  // namespace pitchcraft::testing
