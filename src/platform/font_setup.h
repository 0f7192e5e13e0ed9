// The face that stands for "Arial", and what the toolkit needs before it can paint without a window.
#pragma once

#include <QFont>

namespace pitchcraft {

/// Liberation Sans, which has the widths of Arial: without kerning and hinting, so that a text is exactly as
/// wide as the built-in table says at every size. Its pixel size is a fixed, large one; a painter scales it.
QFont DrawingFont();

/// Sees to it that the face is there: where the desktop does not offer it, it is loaded from the usual places
/// and from the folder `fonts` beside the program. False when it is nowhere: another face stands in, and
/// texts are wider or narrower than drawn for. Needs a running QGuiApplication.
bool EnsureDrawingFont();

/// A toolkit without a screen, started when it is first needed: for programs that have no window and now and
/// then paint a picture. Does nothing where an application runs already.
void EnsureGui();

}  // namespace pitchcraft
