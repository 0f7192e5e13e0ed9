// Distances of the side view's dimensions, in twips of the finished picture, and their tiers in legs.
#pragma once

#include "drawings/drawing_measures.h"

namespace pitchcraft::elevation {

// Stacked lines, in legs from the wood. Two legs hold one line of text with some space around it.
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

inline constexpr double kTextUnderLine = 1.25 * measures::kGap + measures::kTextHeight;
/// Where Dimension2 puts the base line of a text beside a height, and where the text then begins.
inline constexpr double kAsideBase = measures::kTextHeight + 1.5 * measures::kGap;

}  // namespace pitchcraft::elevation
