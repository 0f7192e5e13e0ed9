// Any bytes as list files: the document starts, and every row that it shows can be picked.
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "document/document.h"
#include "document/fields.h"
#include "document/null_surroundings.h"
#include "document/session_ends.h"
#include "document/slopes.h"

namespace {

using namespace pitchcraft;

struct Folder {
  std::filesystem::path path =
      std::filesystem::temp_directory_path() / ("pitchcraft-fuzz-list-" + std::to_string(getpid()));

  Folder() { std::filesystem::create_directories(path); }
  Folder(const Folder&) = delete;
  Folder& operator=(const Folder&) = delete;
  ~Folder() { std::filesystem::remove_all(path); }
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const Folder kFolder;
  for (const char* name : {"Lumber.dat", "Slope.dat", "Degrees.dat"}) {
    std::ofstream(kFolder.path / name, std::ios::binary | std::ios::trunc) << std::string(data, data + size);
  }
  NullSurroundings around;
  Document document({around.dialogs, around.store, kFolder.path});
  Start(document);
  for (int row = 0; row < static_cast<int>(document.design.sheet.Slope[0].List().size()); ++row) {
    document.design.sheet.Slope[0].SetListIndex(row);
    document.Act("LWSlope_Click", &SlopePicked);
  }
  for (int row = 0; row < static_cast<int>(document.design.sheet.Common[0].List().size()); ++row) {
    document.design.sheet.Common[0].SetListIndex(row);
    document.Act("LWRafter_Commit", &CommonEntered);
  }
  for (int row = 0; row < static_cast<int>(document.design.sheet.Degrees[0].List().size()); ++row) {
    document.design.sheet.Degrees[0].SetListIndex(row);
    document.Act("cboDegrees_Click", &DegreesPicked);
  }
  Close(document);
  return 0;
}
