// Menus and tool buttons show what the design holds.
#pragma once

#include "design/design.h"

namespace pitchcraft {

/// Check marks, pressed buttons and the captions that follow the units, from the choices of the design.
void ShowChoices(Design& design);

}  // namespace pitchcraft
