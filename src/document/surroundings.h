// What the document needs from outside, as small interfaces that its owner hands in.
#pragma once

#include <filesystem>
#include <optional>
#include <string>

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
};

struct Surroundings {
  Dialogs& dialogs;
  KeyedStore& store;
  std::filesystem::path programFolder;  ///< holds the lists and the tips
};

}  // namespace pitchcraft
