#include "session/json_number.h"

#include <charconv>
#include <cmath>

#include "core/number_text.h"

namespace pitchcraft {

Json NumberOf(Single value) {
  if (!std::isfinite(value)) return NumberOf(double{value});
  // The double behind the Single's shortest text prints as that text.
  const std::string text = ExactText(static_cast<float>(double{value}));
  double shortest = 0;
  std::from_chars(text.data(), text.data() + text.size(), shortest);
  return shortest;
}

Json NumberOf(double value) {
  if (!std::isfinite(value)) return ExactText(value);
  return value;
}

}  // namespace pitchcraft
