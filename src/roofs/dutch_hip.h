// What only a Dutch hip can be told.
#pragma once

#include "design/design.h"

namespace pitchcraft {

/// Whether it hangs on a ledger was chosen. Calculates nothing.
void ChooseDutchLedger(Design& design, bool ledger);

}  // namespace pitchcraft
