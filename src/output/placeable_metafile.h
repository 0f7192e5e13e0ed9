// A recording as a placeable Windows metafile (.wmf).
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

#include "drawing/recording.h"

namespace pitchcraft {

/// The part of a recording that the picture shows, in drawing units, and the colour behind it.
struct MetafileFrame {
  std::int32_t Left = 0;
  std::int32_t Top = 0;  ///< the least y
  std::int32_t Width = 0;
  std::int32_t Height = 0;
  /// y grows upward in the picture, as in a recording for the screen. The extent of the window is then
  /// negative.
  bool Upward = true;
  /// Any colour but white fills the background: players show white paper, on which the light lines of a dark
  /// drawing would be lost.
  DrawColor BackColor = 0xFFFFFF;
};

/// The bytes of the file. A metafile counts in 16 bits: a recording that reaches further is scaled down,
/// never cut off or wrapped around. The longer side is 8 inches.
std::string PlaceableMetafile(const Recording& recording, const MetafileFrame& frame);

/// Writes the whole file. Raises "Path not found" (76) or "Path/File access error" (75); an old file then
/// stays as it was.
void SaveMetafile(const std::filesystem::path& path, const Recording& recording, const MetafileFrame& frame);

}  // namespace pitchcraft
