// Common, hip, valley and shed rafters. The steps run in one order: later ones use what earlier ones stored.
#include <cmath>

#include "core/rafter.h"
#include "core/triangles.h"

namespace pitchcraft {
namespace {

using Type = Member;

}  // namespace

void Rafter::Calculate() {
  if (RafterType == Type::kBastardHip) {
    CalculateBastardHip();
    return;
  }
  if (RafterType == Type::kGambrelBottom || RafterType == Type::kGambrelTop) {
    CalculateGambrel();
    return;
  }
  TakeHipEndFromMainRoof();
  CalculatePlumbCuts();
  CalculateRidgeAllowances();
  CalculateHeelAndSeat();
  CalculateHipDropAndSeat();
  CalculateRunsAndRises();
  CalculateLengths();
  CalculateJackDifferences();
  SetBevels();
  let(Pitch) = PitchText(Slope);
  let(HipEndPitch) = Pitch;
  let(HipPitch) = HipPitchText();
}

// A roof with equal slopes is a hip whose end is like its sides.
void Rafter::TakeHipEndFromMainRoof() {
  HipEndOverhangExcess = 0;
  HipEndDrop = 0;
  HipShift = 0;
  AdjFasciaHeight = FasciaHeight;
  HipEndSpan = Span;
  HipEndSlope = Slope;
  HipEndOverhang = Overhang;
  HipValSlope = Slope / HipFactor;
  let(HipValOverhang) = Overhang * HipFactor;
  let(HipDegrees) = RoundedDegrees(HipValSlope);
  HipEndDegrees = degrees;
  HipAngle1 = 45;
  HipAngle2 = 45;
}

void Rafter::CalculatePlumbCuts() {
  let(PlumbCut) = PlumbDepth(Slope, Depth, SlopeBase);
  let(HipValPlumbCut) = PlumbDepth(Slope, HipValDepth, HipRun);
  LimitTo(AdjFasciaHeight, PlumbCut);
  // A fascia taller than the hip's own plumb depth stays at the limit of the common: one fascia runs round
  // the roof.
  const bool onHipOrValley = RafterType == Type::kHip || IsValley(RafterType);
  if (onHipOrValley && AdjFasciaHeight > HipValPlumbCut) AdjFasciaHeight = PlumbCut;
}

void Rafter::CalculateRidgeAllowances() {
  // The hip meets two commons at 45 degrees, so its allowance goes by their thickness, not by its own.
  let(HipRidgeAllowance) = Hypotenuse(Thickness, Thickness) / 2;
  if (RafterType == Type::kValley || RafterType == Type::kLongValley) {
    let(ValRidgeAllowance) = Hypotenuse(RidgeThickness, RidgeThickness) / 2;
  } else if (RafterType == Type::kShortValley) {
    let(ValRidgeAllowance) = HipValThickness / 2;  // it butts the long valley
  } else {
    let(ValRidgeAllowance) = 0;
  }
  // A shed rafter butts the whole board; the others meet in its middle.
  let(RidgeAllowance) = RafterType == Type::kShed ? double{RidgeThickness} : RidgeThickness / 2;
}

void Rafter::CalculateHeelAndSeat() {
  ApplyLocks(HeelLocked, SeatLocked, kDefaultHeelShare);
  LimitHeel(kDefaultHeelShare, ZeroHeel::kClearsOverhang);
  LimitFasciaWithoutOverhang();
}

void Rafter::CalculateHipDropAndSeat() {
  let(HipDrop) = 0;
  if (RafterType == Type::kHip) {
    let(HipDrop) = (HipValThickness / 2) * TanDegrees(45);
    let(HipDrop) = HipDrop * Slope / HipRun;
    let(HipHeel) = CommonHeel - HipDrop;
    AdjFasciaHeight = AdjFasciaHeight - HipDrop;
    let(HipValSeat) = SeatBelow(HipValPlumbCut, HipHeel, Slope) * HipFactor;
  } else if (IsValley(RafterType)) {
    let(HipValSeat) = SeatBelow(HipValPlumbCut, Heel, Slope) * HipFactor;
  }
}

void Rafter::CalculateRunsAndRises() {
  HipValSpan = Span * HipFactor;
  let(LedgerSpan) = 0;
  AdjSpan = Span - RidgeAllowance;
  AdjHipSpan = HipValSpan - HipRidgeAllowance;
  let(AdjValSpan) = HipValSpan - ValRidgeAllowance;
  AdjSpanWithOverhang = AdjSpan + Overhang;
  AdjHipSpanWithOverhang = AdjHipSpan + HipValOverhang;
  AdjValSpanWithOverhang = AdjValSpan + HipValOverhang;
  Rise = RiseOver(AdjSpan);
  RiseWithOverhang = RiseOver(AdjSpanWithOverhang);
  let(KneewallRise) = RiseOver(Kneewall);
}

void Rafter::CalculateLengths() {
  let(CommonLength1) = Hypotenuse(Rise, AdjSpan);
  let(HipEndLength1) = CommonLength1;
  let(CommonLength2) = Hypotenuse(RiseWithOverhang, AdjSpanWithOverhang);
  let(HipEndLength2) = CommonLength2;
  // The rises are those of the common for hip and valley too: all of them climb from the plate to one ridge.
  if (RafterType == Type::kCommon || RafterType == Type::kShed) {
    Length1 = CommonLength1;
    let(Length2) = CommonLength2;
  } else if (RafterType == Type::kHip) {
    Length1 = Hypotenuse(Rise, AdjHipSpan);
    let(Length2) = Hypotenuse(RiseWithOverhang, AdjHipSpanWithOverhang);
  } else if (IsValley(RafterType)) {
    Length1 = Hypotenuse(Rise, AdjValSpan);
    let(Length2) = Hypotenuse(RiseWithOverhang, AdjValSpanWithOverhang);
  }
}

void Rafter::CalculateJackDifferences() {
  const Single length = std::sqrt(Slope * Slope + (SlopeBase == 12 ? 144.0 : 1000000.0));
  let(CommonDifference) = length / SlopeBase;
  let(CommonDifference16) = length * 16 / SlopeBase;
  // Two base runs are 24 inches; in metric this is the difference of two metres of run, and stays so.
  let(CommonDifference24) = length + length;
  let(HipEndCommonDifference16) = CommonDifference16;
  let(HipEndCommonDifference24) = CommonDifference24;
  let(HipEndCommonDifference) = CommonDifference;
}

void Rafter::SetBevels() {
  const bool square = RafterType == Type::kCommon || RafterType == Type::kShed;
  const bool bevelled = RafterType == Type::kHip || IsValley(RafterType);
  if (!square && !bevelled) return;
  BottomBevelType = 0;
  TopBevelType = 0;
  BottomBevelAngle = bevelled ? 45 : 0;
  TopBevelAngle = bevelled && RafterType != Type::kShortValley ? 45 : 0;
}

}  // namespace pitchcraft
