// The measurement field: a number in base units behind a text that a carpenter reads and types.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "measure/measure_converter.h"
#include "sheet/control.h"

namespace pitchcraft {

/// A field for a length or an angle. Rounding touches what is shown, never Value: 19.2 typed stays 19.2. A
/// number that is infinite or undefined is shown as such and reads back as 0, so that it cannot enter a
/// calculation again.
class MeasureControl : public Control {
 public:
  MeasureConverter Format;
  std::uint32_t ForeColor = 0;  ///< follows from the two flags below and the preferences
  std::uint32_t BackColor = 0;
  bool ReadOnly = false;    ///< takes no typing
  bool Calculated = false;  ///< its value was derived from the other fields
  bool Grayed = false;      ///< its box was unticked: the text is that of something switched off

  double Value() const { return value_; }
  void SetValue(double value);

  const std::string& Text() const { return text_; }
  /// Reads the text in base units and shows the value in the field's own form; an empty text stays empty.
  void SetText(std::string_view text);

  /// What a person has put in so far: it stays as typed, and Value already follows it.
  void SetEntry(std::string_view text);
  /// Shows the value in the field's own form again, as a field does when it is left.
  void Redisplay();

 private:
  double value_ = 0;
  std::string text_;
};

}  // namespace pitchcraft
