#include "script_hand.h"
#include "../support/document_api.h"

#include <QAbstractItemView>

#include "core/number_text.h"
#include "session/script_line.h"
#include "shell/twips.h"

namespace pitchcraft::testing {
namespace {

/// A dimension that was calculated takes no typing. The driver commits it all the same, and hears again what
/// it was told before; a hand commits nothing.
std::string WithoutRepeats(const std::string& events) {
  std::istringstream lines(events);
  std::string said;
  std::string last;
  for (std::string line; std::getline(lines, line); last = line) {
    if (line != last) said += line + "\n";
  }
  return said;
}

}  // namespace

// --- The hand
// -----------------------------------------------------------------------------------------------------

void ScriptHand::Perform(std::string_view line) {
  const std::string verb(TakeWord(line));
  const std::string rest(Trimmed(line));
  if (verb == "press") return Press(rest);
  if (verb == "click") return Click(rest);
  if (verb == "answer") return dialogs_.answers.emplace_back(std::string(line)), void();
  if (verb == "size") return Resize(line);
  if (!PerformOnName(verb, line)) ADD_FAILURE() << "no hand can " << verb;
}

bool ScriptHand::PerformOnName(const std::string& verb, std::string_view rest) {
  const std::string name(TakeWord(rest));
  const std::string text(Trimmed(rest));
  if (verb == "enter" || verb == "type") {
    PutIn(name, text);
    verb == "enter" ? Key(Qt::Key_Return) : Find("VSTab(0)").setFocus(Qt::MouseFocusReason);
  } else if (verb == "pick") {
    PickRow(name, text);
  } else if (verb == "page") {
    TurnTo(name, std::stoi(text));
  } else if (verb == "check") {
    Tick(name, text == "on");
  } else {
    return false;
  }
  return true;
}

void ScriptHand::Click(const std::string& name) {
  if (Document().design.menus.Find(name) == nullptr) {
    auto& button = Find<QAbstractButton>(name);
    EXPECT_TRUE(button.isVisible() && button.isEnabled()) << name;
    return QTest::mouseClick(&button, Qt::LeftButton);
  }
  EXPECT_TRUE(Find<QAction>(name).isEnabled()) << name;
  Trigger(name);
}

void ScriptHand::Put(const std::string& box, const std::string& text) {
  EXPECT_TRUE(Box(box).isVisible() && Box(box).isEnabled()) << box;
  Type(box, QString::fromStdString(text));
}

void ScriptHand::PutIn(const std::string& name, const std::string& text) {
  const std::size_t bar = text.find('|');
  if (bar != std::string::npos) {
    Put(name + ".Left", std::string(Trimmed(text.substr(0, bar))));
    Put(name + ".Right", std::string(Trimmed(text.substr(bar + 1))));
  } else {
    Put(name.starts_with("LW") ? name + ".Left" : name, text);
  }
}

void ScriptHand::PickRow(const std::string& name, const std::string& caption) {
  auto* choice = window_.findChild<QComboBox*>(QString::fromStdString(name));
  if (choice != nullptr) {
    EXPECT_TRUE(choice->isVisible() && choice->isEnabled()) << name;
    choice->setFocus();
    QTest::keyClick(choice, Qt::Key_F4);
  } else {
    Box(name + ".Text").setFocus();
    Key(Qt::Key_F4);
  }
  auto* list = choice != nullptr ? choice->view()
                                 : qobject_cast<QAbstractItemView*>(QApplication::activePopupWidget());
  ASSERT_NE(list, nullptr) << name;
  ASSERT_TRUE(list->isVisible()) << name;
  const auto rows = list->model()->match(list->model()->index(0, 0), Qt::DisplayRole,
                                         QString::fromStdString(caption), -1, Qt::MatchExactly);
  ASSERT_EQ(rows.size(), 1) << caption;
  list->setCurrentIndex(rows.first());
  QTest::keyClick(list, Qt::Key_Return);
}

void ScriptHand::Tick(const std::string& name, bool on) {
  auto& box = Find<QCheckBox>(name);
  EXPECT_TRUE(box.isVisible()) << name;
  if (box.isChecked() != on) QTest::mouseClick(&box, Qt::LeftButton);
}

void ScriptHand::TurnTo(const std::string& tabs, int page) {
  auto& bar = Find<QTabBar>(tabs);
  EXPECT_TRUE(bar.isVisible()) << tabs;
  QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.tabRect(page).center());
  EXPECT_EQ(bar.currentIndex(), page) << tabs;
}

void ScriptHand::Resize(std::string_view size) {
  int width = 0;
  int height = 0;
  EXPECT_TRUE(ReadNumber(TakeWord(size), width) && ReadNumber(Trimmed(size), height)) << size;
  window_.resize(ToPixels(width), ToPixels(height));
  QApplication::processEvents();
}

// --- Both
// ---------------------------------------------------------------------------------------------------------

HandAndDriver::HandAndDriver() {
  OpenForTest(window);
  Start(driven);
  driven.window.Place.Width = window.width() * kTwipsPerPixel;
  driven.window.Place.Height = window.height() * kTwipsPerPixel;
  FollowSize(driven);
  Compare("start");
}

void HandAndDriver::Perform(const std::string& line) {
  hand.Perform(line);
  script_.RunLine(line);
}

void HandAndDriver::Compare(const std::string& where) {
  for (const std::string& member : DumpMembers()) {
    if (member == "status") continue;
    const Json mine = DumpOf(hand.Document(), {member});
    const Json theirs = DumpOf(driven, {member});
    EXPECT_EQ(mine, theirs) << where << "\n" << Json::diff(mine, theirs).dump(1);
  }
  EXPECT_EQ(WithoutRepeats(byHand.events.str()), WithoutRepeats(byScript.events.str())) << where;
}

}  // namespace pitchcraft::testing
