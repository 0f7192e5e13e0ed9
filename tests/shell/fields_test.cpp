// Fields under the keyboard: what commits, what does not, and what Escape brings back.
#include <QMenu>

#include "window_test.h"

namespace pitchcraft::testing {
namespace {

using Fields = WindowTest;

TEST_F(Fields, EnterCommitsAndShowsTheOwnForm) {
  Type("FtSpan(0)", "10'6");
  Key(Qt::Key_Return);
  EXPECT_EQ(double(Document().design.Rafter1.Span), 126);
  EXPECT_EQ(Box("FtSpan(0)").Entry(), "10' 6\"");
  EXPECT_EQ(FocusName(), "FtSpan(0)");
}

TEST_F(Fields, LeavingCommits) {
  Type("FtSpan(0)", "100");
  EXPECT_EQ(double(Document().design.Rafter1.Span), 144);
  Key(Qt::Key_Tab);
  EXPECT_EQ(double(Document().design.Rafter1.Span), 100);
  EXPECT_EQ(Box("FtSpan(0)").Entry(), "8' 4\"");
}

TEST_F(Fields, LeavingWithoutTypingCommitsNothing) {
  CountActions();
  Box("LWSlope(0).Left").setFocus();
  for (int i = 0; i < 20; ++i) Key(Qt::Key_Tab);
  EXPECT_EQ(ActionsTaken(), 0);
  Type("FtOverhang(0)", "12");
  Key(Qt::Key_Tab);
  EXPECT_EQ(ActionsTaken(), 1);
}

TEST_F(Fields, TypingIsKnownBeforeItIsFinished) {
  Type("FtSpan(0)", "99");
  EXPECT_EQ(Document().design.sheet.Span[0].Value(), 99);
  EXPECT_EQ(double(Document().design.Rafter1.Span), 144);
  EXPECT_EQ(Box("FtSpan(0)").Entry(), "99");
}

TEST_F(Fields, WhatIsBeingTypedStaysAsItIs) {
  Type("LWRafter(0).Right", "9 ");
  EXPECT_EQ(Box("LWRafter(0).Right").Entry(), "9 ");
  QTest::keyClicks(QApplication::focusWidget(), "1/4");
  Key(Qt::Key_Return);
  EXPECT_EQ(double(Document().design.Rafter1.Depth), 9.25);
}

TEST_F(Fields, EscapeBringsBackTheNumberAndNotItsRoundedText) {
  Type("FtSpan(0)", "19.2");
  Key(Qt::Key_Return);
  const std::string shown = Box("FtSpan(0)").Entry();
  Type("FtSpan(0)", "77");
  Key(Qt::Key_Escape);
  EXPECT_EQ(Box("FtSpan(0)").Entry(), shown);
  EXPECT_EQ(Document().design.sheet.Span[0].Value(), 19.2);
  CountActions();
  Key(Qt::Key_Tab);
  EXPECT_EQ(ActionsTaken(), 0);
}

TEST_F(Fields, EscapeInAPairBringsBackBoth) {
  Type("LWSlope(0).Left", "7");
  Key(Qt::Key_Tab);  // a slope takes Tab for Enter
  Type("LWSlope(0).Left", "9");
  Key(Qt::Key_Escape);
  EXPECT_EQ(Box("LWSlope(0).Left").Entry(), "7");
  EXPECT_EQ(Document().design.sheet.Slope[0].LeftValue(), 7);
}

TEST_F(Fields, GoingBetweenTheBoxesOfAPairLeavesNothing) {
  CountActions();
  Type("LWRafter(0).Left", "3");
  Key(Qt::Key_Tab);
  EXPECT_EQ(FocusName(), "LWRafter(0).Right");
  EXPECT_EQ(ActionsTaken(), 0);
  Key(Qt::Key_Tab);
  EXPECT_EQ(ActionsTaken(), 1);
  EXPECT_EQ(double(Document().design.Rafter1.Thickness), 3);
  EXPECT_EQ(double(Document().design.Rafter1.Depth), 7.25);
}

TEST_F(Fields, SlopeReadsAPercentageOnTab) {
  Type("LWSlope(0).Left", "25%");
  Key(Qt::Key_Tab);
  EXPECT_EQ(double(Document().design.Rafter1.Slope), 3);
  EXPECT_EQ(Box("LWSlope(0).Left").Entry(), "3");
}

TEST_F(Fields, ArrowKeysStepAField) {
  Box("FtSpan(0)").setFocus();
  Key(Qt::Key_Up);
  EXPECT_EQ(double(Document().design.Rafter1.Span), 144.25);
  Key(Qt::Key_Down);
  Key(Qt::Key_Down);
  EXPECT_EQ(double(Document().design.Rafter1.Span), 143.75);
}

TEST_F(Fields, SpinButtonStepsItsField) {
  QWidget& spin = Find("Spin(1)");
  QTest::mousePress(&spin, Qt::LeftButton, {}, QPoint(spin.width() / 2, 3));
  QTest::mouseRelease(&spin, Qt::LeftButton);
  EXPECT_EQ(double(Document().design.Rafter1.Overhang), 10.75);
  QTest::mousePress(&spin, Qt::LeftButton, {}, QPoint(spin.width() / 2, spin.height() - 3));
  QTest::mouseRelease(&spin, Qt::LeftButton);
  EXPECT_EQ(double(Document().design.Rafter1.Overhang), 10.5);
}

TEST_F(Fields, ListOpensByKeyboardAndIsPickedFrom) {
  for (const bool f4 : {true, false}) {
    Box("LWRafter(0).Left").setFocus();
    f4 ? Key(Qt::Key_F4) : Key(Qt::Key_Down, Qt::AltModifier);
    auto* list = qobject_cast<QListWidget*>(QApplication::activePopupWidget());
    ASSERT_NE(list, nullptr);
    EXPECT_EQ(list->count(), int(Document().design.sheet.Common[0].List().size()));
    EXPECT_EQ(list->currentRow(), Document().design.sheet.Common[0].ListIndex());
    QTest::keyClick(list, Qt::Key_Down);
    const int row = list->currentRow();
    QTest::keyClick(list, Qt::Key_Return);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_EQ(Document().design.sheet.Common[0].ListIndex(), row);
    EXPECT_EQ(double(Document().design.Rafter1.Depth),
              Document().design.sheet.Common[0].List()[std::size_t(row)].Right);
  }
}

TEST_F(Fields, ListClosesWithoutAPick) {
  const std::string before = StateOf(Document());
  Box("LWSlope(0).Left").setFocus();
  Key(Qt::Key_F4);
  ASSERT_NE(QApplication::activePopupWidget(), nullptr);
  QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_End);
  QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
  EXPECT_EQ(StateOf(Document()), before);
}

TEST_F(Fields, RoofIsPickedByKeyboard) {
  auto& roof = Find<QComboBox>("cboType");
  roof.setFocus();
  QTest::keyClick(&roof, Qt::Key_F4);
  QWidget* popup = QApplication::activePopupWidget();
  ASSERT_NE(popup, nullptr);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
  EXPECT_EQ(Document().design.RoofType, Roof::kShed);
  EXPECT_EQ(roof.count(), 11);
  EXPECT_TRUE(Find<QToolButton>("Shed").isChecked());
  EXPECT_FALSE(Find<QToolButton>("Gable").isChecked());
}

TEST_F(Fields, LockIsClickedAndFieldsFollow) {
  EXPECT_FALSE(Box("FtKneewall(0)").isEnabled());
  QTest::mouseClick(&Find("chkKneewall(0)"), Qt::LeftButton);
  EXPECT_TRUE(Document().design.sheet.HasKneewall[0].Ticked());
  EXPECT_TRUE(Box("FtKneewall(0)").isEnabled());
  EXPECT_EQ(FocusName(), "FtKneewall(0)");
  QTest::mouseClick(&Find("chkHeel(0)"), Qt::LeftButton);
  EXPECT_TRUE(Find<QCheckBox>("chkHeel(0)").isChecked());
  EXPECT_TRUE(Find<QAction>("mnuSettingsHeelLocked").isChecked());
  QTest::mouseClick(&Find("chkSeat(0)"), Qt::LeftButton);
  EXPECT_FALSE(Find<QCheckBox>("chkHeel(0)").isChecked());
}

TEST_F(Fields, WhatWasTypedCountsBeforeATabAToolOrAMenuActs) {
  Type("FtSpan(0)", "120");
  QTest::mouseClick(&Find<QTabBar>("VSTab(0)"), Qt::LeftButton, {},
                    Find<QTabBar>("VSTab(0)").tabRect(1).center());
  EXPECT_EQ(PageShown(Document().design), 1);
  EXPECT_EQ(double(Document().design.Rafter1.Span), 120);
  Press("Shed");
  Type("FtSpan(0)", "96");
  Press("Square");
  EXPECT_EQ(double(Document().design.Rafter1.Span), 96);
  Type("FtSpan(0)", "90");
  Trigger("mnuSettingsPlumbCut");
  EXPECT_EQ(double(Document().design.Rafter1.Span), 90);
}

TEST_F(Fields, AssistiveProgramsPutTextInAsAWhole) {
  EntryBox& box = Box("FtSpan(0)");
  box.setFocus();
  box.setText("84");
  EXPECT_EQ(Document().design.sheet.Span[0].Value(), 84);
  Key(Qt::Key_Tab);
  EXPECT_EQ(double(Document().design.Rafter1.Span), 84);
}

// The session of the desktop may end at any time, also below an open menu.
TEST_F(Fields, WindowGoesWhileAMenuBorrowsTheFocusOfAField) {
  NullSurroundings surroundings;
  auto next = std::make_unique<MainWindow>(surroundings.Get());
  OpenForTest(*next);
  auto* box = next->findChild<EntryBox*>("LWSlope(0).Left");
  box->setFocus();
  QTest::keyClicks(box, "7");
  next->findChild<QMenu*>("mnuFile")->popup(QPoint(5, 5));
  ASSERT_EQ(QApplication::focusWidget(), box);
  next.reset();
  EXPECT_TRUE(surroundings.dialogs.messages.empty());
}

TEST_F(Fields, ColorsAreThoseOfTheSettings) {
  const QPalette palette = Box("FtSpan(0)").palette();
  EXPECT_EQ(palette.color(QPalette::Active, QPalette::Base), QColor(Qt::black));
  EXPECT_EQ(palette.color(QPalette::Active, QPalette::Text), QColor(Qt::yellow));
  EXPECT_NE(palette.color(QPalette::Disabled, QPalette::Text), QColor(Qt::yellow));
}

}  // namespace
}  // namespace pitchcraft::testing
