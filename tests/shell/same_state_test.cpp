// The same entries by hand and through the actions end in the same state; absurd ones end in no disaster.
#include "window_test.h"

namespace pitchcraft::testing {
namespace {

class SameState : public WindowTest {
 protected:
  SameState() : other_(otherSurroundings_.Get()), actions_(other_) {
    Start(other_);
    other_.window.Place.Width = window_.width() * 15;
    other_.window.Place.Height = window_.height() * 15;
    FollowSize(other_);
  }

  void Enter(const std::string& box, const std::string& control, const char* text) {
    Type(box, text);
    Key(Qt::Key_Return);
    actions_.Enter(control, text);
  }
  void Leave(const std::string& box, const std::string& control, const char* text) {
    Type(box, text);
    Find("VSTab(0)").setFocus();
    actions_.Type(control, text);
  }
  void PressBoth(const char* key) {
    Press(key);
    actions_.Press(key);
  }
  void TriggerBoth(const char* item) {
    Trigger(item);
    actions_.Click(item);
  }
  void Compare(const char* where) {
    const std::string mine = StateOf(Document());
    const std::string theirs = StateOf(other_);
    if (mine == theirs) return;
    std::istringstream left(mine);
    std::istringstream right(theirs);
    std::string a;
    std::string b;
    while (std::getline(left, a) && std::getline(right, b)) {
      if (a != b) ADD_FAILURE() << where << ": window " << a << ", actions " << b;
    }
  }

  NullSurroundings otherSurroundings_;
  pitchcraft::Document other_;
  Actions actions_;
};

TEST_F(SameState, AtTheStart) { Compare("start"); }

TEST_F(SameState, AfterAnEveningsWork) {
  Enter("LWSlope(0).Left", "LWSlope(0)", "6");
  Compare("slope");
  Enter("FtSpan(0)", "FtSpan(0)", "13' 7 3/16\"");
  Leave("FtOverhang(0)", "FtOverhang(0)", "1' 4");
  Compare("lengths");
  QTest::mouseClick(&Find("chkHeel(0)"), Qt::LeftButton);
  actions_.Check("chkHeel(0)", true);
  Leave("FtHeel(0)", "FtHeel(0)", "4.5");
  Compare("heel");
  QTest::mouseClick(&Find("chkKneewall(0)"), Qt::LeftButton);
  actions_.Check("chkKneewall(0)", true);
  Enter("FtKneewall(0)", "FtKneewall(0)", "3'");
  Compare("kneewall");
  PressBoth("Square");
  PressBoth("Hip");
  Compare("hip");
  Enter("LWSlope(2).Left", "LWSlope(2)", "9");
  Compare("bastard hip");
  Find<QTabBar>("VSTab(0)").setCurrentIndex(2);
  actions_.Page("VSTab(0)", 2);
  Compare("page");
  PressBoth("Valley");
  Leave("LWHipVal.Left", "LWHipVal", "3");
  Compare("valley");
  TriggerBoth("mnuSettingsDegrees");
  Leave("cboDegrees(0).Text", "cboDegrees(0)", "33.7");
  Compare("degrees");
  PressBoth("Shed");
  QTest::mousePress(&Find("Spin(0)"), Qt::LeftButton, {}, QPoint(4, 3));
  QTest::mouseRelease(&Find("Spin(0)"), Qt::LeftButton);
  actions_.Spin("Spin(0)", true);
  Compare("spin");
  TriggerBoth("mnuMetric");
  Enter("FtSpan(0)", "FtSpan(0)", "4 m");
  Compare("metric");
  PressBoth("Gambrel");
  Enter("FtSpan(0)", "FtSpan(0)", "6000");
  Compare("gambrel");
}

class BadInput : public WindowTest, public ::testing::WithParamInterface<const char*> {};

TEST_P(BadInput, IsSurvivedByEveryField) {
  Press(GetParam());
  const QStringList texts{QString(10000, '9'),
                          QString(10000, 'x'),
                          "nan",
                          "1/0",
                          "",
                          "-5",
                          "0",
                          "1e30",
                          "1e-30",
                          "|",
                          "%",
                          "%%|",
                          QString::fromUtf8("\xD9\xA3\xE2\x88\x9E\xF0\x9F\x8F\xA0\xCC\x81 e\xCC\x81"),
                          QString(QChar(0)) + "6\t\n"};
  for (EntryBox* box : window_.findChildren<EntryBox*>()) {
    for (const QString& text : texts) {
      if (!box->isVisible() || !box->isEnabled()) continue;
      Fill(*box, text);
      QTest::keyClick(box, Qt::Key_Return);
      Fill(*box, text);
      QTest::keyClick(box, Qt::Key_Tab);
    }
  }
  QApplication::processEvents();
  window_.grab();
  // A plain entry works afterwards as if nothing had been.
  Press("Gable");
  Type("FtSpan(0)", "144");
  Key(Qt::Key_Return);
  EXPECT_EQ(double(Document().design.Rafter1.Span), 144);
}

INSTANTIATE_TEST_SUITE_P(Roofs, BadInput,
                         ::testing::Values("Gable", "Shed", "Hip", "Valley", "Bay", "Gambrel"),
                         [](const auto& roof) { return std::string(roof.param); });

}  // namespace
}  // namespace pitchcraft::testing
