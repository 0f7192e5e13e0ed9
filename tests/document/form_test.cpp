#include "document_test.h"

namespace pitchcraft {
namespace {

using FormTest = DocumentTest;

TEST_F(FormTest, StartsAsAGableWithTheFirstSlope) {
  EXPECT_EQ(document.window.Title, "Pitchcraft - [Untitled]");
  EXPECT_EQ(document.design.RoofType, Roof::kGable);
  EXPECT_EQ(rafter.Slope, 1);
  EXPECT_EQ(sheet.Slope[0].LeftValue(), 1);
  EXPECT_EQ(sheet.Slope[0].ListIndex(), 0);
  EXPECT_EQ(rafter.Span, 144);
  EXPECT_EQ(sheet.Span[0].Text(), "12' 0\"");
  EXPECT_EQ(sheet.Overhang[0].Text(), "10 1/2\"");
  EXPECT_EQ(sheet.Common[0].RightText(), "7 1/4\"");
  EXPECT_EQ(sheet.Fascia[0].RightText(), "5 1/2\"");
  EXPECT_EQ(RoofOf(document.design).About().HelpTopic, 60);
  EXPECT_TRUE(around.dialogs.messages.empty());
}

TEST_F(FormTest, StartsImperialWithPlumbCutAndBothBars) {
  EXPECT_EQ(UnitRun(document.design), 12);
  EXPECT_TRUE(menus.Imperial.Checked);
  EXPECT_FALSE(menus.Metric.Checked);
  EXPECT_TRUE(menus.SettingsPlumbCut.Checked);
  EXPECT_TRUE(document.design.toolBar["Plumb"].Pressed);
  EXPECT_TRUE(document.design.toolBar["Gable"].Pressed);
  EXPECT_FALSE(document.design.toolBar["Level"].Visible);
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
  document.window.Place.Width = 100;
  document.window.Place.Height = 100;
  FollowSize(document);
  EXPECT_EQ(document.window.Place.Width, kMinimumWidth);
  EXPECT_EQ(document.window.Place.Height, kMinimumHeight);
}

TEST_F(FormTest, ALargerWindowHasALargerPictureAndDrawsAgain) {
  const int before = document.Layout().picture1.Width;
  const double factor = document.Board().PointFactor;
  document.window.Place.Width = 24000;
  document.window.Place.Height = 15000;
  FollowSize(document);
  EXPECT_GT(document.Layout().picture1.Width, before);
  EXPECT_LT(document.Board().PointFactor, factor)
      << "text keeps its size on the screen, so it shrinks in the drawing";
  EXPECT_TRUE(document.Board().Recorder.IsClosed());
  EXPECT_FALSE(document.Board().Recorder.Operations().empty());
}

TEST_F(FormTest, NoItemIsGreyAtTheStart) {
  for (const MenuItem* item : menus.Items()) {
    const bool ofDutchHip = item->Name.starts_with("mnuDutchLedger");  // grey until the roof is one
    if (!item->IsSeparator() && !ofDutchHip) {
      EXPECT_TRUE(item->Enabled) << item->Name;
    }
  }
  EXPECT_TRUE(IsToolButtonEnabled(document, document.design.toolBar["Print"]));
}

TEST(FormUnload, KeepsWhatTheUserChose) {
  NullSurroundings around;
  {
    Document document(around.Get());
    Start(document);
    ToggleUnits(document);
    ClickMenu(document, document.design.menus.HipLayoutCornersFlush);
    ClickMenu(document, document.design.menus.SettingsDegrees);
    document.window.Place = {300, 400, 12000, 9000};
    Close(document);
  }
  Document again(around.Get());
  Start(again);
  EXPECT_EQ(UnitRun(again.design), 1000);
  EXPECT_TRUE(again.design.menus.Metric.Checked);
  EXPECT_TRUE(again.design.menus.HipLayoutCornersFlush.Checked);
  EXPECT_TRUE(again.design.sheet.Degrees[0].Visible);
  EXPECT_FALSE(again.design.sheet.Slope[0].Visible);
  EXPECT_EQ(again.window.Place.Width, 12000);
  EXPECT_EQ(again.window.Place.Left, 300);
}

}  // namespace
}  // namespace pitchcraft
