#include "sheet/measure_control.h"

#include <cmath>

#include "core/number_text.h"

namespace pitchcraft {

void MeasureControl::SetValue(double value) {
  value_ = std::isfinite(value) ? value : 0;
  text_ = Format.ToText(value);
}

void MeasureControl::SetText(std::string_view text) {
  SetEntry(text);
  Redisplay();
}

void MeasureControl::SetEntry(std::string_view text) {
  text_ = text;
  value_ = Format.ToValue(text);
}

void MeasureControl::Redisplay() {
  if (!Trimmed(text_).empty()) text_ = Format.ToText(value_);
}

}  // namespace pitchcraft
