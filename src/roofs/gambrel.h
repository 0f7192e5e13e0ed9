// What only a gambrel can be told.
#pragma once

#include "design/design.h"

namespace pitchcraft {

void ChooseGambrelKind(Design& design, Reply& reply, GambrelKind kind);
void ChooseGambrelSupport(Design& design, Reply& reply, GambrelSupport support);
/// The height of the upper roof's fascia was entered; it cannot be more than the lumber gives.
void UpperFasciaEntered(Design& design, Reply& reply);
/// A lock box was clicked: the one that is ticked names the quantity that follows from the others.
void GambrelLockClicked(Design& design, std::size_t which);
/// Leaving a gambrel: its boxes go, and the run and slope from before it come back.
void LeaveGambrel(Design& design);

}  // namespace pitchcraft
