// What only a bay roof can be told.
#pragma once

#include "design/design.h"

namespace pitchcraft {

/// One of the four dimensions was entered: the missing one is solved and the bay calculated.
void BayDimensionEntered(Design& design, Reply& reply);

}  // namespace pitchcraft
