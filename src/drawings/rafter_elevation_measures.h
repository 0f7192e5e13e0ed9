// Distances of the side view's dimensions in twips of the finished picture, and their tiers in legs.
#pragma once

#include "drawing/text_meter.h"

namespace pitchcraft::elevation {

inline constexpr int kAligned = 1;
inline constexpr int kHorizontal = 2;
inline constexpr int kVertical = 3;

// Stacked lines, in legs from the wood. Two legs are one line of text with air around it.
inline constexpr double kFirstTier = 1;
inline constexpr double kSecondTier = 4;
inline constexpr double kThirdTier = 7;
inline constexpr double kFirstTierBelow = 3;
inline constexpr double kSecondTierBelow = 7;
inline constexpr double kTailTier = 4;
inline constexpr double kHeelTier = 2;
inline constexpr double kHeightTier = 3;
inline constexpr double kKneewallTier = 2;
inline constexpr double kWholeHeightTier = 7;

inline constexpr double kGap = 120;
inline constexpr double kArrow = 160;
inline constexpr double kOutsideArrow = 2 * kArrow;
inline constexpr double kTextHeight = 240;
inline constexpr double kCapital = kTextHeight * kCapitalPerCell;
inline constexpr double kTextUnderLine = 1.25 * kGap + kTextHeight;
/// Where Dimension2 sets the base line of a text that stands aside of a height, and where the text then
/// begins.
inline constexpr double kAsideBase = kTextHeight + 1.5 * kGap;
/// The least distance of a text from a line.
inline constexpr double kClear = 60;
inline constexpr double kRoomForArrows = 2.5 * kTextHeight;

}  // namespace pitchcraft::elevation
