// The calculator and the help as the document asks for them.
#include "document_test.h"

namespace pitchcraft {
namespace {

struct Services final : CalculatorService, HelpService {
  bool Open(bool metric) override { return calculators.push_back(metric), there; }
  bool Show(HelpPlace place, int topic) override { return places.emplace_back(place, topic), there; }
  bool there = true;
  std::vector<bool> calculators;
  std::vector<std::pair<HelpPlace, int>> places;
};

class SidePrograms : public testing::Test {
 protected:
  SidePrograms() {
    Surroundings around = surroundings_.Get();
    around.calculator = &services_;
    around.help = &services_;
    document_.emplace(around);
    Start(*document_);
  }
  NullSurroundings surroundings_;
  Services services_;
  std::optional<Document> document_;
};

TEST_F(SidePrograms, CalculatorHasTheUnitsOfTheDocument) {
  EXPECT_TRUE(document_->design.menus.Tools.Enabled);
  ClickMenu(*document_, document_->design.menus.Tools);
  ToggleUnits(*document_);
  ClickMenu(*document_, document_->design.menus.Tools);
  EXPECT_EQ(services_.calculators, (std::vector<bool>{false, true}));
  EXPECT_TRUE(surroundings_.dialogs.messages.empty());
}

TEST_F(SidePrograms, HelpOpensAtItsPlace) {
  Menus& menus = document_->design.menus;
  for (MenuItem* item : {&menus.Helpcontents, &menus.HelpGlossary, &menus.HelpSearch}) {
    EXPECT_TRUE(item->Enabled) << item->Name;
    ClickMenu(*document_, *item);
  }
  PressToolButton(*document_, "Octagon");
  ShowHelp(*document_, HelpPlace::kTopic);
  EXPECT_EQ(services_.places, (std::vector<std::pair<HelpPlace, int>>{{HelpPlace::kContents, 60},
                                                                      {HelpPlace::kGlossary, 60},
                                                                      {HelpPlace::kSearch, 60},
                                                                      {HelpPlace::kTopic, 410}}));
  EXPECT_TRUE(surroundings_.dialogs.messages.empty());
}

TEST_F(SidePrograms, WhatIsNotThereIsAMessage) {
  services_.there = false;
  OpenCalculator(*document_);
  ShowHelpContents(*document_);
  ASSERT_EQ(surroundings_.dialogs.messages.size(), 2U);
  EXPECT_NE(surroundings_.dialogs.messages[0].second.find("ftcalc"), std::string::npos);
  EXPECT_EQ(surroundings_.dialogs.messages[1].second,
            "Unable to display Help Contents. There is no Help associated with this project.");
}

TEST(NoSidePrograms, AreMessages) {
  NullSurroundings surroundings;
  Document document(surroundings.Get());
  Start(document);
  ClickMenu(document, document.design.menus.Tools);
  ClickMenu(document, document.design.menus.HelpSearch);
  EXPECT_EQ(surroundings.dialogs.messages.size(), 2U);
}

}  // namespace
}  // namespace pitchcraft
