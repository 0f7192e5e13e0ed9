// Back, face, projection and angle of a bay: any three give the fourth. A Dutch hip is a bay with square
// corners.
#pragma once

#include "design/design.h"

namespace pitchcraft {

enum class BaySolution {
  kIncomplete,  ///< a dimension is missing, or was refused with a message
  kHipsCross,   ///< the hips would meet before the ridge
  kSolved,
};

inline constexpr const char* kHipsCrossText = "Not possible... Hip rafters will cross!";

/// Fills the first of the four fields that reads 0 from the three others.
BaySolution SolveBay(Design& design, Reply& reply);

/// The dimensions of the sheet into the record that carries the bay. They are solved.
void HandBayTo(Rafter& rafter, const Design& design);

/// Empties the four fields for a new start.
void ResetBay(Design& design, Reply& reply);

}  // namespace pitchcraft
