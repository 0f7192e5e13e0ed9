// What a hip layout tells beside its figure: the rules that it follows, in one order for screen, paper and
// DXF.
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
std::vector<HipNote> NotesOfHipLayout(const CRafter& rafter, const HipLayoutOptions& options);

using LengthTextFunction = std::function<std::string(double)>;
/// As screen and paper show it, set in by blanks.
std::string ScreenText(const HipNote& note, const LengthTextFunction& lengthText);
/// As a DXF file holds it; some of its wording is its own.
std::string ExportText(const HipNote& note, const LengthTextFunction& lengthText);

}  // namespace pitchcraft
