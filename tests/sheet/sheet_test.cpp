#include "sheet/sheet.h"

#include <gtest/gtest.h>

#include <set>

namespace pitchcraft {
namespace {

TEST(Sheet, EveryControlIsFoundByItsName) {
  const Sheet sheet;
  std::set<std::string> names;
  for (const AnyControl& any : sheet.Controls()) {
    const Control& control = ControlOf(any);
    EXPECT_TRUE(names.insert(control.Name).second) << control.Name;
    const std::optional<AnyControl> found = sheet.Find(control.Name);
    ASSERT_TRUE(found) << control.Name;
    EXPECT_EQ(&ControlOf(*found), &control);
  }
  // Count of the controls by family: what a dump must hold.
  EXPECT_EQ(names.count("LWSlope(2)"), 1U);
  EXPECT_EQ(names.count("Spin(7)"), 1U);
  EXPECT_EQ(names.count("Label(23)"), 1U);
  EXPECT_EQ(names.count("FTUpperFascia"), 1U);
  EXPECT_EQ(names.count("Command1"), 1U);
  EXPECT_FALSE(sheet.Find("FtSpan"));
  EXPECT_FALSE(sheet.Find("FtSpan(3)"));
}

TEST(Sheet, AFieldIsCalledByTheLabelBesideIt) {
  Sheet sheet;
  sheet.Label[11].Caption = "Run:";
  sheet.Label[11].Top = sheet.Span[0].Top + 30;
  EXPECT_EQ(sheet.AccessibleNameOf(sheet.Span[0]), "Run");
  EXPECT_EQ(sheet.AccessibleNameOf(sheet.RoofList), "Roof");
  EXPECT_EQ(sheet.AccessibleNameOf(sheet.BayAngle), "Angle");
}

}  // namespace
}  // namespace pitchcraft
