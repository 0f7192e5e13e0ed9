// Tables of calculations: what is given, which procedure runs, which members come out.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <variant>
#include <vector>

#include "core/rafter.h"
#include "core/rafter_members.h"

namespace pitchcraft {

/// A member of a record by the name that a dump gives it.
inline MemberValue ValueOf(const Rafter& rafter, const std::string& name) {
  for (const RafterMember& member : RafterMembers()) {
    if (member.Name == name) return member.Read(rafter);
  }
  ADD_FAILURE() << "no member " << name;
  return 0.0;
}

inline double Number(const Rafter& rafter, const std::string& name) {
  const MemberValue value = ValueOf(rafter, name);
  if (const auto* single = std::get_if<Single>(&value)) return *single;
  if (const auto* number = std::get_if<double>(&value)) return *number;
  if (const auto* integer = std::get_if<int>(&value)) return *integer;
  if (const auto* flag = std::get_if<bool>(&value)) return *flag ? -1 : 0;
  ADD_FAILURE() << name << " is no number";
  return 0;
}

/// The lumber and the runs of a small house: slope 6, 24 feet wide, 2 x 8 rafters.
inline void SmallHouse(Rafter& rafter) {
  rafter.Slope = 6;
  rafter.Span = 144;
  rafter.Overhang = 10.5;
  rafter.Thickness = 1.5;
  rafter.Depth = 7.25;
  rafter.FasciaThickness = 1.5;
  rafter.FasciaHeight = 7.25;
  rafter.RidgeThickness = 1.5;
  rafter.RidgeDepth = 9.25;
  rafter.HipValThickness = 1.5;
  rafter.HipValDepth = 9.25;
  rafter.spacing = 16;
  rafter.degrees = 26.57;
}

struct ExpectedMember {
  const char* Name;
  std::variant<double, const char*> Value;
};

struct CalculationRow {
  const char* Name;
  void (*Given)(Rafter&);
  void (Rafter::*Run)();
  std::vector<ExpectedMember> Expected;
};

inline void PrintTo(const CalculationRow& row, std::ostream* out) { *out << row.Name; }

inline void ExpectMember(const Rafter& rafter, const ExpectedMember& expected) {
  if (const auto* text = std::get_if<const char*>(&expected.Value)) {
    EXPECT_EQ(std::get<std::string>(ValueOf(rafter, expected.Name)), *text) << expected.Name;
    return;
  }
  const double value = std::get<double>(expected.Value);
  const double actual = Number(rafter, expected.Name);
  if (std::isnan(value)) {
    EXPECT_TRUE(std::isnan(actual)) << expected.Name << " is " << actual;
  } else if (std::isinf(value)) {
    EXPECT_EQ(actual, value) << expected.Name;
  } else {
    // A 32-bit number, and a few stores on the way to it.
    EXPECT_NEAR(actual, value, 5e-7 * std::abs(value) + 1e-6) << expected.Name;
  }
}

/// Sets up, runs and compares one row.
inline void CheckRow(const CalculationRow& row) {
  Rafter rafter;
  SmallHouse(rafter);
  row.Given(rafter);
  (rafter.*row.Run)();
  for (const ExpectedMember& expected : row.Expected) ExpectMember(rafter, expected);
}

inline std::string RowName(const testing::TestParamInfo<CalculationRow>& info) { return info.param.Name; }

}  // namespace pitchcraft
