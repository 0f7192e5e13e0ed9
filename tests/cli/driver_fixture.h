// Runs the driver as somebody outside does, in a folder of the test's own.
#pragma once

#include <gtest/gtest.h>
#include <sys/wait.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>
#include <sstream>
#include <string>

struct Result {
  int status = -1;
  std::string output;
};

class DriverTest : public testing::Test {
 protected:
  void SetUp() override {
    folder =
        std::filesystem::temp_directory_path() /
        ("pitchcraft-driver-" + std::string(testing::UnitTest::GetInstance()->current_test_info()->name()));
    std::filesystem::remove_all(folder);
    std::filesystem::create_directories(folder / "data");
  }
  void TearDown() override { std::filesystem::remove_all(folder); }

  Result Run(const std::string& arguments) const {
    const std::string command =
        "cd '" + folder.string() + "' && QT_QPA_PLATFORM=offscreen '" PITCHCRAFT_DRIVER "' " + arguments;
    FILE* pipe = popen(command.c_str(), "r");
    Result result;
    std::array<char, 4096> buffer{};
    for (std::size_t n = 0; (n = fread(buffer.data(), 1, buffer.size(), pipe)) > 0;) {
      result.output.append(buffer.data(), n);
    }
    const int status = pclose(pipe);
    result.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    return result;
  }
  std::string Write(const char* name, const std::string& text) const {
    std::ofstream(folder / name, std::ios::binary) << text;
    return name;
  }
  std::string Read(const char* name) const {
    std::ifstream stream(folder / name, std::ios::binary);
    std::ostringstream text;
    text << stream.rdbuf();
    return text.str();
  }

  std::filesystem::path folder;
};
