// What a window finds in the store of the last session, and what it leaves there for the next one.
#include <QScreen>
#include <QTemporaryDir>
#include <memory>

#include "../support/scratch_folder.h"
#include "platform/qt_store.h"
#include "shell/twips.h"
#include "storage/settings.h"
#include "window_test.h"

namespace pitchcraft::testing {
namespace {

// --- A place on a screen that may be gone
// -----------------------------------------------------------------------------------------------

struct StoredPlace {
  const char* name;
  // Twips from an edge of the screen: its left or right, its top or bottom.
  int left;
  bool fromRight;
  int top;
  bool fromBottom;
  bool comesBack;  ///< to the corner of the screen
};

void PrintTo(const StoredPlace& place, std::ostream* stream) { *stream << place.name; }

const StoredPlace kPlaces[] = {
    {"Inside", 1500, false, 900, false, false},
    {"Corner", 0, false, 0, false, false},
    {"JustReachableAtTheRight", -600, true, 900, false, false},
    {"JustReachableAtTheBottom", 1500, false, -600, true, false},
    {"NothingToTakeHoldOfAtTheRight", -300, true, 900, false, true},
    {"NothingToTakeHoldOfAtTheBottom", 1500, false, -300, true, true},
    {"ScreenAtTheRightIsGone", 9000, true, 900, false, true},
    {"ScreenBelowIsGone", 1500, false, 9000, true, true},
    {"ScreenAtTheLeftIsGone", -20000, false, 900, false, true},
    {"ScreenAboveIsGone", 1500, false, -20000, false, true},
    {"AlittleOverTheLeftEdge", -120, false, 900, false, false},
};

class PlaceTest : public ::testing::TestWithParam<StoredPlace> {};

TEST_P(PlaceTest, TheWindowCanBeTakenHoldOf) {
  const StoredPlace& stored = GetParam();
  const QRect screen = QGuiApplication::primaryScreen()->geometry();
  Settings settings;
  settings.MainLeft = stored.left + (stored.fromRight ? screen.width() * kTwipsPerPixel : 0);
  settings.MainTop = stored.top + (stored.fromBottom ? screen.height() * kTwipsPerPixel : 0);
  NullSurroundings surroundings;
  WriteSettings(settings, surroundings.store);
  MainWindow window(surroundings.Get());
  window.Open();
  QApplication::processEvents();
  const QPoint same(ToPixels(settings.MainLeft), ToPixels(settings.MainTop));
  EXPECT_EQ(window.pos(), stored.comesBack ? screen.topLeft() : same);
  window.close();
  const Settings next = ReadSettings(surroundings.store);
  EXPECT_EQ(QPoint(ToPixels(next.MainLeft), ToPixels(next.MainTop)), window.pos());
}

INSTANTIATE_TEST_SUITE_P(Places, PlaceTest, ::testing::ValuesIn(kPlaces),
                         [](const auto& place) { return std::string(place.param.name); });

// --- Two sessions
// -----------------------------------------------------------------------------------------------

/// A store of its own on the disk, opened anew for every session.
class SessionTest : public ::testing::Test {
 protected:
  struct Session : WindowHand {
    explicit Session(const std::string& file)
        : WindowHand(window), store(QString::fromStdString(file)), window({dialogs, store, {}}) {
      window.Open();
      EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;
    ~Session() { window.close(); }

    RecordingDialogs dialogs;
    QtStore store;
    MainWindow window;
  };

  std::unique_ptr<Session> Start() const { return std::make_unique<Session>(folder_.PathOf("settings.ini")); }

  ScratchFolder folder_;
};

TEST_F(SessionTest, PlaceAndSizeAreKept) {
  {
    const auto first = Start();
    first->window.move(75, 45);
    first->window.resize(760, 555);
    QApplication::processEvents();
  }
  const auto second = Start();
  EXPECT_EQ(second->window.pos(), QPoint(75, 45));
  EXPECT_EQ(second->window.size(), QSize(760, 555));
}

TEST_F(SessionTest, WindowOfALargerScreenFitsThisOne) {
  const QSize screen = QGuiApplication::primaryScreen()->size();
  {
    const auto first = Start();
    first->window.resize(screen.width() + 500, screen.height() - 100);
    QApplication::processEvents();
  }
  const auto second = Start();
  EXPECT_EQ(second->window.size(), QSize(screen.width(), screen.height() - 100));
  EXPECT_EQ(second->Document().window.Place.Width, screen.width() * kTwipsPerPixel);
  EXPECT_EQ(second->Find("StatusBar").width(), screen.width());
}

TEST_F(SessionTest, MaximizedWindowKeepsTheSizeBehindIt) {
  {
    const auto first = Start();
    first->window.resize(700, 520);
    QApplication::processEvents();
  }
  {
    const auto second = Start();
    second->window.showMaximized();
    QApplication::processEvents();
  }
  const auto third = Start();
  QApplication::processEvents();
  EXPECT_TRUE(third->window.isMaximized());
  EXPECT_EQ(ReadSettings(third->store).MainWidth, 700 * kTwipsPerPixel);
  EXPECT_EQ(ReadSettings(third->store).MainHeight, 520 * kTwipsPerPixel);
}

TEST_F(SessionTest, UnitsAndSlopeModeAreKept) {
  {
    const auto first = Start();
    EXPECT_EQ(first->Box("FtSpan(0)").Entry(), "12' 0\"");
    first->Trigger("mnuMetric");
    first->Trigger("mnuSettingsDegrees");
    first->Type("FtSpan(0)", "4200");
    first->Key(Qt::Key_Return);
  }
  {
    const auto second = Start();
    EXPECT_TRUE(second->Find<QAction>("mnuMetric").isChecked());
    EXPECT_TRUE(second->Find<QAction>("mnuSettingsDegrees").isChecked());
    EXPECT_TRUE(second->Find("cboDegrees(0)").isVisible());
    EXPECT_EQ(second->Box("FtSpan(0)").Entry(), "3600 mm") << "sizes belong to a project";
    second->Trigger("mnuImperial");
    second->Trigger("mnuSettingsRiseOverRun");
  }
  const auto third = Start();
  EXPECT_TRUE(third->Find<QAction>("mnuImperial").isChecked());
  EXPECT_TRUE(third->Find("LWSlope(0)").isVisible());
  EXPECT_EQ(third->Box("FtSpan(0)").Entry(), "12' 0\"");
}

TEST_F(SessionTest, ColorsAndIncrementsAreKept) {
  {
    const auto first = Start();
    Document& document = first->Document();
    document.preferences.CtlBackColor = 0x00102030;
    document.preferences.CtlForeColor = 0x0000FF00;
    document.preferences.LineColor = 0x00FF0000;
    document.preferences.BackColor = 0x00203040;
    document.preferences.Increment = 2.5;
    document.preferences.MetricIncrement = 25;
    document.preferences.LineWidth = 3;
    document.preferences.RotateFonts = true;
  }
  const auto second = Start();
  const QPalette palette = second->Box("FtSpan(0)").palette();
  EXPECT_EQ(palette.color(QPalette::Active, QPalette::Base), QColor(0x30, 0x20, 0x10));
  EXPECT_EQ(palette.color(QPalette::Active, QPalette::Text), QColor(Qt::green));
  const QImage picture = second->Find("Picture1").grab().toImage();
  EXPECT_EQ(picture.pixelColor(2, 2), QColor(0x40, 0x30, 0x20));
  EXPECT_EQ(second->Document().preferences.LineColor, 0x00FF0000U);
  EXPECT_EQ(second->Document().preferences.LineWidth, 3);
  EXPECT_TRUE(second->Document().preferences.RotateFonts);
  second->Box("FtSpan(0)").setFocus();
  second->Key(Qt::Key_Up);
  EXPECT_EQ(double(second->Document().design.Rafter1.Span), 146.5);
  second->Trigger("mnuMetric");
  second->Box("FtSpan(0)").setFocus();
  second->Key(Qt::Key_Up);
  EXPECT_EQ(double(second->Document().design.Rafter1.Span), 3625);
}

TEST_F(SessionTest, LayoutOptionsAreKept) {
  {
    const auto first = Start();
    first->Press("Hip");
    first->Trigger("mnuHipLayoutCornersFlush");
    first->Trigger("mnuHipLayoutJackMeasurement");
    EXPECT_TRUE(first->Document().design.menus.HipLayoutOverhangsEqual.Checked);
    first->Type("LWSlope(2).Left", "9");
    first->Key(Qt::Key_Return);
    first->Trigger("mnuHipLayoutOverhangsEqual");
  }
  const auto second = Start();
  const std::pair<const char*, bool> expected[] = {{"mnuHipLayoutCornersFlush", true},
                                                   {"mnuHipLayoutCorners", false},
                                                   {"mnuHipLayoutCenter", false},
                                                   {"mnuHipLayoutJackMeasurement", false},
                                                   {"mnuHipLayoutOverhangsEqual", false}};
  for (const auto& [item, checked] : expected) {
    EXPECT_EQ(second->Find<QAction>(item).isChecked(), checked) << item;
  }
}

TEST_F(SessionTest, RecentFilesAreKeptAndOpen) {
  const std::string barn = folder_.PathOf("barn.pcf");
  const std::string shed = folder_.PathOf("shed.pcf");
  {
    const auto first = Start();
    EXPECT_FALSE(first->Find<QAction>("mnuFileMRU(0)").isVisible());
    first->Type("FtSpan(0)", "15'");
    first->Key(Qt::Key_Return);
    EXPECT_TRUE(SaveProject(first->Document(), barn));
    first->Press("Shed");
    EXPECT_TRUE(SaveProject(first->Document(), shed));
  }
  const auto second = Start();
  EXPECT_TRUE(second->Find<QAction>("mnuFileMRU(0)").text().endsWith("Shed.pcf"));
  EXPECT_TRUE(second->Find<QAction>("mnuFileMRU(1)").text().endsWith("Barn.pcf"));
  EXPECT_FALSE(second->Find<QAction>("mnuFileMRU(2)").isVisible());
  second->Trigger("mnuFileMRU(1)");
  EXPECT_EQ(second->Box("FtSpan(0)").Entry(), "15' 0\"");
  EXPECT_EQ(second->Document().project.Name, "barn");
  EXPECT_TRUE(second->dialogs.messages.empty());
}

// --- Rubbish
// -----------------------------------------------------------------------------------------------

/// Every key holds the same text, until it is written.
class RubbishStore : public MemoryStore {
 public:
  explicit RubbishStore(std::string text) : text_(std::move(text)) {}
  std::optional<std::string> Get(const std::string& application, const std::string& section,
                                 const std::string& key) const override {
    ++asked;
    return MemoryStore::Get(application, section, key).value_or(text_);
  }

  mutable int asked = 0;

 private:
  std::string text_;
};

struct Rubbish {
  const char* name;
  std::string text;
};

void PrintTo(const Rubbish& rubbish, std::ostream* stream) { *stream << rubbish.name; }

class RubbishTest : public ::testing::TestWithParam<Rubbish> {};

TEST_P(RubbishTest, TheProgramStartsWorksAndLeavesSomethingBetter) {
  RubbishStore store(GetParam().text);
  RecordingDialogs dialogs;
  {
    MainWindow window({dialogs, store, {}});
    WindowHand hand(window);
    window.Open();
    QApplication::processEvents();
    EXPECT_GT(store.asked, 30);
    EXPECT_TRUE(window.isVisible());
    const QSize screen = window.screen()->size();
    EXPECT_LE(window.width(), std::max(screen.width(), window.minimumWidth()));
    EXPECT_LE(window.height(), std::max(screen.height(), window.minimumHeight()));
    window.grab();
    if (!hand.Document().design.menus.Imperial.Checked) hand.Trigger("mnuImperial");
    hand.Trigger("mnuSettingsRiseOverRun");
    hand.Type("FtSpan(0)", "150");
    hand.Key(Qt::Key_Return);
    EXPECT_EQ(double(hand.Document().design.Rafter1.Span), 150);
    hand.Press("Hip");
    EXPECT_EQ(hand.Document().design.RoofType, Roof::kHip);
    for (int place = 0; place < 4; ++place) OpenRecentProject(hand.Document(), place);
    window.close();
  }
  MainWindow next({dialogs, store, {}});
  next.Open();
  QApplication::processEvents();
  EXPECT_TRUE(next.isVisible());
  EXPECT_TRUE(!next.Document().design.Metric);
  EXPECT_TRUE(next.Document().design.menus.SettingsRiseOverRun.Checked);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, RubbishTest,
    ::testing::Values(Rubbish{"Empty", ""}, Rubbish{"Words", "rubbish"}, Rubbish{"Minus", "-1"},
                      Rubbish{"Undefined", "nan"}, Rubbish{"Infinite", "inf"}, Rubbish{"Huge", "1e308"},
                      Rubbish{"ManyDigits", std::string(400, '9')}, Rubbish{"LargestInteger", "2147483647"},
                      Rubbish{"SmallestInteger", "-2147483648"}, Rubbish{"BeyondIntegers", "4294967296"},
                      Rubbish{"Fraction", "0.0001"}, Rubbish{"One", "1"}, Rubbish{"Two", "2"},
                      Rubbish{"Large", "400000"}, Rubbish{"NoText", "\xFF\xFE\xC0"},
                      Rubbish{"Zeros", std::string(3, '\0')}, Rubbish{"Long", std::string(20000, 'x')},
                      Rubbish{"Lines", "[Settings]\r\nUnits=1\n"}, Rubbish{"Brackets", "%1[*]&&|\\"}),
    [](const auto& rubbish) { return std::string(rubbish.param.name); });

}  // namespace
}  // namespace pitchcraft::testing
