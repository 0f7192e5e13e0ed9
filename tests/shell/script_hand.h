// The lines of a script, done with mouse and keyboard in a real window, beside the driver that performs them.
#pragma once

#include "session/dump.h"
#include "session/script.h"
#include "window_test.h"

namespace pitchcraft::testing {

/// Settings and dialogs of one of the two.
struct Side {
  std::ostringstream events;
  MemoryStore store;
  ScriptDialogs dialogs{events};

  Surroundings Get() { return {dialogs, store, {}}; }
};

class ScriptHand : public WindowHand {
 public:
  ScriptHand(MainWindow& window, ScriptDialogs& dialogs)
      : WindowHand(window), window_(window), dialogs_(dialogs) {}

  /// A line that no hand can do is a failure.
  void Perform(std::string_view line);

 private:
  bool PerformOnName(const std::string& verb, std::string_view rest);
  void Click(const std::string& name);
  void Put(const std::string& box, const std::string& text);
  void PutIn(const std::string& name, const std::string& text);
  void PickRow(const std::string& name, const std::string& caption);
  void Tick(const std::string& name, bool on);
  void TurnTo(const std::string& tabs, int page);
  void Resize(std::string_view size);

  MainWindow& window_;
  ScriptDialogs& dialogs_;
};

/// A window and a document of the driver's, which do the same. What they say is kept on each side.
class HandAndDriver {
 public:
  HandAndDriver();

  /// Does the line on both sides.
  void Perform(const std::string& line);
  /// The same, and both hold the same state after each line.
  void Both(const std::string& line) {
    Perform(line);
    Compare(line);
  }
  void Both(const std::vector<std::string>& lines) {
    for (const std::string& line : lines) Both(line);
  }
  /// The status tells of the pointer and the focus, which a script has not.
  void Compare(const std::string& where);

  Side byHand;
  Side byScript;
  MainWindow window{byHand.Get()};
  ScriptHand hand{window, byHand.dialogs};
  Document driven{byScript.Get()};

 private:
  Script script_{driven, byScript.dialogs, byScript.events,
                 [](const Document&, const std::string&) { return std::nullopt; }};
};

}  // namespace pitchcraft::testing
