// Dialogs that a test answers.
#pragma once

#include <deque>
#include <optional>
#include <string>
#include <vector>

#include "document/surroundings.h"

namespace pitchcraft {

/// Dialogs that answer from a queue and keep what they were asked.
class AnsweringDialogs final : public Dialogs {
 public:
  void MsgBox(const std::string&, const std::string& text) override { messages.push_back(text); }
  std::optional<std::string> OpenFile(const FileDialog& dialog) override {
    return Next(dialog.Title, dialog.Name);
  }
  std::optional<std::string> SaveFile(const FileDialog& dialog) override {
    return Next(dialog.Title, dialog.Name);
  }
  std::optional<std::string> Input(const InputBox& box) override { return Next(box.Title, box.Name); }

  std::deque<std::optional<std::string>> answers;
  std::vector<std::string> asked;  ///< title: name offered
  std::vector<std::string> messages;

 private:
  std::optional<std::string> Next(const std::string& title, const std::string& name) {
    asked.push_back(title + ": " + name);
    if (answers.empty()) return std::nullopt;
    const std::optional<std::string> answer = answers.front();
    answers.pop_front();
    return answer;
  }
};

}  // namespace pitchcraft
