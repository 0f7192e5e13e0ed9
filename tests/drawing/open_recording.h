// An open recording with a pen and lettering, which most tests of this room use.
#pragma once

#include <vector>

#include "drawing/arial_meter.h"
#include "drawing/drawing_recorder.h"
#include "drawing/stroke_tool.h"
#include "drawing/text_tool.h"

namespace pitchcraft::testing {

class Recorder {
 public:
  Recorder() : meta(meter) {
    meta.Attach(drawFX, textFX);
    meta.Open();
  }
  template <typename Op>
  const Op& Last() const {
    return std::get<Op>(meta.Operations().back());
  }
  std::size_t Count() const { return meta.Operations().size(); }

  ArialMeter meter;
  StrokeTool drawFX;
  TextTool textFX;
  DrawingRecorder meta;
};

}  // namespace pitchcraft::testing
