// The kinds of members that a rafter's record is made of, beside the plain Single that anybody reads and
// writes.
#pragma once

#include <cstdint>
#include <utility>

#include "core/single.h"

namespace pitchcraft {

class Rafter;

/// What a member is in an expression: a Single is a double there, everything else itself.
template <typename T>
struct ExpressionOf {
  using Type = const T&;
};
template <>
struct ExpressionOf<Single> {
  using Type = double;
};

/// A value that only a calculation gives. A write from outside is accepted and ignored, so that a form can
/// put back everything that it shows without harm: a derived value changes by recalculating alone.
template <typename T>
class Derived {
 public:
  Derived() = default;
  Derived(const Derived&) = default;
  operator typename ExpressionOf<T>::Type() const { return value_; }  // NOLINT(google-explicit-constructor)
  const T& Stored() const { return value_; }
  Derived& operator=(const T&) { return *this; }

 private:
  friend class Rafter;
  // With the whole record alone: a copy of it has its results.
  Derived& operator=(const Derived&) = default;
  T value_{};
};

/// A value of the calculation's own: read by anybody, written by the calculation alone.
template <typename T>
class Internal {
 public:
  Internal() = default;
  Internal(const Internal&) = default;
  operator typename ExpressionOf<T>::Type() const { return value_; }  // NOLINT(google-explicit-constructor)
  const T& Stored() const { return value_; }

 private:
  friend class Rafter;
  Internal& operator=(const Internal&) = default;
  T value_{};
};

/// A 16-bit truth value: -1 for true, 0 for false. Other numbers can be stored; they are neither.
class Flag {
 public:
  constexpr Flag() = default;
  constexpr Flag(bool on) : stored_(on ? kTrue : kFalse) {}  // NOLINT(google-explicit-constructor)
  static constexpr Flag FromInteger(std::int16_t stored) {
    Flag flag;
    flag.stored_ = stored;
    return flag;
  }
  /// True only when exactly -1 is stored.
  constexpr operator bool() const { return stored_ == kTrue; }  // NOLINT(google-explicit-constructor)
  constexpr std::int16_t Stored() const { return stored_; }

 private:
  static constexpr std::int16_t kTrue = -1;
  static constexpr std::int16_t kFalse = 0;
  std::int16_t stored_ = kFalse;
};

/// A truth value kept as a Single: true is written as -1, and any stored number but 0 reads as true.
class SingleFlag {
 public:
  SingleFlag& operator=(bool on) {
    stored_ = on ? -1.0 : 0.0;
    return *this;
  }
  operator bool() const { return stored_ != 0; }  // NOLINT(google-explicit-constructor)
  Single Stored() const { return stored_; }

 private:
  Single stored_;
};

}  // namespace pitchcraft
