// The drawing on the clipboard.
#pragma once

#include "platform/picture_files.h"

namespace pitchcraft {

/// Puts the picture there as an image and as SVG; whoever pastes takes what it knows. Raises "No metafile
/// defined!" where there is no finished drawing. Needs a running QGuiApplication.
void CopyToClipboard(const Picture& picture);

}  // namespace pitchcraft
