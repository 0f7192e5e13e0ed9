// Golden files: what a drawing or a text looked like when a person last looked at it and found it right.
//
// PITCHCRAFT_UPDATE_GOLDEN=1 rewrites them. A mismatch writes the new text beside the old one as *.new and
// names the first line that differs.
#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

namespace pitchcraft::testing {

inline std::string ReadWhole(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  std::ostringstream text;
  text << file.rdbuf();
  return text.str();
}

inline void WriteWhole(const std::filesystem::path& path, const std::string& text) {
  std::filesystem::create_directories(path.parent_path());
  std::ofstream(path, std::ios::binary) << text;
}

/// "line 3: golden [...], now [...]"
inline std::string FirstDifference(const std::string& golden, const std::string& now) {
  std::istringstream goldenLines(golden);
  std::istringstream nowLines(now);
  for (int number = 1;; ++number) {
    std::string old;
    std::string fresh;
    const bool more = static_cast<bool>(std::getline(goldenLines, old));
    const bool moreNow = static_cast<bool>(std::getline(nowLines, fresh));
    if (!more && !moreNow) return "no line differs: the ends of the lines do";
    if (more != moreNow || old != fresh) {
      return "line " + std::to_string(number) + ": golden [" + (more ? old : "the end") + "], now [" +
             (moreNow ? fresh : "the end") + "]";
    }
  }
}

/// `name` is a path under tests/, such as "drawings/golden/common.trace".
inline void ExpectGolden(const std::string& name, const std::string& now) {
  const std::filesystem::path path = std::filesystem::path(PITCHCRAFT_TESTS_DIR) / name;
  const std::filesystem::path fresh = path.string() + ".new";
  const char* update = std::getenv("PITCHCRAFT_UPDATE_GOLDEN");  // NOLINT(concurrency-mt-unsafe)
  if (update != nullptr && std::string(update) == "1") {
    WriteWhole(path, now);
    std::filesystem::remove(fresh);
    return;
  }
  if (!std::filesystem::exists(path)) {
    WriteWhole(fresh, now);
    ADD_FAILURE() << name << " is missing; what it would hold is in " << fresh;
    return;
  }
  const std::string golden = ReadWhole(path);
  if (golden == now) {
    std::filesystem::remove(fresh);
    return;
  }
  WriteWhole(fresh, now);
  ADD_FAILURE() << name << ", " << FirstDifference(golden, now) << "\nthe whole is in " << fresh;
}

}  // namespace pitchcraft::testing
