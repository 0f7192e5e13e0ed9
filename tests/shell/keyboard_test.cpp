// The way of Tab, and what everything is called.
#include <QAccessible>

#include "window_test.h"

namespace pitchcraft::testing {
namespace {

struct Stops {
  std::vector<std::string>& names;

  void operator()(const FtInText* field) const { names.push_back(field->Name); }
  void operator()(const LWCombo* pair) const {
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

/// Where Tab stops on the design page: what shows and can be used, in the order of the sheet.
std::vector<std::string> ExpectedStops(const Sheet& sheet) {
  std::vector<std::string> names;
  for (const AnyControl& any : sheet.Controls()) {
    const Control& control = ControlOf(any);
    const bool rear = sheet.VSTab[1].Page == 1;
    const bool otherRoof = control.Host == (rear ? Host::kFrontPage : Host::kRearPage);
    const bool hiddenStrip = control.Host == Host::kBayStrip && !sheet.Toolbar1.Visible;
    if (control.Visible && control.Enabled && !otherRoof && !hiddenStrip) std::visit(Stops{names}, any);
  }
  return names;
}

class Keyboard : public WindowTest, public ::testing::WithParamInterface<const char*> {};

TEST_P(Keyboard, TabStopsAtEveryFieldInTheOrderOfTheSheet) {
  Press(GetParam());
  const std::vector<std::string> expected = ExpectedStops(Document().sheet);
  ASSERT_GT(expected.size(), 10U);
  Find("cboType").setFocus();
  std::vector<std::string> stops;
  for (std::size_t i = 0; i < expected.size(); ++i) {
    stops.push_back(FocusName());
    Key(Qt::Key_Tab);
  }
  EXPECT_EQ(stops, expected);
  // Then come the captions of the pages and the drawing, and it starts again.
  EXPECT_EQ(FocusName(), "VSTab(0)");
  for (int i = 0; i < 2 && FocusName() != "Picture1"; ++i) Key(Qt::Key_Tab);
  EXPECT_EQ(FocusName(), "Picture1");
  Key(Qt::Key_Tab);
  EXPECT_EQ(FocusName(), "cboType");
  Key(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(FocusName(), "Picture1");
}

TEST_P(Keyboard, StopsHaveNamesOfTheirOwn) {
  Press(GetParam());
  std::set<std::string> names;
  for (const std::string& stop : ExpectedStops(Document().sheet)) {
    const std::string name = Find(stop).accessibleName().toStdString();
    const auto* button = window_.findChild<QPushButton*>(QString::fromStdString(stop));
    if (button != nullptr) continue;  // called by its text
    EXPECT_FALSE(name.empty()) << stop;
    EXPECT_EQ(name.find('('), std::string::npos) << stop << " is called " << name;
    EXPECT_TRUE(names.insert(name).second) << stop << " is called " << name << ", as another one";
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
  for (const AnyControl& any : Document().sheet.Controls()) {
    const Control& control = ControlOf(any);
    if (control.Host == Host::kNone) continue;
    EXPECT_NE(window_.findChild<QWidget*>(QString::fromStdString(control.Name)), nullptr) << control.Name;
  }
  for (const char* name : {"Picture1", "Picture3", "VSTab(0)", "VSTab(1)", "tbToolBar", "StatusBar"}) {
    EXPECT_FALSE(Find(name).accessibleName().isEmpty()) << name;
  }
  for (const ToolButton& button : Document().tbToolBar.Buttons()) {
    EXPECT_FALSE(Find<QToolButton>(std::string(button.Key)).accessibleName().isEmpty());
    EXPECT_FALSE(Find<QToolButton>(std::string(button.Key)).icon().isNull()) << button.Key;
  }
}

TEST_F(Names, EveryMenuItemOfTheBarIsAnActionOfItsName) {
  for (const MenuItem* item : Document().menus.Items()) {
    const MenuItem* holder = Document().menus.HolderOf(*item);
    if (holder == nullptr || Document().menus.IsPopup(*holder)) continue;
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
  EXPECT_EQ(double(Document().Rafter1.Span), 96);
  QAccessibleInterface* lock = QAccessible::queryAccessibleInterface(&Find("chkHeel(0)"));
  EXPECT_EQ(lock->text(QAccessible::Name), "Heel, lock");
  EXPECT_EQ(lock->text(QAccessible::Description), "Lock or unlock the heel height dimension");
}

TEST_F(Names, RowsCalledDifferentlyInAnotherRoofAreSo) {
  Press("Hip");
  EXPECT_EQ(Box("LWSlope(2).Left").accessibleName(), "End Slope, rise");
  Press("Gambrel");
  EXPECT_EQ(Box("LWSlope(2).Left").accessibleName(), "Lower Slope, rise");
}

}  // namespace
}  // namespace pitchcraft::testing
