// A recording that is open, with a pen and lettering on it: what most tests of this room draw on.
#pragma once

#include <vector>

#include "drawing/arial_meter.h"
#include "drawing/draw_fx.h"
#include "drawing/meta_file.h"
#include "drawing/text_fx.h"

namespace pitchcraft::testing {

class Recorder {
 public:
  Recorder() : meta(meter) {
    meta.Attach(drawFX, textFX);
    meta.MetaCreate();
  }
  template <typename Op>
  const Op& Last() const {
    return std::get<Op>(meta.Operations().back());
  }
  std::size_t Count() const { return meta.Operations().size(); }

  ArialMeter meter;
  CDrawFX drawFX;
  CTextFX textFX;
  CMetaFile meta;
};

}  // namespace pitchcraft::testing
