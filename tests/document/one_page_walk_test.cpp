// Whatever a person did, screen, paper and file of the page shown are one drawing.
//
// PITCHCRAFT_WALK_SEED takes other walks, PITCHCRAFT_WALK_ACTIONS more of them: the number of actions for
// each roof type. A failure prints its seed and the shortest script found that still ends in it.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <ostream>
#include <string>
#include <vector>

#include "one_page.h"
#include "page_walk.h"
#include "support/scratch_folder.h"

namespace pitchcraft {
namespace {

constexpr unsigned kSeed = 20261122;
constexpr int kActions = 360;
constexpr int kActionsOfOneWalk = 40;

int FromEnvironment(const char* name, int usual) {
  const char* given = std::getenv(name);
  return given == nullptr ? usual : std::atoi(given);
}

using Script = std::vector<std::string>;

/// The words that name the rule which the first disagreement breaks.
std::string RuleOf(const testing::Disagreements& found) {
  return found.empty() ? "" : found.front().substr(0, found.front().find(':'));
}

struct RoofCase {
  const char* Roof;
  bool Draws;  ///< there are pages with a drawing
};

void PrintTo(const RoofCase& roof, std::ostream* stream) { *stream << roof.Roof; }

class OnePageWalkTest : public ::testing::TestWithParam<RoofCase> {
 protected:
  /// What is broken at the end of the script.
  testing::Disagreements After(const Script& script) {
    PageUnderTest page(folder_.Path());
    for (const std::string& line : script) page.Do(line);
    return CheckPage(page);
  }

  /// The script without the lines that it does not need.
  Script Shortened(Script script, const std::string& rule) {
    for (std::size_t part = script.size() / 2; part > 0; part = part == 1 ? 0 : part / 2) {
      for (std::size_t at = 0; at + part <= script.size();) {
        Script shorter = script;
        const auto begin = shorter.begin() + static_cast<std::ptrdiff_t>(at);
        shorter.erase(begin, begin + static_cast<std::ptrdiff_t>(part));
        if (RuleOf(After(shorter)) == rule) {
          script = std::move(shorter);
        } else {
          at += part;
        }
      }
    }
    return script;
  }

  std::string Told(unsigned seed, const Script& script, const testing::Disagreements& found) {
    const Script shortest = Shortened(script, RuleOf(found));
    const testing::Disagreements rest = After(shortest);
    std::string words = "seed " + std::to_string(seed) + ", after " + std::to_string(script.size()) +
                        " actions; this is enough:\n";
    for (const std::string& line : shortest) words += "  " + line + "\n";
    for (const std::string& line : rest.empty() ? found : rest) words += "* " + line + "\n";
    return words;
  }

  testing::ScratchFolder folder_{testing::FolderInMemory()};
};

TEST_P(OnePageWalkTest, ScreenPaperAndFileAreOneDrawing) {
  const auto first = static_cast<unsigned>(FromEnvironment("PITCHCRAFT_WALK_SEED", kSeed));
  const int walks = std::max(1, FromEnvironment("PITCHCRAFT_WALK_ACTIONS", kActions) / kActionsOfOneWalk);
  int drawings = 0;
  for (int walk = 0; walk < walks; ++walk) {
    const unsigned seed = first + static_cast<unsigned>(walk);
    PageWalk person(GetParam().Roof, seed);
    PageUnderTest page(folder_.Path());
    Script script;
    for (const std::string& line : person.Start()) {
      if (page.Do(line)) script.push_back(line);
    }
    for (int taken = 0; taken < kActionsOfOneWalk;) {
      const std::string line = person.Step();
      if (!page.Do(line)) continue;  // a hidden field: nothing happened
      ++taken;
      script.push_back(line);
      drawings += page.Screen().empty() ? 0 : 1;
      const testing::Disagreements found = CheckPage(page);
      if (!found.empty()) FAIL() << Told(seed, script, found);
    }
  }
  RecordProperty("seed", static_cast<int>(first));
  RecordProperty("drawings", drawings);
  if (GetParam().Draws) {
    EXPECT_GT(drawings, walks * kActionsOfOneWalk / 10) << "hardly a drawing was compared";
  }
}

INSTANTIATE_TEST_SUITE_P(Roofs, OnePageWalkTest,
                         ::testing::Values(RoofCase{"Common Gable", true}, RoofCase{"Common Shed", true},
                                           RoofCase{"Dual Slope", true}, RoofCase{"Hip", true},
                                           RoofCase{"Valley", true}, RoofCase{"Unequal Span Valley", true},
                                           RoofCase{"Bay Roof", false}, RoofCase{"Dutch Hip", true},
                                           RoofCase{"Blind Valley", false}, RoofCase{"Octagon", false},
                                           RoofCase{"Gambrel Roof", false}),
                         [](const auto& roof) {
                           std::string name = roof.param.Roof;
                           std::erase(name, ' ');
                           return name;
                         });

}  // namespace
}  // namespace pitchcraft
