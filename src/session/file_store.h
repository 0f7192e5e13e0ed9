// The keyed settings of a data folder, in one file.
#pragma once

#include <filesystem>
#include <string>

#include "storage/keyed_store.h"

namespace pitchcraft {

/// Reads `settings.json` of the folder once; what cannot be read counts as not stored. Save() replaces the
/// file whole.
class FileStore final : public MemoryStore {
 public:
  explicit FileStore(const std::filesystem::path& folder);

  void Set(const std::string& application, const std::string& section, const std::string& key,
           const std::string& text) override;
  /// False when the file could not be written; the old one is then untouched.
  bool Save() const;

 private:
  std::filesystem::path file_;
  bool changed_ = false;
};

}  // namespace pitchcraft
