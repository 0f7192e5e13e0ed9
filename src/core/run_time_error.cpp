#include "core/run_time_error.h"

#include <cmath>
#include <limits>

namespace pitchcraft {
namespace {

template <typename Integer>
Integer NearestInteger(double value) {
  const double nearest = std::nearbyint(value);
  // Written so that a not-a-number fails the test too.
  const bool fits =
      nearest >= std::numeric_limits<Integer>::min() && nearest <= std::numeric_limits<Integer>::max();
  if (!fits) throw RunTimeError::Overflow();
  return static_cast<Integer>(nearest);
}

}  // namespace

std::int32_t ToLong(double value) { return NearestInteger<std::int32_t>(value); }

std::int16_t ToInteger(double value) { return NearestInteger<std::int16_t>(value); }

std::int32_t IntegerDivision(std::int32_t dividend, std::int32_t divisor) {
  if (divisor == 0) throw RunTimeError::DivisionByZero();
  if (dividend == std::numeric_limits<std::int32_t>::min() && divisor == -1) throw RunTimeError::Overflow();
  return dividend / divisor;
}

}  // namespace pitchcraft
