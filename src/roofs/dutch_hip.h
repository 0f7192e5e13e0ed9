// What only a Dutch hip can be told.
#pragma once

#include "design/design.h"

namespace pitchcraft {

/// Whether it hangs on a ledger was chosen.
void ChooseDutchLedger(Design& design, Reply& reply, bool ledger);

}  // namespace pitchcraft
