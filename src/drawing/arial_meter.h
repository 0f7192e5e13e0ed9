// Text widths of Arial, from a table of the metric-compatible face that replaces it.
#pragma once

#include "drawing/text_meter.h"

namespace pitchcraft {

/// Needs no font engine. Leaves out kerning, so a painter must switch it off.
class ArialMeter : public TextMeter {
 public:
  double TextWidth(std::string_view text, const TextFace& face) const override;
};

}  // namespace pitchcraft
