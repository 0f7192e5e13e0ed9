// Two ways to the same member: the right one, and one that rounds elsewhere.
#pragma once

#include <gtest/gtest.h>

#include <bit>
#include <cstdint>

namespace pitchcraft {

inline std::uint32_t Bits(double stored) { return std::bit_cast<std::uint32_t>(static_cast<float>(stored)); }

// What the record holds must be `expected`, rounded once; how often would the other way have differed?
class Comparison {
 public:
  explicit Comparison(const char* member) : member_(member) {}
  ~Comparison() {
    EXPECT_GT(roofs_, 1000) << member_;
    EXPECT_GE(differing_, 10) << member_ << ": these roofs do not tell the two ways apart";
  }
  Comparison(const Comparison&) = delete;
  Comparison& operator=(const Comparison&) = delete;

  void Check(double stored, double expected, float otherWay) {
    ++roofs_;
    ASSERT_EQ(Bits(stored), Bits(expected)) << member_ << " of roof " << roofs_;
    if (Bits(otherWay) != Bits(expected)) ++differing_;
  }

 private:
  const char* member_;
  int roofs_ = 0;
  int differing_ = 0;
};

inline float F(double value) { return static_cast<float>(value); }

}  // namespace pitchcraft
