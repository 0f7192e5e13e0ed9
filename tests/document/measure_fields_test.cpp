#include <cmath>

#include "document_test.h"

namespace pitchcraft {
namespace {

using MeasureFieldsTest = DocumentTest;

TEST_F(MeasureFieldsTest, ACommittedRunCalculatesAtOnce) {
  Type("LWSlope(0)", "6 | 12");
  Type("FtSpan(0)", "14'");
  EXPECT_EQ(rafter.Span, 168);
  EXPECT_EQ(rafter.Rise, 6 * (168 - 0.75) / 12);
  EXPECT_EQ(sheet.Span[0].Text(), "14' 0\"");
}

TEST_F(MeasureFieldsTest, ANegativeRunOrOverhangIsDropped) {
  Type("FtSpan(0)", "-5'");
  EXPECT_EQ(rafter.Span, 144);
  EXPECT_EQ(sheet.Span[0].Text(), "-5' 0\"") << "the entry stands until the next result";
  Type("FtOverhang(0)", "-1");
  EXPECT_EQ(rafter.Overhang, 10.5);
}

TEST_F(MeasureFieldsTest, EnterCommitsOnlyARunAboveZero) {
  Enter("FtSpan(0)", "0");
  EXPECT_EQ(rafter.Span, 144);
  Enter("FtSpan(0)", "150.5");
  EXPECT_EQ(rafter.Span, 150.5);
  Type("FtSpan(0)", "0");
  EXPECT_EQ(rafter.Span, 0) << "leaving commits a zero";
}

TEST_F(MeasureFieldsTest, AnUnlockedHeelIsOverwrittenByTheNextResult) {
  Type("LWSlope(0)", "6 | 12");
  Type("FtHeel(0)", "3");
  EXPECT_NEAR(rafter.Heel, 5.403831, 1e-6);
  EXPECT_EQ(sheet.Heel[0].Value(), 3);
  Type("FtSpan(0)", "13'");
  EXPECT_NEAR(sheet.Heel[0].Value(), 5.403831, 1e-6);
}

TEST_F(MeasureFieldsTest, ALockedHeelIsStoredWhileTypingAndCalculatedOnCommit) {
  Type("LWSlope(0)", "6 | 12");
  Check("chkHeel(0)", true);
  const double seat = rafter.Seat;
  Edit("FtHeel(0)", "4");
  EXPECT_EQ(rafter.Heel, 4);
  EXPECT_EQ(rafter.Seat, seat) << "no result before the commit";
  Type("FtHeel(0)", "4");
  EXPECT_NEAR(rafter.Seat, (rafter.PlumbCut - 4) * 2, 1e-5);
}

TEST_F(MeasureFieldsTest, HeelAndSeatCannotBothBeLocked) {
  Check("chkHeel(0)", true);
  EXPECT_TRUE(rafter.HeelLocked);
  EXPECT_TRUE(menus.SettingsHeelLocked.Checked);
  Check("chkSeat(0)", true);
  EXPECT_FALSE(sheet.HeelLock[0].Ticked());
  EXPECT_FALSE(rafter.HeelLocked);
  EXPECT_TRUE(rafter.SeatLocked);
  EXPECT_FALSE(menus.SettingsHeelLocked.Checked);
  EXPECT_TRUE(menus.SettingsSeatLocked.Checked);
  EXPECT_EQ(document.window.FocusRequest, "FtSeat(0)");
}

TEST_F(MeasureFieldsTest, ALockClearedCalculatesTheUsualHeelAgain) {
  Type("LWSlope(0)", "6 | 12");
  Check("chkSeat(0)", true);
  Type("FtSeat(0)", "3.5");
  EXPECT_NEAR(rafter.Heel, rafter.PlumbCut - 3.5 * 6 / 12, 1e-5);
  Check("chkSeat(0)", false);
  EXPECT_NEAR(rafter.Heel, rafter.PlumbCut * 0.6666667, 1e-5);
}

TEST_F(MeasureFieldsTest, AHeelOfZeroCarriesNoOverhang) {
  Type("LWSlope(0)", "6 | 12");
  Check("chkHeel(0)", true);
  Type("FtHeel(0)", "0");
  EXPECT_EQ(rafter.Overhang, 0);
  EXPECT_EQ(sheet.Overhang[0].Value(), 0);
}

TEST_F(MeasureFieldsTest, AKneewallCountsWhileItsBoxIsTicked) {
  Type("LWSlope(0)", "6 | 12");
  Check("chkKneewall(0)", true);
  EXPECT_EQ(sheet.HasKneewall[0].Caption, "a");
  EXPECT_TRUE(sheet.Kneewall[0].Enabled);
  EXPECT_EQ(sheet.Kneewall[0].ForeColor, document.preferences.CtlForeColor);
  EXPECT_TRUE(sheet.Label[0].Enabled);
  Type("FtKneewall(0)", "4'");
  EXPECT_EQ(rafter.Kneewall, 48);
  EXPECT_EQ(rafter.KneewallRise, 24);
  Type("FtKneewall(0)", "0");
  EXPECT_EQ(rafter.Kneewall, 48) << "a kneewall of 0 is dropped";
  Check("chkKneewall(0)", false);
  EXPECT_EQ(rafter.Kneewall, 0);
  EXPECT_EQ(sheet.HasKneewall[0].Caption, "");
  EXPECT_FALSE(sheet.Kneewall[0].Enabled);
  EXPECT_EQ(sheet.Kneewall[0].ForeColor, kSystemGrayTextColor);
}

TEST_F(MeasureFieldsTest, SpinButtonsStepTheirFieldAndCommit) {
  Expect(actions.Spin("Spin(0)", true));
  EXPECT_EQ(rafter.Span, 144.25);
  Expect(actions.Spin("Spin(1)", false));
  EXPECT_EQ(rafter.Overhang, 10.25);
  Type("FtOverhang(0)", "0.1");
  Expect(actions.Spin("Spin(1)", false));
  EXPECT_EQ(rafter.Overhang, 0) << "a step down stops at 0";
  Expect(actions.Spin("Spin(1)", false));
  EXPECT_EQ(sheet.Overhang[0].Value(), 0);
}

TEST_F(MeasureFieldsTest, AMetricSpinStepsByItsOwnIncrement) {
  Click("mnuMetric");
  document.preferences.MetricIncrement = 5;
  Expect(actions.Spin("Spin(0)", true));
  EXPECT_EQ(rafter.Span, 3605);
}

TEST_F(MeasureFieldsTest, TheOverhangOfAHipWithEqualSlopesWaits) {
  Pick("cboType", "Hip");
  const double before = rafter.Length2;
  Type("FtOverhang(0)", "24");
  EXPECT_EQ(rafter.Overhang, 24);
  EXPECT_EQ(rafter.Length2, before);
  Type("FtSpan(0)", "12'");
  EXPECT_GT(rafter.Length2, before);
}

TEST_F(MeasureFieldsTest, LastCommonStaysWithinOneSpacingOfTheHipEnd) {
  Pick("cboType", "Hip");
  Check("chkLastCommon", true);
  Type("FtLastCommon", "10'");
  EXPECT_EQ(sheet.LastCommon.Value(), 144) << "raised to the run of the hip end";
  Type("FtLastCommon", "12' 8\"");
  EXPECT_EQ(sheet.LastCommon.Value(), 152);
  Type("FtLastCommon", "14'");
  EXPECT_EQ(sheet.LastCommon.Value(), 144);
  ASSERT_EQ(around.dialogs.messages.size(), 1U);
  EXPECT_EQ(around.dialogs.messages[0].first, "Pitchcraft");
  EXPECT_EQ(around.dialogs.messages[0].second,
            "Distance to last common cannot be more than the hipend span plus the rafter spacing (16\")");
}

TEST_F(MeasureFieldsTest, CheckOverhangTellsTheShortestForAPlumbFascia) {
  Type("LWSlope(0)", "12 | 12");
  Type("FtOverhang(0)", "2");
  EXPECT_NEAR(LeastOverhang(document.design, 0), 7.25 * std::cos(std::atan(1.0)), 1e-6);
  Type("FtOverhang(0)", "12");
  EXPECT_EQ(LeastOverhang(document.design, 0), 0);
  Type("FtOverhang(0)", "2");
  Click("mnuSettingsSquareCut");
  EXPECT_EQ(LeastOverhang(document.design, 0), 0);
}

}  // namespace
}  // namespace pitchcraft
