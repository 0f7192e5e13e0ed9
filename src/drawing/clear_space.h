// Whether there is room for a text in a drawing.
#pragma once

#include "drawing/recording.h"
#include "drawing/text_meter.h"

namespace pitchcraft {

/// True when no line and no text of the recording comes within `margin` drawing units of the text's letters.
bool IsClear(const Recording& recording, const TextMeter& meter, const TextOp& text, double margin);

}  // namespace pitchcraft
