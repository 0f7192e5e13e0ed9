#include "sheet/menus.h"

#include <gtest/gtest.h>

#include <set>

namespace pitchcraft {
namespace {

TEST(Menus, EveryItemHasANameOfItsOwn) {
  const Menus menus;
  std::set<std::string> names;
  for (const MenuItem* item : menus.Items()) {
    EXPECT_FALSE(item->Name.empty()) << item->Caption;
    EXPECT_TRUE(names.insert(item->Name).second) << item->Name;
  }
}

TEST(Menus, AreFoundByTheirNames) {
  const Menus menus;
  EXPECT_EQ(menus.Find("mnuMetric"), &menus.Metric);
  EXPECT_EQ(menus.Find("mnufileSaveAs"), &menus.FileSaveAs);
  EXPECT_EQ(menus.Find("mnuDutchLedger(1)"), &menus.DutchLedger[1]);
  EXPECT_EQ(menus.Find("mnuNothing"), nullptr);
}

TEST(Menus, TheBarHoldsItsMenusInOrder) {
  const Menus menus;
  std::vector<std::string> bar;
  for (const MenuItem* item : menus.Items()) {
    if (item->Level == 0) bar.push_back(item->Name);
  }
  const std::vector<std::string> expected{"mnuFile",   "mnuSettings",  "mnuView",    "mnuTools",
                                          "mnuDutch",  "mnuHipLayout", "mnuGambrel", "mnuHelp",
                                          "mnuPopUp1", "mnuPopUp2",    "mnuSpin"};
  EXPECT_EQ(bar, expected);
}

TEST(Menus, AnItemKnowsItsHolder) {
  const Menus menus;
  EXPECT_EQ(menus.HolderOf(menus.Metric), &menus.Settings);
  EXPECT_EQ(menus.HolderOf(menus.PopUp1Print), &menus.PopUp1);
  EXPECT_EQ(menus.HolderOf(menus.File), nullptr);
  EXPECT_TRUE(menus.IsPopup(menus.PopUp2));
  EXPECT_FALSE(menus.IsPopup(menus.View));
  const auto view = menus.ItemsUnder(menus.View);
  ASSERT_EQ(view.size(), 2U);
  EXPECT_EQ(view[1], &menus.ViewStatusBar);
}

}  // namespace
}  // namespace pitchcraft
