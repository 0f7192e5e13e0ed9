// The page about the project file says what the tables of the code say.
#include "../support/golden.h"
#include "storage/project_keys.h"

namespace pitchcraft {
namespace {

// PITCHCRAFT_UPDATE_GOLDEN=1 writes the page anew.
TEST(ProjectManualTest, PageEqualsTheTables) {
  testing::ExpectGolden("../docs/project-file.md", ProjectFileManual());
}

TEST(ProjectManualTest, ManualNamesEveryKey) {
  const std::string manual = ProjectFileManual();
  for (const ProjectKey& key : ProjectKeys()) {
    EXPECT_NE(manual.find("| `" + std::string(key.Key) + "` |"), std::string::npos) << key.Key;
  }
}

}  // namespace
}  // namespace pitchcraft
