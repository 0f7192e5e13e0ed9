// Tens of thousands of actions of all kinds over all roof types in one process: nothing crashes, nothing
// hangs, what is refused leaves the document in order, and plain values give plain results at the end.
#include "../support/random_walk.h"

#include <cmath>
#include <cstdlib>
#include <deque>

#include "core/rafter_members.h"
#include "document_test.h"

namespace pitchcraft {
namespace {

constexpr int kSteps = 30000;
constexpr std::size_t kRemembered = 20;

class RandomWalkTest : public DocumentTest {};

/// What must hold whatever was done.
void ExpectInOrder(const Document& document) {
  const Sheet& sheet = document.design.sheet;
  ASSERT_GE(sheet.Tabs[0].Page, 0);
  ASSERT_LT(sheet.Tabs[0].Page, sheet.Tabs[0].PageCount());
  ASSERT_EQ(PageShown(document.design), sheet.Tabs[0].Page);
  ASSERT_EQ(ListIndexOfRoof(document.design.RoofType), sheet.RoofList.ListIndex());
  ASSERT_TRUE(document.Board().Recorder.IsClosed());
  ASSERT_NE(document.design.menus.Metric.Checked, document.design.menus.Imperial.Checked);
  ASSERT_EQ(UnitRun(document.design), document.design.menus.Metric.Checked ? 1000 : 12);
  ASSERT_FALSE(sheet.HeelLock[0].Ticked() && sheet.SeatLock[0].Ticked());
  for (const AnyControl& any : sheet.Controls()) {
    if (auto* const* field = std::get_if<MeasureControl*>(&any)) {
      ASSERT_TRUE(std::isfinite((*field)->Value())) << ControlOf(any).Name;
    }
  }
}

TEST_F(RandomWalkTest, TheDocumentStaysInOrder) {
  const char* given = std::getenv("PITCHCRAFT_WALK_SEED");
  const unsigned seed = given != nullptr ? static_cast<unsigned>(std::atoi(given)) : 20261120U;
  RecordProperty("seed", static_cast<int>(seed));
  RandomWalk walk(document, seed);
  std::deque<std::string> last;
  for (int i = 0; i < kSteps && !HasFatalFailure(); ++i) {
    last.push_back(walk.Step());
    if (last.size() > kRemembered) last.pop_front();
    ExpectInOrder(document);
  }
  if (HasFatalFailure()) {
    for (const std::string& step : last) std::printf("%s\n", step.c_str());
    std::printf("seed %u\n", seed);
  }
  for (const auto& [title, text] : around.dialogs.messages) {
    ASSERT_FALSE(title.empty());
    ASSERT_FALSE(text.empty());
  }
  // Back to plain values: twice, since the units are a toggle.
  ToggleUnits(document);
  if (UnitRun(document.design) != 12) ClickMenu(document, document.design.menus.Imperial);
  ClickMenu(document, document.design.menus.SettingsRiseOverRun);
  Type("LWSlope(0)", "6 | 12");
  EXPECT_NEAR(rafter.Length2, 171.898, 0.0005);
}

}  // namespace
}  // namespace pitchcraft
