// Projects: written whole, and read whole before anything changes.
#include <filesystem>

#include "document/document.h"
#include "document/project_reader.h"
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

bool Document::SaveRafter(const std::string& path) {
  if (!WriteWholeFile(path, ProjectText(Project()))) {
    MsgBox("Error writing to file, can't save rafter", "Save Rafter");
    return false;
  }
  RecentFiles.AddNewFile(path);
  return true;
}

bool Document::LoadRafter(const std::string& path) {
  const Loading loading(LoadingProject);
  try {
    if (!IsFile(path)) return RefuseProject("Invalid file name, can't load rafter");
    // Read as a whole before anything changes; a file without our section is no project at all.
    const std::optional<std::string> bytes = ReadWholeFile(path, kLargestProject);
    const IniText file(bytes.value_or(""));
    if (!file.HasSection(kProjectSection)) return RefuseProject("Error reading file, can't load rafter");
    if (const char* why = ProjectReader(*this, file).Read()) return RefuseProject(why);
    ShowProjectTitle(RecentFileList::ShortenedPath(path, kTitleLength));
    RecentFiles.AddNewFile(path);
    return true;
  } catch (const RunTimeError& error) {
    MsgBox(error.Message(), "ExportRafter");
    return false;
  }
}

bool Document::RefuseProject(const char* why) {
  MsgBox(why, "Load Rafter");
  return false;
}

}  // namespace pitchcraft
