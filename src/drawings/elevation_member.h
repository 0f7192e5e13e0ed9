// The measures of the member shown in an elevation, taken from the record once.
#pragma once

#include <string>

#include "core/rafter.h"
#include "core/single.h"
#include "drawings/drawing_context.h"

namespace pitchcraft {

enum class ElevationFamily { kCommon, kHip, kValley };

/// The angle at each cheek between the cut of an end and a square cut, in degrees, seen from below.
struct CheekBevels {
  double Upper = 45;
  double Lower = 45;
};

/// Lengths are those of the record (inches or millimetres), in the member's own vertical plane.
struct ElevationMember {
  ElevationFamily Family = ElevationFamily::kCommon;
  Single Run;  ///< from the outside of the wall to the ridge cut
  Single Overhang;
  Single RunWithOverhang;
  Single Rise;
  Single RiseWithOverhang;
  Single PlumbCut;      ///< plumb depth
  Single Heel;          ///< plumb, above the seat, never below 0
  Single Seat;          ///< level; infinite where the underside is level, 0 where there is no notch
  Single Fascia;        ///< plumb height of the tail cut, 0 to PlumbCut
  Single Depth;         ///< of the lumber, square to its edges
  Single CommonDepth;   ///< of the main common, whose square cut the fascia follows around the corner
  Single CommonSlope;   ///< of the main common, for CommonUnitRun
  Single Drop;          ///< of the top edge below the roof planes; hips only
  Single Slope;         ///< rise for UnitRun
  double UnitRun = 12;  ///< in the member's own plane
  double CommonUnitRun = 12;
  /// The distance along the member for one unit square to an eave: how far a square cut's fascia reaches in
  /// its side view.
  double FasciaFactor = 1;
  CheekBevels TailBevels;
  CheekBevels RidgeBevels;
  Single Kneewall;  ///< run from the wall to the kneewall; 0 if none is drawn
  Single KneewallRise;
  std::string SlopeText;        ///< the title: rise over run or degrees
  bool ShowsWholeRise = false;  ///< on the later pages
  bool HipEnd = false;          ///< the common of a hip end with a slope of its own

  bool IsCommon() const { return Family == ElevationFamily::kCommon; }
  /// The tail is cut square to the member's own top edge. The fascia goes on around the roof from there and
  /// meets the other members at a slant.
  bool SetsFascia() const { return IsCommon() && !HipEnd; }
};

ElevationMember ChooseElevationMember(const Rafter& rafter, const DrawingContext& context);

}  // namespace pitchcraft
