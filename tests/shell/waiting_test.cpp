// Entries that wait for the next calculation: the clock in their field, and the key that calculates.
#include <QAccessible>
#include <QLabel>
#include <QMenu>

#include "design/questions.h"
#include "shell/field_look.h"
#include "window_test.h"

namespace pitchcraft::testing {
namespace {

const QString kTip = "Taken with the next calculation; F9 calculates now";

class WaitingEntry : public WindowTest {
 protected:
  WaitingEntry() { Press("Hip"); }

  void Enter(const std::string& name, const QString& text) {
    Type(name, text);
    Key(Qt::Key_Return);
  }
  QImage Shot(const std::string& name) { return Box(name).grab().toImage(); }
  /// The right end of a field, where the clock stands.
  static QImage EndOf(const QImage& shot) { return shot.copy(shot.width() - 18, 3, 15, shot.height() - 6); }
  static int PixelsOf(const QImage& shot, const QColor& color) {
    int count = 0;
    for (int y = 0; y < shot.height(); ++y) {
      for (int x = 0; x < shot.width(); ++x) count += Contrast(shot.pixelColor(x, y), color) < 1.3 ? 1 : 0;
    }
    return count;
  }
};

TEST_F(WaitingEntry, ShowsAClockUntilItIsTaken) {
  Box("FtSpan(0)").setFocus();
  const QImage before = EndOf(Shot("FtOverhang(0)"));
  const QColor amber = WaitingColor(Box("FtOverhang(0)").palette().color(QPalette::Active, QPalette::Base));
  ASSERT_EQ(PixelsOf(before, amber), 0);
  Type("FtOverhang(0)", "30");
  EXPECT_FALSE(Box("FtOverhang(0)").Waits()) << "it is still being typed";
  Key(Qt::Key_Tab);
  ASSERT_THAT(Waiting(Document().design), ::testing::Contains("FtOverhang(0)"));
  EXPECT_TRUE(Box("FtOverhang(0)").Waits());
  EXPECT_GT(PixelsOf(EndOf(Shot("FtOverhang(0)")), amber), 8);
  EXPECT_EQ(Box("FtOverhang(0)").Entry(), "2' 6\"");
  Enter("LWSlope(0).Left", "7");
  EXPECT_FALSE(Box("FtOverhang(0)").Waits());
  Box("FtSpan(0)").setFocus();
  EXPECT_EQ(EndOf(Shot("FtOverhang(0)")), before);
}

TEST_F(WaitingEntry, SaysSoToAPointerAndToAssistivePrograms) {
  EntryBox& overhang = Box("FtOverhang(0)");
  const QString tip = overhang.toolTip();
  const QString description = overhang.accessibleDescription();
  Enter("FtOverhang(0)", "30");
  EXPECT_EQ(overhang.toolTip(), kTip);
  const QAccessibleInterface* part = QAccessible::queryAccessibleInterface(&overhang);
  EXPECT_EQ(part->text(QAccessible::Description), kTip);
  EXPECT_EQ(Document().window.Status, kTip.toStdString());
  Key(Qt::Key_F9);
  EXPECT_EQ(overhang.toolTip(), tip);
  EXPECT_EQ(part->text(QAccessible::Description), description);
  EXPECT_NE(Document().window.Status, kTip.toStdString()) << "it waits no more";
}

TEST_F(WaitingEntry, OfASecondRunIsMarkedToo) {
  Press("Unequal Span Valley");
  Enter("FtSpan(2)", "9'");
  EXPECT_TRUE(Box("FtSpan(2)").Waits());
  EXPECT_FALSE(Box("FtSpan(0)").Waits());
  Key(Qt::Key_F9);
  EXPECT_FALSE(Box("FtSpan(2)").Waits());
  EXPECT_EQ(double(Document().design.Calculated2.Span), 108);
}

TEST_F(WaitingEntry, LeavesItsTextReadableBesideTheClock) {
  EntryBox& overhang = Box("FtOverhang(0)");
  const int all = overhang.textMargins().right();
  Enter("FtOverhang(0)", "30 15/16");
  EXPECT_GE(overhang.textMargins().right(), all + 10);
  const QRect inside = overhang.contentsRect().marginsRemoved(overhang.textMargins());
  EXPECT_LE(overhang.fontMetrics().horizontalAdvance(overhang.text()), inside.width());
}

TEST(WaitingColor, IsSeenOnAnyField) {
  for (const QColor& ground : {QColor(Qt::white), QColor(Qt::black), QColor(0x1E, 0x1F, 0x22),
                               QColor(0x80, 0x80, 0x80), QColor(0xEF, 0xEF, 0xEF)}) {
    EXPECT_GE(Contrast(WaitingColor(ground), ground), 3) << ground.name().toStdString();
  }
}

TEST_F(WaitingEntry, F9TakesWhatIsBeingTypedAndCalculates) {
  Type("FtOverhang(0)", "30");
  ASSERT_EQ(FocusName(), "FtOverhang(0)");
  Key(Qt::Key_F9);
  EXPECT_EQ(double(Document().design.Calculated1.Overhang), 30);
  EXPECT_TRUE(Waiting(Document().design).empty());
  EXPECT_EQ(FocusName(), "FtOverhang(0)");
  EXPECT_FALSE(Box("FtOverhang(0)").Waits());
}

TEST_F(WaitingEntry, F9WorksOnEveryRoofAndWhereverTheFocusIs) {
  for (const char* roof : {"Gable", "Shed", "Dual", "Hip", "Valley", "Unequal Span Valley", "Bay",
                           "Dutch Hip", "Blind Valley", "Octagon", "Gambrel"}) {
    Press(roof);
    // A bay is calculated once its dimensions are known.
    if (Document().design.RoofType == Roof::kBay) {
      for (const auto& [name, text] :
           {std::pair("FtProjection", "30"), {"FtFace", "60"}, {"FtBack", "120"}}) {
        Enter(name, text);
      }
    }
    for (const char* place : {"cboType", "Picture1"}) {
      Find(place).setFocus();
      Design& design = Document().design;
      design.Rafter1.Overhang = design.Rafter1.Overhang + 1;
      ASSERT_NE(double(design.Calculated1.Overhang), double(design.Rafter1.Overhang)) << roof;
      Key(Qt::Key_F9);
      EXPECT_EQ(double(design.Calculated1.Overhang), double(design.Rafter1.Overhang)) << roof << place;
      EXPECT_TRUE(Waiting(design).empty()) << roof << ", " << place;
    }
  }
}

TEST_F(WaitingEntry, TheSettingsMenuCalculatesToo) {
  Enter("FtOverhang(0)", "30");
  QAction& calculate = Find<QAction>("CalculateNow");
  EXPECT_TRUE(Find<QMenu>("mnuSettings").actions().contains(&calculate));
  EXPECT_EQ(calculate.shortcut(), QKeySequence(Qt::Key_F9));
  EXPECT_EQ(Document().design.menus.Find("CalculateNow"), nullptr) << "it is the window's own";
  calculate.hover();
  EXPECT_FALSE(Find<QLabel>("StatusBar").text().isEmpty());
  calculate.trigger();
  EXPECT_EQ(double(Document().design.Calculated1.Overhang), 30);
}

}  // namespace
}  // namespace pitchcraft::testing
