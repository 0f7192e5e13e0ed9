// What plan and layout of a hip roof tell in words, the same on screen, on paper and in DXF: slopes, what
// stands at a rafter's foot, and the rules that the layout follows, in one order.
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
  std::optional<double> Length;  ///< of the notes that tell one
};

/// The notes whose condition holds, in their order.
std::vector<HipNote> NotesOfHipLayout(const Rafter& rafter, const HipLayoutOptions& options);

using LengthTextFunction = std::function<std::string(double)>;
/// As screen and paper show it, set in by blanks.
std::string ScreenText(const HipNote& note, const LengthTextFunction& lengthText);
/// As a DXF file holds it; some of its wording is its own.
std::string ExportText(const HipNote& note, const LengthTextFunction& lengthText);

/// The name of a common, the length of a jack; nothing for a jack without one.
std::string FootText(const LaidRafter& rafter, const LengthTextFunction& lengthText);

/// Rise over run, or degrees.
std::string MainSlopeText(const Rafter& rafter, bool riseOverRun);
std::string EndSlopeText(const Rafter& rafter, bool riseOverRun);

}  // namespace pitchcraft
