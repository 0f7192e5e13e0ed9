#include "drawings/elevation_member.h"

#include <algorithm>
#include <cmath>

#include "core/angles.h"
#include "drawings/lettering.h"

namespace pitchcraft {
namespace {

ElevationFamily FamilyOf(Member type) {
  if (type == Member::kHip || type == Member::kBastardHip) return ElevationFamily::kHip;
  return IsValley(type) ? ElevationFamily::kValley : ElevationFamily::kCommon;
}

/// The common of a hip roof hangs its fascia by its own height: the record, calculated for the hip, holds the
/// height that is lowered by the hip's drop.
double FasciaOfCommon(const Rafter& rafter, Roof roof) {
  if (roof != Roof::kHip) return rafter.AdjFasciaHeight;
  const double height = std::min<double>(rafter.FasciaHeight, rafter.PlumbCut);
  return rafter.Overhang == 0 ? std::min<double>(height, rafter.Heel) : height;
}

void TakeCommon(ElevationMember& member, const Rafter& rafter, const DrawingContext& context) {
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
  const bool carries = context.RoofType == Roof::kGable || context.RoofType == Roof::kShed ||
                       context.RoofType == Roof::kDualSlope;
  if (carries && rafter.Kneewall > 0 && rafter.Kneewall < rafter.AdjSpan && rafter.KneewallRise > 0) {
    member.Kneewall = rafter.Kneewall;
    member.KneewallRise = rafter.KneewallRise;
  }
}

/// The end of a bastard hip roof rises from its own wall to the ridge.
void TakeHipEndCommon(ElevationMember& member, const Rafter& rafter, const DrawingContext& context) {
  member.HipEnd = true;
  member.Run = rafter.AdjHipEndSpan;
  member.Overhang = rafter.HipEndOverhang;
  member.RunWithOverhang = rafter.AdjHipEndSpanWithOverhang;
  member.Rise = rafter.HipEndRise;
  member.RiseWithOverhang = rafter.HipEndRiseWithOverhang;
  member.PlumbCut = rafter.HipEndPlumbCut;
  member.Heel = rafter.HipEndHeel;
  member.Seat = rafter.HipEndSeat;
  member.Fascia = rafter.HipEndFasciaCut;
  // Without an overhang, the wood in front of the wall line is no higher than the heel.
  if (member.Overhang == 0) member.Fascia = std::min<double>(member.Fascia, member.Heel);
  member.Depth = rafter.Depth;
  member.Slope = rafter.HipEndSlope;
  member.UnitRun = context.UnitRun;
}

void TakeBastardHip(ElevationMember& member, const Rafter& rafter, const DrawingContext& context) {
  member.Run = rafter.AdjHipSpan;
  member.Overhang = rafter.HipValOverhang;
  member.RunWithOverhang = rafter.AdjHipSpanWithOverhang;
  member.Rise = rafter.HipRise;
  member.RiseWithOverhang = rafter.HipRiseWithOverhang;
  member.PlumbCut = rafter.HipValPlumbCut;
  member.Heel = rafter.HipHeel;
  member.Seat = rafter.HipValSeat;
  member.Fascia = rafter.HipFasciaCut;
  member.Depth = rafter.HipValDepth;
  member.Drop = rafter.HipDrop;
  member.Slope = rafter.HipValSlope;
  member.UnitRun = context.UnitRun;
  const double angle = rafter.HipAngle1 * kRadiansPerDegree;
  // Where the two fascias meet, the lower corner is equally far from both eaves; seen along the hip, the two
  // distances add up.
  member.FasciaFactor = std::sin(angle) + std::cos(angle);
  // The cheek towards the main roof meets the main fascia at the tail and the main common at the ridge.
  member.TailBevels = {rafter.HipAngle2, rafter.HipAngle1};
  member.RidgeBevels = {rafter.HipAngle1, rafter.HipAngle2};
}

void TakeHipOrValley(ElevationMember& member, const Rafter& rafter, const DrawingContext& context) {
  const bool hip = member.Family == ElevationFamily::kHip;
  member.Run = hip ? double{rafter.AdjHipSpan} : double{rafter.AdjValSpan};
  // A heel of 0 removes the overhang, but only after the hip's overhang was calculated from it: the rises
  // then end at the wall.
  if (rafter.Overhang != 0) member.Overhang = rafter.HipValOverhang;
  member.RunWithOverhang = member.Run + member.Overhang;
  member.PlumbCut = rafter.HipValPlumbCut;
  member.Heel = hip ? double{rafter.HipHeel} : double{rafter.Heel};
  member.Seat = rafter.HipValSeat;
  member.Fascia = rafter.AdjFasciaHeight;
  member.Depth = rafter.HipValDepth;
  member.Drop = hip ? double{rafter.HipDrop} : 0;
  member.UnitRun = context.UnitHipRun;
  member.FasciaFactor = std::sqrt(2.0);
}

/// What the lumber has no wood for ends at its edges: a drop greater than the heel leaves no heel, the fascia
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

std::string TitleOf(const ElevationMember& member, const Rafter& rafter, bool riseOverRun) {
  if (member.HipEnd) return SlopeText(rafter.HipEndPitch, rafter.HipEndDegrees, riseOverRun);
  if (member.IsCommon()) return SlopeText(rafter.Pitch, rafter.degrees, riseOverRun);
  return SlopeText(rafter.HipPitch, rafter.HipDegrees, riseOverRun);
}

}  // namespace

ElevationMember ChooseElevationMember(const Rafter& rafter, const DrawingContext& context) {
  ElevationMember member;
  member.Family = FamilyOf(rafter.RafterType);
  member.Rise = rafter.Rise;
  member.RiseWithOverhang = rafter.RiseWithOverhang;
  member.CommonDepth = rafter.Depth;
  member.CommonUnitRun = context.UnitRun;
  member.Slope = rafter.Slope;
  member.CommonSlope = rafter.Slope;
  if (rafter.RafterType == Member::kHipEndCommon) {
    TakeHipEndCommon(member, rafter, context);
  } else if (rafter.RafterType == Member::kBastardHip) {
    TakeBastardHip(member, rafter, context);
  } else if (member.IsCommon()) {
    TakeCommon(member, rafter, context);
  } else {
    TakeHipOrValley(member, rafter, context);
  }
  KeepWithinLumber(member);
  member.ShowsWholeRise = member.IsCommon() || rafter.RafterType == Member::kBastardHip;
  member.SlopeText = TitleOf(member, rafter, context.RiseOverRun);
  return member;
}

}  // namespace pitchcraft
