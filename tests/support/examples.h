// The scripts under examples/.
#pragma once

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

namespace pitchcraft::testing {

/// Their names without the ending, in order.
inline std::vector<std::string> ExampleNames() {
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(PITCHCRAFT_SOURCE_DIR "/examples")) {
    if (entry.path().extension() == ".txt") names.push_back(entry.path().stem().string());
  }
  std::sort(names.begin(), names.end());
  return names;
}

}  // namespace pitchcraft::testing
