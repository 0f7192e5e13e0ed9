// Hip roofs whose end has a slope of its own: main common, hip end common and the hip between them, all at
// once.
#include <algorithm>

#include "core/rafter.h"
#include "core/triangles.h"

namespace pitchcraft {
namespace {

using Type = Member;

}  // namespace

void Rafter::CalculateBastardHip() {
  if (OverhangsEqual) {
    CalculateAdjustedBastardHip();
    return;
  }
  HipEndOverhangExcess = 0;
  HipShift = 0;
  // The next calculation has equal overhangs unless the document asks for this one again: it sets the flag
  // from its menu each time.
  OverhangsEqual = true;
  AdjFasciaHeight = FasciaHeight;
  const Single endRun = Slope / HipEndSlope * Span;
  const Single hipRunPerRun = Hypotenuse(endRun, Span) / Span;
  CalculateMainCommonRuns();
  TakeNaturalHipEnd(endRun);
  CalculateHipEndRuns();
  CalculateBastardHipSlope(hipRunPerRun);
  let(HipRidgeAllowance) = Hypotenuse(Thickness * HipEndSpan / Span, Thickness) / 2;
  CalculateBastardHipRuns();
  CalculateBastardHipFascia();
  CalculateBastardHipHeels();
  CalculateMainRises();
  SetHipRises(Rise, Rise);
  CalculateBastardHipLengths();
  CalculateBastardJackDifferences(SlopeBase * HipEndSpan / Span, SlopeBase * Span / HipEndSpan);
  WriteBastardHipTexts();
}

void Rafter::CalculateAdjustedBastardHip() {
  AdjFasciaHeight = FasciaHeight;
  const Single endRun = Slope / HipEndSlope * Span;
  const Single hipRunPerRun = Hypotenuse(endRun, Span) / Span;
  CalculateMainCommonRuns();
  TakeNaturalHipEnd(endRun);
  MakeOverhangsEqual();
  CalculateHipEndRuns();
  CalculateBastardHipSlope(hipRunPerRun);
  // The moved end wall no longer tells the direction of the hip; the slopes still do.
  let(HipRidgeAllowance) = Hypotenuse(Thickness * HipEndSlope / Slope, Thickness) / 2;
  ShiftHipForEqualOverhangs();
  CalculateBastardHipRuns();
  CalculateBastardHipFascia();
  CalculateBastardHipHeels();
  CalculateMainRises();
  // On a steeper end the hip bears on the raised end wall, on a flatter one still on the main wall.
  const double hipRise = HipEndSlope > Slope ? Rise - HipEndDrop : double{Rise};
  SetHipRises(hipRise, Rise - HipEndDrop);
  CalculateBastardHipLengths();
  CalculateBastardJackDifferences(SlopeBase * Slope / HipEndSlope, SlopeBase * (Span / endRun));
  WriteBastardHipTexts();
}

// The roof of an irregular plan has no calculation yet; its place in the interface is kept.
void Rafter::CalculateIrregular() {}

void Rafter::CalculateMainCommonRuns() {
  let(PlumbCut) = PlumbDepth(Slope, Depth, SlopeBase);
  let(RidgeAllowance) = RidgeThickness / 2;
  AdjSpan = Span - RidgeAllowance;
  AdjSpanWithOverhang = AdjSpan + Overhang;
}

// The end that meets the main roof in a hip over the corner of the walls: both faces rise alike over their
// runs.
void Rafter::TakeNaturalHipEnd(double endRun) {
  HipEndOverhang = Slope / HipEndSlope * Overhang;
  HipEndSpan = endRun;
  HipAngle1 = DegreesOf(Span / HipEndSpan);
  HipAngle2 = 90 - HipAngle1;
}

// The eaves stay where they meet at one height; the end wall moves until its overhang is that of the sides.
void Rafter::MakeOverhangsEqual() {
  HipEndOverhangExcess = Overhang - HipEndOverhang;
  HipEndDrop = HipEndOverhangExcess * HipEndSlope / SlopeBase;
  HipEndOverhang = Overhang;
  HipEndSpan = HipEndSpan - HipEndOverhangExcess;
}

void Rafter::CalculateHipEndRuns() {
  HipEndRidgeAllowance = Slope / HipEndSlope * RidgeAllowance;
  AdjHipEndSpan = HipEndSpan - HipEndRidgeAllowance;
  AdjHipEndSpanWithOverhang = AdjHipEndSpan + HipEndOverhang;
  let(HipEndPlumbCut) = PlumbDepth(HipEndSlope, Depth, SlopeBase);
}

void Rafter::CalculateBastardHipSlope(double hipRunPerRun) {
  HipValSlope = Slope / hipRunPerRun;
  let(HipDegrees) = RoundedDegrees(HipValSlope);
  let(HipValOverhang) = Overhang * hipRunPerRun;
  HipValSpan = Span * hipRunPerRun;
  let(HipValPlumbCut) = PlumbDepth(HipValSlope, HipValDepth, SlopeBase);
}

void Rafter::ShiftHipForEqualOverhangs() {
  // Whoever calculates the adjusted roof without asking for equal overhangs gets its lengths, but no shifted
  // line.
  const bool shifts = OverhangsEqual.Stored() == -1;
  HipShift = 0;
  if (HipEndSlope > Slope) {
    const Single runToEndWall = SlopeBase * HipEndDrop / HipValSlope;
    let(HipValOverhang) = runToEndWall + HipValOverhang;
    HipValSpan = HipValSpan - runToEndWall;
    if (shifts) HipShift = HipEndSlope / Slope * HipEndOverhangExcess;
  } else if (Slope > HipEndSlope) {
    if (shifts) HipShift = HipEndOverhangExcess;
  }
}

void Rafter::CalculateBastardHipRuns() {
  AdjHipSpan = HipValSpan - HipRidgeAllowance;
  AdjHipSpanWithOverhang = AdjHipSpan + HipValOverhang;
}

void Rafter::CalculateBastardHipFascia() {
  LimitTo(AdjFasciaHeight, PlumbCut);
  HipEndFasciaCut = std::min<double>(AdjFasciaHeight, HipValPlumbCut);
}

void Rafter::CalculateBastardHipHeels() {
  ApplyLocks(HeelLocked, SeatLocked, kDefaultHeelShare);
  LimitHeel(kDefaultHeelShare, ZeroHeel::kTakesDefault);
  LimitFasciaWithoutOverhang();
  // One heel all round keeps the rafters' tops in one plane with the walls.
  let(HipEndHeel) = CommonHeel;
  let(HipEndSeat) = SeatBelow(HipEndPlumbCut, HipEndHeel, HipEndSlope);
  // The drop at the corner of the hip's end, measured along the main wall.
  let(HipDrop) = (HipValThickness / 2) / SinDegrees(HipAngle1);
  let(HipDrop) = HipDrop * HipEndSlope / SlopeBase;
  let(HipHeel) = Heel - HipDrop;
  let(HipValSeat) = SeatBelow(HipValPlumbCut, HipHeel, HipValSlope);
  HipFasciaCut = AdjFasciaHeight - HipDrop;
}

void Rafter::CalculateMainRises() {
  Rise = RiseOver(AdjSpan);
  RiseWithOverhang = RiseOver(AdjSpanWithOverhang);
}

void Rafter::SetHipRises(double hipRise, double hipEndRise) {
  HipRise = hipRise;
  HipEndRise = hipEndRise;
  // From fascia to ridge all of them climb the same height.
  HipRiseWithOverhang = RiseWithOverhang;
  HipEndRiseWithOverhang = RiseWithOverhang;
}

void Rafter::CalculateBastardHipLengths() {
  let(CommonLength1) = Hypotenuse(Rise, AdjSpan);
  let(HipEndLength1) = Hypotenuse(Rise, AdjHipEndSpan);
  let(CommonLength2) = Hypotenuse(RiseWithOverhang, AdjSpanWithOverhang);
  let(HipEndLength2) = Hypotenuse(RiseWithOverhang, AdjHipEndSpanWithOverhang);
  if (RafterType == Type::kCommon) {
    Length1 = Hypotenuse(Rise, AdjSpan);
    let(Length2) = Hypotenuse(RiseWithOverhang, AdjSpanWithOverhang);
  } else if (RafterType == Type::kBastardHip) {
    Length1 = Hypotenuse(HipRise, AdjHipSpan);
    let(Length2) = Hypotenuse(HipRiseWithOverhang, AdjHipSpanWithOverhang);
  } else if (RafterType == Type::kHipEndCommon) {
    Length1 = Hypotenuse(HipEndRise, AdjHipEndSpan);
    let(Length2) = Hypotenuse(HipEndRiseWithOverhang, AdjHipEndSpanWithOverhang);
  }
}

// Jacks of the end step along the end wall, those of the sides along the main wall, so each face steps by the
// other's run: `endRun` and `mainRun` are the runs of a jack that stands SlopeBase away from the corner.
void Rafter::CalculateBastardJackDifferences(double endRun, double mainRun) {
  const auto lengthOver = [this](Single run, double slope) -> Single {
    const Single rise = slope * run / SlopeBase;
    return Hypotenuse(rise, run);
  };
  const Single end = lengthOver(endRun, HipEndSlope);
  let(HipEndCommonDifference16) = end * 16 / SlopeBase;
  let(HipEndCommonDifference24) = end + end;
  let(HipEndCommonDifference) = end / SlopeBase;
  const Single main = lengthOver(mainRun, Slope);
  let(CommonDifference16) = main * 16 / SlopeBase;
  let(CommonDifference24) = main + main;
  let(CommonDifference) = main / SlopeBase;
}

void Rafter::WriteBastardHipTexts() {
  let(Pitch) = PitchText(Slope);
  let(HipPitch) = HipPitchText();
  let(HipEndPitch) = PitchText(HipEndSlope);
}

}  // namespace pitchcraft
