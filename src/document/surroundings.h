// What the document needs from outside, as small interfaces that its owner hands in.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <variant>

#include "output/printed_page.h"
#include "storage/keyed_store.h"

namespace pitchcraft {

/// What a file dialog comes up with.
struct FileDialog {
  std::string Title;
  std::filesystem::path Folder;
  std::string Name;              ///< that it offers
  std::string DefaultExtension;  ///< without the point
  std::string Filter;            ///< captions and patterns in turn, with bars between them
  bool MustExist = false;        ///< only a file that is there can be chosen
  bool AsksBeforeReplacing = false;
};

/// A box that asks for one line.
struct InputBox {
  std::string Title;
  std::string Prompt;
  std::string Name;  ///< that it offers
};

struct IncrementForm;
struct AboutForm;
struct OptionsForm;
class DisclaimerForm;
class TipForm;
/// A form of the product; see document/forms.h.
using AnyForm = std::variant<IncrementForm*, AboutForm*, DisclaimerForm*, TipForm*, OptionsForm*>;

/// Boxes that speak to the person. The window gives real ones, the driver scripted ones, a test recording
/// ones.
class Dialogs {
 public:
  virtual ~Dialogs() = default;
  /// A message with one button. Returns when it was read.
  virtual void MsgBox(const std::string& title, const std::string& text) = 0;
  /// The rest ask for something; nothing is Cancel, and that is what they give where nobody can answer.
  virtual std::optional<std::string> OpenFile(const FileDialog&) { return std::nullopt; }
  virtual std::optional<std::string> SaveFile(const FileDialog&) { return std::nullopt; }
  virtual std::optional<std::string> Input(const InputBox&) { return std::nullopt; }
  /// Shows a form and returns when it was closed; what its buttons do is the form's.
  virtual void ShowForm(const AnyForm&) {}
};

/// The printer: what it prints on, and where its sheets go.
class PrintService {
 public:
  virtual ~PrintService() = default;
  /// The box that chooses printer and paper. Has no other effect.
  virtual void ShowSetup() = 0;
  /// The paper that the next sheet comes on. Where no printer says: A4 for a metric document, else Letter.
  virtual Paper NextPaper(bool metric) = 0;
  /// Sends one sheet. `name` is the job's. Raises RunTimeError with what went wrong; a sheet that the person
  /// calls off is none.
  virtual void Send(const PrintedPage& page, const std::string& name) = 0;
  /// Today in the system's short form.
  virtual std::string Today() = 0;
};

/// The feet-and-inches calculator, a program of its own.
class CalculatorService {
 public:
  virtual ~CalculatorService() = default;
  /// Starts it, or brings the running one to the front. False where it cannot be started.
  virtual bool Open(bool metric) = 0;
};

enum class HelpPlace { kContents, kGlossary, kSearch, kTopic };

/// The pages of help.
class HelpService {
 public:
  virtual ~HelpService() = default;
  /// `topic` is the number of the roof type's page. False where there are no pages.
  virtual bool Show(HelpPlace place, int topic) = 0;
};

struct Surroundings {
  Dialogs& dialogs;
  KeyedStore& store;
  std::filesystem::path programFolder;  ///< holds the lists and the tips
  PrintService* printer = nullptr;      ///< none where nothing can be printed
  std::filesystem::path dataFolder{};   ///< came with the program; serves where its folder has no such file
  CalculatorService* calculator = nullptr;
  HelpService* help = nullptr;
};

}  // namespace pitchcraft
