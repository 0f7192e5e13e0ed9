// The list of members: complete, in order, each name leading to its own member.
#include "core/rafter_members.h"

#include <gtest/gtest.h>

#include <set>

#include "record_table.h"

namespace pitchcraft {
namespace {

TEST(RafterMembers, EachNameStandsOnce) {
  std::set<std::string> names;
  for (const RafterMember& member : RafterMembers()) {
    EXPECT_TRUE(names.insert(member.Name).second) << member.Name;
  }
  // Units and the three that it gives, 38 public members and the 89 other properties.
  EXPECT_EQ(names.size(), 4 + 38 + 89U);
}

TEST(RafterMembers, AreInTheOrderOfTheRecord) {
  const auto members = RafterMembers();
  EXPECT_STREQ(members.front().Name, "Units");
  EXPECT_STREQ(members[4].Name, "AdjSpanWithOverhang");
  EXPECT_STREQ(members[4 + 38].Name, "Name");
  EXPECT_STREQ(members.back().Name, "LedgerCommonDifference24");
}

// A bay makes nearly every length a different number, so a name that led to its neighbour would show.
TEST(RafterMembers, ReadTheirOwnMember) {
  Rafter rafter;
  SmallHouse(rafter);
  rafter.RafterType = Member::kBayLedger;
  rafter.Name = "Bay";
  rafter.BayAngle = 50;
  rafter.Back = 150;
  rafter.Face = 70;
  rafter.Projection = 48;
  rafter.CenterLedgerSpan = 151;
  rafter.LedgerRunFactor = 15.66;
  rafter.HipRunFactor = 13.24;
  rafter.HeelLocked = true;
  rafter.Heel = 4;
  rafter.OverhangsEqual = true;
  rafter.CalculateBay();
  EXPECT_EQ(std::get<std::string>(ValueOf(rafter, "Name")), "Bay");
  EXPECT_EQ(std::get<int>(ValueOf(rafter, "RafterType")), 12);
  EXPECT_EQ(std::get<int>(ValueOf(rafter, "Units")), 0);
  EXPECT_EQ(std::get<int>(ValueOf(rafter, "SlopeBase")), 12);
  EXPECT_EQ(std::get<double>(ValueOf(rafter, "HipRun")), 16.970562);
  EXPECT_TRUE(std::get<bool>(ValueOf(rafter, "HeelLocked")));
  EXPECT_FALSE(std::get<bool>(ValueOf(rafter, "SeatLocked")));
  EXPECT_TRUE(std::get<bool>(ValueOf(rafter, "OverhangsEqual")));
  EXPECT_EQ(Number(rafter, "HipLength1"), rafter.HipLength1);
  EXPECT_EQ(Number(rafter, "HipLength2"), rafter.HipLength2);
  EXPECT_EQ(Number(rafter, "LedgerLength1"), rafter.LedgerLength1);
  EXPECT_EQ(Number(rafter, "LedgerLength2"), rafter.LedgerLength2);
  EXPECT_EQ(Number(rafter, "LedgerRise"), rafter.LedgerRise);
  EXPECT_EQ(Number(rafter, "LedgerSeat"), rafter.LedgerSeat);
  EXPECT_EQ(Number(rafter, "HipValSeat"), rafter.HipValSeat);
  EXPECT_EQ(Number(rafter, "PlumbCut"), rafter.PlumbCut);
  EXPECT_EQ(Number(rafter, "HipCommonDifference16"), rafter.HipCommonDifference16);
  EXPECT_EQ(std::get<std::string>(ValueOf(rafter, "LedgerPitch")), std::string(rafter.LedgerPitch));
  std::set<double> numbers;
  for (const char* name : {"HipLength1", "HipLength2", "LedgerLength1", "LedgerLength2", "LedgerRise",
                           "LedgerSeat", "HipValSeat", "PlumbCut", "HipCommonDifference16"}) {
    EXPECT_TRUE(numbers.insert(Number(rafter, name)).second) << name;
  }
}

}  // namespace
}  // namespace pitchcraft
