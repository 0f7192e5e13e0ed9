// Runs a script on a document of its own and keeps the events.
#pragma once

#include <sstream>
#include <string>
#include <vector>

#include "document/session_ends.h"
#include "session/script.h"

namespace pitchcraft {

struct ScriptRun {
  int status = 0;
  std::vector<Json> events;
  std::vector<std::string> pictures;
};

inline ScriptRun RunScript(const std::string& text) {
  ScriptRun run;
  std::ostringstream output;
  MemoryStore store;
  ScriptDialogs dialogs(output);
  Document document({dialogs, store, {}});
  Start(document);
  Script script(document, dialogs, output, [&run](Document&, const std::string& file) {
    run.pictures.push_back(file);
    return file == "fails.png" ? std::optional<std::string>("no such folder") : std::nullopt;
  });
  std::istringstream input(text);
  run.status = script.Run(input);
  Close(document);
  std::istringstream lines(output.str());
  for (std::string line; std::getline(lines, line);) run.events.push_back(Json::parse(line));
  return run;
}

}  // namespace pitchcraft
