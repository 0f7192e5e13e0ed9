// Widths of Arial, from the table of the metric-compatible face that stands in for it.
#pragma once

#include "drawing/text_meter.h"

namespace pitchcraft {

/// Needs no font engine. Kerning is not counted; a painter switches it off.
class ArialMeter : public TextMeter {
 public:
  double TextWidth(std::string_view text, const TextFace& face) const override;
};

}  // namespace pitchcraft
