// The calculator's window, by keyboard and by buttons, without a screen.
#include "ftcalc/calculator_window.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>
#include <memory>
#include <set>

#include "ftcalc/single_window.h"

namespace pitchcraft {
namespace {

class CalculatorWindowTest : public testing::Test {
 protected:
  CalculatorWindowTest() { Open(window_); }
  static void Open(CalculatorWindow& window) {
    window.show();
    window.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
  }
  template <typename Widget>
  Widget& Find(const char* name) {
    auto* found = window_.findChild<Widget*>(name);
    if (found == nullptr) throw std::runtime_error(name);
    return *found;
  }
  void Press(const char* name) { QTest::mouseClick(&Find<QPushButton>(name), Qt::LeftButton); }
  static void Type(const QString& keys) { QTest::keyClicks(QApplication::focusWidget(), keys); }
  static void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
  }
  QString Display() { return Find<QLineEdit>("Display").text(); }

  CalculatorWindow window_{false};
};

TEST_F(CalculatorWindowTest, KeyboardAddsUp) {
  Type("12'6+3'8 1/2");
  EXPECT_EQ(Display(), "3'8 1/2");
  Key(Qt::Key_Return);
  EXPECT_EQ(Display(), "16' 2 1/2\"");
  auto& tape = Find<QListWidget>("Tape");
  ASSERT_EQ(tape.count(), 3);
  EXPECT_EQ(tape.item(2)->text(), "= 16' 2 1/2\"");
}

TEST_F(CalculatorWindowTest, ButtonsAddUp) {
  for (const char* key :
       {"1", "2", "Feet", "6", "Add", "5", "Space", "1", "Fraction", "2", "Inches", "Equals"}) {
    Press(key);
  }
  EXPECT_EQ(Display(), "12' 11 1/2\"");
  Press("Change sign");
  EXPECT_EQ(Display(), "-12' 11 1/2\"");
  for (const char* key : {"Multiply", "2", "Divide", "4", "Subtract", "1", "Feet", "Equals"}) Press(key);
  EXPECT_EQ(Display(), "-7' 5 3/4\"");
}

TEST_F(CalculatorWindowTest, KeysReachTheSumFromEveryButton) {
  Press("7");
  EXPECT_EQ(QApplication::focusWidget()->objectName(), "7");
  Type("5\"+1'");
  Key(Qt::Key_Return);
  EXPECT_EQ(Display(), "7' 3\"");
}

TEST_F(CalculatorWindowTest, EscapeClearsAndStaysOpen) {
  Type("12'+3'");
  Key(Qt::Key_Escape);
  EXPECT_EQ(Display(), "0");
  EXPECT_TRUE(window_.isVisible());
  Type("4'");
  Key(Qt::Key_Enter);
  EXPECT_EQ(Display(), "4' 0\"");
}

TEST_F(CalculatorWindowTest, BackspaceAndDeleteMendTheEntry) {
  Type("12'+34");
  Key(Qt::Key_Backspace);
  EXPECT_EQ(Display(), "3");
  Key(Qt::Key_Delete);
  EXPECT_EQ(Display(), "12' 0\"");
}

TEST_F(CalculatorWindowTest, DivisionByZeroIsAMessage) {
  Type("12':0=");
  EXPECT_EQ(Find<QLabel>("Message").text(), "Nothing can be divided by zero.");
  EXPECT_EQ(Display(), "0");
  Type("5");
  EXPECT_EQ(Find<QLabel>("Message").text(), "");
}

TEST_F(CalculatorWindowTest, MemoryShows) {
  Type("12'");
  Press("Add to memory");
  EXPECT_EQ(Find<QLabel>("Memory").text(), "M 12' 0\"");
  Press("Clear");
  Press("Recall memory");
  EXPECT_EQ(Display(), "12' 0\"");
  Press("Subtract from memory");
  EXPECT_EQ(Find<QLabel>("Memory").text(), "M 0\"");
  Press("Clear memory");
  EXPECT_EQ(Find<QLabel>("Memory").text(), "");
}

TEST_F(CalculatorWindowTest, UnitsShowTheSameFigure) {
  Type("12'6=");
  auto& units = Find<QComboBox>("Units");
  units.setCurrentIndex(1);
  EXPECT_EQ(Display(), "150\"");
  units.setCurrentIndex(2);
  EXPECT_EQ(Display(), "3810 mm");
}

TEST_F(CalculatorWindowTest, ClipboardGoesInAndOut) {
  QApplication::clipboard()->setText(" 12'-6\"\n");
  Key(Qt::Key_V, Qt::ControlModifier);
  Key(Qt::Key_Return);
  EXPECT_EQ(Display(), "12' 6\"");
  Key(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text(), "12' 6\"");
}

TEST_F(CalculatorWindowTest, EverythingHasANameOfItsOwn) {
  std::set<QString> names;
  for (const QWidget* widget : window_.findChildren<QWidget*>()) {
    if (widget->focusPolicy() == Qt::NoFocus || widget->objectName().startsWith("qt_")) continue;
    if (!widget->isVisible() || widget->focusPolicy() == Qt::ClickFocus) continue;
    EXPECT_FALSE(widget->accessibleName().isEmpty()) << widget->metaObject()->className();
    EXPECT_TRUE(names.insert(widget->accessibleName()).second) << widget->accessibleName().toStdString();
  }
  EXPECT_GT(names.size(), 30U);
}

TEST_F(CalculatorWindowTest, TabReachesTheTape) {
  std::set<QString> stops;
  for (int i = 0; i < 60; ++i) {
    stops.insert(QApplication::focusWidget()->objectName());
    Key(Qt::Key_Tab);
  }
  for (const char* name : {"Display", "Units", "Tape", "Equals"}) EXPECT_EQ(stops.count(name), 1U) << name;
}

TEST(MetricCalculator, BeginsWithMillimetres) {
  CalculatorWindow window(true);
  EXPECT_EQ(window.windowTitle(), "Calculator");
  EXPECT_EQ(window.Calculator().Units(), CalcUnits::kMillimetres);
  EXPECT_EQ(CalculatorWindow(false).windowTitle(), "FtInch Calculator");
}

TEST(OneCalculator, SecondStartAsksTheFirstToCome) {
  const QTemporaryDir folder;
  SingleWindow first(folder.filePath("calculator"));
  EXPECT_FALSE(first.RaiseRunning());
  first.Listen();
  CalculatorWindow window(false);
  QObject::connect(&first, &SingleWindow::Asked, &window, &CalculatorWindow::Raise);
  window.showMinimized();
  QSignalSpy asked(&first, &SingleWindow::Asked);
  // The answer needs the events of this thread, so the question is asked in another one.
  bool raised = false;
  const std::unique_ptr<QThread> second(
      QThread::create([&] { raised = SingleWindow(folder.filePath("calculator")).RaiseRunning(); }));
  second->start();
  while (!second->isFinished()) QTest::qWait(1);
  EXPECT_TRUE(raised);
  EXPECT_EQ(asked.count(), 1);
  EXPECT_TRUE(window.isVisible());
  EXPECT_FALSE(window.isMinimized());
}

}  // namespace
}  // namespace pitchcraft

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  const QApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
