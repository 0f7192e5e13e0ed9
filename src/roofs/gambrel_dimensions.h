// The measures of a gambrel, kept consistent: told what was changed, the others follow.
#pragma once

#include "design/design.h"

namespace pitchcraft {

enum class GambrelChange {
  kLowerSpan,
  kUpperSpan,
  kLowerHeight,
  kUpperHeight,
  kLowerSlope,
  kUpperSlope,
  kOther
};

/// Solves the measures and calculates both rafters.
void SolveGambrel(Design& design, GambrelChange changed);

}  // namespace pitchcraft
