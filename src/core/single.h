// The number of this product: 32 bits where it is kept, 64 bits wherever it is used.
#pragma once

namespace pitchcraft {

/// A 32-bit IEEE float that turns into a double in every expression and is rounded to 32 bits at each store.
/// A formula written with it reads as on paper and rounds exactly where a value is stored, nowhere else.
/// Arithmetic is unchecked: a division by zero or an overflow stores an infinity or a not-a-number.
class Single {
 public:
  constexpr Single() = default;
  // Implicit both ways on purpose: a Single stands wherever a number stands.
  constexpr Single(double value)
      : value_(static_cast<float>(value)) {}  // NOLINT(google-explicit-constructor)
  constexpr operator double() const { return static_cast<double>(value_); }  // NOLINT

  constexpr Single& operator=(double value) { return *this = Single(value); }
  constexpr Single& operator+=(double other) { return *this = *this + other; }
  constexpr Single& operator-=(double other) { return *this = *this - other; }
  constexpr Single& operator*=(double other) { return *this = *this * other; }

 private:
  float value_ = 0.0F;
};

static_assert(sizeof(Single) == 4);

}  // namespace pitchcraft
