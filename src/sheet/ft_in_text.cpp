#include "sheet/ft_in_text.h"

#include <cmath>

#include "core/number_text.h"

namespace pitchcraft {

void FtInText::SetValue(double value) {
  value_ = std::isfinite(value) ? value : 0;
  text_ = Format.ToText(value);
}

void FtInText::SetText(std::string_view text) {
  SetEntry(text);
  Redisplay();
}

void FtInText::SetEntry(std::string_view text) {
  text_ = text;
  value_ = Format.ToValue(text);
}

void FtInText::Redisplay() {
  if (!Trimmed(text_).empty()) text_ = Format.ToText(value_);
}

}  // namespace pitchcraft
