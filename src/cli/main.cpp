// pitchcraft-cli: the document without its window, for scripts, batches and reproducible reports.
#include <CLI/CLI.hpp>
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <memory>
#include <string>

#include "document/files.h"
#include "document/output_files.h"
#include "document/print.h"
#include "document/session_ends.h"
#include "drawing/arial_meter.h"
#include "files/file_names.h"
#include "platform/pdf_pages.h"
#include "platform/picture_files.h"
#include "platform/program_folder.h"
#include "platform/qt_store.h"
#include "session/dump.h"
#include "session/file_store.h"
#include "session/script.h"
#include "session/script_printer.h"

namespace pitchcraft {
namespace {

int Fail(const std::string& text, int status) {
  std::cerr << "pitchcraft-cli: " << text << '\n';
  return status;
}

/// DXF and metafile are the document's own exports, the rest are pictures of what it shows.
std::optional<std::string> WriteShownPicture(Document& document, const std::string& file) {
  const std::string extension = ExtensionOf(file);
  try {
    if (extension == ".dxf") {
      ExportDxf(document, file);
    } else if (extension == ".wmf") {
      ExportMetafile(document, file);
    } else {
      return WritePicture(ShownPicture(document), file);
    }
  } catch (const RunTimeError& error) {
    return error.Message() + ": " + file;
  }
  return std::nullopt;
}

/// The keyed settings: a file in the data folder, else the user's own.
struct Stores {
  std::unique_ptr<FileStore> file;
  std::unique_ptr<QtStore> user;

  explicit Stores(const std::string& data) {
    if (data.empty()) {
      user = std::make_unique<QtStore>();
    } else {
      file = std::make_unique<FileStore>(data);
    }
  }
  KeyedStore& Get() { return file ? static_cast<KeyedStore&>(*file) : *user; }
  bool Save() { return file ? file->Save() : user->Sync(); }
};

/// Settings that are read where they are and written nowhere: a project that is only looked at changes
/// nothing of the user's.
class LookedAtStore final : public MemoryStore {
 public:
  explicit LookedAtStore(const KeyedStore& real) : real_(real) {}
  std::optional<std::string> Get(const std::string& application, const std::string& section,
                                 const std::string& key) const override {
    const std::optional<std::string> own = MemoryStore::Get(application, section, key);
    return own ? own : real_.Get(application, section, key);
  }

 private:
  const KeyedStore& real_;
};

std::filesystem::path FolderOf(const std::string& data) {
  return data.empty() ? ProgramFolder() : std::filesystem::path(data);
}

void WriteSheet(const PrintedPage& page, const std::string& name, const std::filesystem::path& file) {
  WritePdf(page, ArialMeter(), name, file);
}

/// What a document of the driver stands in.
struct DriverSurroundings {
  DriverSurroundings(KeyedStore& settings, const std::string& data)
      : folder(FolderOf(data)),
        store(settings),
        printer(dialogs, std::cout, folder, &WriteSheet, ShortDateOfToday()) {}
  Surroundings Get() { return {dialogs, store, folder, &printer}; }

  std::filesystem::path folder;
  KeyedStore& store;
  ScriptDialogs dialogs{std::cout};
  ScriptPrinter printer;
};

/// What `calc`, `draw` and `print` are told.
struct ProjectRequest {
  std::string data;
  std::string project;
  int page = 0;
  std::string out;       ///< empty for `calc`
  bool onPaper = false;  ///< the page's sheet, not its drawing
};

/// Writes what the request asks for. Gives what went wrong, or nothing.
std::optional<std::string> WriteOut(Document& document, DriverSurroundings& around,
                                    const ProjectRequest& request) {
  if (!request.onPaper) return WriteShownPicture(document, request.out);
  around.printer.file = request.out;
  PrintPageShown(document);
  if (around.printer.sheetsPrinted > 0) return std::nullopt;
  return "no sheet was printed to " + request.out;
}

int ShowProject(const ProjectRequest& request) {
  Stores stores(request.data);
  LookedAtStore store(stores.Get());
  DriverSurroundings around(store, request.data);
  Document document(around.Get());
  Start(document);
  if (!OpenProject(document, request.project)) {
    std::cout.flush();
    return Fail("cannot open " + request.project, kWorkFailed);
  }
  if (request.out.empty()) {
    PrintEvent(std::cout, DumpOf(document));
  } else {
    if (const Refusal refusal = Actions(document).Page("VSTab(0)", request.page)) {
      return Fail(*refusal, kNotUnderstood);
    }
    if (const auto failure = WriteOut(document, around, request)) {
      std::cout.flush();
      return Fail(*failure, kWorkFailed);
    }
  }
  std::cout.flush();
  return std::cout ? kDone : Fail("the output could not be written", kWorkFailed);
}

int RunScript(const std::string& data, const std::string& scriptFile) {
  std::ifstream file;
  const bool fromFile = !scriptFile.empty() && scriptFile != "-";
  if (fromFile) {
    // A folder opens like a file and fails only when it is read.
    if (std::filesystem::is_directory(scriptFile)) return Fail(scriptFile + " is a folder", kWorkFailed);
    file.open(scriptFile, std::ios::binary);
    if (!file) return Fail("cannot read " + scriptFile, kWorkFailed);
  }
  Stores stores(data);
  DriverSurroundings around(stores.Get(), data);
  Document document(around.Get());
  Start(document);
  Script script(document, around.dialogs, std::cout, &WriteShownPicture);
  const int status = script.Run(fromFile ? file : std::cin);
  Close(document);
  std::cout.flush();
  if (!std::cout) return Fail("the output could not be written", kWorkFailed);
  if (!stores.Save()) return Fail("the settings could not be written", std::max(status, kWorkFailed));
  return status;
}

int Main(int argc, char** argv) {
  std::ios::sync_with_stdio(false);
  CLI::App app("Pitchcraft without its window: runs scripts of the roof-framing calculator.",
               "pitchcraft-cli");
  app.set_version_flag("--version", std::string("pitchcraft-cli ") + PITCHCRAFT_VERSION);
  app.require_subcommand(1);
  ProjectRequest request;
  std::string scriptFile;
  CLI::App* run = app.add_subcommand("run", "Runs a script and prints one JSON object a line");
  run->add_option("script", scriptFile, "Script file; standard input with - or none");
  CLI::App* calc = app.add_subcommand("calc", "Opens a project and prints all of it as one JSON object");
  CLI::App* draw = app.add_subcommand("draw", "Opens a project and writes the drawing of a page");
  CLI::App* print =
      app.add_subcommand("print", "Opens a project and prints the sheet of a page to a PDF file");
  for (CLI::App* command : {calc, draw, print}) {
    command->add_option("project", request.project, "Project file (.pcf)")->required();
  }
  for (CLI::App* command : {draw, print}) {
    command->add_option("--page", request.page, "Page, counted from 0")->required();
  }
  draw->add_option("--out", request.out, "Drawing to write: .dxf, .wmf, .svg, .png or .pdf")->required();
  print->add_option("--out", request.out, "PDF file to write")->required();
  for (CLI::App* command : {run, calc, draw, print}) {
    command
        ->add_option("--data", request.data, "Folder that holds lists and settings instead of the user's own")
        ->check(CLI::ExistingDirectory);
  }
  try {
    app.parse(argc, argv);
  } catch (const CLI::Success& success) {
    return app.exit(success);
  } catch (const CLI::ParseError& error) {
    return Fail(error.what(), kNotUnderstood);
  }
  if (run->parsed()) return RunScript(request.data, scriptFile);
  request.onPaper = print->parsed();
  if ((draw->parsed() || print->parsed()) && request.out.empty())
    return Fail("--out names no file", kNotUnderstood);
  return ShowProject(request);
}

}  // namespace
}  // namespace pitchcraft

int main(int argc, char** argv) {
  try {
    return pitchcraft::Main(argc, argv);
  } catch (const std::exception& error) {
    return pitchcraft::Fail(error.what(), pitchcraft::kWorkFailed);
  }
}
