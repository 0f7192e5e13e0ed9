// A recording with every operation, as the recorder would leave it.
#pragma once

#include "drawing/recording.h"
#include "output/placeable_metafile.h"

namespace pitchcraft::testing {

inline TextOp SampleText(DrawnPoint at, std::string text, double angle, int align) {
  return {at, std::move(text), 60, angle, align, 0x00FFFF, "Arial", false, false};
}

/// 1440 by 720 drawing units from (-100, -100).
inline Recording SampleRecording() {
  const DrawnPen white{0xFFFFFF, 0, 0};
  const DrawnPen dashed{0x0000FF, 2, 0};
  const DrawnPen thick{0x00FF00, 0, 12};
  const DrawnBrush open{0, 1};
  return {LineOp{{0, 0}, {1200, 0}, white},
          LineOp{{1200, 0}, {1200, 500}, white},
          LineOp{{1200, 500}, {0, 0}, white},
          LineOp{{600, -80}, {600, 400}, dashed},
          SampleText({0, 610}, "Shed 26.6º – \"left above\"", 0, 0),
          SampleText({1200, 560}, "right", 0, 26),
          SampleText({500, 240}, "along the slope", 22.6, 30),
          SampleText({1300, 250}, "upright", 90, 24),
          TextOp{{600, 520}, "bold italic", 60, 0, 6, 0xFFFF00, "Arial", true, true},
          FillOp{{{900, 60}, {1100, 60}, {1000, 160}}, {0x800080, 0}},
          FillOp{{{700, 60}, {860, 60}, {780, 160}}, {0x008080, 2}},
          EllipseOp{{20, 300}, {220, 400}, thick, {0x404040, 0}},
          ArcOp{{250, 300}, {450, 500}, {450, 400}, {350, 500}, white},
          RectangleOp{{20, 420}, {120, 480}, 0, white, open},
          RectangleOp{{140, 420}, {240, 480}, 20, white, open}};
}

inline MetafileFrame SampleFrame() { return {-100, -100, 1440, 720, true, 0x000000}; }

}  // namespace pitchcraft::testing
