// From the layout's twips to the window's logical pixels.
#pragma once

#include <QRect>
#include <cmath>

#include "document/form_layout.h"

namespace pitchcraft {

inline constexpr int kTwipsPerPixel = 15;

inline int ToPixels(double twips) { return static_cast<int>(std::lround(twips / kTwipsPerPixel)); }

inline QRect ToRect(const Area& area) {
  return {ToPixels(area.Left), ToPixels(area.Top), ToPixels(area.Width), ToPixels(area.Height)};
}

}  // namespace pitchcraft
