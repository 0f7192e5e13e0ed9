#include "session/script_line.h"

#include <charconv>

namespace pitchcraft {
namespace {

bool IsBlank(char c) { return c == ' ' || c == '\t'; }

}  // namespace

std::string_view TakeWord(std::string_view& line) {
  while (!line.empty() && IsBlank(line.front())) line.remove_prefix(1);
  std::size_t length = 0;
  while (length < line.size() && !IsBlank(line[length])) ++length;
  const std::string_view word = line.substr(0, length);
  line.remove_prefix(length);
  while (!line.empty() && IsBlank(line.front())) line.remove_prefix(1);
  return word;
}

bool ReadNumber(std::string_view text, int& number) {
  const auto result = std::from_chars(text.data(), text.data() + text.size(), number);
  return result.ec == std::errc() && result.ptr == text.data() + text.size() && !text.empty();
}

}  // namespace pitchcraft
