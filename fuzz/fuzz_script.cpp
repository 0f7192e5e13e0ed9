// Any bytes run as a script: every event is one JSON object on a line, the exit status is one of the three,
// and the document still responds afterwards.
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <sstream>
#include <string>

#include "document/session_ends.h"
#include "session/script.h"

namespace {

using namespace pitchcraft;

void Require(bool holds, const char* what) {
  if (holds) return;
  std::fprintf(stderr, "%s\n", what);
  std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::ostringstream output;
  MemoryStore store;
  ScriptDialogs dialogs(output);
  Document document({dialogs, store, {}});
  Start(document);
  Script script(document, dialogs, output, [](const Document&, const std::string&) { return std::nullopt; });
  std::istringstream input(std::string(data, data + size));
  const int status = script.Run(input);
  Require(status == kDone || status == kWorkFailed || status == kNotUnderstood, "an exit status of its own");
  script.RunLine("dump");
  Close(document);
  std::istringstream events(output.str());
  for (std::string line; std::getline(events, line);) {
    const Json event = Json::parse(line, nullptr, /*allow_exceptions=*/false);
    Require(event.is_object() && event.contains("event"), "a line that is no event");
  }
  return 0;
}
