// The last four projects in the File menu.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "sheet/menus.h"
#include "storage/keyed_store.h"

namespace pitchcraft {

/// Keeps captions ("&1 " and the shortened path) and full paths in the store, under AppName and Section. The
/// caption shows the path in proper case; the path itself is opened unchanged, because case matters on some
/// disks. "/" separates folders like "\".
class RecentFileList {
 public:
  static constexpr std::size_t kPlaces = 4;

  explicit RecentFileList(KeyedStore& store) : store_(store) {}

  std::array<MenuItem*, kPlaces> Items{};  ///< the menu items; none of them may be null while in use
  std::string AppName = "Rafter";
  std::string Section = "MRU";
  bool ProperCase = true;

  int MenuLength() const { return menuLength_; }
  /// A length of 0 or less is ignored.
  void SetMenuLength(int length);

  /// Shows the stored files in the menu items; an item without a file is hidden.
  void Load();
  /// Puts a file first and moves the others down; no file appears twice.
  void AddNewFile(const std::string& path);
  /// The full path for the item with this index, counted from 0; empty if there is none.
  std::string Selected(int index) const;

  /// Shortens a path to about `length` letters: its first three, "...", and the last folders with the name.
  static std::string ShortenedPath(const std::string& path, int length);
  /// Makes the first letter of each word a capital and the others small. A word begins after a blank or a
  /// separator.
  std::string InProperCase(const std::string& text) const;
  /// Lets go of the menu items.
  void Destroy() { Items = {}; }

 private:
  struct Entry {
    std::string name;  // the caption without "&1 "
    std::string path;
  };
  Entry Read(std::size_t place) const;
  void Write(std::size_t place, const Entry& entry);

  KeyedStore& store_;
  int menuLength_ = 60;
};

}  // namespace pitchcraft
