// pitchcraft-cli: the document without its window, for scripts, batches and reproducible reports.
#include <CLI/CLI.hpp>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <memory>
#include <string>

#include "cli/file_store.h"
#include "cli/script.h"
#include "platform/picture_files.h"
#include "platform/qt_store.h"

namespace pitchcraft {
namespace {

int Fail(const std::string& text, int status) {
  std::cerr << "pitchcraft-cli: " << text << '\n';
  return status;
}

std::optional<std::string> WriteShownPicture(const frmDocument& document, const std::string& file) {
  return WritePicture(ShownPicture(document), file);
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
  ScriptDialogs dialogs(std::cout);
  frmDocument document({dialogs, stores.Get(), data});
  document.Form_Load();
  Script script(document, dialogs, std::cout, &WriteShownPicture);
  const int status = script.Run(fromFile ? file : std::cin);
  document.Form_Unload();
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
  std::string data;
  std::string scriptFile;
  CLI::App* run = app.add_subcommand("run", "Runs a script and prints one JSON object a line");
  run->add_option("--data", data, "Folder that holds lists and settings instead of the user's own")
      ->check(CLI::ExistingDirectory);
  run->add_option("script", scriptFile, "Script file; standard input with - or none");
  try {
    app.parse(argc, argv);
  } catch (const CLI::Success& success) {
    return app.exit(success);
  } catch (const CLI::ParseError& error) {
    return Fail(error.what(), kNotUnderstood);
  }
  return RunScript(data, scriptFile);
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
