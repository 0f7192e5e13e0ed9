#include "document/files.h"

#include <filesystem>

#include "core/number_text.h"
#include "document/project_reader.h"
#include "files/file_names.h"
#include "files/whole_file.h"
#include "roofs/roof_types.h"
#include "roofs/switch_roof.h"
#include "storage/ini_file.h"
#include "storage/project_keys.h"

namespace pitchcraft {
namespace {

constexpr const char* kExtension = "pcf";
constexpr const char* kFilter = "Rafter (*.pcf)|*.pcf|all files (*.*)|*.*";
constexpr const char* kNewPrompt =
    "Enter a name for the new project:\n\nThe project name is used as the filename when saving a project and "
    "also appears on all printed pages.";
// A project has some fifty lines; a file of this size is none.
constexpr std::size_t kLargestProject = 1 << 20;
constexpr int kTitleLength = 60;  // letters of a path in the title

std::string NameOfProject(const std::string& path) {
  const std::string name = FileNameOf(path);
  return name.substr(0, name.find('.'));
}

bool Exists(const std::string& path) {
  std::error_code error;
  return std::filesystem::exists(path, error);
}

bool IsFile(const std::string& path) {
  std::error_code error;
  return Exists(path) && !std::filesystem::is_directory(path, error);
}

void ShowTitle(Document& document, const std::string& name) {
  document.window.Title = "Pitchcraft - [" + name + "]";
}

/// Why the file was refused, or null. Raises RunTimeError.
const char* Read(Document& document, Reply& reply, const std::string& path) {
  if (!IsFile(path)) return "Invalid file name, can't load rafter";
  // Read as a whole before anything changes; a file without our section is no project at all.
  const std::optional<std::string> bytes = ReadWholeFile(path, kLargestProject);
  const IniText file(bytes.value_or(""));
  if (!file.HasSection(kProjectSection)) return "Error reading file, can't load rafter";
  return ProjectReader(document, reply, file).Read();
}

}  // namespace

bool SaveProject(Document& document, const std::string& path) {
  if (!WriteWholeFile(path, ProjectText(document.design))) {
    document.Tell("Error writing to file, can't save rafter", "Save Rafter");
    return false;
  }
  document.RecentFiles.AddNewFile(path);
  return true;
}

bool LoadProject(Document& document, const std::string& path) {
  Reply reply;
  bool loaded = false;
  document.Guard("ExportRafter", [&] {
    const char* refused = Read(document, reply, path);
    loaded = refused == nullptr;
    if (!loaded) reply.Say(refused, "Load Rafter");
  });
  document.design.Loading = false;
  if (loaded) {
    ShowTitle(document, RecentFileList::ShortenedPath(path, kTitleLength));
    document.RecentFiles.AddNewFile(path);
  }
  document.TakeReply(reply);
  document.Refresh();
  return loaded;
}

bool OpenProject(Document& document, const std::string& path) {
  document.project.File = path;
  if (!LoadProject(document, path)) return false;
  document.project.Name = NameOfProject(path);
  return true;
}

// A new project begins with a common gable; the values of the sheet stay.
void NewProject(Document& document, int) {
  document.Act("mnuFileNew_Click", [](Design& design, Reply& reply) {
    design.sheet.RoofList.SetListIndex(0);
    SwitchRoof(design, reply, GableRoof());
  });
  const auto answer = document.Around().dialogs.Input({"New Project", kNewPrompt, document.project.Name});
  if (answer && !answer->empty()) document.project.Name = *answer;
  ShowTitle(document, document.project.Name);
}

void NameProject(Document& document, int) {
  const auto answer = document.Around().dialogs.Input(
      {"New Project", "Enter a name for this project:", document.project.Name});
  if (!answer || answer->empty()) return;
  document.project.Name = *answer;
  ShowTitle(document, document.project.Name);
}

void OpenProjectByDialog(Document& document, int) {
  document.Guard("mnuFileOpen_Click", [&] {
    const auto answer = document.Around().dialogs.OpenFile(
        {"Open Project", document.Around().programFolder, "", kExtension, kFilter, true, false});
    const std::string path(Trimmed(answer.value_or("")));
    if (!path.empty()) OpenProject(document, Exists(path) ? path : WithExtension(path, kExtension));
  });
}

// The project is written in any case, also after a Save As that was cancelled: without a file that is an
// error.
void SaveProjectAgain(Document& document, int) {
  if (document.project.File.empty()) SaveProjectByDialog(document);
  SaveProject(document, document.project.File);
}

void SaveProjectByDialog(Document& document, int) {
  document.Guard("mnufileSaveAs_Click", [&] {
    const auto answer =
        document.Around().dialogs.SaveFile({"Save Project", document.Around().programFolder,
                                            document.project.Name, kExtension, kFilter, false, true});
    const std::string path(Trimmed(answer.value_or("")));
    if (path.empty()) return;
    document.project.File = WithExtension(path, kExtension);
    if (SaveProject(document, document.project.File))
      ShowTitle(document, RecentFileList::ShortenedPath(document.project.File, kTitleLength));
  });
}

void OpenRecentProject(Document& document, int place) {
  const auto& recent = document.design.menus.FileMRU;
  const auto index = static_cast<std::size_t>(place);
  if (index >= recent.size() || recent[index].Caption.empty()) return;
  OpenProject(document, document.RecentFiles.Selected(place));
}

}  // namespace pitchcraft
