// Which measures of the record a member is drawn with.
#include "drawings/elevation_member.h"

#include <gtest/gtest.h>

#include "elevation_case.h"

namespace pitchcraft {
namespace {

using testing::ElevationCase;

class ElevationMemberTest : public ::testing::Test {
 protected:
  ElevationMember Choose(Member type) {
    rafter.RafterType = type;
    rafter.Calculate();
    return ChooseElevationMember(rafter, context);
  }
  ElevationMemberTest() { testing::Fill(rafter, ElevationCase()); }

  Rafter rafter;
  DrawingContext context;
};

TEST_F(ElevationMemberTest, TakesTheCommonsMeasures) {
  for (const Member type : {Member::kCommon, Member::kShed}) {
    const ElevationMember member = Choose(type);
    EXPECT_TRUE(member.IsCommon());
    EXPECT_EQ(member.Run, rafter.AdjSpan);
    EXPECT_EQ(member.RunWithOverhang, rafter.AdjSpanWithOverhang);
    EXPECT_EQ(member.Overhang, rafter.Overhang);
    EXPECT_EQ(member.PlumbCut, rafter.PlumbCut);
    EXPECT_EQ(member.Heel, rafter.CommonHeel);
    EXPECT_EQ(member.Seat, rafter.Seat);
    EXPECT_EQ(member.UnitRun, 12);
    EXPECT_EQ(member.SlopeText, " 6/12");
  }
}

TEST_F(ElevationMemberTest, TakesTheHipsMeasures) {
  const ElevationMember member = Choose(Member::kHip);
  EXPECT_EQ(member.Run, rafter.AdjHipSpan);
  EXPECT_NEAR(member.RunWithOverhang, rafter.AdjHipSpanWithOverhang, 1e-4);
  EXPECT_EQ(member.Overhang, rafter.HipValOverhang);
  EXPECT_EQ(member.PlumbCut, rafter.HipValPlumbCut);
  EXPECT_EQ(member.Heel, rafter.HipHeel);
  EXPECT_EQ(member.Seat, rafter.HipValSeat);
  EXPECT_EQ(member.Drop, rafter.HipDrop);
  EXPECT_GT(member.Drop, 0);
  EXPECT_EQ(member.UnitRun, 16.970562);
  EXPECT_EQ(member.SlopeText, " 4.24/12");
}

TEST_F(ElevationMemberTest, TakesTheValleysMeasures) {
  for (const Member type : {Member::kValley, Member::kLongValley, Member::kShortValley}) {
    const ElevationMember member = Choose(type);
    EXPECT_EQ(member.Run, rafter.AdjValSpan);
    EXPECT_NEAR(member.RunWithOverhang, rafter.AdjValSpanWithOverhang, 1e-4);
    EXPECT_EQ(member.Heel, rafter.Heel);
    EXPECT_EQ(member.Drop, 0);
  }
}

TEST_F(ElevationMemberTest, NamesTheSlopeInDegreesWhenAsked) {
  context.RiseOverRun = false;
  EXPECT_EQ(Choose(Member::kCommon).SlopeText, "26.57\u00BA");
  EXPECT_EQ(Choose(Member::kHip).SlopeText, "19.47\u00BA");
}

TEST_F(ElevationMemberTest, StandsOnAKneewallUnderThreeRoofsOnly) {
  rafter.Kneewall = 60;
  for (const int roof : {0, 3, 4}) {
    context.RoofType = static_cast<Roof>(roof);
    EXPECT_EQ(Choose(Member::kCommon).Kneewall, 60) << roof;
  }
  for (const int roof : {1, 2, 5, 8, 10}) {
    context.RoofType = static_cast<Roof>(roof);
    EXPECT_EQ(Choose(Member::kCommon).Kneewall, 0) << roof;
  }
  context.RoofType = Roof::kGable;
  EXPECT_EQ(Choose(Member::kHip).Kneewall, 0);
  rafter.Kneewall = 143.25;
  EXPECT_EQ(Choose(Member::kCommon).Kneewall, 0) << "beyond the ridge";
  rafter.Kneewall = -5;
  EXPECT_EQ(Choose(Member::kCommon).Kneewall, 0);
}

TEST_F(ElevationMemberTest, StaysWithinItsLumber) {
  rafter.HipValDepth = 3.5;
  const ElevationMember hip = Choose(Member::kHip);
  EXPECT_EQ(hip.Fascia, hip.PlumbCut) << "a fascia that is taller than the hip ends at its underside";
  EXPECT_EQ(hip.Seat, 0) << "the hip is all above the plate";
  rafter.HeelLocked = true;
  rafter.Heel = 0;
  rafter.HipValDepth = 7.25;
  EXPECT_EQ(Choose(Member::kHip).Heel, 0) << "never below the top edge";
}

}  // namespace
}  // namespace pitchcraft
