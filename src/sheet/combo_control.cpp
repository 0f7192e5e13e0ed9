#include "sheet/combo_control.h"

#include <algorithm>
#include <utility>

namespace pitchcraft {

void ComboControl::SetText(std::string_view text) {
  text_ = text;
  listIndex_ = RowOf(text);
}

void ComboControl::SetListIndex(int index) {
  if (index < -1 || index >= static_cast<int>(list_.size())) return;
  listIndex_ = index;
  text_ = index < 0 ? std::string() : list_[static_cast<std::size_t>(index)];
}

void ComboControl::SetList(std::vector<std::string> list) {
  list_ = std::move(list);
  listIndex_ = RowOf(text_);
}

int ComboControl::RowOf(std::string_view caption) const {
  const auto row = std::find(list_.begin(), list_.end(), caption);
  return row == list_.end() ? -1 : static_cast<int>(row - list_.begin());
}

void ComboControl::CopyPositionFrom(const ComboControl& other) {
  const int index = other.listIndex_;
  const bool hasRow = index >= 0 && index < static_cast<int>(list_.size());
  if (hasRow) {
    SetListIndex(index);
  } else {
    SetText(other.text_);
  }
}

}  // namespace pitchcraft
