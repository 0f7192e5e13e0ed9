#include "document_test.h"

namespace pitchcraft {
namespace {

using CalculateRoofTest = DocumentTest;

TEST_F(CalculateRoofTest, AGableOfSixInTwelve) {
  Type("LWSlope(0)", "6 | 12");
  EXPECT_EQ(rafter.Rise, 71.625);
  EXPECT_NEAR(rafter.Length1, 160.158, 0.0005);
  EXPECT_NEAR(rafter.Length2, 171.898, 0.0005);
  EXPECT_NEAR(rafter.PlumbCut, 8.106, 0.0005);
  EXPECT_NEAR(rafter.Heel / rafter.PlumbCut, 2.0 / 3, 1e-6);
  EXPECT_EQ(rafter.Pitch.Stored(), " 6/12");
}

struct RoofRow {
  const char* item;
  int code;
  int rafter1;
  const char* pages;
  int help;
};
const RoofRow kRoofs[] = {
    {"Common Gable", 0, 0, "Design|Rafter", 60},
    {"Common Shed", 3, 3, "Design|Shed Rafter", 60},
    {"Hip", 1, 1, "Design|Common|Hip Rafter|Layout", 400},
    {"Valley", 2, 2, "Design|Valley Rafter", 70},
    {"Dual Slope", 4, 0, "Design|Front Rafter|Rear Rafter", 80},
    {"Unequal Span Valley", 10, 15, "Design|Short Valley|Long Valley", 380},
    {"Bay Roof", 5, 10, "Design|Bay Common|Bay Hip|Bay Ledger|Center Ledger", 90},
    {"Dutch Hip", 8, 0, "Design|Common|Dutch Common|Dutch Hip|Center Ledger", 370},
    {"Blind Valley", 11, 0, "Design|Jack Rafter|Valley Plate|Ridge", 390},
    {"Octagon", 9, 9, "Design|Octagon Hip|Longest Jack|Octagon Layout", 410},
    {"Gambrel Roof", 13, 19, "Design|Gambrel Bottom|Gambrel Top", 430},
};

TEST_F(CalculateRoofTest, EveryTypeHasItsRafterItsPagesAndItsHelp) {
  for (const RoofRow& row : kRoofs) {
    Pick("cboType", row.item);
    EXPECT_EQ(static_cast<int>(document.design.RoofType), row.code) << row.item;
    EXPECT_EQ(static_cast<int>(rafter.RafterType), row.rafter1) << row.item;
    EXPECT_EQ(sheet.Tabs[0].Caption(), row.pages);
    EXPECT_EQ(RoofOf(document.design).About().HelpTopic, row.help) << row.item;
  }
  EXPECT_TRUE(around.dialogs.messages.empty()) << around.dialogs.messages[0].second;
}

TEST_F(CalculateRoofTest, AShedButtsTheWholeBoard) {
  Pick("cboType", "Common Shed");
  EXPECT_EQ(rafter.RidgeAllowance, 1.5);
  Pick("cboType", "Common Gable");
  EXPECT_EQ(rafter.RidgeAllowance, 0.75);
}

TEST_F(CalculateRoofTest, ABastardHipFromAProjectBecomesAHip) {
  rafter.HipEndSlope = 12;
  document.design.RoofType = Roof::kHip;
  Reply reply;
  RoofOf(document.design).Start(document.design, reply, true);
  EXPECT_EQ(document.design.RoofType, Roof::kHip);
  EXPECT_EQ(rafter.RafterType, Member::kBastardHip);
  EXPECT_EQ(sheet.Tabs[0].Caption(), "Design|Common|Hip End Common|Hip Rafter|Layout");
}

TEST_F(CalculateRoofTest, ADualSlopePickedFromTheListCopiesTheFront) {
  Type("LWSlope(0)", "7 | 12");
  Type("FtSpan(0)", "15'");
  Pick("cboType", "Dual Slope");
  EXPECT_EQ(document.design.Rafter2.Slope, 7);
  EXPECT_EQ(document.design.Rafter2.Span, 180);
  EXPECT_EQ(sheet.Span[1].Text(), "15' 0\"");
  EXPECT_EQ(sheet.Slope[1].LeftValue(), 7);
  document.design.Rafter2.Span = 100;
  Reply reply;
  RoofOf(document.design).Start(document.design, reply, true);
  EXPECT_EQ(document.design.Rafter2.Span, 100) << "from a project the rear roof keeps its own";
}

TEST_F(CalculateRoofTest, ResultsComeBackToTheSheetAfterTheirLimits) {
  Type("LWSlope(0)", "6 | 12");
  Check("chkHeel(0)", true);
  Type("FtHeel(0)", "20");
  EXPECT_EQ(sheet.Heel[0].Value(), 8.105746) << "clamped to the plumb depth, seven digits of it";
  EXPECT_EQ(sheet.Seat[0].Value(), 0);
}

}  // namespace
}  // namespace pitchcraft
