// The record itself: its start values, the unit constants, and which members take a write.
#include "core/rafter.h"

#include <gtest/gtest.h>

#include <type_traits>

#include "record_table.h"

namespace pitchcraft {
namespace {

TEST(Rafter, StartsImperialAndEmpty) {
  const Rafter rafter;
  EXPECT_EQ(rafter.Units(), 0);
  EXPECT_EQ(rafter.SlopeBase, 12);
  EXPECT_EQ(rafter.HipRun, 16.970562);
  EXPECT_EQ(rafter.HipFactor, 16.970562 / 12);
  for (const RafterMember& member : RafterMembers()) {
    const std::string name = member.Name;
    if (name == "SlopeBase" || name == "HipRun" || name == "HipFactor") continue;
    const MemberValue value = member.Read(rafter);
    if (const auto* text = std::get_if<std::string>(&value)) {
      EXPECT_EQ(*text, "") << name;
    } else if (const auto* flag = std::get_if<bool>(&value)) {
      EXPECT_FALSE(*flag) << name;
    } else {
      EXPECT_EQ(Number(rafter, name), 0) << name;
    }
  }
}

TEST(Rafter, AnyUnitsButZeroAreMetric) {
  for (const int units : {1, 2, -1}) {
    Rafter rafter;
    rafter.SetUnits(units);
    EXPECT_EQ(rafter.Units(), units);
    EXPECT_EQ(rafter.SlopeBase, 1000);
    EXPECT_EQ(rafter.HipRun, 1414.2135);
    EXPECT_EQ(rafter.HipFactor, 1414.2135 / 1000);
    rafter.SetUnits(0);
    EXPECT_EQ(rafter.SlopeBase, 12);
    EXPECT_EQ(rafter.HipFactor, 16.970562 / 12);
  }
}

TEST(Rafter, UnitsConvertNothingAndCalculateNothing) {
  Rafter rafter;
  SmallHouse(rafter);
  rafter.Calculate();
  rafter.SetUnits(1);
  EXPECT_EQ(rafter.Slope, 6);
  EXPECT_EQ(rafter.Span, 144);
  EXPECT_EQ(rafter.Rise, 71.625);
  EXPECT_EQ(std::string(rafter.Pitch), " 6/12");
}

TEST(Rafter, DerivedMembersIgnoreAWrite) {
  Rafter rafter;
  SmallHouse(rafter);
  rafter.Calculate();
  rafter.RidgeAllowance = 9;
  rafter.HipRidgeAllowance = 9;
  rafter.ValRidgeAllowance = 9;
  rafter.LedgerRidgeAllowance = 9;
  rafter.CommonDifference = 9;
  rafter.CommonDifference16 = 9;
  rafter.CommonDifference24 = 9;
  rafter.HipDegrees = 9;
  rafter.KneewallRise = 9;
  rafter.Length2 = 9;
  rafter.AdjValSpan = 9;
  rafter.LedgerSpan = 9;
  rafter.HipHeel = 9;
  rafter.Pitch = "nine";
  rafter.HipPitch = "nine";
  rafter.HipEndPitch = "nine";
  rafter.LedgerPitch = "nine";
  EXPECT_EQ(rafter.RidgeAllowance, 0.75);
  EXPECT_EQ(rafter.HipRidgeAllowance, Single(1.06066017));
  EXPECT_EQ(rafter.ValRidgeAllowance, 0);
  EXPECT_EQ(rafter.LedgerRidgeAllowance, 0);
  EXPECT_EQ(rafter.CommonDifference, Single(1.1180339887));
  EXPECT_EQ(rafter.CommonDifference16, Single(17.88854382));
  EXPECT_EQ(rafter.CommonDifference24, Single(26.83281573));
  EXPECT_EQ(rafter.HipDegrees, Single(19.47));
  EXPECT_EQ(rafter.KneewallRise, 0);
  EXPECT_NE(rafter.Length2, 9);
  EXPECT_NE(rafter.AdjValSpan, 9);
  EXPECT_EQ(rafter.LedgerSpan, 0);
  EXPECT_EQ(rafter.HipHeel, 0);
  EXPECT_EQ(std::string(rafter.Pitch), " 6/12");
  EXPECT_EQ(std::string(rafter.HipPitch), " 4.24/12");
  EXPECT_EQ(std::string(rafter.HipEndPitch), " 6/12");
  EXPECT_EQ(std::string(rafter.LedgerPitch), "");
}

// What is written is a template's parameter, so that a member that takes no write says so instead of failing
// to compile.
template <typename M>
constexpr bool kTakesWrite = std::is_assignable_v<M&, double>;

TEST(Rafter, InternalMembersTakeNoWriteAtAll) {
  static_assert(kTakesWrite<decltype(Rafter::RidgeAllowance)>);
  static_assert(!kTakesWrite<decltype(Rafter::PlumbCut)>);
  static_assert(!kTakesWrite<decltype(Rafter::PlumbRun)>);
  static_assert(!kTakesWrite<decltype(Rafter::HipEndPlumbCut)>);
  static_assert(!kTakesWrite<decltype(Rafter::HipEndSeat)>);
  static_assert(!kTakesWrite<decltype(Rafter::HipEndHeel)>);
  static_assert(!kTakesWrite<decltype(Rafter::HipValPlumbCut)>);
  static_assert(!kTakesWrite<decltype(Rafter::LedgerPlumbCut)>);
  static_assert(!kTakesWrite<decltype(Rafter::HipValSeat)>);
  static_assert(!kTakesWrite<decltype(Rafter::LedgerSeat)>);
  static_assert(!kTakesWrite<decltype(Rafter::HipDrop)>);
  static_assert(!kTakesWrite<decltype(Rafter::LedgerDrop)>);
  static_assert(!std::is_assignable_v<decltype(Rafter::SlopeBase)&, int>);
}

TEST(Rafter, StoredMembersTakeTheWrite) {
  Rafter rafter;
  rafter.Length1 = 9;
  rafter.HipEndRidgeAllowance = 9;
  rafter.LedgerHeel = 9;
  rafter.LedgerDegrees = 9;
  rafter.AdjHipSpan = 9;
  EXPECT_EQ(rafter.Length1, 9);
  EXPECT_EQ(rafter.HipEndRidgeAllowance, 9);
  EXPECT_EQ(rafter.LedgerHeel, 9);
  EXPECT_EQ(rafter.LedgerDegrees, 9);
  EXPECT_EQ(rafter.AdjHipSpan, 9);
}

TEST(Rafter, OverhangsEqualIsKeptAsMinusOne) {
  Rafter rafter;
  rafter.OverhangsEqual = true;
  EXPECT_TRUE(rafter.OverhangsEqual);
  EXPECT_EQ(rafter.OverhangsEqual.Stored(), -1);
  rafter.OverhangsEqual = false;
  EXPECT_FALSE(rafter.OverhangsEqual);
  EXPECT_EQ(rafter.OverhangsEqual.Stored(), 0);
}

TEST(Rafter, ALockIsTrueOnlyAtMinusOne) {
  EXPECT_TRUE(Flag::FromInteger(-1));
  EXPECT_FALSE(Flag::FromInteger(0));
  EXPECT_FALSE(Flag::FromInteger(1));
  EXPECT_EQ(Flag(true).Stored(), -1);
  EXPECT_EQ(Flag(false).Stored(), 0);
}

TEST(Rafter, IrregularDoesNothing) {
  Rafter rafter;
  SmallHouse(rafter);
  rafter.CalculateIrregular();
  EXPECT_EQ(rafter.Rise, 0);
  EXPECT_EQ(std::string(rafter.Pitch), "");
}

TEST(Members, ThreeMembersRunInAValley) {
  for (int number = 0; number <= 20; ++number) {
    const bool valley = number == 2 || number == 14 || number == 15;
    EXPECT_EQ(IsValley(static_cast<Member>(number)), valley) << number;
  }
}

}  // namespace
}  // namespace pitchcraft
