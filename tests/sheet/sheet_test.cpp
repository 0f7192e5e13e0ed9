#include "sheet/sheet.h"

#include <gtest/gtest.h>

#include <set>

#include "sheet/roof_types.h"

namespace pitchcraft {
namespace {

TEST(Sheet, EveryControlIsFoundByItsName) {
  const Sheet sheet;
  std::set<std::string> names;
  for (const AnyControl& any : sheet.Controls()) {
    const Control& control = ControlOf(any);
    EXPECT_TRUE(names.insert(control.Name).second) << control.Name;
    const AnyControl* found = sheet.Find(control.Name);
    ASSERT_NE(found, nullptr) << control.Name;
    EXPECT_EQ(&ControlOf(*found), &control);
  }
  // Count of the controls by family: what a dump must hold.
  EXPECT_EQ(names.count("LWSlope(2)"), 1U);
  EXPECT_EQ(names.count("Spin(7)"), 1U);
  EXPECT_EQ(names.count("Label(23)"), 1U);
  EXPECT_EQ(names.count("FTUpperFascia"), 1U);
  EXPECT_EQ(names.count("Command1"), 1U);
  EXPECT_EQ(sheet.Find("FtSpan"), nullptr);
  EXPECT_EQ(sheet.Find("FtSpan(3)"), nullptr);
}

TEST(Sheet, AFieldIsCalledByTheLabelBesideIt) {
  Sheet sheet;
  sheet.Label[11].Caption = "Run:";
  sheet.Label[11].Top = sheet.Span[0].Top + 30;
  EXPECT_EQ(sheet.AccessibleNameOf(sheet.Span[0]), "Run");
  EXPECT_EQ(sheet.AccessibleNameOf(sheet.RoofList), "Roof");
  EXPECT_EQ(sheet.AccessibleNameOf(sheet.BayAngle), "Angle");
}

TEST(RoofTypes, CodesAndPositions) {
  EXPECT_EQ(RoofTypes().size(), 11U);
  EXPECT_EQ(ListIndexOfRoof(Roof::kGambrel), 10);
  EXPECT_EQ(ListIndexOfRoof(Roof::kBastardHip), 3) << "a bastard hip stands under Hip";
  EXPECT_EQ(ListIndexOfRoof(6), -1);
  EXPECT_EQ(RoofTypeByCode(7), nullptr);
  EXPECT_EQ(RoofTypeByItem("hip"), nullptr) << "compared exactly";
  EXPECT_EQ(RoofTypeByItem("Hip")->HelpTopic, 400);
}

}  // namespace
}  // namespace pitchcraft
