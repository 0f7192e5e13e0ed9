#include "sheet/tabs.h"

#include <gtest/gtest.h>

namespace pitchcraft {
namespace {

TEST(IndexTab, PagesAreNamedByOneCaption) {
  IndexTab tab;
  tab.SetCaption("Design|Common|Hip Rafter|Layout");
  EXPECT_EQ(tab.PageCount(), 4);
  EXPECT_EQ(tab.Pages()[2], "Hip Rafter");
}

TEST(IndexTab, APageThatIsNoLongerThereGivesWayToTheFirst) {
  IndexTab tab;
  tab.SetCaption("a|b|c|d");
  tab.Page = 3;
  tab.SetCaption("a|b|c|d|e");
  EXPECT_EQ(tab.Page, 3);
  tab.SetCaption("a|b");
  EXPECT_EQ(tab.Page, 0);
}

}  // namespace
}  // namespace pitchcraft
