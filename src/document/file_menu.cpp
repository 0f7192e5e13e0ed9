// The File menu: new, open, save, the project's name, the recent files.
#include <filesystem>

#include "core/number_text.h"
#include "document/document.h"
#include "files/file_names.h"

namespace pitchcraft {
namespace {

constexpr const char* kExtension = "pcf";
constexpr const char* kFilter = "Rafter (*.pcf)|*.pcf|all files (*.*)|*.*";
constexpr const char* kNewPrompt =
    "Enter a name for the new project:\n\nThe project name is used as the filename when saving a project and "
    "also appears on all printed pages.";

std::string NameOfProject(const std::string& path) {
  const std::string name = FileNameOf(path);
  return name.substr(0, name.find('.'));
}

bool Exists(const std::string& path) {
  std::error_code error;
  return std::filesystem::exists(path, error);
}

}  // namespace

// A new project begins with a common gable; the values of the sheet stay.
void Document::mnuFileNew_Click(int) {
  Try("mnuFileNew_Click", [&] {
    if (sheet.Tabs[0].Page != 0) VSTab_Switch(0, sheet.Tabs[0].Page, 0);
    sheet.RoofList.SetListIndex(0);
    cboType_Click();
    const auto answer = surroundings_.dialogs.Input({"New Project", kNewPrompt, ProjectName});
    if (answer && !answer->empty()) ProjectName = *answer;
    ShowProjectTitle(ProjectName);
  });
}

void Document::mnuFileProjectName_Click(int) {
  const auto answer =
      surroundings_.dialogs.Input({"New Project", "Enter a name for this project:", ProjectName});
  if (!answer || answer->empty()) return;
  ProjectName = *answer;
  ShowProjectTitle(ProjectName);
}

void Document::mnuFileOpen_Click(int) {
  Try("mnuFileOpen_Click", [&] {
    const auto answer = surroundings_.dialogs.OpenFile(
        {"Open Project", surroundings_.programFolder, "", kExtension, kFilter, true, false});
    const std::string path(Trimmed(answer.value_or("")));
    if (path.empty()) return;
    OpenProject(Exists(path) ? path : WithExtension(path, kExtension));
  });
}

bool Document::OpenProject(const std::string& path) {
  ProjectFile = path;
  if (!LoadRafter(ProjectFile)) return false;
  ProjectName = NameOfProject(ProjectFile);
  return true;
}

// The project is written in any case, also after a Save As that was cancelled: without a file that is an
// error.
void Document::mnuFileSave_Click(int) {
  if (ProjectFile.empty()) mnufileSaveAs_Click();
  SaveRafter(ProjectFile);
}

void Document::mnufileSaveAs_Click(int) {
  Try("mnufileSaveAs_Click", [&] {
    const auto answer = surroundings_.dialogs.SaveFile(
        {"Save Project", surroundings_.programFolder, ProjectName, kExtension, kFilter, false, true});
    const std::string path(Trimmed(answer.value_or("")));
    if (path.empty()) return;
    ProjectFile = WithExtension(path, kExtension);
    if (SaveRafter(ProjectFile)) ShowProjectTitle(RecentFileList::ShortenedPath(ProjectFile, kTitleLength));
  });
}

void Document::mnuFileMRU_Click(int Index) {
  const auto place = static_cast<std::size_t>(Index);
  if (place >= menus.FileMRU.size() || menus.FileMRU[place].Caption.empty()) return;
  OpenProject(RecentFiles.Selected(Index));
}

}  // namespace pitchcraft
