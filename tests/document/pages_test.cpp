#include "document_test.h"

namespace pitchcraft {
namespace {

using PagesTest = DocumentTest;

TEST_F(PagesTest, APageDrawsOnItsPicture) {
  EXPECT_EQ(PageShown(document.design), 0);
  EXPECT_EQ(document.Board().Recorder.Target()->ScaleWidth, document.Layout().picture1.Width);
  Page(1);
  EXPECT_EQ(PageShown(document.design), 1);
  EXPECT_EQ(document.Board().Recorder.Target()->ScaleWidth, document.Layout().picture3.Width);
  EXPECT_TRUE(document.HasFigure());
  EXPECT_FALSE(document.Board().Recorder.Operations().empty());
}

TEST_F(PagesTest, ADrawingThatDoesNotExistIsAnEmptyRecording) {
  Pick("cboType", "Octagon");
  EXPECT_FALSE(document.HasFigure());
  EXPECT_TRUE(document.Board().Recorder.IsClosed());
  EXPECT_TRUE(document.Board().Recorder.Operations().empty());
}

TEST_F(PagesTest, TheCommonPageOfAHipPutsTheHipBack) {
  Pick("cboType", "Hip");
  Page(1);
  EXPECT_EQ(rafter.RafterType, Member::kHip);
  EXPECT_TRUE(document.HasFigure());
  EXPECT_TRUE(menus.PopUp1LayoutCenter.Visible);
  EXPECT_FALSE(menus.HipLayoutOverhangsEqual.Visible);
}

TEST_F(PagesTest, SpacingShowsOnTheLayoutPageAlone) {
  Pick("cboType", "Hip");
  for (const int page : {0, 1, 2, 3, 0}) {
    Page(page);
    EXPECT_EQ(sheet.Spacing.Visible, page == 3) << page;
    EXPECT_EQ(sheet.SpacingLabel.Visible, page == 3) << page;
  }
}

std::string Shown(const Document& document) {
  std::string words;
  for (const DrawOp& operation : document.Board().Recorder.Finished()) {
    if (const auto* text = std::get_if<TextOp>(&operation)) words += text->Text + "\n";
  }
  return words;
}

TEST_F(PagesTest, AHipHasADrawingOnEveryPage) {
  Pick("cboType", "Hip");
  for (int page = 0; page < 4; ++page) {
    Page(page);
    EXPECT_FALSE(document.Board().Recorder.Finished().empty()) << page;
  }
  Page(0);
  Type("LWSlope(0)", "6 | 12");
  Type("LWSlope(2)", "9 | 12");
  for (int page = 0; page < 5; ++page) {
    Page(page);
    EXPECT_FALSE(document.Board().Recorder.Finished().empty()) << page;
    EXPECT_EQ(rafter.RafterType, Member::kBastardHip) << page;
  }
  const char* const titles[] = {" 6/12\n", " 9/12\n", " 4.99/12\n"};
  for (int page = 1; page < 4; ++page) {
    Page(page);
    EXPECT_NE(Shown(document).find(titles[page - 1]), std::string::npos) << page;
  }
}

TEST_F(PagesTest, TheLayoutFollowsItsMenus) {
  Pick("cboType", "Hip");
  Type("LWSlope(0)", "6 | 12");
  Click("mnuHipLayoutCorners");
  Page(3);
  const auto shows = [&](const char* words) { return Shown(document).find(words) != std::string::npos; };
  EXPECT_TRUE(shows("layout is on center from outside wall corners"));
  Click("mnuPopUp1LayoutCornerFlush");
  EXPECT_TRUE(shows("layout is flush from outside wall corners"));
  Click("mnuPopUp1LayoutCenter");
  EXPECT_TRUE(shows("layout is on center from hip center to outside corners"));
  Click("mnuPopUp1LayoutCorner");
  EXPECT_TRUE(shows("layout is on center from outside wall corners"));
  const bool measured = shows("jack measurement includes overhang");
  Click("mnuPopUp1JackMeasurement");
  EXPECT_EQ(shows("jack measurement DOES NOT includes overhang"), measured);
  const std::string before = Shown(document);
  Pick("cboSpacing", "24\"");
  EXPECT_NE(Shown(document), before);
}

TEST_F(PagesTest, EachPageFollowsTheEqualOverhangs) {
  Pick("cboType", "Hip");
  Type("LWSlope(0)", "6 | 12");
  Type("LWSlope(2)", "9 | 12");
  const bool equal = menus.HipLayoutOverhangsEqual.Checked;
  for (const int page : {0, 1, 2, 3, 4}) {
    Page(page);
    const std::string before = Shown(document);
    Click("mnuPopUp1OverhangsEqual");
    const std::string after = Shown(document);
    Page(page);
    EXPECT_EQ(Shown(document), after) << "page " << page << " shows its own drawing";
    EXPECT_EQ(after == before, page < 2) << page;  // the main common does not move
    Click("mnuPopUp1OverhangsEqual");
    EXPECT_EQ(Shown(document), before) << page;
  }
  EXPECT_EQ(menus.HipLayoutOverhangsEqual.Checked, equal);
}

TEST_F(PagesTest, TheLastCommonStandsOnPlanAndLayout) {
  Pick("cboType", "Hip");
  Type("LWSlope(0)", "6 | 12");
  Check("chkLastCommon", true);
  Type("FtLastCommon", "12' 6");
  EXPECT_NE(Shown(document).find("Last Common"), std::string::npos);
  Page(3);
  EXPECT_NE(Shown(document).find("last common is 12' 6\" on center from wall corner"), std::string::npos);
  Page(0);
  Check("chkLastCommon", false);
  EXPECT_EQ(Shown(document).find("Last Common"), std::string::npos);
}

TEST_F(PagesTest, AnUnusedLastCommonIsPutRightWithoutAWord) {
  Pick("cboType", "Hip");
  Type("LWSlope(0)", "6 | 12");
  Type("LWSlope(2)", "4 | 12");
  Type("FtSpan(0)", "6'");
  around.dialogs.messages.clear();
  Click("mnuHipLayoutOverhangsEqual");
  EXPECT_TRUE(around.dialogs.messages.empty());
}

TEST_F(PagesTest, TooManyJacksAreOneMessageAndABlank) {
  Pick("cboType", "Hip");
  Type("LWSlope(0)", "6 | 12");
  Type("FtSpan(0)", "1000000");
  around.dialogs.messages.clear();
  Page(3);
  EXPECT_EQ(around.dialogs.messages.size(), 1U);
  EXPECT_TRUE(document.Board().Recorder.Finished().empty());
}

TEST_F(PagesTest, APageThatIsNotThereIsRefused) {
  EXPECT_TRUE(actions.Page("VSTab(0)", 2));
  EXPECT_TRUE(actions.Page("VSTab(0)", -1));
  EXPECT_TRUE(actions.Page("VSTab(2)", 0));
  EXPECT_TRUE(actions.Page("cboType", 0));
  EXPECT_EQ(PageShown(document.design), 0);
}

TEST_F(PagesTest, TheFocusGoesToTheSlopeUnlessADialogHasIt) {
  document.window.FocusRequest.clear();
  Page(0);
  EXPECT_EQ(document.window.FocusRequest, "LWSlope(0)");
  Click("mnuSettingsDegrees");
  Page(0);
  EXPECT_EQ(document.window.FocusRequest, "cboDegrees(0)");
  document.window.FocusRequest.clear();
  document.window.DialogIsActive = true;
  Page(0);
  EXPECT_EQ(document.window.FocusRequest, "");
}

TEST_F(PagesTest, TheInnerTabBringsTheLockMenusInLine) {
  Pick("cboType", "Dual Slope");
  Check("chkHeel(0)", true);
  Expect(actions.Page("VSTab(1)", 1));
  EXPECT_FALSE(menus.SettingsHeelLocked.Checked);
  Expect(actions.Page("VSTab(1)", 0));
  EXPECT_TRUE(menus.SettingsHeelLocked.Checked);
}

TEST_F(PagesTest, AClickOnADualSlopeChoosesTheRoofUnderIt) {
  Pick("cboType", "Dual Slope");
  Type("FtSpan(0)", "10'");
  Type("FtSpan(1)", "30'");
  const int width = document.Layout().picture1.Width;
  EXPECT_EQ(PressOnFigure(document, kLeftButton, width / 2), nullptr);
  EXPECT_EQ(sheet.Tabs[1].Page, 1);
  PressOnFigure(document, kLeftButton, width / 8);
  EXPECT_EQ(sheet.Tabs[1].Page, 0);
}

TEST_F(PagesTest, TheRightButtonBringsThePopupOfTheRoof) {
  EXPECT_EQ(PressOnFigure(document, kRightButton, 0), &menus.PopUp1);
  EXPECT_TRUE(menus.PopUp1PlumbCut.Visible);
  EXPECT_FALSE(menus.PopUp1Ledger[0].Visible);
  EXPECT_FALSE(menus.PopUp1LayoutCenter.Visible);
  Pick("cboType", "Blind Valley");
  PressOnFigure(document, kRightButton, 0);
  EXPECT_FALSE(menus.PopUp1SquareCut.Visible);
  Pick("cboType", "Dutch Hip");
  PressOnFigure(document, kRightButton, 0);
  EXPECT_TRUE(menus.PopUp1Ledger[1].Visible);
  Pick("cboType", "Gambrel Roof");
  EXPECT_EQ(PressOnFigure(document, kRightButton, 0), &menus.PopUp2);
}

TEST_F(PagesTest, AFigureTooLargeToDrawIsOneMessageAndABlank) {
  Type("LWSlope(0)", "6 | 12");
  around.dialogs.messages.clear();
  Type("FtSpan(0)", "1e30");
  ASSERT_EQ(around.dialogs.messages.size(), 1U);
  EXPECT_EQ(around.dialogs.messages[0].first, "DrawRafter");
  EXPECT_EQ(around.dialogs.messages[0].second, "Overflow - 6");
  EXPECT_TRUE(document.Board().Recorder.Operations().empty());
  Type("FtSpan(0)", "12'");
  EXPECT_FALSE(document.Board().Recorder.Operations().empty());
  EXPECT_EQ(around.dialogs.messages.size(), 1U);
}

}  // namespace
}  // namespace pitchcraft
