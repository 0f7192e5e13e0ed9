#include <cmath>

#include "document_test.h"

namespace pitchcraft {
namespace {

using SlopeFieldsTest = DocumentTest;

TEST_F(SlopeFieldsTest, ASlopeIsBroughtToTheRunOfTheUnits) {
  Type("LWSlope(0)", "6 | 8");
  EXPECT_EQ(rafter.Slope, 9);
  EXPECT_EQ(sheet.Slope[0].RightValue(), 12);
  EXPECT_EQ(sheet.Degrees[0].Text(), "36.87");
  EXPECT_EQ(rafter.degrees, Single(36.87));
}

TEST_F(SlopeFieldsTest, EnterKeepsTheDegreesUnrounded) {
  Enter("LWSlope(0)", "6 | 12");
  EXPECT_EQ(sheet.Degrees[0].Text(), "26.56505");
}

TEST_F(SlopeFieldsTest, APercentageIsReadOnEnterInEitherBox) {
  Enter("LWSlope(0)", "25% | 12");
  EXPECT_EQ(rafter.Slope, 3);
  Enter("LWSlope(0)", "7 | 50%");
  EXPECT_EQ(rafter.Slope, 6);
  EXPECT_EQ(sheet.Slope[0].RightValue(), 12);
}

TEST_F(SlopeFieldsTest, APercentageIsNotReadOnLeaving) {
  Type("LWSlope(0)", "25% | 12");
  EXPECT_EQ(rafter.Slope, 0);
}

TEST_F(SlopeFieldsTest, ARiseAloneKeepsTheRun) {
  Type("LWSlope(0)", "8");
  EXPECT_EQ(rafter.Slope, 8);
  EXPECT_EQ(sheet.Slope[0].RightValue(), 12);
}

TEST_F(SlopeFieldsTest, ARowOfTheListCommits) {
  Pick("LWSlope(0)", "9/12");
  EXPECT_EQ(rafter.Slope, 9);
  Pick("LWRafter(0)", "2x10");
  EXPECT_EQ(rafter.Depth, 9.5);
  EXPECT_EQ(rafter.PlumbCut,
            Single(std::sqrt(9.5 * 9.5 + double{Single(9 * 9.5 / 12)} * Single(9 * 9.5 / 12))));
}

TEST_F(SlopeFieldsTest, SlopeZeroAndThenSixGivesThePlainNumbersAgain) {
  Type("LWSlope(0)", "6 | 12");
  const double length = rafter.Length2, heel = rafter.Heel;
  Type("LWSlope(0)", "0 | 12");
  EXPECT_EQ(sheet.Seat[0].Text(), "inf");
  EXPECT_EQ(sheet.Seat[0].Value(), 0);
  Type("LWSlope(0)", "6 | 12");
  EXPECT_EQ(rafter.Length2, length);
  EXPECT_EQ(rafter.Heel, heel);
  EXPECT_TRUE(around.dialogs.messages.empty());
}

TEST_F(SlopeFieldsTest, DegreesGiveTheSlope) {
  Click("mnuSettingsDegrees");
  Type("cboDegrees(0)", "45");
  EXPECT_NEAR(rafter.Slope, 12, 1e-4);
  EXPECT_EQ(rafter.degrees, 45);
  Pick("cboDegrees(0)", "30");
  EXPECT_NEAR(rafter.Slope, 12 / std::sqrt(3.0), 1e-4);
}

TEST_F(SlopeFieldsTest, ZeroDegreesGiveFortyFive) {
  Click("mnuSettingsDegrees");
  for (const bool byEnter : {true, false}) {
    Type("cboDegrees(0)", "30");
    if (byEnter) {
      Enter("cboDegrees(0)", "0");
    } else {
      Type("cboDegrees(0)", "none");
    }
    EXPECT_EQ(sheet.Degrees[0].Text(), "45");
    EXPECT_EQ(rafter.Slope, 12);
  }
}

TEST_F(SlopeFieldsTest, AnEndSlopeMakesABastardHipAndTheMainSlopeBringsItBack) {
  Pick("cboType", "Hip");
  Type("LWSlope(0)", "8 | 12");
  EXPECT_EQ(sheet.Slope[2].LeftValue(), 8);
  Type("LWSlope(2)", "12 | 12");
  EXPECT_EQ(rafter.RafterType, Member::kBastardHip);
  EXPECT_EQ(sheet.Tabs[0].Caption(), "Design|Common|Hip End Common|Hip Rafter|Layout");
  EXPECT_TRUE(menus.HipLayoutOverhangsEqual.Visible);
  EXPECT_EQ(rafter.HipEndDegrees, 45);
  Type("LWSlope(0)", "8 | 12");
  EXPECT_EQ(rafter.RafterType, Member::kHip);
  EXPECT_EQ(sheet.Slope[2].LeftValue(), 8);
  EXPECT_EQ(sheet.Tabs[0].Caption(), "Design|Common|Hip Rafter|Layout");
  EXPECT_FALSE(menus.HipLayoutOverhangsEqual.Visible);
}

TEST_F(SlopeFieldsTest, LumberIsGuardedByTheSizeThatTheRafterHolds) {
  Type("LWRafter(0)", "0 | 0");
  EXPECT_EQ(rafter.Depth, 0);
  Type("LWRafter(0)", "1.5 | 7.25");
  EXPECT_EQ(rafter.Depth, 0) << "a rafter without a size takes no other before the units are switched";
  Click("mnuMetric");
  Click("mnuImperial");
  EXPECT_EQ(rafter.Depth, 7.25);
}

TEST_F(SlopeFieldsTest, SpacingIsShownInInches) {
  Pick("cboType", "Hip");
  Page(3);
  Type("cboSpacing", "2'");
  EXPECT_EQ(document.design.Rafter1.spacing, 24);
  EXPECT_EQ(rafter.spacing, 24);
  EXPECT_EQ(sheet.Spacing.Text(), "24\"");
  EXPECT_EQ(sheet.Spacing.ListIndex(), 3);
}

}  // namespace
}  // namespace pitchcraft
