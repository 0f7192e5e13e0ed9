// Any bytes opened as a project: afterwards the document still responds, it is no longer loading, and what it
// saves can be opened again.
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "document/document.h"
#include "document/files.h"
#include "document/null_surroundings.h"
#include "document/session_ends.h"

namespace {

using namespace pitchcraft;

void Require(bool holds, const char* what) {
  if (holds) return;
  std::fprintf(stderr, "%s\n", what);
  std::abort();
}

std::string ScratchFile() {
  return (std::filesystem::temp_directory_path() / ("pitchcraft-fuzz-" + std::to_string(getpid()) + ".pcf"))
      .string();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const std::string kFile = ScratchFile();
  std::ofstream(kFile, std::ios::binary | std::ios::trunc) << std::string(data, data + size);
  NullSurroundings around;
  Document document(around.Get());
  Start(document);
  const bool loaded = LoadProject(document, kFile);
  Require(document.design.Loading == 0, "loading did not end");
  Require(loaded || !around.dialogs.messages.empty(), "refused without a word");
  Require(SaveProject(document, kFile), "cannot be saved");
  Require(LoadProject(document, kFile), "what was saved cannot be opened");
  Close(document);
  std::filesystem::remove(kFile);
  return 0;
}
