// Where the rafters of a hip roof's end are and how long its jacks are, worked out once as a value that
// screen, paper and DXF all use.
//
// Plan coordinates are in the record's unit of length. The corner of the eaves is the origin; x runs along
// the eave of the hip end, y along the eave of the main roof. The hip rises from the origin to the peak.
#pragma once

#include <optional>
#include <vector>

#include "core/rafter.h"

namespace pitchcraft {

enum class HipRoofFace { kEnd, kMain };

struct HipLayoutOptions {
  JackLayout Layout = JackLayout::kCenter;
  bool WithOverhang = false;  ///< jacks are measured from the eave instead of from the wall
  /// From the wall corner to the middle of the last main common, from which the main jacks are then laid out.
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
  /// The last main common, measured from the eave of the hip end; without one, the peak.
  double LastCommonPlace() const { return LastCommon ? EndOverhang + *LastCommon : EndRun; }
};

/// One rafter of the left half of the hip end or of the left main face.
struct LaidRafter {
  HipRoofFace Face = HipRoofFace::kEnd;
  const char* Label = nullptr;  ///< of a common; null for a jack
  double Place = 0;             ///< of its middle, along the eave where it starts
  double PlanLength = 0;        ///< from that eave to the middle of the hip, or of the ridge
  /// A jack's length along its longest edge, with or without the overhang. Without it, a jack that ends
  /// outside the wall has no length.
  std::optional<double> Length;

  bool IsJack() const { return Label == nullptr; }
};

struct HipLayout {
  HipOutline Outline;
  double Spacing = 0;
  /// The end face from the middle outward, then the main face from the ridge down. Each face begins with its
  /// common.
  std::vector<LaidRafter> Rafters;
};

/// More jacks on one face than any roof has: such a spacing must be a mistake.
inline constexpr int kMostJacks = 2000;

HipOutline OutlineOfHip(const Rafter& rafter, const HipLayoutOptions& options);
/// If the spacing leaves no room between neighbouring rafters, lays out the commons alone. Raises an error if
/// a face would need more than kMostJacks.
HipLayout LayOutHip(const Rafter& rafter, const HipLayoutOptions& options);

}  // namespace pitchcraft
