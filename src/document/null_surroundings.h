// Surroundings without anybody in them: messages are kept, settings are forgotten.
#pragma once

#include <utility>
#include <vector>

#include "document/surroundings.h"

namespace pitchcraft {

class RecordingDialogs final : public Dialogs {
 public:
  void MsgBox(const std::string& title, const std::string& text) override {
    messages.emplace_back(title, text);
  }

  std::vector<std::pair<std::string, std::string>> messages;  ///< title and text, in order
};

struct NullSurroundings {
  RecordingDialogs dialogs;
  MemoryStore store;

  Surroundings Get() { return {dialogs, store, {}}; }
};

}  // namespace pitchcraft
