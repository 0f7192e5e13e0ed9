// The labels of the two ends of a hip or valley rafter, as seen from below.
#pragma once

#include <string>
#include <vector>

#include "core/trade.h"
#include "drawings/elevation_member.h"

namespace pitchcraft {

/// The rows of either end from the top down: one for both cheeks, or one for each; none for a square end.
struct EndLabels {
  std::vector<std::string> Tail;
  std::vector<std::string> Ridge;
};

EndLabels EndLabelsOf(Member type, const ElevationMember& member);

}  // namespace pitchcraft
