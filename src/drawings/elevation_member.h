// The measures of the member that an elevation shows, chosen once from the record.
#pragma once

#include <string>

#include "core/rafter.h"
#include "core/single.h"
#include "drawings/drawing_context.h"

namespace pitchcraft {

enum class ElevationFamily { kCommon, kHip, kValley };

/// How far the cut of an end departs from square at each cheek, degrees, as the member is seen from below.
struct CheekBevels {
  double Upper = 45;
  double Lower = 45;
};

/// Lengths are those of the record (inches or millimetres), in the plane that the member stands in.
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
  Single CommonDepth;   ///< of the main common, whose square cut the fascia follows round the corner
  Single CommonSlope;   ///< of the main common, for CommonUnitRun
  Single Drop;          ///< of the top edge below the roof planes: hips only
  Single Slope;         ///< rise for UnitRun
  double UnitRun = 12;  ///< in the member's own plane
  double CommonUnitRun = 12;
  /// The way along the member for one unit square to an eave: how a square cut's fascia is seen from its
  /// side.
  double FasciaFactor = 1;
  CheekBevels TailBevels;
  CheekBevels RidgeBevels;
  Single Kneewall;  ///< run from the wall to the kneewall; 0 where none is drawn
  Single KneewallRise;
  std::string SlopeText;        ///< the title: rise over run or degrees
  bool ShowsWholeRise = false;  ///< on the later pages
  bool HipEnd = false;          ///< the common of a hip end with a slope of its own

  bool IsCommon() const { return Family == ElevationFamily::kCommon; }
  /// Cut square to its own top edge. The fascia that runs round from it meets the others at a slant.
  bool SetsFascia() const { return IsCommon() && !HipEnd; }
};

ElevationMember ChooseElevationMember(const Rafter& rafter, const DrawingContext& context);

}  // namespace pitchcraft
