// Nothing in the window is cut off or covers something else: each roof, each page, small and large, in the
// letters of any desktop.
#include "../support/faces.h"
#include "../support/legible_words.h"
#include "roofs/roof_types.h"
#include "window_test.h"

namespace pitchcraft::testing {
namespace {

struct Case {
  Face face;
  std::string sizeName;
  QSize size;  ///< never below the least
};

void PrintTo(const Case& row, std::ostream* out) { *out << row.face.name << row.sizeName; }

std::vector<Case> AllCases() {
  std::vector<Case> cases;
  for (const Face& face : AllFaces()) {
    cases.push_back({face, "Smallest", {1, 1}});
    cases.push_back({face, "Common", {1280, 720}});
    cases.push_back({face, "Large", {1920, 1080}});
  }
  return cases;
}

class LegibleWindow : public ::testing::WithParamInterface<Case>, WithFace, public WindowTest {
 protected:
  LegibleWindow() : WithFace(GetParam().face) {
    window_.resize(GetParam().size);
    QApplication::processEvents();
  }

  /// Everything that stands by itself and shows: a field of two boxes counts as one.
  std::vector<QWidget*> ShownParts() {
    std::vector<QWidget*> parts;
    for (const char* host : {"Sheet", "TabStrip", "Toolbar1", "tbToolBar"}) {
      for (QObject* child : Find(host).children()) {
        auto* widget = qobject_cast<QWidget*>(child);
        if (widget != nullptr && widget->isVisible()) parts.push_back(widget);
      }
    }
    return parts;
  }

  void ExpectLegible(const std::string& where) {
    ExpectWordsFit(window_, where);
    const std::vector<QWidget*> parts = ShownParts();
    EXPECT_GE(parts.size(), 1U) << where;
    for (const QWidget* part : parts) {
      const std::string name = part->objectName().toStdString();
      EXPECT_TRUE(part->parentWidget()->rect().contains(part->geometry()))
          << where << ": " << name << " reaches out of its place";
      for (const QWidget* other : parts) {
        if (other == part || other->parentWidget() != part->parentWidget()) continue;
        EXPECT_FALSE(part->geometry().intersects(other->geometry()))
            << where << ": " << name << " covers " << other->objectName().toStdString();
      }
    }
  }

  /// What the status bar says of every part that shows, and of every menu.
  void ExpectLegibleStatus(const std::string& where) {
    const auto& status = Find<QLabel>("StatusBar");
    const auto fits = [&](const std::string& text) {
      EXPECT_LE(status.fontMetrics().horizontalAdvance(QString::fromStdString(text)),
                status.contentsRect().width())
          << where << ": " << text;
    };
    for (const QWidget* part : ShownParts()) {
      ShowHint(Document(), part->objectName().toStdString());
      fits(Document().window.Status);
    }
    for (const MenuItem* item : Document().design.menus.Items()) fits(item->StatusText);
  }
};

TEST_P(LegibleWindow, OnEveryPageOfEveryRoof) {
  for (const RoofType* type : RoofTypes()) {
    const std::string roof(type->About().Item);
    Press(std::string(type->About().ToolButton));
    for (int page = 0; page < Document().design.sheet.Tabs[0].PageCount(); ++page) {
      Find<PageTabs>("VSTab(0)").setCurrentIndex(page);
      ExpectLegible(roof + ", page " + std::to_string(page));
    }
    Find<PageTabs>("VSTab(0)").setCurrentIndex(0);
    ExpectLegibleStatus(roof);
  }
}

TEST_P(LegibleWindow, OnBothRoofsOfADualSlopeAndInMillimetres) {
  Press("Dual");
  Find<PageTabs>("VSTab(1)").setCurrentIndex(1);
  ExpectLegible("rear roof");
  Trigger("mnuMetric");
  Press("Dual");
  ExpectLegible("front roof in millimetres");
  Find<PageTabs>("VSTab(1)").setCurrentIndex(1);
  ExpectLegible("rear roof in millimetres");
}

TEST_P(LegibleWindow, WithAFieldBesideThePages) {
  Press("Hip");
  Type("LWSlope(2).Left", "9");
  Key(Qt::Key_Return);
  Find<PageTabs>("VSTab(0)").setCurrentIndex(4);
  ASSERT_TRUE(Find("cboSpacing").isVisible());
  ExpectLegible("layout of unequal slopes");
  Press("Gambrel");
  Trigger("mnuGambrelCustom");
  Trigger("mnuGambrelWallSupportRaised");
  ASSERT_TRUE(Find("FTUpperFascia").isVisible());
  ExpectLegible("gambrel with a raised upper roof");
}

TEST_P(LegibleWindow, WithSlopesInDegrees) {
  Trigger("mnuSettingsDegrees");
  for (const char* roof : {"Gable", "Hip", "Blind Valley"}) {
    Press(roof);
    ExpectLegible(roof);
  }
}

INSTANTIATE_TEST_SUITE_P(Faces, LegibleWindow, ::testing::ValuesIn(AllCases()),
                         [](const auto& row) { return row.param.face.name + row.param.sizeName; });

// --- The font of the window itself
// ------------------------------------------------------------------------------------------

class WindowFont : public WindowTest {
 protected:
  void UseFont(const QFont& font) {
    QApplication::setFont(font);
    // The news goes to the window, from there to its parts, and then the window looks at them.
    for (int turn = 0; turn < 3; ++turn) QApplication::processEvents();
  }
  ~WindowFont() override { QApplication::setFont(UsualFont()); }
};

TEST_F(WindowFont, UsualLettersNeedNoMoreThanTheDriverHas) { EXPECT_EQ(Document().window.Words, WordRoom()); }

TEST_F(WindowFont, AChangeOfTheDesktopsLettersIsFollowedAndTakenBack) {
  const QSize least = window_.minimumSize();
  const QRect sheet = Find("Sheet").geometry();
  UseFont(AllFaces().back().Font());
  EXPECT_GT(window_.minimumWidth(), least.width());
  EXPECT_GT(window_.minimumHeight(), least.height());
  EXPECT_GT(Find("Sheet").width(), sheet.width());
  EXPECT_EQ(Find("Picture1").width() * 15, Document().FigureArea().Width) << "drawn for the place it has";
  ExpectWordsFit(window_, "larger letters");
  UseFont(UsualFont());
  EXPECT_EQ(window_.minimumSize(), least);
  EXPECT_EQ(Find("Sheet").geometry(), sheet);
}

TEST_F(WindowFont, LettersTooLargeForTheScreenAreTakenSmaller) {
  QFont huge = UsualFont();
  huge.setPixelSize(80);
  UseFont(huge);
  const QSize screen = window_.screen()->availableSize();
  EXPECT_LE(window_.minimumWidth(), screen.width());
  EXPECT_LE(window_.minimumHeight(), screen.height());
  const int shown = QFontInfo(window_.font()).pixelSize();
  EXPECT_LT(shown, 80);
  EXPECT_GT(shown, QFontInfo(UsualFont()).pixelSize());
  ExpectWordsFit(window_, "huge letters");
}

}  // namespace
}  // namespace pitchcraft::testing
