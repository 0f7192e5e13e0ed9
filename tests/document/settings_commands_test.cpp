#include "document_test.h"

namespace pitchcraft {
namespace {

using SettingsCommandsTest = DocumentTest;

TEST_F(SettingsCommandsTest, TheUnitItemsAreOneToggle) {
  Click("mnuImperial");
  EXPECT_EQ(UnitRun(document.design), 1000) << "the item that is checked already changes the system too";
  EXPECT_TRUE(menus.Metric.Checked);
  Click("mnuImperial");
  EXPECT_EQ(UnitRun(document.design), 12);
}

TEST_F(SettingsCommandsTest, MetricBeginsWithItsOwnDefaults) {
  Pick("cboType", "Hip");
  Type("FtSpan(0)", "20'");
  Click("mnuMetric");
  EXPECT_EQ(document.design.RoofType, Roof::kGable);
  for (const Rafter* each : {&document.design.Rafter1, &document.design.Rafter2}) {
    EXPECT_EQ(each->SlopeBase, 1000);
    EXPECT_EQ(each->Slope, 100);
    EXPECT_EQ(each->Span, 3600);
    EXPECT_EQ(each->Overhang, 300);
    EXPECT_EQ(each->Thickness, 38);
    EXPECT_EQ(each->HipValDepth, 184);
    EXPECT_EQ(each->FasciaHeight, 140);
    EXPECT_EQ(each->spacing, 400);
  }
  EXPECT_EQ(UnitHipRun(document.design), 1414.2135);
  EXPECT_EQ(DrawScale(document.design), 1);
  EXPECT_EQ(sheet.Span[0].Text(), "3600 mm");
  EXPECT_EQ(sheet.Slope[0].LeftText(), "100");
  EXPECT_EQ(sheet.Slope[0].List().front().Caption, "100/1000");
  EXPECT_EQ(sheet.Common[0].List().front().Caption, "1x4") << "lumber keeps its inches by name and number";
  EXPECT_EQ(sheet.Spacing.Text(), "400 mm");
  EXPECT_EQ(sheet.UpperFascia.List().size(), 11U);
  EXPECT_EQ(menus.Tools.Caption, "&Calculator");
}

TEST_F(SettingsCommandsTest, AUnitSwitchDropsLocksAndKneewalls) {
  Check("chkHeel(0)", true);
  Check("chkKneewall(0)", true);
  Type("FtKneewall(0)", "3'");
  Click("mnuMetric");
  EXPECT_FALSE(rafter.HeelLocked);
  EXPECT_FALSE(sheet.HeelLock[0].Ticked());
  EXPECT_FALSE(menus.SettingsHeelLocked.Checked);
  EXPECT_FALSE(sheet.HasKneewall[0].Ticked());
  EXPECT_EQ(rafter.Kneewall, 0);
  EXPECT_EQ(sheet.Kneewall[0].Value(), 0);
  EXPECT_FALSE(sheet.Kneewall[0].Enabled);
}

TEST_F(SettingsCommandsTest, SlopeModeMovesOnlyTheRowsInUse) {
  Click("mnuSettingsDegrees");
  EXPECT_TRUE(sheet.Degrees[0].Visible);
  EXPECT_FALSE(sheet.Slope[0].Visible);
  EXPECT_FALSE(sheet.Degrees[1].Visible || sheet.Slope[1].Visible);
  EXPECT_FALSE(sheet.Degrees[2].Visible || sheet.Slope[2].Visible);
  Pick("cboType", "Hip");
  EXPECT_TRUE(sheet.Degrees[2].Visible);
  Click("mnuSettingsRiseOverRun");
  EXPECT_TRUE(sheet.Slope[2].Visible);
  EXPECT_FALSE(sheet.Degrees[2].Visible);
}

TEST_F(SettingsCommandsTest, AFasciaCutStandsInEveryPlaceAlike) {
  Click("mnuPopUp1SquareCut");
  for (const MenuItem* item :
       {&menus.SettingsSquareCut, &menus.GambrelSquare, &menus.PopUp1SquareCut, &menus.PopUp2SquareCut}) {
    EXPECT_TRUE(item->Checked) << item->Name;
  }
  for (const MenuItem* item : {&menus.SettingsPlumbCut, &menus.GambrelPlumb, &menus.PopUp1PlumbCut,
                               &menus.PopUp2PlumbCut, &menus.SettingsLevelCut, &menus.GambrelLevel}) {
    EXPECT_FALSE(item->Checked) << item->Name;
  }
  EXPECT_TRUE(document.design.toolBar["Square"].Pressed);
  EXPECT_FALSE(document.design.toolBar["Plumb"].Pressed);
}

TEST_F(SettingsCommandsTest, PlumbTakesTheFasciaHeightBack) {
  Type("LWFascia(0)", "1.5 | 4");
  Click("mnuSettingsSquareCut");
  EXPECT_FALSE(sheet.Fascia[0].Enabled);
  EXPECT_FALSE(sheet.Fascia[1].Enabled);
  sheet.Fascia[0].SetRightValue(9);
  Click("mnuSettingsPlumbCut");
  EXPECT_EQ(sheet.Fascia[0].RightText(), "4\"");
  EXPECT_TRUE(sheet.Fascia[0].Enabled);
  sheet.Fascia[0].SetRightValue(6);
  Click("mnuSettingsPlumbCut");
  EXPECT_EQ(sheet.Fascia[0].RightText(), "6\"") << "only a change away from plumb keeps a height";
}

TEST_F(SettingsCommandsTest, LockItemsTickTheirBox) {
  Click("mnuSettingsSeatLocked");
  EXPECT_TRUE(sheet.SeatLock[0].Ticked());
  EXPECT_TRUE(rafter.SeatLocked);
  Click("mnuSettingsSeatLocked");
  EXPECT_FALSE(rafter.SeatLocked);
}

TEST_F(SettingsCommandsTest, HipLayoutsExcludeEachOther) {
  Pick("cboType", "Hip");
  Click("mnuHipLayoutCenter");
  EXPECT_TRUE(menus.PopUp1LayoutCenter.Checked);
  EXPECT_FALSE(menus.HipLayoutCorners.Checked);
  Page(3);
  Click("mnuPopUp1LayoutCornerFlush");
  EXPECT_TRUE(menus.HipLayoutCornersFlush.Checked);
  EXPECT_FALSE(menus.HipLayoutCenter.Checked);
}

TEST_F(SettingsCommandsTest, OverhangsEqualBelongsToABastardHip) {
  Pick("cboType", "Hip");
  EXPECT_TRUE(actions.Click("mnuHipLayoutOverhangsEqual")) << "hidden while the slopes are equal";
  Type("LWSlope(0)", "10 | 12");
  Type("LWSlope(2)", "8.5 | 12");
  const double excess = rafter.HipEndOverhangExcess;
  EXPECT_NE(excess, 0);
  Click("mnuHipLayoutOverhangsEqual");
  EXPECT_EQ(rafter.HipEndOverhangExcess, 0);
  Click("mnuHipLayoutOverhangsEqual");
  EXPECT_EQ(rafter.HipEndOverhangExcess, excess);
}

TEST_F(SettingsCommandsTest, BarsAreShownAndHidden) {
  const int height = document.Layout().picture1.Height;
  Click("mnuViewToolbar");
  EXPECT_FALSE(menus.ViewToolbar.Checked);
  EXPECT_EQ(document.Layout().picture1.Height, height + 420);
  EXPECT_EQ(sheet.Frames[1].Top, 0);
  EXPECT_TRUE(actions.Press("Hip")) << "no button of a hidden bar";
  Click("mnuViewStatusBar");
  EXPECT_EQ(document.Layout().statusBar.Height, 0);
}

}  // namespace
}  // namespace pitchcraft
