// Entries that wait for the next calculation, what calculates them, and what follows from what.
#include <gmock/gmock.h>

#include "document_test.h"

namespace pitchcraft {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kWaits = "Taken with the next calculation; F9 calculates now";

class WaitingEntriesTest : public DocumentTest {
 protected:
  void Calculate() { Expect(actions.Calculate()); }
  std::vector<std::string> Waiting() const { return pitchcraft::Waiting(document.design); }
};

TEST_F(WaitingEntriesTest, AnOverhangOfAPlainHip) {
  Pick("cboType", "Hip");
  Type("LWSlope(0)", "6 | 12");
  EXPECT_THAT(Waiting(), IsEmpty());
  Type("FtOverhang(0)", "30");
  EXPECT_THAT(Waiting(), ElementsAre("FtOverhang(0)"));
  EXPECT_EQ(rafter.Overhang, 30) << "the record holds the entry at once";
  EXPECT_EQ(document.design.Calculated1.Overhang, 10.5) << "what is shown does not";
  EXPECT_EQ(document.window.Status, kWaits);
  Calculate();
  EXPECT_THAT(Waiting(), IsEmpty());
  EXPECT_EQ(document.design.Calculated1.Overhang, 30);
}

TEST_F(WaitingEntriesTest, AnyCommitThatCalculatesTakesIt) {
  Pick("cboType", "Hip");
  Type("LWSlope(0)", "6 | 12");
  Type("FtOverhang(0)", "30");
  Type("FtSpan(0)", "14'");
  EXPECT_THAT(Waiting(), IsEmpty());
  EXPECT_EQ(document.design.Calculated1.Overhang, 30);
}

TEST_F(WaitingEntriesTest, WithUnequalSlopesTheOverhangIsTakenAtOnce) {
  Pick("cboType", "Hip");
  Type("LWSlope(0)", "6 | 12");
  Type("LWSlope(2)", "9 | 12");
  Type("FtOverhang(0)", "30");
  EXPECT_THAT(Waiting(), IsEmpty());
}

TEST_F(WaitingEntriesTest, TheMainRunOfUnequalSpans) {
  Pick("cboType", "Unequal Span Valley");
  Type("LWSlope(0)", "6 | 12");
  Type("FtSpan(2)", "20'");
  EXPECT_THAT(Waiting(), ElementsAre("FtSpan(2)"));
  Calculate();
  EXPECT_THAT(Waiting(), IsEmpty());
  EXPECT_EQ(document.design.Calculated2.Span, 240);
}

TEST_F(WaitingEntriesTest, ALockedRearHeel) {
  Pick("cboType", "Dual Slope");
  Type("LWSlope(0)", "6 | 12");
  Type("LWSlope(1)", "6 | 12");
  Check("chkHeel(1)", true);
  const double seat = document.design.Rafter2.Seat;
  Type("FtHeel(1)", "4");
  EXPECT_THAT(Waiting(), ElementsAre("FtHeel(1)"));
  EXPECT_EQ(document.design.Rafter2.Seat, seat);
  Calculate();
  EXPECT_THAT(Waiting(), IsEmpty());
  EXPECT_NEAR(document.design.Rafter2.Seat, (document.design.Rafter2.PlumbCut - 4) * 2, 1e-5);
}

TEST_F(WaitingEntriesTest, ABayWithoutItsDimensionsWaitsForNothing) {
  Pick("cboType", "Bay Roof");
  Type("FtOverhang(0)", "30");
  EXPECT_THAT(Waiting(), IsEmpty());
}

TEST_F(WaitingEntriesTest, CalculatingNowChangesNothingWhereNothingWaits) {
  for (const RoofType* type : RoofTypes()) {
    const std::string item(type->About().Item);
    Pick("cboType", item.c_str());
    Calculate();
    const Design before = document.design;
    Calculate();
    EXPECT_EQ(document.design.Rafter1.Length1, before.Rafter1.Length1) << item;
    EXPECT_EQ(document.design.Rafter2.Length1, before.Rafter2.Length1) << item;
    EXPECT_EQ(document.design.sheet.Span[0].Text(), before.sheet.Span[0].Text()) << item;
    EXPECT_THAT(Waiting(), IsEmpty()) << item;
  }
}

TEST_F(WaitingEntriesTest, ARoofPickedOnALaterPageTurnsToTheFirst) {
  Pick("cboType", "Hip");
  Page(3);
  EXPECT_TRUE(sheet.Spacing.Visible);
  Pick("cboType", "Octagon");
  EXPECT_EQ(PageShown(document.design), 0);
  EXPECT_FALSE(sheet.Spacing.Visible);
}

TEST_F(WaitingEntriesTest, ARefusedDutchRunLeavesSheetAndRafterAsOne) {
  Pick("cboType", "Dutch Hip");
  Type("LWSlope(0)", "6 | 12");
  around.dialogs.messages.clear();
  Type("FtSpan(2)", "20'");
  ASSERT_EQ(around.dialogs.messages.size(), 1U);
  EXPECT_EQ(around.dialogs.messages[0].first, "Dutch Hip Dimensions");
  EXPECT_EQ(sheet.Span[2].Value(), 96);
  EXPECT_EQ(document.design.Rafter2.Projection, 96);
  EXPECT_EQ(document.design.Calculated2.Projection, 96);
}

TEST_F(WaitingEntriesTest, TheSecondRafterHasTheAngleOfTheSlopeThatItTakes) {
  for (const char* item : {"Dutch Hip", "Unequal Span Valley"}) {
    Pick("cboType", item);
    Type("LWSlope(0)", "6 | 12");
    EXPECT_NEAR(document.design.Rafter2.degrees, 26.57, 1e-4) << item;
  }
}

TEST_F(WaitingEntriesTest, ARidgeLengthBringsTheMainSlopeInBothForms) {
  Pick("cboType", "Blind Valley");
  Type("LWSlope(0)", "8 | 12");
  Type("FtRidge(0)", "8'");
  EXPECT_NEAR(sheet.Slope[2].LeftValue(), 12 * (144.0 / 2 * 8 / 12) / 96, 1e-6);
  EXPECT_EQ(sheet.Degrees[2].Text(), "26.57");
}

// A field that does not take what is typed into it says so by its look; the design's own flags stay.
TEST_F(WaitingEntriesTest, SomeFieldsTakeNoEntry) {
  EXPECT_FALSE(TakesEntry(document.design, sheet.Heel[0])) << "its lock is off";
  Check("chkHeel(0)", true);
  EXPECT_TRUE(TakesEntry(document.design, sheet.Heel[0]));
  EXPECT_FALSE(TakesEntry(document.design, sheet.Seat[0]));
  Pick("cboType", "Gambrel Roof");
  for (const Control* field :
       {static_cast<const Control*>(&sheet.Span[2]), static_cast<const Control*>(&sheet.RidgeLength[0]),
        static_cast<const Control*>(&sheet.Slope[0]), static_cast<const Control*>(&sheet.Degrees[2])}) {
    EXPECT_FALSE(TakesEntry(document.design, *field)) << field->Name;
    EXPECT_TRUE(field->Enabled) << field->Name;
  }
  Click("mnuGambrelCustom");
  EXPECT_TRUE(TakesEntry(document.design, sheet.Span[2]));
  Pick("cboType", "Bay Roof");
  Type("FtBack", "10'");
  Type("FtFace", "6'");
  Type("FtBayAngle", "45");
  EXPECT_FALSE(TakesEntry(document.design, sheet.Projection)) << "solved from the three others";
}

}  // namespace
}  // namespace pitchcraft
