#include "session/script_printer.h"

#include <utility>

namespace pitchcraft {

ScriptPrinter::ScriptPrinter(ScriptDialogs& dialogs, std::ostream& output,
                             const std::filesystem::path& folder, PageWriter writePage, std::string today)
    : file((folder / "print.pdf").string()),
      dialogs_(dialogs),
      output_(output),
      writePage_(std::move(writePage)),
      today_(std::move(today)) {}

void ScriptPrinter::ShowSetup() {
  if (const auto answer = dialogs_.Answer("printer", "Page Setup", file); answer && !answer->empty())
    file = *answer;
}

void ScriptPrinter::Send(const PrintedPage& page, const std::string& name) {
  std::string target = file;
  if (!dialogs_.answers.empty()) {
    const std::optional<std::string> answer = std::move(dialogs_.answers.front());
    dialogs_.answers.pop_front();
    if (!answer) return;
    if (!answer->empty()) target = *answer;
  }
  writePage_(page, name, target);
  ++sheetsPrinted;
  PrintEvent(output_, {{"event", "printed"}, {"file", target}});
}

}  // namespace pitchcraft
