// The popups of the drawings and of the fields: what they hold, and every entry under mouse and keyboard.
#include <QMenu>
#include <QPointer>
#include <algorithm>

#include "item_rows.h"

namespace pitchcraft::testing {
namespace {

// --- What they hold
// -----------------------------------------------------------------------------------------------

const std::vector<std::string> kFiles{"mnuPopUp1PrintSetup", "mnuPopUp1Print", "mnuPopUp1DXFSettings",
                                      "mnuPopUp1DXF"};
const std::vector<std::string> kCuts{"mnuPopUp1PlumbCut", "mnuPopUp1SquareCut"};
const std::vector<std::string> kLedgers{"mnuPopUp1Ledger(0)", "mnuPopUp1Ledger(1)"};
const std::vector<std::string> kLayouts{"mnuPopUp1LayoutCenter", "mnuPopUp1LayoutCorner",
                                        "mnuPopUp1LayoutCornerFlush", "mnuPopUp1JackMeasurement"};
const std::vector<std::string> kEqual{"mnuPopUp1OverhangsEqual"};
const std::vector<std::string> kGambrel{"mnuPopUp2PrintSetup",         "mnuPopUp2Print",
                                        "mnuPopUp2DXFSettings",        "mnuPopUp2DXF",
                                        "mnuPopUp2PlumbCut",           "mnuPopUp2SquareCut",
                                        "mnuPopUp2LevelCut",           "mnuPopup2GambrelRegular",
                                        "mnuPopup2GambrelCustom",      "mnuPopup2GambrelPurlins",
                                        "mnuPopup2GambrelWallSupport", "mnuPopup2GambrelWallSupportRaised"};

struct RoofPopup {
  const char* roof;
  const char* endSlope;  ///< another one than the main slope makes a hip a bastard hip
  std::vector<std::vector<std::string>> groups;
};

void PrintTo(const RoofPopup& row, std::ostream* stream) { *stream << row.roof << " " << row.endSlope; }

const RoofPopup kPopups[] = {
    {"Gable", "", {kFiles, kCuts}},
    {"Shed", "", {kFiles, kCuts}},
    {"Dual", "", {kFiles, kCuts}},
    {"Hip", "", {kFiles, kCuts, kLayouts}},
    {"Hip", "9", {kFiles, kCuts, kLayouts, kEqual}},
    {"Valley", "", {kFiles, kCuts}},
    {"Unequal Span Valley", "", {kFiles, kCuts}},
    {"Bay", "", {kFiles, kCuts}},
    {"Dutch Hip", "", {kFiles, kCuts, kLedgers}},
    {"Blind Valley", "", {kFiles}},
    {"Octagon", "", {kFiles, kCuts}},
    {"Gambrel", "", {kGambrel}},
};

/// The entries that show and stand in the table of the menus, in order.
std::vector<std::string> EntriesOf(const QMenu& popup, const Menus& menus) {
  std::vector<std::string> names;
  for (const QAction* action : popup.actions()) {
    const std::string name = action->objectName().toStdString();
    if (action->isVisible() && !action->isSeparator() && menus.Find(name) != nullptr) names.push_back(name);
  }
  return names;
}

class DrawingPopup : public ::testing::TestWithParam<RoofPopup> {
 protected:
  WholeProgram program_;
};

TEST_P(DrawingPopup, HoldsWhatTheRoofKnows) {
  const RoofPopup& row = GetParam();
  std::vector<std::string> expected;
  for (const auto& group : row.groups) expected.insert(expected.end(), group.begin(), group.end());
  program_.Press("Hip");  // what it showed is gone with it
  program_.Press(row.roof);
  if (*row.endSlope != 0) program_.Enter("LWSlope(2).Left", row.endSlope);
  const int pages = program_.Find<QTabBar>("VSTab(0)").count();
  // A hip's layouts come with the first page that is turned to.
  for (const int page : {1, pages - 1, 0}) {
    program_.TurnTo(page);
    const QMenu* popup = program_.OpenDrawingPopup();
    ASSERT_NE(popup, nullptr);
    EXPECT_EQ(popup->objectName(), row.roof == std::string("Gambrel") ? "mnuPopUp2" : "mnuPopUp1");
    EXPECT_EQ(EntriesOf(*popup, program_.Document().design.menus), expected) << "page " << page;
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
  }
}

INSTANTIATE_TEST_SUITE_P(Roofs, DrawingPopup, ::testing::ValuesIn(kPopups), [](const auto& row) {
  return TestName(std::string(row.param.roof) + (*row.param.endSlope == 0 ? "" : "OfTwoSlopes"));
});

class FreshHipPopup : public ::testing::Test {
 protected:
  WholeProgram program_;
};

TEST_F(FreshHipPopup, HasItsLayoutsAfterThePageWasTurned) {
  program_.Press("Hip");
  const auto holds = [this](const char* name) {
    const QMenu* popup = program_.OpenDrawingPopup();
    const auto entries = EntriesOf(*popup, program_.Document().design.menus);
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
    return std::find(entries.begin(), entries.end(), name) != entries.end();
  };
  EXPECT_FALSE(holds("mnuPopUp1LayoutCenter"));
  EXPECT_TRUE(holds("mnuPopUp1JackMeasurement"));
  program_.TurnTo(1);
  EXPECT_TRUE(holds("mnuPopUp1LayoutCenter"));
}

class FieldPopup : public ::testing::Test {
 protected:
  WholeProgram program_;
};

TEST_F(FieldPopup, IsThatOfTheLengthsThatStep) {
  program_.Press("Blind Valley");
  for (const char* name : {"FtSpan(0)", "FtRidge(0)", "FtRidge(1)"}) {
    QMenu* popup = program_.OpenFieldPopup(name);
    ASSERT_NE(popup, nullptr) << name;
    EXPECT_EQ(popup->objectName(), "mnuSpin") << name;
    QTest::keyClick(popup, Qt::Key_Escape);
  }
  program_.Press("Gable");
  QMenu* popup = program_.OpenFieldPopup("FtOverhang(0)");
  ASSERT_NE(popup, nullptr);
  EXPECT_EQ(popup->objectName(), "mnuSpin");
  QTest::keyClick(popup, Qt::Key_Escape);
  for (const char* name : {"LWRafter(0).Left", "LWSlope(0).Left"}) {
    popup = program_.OpenFieldPopup(name);  // that of any text box
    ASSERT_NE(popup, nullptr) << name;
    EXPECT_NE(popup->objectName(), "mnuSpin") << name;
    QTest::keyClick(popup, Qt::Key_Escape);
  }
}

TEST_F(FieldPopup, ComesByKeyboardToo) {
  QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(3, 3), QPoint(3, 3));
  QApplication::sendEvent(&program_.Box("FtOverhang(0)"), &event);
  ASSERT_NE(QApplication::activePopupWidget(), nullptr);
  EXPECT_EQ(QApplication::activePopupWidget()->objectName(), "mnuSpin");
  QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

TEST_F(FieldPopup, ItsArrowsTellOfIt) {
  QEnterEvent enter({1, 1}, {1, 1}, {1, 1});
  QApplication::sendEvent(&program_.Find("Spin(0)"), &enter);
  EXPECT_EQ(program_.Status(), "Right click on field to change increment.");
}

// --- Every entry
// --------------------------------------------------------------------------------------------------

enum class Way { kMouse, kKeys };

class PopupItems : public ::testing::TestWithParam<ItemRow> {
 protected:
  void Do(Way way) {
    const ItemRow& row = GetParam();
    program_.Press(row.roof);
    row.deed(program_, [&] { Take(row, way); });
  }

 private:
  void Take(const ItemRow& row, Way way) {
    program_.ComeBack();
    const bool ofField = std::string(row.item).starts_with("mnuSpin");
    QMenu* popup = ofField ? program_.OpenFieldPopup("FtSpan(0)") : program_.OpenDrawingPopup();
    ASSERT_NE(popup, nullptr);
    auto* action = popup->findChild<QAction*>(row.item);
    ASSERT_NE(action, nullptr);
    ASSERT_TRUE(action->isVisible() && action->isEnabled());
    if (way == Way::kMouse) {
      QTest::mouseMove(popup, popup->actionGeometry(action).center());
    } else {
      for (qsizetype i = 0; i <= popup->actions().size() && popup->activeAction() != action; ++i) {
        QTest::keyClick(popup, Qt::Key_Down);
      }
    }
    ASSERT_EQ(popup->activeAction(), action);
    EXPECT_EQ(program_.Status(), row.hint);
    const QPointer<QMenu> gone = popup;
    if (way == Way::kMouse) {
      QTest::mouseClick(popup, Qt::LeftButton, {}, popup->actionGeometry(action).center());
    } else {
      QTest::keyClick(popup, Qt::Key_Return);
    }
    EXPECT_TRUE(gone == nullptr || !gone->isVisible());
  }

  WholeProgram program_;
};

TEST_P(PopupItems, WorkByMouse) { Do(Way::kMouse); }
TEST_P(PopupItems, WorkByKeys) { Do(Way::kKeys); }

INSTANTIATE_TEST_SUITE_P(Popups, PopupItems, ::testing::ValuesIn(ItemRowsOf(true)),
                         [](const auto& row) { return TestName(row.param.item); });

}  // namespace
}  // namespace pitchcraft::testing
