// Copies the drawing to the clipboard.
#pragma once

#include "platform/picture_files.h"

namespace pitchcraft {

/// Puts the picture on the clipboard as an image and as SVG; the program that pastes picks one. Raises "No
/// metafile defined!" if there is no finished drawing. Needs a running QGuiApplication.
void CopyToClipboard(const Picture& picture);

}  // namespace pitchcraft
