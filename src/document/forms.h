// The forms that come up over the document, as plain state: whoever shows one fills it in and presses its
// buttons.
#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "document/options_form.h"
#include "sheet/measure_control.h"
#include "storage/keyed_store.h"

namespace pitchcraft {

/// Asks for the step of the spin buttons, in the unit system of the document.
struct IncrementForm {
  static constexpr const char* kName = "frmIncrement";
  static constexpr const char* kTitle = "Increment Amount";
  static constexpr const char* kLabel1 = "Enter a new increment amount:";

  MeasureControl Increment;
  bool Accepted = false;  ///< closed with OK
};

/// What the program is.
struct AboutForm {
  static constexpr const char* kName = "frmAbout";
  static constexpr const char* kTitle = "About Pitchcraft";

  std::string Version;
  std::string Description;
  std::string Disclaimer;
};

/// Who answers for a roof. Comes up at the start of the window.
class DisclaimerForm {
 public:
  static constexpr const char* kName = "frmDisclaimer";
  static constexpr const char* kTitle = "DISCLAIMER";
  static constexpr const char* kBox = "&Don't show this screen again";

  explicit DisclaimerForm(KeyedStore& store);
  static std::string Text();
  bool Ticked() const { return ticked_; }
  /// Stores what the box shows as it stands: the ticked box is stored as 1, and a 1 keeps the screen coming.
  /// To be rid of the screen takes a second click, so nobody loses it by an accident.
  void Click(bool ticked);

 private:
  KeyedStore& store_;
  bool ticked_ = false;
};

/// Shows one tip of a file with a tip a line, beginning anywhere.
class TipForm {
 public:
  static constexpr const char* kName = "frmTip";
  static constexpr const char* kTitle = "Tip of the Day";
  static constexpr const char* kHeading = "Did you know...";
  static constexpr const char* kBox = "&Show Tips at Startup";
  static constexpr const char* kFile = "TIPOFDAY.TXT";

  /// Takes the first of the folders that holds the file.
  TipForm(KeyedStore& store, const std::vector<std::filesystem::path>& folders, unsigned seed);
  const std::string& TipText() const { return text_; }
  std::size_t TipCount() const { return tips_.size(); }
  void NextTip();
  bool ShowsAtStartup() const { return ticked_; }
  void Click(bool ticked);
  void Unload() const;

 private:
  void DisplayCurrentTip();

  KeyedStore& store_;
  std::vector<std::string> tips_;
  std::size_t current_ = 0;
  std::string text_;
  bool ticked_ = false;
};

}  // namespace pitchcraft
