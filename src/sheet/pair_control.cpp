#include "sheet/pair_control.h"

#include <cmath>
#include <utility>

#include "core/number_text.h"

namespace pitchcraft {

void PairControl::SetValues(double left, double right) {
  Show(left_, left);
  Show(right_, right);
  FindListIndex();
}

void PairControl::SetLeftText(std::string_view text) {
  Show(left_, Format.ToValue(text));
  FindListIndex();
}

void PairControl::SetRightText(std::string_view text) {
  Show(right_, Format.ToValue(text));
  FindListIndex();
}

void PairControl::SetEntry(std::string_view left, std::string_view right) {
  left_ = {Format.ToValue(left), std::string(left)};
  right_ = {Format.ToValue(right), std::string(right)};
  FindListIndex();
}

void PairControl::Redisplay() { SetValues(left_.Value, right_.Value); }

void PairControl::SetListIndex(int index) {
  if (index < 0 || index >= static_cast<int>(list_.size())) return;
  const PairRow& row = list_[static_cast<std::size_t>(index)];
  Show(left_, row.Left);
  Show(right_, row.Right);
  listIndex_ = index;
}

void PairControl::CopyPositionFrom(const PairControl& other) {
  const int index = other.listIndex_;
  const bool hasRow = index >= 0 && index < static_cast<int>(list_.size());
  if (hasRow) {
    SetListIndex(index);
  } else {
    SetValues(other.left_.Value, other.right_.Value);
  }
}

void PairControl::Clear() {
  list_.clear();
  listIndex_ = -1;
}

void PairControl::AddEntry(std::string_view text) {
  const std::size_t first = text.find('|');
  const std::size_t second = first == std::string_view::npos ? first : text.find('|', first + 1);
  if (second == std::string_view::npos) return;
  list_.push_back({std::string(text.substr(0, first)),
                   Format.ToValue(text.substr(first + 1, second - first - 1)),
                   Format.ToValue(text.substr(second + 1))});
}

void PairControl::SetList(std::vector<PairRow> rows) {
  list_ = std::move(rows);
  FindListIndex();
}

int PairControl::RowOf(std::string_view caption) const {
  for (std::size_t i = 0; i < list_.size(); ++i) {
    if (list_[i].Caption == caption) return static_cast<int>(i);
  }
  return -1;
}

void PairControl::Show(Side& side, double value) const {
  side.Value = std::isfinite(value) ? value : 0;
  side.Text = Format.ToText(value);
}

void PairControl::FindListIndex() {
  listIndex_ = -1;
  for (std::size_t i = 0; i < list_.size() && listIndex_ < 0; ++i) {
    // Calculated values come back as Singles: a row is the same size when it is the same Single.
    const bool same = static_cast<float>(list_[i].Left) == static_cast<float>(left_.Value) &&
                      static_cast<float>(list_[i].Right) == static_cast<float>(right_.Value);
    if (same) listIndex_ = static_cast<int>(i);
  }
}

}  // namespace pitchcraft
