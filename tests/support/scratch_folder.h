// A folder that is gone with the test.
#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <string>

namespace pitchcraft::testing {

/// Where no disk is waited for, on systems that have such a place: for tests that write thousands of files.
inline std::filesystem::path FolderInMemory() {
  const std::filesystem::path memory = "/dev/shm";
  return std::filesystem::is_directory(memory) ? memory : std::filesystem::temp_directory_path();
}

class ScratchFolder {
 public:
  explicit ScratchFolder(const std::filesystem::path& place = std::filesystem::temp_directory_path()) {
    const auto* info = ::testing::UnitTest::GetInstance()->current_test_info();
    // The process, too: two builds may be tested at the same time.
    std::string name = std::string("pitchcraft-") + info->test_suite_name() + "-" + info->name() + "-" +
                       std::to_string(getpid());
    for (char& c : name) {
      if (c == '/') c = '-';
    }
    path_ = place / name;
    std::filesystem::remove_all(path_);
    std::filesystem::create_directories(path_);
  }
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;
  ~ScratchFolder() { std::filesystem::remove_all(path_); }

  const std::filesystem::path& Path() const { return path_; }
  std::string PathOf(const std::string& name) const { return (path_ / name).string(); }

 private:
  std::filesystem::path path_;
};

}  // namespace pitchcraft::testing
