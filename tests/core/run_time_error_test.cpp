// The error of the run time and the two ways to come by it: a number that fits no integer, a division by
// zero.
#include "core/run_time_error.h"

#include <gtest/gtest.h>

#include <limits>

namespace pitchcraft {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNan = std::numeric_limits<double>::quiet_NaN();

template <typename Action>
std::string MessageOf(Action action) {
  try {
    action();
  } catch (const RunTimeError& error) {
    return error.Message();
  }
  return "no error";
}

TEST(RunTimeError, SaysDescriptionAndNumber) {
  EXPECT_EQ(RunTimeError::InvalidProcedureCall().Message(), "Invalid procedure call or argument - 5");
  EXPECT_EQ(RunTimeError::Overflow().Message(), "Overflow - 6");
  EXPECT_EQ(RunTimeError::SubscriptOutOfRange().Message(), "Subscript out of range - 9");
  EXPECT_EQ(RunTimeError::DivisionByZero().Message(), "Division by zero - 11");
  EXPECT_EQ(RunTimeError::FileNotFound().Message(), "File not found - 53");
  EXPECT_EQ(RunTimeError::Overflow().Number(), 6);
  EXPECT_EQ(RunTimeError::Overflow().Description(), "Overflow");
}

TEST(ToLong, RoundsAHalfToTheEvenNeighbour) {
  EXPECT_EQ(ToLong(2.5), 2);
  EXPECT_EQ(ToLong(3.5), 4);
  EXPECT_EQ(ToLong(-2.5), -2);
  EXPECT_EQ(ToLong(2147483647.4), 2147483647);
  EXPECT_EQ(ToLong(-2147483648.5), std::numeric_limits<std::int32_t>::min());
}

TEST(ToLong, RaisesOverflowForWhatDoesNotFit) {
  for (const double value : {2147483647.5, -2147483649.0, 1e30, kInfinity, -kInfinity, kNan}) {
    EXPECT_EQ(MessageOf([value] { ToLong(value); }), "Overflow - 6") << value;
  }
}

TEST(ToInteger, HoldsSixteenBits) {
  EXPECT_EQ(ToInteger(32767.4), 32767);
  EXPECT_EQ(ToInteger(-32768), -32768);
  for (const double value : {32767.5, -32769.0, kInfinity, kNan}) {
    EXPECT_EQ(MessageOf([value] { ToInteger(value); }), "Overflow - 6") << value;
  }
}

TEST(IntegerDivision, CutsTowardsZero) {
  EXPECT_EQ(IntegerDivision(7, 2), 3);
  EXPECT_EQ(IntegerDivision(-7, 2), -3);
  EXPECT_EQ(MessageOf([] { IntegerDivision(7, 0); }), "Division by zero - 11");
  EXPECT_EQ(MessageOf([] { IntegerDivision(std::numeric_limits<std::int32_t>::min(), -1); }), "Overflow - 6");
}

}  // namespace
}  // namespace pitchcraft
