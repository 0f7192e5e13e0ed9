// A session in millimetres from start to end by hand, for every roof. The driver performs the same lines, and
// after each of them both hold the same state.
#include "../support/metric_roofs.h"
#include "../support/scratch_folder.h"
#include "cli/dump.h"
#include "cli/script.h"
#include "cli/script_line.h"
#include "core/number_text.h"
#include "window_test.h"

namespace pitchcraft::testing {
namespace {

/// Settings and dialogs of one of the two.
struct Side {
  std::ostringstream events;
  MemoryStore store;
  ScriptDialogs dialogs{events};

  Surroundings Get() { return {dialogs, store, {}}; }
};

/// Lines of a script, done with mouse and keyboard.
class ScriptHand : public WindowHand {
 public:
  ScriptHand(MainWindow& window, ScriptDialogs& dialogs) : WindowHand(window), dialogs_(dialogs) {}

  void Perform(std::string_view line) {
    const std::string verb(TakeWord(line));
    if (verb == "press") return Press(std::string(Trimmed(line)));
    if (verb == "click") return Choose(std::string(Trimmed(line)));
    if (verb == "answer") return dialogs_.answers.emplace_back(std::string(line)), void();
    const std::string name(TakeWord(line));
    const std::string text(Trimmed(line));
    if (verb == "enter") return Enter(name, text);
    if (verb == "pick") return PickRow(name, text);
    if (verb == "page") return TurnTo(name, std::stoi(text));
    ASSERT_EQ(verb, "check");
    auto& box = Find<QCheckBox>(name);
    EXPECT_TRUE(box.isVisible()) << name;
    if (box.isChecked() != (text == "on")) QTest::mouseClick(&box, Qt::LeftButton);
  }

 private:
  void Choose(const std::string& item) {
    EXPECT_TRUE(Find<QAction>(item).isEnabled()) << item;
    Trigger(item);
  }
  void Put(const std::string& box, const std::string& text) {
    EXPECT_TRUE(Box(box).isVisible() && Box(box).isEnabled()) << box;
    Type(box, QString::fromStdString(text));
  }
  void Enter(const std::string& name, const std::string& text) {
    const std::size_t bar = text.find('|');
    if (bar != std::string::npos) {
      Put(name + ".Left", std::string(Trimmed(text.substr(0, bar))));
      Put(name + ".Right", std::string(Trimmed(text.substr(bar + 1))));
    } else {
      Put(name.starts_with("LW") ? name + ".Left" : name, text);
    }
    Key(Qt::Key_Return);
  }
  void PickRow(const std::string& name, const std::string& caption) {
    Box(name + ".Text").setFocus();
    Key(Qt::Key_F4);
    auto* list = qobject_cast<QListWidget*>(QApplication::activePopupWidget());
    ASSERT_NE(list, nullptr) << name;
    const auto rows = list->findItems(QString::fromStdString(caption), Qt::MatchExactly);
    ASSERT_EQ(rows.size(), 1) << caption;
    list->setCurrentItem(rows.first());
    QTest::keyClick(list, Qt::Key_Return);
  }
  void TurnTo(const std::string& tabs, int page) {
    auto& bar = Find<QTabBar>(tabs);
    EXPECT_TRUE(bar.isVisible()) << tabs;
    QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.tabRect(page).center());
    EXPECT_EQ(bar.currentIndex(), page) << tabs;
  }

  ScriptDialogs& dialogs_;
};

class MetricWindow : public ::testing::TestWithParam<MetricRoof> {
 protected:
  MetricWindow() {
    OpenForTest(window_);
    driven_.Form_Load();
    driven_.Window.Width = window_.width() * 15;
    driven_.Window.Height = window_.height() * 15;
    driven_.Form_Resize();
    Compare("start");
  }

  void Both(const std::string& line) {
    hand_.Perform(line);
    script_.RunLine(line);
    Compare(line);
  }
  void Both(const std::vector<std::string>& lines) {
    for (const std::string& line : lines) Both(line);
  }

  // The status tells of the pointer and the focus, which a script has not.
  void Compare(const std::string& where) {
    for (const std::string& member : DumpMembers()) {
      if (member == "status") continue;
      const Json mine = DumpOf(hand_.Document(), {member});
      const Json theirs = DumpOf(driven_, {member});
      EXPECT_EQ(mine, theirs) << where << "\n" << Json::diff(mine, theirs).dump(1);
    }
    EXPECT_EQ(byHand_.events.str(), byScript_.events.str()) << where;
  }

  /// Every box shows what its control holds, and lengths in millimetres.
  void ExpectMillimetres() {
    const Json sheet = DumpSheet(hand_.Document().sheet);
    int lengths = 0;
    for (const EntryBox* box : window_.findChildren<EntryBox*>()) {
      if (!box->isVisible()) continue;
      const std::string name = box->objectName().toStdString();
      const std::size_t dot = name.find('.');
      const std::string side = dot == std::string::npos ? "" : name.substr(dot + 1);
      const Json& control = sheet[name.substr(0, dot)];
      EXPECT_EQ(box->Entry(), control[side == "Text" ? "Text" : side + "Text"]) << name;
      // Slopes and angles are plain numbers, and so are the rows of the upper fascia.
      if (name.starts_with("LWSlope") || name == "FtBayAngle" || name.starts_with("FTUpper")) continue;
      EXPECT_TRUE(box->text().endsWith(" mm")) << name << " " << box->Entry();
      ++lengths;
    }
    EXPECT_GT(lengths, hand_.Document().CurrentTab == 0 ? 6 : -1);
  }

  Side byHand_;
  Side byScript_;
  MainWindow window_{byHand_.Get()};
  ScriptHand hand_{window_, byHand_.dialogs};
  frmDocument driven_{byScript_.Get()};
  Script script_{driven_, byScript_.dialogs, byScript_.events,
                 [](const frmDocument&, const std::string&) { return std::nullopt; }};
};

TEST_P(MetricWindow, HandAndDriverEndInTheSameState) {
  const ScratchFolder folder;
  const std::string file = folder.PathOf("barn.pcf");
  const MetricRoof& roof = GetParam();
  Both({"press " + std::string(roof.button), "click mnuMetric", "press " + std::string(roof.button)});
  Both(EntryLines(roof, true));
  ExpectMillimetres();
  for (int page = PageCount(roof) - 1; page >= 0; --page) {
    Both(PageLine(page));
    if (hand_.Document().sheet.cboSpacing.Visible) Both("pick cboSpacing 600 mm");
    ExpectMillimetres();
  }
  Both({"answer " + file, "click mnufileSaveAs", "answer Shed", "click mnuFileNew"});
  EXPECT_EQ(hand_.Document().RoofType, roof::kGable);
  Both({"answer " + file, "click mnuFileOpen"});
  EXPECT_EQ(hand_.Document().RoofType, roof.code);
  EXPECT_EQ(window_.windowTitle().toStdString(), "Pitchcraft - [" + MRU::LongDirFix(file, 60) + "]");
  ExpectMillimetres();
  Both("click mnuImperial");
  EXPECT_EQ(hand_.Box("FtSpan(0)").Entry(), "12' 0\"");
  EXPECT_EQ(byHand_.events.str().find("\"message\""), std::string::npos) << byHand_.events.str();
  EXPECT_EQ(byHand_.events.str().find("\"error\""), std::string::npos) << byHand_.events.str();
}

INSTANTIATE_TEST_SUITE_P(Roofs, MetricWindow, ::testing::ValuesIn(MetricRoofs()),
                         NameOfRoof<::testing::TestParamInfo<MetricRoof>>);

}  // namespace
}  // namespace pitchcraft::testing
