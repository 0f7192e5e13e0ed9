// The face used for "Arial", and what the toolkit needs to paint without a window.
#pragma once

#include <QFont>

namespace pitchcraft {

/// Liberation Sans, which has the widths of Arial. Without kerning and hinting, so that at every size a text
/// is exactly as wide as in the built-in table. Its pixel size is fixed and large; a painter scales it.
QFont DrawingFont();

/// Makes sure that the face is available: if the desktop does not have it, loads it from the usual places and
/// from the folder `fonts` beside the program. False if it is nowhere; another face is then used, and texts
/// come out wider or narrower than planned. Needs a running QGuiApplication.
bool EnsureDrawingFont();

/// Starts the toolkit without a screen when it is first needed, for programs that have no window but
/// sometimes paint a picture. Does nothing if an application is already running.
void EnsureGui();

}  // namespace pitchcraft
