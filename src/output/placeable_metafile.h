// A recording as a placeable Windows metafile (.wmf).
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

#include "drawing/recording.h"

namespace pitchcraft {

/// The part of a recording that the picture shows, in drawing units, and the paper under it.
struct MetafileFrame {
  std::int32_t Left = 0;
  std::int32_t Top = 0;  ///< the least y
  std::int32_t Width = 0;
  std::int32_t Height = 0;
  /// Whether y grows upward in the picture: true for a recording as the screen shows it. The extent of the
  /// window is then negative.
  bool Upward = true;
  /// A picture with another colour than white gets a filled ground: players show white paper, and the light
  /// lines of a dark drawing would be lost on it.
  DrawColor BackColor = 0xFFFFFF;
};

/// The bytes of the file. A metafile counts in 16 bits: a recording that reaches further is scaled down,
/// never cut or wrapped. The longer side is 8 inches.
std::string PlaceableMetafile(const Recording& recording, const MetafileFrame& frame);

/// Writes the file as a whole. Raises "Path not found" (76) or "Path/File access error" (75); an old file is
/// untouched then.
void SaveMetafile(const std::filesystem::path& path, const Recording& recording, const MetafileFrame& frame);

}  // namespace pitchcraft
