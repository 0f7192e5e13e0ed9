#include "document_test.h"

namespace pitchcraft {
namespace {

using PagesTest = DocumentTest;

TEST_F(PagesTest, APageDrawsOnItsPicture) {
  EXPECT_EQ(document.CurrentTab, 0);
  EXPECT_EQ(document.board.MetaCanvas.Target()->ScaleWidth, document.Picture1.Place.Width);
  Page(1);
  EXPECT_EQ(document.CurrentTab, 1);
  EXPECT_EQ(document.board.MetaCanvas.Target()->ScaleWidth, document.Picture3.Place.Width);
  EXPECT_TRUE(document.DrawingExists);
  EXPECT_FALSE(document.board.MetaCanvas.Operations().empty());
}

TEST_F(PagesTest, ADrawingThatDoesNotExistIsAnEmptyRecording) {
  Pick("cboType", "Octagon");
  EXPECT_FALSE(document.DrawingExists);
  EXPECT_TRUE(document.board.MetaCanvas.IsClosed());
  EXPECT_TRUE(document.board.MetaCanvas.Operations().empty());
}

TEST_F(PagesTest, TheCommonPageOfAHipPutsTheHipBack) {
  Pick("cboType", "Hip");
  Page(1);
  EXPECT_EQ(rafter.RafterType, RafterType::kHip);
  EXPECT_TRUE(document.DrawingExists);
  EXPECT_TRUE(menus.mnuPopUp1LayoutCenter.Visible);
  EXPECT_FALSE(menus.mnuHipLayoutOverhangsEqual.Visible);
}

TEST_F(PagesTest, SpacingShowsOnTheLayoutPageAlone) {
  Pick("cboType", "Hip");
  for (const int page : {0, 1, 2, 3, 0}) {
    Page(page);
    EXPECT_EQ(sheet.cboSpacing.Visible, page == 3) << page;
    EXPECT_EQ(sheet.txtSpacing.Visible, page == 3) << page;
  }
}

TEST_F(PagesTest, APageThatIsNotThereIsRefused) {
  EXPECT_TRUE(actions.Page("VSTab(0)", 2));
  EXPECT_TRUE(actions.Page("VSTab(0)", -1));
  EXPECT_TRUE(actions.Page("VSTab(2)", 0));
  EXPECT_TRUE(actions.Page("cboType", 0));
  EXPECT_EQ(document.CurrentTab, 0);
}

TEST_F(PagesTest, TheFocusGoesToTheSlopeUnlessADialogHasIt) {
  document.FocusRequest.clear();
  Page(0);
  EXPECT_EQ(document.FocusRequest, "LWSlope(0)");
  Click("mnuSettingsDegrees");
  Page(0);
  EXPECT_EQ(document.FocusRequest, "cboDegrees(0)");
  document.FocusRequest.clear();
  document.DialogIsActive = true;
  Page(0);
  EXPECT_EQ(document.FocusRequest, "");
}

TEST_F(PagesTest, TheInnerTabBringsTheLockMenusInLine) {
  Pick("cboType", "Dual Slope");
  Check("chkHeel(0)", true);
  Expect(actions.Page("VSTab(1)", 1));
  EXPECT_FALSE(menus.mnuSettingsHeelLocked.Checked);
  Expect(actions.Page("VSTab(1)", 0));
  EXPECT_TRUE(menus.mnuSettingsHeelLocked.Checked);
}

TEST_F(PagesTest, AClickOnADualSlopeChoosesTheRoofUnderIt) {
  Pick("cboType", "Dual Slope");
  Type("FtSpan(0)", "10'");
  Type("FtSpan(1)", "30'");
  const int width = document.Picture1.Place.Width;
  EXPECT_EQ(document.Picture_MouseDown(1, kLeftButton, width / 2, 100), nullptr);
  EXPECT_EQ(sheet.VSTab[1].Page, 1);
  document.Picture_MouseDown(1, kLeftButton, width / 8, 100);
  EXPECT_EQ(sheet.VSTab[1].Page, 0);
}

TEST_F(PagesTest, TheRightButtonBringsThePopupOfTheRoof) {
  EXPECT_EQ(document.Picture_MouseDown(1, kRightButton, 0, 0), &menus.mnuPopUp1);
  EXPECT_TRUE(menus.mnuPopUp1PlumbCut.Visible);
  EXPECT_FALSE(menus.mnuPopUp1Ledger[0].Visible);
  EXPECT_FALSE(menus.mnuPopUp1LayoutCenter.Visible);
  Pick("cboType", "Blind Valley");
  document.Picture_MouseDown(1, kRightButton, 0, 0);
  EXPECT_FALSE(menus.mnuPopUp1SquareCut.Visible);
  Pick("cboType", "Dutch Hip");
  document.Picture_MouseDown(1, kRightButton, 0, 0);
  EXPECT_TRUE(menus.mnuPopUp1Ledger[1].Visible);
  Pick("cboType", "Gambrel Roof");
  EXPECT_EQ(document.Picture_MouseDown(3, kRightButton, 0, 0), &menus.mnuPopUp2);
}

TEST_F(PagesTest, AFigureTooLargeToDrawIsOneMessageAndABlank) {
  Type("LWSlope(0)", "6 | 12");
  around.dialogs.messages.clear();
  Type("FtSpan(0)", "1e30");
  ASSERT_EQ(around.dialogs.messages.size(), 1U);
  EXPECT_EQ(around.dialogs.messages[0].first, "DrawRafter");
  EXPECT_EQ(around.dialogs.messages[0].second, "Overflow - 6");
  EXPECT_TRUE(document.board.MetaCanvas.Operations().empty());
  Type("FtSpan(0)", "12'");
  EXPECT_FALSE(document.board.MetaCanvas.Operations().empty());
  EXPECT_EQ(around.dialogs.messages.size(), 1U);
}

}  // namespace
}  // namespace pitchcraft
