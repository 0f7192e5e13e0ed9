// Scripts: one action a line, one JSON object for each thing that happens.
#pragma once

#include <deque>
#include <functional>
#include <istream>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>

#include "document/actions.h"
#include "document/document.h"
#include "session/json_number.h"

namespace pitchcraft {

/// Writes the drawing that the document shows to a file, format by extension. Gives what went wrong, or
/// nothing.
using PictureWriter = std::function<std::optional<std::string>(Document&, const std::string& file)>;

/// Exit statuses of the driver.
inline constexpr int kDone = 0;
inline constexpr int kWorkFailed = 1;
inline constexpr int kNotUnderstood = 2;

/// Dialogs that a script answers: a message becomes an event, a reply is taken from the queue. A dialog that
/// comes up with none queued is cancelled.
class ScriptDialogs final : public Dialogs {
 public:
  explicit ScriptDialogs(std::ostream& output) : output_(output) {}
  void MsgBox(const std::string& title, const std::string& text) override;
  std::optional<std::string> OpenFile(const FileDialog& dialog) override;
  std::optional<std::string> SaveFile(const FileDialog& dialog) override;
  std::optional<std::string> Input(const InputBox& box) override;
  /// A reply closes a form with its OK, in the field where it has one.
  void ShowForm(const AnyForm& form) override;

  /// Reports that a dialog came up, and takes the reply to it.
  std::optional<std::string> Answer(const char* kind, const std::string& title, const std::string& name);

  /// Replies to the dialogs to come; no value is Cancel.
  std::deque<std::optional<std::string>> answers;

 private:
  std::ostream& output_;
};

class Script {
 public:
  Script(Document& document, ScriptDialogs& dialogs, std::ostream& output, PictureWriter writePicture);

  /// Runs every line to the end of the input, or until the document closes. A line that is not understood or
  /// refused is reported as an error event, and the next one follows. Returns the exit status.
  int Run(std::istream& input);
  /// Runs one line.
  void RunLine(std::string_view line);

 private:
  Refusal Perform(std::string_view verb, std::string_view rest);
  Refusal Mouse(std::string_view rest);
  Refusal Size(std::string_view rest);
  Refusal Answer(std::string_view rest);
  Refusal Picture(std::string_view rest);
  Refusal Dump(std::string_view rest);
  void Error(const std::string& text, int status);

  Document& document_;
  ScriptDialogs& dialogs_;
  std::ostream& output_;
  PictureWriter writePicture_;
  Actions actions_;
  int line_ = 0;
  int status_ = kDone;
};

/// One JSON object on a line of its own.
void PrintEvent(std::ostream& output, const Json& event);

}  // namespace pitchcraft
