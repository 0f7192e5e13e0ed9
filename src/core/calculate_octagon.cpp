// A regular octagon: its hip and the longest jack beside the middle of a side.
#include <algorithm>

#include "core/rafter.h"
#include "core/triangles.h"

namespace pitchcraft {
namespace {

using Type = Member;

// Run to the middle of a side for one unit of run to a corner: the cosine of half a side's angle.
constexpr double kSideRunPerHipRun = 0.923879532511;

constexpr double kHalfSideDegrees = 22.5;  // between the hip and the middle of the side, seen from the centre
constexpr double kCornerDegrees = 67.5;    // between the hip and the wall

}  // namespace

void Rafter::CalculateOctagon() {
  AdjFasciaHeight = FasciaHeight;
  if (Span == 0) {
    Span = HipValSpan * kSideRunPerHipRun;
  } else if (HipValSpan == 0) {
    HipValSpan = Span / kSideRunPerHipRun;
  }
  const Single hipRunPerRun = HipValSpan / Span;
  CalculateOctagonRuns();
  CalculateOctagonHip(hipRunPerRun);
  CalculateOctagonFascia();
  ApplyLocks(HeelLocked, SeatLocked, kDefaultHeelShare);
  LimitHeel(kDefaultHeelShare, ZeroHeel::kTakesDefault);
  LimitFasciaWithoutOverhang();
  CalculateOctagonDropAndSeat();
  CalculateOctagonLengths();
  CalculateOctagonJackDifferences();
  let(Pitch) = PitchText(Slope);
  let(HipPitch) = HipPitchText();
}

void Rafter::CalculateOctagonRuns() {
  HipEndSpan = Span * TanDegrees(kHalfSideDegrees) + Span * TanDegrees(kHalfSideDegrees);
  let(PlumbCut) = PlumbDepth(Slope, Depth, SlopeBase);
  let(RidgeAllowance) = 0;
  // The longest jack stands half a spacing beside the middle of the side and stops at the cheek of the hip.
  AdjSpan = Span - (spacing / 2) / TanDegrees(kHalfSideDegrees) -
            (HipValThickness / 2) / CosDegrees(kCornerDegrees);
  AdjSpanWithOverhang = AdjSpan + Overhang;
}

void Rafter::CalculateOctagonHip(double hipRunPerRun) {
  HipValSlope = Slope / hipRunPerRun;
  let(HipDegrees) = RoundedDegrees(HipValSlope);
  let(HipValOverhang) = Overhang * hipRunPerRun;
  HipValSpan = Span * hipRunPerRun;
  let(HipValPlumbCut) = PlumbDepth(HipValSlope, HipValDepth, SlopeBase);
  let(HipRidgeAllowance) = 0;
  AdjHipSpan = HipValSpan;
  AdjHipSpanWithOverhang = AdjHipSpan + HipValOverhang;
  HipAngle1 = kCornerDegrees;
  HipAngle2 = kHalfSideDegrees;
}

void Rafter::CalculateOctagonFascia() {
  LimitTo(AdjFasciaHeight, PlumbCut);
  HipEndFasciaCut = std::min<double>(AdjFasciaHeight, HipValPlumbCut);
}

void Rafter::CalculateOctagonDropAndSeat() {
  // The wall meets the cheek of the hip this far behind the corner. The drop over it goes by the slope of the
  // sides, which is a little more than the hip's own.
  let(HipDrop) = (HipValThickness / 2) * TanDegrees(HipAngle2);
  let(HipDrop) = HipDrop * Slope / SlopeBase;
  let(HipHeel) = Heel - HipDrop;
  let(HipValSeat) = SeatBelow(HipValPlumbCut, HipHeel, HipValSlope);
  HipFasciaCut = AdjFasciaHeight - HipDrop;
}

void Rafter::CalculateOctagonLengths() {
  if (RafterType == Type::kOctagonJack) {
    Rise = RiseOver(AdjSpan);
    RiseWithOverhang = RiseOver(AdjSpanWithOverhang);
    Length1 = Hypotenuse(Rise, AdjSpan);
    let(Length2) = Hypotenuse(RiseWithOverhang, AdjSpanWithOverhang);
  } else if (RafterType == Type::kOctagonHip) {
    // The hip runs to the centre, so its rise is that of the whole run.
    Rise = RiseOver(Span);
    RiseWithOverhang = (Span + Overhang) * Slope / SlopeBase;
    Length1 = Hypotenuse(Rise, AdjHipSpan);
    let(Length2) = Hypotenuse(RiseWithOverhang, AdjHipSpanWithOverhang);
  }
}

void Rafter::CalculateOctagonJackDifferences() {
  const Single run = spacing / TanDegrees(kHalfSideDegrees);
  const Single length = Hypotenuse(run * Slope / SlopeBase, run);
  let(CommonDifference16) = length * 16 / SlopeBase;
  let(CommonDifference24) = length * 24 / SlopeBase;
  // On an octagon this is the step between neighbouring jacks at the spacing itself, not for one unit of run.
  let(CommonDifference) = length;
}

}  // namespace pitchcraft
