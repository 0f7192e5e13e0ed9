// The words in the plan and the layout of a hip roof, the same on screen, on paper and in DXF: the slopes,
// the text at the foot of a rafter, and the rules of the layout in their order.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "core/rafter.h"
#include "drawings/hip_layout.h"

namespace pitchcraft {

enum class HipNoteKind {
  kLongestEdge,
  kWithOverhang,
  kWithoutOverhang,
  kFromCenter,
  kFromCorners,
  kFlushFromCorners,
  kFromLastCommon,
  kLastCommon,
  kOverhangsEqual,
  kHipsOffset,
  kWallLower,
  kWallHigher,
};

struct HipNote {
  HipNoteKind Kind = HipNoteKind::kLongestEdge;
  std::optional<double> Length;  ///< for the notes that give one
};

/// The notes that apply, in order.
std::vector<HipNote> NotesOfHipLayout(const Rafter& rafter, const HipLayoutOptions& options);

using LengthTextFunction = std::function<std::string(double)>;
/// As on screen and on paper, indented with blanks.
std::string ScreenText(const HipNote& note, const LengthTextFunction& lengthText);
/// As in a DXF file, where some notes are worded differently.
std::string ExportText(const HipNote& note, const LengthTextFunction& lengthText);

/// The name of a common or the length of a jack; empty for a jack without one.
std::string FootText(const LaidRafter& rafter, const LengthTextFunction& lengthText);

/// Rise over run, or degrees.
std::string MainSlopeText(const Rafter& rafter, bool riseOverRun);
std::string EndSlopeText(const Rafter& rafter, bool riseOverRun);

}  // namespace pitchcraft
