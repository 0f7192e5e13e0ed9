// The look of the program's widgets.
#pragma once

namespace pitchcraft {

/// The same on every desktop, in the desktop's colours, with boxes that can be seen. Call it before the
/// application is made.
void UseProgramStyle();

}  // namespace pitchcraft
