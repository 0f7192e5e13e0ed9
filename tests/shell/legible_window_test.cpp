// Nothing in the window is cut off or covers something else: each roof, each page, small and large.
#include <QAbstractButton>
#include <QLabel>

#include "roofs/roof_types.h"
#include "window_test.h"

namespace pitchcraft::testing {
namespace {

struct Case {
  const char* name;
  QSize size;
};

class LegibleWindow : public WindowTest, public ::testing::WithParamInterface<Case> {
 protected:
  /// Everything that stands by itself and shows: a field of two boxes counts as one.
  std::vector<QWidget*> ShownParts() {
    std::vector<QWidget*> parts;
    for (const char* host : {"Sheet", "TabStrip", "Toolbar1"}) {
      for (QObject* child : Find(host).children()) {
        auto* widget = qobject_cast<QWidget*>(child);
        if (widget != nullptr && widget->isVisible()) parts.push_back(widget);
      }
    }
    return parts;
  }

  void ExpectLegible(const std::string& where) {
    const std::vector<QWidget*> parts = ShownParts();
    EXPECT_GE(parts.size(), 1U) << where;
    for (const QWidget* part : parts) {
      const auto* caption = qobject_cast<const QLabel*>(part);
      const std::string name = part->objectName().toStdString();
      if (caption != nullptr) {
        EXPECT_LE(caption->fontMetrics().horizontalAdvance(caption->text()), caption->contentsRect().width())
            << where << ": " << caption->text().toStdString() << " is cut off";
      }
      EXPECT_TRUE(part->parentWidget()->rect().contains(part->geometry()))
          << where << ": " << name << " reaches out of its place";
      for (const QWidget* other : parts) {
        if (other == part || other->parentWidget() != part->parentWidget()) continue;
        EXPECT_FALSE(part->geometry().intersects(other->geometry()))
            << where << ": " << name << " covers " << other->objectName().toStdString();
      }
    }
  }
};

TEST_P(LegibleWindow, OnEveryPageOfEveryRoof) {
  window_.resize(GetParam().size);
  for (const RoofTypeRow& row : RoofTypes()) {
    Press(std::string(row.ToolButton));
    for (int page = 0; page < Document().design.sheet.Tabs[0].PageCount(); ++page) {
      Find<PageTabs>("VSTab(0)").setCurrentIndex(page);
      ExpectLegible(std::string(row.Item) + ", page " + std::to_string(page));
    }
    Find<PageTabs>("VSTab(0)").setCurrentIndex(0);
  }
}

TEST_P(LegibleWindow, OnBothRoofsOfADualSlopeAndInMillimetres) {
  window_.resize(GetParam().size);
  Press("Dual");
  Find<PageTabs>("VSTab(1)").setCurrentIndex(1);
  ExpectLegible("rear roof");
  Trigger("mnuMetric");
  ExpectLegible("rear roof in millimetres");
}

// The first page that has a caption beside its list: the caption's width is taken before it shows.
TEST_P(LegibleWindow, OnTheLayoutComingFromTheDesign) {
  window_.resize(GetParam().size);
  Press("Hip");
  Find<PageTabs>("VSTab(0)").setCurrentIndex(3);
  ASSERT_TRUE(Find("cboSpacing").isVisible());
  ExpectLegible("layout");
}

INSTANTIATE_TEST_SUITE_P(Sizes, LegibleWindow,
                         ::testing::Values(Case{"Smallest", {627, 467}}, Case{"Common", {1280, 720}},
                                           Case{"Large", {1920, 1080}}),
                         [](const auto& row) { return row.param.name; });

}  // namespace
}  // namespace pitchcraft::testing
