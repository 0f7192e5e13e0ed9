#include "drawings/elevation_member.h"

#include <algorithm>

#include "core/number_text.h"
#include "drawings/lettering.h"

namespace pitchcraft {
namespace {

constexpr int kGable = 0;
constexpr int kHipRoof = 1;
constexpr int kShed = 3;
constexpr int kDualSlope = 4;

ElevationFamily FamilyOf(RafterType type) {
  if (type == RafterType::kHip) return ElevationFamily::kHip;
  return IsValley(type) ? ElevationFamily::kValley : ElevationFamily::kCommon;
}

/// The common of a hip roof hangs its fascia by its own height: the record, calculated for the hip, holds the
/// height that is lowered by the hip's drop.
double FasciaOfCommon(const CRafter& rafter, int roofType) {
  if (roofType != kHipRoof) return rafter.AdjFasciaHeight;
  const double height = std::min<double>(rafter.FasciaHeight, rafter.PlumbCut);
  return rafter.Overhang == 0 ? std::min<double>(height, rafter.Heel) : height;
}

void TakeCommon(ElevationMember& member, const CRafter& rafter, const DrawingContext& context) {
  member.Run = rafter.AdjSpan;
  member.Overhang = rafter.Overhang;
  member.RunWithOverhang = rafter.AdjSpanWithOverhang;
  member.PlumbCut = rafter.PlumbCut;
  member.Heel = rafter.CommonHeel;
  member.Seat = rafter.Seat;
  member.Fascia = FasciaOfCommon(rafter, context.RoofType);
  member.Depth = rafter.Depth;
  member.UnitRun = context.UnitRun;
  // Only a gable, a shed and a dual slope stand on a kneewall; one that stands beyond the ridge carries
  // nothing.
  const bool carries =
      context.RoofType == kGable || context.RoofType == kShed || context.RoofType == kDualSlope;
  if (carries && rafter.Kneewall > 0 && rafter.Kneewall < rafter.AdjSpan && rafter.KneewallRise > 0) {
    member.Kneewall = rafter.Kneewall;
    member.KneewallRise = rafter.KneewallRise;
  }
}

void TakeHipOrValley(ElevationMember& member, const CRafter& rafter, const DrawingContext& context) {
  const bool hip = member.Family == ElevationFamily::kHip;
  member.Run = hip ? double{rafter.AdjHipSpan} : double{rafter.AdjValSpan};
  // A heel of 0 takes the overhang away after the hip's was worked out from it: the rises then end at the
  // wall.
  if (rafter.Overhang != 0) member.Overhang = rafter.HipValOverhang;
  member.RunWithOverhang = member.Run + member.Overhang;
  member.PlumbCut = rafter.HipValPlumbCut;
  member.Heel = hip ? double{rafter.HipHeel} : double{rafter.Heel};
  member.Seat = rafter.HipValSeat;
  member.Fascia = rafter.AdjFasciaHeight;
  member.Depth = rafter.HipValDepth;
  member.Drop = hip ? double{rafter.HipDrop} : 0;
  member.UnitRun = context.UnitHipRun;
}

/// What cannot be cut from the lumber ends at its edges: a drop that eats up the heel leaves none, a fascia
/// ends at the underside, a heel deeper than the lumber has no seat.
void KeepWithinLumber(ElevationMember& member) {
  if (member.Heel < 0) {
    member.Heel = 0;
    member.Seat = member.PlumbCut * member.UnitRun / member.Slope;
  }
  if (!(member.Seat > 0)) member.Seat = 0;
  if (member.Fascia > member.PlumbCut) member.Fascia = member.PlumbCut;
  if (member.Fascia < 0) member.Fascia = 0;
}

std::string SlopeTextOf(const CRafter& rafter, bool common, bool riseOverRun) {
  if (riseOverRun) return common ? rafter.Pitch.Stored() : rafter.HipPitch.Stored();
  return PlainText(RoundTo(common ? double{rafter.degrees} : double{rafter.HipDegrees}, 2)) +
         std::string(kDegreeSign);
}

}  // namespace

ElevationMember ChooseElevationMember(const CRafter& rafter, const DrawingContext& context) {
  ElevationMember member;
  member.Family = FamilyOf(rafter.RafterType);
  member.Rise = rafter.Rise;
  member.RiseWithOverhang = rafter.RiseWithOverhang;
  member.CommonDepth = rafter.Depth;
  member.CommonUnitRun = context.UnitRun;
  member.Slope = rafter.Slope;
  if (member.IsCommon()) {
    TakeCommon(member, rafter, context);
  } else {
    TakeHipOrValley(member, rafter, context);
  }
  KeepWithinLumber(member);
  member.SlopeText = SlopeTextOf(rafter, member.IsCommon(), context.RiseOverRun);
  return member;
}

}  // namespace pitchcraft
