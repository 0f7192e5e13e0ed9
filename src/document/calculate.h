// What most steps end in.
#pragma once

#include "design/design.h"

namespace pitchcraft {

/// Calculates the roof with every entry that waits.
void CalculateNow(Design& design, Reply& reply, int = 0);

/// The spacing of rafters and jacks.
void SetSpacing(Design& design, Single spacing);

}  // namespace pitchcraft
