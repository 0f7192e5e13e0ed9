// A combo box: a text with a list below it, or a list alone.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "sheet/control.h"

namespace pitchcraft {

/// The text and the list position are one fact: a text that stands in the list takes its position, any other
/// is -1.
class ComboControl : public Control {
 public:
  bool DropDownList = false;  ///< only rows of the list can be shown
  bool Locked = false;        ///< takes no entry

  const std::string& Text() const { return text_; }
  void SetText(std::string_view text);

  int ListIndex() const { return listIndex_; }
  /// Shows that row; -1 shows none. A position that the list does not have changes nothing.
  void SetListIndex(int index);

  const std::vector<std::string>& List() const { return list_; }
  void SetList(std::vector<std::string> list);
  /// The first row with that caption, or -1.
  int RowOf(std::string_view caption) const;

  /// Takes the other's list position, or its text where this list has no such row.
  void CopyPositionFrom(const ComboControl& other);

 private:
  std::string text_;
  int listIndex_ = -1;
  std::vector<std::string> list_;
};

}  // namespace pitchcraft
