// Every button of the tool bar under the mouse.
#include <QMenu>

#include "item_rows.h"

namespace pitchcraft::testing {
namespace {

struct ButtonRow {
  const char* key;
  const char* tip;
  Deed deed;
};

void PrintTo(const ButtonRow& row, std::ostream* stream) { *stream << row.key; }

/// A roof's button, pressed on a page of another roof.
Deed ShowsRoof(Roof code, const char* caption) {
  return [=](WholeProgram& program, const Pick& press) {
    program.Press(code == Roof::kHip ? "Valley" : "Hip");
    program.TurnTo(1);
    EXPECT_FALSE(program.Find("Picture1").isVisible());
    press();
    EXPECT_EQ(program.Document().design.RoofType, code);
    EXPECT_EQ(PageShown(program.Document().design), 0);
    EXPECT_TRUE(program.Find("Picture1").isVisible());
    EXPECT_EQ(program.Find<QTabBar>("VSTab(0)").currentIndex(), 0);
    EXPECT_EQ(program.Find<QComboBox>("cboType").currentText(), caption);
    EXPECT_EQ(program.Find<QMenu>("mnuHipLayout").menuAction()->isVisible(), code == Roof::kHip);
    EXPECT_EQ(program.Find<QMenu>("mnuDutch").menuAction()->isVisible(), code == Roof::kDutchHip);
    EXPECT_EQ(program.Find<QMenu>("mnuGambrel").menuAction()->isVisible(), code == Roof::kGambrel);
    EXPECT_EQ(program.Find("Level").isVisible(), code == Roof::kGambrel);
    EXPECT_EQ(program.Find("Toolbar1").isVisible(), code == Roof::kBay);
    EXPECT_EQ(program.Find("VSTab(1)").isVisible(), code == Roof::kDualSlope);
    for (const ToolButton& button : program.Document().design.toolBar.Buttons()) {
      if (button.RoofListIndex < 0) continue;
      const std::string key(button.Key);
      EXPECT_EQ(program.Find<QToolButton>(key).isChecked(),
                button.RoofListIndex == program.Find<QComboBox>("cboType").currentIndex())
          << key;
    }
  };
}

/// A cut's button, pressed on a gambrel, which has all three.
Deed Cuts(const char* key) {
  return [key](WholeProgram& program, const Pick& press) {
    program.Press("Gambrel");
    program.Press(std::string(key) == "Plumb" ? "Square" : "Plumb");
    press();
    for (const char* cut : {"Plumb", "Square", "Level"}) {
      const bool on = std::string(cut) == key;
      EXPECT_EQ(program.Find<QToolButton>(cut).isChecked(), on) << cut;
      EXPECT_EQ(program.Find<QAction>("mnuGambrel" + std::string(cut)).isChecked(), on) << cut;
    }
    EXPECT_EQ(program.Find("LWFascia(0)").isEnabled(), std::string(key) == "Plumb");
    press();
    EXPECT_TRUE(program.Find<QToolButton>(key).isChecked()) << "a second press changes nothing";
  };
}

const ButtonRow kButtons[] = {
    {"New", "New project", StartsAProject},
    {"Open", "Open project", OpensAProject},
    {"Save", "Save project", SavesTheProject},
    {"Print", "Print", PrintsTheSheet},
    {"Gable", "Common Gable", ShowsRoof(Roof::kGable, "Common Gable")},
    {"Shed", "Common Shed", ShowsRoof(Roof::kShed, "Common Shed")},
    {"Dual", "Dual Slope", ShowsRoof(Roof::kDualSlope, "Dual Slope")},
    {"Hip", "Hip", ShowsRoof(Roof::kHip, "Hip")},
    {"Valley", "Valley", ShowsRoof(Roof::kValley, "Valley")},
    {"Unequal Span Valley", "Unequal Span Valley",
     ShowsRoof(Roof::kUnequalSpanValley, "Unequal Span Valley")},
    {"Bay", "Bay Roof", ShowsRoof(Roof::kBay, "Bay Roof")},
    {"Dutch Hip", "Dutch Hip", ShowsRoof(Roof::kDutchHip, "Dutch Hip")},
    {"Blind Valley", "Blind Valley", ShowsRoof(Roof::kBlindValley, "Blind Valley")},
    {"Octagon", "Octagon", ShowsRoof(Roof::kOctagon, "Octagon")},
    {"Gambrel", "Gambrel Roof", ShowsRoof(Roof::kGambrel, "Gambrel Roof")},
    {"Plumb", "Plumb Cut Fascia", Cuts("Plumb")},
    {"Square", "Square Cut Fascia", Cuts("Square")},
    {"Level", "Level Cut Fascia", Cuts("Level")},
};

class ToolButtons : public ::testing::TestWithParam<ButtonRow> {
 protected:
  WholeProgram program_;
};

TEST_P(ToolButtons, WorkByMouse) {
  const ButtonRow& row = GetParam();
  // A roof's keys stand behind it.
  const QString tip = program_.Find<QToolButton>(row.key).toolTip();
  EXPECT_EQ(tip.section(" (Alt+", 0, 0).toStdString(), row.tip);
  row.deed(program_, [&] {
    EXPECT_TRUE(program_.Find(row.key).isVisible());
    program_.Press(row.key);
  });
}

INSTANTIATE_TEST_SUITE_P(Bar, ToolButtons, ::testing::ValuesIn(kButtons),
                         [](const auto& row) { return TestName(row.param.key); });

TEST(ToolBarButtons, EveryOneIsPressedInATest) {
  const ToolBar bar;
  std::vector<std::string_view> keys;
  for (const ToolButton& button : bar.Buttons()) keys.push_back(button.Key);
  std::vector<std::string_view> rows;
  for (const ButtonRow& row : kButtons) rows.emplace_back(row.key);
  EXPECT_EQ(rows, keys);
}

using ToolBarWindow = WindowTest;

TEST_F(ToolBarWindow, RoofButtonComesBackFromTheRearRoof) {
  Press("Dual");
  Find<QTabBar>("VSTab(1)").setCurrentIndex(1);
  EXPECT_EQ(Document().design.sheet.Tabs[1].Page, 1);
  Press("Dual");
  EXPECT_EQ(Document().design.sheet.Tabs[1].Page, 0);
  EXPECT_TRUE(Find("FtSpan(0)").isVisible());
}

TEST_F(ToolBarWindow, StatusIsEmptyWhenThePointerLeaves) {
  Box("FtSpan(0)").setFocus();
  EXPECT_NE(Find<QLabel>("StatusBar").text(), "");
  QEvent leave(QEvent::Leave);
  QApplication::sendEvent(&Find("Hip"), &leave);
  EXPECT_EQ(Find<QLabel>("StatusBar").text(), "");
}

}  // namespace
}  // namespace pitchcraft::testing
