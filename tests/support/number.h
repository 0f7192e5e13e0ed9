// A number that stands in a file, with a point for its decimals whatever the locale.
#pragma once

#include <limits>
#include <locale>
#include <sstream>
#include <string>

namespace pitchcraft::testing {

/// Not a number where the text begins with none.
inline double NumberIn(const std::string& text) {
  std::istringstream stream(text);
  stream.imbue(std::locale::classic());
  double number = 0;
  return stream >> number ? number : std::numeric_limits<double>::quiet_NaN();
}

}  // namespace pitchcraft::testing
