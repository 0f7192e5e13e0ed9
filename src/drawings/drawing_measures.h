// Distances that the drawings share, in twips of the finished picture.
#pragma once

#include "drawing/text_meter.h"

namespace pitchcraft::measures {

inline constexpr int kAligned = 1;
inline constexpr int kHorizontal = 2;
inline constexpr int kVertical = 3;

inline constexpr int kDashed = 2;

inline constexpr double kGap = 120;
inline constexpr double kArrow = 160;
inline constexpr double kOutsideArrow = 2 * kArrow;
inline constexpr double kTextHeight = 240;
inline constexpr double kCapital = kTextHeight * kCapitalPerCell;
/// The least distance between a text and a line.
inline constexpr double kClear = 60;
inline constexpr double kRoomForArrows = 2.5 * kTextHeight;

}  // namespace pitchcraft::measures
