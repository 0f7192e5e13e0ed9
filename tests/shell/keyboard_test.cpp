// The way of Tab, and what everything is called.
#include <QAccessible>
#include <QLabel>
#include <algorithm>

#include "window_test.h"

namespace pitchcraft::testing {
namespace {

struct Stops {
  std::vector<std::string>& names;

  void operator()(const MeasureControl* field) const { names.push_back(field->Name); }
  void operator()(const PairControl* pair) const {
    names.push_back(pair->Name + ".Left");
    names.push_back(pair->Name + ".Right");
  }
  void operator()(const ComboControl* combo) const {
    names.push_back(combo->DropDownList ? combo->Name : combo->Name + ".Text");
  }
  void operator()(const CheckControl* box) const { names.push_back(box->Name); }
  void operator()(const ButtonControl* button) const { names.push_back(button->Name); }
  void operator()(const LabelControl*) const {}
  void operator()(const SpinControl*) const {}
  void operator()(const ContainerControl*) const {}
};

/// The fields at which Tab has to stop on the design page: what shows and can be used.
std::vector<std::string> ExpectedStops(const Sheet& sheet) {
  std::vector<std::string> names;
  for (const AnyControl& any : sheet.Controls()) {
    const Control& control = ControlOf(any);
    const bool rear = sheet.Tabs[1].Page == 1;
    const bool otherRoof = control.Host == (rear ? Host::kFrontPage : Host::kRearPage);
    const bool hiddenStrip = control.Host == Host::kBayStrip && !sheet.DimensionStrip.Visible;
    if (control.Visible && control.Enabled && !otherRoof && !hiddenStrip) std::visit(Stops{names}, any);
  }
  return names;
}

/// In the row above, or in the same row further left.
bool StandsBefore(const QWidget& first, const QWidget& second) {
  const QPoint from = first.mapTo(first.window(), first.rect().center());
  const QPoint to = second.mapTo(second.window(), second.rect().center());
  const int halfRow = std::min(first.height(), second.height()) / 2;
  return std::abs(to.y() - from.y()) < halfRow ? from.x() < to.x() : from.y() < to.y();
}

class Keyboard : public WindowTest, public ::testing::WithParamInterface<const char*> {
 protected:
  /// Where Tab stops, or Shift and Tab, from the roof type until it is there again.
  std::vector<std::string> TabRound(bool back = false) {
    constexpr std::size_t kTooMany = 100;
    std::vector<std::string> stops;
    Find("cboType").setFocus();
    do {
      stops.push_back(FocusName());
      Key(back ? Qt::Key_Backtab : Qt::Key_Tab, back ? Qt::ShiftModifier : Qt::NoModifier);
    } while (FocusName() != "cboType" && stops.size() < kTooMany);
    return stops;
  }
};

TEST_P(Keyboard, TabStopsOnceAtEveryFieldAndComesBack) {
  Press(GetParam());
  std::vector<std::string> expected = ExpectedStops(Document().design.sheet);
  ASSERT_GT(expected.size(), 10U);
  expected.emplace_back("VSTab(0)");
  expected.emplace_back("Picture1");
  if (Find("VSTab(1)").isVisible()) expected.emplace_back("VSTab(1)");
  std::vector<std::string> stops = TabRound();
  std::sort(expected.begin(), expected.end());
  std::sort(stops.begin(), stops.end());
  EXPECT_EQ(stops, expected);
  EXPECT_EQ(FocusName(), "cboType");
}

TEST_P(Keyboard, TabGoesAsTheEyeGoes) {
  Press(GetParam());
  const std::vector<std::string> round = TabRound();
  std::size_t pairs = 0;
  for (const char* part : {"Sheet", "TabStrip", "Toolbar1"}) {
    const QWidget* before = nullptr;
    for (const std::string& name : round) {
      const QWidget& stop = Find(name);
      if (!Find(part).isAncestorOf(&stop) || name.starts_with("VSTab(0)")) continue;
      if (before != nullptr) {
        ++pairs;
        EXPECT_TRUE(StandsBefore(*before, stop)) << before->objectName().toStdString() << ", then " << name;
      }
      before = &stop;
    }
  }
  EXPECT_GT(pairs, 10U);
}

TEST_P(Keyboard, BacktabGoesTheSameWayBack) {
  Press(GetParam());
  std::vector<std::string> there = TabRound();
  std::vector<std::string> back = TabRound(true);
  std::reverse(back.begin() + 1, back.end());  // both begin with the roof type
  EXPECT_EQ(back, there);
}

TEST_P(Keyboard, StopsHaveNamesOfTheirOwn) {
  Press(GetParam());
  std::set<std::string> names;
  for (const std::string& stop : ExpectedStops(Document().design.sheet)) {
    const std::string name = Find(stop).accessibleName().toStdString();
    const auto* button = window_.findChild<QPushButton*>(QString::fromStdString(stop));
    if (button != nullptr) continue;  // called by its text
    EXPECT_FALSE(name.empty()) << stop;
    EXPECT_EQ(name.find('('), std::string::npos) << stop << " is called " << name;
    EXPECT_TRUE(names.insert(name).second) << stop << " is called " << name << ", as another one";
  }
}

TEST_P(Keyboard, WhatTakesNoFocusHasAnotherWay) {
  Press(GetParam());
  std::set<std::string> commands;
  for (const QAction* action : window_.findChildren<QAction*>()) {
    commands.insert(action->text().remove('&').remove("...").toStdString());
  }
  for (const std::string& roof : Document().design.sheet.RoofList.List()) commands.insert(roof);
  const std::set<std::string> files{"New project", "Open project", "Save project"};
  for (const QToolButton* button : Find("tbToolBar").findChildren<QToolButton*>()) {
    const std::string name = button->accessibleName().toStdString();
    EXPECT_TRUE(commands.contains(name) || files.contains(name)) << name << " is in no menu";
  }
  for (const char* item : {"New", "Open", "Save"}) EXPECT_TRUE(commands.contains(item)) << item;
  // Each pair of arrows steps the field of its row, which the arrow keys do, too.
  for (const SpinControl& spin : Document().design.sheet.Spin) {
    const QWidget& arrows = Find(spin.Name);
    if (!arrows.isVisible()) continue;
    bool beside = false;
    for (const EntryBox* box : Find("Sheet").findChildren<EntryBox*>()) {
      beside = beside || (box->isVisible() && box->y() == arrows.y() && box->focusPolicy() & Qt::TabFocus);
    }
    EXPECT_TRUE(beside) << spin.Name;
  }
}

INSTANTIATE_TEST_SUITE_P(Roofs, Keyboard,
                         ::testing::Values("Gable", "Shed", "Dual", "Hip", "Valley", "Unequal Span Valley",
                                           "Bay", "Dutch Hip", "Blind Valley", "Octagon", "Gambrel"),
                         [](const auto& roof) {
                           std::string name = roof.param;
                           std::erase(name, ' ');
                           return name;
                         });

using Names = WindowTest;

TEST_F(Names, EveryControlIsAWidgetOfItsName) {
  for (const AnyControl& any : Document().design.sheet.Controls()) {
    const Control& control = ControlOf(any);
    if (control.Host == Host::kNone) continue;
    EXPECT_NE(window_.findChild<QWidget*>(QString::fromStdString(control.Name)), nullptr) << control.Name;
  }
  for (const char* name : {"Picture1", "Picture3", "VSTab(0)", "VSTab(1)", "tbToolBar", "StatusBar"}) {
    EXPECT_FALSE(Find(name).accessibleName().isEmpty()) << name;
  }
  for (const ToolButton& button : Document().design.toolBar.Buttons()) {
    EXPECT_FALSE(Find<QToolButton>(std::string(button.Key)).accessibleName().isEmpty());
    EXPECT_FALSE(Find<QToolButton>(std::string(button.Key)).icon().isNull()) << button.Key;
  }
}

TEST_F(Names, EveryMenuItemOfTheBarIsAnActionOfItsName) {
  for (const MenuItem* item : Document().design.menus.Items()) {
    const MenuItem* holder = Document().design.menus.HolderOf(*item);
    if (holder == nullptr || Document().design.menus.IsPopup(*holder)) continue;
    const auto* action = window_.findChild<QAction*>(QString::fromStdString(item->Name));
    ASSERT_NE(action, nullptr) << item->Name;
    EXPECT_EQ(action->isVisible(), item->Visible) << item->Name;
  }
}

TEST_F(Names, AssistiveProgramsReadAndWriteAField) {
  EntryBox& box = Box("FtSpan(0)");
  QAccessibleInterface* field = QAccessible::queryAccessibleInterface(&box);
  ASSERT_NE(field, nullptr);
  EXPECT_EQ(field->text(QAccessible::Name), "Run");
  EXPECT_EQ(field->text(QAccessible::Value), "12' 0\"");
  EXPECT_EQ(field->role(), QAccessible::EditableText);
  ASSERT_NE(field->editableTextInterface(), nullptr);
  box.setFocus();
  field->editableTextInterface()->replaceText(0, int(box.text().size()), "8'");
  Key(Qt::Key_Tab);
  EXPECT_EQ(double(Document().design.Rafter1.Span), 96);
  QAccessibleInterface* lock = QAccessible::queryAccessibleInterface(&Find("chkHeel(0)"));
  EXPECT_EQ(lock->text(QAccessible::Name), "Heel, lock");
  EXPECT_EQ(lock->text(QAccessible::Description), "Lock or unlock the heel height dimension");
}

TEST_F(Names, AChoiceIsCalledByWhatIsChosenAndReadsItsRow) {
  Press("Octagon");
  QAccessibleInterface* roof = QAccessible::queryAccessibleInterface(&Find("cboType"));
  EXPECT_EQ(roof->role(), QAccessible::ComboBox);
  EXPECT_EQ(roof->text(QAccessible::Name), "Roof");
  EXPECT_EQ(roof->text(QAccessible::Value), "Octagon");
  ASSERT_NE(roof->textInterface(), nullptr);
  EXPECT_EQ(roof->textInterface()->text(0, 3), "Oct");
  ASSERT_EQ(roof->childCount(), 1);
  EXPECT_EQ(roof->indexOfChild(roof->child(0)), 0);
  EXPECT_EQ(roof->child(0)->role(), QAccessible::List);
}

TEST_F(Names, AssistiveProgramsClickAToolButton) {
  QAccessibleInterface* hip = QAccessible::queryAccessibleInterface(&Find("Hip"));
  EXPECT_EQ(hip->role(), QAccessible::RadioButton);
  EXPECT_FALSE(hip->state().checked);
  ASSERT_EQ(hip->actionInterface()->actionNames().size(), 1);
  const QString press = hip->actionInterface()->actionNames().front();
  EXPECT_EQ(hip->actionInterface()->keyBindingsForAction(press), QStringList("Alt+4"));
  hip->actionInterface()->doAction(press);
  EXPECT_EQ(Document().design.sheet.RoofList.Text(), "Hip");
  EXPECT_TRUE(hip->state().checked);
}

TEST_F(Names, AssistiveProgramsStepAField) {
  QAccessibleInterface* arrows = QAccessible::queryAccessibleInterface(&Find("Spin(0)"));
  EXPECT_EQ(arrows->role(), QAccessible::SpinBox);
  EXPECT_EQ(arrows->text(QAccessible::Name), "Run, step");
  arrows->actionInterface()->doAction(QAccessibleActionInterface::increaseAction());
  const double more = double(Document().design.Rafter1.Span);
  EXPECT_GT(more, 144);
  arrows->actionInterface()->doAction(QAccessibleActionInterface::decreaseAction());
  EXPECT_EQ(double(Document().design.Rafter1.Span), 144);
}

TEST_F(Names, TheStatusLineIsReadAndNotOnlyNamed) {
  QLabel& line = Find<QLabel>("StatusBar");
  line.setText("Select plumb cut fascia.");
  QAccessibleInterface* status = QAccessible::queryAccessibleInterface(&line);
  EXPECT_EQ(status->role(), QAccessible::StatusBar);
  EXPECT_EQ(status->text(QAccessible::Name), "Status");
  EXPECT_EQ(status->text(QAccessible::Value), "Select plumb cut fascia.");
  ASSERT_NE(status->textInterface(), nullptr);
  EXPECT_EQ(status->textInterface()->characterCount(), line.text().size());
}

TEST_F(Names, OnlyTheBoxOfAFieldHasTheFocus) {
  Box("LWRafter(0).Left").setFocus();
  const auto focused = [&](const char* name) {
    return QAccessible::queryAccessibleInterface(&Find(name))->state().focused;
  };
  EXPECT_TRUE(focused("LWRafter(0).Left"));
  EXPECT_FALSE(focused("LWRafter(0)"));
}

TEST_F(Names, TabDoesNotStopAtTheArrowsOfTheCaptions) {
  const auto arrows = Find("VSTab(0)").findChildren<QToolButton*>();
  ASSERT_EQ(arrows.size(), 2);
  for (const QToolButton* arrow : arrows) EXPECT_EQ(arrow->focusPolicy(), Qt::NoFocus);
}

TEST_F(Names, RowsCalledDifferentlyInAnotherRoofAreSo) {
  Press("Hip");
  EXPECT_EQ(Box("LWSlope(2).Left").accessibleName(), "End Slope, rise");
  Press("Gambrel");
  EXPECT_EQ(Box("LWSlope(2).Left").accessibleName(), "Lower Slope, rise");
}

}  // namespace
}  // namespace pitchcraft::testing
