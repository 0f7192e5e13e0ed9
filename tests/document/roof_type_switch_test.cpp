#include "document_test.h"

namespace pitchcraft {
namespace {

using RoofTypeSwitchTest = DocumentTest;

TEST_F(RoofTypeSwitchTest, ValuesStayFromTypeToType) {
  Type("LWSlope(0)", "5 | 12");
  Type("FtSpan(0)", "16'");
  Pick("cboType", "Valley");
  EXPECT_EQ(rafter.Slope, 5);
  EXPECT_EQ(rafter.Span, 192);
  EXPECT_TRUE(document.design.toolBar["Valley"].Pressed);
  EXPECT_FALSE(document.design.toolBar["Gable"].Pressed);
}

TEST_F(RoofTypeSwitchTest, AToolButtonPicksItsRoofOnTheFirstPage) {
  Page(1);
  Expect(actions.Press("Unequal Span Valley"));
  EXPECT_EQ(document.design.RoofType, Roof::kUnequalSpanValley);
  EXPECT_EQ(sheet.RoofList.Text(), "Unequal Span Valley");
  EXPECT_EQ(sheet.Tabs[0].Page, 0);
}

TEST_F(RoofTypeSwitchTest, ARearRoofCanBeReachedOnADualSlopeAlone) {
  EXPECT_TRUE(actions.Page("VSTab(1)", 1));
  Pick("cboType", "Dual Slope");
  Expect(actions.Page("VSTab(1)", 1));
  Type("FtSpan(1)", "10'");
  EXPECT_EQ(document.design.Rafter2.Span, 120);
  Pick("cboType", "Common Gable");
  EXPECT_EQ(sheet.Tabs[1].Page, 0);
  EXPECT_TRUE(actions.Type("FtSpan(1)", "9'"));
}

TEST_F(RoofTypeSwitchTest, ExtraRunsBeginFromTheMainRun) {
  Pick("cboType", "Dutch Hip");
  EXPECT_EQ(sheet.Span[2].Value(), 96);
  Pick("cboType", "Unequal Span Valley");
  EXPECT_EQ(sheet.Span[2].Value(), 168);
  Click("mnuMetric");
  Pick("cboType", "Unequal Span Valley");
  EXPECT_EQ(sheet.Span[2].Value(), 3624) << "24 in millimetres, too";
}

TEST_F(RoofTypeSwitchTest, MenusOfARoofShowWithIt) {
  struct Row {
    const char* item;
    MenuItem Menus::*menu;
  };
  const Row rows[] = {
      {"Hip", &Menus::HipLayout}, {"Dutch Hip", &Menus::Dutch}, {"Gambrel Roof", &Menus::Gambrel}};
  for (const Row& row : rows) {
    EXPECT_FALSE((menus.*row.menu).Visible) << row.item;
    Pick("cboType", row.item);
    EXPECT_TRUE((menus.*row.menu).Visible) << row.item;
    Pick("cboType", "Common Shed");
    EXPECT_FALSE((menus.*row.menu).Visible) << row.item;
  }
}

TEST_F(RoofTypeSwitchTest, TheLedgerBelongsToADutchHip) {
  EXPECT_FALSE(menus.DutchLedger[0].Enabled);
  Pick("cboType", "Dutch Hip");
  EXPECT_TRUE(menus.DutchLedger[1].Enabled);
  EXPECT_TRUE(sheet.Ledger.Visible);
  Pick("cboLedger", "Don't use Ledger");
  EXPECT_TRUE(menus.DutchLedger[1].Checked);
  EXPECT_EQ(document.design.Rafter2.RidgeThickness, 0);
}

TEST_F(RoofTypeSwitchTest, AHipsEndBeginsWithTheMainSlope) {
  Type("LWSlope(0)", "6.5 | 12");
  Pick("cboType", "Hip");
  EXPECT_EQ(sheet.Slope[2].LeftValue(), 6.5);
  EXPECT_TRUE(sheet.Slope[2].Visible);
  EXPECT_FALSE(sheet.Degrees[2].Visible);
  EXPECT_EQ(sheet.LastCommon.Value(), 144);
}

TEST_F(RoofTypeSwitchTest, LeavingAGambrelBringsTheSpanAndSlopeBack) {
  Type("LWSlope(0)", "6 | 12");
  Pick("cboType", "Gambrel Roof");
  EXPECT_EQ(document.design.SavedGableSpan, 144);
  EXPECT_EQ(document.design.SavedGableSlope, 6);
  EXPECT_TRUE(document.design.toolBar["Level"].Visible);
  Pick("cboType", "Common Gable");
  EXPECT_EQ(rafter.Span, 144);
  EXPECT_EQ(rafter.Slope, 6);
  EXPECT_EQ(sheet.Slope[0].LeftValue(), 6);
  EXPECT_EQ(document.design.SavedGableSpan, 0);
  EXPECT_FALSE(sheet.Slope[0].Locked);
}

TEST_F(RoofTypeSwitchTest, AnotherRoofAfterAGambrelBeginsFromTheSpanBefore) {
  Pick("cboType", "Gambrel Roof");
  Type("FtSpan(0)", "30'");
  Pick("cboType", "Dutch Hip");
  EXPECT_EQ(sheet.Span[0].Value(), 144);
  EXPECT_EQ(sheet.Span[2].Value(), 96);
  Pick("cboType", "Gambrel Roof");
  Type("FtSpan(0)", "30'");
  Pick("cboType", "Gambrel Roof");
  EXPECT_EQ(document.design.SavedGableSpan, 144);
}

TEST_F(RoofTypeSwitchTest, ALevelCutEndsWithTheGambrel) {
  Pick("cboType", "Gambrel Roof");
  Expect(actions.Press("Level"));
  EXPECT_TRUE(menus.GambrelLevel.Checked);
  EXPECT_FALSE(sheet.Fascia[0].Enabled);
  Pick("cboType", "Hip");
  EXPECT_TRUE(menus.SettingsPlumbCut.Checked);
  EXPECT_FALSE(menus.SettingsLevelCut.Checked);
  EXPECT_TRUE(document.design.toolBar["Plumb"].Pressed);
  EXPECT_TRUE(sheet.Fascia[0].Enabled);
}

TEST_F(RoofTypeSwitchTest, TheBayStripShowsWithTheBay) {
  Pick("cboType", "Bay Roof");
  EXPECT_TRUE(sheet.DimensionStrip.Visible);
  EXPECT_EQ(sheet.DimensionStrip.Height, 420);
  EXPECT_EQ(sheet.Frames[1].Top, 840);
  EXPECT_EQ(document.window.FocusRequest, "FtProjection");
  EXPECT_EQ(sheet.BayAngle.Text(), "");
  Pick("cboType", "Hip");
  EXPECT_FALSE(sheet.DimensionStrip.Visible);
  EXPECT_EQ(sheet.Frames[1].Top, 420);
}

}  // namespace
}  // namespace pitchcraft
