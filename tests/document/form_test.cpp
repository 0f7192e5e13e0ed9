#include "document_test.h"

namespace pitchcraft {
namespace {

using FormTest = DocumentTest;

TEST_F(FormTest, StartsAsAGableWithTheFirstSlope) {
  EXPECT_EQ(document.Title, "Pitchcraft - [Untitled]");
  EXPECT_EQ(document.RoofType, Roof::kGable);
  EXPECT_EQ(rafter.Slope, 1);
  EXPECT_EQ(sheet.Slope[0].LeftValue(), 1);
  EXPECT_EQ(sheet.Slope[0].ListIndex(), 0);
  EXPECT_EQ(rafter.Span, 144);
  EXPECT_EQ(sheet.Span[0].Text(), "12' 0\"");
  EXPECT_EQ(sheet.Overhang[0].Text(), "10 1/2\"");
  EXPECT_EQ(sheet.Common[0].RightText(), "7 1/4\"");
  EXPECT_EQ(sheet.Fascia[0].RightText(), "5 1/2\"");
  EXPECT_TRUE(document.CalcEnabled);
  EXPECT_EQ(document.HelpContext, 60);
  EXPECT_TRUE(around.dialogs.messages.empty());
}

TEST_F(FormTest, StartsImperialWithPlumbCutAndBothBars) {
  EXPECT_EQ(document.UnitRun, 12);
  EXPECT_TRUE(menus.Imperial.Checked);
  EXPECT_FALSE(menus.Metric.Checked);
  EXPECT_TRUE(menus.SettingsPlumbCut.Checked);
  EXPECT_TRUE(document.toolBar["Plumb"].Pressed);
  EXPECT_TRUE(document.toolBar["Gable"].Pressed);
  EXPECT_FALSE(document.toolBar["Level"].Visible);
  EXPECT_TRUE(menus.ViewToolbar.Checked);
  EXPECT_TRUE(menus.ViewStatusBar.Checked);
  EXPECT_TRUE(menus.SettingsRiseOverRun.Checked);
}

TEST_F(FormTest, HidesWhatBelongsToOtherRoofs) {
  for (const char* name :
       {"LWSlope(1)", "LWSlope(2)",    "cboDegrees(0)", "cboDegrees(1)", "cboDegrees(2)", "FtSpan(1)",
        "FtSpan(2)",  "FtRidge(0)",    "FtRidge(1)",    "FtLastCommon",  "LWHipVal",      "cboSpacing",
        "cboLedger",  "FTUpperFascia", "chkUpperSlope", "Toolbar1",      "Label(18)",     "Label(20)",
        "Label(23)",  "Spin(2)",       "Spin(7)"}) {
    EXPECT_FALSE(ControlOf(*sheet.Find(name)).Visible) << name;
  }
  for (const char* name : {"LWSlope(0)", "FtSpan(0)", "FtOverhang(0)", "FtHeel(0)", "chkHeel(0)", "FtSeat(0)",
                           "LWFascia(0)", "LWRidge", "LWRafter(0)", "FtKneewall(0)", "chkKneewall(0)"}) {
    EXPECT_TRUE(ControlOf(*sheet.Find(name)).Visible) << name;
  }
  EXPECT_FALSE(sheet.Kneewall[0].Enabled);
  EXPECT_EQ(sheet.Kneewall[0].ForeColor, kSystemGrayTextColor);
}

TEST_F(FormTest, TheListOfTheSecondSlopeStaysEmpty) {
  EXPECT_EQ(sheet.Slope[0].List().size(), 60U);
  EXPECT_EQ(sheet.Slope[1].List().size(), 60U);
  EXPECT_TRUE(sheet.Slope[2].List().empty());
  EXPECT_EQ(sheet.Degrees[2].List().size(), 80U);
  EXPECT_EQ(sheet.HipOrValley.List().size(), 15U);
}

TEST_F(FormTest, AWindowIsHeldToItsLeastSize) {
  document.Window.Width = 100;
  document.Window.Height = 100;
  document.Form_Resize();
  EXPECT_EQ(document.Window.Width, kMinimumWidth);
  EXPECT_EQ(document.Window.Height, kMinimumHeight);
}

TEST_F(FormTest, ALargerWindowHasALargerPictureAndDrawsAgain) {
  const int before = document.Picture1.Place.Width;
  const double factor = document.board.PointFactor;
  document.Window.Width = 24000;
  document.Window.Height = 15000;
  document.Form_Resize();
  EXPECT_GT(document.Picture1.Place.Width, before);
  EXPECT_LT(document.board.PointFactor, factor)
      << "text keeps its size on the screen, so it shrinks in the drawing";
  EXPECT_TRUE(document.board.Recorder.IsClosed());
  EXPECT_FALSE(document.board.Recorder.Operations().empty());
}

TEST_F(FormTest, NoItemIsGreyAtTheStart) {
  for (const MenuItem* item : menus.Items()) {
    const bool ofDutchHip = item->Name.starts_with("mnuDutchLedger");  // grey until the roof is one
    if (!item->IsSeparator() && !ofDutchHip) {
      EXPECT_TRUE(item->Enabled) << item->Name;
    }
  }
  EXPECT_TRUE(document.ToolButtonEnabled(document.toolBar["Print"]));
}

TEST(FormUnload, KeepsWhatTheUserChose) {
  NullSurroundings around;
  {
    Document document(around.Get());
    document.Form_Load();
    document.mnuMetric_Click();
    document.mnuHipLayoutCornersFlush_Click();
    document.mnuSettingsDegrees_Click();
    document.Window = {300, 400, 12000, 9000};
    document.Form_Unload();
  }
  Document again(around.Get());
  again.Form_Load();
  EXPECT_EQ(again.UnitRun, 1000);
  EXPECT_TRUE(again.menus.Metric.Checked);
  EXPECT_TRUE(again.menus.HipLayoutCornersFlush.Checked);
  EXPECT_TRUE(again.sheet.Degrees[0].Visible);
  EXPECT_FALSE(again.sheet.Slope[0].Visible);
  EXPECT_EQ(again.Window.Width, 12000);
  EXPECT_EQ(again.Window.Left, 300);
}

}  // namespace
}  // namespace pitchcraft
