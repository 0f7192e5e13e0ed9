#include "drawings/lettering.h"

#include <array>
#include <charconv>

namespace pitchcraft {

std::string AngleLabel(double degrees) {
  std::array<char, 64> digits{};
  const auto end =
      std::to_chars(digits.data(), digits.data() + digits.size(), degrees, std::chars_format::fixed, 1);
  return std::string(digits.data(), end.ptr).append(kDegreeSign);
}

std::string WithoutDegreeSign(std::string_view label) {
  const std::size_t sign = label.find(kDegreeSign);
  if (sign == std::string_view::npos) return std::string(label);
  const std::string_view rest = label.substr(sign + kDegreeSign.size());
  return std::string(label.substr(0, sign)) + (rest.empty() ? "" : "d") + std::string(rest);
}

}  // namespace pitchcraft
