// A folder that is gone with the test.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace pitchcraft::testing {

class ScratchFolder {
 public:
  ScratchFolder() {
    const auto* info = ::testing::UnitTest::GetInstance()->current_test_info();
    std::string name = std::string("pitchcraft-") + info->test_suite_name() + "-" + info->name();
    for (char& c : name) {
      if (c == '/') c = '-';
    }
    path_ = std::filesystem::temp_directory_path() / name;
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
