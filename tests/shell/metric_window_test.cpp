// A session in millimetres from start to end by hand, for every roof. The driver performs the same lines, and
// after each of them both hold the same state.
#include "../support/metric_roofs.h"
#include "../support/scratch_folder.h"
#include "script_hand.h"

namespace pitchcraft::testing {
namespace {

class MetricWindow : public ::testing::TestWithParam<MetricRoof>, protected HandAndDriver {
 protected:
  /// Every box shows what its control holds, and lengths in millimetres.
  void ExpectMillimetres() {
    const Json sheet = DumpSheet(hand.Document().design.sheet);
    int lengths = 0;
    for (const EntryBox* box : window.findChildren<EntryBox*>()) {
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
    EXPECT_GT(lengths, PageShown(hand.Document().design) == 0 ? 6 : -1);
  }
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
    if (hand.Document().design.sheet.Spacing.Visible) Both("pick cboSpacing 600 mm");
    ExpectMillimetres();
  }
  Both({"answer " + file, "click mnufileSaveAs", "answer Shed", "click mnuFileNew"});
  EXPECT_EQ(hand.Document().design.RoofType, Roof::kGable);
  Both({"answer " + file, "click mnuFileOpen"});
  EXPECT_EQ(hand.Document().design.RoofType, roof.code);
  EXPECT_EQ(window.windowTitle().toStdString(),
            "Pitchcraft - [" + RecentFileList::ShortenedPath(file, 60) + "]");
  ExpectMillimetres();
  Both("click mnuImperial");
  EXPECT_EQ(hand.Box("FtSpan(0)").Entry(), "12' 0\"");
  EXPECT_EQ(byHand.events.str().find("\"message\""), std::string::npos) << byHand.events.str();
  EXPECT_EQ(byHand.events.str().find("\"error\""), std::string::npos) << byHand.events.str();
}

INSTANTIATE_TEST_SUITE_P(Roofs, MetricWindow, ::testing::ValuesIn(MetricRoofs()),
                         NameOfRoof<::testing::TestParamInfo<MetricRoof>>);

}  // namespace
}  // namespace pitchcraft::testing
