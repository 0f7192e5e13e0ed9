// Every script of examples/ done by hand in the window: it ends where the driver ends.
#include <fstream>

#include "../support/examples.h"
#include "script_hand.h"

namespace pitchcraft::testing {
namespace {

class ExampleWindow : public ::testing::TestWithParam<std::string> {
 protected:
  HandAndDriver two_;
};

TEST_P(ExampleWindow, EndsWhereTheDriverEnds) {
  std::ifstream script(PITCHCRAFT_SOURCE_DIR "/examples/" + GetParam() + ".txt");
  int done = 0;
  for (std::string line; std::getline(script, line);) {
    if (line.empty() || line.starts_with('#') || line.starts_with("picture")) continue;
    // Where the script prints, the two are compared, and at the end.
    if (line.starts_with("dump")) {
      two_.Compare(GetParam() + ", " + line + " after " + std::to_string(done) + " lines");
      continue;
    }
    two_.Perform(line);
    ++done;
  }
  EXPECT_GT(done, 0);
  two_.Compare(GetParam() + " at the end");
  EXPECT_EQ(two_.byHand.events.str().find("\"error\""), std::string::npos) << two_.byHand.events.str();
}

INSTANTIATE_TEST_SUITE_P(All, ExampleWindow, ::testing::ValuesIn(ExampleNames()), [](const auto& test) {
  std::string name = test.param;
  std::replace(name.begin(), name.end(), '-', '_');
  return name;
});

}  // namespace
}  // namespace pitchcraft::testing
