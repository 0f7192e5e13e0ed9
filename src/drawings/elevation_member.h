// The measures of the member that an elevation shows, chosen once from the record.
#pragma once

#include <string>

#include "core/rafter.h"
#include "core/single.h"
#include "drawings/drawing_context.h"

namespace pitchcraft {

enum class ElevationFamily { kCommon, kHip, kValley };

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
  Single CommonDepth;   ///< of the common, whose square cut the fascia follows round the corner
  Single Drop;          ///< of the top edge below the roof planes: hips only
  Single Slope;         ///< rise for UnitRun
  double UnitRun = 12;  ///< in the member's own plane
  double CommonUnitRun = 12;
  Single Kneewall;  ///< run from the wall to the kneewall; 0 where none is drawn
  Single KneewallRise;
  std::string SlopeText;  ///< the title: rise over run or degrees

  bool IsCommon() const { return Family == ElevationFamily::kCommon; }
};

ElevationMember ChooseElevationMember(const CRafter& rafter, const DrawingContext& context);

}  // namespace pitchcraft
