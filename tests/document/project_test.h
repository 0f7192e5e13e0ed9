// A document with a folder of its own for project files.
#pragma once

#include <filesystem>
#include <string>

#include "../support/golden.h"
#include "document/null_surroundings.h"
#include "project_case.h"
#include "support/document_api.h"

namespace pitchcraft {

/// A session of its own: document, settings, messages.
struct ProjectSession {
  NullSurroundings around;
  Document document{around.Get()};
  Actions actions{document};

  ProjectSession() { Start(document); }
  void Enter(const ProjectCase& roof) {
    for (const ProjectAction& action : roof.actions) {
      const Refusal refusal = Perform(actions, action);
      EXPECT_FALSE(refusal) << roof.name << ": " << refusal.value_or("");
    }
  }
  std::string LastMessage() const {
    return around.dialogs.messages.empty() ? "" : around.dialogs.messages.back().second;
  }
};

template <typename Base>
class WithFolder : public Base {
 protected:
  WithFolder() {
    const auto* info = ::testing::UnitTest::GetInstance()->current_test_info();
    std::string name = std::string(info->test_suite_name()) + "-" + info->name();
    for (char& c : name) {
      if (c == '/') c = '-';
    }
    folder = std::filesystem::temp_directory_path() / ("pitchcraft-" + name);
    std::filesystem::remove_all(folder);
    std::filesystem::create_directories(folder);
  }
  ~WithFolder() override { std::filesystem::remove_all(folder); }

  std::string PathOf(const std::string& name) const { return (folder / name).string(); }
  std::string Write(const std::string& name, const std::string& bytes) const {
    pitchcraft::testing::WriteWhole(folder / name, bytes);
    return PathOf(name);
  }
  std::string Read(const std::string& name) const { return testing::ReadWhole(folder / name); }

  std::filesystem::path folder;
};

using ProjectTest = WithFolder<::testing::Test>;

}  // namespace pitchcraft
