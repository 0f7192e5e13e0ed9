// Every script of examples/ with what it prints. The golden files were accepted after the figures of
// example_figures_test.cpp, which come from the geometry and not from the program, had been found in them.
#include <gtest/gtest.h>

#include "../support/examples.h"
#include "../support/golden.h"
#include "script_runner.h"

namespace pitchcraft {
namespace {

/// One member a line, so that the first difference names it.
std::string Spread(const std::vector<Json>& events) {
  std::string text;
  for (const Json& event : events) text += event.dump(1) + "\n";
  return text;
}

class ExamplesTest : public ::testing::TestWithParam<std::string> {};

TEST_P(ExamplesTest, PrintsWhatItAlwaysPrinted) {
  const ScriptRun run =
      RunScript(testing::ReadWhole(PITCHCRAFT_SOURCE_DIR "/examples/" + GetParam() + ".txt"));
  EXPECT_EQ(run.status, kDone);
  testing::ExpectGolden("cli/golden/" + GetParam() + ".json", Spread(run.events));
}

INSTANTIATE_TEST_SUITE_P(All, ExamplesTest, ::testing::ValuesIn(testing::ExampleNames()),
                         [](const auto& test) {
                           std::string name = test.param;
                           std::replace(name.begin(), name.end(), '-', '_');
                           return name;
                         });

}  // namespace
}  // namespace pitchcraft
