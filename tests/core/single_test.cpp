// The Single: 32 bits at rest, 64 bits in an expression.
#include "core/single.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <type_traits>

namespace pitchcraft {
namespace {

TEST(Single, IsADoubleInEveryExpression) {
  const Single a = 1;
  static_assert(std::is_same_v<decltype(a + a), double>);
  static_assert(std::is_same_v<decltype(a * a), double>);
  static_assert(std::is_same_v<decltype(a / 3), double>);
  static_assert(std::is_same_v<decltype(-a), double>);
  static_assert(std::is_same_v<decltype(std::sqrt(a)), double>);
  static_assert(std::is_same_v<decltype(std::atan(a)), double>);
}

TEST(Single, LosesItsExtraDigitsAtTheStore) {
  const Single tenth = 0.1;
  EXPECT_EQ(tenth, static_cast<double>(0.1F));
  EXPECT_NE(tenth, 0.1);
  const Single odd = 16777217;  // 2^24 + 1, the first whole number that needs a 25th digit
  EXPECT_EQ(odd, 16777216);
}

TEST(Single, KeepsTheDigitsBetweenStores) {
  const Single large = 16777216;
  const Single one = 1;
  // In 32 bits the 1 would vanish in the sum.
  EXPECT_EQ(large + one - large, 1);
  const Single third = 1.0 / 3;
  EXPECT_NE(third * third, static_cast<double>(static_cast<float>(third) * static_cast<float>(third)));
}

TEST(Single, RoundsACompoundStoreOnce) {
  Single value = 16777216;
  value += 1;
  EXPECT_EQ(value, 16777216);
  value = 0.1;
  value *= 10;
  EXPECT_EQ(value, static_cast<float>(static_cast<double>(0.1F) * 10));
  value -= 1;
  EXPECT_EQ(value, 0);
}

TEST(Single, TakesInfinityAndNotANumber) {
  Single value = 1e39;
  EXPECT_TRUE(std::isinf(value));
  value = -1e39;
  EXPECT_EQ(value, -std::numeric_limits<double>::infinity());
  value = std::numeric_limits<double>::quiet_NaN();
  EXPECT_TRUE(std::isnan(value));
  value = 1e-60;
  EXPECT_EQ(value, 0);
}

TEST(Single, StartsAtZero) { EXPECT_EQ(Single{}, 0); }

}  // namespace
}  // namespace pitchcraft
