#include <cmath>

#include "document_test.h"

namespace pitchcraft {
namespace {

class BayDimensionsTest : public DocumentTest {
 protected:
  BayDimensionsTest() {
    Pick("cboType", "Bay Roof");
    Type("LWSlope(0)", "6 | 12");
  }
  /// The last message, or two empty texts.
  std::pair<std::string, std::string> LastMessage() const {
    return around.dialogs.messages.empty() ? std::pair<std::string, std::string>()
                                           : around.dialogs.messages.back();
  }
};

// A bay 10 feet at the wall and 5 at the front with corners of 45 degrees stands out half of the difference.
TEST_F(BayDimensionsTest, AnyThreeGiveTheFourth) {
  struct Row {
    const char* field;
    const char* text;
  };
  const Row rows[] = {{"FtProjection", "30"}, {"FtFace", "60"}, {"FtBack", "120"}, {"FtBayAngle", "45"}};
  for (int solved = 0; solved < 4; ++solved) {
    Click("Command1");
    for (int i = 0; i < 4; ++i) {
      if (i != solved) Type(rows[i].field, rows[i].text);
    }
    EXPECT_EQ(document.design.BayEditMode, solved + 1);
    EXPECT_NEAR(rafter.Projection, 30, 1e-4) << solved;
    EXPECT_NEAR(rafter.Face, 60, 1e-4) << solved;
    EXPECT_NEAR(rafter.Back, 120, 1e-4) << solved;
    EXPECT_NEAR(rafter.BayAngle, 45, 1e-4) << solved;
    EXPECT_NEAR(rafter.BaySide, 30 * std::sqrt(2.0), 1e-4) << solved;
    const auto* field = std::get<MeasureControl*>(*sheet.Find(rows[solved].field));
    EXPECT_TRUE(field->Calculated && field->ReadOnly) << solved;
    EXPECT_EQ(field->ForeColor, document.preferences.CtlCalcColor);
  }
  EXPECT_TRUE(around.dialogs.messages.empty());
}

TEST_F(BayDimensionsTest, TwoEmptyFieldsWaitWithoutAWord) {
  Type("FtBack", "120");
  Type("FtFace", "60");
  EXPECT_EQ(document.design.BayEditMode, 0);
  EXPECT_EQ(rafter.Back, 0);
  EXPECT_TRUE(around.dialogs.messages.empty());
}

TEST_F(BayDimensionsTest, ASquareCornerNeedsItsProjection) {
  Type("FtFace", "96");
  Type("FtBack", "96");
  Type("FtBayAngle", "90");
  EXPECT_EQ(LastMessage().first, "Pitchcraft");
  EXPECT_EQ(LastMessage().second, "Projection must be entered if bay angle = 90\u00BA");
  EXPECT_EQ(document.window.FocusRequest, "Command1");
  EXPECT_EQ(sheet.Projection.Value(), 0);
}

TEST_F(BayDimensionsTest, EqualBackAndFaceHaveASquareCorner) {
  Type("FtProjection", "36");
  Type("FtFace", "96");
  Type("FtBack", "96");
  EXPECT_EQ(sheet.BayAngle.Value(), 90);
  EXPECT_EQ(rafter.BaySide, 36);
  EXPECT_TRUE(around.dialogs.messages.empty());
}

TEST_F(BayDimensionsTest, AnAngleBeyondTheSquareIsRefused) {
  Type("FtProjection", "36");
  Type("FtFace", "60");
  Type("FtBack", "96");
  Click("Command1");
  around.dialogs.messages.clear();
  Type("FtBayAngle", "120");
  Type("FtProjection", "36");
  Type("FtFace", "60");
  EXPECT_EQ(LastMessage().first, "Bay dimensions");
  EXPECT_EQ(LastMessage().second, "Bay Angle must be between 0 and 90 degrees.");
}

TEST_F(BayDimensionsTest, HipsThatWouldCrossResetTheBay) {
  Type("FtProjection", "96");
  Type("FtFace", "12");
  Type("FtBack", "120");
  EXPECT_EQ(LastMessage().first, "Bay Dimensions");
  EXPECT_EQ(LastMessage().second, "Not possible... Hip rafters will cross!");
  for (const MeasureControl* field : {&sheet.Projection, &sheet.Face, &sheet.Back, &sheet.BayAngle}) {
    EXPECT_EQ(field->Text(), "");
    EXPECT_FALSE(field->Calculated || field->ReadOnly);
    EXPECT_EQ(field->ForeColor, document.preferences.CtlForeColor);
  }
}

TEST_F(BayDimensionsTest, ADutchHipTooDeepGoesBackToTwoThirds) {
  Pick("cboType", "Dutch Hip");
  Type("FtSpan(2)", "13'");
  EXPECT_EQ(LastMessage().first, "Dutch Hip Dimensions");
  EXPECT_EQ(sheet.Span[2].Value(), 96);
  EXPECT_EQ(sheet.Projection.Value(), 96);
}

TEST_F(BayDimensionsTest, APageOfAnIncompleteBayStaysBlank) {
  Page(2);
  EXPECT_TRUE(document.Board().Recorder.Operations().empty());
  EXPECT_EQ(static_cast<int>(rafter.RafterType), 10);
  EXPECT_TRUE(around.dialogs.messages.empty());
}

TEST_F(BayDimensionsTest, APageOfABayCalculatesItsMember) {
  Type("FtBack", "120");
  Type("FtFace", "60");
  Type("FtBayAngle", "45");
  for (int page = 1; page <= 4; ++page) {
    Page(page);
    EXPECT_EQ(static_cast<int>(rafter.RafterType), 9 + page);
  }
}

}  // namespace
}  // namespace pitchcraft
