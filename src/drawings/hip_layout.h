// Where the rafters of a hip roof's end stand and how long its jacks are: worked out once, as a value that
// screen, paper and DXF walk.
//
// Plan coordinates are lengths of the record. The corner of the eaves is the origin; x runs along the eave of
// the hip end, y along the eave of the main roof. The hip rises from the origin to the peak.
#pragma once

#include <optional>
#include <vector>

#include "core/rafter.h"

namespace pitchcraft {

enum class HipRoofFace { kEnd, kMain };

struct HipLayoutOptions {
  JackLayout Layout = JackLayout::kCenter;
  bool WithOverhang = false;  ///< jacks are measured from the eave, else from the wall
  /// From the wall corner to the middle of the last main common; the main jacks are then set out from it.
  std::optional<double> LastCommon;
};

struct HipOutline {
  double MainRun = 0;  ///< from the main eave to the ridge
  double EndRun = 0;   ///< from the eave of the hip end to the peak
  double Overhang = 0;
  double EndOverhang = 0;
  double Top = 0;  ///< where the main roof is cut off
  std::optional<double> LastCommon;

  /// Plan run of the hip across the end for one unit along it.
  double Ratio() const { return MainRun > 0 ? EndRun / MainRun : 1; }
  /// The last main common, from the eave of the hip end; the peak where none is given.
  double LastCommonPlace() const { return LastCommon ? EndOverhang + *LastCommon : EndRun; }
};

/// One rafter of the left half of the hip end, or of the left main face.
struct LaidRafter {
  HipRoofFace Face = HipRoofFace::kEnd;
  const char* Label = nullptr;  ///< of a common; a jack has none
  double Place = 0;             ///< of its middle, along the eave that it starts from
  double PlanLength = 0;        ///< from that eave to the middle of the hip, or of the ridge
  /// Of a jack, along its longest edge as it is measured. A jack that ends outside the wall has none when the
  /// overhang is left out.
  std::optional<double> Length;

  bool IsJack() const { return Label == nullptr; }
};

struct HipLayout {
  HipOutline Outline;
  double Spacing = 0;
  /// The end face from the middle outward, then the main face from the ridge down; each begins with its
  /// common.
  std::vector<LaidRafter> Rafters;
};

/// More jacks on one face than any roof has: a spacing that cannot be meant.
inline constexpr int kMostJacks = 2000;

HipOutline OutlineOfHip(const Rafter& rafter, const HipLayoutOptions& options);
/// A spacing that leaves no room for a rafter beside the next one lays out the commons alone. Raises an error
/// where a face would take more than kMostJacks.
HipLayout LayOutHip(const Rafter& rafter, const HipLayoutOptions& options);

}  // namespace pitchcraft
