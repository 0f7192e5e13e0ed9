// Projects: written whole, and read by replaying their values through the menus and the sheet.
#include <filesystem>

#include "document/frm_document.h"
#include "files/whole_file.h"
#include "storage/ini_file.h"

namespace pitchcraft {
namespace {

// A project has some fifty lines; a file of this size is none.
constexpr std::size_t kLargestProject = 1 << 20;

bool IsFile(const std::string& path) {
  std::error_code error;
  return std::filesystem::exists(path, error) && !std::filesystem::is_directory(path, error);
}

/// The value of a key, or what stands for it where it is missing.
std::string ValueOf(const IniText& file, const ProjectKey& key) {
  return file.Value(kProjectSection, key.Key).value_or(key.Default);
}

/// Loading lasts to the end of its scope, whatever ends it.
class Loading {
 public:
  explicit Loading(int& flag) : flag_(flag) { flag_ = 1; }
  Loading(const Loading&) = delete;
  Loading& operator=(const Loading&) = delete;
  ~Loading() { flag_ = 0; }

 private:
  int& flag_;
};

}  // namespace

bool frmDocument::SaveRafter(const std::string& path) {
  if (!WriteWholeFile(path, ProjectText(Project()))) {
    MsgBox("Error writing to file, can't save rafter", "Save Rafter");
    return false;
  }
  RecentFiles.AddNewFile(path);
  return true;
}

bool frmDocument::LoadRafter(const std::string& path) {
  const Loading loading(LoadingProject);
  try {
    if (!IsFile(path)) return RefuseProject("Invalid file name, can't load rafter");
    // Read as a whole before anything changes; a file without our section is no project at all.
    const std::optional<std::string> bytes = ReadWholeFile(path, kLargestProject);
    const IniText file(bytes.value_or(""));
    if (!file.HasSection(kProjectSection)) return RefuseProject("Error reading file, can't load rafter");
    if (!ReadProject(file)) return false;
    ShowProjectTitle(MRU::LongDirFix(path, kTitleLength));
    RecentFiles.AddNewFile(path);
    return true;
  } catch (const RunTimeError& error) {
    MsgBox(error.Message(), "ExportRafter");
    return false;
  }
}

bool frmDocument::RefuseProject(const char* why) {
  MsgBox(why, "Load Rafter");
  return false;
}

bool frmDocument::ReadProject(const IniText& file) {
  const std::span<const ProjectKey> keys = ProjectKeys();
  std::size_t next = 0;
  for (; keys[next].Step != ProjectStep::kRafterType; ++next) {
    ReadProjectKey(keys[next], ValueOf(file, keys[next]));
  }
  const std::string roofText = ValueOf(file, keys[next]);
  if (roofText.empty()) return RefuseProject("Error reading file, can't load rafter");
  if (!PickProjectRoof(roofText)) return RefuseProject("Not a valid roof type.");
  const std::span<const ProjectKey> values = keys.subspan(next + 1);
  if (RoofType == roof::kBay) {
    for (const ProjectKey& key : values) {
      if (key.Step == ProjectStep::kBay) ReadProjectKey(key, ValueOf(file, key));
    }
    CalculateBayDimensions();
  }
  for (const ProjectKey& key : values) {
    const bool done = RoofType == roof::kBay && key.Step == ProjectStep::kBay;
    if (key.Read.Has(RoofType) && !done) ReadProjectKey(key, ValueOf(file, key));
  }
  TakeProjectLocks();
  PutBackTwice(file);
  CalculateRoof(true);
  FinishProjectRoof();
  return true;
}

// Handlers that ran meanwhile calculated with a part of the values, and a calculation lowers a heel or a
// fascia that does not fit: what they may have changed is put back before the roof is calculated.
void frmDocument::PutBackTwice(const IniText& file) {
  for (const ProjectKey& key : ProjectKeys()) {
    const bool twice = key.Step == ProjectStep::kPutBackTwice && key.Read.Has(RoofType);
    if (twice) key.PutBack(Project(), ValueOf(file, key));
  }
}

}  // namespace pitchcraft
