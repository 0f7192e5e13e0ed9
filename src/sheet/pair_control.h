// The field of two values with a list: thickness by depth of lumber, or rise over run of a slope.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "measure/measure_converter.h"
#include "sheet/control.h"

namespace pitchcraft {

/// One row of the list: what it is called and the two values that it stands for.
struct PairRow {
  std::string Caption;
  double Left = 0;
  double Right = 0;
};

/// The values and the list position are one fact: values that stand in the list take the position of their
/// first row, any others are -1. Values that are infinite or undefined are shown as such and read back as 0.
class PairControl : public Control {
 public:
  MeasureConverter Format;
  std::uint32_t ForeColor = 0;
  std::uint32_t BackColor = 0;
  bool Locked = false;  ///< takes no entry

  double LeftValue() const { return left_.Value; }
  double RightValue() const { return right_.Value; }
  void SetLeftValue(double value) { SetValues(value, right_.Value); }
  void SetRightValue(double value) { SetValues(left_.Value, value); }
  void SetValues(double left, double right);

  const std::string& LeftText() const { return left_.Text; }
  const std::string& RightText() const { return right_.Text; }
  void SetLeftText(std::string_view text);
  void SetRightText(std::string_view text);

  /// What a person has put in so far: both texts stay as typed, and the values already follow them.
  void SetEntry(std::string_view left, std::string_view right);
  /// Shows the values in the field's own form again, as a field does when it is left.
  void Redisplay();

  int ListIndex() const { return listIndex_; }
  /// Shows that row. A position that the list does not have changes nothing.
  void SetListIndex(int index);
  /// Takes the other's list position, or its values where this list has no such row.
  void CopyPositionFrom(const PairControl& other);

  const std::vector<PairRow>& List() const { return list_; }
  void Clear();
  /// Adds "name|left|right" to the list. A text without two bars is no row and is skipped.
  void AddEntry(std::string_view text);
  void SetList(std::vector<PairRow> rows);
  /// The first row with that caption, or -1.
  int RowOf(std::string_view caption) const;

 private:
  struct Side {
    double Value = 0;
    std::string Text;
  };
  void Show(Side& side, double value) const;
  void FindListIndex();

  Side left_;
  Side right_;
  int listIndex_ = -1;
  std::vector<PairRow> list_;
};

}  // namespace pitchcraft
