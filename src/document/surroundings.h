// What the document needs from outside, as small interfaces that its owner hands in.
#pragma once

#include <filesystem>
#include <string>

#include "storage/keyed_store.h"

namespace pitchcraft {

/// Boxes that speak to the person. The window gives real ones, the driver scripted ones, a test recording
/// ones.
class Dialogs {
 public:
  virtual ~Dialogs() = default;
  /// A message with one button. Returns when it was read.
  virtual void MsgBox(const std::string& title, const std::string& text) = 0;
};

struct Surroundings {
  Dialogs& dialogs;
  KeyedStore& store;
  std::filesystem::path programFolder;  ///< holds the lists and the tips
};

}  // namespace pitchcraft
