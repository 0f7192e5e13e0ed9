// Colours that can be told apart: contrast by the ratio of luminances, as the guidelines for accessible
// contents on the web define it.
#include <QLabel>
#include <optional>

#include "document/null_surroundings.h"
#include "shell/field_look.h"
#include "window_test.h"

namespace pitchcraft::testing {
namespace {

constexpr double kLeastForText = 4.5;
constexpr double kLeastForLines = 3;

/// A desktop of white on grey, as many people have it in the evening.
QPalette DarkDesktop() {
  QPalette dark(QColor(0x35, 0x35, 0x35), QColor(0x2B, 0x2B, 0x2B));
  dark.setColor(QPalette::Base, QColor(0x1E, 0x1E, 0x1E));
  dark.setColor(QPalette::Text, QColor(0xEE, 0xEE, 0xEE));
  dark.setColor(QPalette::WindowText, QColor(0xEE, 0xEE, 0xEE));
  dark.setColor(QPalette::ButtonText, QColor(0xEE, 0xEE, 0xEE));
  return dark;
}

TEST(Contrast, IsThatOfTheGuidelines) {
  EXPECT_NEAR(Contrast(Qt::black, Qt::white), 21, 1e-9);
  EXPECT_NEAR(Contrast(Qt::white, Qt::white), 1, 1e-9);
  EXPECT_NEAR(Contrast(QColor(0x77, 0x77, 0x77), Qt::white), 4.48, 0.005);
  EXPECT_NEAR(Contrast(Qt::blue, Qt::black), 2.44, 0.005);
}

class Colors : public ::testing::TestWithParam<const char*> {
 protected:
  Colors() : before_(QApplication::palette()) {
    if (GetParam() == std::string("Dark")) QApplication::setPalette(DarkDesktop());
    window_.emplace(surroundings_.Get());
    OpenForTest(*window_);
  }
  ~Colors() override {
    window_.reset();
    QApplication::setPalette(before_);
  }

  pitchcraft::Document& Document() { return window_->Document(); }
  static double Of(std::uint32_t one, std::uint32_t other) {
    return Contrast(ColorOf(one, QApplication::palette()), ColorOf(other, QApplication::palette()));
  }
  static double Of(const QWidget& part, QPalette::ColorRole text, QPalette::ColorRole ground) {
    const auto group = part.isEnabled() ? QPalette::Active : QPalette::Disabled;
    return Contrast(part.palette().color(group, text), part.palette().color(group, ground));
  }

  /// Every field that shows reads well: its text, what is selected in it, and the mark of the focus around
  /// it.
  void ExpectReadableFields() {
    int fields = 0;
    for (const EntryBox* box : window_->findChildren<EntryBox*>()) {
      if (!box->isVisible()) continue;
      ++fields;
      const std::string name = box->objectName().toStdString();
      EXPECT_GE(Of(*box, QPalette::Text, QPalette::Base), kLeastForText) << name;
      if (!box->isEnabled()) continue;
      EXPECT_GE(Of(*box, QPalette::HighlightedText, QPalette::Highlight), kLeastForText) << name;
      EXPECT_GE(Of(*box, QPalette::Highlight, QPalette::Base), kLeastForLines) << name;
    }
    EXPECT_GT(fields, 10);
  }

  const QPalette before_;
  NullSurroundings surroundings_;
  std::optional<MainWindow> window_;
};

TEST_P(Colors, OfTheDrawingStandOut) {
  const pitchcraft::Document& document = Document();
  EXPECT_GE(Of(document.preferences.LineColor, document.preferences.BackColor), kLeastForLines);
  EXPECT_GE(Of(document.preferences.DimColor, document.preferences.BackColor),
            kLeastForText);  // of its figures, too
  EXPECT_GE(Of(document.preferences.TextColor, document.preferences.BackColor), kLeastForText);
  // The rules of the product give these; the figures stand in docs/options.md.
  EXPECT_NEAR(Of(document.preferences.LineColor, document.preferences.BackColor), 21, 0.01);
  EXPECT_NEAR(Of(document.preferences.DimColor, document.preferences.BackColor), 5.25, 0.01);
  EXPECT_NEAR(Of(document.preferences.TextColor, document.preferences.BackColor), 19.56, 0.01);
}

TEST_P(Colors, OfFieldsStandOut) {
  EXPECT_NEAR(Of(Document().preferences.CtlForeColor, Document().preferences.CtlBackColor), 19.56, 0.01);
  EXPECT_NEAR(Of(Document().preferences.CtlCalcColor, Document().preferences.CtlBackColor), 5.25, 0.01);
  for (const char* roof : {"Gable", "Hip", "Bay", "Gambrel"}) {
    QTest::mouseClick(window_->findChild<QToolButton*>(roof), Qt::LeftButton);
    ExpectReadableFields();
  }
}

TEST_P(Colors, OfTheDesktopStandOutInFields) {
  window_.reset();
  surroundings_.store.Set("Pitchcraft", "Settings", "UseSystemColors", "True");
  window_.emplace(surroundings_.Get());
  OpenForTest(*window_);
  ASSERT_EQ(Document().preferences.CtlBackColor, kSystemWindowColor);
  ExpectReadableFields();
}

TEST_P(Colors, OfWhatIsSwitchedOffCanBeRead) {
  QTest::mouseClick(window_->findChild<QToolButton*>("Gable"), Qt::LeftButton);
  const auto* field = window_->findChild<EntryBox*>("FtKneewall(0)");
  const auto* caption = window_->findChild<QLabel*>("Label(0)");
  ASSERT_FALSE(field->isEnabled() || caption->isEnabled());
  EXPECT_GE(Of(*field, QPalette::Text, QPalette::Base), kLeastForText);
  EXPECT_GE(Of(*caption, QPalette::WindowText, QPalette::Window), kLeastForText);
  // And yet it looks switched off.
  const auto* on = window_->findChild<QLabel*>("Label(10)");
  EXPECT_LT(Of(*caption, QPalette::WindowText, QPalette::Window),
            0.7 * Of(*on, QPalette::WindowText, QPalette::Window));
}

TEST_P(Colors, OfAnEmptyBoxStandOut) {
  auto* box = window_->findChild<QCheckBox*>("chkKneewall(0)");
  ASSERT_TRUE(box->isVisible() && !box->isChecked());
  const QImage shot = box->grab().toImage();
  const QColor ground = shot.pixelColor(0, shot.height() - 1);
  double best = 1;
  for (int x = 0; x < shot.width(); ++x) {
    best = std::max(best, Contrast(shot.pixelColor(x, shot.height() / 2), ground));
  }
  EXPECT_GE(best, kLeastForLines);
}

// The evening comes while the program runs.
TEST_P(Colors, FollowADesktopThatChanges) {
  QApplication::setPalette(GetParam() == std::string("Dark") ? before_ : DarkDesktop());
  QApplication::processEvents();  // the news comes,
  QApplication::processEvents();  // and the window follows it
  ExpectReadableFields();
  const QPalette now = QApplication::palette();
  const auto* off = window_->findChild<EntryBox*>("FtKneewall(0)");
  ASSERT_FALSE(off->isEnabled());
  EXPECT_EQ(off->palette().color(QPalette::Disabled, QPalette::Base),
            now.color(QPalette::Active, QPalette::Window).darker(106));
  bool sawCaption = false;
  for (const QLabel* caption : window_->findChildren<QLabel*>()) {
    if (caption->text() != "Kneewall:") continue;
    sawCaption = true;
    EXPECT_EQ(caption->palette().color(QPalette::Active, QPalette::Window),
              now.color(QPalette::Active, QPalette::Window));
    EXPECT_GE(Of(*caption, QPalette::WindowText, QPalette::Window), kLeastForText);
  }
  EXPECT_TRUE(sawCaption);
}

INSTANTIATE_TEST_SUITE_P(Desktops, Colors, ::testing::Values("Light", "Dark"),
                         [](const auto& desktop) { return std::string(desktop.param); });

}  // namespace
}  // namespace pitchcraft::testing
