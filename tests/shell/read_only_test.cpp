// Fields that take no entry: they look switched off, and are still read, reached and copied from.
#include <QAbstractButton>
#include <QAccessible>
#include <QClipboard>

#include "design/questions.h"
#include "window_test.h"

namespace pitchcraft::testing {
namespace {

class ReadOnlyField : public WindowTest {
 protected:
  /// The look of the fascia's field where a square cut has switched it off.
  struct Look {
    QColor text;
    QColor ground;
    bool operator==(const Look&) const = default;
  };
  static Look LookOf(const EntryBox& box) {
    const auto group = box.isEnabled() ? QPalette::Active : QPalette::Disabled;
    return {box.palette().color(group, QPalette::Text), box.palette().color(group, QPalette::Base)};
  }
  Look SwitchedOffLook() {
    EntryBox& kneewall = Box("FtKneewall(0)");
    EXPECT_FALSE(kneewall.isEnabled());
    return LookOf(kneewall);
  }
  bool TakesTyping(const std::string& name) {
    const QAccessible::State state = QAccessible::queryAccessibleInterface(&Box(name))->state();
    EXPECT_EQ(state.readOnly, Box(name).isReadOnly()) << name;
    EXPECT_FALSE(state.disabled) << name << " can still be read";
    return !state.readOnly;
  }
  /// The list's button of a field.
  QAbstractButton& Arrow(const std::string& field) { return *Find(field).findChild<QAbstractButton*>(); }
};

TEST_F(ReadOnlyField, LooksAsOneThatIsSwitchedOff) {
  const Look off = SwitchedOffLook();
  Press("Square");
  ASSERT_FALSE(Box("LWFascia(0).Right").isEnabled());
  EXPECT_EQ(LookOf(Box("LWFascia(0).Right")), off);
  for (const char* name : {"FtHeel(0)", "FtSeat(0)"}) {
    EXPECT_FALSE(TakesTyping(name)) << name;
    EXPECT_EQ(LookOf(Box(name)), off) << name;
    EXPECT_TRUE(Box(name).isEnabled()) << name;
  }
  EXPECT_TRUE(TakesTyping("FtSpan(0)"));
  EXPECT_NE(LookOf(Box("FtSpan(0)")), off);
}

TEST_F(ReadOnlyField, IsReachedAndCopiedFromButNotChanged) {
  EntryBox& heel = Box("FtHeel(0)");
  const std::string state = StateOf(Document());
  const QString text = heel.text();
  ASSERT_FALSE(text.isEmpty());
  EXPECT_EQ(heel.focusPolicy() & Qt::StrongFocus, Qt::StrongFocus);
  QTest::mouseClick(&heel, Qt::LeftButton);
  EXPECT_EQ(FocusName(), "FtHeel(0)");
  QApplication::clipboard()->clear();
  Key(Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(heel.selectedText(), text);
  Key(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text(), text);
  QTest::keyClicks(&heel, "9");
  Key(Qt::Key_V, Qt::ControlModifier);
  Key(Qt::Key_Delete);
  Key(Qt::Key_Return);
  Key(Qt::Key_Tab);
  EXPECT_EQ(heel.text(), text);
  EXPECT_EQ(StateOf(Document()), state);
}

TEST_F(ReadOnlyField, ComesBackWithItsLock) {
  EntryBox& heel = Box("FtHeel(0)");
  const Look off = SwitchedOffLook();
  QTest::mouseClick(&Find("chkHeel(0)"), Qt::LeftButton);
  EXPECT_TRUE(TakesTyping("FtHeel(0)"));
  EXPECT_NE(LookOf(heel), off);
  EXPECT_EQ(FocusName(), "FtHeel(0)");
  EXPECT_EQ(heel.selectedText(), heel.text());
  QTest::keyClicks(&heel, "4.5");
  Key(Qt::Key_Return);
  EXPECT_EQ(double(Document().design.Rafter1.Heel), 4.5);
  QTest::mouseClick(&Find("chkSeat(0)"), Qt::LeftButton);
  EXPECT_FALSE(TakesTyping("FtHeel(0)"));
  EXPECT_EQ(LookOf(heel), off);
  EXPECT_TRUE(TakesTyping("FtSeat(0)"));
}

TEST_F(ReadOnlyField, OfARegularGambrelAndNotOfACustomOne) {
  const Look off = SwitchedOffLook();
  Press("Gambrel");
  ASSERT_EQ(Document().design.Gambrel, GambrelKind::kRegular);
  const char* const kFixed[] = {"LWSlope(0).Left", "LWSlope(0).Right", "LWSlope(2).Left",
                                "FtSpan(2)",       "FtRidge(0)",       "FtRidge(1)"};
  for (const char* name : kFixed) {
    EXPECT_FALSE(TakesTyping(name)) << name;
    EXPECT_EQ(LookOf(Box(name)), off) << name;
  }
  EXPECT_FALSE(Arrow("LWSlope(0)").isEnabled());
  EXPECT_TRUE(TakesTyping("FtSpan(0)"));
  Trigger("mnuSettingsDegrees");
  EXPECT_FALSE(TakesTyping("cboDegrees(0).Text"));
  EXPECT_FALSE(Arrow("cboDegrees(0)").isEnabled());
  Box("cboDegrees(0).Text").setFocus();
  Key(Qt::Key_F4);
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
  Trigger("mnuSettingsRiseOverRun");
  Trigger("mnuGambrelCustom");
  for (const char* name : kFixed) {
    EXPECT_TRUE(TakesTyping(name)) << name;
    EXPECT_NE(LookOf(Box(name)), off) << name;
  }
  EXPECT_TRUE(Arrow("LWSlope(0)").isEnabled());
}

TEST_F(ReadOnlyField, OfASolvedBayDimensionUntilTheReset) {
  const Look off = SwitchedOffLook();
  Press("Bay");
  for (const auto& [name, text] : {std::pair("FtProjection", "30"), {"FtFace", "60"}, {"FtBack", "120"}}) {
    Type(name, text);
    Key(Qt::Key_Return);
  }
  ASSERT_TRUE(BayIsComplete(Document().design));
  EXPECT_FALSE(TakesTyping("FtBayAngle"));
  EXPECT_EQ(LookOf(Box("FtBayAngle")), off);
  QTest::mouseClick(&Find("Command1"), Qt::LeftButton);
  EXPECT_TRUE(TakesTyping("FtBayAngle"));
  EXPECT_NE(LookOf(Box("FtBayAngle")), off);
}

// The design knows nothing of the look.
TEST_F(ReadOnlyField, EveryFieldThatShowsLooksAsItIs) {
  for (const char* roof : {"Gable", "Shed", "Dual", "Hip", "Valley", "Unequal Span Valley", "Bay",
                           "Dutch Hip", "Blind Valley", "Octagon", "Gambrel"}) {
    Press(roof);
    int fields = 0;
    for (const AnyControl& any : Document().design.sheet.Controls()) {
      auto* const* field = std::get_if<MeasureControl*>(&any);
      if (field == nullptr || !Box((*field)->Name).isVisible() || !(*field)->Enabled) continue;
      ++fields;
      EXPECT_EQ(TakesTyping((*field)->Name), TakesEntry(Document().design, **field))
          << roof << ", " << (*field)->Name;
    }
    EXPECT_GE(fields, 3) << roof;
  }
}

}  // namespace
}  // namespace pitchcraft::testing
