// How the two ends of a hip or valley rafter are beveled, as seen from below.
#pragma once

#include <optional>

#include "core/rafter_type.h"

namespace pitchcraft {

/// A point fits into a corner, a notch over one.
enum class EndCut { kPoint, kNotch, kOneSided, kSquare };

struct BeveledEnds {
  EndCut Ridge;
  EndCut Tail;
};

/// Nothing for a member whose ends are square.
std::optional<BeveledEnds> EndsOf(RafterType type);

/// "45º bevels"; empty for a square end.
const char* BevelLabel(EndCut cut);

}  // namespace pitchcraft
