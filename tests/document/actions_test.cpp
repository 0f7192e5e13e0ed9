#include "document_test.h"

namespace pitchcraft {
namespace {

using ActionsTest = DocumentTest;

TEST_F(ActionsTest, HiddenDisabledAndUnknownControlsRefuse) {
  EXPECT_TRUE(actions.Type("FtSpan(2)", "1"));
  EXPECT_TRUE(actions.Type("FtKneewall(0)", "1"));
  EXPECT_TRUE(actions.Type("FtSpan(9)", "1"));
  EXPECT_TRUE(actions.Type("Label(10)", "1"));
  EXPECT_TRUE(actions.Type("cboType", "Hip")) << "a list alone takes no text";
  EXPECT_TRUE(actions.Pick("FtSpan(0)", "1"));
  EXPECT_TRUE(actions.Pick("cboType", "hip"));
  EXPECT_TRUE(actions.Check("FtSpan(0)", true));
  EXPECT_TRUE(actions.Click("Command1"));
  EXPECT_TRUE(actions.Click("mnuFileMRU(0)")) << "there is no recent file";
  EXPECT_TRUE(actions.Click("mnuFile"));
  EXPECT_TRUE(actions.Click("mnuHipLayoutCenter")) << "its menu is hidden";
  EXPECT_TRUE(actions.Press("Level"));
  EXPECT_TRUE(actions.Press("Nothing"));
  EXPECT_TRUE(actions.Spin("Spin(2)", true));
  EXPECT_TRUE(actions.Spin("FtSpan(0)", true));
  EXPECT_EQ(rafter.Span, 144);
}

TEST_F(ActionsTest, ABoxThatIsSoAlreadyIsNotClicked) {
  Check("chkHeel(0)", false);
  EXPECT_EQ(document.window.FocusRequest, "LWSlope(0)") << "the click would have moved the focus";
  Check("chkHeel(0)", true);
  EXPECT_EQ(document.window.FocusRequest, "FtHeel(0)");
}

TEST_F(ActionsTest, EditingStaysInTheField) {
  Edit("FtSpan(0)", "15'");
  EXPECT_EQ(sheet.Span[0].Text(), "15'");
  EXPECT_EQ(rafter.Span, 144);
}

TEST_F(ActionsTest, ItemsOfAPopupGoByTheirOwnFlag) {
  EXPECT_FALSE(menus.PopUp1.Visible);
  Click("mnuPopUp1SquareCut");
  EXPECT_TRUE(menus.SettingsSquareCut.Checked);
}

TEST_F(ActionsTest, ALockedSlopeAndADerivedBayFieldKeepTheirText) {
  Pick("cboType", "Gambrel Roof");
  Type("LWSlope(0)", "9 | 12");
  EXPECT_EQ(sheet.Slope[0].LeftValue(), 5);
  Pick("cboType", "Bay Roof");
  Type("FtFace", "4'");
  Type("FtBack", "8'");
  Type("FtBayAngle", "45");
  ASSERT_TRUE(sheet.Projection.Calculated);
  const std::string text = sheet.Projection.Text();
  Type("FtProjection", "9'");
  EXPECT_EQ(sheet.Projection.Text(), text);
}

}  // namespace
}  // namespace pitchcraft
