// The unit system.
#pragma once

#include "document/document.h"

namespace pitchcraft {

/// Switches to a unit system, which may be the present one. Nothing is converted: what was entered is
/// discarded, and a common gable begins with the defaults of the system.
void SwitchUnits(Document& document, Reply& reply, bool metric);
/// The two menu items are one toggle, whichever was clicked.
void ToggleUnits(Document& document, int = 0);

}  // namespace pitchcraft
