// The printer of a script: each sheet becomes a file and an event.
#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <ostream>
#include <string>

#include "document/surroundings.h"
#include "session/script.h"

namespace pitchcraft {

/// Writes a page to a file. Raises RunTimeError where it could not be written.
using PageWriter =
    std::function<void(const PrintedPage&, const std::string& name, const std::filesystem::path& file)>;

class ScriptPrinter final : public PrintService {
 public:
  /// Sheets go to print.pdf in `folder` as long as no reply names another file.
  ScriptPrinter(ScriptDialogs& dialogs, std::ostream& output, const std::filesystem::path& folder,
                PageWriter writePage, std::string today);

  void ShowSetup() override;
  Paper NextPaper(bool metric) override { return metric ? kA4Paper : kLetterPaper; }
  /// A queued reply is the file of this sheet; a queued Cancel calls it off.
  void Send(const PrintedPage& page, const std::string& name) override;
  std::string Today() override { return today_; }

  std::string file;  ///< of the sheets to come
  int sheetsPrinted = 0;

 private:
  ScriptDialogs& dialogs_;
  std::ostream& output_;
  PageWriter writePage_;
  std::string today_;
};

}  // namespace pitchcraft
