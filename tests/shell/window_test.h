// A real window without a screen, with messages recorded and settings forgotten.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QListWidget>
#include <QTest>
#include <QToolButton>
#include <set>

#include "../support/document_api.h"
#include "core/rafter_members.h"
#include "document/null_surroundings.h"
#include "shell/entry_box.h"
#include "shell/main_window.h"

namespace pitchcraft::testing {

/// "12 [Slope(0)] 6 | 12, ...": all that a person could tell two documents apart by.
std::string StateOf(Document& document);

/// A person's hand in a window: it finds the widgets by the names of their controls.
class WindowHand {
 public:
  explicit WindowHand(MainWindow& window) : window_(window) {}

  pitchcraft::Document& Document() { return window_.Document(); }

  template <typename Widget = QWidget>
  Widget& Find(const std::string& name) {
    auto* found = window_.findChild<Widget*>(QString::fromStdString(name));
    if (found == nullptr) throw std::runtime_error("no widget " + name);
    return *found;
  }
  EntryBox& Box(const std::string& name) { return Find<EntryBox>(name); }

  void Press(const std::string& key) { QTest::mouseClick(&Find<QToolButton>(key), Qt::LeftButton); }
  void Trigger(const std::string& menuItem) { Find<QAction>(menuItem).trigger(); }

  /// Puts the text into the box as if it was typed over what stands there.
  static void Fill(EntryBox& box, const QString& text) {
    box.setFocus();
    box.selectAll();
    box.insert(text);
  }
  void Type(const std::string& name, const QString& text) {
    EntryBox& box = Box(name);
    box.setFocus();
    box.selectAll();
    QTest::keyClicks(&box, text);
  }
  static void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
  }
  static std::string FocusName() {
    const QWidget* focus = QApplication::focusWidget();
    return focus == nullptr ? "" : focus->objectName().toStdString();
  }

 private:
  MainWindow& window_;
};

/// Shows the window at the size that the tests count on.
inline void OpenForTest(MainWindow& window) {
  window.Open();
  window.resize(1000, 700);
  window.activateWindow();
  EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
}

class WindowTest : public ::testing::Test, protected WindowHand {
 protected:
  WindowTest() : WindowHand(window_), window_(surroundings_.Get()) { OpenForTest(window_); }

  /// Counts the actions from here on: each makes one figure.
  void CountActions() { figures_ = Document().FigureCount(); }
  long ActionsTaken() { return Document().FigureCount() - figures_; }

  NullSurroundings surroundings_;
  MainWindow window_;
  long figures_ = 0;
};

}  // namespace pitchcraft::testing
